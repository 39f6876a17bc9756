#include "Austausch.h"
#include "Leser.h"
#include "store/Bildzeile.h"
#include "store/Dateien.h"
#include "store/Datenbank.h"
#include "store/Fehler.h"
#include "store/Schema.h"
#include "store/Text.h"

#include <QFileInfo>
#include <QHash>

#include <algorithm>
#include <charconv>
#include <cmath>

namespace accessdatei {

namespace {

constexpr QStringView abfrage = u"Abfrage_Friedhof", benutzernamen = u"Namen_Benutzer_Optionen";
constexpr qint64 zeilenDerBenutzernamen = 5;

/// A column of the program's table and where its values come from.
struct Ziel
{
    QString name;
    bool text = true; ///< else a number
    bool schluessel = false;
    int quelle = -1; ///< place among the file's columns
};

std::vector<Ziel> zieleVon(Datenbank &db, const QString &tabelle)
{
    std::vector<Ziel> ziele;
    const Anweisung &anweisung = db.vorbereitet(QStringLiteral("SELECT * FROM \"%1\"").arg(tabelle));
    for (int i = 0; i < anweisung.spalten(); ++i)
        ziele.push_back({anweisung.spaltenname(i), anweisung.spaltentyp(i) == u"TEXT", false, -1});
    Anweisung &schluessel = db.vorbereitet(QStringLiteral("SELECT name FROM pragma_table_info(?) WHERE pk > 0"));
    schluessel.binden(0, tabelle);
    while (schluessel.schritt())
        std::ranges::find(ziele, schluessel.text(0), &Ziel::name)->schluessel = true;
    return ziele;
}

/// Which column of the program's a column of the file is; -1 for none. Columns of the query go by either spelling of their table.
int zielVon(const QString &tabelle, const QStringList &namen, const QString &spalte)
{
    if (tabelle == abfrage)
        return schema::stelleVon(abfrage, namen, spalte);
    const auto gleich = [&](const QString &name) { return name.compare(spalte, Qt::CaseInsensitive) == 0; };
    const auto gefunden = std::ranges::find_if(namen, gleich);
    return gefunden == namen.end() ? schema::keineSpalte : int(gefunden - namen.begin());
}

bool wirdGelesen(Typ typ)
{
    return typ != Typ::Binaer && typ != Typ::Objekt && typ != Typ::Mehrfach;
}

std::optional<int64_t> ganzzahl(std::string_view text)
{
    int64_t zahl = 0;
    const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), zahl);
    return fehler == std::errc() && ende == text.data() + text.size() ? std::optional(zahl) : std::nullopt;
}

/// A record number, in whatever form a file has it.
std::optional<int64_t> recordnummer(const Wert &wert)
{
    constexpr double groesste = 9e15;
    switch (wert.gestalt) {
    case Gestalt::Ganzzahl: return wert.ganz;
    case Gestalt::Text:
    case Gestalt::Dezimal: return ganzzahl(wert.text);
    case Gestalt::Einfach:
    case Gestalt::Kommazahl:
        if (std::abs(wert.komma) < groesste && std::trunc(wert.komma) == wert.komma)
            return int64_t(wert.komma);
        return std::nullopt;
    case Gestalt::Leer:
    case Gestalt::Wahrheit:
    case Gestalt::Datum:
    case Gestalt::Fremd: return std::nullopt;
    }
    return std::nullopt;
}

/// Puts values of the file into one statement's parameters.
class Binder
{
public:
    Binder(Anweisung &anweisung, size_t parameter) : anweisung_(anweisung), texte_(parameter) {}

    /// A text as the program writes it: a decimal comma, True and False.
    void alsText(int nummer, const Wert &wert)
    {
        switch (wert.gestalt) {
        case Gestalt::Leer:
        case Gestalt::Fremd: anweisung_.nullBinden(nummer); return;
        case Gestalt::Wahrheit: anweisung_.textBinden(nummer, wert.ganz ? "True" : "False"); return;
        case Gestalt::Ganzzahl: eigenen(nummer, std::to_string(wert.ganz)); return;
        case Gestalt::Einfach: eigenen(nummer, mitKomma(zahltext(float(wert.komma)))); return;
        case Gestalt::Kommazahl: eigenen(nummer, mitKomma(zahltext(wert.komma))); return;
        case Gestalt::Dezimal: eigenen(nummer, mitKomma(std::string(wert.text))); return;
        case Gestalt::Datum: eigenen(nummer, datumstext(wert.komma)); return;
        case Gestalt::Text: anweisung_.textBinden(nummer, wert.text); return;
        }
    }
    /// A number; what is none stays the text it is.
    void alsZahl(int nummer, const Wert &wert)
    {
        switch (wert.gestalt) {
        case Gestalt::Wahrheit: anweisung_.zahlBinden(nummer, wert.ganz ? -1 : 0); return;
        case Gestalt::Ganzzahl: anweisung_.zahlBinden(nummer, wert.ganz); return;
        case Gestalt::Kommazahl: anweisung_.kommazahlBinden(nummer, wert.komma); return;
        // Not the many places that a single number has as a double one.
        case Gestalt::Einfach: textAlsZahl(nummer, zahltext(float(wert.komma))); return;
        case Gestalt::Dezimal:
        case Gestalt::Text: textAlsZahl(nummer, wert.text); return;
        case Gestalt::Leer:
        case Gestalt::Datum:
        case Gestalt::Fremd: alsText(nummer, wert); return;
        }
    }
    /// False for a key that cannot be a record number.
    bool binden(int nummer, const Ziel &ziel, const Wert &wert)
    {
        if (ziel.schluessel) {
            const std::optional<int64_t> zahl = recordnummer(wert);
            if (zahl)
                anweisung_.zahlBinden(nummer, *zahl);
            return zahl.has_value();
        }
        ziel.text ? alsText(nummer, wert) : alsZahl(nummer, wert);
        return true;
    }

private:
    static std::string mitKomma(std::string zahl)
    {
        std::ranges::replace(zahl, '.', ',');
        return zahl;
    }
    void eigenen(int nummer, std::string text)
    {
        texte_[size_t(nummer)] = std::move(text);
        anweisung_.textBinden(nummer, texte_[size_t(nummer)]);
    }
    void textAlsZahl(int nummer, std::string_view text)
    {
        if (const auto ganze = ganzzahl(text))
            anweisung_.zahlBinden(nummer, *ganze);
        else if (const auto zahl = zahlLesen(text))
            anweisung_.kommazahlBinden(nummer, *zahl);
        else
            eigenen(nummer, std::string(text));
    }

    Anweisung &anweisung_;
    std::vector<std::string> texte_; ///< live until the statement has run
};

QString platzhalter(qsizetype anzahl)
{
    return QStringList(anzahl, QStringLiteral("?")).join(u',');
}

class Einleser
{
public:
    Einleser(Leser &leser, const QString &ziel, const Lauf &lauf)
        : leser_(leser), db_(Datenbank::legeFuerSichAn(ziel)), fortschritt_(lauf, seiten(leser))
    {
    }

    Bericht alles()
    {
        QStringList indexe;
        db_->Execute(QStringLiteral("PRAGMA foreign_keys = OFF"));
        QStringList befehle = schema::anlegen();
        for (; befehle.constFirst().startsWith(u"PRAGMA"); befehle.removeFirst())
            db_->Execute(befehle.constFirst());
        Transaktion transaktion(*db_);
        for (const QString &befehl : befehle) {
            // An index is quicker to make than to keep up.
            if (befehl.startsWith(u"CREATE INDEX"))
                indexe += befehl;
            else
                db_->Execute(befehl);
        }
        const QStringList eigene = db_->TableDefs() + QStringList{abfrage.toString()};
        QStringList fehlende = db_->TableDefs();
        for (const Tabelle &tabelle : leser_.tabellen()) {
            const auto name = std::ranges::find_if(eigene, [&](const QString &n) { return n.compare(tabelle.name, Qt::CaseInsensitive) == 0; });
            if (name == eigene.end()) {
                bericht_.fremdeTabellen += tabelle.name;
            } else {
                bericht_.tabellen.push_back(tabelleEinlesen(tabelle, *name));
                fehlende.removeOne(*name);
            }
            davor_ += double(tabelle.seiten.size());
        }
        for (const QString &befehl : indexe) {
            fortschritt_.fragen(davor_);
            db_->Execute(befehl);
        }
        benutzernamenAuffuellen();
        fortschritt_.fragen(davor_);
        transaktion.festschreiben();
        bericht_.fehlendeTabellen = fehlende;
        bericht_.verknuepfteTabellen = leser_.verknuepfungen();
        bericht_.unlesbareTabellen = leser_.unlesbareTabellen();
        return bericht_;
    }

private:
    static double seiten(const Leser &leser)
    {
        double summe = 0;
        for (const Tabelle &tabelle : leser.tabellen())
            summe += double(tabelle.seiten.size());
        return summe;
    }

    /// The query's rows as they are: a table takes its place.
    void abfrageErsetzen()
    {
        if (!db_->istAbfrage(abfrage.toString()))
            return; // a file may name it twice
        const QString spalten = abfragespalten(db_->vorbereitet(QStringLiteral("SELECT * FROM %1").arg(abfrage)));
        db_->Execute(QStringLiteral("DROP VIEW %1").arg(abfrage));
        db_->Execute(QStringLiteral("CREATE TABLE %1 %2").arg(abfrage, spalten));
    }

    Tabellenbericht tabelleEinlesen(const Tabelle &tabelle, const QString &name)
    {
        if (name == abfrage)
            abfrageErsetzen();
        std::vector<Ziel> ziele = zieleVon(*db_, name);
        QStringList namen;
        for (const Ziel &ziel : ziele)
            namen += ziel.name;
        Tabellenbericht bericht;
        bericht.tabelle = name;
        const bool einBildJeZeile =
            namen.contains(bildspalte('G', 1)) && tabelle.stelleVon(bildspalte('G', 1)) < 0 && tabelle.stelleVon(u"BILD") >= 0;
        for (size_t i = 0; i < tabelle.spalten.size(); ++i) {
            const Spalte &spalte = tabelle.spalten[i];
            if (einBildJeZeile
                && (spalte.name.compare(u"BILD", Qt::CaseInsensitive) == 0 || spalte.name.compare(u"BEMERKUNG", Qt::CaseInsensitive) == 0))
                continue;
            const int ziel = zielVon(name, namen, spalte.name);
            if (ziel < 0 || !wirdGelesen(spalte.typ) || ziele[size_t(ziel)].quelle >= 0)
                bericht.fremdeFelder += spalte.name;
            else
                ziele[size_t(ziel)].quelle = int(i);
        }
        const QStringList bilder = einBildJeZeile ? bilderspalten() : QStringList();
        for (const Ziel &ziel : ziele)
            if (ziel.quelle < 0 && !bilder.contains(ziel.name))
                bericht.fehlendeFelder += ziel.name;
        // A row without a number is nobody's.
        if (std::ranges::any_of(ziele, [](const Ziel &ziel) { return ziel.schluessel && ziel.quelle < 0; }))
            return bericht;
        std::erase_if(ziele, [](const Ziel &ziel) { return ziel.quelle < 0; });
        if (ziele.empty())
            return bericht;
        einBildJeZeile ? bilderEinlesen(tabelle, ziele, bericht) : zeilenEinlesen(tabelle, ziele, bericht);
        return bericht;
    }

    void zaehlen(const Durchgang &durchgang, Tabellenbericht &bericht)
    {
        bericht.unlesbar = durchgang.unlesbar;
        bericht.unlesbarePlaetze = durchgang.unlesbarePlaetze;
        bericht.schadhafteWerte = durchgang.schadhafteWerte;
    }

    static QString einfuegen(const Tabellenbericht &bericht, const std::vector<Ziel> &ziele)
    {
        QStringList namen;
        for (const Ziel &ziel : ziele)
            namen += u'"' + ziel.name + u'"';
        return QStringLiteral("INSERT OR IGNORE INTO \"%1\" (%2) VALUES (%3)").arg(bericht.tabelle, namen.join(u','), platzhalter(namen.size()));
    }

    void zeilenEinlesen(const Tabelle &tabelle, const std::vector<Ziel> &ziele, Tabellenbericht &bericht)
    {
        Anweisung &anweisung = db_->vorbereitet(einfuegen(bericht, ziele));
        Binder binder(anweisung, ziele.size());
        const Durchgang durchgang = leser_.durchlaufen(tabelle, [&](Zeile &zeile) {
            fortschritt_.melden(davor_ + double(zeile.seitenDavor()));
            bool gut = true;
            for (size_t i = 0; i < ziele.size(); ++i)
                gut = binder.binden(int(i), ziele[i], zeile.wert(size_t(ziele[i].quelle))) && gut;
            if (gut)
                (void)anweisung.schritt();
            const bool gekommen = gut && db_->geaendert() == 1;
            ++(gekommen ? bericht.zeilen : bericht.abgewiesen);
            return true;
        });
        zaehlen(durchgang, bericht);
        anweisung.zuruecksetzen();
    }

    /// One row a picture: the k-th of a plant is its slot k.
    void bilderEinlesen(const Tabelle &tabelle, const std::vector<Ziel> &ziele, Tabellenbericht &bericht)
    {
        const size_t bild = size_t(tabelle.stelleVon(u"BILD"));
        const int bemerkung = tabelle.stelleVon(u"BEMERKUNG");
        const auto schluessel = std::ranges::find(ziele, true, &Ziel::schluessel);
        const QString einfuegung = einfuegen(bericht, ziele);
        QHash<qint64, int> bilderVon;
        const Durchgang durchgang = leser_.durchlaufen(tabelle, [&](Zeile &zeile) {
            fortschritt_.melden(davor_ + double(zeile.seitenDavor()));
            const std::optional<int64_t> artnr = recordnummer(zeile.wert(size_t(schluessel->quelle)));
            if (!artnr) {
                ++bericht.abgewiesen;
                return true;
            }
            const int platz = bilderVon[*artnr]++;
            // So many statements take turns that none is kept.
            if (platz == 0) {
                Anweisung &neue = db_->vorbereitet(einfuegung);
                Binder binder(neue, ziele.size());
                for (size_t i = 0; i < ziele.size(); ++i)
                    (void)binder.binden(int(i), ziele[i], zeile.wert(size_t(ziele[i].quelle)));
                (void)neue.schritt();
            }
            if (platz >= groessteBilderzahl) {
                ++bericht.ueberzaehligeBilder;
                return true;
            }
            const char haelfte = platz < bilderJeHaelfte ? 'G' : 'D';
            const int stelle = platz % bilderJeHaelfte + 1;
            Anweisung &setzen = db_->vorbereitet(QStringLiteral("UPDATE \"%1\" SET \"%2\" = ?, \"%3\" = ? WHERE ARTNR = ?")
                                                     .arg(bericht.tabelle, bildspalte(haelfte, stelle), bildbemerkungsspalte(haelfte, stelle)));
            Binder binder(setzen, 3);
            binder.alsText(0, zeile.wert(bild));
            binder.alsText(1, bemerkung < 0 ? Wert() : zeile.wert(size_t(bemerkung)));
            setzen.zahlBinden(2, *artnr);
            (void)setzen.schritt();
            ++bericht.zeilen;
            return true;
        });
        zaehlen(durchgang, bericht);
    }

    /// The program has a row for each of the five properties.
    void benutzernamenAuffuellen()
    {
        Anweisung &zaehlen = db_->vorbereitet(QStringLiteral("SELECT count(*) FROM %1").arg(benutzernamen));
        const qint64 da = zaehlen.schritt() ? zaehlen.zahl(0) : 0;
        zaehlen.zuruecksetzen();
        for (qint64 i = da; i < zeilenDerBenutzernamen; ++i)
            db_->Execute(QStringLiteral("INSERT INTO %1 DEFAULT VALUES").arg(benutzernamen));
    }

    Leser &leser_;
    std::shared_ptr<Datenbank> db_;
    Fortschritt fortschritt_;
    double davor_ = 0;
    Bericht bericht_;
};

} // namespace

std::optional<Bericht> einlesen(const QString &quelle, const QString &ziel, const Lauf &lauf, int codeseite)
{
    constexpr int gelesen = 10; // percent: the rows take most of the time
    std::optional<Bericht> bericht;
    try {
        Fortschritt fortschritt(lauf.abschnitt(0, gelesen), 1);
        const std::unique_ptr<Leser> leser = Leser::ausDatei(quelle, [&](double anteil) { fortschritt.fragen(anteil); });
        if (codeseite)
            (void)leser->setCodeseite(codeseite);
        schreibeSicher(ziel, [&](const QString &neben) {
            try {
                bericht = Einleser(*leser, neben, lauf.abschnitt(gelesen, 100)).alles();
            } catch (const Fehler &fehler) {
                // The user knows the file by its last name.
                throw Fehler(QString(fehler.text()).replace(QFileInfo(neben).fileName(), QFileInfo(ziel).fileName()));
            }
        });
    } catch (const Abbruch &) {
        return std::nullopt;
    }
    return bericht;
}

} // namespace accessdatei
