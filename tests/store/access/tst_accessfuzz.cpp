#include "Accesshilfen.h"

#include "store/Fehler.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <random>

using namespace Qt::StringLiterals;
using namespace accessdatei;

/* tst_accessfuzz [NUMBER [SEED]]   reads that many damaged files (20,000) to their ends: no crash, none longer than a second, none with
   more memory than four times the file and a megabyte. Files of a folder that FLOX_ACCESSPROBEN names are damaged, too. */

namespace {

std::atomic<size_t> belegt, hoechstens;

void *holen(size_t bytes)
{
    // The size stands before the bytes.
    auto *ort = static_cast<size_t *>(std::malloc(bytes + alignof(std::max_align_t)));
    if (!ort)
        throw std::bad_alloc();
    *ort = bytes;
    const size_t stand = belegt += bytes;
    if (stand > hoechstens)
        hoechstens = stand;
    return reinterpret_cast<char *>(ort) + alignof(std::max_align_t);
}

void lassen(void *ort) noexcept
{
    if (!ort)
        return;
    auto *anfang = reinterpret_cast<size_t *>(static_cast<char *>(ort) - alignof(std::max_align_t));
    belegt -= *anfang;
    std::free(anfang);
}

} // namespace

void *operator new(size_t bytes)
{
    return holen(bytes);
}
void operator delete(void *ort) noexcept
{
    lassen(ort);
}
void operator delete(void *ort, size_t) noexcept
{
    lassen(ort);
}
void *operator new[](size_t bytes)
{
    return holen(bytes);
}
void operator delete[](void *ort) noexcept
{
    lassen(ort);
}
void operator delete[](void *ort, size_t) noexcept
{
    lassen(ort);
}

namespace {

std::vector<uint8_t> geschriebene(const QString &pfad, bool viele)
{
    Schreiber schreiber(pfad);
    for (int t = 0; t < (viele ? 2 : 1); ++t) {
        schreiber.beginnen({u"Tabelle %1"_s.arg(t),
                            {{u"ARTNR"_s, Typ::Lang, 0},
                             {u"NAME"_s, Typ::Text, 50},
                             {u"MEMO"_s, Typ::Memo, 0},
                             {u"ZAHL"_s, Typ::Doppelt, 0},
                             {u"TAG"_s, Typ::Datum, 0},
                             {u"WAHR"_s, Typ::Wahrheit, 0}},
                            0});
        for (int i = 0; i < (viele ? 40 : 5); ++i) {
            const std::string name = "Ährige Pflanze " + std::to_string(i), memo(size_t(i % 20 == 3 ? 9000 : i * 13 % 300), 'm');
            const Wert zeile[] = {accessprobe::ganz(i),        accessprobe::text(name),       accessprobe::text(memo),
                                  accessprobe::komma(i / 4.0), accessprobe::datum(37000 + i), accessprobe::wahr(i % 2)};
            schreiber.zeile(zeile);
        }
        schreiber.beenden();
    }
    schreiber.abschliessen();
    return accessprobe::bytes(pfad);
}

class Schaden
{
public:
    explicit Schaden(unsigned saat) : zufall_(saat) {}
    size_t bis(size_t grenze) { return grenze ? size_t(zufall_() % grenze) : 0; }

    /// One of several kinds of damage, at one to some places.
    void anrichten(std::vector<uint8_t> &bytes)
    {
        const size_t seite = bytes.size() > 0x14 && bytes[0x14] == 0 ? 2048 : 4096;
        for (size_t anzahl = 1 + bis(bis(8) == 0 ? 64 : 4); anzahl > 0 && !bytes.empty(); --anzahl) {
            // The first bytes of pages hold what everything else hangs on.
            size_t ort = bis(bytes.size());
            if (bis(3) == 0)
                ort = std::min(bytes.size() - 1, ort / seite * seite + bis(80));
            switch (bis(9)) {
            case 0: bytes[ort] ^= uint8_t(1 << bis(8)); break;
            case 1: bytes[ort] = uint8_t(zufall_()); break;
            case 2: bytes[ort] = bis(2) ? 0xFF : 0; break;
            case 3: // a small number where another was
                for (size_t i = 0; i < 4 && ort + i < bytes.size(); ++i)
                    bytes[ort + i] = i == 0 ? uint8_t(bis(40)) : 0;
                break;
            case 4: // a huge one
                for (size_t i = 0; i < 4 && ort + i < bytes.size(); ++i)
                    bytes[ort + i] = uint8_t(0xFF - bis(2));
                break;
            case 5: { // one page over another
                const size_t von = bis(bytes.size() / seite) * seite, nach = bis(bytes.size() / seite) * seite;
                std::copy_n(bytes.begin() + qsizetype(von), seite, bytes.begin() + qsizetype(nach));
                break;
            }
            case 6: bytes.resize(bis(16) == 0 ? bis(bytes.size()) : bytes.size()); break;
            case 7: { // some bytes from elsewhere
                const size_t laenge = 1 + bis(64), von = bis(bytes.size());
                for (size_t i = 0; i < laenge && ort + i < bytes.size() && von + i < bytes.size(); ++i)
                    bytes[ort + i] = bytes[von + i];
                break;
            }
            case 8: { // numbers in the last part of a page, where its rows are
                const size_t ende = std::min(bytes.size(), (ort / seite + 1) * seite);
                if (ende >= seite)
                    bytes[ende - 1 - bis(200)] = uint8_t(zufall_());
                break;
            }
            }
        }
    }

private:
    std::mt19937 zufall_;
};

/// Everything that the file gives; its number of values.
size_t lesen(std::vector<uint8_t> bytes)
{
    size_t werte = 0;
    try {
        Leser leser(std::move(bytes), u"schadhaft"_s);
        if (leser.codeseite())
            (void)leser.setCodeseite(850);
        for (const Tabelle &tabelle : leser.tabellen())
            (void)leser.durchlaufen(tabelle, [&](Zeile &zeile) {
                for (size_t i = 0; i < tabelle.spalten.size(); ++i)
                    werte += zeile.wert(i).gestalt != Gestalt::Leer;
                return true;
            });
    } catch (const Fehler &) {
        // A sentence for the user.
    }
    return werte;
}

} // namespace

int main(int anzahl, char **argumente)
{
    const size_t laeufe = anzahl > 1 ? std::strtoul(argumente[1], nullptr, 10) : 20000;
    Schaden schaden(anzahl > 2 ? unsigned(std::strtoul(argumente[2], nullptr, 10)) : 1);
    const QTemporaryDir ordner;
    std::vector<std::vector<uint8_t>> vorlagen{geschriebene(ordner.filePath(u"klein.mdb"_s), false),
                                               geschriebene(ordner.filePath(u"gross.mdb"_s), true)};
    // The same layout under the name of the later engine.
    vorlagen.push_back(vorlagen[0]);
    vorlagen.back()[0x14] = 2;
    const char ace[] = "Standard ACE DB";
    std::copy(std::begin(ace), std::end(ace), vorlagen.back().begin() + 4);
    vorlagen.push_back(accessprobe::jet3Datei());
    if (const QString proben = qEnvironmentVariable("FLOX_ACCESSPROBEN"); !proben.isEmpty())
        for (const QFileInfo &datei : QDir(proben).entryInfoList({u"*.mdb"_s, u"*.accdb"_s}, QDir::Files))
            vorlagen.push_back(accessprobe::bytes(datei.filePath()));
    for (const std::vector<uint8_t> &vorlage : vorlagen)
        if (lesen(vorlage) == 0 && vorlagen.size() < 5) {
            std::puts("Eine Vorlage ist leer.");
            return 1;
        }
    constexpr double laengste = 1000; // ms
    constexpr size_t immer = 1 << 20;
    size_t werte = 0, gelesene = 0, groesstes = 0;
    double laengster = 0;
    for (size_t i = 0; i < laeufe; ++i) {
        std::vector<uint8_t> bytes = vorlagen[schaden.bis(vorlagen.size())];
        schaden.anrichten(bytes);
        bytes.shrink_to_fit();
        const size_t groesse = bytes.size(), vorher = belegt - bytes.size();
        hoechstens = belegt.load();
        QElapsedTimer uhr;
        uhr.start();
        const size_t gefunden = lesen(std::move(bytes));
        const double ms = double(uhr.nsecsElapsed()) / 1e6;
        const size_t verbraucht = hoechstens - vorher;
        laengster = std::max(laengster, ms);
        groesstes = std::max(groesstes, groesse ? 100 * verbraucht / groesse : 0);
        werte += gefunden;
        gelesene += gefunden > 0;
        if (ms > laengste || verbraucht > 4 * groesse + immer) {
            std::printf("Nr. %zu: %zu Bytes, %.0f ms, %zu Bytes Speicher\n", i, groesse, ms, verbraucht);
            return 1;
        }
    }
    std::printf("%zu Dateien, %zu davon mit Zeilen, %zu Werte, laengste %.0f ms, groesster Speicher %zu %% der Datei\n", laeufe, gelesene, werte,
                laengster, groesstes);
    // Damage that leaves nothing to read tests nothing.
    return gelesene > laeufe / 4 ? 0 : 1;
}
