#include "Datenhilfen.h"
#include "Rechte.h"

#include "store/Dateien.h"
#include "store/Programm.h"
#include "store/Sicherungen.h"
#include "tests/Testprogramm.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

/* Files that are kept before they are replaced. */
class TestSicherungen : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        ordner_.emplace();
        programm_ = {};
        programm_.ProgrammPfad = ordner_->path();
        zeit_ = QDateTime(QDate(2026, 11, 22), QTime(7, 31, 5));
    }

    void datiertNebenDemProgramm()
    {
        schreiben(pfad(u"flox-demo.mdb"_s), "eins");
        const QString kopie = aufheben(u"flox-demo.mdb"_s);
        QCOMPARE(kopie, pfad(u"sicherungen/flox-demo 2026-11-22 07-31-05.mdb"_s));
        QCOMPARE(inhalt(kopie), QByteArray("eins"));
        QCOMPARE(inhalt(pfad(u"flox-demo.mdb"_s)), QByteArray("eins"));
        QCOMPARE(aufheben(u"fehlt.mdb"_s), QString());
        QCOMPARE(namen().size(), 1);
    }

    void namenMitBesonderheiten_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("kopie");
        QTest::newRow("zwei Punkte") << u"Garten 1.5.fit"_s << u"Garten 1.5 2026-11-22 07-31-05.fit"_s;
        QTest::newRow("ohne Endung") << u"Garten"_s << u"Garten 2026-11-22 07-31-05"_s;
        QTest::newRow("Klammern") << u"a (b) [c] +.fit"_s << u"a (b) [c] + 2026-11-22 07-31-05.fit"_s;
    }
    /// Whatever the name is, the last ten of it stay.
    void namenMitBesonderheiten()
    {
        QFETCH(QString, name);
        QFETCH(QString, kopie);
        for (int i = 0; i < 13; ++i) {
            schreiben(pfad(name), QByteArray::number(i));
            const QString neu = aufheben(name);
            if (i == 0)
                QCOMPARE(QFileInfo(neu).fileName(), kopie);
            zeit_ = zeit_.addSecs(61);
        }
        QCOMPARE(inhalte(), (QByteArrayList{"10", "11", "12", "3", "4", "5", "6", "7", "8", "9"}));
    }

    void dieLetztenZehn()
    {
        for (int i = 0; i < 25; ++i) {
            schreiben(pfad(u"a.fit"_s), "a" + QByteArray::number(100 + i));
            (void)aufheben(u"a.fit"_s);
            if (i % 5 == 0) {
                schreiben(pfad(u"b.fit"_s), "b" + QByteArray::number(100 + i));
                (void)aufheben(u"b.fit"_s);
            }
            zeit_ = zeit_.addSecs(1);
        }
        // Those of another name count for themselves.
        QByteArrayList erwartet{"b100", "b105", "b110", "b115", "b120"};
        for (int i = 15; i < 25; ++i)
            erwartet += "a" + QByteArray::number(100 + i);
        std::ranges::sort(erwartet);
        QCOMPARE(inhalte(), erwartet);
    }

    void imSelbenAugenblick()
    {
        for (int i = 0; i < 12; ++i) {
            schreiben(pfad(u"a.fit"_s), QByteArray::number(100 + i));
            QCOMPARE(inhalt(aufheben(u"a.fit"_s)), QByteArray::number(100 + i));
        }
        QCOMPARE(inhalte(), (QByteArrayList{"102", "103", "104", "105", "106", "107", "108", "109", "110", "111"}));
    }

    /// It takes the new date, so that it is not the next to go.
    void gleicheNichtZweimal()
    {
        schreiben(pfad(u"a.fit"_s), "immer wieder");
        (void)aufheben(u"a.fit"_s);
        for (int i = 0; i < 30; ++i) {
            zeit_ = zeit_.addSecs(1);
            schreiben(pfad(u"a.fit"_s), i % 3 ? QByteArray("anders") + QByteArray::number(i) : QByteArray("immer wieder"));
            (void)aufheben(u"a.fit"_s);
            QCOMPARE(inhalte().count("immer wieder"), 1);
        }
        QCOMPARE(namen().size(), sicherungen::meiste);
        // The name does not matter, and it stays.
        schreiben(pfad(u"b.fit"_s), "immer wieder");
        QVERIFY(QFileInfo(aufheben(u"b.fit"_s)).fileName().startsWith(u"a "_s));
        QCOMPARE(namen().size(), sicherungen::meiste);
    }

    /// A clock that was set back must not make the newest one the oldest.
    void uhrZurueckgestellt()
    {
        for (int i = 0; i < 12; ++i) {
            schreiben(pfad(u"a.fit"_s), QByteArray::number(i));
            QCOMPARE(inhalt(aufheben(u"a.fit"_s)), QByteArray::number(i));
            zeit_ = zeit_.addDays(-1);
        }
        QVERIFY(inhalte().contains("11"));
        QCOMPARE(namen().size(), sicherungen::meiste);
    }

    /// A file that is about to be read goes neither for its age nor for another date.
    void gebrauchteBleibt()
    {
        for (int i = 0; i < sicherungen::meiste; ++i) {
            zeit_ = zeit_.addSecs(1);
            schreiben(pfad(u"a.fit"_s), QByteArray::number(i));
            (void)aufheben(u"a.fit"_s);
        }
        const QString aelteste = pfad(u"sicherungen/"_s + namen().constFirst());
        QCOMPARE(inhalt(aelteste), "0");
        zeit_ = zeit_.addSecs(1);
        schreiben(pfad(u"a.fit"_s), "neu");
        QVERIFY(!sicherungen::aufheben(programm_, pfad(u"a.fit"_s), zeit_, aelteste).isEmpty());
        QCOMPARE(inhalt(aelteste), "0");
        // The same when it equals what is kept.
        zeit_ = zeit_.addSecs(1);
        schreiben(pfad(u"a.fit"_s), "0");
        QCOMPARE(QFileInfo(sicherungen::aufheben(programm_, pfad(u"a.fit"_s), zeit_, aelteste)), QFileInfo(aelteste));
        QCOMPARE(inhalt(aelteste), "0");
    }

    void fremdeBleiben()
    {
        QVERIFY(QDir(ordner_->path()).mkdir(u"sicherungen"_s));
        for (const char *name : {"a.fit", "a 2026.fit", "a 2026-11-22 07-31-05 zwei.fit", "Notiz.txt"})
            schreiben(pfad(u"sicherungen/"_s + QString::fromLatin1(name)), name);
        for (int i = 0; i < 20; ++i) {
            schreiben(pfad(u"a.fit"_s), QByteArray::number(i));
            (void)aufheben(u"a.fit"_s);
        }
        QCOMPARE(namen().size(), sicherungen::meiste + 4);
    }

    void geschuetzterOrdner()
    {
        schreiben(pfad(u"a.fit"_s), "a");
        {
            const NurLesen sperre(ordner_->path());
            const QString text = fehlerVon([&] { (void)aufheben(u"a.fit"_s); });
            QVERIFY2(text.contains(u"sicherungen"_s) && text.contains(u"schreibgeschützt"_s), qPrintable(text));
        }
        QCOMPARE(namen(), QStringList());
        schreiben(pfad(u"sicherungen"_s), "eine Datei");
        QVERIFY(!fehlerVon([&] { (void)aufheben(u"a.fit"_s); }).isEmpty());
        QCOMPARE(inhalt(pfad(u"sicherungen"_s)), QByteArray("eine Datei"));
    }

    void vollerDatentraeger()
    {
        schreiben(pfad(u"a.fit"_s), QByteArray(200000, 'x'));
        {
            const Dateigrenze grenze(100000);
            const QString text = fehlerVon([&] { (void)aufheben(u"a.fit"_s); });
            QVERIFY2(text.contains(u"voll"_s), qPrintable(text));
        }
        QCOMPARE(namen(), QStringList());
    }

private:
    QString pfad(const QString &name) const { return ordner_->filePath(name); }
    QString aufheben(const QString &name) { return sicherungen::aufheben(programm_, pfad(name), zeit_); }
    QStringList namen() const { return QDir(pfad(u"sicherungen"_s)).entryList(QDir::Files | QDir::Hidden); }
    QByteArrayList inhalte() const
    {
        QByteArrayList alle;
        for (const QString &name : namen())
            alle += inhalt(pfad(u"sicherungen/"_s + name));
        std::ranges::sort(alle);
        return alle;
    }

    std::optional<QTemporaryDir> ordner_;
    Programm programm_;
    QDateTime zeit_;
};

FLOX_TEST(tst_sicherungen, TestSicherungen)
#include "tst_sicherungen.moc"
