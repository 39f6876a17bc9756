#include "Bestandswechsel.h"
#include "Dateistoerung.h"

#include "store/Fehler.h"

#include <cstdio>
#include <cstdlib>

/* bestandswechsler FOLDER WHAT FILE N   does it in a program folder and is killed in front of file call N; says the number of calls when it
   comes to its end. */
int main(int anzahl, char **argumente)
{
    if (anzahl != 5)
        return 2;
    Programm programm;
    programm.ProgrammPfad = QString::fromLocal8Bit(argumente[1]);
    setSchreibmerker(systemPfad(programm.ProgrammPfad + QStringLiteral("\\flox-unfertig.txt")));
    const Dateistoerung stoerung(Dateistoerung::Art::Toetlich, std::atoi(argumente[4]), 0);
    try {
        bestandswechsel::tun(programm, QString::fromLocal8Bit(argumente[2]), QString::fromLocal8Bit(argumente[3]));
    } catch (const Fehler &fehler) {
        std::fprintf(stderr, "%s\n", fehler.what());
        return 1;
    }
    std::printf("%d\n", stoerung.gezaehlt());
    return 0;
}
