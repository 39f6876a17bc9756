#include "Datenhilfen.h"

#include "store/DatenControl.h"
#include "store/Fehler.h"
#include "tests/Testprogramm.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#ifdef FLOX_SANITIZED
extern "C" size_t __sanitizer_get_current_allocated_bytes();
#else
#include <malloc.h>
#endif

using namespace Qt::StringLiterals;

namespace {

/// Bytes of the heap in use.
size_t belegt()
{
#ifdef FLOX_SANITIZED
    return __sanitizer_get_current_allocated_bytes();
#else
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
#endif
}

const QString sortiert = u"SELECT * FROM Topfpfl WHERE ARTNR LIKE '*' ORDER BY BOT_NAME"_s;

} // namespace

/* The cursor over records and the control around it. */
class TestRecordset : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        ordner_.emplace();
        db_ = leereDatenbank(pfad());
    }
    void cleanup() { db_.reset(); }

    void bewegen_data()
    {
        QTest::addColumn<int>("anzahl");
        QTest::addColumn<QString>("schritte");
        QTest::addColumn<int>("stelle");
        QTest::addColumn<bool>("bof");
        QTest::addColumn<bool>("eof");
        const auto zeile = [](int anzahl, const char *schritte, int stelle, bool bof, bool eof) {
            QTest::addRow("%d Sätze, %s", anzahl, *schritte ? schritte : "frisch geöffnet")
                << anzahl << QString::fromLatin1(schritte) << stelle << bof << eof;
        };
        for (const char *schritte : {"", "F", "L", "N", "P", "NN", "PP", "PN", "NP", "LP", "LN"})
            zeile(0, schritte, -1, true, true);
        zeile(1, "", 0, false, false);
        zeile(1, "N", -1, false, true);
        zeile(1, "NN", -1, false, true);
        zeile(1, "NP", 0, false, false);
        zeile(1, "NNP", 0, false, false);
        zeile(1, "P", -1, true, false);
        zeile(1, "PP", -1, true, false);
        zeile(1, "PPN", 0, false, false);
        zeile(1, "L", 0, false, false);
        zeile(1, "NPPN", 0, false, false);
        zeile(3, "", 0, false, false);
        zeile(3, "N", 1, false, false);
        zeile(3, "NN", 2, false, false);
        zeile(3, "NNN", -1, false, true);
        zeile(3, "L", 2, false, false);
        zeile(3, "LN", -1, false, true);
        zeile(3, "LP", 1, false, false);
        zeile(3, "LPPP", -1, true, false);
        zeile(3, "LF", 0, false, false);
        zeile(3, "FP", -1, true, false);
        zeile(3, "PF", 0, false, false);
        zeile(3, "NNNL", 2, false, false);
        // X deletes
        zeile(3, "NX", 1, false, false);
        zeile(3, "NXN", 2, false, false);
        zeile(3, "NXP", 0, false, false);
        zeile(3, "XF", 1, false, false);
        zeile(3, "LXL", 1, false, false);
        zeile(3, "NXFN", 2, false, false);
        zeile(3, "NXLP", 0, false, false);
        zeile(3, "LXN", -1, false, true);
        zeile(3, "XP", -1, true, false);
        zeile(1, "XN", -1, true, true);
        zeile(1, "XF", -1, true, true);
        zeile(1, "XL", -1, true, true);
        zeile(3, "XNXNXP", -1, true, true);
    }
    void bewegen()
    {
        QFETCH(int, anzahl);
        QFETCH(QString, schritte);
        fuellen(anzahl);
        Recordset satz(db_, sortiert);
        for (const QChar schritt : schritte) {
            switch (schritt.unicode()) {
            case u'F': satz.MoveFirst(); break;
            case u'L': satz.MoveLast(); break;
            case u'N': satz.MoveNext(); break;
            case u'P': satz.MovePrevious(); break;
            case u'X': satz.Delete(); break;
            }
        }
        QTEST(int(satz.AbsolutePosition()), "stelle");
        QTEST(satz.Bof(), "bof");
        QTEST(satz.Eof(), "eof");
        QCOMPARE(satz.RecordCount(), anzahl - schritte.count(u'X'));
        // A field can be read exactly where there is a record.
        QFETCH(int, stelle);
        const bool geloescht = schritte.endsWith(u'X');
        const QString meldung = fehlerVon([&] { QCOMPARE(satz.Fields(u"BOT_NAME").Text(), name(stelle)); });
        QCOMPARE(meldung, stelle < 0 || geloescht ? u"Es gibt keinen aktuellen Datensatz in der Tabelle 'Topfpfl'."_s : QString());
    }

    void stelleSetzen()
    {
        fuellen(5);
        Recordset satz(db_, sortiert);
        for (const int stelle : {4, 0, 2, 2, 1, 3}) {
            satz.setAbsolutePosition(stelle);
            QCOMPARE(satz.AbsolutePosition(), stelle);
            QCOMPARE(satz.Fields(u"BOT_NAME").Text(), name(stelle));
            QCOMPARE(satz.Schluessel(), nummer(stelle));
            QCOMPARE(satz.Schluessel(stelle), nummer(stelle));
        }
        for (const qsizetype stelle : {qsizetype(-1), qsizetype(5), qsizetype(1000000)}) {
            QVERIFY(fehlerVon([&] { satz.setAbsolutePosition(stelle); }).startsWith(u"Die Tabelle 'Topfpfl' hat keinen Datensatz an Stelle"_s));
            QCOMPARE(satz.AbsolutePosition(), 3);
        }
        satz.MoveLast();
        satz.MoveNext();
        satz.setAbsolutePosition(0);
        QCOMPARE(satz.Fields(u"BOT_NAME").Text(), name(0));

        db_->Execute(u"DELETE FROM Topfpfl"_s);
        Recordset leer(db_, sortiert);
        QVERIFY(!fehlerVon([&] { leer.setAbsolutePosition(0); }).isEmpty());
    }

    void suchen()
    {
        fuellen(5);
        Recordset satz(db_, sortiert);
        QVERIFY(satz.Finden(nummer(3)));
        QCOMPARE(satz.AbsolutePosition(), 3);
        QVERIFY(!satz.Finden(12345));
        QVERIFY(satz.Eof());
        QVERIFY(satz.FindFirst(u"bot_name"_s, name(1)));
        QCOMPARE(satz.AbsolutePosition(), 1);
        QVERIFY(satz.FindFirst(u"ARTNR"_s, QString::number(nummer(4))));
        QCOMPARE(satz.AbsolutePosition(), 4);
        QVERIFY(!satz.FindFirst(u"BOT_NAME"_s, name(1).toLower())); // exactly this text
        QVERIFY(satz.Eof());
        QVERIFY(!satz.FindFirst(u"BOT_NAME"_s, QString()));
        QVERIFY(!fehlerVon([&] { satz.FindFirst(u"Stacheln"_s, u"x"_s); }).isEmpty());
        // The first in the set's order, though its number is the highest.
        db_->Execute(u"UPDATE Topfpfl SET DTNAM = 'Gleich'"_s);
        QVERIFY(satz.FindFirst(u"DTNAM"_s, u"Gleich"_s));
        QCOMPARE(satz.AbsolutePosition(), 0);
        QVERIFY(nummer(0) > nummer(4));
        // A deleted record is found by nothing, not even by what its place holds now.
        satz.Delete();
        const qint64 marke = satz.Schluessel();
        QVERIFY(!satz.Finden(nummer(0)));
        QVERIFY(!satz.Finden(marke));
        QVERIFY(!satz.FindFirst(u"BOT_NAME"_s, name(0)));
        QVERIFY(satz.FindFirst(u"DTNAM"_s, u"Gleich"_s));
        QCOMPARE(satz.AbsolutePosition(), 1);
    }

    void felder()
    {
        fuellen(1);
        db_->Execute(u"UPDATE Topfpfl SET MINHOEHE = 0.35, MAXHOEHE = 2, FARBEN = '0010000000000', HK = '', bewertung = 7, SORTEN = 'keine Zahl'"_s);
        Recordset satz(db_, u"Topfpfl"_s);
        QCOMPARE(satz.FieldCount(), 44);
        QCOMPARE(satz.Fields(0).Name(), u"ARTNR"_s);
        QCOMPARE(satz.Fields(1).Name(), u"BOT_NAME"_s);
        QCOMPARE(satz.Fields(43).Name(), u"Benu_Aenderung"_s);
        for (int i = 0; i < satz.FieldCount(); ++i)
            QCOMPARE(satz.ordinal(satz.Fields(i).Name()), i);
        QCOMPARE(satz.Fields(u"minhoehe").Text(), u"0.35"_s);
        QCOMPARE(satz.Fields(u"MAXHOEHE").Text(), u"2"_s);
        QCOMPARE(satz.Fields(u"MAXHOEHE").Ganzzahl(), 2);
        QCOMPARE(satz.Fields(u"Farben").Text(), u"0010000000000"_s);
        QCOMPARE(satz.Fields(u"bewertung").Ganzzahl(), 7);
        QCOMPARE(satz.Fields(u"Topfpfl.bewertung").Ganzzahl(), 7);
        QCOMPARE(satz.Fields(u"SORTEN").Ganzzahl(), 0);
        QVERIFY(!satz.Fields(u"HK").IsNull());
        QCOMPARE(satz.Fields(u"HK").Text(), u""_s);
        QVERIFY(satz.Fields(u"SCHADEN").IsNull());
        QCOMPARE(satz.Fields(u"SCHADEN").Text(), u""_s);
        QCOMPARE(satz.Fields(u"SCHADEN").Ganzzahl(), 0);
        QVERIFY(satz.hatFeld(u"schaden"));
        QVERIFY(!satz.hatFeld(u"Stacheln"));
        QCOMPARE(fehlerVon([&] { satz.Fields(u"Stacheln"); }), u"In der Tabelle 'Topfpfl' fehlt das Feld 'Stacheln'."_s);
        QVERIFY(!fehlerVon([&] { satz.Fields(u""); }).isEmpty());
        for (const int falsch : {-1, 44})
            QCOMPARE(fehlerVon([&] { satz.Fields(falsch); }), u"Die Tabelle 'Topfpfl' hat kein Feld Nummer %1."_s.arg(falsch));
    }

    void textBei()
    {
        fuellen(3);
        Recordset satz(db_, sortiert);
        satz.MoveNext();
        for (int i = 0; i < 3; ++i)
            QCOMPARE(satz.textBei(i, u"BOT_NAME"), name(i));
        QVERIFY(satz.textBei(0, u"SCHADEN").isNull());
        QVERIFY(satz.textBei(-1, u"BOT_NAME").isNull());
        QVERIFY(satz.textBei(3, u"BOT_NAME").isNull());
        QCOMPARE(satz.AbsolutePosition(), 1);
    }

    void bearbeiten()
    {
        fuellen(3);
        Recordset satz(db_, sortiert);
        satz.MoveNext();
        const QString notiz = u"Zeile 1\nO'Neill × \"ä\" ; DROP TABLE Topfpfl"_s;
        satz.Edit();
        satz.Fields(u"Benu_Bemerkung").setValue(notiz);
        satz.Fields(satz.ordinal(u"benu_eigen")).setValue(u"1 1  "_s);
        satz.Fields(u"bewertung").setValue(9);
        QVERIFY(satz.Fields(u"benu_bemerkung").IsNull()); // until Update
        satz.Update();
        QCOMPARE(satz.AbsolutePosition(), 1);
        QCOMPARE(satz.Fields(u"benu_bemerkung").Text(), notiz);
        QCOMPARE(satz.Fields(u"benu_eigen").Text(), u"1 1  "_s);
        QCOMPARE(satz.Fields(u"bewertung").Ganzzahl(), 9);
        // It is there for others, and only there.
        Recordset anderer(db_, sortiert);
        QVERIFY(anderer.Fields(u"benu_bemerkung").IsNull());
        anderer.MoveNext();
        QCOMPARE(anderer.Fields(u"benu_bemerkung").Text(), notiz);
        QCOMPARE(zahl(*db_, u"SELECT count(*) FROM Topfpfl WHERE benu_eigen IS NOT NULL"_s), 1);

        satz.Edit();
        satz.Fields(u"benu_bemerkung").setValue(QVariant());
        satz.Fields(u"benu_eigen").setValue(u""_s);
        satz.Update();
        QVERIFY(satz.Fields(u"benu_bemerkung").IsNull());
        QVERIFY(!satz.Fields(u"benu_eigen").IsNull());

        satz.Edit(); // the last value of a field holds
        satz.Fields(u"benu_bemerkung").setValue(u"erst"_s);
        satz.Fields(u"benu_bemerkung").setValue(u"dann"_s);
        satz.Update();
        QCOMPARE(satz.Fields(u"benu_bemerkung").Text(), u"dann"_s);
        satz.Edit();
        satz.Update(); // nothing set: nothing happens
        QCOMPARE(satz.Fields(u"benu_bemerkung").Text(), u"dann"_s);
    }

    void bearbeitenOhneEdit()
    {
        fuellen(2);
        Recordset satz(db_, sortiert);
        QCOMPARE(fehlerVon([&] { satz.Update(); }), u"Update ohne Edit in der Tabelle 'Topfpfl'."_s);
        QCOMPARE(fehlerVon([&] { satz.Fields(u"HK").setValue(u"x"_s); }), u"Das Feld 'HK' kann nur nach Edit geändert werden."_s);
        satz.Edit();
        satz.Fields(u"HK").setValue(u"verworfen"_s);
        satz.MoveNext(); // a move ends the edit
        QVERIFY(!fehlerVon([&] { satz.Update(); }).isEmpty());
        satz.Edit();
        satz.Update();
        QVERIFY(!fehlerVon([&] { satz.Update(); }).isEmpty());
        QCOMPARE(zahl(*db_, u"SELECT count(*) FROM Topfpfl WHERE HK IS NOT NULL"_s), 0);
        satz.MoveNext();
        QVERIFY(satz.Eof());
        QVERIFY(!fehlerVon([&] { satz.Edit(); }).isEmpty());
        QVERIFY(!fehlerVon([&] { satz.Delete(); }).isEmpty());
        QCOMPARE(satz.RecordCount(), 2);
    }

    void verschwundenerSatz()
    {
        fuellen(2);
        Recordset satz(db_, sortiert);
        db_->Execute(u"DELETE FROM Topfpfl"_s);
        const QString meldung = u"Der Datensatz %1 der Tabelle 'Topfpfl' ist nicht mehr vorhanden."_s.arg(nummer(0));
        QCOMPARE(fehlerVon([&] { satz.Fields(u"HK").Text(); }), meldung);
        satz.Edit();
        satz.Fields(u"HK").setValue(u"x"_s);
        QCOMPARE(fehlerVon([&] { satz.Update(); }), meldung);
    }

    void loeschenBeimGehen()
    {
        fuellen(10);
        Recordset satz(db_, sortiert);
        QStringList geblieben;
        for (int i = 0, rest = 10; !satz.Eof(); ++i, satz.MoveNext()) {
            QCOMPARE(satz.Fields(u"BOT_NAME").Text(), name(i));
            if (i % 3 != 1) {
                satz.Delete();
                QCOMPARE(satz.RecordCount(), --rest);
                QVERIFY(!fehlerVon([&] { satz.Delete(); }).isEmpty());
                QVERIFY(!fehlerVon([&] { satz.Edit(); }).isEmpty());
                QCOMPARE(satz.RecordCount(), rest);
            } else {
                geblieben += name(i);
            }
        }
        QCOMPARE(geblieben.size(), 3);
        const auto gang = [](Recordset &s) {
            QStringList namen;
            for (s.MoveFirst(); !s.Eof(); s.MoveNext())
                namen += s.Fields(u"BOT_NAME").Text();
            return namen;
        };
        QCOMPARE(gang(satz), geblieben);
        QCOMPARE(satz.RecordCount(), 3);
        Recordset neu(db_, sortiert);
        QCOMPARE(gang(neu), geblieben);
        QCOMPARE(neu.RecordCount(), 3);
    }

    /// One walk of the engine itself, as filters do it.
    void loescheAusser()
    {
        fuellen(10);
        db_->Execute(u"UPDATE Topfpfl SET HK = NULL WHERE ARTNR = ?"_s, {nummer(4)});
        db_->Execute(u"UPDATE Topfpfl SET HK = '' WHERE ARTNR = ?"_s, {nummer(5)});
        QVERIFY(
            fehlerVon([&] { db_->loescheAusser(u"Topfpfl"_s, {}, [](qint64, auto) { return false; }); }).contains(u"darf nicht ausgedünnt werden"_s));
        alsPrivat(db_);
        int gesehen = 0, nullen = 0, leere = 0;
        db_->loescheAusser(u"Topfpfl"_s, {u"BOT_NAME"_s, u"HK"_s}, [&](qint64 artnr, std::span<const std::string_view> werte) {
            ++gesehen;
            nullen += !werte[1].data() && artnr == nummer(4);
            leere += werte[1].data() && werte[1].empty() && artnr == nummer(5);
            return QString::fromUtf8(werte[0]) >= name(8);
        });
        QCOMPARE(gesehen, 10);
        QCOMPARE(nullen, 1);
        QCOMPARE(leere, 1);
        QCOMPARE(werte(*db_, u"SELECT BOT_NAME FROM Topfpfl ORDER BY BOT_NAME"_s), (QStringList{name(8), name(9)}));
        QCOMPARE(fehlerVon([&] { db_->loescheAusser(u"Topfpfl"_s, {u"HK"_s}, [&](qint64, auto) -> bool { throw Fehler(u"von innen"_s); }); }),
                 u"von innen"_s);
        QVERIFY(fehlerVon([&] { db_->loescheAusser(u"Palmen"_s, {}, [](qint64, auto) { return true; }); }).contains(u"fehlt die Tabelle 'Palmen'"_s));
        QVERIFY(fehlerVon([&] {
                    db_->loescheAusser(u"Topfpfl"_s, {u"Stacheln"_s}, [](qint64, auto) { return true; });
                }).contains(u"fehlt das Feld 'Stacheln'"_s));
        QCOMPARE(zahl(*db_, u"SELECT count(*) FROM Topfpfl"_s), 2);
    }

    /// A statement that is half done keeps the last walk's function alive: the next walk fails and does not call it.
    void halbeAnweisung()
    {
        fuellen(3);
        const auto alle = [this] {
            int gesehen = 0;
            db_->durchlaufen(u"Topfpfl"_s, {u"BOT_NAME"_s}, [&](qint64, auto) { ++gesehen; });
            return gesehen;
        };
        Anweisung &halb = db_->vorbereitet(u"SELECT ARTNR FROM Topfpfl"_s);
        QVERIFY(halb.schritt());
        QCOMPARE(alle(), 3);
        QVERIFY(!fehlerVon([&] { alle(); }).isEmpty());
        halb.zuruecksetzen();
        QCOMPARE(alle(), 3);
    }

    void bekannteSchluessel()
    {
        fuellen(4);
        const Recordset ganz(db_, sortiert);
        QCOMPARE(ganz.Schluesselfolge(), (std::vector<qint64>{nummer(0), nummer(1), nummer(2), nummer(3)}));
        Recordset satz(db_, sortiert, std::vector<qint64>{nummer(3), nummer(1)});
        QCOMPARE(satz.RecordCount(), 2);
        QCOMPARE(satz.Fields(u"BOT_NAME").Text(), name(3));
        satz.MoveNext();
        QCOMPARE(satz.Fields(u"BOT_NAME").Text(), name(1));
        satz.MoveNext();
        QVERIFY(satz.Eof());
        QVERIFY(Recordset(db_, sortiert, std::vector<qint64>{}).Eof());
    }

    /// The file is marked as written by a later engine: it can be read, not changed.
    void schreibgeschuetzt()
    {
        fuellen(2);
        db_.reset();
        QByteArray bytes = inhalt(pfad());
        QCOMPARE(int(bytes[18]), 1);
        bytes[18] = 3;
        schreiben(pfad(), bytes);

        db_ = Datenbank::OpenDatabase(pfad());
        QVERIFY(db_->schreibgeschuetzt());
        Recordset satz(db_, sortiert);
        satz.Edit();
        satz.Fields(u"benu_bemerkung").setValue(u"Notiz"_s);
        const QString meldung = u"Die Datenbank 'test.mdb' ist schreibgeschützt."_s;
        QCOMPARE(fehlerVon([&] { satz.Update(); }), meldung);
        QVERIFY(satz.Fields(u"benu_bemerkung").IsNull());
        QCOMPARE(fehlerVon([&] { satz.Delete(); }), meldung);
        QCOMPARE(satz.RecordCount(), 2);
        QCOMPARE(satz.Fields(u"BOT_NAME").Text(), name(0));
        satz.MoveNext();
        QCOMPARE(satz.Fields(u"BOT_NAME").Text(), name(1));
        QCOMPARE(fehlerVon([&] { db_->Execute(u"DELETE FROM Topfpfl"_s); }), meldung);
        QVERIFY(inhalt(pfad()) == bytes);
    }

    /// A full disk: the note is refused, the old one stays, the set goes on.
    void vollerDatentraeger()
    {
        fuellen(2);
        Recordset satz(db_, sortiert);
        satz.Edit();
        satz.Fields(u"benu_bemerkung").setValue(u"alt"_s);
        satz.Update();
        satz.Edit();
        satz.Fields(u"benu_bemerkung").setValue(QString(300000, u'x'));
        QString meldung;
        {
            const Dateigrenze grenze(rlim_t(QFile(pfad()).size()));
            meldung = fehlerVon([&] { satz.Update(); });
        }
        QVERIFY2(meldung.contains(u"'test.mdb'"_s), qPrintable(meldung));
        QCOMPARE(satz.Fields(u"benu_bemerkung").Text(), u"alt"_s);
        QCOMPARE(werte(*db_, u"PRAGMA integrity_check"_s), QStringList{u"ok"_s});
        satz.Edit();
        satz.Fields(u"benu_bemerkung").setValue(u"neu"_s);
        satz.Update();
        QCOMPARE(satz.Fields(u"benu_bemerkung").Text(), u"neu"_s);
    }

    /// 100,000 plants: keys are held, texts are not.
    void grosserSatzHaeltKeinenText()
    {
        constexpr int anzahl = 100000;
        {
            Transaktion transaktion(*db_);
            db_->Execute(u"WITH RECURSIVE n(i) AS (VALUES (1) UNION ALL SELECT i + 1 FROM n WHERE i < ?1) "
                         "INSERT INTO Topfpfl (ARTNR, BOT_NAME, BEMERKUNG) "
                         "SELECT i, printf('Pflanze %06d', (i * 7919) % ?1), printf('%.200c', 'x') FROM n"_s,
                         {anzahl});
            transaktion.festschreiben();
        }
        db_.reset();
        db_ = Datenbank::OpenDatabase(pfad());
        for (const QString &quelle : {u"Topfpfl"_s, sortiert}) {
            const size_t vorher = belegt();
            Recordset satz(db_, quelle);
            QCOMPARE(satz.RecordCount(), anzahl);
            int falsch = 0;
            for (int i = 0; i < anzahl; i += 997) {
                satz.setAbsolutePosition(i);
                if (quelle != u"Topfpfl"_s)
                    falsch += satz.Fields(u"BOT_NAME").Text() != u"Pflanze %1"_s.arg(i, 6, 10, QChar(u'0'));
                else
                    falsch += satz.Fields(u"ARTNR").Ganzzahl() != i + 1;
            }
            QCOMPARE(falsch, 0);
            const size_t dazu = belegt() - vorher;
            // 8 bytes a key, twice that while a vector grows, and the engine's page cache of 2 MB.
            QVERIFY2(dazu < 2 * 8 * anzahl + 3000000, qPrintable(QString::number(dazu)));
        }
    }

    void datenControl()
    {
        fuellen(3);
        db_.reset();
        DatenControl dat;
        dat.setDatabaseName(pfad());
        dat.setRecordSource(sortiert);
        QVERIFY(!dat.offen());
        QCOMPARE(dat.DatabaseName(), pfad());
        QCOMPARE(dat.RecordSource(), sortiert);
        dat.Refresh();
        QVERIFY(dat.offen());
        QCOMPARE(dat.recordset().RecordCount(), 3);
        dat.recordset().MoveLast();
        dat.recordset().Delete();
        dat.Refresh(); // on the first record again
        QCOMPARE(dat.recordset().RecordCount(), 2);
        QCOMPARE(dat.recordset().AbsolutePosition(), 0);

        dat.setRecordSource(u"SELECT * FROM Topfpfl WHERE ARTNR LIKE ?"_s, {nummer(1)});
        QCOMPARE(dat.recordset().RecordCount(), 2); // takes hold at the next Refresh
        dat.Refresh();
        QCOMPARE(dat.recordset().Fields(u"BOT_NAME").Text(), name(1));
        dat.Refresh(std::vector<qint64>{nummer(0), nummer(1)});
        QCOMPARE(dat.recordset().RecordCount(), 2);

        dat.setRecordSource(u"Palmen"_s);
        QVERIFY(!fehlerVon([&] { dat.Refresh(); }).isEmpty());
        QVERIFY(!dat.offen());
        dat.setRecordSource(u"Topfpfl"_s);
        dat.setDatabaseName(ordner_->filePath(u"fehlt.mdb"_s));
        QVERIFY(!fehlerVon([&] { dat.Refresh(); }).isEmpty());
        QVERIFY(!dat.offen());
        dat.setDatabaseName(pfad());
        dat.Refresh();
        QVERIFY(dat.offen());

        // Another file under the same name is read after closing.
        dat.schliessen();
        QVERIFY(!dat.offen());
        leereDatenbank(ordner_->filePath(u"leer.mdb"_s)).reset();
        QVERIFY(QFile::remove(pfad()) && QFile::rename(ordner_->filePath(u"leer.mdb"_s), pfad()));
        dat.Refresh();
        QCOMPARE(dat.recordset().RecordCount(), 0);
    }

private:
    QString pfad() const { return ordner_->filePath(u"test.mdb"_s); }
    static QString name(int stelle) { return u"Pflanze %1"_s.arg(stelle, 2, 10, QChar(u'0')); }
    /// Numbers run against the order of the names.
    static qint64 nummer(int stelle) { return 1000 - stelle; }
    void fuellen(int anzahl)
    {
        Transaktion transaktion(*db_);
        for (int i = 0; i < anzahl; ++i)
            db_->Execute(u"INSERT INTO Topfpfl (ARTNR, BOT_NAME) VALUES (?, ?)"_s, {nummer(i), name(i)});
        transaktion.festschreiben();
    }

    std::optional<QTemporaryDir> ordner_;
    std::shared_ptr<Datenbank> db_;
};

FLOX_TEST(tst_recordset, TestRecordset)
#include "tst_recordset.moc"
