#include "tests/store/Datenordner.h"
#include "tests/Testprogramm.h"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTest>

/* The plates: every plant has two, the same record gives the same bytes, different plants look different. */
class TestTafeln : public QObject
{
    Q_OBJECT

private slots:
    void zweiTafelnJePflanze();
    void zweimalDasselbe();
    void verschiedenePflanzen();
    void nurGeaendertes();
    void nichtsLiegtAufeinander_data();
    void nichtsLiegtAufeinander();
    void ohneDatenbank();

private:
    QByteArray zeichnen(const Datenordner &ordner, const QString &sammlung, const QString &anfang, int *ende = nullptr)
    {
        QProcess prozess;
        prozess.start(QStringLiteral(FLOX_TAFELMACHER), {ordner.datenbank(), ordner.pfad(), sammlung, ordner.pfad(QStringLiteral("stand")), anfang});
        if (!prozess.waitForFinished(120000))
            qFatal("The plates take too long.");
        if (ende)
            *ende = prozess.exitCode();
        return prozess.readAllStandardError();
    }
    QByteArray inhalt(const QString &pfad)
    {
        QFile datei(pfad);
        return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray();
    }
};

void TestTafeln::zweiTafelnJePflanze()
{
    const Datenordner ordner;
    int ende = -1;
    const QByteArray meldung = zeichnen(ordner, QStringLiteral("topfpflanzen"), QStringLiteral("cyclamen"), &ende);
    QVERIFY2(ende == 0, meldung.constData());
    QCOMPARE(QDir(ordner.pfad(QStringLiteral("topfpflanzen"))).entryList(QDir::Files),
             QStringList({QStringLiteral("cyclamen-persicum-detail.jpg"), QStringLiteral("cyclamen-persicum.jpg")}));
    for (const QString &name : {QStringLiteral("cyclamen-persicum"), QStringLiteral("cyclamen-persicum-detail")})
        QCOMPARE(QImage(ordner.pfad(QStringLiteral("topfpflanzen/%1.jpg").arg(name))).size(), QSize(1040, 780));
}

void TestTafeln::zweimalDasselbe()
{
    const Datenordner eins, zwei;
    zeichnen(eins, QStringLiteral("apfel"), QStringLiteral("boskoop"));
    zeichnen(zwei, QStringLiteral("apfel"), QStringLiteral("boskoop"));
    for (const QString &name : {QStringLiteral("apfel/boskoop.jpg"), QStringLiteral("apfel/boskoop-detail.jpg")}) {
        const QByteArray tafel = inhalt(eins.pfad(name));
        QVERIFY(!tafel.isEmpty());
        QCOMPARE(tafel, inhalt(zwei.pfad(name)));
    }
}

void TestTafeln::verschiedenePflanzen()
{
    const Datenordner ordner;
    zeichnen(ordner, QStringLiteral("topfpflanzen"), QStringLiteral("begonia"));
    QSet<QByteArray> tafeln;
    const QFileInfoList dateien = QDir(ordner.pfad(QStringLiteral("topfpflanzen"))).entryInfoList({QStringLiteral("begonia*")}, QDir::Files);
    for (const QFileInfo &datei : dateien)
        tafeln.insert(inhalt(datei.filePath()));
    QVERIFY(dateien.size() >= 10);
    QCOMPARE(tafeln.size(), dateien.size());
}

/// A second run leaves what stands; a changed record draws its own two plates, one that is gone loses them.
void TestTafeln::nurGeaendertes()
{
    const Datenordner ordner;
    const QString sammlung = QStringLiteral("topfpflanzen"), anfang = QStringLiteral("cycl"),
                  tafel = ordner.pfad(QStringLiteral("topfpflanzen/cyclamen-persicum.jpg"));
    zeichnen(ordner, sammlung, anfang);
    const QByteArray gezeichnet = inhalt(tafel);
    const auto ueberschreiben = [&] {
        QFile datei(tafel);
        QVERIFY(datei.open(QIODevice::WriteOnly) && datei.write("steht noch") > 0);
    };
    ueberschreiben();
    zeichnen(ordner, sammlung, anfang);
    QCOMPARE(inhalt(tafel), QByteArray("steht noch"));

    ordner.db()->Execute(QStringLiteral("UPDATE Topfpfl SET MAXHOEHE = 0.6 WHERE BOT_NAME LIKE 'Cyclamen*'"));
    zeichnen(ordner, sammlung, anfang);
    QVERIFY(inhalt(tafel).size() > 10000);
    QVERIFY(inhalt(tafel) != gezeichnet);

    ordner.db()->Execute(QStringLiteral("DELETE FROM Topfpfl WHERE BOT_NAME LIKE 'Cyclamen*'"));
    zeichnen(ordner, sammlung, anfang);
    QVERIFY(!QFile::exists(tafel));
}

void TestTafeln::nichtsLiegtAufeinander_data()
{
    QTest::addColumn<QString>("ordner");
    for (const char *ordner : {"topfpflanzen", "stauden", "gehoelze", "apfel", "obst"})
        QTest::newRow(ordner) << QString::fromUtf8(ordner);
}

/// The build measured every text, line and drawing of every plate: see the last number of each line.
void TestTafeln::nichtsLiegtAufeinander()
{
    QFETCH(QString, ordner);
    QFile stand(QStringLiteral(FLOX_STAND "/tafeln-%1.stand").arg(ordner));
    QVERIFY2(stand.open(QIODevice::ReadOnly), qPrintable(stand.fileName()));
    QStringList schlecht;
    for (const QByteArray &zeile : stand.readAll().split('\n')) {
        const QList<QByteArray> worte = zeile.split(' ');
        if (zeile.isEmpty())
            continue;
        QCOMPARE(worte.size(), 4);
        if (worte[2] != "0")
            schlecht += QString::fromUtf8(worte[3] + ": " + worte[2]);
    }
    QVERIFY2(schlecht.isEmpty(), qPrintable(schlecht.join(QStringLiteral(", "))));
}

void TestTafeln::ohneDatenbank()
{
    const Datenordner ordner;
    QVERIFY(QFile::remove(ordner.datenbank()));
    int ende = 0;
    const QString meldung = QString::fromUtf8(zeichnen(ordner, QStringLiteral("topfpflanzen"), QStringLiteral("x"), &ende));
    QVERIFY(ende != 0);
    QVERIFY2(meldung.contains(QStringLiteral("wurde nicht gefunden")), qPrintable(meldung));
}

FLOX_TEST(tst_tafeln, TestTafeln)
#include "tst_tafeln.moc"
