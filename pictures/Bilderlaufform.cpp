#include "Bilderlaufform.h"

#include "Bilderliste.h"
#include "controls/Geschuetzt.h"
#include "store/Pfade.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr QStringView vorschau = u"vorschau";
constexpr std::array<size_t, anzahlBilderordner> folgeErzeugen{0, 1, 2, 3, 4}, folgeKopieren{0, 3, 1, 2, 4};
constexpr QStringView nichtErzeugt = u"Leider hat das Erzeugen der Vorschaubilder nicht funktioniert!\n"
                                     u"Bitte den \\vorschau - Ordner im Flox-Verzeichnis\n"
                                     u"von Hand löschen und Vorgang wiederholen!";
constexpr QStringView bilderNichtKopiert = u"Leider hat das Kopieren der Flox Bilder-Ordner  nicht funktioniert!\n"
                                           u"Bitte die Verzeichnisse im Flox-Verzeichnis\n"
                                           u"von Hand löschen und Vorgang wiederholen!";
constexpr QStringView vorschauNichtKopiert = u"Leider hat das Kopieren der Flox Vorschau-Bilder-Ordner  nicht funktioniert!\n"
                                             u"Bitte die Verzeichnisse im Flox-Verzeichnis\n"
                                             u"von Hand löschen und Vorgang wiederholen!";
constexpr QStringView nichtKopiertTitel = u"Bilder-Ordner konnten nicht kopiert werden!";
constexpr QStringView nichtKopiert = u"Das war wohl nichts!(%1)";

void vorschauDa(Programm &programm)
{
    programm.LokaleVorschauBilder = true;
}

void bilderDa(Programm &programm)
{
    bilderPfadWaehlen(programm, mitStrich(programm.ProgrammPfad));
}

} // namespace

const Laufbeschreibung frmVorschauBilder = {
    .form = "frmVorschauBilder",
    .titel = u"Vorschau-Bilder erzeugen",
    .erklaerung = u"Das Erzeugen der Vorschau-Bilder kann, je nach Rechner- leistung, eine Weile dauern. Die lokal gespeicherten Bilder "
                  u"beschleunigen den späteren Programmablauf erheblich. ",
    .zustand = u"",
    .quellordner = u"",
    .unterordner = vorschau,
    .folge = folgeErzeugen,
    .handlung = [] { return vorschauErzeugen(); },
    .fragtNachVorhandenen = false,
    .misserfolg = nichtErzeugt,
    .misserfolgTitel = u"Vorschaubilder konnten nicht erzeugt werden!",
    .dateifehler = u"",
    .einzahl = u"Ein Bild wurde ausgelassen.",
    .mehrzahl = u"%1 Bilder wurden ausgelassen.",
    .fertig = vorschauDa,
};

const Laufbeschreibung frmBilderKopieren = {
    .form = "frmBilderKopieren",
    .titel = u"Bilder in den lokalen Flox-Ordner kopieren",
    .erklaerung = u"",
    .zustand = u"Flox-Bilder werden kopiert!",
    .quellordner = u"",
    .unterordner = u"",
    .folge = folgeKopieren,
    .handlung = bildKopieren,
    .fragtNachVorhandenen = true,
    .misserfolg = bilderNichtKopiert,
    .misserfolgTitel = nichtKopiertTitel,
    .dateifehler = nichtKopiert,
    .einzahl = u"Eine Datei wurde ausgelassen.",
    .mehrzahl = u"%1 Dateien wurden ausgelassen.",
    .fertig = bilderDa,
};

const Laufbeschreibung frmVorschauBilderKopieren = {
    .form = "frmVorschauBilderKopieren",
    .titel = u"Bilder in den lokalen Flox-Ordner kopieren",
    .erklaerung = u"",
    .zustand = u"Vorschau-Bilder werden kopiert!",
    .quellordner = vorschau,
    .unterordner = vorschau,
    .folge = folgeKopieren,
    .handlung = bildKopieren,
    .fragtNachVorhandenen = false,
    .misserfolg = vorschauNichtKopiert,
    .misserfolgTitel = nichtKopiertTitel,
    .dateifehler = nichtKopiert,
    .einzahl = u"Eine Datei wurde ausgelassen.",
    .mehrzahl = u"%1 Dateien wurden ausgelassen.",
    .fertig = vorschauDa,
};

Bilderlaufform::Bilderlaufform(const Laufbeschreibung &beschreibung, Programm &programm, const QString &bilderPfad, QWidget *eltern)
    : QDialog(eltern), beschreibung_(beschreibung), programm_(programm), auftrag_(auftrag(bilderPfad))
{
    setObjectName(QString::fromLatin1(beschreibung.form));
    setWindowTitle(beschreibung.titel.toString());
    aufbauen();
}

Bilderauftrag Bilderlaufform::auftrag(const QString &bilderPfad) const
{
    const QString quelle = beschreibung_.quellordner.isEmpty() ? bilderPfad : pfadAus(bilderPfad, beschreibung_.quellordner.toString());
    Bilderauftrag auftrag;
    auftrag.quelle = quelle;
    auftrag.ziel = programm_.ProgrammPfad;
    auftrag.unterordner = beschreibung_.unterordner.toString();
    auftrag.folge = beschreibung_.folge;
    auftrag.handlung = beschreibung_.handlung();
    return auftrag;
}

void Bilderlaufform::aufbauen()
{
    auto *alles = new QVBoxLayout(this);
    alles->setContentsMargins(0, 0, 0, 0);
    alles->setSpacing(0);
    auto *inhalt = new QVBoxLayout;
    inhalt->setContentsMargins(12, 12, 12, 12);
    inhalt->setSpacing(10);
    if (!beschreibung_.erklaerung.isEmpty()) {
        auto *lblErklaerung = new QLabel(beschreibung_.erklaerung.toString(), this);
        lblErklaerung->setObjectName(QStringLiteral("lblErklaerung"));
        lblErklaerung->setWordWrap(true);
        inhalt->addWidget(lblErklaerung);
    }
    auto *karte = new QFrame(this);
    karte->setProperty("karte", true);
    auto *raster = new QGridLayout(karte);
    raster->setContentsMargins(14, 12, 14, 12);
    raster->setHorizontalSpacing(12);
    raster->setVerticalSpacing(8);
    raster->setColumnStretch(1, 1);
    for (size_t i = 0; i < anzahlBilderordner; ++i) {
        auto *balken = new QProgressBar(karte);
        balken->setObjectName(QStringLiteral("ProgBar_%1").arg(i));
        balken->setAccessibleName(bilderzeilen()[i].titel.toString());
        balken->setRange(0, 100);
        balken->setValue(0);
        balken->setFormat(QStringLiteral("%p %"));
        ProgBar_[i] = balken;
        raster->addWidget(new QLabel(bilderzeilen()[i].titel.toString(), karte), int(i), 0);
        raster->addWidget(balken, int(i), 1);
    }
    inhalt->addWidget(karte);
    cmdAbbrechen_ = new QPushButton(QStringLiteral("Abbrechen"), this);
    cmdAbbrechen_->setObjectName(QStringLiteral("cmdAbbrechen"));
    cmdAbbrechen_->setAutoDefault(false);
    connect(cmdAbbrechen_, &QPushButton::clicked, this, &Bilderlaufform::reject);
    inhalt->addWidget(cmdAbbrechen_, 0, Qt::AlignRight);
    alles->addLayout(inhalt);
    alles->addStretch();
    auto *leiste = new QStatusBar(this);
    leiste->setObjectName(QStringLiteral("stbAnzeige"));
    leiste->setSizeGripEnabled(false);
    status_ = new QLabel(beschreibung_.zustand.toString(), leiste);
    status_->setObjectName(QStringLiteral("stbAnzeige_1"));
    status_->setContentsMargins(8, 0, 8, 2);
    leiste->addWidget(status_, 1);
    alles->addWidget(leiste);
    const int breite = std::max(460, fontMetrics().averageCharWidth() * 68);
    setMinimumWidth(breite);
    resize(breite, alles->hasHeightForWidth() ? alles->totalHeightForWidth(breite) : alles->totalSizeHint().height());
}

void Bilderlaufform::showEvent(QShowEvent *ereignis)
{
    QDialog::showEvent(ereignis);
    if (ereignis->spontaneous() || findChild<QTimer *>(QStringLiteral("Timer1")))
        return;
    auto *Timer1 = new QTimer(this);
    Timer1->setObjectName(QStringLiteral("Timer1"));
    Timer1->setSingleShot(true);
    connect(Timer1, &QTimer::timeout, this, [this] {
        const QPointer<Bilderlaufform> ich(this);
        if (!geschuetztAusfuehren(this, [this] { Timer1_Timer(); }) && ich)
            done(Rejected);
    });
    Timer1->start(20); // the form is seen first
}

void Bilderlaufform::Timer1_Timer()
{
    const QPointer<Bilderlaufform> ich(this);
    if (beschreibung_.fragtNachVorhandenen && !abgebrochen_ && auftrag_.ordnerVorhanden()) {
        const auto antwort = QMessageBox::question(this, QStringLiteral("Bilder-Ordner vorhanden"),
                                                   QStringLiteral("Im Flox-Verzeichnis gibt es schon Bilder-Ordner.\n"
                                                                  "Sollen die Bilder in die vorhandenen Ordner kopiert werden?\n"
                                                                  "(Dateien, die schon da sind, werden übergangen, ältere Fassungen ersetzt.)"),
                                                   QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes);
        if (!ich)
            return;
        auftrag_.inVorhandene = antwort == QMessageBox::Yes;
    }
    lauf_ = std::make_unique<Bilderlauf>(auftrag_);
    lauf_->melden = [this](const Bilderlauf::Fehlschlag &fehlschlag) { return fehlschlagMelden(fehlschlag); };
    connect(lauf_.get(), &Bilderlauf::fortschritt, this, [this](int zeile, int prozent) { ProgBar_[size_t(zeile)]->setValue(prozent); });
    connect(lauf_.get(), &Bilderlauf::restzeitGeschaetzt, this, [this](const QString &text) {
        if (!abgebrochen_)
            status_->setText(text);
    });
    connect(lauf_.get(), &Bilderlauf::beendet, this, &Bilderlaufform::beendet);
    if (abgebrochen_)
        lauf_->abbrechen();
    lauf_->beginnen();
}

bool Bilderlaufform::fehlschlagMelden(const Bilderlauf::Fehlschlag &fehlschlag)
{
    const bool eigener = beschreibung_.dateifehler.isEmpty();
    QMessageBox box(QMessageBox::Warning, programmtitel.toString(),
                    eigener ? fehlschlag.text : beschreibung_.dateifehler.toString().arg(fehlschlag.zeile.wort), QMessageBox::Ok, this);
    box.setInformativeText(eigener ? anzeigePfad(fehlschlag.datei) : fehlschlag.text);
    const QAbstractButton *alle = box.addButton(QStringLiteral("Alle überspringen"), QMessageBox::ActionRole);
    box.setDefaultButton(QMessageBox::Ok);
    box.setEscapeButton(QMessageBox::Ok);
    box.exec();
    return box.clickedButton() == alle;
}

void Bilderlaufform::misserfolgMelden(const QString &grund)
{
    QMessageBox box(QMessageBox::Warning, beschreibung_.misserfolgTitel.toString(), beschreibung_.misserfolg.toString(), QMessageBox::Ok, this);
    box.setInformativeText(grund);
    box.exec();
}

void Bilderlaufform::beendet(Bilderlauf::Ende ende, const QString &grund)
{
    zuEnde_ = true;
    const QPointer<Bilderlaufform> ich(this);
    switch (ende) {
    case Bilderlauf::Ende::Fertig: beschreibung_.fertig(programm_); break;
    case Bilderlauf::Ende::Abgebrochen: break;
    case Bilderlauf::Ende::OrdnerFehler: misserfolgMelden(grund); break;
    case Bilderlauf::Ende::KeineBilder:
    case Bilderlauf::Ende::KeinPlatz: QMessageBox::warning(this, windowTitle(), grund); break;
    case Bilderlauf::Ende::Voll:
        QMessageBox::warning(this, windowTitle(), grund + QStringLiteral("\nDer Vorgang wird beendet. Was schon fertig ist, bleibt erhalten."));
        break;
    }
    if (!ich)
        return;
    if (const int anzahl = lauf_->ausgelassen()) {
        QMessageBox::information(this, windowTitle(), anzahl == 1 ? beschreibung_.einzahl.toString() : beschreibung_.mehrzahl.toString().arg(anzahl));
        if (!ich)
            return;
    }
    done(ende == Bilderlauf::Ende::Fertig ? Accepted : Rejected);
}

void Bilderlaufform::reject()
{
    if (zuEnde_)
        return;
    abgebrochen_ = true;
    cmdAbbrechen_->setEnabled(false);
    status_->setText(QStringLiteral("Wird abgebrochen ..."));
    if (lauf_)
        lauf_->abbrechen();
}
