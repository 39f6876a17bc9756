#include "Fensterprobe.h"

#include "tests/Testprogramm.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

/* What the woody-plant window shows of a record. */

class TestGehoelze : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        probe_ = std::make_unique<Fensterprobe>(Sparte::Gehoelze);
        probe_->alleZeigen();
        probe_->oeffnen();
    }
    void init() { probe_->leeren(); }

    void genuss_data()
    {
        QTest::addColumn<QString>("wert");
        QTest::addColumn<QString>("text");
        QTest::newRow("1") << u"1"_s << u"eßbar"_s;
        QTest::newRow("2") << u"2"_s << u"ungenießbar"_s;
        QTest::newRow("3") << u"3"_s << u"giftig"_s;
        QTest::newRow("4") << u"4"_s << u"stark giftig !!!"_s;
        for (const QString &anderes : {u"0"_s, u"5"_s, u"x"_s, u""_s})
            QTest::addRow("'%s'", qPrintable(anderes)) << anderes << QString();
    }
    /// The window has words of its own; filter and print have those of the vocabulary.
    void genuss()
    {
        QFETCH(QString, wert);
        QFETCH(QString, text);
        probe_->setzen({{u"genuss"_s, u"2"_s}, {u"fruchtzeit"_s, u"1"_s}});
        probe_->setzen({{u"genuss"_s, wert}});
        QCOMPARE(probe_->text(u"lblGenuss"_s), text);
        QCOMPARE(probe_->gezeigt(u"Label3"_s), !text.isEmpty());
    }

    void einteilung()
    {
        auto *bild = probe_->finde<Bildfeld>(u"imgEigen_0"_s);
        for (const auto &[wert, name] : {std::pair(u"1"_s, u"iliEigenschaften/laub"_s), {u"2"_s, u"iliEigenschaften/nadel"_s}}) {
            probe_->setzen({{u"grobeint"_s, wert}});
            QVERIFY(!bild->isHidden());
            QCOMPARE(bild->bild(), name);
        }
        for (const QString &keine : {u"0"_s, u"3"_s, u"10"_s, u"01"_s, u"11"_s, u""_s, u"x"_s}) {
            probe_->setzen({{u"grobeint"_s, keine}});
            QVERIFY2(bild->isHidden(), qPrintable(keine));
        }
    }

    /// A number that occurs in another one does not bring the other's synonyms.
    void synonymeGleicherZiffern()
    {
        Recordset &satz = probe_->fenster->satz().haupt();
        const qint64 artnr = probe_->fenster->satz().artnr();
        const auto db = probe_->ordner.db();
        db->Execute(u"DELETE FROM Gehoelze_Synonyme_Botanisch"_s);
        db->Execute(u"DELETE FROM Gehoelze_Synonyme_Deutsch"_s);
        for (const QString &tabelle : {u"Gehoelze_Synonyme_Botanisch"_s, u"Gehoelze_Synonyme_Deutsch"_s})
            for (const QString &nummer : {u"1%1"_s.arg(artnr), QString::number(artnr * 10), QString::number(artnr)})
                db->Execute(u"INSERT INTO %1 (ARTNR, SYN) VALUES (?, ?)"_s.arg(tabelle), {nummer.toLongLong(), u"Nummer "_s + nummer});
        QCOMPARE(satz.Schluessel(), artnr);
        probe_->fenster->darstellen();
        QCOMPARE(probe_->text(u"lblSynonyme"_s), u"Nummer %1"_s.arg(artnr));
        QVERIFY(probe_->gezeigt(u"Label24"_s));
        QVERIFY(probe_->text(u"lblDtName"_s).endsWith(u", Nummer %1"_s.arg(artnr)));
        db->Execute(u"DELETE FROM Gehoelze_Synonyme_Botanisch WHERE ARTNR = ?"_s, {artnr});
        probe_->fenster->darstellen();
        QCOMPARE(probe_->text(u"lblSynonyme"_s), QString());
        QVERIFY(!probe_->gezeigt(u"Label24"_s));
    }

    void listenzeilen_data()
    {
        QTest::addColumn<QString>("feld");
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("titel");
        QTest::addColumn<const Werteliste *>("worte");
        const auto zeile = [](const char *feld, const char *control, const char *titel, const Werteliste &worte) {
            QTest::newRow(feld) << QString::fromLatin1(feld) << QString::fromLatin1(control) << QString::fromLatin1(titel) << &worte;
        };
        zeile("laubzeit", "lblZeit", "", WL_GeLaubzeit);
        zeile("laubfarb", "lblBlattFarbe", "", WL_GeLaubfarbe);
        zeile("wurzelform", "lblWurzelWuchs", "Label7", WL_GeWurzelform);
        zeile("bes_merkm", "lblBesMerkmale", "Label23", WL_GeBesMerkmale);
        zeile("phboden", "lblpH", "", WL_GeBodenPh);
        zeile("bfeuchte", "lblBodenFeuchte", "", WL_GeBodenfeuchte);
        zeile("bodenart", "lblBodenart", "", WL_GeBodenart);
        zeile("bes_eig", "lblBesStandort", "Label14", WL_GeBesEigenschaften);
        zeile("groesse", "lblGrGruppe", "", WL_GeGroesse);
        zeile("habitus", "lblHabitus", "Label1", WL_GeHabitus);
        zeile("wuchs", "lblWuchsVerh", "", WL_GeWuchs);
    }
    void listenzeilen()
    {
        QFETCH(QString, feld);
        QFETCH(QString, control);
        QFETCH(QString, titel);
        QFETCH(const Werteliste *, worte);
        QCOMPARE(probe_->text(control), QString());
        if (!titel.isEmpty())
            QVERIFY(!probe_->gezeigt(titel));
        QStringList alle;
        for (const QStringView wort : worte->zeilen)
            alle += wort.toString();
        probe_->setzen({{feld, QString(worte->anzahl(), u'1')}});
        QCOMPARE(probe_->text(control), alle.join(u", "_s));
        if (!titel.isEmpty())
            QVERIFY(probe_->gezeigt(titel));
    }

    void textzeilen_data()
    {
        QTest::addColumn<QString>("feld");
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("leer");
        QTest::newRow("schaden") << u"schaden"_s << u"txtKrank"_s << u"Keine Schadensangaben"_s;
        QTest::newRow("bemerkung") << u"BEMERKUNG"_s << u"txtBemerkung"_s << u"Keine Bemerkungen"_s;
        QTest::newRow("kennzahl") << u"kennzahl"_s << u"lblKennzahl"_s << QString();
        QTest::newRow("hk") << u"hk"_s << u"lblHerkunft"_s << QString();
    }
    void textzeilen()
    {
        QFETCH(QString, feld);
        QFETCH(QString, control);
        QTEST(probe_->text(control), "leer");
        probe_->setzen({{feld, u"Wort 1"_s}});
        QCOMPARE(probe_->text(control), u"Wort 1"_s);
    }

    void durchmesser()
    {
        for (const auto &[wert, text] : {std::pair(u"3.5"_s, u"3,5 m"_s), {u"12"_s, u"12 m"_s}, {u"0"_s, QString()}, {QString(), QString()}}) {
            probe_->setzen({{u"maxdurchm"_s, wert}});
            QCOMPARE(probe_->text(u"lblmaxD"_s), text);
        }
    }

    void gruppen()
    {
        QVERIFY(!probe_->gezeigt(u"ssfWurzelwerk"_s));
        for (int k = 1; k <= WL_GeWurzelempf.anzahl(); ++k) {
            probe_->setzen({{u"wurzelempf"_s, QString::number(k)}});
            QCOMPARE(probe_->text(u"lblEmpfindlich"_s), WL_GeWurzelempf.wort(k).toString());
            QVERIFY(probe_->gezeigt(u"ssfWurzelwerk"_s) && probe_->gezeigt(u"Label13"_s) && !probe_->gezeigt(u"Label7"_s));
        }
        probe_->setzen({{u"wurzelempf"_s, u"0"_s}});
        QVERIFY(!probe_->gezeigt(u"ssfWurzelwerk"_s));
        probe_->setzen({{u"wurzelform"_s, u"1"_s}});
        QVERIFY(probe_->gezeigt(u"ssfWurzelwerk"_s) && !probe_->gezeigt(u"Label13"_s) && probe_->gezeigt(u"Label7"_s));
        for (const auto &[rahmen, feld] : {std::pair(u"Frame3D2"_s, u"bluehzeit"_s), {u"Frame3D1"_s, u"fruchtzeit"_s}})
            for (const auto &[wert, gezeigt] : {std::pair(u"000010000000"_s, true), {u"0"_s, false}, {u""_s, false}}) {
                probe_->setzen({{feld, wert}});
                QCOMPARE(probe_->gezeigt(rahmen), gezeigt);
            }
    }

    void quelle()
    {
        for (const auto &[buchstabe, werk] : {std::pair(u"z"_s, u"Zander"_s), {u"g"_s, u"Namenliste Gehölze"_s}, {u"n"_s, u"Namenliste Stauden"_s}}) {
            probe_->setzen({{u"Quelle"_s, buchstabe}});
            QCOMPARE(probe_->finde(u"lblBotName"_s)->toolTip(), u"Nomenklatur nach '%1'"_s.arg(werk));
        }
    }

    void bewertung()
    {
        for (const auto &[wert, stelle] : {std::pair(1, 40), std::pair(4, 316), std::pair(9, 776)}) {
            probe_->arbeitSetzen(probe_->fenster->satz().artnr(), u"bewertung"_s, wert);
            probe_->fenster->darstellen();
            QCOMPARE(probe_->finde(u"picBewAnzeige"_s)->property("Left").toInt(), stelle);
        }
    }

    void alleMitgelieferten()
    {
        Fensterprobe frisch(Sparte::Gehoelze);
        frisch.alleZeigen();
        frisch.oeffnen();
        QVERIFY(frisch.fenster->Anzahl > 50);
        for (int i = 0; i < frisch.fenster->Anzahl; ++i) {
            frisch.fenster->satz().haupt().setAbsolutePosition(i);
            frisch.fenster->darstellen();
            QVERIFY2(!frisch.text(u"lblGrGruppe"_s).isEmpty() && !frisch.finde(u"imgEigen_0"_s)->isHidden(), qPrintable(frisch.name()));
        }
    }

private:
    std::unique_ptr<Fensterprobe> probe_;
};

FLOX_TEST(tst_gehoelze, TestGehoelze)
#include "tst_gehoelze.moc"
