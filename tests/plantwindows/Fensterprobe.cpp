#include "Fensterprobe.h"

#include "pictures/Bildform.h"
#include "plantwindows/Elementtexte.h"

#include <QCheckBox>
#include <QLabel>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

std::vector<const Element *> alleElemente(const Fensterbeschreibung &beschreibung)
{
    std::vector<const Element *> alle;
    const auto dazu = [&](std::span<const Element> elemente) {
        for (const Element &element : elemente)
            alle.push_back(&element);
    };
    dazu(beschreibung.kopf);
    dazu(beschreibung.tafel);
    for (const Reiter &reiter : beschreibung.reiter)
        for (const Gruppe &gruppe : reiter.gruppen)
            dazu(gruppe.elemente);
    return alle;
}

Fensterprobe::Fensterprobe(Sparte sparte, int nummer) : Fensterprobe(*fensterbeschreibung(sparte), nummer) {}

Fensterprobe::Fensterprobe(const Fensterbeschreibung &beschreibung, int nummer)
    : programm(ordner.programm()), fenster(std::make_unique<Pflanzenfenster>(programm, zentrale, beschreibung, nummer))
{
}

void Fensterprobe::alleZeigen()
{
    ordner.db()->Execute(u"UPDATE %1 SET bewertung = 9"_s.arg(grundtabelle(fenster->sparte())));
}

void Fensterprobe::nurPflanzen(int anzahl)
{
    const QString tabelle = grundtabelle(fenster->sparte());
    ordner.db()->Execute(u"DELETE FROM %1 WHERE ARTNR NOT IN (SELECT ARTNR FROM %1 ORDER BY ARTNR LIMIT %2)"_s.arg(tabelle).arg(anzahl));
    alleZeigen();
}

void Fensterprobe::oeffnen()
{
    fenster->Form_Activate();
    fenster->show();
    if (!QTest::qWaitForWindowExposed(fenster.get()))
        qFatal("The window does not come up.");
}

std::unique_ptr<Pflanzenfenster> Fensterprobe::weiteres(int nummer)
{
    return std::make_unique<Pflanzenfenster>(programm, zentrale, *fensterbeschreibung(fenster->sparte()), nummer);
}

void Fensterprobe::setzen(const Werte &werte)
{
    Recordset &satz = fenster->satz().haupt();
    satz.Edit();
    for (auto i = werte.cbegin(); i != werte.cend(); ++i)
        satz.Fields(fenster->satz().spaltenname(i.key())).setValue(i.value());
    satz.Update();
    fenster->darstellen();
}

void Fensterprobe::leeren()
{
    Werte werte;
    for (const Spalte &spalte : schema::spaltenVon(eintrag(fenster->sparte()).haupttabelle))
        if (spalte.art != Art::Schluessel && spalte.art != Art::Name)
            werte.insert(QString::fromLatin1(spalte.name), {});
    setzen(werte);
}

void Fensterprobe::arbeitSetzen(qint64 artnr, const QString &feld, const QVariant &wert)
{
    const auto db = ordner.db();
    db->Execute(u"UPDATE %1 SET %2 = ? WHERE ARTNR = ?"_s.arg(eintrag(fenster->sparte()).haupttabelle, feld), {wert, artnr});
    if (db->geaendert() != 1)
        qFatal("Record %lld is not in the working database.", artnr);
}

QString Fensterprobe::arbeitLesen(qint64 artnr, const QString &feld)
{
    Recordset satz(ordner.db(), eintrag(fenster->sparte()).haupttabelle.toString());
    return satz.Finden(artnr) ? satz.Fields(feld).Text() : u"(kein Datensatz)"_s;
}

QString Fensterprobe::text(const QString &name)
{
    QWidget *control = finde(name);
    if (auto *schild = qobject_cast<QLabel *>(control))
        return schild->text();
    return control->property("plainText").toString();
}

void Fensterprobe::reiterVon(const QString &name)
{
    auto *tabStauden = finde<QTabWidget>(u"tabStauden"_s);
    for (int i = 0; i < tabStauden->count(); ++i)
        if (tabStauden->widget(i)->isAncestorOf(finde(name)))
            tabStauden->setCurrentIndex(i);
    // The page takes its places.
    QCoreApplication::processEvents();
}

void Fensterprobe::klick(const char *knopfname)
{
    QTest::mouseClick(knopf(knopfname), Qt::LeftButton);
}

void Fensterprobe::mausBewegen(QWidget *control, QPoint stelle)
{
    // Sent to the control itself: the place on the screen, which may be smaller than the window, plays no part.
    QMouseEvent bewegung(QEvent::MouseMove, stelle, control->mapToGlobal(QPointF(stelle)), Qt::NoButton, Qt::NoButton, {});
    QCoreApplication::sendEvent(control, &bewegung);
}

namespace {

/// A flag string with "1" at the given positions, counted from 1.
QList<int> gefaerbt(Fensterprobe &probe, const QString &stamm)
{
    return probe.stellen(stamm, [](QWidget *zelle) { return zelle->property("BackColor").toInt() != farbeKnopf; });
}

QList<int> sichtbare(Fensterprobe &probe, const QString &stamm)
{
    return probe.stellen(stamm, [](QWidget *bild) { return !bild->isHidden(); });
}

QList<int> angekreuzt(Fensterprobe &probe, const QString &stamm)
{
    return probe.stellen(stamm, [](QWidget *kaestchen) { return qobject_cast<QCheckBox *>(kaestchen)->isChecked(); });
}

/// Text and caption of a text element.
void textPruefen(Fensterprobe &probe, const Element &e, const QString &text)
{
    const QString control = QString::fromLatin1(e.control);
    QCOMPARE(probe.text(control), text);
    if (titelVon(probe.fenster->sparte(), e).isEmpty())
        return;
    const QString titel = e.titel ? QString::fromLatin1(e.titel) : control + u"_Titel"_s;
    QCOMPARE(probe.gezeigt(titel), !text.isEmpty());
    QCOMPARE(probe.gezeigt(control), !text.isEmpty());
    QVERIFY(probe.text(titel).endsWith(u':'));
}

} // namespace

void elementPruefen(Fensterprobe &probe, const Element &e)
{
    const QString control = QString::fromLatin1(e.control), feld = QString::fromLatin1(e.feld);
    const QString feld2 = e.feld2 ? QString::fromLatin1(e.feld2) : feld;
    const Werteliste *liste = schema::wertelisteVon(spalteVon(probe.fenster->sparte(), e.feld));
    const qint64 artnr = probe.fenster->satz().artnr();
    const auto zeigen = [&](const QVariant &wert, const QVariant &wert2) { probe.setzen({{feld, wert}, {feld2, wert2}}); };

    // The user's fields are those of the working database.
    const auto zeigenAusArbeit = [&](const QVariant &wert) {
        probe.arbeitSetzen(artnr, feld, wert);
        probe.fenster->darstellen();
    };

    switch (e.muster) {
    case Muster::Text:
        zeigen({}, {});
        textPruefen(probe, e, e.leer.toString());
        if (QTest::currentTestFailed())
            return;
        zeigen(u"Wert 1"_s, u"Wert 1"_s);
        return textPruefen(probe, e, u"Wert 1"_s);
    case Muster::BotName: zeigen(u"Testus planta"_s, u"Testus planta"_s); return textPruefen(probe, e, u"Testus planta"_s);
    case Muster::Liste: {
        QVERIFY2(liste && liste->anzahl() >= 2, e.feld);
        zeigen({}, {});
        textPruefen(probe, e, {});
        if (QTest::currentTestFailed())
            return;
        const QString wert = flags(liste->anzahl(), {1, liste->anzahl()});
        zeigen(wert, wert);
        return textPruefen(probe, e, liste->zeilen.front().toString() + e.trenner.toString() + liste->zeilen.back().toString());
    }
    case Muster::VonBisMeter:
        zeigen({}, {});
        textPruefen(probe, e, {});
        if (QTest::currentTestFailed())
            return;
        zeigen(u"0.5"_s, u"1,20"_s);
        return textPruefen(probe, e, u"0,5 bis 1,2"_s + e.einheit.toString());
    case Muster::VonBisMindest:
        zeigen(u"15"_s, u"0"_s);
        textPruefen(probe, e, u"mind. 15"_s + e.einheit.toString());
        if (QTest::currentTestFailed())
            return;
        zeigen(u"15"_s, u"25"_s);
        return textPruefen(probe, e, u"15 bis 25"_s + e.einheit.toString());
    case Muster::Satz:
        zeigen({}, {});
        QVERIFY(!probe.gezeigt(control));
        QCOMPARE(probe.text(control), QString());
        zeigen(u"True"_s, u"True"_s);
        QVERIFY(probe.gezeigt(control));
        QCOMPARE(probe.text(control), e.leer.toString());
        return;
    case Muster::Monate:
        zeigen({}, {});
        QCOMPARE(gefaerbt(probe, control), QList<int>());
        zeigen(flags(12, {1, 12}), flags(12, {1, 12}));
        QCOMPARE(gefaerbt(probe, control), (QList<int>{0, 11}));
        QCOMPARE(probe.zelle(control, 11)->backColor(), int(0x80000003u));
        return;
    case Muster::Farbfeld: {
        const int letzte = int(e.farben->werte.size());
        zeigen({}, {});
        QCOMPARE(gefaerbt(probe, control), QList<int>());
        zeigen(flags(letzte + 1, {2, letzte, letzte + 1}), flags(letzte + 1, {2, letzte, letzte + 1}));
        QCOMPARE(gefaerbt(probe, control), (QList<int>{1, letzte - 1}));
        QCOMPARE(probe.zelle(control, 1)->backColor(), e.farben->werte[1]);
        QCOMPARE(probe.zelle(e.buntZiel ? QString::fromLatin1(e.buntZiel) : control, letzte)->backStyle(), 1);
        zeigen({}, {});
        QCOMPARE(gefaerbt(probe, control), QList<int>());
        QCOMPARE(probe.zelle(control, letzte)->backStyle(), 0);
        return;
    }
    case Muster::Symbole:
    case Muster::Symbolfluss: {
        const int anzahl = int(e.symbole.size());
        Fensterprobe::Werte nichts{{feld, {}}};
        QList<int> stellen, wahre; // pictures set by their position and by a field of their own
        for (int i = 0; i < anzahl; ++i) {
            const Symbol &symbol = e.symbole[size_t(i)];
            (symbol.feld ? wahre : stellen) += i;
            if (symbol.feld)
                nichts.insert(QString::fromLatin1(symbol.feld), {});
        }
        probe.setzen(nichts);
        QCOMPARE(sichtbare(probe, control), QList<int>());
        probe.setzen({{feld, flags(int(stellen.size()), {1, int(stellen.size())})}});
        QCOMPARE(sichtbare(probe, control), (QList<int>{0, int(stellen.size()) - 1}));
        for (const int i : std::as_const(wahre)) {
            probe.setzen(nichts);
            probe.setzen({{QString::fromLatin1(e.symbole[size_t(i)].feld), u"True"_s}});
            QCOMPARE(sichtbare(probe, control), QList<int>{i});
        }
        return;
    }
    case Muster::Bildoeffner: {
        const QString form = QString::fromLatin1(e.formular->form);
        QVERIFY(!probe.fenster->findChild<QWidget *>(form));
        QTest::mouseClick(probe.finde(control), Qt::LeftButton);
        QVERIFY(probe.finde(form)->isVisible());
        probe.finde(form)->close();
        return;
    }
    case Muster::Bildwahl: {
        auto *bild = probe.finde<Bildfeld>(control);
        zeigen({}, {});
        QVERIFY(bild->isHidden());
        const QString wert = flags(int(e.symbole.size()), {int(e.symbole.size())});
        zeigen(wert, wert);
        QCOMPARE(bild->bild(), QString::fromLatin1(e.symbole.back().bild));
        return;
    }
    case Muster::DtName:
        zeigen({}, {});
        textPruefen(probe, e, probe.fenster->satz().synonyme(true).join(u", "_s));
        if (QTest::currentTestFailed())
            return;
        zeigen(u"Testpflanze"_s, u"Testpflanze"_s);
        return textPruefen(probe, e, (QStringList{u"Testpflanze"_s} + probe.fenster->satz().synonyme(true)).join(u", "_s));
    case Muster::Synonyme: {
        const QString tabelle = eintrag(probe.fenster->sparte()).synonymBotanisch.toString();
        probe.ordner.db()->Execute(u"DELETE FROM %1 WHERE ARTNR = ?"_s.arg(tabelle), {artnr});
        probe.fenster->darstellen();
        textPruefen(probe, e, {});
        if (QTest::currentTestFailed())
            return;
        for (const QString &wort : {u"Zeta prima"_s, QString(), u"Alpha secunda"_s})
            probe.ordner.db()->Execute(u"INSERT INTO %1 VALUES (?, ?)"_s.arg(tabelle), {artnr, wort});
        probe.fenster->darstellen();
        return textPruefen(probe, e, u"Zeta prima, Alpha secunda"_s);
    }
    case Muster::Familie:
        zeigen({}, {});
        textPruefen(probe, e, {});
        if (QTest::currentTestFailed())
            return;
        probe.ordner.db()->Execute(u"INSERT OR REPLACE INTO Familien VALUES (9999, 'Testaceae')"_s);
        zeigen(9999, 9999);
        return textPruefen(probe, e, u"Testaceae"_s);
    case Muster::Bewertung: {
        const auto links = [&](const QVariant &wert) {
            if (e.ausArbeit) {
                probe.arbeitSetzen(artnr, feld, wert);
                probe.fenster->darstellen();
            } else {
                zeigen(wert, wert);
            }
            return probe.finde(u"picBewAnzeige"_s)->property("Left").toInt();
        };
        QCOMPARE(links(1), 40);
        QCOMPARE(links(7), 592);
        QCOMPARE(links({}), 592);
        QCOMPARE(links(9), 776);
        return;
    }
    case Muster::Kaestchen: {
        const int anzahl = int(e.worte.size());
        zeigen({}, {});
        QCOMPARE(angekreuzt(probe, control), QList<int>());
        zeigen(flags(anzahl, {1, anzahl}), flags(anzahl, {1, anzahl}));
        QCOMPARE(angekreuzt(probe, control), (QList<int>{0, anzahl - 1}));
        return;
    }
    case Muster::Benutzertext:
        zeigenAusArbeit({});
        QCOMPARE(probe.text(control), QString());
        zeigenAusArbeit(u"Eine Notiz"_s);
        QCOMPARE(probe.text(control), u"Eine Notiz"_s);
        return zeigenAusArbeit({});
    case Muster::Benutzereigen:
        zeigenAusArbeit({});
        QCOMPARE(angekreuzt(probe, control), QList<int>());
        zeigenAusArbeit(u"1 1  "_s);
        QCOMPARE(angekreuzt(probe, control), (QList<int>{0, 2}));
        return zeigenAusArbeit({});
    case Muster::Ausbildung:
        zeigen({}, {});
        textPruefen(probe, e, {});
        if (QTest::currentTestFailed())
            return;
        zeigen(u"000100"_s, u"000100"_s);
        return textPruefen(probe, e, u"Pflanze ist Bestandteil der Gehilfenprüfung bei Friedhofsgärtnern"_s);
    case Muster::Herkunftsmarke: {
        auto *bild = probe.finde<Bildfeld>(control);
        zeigen({}, {});
        QCOMPARE(bild->tag(), u"1"_s);
        QCOMPARE(bild->bild(), u"iliBenutzer/ok"_s);
        QCOMPARE(bild->toolTip(), u"Diese Daten stammen aus einem Original-Datensatz der FH Lindenhof"_s);
        zeigen(2, 2);
        QCOMPARE(bild->tag(), u"2"_s);
        QCOMPARE(bild->bild(), u"iliBenutzer/ko"_s);
        QCOMPARE(bild->toolTip(), u"Diese Daten wurden vom Benutzer geändert!"_s);
        return;
    }
    }
    QFAIL("This pattern is not known here.");
}
