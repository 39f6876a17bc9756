#include "Elemente.h"

#include "Aufgabe.h"
#include "Elementtexte.h"
#include "Pflanzensatz.h"
#include "controls/Steuerelemente.h"
#include "controls/Textkasten.h"
#include "pictures/Bildform.h"
#include "store/Nebentabellen.h"
#include "store/Text.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>

#include <algorithm>

namespace {

QString feldname(const char *feld)
{
    return QString::fromLatin1(feld);
}

QString arrayname(const Element &element, int i)
{
    return QStringLiteral("%1_%2").arg(QLatin1String(element.control)).arg(i);
}

QString einText(const Element &e, Pflanzensatz &satz)
{
    if (e.ausArbeit)
        return satz.ausArbeit(feldname(e.feld)).value_or(QString());
    return satz.Auslesen(feldname(e.feld));
}

/// A coded field, read by the way its column is written.
class Kodefeld
{
public:
    Kodefeld(const Element &element, Sparte sparte) : element_(element)
    {
        if (const Spalte *spalte = spalteVon(sparte, element.feld))
            kodierung_ = spalte->kodierung();
    }

    /// Positions that the current record means; none without a field.
    Positionen gesetzt(Pflanzensatz &satz) const { return element_.feld ? positionen(kodierung_, einText(element_, satz)) : Positionen(); }

private:
    const Element &element_;
    Kodierung kodierung_;
};

/// A label or a scrolling box that shows one text; most patterns differ only in how they make it.
class Textelement : public Anzeigeelement
{
public:
    using Macher = std::function<QString(const Element &, Pflanzensatz &)>;

    Textelement(const Element &element, QWidget *eltern, Macher macher) : Anzeigeelement(element), macher_(std::move(macher))
    {
        if (element.kasten) {
            kasten_ = new Textkasten(eltern);
            kasten_->setNurLesen();
        } else {
            schild_ = new QLabel(eltern);
            schild_->setTextFormat(Qt::PlainText);
            schild_->setWordWrap(true);
            schild_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
            schild_->setTextInteractionFlags(Qt::TextSelectableByMouse);
            schild_->setFocusPolicy(Qt::NoFocus);
        }
        widget()->setObjectName(QString::fromLatin1(element.control));
    }

    QWidget *widget() const override { return kasten_ ? static_cast<QWidget *>(kasten_) : schild_; }
    QWidget *ganzerText() const override { return ganz_; }
    bool leer() const override { return text_.isEmpty(); }
    QString wert() const override { return text_; }

    void zeigen(Pflanzensatz &satz) override
    {
        text_ = macher_(element_, satz);
        if (element_.umformung)
            text_ = element_.umformung(text_);
        if (element_.muster == Muster::Text && !text_.isEmpty())
            text_ += element_.einheit;
        for (const Anhang &anhang : element_.anhang)
            if (istWahr(satz.Auslesen(feldname(anhang.feld))))
                text_ = text_.isEmpty() ? anhang.text.toString() : QStringLiteral("%1%2%3").arg(text_, anhang.trenner, anhang.text);
        if (text_.isEmpty() && element_.muster != Muster::Satz && (!element_.leerNurBeiNull || satz.istNull(feldname(element_.feld))))
            text_ = element_.leer.toString();
        textZeigen();
        if (element_.muster == Muster::Satz)
            schild_->setVisible(!text_.isEmpty());
    }

    void verdecken(const QStringList &worte) override
    {
        // What is not the plant's own words names none.
        if (element_.muster != Muster::Text || worte == verdeckt_)
            return;
        verdeckt_ = worte;
        textZeigen();
    }

protected:
    QLabel *schild() const { return schild_; }

private:
    void textZeigen()
    {
        const QString text = verdeckt_.isEmpty() ? text_ : ohneNamen(text_, verdeckt_);
        if (kasten_)
            kasten_->setText(text);
        else
            schildZeigen(text);
    }

    /// A text that no label can show stands in a box of its own below the beginning of it.
    void schildZeigen(const QString &text)
    {
        const QString kurz = schildtext(text);
        if (schild_->text() != kurz)
            schild_->setText(kurz);
        const bool gekuerzt = kurz != text;
        if (gekuerzt && !ganz_) {
            ganz_ = new Textkasten(schild_->parentWidget());
            ganz_->setNurLesen();
            ganz_->setFont(schild_->font());
            ganz_->setObjectName(schild_->objectName() + QStringLiteral("_Ganz"));
            ganz_->setAccessibleName(schild_->accessibleDescription());
        }
        if (!ganz_)
            return;
        ganz_->setText(gekuerzt ? text : QString());
        ganz_->setVisible(gekuerzt);
    }

    Macher macher_;
    QLabel *schild_ = nullptr;
    Textkasten *kasten_ = nullptr;
    Textkasten *ganz_ = nullptr;
    QString text_;
    QStringList verdeckt_;
};

class Namenselement : public Textelement
{
public:
    Namenselement(const Element &element, QWidget *eltern, Macher macher) : Textelement(element, eltern, std::move(macher))
    {
        Namenselement::schriftgroesse(schild()->font().pointSizeF());
        QFont schrift = schild()->font();
        // Botanical names stand in italics, names of varieties do not.
        schrift.setItalic(element.feld2);
        schrift.setBold(true);
        schild()->setFont(schrift);
    }

    void zeigen(Pflanzensatz &satz) override
    {
        Textelement::zeigen(satz);
        const std::optional<Sparte> herkunft = satz.herkunft();
        schild()->setToolTip(element_.feld2 && herkunft ? nomenklatur(satz.Auslesen(feldname(element_.feld2)), eintrag(*herkunft).quellenBuchstaben)
                                                        : QString());
    }

    void schriftgroesse(double punkt) override
    {
        QFont schrift = schild()->font();
        schrift.setPointSizeF(punkt * 1.7);
        schild()->setFont(schrift);
    }
};

/// Row of colour cells: months or swatches.
class Zellenreihe : public Anzeigeelement
{
public:
    Zellenreihe(const Element &element, const Elementumgebung &umgebung, QWidget *eltern)
        : Anzeigeelement(element), feld_(element, umgebung.fenster.sparte), form_(umgebung.form), reihe_(new QWidget(eltern))
    {
        const bool monate = element.muster == Muster::Monate;
        const Werteliste *worte = schema::wertelisteVon(spalteVon(umgebung.fenster.sparte, element.feld));
        const int anzahl = monate ? WL_Monate.anzahl() : int(element.farben->werte.size()) + 1;
        auto *anordnung = new QHBoxLayout(reihe_);
        anordnung->setContentsMargins(0, 0, 0, 0);
        anordnung->setSpacing(1);
        for (int i = 0; i < anzahl; ++i) {
            auto *zelle = new Farbzelle(!monate && i == anzahl - 1, reihe_);
            zelle->setObjectName(arrayname(element, i));
            zelle->setToolTip(worte ? worte->wort(i + 1).toString() : QString());
            zelle->setAccessibleName(vorlesename(umgebung.gruppe, element.titeltext.toString(), zelle->toolTip()));
            anordnung->addWidget(zelle);
            zellen_.push_back(zelle);
        }
        anordnung->addStretch();
        if (element.panel)
            reihe_->setObjectName(QString::fromLatin1(element.panel));
        monateBeschriften(umgebung.programm.MonatsDarstellung != 0);
    }

    QWidget *widget() const override { return reihe_; }
    bool leer() const override { return leer_; }

    QString wert() const override
    {
        QString zellen;
        for (const Farbzelle *zelle : zellen_)
            zellen += QStringLiteral("%1/%2 ").arg(zelle->backColor()).arg(zelle->backStyle());
        return zellen;
    }

    void zeigen(Pflanzensatz &satz) override
    {
        const Positionen gesetzt = feld_.gesetzt(satz);
        leer_ = element_.panel && gesetzt.leer();
        if (element_.panel)
            reihe_->setVisible(!leer_);
        const bool monate = element_.muster == Muster::Monate;
        const int letzte = int(zellen_.size()) - 1;
        for (int i = 0; i < (monate ? letzte + 1 : letzte); ++i)
            zellen_[size_t(i)]->setBackColor(!gesetzt.hat(i + 1) ? farbeKnopf : monate ? farbeTitel : element_.farben->werte[size_t(i)]);
        vorlesen(gesetzt);
        if (monate)
            return;
        const bool bunt = gesetzt.hat(letzte + 1);
        zellen_.back()->setBackStyle(bunt && !element_.buntZiel ? 1 : 0);
        // The mark of another row is only ever set here; that row has painted itself before.
        if (bunt && element_.buntZiel)
            if (auto *ziel = form_->findChild<Farbzelle *>(QStringLiteral("%1_%2").arg(QLatin1String(element_.buntZiel)).arg(letzte)))
                ziel->setBackStyle(1);
    }

    void monateBeschriften(bool buchstaben) override
    {
        if (element_.muster != Muster::Monate)
            return;
        for (size_t i = 0; i < zellen_.size(); ++i)
            zellen_[i]->setCaption(monatsbeschriftung(int(i), buchstaben));
    }

    void schriftgroesse(double punkt) override
    {
        constexpr double breit = 2.15, hoch = 2.5; // pixels to the point
        for (Farbzelle *zelle : zellen_)
            zelle->setMass(QSize(int(breit * punkt), int(hoch * punkt)));
    }

private:
    /// The row as a whole tells what is set in it.
    void vorlesen(Positionen gesetzt)
    {
        QStringList worte;
        for (size_t i = 0; i < zellen_.size(); ++i)
            if (gesetzt.hat(int(i) + 1))
                worte += zellen_[i]->toolTip();
        const QString text = worte.isEmpty() ? QStringLiteral("keine Angabe") : worte.join(QStringLiteral(", "));
        if (reihe_->accessibleDescription() != text)
            reihe_->setAccessibleDescription(text);
    }

    Kodefeld feld_;
    QWidget *form_ = nullptr;
    QWidget *reihe_ = nullptr;
    std::vector<Farbzelle *> zellen_;
    bool leer_ = false;
};

constexpr int symbolgroesse = 34; // pixels

/// While the mouse is over a picture the hint panel explains it.
void hinweisGeben(Bildfeld *feld, const Elementumgebung &umgebung, std::function<QString()> text)
{
    QObject::connect(feld, &Bildfeld::mausDarueber, feld, [hinweis = umgebung.hinweis, text = std::move(text)] { hinweis(text()); });
    QObject::connect(feld, &Bildfeld::mausVerlassen, feld, [hinweis = umgebung.hinweis] { hinweis(QString()); });
}

QString symbolname(const Symbol &symbol, const Element &element, const Elementumgebung &umgebung)
{
    return vorlesename(umgebung.gruppe, element.titeltext.toString(), symbol.name.toString());
}

/// Pictures that stand for positions of a coded field or for booleans.
class Symbolreihe : public Anzeigeelement
{
public:
    Symbolreihe(const Element &element, const Elementumgebung &umgebung, QWidget *eltern)
        : Anzeigeelement(element), feld_(element, umgebung.fenster.sparte), reihe_(new QWidget(eltern))
    {
        const bool fluss = element.muster == Muster::Symbolfluss;
        reihe_->setMouseTracking(true); // what moves beside the pictures reaches the panels behind
        auto *anordnung = fluss ? nullptr : new QHBoxLayout(reihe_);
        if (anordnung) {
            anordnung->setContentsMargins(0, 0, 0, 0);
            anordnung->setSpacing(8);
        } else {
            reihe_->setFixedSize(pixel(flussLinks + 3 * flussSchritt), pixel(flussZeile2) + symbolgroesse);
        }
        for (size_t i = 0; i < element.symbole.size(); ++i) {
            const Symbol &symbol = element.symbole[i];
            auto *feld = new Bildfeld({symbolgroesse, symbolgroesse}, reihe_);
            feld->setObjectName(arrayname(element, int(i)));
            feld->setBild(QString::fromLatin1(symbol.bild));
            feld->setAccessibleName(symbolname(symbol, element, umgebung));
            feld->setToolTip(symbol.name.toString());
            feld->hide();
            hinweisGeben(feld, umgebung,
                         [feld, &symbol] { return feld->bild() == QLatin1String(symbol.bild) ? symbol.hinweis.toString() : QString(); });
            if (anordnung)
                anordnung->addWidget(feld);
            felder_.push_back(feld);
        }
        if (anordnung)
            anordnung->addStretch();
    }

    QWidget *widget() const override { return reihe_; }
    bool leer() const override { return leer_; }

    QString wert() const override
    {
        QString bilder;
        for (size_t i = 0; i < felder_.size(); ++i)
            if (!felder_[i]->isHidden())
                bilder += QStringLiteral("%1:%2 ").arg(i).arg(felder_[i]->bild());
        return bilder;
    }

    void zeigen(Pflanzensatz &satz) override
    {
        const Positionen positionen = feld_.gesetzt(satz);
        leer_ = true;
        int x = flussLinks, y = flussZeile1;
        for (size_t i = 0; i < felder_.size(); ++i) {
            const Symbol &symbol = element_.symbole[i];
            const bool gesetzt = symbol.feld ? istWahr(satz.Auslesen(feldname(symbol.feld))) : positionen.hat(int(i) + 1);
            const bool sichtbar = gesetzt || symbol.aus;
            Bildfeld *feld = felder_[i];
            if (sichtbar && element_.muster == Muster::Symbolfluss) {
                feld->move(pixel(x), pixel(y));
                feld->setProperty("Left", x);
                feld->setProperty("Top", y);
                x += flussSchritt;
                if (x > flussRand) {
                    x = flussLinks;
                    y = flussZeile2;
                }
            }
            if (symbol.aus)
                umschalten(*feld, symbol, gesetzt);
            feld->setVisible(sichtbar);
            leer_ = leer_ && !sichtbar;
        }
    }

private:
    // The flow of the marks, in twips.
    static constexpr int flussLinks = 240, flussZeile1 = 1035, flussZeile2 = 1560, flussSchritt = 550, flussRand = 1400;

    /// What a picture shows by its colour alone is said as well.
    static void umschalten(Bildfeld &feld, const Symbol &symbol, bool gesetzt)
    {
        feld.setBild(QString::fromLatin1(gesetzt ? symbol.bild : symbol.aus));
        feld.setToolTip(QStringLiteral("%1: %2").arg(symbol.name, gesetzt ? u"ja" : u"nein"));
        feld.setAccessibleDescription(gesetzt ? QStringLiteral("ja") : QStringLiteral("nein"));
    }

    Kodefeld feld_;
    QWidget *reihe_ = nullptr;
    std::vector<Bildfeld *> felder_;
    bool leer_ = true;
};

/// One control with the picture of the position that is set.
class Bildwahl : public Anzeigeelement
{
public:
    Bildwahl(const Element &element, const Elementumgebung &umgebung, QWidget *eltern)
        : Anzeigeelement(element),
          umgebung_(umgebung),
          feld_(element, umgebung.fenster.sparte),
          bild_(new Bildfeld({symbolgroesse, symbolgroesse}, eltern))
    {
        bild_->setObjectName(QString::fromLatin1(element.control));
        hinweisGeben(bild_, umgebung, [this] { return gezeigt_ ? gezeigt_->hinweis.toString() : QString(); });
    }

    QWidget *widget() const override { return bild_; }
    bool leer() const override { return !gezeigt_; }
    QString wert() const override { return gezeigt_ ? bild_->bild() : QString(); }

    void zeigen(Pflanzensatz &satz) override
    {
        const Positionen positionen = feld_.gesetzt(satz);
        gezeigt_ = nullptr;
        for (size_t i = 0; i < element_.symbole.size() && !gezeigt_; ++i)
            if (positionen.hat(int(i) + 1))
                gezeigt_ = &element_.symbole[i];
        bild_->setVisible(gezeigt_);
        if (!gezeigt_)
            return;
        bild_->setBild(QString::fromLatin1(gezeigt_->bild));
        bild_->setToolTip(gezeigt_->name.toString());
        bild_->setAccessibleName(symbolname(*gezeigt_, element_, umgebung_));
    }

private:
    const Elementumgebung umgebung_;
    Kodefeld feld_;
    Bildfeld *bild_ = nullptr;
    const Symbol *gezeigt_ = nullptr;
};

/// A picture that is the same for all records and can be looked at in a form of its own.
class Bildoeffner : public Anzeigeelement
{
public:
    Bildoeffner(const Element &element, QWidget *eltern) : Anzeigeelement(element), bild_(new Bildfeld(groesse, eltern))
    {
        bild_->setObjectName(QString::fromLatin1(element.control));
        bild_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        bild_->setBild(QString::fromLatin1(element.formular->bild));
        bild_->setBedienbar();
        bild_->setToolTip(QStringLiteral("Anklicken um das Bild zu vergrößern"));
        bild_->setAccessibleName(element.formular->titel.toString());
        bild_->setAccessibleDescription(bild_->toolTip());
        QObject::connect(bild_, &Bildfeld::geklickt, bild_, [this] { Bildform::zeigen(*element_.formular, bild_); });
    }

    QWidget *widget() const override { return bild_; }
    void zeigen(Pflanzensatz &) override {}

private:
    static constexpr QSize groesse{132, 96}; // pixels
    Bildfeld *bild_ = nullptr;
};

class Bewertungselement : public Anzeigeelement
{
public:
    Bewertungselement(const Element &element, QWidget *eltern) : Anzeigeelement(element), leiste_(new Bewertungsleiste(eltern))
    {
        leiste_->setObjectName(QString::fromLatin1(element.control));
        leiste_->setAccessibleName(QStringLiteral("Bewertung"));
    }

    QWidget *widget() const override { return leiste_; }
    QString wert() const override { return stufe_ ? QString::number(*stufe_) : QString(); }

    void zeigen(Pflanzensatz &satz) override
    {
        const QString feld = feldname(element_.feld);
        const std::optional<QString> text = element_.ausArbeit   ? satz.ausArbeit(feld)
                                            : satz.istNull(feld) ? std::nullopt
                                                                 : std::optional(satz.Auslesen(feld));
        // Without a rating the indicator stays where it was; beyond the scale of 1 to 9 it goes one step off its end.
        const std::optional<double> wert = text ? zahlLesen(*text) : std::nullopt;
        stufe_ = wert ? std::optional(int(std::clamp(*wert, 0.0, 10.0))) : std::nullopt;
        if (stufe_)
            leiste_->setWert(*stufe_);
        else
            leiste_->setOhneWert();
    }

private:
    Bewertungsleiste *leiste_ = nullptr;
    std::optional<int> stufe_;
};

/// Reports mouse presses in the user's fields, and that the user has gone into one by Tab or key.
class Eingabewaechter : public QObject
{
public:
    Eingabewaechter(QObject *eltern, std::function<void()> gedrueckt, std::function<void()> betreten = {})
        : QObject(eltern), gedrueckt_(std::move(gedrueckt)), betreten_(std::move(betreten))
    {
    }
    bool eventFilter(QObject *quelle, QEvent *ereignis) override
    {
        // A press into a locked window comes by here as well.
        if (!static_cast<QWidget *>(quelle)->isEnabled())
            return false;
        switch (ereignis->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::Drop: gedrueckt_(); break;
        case QEvent::KeyPress:
            if (!betreten_ && static_cast<QKeyEvent *>(ereignis)->key() == Qt::Key_Space)
                gedrueckt_();
            break;
        case QEvent::FocusIn: {
            const Qt::FocusReason grund = static_cast<QFocusEvent *>(ereignis)->reason();
            if (betreten_ && (grund == Qt::TabFocusReason || grund == Qt::BacktabFocusReason || grund == Qt::ShortcutFocusReason))
                betreten_();
            break;
        }
        default: break;
        }
        return false;
    }

private:
    std::function<void()> gedrueckt_, betreten_;
};

class Benutzertext : public Anzeigeelement
{
public:
    Benutzertext(const Element &element, const Elementumgebung &umgebung, QWidget *eltern) : Anzeigeelement(element), kasten_(new Textkasten(eltern))
    {
        kasten_->setObjectName(QString::fromLatin1(element.control));
        kasten_->setPlaceholderText(QStringLiteral("Hier können Sie sich etwas zu dieser Pflanze notieren."));
        kasten_->setAccessibleName(QStringLiteral("Eigene Bemerkung"));
        const auto betreten = [this] { betreten_ = true; };
        auto *waechter = new Eingabewaechter(
            kasten_,
            [betreten, geaendert = umgebung.geaendert] {
            betreten();
            geaendert();
            },
            betreten);
        kasten_->installEventFilter(waechter);
        kasten_->viewport()->installEventFilter(waechter);
        // However a change is made, by key, by paste or by an input method: it is the user's once he has gone into the note himself.
        QObject::connect(kasten_, &QPlainTextEdit::textChanged, kasten_, [this, geaendert = umgebung.geaendert] {
            if (betreten_ && !zeigt_)
                geaendert();
        });
        decke_ = new QLabel(QStringLiteral("Die Notiz nennt den Namen. Sie ist verdeckt wie er."), eltern);
        decke_->setObjectName(kasten_->objectName() + QStringLiteral("_Decke"));
        decke_->setProperty("feldtitel", true);
        decke_->setWordWrap(true);
        decke_->hide();
    }

    QWidget *widget() const override { return kasten_; }
    QWidget *ganzerText() const override { return decke_; }
    void verdecken(const QStringList &worte) override
    {
        // A note stays what it is: where it tells the name it is not seen.
        const bool verdeckt = !worte.isEmpty() && ohneNamen(kasten_->text(), worte) != kasten_->text();
        kasten_->setVisible(!verdeckt);
        decke_->setVisible(verdeckt);
    }
    bool veraendert() const override { return kasten_->text() != gezeigt_; }
    void uebernehmen() override { gezeigt_ = kasten_->text(); }
    QString wert() const override { return kasten_->text(); }

    void zeigen(Pflanzensatz &satz) override
    {
        zeigt_ = true;
        kasten_->setText(satz.benutzerfeld(feldname(element_.feld)));
        zeigt_ = false;
        uebernehmen();
    }

private:
    Textkasten *kasten_ = nullptr;
    QLabel *decke_ = nullptr;
    QString gezeigt_;
    bool zeigt_ = false, betreten_ = false;
};

/// Check boxes that show a coded field: fixed ones in two columns, or the user's own, whose presses are reported.
class Kaestchenreihe : public Anzeigeelement
{
public:
    Kaestchenreihe(const Element &element, const QStringList &worte, const Elementumgebung &umgebung, QWidget *eltern)
        : Anzeigeelement(element), kodefeld_(element, umgebung.fenster.sparte), feld_(new QWidget(eltern))
    {
        const bool eigene = element.muster == Muster::Benutzereigen;
        auto *anordnung = new QGridLayout(feld_);
        anordnung->setContentsMargins(0, 0, 0, 0);
        anordnung->setVerticalSpacing(3);
        const int zeilen = eigene ? int(worte.size()) : (int(worte.size()) + 1) / 2;
        for (int i = 0; i < int(worte.size()); ++i) {
            QCheckBox *kaestchen = nullptr;
            if (eigene) {
                auto *eigenes = new Namenskaestchen(worte[i], feld_);
                eigenschaftBenennen(*eigenes, i, worte[i]);
                kaestchen = eigenes;
            } else {
                kaestchen = new QCheckBox(QString(worte[i]).replace(u'&', QStringLiteral("&&")), feld_);
                kaestchen->setAccessibleName(vorlesename(umgebung.gruppe, {}, worte[i]));
            }
            kaestchen->setObjectName(arrayname(element, i));
            if (eigene) {
                kaestchen->installEventFilter(new Eingabewaechter(kaestchen, umgebung.geaendert));
            } else {
                kaestchen->setAttribute(Qt::WA_TransparentForMouseEvents);
                kaestchen->setFocusPolicy(Qt::NoFocus);
            }
            anordnung->addWidget(kaestchen, i % zeilen, i / zeilen);
            kaestchen_.push_back(kaestchen);
        }
    }

    QWidget *widget() const override { return feld_; }

    bool veraendert() const override { return wert() != gezeigt_; }
    void uebernehmen() override { gezeigt_ = wert(); }

    QString wert() const override
    {
        QString flags;
        for (const QCheckBox *kaestchen : kaestchen_)
            flags += kaestchen->isChecked() ? u'1' : u' ';
        return flags;
    }

    void benennen(std::span<const QString> namen) override
    {
        for (size_t i = 0; i < kaestchen_.size(); ++i)
            if (auto *eigenes = qobject_cast<Namenskaestchen *>(kaestchen_[i]))
                eigenschaftBenennen(*eigenes, int(i), namen[i]);
    }

    void zeigen(Pflanzensatz &satz) override
    {
        const bool eigene = element_.muster == Muster::Benutzereigen;
        const Positionen angekreuzt = eigene ? positionen(Kodierung(), satz.benutzerfeld(feldname(element_.feld))) : kodefeld_.gesetzt(satz);
        for (size_t i = 0; i < kaestchen_.size(); ++i)
            kaestchen_[i]->setChecked(angekreuzt.hat(int(i) + 1));
        uebernehmen();
    }

private:
    Kodefeld kodefeld_;
    QWidget *feld_ = nullptr;
    QString gezeigt_;
    std::vector<QCheckBox *> kaestchen_;
};

class Herkunftsmarke : public Anzeigeelement
{
public:
    Herkunftsmarke(const Element &element, QWidget *eltern) : Anzeigeelement(element), bild_(new Bildfeld({24, 24}, eltern))
    {
        bild_->setObjectName(QString::fromLatin1(element.control));
    }

    QWidget *widget() const override { return bild_; }
    QString wert() const override { return bild_->tag(); }

    void zeigen(Pflanzensatz &satz) override
    {
        const bool geaendert = istGeaendert(satz.Auslesen(feldname(element_.feld)));
        const QString marke = geaendert ? QStringLiteral("2") : QStringLiteral("1");
        // The picture is assigned only when it changes.
        if (bild_->tag() == marke)
            return;
        bild_->setTag(marke);
        bild_->setBild(geaendert ? QStringLiteral("iliBenutzer/ko") : QStringLiteral("iliBenutzer/ok"));
        bild_->setToolTip(geaendert ? QStringLiteral("Diese Daten wurden vom Benutzer geändert!")
                                    : QStringLiteral("Diese Daten stammen aus einem Original-Datensatz der FH Lindenhof"));
        bild_->setAccessibleName(bild_->toolTip());
    }

private:
    Bildfeld *bild_ = nullptr;
};

/// German name and all German synonyms, or the botanical synonyms alone, joined by commas.
QString namenMitSynonymen(const Element &e, Pflanzensatz &satz)
{
    const bool deutsch = e.muster == Muster::DtName;
    return mitSynonymen(deutsch ? satz.Auslesen(feldname(e.feld)) : QString(), satz.synonyme(deutsch));
}

} // namespace

std::unique_ptr<Anzeigeelement> elementErzeugen(const Element &element, const Elementumgebung &umgebung, QWidget *eltern)
{
    const auto text = [&](Textelement::Macher macher) { return std::make_unique<Textelement>(element, eltern, std::move(macher)); };
    switch (element.muster) {
    case Muster::Text: {
        const Spalte *spalte = spalteVon(umgebung.fenster.sparte, element.feld);
        const bool zahl = spalte && spalte->art == Art::Zahl;
        return text([zahl](const Element &e, Pflanzensatz &satz) { return zahl ? zahlZeigen(einText(e, satz)) : einText(e, satz); });
    }
    case Muster::Liste:
        return text([feld = Kodefeld(element, umgebung.fenster.sparte), worte = worteFuer(umgebung.fenster.sparte, element)](
                        const Element &e, Pflanzensatz &satz) { return worteVon(feld.gesetzt(satz), worte, e.trenner); });
    case Muster::VonBisMeter:
        return text([](const Element &e, Pflanzensatz &satz) {
            return vonBisMeter(satz.Auslesen(feldname(e.feld)), satz.Auslesen(feldname(e.feld2)), e.einheit);
        });
    case Muster::VonBisMindest:
        return text([](const Element &e, Pflanzensatz &satz) {
            return vonBisMindest(satz.Auslesen(feldname(e.feld)), satz.Auslesen(feldname(e.feld2)), e.einheit, e.nullObergrenze);
        });
    case Muster::Satz:
        return text([](const Element &e, Pflanzensatz &satz) { return istWahr(satz.Auslesen(feldname(e.feld))) ? e.leer.toString() : QString(); });
    case Muster::BotName: return std::make_unique<Namenselement>(element, eltern, einText);
    case Muster::DtName:
    case Muster::Synonyme: return text(namenMitSynonymen);
    case Muster::Familie: return text([](const Element &e, Pflanzensatz &satz) { return satz.familie(satz.Auslesen(feldname(e.feld))); });
    case Muster::Ausbildung: return text([](const Element &e, Pflanzensatz &satz) { return ausbildungstext(satz.Auslesen(feldname(e.feld))); });
    case Muster::Monate:
    case Muster::Farbfeld: return std::make_unique<Zellenreihe>(element, umgebung, eltern);
    case Muster::Symbole:
    case Muster::Symbolfluss: return std::make_unique<Symbolreihe>(element, umgebung, eltern);
    case Muster::Bildwahl: return std::make_unique<Bildwahl>(element, umgebung, eltern);
    case Muster::Bildoeffner: return std::make_unique<Bildoeffner>(element, eltern);
    case Muster::Bewertung: return std::make_unique<Bewertungselement>(element, eltern);
    case Muster::Kaestchen: {
        QStringList worte;
        for (const QStringView wort : element.worte)
            worte += wort.toString();
        return std::make_unique<Kaestchenreihe>(element, worte, umgebung, eltern);
    }
    case Muster::Benutzertext: return std::make_unique<Benutzertext>(element, umgebung, eltern);
    case Muster::Benutzereigen: {
        const auto &namen = umgebung.programm.BenutzerNamen[size_t(umgebung.fenster.sparte)];
        return std::make_unique<Kaestchenreihe>(element, QStringList(namen.begin(), namen.end()), umgebung, eltern);
    }
    case Muster::Herkunftsmarke: return std::make_unique<Herkunftsmarke>(element, eltern);
    }
    return nullptr;
}
