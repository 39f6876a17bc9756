#include "Laufprobe.h"

#include "pictures/Bildlader.h"
#include "pictures/Vorschaubild.h"
#include "pictures/cDIBSection.h"
#include "pictures/mIntelJPEGLibrary.h"
#include "tests/Faelle.h"
#include "tests/store/Datenhilfen.h"
#include "tests/Testprogramm.h"

#include <QRandomGenerator>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace std::chrono;
using Ende = Bilderlauf::Ende;

namespace {

const QStringList vorschauordner = {u"vorschau"_s,      u"vorschau/apfel"_s,   u"vorschau/gehoelze"_s,
                                    u"vorschau/obst"_s, u"vorschau/stauden"_s, u"vorschau/topfpflanzen"_s};
const QStringList bilderordner = {u"apfel"_s, u"gehoelze"_s, u"obst"_s, u"stauden"_s, u"topfpflanzen"_s};

QByteArray foto(quint32 saat, int breite = 320, int hoehe = 240)
{
    return jpeg(gemischt(breite, hoehe, saat), Jpegart::Einfach, 80);
}

} // namespace

/* The walk through the picture folders, and the two things that it does there. */
class TestBilderlauf : public QObject
{
    Q_OBJECT

private slots:
    void init() { baum_.emplace(); }

    void groesse_data()
    {
        QTest::addColumn<QSize>("bild");
        QTest::addColumn<QSize>("vorschau");
        QTest::newRow("4:3") << QSize(4000, 3000) << QSize(133, 100);
        QTest::newRow("wider than 4:3: by its width") << QSize(4000, 2250) << QSize(133, 75);
        QTest::newRow("taller than 4:3: by its height") << QSize(3000, 4000) << QSize(75, 100);
        QTest::newRow("square") << QSize(800, 800) << QSize(100, 100);
        QTest::newRow("smaller: enlarged") << QSize(40, 30) << QSize(133, 100);
        QTest::newRow("one pixel") << QSize(1, 1) << QSize(100, 100);
        QTest::newRow("a hair wider") << QSize(4003, 3000) << QSize(133, 100);
        QTest::newRow("rounded in twips first") << QSize(1000, 664) << QSize(133, 89); // 1328 twips; from 133 pixels it were 88
        QTest::newRow("panorama") << QSize(10000, 10) << QSize(133, 1);
        QTest::newRow("stalk") << QSize(10, 10000) << QSize(1, 100);
        QTest::newRow("none") << QSize() << QSize();
    }
    void groesse()
    {
        QFETCH(QSize, bild);
        QTEST(vorschaugroesse(bild), "vorschau");
    }

    void zeit_data()
    {
        QTest::addColumn<int>("block"); // milliseconds for ten pictures
        QTest::addColumn<int>("uebrige");
        QTest::addColumn<QString>("text");
        QTest::newRow("none left") << 5000 << 0 << QString();
        QTest::newRow("less than a second") << 99 << 100 << QString();
        QTest::newRow("a second") << 100 << 100 << u"Noch verbleibende Zeit: ca. 1 min"_s;
        QTest::newRow("a minute") << 6000 << 100 << u"Noch verbleibende Zeit: ca. 1 min"_s;
        QTest::newRow("above a minute") << 6010 << 100 << u"Noch verbleibende Zeit: ca. 2 min"_s;
        QTest::newRow("59 minutes") << 354000 << 100 << u"Noch verbleibende Zeit: ca. 59 min"_s;
        QTest::newRow("rounded up to the hour") << 354100 << 100 << u"Noch verbleibende Zeit: ca. 1 h 0 min"_s;
        QTest::newRow("hours and minutes") << 400000 << 100 << u"Noch verbleibende Zeit: ca. 1 h 7 min"_s;
        QTest::newRow("more than a day") << 1000000 << 1000 << u"Noch verbleibende Zeit: ca. 27 h 47 min"_s;
        QTest::newRow("a clock put back") << -5000 << 100 << QString();
    }
    void zeit()
    {
        QFETCH(int, block);
        QFETCH(int, uebrige);
        QTEST(restzeittext(restzeit(milliseconds(block), blockgroesse, uebrige)), "text");
    }

    /// Every "*.jpg" of the five folders, upright and in its order; the bars show done of all files of all folders.
    void erzeugen()
    {
        for (const QString &name : {u"topfpflanzen/b.jpg"_s, u"topfpflanzen/A.JPG"_s, u"obst/z.jpg"_s, u"stauden/m.jpg"_s})
            baum_->dazu(name, foto(7));
        baum_->dazu(u"apfel/hoch.jpg"_s, mitExif(foto(9), 6, true));
        baum_->dazu(u"gehoelze/Notiz.txt"_s, "kein Bild");
        baum_->dazu(u"friedhof/nie.jpg"_s, foto(7));
        Laufprobe probe(baum_->erzeugen());
        QCOMPARE(probe.laufen(), Ende::Fertig);
        QCOMPARE(probe.lauf.gesamt(), 6);
        QCOMPARE(probe.lauf.ausgelassen(), 0);
        QCOMPARE(probe.schritte, (QList<std::pair<int, int>>{{0, 16}, {0, 33}, {1, 50}, {3, 66}, {4, 83}}));
        QCOMPARE(baum_->ordner(), vorschauordner);
        QCOMPARE(baum_->dateien(), (QStringList{u"vorschau/apfel/hoch.jpg"_s, u"vorschau/obst/z.jpg"_s, u"vorschau/stauden/m.jpg"_s,
                                                u"vorschau/topfpflanzen/A.JPG"_s, u"vorschau/topfpflanzen/b.jpg"_s}));
        QCOMPARE(QImage(baum_->ziel(u"vorschau/obst/z.jpg"_s)).size(), QSize(133, 100));
        QCOMPARE(QImage(baum_->ziel(u"vorschau/apfel/hoch.jpg"_s)).size(), QSize(75, 100));
        QVERIFY2(probe.zeiten.isEmpty(), "The time is read after every tenth picture.");
    }

    /// On any number of threads the files are those of one picture after the other.
    void wieEinzeln()
    {
        constexpr int anzahl = 30;
        for (int i = 0; i < anzahl; ++i)
            baum_->dazu(u"stauden/%1.jpg"_s.arg(i, 2, 10, QChar(u'0')), foto(quint32(i), 200 + 40 * i, 300));
        Laufprobe probe(baum_->erzeugen());
        QCOMPARE(probe.laufen(), Ende::Fertig);
        for (int i = 0; i < anzahl; ++i) {
            const QString name = u"stauden/%1.jpg"_s.arg(i, 2, 10, QChar(u'0'));
            cDIBSection dib;
            dib.CreateFromPicture(ladeInGroesse(baum_->quelle(name), vorschaugroesse));
            const QString einzeln = baum_->ziel(u"einzeln.jpg"_s);
            mIntelJPEGLibrary::SaveJPG(dib, einzeln, 75);
            QVERIFY(Bilderbaum::inhalt(baum_->ziel(u"vorschau/"_s + name)) == Bilderbaum::inhalt(einzeln));
        }
        QCOMPARE(probe.zeiten.size(), 3);
        QCOMPARE(probe.zeiten.last(), QString());
    }

    /// A picture that cannot be read, and one that cannot be written: a message each, and the next one.
    void einzelneFehlschlaege()
    {
        baum_->dazu(u"apfel/a.jpg"_s, foto(1));
        baum_->dazu(u"apfel/b.jpg"_s, "kein Bild");
        baum_->dazu(u"apfel/c.jpg"_s, foto(3).first(900)); // cut
        baum_->dazu(u"apfel/d.jpg"_s, foto(4));
        baum_->dazu(u"apfel/e.jpg"_s, foto(5));
        Laufprobe probe(baum_->erzeugen());
        // The folder is made by then: what stands in the way comes after the first picture.
        probe.beimSchritt = [&] { QDir().mkpath(baum_->ziel(u"vorschau/apfel/d.jpg/voll"_s)); };
        QCOMPARE(probe.laufen(), Ende::Fertig);
        QCOMPARE(probe.meldungen, (QStringList{u"Apfel b.jpg: Fehler beim Laden des Bildes."_s, u"Apfel c.jpg: Fehler beim Laden des Bildes."_s,
                                               u"Apfel d.jpg: Speichern fehlgeschlagen"_s}));
        QCOMPARE(probe.lauf.ausgelassen(), 3);
        QCOMPARE(baum_->dateien(), (QStringList{u"vorschau/apfel/a.jpg"_s, u"vorschau/apfel/e.jpg"_s}));
        QCOMPARE(probe.schritte.last(), std::pair(3, 100));
    }

    void alleUeberspringen()
    {
        const int anzahl = faelle(500, 2000);
        const QByteArray ganz = foto(1);
        for (int i = 0; i < anzahl; ++i) {
            QByteArray schaden = ganz.first(ganz.size() * (i % 90) / 100);
            if (i % 3 == 0 && schaden.size() > 2000)
                schaden[1000 + i % 900] = '\xFF';
            baum_->dazu(u"%1/%2.jpg"_s.arg(bilderordner[i % 5]).arg(i), schaden);
        }
        baum_->dazu(u"obst/zuletzt.jpg"_s, ganz);
        Laufprobe probe(baum_->erzeugen());
        probe.alleUeberspringen = true;
        QCOMPARE(probe.laufen(), Ende::Fertig);
        QCOMPARE(probe.meldungen.size(), 1);
        QCOMPARE(probe.lauf.ausgelassen(), anzahl);
        QCOMPARE(baum_->dateien(), QStringList{u"vorschau/obst/zuletzt.jpg"_s});
        QCOMPARE(probe.schritte.last(), std::pair(4, 100));
        QCOMPARE(probe.zeiten.size(), anzahl / 10);
    }

    void kopieren()
    {
        const QDateTime zeit(QDate(1999, 8, 7), QTime(6, 5, 4));
        for (const QString &name : {u"topfpflanzen/a.jpg"_s, u"stauden/b.gif"_s, u"gehoelze/c"_s, u"apfel/d.jpg"_s, u"obst/e.jpg"_s})
            Bilderbaum::stellen(baum_->dazu(name, name.toUtf8()), zeit);
        baum_->dazu(u"Winflox3.ico"_s, "x");
        Laufprobe probe(baum_->kopieren());
        QCOMPARE(probe.laufen(), Ende::Fertig);
        // Apples come second; their bar stands fourth.
        QCOMPARE(probe.schritte, (QList<std::pair<int, int>>{{0, 20}, {3, 40}, {1, 60}, {2, 80}, {4, 100}}));
        QCOMPARE(baum_->dateien(), (QStringList{u"apfel/d.jpg"_s, u"gehoelze/c"_s, u"obst/e.jpg"_s, u"stauden/b.gif"_s, u"topfpflanzen/a.jpg"_s}));
        for (const QString &name : baum_->dateien()) {
            QCOMPARE(Bilderbaum::inhalt(baum_->ziel(name)), name.toUtf8());
            QCOMPARE(QFileInfo(baum_->ziel(name)).lastModified(), zeit);
        }
    }

    /// Folders that exist end the walk before it begins, and so does a file in the place of one; what was made for it goes.
    void vorhandeneOrdner_data()
    {
        QTest::addColumn<bool>("vorschau");
        QTest::addColumn<QString>("vorhanden");
        QTest::newRow("first folder") << false << u"topfpflanzen"_s;
        QTest::newRow("last folder") << false << u"obst"_s;
        QTest::newRow("written in another case") << false << u"Obst"_s;
        QTest::newRow("previews") << true << u"vorschau"_s;
    }
    void vorhandeneOrdner()
    {
        QFETCH(bool, vorschau);
        QFETCH(QString, vorhanden);
        baum_->dazu(u"apfel/a.jpg"_s, foto(1));
        for (const bool datei : {false, true}) {
            if (datei) {
                QVERIFY(QDir(baum_->ziel()).rmdir(vorhanden));
                Bilderbaum::schreiben(baum_->ziel(vorhanden), "x");
            } else {
                QVERIFY(QDir(baum_->ziel()).mkdir(vorhanden));
            }
            Laufprobe probe(vorschau ? baum_->erzeugen() : baum_->kopieren(datei));
            QCOMPARE(probe.laufen(), Ende::OrdnerFehler);
            QVERIFY2(probe.grund.contains(u"Es gibt ihn schon."_s), qPrintable(probe.grund));
            QCOMPARE(baum_->ordner(), datei ? QStringList() : QStringList{vorhanden});
            QVERIFY(probe.schritte.isEmpty());
        }
    }
    void inVorhandene()
    {
        const QDateTime alt(QDate(2000, 1, 1), QTime(1, 0)), neu(QDate(2020, 1, 1), QTime(1, 0));
        const auto paar = [&](const QString &name, const QByteArray &vorher, const QDateTime &zeit) {
            Bilderbaum::stellen(baum_->dazu(name, "quelle"), alt);
            Bilderbaum::stellen(Bilderbaum::schreiben(baum_->ziel(name), vorher), zeit);
        };
        paar(u"apfel/gleich.jpg"_s, "GLEICH", alt.addSecs(2)); // within the steps of the coarsest file system
        paar(u"apfel/kurz.jpg"_s, "kurz", alt);
        paar(u"apfel/neuer.jpg"_s, "NEUER!", neu);
        Bilderbaum::schreiben(baum_->ziel(u"apfel/eigenes.jpg"_s), "meins");
        baum_->dazu(u"obst/neu.jpg"_s, "neu");
        Bilderauftrag auftrag = baum_->kopieren(true);
        auftrag.frei = [](const QString &) { return qint64(3) * 4096; }; // the one that is skipped takes no room
        Laufprobe probe(auftrag);
        QVERIFY(auftrag.ordnerVorhanden());
        QCOMPARE(probe.laufen(), Ende::Fertig);
        QCOMPARE(probe.lauf.ausgelassen(), 0);
        QCOMPARE(probe.lauf.erledigt(), 4);
        QCOMPARE(Bilderbaum::inhalt(baum_->ziel(u"apfel/gleich.jpg"_s)), QByteArray("GLEICH"));
        for (const QString &name : {u"apfel/kurz.jpg"_s, u"apfel/neuer.jpg"_s})
            QCOMPARE(Bilderbaum::inhalt(baum_->ziel(name)), QByteArray("quelle"));
        QCOMPARE(Bilderbaum::inhalt(baum_->ziel(u"apfel/eigenes.jpg"_s)), QByteArray("meins"));
        QCOMPARE(baum_->ordner(), bilderordner);
    }

    void zuWenigPlatz()
    {
        baum_->dazu(u"apfel/a.jpg"_s, QByteArray(5000, 'x'));
        baum_->dazu(u"apfel/b.jpg"_s, "y");
        for (const qint64 frei : {qint64(0), qint64(12287), qint64(12288), qint64(-1)}) {
            Bilderauftrag auftrag = baum_->kopieren();
            auftrag.frei = [frei](const QString &) { return frei; };
            Laufprobe probe(auftrag);
            const bool genug = frei < 0 || frei >= 12288;
            if (genug && QDir(baum_->ziel(u"apfel"_s)).exists())
                QVERIFY(QDir(baum_->ziel()).removeRecursively() && QDir().mkdir(baum_->ziel()));
            QCOMPARE(probe.laufen(), genug ? Ende::Fertig : Ende::KeinPlatz);
            QCOMPARE(baum_->ordner().isEmpty(), !genug);
            QCOMPARE(probe.grund.contains(u"nicht genug Platz"_s), !genug);
        }
    }

    /// What is whole stays, what would have been cut does not.
    void vollerDatentraeger_data()
    {
        QTest::addColumn<bool>("vorschau");
        QTest::newRow("previews") << true;
        QTest::newRow("copies") << false;
    }
    void vollerDatentraeger()
    {
        QFETCH(bool, vorschau);
        // Noise of a preview's own size makes a preview of many bytes.
        QImage rauschen(133, 100, QImage::Format_RGB32);
        QRandomGenerator(5).fillRange(reinterpret_cast<quint32 *>(rauschen.bits()), rauschen.sizeInBytes() / 4);
        const QByteArray klein = jpeg(vierFarben(40, 30)), gross = vorschau ? jpeg(rauschen) : foto(3, 1600, 1200);
        for (const auto &[name, bild] : {std::pair(u"apfel/a.jpg"_s, klein), std::pair(u"apfel/b.jpg"_s, gross), std::pair(u"obst/c.jpg"_s, klein)})
            baum_->dazu(name, bild);
        Laufprobe probe(vorschau ? baum_->erzeugen() : baum_->kopieren());
        {
            const Dateigrenze grenze(vorschau ? rlim_t(3000) : rlim_t(100000));
            QCOMPARE(probe.laufen(), Ende::Voll);
        }
        QVERIFY2(probe.grund.contains(u"voll"_s), qPrintable(probe.grund));
        QVERIFY(probe.meldungen.isEmpty());
        QCOMPARE(baum_->dateien(), QStringList{vorschau ? u"vorschau/apfel/a.jpg"_s : u"apfel/a.jpg"_s});
        QVERIFY(!QImage(baum_->ziel(baum_->dateien().first())).isNull());
    }

    void unlesbareQuelle()
    {
        for (const QString &name : {u"apfel/a.jpg"_s, u"apfel/b.jpg"_s, u"apfel/c.jpg"_s})
            baum_->dazu(name, "x");
        Laufprobe probe(baum_->kopieren());
        probe.lauf.beginnen(); // the first one is in work, the second one waits for the message loop
        QFile::remove(baum_->quelle(u"apfel/b.jpg"_s));
        QTRY_VERIFY(probe.ende);
        QCOMPARE(*probe.ende, Ende::Fertig);
        QCOMPARE(probe.meldungen.size(), 1);
        QVERIFY2(probe.meldungen[0].startsWith(u"Apfel b.jpg: "_s) && probe.meldungen[0].endsWith(u"Sie ist nicht vorhanden."_s),
                 qPrintable(probe.meldungen[0]));
        QCOMPARE(baum_->dateien(), (QStringList{u"apfel/a.jpg"_s, u"apfel/c.jpg"_s}));
    }

    void keineBilder()
    {
        for (const QString &quelle : {baum_->quelle(), baum_->quelle(u"gibt es nicht"_s), QString()}) {
            Bilderauftrag auftrag = baum_->erzeugen();
            auftrag.quelle = quelle;
            Laufprobe probe(auftrag);
            QCOMPARE(probe.laufen(), Ende::KeineBilder);
            QVERIFY(baum_->ordner().isEmpty());
        }
    }

    /// What was finished when the cancel came is all there is, at every place.
    void abbrechen()
    {
        constexpr int anzahl = 12;
        for (int i = 0; i < anzahl; ++i)
            baum_->dazu(u"%1/%2.jpg"_s.arg(bilderordner[i % 5]).arg(i), foto(quint32(i)));
        for (const bool vorschau : {true, false})
            for (int nach = 0; nach <= anzahl; ++nach) {
                QVERIFY(QDir(baum_->ziel()).removeRecursively() && QDir().mkdir(baum_->ziel()));
                Laufprobe probe(vorschau ? baum_->erzeugen() : baum_->kopieren());
                probe.beimSchritt = [&] {
                    if (probe.schritte.size() == nach)
                        probe.lauf.abbrechen();
                };
                if (nach == 0)
                    probe.lauf.abbrechen();
                QCOMPARE(probe.laufen(), nach < anzahl ? Ende::Abgebrochen : Ende::Fertig);
                QCOMPARE(baum_->dateien().size(), nach);
                QCOMPARE(baum_->ordner().isEmpty(), nach == 0);
            }
    }

    /// The message loop has a turn before each picture.
    void fensterLebt()
    {
        constexpr int anzahl = 25;
        for (int i = 0; i < anzahl; ++i)
            baum_->dazu(u"obst/%1.jpg"_s.arg(i), foto(quint32(i)));
        Laufprobe probe(baum_->erzeugen());
        int runde = 0;
        QSet<int> runden;
        QTimer takt;
        connect(&takt, &QTimer::timeout, this, [&] { ++runde; });
        takt.start(0);
        probe.beimSchritt = [&] { runden.insert(runde); };
        QCOMPARE(probe.laufen(), Ende::Fertig);
        QVERIFY2(runden.size() > anzahl / 2, qPrintable(QString::number(runden.size())));
    }

    void abgeraeumtMittendrin()
    {
        const QByteArray bild = foto(1, 1600, 1200);
        for (int i = 0; i < 40; ++i)
            baum_->dazu(u"obst/%1.jpg"_s.arg(i), bild);
        for (const int nach : {0, 1, 5}) {
            QVERIFY(QDir(baum_->ziel()).removeRecursively() && QDir().mkdir(baum_->ziel()));
            auto probe = std::make_unique<Laufprobe>(baum_->erzeugen());
            probe->lauf.beginnen();
            QTRY_VERIFY(probe->schritte.size() >= nach);
            probe.reset();
            for (const QString &name : baum_->dateien())
                QVERIFY(!QImage(baum_->ziel(name)).isNull());
        }
    }

    /// A message that stands open may see the end of everything.
    void abgeraeumtInDerMeldung()
    {
        baum_->dazu(u"obst/a.jpg"_s, "x");
        auto probe = std::make_unique<Laufprobe>(baum_->erzeugen());
        bool gefragt = false;
        auto *lauf = &probe->lauf;
        lauf->melden = [&gefragt, &probe](const Bilderlauf::Fehlschlag &) {
            gefragt = true;
            bool &merker = gefragt;
            probe.reset();
            return merker;
        };
        lauf->beginnen();
        QTRY_VERIFY(gefragt);
        QVERIFY(!probe);
    }

private:
    std::optional<Bilderbaum> baum_;
};

FLOX_TEST(tst_bilderlauf, TestBilderlauf)
#include "tst_bilderlauf.moc"
