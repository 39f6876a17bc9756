#include "Filtersteuerung.h"

#include "Steuerungsarten.h"
#include "controls/Steuerelemente.h"
#include "store/Datenbank.h"
#include "store/Kollation.h"
#include "store/Nebentabellen.h"
#include "store/Programm.h"
#include "store/Text.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSlider>
#include <QValidator>
#include <QVBoxLayout>

#include <algorithm>

namespace {

static_assert(nichtGewaehlt == farbeKnopf && monatGewaehlt == farbeTitel);

constexpr int einspaltigBis = 7, zweispaltigBis = 14; // boxes that stand in so many columns
constexpr int symbolgroesse = 44;                     // pixels
constexpr int zellenJeReihe = 14, bilderJeReihe = 8;
constexpr int kastenabstand = 10, zellenabstand = 2, wortabstand = 6;

/// Number box: a key that no number can hold beeps and is gone.
class Zahlfeld : public QLineEdit
{
public:
    Zahlfeld(bool minus, QWidget *eltern) : QLineEdit(eltern), minus_(minus)
    {
        setFixedWidth(70);
        setAlignment(Qt::AlignRight);
    }

protected:
    void keyPressEvent(QKeyEvent *ereignis) override
    {
        const QString text = ereignis->text();
        // Ctrl alone makes commands; with Alt it is the third level of the keyboard and makes characters.
        const Qt::KeyboardModifiers umschalter = ereignis->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
        const bool zeichen = !text.isEmpty() && text[0].isPrint() && umschalter != Qt::ControlModifier;
        const bool ziffer = zeichen && text[0] >= u'0' && text[0] <= u'9';
        if (zeichen && !ziffer && text != DezimalZeichen() && !(minus_ && text == u"-")) {
            QApplication::beep();
            ereignis->accept();
            return;
        }
        QLineEdit::keyPressEvent(ereignis);
    }

private:
    bool minus_;
};

/// What comes into a text box is one line: each line end becomes a blank, however it came in.
class Einzeiler : public QValidator
{
public:
    using QValidator::QValidator;
    State validate(QString &text, int &stelle) const override
    {
        for (qsizetype i = 0; i < text.size(); ++i) {
            const QChar z = text[i];
            if (!QStringView(u"\n\r\v\f\u0085\u2028\u2029").contains(z))
                continue;
            text[i] = u' ';
            if (z == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') {
                text.remove(i + 1, 1);
                stelle -= stelle > i + 1;
            }
        }
        return Acceptable;
    }
};

/// Empties the sentence about a picture when the mouse is over the frame alone.
class Satzleerer : public QObject
{
public:
    Satzleerer(QLabel *satz, QWidget *rahmen) : QObject(rahmen), satz_(satz)
    {
        rahmen->setMouseTracking(true);
        rahmen->installEventFilter(this);
    }

    bool eventFilter(QObject *quelle, QEvent *ereignis) override
    {
        if (ereignis->type() == QEvent::MouseMove)
            satz_->clear();
        return QObject::eventFilter(quelle, ereignis);
    }

private:
    QLabel *satz_ = nullptr;
};

/// What stands in a field, each text once, in the order of names.
QStringList feldwerte(Datenbank &arbeit, QStringView tabelle, const char *feld)
{
    std::vector<std::pair<std::string, QString>> werte;
    const QString sql = QStringLiteral("SELECT DISTINCT \"%1\" FROM \"%2\" WHERE \"%1\" <> ''").arg(QLatin1String(feld), tabelle);
    Anweisung &anweisung = arbeit.vorbereitet(sql);
    while (anweisung.schritt())
        werte.emplace_back(sortierschluessel(anweisung.text(0)), anweisung.text(0));
    std::ranges::sort(werte);
    QStringList texte;
    for (const auto &[schluessel, text] : werte)
        texte += text;
    return texte;
}

void nebeneinander(std::span<QWidget *const> widgets, QVBoxLayout &ort)
{
    auto *reihe = new QHBoxLayout;
    reihe->setSpacing(wortabstand);
    for (QWidget *widget : widgets)
        reihe->addWidget(widget);
    reihe->addStretch();
    ort.addLayout(reihe);
}

QGridLayout *raster(int abstand, QVBoxLayout &ort)
{
    auto *neu = new QGridLayout;
    neu->setHorizontalSpacing(abstand);
    neu->setVerticalSpacing(zellenabstand);
    ort.addLayout(neu);
    return neu;
}

/// Most columns, filled one after the other, that fit into a width.
int spaltenFuer(std::span<QWidget *const> widgets, int hoechstens, int raum)
{
    for (int spalten = hoechstens; spalten > 1; --spalten) {
        const size_t zeilen = (widgets.size() + size_t(spalten) - 1) / size_t(spalten);
        int breite = (spalten - 1) * kastenabstand;
        for (size_t anfang = 0; anfang < widgets.size(); anfang += zeilen)
            breite += std::ranges::max(widgets.subspan(anfang, std::min(zeilen, widgets.size() - anfang)), {},
                                       [](const QWidget *widget) { return widget->sizeHint().width(); })
                          ->sizeHint()
                          .width();
        if (breite <= raum)
            return spalten;
    }
    return 1;
}

/// In so many columns as told or else: few in one, more in two, very many in as many as there is room for.
void inSpalten(std::span<QWidget *const> widgets, int vorgabe, int raum, QVBoxLayout &ort)
{
    QGridLayout *ziel = raster(kastenabstand, ort);
    const int anzahl = int(widgets.size());
    const int spalten = vorgabe ? vorgabe : anzahl <= einspaltigBis ? 1 : anzahl <= zweispaltigBis ? 2 : std::max(2, spaltenFuer(widgets, 4, raum));
    const int zeilen = (anzahl + spalten - 1) / spalten;
    for (int i = 0; i < anzahl; ++i)
        ziel->addWidget(widgets[size_t(i)], i % zeilen, i / zeilen);
}

void inReihen(std::span<QWidget *const> widgets, int laenge, int abstand, QVBoxLayout &ort)
{
    QGridLayout *ziel = raster(abstand, ort);
    const int anzahl = int(widgets.size()), spalten = std::min(anzahl, laenge);
    for (int i = 0; i < anzahl; ++i)
        ziel->addWidget(widgets[size_t(i)], i / spalten, i % spalten);
    ziel->setColumnStretch(spalten, 1);
}

/// Check boxes and option buttons.
class Knoepfe : public Filtersteuerung
{
public:
    using Filtersteuerung::Filtersteuerung;

    void setzen(int i, int wert, const QString &) override
    {
        auto *knopf = element<QAbstractButton>(i);
        // An option that is to go out needs its group to let it.
        const bool ausschliessend = knopf->autoExclusive();
        knopf->setAutoExclusive(false);
        knopf->setChecked(wert != 0);
        knopf->setAutoExclusive(ausschliessend);
    }

    void anordnen(std::span<QWidget *const> widgets, QVBoxLayout &ort, QWidget *) override
    {
        inSpalten(widgets, kriterium_.kastenspalten, raum(), ort);
    }

protected:
    int wert(int i) const override { return element<QAbstractButton>(i)->isChecked() ? 1 : 0; }
    QAbstractButton *anschliessen(QAbstractButton *knopf)
    {
        connect(knopf, &QAbstractButton::toggled, this, [this] { umgebung_.geaendert(); });
        return knopf;
    }
};

class Kaestchen : public Knoepfe
{
public:
    using Knoepfe::Knoepfe;

    void auffrischen() override
    {
        for (int i = 0; benutzer() && i < teil_.elemente(); ++i)
            element<Namenskaestchen>(i)->setName(beschriftung(i));
    }

protected:
    QWidget *bauen(int i, QWidget *eltern) override
    {
        const QString text = beschriftung(i);
        // A name of the user's may hold anything and be of any length.
        return anschliessen(benutzer() ? new Namenskaestchen(text, eltern) : new QCheckBox(text, eltern));
    }

private:
    bool benutzer() const { return benutzernamen(umgebung_.beschreibung, kriterium_); }
};

class Option : public Knoepfe
{
public:
    using Knoepfe::Knoepfe;

    void anordnen(std::span<QWidget *const> widgets, QVBoxLayout &ort, QWidget *) override
    {
        constexpr size_t paar = 2;
        widgets.size() <= paar ? nebeneinander(widgets, ort) : inSpalten(widgets, kriterium_.kastenspalten, raum(), ort);
    }

protected:
    QWidget *bauen(int i, QWidget *eltern) override { return anschliessen(new QRadioButton(beschriftung(i), eltern)); }
};

/// A row of cells: swatches or months.
class Zellen : public Filtersteuerung
{
public:
    using Filtersteuerung::Filtersteuerung;

    void setzen(int i, int wert, const QString &) override { element<Farbzelle>(i)->setBackColor(wert); }
    void anordnen(std::span<QWidget *const> widgets, QVBoxLayout &ort, QWidget *) override { inReihen(widgets, zellenJeReihe, zellenabstand, ort); }

protected:
    int wert(int i) const override { return element<Farbzelle>(i)->backColor(); }
    Farbzelle *zelle(int i, bool bunt, QWidget *eltern)
    {
        auto *neu = new Farbzelle(bunt, eltern);
        neu->setToolTip(beschriftung(i));
        neu->setBedienbar();
        connect(neu, &Farbzelle::geklickt, this, [this, i] { umschalten(i); });
        return neu;
    }
};

/// The last one has many colours and shows them by its style.
class Farben : public Zellen
{
public:
    using Zellen::Zellen;

    void setzen(int i, int wert, const QString &text) override
    {
        if (istBunt(i))
            element<Farbzelle>(i)->setBackStyle(wert);
        else
            Zellen::setzen(i, wert, text);
    }

protected:
    QWidget *bauen(int i, QWidget *eltern) override
    {
        Farbzelle *neu = zelle(i, istBunt(i), eltern);
        neu->setEigenfarbe(istBunt(i) ? 0 : teil_.farben->werte[size_t(i)]);
        return neu;
    }
    int wert(int i) const override { return istBunt(i) ? element<Farbzelle>(i)->backStyle() : Zellen::wert(i); }

private:
    bool istBunt(int i) const { return i + 1 == teil_.elemente(); }
};

class Monate : public Zellen
{
public:
    using Zellen::Zellen;

    void auffrischen() override
    {
        for (int i = 0; i < teil_.elemente(); ++i)
            element<Farbzelle>(i)->setCaption(monatsbeschriftung(i, umgebung_.programm.MonatsDarstellung != 0));
    }

protected:
    QWidget *bauen(int i, QWidget *eltern) override
    {
        Farbzelle *neu = zelle(i, false, eltern);
        connect(neu, &Farbzelle::doppelgeklickt, this, [this] {
            vorgeben();
            umgebung_.geaendert();
        });
        return neu;
    }
};

class Bilder : public Filtersteuerung
{
public:
    using Filtersteuerung::Filtersteuerung;

    void setzen(int i, int wert, const QString &) override
    {
        auto *bild = element<Bildfeld>(i);
        const char *name = teil_.bilder[size_t(i)].gezeigt(wert == 1);
        bild->setBorderStyle(wert);
        bild->setBild(QString::fromLatin1(name));
        bild->setTag(bildschluessel(name));
    }

    void anordnen(std::span<QWidget *const> widgets, QVBoxLayout &ort, QWidget *rahmen) override
    {
        inReihen(widgets, std::min(bilderJeReihe, (raum() + kastenabstand) / (symbolgroesse + kastenabstand)), kastenabstand, ort);
        if (teil_.satzschild)
            satzBauen(ort, rahmen);
    }

protected:
    QWidget *bauen(int i, QWidget *eltern) override
    {
        auto *bild = new Bildfeld({symbolgroesse, symbolgroesse}, eltern);
        bild->setToolTip(beschriftung(i));
        bild->setBedienbar();
        connect(bild, &Bildfeld::geklickt, this, [this, i] { umschalten(i); });
        return bild;
    }
    int wert(int i) const override { return element<Bildfeld>(i)->borderStyle(); }

private:
    void satzBauen(QVBoxLayout &ort, QWidget *rahmen)
    {
        auto *satz = new QLabel(rahmen);
        satz->setObjectName(QString::fromLatin1(teil_.satzschild));
        satz->setMinimumHeight(20);
        ort.addWidget(satz);
        for (int i = 0; i < teil_.elemente(); ++i) {
            auto *bild = element<Bildfeld>(i);
            connect(bild, &Bildfeld::mausDarueber, satz, [satz, bild, text = teil_.bilder[size_t(i)].hinweis.toString()] {
                satz->setText(text);
                const bool gewaehlt = bild->borderStyle() == 1;
                // Black and a middle grey cannot be read on dark ground.
                const QColor farbe = istDunkel(bild->palette()) ? bild->palette().color(gewaehlt ? QPalette::PlaceholderText : QPalette::WindowText)
                                     : gewaehlt                 ? QColor(0x80, 0x80, 0x80)
                                                                : QColor(Qt::black);
                satz->setStyleSheet(QStringLiteral("color: %1").arg(farbe.name()));
            });
        }
        new Satzleerer(satz, rahmen);
    }
};

class Text : public Filtersteuerung
{
public:
    using Filtersteuerung::Filtersteuerung;

    Teilzustand zustand() const override { return {{}, element<QLineEdit>(0)->text()}; }
    void setzen(int i, int, const QString &text) override { element<QLineEdit>(i)->setText(text); }
    void anordnen(std::span<QWidget *const> widgets, QVBoxLayout &ort, QWidget *) override
    {
        inSpalten(widgets, kriterium_.kastenspalten, raum(), ort);
    }

protected:
    QWidget *bauen(int, QWidget *eltern) override { return anschliessen(new QLineEdit(eltern)); }
    QString ansage(int) const override { return {}; }
    QLineEdit *anschliessen(QLineEdit *feld)
    {
        feld->setValidator(new Einzeiler(feld));
        connect(feld, &QLineEdit::textChanged, this, [this] { umgebung_.geaendert(); });
        return feld;
    }
};

class Zahl : public Text
{
public:
    using Text::Text;

    void anordnen(std::span<QWidget *const> widgets, QVBoxLayout &ort, QWidget *rahmen) override
    {
        std::vector<QWidget *> reihe;
        for (const QStringView wort : {kriterium_.anfang, kriterium_.mitte, kriterium_.einheit}) {
            reihe.push_back(new QLabel(wort.toString(), rahmen));
            if (const size_t feld = reihe.size() / 2; feld < widgets.size())
                reihe.push_back(widgets[feld]);
        }
        nebeneinander(reihe, ort);
    }

protected:
    QWidget *bauen(int, QWidget *eltern) override
    {
        const bool minus = kriterium_.a.vorgabe.startsWith(u'-');
        auto *feld = new Zahlfeld(minus, eltern);
        // The lower temperature is brought into shape when it is left; what is no number stays.
        if (minus && istUntere())
            connect(feld, &QLineEdit::editingFinished, this, [feld] {
                if (const std::optional<double> zahl = zahlLesen(feld->text()))
                    feld->setText(einfachGenau(*zahl));
            });
        return anschliessen(feld);
    }
    QString ansage(int) const override
    {
        return QStringLiteral(", %1 in %2").arg(istUntere() ? QStringLiteral("Minimum") : QStringLiteral("Maximum"), kriterium_.einheit);
    }

private:
    bool istUntere() const { return &teil_ == &kriterium_.a; }
};

class Liste : public Filtersteuerung
{
public:
    using Filtersteuerung::Filtersteuerung;

    Teilzustand zustand() const override { return {{}, liste()->currentText()}; }
    void setzen(int, int, const QString &text) override
    {
        liste()->setCurrentIndex(liste()->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
        liste()->setCurrentText(text);
    }
    void anordnen(std::span<QWidget *const> widgets, QVBoxLayout &ort, QWidget *) override
    {
        inSpalten(widgets, kriterium_.kastenspalten, raum(), ort);
    }
    void benennen(const QString &gruppe) override
    {
        Filtersteuerung::benennen(gruppe);
        if (QLineEdit *text = liste()->lineEdit())
            text->setAccessibleName(gruppe); // it is heard by its text
    }

protected:
    QWidget *bauen(int, QWidget *eltern) override
    {
        auto *neu = new QComboBox(eltern);
        // Any text may stand where the database tells the entries: a filter file can name a family that is not in the list.
        if (teil_.eintraege != Eintraege::Worte) {
            neu->setEditable(true);
            neu->setValidator(new Einzeiler(neu));
            neu->setInsertPolicy(QComboBox::NoInsert);
        }
        neu->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        neu->addItem(teil_.alle.toString());
        neu->addItems(eintraege());
        neu->setCurrentIndex(0);
        connect(neu, &QComboBox::currentTextChanged, this, [this] { umgebung_.geaendert(); });
        return neu;
    }
    QString ansage(int) const override { return {}; }

private:
    QComboBox *liste() const { return element<QComboBox>(0); }
    QStringList eintraege() const
    {
        const auto arbeit = [this] { return Datenbank::OpenDatabase(umgebung_.programm.arbeitsdatenbank()); };
        switch (teil_.eintraege) {
        case Eintraege::Familien: return familiennamen(*arbeit());
        case Eintraege::Feldwerte: return feldwerte(*arbeit(), eintrag(umgebung_.beschreibung.sparte).haupttabelle, kriterium_.feld);
        case Eintraege::Worte: break;
        }
        QStringList worte;
        for (const QStringView wort : teil_.worte)
            worte += wort.toString();
        return worte;
    }
};

class Schieber : public Filtersteuerung
{
public:
    using Filtersteuerung::Filtersteuerung;

    void setzen(int i, int wert, const QString &) override { element<QSlider>(i)->setValue(wert); }

    void anordnen(std::span<QWidget *const> widgets, QVBoxLayout &ort, QWidget *rahmen) override
    {
        ort.addWidget(widgets.front());
        auto *enden = new QHBoxLayout;
        auto *selten = new QLabel(QStringLiteral("Rarität"), rahmen);
        auto *ueblich = new QLabel(QStringLiteral("Standard- sortiment"), rahmen);
        // Broken at its blank, as the word is meant.
        ueblich->setWordWrap(true);
        ueblich->setAlignment(Qt::AlignRight);
        ueblich->setFixedWidth(ueblich->fontMetrics().horizontalAdvance(QStringLiteral("sortiment ")) + 2);
        enden->addWidget(selten, 0, Qt::AlignTop);
        enden->addStretch();
        enden->addWidget(ueblich);
        ort.addLayout(enden);
    }

protected:
    QWidget *bauen(int, QWidget *eltern) override
    {
        auto *schieber = new QSlider(Qt::Horizontal, eltern);
        schieber->setRange(schieberMin, schieberMax);
        schieber->setPageStep(1);
        schieber->setTickPosition(QSlider::TicksBelow);
        connect(schieber, &QSlider::valueChanged, this, [this] { umgebung_.geaendert(); });
        return schieber;
    }
    int wert(int i) const override { return element<QSlider>(i)->value(); }
    QString ansage(int) const override { return QStringLiteral(", Stufe von der Rarität bis zum Standardsortiment"); }
};

template<typename T>
std::unique_ptr<Filtersteuerung> neue(const Kriterium &kriterium, const Steuerteil &teil, const Steuerungsumgebung &umgebung)
{
    return std::make_unique<T>(kriterium, teil, umgebung);
}

std::unique_ptr<Filtersteuerung> nachArt(const Kriterium &kriterium, const Steuerteil &teil, const Steuerungsumgebung &umgebung)
{
    switch (teil.art) {
    case Steuerung::Kaestchen: return neue<Kaestchen>(kriterium, teil, umgebung);
    case Steuerung::Farben: return neue<Farben>(kriterium, teil, umgebung);
    case Steuerung::Monate: return neue<Monate>(kriterium, teil, umgebung);
    case Steuerung::Bilder: return neue<Bilder>(kriterium, teil, umgebung);
    case Steuerung::Text: return neue<Text>(kriterium, teil, umgebung);
    case Steuerung::Zahl: return neue<Zahl>(kriterium, teil, umgebung);
    case Steuerung::Liste: return neue<Liste>(kriterium, teil, umgebung);
    case Steuerung::Option: return neue<Option>(kriterium, teil, umgebung);
    case Steuerung::Schieber: return neue<Schieber>(kriterium, teil, umgebung);
    }
    return nullptr;
}

} // namespace

QString beschriftung(const Steuerungsumgebung &umgebung, const Kriterium &kriterium, const Steuerteil &teil, int i)
{
    if (!teil.bilder.empty())
        return teil.bilder[size_t(i)].name.toString();
    if (benutzernamen(umgebung.beschreibung, kriterium))
        return umgebung.programm.BenutzerNamen[size_t(umgebung.beschreibung.sparte)][size_t(i)];
    return wortVon(umgebung.beschreibung, kriterium, teil, i).trimmed().toString();
}

int Filtersteuerung::raum() const
{
    constexpr int rand = 24; // of a group, with its distance to the next
    if (kriterium_.reiter < 0)
        return tafelbreite - rand;
    int spalten = 0;
    for (const Kriterium &kriterium : umgebung_.beschreibung.kriterien)
        if (kriterium.reiter == kriterium_.reiter)
            spalten = std::max(spalten, kriterium.spalte + 1);
    return seitenbreite / spalten - rand;
}

std::unique_ptr<Filtersteuerung> Filtersteuerung::erzeugen(const Kriterium &kriterium, const Steuerteil &teil, const Steuerungsumgebung &umgebung,
                                                           QWidget *eltern)
{
    if (!teil.control)
        return nullptr;
    std::unique_ptr<Filtersteuerung> neu = nachArt(kriterium, teil, umgebung);
    const QString name = QString::fromLatin1(teil.control);
    for (int i = 0; i < teil.elemente(); ++i) {
        QWidget *widget = neu->bauen(i, eltern);
        widget->setObjectName(teil.anzahl ? QStringLiteral("%1_%2").arg(name).arg(i) : name);
        if (i >= teil.waehlbare()) {
            widget->hide();
            widget->setFocusPolicy(Qt::NoFocus);
        }
        neu->widgets_.push_back(widget);
    }
    return neu;
}

Teilzustand Filtersteuerung::zustand() const
{
    Teilzustand zustand;
    for (int i = 0; i < teil_.elemente(); ++i)
        zustand.werte.push_back(wert(i));
    return zustand;
}

void Filtersteuerung::setZustand(const Teilzustand &zustand)
{
    for (int i = 0; i < teil_.elemente(); ++i)
        setzen(i, zustand.werte.empty() ? 0 : zustand.werte[size_t(i)], zustand.text);
}

void Filtersteuerung::umschalten(int i)
{
    const bool an = !gewaehlt(teil_, zustand(), i);
    setzen(i, steuerungsart(teil_.art).wert(teil_, i, an), {});
    umgebung_.geaendert();
}

QString Filtersteuerung::ansage(int i) const
{
    const QString wort = beschriftung(i);
    return QStringLiteral(": ") + (wort.trimmed().isEmpty() ? QStringLiteral("Nr. %1, ohne Namen").arg(i + 1) : wort);
}

void Filtersteuerung::benennen(const QString &gruppe)
{
    for (int i = 0; i < teil_.elemente(); ++i)
        widgets_[size_t(i)]->setAccessibleName(gruppe + ansage(i));
}
