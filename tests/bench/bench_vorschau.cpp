#include "pictures/Bilderlauf.h"
#include "pictures/Flaechenmittel.h"
#include "pictures/Vorschaubild.h"
#include "pictures/cDIBSection.h"
#include "pictures/mIntelJPEGLibrary.h"
#include "tests/bench/Messung.h"
#include "tests/pictures/Bildhilfen.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QThread>

#include <turbojpeg.h>

#include <cstdlib>
#include <filesystem>

/* bench_vorschau [PHOTOGRAPHS]   making previews of photographs of 12 megapixels, against the same decodings and encodings in memory on the
   same cores; and the memory that it takes. 60 photographs without an argument. */

namespace {

constexpr QSize foto(4000, 3000);
constexpr int verschiedene = 6, ohneAngabe = 60;

/// One walk over the photographs below `ordner`; the previews go again.
void laufen(const QString &ordner, int anzahl)
{
    Bilderauftrag auftrag;
    auftrag.quelle = ordner;
    auftrag.ziel = ordner;
    auftrag.unterordner = QStringLiteral("vorschau");
    auftrag.folge = {0, 1, 2, 3, 4};
    auftrag.handlung = vorschauErzeugen();
    Bilderlauf lauf(auftrag);
    QEventLoop schleife;
    bool fertig = false;
    QObject::connect(&lauf, &Bilderlauf::beendet, &schleife, [&](Bilderlauf::Ende ende, const QString &) {
        fertig = ende == Bilderlauf::Ende::Fertig && lauf.ausgelassen() == 0 && lauf.erledigt() == anzahl;
        schleife.quit();
    });
    lauf.beginnen();
    schleife.exec();
    if (!fertig)
        std::abort();
}

void raeumen(const QString &ordner)
{
    QDir(ordner + QStringLiteral("/vorschau")).removeRecursively();
}

/// A preview from bytes in memory to bytes in memory, by the bare library.
void vorschauImSpeicher(const QByteArray &bytes)
{
    QImage achtel(foto.width() / 8, foto.height() / 8, QImage::Format_RGB32);
    const tjhandle leser = tjInitDecompress(), schreiber = tjInitCompress();
    unsigned char *puffer = nullptr;
    unsigned long laenge = 0;
    bool gelungen = tjDecompress2(leser, reinterpret_cast<const uchar *>(bytes.constData()), static_cast<unsigned long>(bytes.size()), achtel.bits(),
                                  achtel.width(), int(achtel.bytesPerLine()), achtel.height(), TJPF_BGRX, 0)
                    == 0;
    const QImage klein = flaechenmittel(achtel, vorschaugroesse(foto));
    gelungen = gelungen
               && tjCompress2(schreiber, klein.constBits(), klein.width(), int(klein.bytesPerLine()), klein.height(), TJPF_BGRX, &puffer, &laenge,
                              TJSAMP_420, vorschauGuete, 0)
                      == 0;
    tjFree(puffer);
    tjDestroy(leser);
    tjDestroy(schreiber);
    if (!gelungen || laenge == 0)
        std::abort();
}

void imSpeicher(const QList<QByteArray> &inhalte, int anzahl)
{
    QThreadPool kerne;
    for (int i = 0; i < anzahl; ++i)
        kerne.start([&bytes = inhalte[i % inhalte.size()]] { vorschauImSpeicher(bytes); });
    kerne.waitForDone();
}

/// The most memory that this program ever held, MiB; 0 where the system does not tell. What getrusage counts begins with the process that
/// this one was started from.
double spitze()
{
    QFile stand(QStringLiteral("/proc/self/status"));
    if (!stand.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &zeile : stand.readAll().split('\n'))
        if (zeile.startsWith("VmHWM:"))
            return zeile.mid(6).simplified().split(' ').first().toDouble() / 1024;
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList argumente = app.arguments();
    // By itself in a process of its own: what the photographs took while they were made does not count.
    if (argumente.size() == 4 && argumente[1] == QStringLiteral("--speicher")) {
        laufen(argumente[2], argumente[3].toInt());
        std::printf("%.1f", spitze());
        return 0;
    }
    const int anzahl = argumente.size() > 1 ? std::max(1, argumente[1].toInt()) : ohneAngabe;
    QTemporaryDir ordner;
    QList<QByteArray> inhalte;
    if (!QDir(ordner.path()).mkdir(QStringLiteral("stauden")))
        std::abort();
    for (int i = 0; i < anzahl; ++i) {
        const QString pfad = ordner.filePath(QStringLiteral("stauden/foto%1.jpg").arg(i, 5, 10, QChar(u'0')));
        if (i >= verschiedene) {
            std::filesystem::create_hard_link(
                ordner.filePath(QStringLiteral("stauden/foto%1.jpg").arg(i % verschiedene, 5, 10, QChar(u'0'))).toStdString(), pfad.toStdString());
            continue;
        }
        cDIBSection dib;
        dib.CreateFromPicture(gemischt(foto.width(), foto.height(), quint32(i)));
        mIntelJPEGLibrary::SaveJPG(dib, pfad, 70 + 5 * i);
        QFile datei(pfad);
        if (!datei.open(QIODevice::ReadOnly))
            std::abort();
        inhalte.append(datei.readAll());
    }
    std::printf("%d photographs of 12 megapixels, %d cores\n", anzahl, QThread::idealThreadCount());
    QProcess eigener;
    eigener.start(app.applicationFilePath(), {QStringLiteral("--speicher"), ordner.path(), QString::number(anzahl)});
    if (!eigener.waitForFinished(-1) || eigener.exitCode() != 0)
        std::abort();
    std::printf("%-44s %8.1f MiB  (goal <= 150)\n", "previews made, peak memory", eigener.readAllStandardOutput().toDouble());
    vergleich(
        "previews made, to the same in memory", 1.2, [&] { raeumen(ordner.path()); }, [&] { laufen(ordner.path(), anzahl); },
        [&] { imSpeicher(inhalte, anzahl); }, anzahl > ohneAngabe ? 1 : 5);
    return 0;
}
