#include "Fensterprobe.h"

#include "pictures/Bilderliste.h"
#include "tests/Friedhofszeilen.h"
#include "tests/Testprogramm.h"

#include <QCheckBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;

/* The window of cemetery plants: every row by the fields of its source, and nothing of the other side. */

namespace {

const QStringList staudenrahmen{u"fraBelaubung"_s, u"fraFrucht"_s,  u"fraBluete"_s,     u"fraPflanzentyp"_s, u"fraStandort"_s,
                                u"fraBemerkung"_s, u"fraHabitus"_s, u"fraPflanzzeit"_s, u"fraVerwendung"_s,  u"fraSymbolik"_s};

QStringList gehoelzrahmen()
{
    QStringList namen;
    for (const QString &name : staudenrahmen)
        namen += u"fraGh"_s + name.mid(3);
    return namen;
}

} // namespace

class TestFriedhof : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void namenDerControls();
    void jederWegVonSeiteZuSeite();
    void flacheTeilmenge();
    void felderDerSeiten();
    void gleicheNummerAufBeidenSeiten();
    void angehaengteWorte();
    void unbekannteHerkunft();
    void nummerBeiTeilmenge();
    void bilderordner();

private:
    void neu(int anzahl);
    static void zeigen(Fensterprobe &probe, qint64 artnr);
    static QMap<QString, QString> schnappschuss(Fensterprobe &probe);
    QList<qint64> nummern(Sparte herkunft);
    void quelleSetzen(qint64 artnr, const QString &tabelle, const QString &felder);

    std::unique_ptr<Fensterprobe> probe_;
};

void TestFriedhof::neu(int anzahl)
{
    probe_ = std::make_unique<Fensterprobe>(Sparte::Friedhof);
    friedhofFuellen(*probe_->ordner.db(), anzahl);
}

void TestFriedhof::init()
{
    neu(12);
}

void TestFriedhof::zeigen(Fensterprobe &probe, qint64 artnr)
{
    QVERIFY(probe.fenster->satz().haupt().Finden(artnr));
    probe.fenster->darstellen();
}

QList<qint64> TestFriedhof::nummern(Sparte herkunft)
{
    Pflanzensatz &satz = probe_->fenster->satz();
    QList<qint64> gefunden;
    for (satz.haupt().MoveFirst(); !satz.haupt().Eof(); satz.haupt().MoveNext())
        if (satz.herkunft() == herkunft)
            gefunden += satz.artnr();
    return gefunden;
}

/// What stands on the record and its frames, by the names of the controls that are shown.
QMap<QString, QString> TestFriedhof::schnappschuss(Fensterprobe &probe)
{
    QMap<QString, QString> bild;
    const QWidget *ansicht = probe.finde(u"fraDaten"_s);
    for (QWidget *control : ansicht->findChildren<QWidget *>()) {
        const QString name = control->objectName();
        bool sichtbar = !name.isEmpty() && !name.startsWith(u"qt_");
        // The pages of the other tabs are hidden, but not what stands on them.
        for (const QWidget *eltern = control; eltern != ansicht && sichtbar; eltern = eltern->parentWidget())
            sichtbar = !eltern->isHidden() || eltern->parentWidget()->inherits("QStackedWidget");
        if (!sichtbar)
            continue;
        QString text = u"da"_s;
        if (auto *schild = qobject_cast<QLabel *>(control))
            text = schild->text() + u'|' + (name == u"lblBotName" ? schild->toolTip() : QString());
        else if (auto *zelle = qobject_cast<Farbzelle *>(control))
            text = QString::number(zelle->backColor()) + u' ' + QString::number(zelle->backStyle());
        else if (auto *bildfeld = qobject_cast<Bildfeld *>(control))
            text = bildfeld->bild();
        else if (auto *kasten = qobject_cast<QPlainTextEdit *>(control))
            text = kasten->toPlainText();
        else if (auto *kaestchen = qobject_cast<QCheckBox *>(control))
            text = kaestchen->isChecked() ? u"an"_s : u"aus"_s;
        bild.insert(name, text);
    }
    return bild;
}

void TestFriedhof::quelleSetzen(qint64 artnr, const QString &tabelle, const QString &felder)
{
    const auto db = probe_->ordner.db();
    db->Execute(u"UPDATE %1 SET %2 WHERE ARTNR = %3"_s.arg(tabelle, felder).arg(artnr));
    QCOMPARE(db->geaendert(), 1);
}

void TestFriedhof::namenDerControls()
{
    for (const QString &rahmen : staudenrahmen + gehoelzrahmen())
        QVERIFY2(probe_->fenster->findChild<QWidget *>(rahmen), qPrintable(rahmen));
    // A woody control stands in its frame under the perennial one's name, with "Gh" behind the prefix.
    for (const auto &[rahmen, name] : {std::pair(u"fraBluete"_s, u"lblBlFarbe_0"_s),
                                       {u"fraBluete"_s, u"lblBlMonat_11"_s},
                                       {u"fraBluete"_s, u"lblBluetHoehe"_s},
                                       {u"fraFrucht"_s, u"lblFrFarbe_13"_s},
                                       {u"fraStandort"_s, u"imgLicht_2"_s},
                                       {u"fraStandort"_s, u"lblpH"_s},
                                       {u"fraSymbolik"_s, u"lblSymbolik"_s},
                                       {u"fraHabitus"_s, u"lblWuchsVerh"_s}}) {
        QVERIFY2(probe_->finde(rahmen)->isAncestorOf(probe_->finde(name)), qPrintable(name));
        const QString gehoelz = name.left(3) + u"Gh"_s + name.mid(3);
        QVERIFY2(probe_->finde(u"fraGh"_s + rahmen.mid(3))->isAncestorOf(probe_->finde(gehoelz)), qPrintable(gehoelz));
    }
    // The perennial frames' controls bear the names of the perennial window.
    Fensterprobe stauden(Sparte::Stauden);
    for (const char *name :
         {"lblHfFarbe_0", "Panel3D6", "lblBlattform", "lblPflanzart", "lblWuchs", "lblBodenart", "lblNaehrstoffe", "lblGeselligkeit", "txtSorten"}) {
        QVERIFY2(stauden.fenster->findChild<QWidget *>(QString::fromLatin1(name)), name);
        QVERIFY2(probe_->fenster->findChild<QWidget *>(QString::fromLatin1(name)), name);
    }
}

/// A row looks the same whichever row was shown before it.
void TestFriedhof::jederWegVonSeiteZuSeite()
{
    probe_->oeffnen();
    const QList<qint64> stauden = nummern(Sparte::Stauden), gehoelze = nummern(Sparte::Gehoelze);
    QCOMPARE(stauden.size(), 12);
    QCOMPARE(gehoelze.size(), 12);
    QMap<qint64, QMap<QString, QString>> gesehen;
    const auto hin = [&](qint64 artnr, const QStringList &fremd) {
        zeigen(*probe_, artnr);
        const QMap<QString, QString> bild = schnappschuss(*probe_);
        if (!gesehen.contains(artnr))
            gesehen[artnr] = bild;
        QCOMPARE(bild, gesehen[artnr]);
        for (const QString &rahmen : fremd) {
            QVERIFY2(!probe_->gezeigt(rahmen), qPrintable(rahmen));
            for (const QWidget *control : probe_->finde(rahmen)->findChildren<QWidget *>())
                QVERIFY2(control->objectName().isEmpty() || !bild.contains(control->objectName()), qPrintable(control->objectName()));
        }
    };
    for (const qint64 staude : stauden)
        for (const qint64 gehoelz : gehoelze) {
            hin(staude, gehoelzrahmen());
            hin(gehoelz, staudenrahmen);
        }
    // They do show something, each its own.
    for (const qint64 artnr : stauden + gehoelze)
        QVERIFY(gesehen[artnr].size() > 60);
    QVERIFY(gesehen[stauden[0]] != gesehen[stauden[1]]);
}

/// The same plants out of a flat table look the same, field by field.
void TestFriedhof::flacheTeilmenge()
{
    neu(40);
    Fensterprobe flach(Sparte::Friedhof);
    flach.programm.OriginalDatenbank = false;
    friedhofFlach(*probe_->ordner.db(), *flach.ordner.db());
    probe_->oeffnen();
    flach.oeffnen();
    const std::vector<qint64> folge = probe_->fenster->satz().haupt().Schluesselfolge();
    QCOMPARE(folge.size(), size_t(80));
    QCOMPARE(flach.fenster->satz().haupt().Schluesselfolge(), folge); // all of them, in the same order
    for (const qint64 artnr : folge) {
        zeigen(*probe_, artnr);
        zeigen(flach, artnr);
        QCOMPARE(schnappschuss(flach), schnappschuss(*probe_));
    }
    // The names in both forms, whatever the flag says.
    for (const bool original : {true, false}) {
        flach.programm.OriginalDatenbank = original;
        for (const char *feld : {"Stauden.bluehzeit", "stauden_bluehzeit", "Friedhof.bewertung", "friedhof_bewertung"})
            QCOMPARE(flach.fenster->Auslesen(QString::fromLatin1(feld)), probe_->fenster->Auslesen(QString::fromLatin1(feld)));
    }
}

/// What the window takes from which table.
void TestFriedhof::felderDerSeiten()
{
    const auto db = probe_->ordner.db();
    db->Execute(u"DELETE FROM Friedhof WHERE DB = '010' OR ARTNR NOT IN (SELECT min(ARTNR) FROM Friedhof)"_s);
    Anweisung &nummer = db->vorbereitet(u"SELECT ARTNR FROM Friedhof"_s);
    QVERIFY(nummer.schritt());
    const qint64 staude = nummer.zahl(0), gehoelz = 2001;
    nummer.zuruecksetzen();
    db->Execute(u"INSERT INTO Friedhof (ARTNR, BOT_NAME, DB, bewertung) VALUES (?, 'Zuletzt', '010', 9)"_s, {gehoelz});
    for (const qint64 artnr : {staude, gehoelz})
        quelleSetzen(artnr, u"Friedhof"_s,
                     u"SYMBOLIK = 'Treue', verwendung = '0100000001000000', pflege = '110', pflanzzeit = '101', MINHOEHE = 3, MAXHOEHE = 4, "
                     "blaschmuck = 'False', BLUEHSCHMU = 'True', fruchtschm = 'False', HERBSTFARB = 'True', wuchsgesch = '010', abstand = '25 cm', "
                     "NAEHRSTOFF = '001', DUFT = 'True', fruchtzeit = '000000000001'"_s);
    quelleSetzen(staude, u"Stauden"_s,
                 u"bluehzeit = '100000000000', fruchtzeit = '010000000000', BLMINH = 0.2, BLMAXH = 0.4, UNSCHEINBA = 'True', MINHOEHE = 0.1, "
                 "MAXHOEHE = 0.3, blaschmuck = 'True', pflanzart = 'S', immergruen = 'True', wuchsform = 'horstig', salz = '100', fruchtfarb = "
                 "'3'"_s);
    quelleSetzen(gehoelz, u"Gehoelze"_s,
                 u"bluehzeit = '001000000000', fruchtzeit = '000100000000', fruchtfarb = '00001000000000', UNSCHEINBA = 'True', laubzeit = '1000', "
                 "grobeint = '2', groesse = '00100000', BEMERKUNG = 'Nur im Schutz'"_s);
    probe_->oeffnen();
    const auto monate = [&](const QString &stamm) {
        return probe_->stellen(stamm, [](QWidget *zelle) { return static_cast<Farbzelle *>(zelle)->backColor() != farbeKnopf; });
    };
    zeigen(*probe_, staude);
    QCOMPARE(monate(u"lblBlMonat"_s), QList<int>{0});
    QCOMPARE(monate(u"lblFrMonat"_s), QList<int>{1});
    QCOMPARE(monate(u"lblFrFarbe"_s), QList<int>{2});
    QCOMPARE(probe_->text(u"lblBluetHoehe"_s), u"0,2 bis 0,4 m (unscheinbar)"_s);
    QCOMPARE(probe_->text(u"lblLaubHoehe"_s), u"0,1 bis 0,3 m"_s);
    QCOMPARE(probe_->text(u"lblPflanzart"_s), u"Staude, immergrün, Duftpflanze, Herbstfärbung!"_s);
    QVERIFY(probe_->gezeigt(u"lblBlattSchmuck"_s) && probe_->gezeigt(u"lblBluehSchmuck"_s) && !probe_->gezeigt(u"lblFruchtSchmuck"_s));
    QCOMPARE(probe_->text(u"lblBlattSchmuck"_s), u"Blätter sind schmückend!"_s);
    QCOMPARE(probe_->text(u"lblBluehSchmuck"_s), u"Blüten sind schmückend!"_s);
    QVERIFY(probe_->gezeigt(u"imgEigen_0"_s));
    QCOMPARE(probe_->text(u"lblWuchs"_s), u"horstig"_s);
    QCOMPARE(probe_->text(u"lblWuchsVerh"_s), WL_GeWuchs.wort(2).toString());
    QCOMPARE(probe_->text(u"lblNaehrstoffe"_s), u"nährstoffarm"_s);
    QCOMPARE(probe_->text(u"lblPflanzzeit"_s), u"Frühjahr, Herbst"_s);
    QCOMPARE(probe_->text(u"lblPflege"_s), u"gering - mittel"_s);
    QCOMPARE(probe_->text(u"lblAbstand"_s), u"25 cm"_s);
    QCOMPARE(probe_->text(u"lblVerwendung"_s), u"GB-Bodendecker, Grabfeld, eigtl. Friedhof (GF)"_s);
    QCOMPARE(probe_->text(u"lblSymbolik"_s), u"Treue"_s);
    zeigen(*probe_, gehoelz);
    QVERIFY(probe_->gezeigt(u"imgGhEigen_0"_s));
    QCOMPARE(monate(u"lblGhBlMonat"_s), QList<int>{2});
    QCOMPARE(monate(u"lblGhFrMonat"_s), QList<int>{11});
    QCOMPARE(monate(u"lblGhFrFarbe"_s), QList<int>{4});
    QCOMPARE(probe_->text(u"lblGhBluetHoehe"_s), u"3 bis 4 m (unscheinbar)"_s);
    QCOMPARE(probe_->text(u"lblGhZeit"_s), u"sommergrün, Herbstfärbung!"_s);
    QVERIFY(!probe_->gezeigt(u"lblGhBlattSchmuck"_s) && probe_->gezeigt(u"lblGhBluehSchmuck"_s));
    QCOMPARE(probe_->text(u"lblGhEinteilung"_s), u"Nadelgehölz, Duftpflanze"_s);
    QCOMPARE(probe_->text(u"lblGhGrGruppe"_s), WL_GeGroesse.wort(3).toString());
    QCOMPARE(probe_->text(u"lblGhNaehrstoffe"_s), u"nährstoffreich"_s);
    QCOMPARE(probe_->text(u"lblGhSymbolik"_s), u"Treue"_s);
    QCOMPARE(probe_->text(u"txtGhBemerkung"_s), u"Nur im Schutz"_s);
}

/// A perennial of a woody plant's number shows nowhere.
void TestFriedhof::gleicheNummerAufBeidenSeiten()
{
    const auto db = probe_->ordner.db();
    probe_->oeffnen();
    const qint64 gehoelz = nummern(Sparte::Gehoelze).first();
    zeigen(*probe_, gehoelz);
    const QMap<QString, QString> vorher = schnappschuss(*probe_);
    Fensterprobe doppelt(Sparte::Friedhof);
    friedhofFuellen(*doppelt.ordner.db(), 12);
    doppelt.ordner.db()->Execute(u"INSERT INTO Stauden (ARTNR, BOT_NAME, FAMILIE, Quelle, HK, SORTEN, immergruen, bluehzeit, pflanzart, "
                                 "Ausbildung, BEMERKUNG) "
                                 "VALUES (?, 'Falsa', 1, 'n', 'nirgends', 'Alba', 'True', '111111111111', 'S', '111111', 'falsch')"_s,
                                 {gehoelz});
    doppelt.oeffnen();
    zeigen(doppelt, gehoelz);
    QCOMPARE(schnappschuss(doppelt), vorher);
}

void TestFriedhof::angehaengteWorte()
{
    probe_->oeffnen();
    const qint64 staude = nummern(Sparte::Stauden).first(), gehoelz = nummern(Sparte::Gehoelze).first();
    probe_.reset();
    neu(12);
    quelleSetzen(staude, u"Stauden"_s,
                 u"BLMINH = NULL, BLMAXH = NULL, UNSCHEINBA = 'True', pflanzart = NULL, immergruen = 'True', bluehzeit = "
                 "'1'"_s);
    quelleSetzen(staude, u"Friedhof"_s, u"DUFT = 'False', HERBSTFARB = 'False'"_s);
    quelleSetzen(gehoelz, u"Gehoelze"_s, u"laubzeit = NULL"_s);
    quelleSetzen(gehoelz, u"Friedhof"_s, u"HERBSTFARB = 'True'"_s);
    probe_->oeffnen();
    zeigen(*probe_, staude);
    QCOMPARE(probe_->text(u"lblBluetHoehe"_s), u"(unscheinbar)"_s);
    QCOMPARE(probe_->text(u"lblPflanzart"_s), u"immergrün"_s);
    zeigen(*probe_, gehoelz);
    QCOMPARE(probe_->text(u"lblGhZeit"_s), u"Herbstfärbung!"_s);
}

void TestFriedhof::unbekannteHerkunft()
{
    probe_->ordner.db()->Execute(u"INSERT INTO Friedhof (ARTNR, BOT_NAME, DTNAM, DB, bewertung) VALUES (9000, 'Zzz', 'Fremd', '001', 9)"_s);
    probe_->oeffnen();
    Meldungsfaenger meldungen;
    for (const Sparte seite : {Sparte::Stauden, Sparte::Gehoelze}) {
        meldungen.texte.clear();
        zeigen(*probe_, nummern(seite).first());
        const auto rahmen = [&] {
            QStringList gezeigte;
            for (const QString &name : staudenrahmen + gehoelzrahmen())
                if (probe_->gezeigt(name))
                    gezeigte += name;
            return gezeigte;
        };
        const QStringList vorher = rahmen();
        QVERIFY(!vorher.isEmpty());
        zeigen(*probe_, 9000);
        QTRY_COMPARE(meldungen.texte, QStringList{u"Unbekannte Datenbank!"_s});
        QCOMPARE(rahmen(), vorher);
        QCOMPARE(probe_->text(u"lblDtName"_s), u"Fremd"_s);
        for (const char *name : {"lblFamilie", "lblSynonyme", "lblHerkunft", "lblGrGruppe", "lblBodenart"}) {
            const QString gehoelz = QString::fromLatin1(name).insert(3, u"Gh"_s);
            for (const QString &control : {QString::fromLatin1(name), gehoelz})
                if (probe_->fenster->findChild<QLabel *>(control))
                    QCOMPARE(probe_->text(control), QString());
        }
    }
}

/// With a subset the number is that of the row before, while a woody row is shown.
void TestFriedhof::nummerBeiTeilmenge()
{
    probe_->oeffnen();
    const qint64 staude = nummern(Sparte::Stauden).first(), gehoelz = nummern(Sparte::Gehoelze).first();
    for (const bool original : {true, false}) {
        probe_->programm.OriginalDatenbank = original;
        zeigen(*probe_, staude);
        QCOMPARE(probe_->text(u"lblArtNr"_s), QString::number(staude));
        zeigen(*probe_, gehoelz);
        QCOMPARE(probe_->text(u"lblArtNr"_s), QString::number(original ? gehoelz : staude));
    }
}

/// The strip goes by the row's origin, the picture window by its number: of the shipped plants, and of all that can become one, both
/// are the same.
void TestFriedhof::bilderordner()
{
    Programmordner ordner; // as shipped
    const SpartenEintrag &friedhof = eintrag(Sparte::Friedhof);
    for (Recordset satz(ordner.db(), u"Friedhof"_s); !satz.Eof(); satz.MoveNext()) {
        const auto quelle = herkunft(friedhof, satz.Fields(u"DB").Text());
        QVERIFY2(quelle, qPrintable(satz.Fields(u"BOT_NAME").Text()));
        QCOMPARE(::bildordner(Sparte::Friedhof, satz.Fields(u"ARTNR").Ganzzahl()), eintrag(*quelle).bildordner.toString());
    }
    for (const Sparte quelle : herkuenfte(friedhof)) {
        Recordset satz(ordner.db(), eintrag(quelle).haupttabelle.toString());
        QVERIFY(satz.RecordCount() > 100);
        for (; !satz.Eof(); satz.MoveNext())
            QCOMPARE(::bildordner(Sparte::Friedhof, satz.Fields(u"ARTNR").Ganzzahl()), eintrag(quelle).bildordner.toString());
    }
}

FLOX_TEST(tst_friedhof, TestFriedhof)
#include "tst_friedhof.moc"
