#include "store/Medium.h"
#include "store/Pfade.h"
#include "tests/Testprogramm.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <ctime>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

const QStringList cdMarken = {u"stauden/arm.jpg"_s, u"gehoelze/abi.jpg"_s, u"Winflox3.ico"_s};

/// A folder with the files named.
class Marken
{
public:
    explicit Marken(const QStringList &dateien)
    {
        for (const QString &datei : dateien)
            anlegen(datei);
    }
    void anlegen(const QString &datei) const
    {
        QDir().mkpath(QFileInfo(pfad(datei)).path());
        QFile neu(pfad(datei));
        if (!neu.open(QIODevice::WriteOnly))
            qFatal("cannot write the test file");
    }
    QString pfad(const QString &datei = {}) const { return ordner_.filePath(datei); }

private:
    QTemporaryDir ordner_;
};

} // namespace

/* Drives and the marks of folders. */
class TestMedium : public QObject
{
    Q_OBJECT

private slots:
    void merkmale_data()
    {
        QTest::addColumn<QStringList>("dateien");
        QTest::addColumn<QString>("erwartet"); // CD, its symbol, pictures, all samples, one sample
        const auto cdOhne = [](int stelle) {
            QStringList rest = cdMarken;
            rest.removeAt(stelle);
            return rest;
        };
        QTest::addRow("empty") << QStringList() << u"-----"_s;
        QTest::addRow("CD") << cdMarken << u"CS---"_s;
        QTest::addRow("CD, other case") << QStringList{u"STAUDEN/ARMERIA.JPG"_s, u"Gehoelze/Abies.jpg"_s, u"WINFLOX3.ICO"_s} << u"CS---"_s;
        QTest::addRow("CD without perennials") << cdOhne(0) << u"-S---"_s;
        QTest::addRow("CD without woody plants") << cdOhne(1) << u"-S---"_s;
        QTest::addRow("CD without its symbol") << cdOhne(2) << u"-----"_s;
        QTest::addRow("folders in the place of files") << QStringList{u"stauden/arm/x"_s, u"gehoelze/abi/x"_s, u"Winflox3.ico/x"_s} << u"-----"_s;
        QTest::addRow("other beginnings") << QStringList{u"stauden/xarm.jpg"_s, u"gehoelze/xabi.jpg"_s, u"xWinflox3.ico"_s} << u"-----"_s;
        QTest::addRow("symbol") << QStringList{u"winflox3.ico"_s} << u"-S---"_s;
        QTest::addRow("pictures") << QStringList{u"stauden/cal.jpg"_s, u"topfpflanzen/abu.jpg"_s} << u"--P--"_s;
        QTest::addRow("pictures, other case") << QStringList{u"Stauden/CAL.JPG"_s, u"TOPFPFLANZEN/Abutilon.JPG"_s} << u"--P--"_s;
        QTest::addRow("pictures of perennials alone") << QStringList{u"stauden/cal.jpg"_s, u"stauden/abu.jpg"_s} << u"-----"_s;
        QTest::addRow("pictures of pot plants alone") << QStringList{u"topfpflanzen/abu.jpg"_s, u"topfpflanzen/cal.jpg"_s} << u"-----"_s;
        QTest::addRow("both samples") << QStringList{u"topfpflanzen/beg.jpg"_s, u"topfpflanzen/bou.jpg"_s} << u"---AE"_s;
        QTest::addRow("both samples, other case") << QStringList{u"Topfpflanzen/BEG.JPG"_s, u"Topfpflanzen/Bou.jpg"_s} << u"---AE"_s;
        QTest::addRow("one sample") << QStringList{u"topfpflanzen/beg.jpg"_s} << u"----E"_s;
        QTest::addRow("the other sample") << QStringList{u"topfpflanzen/bou.jpg"_s, u"topfpflanzen/bou2.jpg"_s} << u"----E"_s;
        QTest::addRow("samples elsewhere") << QStringList{u"stauden/beg.jpg"_s, u"bou.jpg"_s} << u"-----"_s;
    }

    void merkmale()
    {
        QFETCH(QStringList, dateien);
        QFETCH(QString, erwartet);
        const Marken ordner(dateien);
        const auto merkmale = [](const QString &wurzel) {
            QString text;
            text += medium::istCd(wurzel) ? u'C' : u'-';
            text += medium::hatCdSymbol(wurzel) ? u'S' : u'-';
            text += medium::haeltBilder(wurzel) ? u'P' : u'-';
            text += medium::alleProben(wurzel) ? u'A' : u'-';
            text += medium::eineProbe(wurzel) ? u'E' : u'-';
            return text;
        };
        QCOMPARE(merkmale(ordner.pfad()), erwartet);
        QCOMPARE(merkmale(ordner.pfad() + u'/'), erwartet);
        QCOMPARE(merkmale(ordner.pfad().replace(u'/', u'\\') + u'\\'), erwartet);
        QCOMPARE(merkmale(ordner.pfad()), erwartet); // also by what is remembered
        QCOMPARE(merkmale(ordner.pfad(u"fehlt"_s)), u"-----"_s);
        QCOMPARE(merkmale({}), u"-----"_s);
    }

    void cdKommtUndGeht()
    {
        const Marken ordner({});
        const std::vector<Laufwerk> laufwerke = {{ordner.pfad(), u"FLOX"_s}};
        for (const QString &marke : cdMarken) {
            QVERIFY(!medium::cdSuchen(laufwerke));
            ordner.anlegen(marke);
        }
        QVERIFY(medium::cdSuchen(laufwerke));
        QVERIFY(QFile::remove(ordner.pfad(cdMarken[0])));
        QVERIFY(!medium::cdSuchen(laufwerke));
    }

    void ersteCdGilt()
    {
        const Marken leer({}), halb({cdMarken[0], cdMarken[1]}), erste(cdMarken), zweite(cdMarken);
        const Laufwerk a{leer.pfad(), {}}, b{halb.pfad(), {}}, c{erste.pfad(), u"FLOX"_s}, d{zweite.pfad(), {}};
        QCOMPARE(medium::cdSuchen({a, b, c, d}), c);
        QCOMPARE(medium::cdSuchen({d, c}), d);
        QVERIFY(!medium::cdSuchen({a, b}));
        QVERIFY(!medium::cdSuchen({}));
    }

    /// Floppy drives are passed over, whatever they hold.
    void disketteWirdNichtAngefasst()
    {
        const QString vorher = QDir::currentPath();
        const Marken ordner({});
        QVERIFY(QDir::setCurrent(ordner.pfad()));
        for (const QString &laufwerk : {u"a:"_s, u"b:"_s, u"A:"_s, u"B:"_s, u"d:"_s})
            for (const QString &marke : cdMarken)
                ordner.anlegen(laufwerk + u'/' + marke);
        for (const QString &laufwerk : {u"a:"_s, u"b:/"_s, u"A:\\"_s, u"B:"_s}) {
            QVERIFY(medium::istCd(laufwerk)); // so that passing over is what keeps it out
            QVERIFY(!medium::cdSuchen({{laufwerk, {}}}));
        }
        const Laufwerk d{u"d:/"_s, {}};
        QCOMPARE(medium::cdSuchen({{u"a:/"_s, {}}, {u"B:/"_s, {}}, d}), d);
        QVERIFY(QDir::setCurrent(vorher));
    }

    void wechsellaufwerke_data()
    {
        QTest::addColumn<QString>("wurzel");
        QTest::addColumn<QString>("geraet");
        QTest::addColumn<QString>("dateisystem");
        QTest::addColumn<bool>("wechselbar");
        QTest::addColumn<bool>("erwartet");
        QTest::addRow("disc") << u"/media/cdrom0"_s << u"/dev/sr0"_s << u"iso9660"_s << true << true;
        QTest::addRow("image of a disc") << u"/mnt/abbild"_s << u"/dev/loop7"_s << u"iso9660"_s << false << true;
        QTest::addRow("newer disc") << u"/mnt/dvd"_s << u"/dev/sr1"_s << u"udf"_s << false << true;
        QTest::addRow("disc with a letter") << u"E:/"_s << u"\\\\?\\Volume{1}\\"_s << u"CDFS"_s << false << true;
        QTest::addRow("stick") << u"/mnt/stick"_s << u"/dev/sdb1"_s << u"vfat"_s << true << true;
        QTest::addRow("plugged-in disk") << u"/media/anna/Bilder"_s << u"/dev/sdc1"_s << u"ext4"_s << false << true;
        QTest::addRow("plugged-in disk, other place") << u"/run/media/anna/Bilder"_s << u"/dev/dm-3"_s << u"ext4"_s << false << true;
        QTest::addRow("system") << u"/"_s << u"/dev/sda1"_s << u"ext4"_s << false << false;
        QTest::addRow("second disk") << u"/home"_s << u"/dev/sdb1"_s << u"ext4"_s << false << false;
        QTest::addRow("memory") << u"/media/speicher"_s << u"tmpfs"_s << u"tmpfs"_s << false << false;
        QTest::addRow("begins alike") << u"/mediathek"_s << u"/dev/sda2"_s << u"ext4"_s << false << false;
        QTest::addRow("floppy") << u"A:/"_s << u"\\\\?\\Volume{2}\\"_s << u"FAT"_s << true << false;
        QTest::addRow("second floppy") << u"b:/"_s << u"\\\\?\\Volume{3}\\"_s << u"FAT"_s << true << false;
    }

    void wechsellaufwerke()
    {
        QFETCH(QString, wurzel);
        QFETCH(QString, geraet);
        QFETCH(QString, dateisystem);
        QFETCH(bool, wechselbar);
        QTEST(medium::istWechsellaufwerk({wurzel, geraet, dateisystem, wechselbar}), "erwartet");
    }

    /// What this machine has is no floppy, is there, and stands in the list once.
    void laufwerkeDieserMaschine()
    {
        const std::vector<Laufwerk> liste = medium::laufwerke();
        QVERIFY(std::ranges::none_of(liste, [](const Laufwerk &laufwerk) { return laufwerk.wurzel == QDir::rootPath(); }));
        for (size_t i = 0; i < liste.size(); ++i) {
            QVERIFY2(QFileInfo(liste[i].wurzel).isDir() && !medium::istDiskette(liste[i].wurzel), qPrintable(liste[i].wurzel));
            QVERIFY(i == 0 || liste[i - 1].wurzel < liste[i].wurzel);
        }
    }

    void beschriftung()
    {
        QCOMPARE(medium::beschriftung({u"/media/anna/FLOX/"_s, {}}), QDir::toNativeSeparators(u"/media/anna/FLOX"_s));
        QCOMPARE(medium::beschriftung({u"/media/sr0"_s, u"FLOX"_s}), QDir::toNativeSeparators(u"/media/sr0"_s) + u" [FLOX]"_s);
    }

    /// Several names in one large folder cost one reading, found or not.
    void ordnerNurEinmalGelesen()
    {
        const Marken ordner({});
        for (int i = 0; i < 3000; ++i)
            ordner.anlegen(u"topfpflanzen/pflanze-%1.jpg"_s.arg(i));
        const QString topf = ordner.pfad(u"topfpflanzen"_s);
        // Of the processor, and in turn: neither other work nor a machine that changes its speed is in it.
        std::clock_t einer = std::numeric_limits<std::clock_t>::max(), vier = einer;
        const auto messen = [](std::clock_t &beste, auto handlung) {
            const std::clock_t anfang = std::clock();
            handlung();
            beste = std::min(beste, std::clock() - anfang);
        };
        for (int runde = 0; runde < 10; ++runde) {
            messen(einer, [&] { QVERIFY(!dateiVorhanden(topf + u"/beg*"_s)); });
            messen(vier, [&] { QCOMPARE(dateienVorhanden(topf, {u"beg*"_s, u"bou*"_s, u"cal*"_s, u"abu*"_s}, 4), 0); });
        }
        // Comparing four names costs something, too; reading the folder four times would cost four times as much.
        QVERIFY2(vier < 3 * einer, qPrintable(u"%1, one name %2, each second %3"_s.arg(vier).arg(einer).arg(CLOCKS_PER_SEC)));
    }

    void nichtMehrAlsGenug()
    {
        const Marken ordner({u"beg1.jpg"_s, u"beg2.jpg"_s, u"BOU.JPG"_s});
        const QStringList muster = {u"beg*"_s, u"bou*"_s, u"cal*"_s};
        QCOMPARE(dateienVorhanden(ordner.pfad(), muster, 3), 2);
        QCOMPARE(dateienVorhanden(ordner.pfad(), {u"beg?.jpg"_s}, 1), 1);
        QVERIFY(dateienVorhanden(ordner.pfad(), muster, 1) >= 1);
        QVERIFY(QFile::remove(ordner.pfad(u"BOU.JPG"_s)));
        QCOMPARE(dateienVorhanden(ordner.pfad(), muster, 3), 1);
        QCOMPARE(dateienVorhanden({}, muster, 3), 0);
        QCOMPARE(dateienVorhanden(ordner.pfad(), {}, 1), 0);
    }
};

FLOX_TEST(tst_medium, TestMedium)
#include "tst_medium.moc"
