#include "Kleinformen.h"
#include "tests/store/Datenhilfen.h"
#include "tools/Pflanzendaten.h"
#include "tools/tafeln/Form.h"
#include "tests/Testprogramm.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

/* What the fields of a plant must be to each other: what is refused, and that the shipped sources are not. */
class TestQuellregeln : public QObject
{
    Q_OBJECT

private slots:
    void init() { ordner_.emplace(); }
    void regeln_data();
    void regeln();
    void schreibung_data();
    void schreibung();
    void fremdeForm_data();
    void fremdeForm();
    void gelieferte();

private:
    static QString familien()
    {
        return u"%rec: Familien\n\nFAMILIE: 1\nFAMNAME: Malvaceae (Malvengewächse)\nGATTUNGEN: Abutilon, Hibiscus\n\nFAMILIE: 2\nFAMNAME: Rosaceae "
               "(Rosengewächse)\n\n"_s;
    }
    /// Message of the build, empty where the text is taken.
    QString bauen(const QString &text, const QString &formenordner) const
    {
        return fehlerVon([&] {
            Pflanzendaten daten(ordner_->filePath(u"neu.mdb"_s), formenordner);
            for (const RecSatz &satz : recLesen(text.toUtf8(), u"probe.rec"_s))
                daten.aufnehmen(satz);
            daten.abschliessen();
        });
    }

    std::optional<QTemporaryDir> ordner_;
};

void TestQuellregeln::regeln_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("meldung");
    // A record of one table; what is wrong is found at its fourth line or later.
    const int vorher = int(familien().count(u'\n')) + 2;
    const auto pflanze = [&](const char *fall, const char *art, const char *name, const char *felder, int zeile = 0, const QString &meldung = {}) {
        QTest::newRow(fall) << familien()
                                   + u"%rec: %1\n\nARTNR: 1\nBOT_NAME: %2\nbewertung: 5\n%3\n"_s.arg(QLatin1String(art), QString::fromUtf8(name),
                                                                                                     QString::fromUtf8(felder))
                            << (zeile ? u"probe.rec:%1: %2"_s.arg(vorher + zeile).arg(meldung) : QString());
    };

    pflanze("Synonym ist der Name", "Topfpfl", "Abutilon", "SYN_BOT: Abutilon", 4, u"SYN_BOT: \"Abutilon\" ist der eigene Name"_s);
    pflanze("Synonym ist der deutsche Name", "Stauden", "Alcea", "DTNAM: Stockrose\nSYN_DT: stockrose", 5,
            u"SYN_DT: \"stockrose\" ist der eigene Name"_s);
    pflanze("Name unter den Synonymen eines Apfels", "Apfel", "Ontario", "DTNAM: Ontarioapfel\nsynonym: Ontario Apple, Ontario", 5,
            u"synonym: \"Ontario\" ist der eigene Name"_s);
    pflanze("Name unter den Synonymen einer Birne", "Obst", "Gute Luise", "synonym: Gute Luise", 4, u"synonym: \"Gute Luise\" ist der eigene Name"_s);
    pflanze("Teil des Namens", "Apfel", "Ontario", "synonym: Ontario Apple");

    pflanze("Blüte unter dem Laub", "Topfpfl", "Primula",
            "WUCHSFORM: krautig, rosettenbildend\nMINHOEHE: 0,1\nMAXHOEHE: 0,3\nBLMINH: 0,1\nBLMAXH: 0,25", 8, u"BLMAXH liegt unter MAXHOEHE"_s);
    pflanze("kleinste Blüte unter dem Laub", "Topfpfl", "Primula", "WUCHSFORM: krautig\nMINHOEHE: 0,1\nBLMINH: 0,05", 6,
            u"BLMINH liegt unter MINHOEHE"_s);
    pflanze("Staude unter dem Laub", "Stauden", "Hosta", "pflanzart: Std\nMAXHOEHE: 0,4\nBLMAXH: 0,3", 6, u"BLMAXH liegt unter MAXHOEHE"_s);
    pflanze("Sommerblume unter dem Laub", "Stauden", "Cosmos", "pflanzart: 1\nMAXHOEHE: 1\nBLMAXH: 0,9", 6, u"BLMAXH liegt unter MAXHOEHE"_s);
    pflanze("Blüte so hoch wie das Laub", "Topfpfl", "Primula", "WUCHSFORM: krautig\nMINHOEHE: 0,1\nMAXHOEHE: 0,3\nBLMINH: 0,1\nBLMAXH: 0,3");
    pflanze("Strauch", "Topfpfl", "Nerium", "WUCHSFORM: strauchartig\nMAXHOEHE: 3\nBLMAXH: 2,5");
    pflanze("kletterndes Kraut", "Topfpfl", "Ipomoea", "WUCHSFORM: krautig, kletternd\nMAXHOEHE: 3\nBLMAXH: 2,5");
    pflanze("Zwiebel blüht ohne Laub", "Stauden", "Colchicum", "pflanzart: Z\nMAXHOEHE: 0,3\nBLMAXH: 0,2");

    pflanze("Farbe ohne Monate", "Topfpfl", "Primula", "FARBEN: gelb", 4, u"FARBEN ohne BLUEHZEIT"_s);
    pflanze("Farbe einer Staude ohne Monate", "Stauden", "Hosta", "farben: weiß\nwuchsform: horstig", 4, u"FARBEN ohne BLUEHZEIT"_s);
    pflanze("Farbe eines Strauches ohne Monate", "Gehoelze", "Rosa", "bluehfarb: weiß\nhabitus: kugelförmig", 4, u"bluehfarb ohne bluehzeit"_s);
    pflanze("Fruchtfarbe ohne Monate", "Topfpfl", "Ardisia", "FRUCHTFARB: rot", 4, u"FRUCHTFARB ohne FRUCHTZEIT"_s);
    pflanze("Farbe mit Monaten", "Topfpfl", "Primula", "FARBEN: gelb\nBLUEHZEIT: 3\nFRUCHTFARB: braun\nFRUCHTZEIT: 5");
    pflanze("Monate ohne Farbe", "Topfpfl", "Primula", "BLUEHZEIT: 3");

    const QString keinWuchs = u"blühende Pflanze, WUCHSFORM nennt keines von: baumartig strauchartig krautig"_s;
    pflanze("Blütenpflanze ohne Wuchsform", "Topfpfl", "Primula", "PFLANZTYP: Blütenpflanze", 4, u"blühende Pflanze ohne WUCHSFORM"_s);
    pflanze("Blütenpflanze ohne Klasse des Wuchses", "Topfpfl", "Primula", "PFLANZTYP: Grünpflanze, Blütenpflanze\nWUCHSFORM: horstig", 5, keinWuchs);
    pflanze("Blütenpflanze ohne Tageslänge", "Topfpfl", "Primula", "PFLANZTYP: Blütenpflanze\nWUCHSFORM: krautig", 4,
            u"blühende Pflanze ohne TAGESL"_s);
    pflanze("Blütenpflanze", "Topfpfl", "Primula", "PFLANZTYP: Blütenpflanze\nWUCHSFORM: krautig, horstig\nTAGESL: neutral");
    pflanze("Grünpflanze", "Topfpfl", "Adiantum", "PFLANZTYP: Grünpflanze");
    pflanze("Staude ohne Wuchsform", "Stauden", "Hosta", "farben: weiß\nbluehzeit: 7", 4, u"blühende Pflanze ohne wuchsform"_s);
    pflanze("Strauch ohne Habitus", "Gehoelze", "Rosa", "bluehfarb: weiß\nbluehzeit: 6", 4, u"blühende Pflanze ohne habitus"_s);

    const QString keinBunt = u"SORTEN: bunte Sorte, BLATTFARB nennt keines von: gelbgrün weißgrün"_s;
    pflanze("bunte Sorte ohne Blattfarbe", "Topfpfl", "Myrtus", "SORTEN: 'Variegata' Laub gerandet", 4, keinBunt);
    pflanze("bunte Sorte in grün", "Topfpfl", "Myrtus", "BLATTFARB: dunkelgrün, panaschiert\nSORTEN: 'Tricolor' weißbunt", 5, keinBunt);
    pflanze("bunte Sorte", "Topfpfl", "Myrtus", "BLATTFARB: dunkelgrün, weißgrün\nSORTEN: 'Variegata' Laub gerandet");
    pflanze("grüne Sorte", "Topfpfl", "Myrtus", "BLATTFARB: dunkelgrün\nSORTEN: 'Tarentina' kleinblättrig");

    pflanze("alte Schreibung", "Topfpfl", "Abutilon", "BEMERKUNG: Die Blüte muß hängen.", 4, u"BEMERKUNG: alte Schreibung \"muß\""_s);
    pflanze("alte Schreibung im Merkmal", "Topfpfl", "Abutilon", "MERKMAL: Blatt rauh", 4, u"MERKMAL: alte Schreibung \"rauh\""_s);
    pflanze("alte Schreibung in einer Textspalte", "Stauden", "Hosta", "blform: Trauben, naßkalt zurück", 4,
            u"blform: alte Schreibung \"naßkalt\""_s);
    pflanze("Wörter der Listen", "Apfel", "Boskoop", "rost: rauh\ngeschmack: nußartig\nform_l: walzenförmig/faßförmig");
    pflanze("Wörter der Listen, Gehölz", "Gehoelze", "Rosa", "genuss: eßbar");
    pflanze("Wörter der Listen, Staude", "Stauden", "Caltha", "bfeuchte: dauernaß");
    pflanze("Namen", "Apfel", "Nußapfel", "DTNAM: Rauher Nußapfel\nsynonym: Haselnußapfel\nSORTEN: 'Roter Nußapfel', 'Schloß Burg'");

    const auto gattung = [&](const char *fall, const char *zeilen, const QString &meldung = {}) {
        QTest::newRow(fall) << familien() + QString::fromUtf8(zeilen) << meldung;
    };
    const QString beginn = u"probe.rec:%1: FAMILIE: "_s;
    const auto falsch = [&](int zeile, const QString &was) { return beginn.arg(vorher + zeile) + was; };
    gattung("Gattung einer anderen Familie", "%rec: Topfpfl\n\nARTNR: 1\nBOT_NAME: Abutilon megapotamicum\nFAMILIE: Rosaceae\nbewertung: 5\n",
            falsch(3, u"Abutilon gehört zu Malvaceae, nicht zu Rosaceae"_s));
    gattung("Hybride einer anderen Familie", "%rec: Stauden\n\nARTNR: 1\nBOT_NAME: × Hibiscus-Hybriden\nFAMILIE: Rosaceae\nbewertung: 5\n",
            falsch(3, u"Hibiscus gehört zu Malvaceae, nicht zu Rosaceae"_s));
    gattung("Gattung mit zwei Familien in zwei Sammlungen",
            "%rec: Stauden\n\nARTNR: 1\nBOT_NAME: Geum rivale\nFAMILIE: Rosaceae\nbewertung: 5\n\n"
            "%rec: Gehoelze\n\nARTNR: 1\nBOT_NAME: Geum-Hybriden\nFAMILIE: Malvaceae\nbewertung: 5\n",
            falsch(10, u"Geum gehört zu Rosaceae, nicht zu Malvaceae"_s));
    gattung("Gattung mit einer Familie in zwei Sammlungen", "%rec: Stauden\n\nARTNR: 1\nBOT_NAME: Geum rivale\nFAMILIE: Rosaceae\nbewertung: 5\n\n"
                                                            "%rec: Gehoelze\n\nARTNR: 1\nBOT_NAME: Geum-Hybriden\nFAMILIE: Rosaceae\nbewertung: 5\n");
    gattung("Obstart mit zwei Familien",
            "%rec: Obst\n\nARTNR: 1\nBOT_NAME: Gute Luise\nDTNAM: Birne\nFAMILIE: Rosaceae\nbewertung: 5\n\n"
            "ARTNR: 2\nBOT_NAME: Conference\nDTNAM: Birne\nFAMILIE: Malvaceae\nbewertung: 5\n",
            falsch(10, u"Birne gehört zu Rosaceae, nicht zu Malvaceae"_s));
    gattung("Sorten, die gleich beginnen", "%rec: Obst\n\nARTNR: 1\nBOT_NAME: Rote Anna\nDTNAM: Birne\nFAMILIE: Rosaceae\nbewertung: 5\n\n"
                                           "ARTNR: 2\nBOT_NAME: Rote Berta\nDTNAM: Malve\nFAMILIE: Malvaceae\nbewertung: 5\n");
    gattung("Gattung bei zwei Familien genannt", "%rec: Familien\n\nFAMILIE: 3\nFAMNAME: Poaceae (Süßgräser)\nGATTUNGEN: Poa, Abutilon\n",
            u"probe.rec:%1: GATTUNGEN: \"Abutilon\" ist leer oder steht doppelt"_s.arg(vorher + 3));
}

void TestQuellregeln::regeln()
{
    QFETCH(QString, text);
    QTEST(bauen(text, kleinsteFormen(*ordner_)), "meldung");
}

void TestQuellregeln::schreibung_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("wort"); // empty: nothing to find
    const auto alt = [](const char *text, const char *wort) { QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(wort); };
    for (const char *wort :
         {"daß",        "sodaß",     "muß",         "mußte",     "müßte",       "genußreif", "Nuß",      "Walnüßchen", "Flußufer",      "Schluß",
          "Gußeisen",   "Schuß",     "bewußt",      "Riß",       "gewiß",       "Imbiß",     "mißlingt", "eßbar",      "Eßkastanie",    "gepreßt",
          "läßt",       "Anlaß",     "unerläßlich", "verpaßt",   "faßt",        "Fäßchen",   "häßlich",  "naß",        "Staunässe naß", "wäßrig",
          "blaßgelb",   "Elsaß",     "Schloß",      "sproßt",    "Roßkastanie", "Schößling", "rauh",     "Rauhreif",   "rauhblättrig",  "Stengel",
          "Brennessel", "Blattrieb", "plaziert",    "numeriert", "Rußland",     "wieviel",   "Kompromiß"})
        QTest::newRow(wort) << QString::fromUtf8(wort) << QString::fromUtf8(wort).section(u' ', -1);
    alt("Er ist genußreif, im Lager bis Mai.", "genußreif");
    alt("im allgemeinen gesund", "im allgemeinen");
    alt("Sorten 'Graf' und 'Moltke', rauhe Lage", "rauhe");
    for (const char *heute : {"dass sie muss",
                              "Spaß",
                              "Gefäß und Staubgefäße",
                              "genießbar",
                              "weiß, heiß, Fleiß, Geißblatt",
                              "Fuß, Beifuß, Ruß, Gruß, Strauß",
                              "groß und bloß",
                              "mäßig, regelmäßig",
                              "süßer",
                              "Maß, Maßholder, Maßliebchen",
                              "schließt, gießt, reißt",
                              "rauhaarig, grauhaarig",
                              "raue Lage",
                              "Nuss, Genuss",
                              "im Allgemeinen",
                              "im allgemeinen Handel",
                              "Blatttrieb",
                              "Brennnessel",
                              "Stängel",
                              "'Nußbaumer' trägt gut",
                              "Mußestunden",
                              "Neiße, Preußen",
                              "außen, draußen",
                              "Schoß, Stoß, Kloß",
                              "spießig, Spieß"})
        alt(heute, "");
}

void TestQuellregeln::schreibung()
{
    QFETCH(QString, text);
    QTEST(Quellregeln::alteSchreibung(text), "wort");
}

void TestQuellregeln::fremdeForm_data()
{
    QTest::addColumn<QByteArray>("feld");
    QTest::addColumn<bool>("bekannt");
    for (const char *feld : {"Blatt: gibtsnicht", "Blatt2: gibtsnicht", "Bluete: gibtsnicht", "Bluetenstand: gibtsnicht", "Frucht: gibtsnicht",
                             "Fruchtstand: gibtsnicht", "Wuchs: gibtsnicht", "Bluetenfarbe: gibtsnicht"})
        QTest::newRow(feld) << QByteArray(feld) << false;
    QTest::newRow("eine bekannte") << QByteArray("Blatt: elliptisch") << true;
}

/// A plant for whose plate a form is named that does not exist is refused with file and line.
void TestQuellregeln::fremdeForm()
{
    QFETCH(QByteArray, feld);
    QFETCH(bool, bekannt);
    const QString ordner = kleinsteFormen(*ordner_, feld),
                  meldung = bauen(familien() + u"%rec: Topfpfl\n\nARTNR: 1\nBOT_NAME: Abutilon\nbewertung: 5\n"_s, ordner);
    QCOMPARE(meldung, bekannt ? QString()
                              : u"%1/formen.rec:4: %2 kennt \"gibtsnicht\" nicht"_s.arg(ordner, QString::fromLatin1(feld.left(feld.indexOf(':')))));
}

/// No rule refuses what is shipped.
void TestQuellregeln::gelieferte()
{
    const QDir quellen(QStringLiteral(FLOX_QUELLEN));
    QStringList dateien = quellen.entryList({u"*.rec"_s}, QDir::Files, QDir::Name);
    QVERIFY(dateien.removeOne(u"familien.rec"_s));
    dateien.prepend(u"familien.rec"_s);
    int pflanzen = 0;
    const QString meldung = fehlerVon([&] {
        Pflanzendaten daten(ordner_->filePath(u"neu.mdb"_s));
        for (const QString &name : dateien) {
            QFile datei(quellen.filePath(name));
            QVERIFY(datei.open(QIODevice::ReadOnly));
            for (const RecSatz &satz : recLesen(datei.readAll(), name)) {
                daten.aufnehmen(satz);
                pflanzen += satz.typ != u"Familien";
            }
        }
        (void)Formen::laden(QStringLiteral(FLOX_FORMEN));
    });
    QCOMPARE(meldung, QString());
    QVERIFY(pflanzen > 1700);
}

FLOX_TEST(tst_quellregeln, TestQuellregeln)
#include "tst_quellregeln.moc"
