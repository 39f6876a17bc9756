#include "Rahmenprobe.h"

#include "frame/Einstellungen.h"
#include "frame/Registry.h"
#include "tests/Testprogramm.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

/* The lasting settings: every row of their table, and the rules of reading and writing. */

namespace {

const QString wurzel = u"Software\\FH Lindenhof\\FLOX3-DEMO\\"_s;
const QString editorSchluessel = u"Software\\FH Lindenhof\\Flox-Editor1.0\\Pfade"_s;
const QString mulkoSchluessel = u"Software\\FH Lindenhof\\Mulko1.0\\Pfade"_s;

struct Zeile
{
    const char *schluessel, *name, *vorgabe, *anders;
};

/// Every value that lasts, with its default and another value as it is stored.
constexpr Zeile zeilen[] = {
    {"MDI", "Hoehe", "14520", "9000"},
    {"MDI", "Breite", "19320", "12345"},
    {"MDI", "Links", "0", "-150"},
    {"MDI", "Oben", "0", "300"},
    {"MDI", "Status", "2", "0"},
    {"MDI", "Pflanzenfenster", "0 0 0", "17700 11400 2"},
    {"Pfade", "FLOX-Verz", "", "C:\\Flox"},
    {"Pfade", "Mulko-Verz", "", "C:\\Mulko\\"},
    {"Pfade", "FLOX-DEMO-Bilder-Verz", "", "D:\\Bilder"},
    {"Pfade", "FLOX-Editor-Verz", "", "C:\\Editor\\"},
    {"Pfade", "FLOX-Druck-Verz", "", "/home/flox/Ausdrucke"},
    {"Bilder", "BilderaufCD", "False", "True"},
    {"Bilder", "LokaleVorschauBilder", "False", "True"},
    {"Bilder", "BilderFormGroesseX", "10110", "7500.5"},
    {"Bilder", "BilderFormGroesseY", "9225", "5000"},
    {"Optionen", "MonatsDarstellung", "1", "0"},
    {"Optionen", "Originalgroesse", "True", "False"},
    {"Optionen", "OriginalDatenbank", "True", "False"},
    {"Optionen", "AccessFormat", "False", "True"},
    {"Version", "Version", "", "3.0.1"},
};

QString schluessel(const Einstellung &zeile)
{
    return wurzel + QLatin1String(zeile.schluessel);
}

/// Puts a stored text into the program's state.
void setzen(Programm &programm, const Einstellung &zeile, const QString &text)
{
    std::visit(
        [&](auto ziel) {
        auto &wert = programm.*ziel;
        using Typ = std::remove_reference_t<decltype(wert)>;
        if constexpr (std::is_same_v<Typ, QString>)
            wert = text;
        else if constexpr (std::is_same_v<Typ, bool>)
            wert = text == u"True";
        else
            wert = Typ(text.toDouble());
        },
        zeile.ziel);
}

bool nurGeschrieben(const Zeile &zeile)
{
    return qstrcmp(zeile.name, "FLOX-Verz") == 0 || qstrcmp(zeile.name, "Version") == 0;
}

} // namespace

class TestEinstellungen : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void tabelle();
    void jedeZeile_data();
    void jedeZeile();
    void ersterStart();
    void vorrangDerSchluessel_data();
    void vorrangDerSchluessel();
    void bilderpfad();
    void leerzeichenHeisstNichtGesetzt();
    void bilderForm_data();
    void bilderForm();
    void hinweise_data();
    void hinweise();
    void hinweiseWerdenGeschrieben();
    void begleiterNurWennVorhanden_data();
    void begleiterNurWennVorhanden();
    void unsinn_data();
    void unsinn();
    void langeWerte();
    void nichtSchreibbar();
    void vomHandGeaendert();
    void beschaedigteDatei();

private:
    QString lesen(const QString &zweig, const char *name) { return registry::RegWertLesen(wurzel + zweig, QString::fromLatin1(name)); }

    std::unique_ptr<Ablage> ablage_;
};

void TestEinstellungen::init()
{
    ablage_ = std::make_unique<Ablage>();
}

void TestEinstellungen::tabelle()
{
    QCOMPARE(einstellungstabelle().size(), std::size(zeilen));
    for (size_t i = 0; i < std::size(zeilen); ++i) {
        QCOMPARE(einstellungstabelle()[i].schluessel, zeilen[i].schluessel);
        QCOMPARE(einstellungstabelle()[i].name, zeilen[i].name);
        QCOMPARE(einstellungstabelle()[i].vorgabe, zeilen[i].vorgabe);
    }
    QCOMPARE(wurzelschluessel.toString() + u'\\', wurzel);
}

void TestEinstellungen::jedeZeile_data()
{
    QTest::addColumn<int>("nummer");
    for (size_t i = 0; i < std::size(zeilen); ++i)
        QTest::addRow("%s\\%s", zeilen[i].schluessel, zeilen[i].name) << int(i);
}

void TestEinstellungen::jedeZeile()
{
    QFETCH(int, nummer);
    const Zeile &erwartet = zeilen[nummer];
    const Einstellung &zeile = einstellungstabelle()[size_t(nummer)];
    const QString anders = QString::fromLatin1(erwartet.anders), vorgabe = QString::fromLatin1(erwartet.vorgabe);
    const QString name = QString::fromLatin1(erwartet.name);

    Programm programm;
    if (!nurGeschrieben(erwartet)) {
        // A missing value gives the default, whatever stood there before. Paths keep what is known already.
        const bool pfad = vorgabe.isEmpty();
        if (!pfad)
            setzen(programm, zeile, anders);
        EinstellungenLesen(programm);
        QCOMPARE(einstellungstext(programm, zeile), vorgabe);
    }
    setzen(programm, zeile, anders);
    QVERIFY(EinstellungenSchreiben(programm));
    QCOMPARE(registry::RegWertLesen(schluessel(zeile), name), anders);
    QVERIFY(QFileInfo(ablage_->datei()).size() > 0);

    Programm wieder;
    EinstellungenLesen(wieder);
    if (!nurGeschrieben(erwartet))
        QCOMPARE(einstellungstext(wieder, zeile), anders);
    else
        QCOMPARE(einstellungstext(wieder, zeile), QString());
}

void TestEinstellungen::ersterStart()
{
    Programm programm;
    programm.ProgrammPfad = u"C:\\Flox"_s;
    EinstellungenLesen(programm);
    QCOMPARE(lesen(u"Pfade"_s, "FLOX-Verz"), u"C:\\Flox"_s);
    for (const char *name : {"Mulko-Verz", "FLOX-DEMO-Bilder-Verz", "FLOX-Editor-Verz"})
        QCOMPARE(lesen(u"Pfade"_s, name), u" "_s);
    QVERIFY(QFile::exists(ablage_->datei()));
    QVERIFY(!registry::vorhanden(wurzel + u"MDI"_s, u"Hoehe"_s));
}

void TestEinstellungen::vorrangDerSchluessel_data()
{
    QTest::addColumn<QString>("editor"); // stored in the editor's key, the design program's and the program's own
    QTest::addColumn<QString>("mulko");
    QTest::addColumn<QString>("eigen");
    QTest::addColumn<QString>("editorPfad");
    QTest::addColumn<QString>("mulkoPfad");
    QTest::newRow("none") << ""
                          << ""
                          << ""
                          << ""
                          << "";
    QTest::newRow("editor") << "E:\\a"
                            << ""
                            << ""
                            << "E:\\a\\"
                            << "E:\\a\\";
    QTest::newRow("editor with stroke") << "E:\\a\\"
                                        << ""
                                        << ""
                                        << "E:\\a\\"
                                        << "E:\\a\\";
    QTest::newRow("design program") << ""
                                    << "M:\\b"
                                    << ""
                                    << "M:\\b"
                                    << "M:\\b\\";
    QTest::newRow("design program wins") << "E:\\a"
                                         << "M:\\b"
                                         << ""
                                         << "M:\\b"
                                         << "M:\\b\\";
    QTest::newRow("own") << ""
                         << ""
                         << "O:\\c\\"
                         << "O:\\c\\"
                         << "O:\\c\\";
    QTest::newRow("own wins") << "E:\\a"
                              << "M:\\b"
                              << "O:\\c\\"
                              << "O:\\c\\"
                              << "O:\\c\\";
    QTest::newRow("own wins over editor") << "E:\\a"
                                          << ""
                                          << "O:\\c\\"
                                          << "O:\\c\\"
                                          << "O:\\c\\";
    QTest::newRow("blanks do not win") << "E:\\a"
                                       << " "
                                       << " "
                                       << "E:\\a\\"
                                       << "E:\\a\\";
    QTest::newRow("own blank") << ""
                               << "M:\\b\\"
                               << " "
                               << "M:\\b\\"
                               << "M:\\b\\";
    QTest::newRow("all blank") << " "
                               << " "
                               << " "
                               << ""
                               << "";
}

void TestEinstellungen::vorrangDerSchluessel()
{
    QFETCH(QString, editor);
    QFETCH(QString, mulko);
    QFETCH(QString, eigen);
    for (const auto &[zweig, wert] : {std::pair(editorSchluessel, editor), std::pair(mulkoSchluessel, mulko), std::pair(wurzel + u"Pfade"_s, eigen)})
        for (const QString &name : {u"FLOX-Editor-Verz"_s, u"Mulko-Verz"_s})
            if (!wert.isEmpty())
                registry::RegWertSchreiben(zweig, name, wert);
    Programm programm;
    EinstellungenLesen(programm);
    QTEST(programm.EditorPfad, "editorPfad");
    QTEST(programm.MulkoPfad, "mulkoPfad");
}

void TestEinstellungen::bilderpfad()
{
    Programm programm;
    programm.BilderPfad = u"C:\\Flox"_s;
    EinstellungenLesen(programm);
    QCOMPARE(programm.BilderPfad, u"C:\\Flox"_s);
    registry::RegWertSchreiben(wurzel + u"Pfade"_s, u"FLOX-DEMO-Bilder-Verz"_s, u"D:\\Bilder"_s);
    EinstellungenLesen(programm);
    QCOMPARE(programm.BilderPfad, u"D:\\Bilder"_s);
}

void TestEinstellungen::leerzeichenHeisstNichtGesetzt()
{
    for (const QString &text : {u""_s, u" "_s, u"\t"_s}) {
        registry::RegWertSchreiben(u"a\\b"_s, u"c"_s, text);
        QCOMPARE(registry::RegWertOderVorgabe(u"a\\b"_s, u"c"_s, u"Vorgabe"_s), u"Vorgabe"_s);
        QVERIFY(registry::vorhanden(u"a\\b"_s, u"c"_s));
    }
    registry::RegWertSchreiben(u"a\\b"_s, u"c"_s, u"  "_s);
    QCOMPARE(registry::RegWertOderVorgabe(u"a\\b"_s, u"c"_s, u"Vorgabe"_s), u"  "_s);
    QVERIFY(!registry::vorhanden(u"a\\b"_s, u"d"_s));
    QVERIFY(registry::RegWertLesen(u"a\\b"_s, u"d"_s).isNull());

    registry::RegWertSchreiben(mulkoSchluessel, u"Mulko-Verz"_s, u" "_s);
    Programm programm;
    programm.MulkoPfad = u"alt"_s;
    EinstellungenLesen(programm);
    QCOMPARE(programm.MulkoPfad, QString());
}

void TestEinstellungen::bilderForm_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("wert");
    QTest::newRow("too small") << "100" << 5000.0;
    QTest::newRow("just below") << "4999" << 5000.0;
    QTest::newRow("smallest") << "5000" << 5000.0;
    QTest::newRow("above") << "5001" << 5001.0;
    QTest::newRow("negative") << "-20000" << 5000.0;
    QTest::newRow("point") << "6000.5" << 6000.5;
    QTest::newRow("comma") << "6000,5" << 6000.5;
}

void TestEinstellungen::bilderForm()
{
    QFETCH(QString, text);
    for (const QString &name : {u"BilderFormGroesseX"_s, u"BilderFormGroesseY"_s})
        registry::RegWertSchreiben(wurzel + u"Bilder"_s, name, text);
    Programm programm;
    EinstellungenLesen(programm);
    QTEST(programm.BilderFormBreite, "wert");
    QTEST(programm.BilderFormHoehe, "wert");
}

void TestEinstellungen::hinweise_data()
{
    QTest::addColumn<QString>("eins");
    QTest::addColumn<QString>("zwei");
    QTest::addColumn<bool>("aus1");
    QTest::addColumn<bool>("aus2");
    QTest::newRow("nothing stored") << ""
                                    << "" << false << false;
    QTest::newRow("second alone does not count") << ""
                                                 << "True" << false << false;
    QTest::newRow("first is blank") << " "
                                    << "True" << false << false;
    QTest::newRow("first") << "True"
                           << "" << true << false;
    QTest::newRow("first false, second true") << "False"
                                              << "True" << false << true;
    QTest::newRow("both") << "True"
                          << "True" << true << true;
}

void TestEinstellungen::hinweise()
{
    QFETCH(QString, eins);
    QFETCH(QString, zwei);
    const QString zweig = wurzel + u"HinweisText"_s;
    if (!eins.isEmpty())
        registry::RegWertSchreiben(zweig, u"1"_s, eins);
    if (!zwei.isEmpty())
        registry::RegWertSchreiben(zweig, u"2"_s, zwei);
    Programm programm;
    programm.HinweisAus = {true, true, true};
    EinstellungenLesen(programm);
    QTEST(programm.HinweisAus[1], "aus1");
    QTEST(programm.HinweisAus[2], "aus2");
}

void TestEinstellungen::hinweiseWerdenGeschrieben()
{
    Programm programm;
    programm.HinweisAus = {false, false, true};
    QVERIFY(EinstellungenSchreiben(programm));
    QCOMPARE(lesen(u"HinweisText"_s, "1"), u"False"_s);
    QCOMPARE(lesen(u"HinweisText"_s, "2"), u"True"_s);
    QVERIFY(!registry::vorhanden(wurzel + u"HinweisText"_s, u"0"_s));
}

void TestEinstellungen::begleiterNurWennVorhanden_data()
{
    QTest::addColumn<QString>("zweig");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("unterrichtet");
    QTest::newRow("design program") << mulkoSchluessel << "Mulko-Verz" << true;
    QTest::newRow("editor") << editorSchluessel << "FLOX-Editor-Verz" << true;
    QTest::newRow("design program knows the editor only") << mulkoSchluessel << "FLOX-Editor-Verz" << false;
    QTest::newRow("editor knows the design program only") << editorSchluessel << "Mulko-Verz" << false;
}

void TestEinstellungen::begleiterNurWennVorhanden()
{
    QFETCH(QString, zweig);
    QFETCH(QString, name);
    QFETCH(bool, unterrichtet);
    Programm programm;
    programm.ProgrammPfad = u"C:\\Flox"_s;
    programm.BilderPfad = u"D:\\Bilder"_s;
    QVERIFY(EinstellungenSchreiben(programm));
    for (const QString &begleiter : {editorSchluessel, mulkoSchluessel})
        QVERIFY(!registry::vorhanden(begleiter, u"FLOX-Verz"_s));
    registry::RegWertSchreiben(zweig, name, u"X:\\"_s);
    QVERIFY(EinstellungenSchreiben(programm));
    for (const QString &begleiter : {editorSchluessel, mulkoSchluessel}) {
        const bool gemeint = unterrichtet && begleiter == zweig;
        QCOMPARE(registry::RegWertLesen(begleiter, u"FLOX-Verz"_s), gemeint ? u"C:\\Flox\\"_s : QString());
        QCOMPARE(registry::RegWertLesen(begleiter, u"FLOX-DEMO-Bilder-Verz"_s), gemeint ? u"D:\\Bilder"_s : QString());
    }
}

void TestEinstellungen::unsinn_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("ergebnis");
    const auto zeile = [](const char *name, const char *text, const char *ergebnis) {
        QTest::addRow("%s '%s'", name, text) << name << text << ergebnis;
    };
    zeile("MonatsDarstellung", "Quatsch", "1");
    zeile("MonatsDarstellung", "40000", "1");
    zeile("MonatsDarstellung", "nan", "1");
    zeile("MonatsDarstellung", "-1", "-1");
    zeile("Originalgroesse", "vielleicht", "False");
    zeile("Originalgroesse", "Wahr", "True");
    zeile("Originalgroesse", "true", "True");
    zeile("Originalgroesse", "-1", "True");
    zeile("Originalgroesse", "0", "False");
    zeile("BilderFormGroesseX", "breit", "10110");
    zeile("BilderFormGroesseX", "inf", "10110");
    zeile("BilderFormGroesseX", "1e300", "10110");
    zeile("Hoehe", "99999999999999999999", "14520");
    zeile("Hoehe", "12,", "12");
    zeile("Hoehe", "1 2", "14520");
    zeile("Status", "0x2", "2");
    zeile("Links", "--5", "0");
}

void TestEinstellungen::unsinn()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    for (const Einstellung &zeile : einstellungstabelle())
        if (name == QLatin1String(zeile.name)) {
            registry::RegWertSchreiben(schluessel(zeile), name, text);
            Programm programm;
            EinstellungenLesen(programm);
            QTEST(einstellungstext(programm, zeile), "ergebnis");
            return;
        }
    QFAIL("no such setting");
}

void TestEinstellungen::langeWerte()
{
    registry::RegWertSchreiben(wurzel + u"Pfade"_s, u"Mulko-Verz"_s, QString(300, u'x'));
    QCOMPARE(lesen(u"Pfade"_s, "Mulko-Verz"), QString(255, u'x'));
    registry::RegWertSchreiben(wurzel + u"Pfade"_s, u"Mulko-Verz"_s, u"vorn"_s + QChar::Null + u"hinten"_s);
    QCOMPARE(lesen(u"Pfade"_s, "Mulko-Verz"), u"vorn"_s);
    for (const QString &text : {u"C:\\Größe, Maß; \"Zitat\" = 5 % [x]"_s, u"a,b,c"_s, u"@Invalid()"_s, u"\\\\server\\frei"_s}) {
        registry::RegWertSchreiben(wurzel + u"Pfade"_s, u"Mulko-Verz"_s, text);
        QVERIFY(registry::sichern());
        QCOMPARE(lesen(u"Pfade"_s, "Mulko-Verz"), text);
    }
}

void TestEinstellungen::nichtSchreibbar()
{
    // A file stands where the folder of the settings should be.
    QTemporaryDir ordner;
    QFile datei(ordner.filePath(u"keinordner"_s));
    QVERIFY(datei.open(QIODevice::WriteOnly));
    datei.write("bleibt");
    datei.close();
    qputenv("XDG_CONFIG_HOME", datei.fileName().toUtf8());
    Programm programm;
    programm.MdiHoehe = 1;
    EinstellungenLesen(programm);
    QCOMPARE(programm.MdiHoehe, 14520L);
    programm.MdiHoehe = 9000;
    QVERIFY(!EinstellungenSchreiben(programm));
    QVERIFY(datei.open(QIODevice::ReadOnly));
    QCOMPARE(datei.readAll(), QByteArray("bleibt"));
}

void TestEinstellungen::vomHandGeaendert()
{
    QDir().mkpath(QFileInfo(ablage_->datei()).path());
    QFile datei(ablage_->datei());
    QVERIFY(datei.open(QIODevice::WriteOnly));
    datei.write("[Software]\nFH%20Lindenhof\\FLOX3-DEMO\\MDI\\Hoehe=9000\nFH%20Lindenhof\\FLOX3-DEMO\\Pfade\\Mulko-Verz=C:/a, b\n"
                "FH%20Lindenhof\\FLOX3-DEMO\\Optionen\\Originalgroesse=false\n");
    datei.close();
    Programm programm;
    EinstellungenLesen(programm);
    QCOMPARE(programm.MdiHoehe, 9000L);
    QCOMPARE(programm.MulkoPfad, u"C:/a, b"_s);
    QVERIFY(!programm.OriginalGroesse);
}

void TestEinstellungen::beschaedigteDatei()
{
    Programm muster;
    for (size_t i = 0; i < std::size(zeilen); ++i)
        setzen(muster, einstellungstabelle()[i], QString::fromLatin1(zeilen[i].anders));
    QVERIFY(EinstellungenSchreiben(muster));
    QFile vorlage(ablage_->datei());
    QVERIFY(vorlage.open(QIODevice::ReadOnly));
    const QByteArray heil = vorlage.readAll();
    QVERIFY(heil.size() > 200);
    QRandomGenerator zufall(20240817);
    for (int lauf = 0; lauf < 300; ++lauf) {
        QByteArray inhalt = heil;
        for (int i = zufall.bounded(1, 30); i > 0; --i)
            switch (zufall.bounded(4)) {
            case 0: inhalt[zufall.bounded(int(inhalt.size()))] = char(zufall.bounded(256)); break;
            case 1: inhalt.insert(zufall.bounded(int(inhalt.size())), QByteArray(zufall.bounded(1, 40), char(zufall.bounded(256)))); break;
            case 2: inhalt.remove(zufall.bounded(int(inhalt.size()) - 1), zufall.bounded(20)); break;
            default: inhalt.replace("=", QByteArray("=") + "@Variant(\\0\\0\\0\x1f\\x7f" + QByteArray::number(zufall.generate()) + ")"); break;
            }
        if (zufall.bounded(5) == 0)
            inhalt.truncate(zufall.bounded(int(inhalt.size())));
        ablage_ = std::make_unique<Ablage>();
        QDir().mkpath(QFileInfo(ablage_->datei()).path());
        QFile datei(ablage_->datei());
        QVERIFY(datei.open(QIODevice::WriteOnly));
        datei.write(inhalt.left(100000));
        datei.close();

        Programm programm;
        EinstellungenLesen(programm);
        QVERIFY(programm.BilderFormBreite >= 5000 && programm.BilderFormHoehe >= 5000);
        QVERIFY(programm.MulkoPfad.size() <= registry::groessterWert + 1);
        // What was read is what the next start reads again.
        QVERIFY(EinstellungenSchreiben(programm));
        Programm wieder;
        EinstellungenLesen(wieder);
        for (size_t i = 0; i < std::size(zeilen); ++i)
            if (qstrcmp(zeilen[i].schluessel, "Pfade") != 0 && !nurGeschrieben(zeilen[i]))
                QCOMPARE(einstellungstext(wieder, einstellungstabelle()[i]), einstellungstext(programm, einstellungstabelle()[i]));
    }
}

FLOX_TEST(tst_einstellungen, TestEinstellungen)
#include "tst_einstellungen.moc"
