#include "Dateistoerung.h"

#include "store/Dateien.h"

#include <sqlite3.h>

#include <cerrno>
#include <csignal>
#include <cstring>

namespace {

enum class Art { Lesen, Aendern, Entfernen };

struct Zustand
{
    bool an = false;
    Dateistoerung::Art art = Dateistoerung::Art::Keine;
    int stelle = 0, nummer = 0;
    QList<Art> gezaehlt;
    bool gestoert = false;
    int zuletzt = 0; ///< what the engine asks for behind a failure
};

Zustand &zustand()
{
    static Zustand eine;
    return eine;
}

bool trifft(int nummer, Art art)
{
    return nummer == EIO || art == Art::Aendern || (art == Art::Entfernen && nummer != ENOSPC);
}

/// 0, or the number that this call fails by.
int naechster(Art art)
{
    Zustand &z = zustand();
    if (!z.an)
        return 0;
    z.gezaehlt += art;
    const auto stelle = int(z.gezaehlt.size());
    if (stelle == z.stelle && z.art == Dateistoerung::Art::Toetlich)
        (void)std::raise(SIGKILL);
    // A disk that breaks for good may still be read.
    const bool faellt = (z.art == Dateistoerung::Art::Einmal && stelle == z.stelle && trifft(z.nummer, art))
                        || (z.art == Dateistoerung::Art::Bleibend && stelle >= z.stelle && art != Art::Lesen && trifft(z.nummer, art));
    z.gestoert |= faellt;
    return faellt ? z.nummer : 0;
}

/* The engine's own layer with the question asked before each call. */

struct Huelle
{
    sqlite3_file basis;
    sqlite3_file *echt;
};

sqlite3_file *echt(sqlite3_file *datei)
{
    return reinterpret_cast<Huelle *>(datei)->echt;
}

int code(int nummer, int sonst)
{
    zustand().zuletzt = nummer;
    return nummer == ENOSPC ? SQLITE_FULL : sonst;
}

int schliessen(sqlite3_file *datei)
{
    return echt(datei)->pMethods ? echt(datei)->pMethods->xClose(echt(datei)) : SQLITE_OK;
}

int lesen(sqlite3_file *datei, void *puffer, int anzahl, sqlite3_int64 ort)
{
    if (const int nummer = naechster(Art::Lesen))
        return code(nummer, SQLITE_IOERR_READ);
    return echt(datei)->pMethods->xRead(echt(datei), puffer, anzahl, ort);
}

int schreibenIn(sqlite3_file *datei, const void *bytes, int anzahl, sqlite3_int64 ort)
{
    if (const int nummer = naechster(Art::Aendern))
        return code(nummer, SQLITE_IOERR_WRITE);
    return echt(datei)->pMethods->xWrite(echt(datei), bytes, anzahl, ort);
}

int kuerzen(sqlite3_file *datei, sqlite3_int64 groesse)
{
    if (const int nummer = naechster(Art::Aendern))
        return code(nummer, SQLITE_IOERR_TRUNCATE);
    return echt(datei)->pMethods->xTruncate(echt(datei), groesse);
}

int abgleichen(sqlite3_file *datei, int wie)
{
    if (const int nummer = naechster(Art::Aendern))
        return code(nummer, SQLITE_IOERR_FSYNC);
    return echt(datei)->pMethods->xSync(echt(datei), wie);
}

// What passes on unasked.
int groesse(sqlite3_file *d, sqlite3_int64 *g)
{
    return echt(d)->pMethods->xFileSize(echt(d), g);
}
int sperren(sqlite3_file *d, int wie)
{
    return echt(d)->pMethods->xLock(echt(d), wie);
}
int entsperren(sqlite3_file *d, int wie)
{
    return echt(d)->pMethods->xUnlock(echt(d), wie);
}
int gesperrt(sqlite3_file *d, int *ja)
{
    return echt(d)->pMethods->xCheckReservedLock(echt(d), ja);
}
int steuern(sqlite3_file *d, int was, void *wert)
{
    return echt(d)->pMethods->xFileControl(echt(d), was, wert);
}
int sektor(sqlite3_file *d)
{
    return echt(d)->pMethods->xSectorSize(echt(d));
}
int eigenschaften(sqlite3_file *d)
{
    return echt(d)->pMethods->xDeviceCharacteristics(echt(d));
}

const sqlite3_io_methods &methoden()
{
    static const sqlite3_io_methods alle = [] {
        sqlite3_io_methods m{};
        m.iVersion = 1;
        m.xClose = schliessen;
        m.xRead = lesen;
        m.xWrite = schreibenIn;
        m.xTruncate = kuerzen;
        m.xSync = abgleichen;
        m.xFileSize = groesse;
        m.xLock = sperren;
        m.xUnlock = entsperren;
        m.xCheckReservedLock = gesperrt;
        m.xFileControl = steuern;
        m.xSectorSize = sektor;
        m.xDeviceCharacteristics = eigenschaften;
        return m;
    }();
    return alle;
}

sqlite3_vfs *system()
{
    static sqlite3_vfs *eines = sqlite3_vfs_find(nullptr);
    return eines;
}

int oeffnen(sqlite3_vfs *, const char *name, sqlite3_file *datei, int schalter, int *aus)
{
    datei->pMethods = nullptr;
    if (const int nummer = naechster(schalter & SQLITE_OPEN_CREATE ? Art::Aendern : Art::Lesen))
        return code(nummer, SQLITE_CANTOPEN);
    auto *huelle = reinterpret_cast<Huelle *>(datei);
    huelle->echt = reinterpret_cast<sqlite3_file *>(huelle + 1);
    const int ergebnis = system()->xOpen(system(), name, huelle->echt, schalter, aus);
    if (huelle->echt->pMethods)
        datei->pMethods = &methoden();
    return ergebnis;
}

int entfernen(sqlite3_vfs *, const char *name, int abgleich)
{
    if (const int nummer = naechster(Art::Entfernen))
        return code(nummer, SQLITE_IOERR_DELETE);
    return system()->xDelete(system(), name, abgleich);
}

int letzter(sqlite3_vfs *, int n, char *puffer)
{
    const int nummer = std::exchange(zustand().zuletzt, 0);
    return nummer ? nummer : system()->xGetLastError(system(), n, puffer);
}

sqlite3_vfs &schicht()
{
    static sqlite3_vfs eine = [] {
        sqlite3_vfs v = *system();
        v.zName = "stoerung";
        v.pNext = nullptr;
        v.szOsFile = int(sizeof(Huelle)) + system()->szOsFile;
        v.xOpen = oeffnen;
        v.xDelete = entfernen;
        v.xGetLastError = letzter;
        return v;
    }();
    return eine;
}

} // namespace

Dateistoerung::Dateistoerung(Dateistoerung::Art art, int stelle, int nummer)
{
    zustand() = {true, art, stelle, nummer, {}, false, 0};
    system();
    sqlite3_vfs_register(&schicht(), 1);
    setDateiaufsicht([](Dateischritt schritt, const QString &) {
        return naechster(schritt == Dateischritt::Lesen ? ::Art::Lesen : schritt == Dateischritt::Entfernen ? ::Art::Entfernen : ::Art::Aendern);
    });
}

Dateistoerung::~Dateistoerung()
{
    zustand().an = false;
    setDateiaufsicht({});
    // Connections may live on; they keep the layer, which asks nothing any more.
    sqlite3_vfs_register(system(), 1);
}

int Dateistoerung::gezaehlt() const
{
    return int(zustand().gezaehlt.size());
}

QList<int> Dateistoerung::treffbare(int nummer) const
{
    QList<int> stellen;
    for (int i = 0; i < gezaehlt(); ++i)
        if (trifft(nummer, zustand().gezaehlt[i]))
            stellen += i + 1;
    return stellen;
}

bool Dateistoerung::gestoert() const
{
    return zustand().gestoert;
}
