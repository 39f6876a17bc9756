#include "Bilderliste.h"

#include "Bildlader.h"
#include "store/Medium.h"
#include "store/Pfade.h"

namespace {

QString bilddatei(const QString &wurzel, const QString &ordner, const QString &stamm)
{
    return pfadAus(pfadAus(wurzel, ordner), stamm + QStringLiteral(".jpg"));
}

/// What cannot be read as a picture counts as not found. The head tells most of it.
bool bildVorhanden(const QString &pfad)
{
    return !pfad.isEmpty() && !bildgroesse(pfad).isEmpty();
}

} // namespace

QString bildordner(Sparte sparte, qint64 artnr)
{
    return eintrag(herkunftDerNummer(eintrag(sparte), artnr)).bildordner.toString();
}

QString ersatzbild(const Programm &programm)
{
    return programm.symbolordner() + QStringLiteral("\\bildfehlt.jpg");
}

QString streifenwurzel(const Programm &programm)
{
    return programm.LokaleVorschauBilder ? programm.vorschauordner() : programm.BilderPfad;
}

std::vector<Bildeintrag> streifenbilder(const Programm &programm, const Bildzeile &zeile, const QString &ordner)
{
    std::vector<Bildeintrag> bilder;
    const QString wurzel = streifenwurzel(programm);
    for (const auto *haelfte : {&zeile.g, &zeile.d})
        for (const Bildzeile::Bild &bild : *haelfte) {
            if (!bild.stamm)
                continue;
            const QString pfad = bilddatei(wurzel, ordner, *bild.stamm);
            const QString ersatz = *bild.stamm == bildFehlt ? QString() : ersatzbild(programm);
            if (bildVorhanden(pfad))
                bilder.push_back({pfad, bild.bemerkung, true, ersatz});
            else if (!ersatz.isEmpty())
                bilder.push_back({ersatz, *bild.stamm + QStringLiteral(".jpg"), false});
        }
    return bilder;
}

std::vector<Bildeintrag> fensterbilder(const Programm &programm, const Bildzeile &zeile, const QString &ordner,
                                       const std::array<QString, groessteBilderzahl> &vorige)
{
    constexpr int bisBild = 4;
    std::vector<Bildeintrag> bilder;
    for (const auto *haelfte : {&zeile.g, &zeile.d})
        for (int i = 0; i < bisBild && (*haelfte)[size_t(i)].stamm; ++i) {
            const Bildzeile::Bild &bild = (*haelfte)[size_t(i)];
            const QString pfad = bilddatei(programm.BilderPfad, ordner, *bild.stamm);
            const QString ersatz = *bild.stamm == bildFehlt ? QString() : ersatzbild(programm);
            if (bildVorhanden(pfad))
                bilder.push_back({pfad, bild.bemerkung, true, ersatz});
            else if (!ersatz.isEmpty())
                bilder.push_back({ersatz, vorige[bilder.size()], false});
        }
    return bilder;
}

Medium bildMediumPruefen(Programm &programm)
{
    Medium befund;
    if (programm.BilderPfad.isEmpty() && medium::alleProben(programm.VermissterBilderPfad))
        programm.BilderPfad = programm.VermissterBilderPfad;
    if (medium::alleProben(programm.BilderPfad)) {
        programm.VermissterBilderPfad.clear();
    } else {
        if (!programm.BilderAufCD) {
            if (const QString ordner = std::exchange(programm.BilderPfad, {}); !ordner.isEmpty())
                programm.VermissterBilderPfad = ordner;
            programm.LokaleVorschauBilder = false;
            befund.unbekannt = true;
            return befund;
        }
        befund.hinweis = QStringLiteral("Bitte Flox-CD einlegen!");
    }
    programm.LokaleVorschauBilder = medium::alleProben(programm.vorschauordner());
    if (programm.LokaleVorschauBilder)
        befund.hinweis.clear();
    return befund;
}

bool mediumFehlt(const Programm &programm)
{
    return programm.BilderAufCD && !medium::alleProben(programm.BilderPfad);
}

void bilderPfadWaehlen(Programm &programm, const QString &ordner)
{
    programm.BilderPfad = ordner;
    programm.VermissterBilderPfad.clear();
}
