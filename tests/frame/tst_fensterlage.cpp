#include "Rahmenprobe.h"

#include "tests/Fensterverwaltung.h"

#include <QApplication>
#include <QTest>

using namespace Qt::StringLiterals;

/* Place and size of the main window in a frame that a window manager draws around it. */

class TestFensterlage : public QObject
{
    Q_OBJECT

public:
    explicit TestFensterlage(const QString &fehlt) : fehlt_(fehlt) {}

private slots:
    void initTestCase();
    void init() { probe_ = std::make_unique<Rahmenprobe>(); }
    void cleanup() { probe_.reset(); }
    void lageBleibt_data();
    void lageBleibt();
    void verschobenUndMaximiert();

private:
    void zustand(Qt::WindowStates zustand);
    QRect gespeichert() const;

    QString fehlt_;
    std::unique_ptr<Rahmenprobe> probe_;
};

void TestFensterlage::initTestCase()
{
    if (!fehlt_.isEmpty())
        QSKIP(qPrintable(fehlt_));
}

QRect TestFensterlage::gespeichert() const
{
    const Programm &p = probe_->programm;
    return {pixel(double(p.MdiLinks)), pixel(double(p.MdiOben)), pixel(double(p.MdiBreite)), pixel(double(p.MdiHoehe))};
}

void TestFensterlage::zustand(Qt::WindowStates zustand)
{
    mdiZentral *fenster = probe_->zentrale.get();
    fenster->setWindowState(zustand);
    QTRY_COMPARE(fenster->windowState(), zustand);
    QTest::qWait(150);
}

void TestFensterlage::lageBleibt_data()
{
    QTest::addColumn<QList<int>>("zustaende"); // one after another, the first one at the start
    const auto zeile = [](const char *name, const QList<int> &zustaende) { QTest::newRow(name) << zustaende; };
    zeile("normal", {0});
    zeile("minimised", {1});
    zeile("maximised", {2});
    zeile("normal, minimised", {0, 1});
    zeile("normal, maximised", {0, 2});
    zeile("normal, maximised, normal", {0, 2, 0});
    zeile("maximised, normal", {2, 0});
    zeile("maximised, normal, maximised", {2, 0, 2});
    zeile("maximised, normal, minimised", {2, 0, 1});
    zeile("minimised, normal, maximised", {1, 0, 2});
}

void TestFensterlage::lageBleibt()
{
    QFETCH(const QList<int>, zustaende);
    const QRect lage(120, 90, 900, 600);
    Programm &p = probe_->programm;
    p.MdiLinks = lage.x() * 15;
    p.MdiOben = lage.y() * 15;
    p.MdiBreite = lage.width() * 15;
    p.MdiHoehe = lage.height() * 15;
    for (int lauf = 0; lauf < 3; ++lauf) {
        p.MdiStatus = zustaende.constFirst();
        probe_->zentrale = std::make_unique<mdiZentral>(p);
        probe_->zentrale->show();
        for (const int status : zustaende)
            zustand(status == 1 ? Qt::WindowMinimized : status == 2 ? Qt::WindowMaximized : Qt::WindowNoState);
        probe_->zentrale->close();
        QCOMPARE(p.MdiStatus, long(zustaende.constLast()));
        QCOMPARE(gespeichert(), lage);
    }
}

void TestFensterlage::verschobenUndMaximiert()
{
    Programm &p = probe_->programm;
    p.MdiStatus = 0;
    probe_->laden();
    QTest::qWait(150);
    probe_->zentrale->move(200, 130);
    probe_->zentrale->resize(850, 590);
    QTRY_COMPARE(probe_->zentrale->pos(), QPoint(200, 130));
    QTRY_COMPARE(probe_->zentrale->size(), QSize(850, 590));
    zustand(Qt::WindowMaximized);
    probe_->zentrale->close();
    QCOMPARE(gespeichert(), QRect(200, 130, 850, 590));
}

int main(int anzahl, char **argumente)
{
    const Fensterverwaltung verwaltung;
    QApplication anwendung(anzahl, argumente);
    TestFensterlage test(verwaltung.fehlt());
    return QTest::qExec(&test, anzahl, argumente);
}

#include "tst_fensterlage.moc"
