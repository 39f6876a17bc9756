#include "Druckhilfen.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// Texts and lines at their places, before any device.
class TestDruckseiten : public QObject
{
    Q_OBJECT

private slots:
    void koordinaten()
    {
        Printer drucker(blattA4());
        drucker.ScaleLeft = drucker.ScaleTop = -15;
        drucker.CurrentX = 10;
        drucker.CurrentY = 20;
        drucker.Print(u"Text"_s);
        QCOMPARE(drucker.CurrentX, 0.0);
        QCOMPARE(drucker.CurrentY, 20 + drucker.TextHeight());
        const Druckseiten seiten = drucker.EndDoc();
        QCOMPARE(seiten.papier, QSizeF(210, 297));
        QCOMPARE(seiten.seiten.size(), size_t(1));
        QCOMPARE(seitenzeilen(seiten.seiten[0]), QStringList{u"25.0 35.0 9 - Text"_s});
    }
};

QTEST_MAIN(TestDruckseiten)
#include "tst_druckseiten.moc"
