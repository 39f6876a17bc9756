#include "Messung.h"

#include "store/Datenbank.h"
#include "store/Fehler.h"
#include "store/access/Austausch.h"

#include <QFileInfo>
#include <QTemporaryDir>

#include <sys/resource.h>

/* bench_access DATABASE   Access files written and read, against copying the same tables into another database of the program. */

namespace {

void kopieren(const QString &quelle, const QString &ziel)
{
    const auto db = Datenbank::OpenDatabase(quelle);
    Datenbank::CreateDatabase(ziel);
    for (const QString &tabelle : db->TableDefs() + QStringList{QStringLiteral("Abfrage_Friedhof")})
        db->Execute(QStringLiteral("SELECT * INTO %1 IN '%2' FROM %1").arg(tabelle, ziel));
}

/// Most memory that this process has had, in MiB.
double speicher()
{
    rusage verbrauch{};
    getrusage(RUSAGE_SELF, &verbrauch);
    return double(verbrauch.ru_maxrss) / 1024;
}

} // namespace

int main(int anzahl, char **argumente)
{
    if (anzahl != 2)
        return 2;
    const QString quelle = QString::fromLocal8Bit(argumente[1]);
    const QTemporaryDir ordner;
    const QString kopie = ordner.filePath(QStringLiteral("kopie.mdb")), access = ordner.filePath(QStringLiteral("access.mdb")),
                  zurueck = ordner.filePath(QStringLiteral("zurueck.mdb"));
    try {
        const auto nichts = [] {};
        constexpr double ziel = 3;
        constexpr int laeufe = 3;
        vergleich(
            "Access file written and read back", ziel, nichts, [&] { (void)accessdatei::ausgeben(quelle, access); }, [&] { kopieren(quelle, kopie); },
            laeufe);
        vergleich(
            "Access file read", ziel, nichts, [&] { (void)accessdatei::einlesen(access, zurueck); }, [&] { kopieren(quelle, kopie); }, laeufe);
        std::printf("%-44s %8.0f MiB of %.0f MiB file  (goal <= 400)\n", "most memory", speicher(), double(QFileInfo(access).size()) / (1 << 20));
    } catch (const Fehler &fehler) {
        std::fprintf(stderr, "%s\n", fehler.what());
        return 1;
    }
    return 0;
}
