#include "Pflanzenfenster.h"

#include "Artenmodell.h"
#include "Elemente.h"
#include "controls/Geschuetzt.h"
#include "controls/Steuerelemente.h"
#include "pictures/Bilderstreifen.h"
#include "Zentrale.h"

#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>
#include <QTabWidget>
#include <QVBoxLayout>

/* The window's layout, built from its description. */

namespace {

constexpr int abstand = 10;
constexpr int streifenbreite = 176; // pixels: preview strip

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
    setMinimumSize(640, 420);
    resize(980, 600);

    auto *fraDaten = new QWidget(this);
    fraDaten->setObjectName(QStringLiteral("fraDaten"));
    fraDaten->setMouseTracking(true);
    fraDaten->setProperty("leertHinweis", true);
    fraDaten->installEventFilter(this);
    auto *daten = new QVBoxLayout(fraDaten);
    daten->setContentsMargins(0, 0, 0, 0);
    daten->addWidget(kopfBauen());
    auto *tabStauden = new QTabWidget(fraDaten);
    tabStauden->setObjectName(QStringLiteral("tabStauden"));
    tabStauden->setDocumentMode(true);
    for (const Reiter &reiter : beschreibung_.reiter)
        tabStauden->addTab(reiterBauen(reiter), reiter.titel.toString());
    daten->addWidget(tabStauden, 1);

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
    mitte->addWidget(fraDaten, 1);
    mitte->addWidget(fraBilder_);

    auto *alles = new QVBoxLayout(this);
    alles->setContentsMargins(0, 0, 0, 0);
    alles->setSpacing(0);
    alles->addWidget(leisteBauen());
    alles->addLayout(mitte, 1);
    alles->addWidget(statusBauen());
    knoepfeVerbinden();
    setTabOrder(cboArten_, knopf(Knopf::First));
}

QWidget *Pflanzenfenster::leisteBauen()
{
    auto *picLeiste = new QWidget(this);
    picLeiste->setObjectName(QStringLiteral("picLeiste"));
    picLeiste->setMouseTracking(true);
    picLeiste->installEventFilter(this);
    picLeiste->setAutoFillBackground(true);
    auto *leiste = new QHBoxLayout(picLeiste);
    leiste->setContentsMargins(abstand, 4, abstand, 4);
    leiste->setSpacing(2);

    cboArten_ = new QComboBox(picLeiste);
    cboArten_->setObjectName(QStringLiteral("cboArten"));
    cboArten_->setAccessibleName(QStringLiteral("Pflanze"));
    cboArten_->setToolTip(QStringLiteral("Pflanze auswählen"));
    cboArten_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cboArten_->setMinimumContentsLength(24);
    cboArten_->setMaxVisibleItems(24);
    auto *liste = new QListView(cboArten_);
    liste->setUniformItemSizes(true);
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
        if (zeile.knopf == Knopf::BotDeu || zeile.knopf == Knopf::FilterEin || zeile.knopf == Knopf::Druck)
            leiste->addSpacing(12);
        if (zeile.nurDeutsch && !eintrag(sparte()).hatDeutscheOrdnung)
            continue;
        auto *button = new Bildknopf(zeile.hinweis.toString(), picLeiste);
        button->setObjectName(QString::fromLatin1(zeile.name));
        leiste->addWidget(button);
        knoepfe_[size_t(zeile.knopf)] = button;
        knopfMalen(zeile.knopf, Knopfzustand::Normal);
    }
    // Until a filter has run there is none to switch or to save.
    for (const Knopf welcher : {Knopf::FilterEin, Knopf::FilterSpeichern}) {
        knopf(welcher)->setEnabled(false);
        knopfMalen(welcher, Knopfzustand::Normal);
    }
    const std::pair<Knopf, QKeySequence> tasten[] = {{Knopf::First, QKeySequence(Qt::CTRL | Qt::Key_Home)},
                                                     {Knopf::Back, QKeySequence(Qt::CTRL | Qt::Key_PageUp)},
                                                     {Knopf::Next, QKeySequence(Qt::CTRL | Qt::Key_PageDown)},
                                                     {Knopf::Last, QKeySequence(Qt::CTRL | Qt::Key_End)},
                                                     {Knopf::Druck, QKeySequence::Print}};
    for (const auto &[welcher, taste] : tasten) {
        auto *kuerzel = new QShortcut(taste, this);
        kuerzel->setContext(Qt::WidgetWithChildrenShortcut);
        connect(kuerzel, &QShortcut::activated, knopf(welcher), &QAbstractButton::click);
    }
    return picLeiste;
}

QWidget *Pflanzenfenster::kopfBauen()
{
    auto *kopf = karte(QStringLiteral("fraKopf"), this);
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
    rolle->setFocusPolicy(Qt::NoFocus);
    anordnung->addWidget(rolle, 1);

    auto *tafel = new QWidget(kopf);
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
            titel->setEnabled(false);
            marken->addWidget(titel, ++zeile, 0, 1, 2);
            marken->addWidget(control, ++zeile, 0, 1, 2);
        }
    }
    marken->addWidget(lblArtNr_, 0, 0);
    lage->addWidget(oben, 0, 0, Qt::AlignTop);
    oben->lower();
    anordnung->addWidget(tafel, 0, Qt::AlignTop);
    kopf->setFixedHeight(qMax(104, tafel->sizeHint().height() + 18));
    return kopf;
}

QWidget *Pflanzenfenster::reiterBauen(const Reiter &reiter)
{
    auto *seite = new QWidget;
    auto *nebeneinander = new QHBoxLayout(seite);
    nebeneinander->setContentsMargins(2, 8, 2, 2);
    nebeneinander->setSpacing(abstand);
    std::vector<QVBoxLayout *> spalten;
    std::vector<bool> waechst;
    for (const Gruppe &gruppe : reiter.gruppen) {
        while (int(spalten.size()) <= gruppe.spalte) {
            spalten.push_back(new QVBoxLayout);
            spalten.back()->setSpacing(abstand);
            waechst.push_back(false);
            nebeneinander->addLayout(spalten.back(), 1);
        }
        waechst[size_t(gruppe.spalte)] = waechst[size_t(gruppe.spalte)] || gruppe.wachsend;
        spalten[size_t(gruppe.spalte)]->addWidget(gruppeBauen(gruppe, seite), gruppe.wachsend ? 1 : 0);
    }
    for (size_t i = 0; i < spalten.size(); ++i)
        if (!waechst[i])
            spalten[i]->addStretch(1);
    auto *rolle = new QScrollArea;
    rolle->setWidget(seite);
    rolle->setWidgetResizable(true);
    rolle->setFrameShape(QFrame::NoFrame);
    rolle->setFocusPolicy(Qt::NoFocus);
    return rolle;
}

QWidget *Pflanzenfenster::gruppeBauen(const Gruppe &gruppe, QWidget *eltern)
{
    auto *rahmen = karte(QString::fromLatin1(gruppe.name), eltern);
    if (gruppe.loeschtHinweis) {
        rahmen->setProperty("leertHinweis", true);
        rahmen->installEventFilter(this);
    }
    auto *aussen = new QVBoxLayout(rahmen);
    aussen->setContentsMargins(12, 8, 12, 10);
    aussen->setSpacing(6);
    if (!gruppe.titel.isEmpty()) {
        auto *titel = new QLabel(gruppe.titel.toString(), rahmen);
        titel->setProperty("gruppentitel", true);
        aussen->addWidget(titel);
    }
    auto *raster = new QGridLayout;
    raster->setVerticalSpacing(6);
    raster->setHorizontalSpacing(8);
    raster->setColumnStretch(1, 1);
    aussen->addLayout(raster, gruppe.wachsend ? 1 : 0);
    const size_t erstes = elemente_.size();
    for (const Element &element : gruppe.elemente)
        elementSetzen(element, *raster, rahmen);
    Rahmen eintrag{&gruppe, rahmen, {}};
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
    return rahmen;
}

void Pflanzenfenster::elementSetzen(const Element &element, QGridLayout &raster, QWidget *eltern)
{
    elemente_.push_back(elementErzeugen(element,
                                        {programm_, beschreibung_, this, [this](const QString &t) { hinweis(t); }, [this] { DatenGeaendert = true; }},
                                        eltern));
    Anzeigeelement *anzeige = elemente_.back().get();
    const int zeile = raster.rowCount();
    const QString titeltext = titelVon(sparte(), element);
    if (titeltext.isEmpty()) {
        raster.addWidget(anzeige->widget(), zeile, 0, 1, 2);
        return;
    }
    anzeige->widget()->setAccessibleName(titeltext.chopped(1));
    const QString name = element.titel ? QString::fromLatin1(element.titel) : QString::fromLatin1(element.control) + QStringLiteral("_Titel");
    const auto schon = std::ranges::find_if(titel_, [&](const Titel &t) { return t.schild->objectName() == name; });
    if (schon != titel_.end()) {
        schon->elemente.push_back(anzeige);
    } else {
        auto *schild = new QLabel(titeltext, eltern);
        schild->setObjectName(name);
        schild->setProperty("feldtitel", true);
        raster.addWidget(schild, zeile, 0, Qt::AlignTop);
        titel_.push_back({schild, {anzeige}});
    }
    raster.addWidget(anzeige->widget(), zeile, 1);
}

QWidget *Pflanzenfenster::statusBauen()
{
    auto *stbAnzeige = new QWidget(this);
    stbAnzeige->setObjectName(QStringLiteral("stbAnzeige"));
    auto *leiste = new QHBoxLayout(stbAnzeige);
    leiste->setContentsMargins(abstand, 2, abstand, 4);
    for (int i = 0; i < int(stbAnzeige_.size()); ++i) {
        auto *feld = new QLabel(stbAnzeige);
        feld->setObjectName(QStringLiteral("stbAnzeige_%1").arg(i + 1));
        leiste->addWidget(feld, i == 1 ? 1 : 0);
        stbAnzeige_[size_t(i)] = feld;
    }
    stbAnzeige_[3]->setToolTip(QStringLiteral("Stelle und Anzahl der Pflanzen"));
    return stbAnzeige;
}
