#include "Austausch.h"
#include "Leser.h"
#include "Schreiber.h"
#include "store/Dateien.h"
#include "store/Datenbank.h"
#include "store/Fehler.h"
#include "store/Schema.h"

#include <QDir>
#include <QHashFunctions>

#include <algorithm>
#include <bit>
#include <cmath>

namespace accessdatei {

namespace {

/// Sum of the values of a table, in their order.
class Pruefsumme
{
public:
    void leer() { mischen(1); }
    void zahl(int64_t wert) { mischen(uint64_t(wert) + 2); }
    void kommazahl(double wert) { mischen(std::bit_cast<uint64_t>(wert) + 3); }
    void text(std::string_view wert) { summe_ = qHashBits(wert.data(), wert.size(), summe_ * 31 + wert.size() + 4); }
    void wert(const Wert &w)
    {
        switch (w.gestalt) {
        case Gestalt::Ganzzahl: zahl(w.ganz); break;
        case Gestalt::Kommazahl: kommazahl(w.komma); break;
        case Gestalt::Text: text(w.text); break;
        default: leer();
        }
    }
    bool operator==(const Pruefsumme &) const = default;

private:
    void mischen(uint64_t wert) { summe_ = size_t(std::rotl(summe_ ^ wert, 23) * 0x9E3779B97F4A7C15u); }
    size_t summe_ = 0;
};

struct Geschrieben
{
    QString tabelle;
    qint64 zeilen = 0;
    Pruefsumme summe;
};

/// Longest text that a column of this kind has, as the program writes it; a table whose rows go beyond it gets a wider column.
int zeichenVon(const ::Spalte &spalte)
{
    constexpr int monate = 12, eigen = 5, wahrheit = 5;
    switch (spalte.art) {
    case Art::Flags: return spalte.liste ? std::min(spalte.liste->anzahl(), groessteTextspalte) : groessteTextspalte;
    case Art::Monate: return monate;
    case Art::Eigen: return eigen;
    case Art::Wahrheit: return wahrheit;
    case Art::Quelle: return 1;
    default: return groessteTextspalte;
    }
}

Spaltenform formVon(const QString &tabelle, const QString &name, const QString &typ)
{
    if (typ.startsWith(u"INTEGER"))
        return {name, Typ::Lang, 0};
    if (typ.startsWith(u"NUMERIC") || typ.startsWith(u"REAL"))
        return {name, Typ::Doppelt, 0};
    const std::span<const ::Spalte> spalten = schema::spaltenVon(tabelle);
    const auto spalte =
        std::ranges::find_if(spalten, [&](const ::Spalte &s) { return name.compare(QLatin1String(s.name), Qt::CaseInsensitive) == 0; });
    if (spalte == spalten.end())
        return {name, Typ::Text, groessteTextspalte};
    return spalte->art == Art::Memo ? Spaltenform{name, Typ::Memo, 0} : Spaltenform{name, Typ::Text, zeichenVon(*spalte)};
}

/// One step wider, so that at the end everything fits.
void erweitern(Spaltenform &spalte, const Anweisung &zeile, int stelle)
{
    const Anweisung::Wertart art = zeile.wertart(stelle);
    const bool zahl = art == Anweisung::Wertart::Ganzzahl || art == Anweisung::Wertart::Kommazahl;
    constexpr double genau = 9007199254740992.0; // beyond it a double has no place for every whole number
    if (spalte.typ == Typ::Lang && zahl && std::abs(zeile.kommazahl(stelle)) <= genau)
        spalte.typ = Typ::Doppelt;
    else if (spalte.typ == Typ::Lang || spalte.typ == Typ::Doppelt || (spalte.typ == Typ::Text && spalte.zeichen < groessteTextspalte))
        spalte = {spalte.name, Typ::Text, groessteTextspalte};
    else
        spalte.typ = Typ::Memo;
}

class Ausgeber
{
public:
    Ausgeber(const QString &quelle, const Lauf &lauf) : db_(Datenbank::oeffneFuerSich(quelle)), fortschritt_(lauf, 0)
    {
        db_->Execute(QStringLiteral("BEGIN")); // one state of the database for all tables
        Anweisung &namen = db_->vorbereitet(
            QStringLiteral("SELECT name FROM sqlite_master WHERE type IN ('table', 'view') AND name NOT GLOB 'sqlite_*' ORDER BY lower(name)"));
        while (namen.schritt())
            tabellen_ += namen.text(0);
        double zeilen = 0;
        for (const QString &tabelle : tabellen_) {
            Anweisung &zaehlen = db_->vorbereitet(QStringLiteral("SELECT count(*) FROM \"%1\"").arg(tabelle));
            zeilen += zaehlen.schritt() ? double(zaehlen.zahl(0)) : 0;
            zaehlen.zuruecksetzen();
        }
        fortschritt_.setGanzes(2 * zeilen); // once to write them, once to read them back
    }

    Bericht schreiben(const QString &pfad)
    {
        Schreiber schreiber(pfad);
        for (const QString &tabelle : tabellen_)
            tabelleSchreiben(schreiber, tabelle);
        schreiber.abschliessen();
        return bericht_;
    }

    /// Throws where the file does not hold what was to be written.
    void vergleichen(const QString &pfad)
    {
        const std::unique_ptr<Leser> leser = Leser::ausDatei(pfad, [this](double) { fortschritt_.fragen(zeilen_); });
        bool gleich = leser->tabellen().size() == geschrieben_.size();
        for (size_t i = 0; gleich && i < geschrieben_.size(); ++i) {
            const Tabelle &tabelle = leser->tabellen()[i];
            Pruefsumme summe;
            const Durchgang durchgang = leser->durchlaufen(tabelle, [&](Zeile &zeile) {
                fortschritt_.melden(++zeilen_);
                for (size_t k = 0; k < tabelle.spalten.size(); ++k)
                    summe.wert(zeile.wert(k));
                return true;
            });
            gleich = tabelle.name == geschrieben_[i].tabelle && durchgang.zeilen == geschrieben_[i].zeilen && durchgang.unlesbar == 0
                     && durchgang.schadhafteWerte == 0 && summe == geschrieben_[i].summe;
        }
        if (!gleich)
            throw Fehler(QStringLiteral("Die Access-Datei wurde geschrieben, aber nicht so wieder gelesen. Es ist nichts ersetzt worden."));
        fortschritt_.fragen(zeilen_);
    }

private:
    void tabelleSchreiben(Schreiber &schreiber, const QString &name)
    {
        Tabellenform form{name, {}, schluesselVon(name)};
        Anweisung &zeile = db_->vorbereitet(QStringLiteral("SELECT * FROM \"%1\"").arg(name));
        for (int i = 0; i < zeile.spalten(); ++i)
            form.spalten.push_back(formVon(name, zeile.spaltenname(i), zeile.spaltentyp(i)));
        schluesselPruefen(form);
        const double davor = zeilen_;
        for (;;) {
            schreiber.beginnen(form);
            Geschrieben geschrieben{name, 0, {}};
            const qint64 bereinigt = bericht_.bereinigteTexte;
            try {
                zeilenSchreiben(schreiber, zeile, form, geschrieben);
                schreiber.beenden();
                geschrieben_.push_back(geschrieben);
                Tabellenbericht bericht;
                bericht.tabelle = name;
                bericht.zeilen = geschrieben.zeilen;
                bericht_.tabellen.push_back(bericht);
                return;
            } catch (const PasstNicht &fehler) {
                weiterMachen(form, zeile, fehler.spalte);
            }
            schreiber.verwerfen();
            zeile.zuruecksetzen();
            zeilen_ = davor;
            bericht_.bereinigteTexte = bereinigt;
        }
    }

    int schluesselVon(const QString &name)
    {
        Anweisung &anweisung = db_->vorbereitet(QStringLiteral("SELECT cid FROM pragma_table_info(?) WHERE pk > 0"));
        anweisung.binden(0, name);
        const int stelle = anweisung.schritt() ? int(anweisung.zahl(0)) : -1;
        anweisung.zuruecksetzen();
        return stelle;
    }

    /// Only whole numbers make a key that Access would make the same.
    static void schluesselPruefen(Tabellenform &form)
    {
        if (form.schluessel >= 0 && form.spalten[size_t(form.schluessel)].typ != Typ::Lang)
            form.schluessel = -1;
    }

    /// Makes room for the row that `zeile` stands on: in one column, or, for -1, in the row.
    static void weiterMachen(Tabellenform &form, const Anweisung &zeile, int spalte)
    {
        if (spalte >= 0) {
            erweitern(form.spalten[size_t(spalte)], zeile, spalte);
        } else {
            // A memo takes twelve bytes of a row. First the columns with the longer texts, then all.
            constexpr size_t laenger = 20;
            const auto zuMemo = [&](size_t ab) {
                bool eine = false;
                for (size_t i = 0; i < form.spalten.size(); ++i)
                    if (form.spalten[i].typ == Typ::Text && zeile.bytes(int(i)).size() >= ab) {
                        form.spalten[i].typ = Typ::Memo;
                        eine = true;
                    }
                return eine;
            };
            if (!zuMemo(laenger) && !zuMemo(0))
                throw Fehler(QStringLiteral("Eine Zeile der Tabelle '%1' ist für eine Access-Datei zu lang.").arg(form.name));
        }
        schluesselPruefen(form);
    }

    void zeilenSchreiben(Schreiber &schreiber, Anweisung &zeile, const Tabellenform &form, Geschrieben &geschrieben)
    {
        std::vector<Wert> werte(form.spalten.size());
        std::vector<std::string> bereinigte(form.spalten.size());
        while (zeile.schritt()) {
            fortschritt_.melden(++zeilen_);
            for (size_t i = 0; i < werte.size(); ++i)
                werte[i] = wertVon(zeile, int(i), form.spalten[i].typ, bereinigte[i]);
            schreiber.zeile(werte);
            for (const Wert &wert : werte)
                geschrieben.summe.wert(wert);
            ++geschrieben.zeilen;
        }
    }

    Wert wertVon(const Anweisung &zeile, int stelle, Typ typ, std::string &bereinigt)
    {
        const Anweisung::Wertart art = zeile.wertart(stelle);
        if (art == Anweisung::Wertart::Null)
            return {};
        const bool zahl = art != Anweisung::Wertart::Text;
        if (typ == Typ::Lang) {
            const qint64 ganze = zeile.zahl(stelle);
            if (art != Anweisung::Wertart::Ganzzahl || ganze != int32_t(ganze))
                throw PasstNicht{stelle};
            return {.gestalt = Gestalt::Ganzzahl, .ganz = ganze};
        }
        if (typ == Typ::Doppelt) {
            const double komma = zahl ? zeile.kommazahl(stelle) : 0;
            if (!zahl || (art == Anweisung::Wertart::Ganzzahl && qint64(komma) != zeile.zahl(stelle)))
                throw PasstNicht{stelle};
            return {.gestalt = Gestalt::Kommazahl, .komma = komma};
        }
        return {.gestalt = Gestalt::Text, .text = bereinigen(zeile.bytes(stelle), bereinigt)};
    }

    /// A text that Access can keep: without a mark at its begin, and UTF-8.
    std::string_view bereinigen(std::string_view text, std::string &bereinigt)
    {
        if (std::ranges::all_of(text, [](char zeichen) { return uint8_t(zeichen) < 0x80; }))
            return text.data() ? text : std::string_view("");
        QString gelesen = QString::fromUtf8(text);
        while (gelesen.startsWith(QChar::ByteOrderMark))
            gelesen.remove(0, 1);
        bereinigt = gelesen.toStdString();
        bericht_.bereinigteTexte += bereinigt != text;
        return bereinigt;
    }

    std::shared_ptr<Datenbank> db_;
    Fortschritt fortschritt_;
    QStringList tabellen_;
    std::vector<Geschrieben> geschrieben_;
    double zeilen_ = 0;
    Bericht bericht_;
};

[[noreturn]] void werfen(const QString &ziel, int nummer)
{
    const QString ursache =
        nummer == 0 ? QStringLiteral("Sie würde größer als 2 GB, mehr kann eine Access-Datei nicht aufnehmen.") : dateiursache(nummer);
    throw Fehler(QStringLiteral("Die Datei '%1' kann nicht geschrieben werden: %2").arg(QDir::toNativeSeparators(ziel), ursache));
}

} // namespace

std::optional<Bericht> ausgeben(const QString &quelle, const QString &ziel, const Lauf &lauf)
{
    std::optional<Bericht> bericht;
    try {
        Ausgeber ausgeber(quelle, lauf);
        schreibeSicher(ziel, [&](const QString &neben) {
            bericht = ausgeber.schreiben(neben);
            ausgeber.vergleichen(neben);
        });
    } catch (const Abbruch &) {
        return std::nullopt;
    } catch (const Schreibfehler &fehler) {
        werfen(ziel, fehler.nummer);
    }
    return bericht;
}

} // namespace accessdatei
