#include "store/Dateien.h"
#include "store/Datenbestand.h"
#include "store/Datenbank.h"
#include "store/Fehler.h"
#include "store/Programm.h"
#include "store/Teilmenge.h"
#include "tests/bench/Messung.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <optional>

/* bench_bestand DATABASE   writes subsets of a database and loads one; the baseline is the safe copy of the file, which is on the disk when
   it returns, like a subset. */
int main(int anzahl, char **argumente)
{
    if (anzahl != 2) {
        std::fputs("Aufruf: bench_bestand DATENBANK\n", stderr);
        return 2;
    }
    try {
        const QTemporaryDir ordner;
        Programm programm;
        programm.ProgrammPfad = ordner.path();
        const QString arbeit = datenbestand::arbeitsdatei(programm), ziel = ordner.filePath(QStringLiteral("teil.fit"));
        const QString kopie = ordner.filePath(QStringLiteral("kopie.mdb")), privat = ordner.filePath(QStringLiteral("db_to1.tmp"));
        kopiereSicher(QString::fromLocal8Bit(argumente[1]), arbeit);
        std::printf("%s, %.1f MB\n", argumente[1], double(QFile(arbeit).size()) / 1e6);
        const auto grundlage = [&] { kopiereSicher(arbeit, kopie); };
        vergleich(
            "subset without a window", 2, [] {}, [&] { teilmenge::schreiben(arbeit, ziel, [](Sparte) { return QString(); }); }, grundlage);
        kopiereUeber(arbeit, privat);
        const auto fenster = Datenbank::OpenDatabase(privat, Datenbank::Zugriff::Privat);
        fenster->loescheAusser(QStringLiteral("Topfpfl"), {}, [](qint64 artnr, auto) { return artnr % 2 == 0; });
        const auto quelle = [&](Sparte sparte) { return sparte == Sparte::Topf ? privat : QString(); };
        vergleich(
            "subset of half of the plants", 2, [] {}, [&] { teilmenge::schreiben(arbeit, ziel, quelle); }, grundlage);
        vergleich(
            "look into a file that is to be loaded", 2, [] {}, [&] { (void)datenbestand::pruefen(programm, ziel); }, grundlage);
        vergleich(
            "load it, and make its indexes", 2, [] {}, [&] { datenbestand::laden(programm, ziel, false, [](bool) {}); }, grundlage);
    } catch (const Fehler &fehler) {
        std::fprintf(stderr, "%s\n", fehler.what());
        return 1;
    }
    return 0;
}
