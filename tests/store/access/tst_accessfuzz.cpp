#include "Accesshilfen.h"
#include "Schaden.h"
#include "Speicherwaage.h"

#include "store/Fehler.h"

#include <QDate>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <thread>

#ifdef FLOX_SANITIZED
#include <sanitizer/common_interface_defs.h>
#endif

using namespace Qt::StringLiterals;
using namespace accessdatei;

/* tst_accessfuzz [NUMBER [SEED [FIRST]]]   reads that many damaged files (20,000) to their ends: no crash, none that takes the processor for
   longer than a second, none with more memory than four times the file. A file is what its seed and number make it: with NUMBER 1, FIRST
   makes one again and leaves it in "schadhaft.mdb". Files of a folder that FLOX_ACCESSPROBEN names are damaged, too. */

namespace {

constexpr double laengsteZeit = 1000;   // ms of the processor
constexpr size_t groessterSpeicher = 4; // times the file
/// What is there before the first byte of a file counts: messages above all.
constexpr size_t immer = 4 << 10;

std::atomic<size_t> nummer; ///< of the file that is read

/// The same bytes in every run: the times of their making are those of one day.
std::vector<uint8_t> zeitlos(std::vector<uint8_t> bytes)
{
    const double heute = double(QDate(1899, 12, 30).daysTo(QDate::currentDate()));
    constexpr double irgendwann = 42329.5;
    for (size_t i = 0; i + sizeof(double) <= bytes.size(); ++i) {
        double tag = 0;
        std::memcpy(&tag, &bytes[i], sizeof tag);
        if (tag > heute - 1 && tag < heute + 2)
            std::memcpy(&bytes[i], &irgendwann, sizeof irgendwann);
    }
    return bytes;
}

std::vector<uint8_t> geschriebene(const QString &pfad, int tabellen, int zeilen)
{
    Schreiber schreiber(pfad);
    for (int t = 0; t < tabellen; ++t) {
        schreiber.beginnen({u"Tabelle %1"_s.arg(t),
                            {{u"ARTNR"_s, Typ::Lang, 0},
                             {u"NAME"_s, Typ::Text, 50},
                             {u"MEMO"_s, Typ::Memo, 0},
                             {u"ZAHL"_s, Typ::Doppelt, 0},
                             {u"TAG"_s, Typ::Datum, 0},
                             {u"WAHR"_s, Typ::Wahrheit, 0}},
                            0});
        for (int i = 0; i < zeilen; ++i) {
            const std::string name = "Ährige Pflanze " + std::to_string(i), memo(size_t(i % 20 == 3 ? 9000 : i * 13 % 300), 'm');
            const Wert zeile[] = {accessprobe::ganz(i),        accessprobe::text(name),       accessprobe::text(memo),
                                  accessprobe::komma(i / 4.0), accessprobe::datum(37000 + i), accessprobe::wahr(i % 2)};
            schreiber.zeile(zeile);
        }
        schreiber.beenden();
    }
    schreiber.abschliessen();
    return zeitlos(accessprobe::bytes(pfad));
}

/// A definition of more than one page.
std::vector<uint8_t> breite(const QString &pfad)
{
    constexpr int spalten = 255, zeilen = 4;
    Tabellenform form{u"Breit"_s, {}, -1};
    for (int i = 0; i < spalten; ++i)
        form.spalten.push_back({u"Spalte %1"_s.arg(i), i % 3 == 0 ? Typ::Memo : i % 3 == 1 ? Typ::Text : Typ::Wahrheit, 50});
    Schreiber schreiber(pfad);
    schreiber.beginnen(form);
    for (int i = 0; i < zeilen; ++i) {
        std::vector<Wert> zeile;
        for (int k = 0; k < spalten; ++k)
            zeile.push_back(k % 3 == 2 ? accessprobe::wahr(k % 2) : k % (i + 2) ? Wert() : accessprobe::text("ja"));
        schreiber.zeile(zeile);
    }
    schreiber.beenden();
    schreiber.abschliessen();
    return zeitlos(accessprobe::bytes(pfad));
}

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

std::vector<std::vector<uint8_t>> vorlagenSchreiben()
{
    const QTemporaryDir ordner;
    std::vector<std::vector<uint8_t>> vorlagen{geschriebene(ordner.filePath(u"klein.mdb"_s), 1, 5),
                                               geschriebene(ordner.filePath(u"gross.mdb"_s), 2, 40), breite(ordner.filePath(u"breit.mdb"_s))};
    // The same layout under the name of the later engine.
    vorlagen.push_back(vorlagen[0]);
    vorlagen.back()[0x14] = 2;
    const char ace[] = "Standard ACE DB";
    std::copy(std::begin(ace), std::end(ace), vorlagen.back().begin() + 4);
    vorlagen.push_back(accessprobe::jet3Datei());
    for (const std::vector<uint8_t> &vorlage : vorlagen)
        if (lesen(vorlage) == 0) {
            std::puts("Eine Vorlage ist leer.");
            std::exit(1);
        }
    if (const QString proben = qEnvironmentVariable("FLOX_ACCESSPROBEN"); !proben.isEmpty())
        for (const QFileInfo &datei : QDir(proben).entryInfoList({u"*.mdb"_s, u"*.accdb"_s}, QDir::Files))
            vorlagen.push_back(accessprobe::bytes(datei.filePath()));
    return vorlagen;
}

/// A file that is read for ever ends the program, which says which one.
void waechter()
{
    using namespace std::chrono_literals;
    constexpr int geduld = 60; // seconds: the machine may have other work
    size_t zuletzt = nummer;
    for (int sekunden = 0;; ++sekunden) {
        std::this_thread::sleep_for(1s);
        if (zuletzt != nummer) {
            zuletzt = nummer;
            sekunden = 0;
        } else if (sekunden == geduld) {
            std::printf("Nr. %zu nimmt kein Ende.\n", zuletzt);
            std::fflush(stdout);
            std::abort();
        }
    }
}

} // namespace

int main(int anzahl, char **argumente)
{
    const auto argument = [&](int i, size_t sonst) { return anzahl > i ? size_t(std::strtoull(argumente[i], nullptr, 10)) : sonst; };
    const size_t laeufe = argument(1, 20000), saat = argument(2, 1), erste = argument(3, 0);
    const std::vector<std::vector<uint8_t>> vorlagen = vorlagenSchreiben();
#ifdef FLOX_SANITIZED
    __sanitizer_set_death_callback([] { std::fprintf(stderr, "Nr. %zu\n", nummer.load()); });
#endif
    std::thread(waechter).detach();
    size_t werte = 0, gelesene = 0;
    double laengster = 0, groesstes = 0;
    const auto stand = [&](size_t fertig) {
        std::printf("%zu Dateien, %zu davon mit Zeilen, %zu Werte, laengste %.1f ms, groesster Speicher das %.2f-fache der Datei", fertig, gelesene,
                    werte, laengster, groesstes);
    };
    QElapsedTimer uhr, seitMeldung;
    uhr.start();
    seitMeldung.start();
    for (size_t i = 0; i < laeufe; ++i) {
        nummer = erste + i;
        Schaden schaden(saat, nummer);
        std::vector<uint8_t> bytes = vorlagen[schaden.bis(vorlagen.size())];
        schaden.anrichten(bytes);
        bytes.shrink_to_fit();
        const size_t groesse = bytes.size(), vorher = speicherwaage::belegt() - groesse;
        if (laeufe == 1) {
            QFile datei(u"schadhaft.mdb"_s);
            if (!datei.open(QIODevice::WriteOnly) || datei.write(reinterpret_cast<const char *>(bytes.data()), qint64(groesse)) != qint64(groesse))
                return 1;
        }
        speicherwaage::neu();
        const std::clock_t anfang = std::clock();
        const size_t gefunden = lesen(std::move(bytes));
        const double ms = 1000.0 * double(std::clock() - anfang) / CLOCKS_PER_SEC;
        const size_t verbraucht = speicherwaage::hoechstens() - vorher;
        laengster = std::max(laengster, ms);
        groesstes = std::max(groesstes, groesse ? double(verbraucht) / double(groesse) : 0);
        werte += gefunden;
        gelesene += gefunden > 0;
        if (ms > laengsteZeit || verbraucht > groessterSpeicher * groesse + immer) {
            std::printf("Nr. %zu: %zu Bytes, %.0f ms, %zu Bytes Speicher\n", nummer.load(), groesse, ms, verbraucht);
            return 1;
        }
        constexpr qint64 meldeabstand = 10000; // ms
        if (seitMeldung.elapsed() > meldeabstand) {
            stand(i + 1);
            std::printf(", %.0f je Sekunde\n", 1000.0 * double(i + 1) / double(uhr.elapsed()));
            std::fflush(stdout);
            seitMeldung.restart();
        }
    }
    stand(laeufe);
    std::puts("");
    // Damage that leaves nothing to read tests nothing.
    return laeufe < 100 || gelesene > laeufe / 4 ? 0 : 1;
}
