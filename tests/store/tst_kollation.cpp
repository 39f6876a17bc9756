#include "Datenhilfen.h"

#include "store/Kollation.h"
#include "store/Recordset.h"
#include "tests/Testprogramm.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

/* The one German order of names. */
class TestKollation : public QObject
{
    Q_OBJECT

private slots:
    void reihenfolge_data()
    {
        QTest::addColumn<QStringList>("namen");
        QTest::newRow("ä bei a") << QStringList{u"Ahorn"_s, u"Ähre"_s, u"Azalee"_s};
        QTest::newRow("ö bei o") << QStringList{u"Obst"_s, u"Ölbaum"_s, u"Orchidee"_s, u"Zwiebel"_s};
        QTest::newRow("ü bei u") << QStringList{u"Buche"_s, u"Bücherblume"_s, u"Buchs"_s};
        QTest::newRow("a vor ä, wenn sonst gleich") << QStringList{u"Apfel"_s, u"Äpfel"_s, u"Apfelbeere"_s};
        QTest::newRow("ß bei ss") << QStringList{u"Strase"_s, u"Strasse"_s, u"Straße"_s, u"Strassen"_s, u"Strate"_s};
        QTest::newRow("groß bei klein") << QStringList{u"begonia"_s, u"Begonie"_s, u"calla"_s, u"Canna"_s};
        QTest::newRow("Gattung bleibt zusammen") << QStringList{u"Abutilon"_s,
                                                                u"Abutilon-Hybriden"_s,
                                                                u"Abutilon × hybridum"_s,
                                                                u"Abutilon megapotamicum"_s,
                                                                u"Abutilon 'Nabob'"_s,
                                                                u"Abutilon pictum 'Thompsonii'"_s,
                                                                u"Abutilonella"_s};
        QTest::newRow("Gattungsbastard") << QStringList{u"Fargesia"_s, u"× Fatshedera lizei"_s, u"Fatsia"_s};
        QTest::newRow("leer zuerst") << QStringList{u""_s, u"1"_s, u"A"_s};
        QTest::newRow("langer Name") << QStringList{u"Begonia "_s + QString(400, u'a'), u"Begonia "_s + QString(401, u'a'),
                                                    u"Begonia "_s + QString(399, u'a') + u'b'};
    }
    void reihenfolge()
    {
        QFETCH(QStringList, namen);
        for (qsizetype i = 1; i < namen.size(); ++i)
            QVERIFY2(sortierschluessel(namen[i - 1]) < sortierschluessel(namen[i]),
                     qPrintable(u"%1 | %2"_s.arg(namen[i - 1].left(40), namen[i].left(40))));
    }

    void gleich_data()
    {
        QTest::addColumn<QString>("a");
        QTest::addColumn<QString>("b");
        QTest::newRow("×") << u"Abutilon × hybridum"_s << u"Abutilon hybridum"_s;
        QTest::newRow("× ohne Abstand") << u"Abutilon ×hybridum"_s << u"Abutilon hybridum"_s;
        QTest::newRow("× vorn") << u"× Fatshedera"_s << u"Fatshedera"_s;
        QTest::newRow("'") << u"Begonia 'Bella'"_s << u"Begonia Bella"_s;
        QTest::newRow("„“") << u"Begonia „Bella“"_s << u"Begonia Bella"_s;
        QTest::newRow("‚‘") << u"Begonia ‚Bella‘"_s << u"Begonia Bella"_s;
        QTest::newRow("\"") << u"Begonia \"Bella\""_s << u"Begonia Bella"_s;
        QTest::newRow("Bindestrich") << u"Begonia-Hybriden"_s << u"Begonia Hybriden"_s;
        QTest::newRow("Leerzeichen") << u"  Begonia   rex "_s << u"Begonia rex"_s;
    }
    void gleich()
    {
        QFETCH(QString, a);
        QFETCH(QString, b);
        QVERIFY(sortierschluessel(a) == sortierschluessel(b));
    }

    /// The same order in a system that speaks another language; Swedish puts ä and ö behind z.
    void unabhaengigVomSystem_data()
    {
        QTest::addColumn<QString>("sprache");
        for (const char *sprache : {"C", "sv_SE.UTF-8", "da_DK.UTF-8", "tr_TR.UTF-8"})
            QTest::newRow(sprache) << QString::fromLatin1(sprache);
    }
    void unabhaengigVomSystem()
    {
        QFETCH(QString, sprache);
        QProcess selbst;
        QProcessEnvironment umgebung = QProcessEnvironment::systemEnvironment();
        for (const char *name : {"LC_ALL", "LANG", "LANGUAGE"})
            umgebung.insert(QString::fromLatin1(name), sprache);
        selbst.setProcessEnvironment(umgebung);
        selbst.start(QCoreApplication::applicationFilePath(), {u"tst_kollation"_s, u"reihenfolge"_s, u"gleich"_s});
        QVERIFY(selbst.waitForFinished(60000));
        QVERIFY2(selbst.exitStatus() == QProcess::NormalExit && selbst.exitCode() == 0, selbst.readAllStandardOutput().constData());
    }

    /// Names that sort alike follow their numbers, in plants and picture rows, upwards and downwards.
    void nummerEntscheidet()
    {
        const QTemporaryDir ordner;
        const std::shared_ptr<Datenbank> db = leereDatenbank(ordner.filePath(u"test.mdb"_s));
        const QList<std::pair<int, QString>> pflanzen{
            {7, u"Begonia 'Bella'"_s}, {3, u"Begonia Bella"_s}, {9, u"Azalee"_s}, {5, u"Begonia × Bella"_s}, {4, QString()}};
        for (const auto &[nummer, name] : pflanzen) {
            db->Execute(u"INSERT INTO Topfpfl (ARTNR, BOT_NAME) VALUES (?, ?)"_s, {nummer, name});
            db->Execute(u"INSERT INTO Topfpfl_Bilder (ARTNR, BotName) VALUES (?, ?)"_s, {nummer, name});
        }
        const auto folge = [&](const QString &quelle) {
            QList<qint64> nummern;
            for (Recordset satz(db, quelle); !satz.Eof(); satz.MoveNext())
                nummern += satz.Fields(u"ARTNR").Ganzzahl();
            return nummern;
        };
        const QList<qint64> aufwaerts{4, 9, 3, 5, 7}, abwaerts{3, 5, 7, 9, 4};
        QCOMPARE(folge(u"SELECT * FROM Topfpfl ORDER BY BOT_NAME"_s), aufwaerts);
        QCOMPARE(folge(u"SELECT * FROM Topfpfl_Bilder ORDER BY BotName"_s), aufwaerts);
        QCOMPARE(folge(u"SELECT * FROM Topfpfl ORDER BY BOT_NAME DESC"_s), abwaerts);
    }
};

FLOX_TEST(tst_kollation, TestKollation)
#include "tst_kollation.moc"
