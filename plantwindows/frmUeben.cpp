#include "frmUeben.h"

#include "Pflanzenansicht.h"
#include "controls/Spalten.h"
#include "controls/Vorlesen.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int feldbreite = 170;        // pixels of a line before the lines stand in more rows
constexpr int breitesteZeile = 420;    // pixels: no name is longer
constexpr int einzeilig = 660;         // pixels from which on title and buttons stand side by side
constexpr int kleinsteBlatthoehe = 64; // pixels
constexpr int laengsteAntwort = 200;   ///< characters

struct Urteilsfarbe
{
    Urteil urteil;
    QStringView zeichen, aufHell, aufDunkel; ///< at least 4.5 : 1 on the card
};
constexpr Urteilsfarbe urteilsfarben[] = {
    {Urteil::Richtig, u"✓", u"#2f6b3a", u"#8fd19e"},
    {Urteil::Fast, u"≈", u"#8a5a00", u"#f0c05a"},
    {Urteil::Falsch, u"✗", u"#a32020", u"#ff9a8a"},
};

QString stil(const QWidget &schild, const Urteilsfarbe &farbe)
{
    const bool dunkel = schild.palette().color(QPalette::Window).lightness() < 128;
    return QStringLiteral("color: %1").arg(dunkel ? farbe.aufDunkel : farbe.aufHell);
}

} // namespace

/// A line of an answer. An empty one leaves the space bar to its form, as no answer begins with a blank.
class Antwortfeld : public QLineEdit
{
public:
    using QLineEdit::QLineEdit;
    std::function<void()> bestaetigt;
    std::function<bool()> leertasteFrei; ///< whether the space bar is no letter now

protected:
    bool event(QEvent *ereignis) override
    {
        if (ereignis->type() == QEvent::ShortcutOverride && frei(*static_cast<QKeyEvent *>(ereignis))) {
            ereignis->ignore();
            return false;
        }
        return QLineEdit::event(ereignis);
    }
    void keyPressEvent(QKeyEvent *ereignis) override
    {
        if (ereignis->key() == Qt::Key_Return || ereignis->key() == Qt::Key_Enter)
            bestaetigt();
        else if (frei(*ereignis))
            ereignis->ignore();
        else
            QLineEdit::keyPressEvent(ereignis);
    }

private:
    bool frei(const QKeyEvent &taste) const
    {
        return taste.key() == Qt::Key_Escape || (taste.key() == Qt::Key_Space && (isReadOnly() || leertasteFrei()));
    }
};

frmUeben::frmUeben(QWidget *eltern) : QWidget(eltern)
{
    setObjectName(QStringLiteral("frmUeben"));
    auto *aussen = new QVBoxLayout(this);
    aussen->setContentsMargins(teilabstand, 0, teilabstand, 2);
    karte_ = new QFrame(this);
    karte_->setProperty("karte", true);
    aussen->addWidget(karte_);
    auto *innen = new QVBoxLayout(karte_);
    innen->setContentsMargins(2, 2, 2, 2);
    rolle_ = new QScrollArea(karte_);
    rolle_->setFrameShape(QFrame::NoFrame);
    rolle_->setWidgetResizable(true);
    rolle_->setFocusPolicy(Qt::NoFocus);
    innen->addWidget(rolle_);
    inhalt_ = new QWidget;
    rolle_->setWidget(inhalt_);
    durchscheinen(*rolle_);
    auto *zeilen = new QVBoxLayout(inhalt_);
    zeilen->setContentsMargins(10, 6, 10, 6);
    zeilen->setSpacing(6);

    kopf_ = new QGridLayout;
    kopf_->setColumnStretch(0, 1);
    auto *titel = new QWidget(inhalt_);
    auto *titelzeile = new QHBoxLayout(titel);
    titelzeile->setContentsMargins(0, 0, 0, 0);
    titelzeile->setSpacing(12);
    const auto schild = [](const char *name, QWidget *vater, const char *art = nullptr) {
        auto *neu = new QLabel(vater);
        neu->setObjectName(QString::fromLatin1(name));
        neu->setTextFormat(Qt::PlainText);
        if (art)
            neu->setProperty(art, true);
        return neu;
    };
    lblUebung_ = schild("lblUebung", titel, "gruppentitel");
    lblUebungStelle_ = schild("lblUebungStelle", titel, "feldtitel");
    lblUhr_ = schild("lblUhr", titel);
    QFont fett = lblUhr_->font();
    fett.setBold(true);
    lblUhr_->setFont(fett);
    lblUhr_->setAccessibleDescription(QStringLiteral("Restzeit"));
    for (QLabel *teil : {lblUebung_, lblUebungStelle_, lblUhr_})
        titelzeile->addWidget(teil);
    titelzeile->addStretch(1);
    kopf_->addWidget(titel, 0, 0);
    zeilen->addLayout(kopf_);

    // The lines come before the buttons: Tab goes this way.
    raster_ = new QGridLayout;
    raster_->setContentsMargins(0, 0, 0, 0);
    raster_->setHorizontalSpacing(12);
    raster_->setVerticalSpacing(6);
    for (size_t i = 0; i < meisteFragen; ++i) {
        Feld &feld = felder_[i];
        feld.platz = new QWidget(inhalt_);
        auto *spalte = new QVBoxLayout(feld.platz);
        spalte->setContentsMargins(0, 0, 0, 0);
        spalte->setSpacing(2);
        feld.titel = new QLabel(feld.platz);
        feld.titel->setObjectName(QStringLiteral("lblFrage_%1").arg(i));
        feld.titel->setProperty("feldtitel", true);
        feld.antwort = new Antwortfeld(feld.platz);
        feld.antwort->setObjectName(QStringLiteral("txtAntwort_%1").arg(i));
        feld.antwort->setMaxLength(laengsteAntwort);
        feld.antwort->setMaximumWidth(breitesteZeile);
        feld.antwort->setInputMethodHints(Qt::ImhNoPredictiveText | Qt::ImhSensitiveData);
        feld.titel->setBuddy(feld.antwort);
        feld.antwort->bestaetigt = [this, i] { bestaetigt(i); };
        feld.antwort->leertasteFrei = [this] { return unbeantwortet(); };
        feld.urteil = new QLabel(feld.platz);
        feld.urteil->setObjectName(QStringLiteral("lblUrteil_%1").arg(i));
        feld.urteil->setTextFormat(Qt::PlainText);
        feld.urteil->setWordWrap(true);
        feld.urteil->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        // Its line is there before the mark is: the panel keeps its height, and the record its place.
        feld.urteil->setMinimumHeight(feld.urteil->fontMetrics().lineSpacing());
        spalte->addWidget(feld.titel);
        spalte->addWidget(feld.antwort);
        spalte->addWidget(feld.urteil);
        spalte->addStretch(1);
        connect(feld.antwort, &QLineEdit::textChanged, this, [this] { tastenBeschriften(); });
    }
    zeilen->addLayout(raster_);

    selbst_ = new QWidget(inhalt_);
    auto *selbstzeile = new QHBoxLayout(selbst_);
    selbstzeile->setContentsMargins(0, 0, 0, 0);
    auto *cmdGewusst = taste("cmdGewusst", QStringLiteral("gewuss&t"), QStringLiteral("Die Pflanze kommt später wieder"));
    auto *cmdNichtGewusst = taste("cmdNichtGewusst", QStringLiteral("&nicht gewusst"), QStringLiteral("Die Pflanze kommt bald wieder"));
    selbstzeile->addWidget(new QLabel(QStringLiteral("Haben Sie die Pflanze gekannt?"), selbst_));
    selbstzeile->addWidget(cmdGewusst);
    selbstzeile->addWidget(cmdNichtGewusst);
    selbstzeile->addStretch(1);
    auto *fuss = new QWidget(inhalt_);
    auto *fusszeile = new QHBoxLayout(fuss);
    fusszeile->setContentsMargins(0, 0, 0, 0);
    fusszeile->addWidget(selbst_);
    fuss->setMinimumHeight(selbst_->sizeHint().height());
    zeilen->addWidget(fuss);
    lblUebungHinweis_ = schild("lblUebungHinweis", inhalt_, "feldtitel");
    lblUebungHinweis_->setWordWrap(true);
    fusszeile->addWidget(lblUebungHinweis_, 1);
    fusszeile->addStretch();

    tasten_ = new QWidget(inhalt_);
    auto *tastenzeile = new QHBoxLayout(tasten_);
    tastenzeile->setContentsMargins(0, 0, 0, 0);
    tastenzeile->setSpacing(6);
    cmdUebZurueck_ = taste("cmdUebZurueck", QStringLiteral("Zurück"), QStringLiteral("vorige Pflanze (Bild auf)"));
    cmdAufdecken_ = taste("cmdAufdecken", QStringLiteral("Aufdecken"), {});
    cmdUebWeiter_ = taste("cmdUebWeiter", QStringLiteral("Weiter"), QStringLiteral("nächste Pflanze (Bild ab)"));
    cmdPruefung_ = taste("cmdPruefung", {}, {});
    cmdUebEnde_ = taste("cmdUebEnde", QStringLiteral("Beenden"), QStringLiteral("zurück zur Pflanze, mit der Sie begonnen haben (Esc oder F9)"));
    // None is wider than its text asks for: the row is as narrow as it can be.
    for (QPushButton *knopf : {cmdUebZurueck_, cmdAufdecken_, cmdUebWeiter_, cmdPruefung_, cmdUebEnde_})
        tastenzeile->addWidget(knopf);
    connect(cmdUebZurueck_, &QPushButton::clicked, this, [this] { emit gehenGewuenscht(-1); });
    connect(cmdUebWeiter_, &QPushButton::clicked, this, [this] { emit gehenGewuenscht(1); });
    connect(cmdAufdecken_, &QPushButton::clicked, this, &frmUeben::aufdeckenGewuenscht);
    connect(cmdPruefung_, &QPushButton::clicked, this, &frmUeben::pruefungGewuenscht);
    connect(cmdUebEnde_, &QPushButton::clicked, this, &frmUeben::beendenGewuenscht);
    for (const auto &[knopf, gewusst] : {std::pair(cmdGewusst, true), std::pair(cmdNichtGewusst, false)})
        connect(knopf, &QPushButton::clicked, this, [this, gewusst = gewusst] {
            // Said once.
            fokussieren();
            selbst_->hide();
            emit selbstBeurteilt(gewusst);
        });
    setPruefung(false);
}

QPushButton *frmUeben::taste(const char *name, const QString &text, const QString &hinweis)
{
    auto *knopf = new QPushButton(text, inhalt_);
    knopf->setObjectName(QString::fromLatin1(name));
    knopf->setToolTip(hinweis);
    knopf->setAutoDefault(false);
    return knopf;
}

void frmUeben::setPruefung(bool pruefung)
{
    pruefung_ = pruefung;
    lblUebung_->setText(pruefung ? QStringLiteral("Prüfung") : QStringLiteral("Üben"));
    lblUhr_->setVisible(pruefung);
    cmdAufdecken_->setVisible(!pruefung);
    cmdPruefung_->setText(pruefung ? QStringLiteral("Abgeben") : QStringLiteral("Prüfung ..."));
    cmdPruefung_->setToolTip(pruefung ? QStringLiteral("beendet die Prüfung und zeigt das Ergebnis")
                                      : QStringLiteral("20 Pflanzen in 20 Minuten, mit Ergebnisblatt"));
    cmdUebEnde_->setText(pruefung ? QStringLiteral("Abbrechen") : QStringLiteral("Beenden"));
    selbst_->hide();
    tastenErklaeren();
}

void frmUeben::tastenErklaeren()
{
    setHinweis(pruefung_ ? QStringLiteral("Eingabetaste: nächste Zeile · Bild ab, Bild auf: nächste, vorige Pflanze")
                         : QStringLiteral("Leertaste: aufdecken · Eingabetaste: Antworten prüfen · Bild ab: nächste Pflanze · Esc: beenden"));
}

void frmUeben::setUhr(const QString &text, bool knapp)
{
    if (lblUhr_->text() != text)
        lblUhr_->setText(text);
    lblUhr_->setStyleSheet(knapp ? stil(*this, urteilsfarben[2]) : QString());
}

void frmUeben::setGehen(bool zurueck, bool vor)
{
    // The focus would go on to the next button, and the next key would press that.
    for (const auto &[knopf, frei] : {std::pair(cmdUebZurueck_, zurueck), std::pair(cmdUebWeiter_, vor)}) {
        if (!frei && knopf->hasFocus())
            fokussieren();
        knopf->setEnabled(frei);
    }
}

void frmUeben::setHinweis(const QString &satz)
{
    lblUebungHinweis_->setText(satz);
    lblUebungHinweis_->setVisible(!satz.isEmpty());
    if (aufgedeckt_ && !satz.isEmpty())
        vorlesen(*lblUebungHinweis_);
    hoeheAnpassen(fensterhoehe_);
}

void frmUeben::fragen(const std::vector<Frage> &fragen, const QString &stelle)
{
    aufgedeckt_ = false;
    gefragt_ = std::min(fragen.size(), felder_.size());
    lblUebungStelle_->setText(stelle);
    for (size_t i = 0; i < felder_.size(); ++i) {
        const Feld &feld = felder_[i];
        feld.platz->setVisible(i < gefragt_);
        feld.antwort->setReadOnly(false);
        feld.antwort->setText(i < gefragt_ ? fragen[i].antwort : QString());
        feld.antwort->setAccessibleDescription({});
        feld.urteil->clear();
        feld.urteil->setAccessibleName({});
        if (i < gefragt_) {
            feld.titel->setText(fragen[i].titel);
            feld.antwort->setAccessibleName(fragen[i].titel);
        }
    }
    selbst_->hide();
    felderSetzen();
    tastenBeschriften();
    tastenErklaeren();
    fokussieren();
    vorlesen(*lblUebungStelle_);
}

void frmUeben::aufdecken(const std::vector<Ergebnis> &ergebnisse, bool selbst)
{
    aufgedeckt_ = true;
    for (size_t i = 0; i < std::min(gefragt_, ergebnisse.size()); ++i) {
        const Feld &feld = felder_[i];
        const auto &[befund, richtig] = ergebnisse[i];
        const Urteilsfarbe &farbe = *std::ranges::find(urteilsfarben, befund.urteil, &Urteilsfarbe::urteil);
        QString satz = QStringLiteral("%1 %2").arg(farbe.zeichen, urteilswort(befund.urteil));
        if (!befund.grund.isEmpty())
            satz += QStringLiteral(" (%1)").arg(befund.grund);
        if (befund.urteil != Urteil::Richtig)
            satz += QStringLiteral(": %1").arg(richtig);
        // Who has answered nothing is told the names, not marked.
        if (selbst)
            satz = richtig;
        feld.antwort->setReadOnly(true);
        feld.antwort->setAccessibleDescription(satz);
        feld.urteil->setStyleSheet(selbst ? QString() : stil(*this, farbe));
        feld.urteil->setText(satz);
    }
    // Heard in one, with what each answers.
    QStringList gehoert;
    for (size_t i = 0; i < gefragt_; ++i)
        gehoert += QStringLiteral("%1: %2").arg(felder_[i].titel->text(), felder_[i].urteil->text());
    felder_.front().urteil->setAccessibleName(gehoert.join(QStringLiteral(". ")));
    vorlesen(*felder_.front().urteil);
    selbst_->setVisible(selbst);
    setHinweis({});
    tastenBeschriften();
    hoeheAnpassen(fensterhoehe_);
}

void frmUeben::tastenBeschriften()
{
    cmdAufdecken_->setText(unbeantwortet() || aufgedeckt_ ? QStringLiteral("Aufdecken") : QStringLiteral("Prüfen"));
    cmdAufdecken_->setToolTip(unbeantwortet() ? QStringLiteral("zeigt die Namen (Leertaste)")
                                              : QStringLiteral("zeigt die Namen und beurteilt die Antworten (Eingabetaste)"));
    if (aufgedeckt_ && cmdAufdecken_->hasFocus())
        fokussieren();
    cmdAufdecken_->setEnabled(!aufgedeckt_);
}

QStringList frmUeben::antworten() const
{
    QStringList antworten;
    for (size_t i = 0; i < gefragt_; ++i)
        antworten += felder_[i].antwort->text();
    return antworten;
}

bool frmUeben::unbeantwortet() const
{
    return std::all_of(felder_.begin(), felder_.begin() + gefragt_, [](const Feld &feld) { return feld.antwort->text().trimmed().isEmpty(); });
}

void frmUeben::fokussieren()
{
    const auto leer = std::find_if(felder_.begin(), felder_.begin() + gefragt_, [](const Feld &feld) { return feld.antwort->text().isEmpty(); });
    const Feld &ziel = leer == felder_.begin() + gefragt_ ? felder_.front() : *leer;
    ziel.antwort->setFocus(Qt::OtherFocusReason);
}

void frmUeben::bestaetigt(size_t i)
{
    if (aufgedeckt_)
        return emit gehenGewuenscht(1);
    if (!pruefung_)
        return emit aufdeckenGewuenscht();
    // In an examination the key goes from line to line and on to the next plant.
    if (i + 1 < gefragt_)
        felder_[i + 1].antwort->setFocus(Qt::TabFocusReason);
    else
        emit gehenGewuenscht(1);
}

void frmUeben::felderSetzen()
{
    const int breite = width() - 2 * teilabstand - 30;
    const int spalten = std::clamp(breite / feldbreite, 1, std::max(1, int(gefragt_)));
    for (int i = 0; i < int(felder_.size()); ++i) {
        raster_->addWidget(felder_[size_t(i)].platz, i / spalten, i % spalten);
        raster_->setColumnStretch(i, i < spalten ? 1 : 0);
    }
    const bool nebeneinander = width() >= einzeilig;
    kopf_->addWidget(tasten_, nebeneinander ? 0 : 1, nebeneinander ? 1 : 0, nebeneinander ? Qt::AlignRight : Qt::AlignLeft);
}

void frmUeben::hoeheAnpassen(int fensterhoehe)
{
    fensterhoehe_ = fensterhoehe;
    inhalt_->layout()->activate();
    const int breite = width() - 2 * teilabstand - 8;
    const int bedarf = inhalt_->layout()->hasHeightForWidth() ? inhalt_->layout()->heightForWidth(breite) : inhalt_->sizeHint().height();
    setFixedHeight(std::min(bedarf + 8, std::max(kleinsteBlatthoehe, fensterhoehe / 2)));
}

void frmUeben::resizeEvent(QResizeEvent *ereignis)
{
    QWidget::resizeEvent(ereignis);
    if (ereignis->oldSize().width() != width()) {
        felderSetzen();
        hoeheAnpassen(fensterhoehe_);
    }
}
