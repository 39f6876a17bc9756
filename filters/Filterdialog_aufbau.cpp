#include "Filterdialog.h"

#include "Filtername.h"
#include "Trefferanzeige.h"
#include "controls/Geschuetzt.h"
#include "controls/Steuerelemente.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>

/* The dialog's layout, built from the criteria table. */

namespace {

constexpr int abstand = 8;

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

/// As wide as its text where there is room for it.
class Trefferschild : public Kurzschild
{
public:
    using Kurzschild::Kurzschild;

    QSize sizeHint() const override { return {QLabel::sizeHint().width(), Kurzschild::sizeHint().height()}; }
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
    : QWidget(eltern, Qt::Dialog), programm_(programm), ziel_(ziel), beschreibung_(beschreibung), umgebung_{programm, beschreibung, [this] {
                                                                                                                zaehlen();
                                                                                                            }}
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

Filterdialog::~Filterdialog() = default;

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
    trefferBauen();
    tabfolge();
}

void Filterdialog::ansagen()
{
    for (size_t k = 0; k < zeilen_.size(); ++k) {
        const QString gruppe = gruppenname(beschreibung_, beschreibung_.kriterien[k]);
        for (Filtersteuerung *steuerung : {zeilen_[k].a.get(), zeilen_[k].b.get()})
            if (steuerung)
                steuerung->benennen(gruppe);
        zeilen_[k].a->widgets().front()->parentWidget()->setAccessibleName(gruppe);
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
            for (const Filtersteuerung *steuerung : {zeilen_[k].a.get(), zeilen_[k].b.get()})
                if (steuerung)
                    std::ranges::for_each(steuerung->widgets(), weiter);
    }
    for (const char *taste : {"cmdOK", "cmdRuecksetzen", "cmdAbbruch"})
        weiter(findChild<QPushButton *>(QLatin1String(taste)));
}

void Filterdialog::trefferBauen()
{
    treffer_ = std::make_unique<Trefferanzeige>(
        programm_, beschreibung_, [this] { return zustand(); }, *findChild<QLabel *>(QStringLiteral("lblTreffer")),
        *findChild<QPushButton *>(QStringLiteral("cmdOK")));
    treffer_->setParent(this);
    for (size_t k = 0; k < zeilen_.size(); ++k) {
        treffer_->anschliessen(k, false, beschreibung_.kriterien[k].a, zeilen_[k].a->widgets());
        if (zeilen_[k].b)
            treffer_->anschliessen(k, true, beschreibung_.kriterien[k].b, zeilen_[k].b->widgets());
    }
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
    auto *treffer = new Trefferschild(leiste);
    treffer->setObjectName(QStringLiteral("lblTreffer"));
    treffer->setTextFormat(Qt::PlainText); // it may say what the user typed
    treffer->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    tasten->addWidget(treffer);
    tasten->addSpacing(abstand);
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
    zeile.a = Filtersteuerung::erzeugen(kriterium, kriterium.a, umgebung_, rahmen);
    zeile.b = Filtersteuerung::erzeugen(kriterium, kriterium.b, umgebung_, rahmen);
    std::vector<QWidget *> widgets(zeile.a->widgets().begin(), zeile.a->widgets().end());
    const bool gleichartig = zeile.b && kriterium.a.art == kriterium.b.art;
    if (gleichartig)
        widgets.insert(widgets.end(), zeile.b->widgets().begin(), zeile.b->widgets().end());
    zeile.a->anordnen(widgets, *ort, rahmen);
    if (zeile.b && !gleichartig)
        zeile.b->anordnen(zeile.b->widgets(), *ort, rahmen);
    return rahmen;
}
