#include "Uebungshand.h"

#include "plantwindows/Aufgabe.h"
#include "store/Lernstand.h"
#include "store/Pfade.h"

#include <QApplication>
#include <QStackedWidget>
#include <QTest>

using namespace Qt::StringLiterals;

void oeffnen(Fensterprobe &probe, int pflanzen)
{
    if (pflanzen)
        probe.nurPflanzen(pflanzen);
    probe.oeffnen();
    probe.fenster->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(probe.fenster.get()));
}

void taste(Qt::Key welche, Qt::KeyboardModifiers umschalter)
{
    QVERIFY(QApplication::focusWidget());
    QTest::keyClick(QApplication::focusWidget(), welche, umschalter);
}

void tippen(const QString &text)
{
    // The test library knows keys of Latin letters only.
    for (const QChar zeichen : text)
        for (const QEvent::Type art : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent ereignis(art, zeichen == u' ' ? Qt::Key_Space : Qt::Key_unknown, Qt::NoModifier, QString(zeichen));
            QApplication::sendEvent(QApplication::focusWidget(), &ereignis);
        }
}

Aufgabe aufgabe(Fensterprobe &probe)
{
    return aufgabeVon(probe.fenster->satz(), *fensterbeschreibung(probe.fenster->sparte()));
}

void nachDerBox(Fensterprobe &probe)
{
    probe.fenster->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(probe.fenster.get()));
    probe.finde(u"txtAntwort_0"_s)->setFocus();
}

QString standdatei(const Fensterprobe &probe)
{
    return systemPfad(pfadAus(probe.programm.ProgrammPfad, Lernstand::dateiname.toString()));
}

bool zuSehen(const QWidget *control, const QWidget *fenster)
{
    for (const QWidget *w = control; w && w != fenster; w = w->parentWidget())
        if (w->isHidden() && !qobject_cast<QStackedWidget *>(w->parentWidget()))
            return false;
    return true;
}
