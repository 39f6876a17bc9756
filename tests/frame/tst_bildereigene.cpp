#include "Handgriffe.h"
#include "Rahmenprobe.h"

#include "pictures/Bilderstreifen.h"
#include "tests/pictures/Laufprobe.h"
#include "tests/Testprogramm.h"

#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

/// A photograph, taken upright: its pixels lie on their side.
QByteArray hochkant(quint32 saat)
{
    return mitExif(jpeg(gemischt(800, 600, saat)), 6, false);
}

} // namespace

/* The user's own photographs, from a Sparte's folder to the strip and its previews, by the menu. */
class TestBildereigene : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        probe_.emplace();
        for (const char *name : {"begonia-rex", "bougainvillea-glabra"})
            foto(u"topfpflanzen/%1.jpg"_s.arg(QLatin1String(name)), 1);
        const auto db = probe_->ordner.db();
        db->Execute(u"UPDATE Topfpfl_Bilder SET \"BILD1-G\" = 'eigenes-foto', \"BILD1-D\" = NULL"_s);
        for (const char *ordner : {"stauden", "gehoelze", "apfel", "obst"})
            foto(u"%1/eigenes.jpg"_s.arg(QLatin1String(ordner)), 3);
        foto(u"topfpflanzen/Eigenes-Foto.JPG"_s, 2); // as cameras and people write names
        probe_->laden();
    }

    /// Made by the assistant's second page, the previews are used at once, upright and small; damaged, they would be missed.
    void vorschauFolgt()
    {
        probe_->waehlen("mnudbtopfpflanzen");
        Pflanzenfenster *form = probe_->fenster(1);
        auto *streifen = form->findChild<Bilderstreifen *>();
        QTRY_COMPARE(bildgroesseImStreifen(streifen), QSize(75, 100));
        QVERIFY(!probe_->programm.LokaleVorschauBilder);

        const Antworten antworten;
        QTimer takt;
        int stand = 0;
        connect(&takt, &QTimer::timeout, this, [&] {
            QWidget *vorn = QApplication::activeModalWidget();
            if (!vorn || vorn->objectName() != u"frmBilderAssistent")
                return;
            // The next step before this one, which may open a form.
            switch (stand++) {
            case 0: hand::druecken(vorn, "cmdErweitert"); break;
            case 1: QTimer::singleShot(0, vorn, [vorn] { hand::druecken(vorn, "cmdVorschauBilderErstellen"); }); break;
            default:
                if (vorn->findChild<QLabel *>(u"lblVorschaubilderPfad"_s)->text().endsWith(u'/'))
                    hand::druecken(vorn, "cmdAbbrechen");
            }
        });
        takt.start(1);
        probe_->waehlen("mnuFloxBilder");
        QCOMPARE(antworten.texte, QStringList());
        QVERIFY(probe_->programm.LokaleVorschauBilder);
        QCOMPARE(QImage(probe_->ordner.pfad(u"vorschau/topfpflanzen/Eigenes-Foto.JPG"_s)).size(), QSize(75, 100));
        for (const char *ordner : {"stauden", "gehoelze", "apfel", "obst"})
            QVERIFY(QFile::exists(probe_->ordner.pfad(u"vorschau/%1/eigenes.jpg"_s.arg(QLatin1String(ordner)))));
        // The strip lives on the previews alone now.
        QVERIFY(QFile::remove(probe_->ordner.pfad(u"topfpflanzen/Eigenes-Foto.JPG"_s)));
        form->darstellen();
        QTRY_COMPARE(bildgroesseImStreifen(streifen), QSize(75, 100));
        QCOMPARE(streifen->anzahl(), 1);
        QCOMPARE(streifen->findChild<QWidget *>(u"imgFloxBild_0"_s)->property("MousePointer").toInt(), 99);
    }

    /// A drive with the CD: the menu's way 2, and windows ask for the disc when it is away.
    void cdKommtUndGeht()
    {
        const QTemporaryDir cd;
        for (const char *name : {"topfpflanzen/begonia-rex.jpg", "topfpflanzen/bougainvillea.jpg", "topfpflanzen/eigenes-foto.jpg",
                                 "stauden/armeria.jpg", "gehoelze/abies.jpg", "Winflox3.ico"})
            Bilderbaum::schreiben(cd.filePath(QLatin1String(name)), hochkant(5));
        std::vector<Laufwerk> laufwerke;
        probe_->zentrale->setLaufwerke([&] { return laufwerke; });
        probe_->waehlen("mnudbtopfpflanzen");
        Pflanzenfenster *form = probe_->fenster(1);

        Antworten antworten({u"OK"_s});
        antworten.davor = [&] { laufwerke = {{cd.path(), u"FLOX"_s}}; };
        QTimer takt;
        connect(&takt, &QTimer::timeout, this, [&] {
            QWidget *vorn = QApplication::activeModalWidget();
            if (!vorn || vorn->objectName() != u"frmBilderAssistent")
                return;
            takt.stop();
            hand::druecken(vorn, "cmdVorschlag2");
        });
        takt.start(1);
        probe_->waehlen("mnuFloxBilder");
        QCOMPARE(antworten.texte.size(), 1);
        QCOMPARE(probe_->programm.BilderPfad, cd.path() + u'\\');
        QVERIFY(probe_->programm.BilderAufCD);
        auto *panel = form->findChild<QLabel *>(u"stbAnzeige_3"_s);
        QVERIFY(panel && panel->text().isEmpty());
        QVERIFY(QDir(cd.path()).rename(u"topfpflanzen"_s, u"weg"_s));
        form->darstellen();
        QCOMPARE(panel->text(), u"Bitte Flox-CD einlegen!"_s);
        QVERIFY(QDir(cd.path()).rename(u"weg"_s, u"topfpflanzen"_s));
        form->darstellen();
        QCOMPARE(panel->text(), QString());
    }

private:
    void foto(const QString &datei, quint32 saat) const { Bilderbaum::schreiben(probe_->ordner.pfad(datei), hochkant(saat)); }
    /// Of the first picture that the strip shows.
    static QSize bildgroesseImStreifen(const Bilderstreifen *streifen)
    {
        const auto *platz = streifen->findChild<QWidget *>(u"imgFloxBild_0"_s);
        return platz->property("MousePointer").toInt() == 99 ? platz->size() : QSize();
    }

    std::optional<Rahmenprobe> probe_;
};

FLOX_TEST(tst_bildereigene, TestBildereigene)
#include "tst_bildereigene.moc"
