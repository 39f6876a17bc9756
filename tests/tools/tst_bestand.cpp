#include "store/Kollation.h"
#include "store/Recordset.h"
#include "store/Schema.h"
#include "store/Text.h"
#include "tests/store/Datenordner.h"
#include "tests/store/Datenhilfen.h"
#include "tests/Testprogramm.h"

#include <QRegularExpression>
#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct Bestand
{
    const char *tabelle;
    int mindestens;
    QStringList pflicht; ///< fields that every record has
};

const QList<Bestand> &bestaende()
{
    static const QList<Bestand> liste{
        {"Topfpfl", 215, {u"BOT_NAME"_s,   u"DTNAM"_s,     u"FAMILIE"_s,  u"Quelle"_s,     u"HK"_s,        u"PFLANZTYP"_s, u"GIFTIG"_s,
                          u"UNSCHEINBA"_s, u"MINHOEHE"_s,  u"MAXHOEHE"_s, u"VERWENDUNG"_s, u"SONNE"_s,     u"LICHTMIN"_s,  u"TEMPMIN"_s,
                          u"TEMPMAX"_s,    u"NACHDUENG"_s, u"KRANKH"_s,   u"BLATTFARB"_s,  u"WUCHSFORM"_s, u"bewertung"_s}},
        {"Apfel", 94, {u"BOT_NAME"_s, u"haltbark"_s, u"fruchtgr"_s, u"form_l"_s, u"bewertung"_s}},
    };
    return liste;
}

/// Genus of a name, without the hybrid sign and what follows a blank or hyphen.
QString gattung(QString name)
{
    name.remove(u'×');
    return name.trimmed().section(QRegularExpression(u"[ -]"_s), 0, 0).toLower();
}

} // namespace

/* The plants as they are shipped. */
class TestBestand : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { db_ = ordner_.db(); }

    void menge_data()
    {
        QTest::addColumn<int>("zeile");
        for (int i = 0; i < bestaende().size(); ++i)
            QTest::newRow(bestaende()[i].tabelle) << i;
    }
    void menge()
    {
        QFETCH(int, zeile);
        const QString tabelle = QString::fromLatin1(bestaende()[zeile].tabelle);
        const qint64 anzahl = zahl(*db_, u"SELECT count(*) FROM "_s + tabelle);
        QVERIFY2(anzahl >= bestaende()[zeile].mindestens, qPrintable(QString::number(anzahl)));
        QCOMPARE(werte(*db_, u"SELECT DISTINCT bewertung FROM %1 ORDER BY bewertung"_s.arg(tabelle)), u"1 2 3 4 5 6 7 8 9"_s.split(u' '));
        QVERIFY(2 * zahl(*db_, u"SELECT count(*) FROM %1 WHERE bewertung >= 5"_s.arg(tabelle)) > anzahl);
        QCOMPARE(zahl(*db_, u"SELECT count(*) FROM %1 WHERE Benu_Aenderung IS NOT 1 OR benu_bemerkung IS NOT NULL OR benu_eigen IS NOT NULL"_s.arg(
                                tabelle)),
                 0);
        QCOMPARE(zahl(*db_, u"SELECT count(*) FROM %1 WHERE ARTNR NOT BETWEEN 1 AND 32767"_s.arg(tabelle)), 0);
        for (const QString &feld : bestaende()[zeile].pflicht)
            QCOMPARE(werte(*db_, u"SELECT BOT_NAME FROM %1 WHERE %2 IS NULL"_s.arg(tabelle, feld)), QStringList());
        QVERIFY(zahl(*db_, u"SELECT count(*) FROM %1 WHERE Ausbildung IS NOT NULL"_s.arg(tabelle)) > anzahl / 4);
    }

    void inhalt_data() { menge_data(); }
    /// Each field holds what its kind promises.
    void inhalt()
    {
        QFETCH(int, zeile);
        const Tabelle &tabelle = *schema::haupttabelle(QString::fromLatin1(bestaende()[zeile].tabelle));
        for (Recordset satz(db_, QString::fromLatin1(tabelle.name)); !satz.Eof(); satz.MoveNext()) {
            const QString pflanze = satz.Fields(u"BOT_NAME").Text();
            for (int i = 0; i < satz.FieldCount(); ++i) {
                if (satz.Fields(i).IsNull())
                    continue;
                const Spalte &spalte = tabelle.spalten[size_t(i)];
                const QString text = satz.Fields(i).Text(), ort = u"%1, %2: \"%3\""_s.arg(pflanze, satz.Fields(i).Name(), text);
                const auto flags = [&](qsizetype laenge) {
                    return text.size() == laenge && text.contains(u'1') && std::ranges::all_of(text, [](QChar z) { return z == u'0' || z == u'1'; });
                };
                switch (spalte.art) {
                case Art::Flags: QVERIFY2(flags(spalte.liste->anzahl()), qPrintable(ort)); break;
                case Art::Nummer: QVERIFY2(!spalte.liste->wort(text.toInt()).isEmpty(), qPrintable(ort)); break;
                case Art::Monate: QVERIFY2(flags(12), qPrintable(ort)); break;
                case Art::Literatur: QVERIFY2(flags(schema::anzahlWerke), qPrintable(ort)); break;
                case Art::Wahrheit: QVERIFY2(text == u"True" || text == u"False", qPrintable(ort)); break;
                case Art::Zahl: QVERIFY2(zahlLesen(text), qPrintable(ort)); break;
                case Art::Quelle: QVERIFY2(!nomenklatur(text, u"zsncg").isEmpty(), qPrintable(ort)); break;
                case Art::Familie:
                    QVERIFY2(zahl(*db_, u"SELECT count(*) FROM Familien WHERE FAMILIE = ? AND FAMNAME <> ''"_s, {satz.Fields(i).Ganzzahl()}) == 1,
                             qPrintable(ort));
                    break;
                case Art::Name:
                case Art::Text:
                case Art::Memo:
                    QVERIFY2(!text.isEmpty() && text == text.trimmed() && !text.contains(QChar::ReplacementCharacter), qPrintable(ort));
                    break;
                case Art::Schluessel:
                case Art::Bewertung:
                case Art::Ganzzahl:
                case Art::Code:
                case Art::Eigen: break;
                }
            }
            for (const auto &[min, max] : {std::pair("BLMINH", "BLMAXH"), std::pair("MINHOEHE", "MAXHOEHE"), std::pair("LICHTMIN", "LICHTMAX"),
                                           std::pair("TEMPMIN", "TEMPMAX")}) {
                const QString unten = QString::fromLatin1(min), oben = QString::fromLatin1(max);
                if (satz.hatFeld(unten) && !satz.Fields(unten).IsNull() && !satz.Fields(oben).IsNull())
                    QVERIFY2(*zahlLesen(satz.Fields(unten).Text()) <= *zahlLesen(satz.Fields(oben).Text()),
                             qPrintable(u"%1, %2"_s.arg(pflanze, unten)));
            }
        }
    }

    void ordnung_data() { menge_data(); }
    /// In the order of names no genus is torn apart, and each name stands once.
    void ordnung()
    {
        QFETCH(int, zeile);
        Recordset satz(db_, u"SELECT * From %1 WHERE ARTNR LIKE '*' ORDER BY Bot_Name"_s.arg(QLatin1String(bestaende()[zeile].tabelle)));
        QString vorher;
        QSet<QString> gattungen, namen;
        for (; !satz.Eof(); satz.MoveNext()) {
            const QString name = satz.Fields(u"BOT_NAME").Text();
            QVERIFY2(vorher.isEmpty() || sortierschluessel(vorher) <= sortierschluessel(name), qPrintable(name));
            if (gattung(name) != gattung(vorher))
                QVERIFY2(!gattungen.contains(gattung(name)), qPrintable(name));
            gattungen += gattung(name);
            QVERIFY2(!namen.contains(name.toLower()), qPrintable(name));
            namen += name.toLower();
            vorher = name;
        }
        QVERIFY(gattungen.size() > 40);
    }

    /// The window of the apples shows no remark of the maker.
    void aepfelOhneBemerkung() { QCOMPARE(werte(*db_, u"SELECT BOT_NAME FROM Apfel WHERE BEMERKUNG IS NOT NULL"_s), QStringList()); }

    /// No trade's preset shows nearly all potted plants or next to none.
    void ausbildung()
    {
        const qint64 alle = zahl(*db_, u"SELECT count(*) FROM Topfpfl"_s);
        for (int p = 1; p <= WL_Ausbildung.anzahl(); ++p) {
            const qint64 eine = zahl(*db_, u"SELECT count(*) FROM Topfpfl WHERE substr(Ausbildung, %1, 1) = '1'"_s.arg(p));
            QVERIFY2(4 * eine >= alle && 10 * eine <= 7 * alle, qPrintable(u"%1: %2"_s.arg(WL_Ausbildung.wort(p)).arg(eine)));
        }
    }

    void synonyme()
    {
        for (const char *art : {"Botanisch", "Deutsch"}) {
            const QString tabelle = u"Topfpfl_Synonyme_"_s + QLatin1String(art);
            QVERIFY(zahl(*db_, u"SELECT count(*) FROM "_s + tabelle) > 100);
            QCOMPARE(
                zahl(*db_, u"SELECT count(*) FROM %1 WHERE ARTNR NOT IN (SELECT ARTNR FROM Topfpfl) OR trim(SYN) = '' OR SYN IS NULL"_s.arg(tabelle)),
                0);
            QCOMPARE(werte(*db_, u"SELECT SYN FROM %1 GROUP BY ARTNR, lower(SYN) HAVING count(*) > 1"_s.arg(tabelle)), QStringList());
            // No plant is its own synonym.
            QCOMPARE(
                werte(*db_,
                      u"SELECT SYN FROM %1 s JOIN Topfpfl t ON t.ARTNR = s.ARTNR WHERE lower(SYN) IN (lower(BOT_NAME), lower(DTNAM))"_s.arg(tabelle)),
                QStringList());
        }
    }

    void gaengigePflanzen_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name : {"Abutilon", "Begonia", "Bougainvillea", "Cyclamen", "Euphorbia pulcherrima", "Ficus", "Hydrangea", "Kalanchoe",
                                 "Phalaenopsis", "Pelargonium", "Saintpaulia", "Schlumbergera", "Spathiphyllum"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }
    /// Plants that a trainee meets are there, under their name or an older one.
    void gaengigePflanzen()
    {
        QFETCH(QString, name);
        const QString anfang = u"SELECT count(*) FROM %1 WHERE substr(%2, 1, ?2) = ?1"_s;
        QVERIFY(zahl(*db_, anfang.arg(u"Topfpfl"_s, u"BOT_NAME"_s), {name, int(name.size())})
                    + zahl(*db_, anfang.arg(u"Topfpfl_Synonyme_Botanisch"_s, u"SYN"_s), {name, int(name.size())})
                > 0);
    }

    void familien_data()
    {
        QTest::addColumn<QString>("name");
        // Of all six collections.
        for (const char *name : {"Araceae", "Cactaceae", "Orchidaceae", "Asteraceae", "Poaceae", "Iridaceae", "Pinaceae", "Cupressaceae",
                                 "Betulaceae", "Rosaceae", "Grossulariaceae", "Ericaceae", "Buxaceae", "Taxaceae"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }
    void familien()
    {
        QFETCH(QString, name);
        QCOMPARE(zahl(*db_, u"SELECT count(*) FROM Familien WHERE FAMNAME LIKE ?"_s, {u"%1 (*)"_s.arg(name)}), 1);
    }
    void familiennamen()
    {
        const QRegularExpression form(u"^\\p{Lu}\\p{Ll}+ \\(\\p{Lu}[^()]+\\)$"_s, QRegularExpression::UseUnicodePropertiesOption);
        for (const QString &name : werte(*db_, u"SELECT FAMNAME FROM Familien"_s))
            QVERIFY2(form.match(name).hasMatch(), qPrintable(name));
    }

private:
    Datenordner ordner_;
    std::shared_ptr<Datenbank> db_;
};

FLOX_TEST(tst_bestand, TestBestand)
#include "tst_bestand.moc"
