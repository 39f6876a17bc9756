#include "Filterdialog.h"

#include "Filtername.h"
#include "controls/Geschuetzt.h"
#include "controls/Steuerelemente.h"
#include "store/Nebentabellen.h"
#include "store/Programm.h"
#include "store/Text.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QSlider>
#include <QTabBar>
#include <QTabWidget>
#include <QValidator>
#include <QVBoxLayout>

#include <algorithm>

/* The dialog's layout, built from the criteria table. */

namespace {

constexpr int abstand = 8;
constexpr int tafelbreite = 230;    // pixels: panel beside the tabs
constexpr int einspaltigBis = 7;    // boxes that stand in one column
constexpr int symbolgroesse = 44;   // pixels

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

/// Tabs with room for their counter from the start: none moves while the user clicks.
class Reiterleiste : public QTabBar
{
public:
    using QTabBar::QTabBar;

protected:
    QSize tabSizeHint(int i) const override
    {
        const auto breite = [this](const QString &text) { return fontMetrics().size(Qt::TextShowMnemonic, text).width(); };
        int breiteste = 0;
        for (const QString &text : tabData(i).toStringList())
            breiteste = std::max(breiteste, breite(text));
        return QTabBar::tabSizeHint(i) + QSize(std::max(0, breiteste - breite(tabText(i))), 0);
    }
};

class Reiter : public QTabWidget
{
public:
    explicit Reiter(QWidget *eltern) : QTabWidget(eltern) { setTabBar(new Reiterleiste(this)); }
};

QVBoxLayout *senkrecht(QWidget *eltern, int rand)
{
    auto *anordnung = new QVBoxLayout(eltern);
    anordnung->setContentsMargins(rand, rand, rand, rand);
    anordnung->setSpacing(abstand);
    return anordnung;
}

QScrollArea *rolle(QWidget *inhalt)
{
    auto *flaeche = new QScrollArea;
    flaeche->setWidget(inhalt);
    flaeche->setWidgetResizable(true);
    flaeche->setFrameShape(QFrame::NoFrame);
    flaeche->setFocusPolicy(Qt::NoFocus);
    return flaeche;
}

} // namespace

Filterdialog::Filterdialog(Programm &programm, Filterziel &ziel, const Filterbeschreibung &beschreibung, int nummer, QWidget *eltern)
    : QWidget(eltern, Qt::Dialog), programm_(programm), ziel_(ziel), beschreibung_(beschreibung)
{
    const SpartenEintrag &sparte = eintrag(beschreibung.sparte);
    setObjectName(QStringLiteral("%1_%2").arg(QLatin1String(sparte.filter)).arg(nummer));
    setProperty("Tag", QString::number(nummer));
    setWindowTitle(QStringLiteral("Filter für %1-Fenster %2 definieren").arg(sparte.titel).arg(nummer));
    resize(1004, 600);
    aufbauen();
    cmdRuecksetzen_Click();
    Form_Activate();
}

void Filterdialog::aufbauen()
{
    zeilen_.resize(beschreibung_.kriterien.size());
    SSTab1_ = new Reiter(this);
    SSTab1_->setObjectName(QStringLiteral("SSTab1"));
    SSTab1_->setDocumentMode(true);
    QWidget *tafel = seite(-1, this);
    auto *links = rolle(tafel);
    links->setFixedWidth(tafelbreite);
    links->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (int i = 0; i < int(beschreibung_.reiter.size()); ++i)
        SSTab1_->addTab(rolle(seite(i, SSTab1_)), reitertext(i, 0));
    for (int i = 0; i < SSTab1_->count(); ++i) {
        QStringList texte;
        for (int n = 0; n <= int(std::ranges::count(beschreibung_.kriterien, i, &Kriterium::reiter)); ++n)
            texte += reitertext(i, n);
        SSTab1_->tabBar()->setTabData(i, texte);
    }

    auto *mitte = new QHBoxLayout;
    mitte->setSpacing(abstand);
    mitte->addWidget(links);
    mitte->addWidget(SSTab1_, 1);
    auto *alles = senkrecht(this, abstand);
    alles->addLayout(mitte, 1);
    alles->addWidget(tastenBauen());
    tabfolge();
}

void Filterdialog::ansagen()
{
    for (size_t k = 0; k < zeilen_.size(); ++k) {
        const Kriterium &kriterium = beschreibung_.kriterien[k];
        const QString gruppe = gruppenname(beschreibung_, kriterium);
        for (const Teil *teil : {&zeilen_[k].a, &zeilen_[k].b})
            for (int i = 0; i < int(teil->widgets.size()); ++i) {
                QString name = gruppe;
                switch (teil->steuerteil->art) {
                case Steuerung::Kaestchen:
                case Steuerung::Farben:
                case Steuerung::Monate:
                case Steuerung::Bilder:
                case Steuerung::Option: {
                    const QString wort = beschriftung(kriterium, *teil->steuerteil, i);
                    name += QStringLiteral(": ") + (wort.trimmed().isEmpty() ? QStringLiteral("Nr. %1, ohne Namen").arg(i + 1) : wort);
                    break;
                }
                case Steuerung::Zahl:
                    name += teil == &zeilen_[k].a ? QStringLiteral(", Minimum in ") : QStringLiteral(", Maximum in ");
                    name += kriterium.einheit;
                    break;
                case Steuerung::Schieber: name += QStringLiteral(", Stufe von der Rarität bis zum Standardsortiment"); break;
                case Steuerung::Text:
                case Steuerung::Liste: break;
                }
                QWidget *widget = teil->widgets[size_t(i)];
                widget->setAccessibleName(name);
                if (auto *liste = qobject_cast<QComboBox *>(widget)) // which is heard by its text
                    liste->lineEdit()->setAccessibleName(name);
            }
        zeilen_[k].a.widgets.front()->parentWidget()->setAccessibleName(gruppe);
    }
}

void Filterdialog::tabfolge()
{
    // The tab widget would hand its own turn, before the panel's, to the tabs.
    SSTab1_->setFocusProxy(nullptr);
    SSTab1_->setFocusPolicy(Qt::NoFocus);
    QWidget *vorher = nullptr;
    const auto weiter = [&vorher](QWidget *widget) {
        if (vorher)
            setTabOrder(vorher, widget);
        else
            widget->setFocus(); // where the dialog begins when it is shown
        vorher = widget;
    };
    for (int reiter = -1; reiter < int(beschreibung_.reiter.size()); ++reiter) {
        if (reiter == 0)
            weiter(SSTab1_->tabBar());
        std::vector<size_t> folge;
        for (size_t k = 0; k < zeilen_.size(); ++k)
            if (beschreibung_.kriterien[k].reiter == reiter)
                folge.push_back(k);
        std::ranges::stable_sort(folge, {}, [this](size_t k) { return beschreibung_.kriterien[k].spalte; });
        for (const size_t k : folge)
            for (const Teil *teil : {&zeilen_[k].a, &zeilen_[k].b})
                std::ranges::for_each(teil->widgets, weiter);
    }
    for (const char *taste : {"cmdOK", "cmdRuecksetzen", "cmdAbbruch"})
        weiter(findChild<QPushButton *>(QLatin1String(taste)));
}

QWidget *Filterdialog::tastenBauen()
{
    auto *leiste = new QWidget(this);
    auto *tasten = new QHBoxLayout(leiste);
    tasten->setContentsMargins(0, 0, 0, 0);
    auto *hinweis = new QLabel(dateisperre.toString(), leiste);
    hinweis->setObjectName(QStringLiteral("lblHinweis"));
    hinweis->setWordWrap(true);
    hinweis->hide();
    tasten->addWidget(hinweis, 1);
    tasten->addStretch();
    const auto taste = [&](const char *name, const QString &text, void (Filterdialog::*handlung)()) {
        auto *knopf = new QPushButton(text, leiste);
        knopf->setObjectName(QString::fromLatin1(name));
        knopf->setMinimumWidth(110);
        knopf->setAutoDefault(true); // Enter means the button that has the focus
        tasten->addWidget(knopf);
        connect(knopf, &QPushButton::clicked, this, handlung);
    };
    taste("cmdOK", QStringLiteral("OK"), &Filterdialog::cmdOK_Click);
    taste("cmdRuecksetzen", QStringLiteral("Zurücksetzen"), &Filterdialog::cmdRuecksetzen_Click);
    taste("cmdAbbruch", QStringLiteral("Abbrechen"), &Filterdialog::cmdAbbruch_Click);
    return leiste;
}

QWidget *Filterdialog::seite(int reiter, QWidget *eltern)
{
    auto *flaeche = new QWidget(eltern);
    auto *nebeneinander = new QHBoxLayout(flaeche);
    nebeneinander->setContentsMargins(2, 6, 2, 2);
    nebeneinander->setSpacing(abstand);
    std::vector<QVBoxLayout *> spalten;
    for (int k = 0; k < int(beschreibung_.kriterien.size()); ++k) {
        const Kriterium &kriterium = beschreibung_.kriterien[size_t(k)];
        if (kriterium.reiter != reiter)
            continue;
        while (int(spalten.size()) <= kriterium.spalte) {
            spalten.push_back(new QVBoxLayout);
            spalten.back()->setSpacing(abstand);
            nebeneinander->addLayout(spalten.back(), 1);
        }
        spalten[size_t(kriterium.spalte)]->addWidget(gruppe(k, flaeche));
    }
    for (QVBoxLayout *spalte : spalten)
        spalte->addStretch(1);
    return flaeche;
}

QWidget *Filterdialog::gruppe(int k, QWidget *eltern)
{
    const Kriterium &kriterium = beschreibung_.kriterien[size_t(k)];
    auto *rahmen = new QFrame(eltern);
    rahmen->setObjectName(kriterium.rahmen ? QString::fromLatin1(kriterium.rahmen)
                                           : QStringLiteral("fra_%1").arg(QLatin1String(kriterium.a.control)));
    rahmen->setProperty("karte", true);
    auto *ort = new QVBoxLayout(rahmen);
    ort->setContentsMargins(10, 6, 10, 8);
    ort->setSpacing(4);
    auto *titel = new QLabel(titelVon(beschreibung_, kriterium), rahmen);
    titel->setProperty("gruppentitel", true);
    titel->setWordWrap(true);
    ort->addWidget(titel);
    Zeile &zeile = zeilen_[size_t(k)];
    zeile.a = teilBauen(kriterium, kriterium.a, rahmen);
    zeile.b = kriterium.b.control ? teilBauen(kriterium, kriterium.b, rahmen) : Teil{&kriterium.b, {}};
    teilAnordnen(kriterium, zeile, *ort, rahmen);
    return rahmen;
}

QString Filterdialog::beschriftung(const Kriterium &kriterium, const Steuerteil &teil, int i) const
{
    if (!teil.worte.empty())
        return teil.worte[size_t(i)].toString();
    if (!teil.bilder.empty())
        return teil.bilder[size_t(i)].name.toString();
    if (const Werteliste *liste = wertelisteVon(beschreibung_, kriterium))
        return liste->wort(i + 1).trimmed().toString();
    return programm_.BenutzerNamen[size_t(beschreibung_.sparte)][size_t(i)];
}

Filterdialog::Teil Filterdialog::teilBauen(const Kriterium &kriterium, const Steuerteil &steuerteil, QWidget *eltern)
{
    Teil teil{&steuerteil, {}};
    for (int i = 0; i < steuerteil.elemente(); ++i) {
        QWidget *widget = elementBauen(kriterium, steuerteil, i, eltern);
        const QString name = QString::fromLatin1(steuerteil.control);
        widget->setObjectName(steuerteil.anzahl ? QStringLiteral("%1_%2").arg(name).arg(i) : name);
        teil.widgets.push_back(widget);
    }
    return teil;
}

QWidget *Filterdialog::elementBauen(const Kriterium &kriterium, const Steuerteil &steuerteil, int i, QWidget *eltern)
{
    // The lines of the table are complete by the time anybody can click.
    const auto teil = [this, &kriterium, &steuerteil]() -> const Teil & {
        const Zeile &zeile = zeilen_[size_t(&kriterium - beschreibung_.kriterien.data())];
        return &steuerteil == &kriterium.a ? zeile.a : zeile.b;
    };
    switch (steuerteil.art) {
    case Steuerung::Kaestchen: {
        const QString text = beschriftung(kriterium, steuerteil, i);
        // A name of the user's may hold anything and be of any length.
        const bool eigen = steuerteil.worte.empty() && !wertelisteVon(beschreibung_, kriterium);
        QCheckBox *kaestchen = eigen ? new Namenskaestchen(text, eltern) : new QCheckBox(text, eltern);
        connect(kaestchen, &QCheckBox::toggled, this, [this] { zaehlen(); });
        return kaestchen;
    }
    case Steuerung::Option: {
        auto *option = new QRadioButton(beschriftung(kriterium, steuerteil, i), eltern);
        connect(option, &QRadioButton::toggled, this, [this] { zaehlen(); });
        return option;
    }
    case Steuerung::Farben:
    case Steuerung::Monate: {
        auto *zelle = new Farbzelle(steuerteil.art == Steuerung::Farben && i + 1 == steuerteil.elemente(), eltern);
        zelle->setToolTip(beschriftung(kriterium, steuerteil, i));
        zelle->setBedienbar();
        if (steuerteil.art == Steuerung::Farben)
            zelle->setEigenfarbe(i + 1 < steuerteil.elemente() ? steuerteil.farben->werte[size_t(i)] : 0);
        connect(zelle, &Farbzelle::geklickt, this, [this, teil, i] { umschalten(teil(), i); });
        if (steuerteil.art == Steuerung::Monate)
            connect(zelle, &Farbzelle::doppelgeklickt, this, [this, teil] {
                vorgeben(teil());
                zaehlen();
            });
        return zelle;
    }
    case Steuerung::Bilder: {
        auto *bild = new Bildfeld({symbolgroesse, symbolgroesse}, eltern);
        const Symbolbild &symbol = steuerteil.bilder[size_t(i)];
        bild->setBild(QString::fromLatin1(symbol.bild));
        bild->setToolTip(symbol.name.toString());
        bild->setBedienbar();
        connect(bild, &Bildfeld::geklickt, this, [this, teil, i] { umschalten(teil(), i); });
        return bild;
    }
    case Steuerung::Text:
    case Steuerung::Zahl: {
        QLineEdit *feld = nullptr;
        if (steuerteil.art == Steuerung::Zahl) {
            const bool minus = kriterium.a.vorgabe.startsWith(u'-');
            feld = new Zahlfeld(minus, eltern);
            // The lower temperature is brought into shape when it is left; what is no number stays.
            if (minus && &steuerteil == &kriterium.a)
                connect(feld, &QLineEdit::editingFinished, this, [feld] {
                    if (const std::optional<double> zahl = zahlLesen(feld->text()))
                        feld->setText(einfachGenau(*zahl));
                });
        } else {
            feld = new QLineEdit(eltern);
        }
        feld->setValidator(new Einzeiler(feld));
        connect(feld, &QLineEdit::textChanged, this, [this] { zaehlen(); });
        return feld;
    }
    case Steuerung::Liste: {
        auto *liste = new QComboBox(eltern);
        // Any text may stand here: a filter file can name a family that is not in the list.
        liste->setEditable(true);
        liste->setValidator(new Einzeiler(liste));
        liste->setInsertPolicy(QComboBox::NoInsert);
        liste->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        familienFuellen(liste);
        connect(liste, &QComboBox::currentTextChanged, this, [this] { zaehlen(); });
        return liste;
    }
    case Steuerung::Schieber: {
        auto *schieber = new QSlider(Qt::Horizontal, eltern);
        schieber->setRange(schieberMin, schieberMax);
        schieber->setPageStep(1);
        schieber->setTickPosition(QSlider::TicksBelow);
        connect(schieber, &QSlider::valueChanged, this, [this] { zaehlen(); });
        return schieber;
    }
    }
    return nullptr;
}

void Filterdialog::familienFuellen(QWidget *liste)
{
    auto *cmbFamilie = static_cast<QComboBox *>(liste);
    cmbFamilie->addItem(alleEintrag.toString());
    cmbFamilie->addItems(familiennamen(*Datenbank::OpenDatabase(programm_.arbeitsdatenbank())));
    cmbFamilie->setCurrentIndex(0);
}

void Filterdialog::teilAnordnen(const Kriterium &kriterium, const Zeile &zeile, QVBoxLayout &ort, QWidget *rahmen)
{
    const auto reihe = [&](std::initializer_list<QWidget *> widgets) {
        auto *anordnung = new QHBoxLayout;
        anordnung->setSpacing(6);
        for (QWidget *widget : widgets)
            anordnung->addWidget(widget);
        anordnung->addStretch();
        ort.addLayout(anordnung);
    };
    switch (kriterium.pruefung) {
    case Pruefung::Bereich: {
        auto *anfang = new QLabel(kriterium.anfang.toString(), rahmen);
        auto *mitte = new QLabel(kriterium.mitte.toString(), rahmen);
        auto *einheit = new QLabel(kriterium.einheit.toString(), rahmen);
        reihe({anfang, zeile.a.widgets.front(), mitte, zeile.b.widgets.front(), einheit});
        return;
    }
    case Pruefung::Bewertung: {
        reihe({zeile.a.widgets[0], zeile.a.widgets[1]});
        ort.addWidget(zeile.b.widgets.front());
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
        return;
    }
    default: break;
    }
    std::vector<QWidget *> alle = zeile.a.widgets;
    alle.insert(alle.end(), zeile.b.widgets.begin(), zeile.b.widgets.end());
    const Steuerung art = kriterium.a.art;
    const bool nebeneinander = art == Steuerung::Farben || art == Steuerung::Monate || art == Steuerung::Bilder;
    auto *raster = new QGridLayout;
    raster->setHorizontalSpacing(nebeneinander && art != Steuerung::Bilder ? 2 : 10);
    raster->setVerticalSpacing(2);
    const int anzahl = int(alle.size());
    const int zeilen = anzahl <= einspaltigBis ? anzahl : (anzahl + 1) / 2;
    for (int i = 0; i < anzahl; ++i)
        if (nebeneinander)
            raster->addWidget(alle[size_t(i)], 0, i);
        else
            raster->addWidget(alle[size_t(i)], i % zeilen, i / zeilen);
    if (nebeneinander)
        raster->setColumnStretch(anzahl, 1);
    ort.addLayout(raster);
    if (art == Steuerung::Bilder && !kriterium.a.bilder.empty() && !kriterium.a.bilder.front().satz.isEmpty()) {
        auto *satz = new QLabel(rahmen);
        satz->setObjectName(QStringLiteral("lbl") + QString::fromLatin1(kriterium.a.control).mid(3));
        satz->setMinimumHeight(20);
        ort.addWidget(satz);
        for (size_t i = 0; i < alle.size(); ++i) {
            auto *bild = static_cast<Bildfeld *>(alle[i]);
            connect(bild, &Bildfeld::mausDarueber, satz, [satz, bild, text = kriterium.a.bilder[i].satz.toString()] {
                satz->setText(text);
                satz->setStyleSheet(bild->borderStyle() == 1 ? QStringLiteral("color: #808080") : QStringLiteral("color: black"));
            });
        }
        rahmen->setMouseTracking(true);
        rahmen->setProperty("leert", QVariant::fromValue<QObject *>(satz));
        rahmen->installEventFilter(this);
    }
}

bool Filterdialog::eventFilter(QObject *quelle, QEvent *ereignis)
{
    if (ereignis->type() == QEvent::MouseMove)
        if (auto *satz = qobject_cast<QLabel *>(quelle->property("leert").value<QObject *>()))
            satz->clear();
    return QWidget::eventFilter(quelle, ereignis);
}
