#include "Pflanzenfenster.h"

#include "Artenliste.h"
#include "Artenmodell.h"
#include "Pflanzenansicht.h"
#include "Suchbestand.h"
#include "controls/Geschuetzt.h"
#include "controls/Steuerelemente.h"
#include "pictures/Bilderstreifen.h"
#include "Uebungslauf.h"
#include "Zentrale.h"

#include <QAction>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QScrollArea>
#include <QResizeEvent>
#include <QVBoxLayout>

#include <algorithm>

/* The window's layout, built from its description. */

namespace {

constexpr int streifenbreite = 176;       // pixels: preview strip
constexpr int streifenAb = 640;           // pixels: width of a window from which it has room for the strip
constexpr int kleinsteFensterhoehe = 120; // pixels: bar, status bar and a strip of the record
constexpr int zeilenDerListe = 20;        // of the open selector

} // namespace

void Pflanzenfenster::aufbauen()
{
    setMouseTracking(true);
    installEventFilter(this);
    resize(980, 600);
    hinweisende_.setObjectName(QStringLiteral("timHinweis"));
    hinweisende_.setSingleShot(true);
    connect(&hinweisende_, &QTimer::timeout, this, [this] { hinweis(QString()); });
    suchbeginn_.setObjectName(QStringLiteral("timSuche"));
    suchbeginn_.setSingleShot(true);
    connect(&suchbeginn_, &QTimer::timeout, this, [this] { suchbestand().bereiten(); });

    // Built in the order in which the window is read: Tab goes the same way.
    QWidget *picLeiste = leisteBauen();
    ansicht_ = new Pflanzenansicht(programm_, beschreibung_, this);
    connect(ansicht_, &Pflanzenansicht::hinweis, this, &Pflanzenfenster::hinweis);
    connect(ansicht_, &Pflanzenansicht::geaendert, this, [this] { DatenGeaendert = true; });
    connect(ansicht_, &Pflanzenansicht::namenGewuenscht, this, geschuetzt(this, [this] {
                aktivMelden();
                zentrale_.namenAendern(this);
            }));
    // In a window too low for head and page the record as a whole scrolls; bar and status bar stay.
    auto *rolle = new QScrollArea(this);
    rolle->setObjectName(QStringLiteral("rolDaten"));
    rolle->setWidget(ansicht_);
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
    mitte->setContentsMargins(teilabstand, 6, teilabstand, 6);
    mitte->setSpacing(teilabstand);
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
    const bool zweizeilig = width() < leistenteile_[0]->sizeHint().width() + leistenteile_[1]->sizeHint().width() + 4 * teilabstand;
    raster->addWidget(leistenteile_[1], zweizeilig ? 1 : 0, zweizeilig ? 0 : 1, zweizeilig ? Qt::AlignLeft : Qt::Alignment());
    ansicht_->groesseAnpassen(size());
}

QSize Pflanzenfenster::minimumSizeHint() const
{
    int breite = 0;
    for (const QWidget *teil : leistenteile_)
        breite = std::max(breite, teil->minimumSizeHint().width());
    return {breite + 2 * teilabstand, kleinsteFensterhoehe};
}

void Pflanzenfenster::resizeEvent(QResizeEvent *ereignis)
{
    QWidget::resizeEvent(ereignis);
    groesseAnpassen();
    if (uebung_)
        uebung_->form->hoeheAnpassen(height());
}

QWidget *Pflanzenfenster::leisteBauen()
{
    auto *picLeiste = new QWidget(this);
    picLeiste->setObjectName(QStringLiteral("picLeiste"));
    picLeiste->setMouseTracking(true);
    picLeiste->installEventFilter(this);
    picLeiste->setAutoFillBackground(true);
    auto *raster = new QGridLayout(picLeiste);
    raster->setContentsMargins(teilabstand, 4, teilabstand, 4);
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
        hinweisFuerEineWeile(getippt.isEmpty() ? QString() : QStringLiteral("Kein Name beginnt mit „%1“").arg(getippt));
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
    zusatzBauen(picLeiste);
    return picLeiste;
}

QWidget *Pflanzenfenster::statusBauen()
{
    auto *stbAnzeige = new QWidget(this);
    stbAnzeige->setObjectName(QStringLiteral("stbAnzeige"));
    auto *leiste = new QHBoxLayout(stbAnzeige);
    leiste->setContentsMargins(teilabstand, 2, teilabstand, 4);
    for (int i = 0; i < int(stbAnzeige_.size()); ++i) {
        // Long sentences must not hold the window open: what the window shows, and hints.
        const int anteil = i == 0 ? 3 : i == 1 ? 2 : 0;
        QLabel *feld = anteil > 0 ? new Kurzschild(stbAnzeige) : new QLabel(stbAnzeige);
        feld->setTextFormat(Qt::PlainText);
        feld->setObjectName(QStringLiteral("stbAnzeige_%1").arg(i + 1));
        leiste->addWidget(feld, anteil);
        stbAnzeige_[size_t(i)] = feld;
    }
    stbAnzeige_[3]->setToolTip(QStringLiteral("Stelle und Anzahl der Pflanzen"));
    return stbAnzeige;
}
