#include "Rahmenprobe.h"

#include "filters/Filterdialog.h"
#include "frame/Flaeche.h"
#include "plantwindows/Pflanzenfenster.h"
#include "tests/Fensterverwaltung.h"

#include <QApplication>
#include <QMdiSubWindow>
#include <QTest>

using namespace Qt::StringLiterals;

/* Which window stands in front, as a window manager decides it. */

class TestVordergrund : public QObject
{
    Q_OBJECT

public:
    explicit TestVordergrund(const QString &fehlt) : fehlt_(fehlt) {}

private slots:
    void initTestCase();
    void init();
    void cleanup() { probe_.reset(); }
    void nachDemFilterdialog_data();
    void nachDemFilterdialog();

private:
    QMdiSubWindow *unterfenster(int nummer) { return qobject_cast<QMdiSubWindow *>(probe_->fenster(nummer)->parentWidget()); }
    Flaeche *flaeche() { return probe_->zentrale->findChild<Flaeche *>(); }

    QString fehlt_;
    std::unique_ptr<Rahmenprobe> probe_;
};

void TestVordergrund::initTestCase()
{
    if (!fehlt_.isEmpty())
        QSKIP(qPrintable(fehlt_));
}

void TestVordergrund::init()
{
    probe_ = std::make_unique<Rahmenprobe>();
    probe_->programm.MdiStatus = 0;
    probe_->programm.MdiBreite = 1200 * 15;
    probe_->programm.MdiHoehe = 700 * 15;
    probe_->laden();
    QTRY_COMPARE(QApplication::activeWindow(), probe_->zentrale.get());
}

void TestVordergrund::nachDemFilterdialog_data()
{
    QTest::addColumn<int>("anzahl");    // windows, opened one after another
    QTest::addColumn<int>("eigenes");   // number of the window whose dialog opens
    QTest::addColumn<int>("minimiert"); // number of a minimised window; 0: none
    QTest::addColumn<QString>("taste"); // that leaves the dialog
    for (const char *taste : {"cmdOK", "cmdAbbruch"})
        for (const auto &[anzahl, eigenes, minimiert] :
             {std::tuple(1, 1, 0), std::tuple(2, 1, 0), std::tuple(2, 2, 0), std::tuple(3, 1, 0), std::tuple(3, 2, 0), std::tuple(3, 3, 0),
              std::tuple(2, 1, 2), std::tuple(3, 2, 3), std::tuple(3, 2, 1)})
            QTest::addRow("%d of %d, %d minimised, %s", eigenes, anzahl, minimiert, taste)
                << anzahl << eigenes << minimiert << QString::fromLatin1(taste);
}

void TestVordergrund::nachDemFilterdialog()
{
    QFETCH(const int, anzahl);
    QFETCH(const int, eigenes);
    QFETCH(const int, minimiert);
    QFETCH(const QString, taste);
    for (int i = 0; i < anzahl; ++i)
        probe_->waehlen("mnudbtopfpflanzen");
    if (minimiert)
        unterfenster(minimiert)->showMinimized();
    flaeche()->setActiveSubWindow(unterfenster(eigenes));
    QTRY_COMPARE(flaeche()->activeSubWindow(), unterfenster(eigenes));
    for (int mal = 0; mal < 2; ++mal) {
        QTest::mouseClick(probe_->fenster(eigenes)->findChild<QWidget *>(u"cmdFilter"_s), Qt::LeftButton);
        Filterdialog *dialog = probe_->fenster(eigenes)->filterdialog();
        QTRY_COMPARE(QApplication::activeWindow(), dialog);
        QCOMPARE(probe_->programm.aktuellesFenster(Sparte::Topf), eigenes);
        QTest::mouseClick(dialog->findChild<QWidget *>(taste), Qt::LeftButton);
        QTRY_COMPARE(QApplication::activeWindow(), probe_->zentrale.get());
        QTRY_COMPARE(flaeche()->activeSubWindow(), unterfenster(eigenes));
        // Nothing that comes later changes it.
        QTest::qWait(150);
        QCOMPARE(flaeche()->activeSubWindow(), unterfenster(eigenes));
        QCOMPARE(flaeche()->subWindowList(QMdiArea::StackingOrder).constLast(), unterfenster(eigenes));
        QCOMPARE(probe_->programm.aktuellesFenster(Sparte::Topf), eigenes);
        QCOMPARE(probe_->programm.AktiveSparte, u"Topf"_s);
        QVERIFY(!unterfenster(eigenes)->isMinimized());
        for (int nummer = 1; nummer <= anzahl; ++nummer)
            QCOMPARE(unterfenster(nummer)->isMinimized(), nummer == minimiert);
        QVERIFY2(QApplication::focusWidget() && probe_->fenster(eigenes)->isAncestorOf(QApplication::focusWidget()),
                 QTest::toString(QApplication::focusWidget()));
    }
}

int main(int anzahl, char **argumente)
{
    const Fensterverwaltung verwaltung;
    QApplication anwendung(anzahl, argumente);
    TestVordergrund test(verwaltung.fehlt());
    return QTest::qExec(&test, anzahl, argumente);
}

#include "tst_vordergrund.moc"
