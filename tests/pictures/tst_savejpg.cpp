#include "Bildhilfen.h"

#include "pictures/cDIBSection.h"
#include "pictures/mIntelJPEGLibrary.h"
#include "tests/Testprogramm.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace {

/// Text of the failure, and whether the disk was full; empty where there was none.
QString fehlertext(const cDIBSection &dib, const QString &pfad, int qualitaet)
{
    try {
        mIntelJPEGLibrary::SaveJPG(dib, pfad, qualitaet);
    } catch (const JPEGFehler &fehler) {
        return fehler.nummer() == 0x80040001 ? fehler.text() + (fehler.voll() ? u" (voll)"_s : QString()) : u"falsche Nummer"_s;
    }
    return {};
}

} // namespace

/* The JPEG writer and its two failures. */
class TestSaveJPG : public QObject
{
    Q_OBJECT

private slots:
    void liestSichZurueck()
    {
        // 13 pixels: rows are padded.
        for (const QSize groesse : {QSize(64, 48), QSize(13, 50), QSize(1, 1)}) {
            const QImage bild = vierFarben(groesse.width(), groesse.height()).convertToFormat(QImage::Format_Grayscale8);
            cDIBSection dib;
            dib.CreateFromPicture(bild);
            const QString pfad = ordner_.pfad(u"grau.jpg"_s);
            QVERIFY(mIntelJPEGLibrary::SaveJPG(dib, pfad, 100));
            QVERIFY(abstand(QImage(pfad), bild) <= 6);
        }
    }

    void farbenUndOben()
    {
        cDIBSection dib;
        dib.CreateFromPicture(vierFarben(64, 64));
        const QString pfad = ordner_.pfad(u"farbe.jpg"_s);
        QVERIFY(mIntelJPEGLibrary::SaveJPG(dib, pfad, 90));
        const QImage bild(pfad);
        for (const QPoint punkt : {QPoint(10, 10), QPoint(50, 10), QPoint(10, 50), QPoint(50, 50)})
            QVERIFY(abstand(bild.copy(punkt.x(), punkt.y(), 1, 1), vierFarben(64, 64).copy(punkt.x(), punkt.y(), 1, 1)) < 12);
    }

    void guete()
    {
        cDIBSection dib;
        dib.CreateFromPicture(gemischt(160, 120, 4));
        QVERIFY(mIntelJPEGLibrary::SaveJPG(dib, ordner_.pfad(u"1.jpg"_s), 1));
        QVERIFY(mIntelJPEGLibrary::SaveJPG(dib, ordner_.pfad(u"75.jpg"_s), 75));
        QVERIFY(mIntelJPEGLibrary::SaveJPG(dib, ordner_.pfad(u"100.jpg"_s), 100));
        QVERIFY(QFileInfo(ordner_.pfad(u"1.jpg"_s)).size() < QFileInfo(ordner_.pfad(u"75.jpg"_s)).size());
        QVERIFY(QFileInfo(ordner_.pfad(u"75.jpg"_s)).size() < QFileInfo(ordner_.pfad(u"100.jpg"_s)).size());
    }

    void misslungenesSchreiben()
    {
        const QString misslungen = u"Speichern fehlgeschlagen"_s;
        cDIBSection dib;
        QCOMPARE(fehlertext(dib, ordner_.pfad(u"leer.jpg"_s), 75), misslungen);
        dib.CreateFromPicture(vierFarben(8, 8));
        const QString alt = ordner_.schreibe("alt", u"alt.jpg"_s);
        for (const int qualitaet : {-1, 101})
            QCOMPARE(fehlertext(dib, alt, qualitaet), misslungen);
        QFile datei(alt);
        QVERIFY(datei.open(QIODevice::ReadOnly));
        QCOMPARE(datei.readAll(), QByteArray("alt"));
        QCOMPARE(fehlertext(dib, ordner_.pfad(u"keinordner/neu.jpg"_s), 75), misslungen);
        QCOMPARE(fehlertext(dib, alt + u"/neu.jpg"_s, 75), misslungen);
        QCOMPARE(fehlertext(dib, QString(), 75), misslungen);
        QVERIFY(dib.Create(70000, 1)); // wider than a JPEG can be
        QCOMPARE(fehlertext(dib, alt, 75), misslungen);
    }

    void gesperrterOrdner()
    {
#ifdef Q_OS_UNIX
        if (geteuid() == 0)
            QSKIP("root writes everywhere");
#endif
        const QString gesperrt = ordner_.pfad(u"gesperrt"_s);
        QVERIFY(QDir().mkdir(gesperrt));
        QVERIFY(QFile::setPermissions(gesperrt, QFileDevice::ReadOwner | QFileDevice::ExeOwner));
        cDIBSection dib;
        dib.CreateFromPicture(vierFarben(8, 8));
        QCOMPARE(fehlertext(dib, gesperrt + u"/neu.jpg"_s, 75), u"Speichern fehlgeschlagen"_s);
        QFile::setPermissions(gesperrt, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    }

    void volleScheibe()
    {
#ifdef Q_OS_UNIX
        cDIBSection dib;
        dib.CreateFromPicture(gemischt(200, 200, 6));
        const QString alt = ordner_.schreibe("alt", u"voll.jpg"_s);
        rlimit vorher{};
        QCOMPARE(getrlimit(RLIMIT_FSIZE, &vorher), 0);
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit eng{1000, vorher.rlim_max};
        setrlimit(RLIMIT_FSIZE, &eng);
        const QString text = fehlertext(dib, alt, 75);
        setrlimit(RLIMIT_FSIZE, &vorher);
        QCOMPARE(text, u"Speichern fehlgeschlagen (voll)"_s);
        QCOMPARE(QFileInfo(alt).size(), 3);
#endif
    }

    void ohneBibliothek()
    {
        cDIBSection dib;
        dib.CreateFromPicture(vierFarben(8, 8));
        const auto vorher = mIntelJPEGLibrary::anfang;
        mIntelJPEGLibrary::anfang = []() -> void * { return nullptr; };
        const QString text = fehlertext(dib, ordner_.pfad(u"nie.jpg"_s), 75);
        mIntelJPEGLibrary::anfang = vorher;
        QCOMPARE(text, u"IJL-Library kann nicht initialisiert werden: 1"_s);
        QVERIFY(!QFileInfo::exists(ordner_.pfad(u"nie.jpg"_s)));
    }

    void schreibweiseDesPfades()
    {
        cDIBSection dib;
        dib.CreateFromPicture(vierFarben(8, 8));
        QVERIFY(QDir().mkdir(ordner_.pfad(u"Vorschau"_s)));
        QVERIFY(mIntelJPEGLibrary::SaveJPG(dib, ordner_.pfad(u"vorschau\\Märzenbecher.jpg"_s), 75));
        QVERIFY(QFileInfo::exists(ordner_.pfad(u"Vorschau/Märzenbecher.jpg"_s)));
    }

private:
    Bildordner ordner_;
};

FLOX_TEST(tst_savejpg, TestSaveJPG)
#include "tst_savejpg.moc"
