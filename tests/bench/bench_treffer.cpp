#include "filters/Filterpruefung.h"
#include "filters/Steuerungsarten.h"
#include "filters/Trefferzaehler.h"
#include "store/Datenbank.h"
#include "store/Nebentabellen.h"
#include "tests/bench/Messung.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdlib>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#endif

/* bench_treffer DATABASE SPARTE             the count beside OK over the plants of a Sparte (its word): memory, reading, and the answer to a
                                             change of each criterion
   bench_treffer DATABASE SPARTE verschieden the same where no two plants share a text */

namespace {

const std::atomic<bool> weiter = false;

/// Most memory that the process had so far, in MiB; 0 where the system does not tell.
double hoechstens()
{
#ifdef Q_OS_UNIX
    rusage verbrauch{};
    getrusage(RUSAGE_SELF, &verbrauch);
    return double(verbrauch.ru_maxrss) / 1024;
#else
    return 0;
#endif
}

/// No two plants share a text that is searched.
void unterscheiden(Datenbank &db, const Filterbeschreibung &beschreibung)
{
    for (const Kriterium &kriterium : beschreibung.kriterien)
        if (kriterium.feld && Kriteriumspalte::istText(kriterium.pruefung) && qstrcmp(kriterium.feld, "benu_bemerkung") != 0)
            db.Execute(QStringLiteral("UPDATE %1 SET \"%2\" = ifnull(\"%2\", '') || ' ' || ARTNR")
                           .arg(eintrag(beschreibung.sparte).haupttabelle, QLatin1String(kriterium.feld)));
}

/// The criterion with its first element chosen, or a word that some texts contain.
Kriteriumzustand verstellt(const Kriterium &kriterium, bool anders)
{
    Kriteriumzustand zustand{vorgabe(kriterium.a), vorgabe(kriterium.b)};
    if (zustand.a.werte.empty())
        zustand.a.text = kriterium.pruefung == Pruefung::Bereich ? QStringLiteral("1") : anders ? QStringLiteral("rose") : QStringLiteral("as");
    else
        zustand.a.werte[0] = steuerungsart(kriterium.a.art).wert(kriterium.a, 0, !anders);
    if (kriterium.pruefung == Pruefung::Bereich)
        zustand.b.text = anders ? QStringLiteral("7") : QStringLiteral("9");
    if (kriterium.pruefung == Pruefung::Bewertung)
        zustand.b.werte[0] = anders ? schieberMin : schieberMax;
    return zustand;
}

void messen(Datenbank &db, const Filterbeschreibung &beschreibung)
{
    const QString tabelle = eintrag(beschreibung.sparte).haupttabelle.toString();
    const auto allesLesen = [&] {
        Anweisung &anweisung = db.vorbereitet(QStringLiteral("SELECT * FROM ") + tabelle);
        size_t bytes = 0;
        while (anweisung.schritt())
            for (int i = 0; i < anweisung.spalten(); ++i)
                bytes += anweisung.bytes(i).size();
        if (bytes == 0)
            std::abort();
    };
    allesLesen(); // what the engine itself keeps of the file is there
    const double vorher = hoechstens();
    Trefferzaehler zaehler(beschreibung, Trefferspalten::lesen(db, beschreibung, weiter),
                           [&](const QString &name) { return familiennummer(db, name); });
    Filterzustand zustand = vorgabe(beschreibung);
    const size_t alle = zaehler.zaehlen(zustand).anzahl;
    std::printf("%-44s %8.1f MiB  (goal <= 40)\n", "memory for the count, at most", hoechstens() - vorher);
    std::printf("%-44s %8zu\n", "plants left by the default dialog", alle);
    vergleich(
        "read the columns", 3, [] {}, [&] { (void)Trefferspalten::lesen(db, beschreibung, weiter); }, allesLesen);

    // The baseline is the run's own walk with the same criterion, without its copy and its deleting.
    double laengste = 0;
    std::vector<double> antworten, grundlagen;
    QLatin1String langsamste;
    for (size_t k = 0; k < beschreibung.kriterien.size(); ++k) {
        std::vector<double> zeiten;
        for (int i = 0; i < 10; ++i) {
            zustand.kriterien[k] = verstellt(beschreibung.kriterien[k], i % 2);
            zeiten.push_back(einmal([&] { (void)zaehler.zaehlen(zustand); }));
        }
        if (median(zeiten) > laengste) {
            laengste = median(zeiten);
            langsamste = QLatin1String(beschreibung.kriterien[k].a.control);
        }
        antworten.push_back(median(zeiten));
        zustand = vorgabe(beschreibung);
    }
    const Filterpruefung pruefung(beschreibung, zustand, {});
    for (int i = 0; i < 5; ++i)
        grundlagen.push_back(einmal([&] {
            size_t uebrig = 0;
            db.durchlaufen(tabelle, pruefung.felder(),
                           [&](qint64 nummer, std::span<const std::string_view> werte) { uebrig += pruefung.passt(nummer, werte); });
            if (uebrig != alle)
                std::abort();
        }));
    std::printf("%-44s %8.3f ms  baseline %8.2f ms  ratio %5.3f\n", "answer to a change, median of all criteria", median(antworten),
                median(grundlagen), median(antworten) / median(grundlagen));
    std::printf("%-44s %8.3f ms  baseline %8.2f ms  ratio %5.3f  (%s; goal <= 10 at 100,000, 1 at 3,000)\n", "the slowest of them", laengste,
                median(grundlagen), laengste / median(grundlagen), langsamste.data());

    // Everything chosen at once: nothing is left, and each criterion is tried without.
    for (size_t k = 0; k < beschreibung.kriterien.size(); ++k)
        if (beschreibung.kriterien[k].a.art == Steuerung::Kaestchen || beschreibung.kriterien[k].a.art == Steuerung::Monate)
            zustand.kriterien[k] = verstellt(beschreibung.kriterien[k], false);
    (void)zaehler.zaehlen(zustand);
    std::vector<double> zeiten, tipps;
    for (int i = 0; i < 10; ++i) {
        zustand.kriterien.back() = verstellt(beschreibung.kriterien.back(), i % 2);
        zeiten.push_back(einmal([&] { (void)zaehler.zaehlen(zustand); }));
        tipps.push_back(einmal([&] { (void)zaehler.eigene(zustand, 1, false, 0); }));
    }
    std::printf("%-44s %8.3f ms\n", "answer with all groups of boxes in use", median(zeiten));
    std::printf("%-44s %8.3f ms\n", "a box's own hits then", median(tipps));
}

} // namespace

int main(int anzahl, char **argumente)
{
    const bool verschieden = anzahl == 4 && qstrcmp(argumente[3], "verschieden") == 0;
    const std::optional<Sparte> sparte = anzahl == 3 || verschieden ? sparteVonWort(QString::fromLocal8Bit(argumente[2])) : std::nullopt;
    if (!sparte) {
        std::fputs("Aufruf: bench_treffer DATENBANK SPARTE [verschieden]\n", stderr);
        return 2;
    }
    const QTemporaryDir ordner;
    const QString datei = ordner.filePath(QStringLiteral("zaehlen.mdb"));
    QFile::copy(QString::fromLocal8Bit(argumente[1]), datei);
    if (verschieden)
        unterscheiden(*Datenbank::OpenDatabase(datei), *filterbeschreibung(*sparte));
    std::printf("count, %s%s:\n", argumente[2], verschieden ? ", every text its own" : "");
    messen(*Datenbank::OpenDatabase(datei), *filterbeschreibung(*sparte));
    return 0;
}
