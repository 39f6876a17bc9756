#include "Ablauf.h"
#include "Aufruf.h"

#include <QApplication>
#include <QFile>

#include <cstdio>

int main(int anzahl, char **argumente)
{
    QStringList texte;
    for (int i = 1; i < anzahl; ++i)
        texte += QFile::decodeName(argumente[i]);
    // Asked before there is a display.
    const Aufruf aufruf = aufrufLesen(texte);
    if (!aufruf.auskunft.isEmpty()) {
        std::fputs(aufruf.auskunft.toLocal8Bit().constData(), aufruf.ergebnis == 0 ? stdout : stderr);
        return aufruf.ergebnis;
    }
    QApplication anwendung(anzahl, argumente);
    Ablauf ablauf;
    switch (ablauf.starten(aufruf.datei)) {
    case Ablauf::Ergebnis::ZweiteInstanz: return 0;
    case Ablauf::Ergebnis::Abgebrochen: return 1;
    case Ablauf::Ergebnis::Laeuft: break;
    }
    return QApplication::exec();
}
