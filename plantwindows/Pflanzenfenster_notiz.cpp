#include "Pflanzenfenster.h"

#include "Elemente.h"

#include <QCheckBox>
#include <QTabBar>
#include <QTabWidget>

/* The user's own note and properties: how they leave the window for the database. */

Notiz Pflanzenfenster::notiz() const
{
    const Anzeigeelement *bemerkung = elementNamens(u"txtEigeneBemerkung");
    QString eigen;
    for (int i = 0; i < anzahlEigenschaften; ++i) {
        const auto *kaestchen = findChild<QCheckBox *>(QStringLiteral("sschkBenutzer_%1").arg(i));
        eigen += kaestchen && kaestchen->isChecked() ? u'1' : u' ';
    }
    return {gezeigt_, bemerkung ? bemerkung->widget()->property("plainText").toString() : QString(), eigen};
}

void Pflanzenfenster::notizNachziehen(const Notiz &notiz)
{
    if (!satz_.offen())
        return;
    // The copy first: it is what is read where the working database lacks the record, and by whoever prints.
    satz_.kopieSchreiben(Fensternummer, notiz);
    if (gezeigt_ == notiz.artnr && satz_.artnr() == notiz.artnr)
        benutzerfelderZeigen();
}

void Pflanzenfenster::notizVerlassen()
{
    const Anzeigeelement *notiz = elementNamens(u"txtEigeneBemerkung");
    const auto *reiter = findChild<QTabWidget *>(QStringLiteral("tabStauden"));
    if (notiz && reiter && window()->focusWidget() == notiz->widget())
        reiter->tabBar()->setFocus(Qt::OtherFocusReason);
}
