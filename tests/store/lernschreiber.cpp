#include "store/Lernstand.h"

#include <QCoreApplication>

#include <cstdio>

/* Writes states of practice without end and tells of each; it is killed while it does. Arguments: the file. */
int main(int argc, char **argv)
{
    const QCoreApplication anwendung(argc, argv);
    if (argc < 2)
        return 1;
    const QString pfad = QString::fromLocal8Bit(argv[1]);
    for (int lauf = 1;; ++lauf) {
        Lernstand stand;
        for (int i = 1; i <= 200; ++i)
            stand.setWert({QStringLiteral("TOPFPFL"), i, QStringLiteral("Pflanze %1").arg(i)},
                          {.folge = lauf, .abstand = 1, .zuletzt = QDate(2026, 1, 1), .faellig = QDate(2026, 1, 2)});
        stand.speichern(pfad);
        std::printf("%d\n", lauf);
        std::fflush(stdout);
    }
}
