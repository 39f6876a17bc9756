#include "frmBilderAssistent.h"

#include "Bilderlaufform.h"
#include "Bilderliste.h"
#include "Wegknopf.h"
#include "frmBilderSuche.h"
#include "controls/Geschuetzt.h"
#include "controls/Steuerelemente.h"
#include "store/Pfade.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

using Weg = frmBilderAssistent::Weg;

constexpr struct
{
    const char *name, *bild;
    Weg weg;
    QStringView titel, text;
} wege[] = {
    {"cmdVorschlag1", "assistent/vorschlag1", Weg::VorschauLokal, u"Bilder von der CD, Vorschau-Bilder von der Festplatte",
     u"Der Bilderstreifen ist schnell und braucht wenig Platz. Für die großen Bilder muss die CD eingelegt sein."},
    {"cmdVorschlag2", "assistent/vorschlag2", Weg::AllesVonCd, u"Alle Bilder von der CD",
     u"Braucht keinen Platz auf der Festplatte. Die CD muss immer eingelegt sein, der Bilderstreifen ist langsamer."},
    {"cmdVorschlag3", "assistent/vorschlag3", Weg::AllesLokal, u"Alle Bilder von der Festplatte",
     u"Am schnellsten, und die CD wird nicht mehr gebraucht. Braucht den meisten Platz auf der Festplatte."},
};

/// A folder on the second page: where it is, whether pictures are there, and a button to change that.
struct Ordnerkarte
{
    QStringView titel, satz;
    const char *pfad, *knopf;
    QStringView text;
};

constexpr Ordnerkarte bilderkarte = {
    u"Ordner für Bilder:",
    u"In ihm liegen die Ordner 'topfpflanzen', 'stauden', 'gehoelze', 'apfel' und 'obst'. Eigene Fotos, die Sie dort ablegen, zeigt Flox wie die "
    u"mitgelieferten Bilder.",
    "lblBilderPfad", "cmdBilderPfadAendern", u"Ändern"};
constexpr Ordnerkarte vorschaukarte = {u"Ordner für Vorschau-Bilder:",
                                       u"Kleine Bilder für den Bilderstreifen: Liegen sie auf der Festplatte, erscheint er viel schneller.",
                                       "lblVorschaubilderPfad", "cmdVorschauBilderErstellen", u"Bilder erzeugen"};

constexpr QStringView erweitert = u"Erweiterte Optionen >>>", standard = u"<<< Standard";

/// Whether the ready previews of the CD are used; else they are made.
bool originaleVorschau(QWidget *eltern)
{
    return QMessageBox::question(eltern, QStringLiteral("Original Flox-Bilder?"),
                                 QStringLiteral("Verwenden Sie die Bilder von der original Flox-CD?\n"
                                                "(Wenn Sie mit dem Flox-Editor eigene Bilder hinzugefügt haben, "
                                                "dann antworten Sie bitte mit 'Nein'.)"),
                                 QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes)
           == QMessageBox::Yes;
}

/// Previews into the program's folder: copied from the CD, or made from the pictures in use.
void vorschauHolen(Programm &programm, const QString &cd, QWidget *eltern)
{
    const QPointer<QWidget> fenster(eltern);
    const bool fertige = originaleVorschau(eltern);
    if (!fenster)
        return;
    Bilderlaufform(fertige ? frmVorschauBilderKopieren : frmVorschauBilder, programm, fertige ? cd : programm.BilderPfad, eltern).exec();
}

} // namespace

frmBilderAssistent::frmBilderAssistent(Programm &programm, Laufwerksliste laufwerke, QWidget *eltern)
    : QDialog(eltern),
      programm_(programm),
      laufwerke_(std::move(laufwerke)),
      vorherAufCd_(programm.BilderAufCD),
      seiten_(new QStackedWidget(this)),
      cmdErweitert_(new QPushButton(erweitert.toString(), this))
{
    setObjectName(QStringLiteral("frmBilderAssistent"));
    setWindowTitle(QStringLiteral("Flox-Bilder Assistent"));
    cmdErweitert_->setObjectName(QStringLiteral("cmdErweitert"));
    cmdErweitert_->setAutoDefault(false);
    connect(cmdErweitert_, &QPushButton::clicked, this, &frmBilderAssistent::cmdErweitert_Click);
    auto *cmdAbbrechen = new QPushButton(QStringLiteral("Abbrechen"), this);
    cmdAbbrechen->setObjectName(QStringLiteral("cmdAbbrechen"));
    cmdAbbrechen->setAutoDefault(false);
    connect(cmdAbbrechen, &QPushButton::clicked, this, &QDialog::reject);
    seiten_->addWidget(standardseite());
    seiten_->addWidget(erweiterteSeite());
    auto *tasten = new QHBoxLayout;
    tasten->addWidget(cmdErweitert_);
    tasten->addStretch();
    tasten->addWidget(cmdAbbrechen);
    auto *alles = new QVBoxLayout(this);
    alles->setContentsMargins(16, 16, 16, 12);
    alles->setSpacing(12);
    alles->addWidget(seiten_, 1);
    alles->addLayout(tasten);
    // The page first, then what stands below it.
    QWidget *voriger = nullptr;
    for (QWidget *knopf : seiten_->findChildren<QAbstractButton *>())
        if (QWidget *vor = std::exchange(voriger, knopf))
            setTabOrder(vor, knopf);
    setTabOrder(voriger, cmdErweitert_);
    setTabOrder(cmdErweitert_, cmdAbbrechen);
    findChild<QWidget *>(QLatin1String(wege[0].name))->setFocus();
    beschriften();
    setMinimumWidth(std::max(600, fontMetrics().averageCharWidth() * 88));
}

QWidget *frmBilderAssistent::standardseite()
{
    auto *seite = new QWidget(seiten_);
    auto *frage = new QLabel(QStringLiteral("Mit welchen Bildern soll Flox arbeiten?"), seite);
    QFont schrift = frage->font();
    schrift.setPointSizeF(schrift.pointSizeF() * 1.4);
    schrift.setBold(true);
    frage->setFont(schrift);
    auto *anordnung = new QVBoxLayout(seite);
    anordnung->setContentsMargins(0, 0, 0, 0);
    anordnung->setSpacing(10);
    anordnung->addWidget(frage);
    anordnung->addSpacing(4);
    for (const auto &zeile : wege) {
        auto *knopf = new Wegknopf(QString::fromLatin1(zeile.bild), zeile.titel.toString(), zeile.text.toString(), seite);
        knopf->setObjectName(QString::fromLatin1(zeile.name));
        knopf->setToolTip(QStringLiteral("Anklicken zum Auswählen"));
        connect(knopf, &QAbstractButton::clicked, this, geschuetzt(this, [this, weg = zeile.weg] { cmdVorschlag_Click(weg); }));
        anordnung->addWidget(knopf);
    }
    anordnung->addStretch();
    return seite;
}

QWidget *frmBilderAssistent::erweiterteSeite()
{
    auto *seite = new QWidget(seiten_);
    auto *anordnung = new QVBoxLayout(seite);
    anordnung->setContentsMargins(0, 0, 0, 0);
    anordnung->setSpacing(12);
    const auto karte = [&](const Ordnerkarte &wovon, QLabel *&pfad, QLabel *&fehlt, auto beiKlick) {
        auto *rahmen = new QFrame(seite);
        rahmen->setProperty("karte", true);
        auto *titel = new QLabel(wovon.titel.toString(), rahmen);
        titel->setProperty("gruppentitel", true);
        pfad = new QLabel(rahmen);
        pfad->setObjectName(QString::fromLatin1(wovon.pfad));
        pfad->setTextFormat(Qt::PlainText);
        pfad->setWordWrap(true);
        pfad->setTextInteractionFlags(Qt::TextSelectableByMouse);
        fehlt = new QLabel(QStringLiteral("nicht gefunden"), rahmen);
        fehlt->setObjectName(QString::fromLatin1(wovon.pfad) + QStringLiteral("Fehlt"));
        auto *satz = new QLabel(wovon.satz.toString(), rahmen);
        satz->setProperty("feldtitel", true);
        satz->setWordWrap(true);
        auto *knopf = new QPushButton(wovon.text.toString(), rahmen);
        knopf->setObjectName(QString::fromLatin1(wovon.knopf));
        knopf->setAutoDefault(false);
        connect(knopf, &QPushButton::clicked, this, geschuetzt(this, beiKlick));
        auto *raster = new QGridLayout(rahmen);
        raster->setContentsMargins(14, 12, 14, 12);
        raster->setHorizontalSpacing(16);
        raster->setVerticalSpacing(6);
        raster->setColumnStretch(0, 1);
        raster->addWidget(titel, 0, 0);
        raster->addWidget(fehlt, 0, 1, Qt::AlignRight);
        raster->addWidget(pfad, 1, 0);
        raster->addWidget(knopf, 1, 1, Qt::AlignTop | Qt::AlignRight);
        raster->addWidget(satz, 2, 0, 1, 2);
        anordnung->addWidget(rahmen);
        return knopf;
    };
    karte(bilderkarte, lblBilderPfad_, lblBilderFehlen_, [this] { cmdBilderPfadAendern_Click(); });
    cmdVorschauBilderErstellen_ = karte(vorschaukarte, lblVorschaubilderPfad_, lblVorschauFehlt_, [this] { cmdVorschauBilderErstellen_Click(); });
    lblErklaerung_ = new QLabel(QStringLiteral("rote Schrift => Bilder im angegebenen Ordner nicht gefunden"), seite);
    lblErklaerung_->setObjectName(QStringLiteral("lblErklaerung"));
    lblErklaerung_->setWordWrap(true);
    anordnung->addWidget(lblErklaerung_);
    anordnung->addStretch();
    return seite;
}

void frmBilderAssistent::done(int ergebnis)
{
    if (weg_ == Weg::Keiner)
        programm_.BilderAufCD = vorherAufCd_;
    QDialog::done(ergebnis);
}

bool frmBilderAssistent::CDSuchen()
{
    const std::optional<Laufwerk> cd = medium::cdSuchen(laufwerke_());
    if (cd) {
        bilderPfadWaehlen(programm_, mitStrich(cd->wurzel));
        programm_.BilderAufCD = true;
    }
    return cd.has_value();
}

void frmBilderAssistent::cmdVorschlag_Click(Weg weg)
{
    const QPointer<frmBilderAssistent> ich(this);
    while (!CDSuchen()) {
        const auto antwort = QMessageBox::warning(this, QStringLiteral("Flox-CD nicht gefunden!"),
                                                  QStringLiteral("Bitte die richtige CD einlegen!\nDie Flox-CD konnte nicht gefunden werden!"),
                                                  QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok);
        if (!ich || antwort != QMessageBox::Ok)
            return;
    }
    weg_ = weg;
    accept();
}

void frmBilderAssistent::cmdErweitert_Click()
{
    const bool vor = seiten_->currentIndex() == 0;
    seiten_->setCurrentIndex(vor ? 1 : 0);
    cmdErweitert_->setText((vor ? standard : erweitert).toString());
}

void frmBilderAssistent::cmdBilderPfadAendern_Click()
{
    const QPointer<frmBilderAssistent> ich(this);
    frmBilderSuche form(programm_, laufwerke_, this);
    const bool gewaehlt = form.exec() == QDialog::Accepted;
    if (!ich)
        return;
    geaendert_ |= gewaehlt;
    programm_.BilderAufCD = medium::istCd(programm_.BilderPfad);
    beschriften();
}

void frmBilderAssistent::cmdVorschauBilderErstellen_Click()
{
    const QPointer<frmBilderAssistent> ich(this);
    Bilderlaufform form(frmVorschauBilder, programm_, programm_.BilderPfad, this);
    form.exec();
    if (!ich)
        return;
    geaendert_ = true;
    beschriften();
}

void frmBilderAssistent::beschriften()
{
    const auto zeigen = [](QLabel *pfad, QLabel *fehlt, const QString &text, bool gefunden) {
        pfad->setText(text);
        for (QLabel *schild : {pfad, fehlt}) {
            QPalette farben = schild->parentWidget()->palette();
            if (!gefunden)
                farben.setColor(QPalette::WindowText, warnfarbe(farben));
            schild->setPalette(farben);
        }
        fehlt->setVisible(!gefunden);
    };
    const QString &bilder = programm_.BilderPfad, vorschau = mitStrich(programm_.vorschauordner());
    const bool bilderDa = medium::eineProbe(bilder), vorschauDa = medium::eineProbe(vorschau);
    zeigen(lblBilderPfad_, lblBilderFehlen_, bilder.isEmpty() ? QStringLiteral("Kein Ordner ausgewählt!") : anzeigePfad(bilder), bilderDa);
    zeigen(lblVorschaubilderPfad_, lblVorschauFehlt_,
           programm_.LokaleVorschauBilder ? anzeigePfad(vorschau) : QStringLiteral("Vorschau-Bilder werden bei Bedarf erzeugt!"), vorschauDa);
    lblErklaerung_->setVisible(!bilderDa || !vorschauDa);
    cmdVorschauBilderErstellen_->setEnabled(!bilder.isEmpty());
}

void bilderAssistent(Programm &programm, const Laufwerksliste &laufwerke, const QString &betriebssystem,
                     const std::function<void()> &FormenAktualisieren, QWidget *eltern)
{
    Weg weg = Weg::Keiner;
    bool geaendert = false;
    const QPointer<QWidget> fenster(eltern);
    {
        frmBilderAssistent form(programm, laufwerke, eltern);
        form.setProperty("Betriebssystem", betriebssystem);
        form.exec();
        weg = form.weg();
        geaendert = form.geaendert();
    }
    const QString cd = programm.BilderPfad;
    if (weg == Weg::AllesVonCd)
        programm.LokaleVorschauBilder = false;
    // What was not copied to the last picture is still read from the CD.
    const bool kopiert = fenster && weg == Weg::AllesLokal && Bilderlaufform(frmBilderKopieren, programm, cd, eltern).exec() == QDialog::Accepted;
    if (fenster && (weg == Weg::VorschauLokal || kopiert))
        vorschauHolen(programm, cd, eltern);
    if (kopiert)
        programm.BilderAufCD = false;
    if (fenster && (weg != Weg::Keiner || geaendert))
        FormenAktualisieren();
}
