#include "Pflanzenansicht.h"

#include "Elemente.h"
#include "Elementtexte.h"
#include "Pflanzensatz.h"
#include "controls/Spalten.h"
#include "controls/Textkasten.h"

#include <QApplication>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QStyle>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr int namensbreite = 190;  // pixels: the names of the head before the record scrolls sideways
constexpr int kopfhoehe = 104;     // pixels: record head at the usual size of type
constexpr int seitenhoehe = 130;   // pixels: what is left of a page before the record as a whole scrolls
constexpr int spaltenbreite = 330; // pixels: a column of groups at the usual size of type
constexpr int zeilenluft = 6;      // pixels between the lines of a group at the usual size of type

constexpr int zeilenabstand = 2; // rows of a group's grid from one element to the next

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

Pflanzenansicht::Pflanzenansicht(Programm &programm, const Fensterbeschreibung &beschreibung, QObject *maus)
    : programm_(programm), beschreibung_(beschreibung), maus_(maus)
{
    setObjectName(QStringLiteral("fraDaten"));
    setMouseTracking(true);
    panel(this);
    auto *daten = new QVBoxLayout(this);
    daten->setContentsMargins(0, 0, 0, 0);
    daten->addWidget(kopfBauen());
    tabStauden_ = new QTabWidget(this);
    tabStauden_->setObjectName(QStringLiteral("tabStauden"));
    tabStauden_->setDocumentMode(true);
    for (const Reiter &reiter : beschreibung_.reiter)
        tabStauden_->addTab(reiterBauen(reiter), reiter.titel.toString());
    daten->addWidget(tabStauden_, 1);
    connect(tabStauden_, &QTabWidget::currentChanged, this, &Pflanzenansicht::reiterGewechselt);
}

Pflanzenansicht::~Pflanzenansicht() = default;

void Pflanzenansicht::panel(QWidget *flaeche)
{
    flaeche->setProperty("leertHinweis", true);
    flaeche->installEventFilter(maus_);
}

void Pflanzenansicht::zeigen(Pflanzensatz &satz)
{
    if (programm_.OriginalDatenbank || !beschreibung_.ohneNummer || satz.herkunft() != beschreibung_.ohneNummer)
        lblArtNr_->setText(satz.artnr() ? QString::number(satz.artnr()) : QString());
    for (const auto &element : elemente_)
        if (element.get() != bemerkung_ && element.get() != eigen_)
            element->zeigen(satz);
    titelPruefen();
    gruppenPruefen(satz);
}

void Pflanzenansicht::benutzerfelderZeigen(Pflanzensatz &satz, bool behalten)
{
    for (Anzeigeelement *element : {bemerkung_, eigen_})
        if (element && !(behalten && element->veraendert()))
            element->zeigen(satz);
}

void Pflanzenansicht::uebernehmen()
{
    for (Anzeigeelement *element : {bemerkung_, eigen_})
        if (element)
            element->uebernehmen();
}

QString Pflanzenansicht::bemerkung() const
{
    return bemerkung_ ? bemerkung_->wert() : QString();
}

QString Pflanzenansicht::eigen() const
{
    return eigen_ ? eigen_->wert() : QString(anzahlEigenschaften, u' ');
}

void Pflanzenansicht::notizVerlassen()
{
    if (bemerkung_ && window()->focusWidget() == bemerkung_->widget())
        tabStauden_->tabBar()->setFocus(Qt::OtherFocusReason);
}

QStringList Pflanzenansicht::werte() const
{
    QStringList werte;
    for (const auto &element : elemente_)
        werte += element->wert();
    for (const Rahmen &rahmen : rahmen_)
        if (rahmen.rahmen->isHidden())
            for (const Anzeigeelement *element : rahmen.elemente)
                werte[std::ranges::find(elemente_, element, &std::unique_ptr<Anzeigeelement>::get) - elemente_.begin()] = QString();
    return werte;
}

void Pflanzenansicht::hervorheben(const QStringList &andere)
{
    const QStringList eigene = andere.isEmpty() ? QStringList() : werte();
    for (qsizetype i = 0; i < qsizetype(elemente_.size()); ++i) {
        QWidget *feld = elemente_[size_t(i)]->widget();
        const bool anders = i < eigene.size() && eigene[i] != andere.value(i);
        if (feld->property("verschieden").toBool() == anders)
            continue;
        feld->setProperty("verschieden", anders);
        feld->setAttribute(Qt::WA_StyledBackground, anders);
        feld->style()->polish(feld); // it looks at properties once
        feld->update();
    }
}

int Pflanzenansicht::reiter() const
{
    return tabStauden_->currentIndex();
}

void Pflanzenansicht::setReiter(int reiter)
{
    tabStauden_->setCurrentIndex(reiter);
}

QString Pflanzenansicht::kopftext(size_t i) const
{
    return i < beschreibung_.kopf.size() ? schildtext(elemente_[i]->wert()) : QString();
}

void Pflanzenansicht::verdecken(bool verdeckt, const QStringList &worte)
{
    namen_->setHidden(verdeckt);
    lblNamenDecke_->setVisible(verdeckt);
    for (const auto &element : elemente_)
        element->verdecken(verdeckt ? worte : QStringList());
}

void Pflanzenansicht::nummerSichtbar(bool sichtbar)
{
    lblArtNr_->setVisible(sichtbar);
}

void Pflanzenansicht::nummerHervorheben(bool hervor)
{
    lblArtNr_->setForegroundRole(hervor ? QPalette::Link : QPalette::WindowText);
}

void Pflanzenansicht::monateBeschriften()
{
    for (const auto &element : elemente_)
        element->monateBeschriften(programm_.MonatsDarstellung != 0);
}

void Pflanzenansicht::eigenschaftenBenennen()
{
    if (eigen_)
        eigen_->benennen(programm_.BenutzerNamen[size_t(beschreibung_.sparte)]);
}

void Pflanzenansicht::groesseAnpassen(QSize fenster)
{
    const double stufe = schriftstufe(fenster);
    if (stufe == schriftstufe_)
        return;
    schriftstufe_ = stufe;
    const double ueblich = QApplication::font(this).pointSizeF(), punkt = ueblich * stufe;
    // All that lies in it inherits its size but the marks beside the head, which keep their places and sizes.
    for (const auto &[teil, groesse] : {std::pair<QWidget *, double>(this, punkt), {tafel_, ueblich}}) {
        QFont schrift = teil->font();
        schrift.setPointSizeF(groesse);
        teil->setFont(schrift);
    }
    for (const auto &element : elemente_)
        element->schriftgroesse(punkt);
    for (const Rahmen &rahmen : rahmen_)
        rahmen.rahmen->setZeilenabstand(int(zeilenluft + (stufe - 1) * 4 * zeilenluft));
    for (const Seite &seite : seiten_)
        seite.spalten->setSpaltenbreite(int(spaltenbreite * stufe));
    const int hoehe = qMax(int(kopfhoehe * stufe), kopfMindesthoehe_);
    fraKopf_->setFixedHeight(hoehe);
    setMinimumHeight(hoehe + int(seitenhoehe * stufe));
}

void Pflanzenansicht::titelPruefen()
{
    for (Titel &titel : titel_) {
        const Titelzeile *erste = nullptr;
        for (const Titelzeile &zeile : titel.zeilen) {
            zeile.element->widget()->setVisible(!zeile.element->leer());
            if (!erste && !zeile.element->leer())
                erste = &zeile;
        }
        titel.schild->setVisible(erste);
        if (erste && erste->zeile != titel.zeile) {
            titel.zeile = erste->zeile;
            titel.raster->addWidget(titel.schild, titel.zeile, 0, titellage(*erste->element));
        }
    }
}

bool Pflanzenansicht::nachRegel(const Rahmen &rahmen, Pflanzensatz &satz) const
{
    switch (rahmen.gruppe->regel) {
    case Gruppenregel::Immer: break;
    case Gruppenregel::Feld: {
        const QString wert = satz.Auslesen(QString::fromLatin1(rahmen.gruppe->regelfeld));
        return !wert.isEmpty() && wert != u"0";
    }
    case Gruppenregel::Controls: {
        std::vector<Anzeigeelement *> gefragt;
        for (const char *control : rahmen.gruppe->regelcontrols)
            gefragt.push_back(elementNamens(QString::fromLatin1(control)));
        return !std::ranges::all_of(gefragt.empty() ? rahmen.elemente : gefragt, [](const Anzeigeelement *element) { return element->leer(); });
    }
    }
    return true;
}

void Pflanzenansicht::gruppenPruefen(Pflanzensatz &satz)
{
    const std::optional<Sparte> herkunft = satz.herkunft();
    for (const Rahmen &rahmen : rahmen_) {
        if (rahmen.gruppe->herkunft && !herkunft)
            continue;
        const bool sichtbar = (!rahmen.gruppe->herkunft || rahmen.gruppe->herkunft == herkunft) && nachRegel(rahmen, satz);
        rahmen.rahmen->setVisible(sichtbar);
        if (rahmen.titel)
            rahmen.titel->setVisible(sichtbar);
    }
    const auto verborgen = [](const Karte *karte) { return karte->isHidden(); };
    for (const Sammelrahmen &rahmen : sammelrahmen_) {
        const bool sichtbar = !std::ranges::all_of(rahmen.gruppen, verborgen);
        rahmen.rahmen->setVisible(sichtbar);
        rahmen.ueberschrift->setVisible(sichtbar);
    }
    for (const Seite &seite : seiten_)
        seite.leer->setVisible(std::ranges::all_of(seite.gruppen, verborgen));
    for (const GanzerText &text : ganzeTexte_)
        if (QWidget *kasten = text.element->ganzerText(); kasten && text.raster->indexOf(kasten) < 0)
            text.raster->addWidget(kasten, text.zeile, 0, 1, 2);
}

Anzeigeelement *Pflanzenansicht::elementNamens(QStringView control) const
{
    for (const auto &element : elemente_)
        if (control == QLatin1String(element->beschreibung().control))
            return element.get();
    return nullptr;
}

/* The layout, built from the description. */

QWidget *Pflanzenansicht::kopfBauen()
{
    auto *kopf = karte(QStringLiteral("fraKopf"), this);
    fraKopf_ = kopf;
    panel(kopf);
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
    durchscheinen(*rolle);
    rolle->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    rolle->setMinimumWidth(namensbreite);
    rolle->setFocusPolicy(Qt::NoFocus);
    anordnung->addWidget(rolle, 1);
    namen_ = rolle;
    lblNamenDecke_ = new QLabel(QStringLiteral("Name verdeckt"), kopf);
    lblNamenDecke_->setObjectName(QStringLiteral("lblNamenDecke"));
    lblNamenDecke_->setProperty("feldtitel", true);
    lblNamenDecke_->setAlignment(Qt::AlignCenter);
    lblNamenDecke_->setMinimumWidth(namensbreite);
    lblNamenDecke_->hide();
    anordnung->addWidget(lblNamenDecke_, 1);

    anordnung->addWidget(tafelBauen(kopf), 0, Qt::AlignTop);
    kopfMindesthoehe_ = tafel_->sizeHint().height() + 18;
    return kopf;
}

QWidget *Pflanzenansicht::tafelBauen(QWidget *kopf)
{
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
        QWidget *control = elementBauen(element, element.muster == Muster::Symbolfluss ? tafel : oben)->widget();
        // The flow of the marks leaves room above its first row for the rest of the panel.
        if (element.muster == Muster::Symbolfluss)
            lage->addWidget(control, 0, 0, Qt::AlignTop | Qt::AlignLeft);
        else if (element.titeltext.isEmpty() && !marken->itemAtPosition(0, 1))
            marken->addWidget(control, 0, 1, Qt::AlignRight);
        else {
            if (!element.titeltext.isEmpty()) {
                auto *titel = new QLabel(element.titeltext.toString(), oben);
                titel->setProperty("feldtitel", true);
                marken->addWidget(titel, ++zeile, 0, 1, 2);
            }
            marken->addWidget(control, ++zeile, 0, 1, 2);
        }
    }
    marken->addWidget(lblArtNr_, 0, 0);
    lage->addWidget(oben, 0, 0, Qt::AlignTop);
    oben->lower();
    return tafel;
}

QWidget *Pflanzenansicht::reiterBauen(const Reiter &reiter)
{
    auto *blatt = new QWidget;
    Seite seite;
    seite.spalten = new Spaltenlayout(blatt);
    seite.spalten->setContentsMargins(2, 8, 2, 2);
    seite.spalten->setSpacing(teilabstand);
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

Karte *Pflanzenansicht::sammelrahmenBauen(const Ueberschrift &ueberschrift, QWidget *eltern)
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

Karte *Pflanzenansicht::gruppeBauen(const Gruppe &gruppe, QWidget *eltern)
{
    auto *rahmen = new Karte(eltern);
    rahmen->setObjectName(QString::fromLatin1(gruppe.name));
    rahmen->setAccessibleName(gruppe.titel.toString());
    rahmen->setFuellend(gruppe.wachsend);
    if (gruppe.loeschtHinweis)
        panel(rahmen);
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
    for (const Element &element : gruppenelemente_.emplace_back(gruppe).elemente())
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
        connect(cmdNamen, &QPushButton::clicked, this, &Pflanzenansicht::namenGewuenscht);
        aussen->addWidget(cmdNamen, 0, Qt::AlignLeft);
    }
    rahmen->setHidden(gruppe.herkunft.has_value()); // until a record of it is shown
    // A card that is higher than its content keeps it at the top.
    if (!rahmen->hatKasten())
        aussen->addStretch(1);
    return rahmen;
}

Anzeigeelement *Pflanzenansicht::elementBauen(const Element &element, QWidget *eltern, const QString &gruppe)
{
    elemente_.push_back(elementErzeugen(
        element, {programm_, beschreibung_, this, [this](const QString &text) { emit hinweis(text); }, [this] { emit geaendert(); }, gruppe},
        eltern));
    Anzeigeelement *anzeige = elemente_.back().get();
    if (element.muster == Muster::Benutzertext)
        bemerkung_ = anzeige;
    if (element.muster == Muster::Benutzereigen)
        eigen_ = anzeige;
    return anzeige;
}

void Pflanzenansicht::elementSetzen(const Element &element, QGridLayout &raster, QWidget *eltern, const QString &gruppe)
{
    Anzeigeelement *anzeige = elementBauen(element, eltern, gruppe);
    // Every other row is kept for the box of a text that is too long for its label.
    const int zeile = zeilenabstand * ((raster.rowCount() + 1) / zeilenabstand);
    ganzeTexte_.push_back({anzeige, &raster, zeile + 1});
    const QString titeltext = titelVon(beschreibung_.sparte, element);
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

Qt::Alignment Pflanzenansicht::titellage(const Anzeigeelement &element)
{
    return qobject_cast<QLabel *>(element.widget()) ? Qt::AlignTop : Qt::AlignVCenter;
}
