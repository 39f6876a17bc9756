#include "Fensterprobe.h"

#include "filters/Filterdialog.h"
#include "tests/Testprogramm.h"

#include <QComboBox>
#include <QTest>

using namespace Qt::StringLiterals;

/* Side tables that the working database lacks: one message, and the window shows what there is. */
class TestNebentabellen : public QObject
{
    Q_OBJECT

private slots:
    void fehlt_data();
    void fehlt();
    void familieImFilter();
};

void TestNebentabellen::fehlt_data()
{
    QTest::addColumn<int>("sparte");
    QTest::addColumn<QStringList>("tabellen");
    for (const SpartenEintrag &sparte : alleSparten()) {
        if (!fensterbeschreibung(sparte.sparte))
            continue;
        QStringList alle{u"Familien"_s};
        for (const Sparte quelle : herkuenfte(sparte))
            for (const QStringView tabelle : {eintrag(quelle).synonymBotanisch, eintrag(quelle).synonymDeutsch})
                if (!tabelle.isEmpty())
                    alle += tabelle.toString();
        alle += sparte.bildtabelle.toString();
        for (const QString &tabelle : std::as_const(alle))
            QTest::addRow("%s", qPrintable(tabelle + u" in "_s + sparte.titel.toString())) << int(sparte.sparte) << QStringList{tabelle};
        QTest::addRow("alle in %s", qPrintable(sparte.titel.toString())) << int(sparte.sparte) << alle;
    }
}

void TestNebentabellen::fehlt()
{
    QFETCH(const int, sparte);
    QFETCH(const QStringList, tabellen);
    Fensterprobe probe{Sparte(sparte)};
    probe.alleZeigen();
    for (const QString &tabelle : tabellen)
        probe.ordner.db()->Execute(u"DROP TABLE "_s + tabelle);
    Meldungsfaenger meldungen;
    probe.oeffnen();
    QCOMPARE(meldungen.texte.size(), 1);
    QVERIFY2(meldungen.texte[0].startsWith(u"In der Datenbank 'flox-demo.mdb' fehlen Tabellen"_s), qPrintable(meldungen.texte[0]));
    for (const QString &tabelle : tabellen)
        QVERIFY2(meldungen.texte[0].contains(u"'%1'"_s.arg(tabelle)), qPrintable(meldungen.texte[0]));
    // The plants can be gone through, and nothing is said again.
    for (int i = 0; i < 5; ++i) {
        QCOMPARE(probe.text(QString::fromLatin1(fensterbeschreibung(Sparte(sparte))->kopf[0].control)), probe.name());
        probe.klick("cmdNext");
    }
    probe.klick("cmdFilter");
    QVERIFY(probe.fenster->filterdialog()->isVisible());
    probe.fenster->filterdialog()->cmdOK_Click();
    QVERIFY(!probe.fenster->filterdialog()->isVisible());
    QCOMPARE(meldungen.texte.size(), 1);
}

void TestNebentabellen::familieImFilter()
{
    Fensterprobe probe;
    probe.alleZeigen();
    probe.ordner.db()->Execute(u"DROP TABLE Familien"_s);
    Meldungsfaenger meldungen;
    probe.oeffnen();
    auto *cmbFamilie = probe.fenster->filterdialog()->findChild<QComboBox *>(u"cmbFamilie"_s);
    QCOMPARE(cmbFamilie->count(), 1); // "- Alle -"
    cmbFamilie->setCurrentText(u"Araceae"_s);
    probe.fenster->filterdialog()->cmdOK_Click();
    QCOMPARE(meldungen.texte.size(), 2);
    QCOMPARE(meldungen.texte[1], u"In der Datenbank 'flox-demo.mdb' fehlt die Tabelle 'Familien'."_s);
    QCOMPARE(probe.fenster->Anzahl, int(probe.fenster->satz().haupt().RecordCount()));
    QVERIFY(probe.fenster->Anzahl > 1);
}

FLOX_TEST(tst_nebentabellen, TestNebentabellen)
#include "tst_nebentabellen.moc"
