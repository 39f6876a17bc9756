#include "Fensterprobe.h"

#include "tests/Testprogramm.h"

#include <QPointer>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

/* What the perennial window shows of a record. */

class TestStauden : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        probe_ = std::make_unique<Fensterprobe>(Sparte::Stauden);
        probe_->alleZeigen();
        probe_->oeffnen();
    }
    void init() { probe_->leeren(); }

    void symbole()
    {
        // clang-format off
        const std::tuple<const char *, const char *, const char *> zeilen[] = {
            {"giftig", "gift", "gift_n"}, {"schnitt", "schere", "schere_n"}, {"heimisch", "heim", "heim_n"}, {"blaschmuck", "schmuck", "schmuc_n"},
            {"immergruen", "immerg", "immerg_n"}};
        // clang-format on
        const auto bilder = [&] {
            QStringList namen;
            for (int i = 0; i < 5; ++i) {
                auto *bild = probe_->finde<Bildfeld>(u"imgEigen_%1"_s.arg(i));
                namen += (bild->isHidden() ? u"-"_s : QString()) + bild->bild().section(u'/', 1);
            }
            return namen;
        };
        QStringList keine;
        for (const auto &zeile : zeilen)
            keine += QLatin1String(std::get<2>(zeile));
        QCOMPARE(bilder(), keine);
        for (int i = 0; i < 5; ++i) {
            const auto &[feld, an, aus] = zeilen[i];
            QStringList soll = keine;
            soll[i] = QLatin1String(an);
            probe_->leeren();
            probe_->setzen({{QString::fromLatin1(feld), u"True"_s}});
            QCOMPARE(bilder(), soll);
        }
    }

    void textzeilen_data()
    {
        QTest::addColumn<QString>("feld");
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("titel"); // hidden with an empty control; empty: none is named
        QTest::addColumn<QString>("leer");
        const auto zeile = [](const char *feld, const char *control, const char *titel, const QString &leer = {}) {
            QTest::newRow(feld) << QString::fromLatin1(feld) << QString::fromLatin1(control) << QString::fromLatin1(titel) << leer;
        };
        const QString ohne = u"Keine Angaben"_s;
        zeile("blform", "lblBluetForm", "Label5");
        zeile("blattform", "lblBlattform", "Label21");
        zeile("besverw", "lblVerwArt", "", ohne);
        zeile("wuchsform", "lblWuchs", "", ohne);
        zeile("vermehrung", "lblVermehrung", "", ohne);
        zeile("bemerkung", "lblBemerkungen", "Label32");
        zeile("kennziffer", "lblKennziffern", "");
        zeile("duengung", "lblDuengung", "", ohne);
        zeile("HK", "lblHerkunft", "lblHerk");
    }
    void textzeilen()
    {
        QFETCH(QString, feld);
        QFETCH(QString, control);
        QFETCH(QString, titel);
        QTEST(probe_->text(control), "leer");
        if (!titel.isEmpty())
            QVERIFY(!probe_->gezeigt(titel));
        probe_->setzen({{feld, u"Wort 1"_s}});
        QCOMPARE(probe_->text(control), u"Wort 1"_s);
        if (!titel.isEmpty())
            QVERIFY(probe_->gezeigt(titel));
    }

    void listenzeilen_data()
    {
        QTest::addColumn<QString>("feld");
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("titel");
        QTest::addColumn<QString>("trenner");
        QTest::addColumn<const Werteliste *>("worte");
        const auto zeile = [](const char *feld, const char *control, const char *titel, const QString &trenner, const Werteliste &worte) {
            QTest::newRow(feld) << QString::fromLatin1(feld) << QString::fromLatin1(control) << QString::fromLatin1(titel) << trenner << &worte;
        };
        zeile("blattfarbe", "lblBlattFarbe", "LabelFarbe", u", "_s, WL_StBlattfarbe);
        zeile("bodenart", "lblBodenart", "", u"; "_s, WL_Bodenart);
        zeile("bfeuchte", "lblBodenFeuchte", "", u"; "_s, WL_Bodenfeuchte);
        zeile("kalk", "lblpH", "Label17", u"; "_s, WL_Kalk);
        zeile("salz", "lblNaehrstoffe", "", u"; "_s, WL_Naehrstoff);
        zeile("lebensraum", "lblLebensraum", "", u"; "_s, WL_Lebensbereich);
    }
    void listenzeilen()
    {
        QFETCH(QString, feld);
        QFETCH(QString, control);
        QFETCH(QString, titel);
        QFETCH(QString, trenner);
        QFETCH(const Werteliste *, worte);
        QCOMPARE(probe_->text(control), QString());
        if (!titel.isEmpty())
            QVERIFY(!probe_->gezeigt(titel));
        QStringList alle;
        for (const QStringView wort : worte->zeilen)
            alle += wort.toString();
        probe_->setzen({{feld, QString(worte->anzahl(), u'1')}});
        QCOMPARE(probe_->text(control), alle.join(trenner));
        if (!titel.isEmpty())
            QVERIFY(probe_->gezeigt(titel));
    }

    void quadratmeter()
    {
        QCOMPARE(probe_->text(u"lblPflanzung"_s), u"Keine Angaben"_s);
        probe_->setzen({{u"abstand"_s, u"6-8"_s}, {u"duengung"_s, u"2 g/m2, 3 g/m2"_s}});
        QCOMPARE(probe_->text(u"lblPflanzung"_s), u"6-8/m²"_s);
        QCOMPARE(probe_->text(u"lblDuengung"_s), u"2 g/m², 3 g/m²"_s);
        probe_->setzen({{u"abstand"_s, u"5 je 2 m2"_s}});
        QCOMPARE(probe_->text(u"lblPflanzung"_s), u"5 je 2 m²/m²"_s);
    }

    void pflanzart()
    {
        // clang-format off
        const std::pair<QString, QString> arten[] = {{u"1"_s, u"einjährig"_s}, {u"2"_s, u"zweijährig"_s}, {u"B"_s, u"Baum"_s}, {u"H"_s, u"Halbstrauch"_s},
                                                     {u"S"_s, u"Staude"_s}, {u"Std"_s, u"Staude"_s}, {u"Str"_s, u"Strauch"_s}, {u"Z"_s, u"Zwiebel/Knolle"_s},
                                                     {u"G"_s, u"Gras"_s}, {u"F"_s, u"Farn"_s}, {u"W"_s, u"Wasserpflanze"_s}};
        // clang-format on
        for (const auto &[wert, text] : arten) {
            probe_->setzen({{u"pflanzart"_s, wert}});
            QCOMPARE(probe_->text(u"lblPflanzart"_s), text);
            QVERIFY(probe_->gezeigt(u"lblPflanzart"_s) && probe_->gezeigt(u"Label36"_s));
        }
        probe_->setzen({{u"pflanzart"_s, {}}});
        QCOMPARE(probe_->text(u"lblPflanzart"_s), QString());
        QVERIFY(!probe_->gezeigt(u"lblPflanzart"_s) && !probe_->gezeigt(u"Label36"_s));
    }

    void geselligkeit()
    {
        for (int k = 1; k <= WL_Geselligkeit.anzahl(); ++k) {
            probe_->setzen({{u"geselligkt"_s, QString::number(k)}});
            QCOMPARE(probe_->text(u"lblGeselligkeit"_s), WL_Geselligkeit.wort(k).toString());
        }
        probe_->setzen({{u"geselligkt"_s, QString::number(WL_Geselligkeit.anzahl() + 1)}});
        QCOMPARE(probe_->text(u"lblGeselligkeit"_s), QString());
    }

    void urteil_data()
    {
        QTest::addColumn<QString>("marken");
        QTest::addColumn<QString>("text");
        const auto zeile = [](const QString &marken, const QStringList &worte) { QTest::newRow(marken.toLatin1()) << marken << worte.join(u", "_s); };
        const QString drei = u"vorzügliche Sorte"_s, zwei = u"sehr wertvolle Sorte"_s, eins = u"wertvolle Sorte"_s,
                      lieb = u"Staude für den Pflanzenliebhaber"_s, schnitt = u"wertvolle Schnittstaude"_s, sehrWild = u"sehr wertvolle Wildstaude"_s,
                      wild = u"wertvolle Wildstaude"_s;
        zeile(u"***"_s, {drei});
        zeile(u"**"_s, {zwei});
        zeile(u"*"_s, {eins});
        zeile(u"***L"_s, {drei, lieb});
        zeile(u"L***"_s, {drei, lieb});
        zeile(u"S"_s, {schnitt});
        zeile(u"w!"_s, {sehrWild});
        zeile(u"W!"_s, {sehrWild});
        zeile(u"w"_s, {wild});
        zeile(u"W"_s, {wild});
        zeile(u"**LSw!"_s, {zwei, lieb, schnitt, sehrWild});
        zeile(u"x?"_s, {});
    }
    void urteil()
    {
        QFETCH(QString, marken);
        QFETCH(QString, text);
        probe_->setzen({{u"urteil"_s, marken}});
        QCOMPARE(probe_->text(u"lblUrteil"_s), text);
        QCOMPARE(probe_->gezeigt(u"labelUt"_s), !text.isEmpty());
    }

    void bewertung()
    {
        for (int stufe = 1; stufe <= 9; ++stufe) {
            probe_->arbeitSetzen(probe_->fenster->satz().artnr(), u"bewertung"_s, stufe);
            probe_->fenster->darstellen();
            QCOMPARE(probe_->text(u"lblBewertung"_s), stufe >= 5 ? u"Standardsortiment"_s : u"Erweitertes Sortiment (für Liebhaber)"_s);
        }
    }

    void gruppen()
    {
        const QString zeit = u"000110000000"_s;
        for (int i = 0; i < 8; ++i) {
            const bool bluete = i & 1, frucht = i & 2, blatt = i & 4;
            probe_->setzen({{u"bluehzeit"_s, bluete ? zeit : u"0"_s},
                            {u"fruchtzeit"_s, frucht ? zeit : QString()},
                            {u"blattform"_s, blatt ? u"rund"_s : QString()}});
            QCOMPARE(probe_->gezeigt(u"Frame3D2"_s), bluete);
            QCOMPARE(probe_->gezeigt(u"fraFrucht"_s), frucht);
            QCOMPARE(probe_->gezeigt(u"Frame3D3"_s), blatt);
            QCOMPARE(probe_->gezeigt(u"Label2"_s), bluete || frucht || blatt);
        }
        probe_->leeren();
        for (const auto &[feld, wert, titel] : {std::tuple(u"MINHOEHE"_s, u"0.2"_s, u"labelHoehe"_s),
                                                {u"blattform"_s, u"rund"_s, u"Label21"_s},
                                                {u"blattfarbe"_s, u"1"_s, u"LabelFarbe"_s},
                                                {u"herbstfarb"_s, u"3"_s, u"Label23"_s}}) {
            probe_->leeren();
            QVERIFY(!probe_->gezeigt(u"Frame3D3"_s) && !probe_->gezeigt(titel));
            probe_->setzen({{feld, wert}});
            QVERIFY2(probe_->gezeigt(u"Frame3D3"_s) && probe_->gezeigt(titel), qPrintable(feld));
        }
    }

    /// A number colours one swatch, and so do flags; "0" and nothing leave none, nor a stale one.
    void farben_data()
    {
        QTest::addColumn<QString>("wert");
        QTest::addColumn<QList<int>>("gefaerbt");
        QTest::newRow("number") << u"3"_s << QList<int>{2};
        QTest::newRow("two digits") << u"12"_s << QList<int>{11};
        QTest::newRow("flags") << u"0101000000000"_s << QList<int>{1, 3};
        QTest::newRow("zero") << u"0"_s << QList<int>{};
        QTest::newRow("empty") << u""_s << QList<int>{};
    }
    void farben()
    {
        QFETCH(QString, wert);
        for (const auto &[feld, stamm] : {std::pair(u"herbstfarb"_s, u"lblHfFarbe"_s), {u"fruchtfarb"_s, u"lblFrFarbe"_s}}) {
            probe_->setzen({{feld, u"5"_s}});
            probe_->setzen({{feld, wert}});
            QTEST(probe_->stellen(stamm, [](QWidget *zelle) { return zelle->property("BackColor").toInt() != farbeKnopf; }), "gefaerbt");
        }
        QFETCH(QList<int>, gefaerbt);
        QCOMPARE(probe_->gezeigt(u"Panel3D6"_s), !gefaerbt.isEmpty());
        QCOMPARE(probe_->gezeigt(u"Label23"_s), !gefaerbt.isEmpty());
    }

    void lebensbereiche()
    {
        probe_->reiterVon(u"picLebensraum"_s);
        for (int mal = 0; mal < 2; ++mal) {
            QTest::mouseClick(probe_->finde(u"picLebensraum"_s), Qt::LeftButton);
            QPointer<QWidget> form = probe_->finde(u"frmLebensbereiche"_s);
            QVERIFY(form->isVisible());
            QCOMPARE(form->windowTitle(), u"Lebensbereiche Stauden"_s);
            QTest::mouseClick(form->findChild<QWidget *>(u"picLebensberiche"_s), Qt::LeftButton);
            QTRY_VERIFY(!form || !form->isVisible());
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }

    void alleMitgelieferten()
    {
        Fensterprobe frisch(Sparte::Stauden);
        frisch.alleZeigen();
        frisch.oeffnen();
        QVERIFY(frisch.fenster->Anzahl >= 300);
        for (int i = 0; i < frisch.fenster->Anzahl; ++i) {
            frisch.fenster->satz().haupt().setAbsolutePosition(i);
            frisch.fenster->darstellen();
            QCOMPARE(frisch.text(u"lblArtNr"_s), QString::number(frisch.fenster->satz().artnr()));
            QVERIFY2(!frisch.text(u"lblPflanzart"_s).isEmpty() && !frisch.text(u"lblLebensraum"_s).isEmpty(), qPrintable(frisch.name()));
        }
    }

private:
    std::unique_ptr<Fensterprobe> probe_;
};

FLOX_TEST(tst_stauden, TestStauden)
#include "tst_stauden.moc"
