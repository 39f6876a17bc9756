#include "Pflanzenfenster.h"

#include "Artenliste.h"
#include "Artenmodell.h"
#include "Elemente.h"
#include "controls/Geschuetzt.h"
#include "controls/Spalten.h"
#include "controls/Steuerelemente.h"
#include "controls/Textkasten.h"
#include "pictures/Bilderstreifen.h"
#include "Zentrale.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QResizeEvent>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

/* The window's layout, built from its description. */

namespace {

constexpr int abstand = 10;
constexpr int streifenbreite = 176; // pixels: preview strip
constexpr int streifenAb = 640;     // pixels: width of a window from which it has room for the strip
constexpr int kleinsteHoehe = 120;  // pixels: bar, status bar and a strip of the record
constexpr int namensbreite = 190;   // pixels: the names of the head before the record scrolls sideways
constexpr int kopfhoehe = 104;      // pixels: record head at the usual size of type
constexpr int seitenhoehe = 130;    // pixels: what is left of a page before the record as a whole scrolls
constexpr int spaltenbreite = 330;  // pixels: a column of groups at the usual size of type
constexpr int zeilenluft = 6;       // pixels between the lines of a group at the usual size of type
constexpr int zeilenDerListe = 20;  // of the open selector
constexpr int hinweisdauer = 6000;  // milliseconds: a hint that no mouse ends

constexpr int zeilenabstand = 2;    // rows of a group's grid from one element to the next

/// How much larger than usual the record is set in a window of this size, in eighths, so that few steps of a resize change it.
double schriftstufe(QSize fenster)
{
    const double platz = std::min(fenster.width() / 820.0, fenster.height() / 560.0);
    return std::clamp(std::floor(platz * 8) / 8, 1.0, 1.5);
}

QFrame *karte(const QString &name, QWidget *eltern)
{
    auto *rahmen = new QFrame(eltern);
    rahmen->setObjectName(name);
    rahmen->setProperty("karte", true);
    rahmen->setMouseTracking(true);
    return rahmen;
}

} // namespace

void Pflanzenfenster::aufbauen()
{
    setMouseTracking(true);
    installEventFilter(this);
    resize(980, 600);
    hinweisende_.setSingleShot(true);
    connect(&hinweisende_, &QTimer::timeout, this, [this] { hinweis(QString()); });

    // Built in the order in which the window is read: Tab goes the same way.
    QWidget *picLeiste = leisteBauen();
    fraDaten_ = new QWidget;
    fraDaten_->setObjectName(QStringLiteral("fraDaten"));
    fraDaten_->setMouseTracking(true);
    fraDaten_->setProperty("leertHinweis", true);
    fraDaten_->installEventFilter(this);
    auto *daten = new QVBoxLayout(fraDaten_);
    daten->setContentsMargins(0, 0, 0, 0);
    daten->addWidget(kopfBauen());
    auto *tabStauden = new QTabWidget(fraDaten_);
    tabStauden->setObjectName(QStringLiteral("tabStauden"));
    tabStauden->setDocumentMode(true);
    for (const Reiter &reiter : beschreibung_.reiter)
        tabStauden->addTab(reiterBauen(reiter), reiter.titel.toString());
    daten->addWidget(tabStauden, 1);
    // In a window too low for head and page the record as a whole scrolls; bar and status bar stay.
    auto *rolle = new QScrollArea(this);
    rolle->setObjectName(QStringLiteral("rolDaten"));
    rolle->setWidget(fraDaten_);
    rolle->setWidgetResizable(true);
    rolle->setFrameShape(QFrame::NoFrame);
    rolle->setFocusPolicy(Qt::NoFocus);
    rolle->setMinimumSize(120, 40);

    fraBilder_ = new Bilderstreifen(this);
    fraBilder_->setObjectName(QStringLiteral("fraBilder"));
    fraBilder_->setProperty("karte", true);
    fraBilder_->setMouseTracking(true);
    fraBilder_->setFixedWidth(streifenbreite);
    fraBilder_->installEventFilter(this);
    connect(fraBilder_, &Bilderstreifen::angeklickt, this, [this](int index) { geschuetztAusfuehren(this, [&] { bildAngeklickt(index); }); });

    auto *mitte = new QHBoxLayout;
    mitte->setContentsMargins(abstand, 6, abstand, 6);
    mitte->setSpacing(abstand);
    mitte->addWidget(rolle, 1);
    mitte->addWidget(fraBilder_);

    auto *alles = new QVBoxLayout(this);
    alles->setContentsMargins(0, 0, 0, 0);
    alles->setSpacing(0);
    // How small the window may become is not for the layout of the moment to say.
    alles->setSizeConstraint(QLayout::SetNoConstraint);
    alles->addWidget(picLeiste);
    alles->addLayout(mitte, 1);
    alles->addWidget(statusBauen());
    knoepfeVerbinden();
    groesseAnpassen();
    // Where the window is first entered.
    cboArten_->setFocus();
}

/// A narrow window does without the strip first, then breaks the bar into two rows; a large one sets the record larger.
void Pflanzenfenster::groesseAnpassen()
{
    fraBilder_->setVisible(width() >= streifenAb);
    auto *raster = static_cast<QGridLayout *>(leistenteile_[0]->parentWidget()->layout());
    const bool zweizeilig = width() < leistenteile_[0]->sizeHint().width() + leistenteile_[1]->sizeHint().width() + 4 * abstand;
    raster->addWidget(leistenteile_[1], zweizeilig ? 1 : 0, zweizeilig ? 0 : 1, zweizeilig ? Qt::AlignLeft : Qt::Alignment());
    const double stufe = schriftstufe(size());
    if (stufe == schriftstufe_)
        return;
    schriftstufe_ = stufe;
    const double punkt = QApplication::font(this).pointSizeF() * stufe;
    // Set one by one: below a style sheet a font is not inherited. The marks beside the head keep their places and sizes.
    for (QWidget *control : fraDaten_->findChildren<QWidget *>())
        if (!tafel_->isAncestorOf(control)) {
            QFont schrift = control->font();
            schrift.setPointSizeF(punkt);
            control->setFont(schrift);
        }
    for (const auto &element : elemente_)
        element->schriftgroesse(punkt);
    for (const Rahmen &rahmen : rahmen_)
        rahmen.rahmen->setZeilenabstand(int(zeilenluft + (stufe - 1) * 4 * zeilenluft));
    for (const Seite &seite : seiten_)
        seite.spalten->setSpaltenbreite(int(spaltenbreite * stufe));
    const int hoehe = qMax(int(kopfhoehe * stufe), kopfMindesthoehe_);
    fraKopf_->setFixedHeight(hoehe);
    fraDaten_->setMinimumHeight(hoehe + int(seitenhoehe * stufe));
}

QSize Pflanzenfenster::minimumSizeHint() const
{
    int breite = 0;
    for (const QWidget *teil : leistenteile_)
        breite = std::max(breite, teil->minimumSizeHint().width());
    return {breite + 2 * abstand, kleinsteHoehe};
}

void Pflanzenfenster::resizeEvent(QResizeEvent *ereignis)
{
    QWidget::resizeEvent(ereignis);
    groesseAnpassen();
}

QWidget *Pflanzenfenster::leisteBauen()
{
    auto *picLeiste = new QWidget(this);
    picLeiste->setObjectName(QStringLiteral("picLeiste"));
    picLeiste->setMouseTracking(true);
    picLeiste->installEventFilter(this);
    picLeiste->setAutoFillBackground(true);
    auto *raster = new QGridLayout(picLeiste);
    raster->setContentsMargins(abstand, 4, abstand, 4);
    raster->setSpacing(2);
    raster->setColumnStretch(0, 1);
    for (QWidget *&teil : leistenteile_) {
        teil = new QWidget(picLeiste);
        teil->setMouseTracking(true);
        auto *anordnung = new QHBoxLayout(teil);
        anordnung->setContentsMargins(0, 0, 0, 0);
        anordnung->setSpacing(2);
    }
    raster->addWidget(leistenteile_[0], 0, 0);
    raster->addWidget(leistenteile_[1], 0, 1);
    auto *leiste = static_cast<QHBoxLayout *>(leistenteile_[0]->layout());

    cboArten_ = new QComboBox(leistenteile_[0]);
    cboArten_->setObjectName(QStringLiteral("cboArten"));
    cboArten_->setAccessibleName(QStringLiteral("Pflanze"));
    cboArten_->setToolTip(QStringLiteral("Pflanze auswählen"));
    cboArten_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cboArten_->setMinimumContentsLength(10);
    cboArten_->setMinimumWidth(70);
    cboArten_->setMaxVisibleItems(zeilenDerListe);
    // A list with a scroll bar; without this the style opens one over the whole screen.
    cboArten_->setStyleSheet(QStringLiteral("QComboBox { combobox-popup: 0; }"));
    auto *liste = new Artenliste(cboArten_);
    liste->setUniformItemSizes(true);
    liste->nichtGefunden = [this](const QString &getippt) {
        hinweis(getippt.isEmpty() ? QString() : QStringLiteral("Kein Name beginnt mit „%1“").arg(getippt));
        hinweisende_.start(hinweisdauer);
    };
    cboArten_->setView(liste);
    arten_ = new Artenmodell(this);
    cboArten_->setModel(arten_);
    cboArten_->installEventFilter(this);
    cboArten_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(cboArten_, &QComboBox::currentIndexChanged, this, geschuetzt(this, [this] { artenGewaehlt(ArtenHatFokus); }));
    // Only the user activates a line; a system that hands the focus to the open list must not lose the choice.
    connect(cboArten_, &QComboBox::activated, this, geschuetzt(this, [this] { artenGewaehlt(true); }));

    for (const Knopfzeile &zeile : knopfzeilen()) {
        if (zeile.knopf == Knopf::Next)
            leiste->addWidget(cboArten_, 1);
        if (zeile.knopf == Knopf::BotDeu)
            leiste = static_cast<QHBoxLayout *>(leistenteile_[1]->layout());
        if (zeile.knopf == Knopf::BotDeu || zeile.knopf == Knopf::FilterEin || zeile.knopf == Knopf::Druck)
            leiste->addSpacing(12);
        if (zeile.nurDeutsch && !eintrag(sparte()).hatDeutscheOrdnung)
            continue;
        auto *button = new Bildknopf(zeile.hinweis.toString(), leiste->parentWidget());
        button->setObjectName(QString::fromLatin1(zeile.name));
        button->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed); // a little smaller in the narrowest window
        leiste->addWidget(button);
        knoepfe_[size_t(zeile.knopf)] = button;
        reihe_.dazu(*button);
    }
    setTabOrder(knopf(Knopf::Back), cboArten_);
    setTabOrder(cboArten_, knopf(Knopf::Next));
    // Until a filter has run there is none to switch or to save.
    for (const Knopf welcher : {Knopf::FilterEin, Knopf::FilterSpeichern}) {
        knopf(welcher)->setEnabled(false);
        reihe_.malen(*knopf(welcher), Knopfzustand::Normal);
    }
    for (const Knopfzeile &zeile : knopfzeilen()) {
        Bildknopf *button = knopf(zeile.knopf);
        if (!button || !zeile.taste)
            continue;
        auto *befehl = new QAction(zeile.hinweis.toString(), this);
        befehl->setObjectName(QStringLiteral("akt") + QString::fromLatin1(zeile.name).mid(3));
        befehl->setShortcut(QKeySequence(QString::fromLatin1(zeile.taste)));
        befehl->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        connect(befehl, &QAction::triggered, button, &QAbstractButton::click);
        addAction(befehl);
    }
    return picLeiste;
}

QWidget *Pflanzenfenster::kopfBauen()
{
    auto *kopf = karte(QStringLiteral("fraKopf"), fraDaten_);
    fraKopf_ = kopf;
    kopf->setProperty("leertHinweis", true);
    kopf->installEventFilter(this);
    auto *anordnung = new QHBoxLayout(kopf);
    anordnung->setContentsMargins(14, 8, 8, 8);
    auto *namen = new QWidget(kopf);
    auto *raster = new QGridLayout(namen);
    raster->setContentsMargins(0, 0, 0, 0);
    raster->setVerticalSpacing(3);
    raster->setColumnStretch(1, 1);
    for (const Element &element : beschreibung_.kopf)
        elementSetzen(element, *raster, namen);
    raster->setRowStretch(raster->rowCount(), 1);
    // Long lists of synonyms scroll; the head keeps its height.
    auto *rolle = new QScrollArea(kopf);
    rolle->setWidget(namen);
    rolle->setWidgetResizable(true);
    rolle->setFrameShape(QFrame::NoFrame);
    rolle->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    rolle->setMinimumWidth(namensbreite);
    rolle->setFocusPolicy(Qt::NoFocus);
    anordnung->addWidget(rolle, 1);

    auto *tafel = new QWidget(kopf);
    tafel_ = tafel;
    auto *lage = new QGridLayout(tafel);
    lage->setContentsMargins(0, 0, 0, 0);
    auto *oben = new QWidget(tafel);
    tafel->setMouseTracking(true);
    oben->setMouseTracking(true);
    auto *marken = new QGridLayout(oben);
    marken->setContentsMargins(4, 0, 4, 0);
    marken->setVerticalSpacing(2);
    lblArtNr_ = new QLabel(oben);
    lblArtNr_->setObjectName(QStringLiteral("lblArtNr"));
    lblArtNr_->setToolTip(QStringLiteral("Nummer des Datensatzes"));
    lblArtNr_->hide();
    int zeile = 0;
    for (const Element &element : beschreibung_.tafel) {
        elemente_.push_back(elementErzeugen(element, {programm_, beschreibung_, this, [this](const QString &t) { hinweis(t); }, {}},
                                            element.muster == Muster::Symbolfluss ? tafel : oben));
        QWidget *control = elemente_.back()->widget();
        // The flow of the marks leaves room above its first row for the rest of the panel.
        if (element.muster == Muster::Symbolfluss)
            lage->addWidget(control, 0, 0, Qt::AlignTop | Qt::AlignLeft);
        else if (element.titeltext.isEmpty())
            marken->addWidget(control, 0, 1, Qt::AlignRight);
        else {
            auto *titel = new QLabel(element.titeltext.toString(), oben);
            titel->setProperty("feldtitel", true);
            marken->addWidget(titel, ++zeile, 0, 1, 2);
            marken->addWidget(control, ++zeile, 0, 1, 2);
        }
    }
    marken->addWidget(lblArtNr_, 0, 0);
    lage->addWidget(oben, 0, 0, Qt::AlignTop);
    oben->lower();
    anordnung->addWidget(tafel, 0, Qt::AlignTop);
    kopfMindesthoehe_ = tafel->sizeHint().height() + 18;
    return kopf;
}

QWidget *Pflanzenfenster::reiterBauen(const Reiter &reiter)
{
    auto *blatt = new QWidget;
    Seite seite;
    seite.spalten = new Spaltenlayout(blatt);
    seite.spalten->setContentsMargins(2, 8, 2, 2);
    seite.spalten->setSpacing(abstand);
    const Ueberschrift *vorige = nullptr;
    for (const Gruppe &gruppe : reiter.gruppen) {
        const bool neu = !gruppe.ueberschrift || gruppe.ueberschrift != std::exchange(vorige, gruppe.ueberschrift);
        Karte *karte = !gruppe.ueberschrift ? gruppeBauen(gruppe, blatt) : neu ? sammelrahmenBauen(*gruppe.ueberschrift, blatt) : nullptr;
        if (gruppe.ueberschrift) {
            Sammelrahmen &sammel = sammelrahmen_.back();
            sammel.gruppen.push_back(gruppeBauen(gruppe, sammel.rahmen));
            sammel.rahmen->layout()->addWidget(sammel.gruppen.back());
        }
        if (!karte)
            continue;
        seite.gruppen.push_back(karte);
        seite.spalten->addWidget(karte);
    }
    seite.leer = new Karte(blatt);
    seite.leer->setObjectName(QStringLiteral("fraKeineAngaben_%1").arg(seiten_.size()));
    auto *satz = new QLabel(QStringLiteral("Hierzu liegen keine Angaben vor."), seite.leer);
    satz->setProperty("feldtitel", true);
    auto *ort = new QVBoxLayout(seite.leer);
    ort->setContentsMargins(12, 10, 12, 10);
    ort->addWidget(satz);
    seite.leer->hide();
    seite.spalten->addWidget(seite.leer);
    seiten_.push_back(seite);
    auto *rolle = new QScrollArea;
    rolle->setWidget(blatt);
    rolle->setWidgetResizable(true);
    rolle->setFrameShape(QFrame::NoFrame);
    rolle->setFocusPolicy(Qt::NoFocus);
    return rolle;
}

Karte *Pflanzenfenster::sammelrahmenBauen(const Ueberschrift &ueberschrift, QWidget *eltern)
{
    auto *rahmen = new Karte(eltern);
    rahmen->setObjectName(QString::fromLatin1(ueberschrift.name) + QStringLiteral("_Rahmen"));
    auto *aussen = new QVBoxLayout(rahmen);
    aussen->setContentsMargins(12, 8, 12, 10);
    aussen->setSpacing(10);
    auto *schild = new QLabel(ueberschrift.text.toString(), rahmen);
    schild->setObjectName(QString::fromLatin1(ueberschrift.name));
    schild->setProperty("gruppentitel", true);
    aussen->addWidget(schild);
    sammelrahmen_.push_back({rahmen, schild, {}});
    return rahmen;
}

Karte *Pflanzenfenster::gruppeBauen(const Gruppe &gruppe, QWidget *eltern)
{
    auto *rahmen = new Karte(eltern);
    rahmen->setObjectName(QString::fromLatin1(gruppe.name));
    rahmen->setAccessibleName(gruppe.titel.toString());
    rahmen->setFuellend(gruppe.wachsend);
    if (gruppe.loeschtHinweis) {
        rahmen->setProperty("leertHinweis", true);
        rahmen->installEventFilter(this);
    }
    auto *aussen = new QVBoxLayout(rahmen);
    aussen->setContentsMargins(12, 8, 12, 10);
    aussen->setSpacing(6);
    QLabel *titel = nullptr;
    if (!gruppe.titel.isEmpty()) {
        titel = new QLabel(gruppe.titel.toString(), rahmen);
        titel->setObjectName(QString::fromLatin1(gruppe.titelname));
        titel->setProperty("gruppentitel", !gruppe.ueberschrift);
        aussen->addWidget(titel);
    }
    // Below a heading it is a part of the heading's card, and its title is less than the heading.
    if (gruppe.ueberschrift) {
        rahmen->setProperty("karte", false);
        aussen->setContentsMargins(0, 0, 0, 0);
        QFont schrift = font();
        schrift.setBold(true);
        if (titel)
            titel->setFont(schrift);
    }
    auto *raster = new QGridLayout;
    raster->setVerticalSpacing(zeilenluft);
    raster->setHorizontalSpacing(8);
    raster->setColumnStretch(1, 1);
    const size_t erstes = elemente_.size();
    for (const Element &element : gruppe.elemente)
        elementSetzen(element, *raster, rahmen, gruppe.titel.toString());
    for (size_t i = erstes; i < elemente_.size(); ++i)
        if (auto *kasten = qobject_cast<Textkasten *>(elemente_[i]->widget()))
            rahmen->setKasten(kasten);
    aussen->addLayout(raster, rahmen->hatKasten() ? 1 : 0);
    rahmen->setRaster(raster);
    Rahmen eintrag{&gruppe, rahmen, titel, {}};
    for (size_t i = erstes; i < elemente_.size(); ++i)
        eintrag.elemente.push_back(elemente_[i].get());
    rahmen_.push_back(std::move(eintrag));

    if (std::ranges::any_of(gruppe.elemente, [](const Element &e) { return e.muster == Muster::Benutzereigen; })) {
        auto *cmdNamen = new QPushButton(QStringLiteral("Namen ändern"), rahmen);
        cmdNamen->setObjectName(QStringLiteral("cmdNamen"));
        connect(cmdNamen, &QPushButton::clicked, this, geschuetzt(this, [this] {
            aktivMelden();
            zentrale_.namenAendern(this);
        }));
        aussen->addWidget(cmdNamen, 0, Qt::AlignLeft);
    }
    rahmen->setHidden(gruppe.herkunft.has_value()); // until a record of it is shown
    // A card that is higher than its content keeps it at the top.
    if (!rahmen->hatKasten())
        aussen->addStretch(1);
    return rahmen;
}

void Pflanzenfenster::elementSetzen(const Element &element, QGridLayout &raster, QWidget *eltern, const QString &gruppe)
{
    elemente_.push_back(elementErzeugen(element,
                                        {programm_, beschreibung_, this, [this](const QString &t) { hinweis(t); }, [this] { DatenGeaendert = true; },
                                         gruppe},
                                        eltern));
    Anzeigeelement *anzeige = elemente_.back().get();
    // Every other row is kept for the box of a text that is too long for its label.
    const int zeile = zeilenabstand * ((raster.rowCount() + 1) / zeilenabstand);
    ganzeTexte_.push_back({anzeige, &raster, zeile + 1});
    const QString titeltext = titelVon(sparte(), element);
    // A label is read out with its text; what it is about comes after it.
    if (const QString name = vorlesename(gruppe, titeltext); qobject_cast<QLabel *>(anzeige->widget()))
        anzeige->widget()->setAccessibleDescription(name);
    else if (!name.isEmpty())
        anzeige->widget()->setAccessibleName(name);
    if (titeltext.isEmpty()) {
        raster.addWidget(anzeige->widget(), zeile, 0, 1, 2);
        return;
    }
    const QString name = element.titel ? QString::fromLatin1(element.titel) : QString::fromLatin1(element.control) + QStringLiteral("_Titel");
    const auto schon = std::ranges::find_if(titel_, [&](const Titel &t) { return t.schild->objectName() == name; });
    if (schon != titel_.end()) {
        schon->zeilen.push_back({anzeige, zeile});
    } else {
        auto *schild = new QLabel(titeltext, eltern);
        schild->setObjectName(name);
        schild->setProperty("feldtitel", true);
        raster.addWidget(schild, zeile, 0, titellage(*anzeige));
        titel_.push_back({schild, &raster, {{anzeige, zeile}}, zeile});
    }
    raster.addWidget(anzeige->widget(), zeile, 1);
}

Qt::Alignment Pflanzenfenster::titellage(const Anzeigeelement &element)
{
    return qobject_cast<QLabel *>(element.widget()) ? Qt::AlignTop : Qt::AlignVCenter;
}

QWidget *Pflanzenfenster::statusBauen()
{
    auto *stbAnzeige = new QWidget(this);
    stbAnzeige->setObjectName(QStringLiteral("stbAnzeige"));
    auto *leiste = new QHBoxLayout(stbAnzeige);
    leiste->setContentsMargins(abstand, 2, abstand, 4);
    for (int i = 0; i < int(stbAnzeige_.size()); ++i) {
        // A long hint must not hold the window open.
        QLabel *feld = i == 1 ? new Kurzschild(stbAnzeige) : new QLabel(stbAnzeige);
        feld->setTextFormat(Qt::PlainText);
        feld->setObjectName(QStringLiteral("stbAnzeige_%1").arg(i + 1));
        leiste->addWidget(feld, i == 1 ? 1 : 0);
        stbAnzeige_[size_t(i)] = feld;
    }
    stbAnzeige_[3]->setToolTip(QStringLiteral("Stelle und Anzahl der Pflanzen"));
    return stbAnzeige;
}
