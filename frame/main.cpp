#include "Ablauf.h"

#include <QApplication>

int main(int anzahl, char **argumente)
{
    QApplication anwendung(anzahl, argumente);
    Ablauf ablauf;
    switch (ablauf.starten()) {
    case Ablauf::Ergebnis::ZweiteInstanz: return 0;
    case Ablauf::Ergebnis::Abgebrochen: return 1;
    case Ablauf::Ergebnis::Laeuft: break;
    }
    return QApplication::exec();
}
