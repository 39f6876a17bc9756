#include "Sparten.h"

#include <algorithm>

namespace {

constexpr std::array<SpartenEintrag, anzahlSparten> tabelle{{
    {Sparte::Topf, u"Topf", u"Topfpflanzen", "frmAnzeigeTopfpflanzen", "frmFilterTo", u"TOPFPFL", u"Topfpfl_Bilder",
     u"Topfpfl_Synonyme_Botanisch", u"Topfpfl_Synonyme_Deutsch", u"\\db_to", u"\\TempFilterTo", u".fft", "Topfpflanzen",
     u"topfpflanzen", u"2-topf.htm", "mnudbtopfpflanzen", u"Topfpflanzen", "cmdTopfpflanzen", "topfpflanzen", u"zsnc", true},
    {Sparte::Stauden, u"Stauden", u"Stauden", "frmAnzeigeStauden", "frmFilterSt", u"STAUDEN", u"Stauden_Bilder",
     u"Stauden_Synonyme_Botanisch", u"Stauden_Synonyme_Deutsch", u"\\db_st", u"\\TempFilterSt", u".ffs", "Stauden",
     u"stauden", u"2-stauden.htm", "mnudbstauden", u"Stauden", "cmdStauden", "stauden", u"zsnc", true},
    {Sparte::Gehoelze, u"Gehölze", u"Gehölze", "frmAnzeigeGehoelze", "frmFilterGe", u"GEHOELZE", u"Gehoelze_Bilder",
     u"Gehoelze_Synonyme_Botanisch", u"Gehoelze_Synonyme_Deutsch", u"\\db_ge", u"\\TempFilterGe", u".ffg", "Gehoelze",
     u"gehoelze", u"2-gehoelze.htm", "mnudbgehoelze", u"Gehölze", "cmdGehoelze", "gehoelze", u"zsncg", true},
    {Sparte::Apfel, u"Apfel", u"Apfelsorten", "frmAnzeigeApfel", "frmFilterAp", u"Apfel", u"Apfel_Bilder", u"", u"",
     u"\\db_ap", u"\\TempFilterAp", u".ffa", "Apfel", u"apfel", u"2-apfel.htm", "mnudbapfel", u"Apfelsorten", "cmdApfel", "apfel", u"", false},
    {Sparte::Obst, u"Obst", u"Obstsorten", "frmAnzeigeObst", "frmFilterOb", u"Obst", u"Obst_Bilder", u"", u"",
     u"\\db_ob", u"\\TempFilterOb", u".ffo", "Obst", u"obst", u"2-obst.htm", "mnudbobst", u"Obst", "cmdObst", "obst", u"", false},
    {Sparte::Friedhof, u"Friedhof", u"Friedhofspflanzen", "frmAnzeigeFriedhof", "frmFilterFh", u"Abfrage_Friedhof",
     u"Friedhof_Bilder", u"", u"", u"\\db_fh", u"\\TempFilterFh", u".fff", "Friedhof", u"", u"2-friedhof.htm", "mnudbfriedhof",
     u"Friedhof", "cmdFriedhof", "friedhof", u"zsncg", true},
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

std::optional<Sparte> sparteVonWort(QStringView wort)
{
    for (const SpartenEintrag &zeile : tabelle)
        if (zeile.wort == wort)
            return zeile.sparte;
    return std::nullopt;
}
