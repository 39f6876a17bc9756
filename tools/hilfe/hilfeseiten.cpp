#include "Handbuch.h"

#include "store/Fehler.h"

#include <QCoreApplication>

#include <cstdio>

/* hilfeseiten QUELLE ZIEL DATENBANK   makes the pages of the manual and the project of its collection in ZIEL */

int main(int anzahl, char **argumente)
{
    const QCoreApplication anwendung(anzahl, argumente);
    const QStringList worte = QCoreApplication::arguments();
    if (worte.size() != 4) {
        std::fputs("hilfeseiten QUELLE ZIEL DATENBANK\n", stderr);
        return 2;
    }
    try {
        Handbuch(QDir(worte[1]), QDir(worte[2]), worte[3]).schreiben();
    } catch (const Fehler &fehler) {
        std::fprintf(stderr, "%s\n", fehler.text().toUtf8().constData());
        return 1;
    }
    return 0;
}
