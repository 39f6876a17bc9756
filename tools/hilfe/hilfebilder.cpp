#include "Tabellen.h"

#include "frame/Ablauf.h"
#include "frame/frmDBWahl.h"
#include "frame/mdiZentral.h"
#include "controls/Bilder.h"
#include "filters/Filterdialog.h"
#include "plantwindows/Pflanzenfenster.h"
#include "store/Fehler.h"
#include "store/Pfade.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>

#include <cstdio>
#include <functional>

/* hilfebilder PROGRAMM DATENBANK ZIEL   pictures of the program's windows for the manual, taken from the windows themselves.
   PROGRAMM is the program folder with its pictures; nothing is written there. */

namespace {

constexpr QSize hauptmass(1120, 760);

/// Until a window no longer changes: its previews come one by one.
QPixmap ruhig(QWidget &fenster)
{
    constexpr int ruhe = 3, pause = 30, hoechstens = 5000; // pictures alike, milliseconds
    QElapsedTimer uhr;
    uhr.start();
    QImage vorher;
    for (int gleich = 0; gleich < ruhe && uhr.elapsed() < hoechstens;) {
        QCoreApplication::processEvents();
        QThread::msleep(pause);
        const QImage jetzt = fenster.grab().toImage();
        // A window that lays itself out a moment after a change of its size.
        const auto *spaeter = fenster.findChild<QTimer *>(QStringLiteral("timResize"));
        gleich = jetzt == vorher && !(spaeter && spaeter->isActive()) ? gleich + 1 : 0;
        vorher = jetzt;
    }
    return QPixmap::fromImage(vorher);
}

class Fotograf
{
public:
    Fotograf(const QString &programm, const QString &datenbank, const QDir &ziel) : ziel_(ziel)
    {
        const QDir ordner(ordner_.path());
        // The folder of a run, so that nothing is written beside the program.
        if (!QFile::copy(datenbank, ordner.filePath(QStringLiteral("flox-demo.mdb")))
            || !QFile::link(QDir(programm).filePath(QStringLiteral("icons")), ordner.filePath(QStringLiteral("icons"))))
            throw Fehler(QStringLiteral("%1: kein Programmordner").arg(programm));
        bilder::setOrdner(QDir(programm).filePath(QStringLiteral("icons")));
        oberflaecheEinrichten();
        programm_.ProgrammPfad = QDir::toNativeSeparators(ordner.path());
        programm_.BilderPfad = QDir::toNativeSeparators(programm);
        programm_.MdiStatus = 0;
        programm_.MdiBreite = hauptmass.width() * twipsJePixel;
        programm_.MdiHoehe = hauptmass.height() * twipsJePixel;
    }

    void alles();

private:
    void ablegen(const QString &name, const QPixmap &bild)
    {
        if (bild.isNull() || !bild.save(ziel_.filePath(name + QStringLiteral(".png"))))
            throw Fehler(QStringLiteral("%1: kein Bild").arg(name));
    }
    void knoepfe();
    void wahl();
    void pflanzenfenster(mdiZentral &zentrale);
    void filter(Pflanzenfenster &form);
    /// What an action opens as a dialog; the dialog goes again.
    void dialog(const QString &name, const std::function<void()> &aktion);
    /// The entry of a menu that opens a dialog; nothing where there is no such command.
    void dialogDesMenues(mdiZentral &zentrale, const char *eintrag, const QString &name);

    QTemporaryDir ordner_;
    QDir ziel_;
    Programm programm_;
};

void Fotograf::knoepfe()
{
    // Name in the manual and key of the picture in its normal state.
    constexpr std::pair<const char *, const char *> namen[] = {{"first", "first_n"},
                                                               {"back", "back_n"},
                                                               {"next", "next_n"},
                                                               {"last", "last_n"},
                                                               {"botanisch", "botanisc_n"},
                                                               {"deutsch", "deutsch_n"},
                                                               {"filter", "filterb_n"},
                                                               {"filterein", "filter_n_n"},
                                                               {"filteraus", "filter_n2"},
                                                               {"filterladen", "filterl_n"},
                                                               {"filtersichern", "filters_n"},
                                                               {"drucken", "druck_n"},
                                                               {"groesser", "groesser_n"},
                                                               {"kleiner", "kleiner_n"},
                                                               {"anpassen", "anpassen_n"},
                                                               {"original", "original_n"}};
    for (const auto &[name, bild] : namen)
        ablegen(QStringLiteral("knopf-") + QLatin1String(name), bilder::pixmap(QStringLiteral("iliIcons/") + QLatin1String(bild), {24, 24}, 1));
    for (const SpartenEintrag &sparte : alleSparten())
        for (const QString &bild : tabellen::kennzeichenbilder(sparte.sparte))
            ablegen(tabellen::zeichendatei(bild), bilder::pixmap(bild, {36, 36}, 1));
    const QString lebensbereiche = QStringLiteral("bilder/lebensbereiche");
    ablegen(QStringLiteral("lebensbereiche"), bilder::pixmap(lebensbereiche, bilder::eigengroesse(lebensbereiche), 1));
}

void Fotograf::wahl()
{
    programm_.StartPhase = true;
    frmDBWahl form(programm_);
    form.show();
    ablegen(QStringLiteral("auswahl"), ruhig(form));
}

void Fotograf::filter(Pflanzenfenster &form)
{
    Filterdialog *dialog = form.filterdialog();
    dialog->resize(1004, 600);
    dialog->show();
    ablegen(QStringLiteral("filter-%1").arg(QLatin1String(eintrag(form.sparte()).wahlbild)), ruhig(*dialog));
    dialog->hide();
}

void Fotograf::dialog(const QString &name, const std::function<void()> &aktion)
{
    QTimer takt;
    bool gesehen = false;
    QObject::connect(&takt, &QTimer::timeout, &takt, [&] {
        QWidget *offen = QApplication::activeModalWidget();
        if (gesehen || !offen || !offen->isVisible())
            return;
        gesehen = true;
        ablegen(name, ruhig(*offen));
        offen->close();
    });
    takt.start(10);
    aktion();
    if (!gesehen)
        throw Fehler(QStringLiteral("%1: kein Fenster").arg(name));
}

void Fotograf::dialogDesMenues(mdiZentral &zentrale, const char *eintrag, const QString &name)
{
    auto *befehl = zentrale.findChild<QAction *>(QString::fromLatin1(eintrag), Qt::FindDirectChildrenOnly);
    if (befehl && befehl->isEnabled())
        dialog(name, [&] { befehl->trigger(); });
}

void Fotograf::pflanzenfenster(mdiZentral &zentrale)
{
    // Plants that have their plates in every build.
    const QHash<Sparte, QString> pflanzen{{Sparte::Topf, QStringLiteral("Begonia")},    {Sparte::Stauden, QStringLiteral("Bergenia")},
                                          {Sparte::Gehoelze, QStringLiteral("Betula")}, {Sparte::Apfel, QStringLiteral("Boskoop")},
                                          {Sparte::Obst, QStringLiteral("B")},          {Sparte::Friedhof, QStringLiteral("Bergenia")}};
    for (const SpartenEintrag &sparte : alleSparten()) {
        zentrale.FensterOeffnen(sparte.sparte);
        Pflanzenfenster *form = zentrale.fenster(sparte.sparte, 1);
        form->parentWidget()->showMaximized();
        auto *arten = form->findChild<QComboBox *>(QStringLiteral("cboArten"));
        const int i = arten->findText(pflanzen.value(sparte.sparte), Qt::MatchStartsWith);
        arten->setCurrentIndex(std::max(i, 0));
        emit arten->activated(arten->currentIndex());
        form->darstellen();
        form->parentWidget()->showNormal();
        form->parentWidget()->resize(1080, 660);
        const QString name = QString::fromLatin1(sparte.wahlbild);
        ablegen(QStringLiteral("fenster-%1").arg(name), ruhig(*form->parentWidget()));
        filter(*form);
        if (sparte.sparte == alleSparten().front().sparte) {
            ablegen(QStringLiteral("hauptfenster"), ruhig(zentrale));
            dialog(QStringLiteral("drucken"), [&] { zentrale.drucken(); });
            dialog(QStringLiteral("eigenschaften"), [&] { zentrale.namenAendern(&zentrale); });
            programm_.GewaehltesBild = 0;
            programm_.OriginalGroesse = false;
            zentrale.bildZeigen();
            for (QWidget *fenster : QApplication::topLevelWidgets())
                if (fenster->objectName() == u"frmBilder") {
                    fenster->resize(720, 640);
                    ablegen(QStringLiteral("bilder"), ruhig(*fenster));
                    fenster->close();
                }
        }
        form->parentWidget()->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void Fotograf::alles()
{
    knoepfe();
    wahl();
    mdiZentral zentrale(programm_);
    zentrale.show();
    pflanzenfenster(zentrale);
    dialogDesMenues(zentrale, "mnuOptionen", QStringLiteral("optionen"));
    dialogDesMenues(zentrale, "mnuInfos", QStringLiteral("infos"));
    dialogDesMenues(zentrale, "mnuFloxBilder", QStringLiteral("bilderassistent"));
}

} // namespace

int main(int anzahl, char **argumente)
{
    // No screen, no settings and no scaling of the machine's reach the pictures.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", "1");
    const QTemporaryDir einstellungen;
    qputenv("XDG_CONFIG_HOME", einstellungen.path().toUtf8());
    const QApplication anwendung(anzahl, argumente);
    const QStringList worte = QCoreApplication::arguments();
    if (worte.size() != 4) {
        std::fputs("hilfebilder PROGRAMM DATENBANK ZIEL\n", stderr);
        return 2;
    }
    if (!QDir().mkpath(worte[3]))
        return 1;
    try {
        Fotograf(worte[1], worte[2], QDir(worte[3])).alles();
    } catch (const Fehler &fehler) {
        std::fprintf(stderr, "%s\n", fehler.text().toUtf8().constData());
        return 1;
    }
    return 0;
}
