#include "Studio.h"

#include "frame/Ablauf.h"
#include "controls/Bilder.h"
#include "plantwindows/Pflanzenfenster.h"
#include "store/Fehler.h"
#include "store/Pfade.h"

#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QThread>
#include <QTimer>

Studio::Studio(const QString &programmordner, const QString &datenbank, const QDir &ziel, QSize mass) : ziel_(ziel)
{
    const QDir ordner(ordner_.path());
    const QDir icons(QDir(programmordner).filePath(QStringLiteral("icons")));
    const QString grund = QStringLiteral("hintergrund");
    bool da = QFile::copy(datenbank, ordner.filePath(QStringLiteral("flox-demo.mdb"))) && ordner.mkdir(icons.dirName());
    // The program draws lots among its backgrounds: here each is the first.
    for (const QFileInfo &eines : icons.entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot))
        da = da
             && QFile::link(eines.fileName().startsWith(grund) ? icons.filePath(grund + QStringLiteral("1.jpg")) : eines.filePath(),
                            ordner.filePath(icons.dirName() + u'/' + eines.fileName()));
    if (!da)
        throw Fehler(QStringLiteral("%1: kein Programmordner").arg(programmordner));
    bilder::setOrdner(QDir(programmordner).filePath(QStringLiteral("icons")));
    oberflaecheEinrichten();
    programm.ProgrammPfad = QDir::toNativeSeparators(ordner.path());
    programm.BilderPfad = QDir::toNativeSeparators(programmordner);
    programm.ProgrammVersion = QStringLiteral(FLOX_VERSION);
    programm.MdiStatus = 0;
    programm.MdiBreite = mass.width() * twipsJePixel;
    programm.MdiHoehe = mass.height() * twipsJePixel;
}

void Studio::ablegen(const QString &name, const QPixmap &bild) const
{
    if (bild.isNull() || !bild.save(ziel_.filePath(name + QStringLiteral(".png"))))
        throw Fehler(QStringLiteral("%1: kein Bild").arg(name));
}

void Studio::dialog(const QString &name, const std::function<void()> &aktion, const std::function<void(QWidget &)> &ansehen)
{
    QTimer takt;
    bool gesehen = false;
    QObject::connect(&takt, &QTimer::timeout, &takt, [&] {
        QWidget *offen = QApplication::activeModalWidget();
        if (gesehen || !offen || !offen->isVisible())
            return;
        gesehen = true;
        ansehen(*offen);
        offen->close();
    });
    takt.start(10);
    aktion();
    if (!gesehen)
        throw Fehler(QStringLiteral("%1: kein Fenster").arg(name));
}

void Studio::pflanze(Pflanzenfenster &form, const QString &anfang)
{
    auto *arten = form.findChild<QComboBox *>(QStringLiteral("cboArten"));
    arten->setCurrentIndex(std::max(arten->findText(anfang, Qt::MatchStartsWith), 0));
    emit arten->activated(arten->currentIndex());
    form.darstellen();
}

namespace {

/// What is another one in every run: the time, and the folders of this one, which a user would have in his home.
void festhalten(QWidget &fenster)
{
    if (auto *uhrzeit = fenster.findChild<QLabel *>(QStringLiteral("stbAnzeigeZentral_2")))
        uhrzeit->setText(QStringLiteral("10:15"));
    constexpr std::pair<const char *, const char *> ordner[] = {{"txtProgrammPfad", "/home/flora/flox"},
                                                                {"txtEinstellungen", "/home/flora/.config/flox/registry.ini"}};
    for (const auto &[name, pfad] : ordner)
        if (auto *feld = fenster.findChild<QLineEdit *>(QLatin1String(name)))
            feld->setText(QLatin1String(pfad));
}

} // namespace

QPixmap ruhig(QWidget &fenster, const std::function<QPixmap()> &aufnehmen)
{
    constexpr int ruhe = 3, pause = 30, hoechstens = 5000; // pictures alike, milliseconds
    QElapsedTimer uhr;
    uhr.start();
    QImage vorher;
    for (int gleich = 0; gleich < ruhe && uhr.elapsed() < hoechstens;) {
        QCoreApplication::processEvents();
        QThread::msleep(pause);
        for (QWidget *eines : QApplication::topLevelWidgets())
            festhalten(*eines);
        const QImage jetzt = (aufnehmen ? aufnehmen() : fenster.grab()).toImage();
        // A window that lays itself out a moment after a change of its size.
        const auto *spaeter = fenster.findChild<QTimer *>(QStringLiteral("timResize"));
        gleich = jetzt == vorher && !(spaeter && spaeter->isActive()) ? gleich + 1 : 0;
        vorher = jetzt;
    }
    return QPixmap::fromImage(vorher);
}

void umgebungStellen(const QTemporaryDir &einstellungen)
{
    qputenv("QT_SCALE_FACTOR", "1");
    qputenv("XDG_CONFIG_HOME", einstellungen.path().toUtf8());
}
