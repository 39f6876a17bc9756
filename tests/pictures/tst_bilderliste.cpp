#include "Bildprobe.h"

#include "tests/Testprogramm.h"

#include <QTest>

/* The rules by which a plant's picture row becomes pictures. */
class tst_bilderliste : public QObject
{
    Q_OBJECT

private slots:
    void stripTakesFiveOfEachHalf();
    void stripPassesOverNulls();
    void fehltLeavesNoGap();
    void missingFileIsNamed();
    void windowEndsAHalfAtNull();
    void windowTakesFourOfEachHalf();
    void missingPictureKeepsTheCaptionOfItsPlace();
    void folders_data();
    void folders();
    void medium_data();
    void medium();
    void mediumComesBack_data();
    void mediumComesBack();
    void unreadableHeadCountsAsMissing_data();
    void unreadableHeadCountsAsMissing();
    void localPreviewsComeFirst();
};

namespace {

const QString topf = QStringLiteral("topfpflanzen");

QStringList namen(const std::vector<Bildeintrag> &bilder)
{
    QStringList liste;
    for (const Bildeintrag &bild : bilder)
        liste += QFileInfo(QString(bild.pfad).replace(u'\\', u'/')).completeBaseName();
    return liste;
}

} // namespace

void tst_bilderliste::stripTakesFiveOfEachHalf()
{
    const Bilderordner ordner;
    const QStringList g{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"), QStringLiteral("d"), QStringLiteral("e")};
    const QStringList d{QStringLiteral("f"), QStringLiteral("g"), QStringLiteral("h"), QStringLiteral("i"), QStringLiteral("j")};
    for (const QString &name : g + d)
        ordner.bild(QStringLiteral("topfpflanzen/%1.jpg").arg(name), {40, 30});
    const auto bilder = streifenbilder(ordner.programm(), zeileAus(g, d), topf);
    QCOMPARE(namen(bilder), g + d);
    QCOMPARE(bilder[5].beschreibung, QStringLiteral("Text f"));
    QVERIFY(std::ranges::all_of(bilder, &Bildeintrag::vorhanden));
}

void tst_bilderliste::stripPassesOverNulls()
{
    const Bilderordner ordner;
    const auto bilder =
        streifenbilder(ordner.programm(), zeileAus({QStringLiteral("begonia-rex"), {}, QStringLiteral("bougainvillea-glabra")}, {}), topf);
    QCOMPARE(namen(bilder), QStringList({QStringLiteral("begonia-rex"), QStringLiteral("bougainvillea-glabra")}));
}

void tst_bilderliste::fehltLeavesNoGap()
{
    const Bilderordner ordner;
    const Bildzeile zeile = zeileAus({QStringLiteral("begonia-rex"), QStringLiteral("fehlt"), QStringLiteral("bougainvillea-glabra")}, {});
    QCOMPARE(streifenbilder(ordner.programm(), zeile, topf).size(), size_t(2));
    QCOMPARE(fensterbilder(ordner.programm(), zeile, topf, {}).size(), size_t(2));
}

void tst_bilderliste::missingFileIsNamed()
{
    const Bilderordner ordner;
    const auto bilder = streifenbilder(ordner.programm(), zeileAus({QStringLiteral("verschwunden")}, {}), topf);
    QCOMPARE(bilder.size(), size_t(1));
    QCOMPARE(bilder[0].pfad, ersatzbild(ordner.programm()));
    QCOMPARE(bilder[0].beschreibung, QStringLiteral("verschwunden.jpg"));
    QVERIFY(!bilder[0].vorhanden);
}

void tst_bilderliste::windowEndsAHalfAtNull()
{
    const Bilderordner ordner;
    for (const char *name : {"a", "b", "c"})
        ordner.bild(QStringLiteral("topfpflanzen/%1.jpg").arg(QLatin1String(name)), {40, 30});
    const auto bilder = fensterbilder(ordner.programm(), zeileAus({QStringLiteral("a"), {}, QStringLiteral("b")}, {QStringLiteral("c")}), topf, {});
    QCOMPARE(namen(bilder), QStringList({QStringLiteral("a"), QStringLiteral("c")}));
}

void tst_bilderliste::windowTakesFourOfEachHalf()
{
    const Bilderordner ordner;
    ordner.bild(QStringLiteral("topfpflanzen/x.jpg"), {40, 30});
    const QStringList fuenf(5, QStringLiteral("x"));
    QCOMPARE(fensterbilder(ordner.programm(), zeileAus(fuenf, fuenf), topf, {}).size(), size_t(8));
}

void tst_bilderliste::missingPictureKeepsTheCaptionOfItsPlace()
{
    const Bilderordner ordner;
    std::array<QString, groessteBilderzahl> vorige;
    vorige[1] = QStringLiteral("von vorhin");
    const auto bilder = fensterbilder(ordner.programm(), zeileAus({QStringLiteral("begonia-rex"), QStringLiteral("weg")}, {}), topf, vorige);
    QCOMPARE(bilder[1].beschreibung, QStringLiteral("von vorhin"));
    QCOMPARE(bilder[1].pfad, ersatzbild(ordner.programm()));
}

void tst_bilderliste::folders_data()
{
    QTest::addColumn<int>("sparte");
    QTest::addColumn<int>("nummer");
    QTest::addColumn<QString>("ordner");
    // clang-format off
    const std::tuple<Sparte, int, const char *> zeilen[] = {
        {Sparte::Topf, 2500, "topfpflanzen"}, {Sparte::Stauden, 1, "stauden"},     {Sparte::Gehoelze, 1, "gehoelze"},
        {Sparte::Apfel, 5001, "apfel"},       {Sparte::Obst, 1, "obst"},           {Sparte::Friedhof, 1999, "stauden"},
        {Sparte::Friedhof, 2000, "gehoelze"}, {Sparte::Friedhof, 2999, "gehoelze"}, {Sparte::Friedhof, 3000, "stauden"}};
    // clang-format on
    for (const auto &[sparte, nummer, ordner] : zeilen)
        QTest::addRow("%s %d", ordner, nummer) << int(sparte) << nummer << QString::fromLatin1(ordner);
}

void tst_bilderliste::folders()
{
    QFETCH(int, sparte);
    QFETCH(int, nummer);
    QFETCH(QString, ordner);
    QCOMPARE(bildordner(Sparte(sparte), nummer), ordner);
}

void tst_bilderliste::medium_data()
{
    QTest::addColumn<bool>("da");
    QTest::addColumn<bool>("aufCD");
    QTest::addColumn<bool>("unbekannt");
    QTest::addColumn<QString>("hinweis");
    QTest::addRow("there") << true << false << false << QString();
    QTest::addRow("missing, on the disk") << false << false << true << QString();
    QTest::addRow("missing, on the CD") << false << true << false << QStringLiteral("Bitte Flox-CD einlegen!");
}

void tst_bilderliste::medium()
{
    QFETCH(bool, da);
    QFETCH(bool, aufCD);
    QFETCH(bool, unbekannt);
    QFETCH(QString, hinweis);
    const Bilderordner ordner(da);
    Programm programm = ordner.programm();
    programm.BilderAufCD = aufCD;
    programm.LokaleVorschauBilder = true;
    QCOMPARE(mediumFehlt(programm), !da && aufCD);
    const Medium befund = bildMediumPruefen(programm);
    QCOMPARE(befund.unbekannt, unbekannt);
    QCOMPARE(befund.hinweis, hinweis);
    QCOMPARE(programm.BilderPfad.isEmpty(), unbekannt);
    QVERIFY(!programm.LokaleVorschauBilder);
}

void tst_bilderliste::mediumComesBack_data()
{
    QTest::addColumn<QString>("gewaehlt");
    QTest::addColumn<bool>("wahl");
    QTest::addRow("nothing chosen") << QString() << false;
    QTest::addRow("no folder chosen") << QString() << true;
    QTest::addRow("another folder chosen") << QStringLiteral("anderswo") << true;
}

/// A folder that was away for a moment is taken again, unless the user has chosen in the meantime.
void tst_bilderliste::mediumComesBack()
{
    QFETCH(QString, gewaehlt);
    QFETCH(bool, wahl);
    const Bilderordner ordner;
    Programm programm = ordner.programm();
    const QString bilder = ordner.pfad(QStringLiteral("topfpflanzen")), fort = ordner.pfad(QStringLiteral("fort"));
    for (int lauf = 0; lauf < 2; ++lauf) {
        programm.BilderPfad = ordner.pfad();
        QVERIFY(QDir().rename(bilder, fort));
        for (int blick = 0; blick < 3; ++blick) { // every record that is shown looks for it
            QVERIFY(bildMediumPruefen(programm).unbekannt);
            QCOMPARE(programm.BilderPfad, QString());
        }
        if (wahl)
            bilderPfadWaehlen(programm, gewaehlt.isEmpty() ? QString() : ordner.pfad(gewaehlt));
        QVERIFY(QDir().rename(fort, bilder));
        QCOMPARE(bildMediumPruefen(programm).unbekannt, wahl);
        QCOMPARE(programm.BilderPfad, wahl ? QString() : ordner.pfad());
        const auto gezeigt = streifenbilder(programm, zeileAus({QStringLiteral("begonia-rex")}, {}), topf);
        QCOMPARE(gezeigt.at(0).vorhanden, !wahl);
    }
}

void tst_bilderliste::unreadableHeadCountsAsMissing_data()
{
    QTest::addColumn<QByteArray>("inhalt");
    QTest::addRow("empty") << QByteArray();
    QTest::addRow("text") << QByteArray("Begonia rex");
    QTest::addRow("start mark") << QByteArray("\xFF\xD8");
}

void tst_bilderliste::unreadableHeadCountsAsMissing()
{
    QFETCH(QByteArray, inhalt);
    const Bilderordner ordner;
    QFile datei(ordner.pfad(QStringLiteral("topfpflanzen/schlecht.jpg")));
    QVERIFY(datei.open(QIODevice::WriteOnly) && datei.write(inhalt) == inhalt.size());
    datei.close();
    const Bildzeile zeile = zeileAus({QStringLiteral("schlecht"), QStringLiteral("begonia-rex")}, {});
    for (const auto &bilder : {streifenbilder(ordner.programm(), zeile, topf), fensterbilder(ordner.programm(), zeile, topf, {})}) {
        QCOMPARE(namen(bilder), QStringList({QStringLiteral("bildfehlt"), QStringLiteral("begonia-rex")}));
        QVERIFY(!bilder[0].vorhanden && bilder[1].vorhanden);
    }
}

void tst_bilderliste::localPreviewsComeFirst()
{
    const Bilderordner ordner(false);
    for (const char *name : {"begonia-rex", "bougainvillea-glabra"})
        ordner.bild(QStringLiteral("vorschau/topfpflanzen/%1.jpg").arg(QLatin1String(name)), {40, 30});
    Programm programm = ordner.programm();
    programm.BilderAufCD = true;
    QCOMPARE(bildMediumPruefen(programm).hinweis, QString());
    QVERIFY(programm.LokaleVorschauBilder);
    const auto bilder = streifenbilder(programm, zeileAus({QStringLiteral("begonia-rex")}, {}), topf);
    QVERIFY2(bilder.at(0).vorhanden && bilder[0].pfad.contains(u"vorschau"), qPrintable(bilder[0].pfad));
}

FLOX_TEST(tst_bilderliste, tst_bilderliste)
#include "tst_bilderliste.moc"
