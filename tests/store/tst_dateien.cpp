#include "Datenhilfen.h"
#include "Rechte.h"

#include "store/Dateien.h"
#include "store/Fehler.h"
#include "store/Pfade.h"
#include "tests/Testprogramm.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace {

/// Bytes without a period, so that a shifted or doubled block shows.
QByteArray muster(qsizetype groesse, quint32 saat)
{
    QByteArray bytes(groesse, Qt::Uninitialized);
    for (char &byte : bytes) {
        saat = saat * 1664525u + 1013904223u;
        byte = char(saat >> 24);
    }
    return bytes;
}

} // namespace

/* Paths in the program's spelling, copies and safe writing. */
class TestDateien : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        ordner_.emplace();
        QVERIFY(ordner_->isValid());
    }

    void ganzGelesen()
    {
        const QString pfad = ordner_->filePath(u"text.bin"_s);
        const QByteArray bytes = muster(70'000, 3);
        schreibeSicher(pfad, bytes);
        QCOMPARE(liesGanz(pfad), bytes);
        schreibeSicher(pfad, QByteArray());
        QCOMPARE(liesGanz(pfad), QByteArray());
        const auto meldung = [](const QString &datei) {
            try {
                (void)liesGanz(datei);
            } catch (const Fehler &fehler) {
                return fehler.text();
            }
            return QString();
        };
        QVERIFY(meldung(ordner_->filePath(u"fehlt"_s)).endsWith(u"Sie ist nicht vorhanden."));
        QVERIFY(meldung(ordner_->path()).contains(u"Ordner"));
    }

    void pfadAus_data()
    {
        QTest::addColumn<QString>("ordner");
        QTest::addColumn<QString>("rest");
        QTest::addColumn<QString>("pfad");
        QTest::newRow("ohne Trenner") << u"C:\\flox"_s << u"a.jpg"_s << u"C:\\flox\\a.jpg"_s;
        QTest::newRow("am Ordner") << u"C:\\flox\\"_s << u"a.jpg"_s << u"C:\\flox\\a.jpg"_s;
        QTest::newRow("am Rest") << u"C:\\flox"_s << u"\\a.jpg"_s << u"C:\\flox\\a.jpg"_s;
        QTest::newRow("an beiden") << u"C:\\flox\\"_s << u"\\a.jpg"_s << u"C:\\flox\\a.jpg"_s;
        QTest::newRow("des Systems") << u"/opt/flox/"_s << u"/a.jpg"_s << u"/opt/flox/a.jpg"_s;
        QTest::newRow("Ordner unbekannt") << u""_s << u"\\a.jpg"_s << u""_s;
    }
    void pfadAus()
    {
        QFETCH(QString, ordner);
        QFETCH(QString, rest);
        QTEST(::pfadAus(ordner, rest), "pfad");
    }

    void mitStrich_data()
    {
        QTest::addColumn<QString>("ordner");
        QTest::addColumn<QString>("gespeichert");
        QTest::newRow("ohne") << u"C:\\flox"_s << u"C:\\flox\\"_s;
        QTest::newRow("mit") << u"C:\\flox\\"_s << u"C:\\flox\\"_s;
        QTest::newRow("Laufwerk") << u"D:/"_s << u"D:\\"_s;
        QTest::newRow("des Systems") << u"/media/anna/FLOX/"_s << u"/media/anna/FLOX\\"_s;
        QTest::newRow("Wurzel") << u"/"_s << u"\\"_s;
        QTest::newRow("keiner") << u""_s << u""_s;
    }
    void mitStrich()
    {
        QFETCH(QString, ordner);
        QTEST(::mitStrich(ordner), "gespeichert");
    }

    /// What is shown has the system's separator throughout.
    void anzeige() { QCOMPARE(anzeigePfad(u"/opt/flox\\vorschau\\"_s), QDir::toNativeSeparators(u"/opt/flox/vorschau/"_s)); }

    void systemPfadFindet_data()
    {
        QTest::addColumn<QStringList>("vorhanden");
        QTest::addColumn<QString>("gesucht");
        QTest::addColumn<QString>("gefunden");
        QTest::newRow("genau") << QStringList{u"flox-demo.mdb"_s} << u"\\flox-demo.mdb"_s << u"flox-demo.mdb"_s;
        QTest::newRow("anders geschrieben") << QStringList{u"Flox-Demo.MDB"_s} << u"\\flox-demo.mdb"_s << u"Flox-Demo.MDB"_s;
        QTest::newRow("Ordner anders geschrieben") << QStringList{u"Bilder/TOPF/a.jpg"_s} << u"\\bilder\\topf\\A.JPG"_s << u"Bilder/TOPF/a.jpg"_s;
        QTest::newRow("genaue Schreibung geht vor") << QStringList{u"A.jpg"_s, u"a.jpg"_s} << u"\\a.jpg"_s << u"a.jpg"_s;
        QTest::newRow("Umlaut") << QStringList{u"Ähre.jpg"_s} << u"\\ähre.JPG"_s << u"Ähre.jpg"_s;
        QTest::newRow("versteckt") << QStringList{u".Temp"_s} << u"\\.temp"_s << u".Temp"_s;
        QTest::newRow("gibt es nicht") << QStringList{u"Bilder/a.jpg"_s} << u"\\bilder\\neu.jpg"_s << u"Bilder/neu.jpg"_s;
        QTest::newRow("Ordner gibt es nicht") << QStringList{} << u"\\fehlt\\Neu.jpg"_s << u"fehlt/Neu.jpg"_s;
    }
    void systemPfadFindet()
    {
        QFETCH(QStringList, vorhanden);
        QFETCH(QString, gesucht);
        QFETCH(QString, gefunden);
        for (const QString &name : vorhanden) {
            QVERIFY(QDir().mkpath(QFileInfo(pfad(name)).path()));
            schreiben(pfad(name), "x");
        }
        QCOMPARE(systemPfad(ordner_->path() + gesucht), pfad(gefunden));
    }
    void systemPfadVonNichts() { QCOMPARE(systemPfad(QString()), QString()); }

    void dateiVorhanden_data()
    {
        QTest::addColumn<QString>("muster");
        QTest::addColumn<bool>("da");
        QTest::newRow("genau") << u"\\db_to1.tmp"_s << true;
        QTest::newRow("anders geschrieben") << u"\\DB_TO1.TMP"_s << true;
        QTest::newRow("Stern") << u"\\db_to*.tmp"_s << true;
        QTest::newRow("Fragezeichen") << u"\\db_to?.tmp"_s << true;
        QTest::newRow("passt nicht") << u"\\db_st*.tmp"_s << false;
        QTest::newRow("im Unterordner") << u"\\Bilder\\*.jpg"_s << true;
        QTest::newRow("Ordner fehlt") << u"\\fehlt\\*.jpg"_s << false;
        QTest::newRow("ein Ordner ist keine Datei") << u"\\Bilder"_s << false;
    }
    void dateiVorhanden()
    {
        QFETCH(QString, muster);
        schreiben(pfad(u"db_to1.tmp"_s), "x");
        QVERIFY(QDir(ordner_->path()).mkdir(u"bilder"_s));
        schreiben(pfad(u"bilder/a.jpg"_s), "x");
        QTEST(::dateiVorhanden(ordner_->path() + muster), "da");
        QVERIFY(!::dateiVorhanden(QString()));
    }

    void kopiereUeber_data()
    {
        QTest::addColumn<qsizetype>("alt"); // -1: no target yet
        QTest::addColumn<qsizetype>("neu");
        constexpr qsizetype block = 1 << 20;
        QTest::newRow("neues Ziel") << qsizetype(-1) << qsizetype(5000);
        QTest::newRow("größer über kleiner") << qsizetype(10) << 2 * block + 77;
        QTest::newRow("kleiner über größer") << 3 * block + 5 << qsizetype(12345);
        QTest::newRow("genau Blöcke") << qsizetype(1) << 2 * block;
        QTest::newRow("gleich groß") << qsizetype(4096) << qsizetype(4096);
        QTest::newRow("leer über voll") << qsizetype(4096) << qsizetype(0);
    }
    void kopiereUeber()
    {
        QFETCH(qsizetype, alt);
        QFETCH(qsizetype, neu);
        const QString von = pfad(u"von"_s), nach = pfad(u"nach"_s);
        schreiben(von, muster(neu, 1));
        if (alt >= 0)
            schreiben(nach, muster(alt, 2));
        schreiben(nach + u"-journal"_s, "von einem früheren Lauf");
        QCOMPARE(fehlerVon([&] { ::kopiereUeber(von, nach); }), QString());
        QVERIFY(inhalt(nach) == inhalt(von));
        QCOMPARE(QFileInfo(von).size(), neu);
        QVERIFY2(!QFile::exists(nach + u"-journal"_s), "A stale journal would be rolled into the copy.");
    }

    void kopiereUeberScheitert_data()
    {
        QTest::addColumn<QString>("von");
        QTest::addColumn<QString>("nach");
        QTest::addColumn<QString>("grund"); // "%" is the folder of the test
        QTest::newRow("Quelle fehlt") << u"fehlt"_s << u"ziel"_s << u"gelesen werden: Sie ist nicht vorhanden."_s;
        QTest::newRow("Quelle ist ein Ordner") << u"."_s << u"ziel"_s << u"gelesen werden: Unter diesem Namen gibt es einen Ordner."_s;
        QTest::newRow("Ziel ist ein Ordner") << u"quelle"_s << u"."_s << u"geschrieben werden: Unter diesem Namen gibt es einen Ordner."_s;
        QTest::newRow("Zielordner fehlt") << u"quelle"_s << u"fehlt/ziel"_s << u"geschrieben werden: Der Ordner '%/fehlt' ist nicht vorhanden."_s;
    }
    void kopiereUeberScheitert()
    {
        QFETCH(QString, von);
        QFETCH(QString, nach);
        schreiben(pfad(u"quelle"_s), "neu");
        schreiben(pfad(u"ziel"_s), "alt");
        QFETCH(QString, grund);
        const QString text = fehlerVon([&] { ::kopiereUeber(pfad(von), pfad(nach)); });
        QVERIFY2(text.endsWith(grund.replace(u'%', ordner_->path())), qPrintable(text));
        QCOMPARE(inhalt(pfad(u"ziel"_s)), QByteArray("alt"));
    }
    void kopiereUeberVollerDatentraeger()
    {
        schreiben(pfad(u"quelle"_s), muster(200000, 1));
        const Dateigrenze grenze(100000);
        QCOMPARE(fehlerVon([&] { ::kopiereUeber(pfad(u"quelle"_s), pfad(u"ziel"_s)); }),
                 u"Die Datei '%1' kann nicht geschrieben werden: Der Datenträger ist voll."_s.arg(pfad(u"ziel"_s)));
    }
    void vollesGeraet()
    {
        schreiben(pfad(u"quelle"_s), "ein paar Bytes");
        QVERIFY(QFile::link(u"/dev/full"_s, pfad(u"ziel"_s)));
        const QString text = fehlerVon([&] { ::kopiereUeber(pfad(u"quelle"_s), pfad(u"ziel"_s)); });
        QVERIFY2(text.endsWith(u"Der Datenträger ist voll."_s), qPrintable(text));
    }
    void nurLesbarerOrdner()
    {
        schreiben(pfad(u"quelle"_s), "neu");
        schreiben(pfad(u"ziel"_s), "alt");
        const NurLesen sperre(ordner_->path());
        for (const char *name : {"ziel", "neu"})
            for (const bool sicher : {false, true}) {
                const QString ziel = pfad(QString::fromLatin1(name));
                QCOMPARE(fehlerVon([&] { sicher ? ::schreibeSicher(ziel, "x") : ::kopiereUeber(pfad(u"quelle"_s), ziel); }),
                         u"Die Datei '%1' kann nicht geschrieben werden: Die Datei oder ihr Ordner ist schreibgeschützt."_s.arg(ziel));
            }
        QCOMPARE(inhalt(pfad(u"ziel"_s)), QByteArray("alt"));
    }
    void ursachen()
    {
        // Four causes, four sentences; what has none comes in the system's words.
        QSet<QString> saetze;
        for (const int nummer : {ENOSPC, EROFS, EIO, ENOENT, ENAMETOOLONG, EMFILE})
            saetze += dateiursache(nummer);
        QCOMPARE(saetze.size(), 6);
        QVERIFY(!saetze.contains(QString()));
        QCOMPARE(dateiursache(EACCES), dateiursache(EROFS));
        QCOMPARE(dateiursache(EFBIG), dateiursache(ENOSPC));
        QCOMPARE(dateiursache(EDQUOT), dateiursache(ENOSPC));
        QCOMPARE(dateiursache(0), QString());
        QCOMPARE(dateiursache(EAGAIN), QString());
    }

    /// A run that was killed leaves the file under the name it has until it is whole; the next start removes just that.
    void schreibresteWerdenGefegt()
    {
        const QString merker = pfad(u"merker"_s);
        setSchreibmerker(merker);
        ::schreibeSicher(pfad(u"Liste.pdf"_s), "fertig");
        QVERIFY2(!QFile::exists(merker), "Nothing is left of a file that was written.");
        QVERIFY(!fehlerVon([&] { ::schreibeSicher(pfad(u"fehlt/Liste.pdf"_s), "x"); }).isEmpty());
        QVERIFY(!QFile::exists(merker));
        schreibresteFegen(); // nothing to do

        for (const char *name : {"Liste.pdf.AbCdEf", "Liste.pdf.AbCdE1", "Liste.pdf.AbCdEfg", "Andere.pdf.AbCdEf", "Liste.pdfx.AbCde"})
            schreiben(pfad(QString::fromLatin1(name)), "x");
        schreiben(merker, pfad(u"Liste.pdf"_s).toUtf8());
        schreibresteFegen();
        QCOMPARE(QDir(ordner_->path()).entryList(QDir::Files),
                 (QStringList{u"Andere.pdf.AbCdEf"_s, u"Liste.pdf"_s, u"Liste.pdf.AbCdE1"_s, u"Liste.pdf.AbCdEfg"_s, u"Liste.pdfx.AbCde"_s}));
        for (const QByteArray &unsinn : {QByteArray(), QByteArray("Liste.pdf"), QByteArray("/\0\xff"), QByteArray(100000, 'x')}) {
            schreiben(merker, unsinn);
            schreibresteFegen();
            QVERIFY(!QFile::exists(merker));
        }
        QCOMPARE(QDir(ordner_->path()).entryList(QDir::Files).size(), 5);
        setSchreibmerker({});
    }

    void schreibeSicherErsetzt()
    {
        ::schreibeSicher(pfad(u"neu"_s), "eins");
        QCOMPARE(inhalt(pfad(u"neu"_s)), QByteArray("eins"));
        ::schreibeSicher(pfad(u"neu"_s), "zwei, länger");
        QCOMPARE(inhalt(pfad(u"neu"_s)), QByteArray("zwei, länger"));
        ::schreibeSicher(pfad(u"neu"_s), "");
        QCOMPARE(inhalt(pfad(u"neu"_s)), QByteArray());
        QCOMPARE(QDir(ordner_->path()).entryList(QDir::Files | QDir::Hidden), QStringList{u"neu"_s});
    }
    void schreibeSicherScheitert()
    {
        QVERIFY(!fehlerVon([&] { ::schreibeSicher(pfad(u"fehlt/neu"_s), "x"); }).isEmpty());
        QVERIFY(!QFile::exists(pfad(u"fehlt"_s)));
        QVERIFY(!fehlerVon([&] { ::schreibeSicher(ordner_->path(), "x"); }).isEmpty());
        QVERIFY(QFileInfo(ordner_->path()).isDir());
    }
    void schreibeSicherVollerDatentraeger()
    {
        ::schreibeSicher(pfad(u"alt"_s), "alt");
        {
            const Dateigrenze grenze(10000);
            QVERIFY(!fehlerVon([&] { ::schreibeSicher(pfad(u"alt"_s), muster(100000, 3)); }).isEmpty());
        }
        QCOMPARE(inhalt(pfad(u"alt"_s)), QByteArray("alt"));
        QCOMPARE(QDir(ordner_->path()).entryList(QDir::Files | QDir::Hidden), QStringList{u"alt"_s});
    }

    void kopiereSicher_data()
    {
        QTest::addColumn<qsizetype>("groesse");
        for (const qsizetype groesse : {0, 1, 5000, 1 << 20, (2 << 20) + 77})
            QTest::addRow("%lld Bytes", static_cast<long long>(groesse)) << groesse;
    }
    void kopiereSicher()
    {
        QFETCH(qsizetype, groesse);
        const QString von = pfad(u"von"_s), nach = pfad(u"nach"_s);
        const QDateTime zeit(QDate(2001, 5, 6), QTime(7, 8, 9));
        schreiben(von, muster(groesse, 1));
        schreiben(nach, muster(4096, 2));
        QFile quelle(von);
        QVERIFY(quelle.open(QIODevice::ReadWrite) && quelle.setFileTime(zeit, QFileDevice::FileModificationTime));
        quelle.close();
        QCOMPARE(fehlerVon([&] { ::kopiereSicher(von, nach); }), QString());
        QVERIFY(inhalt(nach) == inhalt(von));
        QCOMPARE(QFileInfo(nach).size(), groesse);
        QCOMPARE(QFileInfo(nach).lastModified(), zeit);
        QCOMPARE(QDir(ordner_->path()).entryList(QDir::Files | QDir::Hidden), (QStringList{u"nach"_s, u"von"_s}));
    }
    void kopiereSicherScheitert_data() { kopiereUeberScheitert_data(); }
    void kopiereSicherScheitert()
    {
        QFETCH(QString, von);
        QFETCH(QString, nach);
        schreiben(pfad(u"quelle"_s), "neu");
        schreiben(pfad(u"ziel"_s), "alt");
        QFETCH(QString, grund);
        const QString text = fehlerVon([&] { ::kopiereSicher(pfad(von), pfad(nach)); });
        QVERIFY2(text.endsWith(grund.replace(u'%', ordner_->path())), qPrintable(text));
        QCOMPARE(inhalt(pfad(u"ziel"_s)), QByteArray("alt"));
        QCOMPARE(QDir(ordner_->path()).entryList(QDir::Files | QDir::Hidden), (QStringList{u"quelle"_s, u"ziel"_s}));
    }
    /// A full disk has a class of its own, and leaves the old file whole.
    void kopiereSicherVollerDatentraeger()
    {
        schreiben(pfad(u"quelle"_s), muster(200000, 1));
        schreiben(pfad(u"ziel"_s), "alt");
        const Dateigrenze grenze(100000);
        QVERIFY_THROWS_EXCEPTION(Datentraegervoll, ::kopiereSicher(pfad(u"quelle"_s), pfad(u"ziel"_s)));
        QCOMPARE(inhalt(pfad(u"ziel"_s)), QByteArray("alt"));
        QCOMPARE(QDir(ordner_->path()).entryList(QDir::Files | QDir::Hidden), (QStringList{u"quelle"_s, u"ziel"_s}));
    }
    /// Several files may be under way at once: the word of a killed run names all of them.
    void mehrereReste()
    {
        const QString merker = pfad(u"merker"_s);
        setSchreibmerker(merker);
        for (const char *name : {"a.jpg.AbCdEf", "b.pdf.GhIjKl", "c.jpg.AbCdEf"})
            schreiben(pfad(QString::fromLatin1(name)), "x");
        schreiben(merker, pfad(u"a.jpg"_s).toUtf8() + '\0' + pfad(u"b.pdf"_s).toUtf8());
        schreibresteFegen();
        QCOMPARE(QDir(ordner_->path()).entryList(QDir::Files), QStringList{u"c.jpg.AbCdEf"_s});
        setSchreibmerker({});
    }
    void merkerVonZweiFaeden()
    {
        const QString merker = pfad(u"merker"_s);
        setSchreibmerker(merker);
        const std::unique_ptr<QThread> faden(QThread::create([&] {
            for (int i = 0; i < 50; ++i)
                ::schreibeSicher(pfad(u"eins"_s), "1");
        }));
        faden->start();
        for (int i = 0; i < 50; ++i)
            ::schreibeSicher(pfad(u"zwei"_s), "2");
        QVERIFY(faden->wait());
        QVERIFY(!QFile::exists(merker));
        QCOMPARE(QDir(ordner_->path()).entryList(QDir::Files), (QStringList{u"eins"_s, u"zwei"_s}));
        setSchreibmerker({});
    }

private:
    QString pfad(const QString &name) const { return ordner_->filePath(name); }
    std::optional<QTemporaryDir> ordner_;
};

FLOX_TEST(tst_dateien, TestDateien)
#include "tst_dateien.moc"
