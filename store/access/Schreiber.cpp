#include "Schreiber.h"

#include "Schreibtabelle.h"
#include "store/Fehler.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace accessdatei {

namespace {

constexpr size_t laengsterLangwertHier = 64, laengsterVerdichteter = 1024;
constexpr uint32_t ersteFreieSeite = 6; // behind head, map of all pages and the four tables of the engine

/// Of the first 127 characters behind U+0000.
bool istAscii(char zeichen)
{
    return uint8_t(zeichen - 1) < 0x7F;
}

/// UTF-8 as little-endian UTF-16, which must be no longer than `meiste` units; false where it is.
bool nachUtf16(std::string_view utf8, std::vector<uint8_t> &bytes, size_t meiste, bool &nurEinByte)
{
    bytes.clear();
    nurEinByte = true;
    if (utf8.size() <= meiste && std::ranges::all_of(utf8, istAscii)) {
        bytes.resize(2 * utf8.size());
        for (size_t i = 0; i < utf8.size(); ++i)
            bytes[2 * i] = uint8_t(utf8[i]);
        return true;
    }
    const auto einheit = [&](uint32_t zeichen) {
        nurEinByte = nurEinByte && zeichen - 1 < 0xFF;
        bytes.push_back(uint8_t(zeichen));
        bytes.push_back(uint8_t(zeichen >> 8));
    };
    for (size_t i = 0; i < utf8.size();) {
        uint32_t zeichen = uint8_t(utf8[i++]);
        const int folgende = zeichen < 0x80 ? 0 : zeichen < 0xE0 ? 1 : zeichen < 0xF0 ? 2 : 3;
        if (folgende)
            zeichen &= 0x3Fu >> folgende;
        for (int k = 0; k < folgende && i < utf8.size(); ++k)
            zeichen = zeichen << 6 | (uint8_t(utf8[i++]) & 0x3F);
        if (zeichen >= 0x10000) {
            einheit(0xD800 + ((zeichen - 0x10000) >> 10));
            einheit(0xDC00 + (zeichen & 0x3FF));
        } else {
            einheit(zeichen);
        }
        if (bytes.size() > 2 * meiste)
            return false;
    }
    return true;
}

/// A text as the file holds it: one byte a character where that is possible and saves something.
bool textBytes(std::string_view utf8, bool verdichten, size_t meiste, std::vector<uint8_t> &bytes)
{
    constexpr size_t lohnend = 3;
    if (verdichten && utf8.size() >= lohnend && utf8.size() <= std::min(meiste, laengsterVerdichteter) && std::ranges::all_of(utf8, istAscii)) {
        bytes.assign(std::begin(verdichtet), std::end(verdichtet));
        bytes.insert(bytes.end(), utf8.begin(), utf8.end());
        return true;
    }
    bool nurEinByte = false;
    if (!nachUtf16(utf8, bytes, meiste, nurEinByte))
        return false;
    const size_t zeichen = bytes.size() / 2;
    if (!verdichten || !nurEinByte || zeichen < lohnend || zeichen > laengsterVerdichteter)
        return true;
    for (size_t i = 0; i < zeichen; ++i)
        bytes[i] = bytes[2 * i];
    bytes.resize(zeichen);
    bytes.insert(bytes.begin(), std::begin(verdichtet), std::end(verdichtet));
    return true;
}

void schluesselAnhaengen(std::string &eintrag, const Wert &wert, Typ typ)
{
    constexpr char vorhanden = 0x7F;
    if (wert.gestalt == Gestalt::Leer) {
        eintrag += '\0';
        return;
    }
    if (typ == Typ::Text) {
        eintrag += vorhanden;
        textSchluessel(eintrag, wert.text);
        return;
    }
    eintrag += vorhanden;
    const uint32_t zahl = uint32_t(int32_t(wert.ganz)) ^ 0x80000000u;
    for (int bits = 24; bits >= 0; bits -= 8)
        eintrag += char(zahl >> bits);
}

/// Where the pieces of a long value stand, as the row names them. The last piece is written first, since each names the next.
uint32_t langwertSchreiben(std::span<const uint8_t> bytes, Zeilenseiten &seiten)
{
    if (bytes.size() <= laengsteLangzeile)
        return seiten.anhaengen(bytes);
    constexpr size_t stueck = laengsteLangzeile - 4;
    uint32_t naechste = 0;
    std::vector<uint8_t> zeile;
    for (size_t i = (bytes.size() + stueck - 1) / stueck; i-- > 0;) {
        const auto inhalt = bytes.subspan(i * stueck, std::min(stueck, bytes.size() - i * stueck));
        zeile.resize(4);
        schreibe32(zeile.data(), naechste);
        zeile.insert(zeile.end(), inhalt.begin(), inhalt.end());
        naechste = seiten.anhaengen(zeile);
    }
    return naechste;
}

bool einfacherName(const QString &name)
{
    return std::ranges::all_of(
        name, [](QChar zeichen) { return zeichen == u' ' || zeichen == u'_' || (zeichen.unicode() < 0x80 && zeichen.isLetterOrNumber()); });
}

} // namespace

/// The engine's own order of letters and digits, case-blind; blanks at the end do not count.
void textSchluessel(std::string &eintrag, std::string_view text)
{
    static constexpr uint8_t buchstaben[26] = {0x4A, 0x4C, 0x4D, 0x4F, 0x51, 0x53, 0x55, 0x57, 0x59, 0x5B, 0x5C, 0x5E, 0x60,
                                               0x62, 0x64, 0x66, 0x68, 0x69, 0x6B, 0x6D, 0x6F, 0x71, 0x73, 0x75, 0x76, 0x78};
    const size_t letztes = text.find_last_not_of(' ');
    for (const char zeichen : text.substr(0, letztes == std::string_view::npos ? 0 : letztes + 1)) {
        if (const char klein = char(zeichen | 0x20); klein >= 'a' && klein <= 'z')
            eintrag += char(buchstaben[klein - 'a']);
        else if (zeichen >= '0' && zeichen <= '9')
            eintrag += char(0x36 + 2 * (zeichen - '0'));
        else if (zeichen == ' ')
            eintrag += '\x07';
        else
            eintrag += "\x2B\x03"; // "_", the only other one that a name has
    }
    eintrag += '\x01';
    eintrag += '\0';
}

bool gueltigerName(const QString &name)
{
    constexpr int laengster = 64;
    return !name.isEmpty() && name.size() <= laengster && name.trimmed() == name
           && std::ranges::none_of(name, [](QChar zeichen) { return zeichen.unicode() < 0x20 || QStringView(u".![]`").contains(zeichen); });
}

void Schreiber::Tabelle::einrichten(Seitendatei &datei)
{
    nachNummer.resize(felder.size());
    for (size_t i = 0; i < felder.size(); ++i)
        nachNummer[size_t(felder[i].nummer)] = int(i);
    for (const int platz : nachNummer) {
        Feld &feld = felder[size_t(platz)];
        feld.stelle = variable;
        if (!feld.fest())
            ++variable;
        else if (feld.typ != Typ::Wahrheit)
            feld.ort = std::exchange(festeBytes, uint16_t(festeBytes + feld.laenge));
    }
    kartenseite = datei.neu();
    for (size_t i = 0; i < indexe.size(); ++i)
        wurzeln.push_back(datei.neu());
    eintraege.resize(indexe.size());
    daten = std::make_unique<Zeilenseiten>(datei, seite);
    for (const Feld &feld : felder)
        lang.push_back(istLangwert(feld.typ) ? std::make_unique<Zeilenseiten>(datei, besitzerLangwerte) : nullptr);
}

Schreiber::Schreiber(const QString &pfad) : datei_(pfad)
{
    while (datei_.anzahl() < ersteFreieSeite)
        (void)datei_.neu();
}

Schreiber::~Schreiber() = default;

void Schreiber::beginnen(const Tabellenform &form)
{
    bool gut = gueltigerName(form.name) && einfacherName(form.name) && !form.spalten.empty() && form.spalten.size() <= size_t(meisteSpalten);
    for (const Spaltenform &spalte : form.spalten)
        gut = gut && gueltigerName(spalte.name);
    if (!gut)
        throw Fehler(QStringLiteral("Die Tabelle '%1' kann in einer Access-Datei nicht angelegt werden: Ihr Name, der eines Feldes oder die Zahl der "
                                    "Felder ist dort nicht möglich.")
                         .arg(form.name));
    auto tabelle = std::make_unique<Tabelle>();
    tabelle->name = form.name.toStdString();
    tabelle->ersteSeite = datei_.anzahl();
    tabelle->seite = datei_.neu();
    for (const Spaltenform &spalte : form.spalten) {
        Tabelle::Feld feld{spalte.name, spalte.typ, 0, spalteFest, int(tabelle->felder.size())};
        switch (spalte.typ) {
        case Typ::Wahrheit: feld.laenge = 1; break;
        case Typ::Lang: feld.laenge = 4; break;
        case Typ::Text: feld.laenge = uint16_t(2 * std::clamp(spalte.zeichen, 1, groessteTextspalte)); [[fallthrough]];
        case Typ::Memo:
            feld.merkmale = spalteVariabel;
            feld.verdichtet = true;
            break;
        default: feld.laenge = 8;
        }
        tabelle->felder.push_back(std::move(feld));
    }
    if (form.schluessel >= 0)
        tabelle->indexe = {{"PrimaryKey", {form.schluessel}, indexSchluessel, true}};
    tabelle->einrichten(datei_);
    offen_ = std::move(tabelle);
}

void Schreiber::zeile(std::span<const Wert> werte)
{
    zeileSchreiben(*offen_, werte);
}

void Schreiber::zeileSchreiben(Tabelle &t, std::span<const Wert> werte)
{
    const size_t anzahl = t.felder.size(), maskenbytes = (anzahl + 7) / 8;
    // What the variable columns hold, in the rows' order, before anything goes to a page: a row that has no room leaves nothing behind.
    thread_local std::vector<std::vector<uint8_t>> inhalte;
    inhalte.resize(std::max(inhalte.size(), anzahl));
    size_t ohneLange = 2 + t.festeBytes + maskenbytes + (t.variable ? 2 + 2 * (size_t(t.variable) + 1) : 0), kurzeLange = 0;
    for (const int platz : t.nachNummer) {
        const Tabelle::Feld &feld = t.felder[size_t(platz)];
        const Wert &wert = werte[size_t(platz)];
        std::vector<uint8_t> &bytes = inhalte[size_t(platz)];
        bytes.clear();
        if (feld.fest() || wert.gestalt == Gestalt::Leer)
            continue;
        if (feld.typ == Typ::Binaer) {
            bytes.assign(wert.text.begin(), wert.text.end());
            ohneLange += bytes.size();
            continue;
        }
        const bool memo = feld.typ == Typ::Memo;
        if (!textBytes(wert.text, feld.verdichtet, memo ? langwertLaenge / 2 : feld.laenge / 2, bytes))
            throw PasstNicht{platz};
        ohneLange += memo ? langwertKopf : bytes.size();
        kurzeLange += memo && bytes.size() <= laengsterLangwertHier ? bytes.size() : 0;
    }
    if (ohneLange > laengsteZeile)
        throw PasstNicht{-1};
    const size_t hoechstensHier = ohneLange + kurzeLange <= laengsteZeile ? laengsterLangwertHier : 0;

    uint8_t zeile[seitenbytes] = {};
    schreibe16(zeile, uint32_t(anzahl));
    uint8_t maske[(meisteSpalten + 7) / 8] = {};
    uint8_t *const feste = zeile + 2;
    size_t ende = 2 + t.festeBytes;
    uint16_t orte[meisteSpalten + 1];
    size_t variable = 0;
    for (const int platz : t.nachNummer) {
        const Tabelle::Feld &feld = t.felder[size_t(platz)];
        const Wert &wert = werte[size_t(platz)];
        const bool leer = wert.gestalt == Gestalt::Leer;
        if (!leer && (feld.typ != Typ::Wahrheit || wert.ganz))
            maske[feld.nummer / 8] |= uint8_t(1 << (feld.nummer % 8));
        if (feld.fest()) {
            if (leer || feld.typ == Typ::Wahrheit)
                continue;
            uint8_t zahl[8];
            const uint64_t bits = feld.typ == Typ::Doppelt || feld.typ == Typ::Datum ? std::bit_cast<uint64_t>(wert.komma) : uint64_t(wert.ganz);
            schreibe32(zahl, uint32_t(bits));
            schreibe32(zahl + 4, uint32_t(bits >> 32));
            std::memcpy(feste + feld.ort, zahl, feld.laenge);
            continue;
        }
        orte[variable++] = uint16_t(ende);
        const std::vector<uint8_t> &bytes = inhalte[size_t(platz)];
        bool hier = true;
        if (istLangwert(feld.typ) && !leer) {
            hier = bytes.size() <= hoechstensHier || bytes.empty();
            const uint32_t bits = hier ? langwertHier : bytes.size() <= laengsteLangzeile ? langwertEineZeile : 0;
            schreibe32(zeile + ende, uint32_t(bytes.size()) | bits);
            if (!hier)
                schreibe32(zeile + ende + 4, langwertSchreiben(bytes, *t.lang[size_t(platz)]));
            ende += langwertKopf;
        }
        if (hier && !bytes.empty()) {
            std::memcpy(zeile + ende, bytes.data(), bytes.size());
            ende += bytes.size();
        }
    }
    if (t.variable) {
        orte[variable] = uint16_t(ende);
        for (size_t i = variable + 1; i-- > 0; ende += 2)
            schreibe16(zeile + ende, orte[i]);
        schreibe16(zeile + ende, t.variable);
        ende += 2;
    }
    std::memcpy(zeile + ende, maske, maskenbytes);
    const uint32_t zeiger = t.daten->anhaengen({zeile, ende + maskenbytes});
    ++t.zeilen;
    for (size_t i = 0; i < t.indexe.size(); ++i) {
        std::string eintrag;
        for (const int nummer : t.indexe[i].spalten)
            schluesselAnhaengen(eintrag, werte[size_t(t.nachNummer[size_t(nummer)])], t.felder[size_t(t.nachNummer[size_t(nummer)])].typ);
        for (int bits = 24; bits >= 0; bits -= 8)
            eintrag += char(zeiger >> bits);
        t.eintraege[i].push_back(std::move(eintrag));
    }
}

void Schreiber::beenden()
{
    tabelleSchreiben(*offen_);
    katalog_.push_back({offen_->seite, offen_->name});
    offen_.reset();
}

void Schreiber::verwerfen()
{
    datei_.zurueck(offen_->ersteSeite);
    offen_.reset();
}

void Schreiber::abschliessen()
{
    systemtabellenSchreiben();
    kopfSchreiben();
    datei_.schliessen();
}

} // namespace accessdatei
