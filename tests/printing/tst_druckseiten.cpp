#include "Druckhilfen.h"

#include "tests/Testprogramm.h"

#include <QImage>
#include <QPainter>
#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// Paints a page on white paper of 150 mm by 60 mm.
QImage gemalt(const Druckseite &seite, double pixelProMm, QPointF ursprung = {})
{
    QImage bild(int(150 * pixelProMm), int(60 * pixelProMm), QImage::Format_RGB32);
    bild.fill(Qt::white);
    QPainter maler(&bild);
    maler.translate(ursprung * pixelProMm);
    seiteMalen(maler, seite, pixelProMm);
    return bild;
}

/// The smallest rectangle around everything that is at least half black, in millimetres; empty where there is nothing.
QRectF tinte(const QImage &bild, double pixelProMm)
{
    const QImage grau = bild.convertToFormat(QImage::Format_Grayscale8);
    int links = bild.width(), rechts = -1, oben = bild.height(), unten = -1;
    for (int y = 0; y < grau.height(); ++y) {
        const uchar *zeile = grau.constScanLine(y);
        for (int x = 0; x < grau.width(); ++x)
            if (zeile[x] < 128) {
                links = std::min(links, x);
                rechts = std::max(rechts, x);
                oben = std::min(oben, y);
                unten = std::max(unten, y);
            }
    }
    return rechts < 0 ? QRectF() : QRectF(QPointF(links, oben) / pixelProMm, QPointF(rechts + 1, unten + 1) / pixelProMm);
}

bool nahe(double a, double b, double spiel)
{
    return std::abs(a - b) <= spiel;
}

Druckseite seiteMit(const Drucktext &text)
{
    return {{text}, {}};
}

} // namespace

/// Texts and lines at their places, before any device and painted.
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

    /// What is written first stays where it is when the origin moves.
    void ursprungVerschieben()
    {
        Printer drucker(blattA4());
        drucker.Print(u"eins"_s);
        drucker.ScaleLeft = -65;
        drucker.ScaleTop = 5;
        drucker.CurrentX = -50;
        drucker.CurrentY = 10;
        drucker.Font = {u"Arial"_s, 18, true, true};
        drucker.Print(u"zwei"_s);
        QCOMPARE(seitenzeilen(drucker.EndDoc().seiten[0]), (QStringList{u"0.0 0.0 9 - eins"_s, u"15.0 5.0 18 bi zwei"_s}));
    }

    void printAnfang()
    {
        Printer drucker(blattA4());
        drucker.CurrentX = 5;
        drucker.CurrentY = 7;
        drucker.PrintAnfang(u"Familie: "_s);
        const double danach = 5 + drucker.TextWidth(u"Familie: "_s);
        QVERIFY(danach > 10);
        QCOMPARE(drucker.CurrentX, danach);
        QCOMPARE(drucker.CurrentY, 7.0);
        drucker.Print(u"Araceae"_s);
        const Druckseiten seiten = drucker.EndDoc();
        QCOMPARE(seitentexte(seiten.seiten[0]), (QStringList{u"Familie: "_s, u"Araceae"_s}));
        QCOMPARE(seiten.seiten[0].texte[1].x, danach);
        QCOMPARE(seiten.seiten[0].texte[1].y, 7.0);
    }

    /// An empty text leaves no trace on the page, but ends the line.
    void leererText()
    {
        Printer drucker(blattA4());
        drucker.CurrentX = 5;
        drucker.PrintAnfang(QString());
        QCOMPARE(drucker.CurrentX, 5.0);
        drucker.Print(QString());
        QCOMPARE(drucker.CurrentX, 0.0);
        QCOMPARE(drucker.CurrentY, drucker.TextHeight());
        QVERIFY(drucker.EndDoc().seiten[0].texte.empty());
    }

    void linie_data()
    {
        QTest::addColumn<int>("punkte");
        QTest::addColumn<int>("guete");
        QTest::addColumn<double>("breite");
        QTest::newRow("one dot") << 1 << 300 << mmProZoll / 300;
        QTest::newRow("head") << 5 << 300 << mmProZoll / 60;
        QTest::newRow("finer dots") << 5 << 600 << mmProZoll / 120;
        QTest::newRow("an inch") << 300 << 300 << mmProZoll;
    }
    void linie()
    {
        QFETCH(int, punkte);
        QFETCH(int, guete);
        QFETCH(double, breite);
        Printer drucker(blattA4());
        drucker.ScaleLeft = -15;
        drucker.ScaleTop = -10;
        drucker.PrintQuality = guete;
        drucker.DrawWidth = punkte;
        drucker.line(1, 2, 3, 4);
        QCOMPARE(drucker.CurrentX, 3.0);
        QCOMPARE(drucker.CurrentY, 4.0);
        const Druckseiten seiten = drucker.EndDoc();
        QCOMPARE(seiten.seiten[0].linien.size(), size_t(1));
        const Drucklinie &linie = seiten.seiten[0].linien[0];
        QCOMPARE(QLineF(linie.x1, linie.y1, linie.x2, linie.y2), QLineF(16, 12, 18, 14));
        QCOMPARE(linie.breite, breite);
    }

    void neueSeite()
    {
        Printer drucker(blattA4());
        drucker.ScaleLeft = -15;
        drucker.Font.Bold = true;
        drucker.Print(u"erste"_s);
        drucker.CurrentX = 30;
        drucker.NewPage();
        QCOMPARE(drucker.CurrentX, 0.0);
        QCOMPARE(drucker.CurrentY, 0.0);
        drucker.line(0, 0, 10, 0);
        drucker.CurrentX = 0;
        drucker.Print(u"zweite"_s);
        const Druckseiten seiten = drucker.EndDoc();
        QCOMPARE(seiten.seiten.size(), size_t(2));
        QCOMPARE(seitenzeilen(seiten.seiten[0]), QStringList{u"15.0 0.0 9 b erste"_s});
        QVERIFY(seiten.seiten[0].linien.empty());
        QCOMPARE(seitenzeilen(seiten.seiten[1]), QStringList{u"15.0 0.0 9 b zweite"_s});
        QCOMPARE(seiten.seiten[1].linien.size(), size_t(1));
    }

    void nichtsGeschrieben()
    {
        const Druckseiten seiten = Printer(blattA4()).EndDoc();
        QCOMPARE(seiten.seiten.size(), size_t(1));
        QVERIFY(seiten.seiten[0].texte.empty() && seiten.seiten[0].linien.empty());
    }

    void seitengrenze_data()
    {
        QTest::addColumn<int>("hoechstens");
        for (const int hoechstens : {1, 2, 3})
            QTest::addRow("%d", hoechstens) << hoechstens;
    }
    /// It is enough as soon as a page begins that nobody needs; what was written on it is gone.
    void seitengrenze()
    {
        QFETCH(int, hoechstens);
        Printer drucker(blattA4(), size_t(hoechstens));
        for (int seite = 1; seite <= hoechstens; ++seite) {
            QVERIFY(!drucker.genug());
            drucker.Print(u"Seite %1"_s.arg(seite));
            drucker.NewPage();
        }
        QVERIFY(drucker.genug());
        drucker.Print(u"zu viel"_s);
        const Druckseiten seiten = drucker.EndDoc();
        QCOMPARE(seiten.seiten.size(), size_t(hoechstens));
        for (int seite = 1; seite <= hoechstens; ++seite)
            QCOMPARE(seitentexte(seiten.seiten[size_t(seite - 1)]), QStringList{u"Seite %1"_s.arg(seite)});
    }
    void seitenzahlen_data()
    {
        QTest::addColumn<QString>("davor");
        QTest::addColumn<double>("platz");   // millimetres
        QTest::addColumn<QString>("anfang"); // before the number; "-": nothing is written
        const double zahl = schriftmass({}).breite(u"Seite 2 von 3"_s), name = schriftmass({}).breite(u"Planta prima  -  "_s);
        QTest::newRow("without a name") << QString() << 80.0 << QString();
        QTest::newRow("with a name") << u"Planta prima"_s << 80.0 << u"Planta prima  -  "_s;
        QTest::newRow("just room") << u"Planta prima"_s << zahl + name + 0.01 << u"Planta prima  -  "_s;
        QTest::newRow("too little room") << u"Planta prima"_s << zahl + name - 0.01 << u"Planta pri ...  -  "_s;
        QTest::newRow("room for the number") << u"Planta prima"_s << zahl + 0.01 << QString();
        QTest::newRow("no room") << u"Planta prima"_s << zahl - 0.01 << u"-"_s;
        QTest::newRow("less than none") << QString() << -5.0 << u"-"_s;
        QTest::newRow("line ends") << u"Planta\nprima"_s << 80.0 << u"Planta prima  -  "_s;
        QTest::newRow("megabytes") << u"x"_s.repeated(10'000'000) << zahl + 0.01 << QString();
    }
    void seitenzahlen()
    {
        QFETCH(QString, davor);
        QFETCH(double, platz);
        QFETCH(QString, anfang);
        Printer drucker(blattA4());
        drucker.ScaleLeft = -15;
        drucker.ScaleTop = -10;
        for (int seite = 1; seite <= 3; ++seite) {
            if (seite > 1)
                drucker.NewPage();
            drucker.CurrentX = 20;
            drucker.CurrentY = 100;
            drucker.PrintSeitenzahl(20 + platz, davor);
        }
        const Druckseiten seiten = drucker.EndDoc();
        QCOMPARE(seiten.seiten.size(), size_t(3));
        for (int seite = 1; seite <= 3; ++seite) {
            const std::vector<Drucktext> &texte = seiten.seiten[size_t(seite - 1)].texte;
            if (anfang == u"-") {
                QVERIFY(texte.empty());
                continue;
            }
            QCOMPARE(texte.size(), size_t(1));
            QCOMPARE(texte[0].text, anfang + u"Seite %1 von 3"_s.arg(seite));
            QCOMPARE(texte[0].y, 110.0);
            QCOMPARE(texte[0].x + schriftmass({}).breite(texte[0].text), 35 + platz);
        }
        // The next printout begins anew.
        drucker.PrintSeitenzahl(80, {});
        QCOMPARE(seitentexte(drucker.EndDoc().seiten[0]), QStringList{u"Seite 1 von 1"_s});
    }
    void wenigerSeitenAlsErlaubt()
    {
        Printer drucker(blattA4(), 5);
        drucker.NewPage();
        QVERIFY(!drucker.genug());
        QCOMPARE(drucker.EndDoc().seiten.size(), size_t(2));
        Printer ohneGrenze(blattA4());
        for (int i = 0; i < 100; ++i)
            ohneGrenze.NewPage();
        QVERIFY(!ohneGrenze.genug());
        QCOMPARE(ohneGrenze.EndDoc().seiten.size(), size_t(101));
    }

    void blatt_data()
    {
        QTest::addColumn<QPageSize::PageSizeId>("groesse");
        QTest::addColumn<bool>("quer");
        QTest::addColumn<QMarginsF>("raender"); // left, top, right, bottom
        QTest::addColumn<int>("nummer");
        QTest::addColumn<QSizeF>("papier");
        QTest::addColumn<QRectF>("bereich");
        const QMarginsF keine, raender(5, 10, 15, 20);
        QTest::newRow("A4") << QPageSize::A4 << false << keine << 9 << QSizeF(210, 297) << QRectF(0, 0, 210, 297);
        QTest::newRow("A4 margins") << QPageSize::A4 << false << raender << 9 << QSizeF(210, 297) << QRectF(5, 10, 190, 267);
        QTest::newRow("A4 landscape") << QPageSize::A4 << true << keine << 9 << QSizeF(297, 210) << QRectF(0, 0, 297, 210);
        QTest::newRow("A4 landscape, margins") << QPageSize::A4 << true << raender << 9 << QSizeF(297, 210) << QRectF(5, 10, 277, 180);
        QTest::newRow("A3") << QPageSize::A3 << false << keine << 8 << QSizeF(297, 420) << QRectF(0, 0, 297, 420);
        QTest::newRow("A5") << QPageSize::A5 << false << keine << 11 << QSizeF(148, 210) << QRectF(0, 0, 148, 210);
        QTest::newRow("Letter") << QPageSize::Letter << false << raender << 1 << QSizeF(215.9, 279.4) << QRectF(5, 10, 195.9, 249.4);
    }
    void blatt()
    {
        QFETCH(QPageSize::PageSizeId, groesse);
        QFETCH(bool, quer);
        QFETCH(QMarginsF, raender);
        QFETCH(QRectF, bereich);
        Printer drucker(QPageLayout(QPageSize(groesse), quer ? QPageLayout::Landscape : QPageLayout::Portrait, raender, QPageLayout::Millimeter));
        static_assert(Printer::ScaleMode == 6);
        QTEST(drucker.PaperSize(), "nummer");
        QCOMPARE(drucker.ScaleWidth(), bereich.width());
        QCOMPARE(drucker.ScaleHeight(), bereich.height());
        const Druckseiten seiten = drucker.EndDoc();
        QTEST(seiten.papier, "papier");
        QCOMPARE(seiten.bereich, bereich);
    }
    /// A device may tell its paper in another unit.
    void blattInPunkten()
    {
        Printer drucker(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(72, 72, 72, 72), QPageLayout::Point));
        QCOMPARE(drucker.PaperSize(), 9);
        QVERIFY(nahe(drucker.ScaleWidth(), 210 - 2 * mmProZoll, 0.1));
        QVERIFY(nahe(drucker.ScaleHeight(), 297 - 2 * mmProZoll, 0.1));
    }

    void breitenAddieren_data()
    {
        QTest::addColumn<QString>("links");
        QTest::addColumn<QString>("rechts");
        QTest::newRow("words") << u"minimale "_s << u"Höhe"_s;
        QTest::newRow("digits") << u"12345"_s << u"67890"_s;
        QTest::newRow("pair that moves together") << u"A"_s << u"V"_s;
        QTest::newRow("blanks") << u"     "_s << u" "_s;
        QTest::newRow("umlauts") << u"ÄÖÜ"_s << u"äöüß"_s;
        QTest::newRow("nothing") << u"Text"_s << QString();
    }
    void breitenAddieren()
    {
        QFETCH(QString, links);
        QFETCH(QString, rechts);
        for (const bool fett : {false, true}) {
            const Schriftmass &mass = schriftmass({.Size = 9, .Bold = fett});
            // Letters at the seam may move together by a fraction of the size.
            QVERIFY(nahe(mass.breite(links + rechts), mass.breite(links) + mass.breite(rechts), 0.4));
        }
    }

    void schriftgroessen_data()
    {
        QTest::addColumn<double>("groesse");
        for (const double groesse : {6.0, 9.0, 13.5, 18.0})
            QTest::addRow("%g", groesse) << groesse;
    }
    /// Widths and heights grow with the size alone: without hinting nothing is rounded to dots.
    void schriftgroessen()
    {
        QFETCH(double, groesse);
        const QString text = u"Pflanzen-Informations-System, Blütezeit: Mai, Juni"_s;
        for (const bool fett : {false, true})
            for (const bool kursiv : {false, true}) {
                const Schriftmass &klein = schriftmass({.Size = groesse, .Bold = fett, .Italic = kursiv});
                const Schriftmass &gross = schriftmass({.Size = 2 * groesse, .Bold = fett, .Italic = kursiv});
                QVERIFY(nahe(gross.breite(text) / klein.breite(text), 2, 0.004));
                QVERIFY(nahe(gross.zeilenhoehe() / klein.zeilenhoehe(), 2, 0.02));
                QVERIFY(nahe(gross.oberlaenge() / klein.oberlaenge(), 2, 0.02));
                // A line is a little higher than the size of its letters.
                const double geviert = groesse * mmProZoll / 72;
                QVERIFY(klein.zeilenhoehe() >= geviert && klein.zeilenhoehe() <= 1.4 * geviert);
                QVERIFY(klein.oberlaenge() > 0.7 * geviert && klein.oberlaenge() < klein.zeilenhoehe());
                QVERIFY(klein.breite(u"W"_s) > klein.breite(u"i"_s));
                QCOMPARE(klein.breite(QString()), 0.0);
            }
        const QString worte = u"Krankheiten/Schädlinge"_s;
        QVERIFY(schriftmass({.Size = groesse, .Bold = true}).breite(worte) > schriftmass({.Size = groesse}).breite(worte) * 1.02);
    }

    void massBleibt()
    {
        const Druckschrift schrift{.Size = 9};
        const Schriftmass *mass = &schriftmass(schrift);
        for (int groesse = 4; groesse < 60; ++groesse)
            schriftmass({.Size = double(groesse), .Italic = true});
        QCOMPARE(&schriftmass(schrift), mass);
        QVERIFY(&schriftmass({.Size = 9, .Bold = true}) != mass);
        Printer drucker(blattA4());
        drucker.Font = {u"Arial"_s, 13.5, true, false};
        QCOMPARE(drucker.TextWidth(u"Text"_s), schriftmass(drucker.Font).breite(u"Text"_s));
        QCOMPARE(drucker.TextHeight(), schriftmass(drucker.Font).zeilenhoehe());
    }

    void gemalteBreite_data()
    {
        QTest::addColumn<double>("pixelProMm");
        QTest::addColumn<double>("groesse");
        QTest::addColumn<bool>("fett");
        for (const double pixelProMm : {6.0, 20.0})
            for (const double groesse : {6.0, 9.0, 13.5, 18.0})
                for (const bool fett : {false, true})
                    QTest::addRow("%g px/mm, %g pt%s", pixelProMm, groesse, fett ? ", bold" : "") << pixelProMm << groesse << fett;
    }
    /// What is painted is as wide as it was measured, at every resolution. The empty edges of the first and last letter are
    /// those of the letter alone, so that they fall out of the difference.
    void gemalteBreite()
    {
        QFETCH(double, pixelProMm);
        QFETCH(double, groesse);
        QFETCH(bool, fett);
        const Druckschrift schrift{.Size = groesse, .Bold = fett};
        const auto extent = [&](const QString &text) { return tinte(gemalt(seiteMit({5, 20, text, schrift}), pixelProMm), pixelProMm).width(); };
        const Schriftmass &mass = schriftmass(schrift);
        for (const QString &mitte : {u" Blütezeit: Januar "_s, u"illustrierte"_s, u"AVA Te Yo"_s, u"   "_s}) {
            const QString text = u'H' + mitte + u'H';
            const double gemessen = mass.breite(text) - mass.breite(u"H"_s), ink = extent(text) - extent(u"H"_s);
            QVERIFY2(gemessen > 1, qPrintable(text));
            QVERIFY2(nahe(ink, gemessen, 2 / pixelProMm), qPrintable(u"'%1': %2 mm measured, %3 mm painted"_s.arg(text).arg(gemessen).arg(ink)));
        }
    }

    void gemalterOrt_data() { gemalteBreite_data(); }
    /// x is the left end, y the top of the line; letters stand on the base line.
    void gemalterOrt()
    {
        QFETCH(double, pixelProMm);
        QFETCH(double, groesse);
        QFETCH(bool, fett);
        const Druckschrift schrift{.Size = groesse, .Bold = fett};
        const Schriftmass &mass = schriftmass(schrift);
        const double pixel = 1 / pixelProMm;
        for (const QPointF ort : {QPointF(5, 20), QPointF(40.3, 7.7)}) {
            const QRectF h = tinte(gemalt(seiteMit({ort.x(), ort.y(), u"H"_s, schrift}), pixelProMm), pixelProMm);
            QVERIFY(h.left() >= ort.x() - pixel && h.right() <= ort.x() + mass.breite(u"H"_s) + pixel);
            QVERIFY(nahe(h.bottom(), ort.y() + mass.oberlaenge(), 1.5 * pixel));
            QVERIFY(h.top() > ort.y());
            const QRectF alles = tinte(gemalt(seiteMit({ort.x(), ort.y(), u"Äfgjpqyß"_s, schrift}), pixelProMm), pixelProMm);
            QVERIFY(alles.bottom() > h.bottom() + pixel);
            QVERIFY(alles.top() >= ort.y() - pixel && alles.bottom() <= ort.y() + mass.zeilenhoehe() + pixel);
        }
    }

    void gemalteLinien_data()
    {
        QTest::addColumn<double>("pixelProMm");
        QTest::newRow("coarse") << 8.0;
        QTest::newRow("fine") << 20.0;
    }
    /// Lines lie half on either side of their place and close the corners of a frame.
    void gemalteLinien()
    {
        QFETCH(double, pixelProMm);
        const double spiel = 1.01 / pixelProMm;
        const auto gleich = [&](const QRectF &a, const QRectF &b) {
            return nahe(a.left(), b.left(), spiel) && nahe(a.top(), b.top(), spiel) && nahe(a.right(), b.right(), spiel)
                   && nahe(a.bottom(), b.bottom(), spiel);
        };
        const auto ink = [&](const Druckseite &seite, QPointF ursprung = {}) { return tinte(gemalt(seite, pixelProMm, ursprung), pixelProMm); };
        QVERIFY(gleich(ink({{}, {{20, 30, 60, 30, 1}}}), QRectF(19.5, 29.5, 41, 1)));
        QVERIFY(gleich(ink({{}, {{20, 10, 20, 50, 2}}}), QRectF(19, 9, 2, 42)));
        QVERIFY(gleich(ink({{}, {{20, 30, 60, 30, 1}}}, {10, -5}), QRectF(29.5, 24.5, 41, 1)));
        const double breite = 5 * mmProZoll / 300;
        const Druckseite rahmen{{}, {{10, 10, 90, 10, breite}, {90, 10, 90, 30, breite}, {90, 30, 10, 30, breite}, {10, 30, 10, 10, breite}}};
        const QImage bild = gemalt(rahmen, pixelProMm);
        QVERIFY(gleich(tinte(bild, pixelProMm), QRectF(10, 10, 80, 20).adjusted(-breite / 2, -breite / 2, breite / 2, breite / 2)));
        const auto schwarz = [&](double x, double y) { return qGray(bild.pixel(int(x * pixelProMm), int(y * pixelProMm))) < 128; };
        for (const QPointF ecke : {QPointF(10, 10), QPointF(90, 10), QPointF(90, 30), QPointF(10, 30), QPointF(50, 10), QPointF(10, 20)})
            QVERIFY(schwarz(ecke.x(), ecke.y()));
        QVERIFY(!schwarz(50, 20) && !schwarz(5, 20) && !schwarz(95, 20));
    }

    /// Each text has its own font, whatever stood before it; a page may be painted again and leaves the painter as it was.
    void gemischteSchriften()
    {
        constexpr double pixelProMm = 10;
        const Drucktext gross{5, 5, u"HH"_s, {.Size = 18, .Bold = true}}, klein{60, 5, u"HH"_s, {.Size = 6}};
        const auto extent = [](const Druckseite &seite) { return gemalt(seite, pixelProMm); };
        const QImage beide = extent({{gross, klein}, {}});
        QCOMPARE(beide, extent({{klein, gross}, {}}));
        const int mitte = int(50 * pixelProMm);
        QCOMPARE(tinte(beide.copy(0, 0, mitte, beide.height()), pixelProMm), tinte(extent(seiteMit(gross)), pixelProMm));
        const QRectF rechts = tinte(beide.copy(mitte, 0, beide.width() - mitte, beide.height()), pixelProMm);
        QVERIFY(nahe(rechts.width(), tinte(extent(seiteMit(klein)), pixelProMm).width(), 0.01));

        QImage bild(100, 100, QImage::Format_RGB32);
        QPainter maler(&bild);
        maler.setPen(Qt::red);
        const QFont vorher = maler.font();
        seiteMalen(maler, {{gross}, {{0, 0, 1, 1, 1}}}, pixelProMm);
        QCOMPARE(maler.pen().color(), QColor(Qt::red));
        QCOMPARE(maler.font(), vorher);
        QVERIFY(maler.transform().isIdentity());
    }

    void leereSeite() { QVERIFY(tinte(gemalt({}, 6), 6).isNull()); }
};

FLOX_TEST(tst_druckseiten, TestDruckseiten)
#include "tst_druckseiten.moc"
