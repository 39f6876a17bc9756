#include "Sparten.h"

#include <algorithm>

namespace {

constexpr Herkunft herkuenfteFriedhof[] = {{u"100", Sparte::Stauden}, {u"010", Sparte::Gehoelze, 2000, 3000}};

constexpr std::array<SpartenEintrag, anzahlSparten> tabelle{{
    {.sparte = Sparte::Topf,
     .wort = u"Topf",
     .titel = u"Topfpflanzen",
     .fenster = "frmAnzeigeTopfpflanzen",
     .filter = "frmFilterTo",
     .haupttabelle = u"TOPFPFL",
     .bildtabelle = u"Topfpfl_Bilder",
     .synonymBotanisch = u"Topfpfl_Synonyme_Botanisch",
     .synonymDeutsch = u"Topfpfl_Synonyme_Deutsch",
     .tempDatenbank = u"\\db_to",
     .tempFilter = u"\\TempFilterTo",
     .filterEndung = u".fft",
     .namenSpalte = "Topfpflanzen",
     .bildordner = u"topfpflanzen",
     .hilfethema = u"2-topf.htm",
     .menue = "mnudbtopfpflanzen",
     .menuetext = u"Topfpflanzen",
     .wahlknopf = "cmdTopfpflanzen",
     .wahlbild = "topfpflanzen",
     .quellenBuchstaben = u"zsnc",
     .hatDeutscheOrdnung = true},
    {.sparte = Sparte::Stauden,
     .wort = u"Stauden",
     .titel = u"Stauden",
     .fenster = "frmAnzeigeStauden",
     .filter = "frmFilterSt",
     .haupttabelle = u"STAUDEN",
     .bildtabelle = u"Stauden_Bilder",
     .synonymBotanisch = u"Stauden_Synonyme_Botanisch",
     .synonymDeutsch = u"Stauden_Synonyme_Deutsch",
     .tempDatenbank = u"\\db_st",
     .tempFilter = u"\\TempFilterSt",
     .filterEndung = u".ffs",
     .namenSpalte = "Stauden",
     .bildordner = u"stauden",
     .hilfethema = u"2-stauden.htm",
     .menue = "mnudbstauden",
     .menuetext = u"Stauden",
     .wahlknopf = "cmdStauden",
     .wahlbild = "stauden",
     .quellenBuchstaben = u"zsnc",
     .hatDeutscheOrdnung = true},
    {.sparte = Sparte::Gehoelze,
     .wort = u"Gehölze",
     .titel = u"Gehölze",
     .fenster = "frmAnzeigeGehoelze",
     .filter = "frmFilterGe",
     .haupttabelle = u"GEHOELZE",
     .bildtabelle = u"Gehoelze_Bilder",
     .synonymBotanisch = u"Gehoelze_Synonyme_Botanisch",
     .synonymDeutsch = u"Gehoelze_Synonyme_Deutsch",
     .tempDatenbank = u"\\db_ge",
     .tempFilter = u"\\TempFilterGe",
     .filterEndung = u".ffg",
     .namenSpalte = "Gehoelze",
     .bildordner = u"gehoelze",
     .hilfethema = u"2-gehoelze.htm",
     .menue = "mnudbgehoelze",
     .menuetext = u"Gehölze",
     .wahlknopf = "cmdGehoelze",
     .wahlbild = "gehoelze",
     .quellenBuchstaben = u"zsngc",
     .hatDeutscheOrdnung = true},
    {.sparte = Sparte::Apfel,
     .wort = u"Apfel",
     .titel = u"Apfelsorten",
     .fenster = "frmAnzeigeApfel",
     .filter = "frmFilterAp",
     .haupttabelle = u"Apfel",
     .bildtabelle = u"Apfel_Bilder",
     .tempDatenbank = u"\\db_ap",
     .tempFilter = u"\\TempFilterAp",
     .filterEndung = u".ffa",
     .namenSpalte = "Apfel",
     .bildordner = u"apfel",
     .hilfethema = u"2-apfel.htm",
     .menue = "mnudbapfel",
     .menuetext = u"Apfelsorten",
     .wahlknopf = "cmdApfel",
     .wahlbild = "apfel"},
    {.sparte = Sparte::Obst,
     .wort = u"Obst",
     .titel = u"Obstsorten",
     .fenster = "frmAnzeigeObst",
     .filter = "frmFilterOb",
     .haupttabelle = u"Obst",
     .bildtabelle = u"Obst_Bilder",
     .tempDatenbank = u"\\db_ob",
     .tempFilter = u"\\TempFilterOb",
     .filterEndung = u".ffo",
     .namenSpalte = "Obst",
     .bildordner = u"obst",
     .hilfethema = u"2-obst.htm",
     .menue = "mnudbobst",
     .menuetext = u"Obst",
     .wahlknopf = "cmdObst",
     .wahlbild = "obst"},
    {.sparte = Sparte::Friedhof,
     .wort = u"Friedhof",
     .titel = u"Friedhofspflanzen",
     .fenster = "frmAnzeigeFriedhof",
     .filter = "frmFilterFh",
     .haupttabelle = u"Abfrage_Friedhof",
     .bildtabelle = u"Friedhof_Bilder",
     .tempDatenbank = u"\\db_fh",
     .tempFilter = u"\\TempFilterFh",
     .filterEndung = u".fff",
     .parkFilter = u"\\TempFilterSt",
     .parkEndung = u".ffs",
     .namenSpalte = "Friedhof",
     .hilfethema = u"2-friedhof.htm",
     .menue = "mnudbfriedhof",
     .menuetext = u"Friedhof",
     .wahlknopf = "cmdFriedhof",
     .wahlbild = "friedhof",
     .hatDeutscheOrdnung = true,
     .herkunftsfeld = "DB",
     .herkuenfte = herkuenfteFriedhof},
}};

static_assert(std::ranges::all_of(tabelle, [](const SpartenEintrag &e) { return &e == &tabelle[size_t(e.sparte)]; }));

} // namespace

const std::array<SpartenEintrag, anzahlSparten> &alleSparten()
{
    return tabelle;
}

const SpartenEintrag &eintrag(Sparte sparte)
{
    return tabelle[size_t(sparte)];
}

std::optional<Sparte> herkunft(const SpartenEintrag &sparte, QStringView wert)
{
    if (!sparte.herkunftsfeld)
        return sparte.sparte;
    for (const Herkunft &zeile : sparte.herkuenfte)
        if (zeile.wert == wert)
            return zeile.sparte;
    return std::nullopt;
}

Sparte herkunftDerNummer(const SpartenEintrag &sparte, qint64 artnr)
{
    Sparte uebrige = sparte.sparte;
    for (const Herkunft &zeile : sparte.herkuenfte) {
        if (artnr >= zeile.ersteNummer && artnr < zeile.nachNummer)
            return zeile.sparte;
        if (!zeile.nachNummer)
            uebrige = zeile.sparte;
    }
    return uebrige;
}

QList<Sparte> herkuenfte(const SpartenEintrag &sparte)
{
    if (!sparte.herkunftsfeld)
        return {sparte.sparte};
    QList<Sparte> alle;
    for (const Herkunft &zeile : sparte.herkuenfte)
        alle += zeile.sparte;
    return alle;
}

std::optional<Sparte> sparteVonWort(QStringView wort)
{
    for (const SpartenEintrag &zeile : tabelle)
        if (zeile.wort == wort)
            return zeile.sparte;
    return std::nullopt;
}
