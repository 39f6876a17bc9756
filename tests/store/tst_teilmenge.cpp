#include <QTest>
class TestTeilmenge : public QObject
{
    Q_OBJECT
};
QTEST_GUILESS_MAIN(TestTeilmenge)
#include "tst_teilmenge.moc"
