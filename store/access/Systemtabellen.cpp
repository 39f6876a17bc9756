#include "Schreibtabelle.h"

#include "store/Fehler.h"

#include <QDateTime>

#include <algorithm>
#include <bit>
#include <cstring>

/* What a file holds besides the user's rows: definitions of tables, the four tables of the engine, the head. The numbers are the
   engine's own, as files that it wrote have them. */

namespace accessdatei {

namespace {

/// The marks of users are veiled by the day of the file's making: day and marks go together.
constexpr double tagDerEntstehung = 42329.94480300926;
constexpr std::string_view kennungAdmin = "\x64\x8b", kennungBenutzer = "\x65\x8b", kennungErzeuger = "\x65\x8e", kennungEngine = "\x65\x89";

constexpr uint32_t definitionswort = 0x659, indexwort = 0x783, sprache = 0x409, codeseite = 1252;
constexpr uint8_t tabelleDerEngine = 0x53, tabelleDesBenutzers = 0x4E;
constexpr size_t indexspalten = 10;
constexpr uint32_t keineSpalte = 0xFFFF;

constexpr uint32_t wurzel = 0x0F000000, tabellen = wurzel + 1, datenbanken = wurzel + 2, beziehungen = wurzel + 3, msysdb = 0x10000000;
constexpr uint32_t systemobjekt = 0x80000000;
constexpr int artTabelle = 1, artDatenbank = 2, artBehaelter = 3;
constexpr uint32_t seiteObjekte = 2, seiteRechte = 3, seiteAbfragen = 4, seiteBeziehungen = 5;
constexpr const char *systemnamen[] = {"MSysObjects", "MSysACEs", "MSysQueries", "MSysRelationships"};

/// Bytes of a definition, in order.
class Folge
{
public:
    void u8(uint32_t zahl) { bytes.push_back(uint8_t(zahl)); }
    void u16(uint32_t zahl)
    {
        u8(zahl);
        u8(zahl >> 8);
    }
    void u32(uint32_t zahl)
    {
        u16(zahl);
        u16(zahl >> 16);
    }
    void nullen(size_t anzahl) { bytes.resize(bytes.size() + anzahl); }
    void name(const QString &text)
    {
        u16(uint32_t(2 * text.size()));
        for (const QChar zeichen : text)
            u16(zeichen.unicode());
    }
    std::vector<uint8_t> bytes;
};

Wert ganz(uint32_t zahl)
{
    return {.gestalt = Gestalt::Ganzzahl, .ganz = int32_t(zahl)};
}

Wert wort(std::string_view text)
{
    return {.gestalt = Gestalt::Text, .text = text};
}

} // namespace

void Schreiber::tabelleSchreiben(Tabelle &t)
{
    t.daten->schliessen();
    for (const auto &seiten : t.lang)
        if (seiten)
            seiten->schliessen();
    definitionSchreiben(t);
}

void Schreiber::definitionSchreiben(Tabelle &t)
{
    std::vector<uint32_t> verschiedene;
    std::vector<std::vector<uint32_t>> indexseiten;
    for (size_t i = 0; i < t.indexe.size(); ++i) {
        std::vector<std::string> &eintraege = t.eintraege[i];
        if (!std::ranges::is_sorted(eintraege))
            std::ranges::sort(eintraege);
        constexpr size_t zeigerbytes = 4;
        uint32_t anzahl = 0;
        const auto schluessel = [](const std::string &eintrag) { return std::string_view(eintrag).substr(0, eintrag.size() - zeigerbytes); };
        for (size_t k = 0; k < eintraege.size(); ++k)
            anzahl += k == 0 || schluessel(eintraege[k]) != schluessel(eintraege[k - 1]);
        if ((t.indexe[i].merkmale & 1) && anzahl != eintraege.size())
            throw Fehler(QStringLiteral("In der Tabelle '%1' gibt es eine Nummer mehrfach.").arg(QString::fromStdString(t.name)));
        verschiedene.push_back(anzahl);
        indexseiten.push_back({t.wurzeln[i]});
        indexSchreiben(datei_, t.seite, eintraege, t.wurzeln[i], indexseiten.back());
    }

    Zeilenseiten karten(datei_, 0, t.kartenseite);
    const auto karte = [&](const std::vector<uint32_t> &seiten) { return karten.anhaengen(belegungskarte(datei_, seiten)); };
    const uint32_t belegt = karte(t.daten->seiten()), frei = karte(t.daten->freie());
    std::vector<std::pair<uint32_t, uint32_t>> lange(t.felder.size());
    for (size_t i = 0; i < t.felder.size(); ++i)
        if (t.lang[i])
            lange[i] = {karte(t.lang[i]->seiten()), karte(t.lang[i]->freie())};
    std::vector<uint32_t> indexkarten;
    for (const std::vector<uint32_t> &seiten : indexseiten)
        indexkarten.push_back(karte(seiten));
    karten.schliessen();

    Folge d;
    d.nullen(12);
    d.u32(definitionswort);
    d.u32(t.zeilen);
    d.u32(0);
    d.u32(1);
    d.nullen(12);
    d.u8(t.system ? tabelleDerEngine : tabelleDesBenutzers);
    d.u16(uint32_t(t.felder.size()));
    d.u16(t.variable);
    d.u16(uint32_t(t.felder.size()));
    d.u32(uint32_t(t.indexe.size()));
    d.u32(uint32_t(t.indexe.size()));
    d.u32(belegt);
    d.u32(frei);
    for (const uint32_t anzahl : verschiedene) {
        d.u32(t.system ? 0 : t.zeilen);
        d.u32(anzahl);
        d.u32(0);
    }
    for (const Tabelle::Feld &feld : t.felder) {
        d.u8(uint32_t(feld.typ));
        d.u32(definitionswort);
        d.u16(uint32_t(feld.nummer));
        d.u16(feld.stelle);
        d.u16(t.system ? 0 : uint32_t(feld.nummer));
        d.u16(sprache);
        d.u16(0);
        d.u8(feld.merkmale);
        d.u8(feld.verdichtet);
        d.u32(0);
        d.u16(feld.ort);
        d.u16(feld.laenge);
    }
    for (const Tabelle::Feld &feld : t.felder)
        d.name(feld.name);
    for (size_t i = 0; i < t.indexe.size(); ++i) {
        d.u32(indexwort);
        for (size_t k = 0; k < indexspalten; ++k) {
            const bool da = k < t.indexe[i].spalten.size();
            d.u16(da ? uint32_t(t.indexe[i].spalten[k]) : keineSpalte);
            d.u8(da);
        }
        d.u32(indexkarten[i]);
        d.u32(t.wurzeln[i]);
        d.u32(0);
        d.u8(t.indexe[i].merkmale);
        d.nullen(5);
    }
    std::vector<size_t> nachName(t.indexe.size());
    for (size_t i = 0; i < nachName.size(); ++i)
        nachName[i] = i;
    std::ranges::sort(nachName, {}, [&](size_t i) { return t.indexe[i].name; });
    for (const size_t i : nachName) {
        d.u32(definitionswort);
        d.u32(uint32_t(i));
        d.u32(uint32_t(i));
        d.u8(0);
        d.u32(0xFFFFFFFF);
        d.u32(0);
        d.u8(4);
        d.u8(4);
        d.u8(t.indexe[i].hauptschluessel);
        d.u32(0);
    }
    for (const size_t i : nachName)
        d.name(QString::fromStdString(t.indexe[i].name));
    for (size_t i = 0; i < t.felder.size(); ++i)
        if (t.lang[i]) {
            d.u16(uint32_t(t.felder[i].nummer));
            d.u32(lange[i].first);
            d.u32(lange[i].second);
        }
    d.u16(keineSpalte);
    schreibe32(&d.bytes[8], uint32_t(d.bytes.size()));

    constexpr size_t folgekopf = 8;
    uint32_t nummer = t.seite;
    for (size_t von = 0; von < d.bytes.size();) {
        const size_t kopf = von == 0 ? 0 : folgekopf, anzahl = std::min(d.bytes.size() - von, seitenbytes - kopf);
        Seite seite{};
        std::memcpy(&seite[kopf], &d.bytes[von], anzahl);
        seite[0] = seiteTabelle;
        seite[1] = 1;
        const size_t ende = kopf + anzahl;
        schreibe16(&seite[2], ende + folgekopf < seitenbytes ? uint32_t(seitenbytes - ende - folgekopf) : 0);
        von += anzahl;
        const uint32_t naechste = von < d.bytes.size() ? datei_.neu() : 0;
        schreibe32(&seite[4], naechste);
        datei_.schreiben(nummer, seite);
        nummer = naechste;
    }
}

void Schreiber::systemtabellenSchreiben()
{
    constexpr uint8_t fest = spalteFest | spalteSystem, variabel = spalteVariabel | spalteSystem, kennung = variabel | spalteGeschuetzt;
    constexpr uint16_t text = 510;
    const auto anlegen = [&](const char *name, uint32_t seite, std::vector<Tabelle::Feld> felder, std::vector<Indexform> indexe) {
        auto t = std::make_unique<Tabelle>();
        t->name = name;
        t->system = true;
        t->seite = seite;
        t->felder = std::move(felder);
        t->indexe = std::move(indexe);
        t->einrichten(datei_);
        return t;
    };
    const auto feld = [](const char *name, Typ typ, uint16_t laenge, uint8_t merkmale, int nummer) {
        return Tabelle::Feld{QString::fromLatin1(name), typ, laenge, merkmale, nummer};
    };
    // clang-format off
    const auto objekte = anlegen(systemnamen[0], seiteObjekte,
        {feld("Connect", Typ::Memo, 0, variabel, 9), feld("Database", Typ::Memo, 0, variabel, 8), feld("DateCreate", Typ::Datum, 8, fest, 4),
         feld("DateUpdate", Typ::Datum, 8, fest, 5), feld("Flags", Typ::Lang, 4, fest, 7), feld("ForeignName", Typ::Text, text, variabel, 10),
         feld("Id", Typ::Lang, 4, fest, 0), feld("Lv", Typ::Objekt, 0, variabel, 13), feld("LvExtra", Typ::Objekt, 0, variabel, 16),
         feld("LvModule", Typ::Objekt, 0, variabel, 15), feld("LvProp", Typ::Objekt, 0, variabel, 14), feld("Name", Typ::Text, text, variabel, 2),
         feld("Owner", Typ::Binaer, text, kennung, 6), feld("ParentId", Typ::Lang, 4, fest, 1), feld("RmtInfoLong", Typ::Objekt, 0, variabel, 12),
         feld("RmtInfoShort", Typ::Binaer, text, variabel, 11), feld("Type", Typ::Kurz, 2, fest, 3)},
        {{"ParentIdName", {1, 2}, indexEindeutig, false}, {"Id", {0}, indexEindeutig, true}});
    const auto rechte = anlegen(systemnamen[1], seiteRechte,
        {feld("ACM", Typ::Lang, 4, fest, 2), feld("FInheritable", Typ::Wahrheit, 1, fest, 3), feld("ObjectId", Typ::Lang, 4, fest, 0),
         feld("SID", Typ::Binaer, text, kennung, 1)},
        {{"ObjectId", {0}, indexGefordert, false}});
    // clang-format on
    const QDateTime jetzt = QDateTime::currentDateTime();
    const Wert tag{.gestalt = Gestalt::Datum,
                   .komma = double(QDate(1899, 12, 30).daysTo(jetzt.date())) + double(jetzt.time().msecsSinceStartOfDay()) / (24 * 60 * 60 * 1000.0)};
    const auto objekt = [&](uint32_t nummer, uint32_t ueber, std::string_view name, int art, uint32_t merkmale, std::string_view besitzer) {
        Wert zeile[17];
        zeile[2] = zeile[3] = tag;
        zeile[4] = ganz(merkmale);
        zeile[6] = ganz(nummer);
        zeile[11] = wort(name);
        zeile[12] = wort(besitzer);
        zeile[13] = ganz(ueber);
        zeile[16] = ganz(uint32_t(art));
        zeileSchreiben(*objekte, zeile);
    };
    objekt(tabellen, wurzel, "Tables", artBehaelter, systemobjekt, kennungEngine);
    objekt(datenbanken, wurzel, "Databases", artBehaelter, systemobjekt, kennungEngine);
    objekt(beziehungen, wurzel, "Relationships", artBehaelter, systemobjekt, kennungEngine);
    objekt(msysdb, datenbanken, "MSysDb", artDatenbank, systemobjekt, kennungAdmin);
    for (uint32_t i = 0; i < std::size(systemnamen); ++i)
        objekt(seiteObjekte + i, tabellen, systemnamen[i], artTabelle, systemobjekt, kennungEngine);
    for (const Katalogzeile &zeile : katalog_)
        objekt(zeile.seite, tabellen, zeile.name, artTabelle, 0, kennungAdmin);

    const auto recht = [&](uint32_t objektnummer, std::string_view wer, uint32_t was, bool erblich) {
        const Wert zeile[] = {ganz(was), {.gestalt = Gestalt::Wahrheit, .ganz = erblich}, ganz(objektnummer), wort(wer)};
        zeileSchreiben(*rechte, zeile);
    };
    for (const uint32_t seite : {seiteObjekte, seiteRechte, seiteAbfragen})
        recht(seite, kennungAdmin, 0x60000, false);
    recht(seiteBeziehungen, kennungAdmin, 0xE0000, false);
    recht(tabellen, kennungErzeuger, 0xF00FE, true);
    recht(tabellen, kennungAdmin, 0x60001, false);
    recht(beziehungen, kennungErzeuger, 0xF00FE, true);
    recht(beziehungen, kennungAdmin, 0x60001, false);
    recht(datenbanken, kennungAdmin, 0x60000, false);
    recht(msysdb, kennungAdmin, 0x6000E, false);
    recht(msysdb, kennungBenutzer, 0xE, false);
    for (const uint32_t seite : {seiteAbfragen, seiteBeziehungen, seiteObjekte})
        recht(seite, kennungBenutzer, 0x14, false);
    recht(tabellen, kennungBenutzer, 0xFFEFF, true);
    recht(beziehungen, kennungBenutzer, 0xFFFFF, true);
    for (const Katalogzeile &zeile : katalog_)
        for (const std::string_view wer : {kennungAdmin, kennungBenutzer})
            recht(zeile.seite, wer, 0xFFEFF, false);
    tabelleSchreiben(*objekte);
    tabelleSchreiben(*rechte);

    // clang-format off
    const auto abfragen = anlegen(systemnamen[2], seiteAbfragen,
        {feld("Attribute", Typ::Byte, 1, fest, 1), feld("Expression", Typ::Memo, 0, variabel, 5), feld("Flag", Typ::Kurz, 2, fest, 6),
         feld("LvExtra", Typ::Lang, 4, fest, 7), feld("Name1", Typ::Text, text, variabel, 3), feld("Name2", Typ::Text, text, variabel, 4),
         feld("ObjectId", Typ::Lang, 4, fest, 0), feld("Order", Typ::Binaer, text, variabel, 2)},
        {{"ObjectIdAttribute", {0, 1, 2}, indexEindeutig, true}});
    tabelleSchreiben(*abfragen);
    const auto verbindungen = anlegen(systemnamen[3], seiteBeziehungen,
        {feld("ccolumn", Typ::Lang, 4, fest, 2), feld("grbit", Typ::Lang, 4, fest, 1), feld("icolumn", Typ::Lang, 4, fest, 3),
         feld("szColumn", Typ::Text, text, variabel, 5), feld("szObject", Typ::Text, text, variabel, 4),
         feld("szReferencedColumn", Typ::Text, text, variabel, 7), feld("szReferencedObject", Typ::Text, text, variabel, 6),
         feld("szRelationship", Typ::Text, text, variabel, 0)},
        {{"szRelationship", {0}, indexOhneLeere, false}, {"szObject", {4}, indexOhneLeere, false},
         {"szReferencedObject", {6}, indexOhneLeere, false}});
    tabelleSchreiben(*verbindungen);
    // clang-format on
}

void Schreiber::kopfSchreiben()
{
    constexpr uint32_t kartenseite = 1;
    Zeilenseiten karten(datei_, kartenseite, kartenseite);
    const std::vector<uint8_t> gesamt = gesamtkarte(datei_);
    karten.anhaengen(gesamt);
    constexpr size_t leereKarte = 69;
    karten.anhaengen(std::vector<uint8_t>(leereKarte));
    karten.schliessen();

    Seite kopf{};
    schreibe32(&kopf[0], 0x100);
    std::memcpy(&kopf[4], "Standard Jet DB", 16);
    schreibe32(&kopf[0x14], 1);
    schreibe32(&kopf[0x18], 0x100);
    schreibe32(&kopf[0x1C], 0x101);
    for (uint32_t i = 0; i < std::size(systemnamen); ++i)
        schreibe32(&kopf[0x20 + 4 * i], seiteObjekte + i);
    schreibe16(&kopf[0x3C], codeseite);
    // No password.
    for (size_t i = 0; i < 10; ++i)
        schreibe32(&kopf[0x42 + 4 * i], uint32_t(tagDerEntstehung));
    schreibe32(&kopf[0x6A], 0x261C);
    schreibe32(&kopf[0x6E], sprache);
    const uint64_t tag = std::bit_cast<uint64_t>(tagDerEntstehung);
    schreibe32(&kopf[0x72], uint32_t(tag));
    schreibe32(&kopf[0x76], uint32_t(tag >> 32));
    rc4(kopfschluessel, std::span(kopf).subspan(kopfmaskeAb, kopfmaske));
    schreibe32(&kopf[0x98], 0x654);
    std::memcpy(&kopf[0x9C], "4.0", 4);
    // Nobody has the file open.
    for (size_t i = 0; i < 256; ++i) {
        kopf[0xE00 + 2 * i] = i == 0;
        kopf[0xE01 + 2 * i] = 1;
    }
    datei_.schreiben(0, kopf);
}

} // namespace accessdatei
