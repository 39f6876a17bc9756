#include "Dateistoerung.h"
#include "Datenhilfen.h"
#include "Datenordner.h"

#include "store/Schema.h"
#include "store/Teilmenge.h"
#include "tests/Testprogramm.h"

#include <QDir>
#include <QFile>
#include <QTest>
#include <QThread>

#include <algorithm>
#include <cerrno>

using namespace Qt::StringLiterals;

/* Subsets: what goes over, in which order, and what a failure leaves behind. */
class TestTeilmenge : public QObject
{
    Q_OBJECT

private slots:
    void init() { ordner_.emplace(); }

    void reihenfolge()
    {
        QStringList namen;
        for (const char *name : teilmenge::nebentabellen())
            namen += QString::fromLatin1(name);
        QCOMPARE(namen.join(u' '),
                 u"Familien Gehoelze_Bilder Stauden_Bilder Friedhof_Bilder Topfpfl_Bilder Obst_Bilder Apfel_Bilder Gehoelze_Synonyme_Botanisch "
                 "Gehoelze_Synonyme_Deutsch Stauden_Synonyme_Botanisch Stauden_Synonyme_Deutsch Topfpfl_Synonyme_Botanisch "
                 "Topfpfl_Synonyme_Deutsch Namen_Benutzer_Optionen Abfrage_Friedhof Obstarten BeetBalkon_Bilder "
                 "BeetBalkon_Synonyme_Botanisch BeetBalkon_Synonyme_Deutsch Daten"_s);
        namen.clear();
        for (const teilmenge::Haupttabelle &tabelle : teilmenge::haupttabellen())
            namen += QString::fromLatin1(tabelle.name);
        QCOMPARE(namen.join(u' '), u"Topfpfl BeetBalkon Stauden Gehoelze Friedhof Obst Apfel"_s);
        // They are all tables and queries that the program knows.
        const auto db = ordner_->db();
        QCOMPARE(qsizetype(teilmenge::nebentabellen().size() + teilmenge::haupttabellen().size()), db->TabellenUndAbfragen().size());
        // As the file lists them: none was made before another that comes first.
        schreiben(u"a.fit"_s);
        const auto teil = Datenbank::OpenDatabase(pfad(u"a.fit"_s), Datenbank::Zugriff::Lesen);
        QStringList erwartet;
        for (const char *name : teilmenge::nebentabellen())
            erwartet += QString::fromLatin1(name);
        QCOMPARE(werte(*teil, u"SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY rowid"_s), erwartet + namen);
    }

    void namenMitBesonderheiten()
    {
        QVERIFY(QDir(ordner_->pfad()).mkdir(u"O'Neill & Söhne"_s));
        schreiben(u"O'Neill & Söhne/a 'b' c.fit"_s);
        QVERIFY(Datenbank::OpenDatabase(pfad(u"O'Neill & Söhne/a 'b' c.fit"_s))->hatTabelle(u"Apfel"_s));
    }

    /// The private copy is held by a window meanwhile, with a lock of its own.
    void ausDerKopieEinesFensters()
    {
        QVERIFY(QFile::copy(ordner_->datenbank(), pfad(u"db_to1.tmp"_s)));
        const auto kopie = Datenbank::OpenDatabase(pfad(u"db_to1.tmp"_s), Datenbank::Zugriff::Privat);
        kopie->loescheAusser(u"Topfpfl"_s, {}, [](qint64 artnr, auto) { return artnr % 7 == 0; });
        const QStringList uebrig = werte(*kopie, u"SELECT BOT_NAME FROM Topfpfl ORDER BY ARTNR"_s);
        QVERIFY(!uebrig.isEmpty());
        teilmenge::schreiben(ordner_->datenbank(), pfad(u"a.fit"_s),
                             [&](Sparte sparte) { return sparte == Sparte::Topf ? kopie->pfad() : QString(); });
        const auto teil = Datenbank::OpenDatabase(pfad(u"a.fit"_s), Datenbank::Zugriff::Lesen);
        QCOMPARE(werte(*teil, u"SELECT BOT_NAME FROM Topfpfl ORDER BY ARTNR"_s), uebrig);
        QCOMPARE(zahl(*teil, u"SELECT count(*) FROM Stauden"_s), zahl(*ordner_->db(), u"SELECT count(*) FROM Stauden"_s));
        QCOMPARE(teil->Indexe(u"Topfpfl"_s), QStringList());
        QCOMPARE(werte(*teil, u"PRAGMA integrity_check"_s), QStringList{u"ok"_s});
    }

    /// The query's rows become a table, with the names by which its columns are known.
    void dieAbfrageWirdEineTabelle()
    {
        schreiben(u"a.fit"_s);
        const auto teil = Datenbank::OpenDatabase(pfad(u"a.fit"_s), Datenbank::Zugriff::Lesen);
        QVERIFY(!teil->istAbfrage(u"Abfrage_Friedhof"_s));
        const QStringList spalten = teil->Spaltennamen(u"Abfrage_Friedhof"_s);
        QVERIFY(spalten.contains(u"stauden_bluehzeit"_s) && spalten.contains(u"gehoelze_bluehzeit"_s));
        QCOMPARE(spalten, ordner_->db()->Spaltennamen(u"Abfrage_Friedhof"_s));
        QCOMPARE(zahl(*teil, u"SELECT count(*) FROM Abfrage_Friedhof"_s), zahl(*ordner_->db(), u"SELECT count(*) FROM Friedhof"_s));
    }

    /// A side table that cannot be read is left out; what can be read and is not written is a failure.
    void kaputteNebentabelle()
    {
        ordner_->db()->Execute(u"DROP TABLE Daten"_s);
        ordner_->db()->Execute(u"CREATE VIEW Daten AS SELECT * FROM nirgends"_s);
        schreiben(u"a.fit"_s);
        const auto teil = Datenbank::OpenDatabase(pfad(u"a.fit"_s), Datenbank::Zugriff::Lesen);
        QVERIFY(!teil->hatTabelle(u"Daten"_s) && teil->hatTabelle(u"Apfel"_s));
    }

    void scheitert_data()
    {
        QTest::addColumn<QString>("sql");
        QTest::addColumn<QString>("ziel");
        QTest::addColumn<QString>("text");
        QTest::newRow("Haupttabelle fehlt") << u"DROP TABLE Gehoelze"_s << u"a.fit"_s
                                            << u"Die Tabelle 'Gehoelze' kann nicht in die Teilmenge geschrieben werden:\nIn der Datenbank "
                                               "'flox-demo.mdb' fehlt die Tabelle 'Gehoelze'."_s;
        QTest::newRow("Ordner fehlt") << u""_s << u"fehlt/a.fit"_s << u"Der Ordner '%1/fehlt' ist nicht vorhanden."_s;
        QTest::newRow("ein Ordner") << u""_s << u"."_s << u"Unter diesem Namen gibt es einen Ordner."_s;
    }
    void scheitert()
    {
        QFETCH(QString, sql);
        QFETCH(QString, ziel);
        QFETCH(QString, text);
        if (!sql.isEmpty())
            ordner_->db()->Execute(sql);
        const QStringList vorher = dateien();
        const QString fehler = fehlerVon([&] { schreiben(ziel); });
        QVERIFY2(fehler.endsWith(text.contains(u"%1"_s) ? text.arg(ordner_->pfad(u"."_s).chopped(2)) : text), qPrintable(fehler));
        QCOMPARE(dateien(), vorher);
    }

    /// In a thread of its own, while a window has its copy open for itself: the copy's rows; called off at any question, nothing.
    void fuerSich()
    {
        const QString kopie = pfad(u"fenster.tmp"_s);
        QVERIFY(QFile::copy(ordner_->datenbank(), kopie));
        const auto fenster = Datenbank::OpenDatabase(kopie, Datenbank::Zugriff::Privat);
        fenster->loescheAusser(u"Topfpfl"_s, {}, [](qint64 artnr, auto) { return artnr % 2 == 0; });
        const qint64 uebrig = zahl(*fenster, u"SELECT count(*) FROM Topfpfl"_s);
        const auto quelle = [&](Sparte sparte) { return sparte == Sparte::Topf ? kopie : QString(); };
        QList<int> prozente;
        int fragen = 0;
        const auto imFaden = [&](const QString &ziel, int bis) {
            bool ganz = false;
            const std::unique_ptr<QThread> faden(QThread::create([&, bis] {
                fragen = 0;
                const Lauf lauf{[&](int prozent) { prozente += prozent; }, [&] { return ++fragen == bis; }};
                ganz = teilmenge::schreibenFuerSich(ordner_->datenbank(), pfad(ziel), quelle, lauf);
            }));
            faden->start();
            return faden->wait(60000) && ganz;
        };
        const QStringList vorher = dateien();
        QVERIFY(imFaden(u"a.fit"_s, 0));
        const int alle = fragen;
        QVERIFY(std::ranges::is_sorted(prozente) && prozente.size() > 10);
        QCOMPARE(prozente.last(), 100);
        const auto teil = Datenbank::OpenDatabase(pfad(u"a.fit"_s));
        QVERIFY(uebrig > 0 && uebrig < zahl(*ordner_->db(), u"SELECT count(*) FROM Topfpfl"_s));
        QCOMPARE(zahl(*teil, u"SELECT count(*) FROM Topfpfl"_s), uebrig);
        QCOMPARE(zahl(*teil, u"SELECT count(*) FROM Stauden"_s), zahl(*ordner_->db(), u"SELECT count(*) FROM Stauden"_s));
        QCOMPARE(teil->Indexe(u"Topfpfl"_s), QStringList());
        QVERIFY(QFile::remove(pfad(u"a.fit"_s)));
        for (int bis = 1; bis <= alle; bis += 3) {
            QVERIFY(!imFaden(u"b.fit"_s, bis));
            QCOMPARE(dateien(), vorher);
        }
        // The window still has its copy.
        QCOMPARE(zahl(*fenster, u"SELECT count(*) FROM Topfpfl"_s), uebrig);
    }

    /// Somewhere in the middle the disk takes no more.
    void vollMittendrin()
    {
        int schritte = 0;
        {
            const Dateistoerung zaehlt(Dateistoerung::Art::Keine, 0, 0);
            schreiben(u"probe.fit"_s);
            schritte = zaehlt.gezaehlt();
        }
        QVERIFY(QFile::remove(pfad(u"probe.fit"_s)));
        const QStringList vorher = dateien();
        for (int teil = 1; teil < 6; ++teil) {
            QString fehler;
            {
                const Dateistoerung stoerung(Dateistoerung::Art::Bleibend, schritte * teil / 6, ENOSPC);
                fehler = fehlerVon([&] { schreiben(u"a.fit"_s); });
            }
            QVERIFY2(fehler.contains(u"voll"_s) && fehler.contains(u"'a.fit'"_s) && fehler.startsWith(u"Die Tabelle '"_s), qPrintable(fehler));
            QCOMPARE(dateien(), vorher);
        }
    }

private:
    QString pfad(const QString &name) const { return ordner_->pfad(name); }
    void schreiben(const QString &ziel)
    {
        teilmenge::schreiben(ordner_->datenbank(), pfad(ziel), [](Sparte) { return QString(); });
    }
    QStringList dateien() const { return QDir(ordner_->pfad()).entryList(QDir::Files | QDir::Hidden); }

    std::optional<Datenordner> ordner_;
};

FLOX_TEST(tst_teilmenge, TestTeilmenge)
#include "tst_teilmenge.moc"
