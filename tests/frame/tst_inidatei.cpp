#include "Rahmenprobe.h"

#include "frame/Einstellungen.h"
#include "frame/Inidatei.h"
#include "frame/Registry.h"
#include "tests/store/Datenhilfen.h"
#include "tests/Testprogramm.h"

#include <QElapsedTimer>
#include <QLockFile>
#include <QRandomGenerator>
#include <QSettings>
#include <QTest>

using namespace Qt::StringLiterals;

/* The file of the settings: the format others read, and what a write that fails leaves. */
class TestInidatei : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void formatWirdGelesen();
    void fremdesBleibt();
    void vollerDatentraeger_data();
    void vollerDatentraeger();
    void unlesbareDateiBleibt();
    void sperreHaeltNichtAuf_data();
    void sperreHaeltNichtAuf();
    void zweiProgramme();

private:
    QString datei() const { return ordner_->filePath(u"unter/registry.ini"_s); }
    QStringList dateien() const { return QDir(ordner_->filePath(u"unter"_s)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot); }

    std::optional<QTemporaryDir> ordner_;
};

void TestInidatei::init()
{
    ordner_.emplace();
}

void TestInidatei::formatWirdGelesen()
{
    QRandomGenerator zufall(42);
    QMap<QString, QString> werte{{u"Software/FH Lindenhof/FLOX3-DEMO/MDI/Hoehe"_s, u"14520"_s},
                                 {u"ohne"_s, u"Abschnitt"_s},
                                 {u"General/eigen"_s, u"1"_s},
                                 {u"A/leer"_s, u""_s},
                                 {u"A/blank"_s, u" "_s},
                                 {u"A/Zeilen"_s, u"a\nb\r\n\tc"_s},
                                 {u"A/Größe %"_s, u"C:\\Maß, 5 = \"x\"; #"_s},
                                 {u"A/at"_s, u"@Invalid()"_s},
                                 {u"A/at2"_s, u"@@"_s},
                                 {u"A/x"_s, u"äb\u00e9f\u20acdD\U0001F34E9"_s},
                                 {u"\u0416/\u0416"_s, u"\u0416"_s}};
    for (int i = 0; i < 300; ++i) {
        QString text;
        for (int n = zufall.bounded(12); n > 0; --n)
            text += QChar(zufall.bounded(4) ? zufall.bounded(1, 0x180) : zufall.bounded(1, 0xd7ff));
        werte.insert(u"Zufall/%1"_s.arg(i), text);
    }
    Inidatei ini(datei());
    for (auto i = werte.cbegin(); i != werte.cend(); ++i)
        ini.setWert(i.key(), i.value());
    QVERIFY(ini.sichern());
    QCOMPARE(dateien(), QStringList{u"registry.ini"_s});
    const QSettings leser(datei(), QSettings::IniFormat);
    QCOMPARE(leser.allKeys().size(), werte.size());
    const Inidatei wieder(datei());
    for (auto i = werte.cbegin(); i != werte.cend(); ++i) {
        QVERIFY2(leser.value(i.key()).toString() == i.value(), qPrintable(i.key() + u'=' + i.value()));
        QCOMPARE(leser.value(i.key()).typeId(), int(QMetaType::QString));
        QCOMPARE(wieder.wert(i.key()), i.value());
    }
    QVERIFY(wieder.wert(u"gibt es nicht"_s).isNull());
    QVERIFY(!wieder.wert(u"A/leer"_s).isNull());
}

void TestInidatei::fremdesBleibt()
{
    Inidatei ini(datei());
    ini.setWert(u"Software/a"_s, u"1"_s);
    QVERIFY(ini.sichern());
    {
        // A companion writes into the same file.
        QSettings anderer(datei(), QSettings::IniFormat);
        anderer.setValue(u"Software/Begleiter/Pfad"_s, u"D:\\Größe"_s);
        anderer.setValue(u"Software/a"_s, u"2"_s);
    }
    QCOMPARE(ini.wert(u"Software/a"_s), u"1"_s);
    ini.setWert(u"Software/b"_s, u"3"_s);
    QVERIFY(ini.sichern());
    const Inidatei wieder(datei());
    QCOMPARE(wieder.wert(u"Software/a"_s), u"2"_s);
    QCOMPARE(wieder.wert(u"Software/b"_s), u"3"_s);
    QCOMPARE(wieder.wert(u"Software/Begleiter/Pfad"_s), u"D:\\Größe"_s);
    QCOMPARE(ini.wert(u"Software/Begleiter/Pfad"_s), u"D:\\Größe"_s);
    // Without news the file is left alone.
    QFile::remove(datei());
    QVERIFY(ini.sichern());
    QVERIFY(!QFile::exists(datei()));
}

void TestInidatei::vollerDatentraeger_data()
{
    QTest::addColumn<int>("bytes");
    for (const int bytes : {0, 1, 50, 300})
        QTest::addRow("%d Bytes", bytes) << bytes;
}

/// The old file stays to the last byte, and the values come with the next write.
void TestInidatei::vollerDatentraeger()
{
    QFETCH(const int, bytes);
    const Ablage ablage;
    Programm programm;
    programm.MulkoPfad = u"C:\\Mulko\\"_s;
    QVERIFY(EinstellungenSchreiben(programm));
    const QByteArray vorher = inhalt(ablage.datei());
    QVERIFY(vorher.size() > 300);
    programm.MdiHoehe = 4711;
    {
        const Dateigrenze grenze{rlim_t(bytes)};
        QVERIFY(!EinstellungenSchreiben(programm));
    }
    QCOMPARE(inhalt(ablage.datei()), vorher);
    QCOMPARE(QDir(QFileInfo(ablage.datei()).path()).entryList(QDir::Files | QDir::Hidden), QStringList{u"registry.ini"_s});
    QVERIFY(registry::sichern());
    QVERIFY(inhalt(ablage.datei()).contains("Hoehe=4711"));
}

void TestInidatei::unlesbareDateiBleibt()
{
    // A folder stands in the file's place.
    QVERIFY(QDir().mkpath(datei() + u"/voll"_s));
    Inidatei ini(datei());
    ini.setWert(u"A/b"_s, u"1"_s);
    QVERIFY(!ini.sichern());
    QCOMPARE(ini.wert(u"A/b"_s), u"1"_s);
    QVERIFY(QDir(datei()).removeRecursively());
    QVERIFY(ini.sichern());
    QCOMPARE(Inidatei(datei()).wert(u"A/b"_s), u"1"_s);
}

void TestInidatei::sperreHaeltNichtAuf_data()
{
    QTest::addColumn<QByteArray>("sperre");
    QTest::newRow("leer") << QByteArray();
    QTest::newRow("Unsinn") << QByteArray("Unsinn\n");
    QTest::newRow("eines anderen Rechners") << QByteArray("1\nflox\nanderswo\n");
    QTest::newRow("eines toten Prozesses") << QByteArray("999999999\nflox\n") + QSysInfo::machineHostName().toUtf8() + '\n';
}

void TestInidatei::sperreHaeltNichtAuf()
{
    QFETCH(const QByteArray, sperre);
    QVERIFY(QDir().mkpath(QFileInfo(datei()).path()));
    schreiben(datei() + u".lock"_s, sperre);
    QElapsedTimer uhr;
    uhr.start();
    Inidatei ini(datei());
    ini.setWert(u"A/b"_s, u"1"_s);
    QVERIFY(ini.sichern());
    QVERIFY2(uhr.elapsed() < 2000, qPrintable(QString::number(uhr.elapsed())));
    QCOMPARE(Inidatei(datei()).wert(u"A/b"_s), u"1"_s);
}

void TestInidatei::zweiProgramme()
{
    Inidatei eins(datei()), zwei(datei());
    for (int i = 0; i < 20; ++i) {
        eins.setWert(u"A/eins%1"_s.arg(i), u"1"_s);
        zwei.setWert(u"A/zwei%1"_s.arg(i), u"2"_s);
        QVERIFY(eins.sichern() && zwei.sichern());
    }
    const Inidatei wieder(datei());
    for (int i = 0; i < 20; ++i) {
        QCOMPARE(wieder.wert(u"A/eins%1"_s.arg(i)), u"1"_s);
        QCOMPARE(wieder.wert(u"A/zwei%1"_s.arg(i)), u"2"_s);
    }
}

FLOX_TEST(tst_inidatei, TestInidatei)
#include "tst_inidatei.moc"
