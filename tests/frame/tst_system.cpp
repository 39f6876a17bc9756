#include "Rahmenprobe.h"

#include "frame/System.h"
#include "store/Pfade.h"
#include "tests/Testprogramm.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString gelesen(const QString &pfad)
{
    QFile datei(pfad);
    return datei.open(QIODevice::ReadOnly) ? QString::fromUtf8(datei.readAll()).trimmed() : QString();
}

/// A script that tells what it is and where it works; the report is whole when it is seen.
QByteArray melder(const char *wer)
{
    return QByteArray("#!/bin/sh\necho ") + wer
           + " $(pwd -P) > \"$(dirname \"$0\")/bericht.neu\"\nmv \"$(dirname \"$0\")/bericht.neu\" \"$(dirname \"$0\")/bericht\"\n";
}

} // namespace

/* Names of systems, programs of folders, windows of others. */
class TestSystem : public QObject
{
    Q_OBJECT

private slots:
    void betriebssystemnamen_data()
    {
        QTest::addColumn<int>("plattform");
        QTest::addColumn<int>("haupt");
        QTest::addColumn<int>("neben");
        QTest::addColumn<quint32>("bau");
        QTest::addColumn<QString>("name");
        const auto zeile = [](int plattform, int haupt, int neben, quint32 bau, const char *name) {
            QTest::addRow("%d: %d.%d.%u", plattform, haupt, neben, bau) << plattform << haupt << neben << bau << QString::fromLatin1(name);
        };
        zeile(2, 4, 0, 1381, "Windows NT");
        zeile(2, 4, 90, 0, "Windows NT");
        zeile(2, 5, 0, 2195, "Windows 2000");
        zeile(2, 5, 1, 2600, "Windows XP");
        zeile(2, 5, 2, 3790, "Unbekanntes Betriebssystem");
        zeile(2, 3, 51, 1057, "Unbekanntes Betriebssystem");
        zeile(2, 6, 1, 7601, "Unbekanntes Betriebssystem");
        zeile(2, 10, 0, 19045, "Unbekanntes Betriebssystem");
        zeile(1, 4, 0, 950, "Windows 95");
        zeile(1, 4, 0, 1998, "Windows 95");
        zeile(1, 4, 10, 1998, "Windows 98");
        zeile(1, 4, 10, (1034u << 16) + 2222, "Windows 98 SE"); // the version stands in the high word, too
        zeile(1, 4, 10, (1034u << 16) + 1998, "Windows 98");
        zeile(1, 4, 10, 0xFFFF, "Windows 98 SE");
        zeile(1, 4, 90, 3000, "Windows ME");
        zeile(1, 5, 0, 1998, "Windows 98");
        zeile(1, 5, 0, 3000, "Windows 98 SE");
        zeile(1, 5, 90, 3000, "Windows 98 SE");
        zeile(1, 4, 3, 0, "Unbekanntes Betriebssystem");
        zeile(1, 3, 10, 1998, "Unbekanntes Betriebssystem");
        zeile(0, 3, 11, 0, "Windows 32s");
        zeile(0, 0, 0, 0, "Windows 32s");
        zeile(3, 5, 1, 2600, "Unbekanntes Betriebssystem");
        zeile(-1, 12, 0, 0, "Unbekanntes Betriebssystem");
    }

    void betriebssystemnamen()
    {
        QFETCH(int, plattform);
        QFETCH(int, haupt);
        QFETCH(int, neben);
        QFETCH(quint32, bau);
        QTEST(betriebssystemname({plattform, haupt, neben, bau}), "name");
    }

    void diesesSystem()
    {
#ifdef Q_OS_WIN
        QVERIFY(!betriebssystem().isEmpty());
#else
        QCOMPARE(betriebssystem(), u"Unbekanntes Betriebssystem"_s);
#endif
    }

    /// With and without the ending, in any case; a folder is no program.
    void dateien_data()
    {
        QTest::addColumn<QStringList>("vorhanden");
        QTest::addColumn<QString>("gesucht");
        QTest::addColumn<QStringList>("gefunden");
        QTest::newRow("none") << QStringList() << u"Mulko.exe"_s << QStringList();
        QTest::newRow("as written") << QStringList{u"Mulko.exe"_s} << u"Mulko.exe"_s << QStringList{u"Mulko.exe"_s};
        QTest::newRow("other case") << QStringList{u"MULKO.EXE"_s} << u"Mulko.exe"_s << QStringList{u"MULKO.EXE"_s};
        QTest::newRow("without ending") << QStringList{u"mulko"_s} << u"Mulko.exe"_s << QStringList{u"mulko"_s};
        QTest::newRow("both") << QStringList{u"mulko"_s, u"mulko.exe"_s} << u"Mulko.exe"_s << QStringList{u"mulko.exe"_s, u"mulko"_s};
        QTest::newRow("asked without ending") << QStringList{u"Mulko.exe"_s} << u"mulko"_s << QStringList{u"Mulko.exe"_s};
        QTest::newRow("other names") << QStringList{u"Mulko.exe.bak"_s, u"Mulkos.exe"_s, u"Mulko.ini"_s} << u"Mulko.exe"_s << QStringList();
        QTest::newRow("folder") << QStringList{u"Mulko.exe/x"_s} << u"Mulko.exe"_s << QStringList();
    }

    void dateien()
    {
        QFETCH(QStringList, vorhanden);
        QFETCH(QString, gesucht);
        QFETCH(QStringList, gefunden);
        const QTemporaryDir ordner;
        for (const QString &datei : vorhanden) {
            QVERIFY(QDir().mkpath(QFileInfo(ordner.filePath(datei)).path()));
            programmSchreiben(ordner.filePath(datei), "x");
        }
        for (const QString &wurzel : {ordner.path(), ordner.path() + u'\\', ordner.path() + u"/"_s}) {
            QStringList namen;
            for (const QString &datei : programmdateien(wurzel, gesucht))
                namen += QFileInfo(datei).fileName();
            QCOMPARE(namen, gefunden);
        }
        QVERIFY(programmdateien({}, gesucht).isEmpty());
        QVERIFY(programmdateien(ordner.filePath(u"fehlt"_s), gesucht).isEmpty());
    }

#ifndef Q_OS_WIN
    /// It works in its folder; this process stays where it is.
    void starten()
    {
        const QTemporaryDir ordner;
        const QString programm = ordner.filePath(u"Mein Programm"_s), vorher = QDir::currentPath();
        QVERIFY(QDir().mkpath(programm));
        programmSchreiben(programm + u"/SETUP.EXE"_s, melder("exe"));
        QVERIFY(programmStarten(QString(programm).replace(u'/', u'\\') + u'\\', u"setup.exe"_s));
        QTRY_COMPARE(gelesen(programm + u"/bericht"_s), u"exe "_s + QFileInfo(programm).canonicalFilePath());
        QCOMPARE(QDir::currentPath(), vorher);
    }

    /// A file that this system cannot start gives way to the one without its ending.
    void naechsteDateiWennDieErsteNichtGeht()
    {
        const QTemporaryDir ordner;
        programmSchreiben(ordner.filePath(u"mulko.exe"_s), "MZ", false);
        programmSchreiben(ordner.filePath(u"mulko"_s), melder("script"));
        QVERIFY(programmStarten(ordner.path(), u"Mulko.exe"_s));
        QTRY_VERIFY(gelesen(ordner.filePath(u"bericht"_s)).startsWith(u"script "));
    }

    void startScheitertOhneEinWort()
    {
        const QTemporaryDir ordner;
        QVERIFY(!programmStarten(ordner.path(), u"mulko.exe"_s));
        programmSchreiben(ordner.filePath(u"mulko.exe"_s), "MZ", false);
        QVERIFY(!programmStarten(ordner.path(), u"mulko.exe"_s));
        QVERIFY(!programmStarten({}, u"mulko.exe"_s));
    }

    void fensterNachVorn()
    {
        const QTemporaryDir ordner;
        const QByteArray vorher = qgetenv("PATH");
        programmSchreiben(ordner.filePath(u"wmctrl"_s),
                          "#!/bin/sh\necho \"$#:$1:$2\" > \"$(dirname \"$0\")/neu\"\nmv \"$(dirname \"$0\")/neu\" \"$(dirname \"$0\")/bericht\"\n");
        qputenv("PATH", ordner.path().toLocal8Bit() + ':' + vorher);
        fensterAktivieren(u"Flox-Editor"_s);
        QTRY_COMPARE(gelesen(ordner.filePath(u"bericht"_s)), u"2:-a:Flox-Editor"_s);
        qputenv("PATH", ordner.filePath(u"leer"_s).toLocal8Bit());
        fensterAktivieren(u"Mulko"_s); // without the tool nothing happens
        qputenv("PATH", vorher);
    }
#endif
};

FLOX_TEST(tst_system, TestSystem)
#include "tst_system.moc"
