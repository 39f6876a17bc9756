#include "Pflanzendaten.h"

#include "store/Bildnamen.h"
#include "store/Bildzeile.h"
#include "store/Recordset.h"
#include "store/Sparten.h"
#include "store/Text.h"
#include "tools/tafeln/Tafelinhalt.h"

#include <QStringList>

#include <cmath>

namespace {

std::shared_ptr<Datenbank> leereDatenbank(const QString &ziel)
{
    std::shared_ptr<Datenbank> db = Datenbank::CreateDatabase(ziel);
    Transaktion transaktion(*db);
    for (const QString &befehl : schema::anlegen())
        db->Execute(befehl);
    transaktion.festschreiben();
    return db;
}

constexpr QStringView quellen[][2] = {
    {u"Zander", u"z"}, {u"spezielle Erklärung", u"s"}, {u"Namenliste Stauden", u"n"}, {u"Namenliste Gehölze", u"g"}, {u"Tulpenregister", u"c"}};

/// Pairs of columns of which the first must not exceed the second.
constexpr QStringView spannen[][2] = {{u"BLMINH", u"BLMAXH"}, {u"MINHOEHE", u"MAXHOEHE"}, {u"LICHTMIN", u"LICHTMAX"}, {u"TEMPMIN", u"TEMPMAX"}};

/// What fits beside a drawing.
constexpr int laengstesMerkmal = 60, meisteMerkmale = 5;

constexpr int groessteNummer = 32767; // number searches convert to 16 bits

int monat(QStringView text)
{
    bool ok = false;
    if (const int zahl = text.toInt(&ok); ok)
        return zahl >= 1 && zahl <= 12 ? zahl : 0;
    for (int p = 1; p <= WL_Monate.anzahl(); ++p)
        if (WL_Monate.wort(p).compare(text, Qt::CaseInsensitive) == 0)
            return p;
    return 0;
}

} // namespace

Pflanzendaten::Pflanzendaten(const QString &ziel, const QString &formen) : formenordner_(formen), db_(leereDatenbank(ziel)), transaktion_(*db_)
{
    for (int r = 1; r <= anzahlEigenschaften; ++r) {
        const QString name = QStringLiteral("Eigenschaft %1").arg(r);
        db_->Execute(QStringLiteral("INSERT INTO Namen_Benutzer_Optionen VALUES (?, ?, ?, ?, ?, ?)"), QVariantList(anzahlSparten, name));
    }
}

QString Pflanzendaten::flagsAus(const QString &worte, const Werteliste &liste)
{
    QString flags(liste.anzahl(), u'0');
    const QStringList teile = worte.split(u',');
    for (qsizetype i = 0; i < teile.size();) {
        // The longest run of parts that is a word: some words hold commas themselves.
        qsizetype bis = teile.size();
        int treffer = 0;
        for (; bis > i && !treffer; --bis) {
            const QString kandidat = teile.mid(i, bis - i).join(u',').trimmed();
            for (int p = 1; p <= liste.anzahl() && !treffer; ++p)
                if (liste.wort(p).trimmed() == kandidat)
                    treffer = p;
        }
        if (!treffer)
            throw Quellfehler{QStringLiteral("unbekanntes Wort \"%1\"").arg(teile[i].trimmed())};
        if (flags[treffer - 1] == u'1')
            throw Quellfehler{QStringLiteral("Wort \"%1\" steht doppelt").arg(liste.wort(treffer))};
        flags[treffer - 1] = u'1';
        i = bis + 1;
    }
    return flags;
}

QString Pflanzendaten::nummerAus(const QString &wort, const Werteliste &liste)
{
    const QString flags = flagsAus(wort, liste);
    if (flags.count(u'1') > 1)
        throw Quellfehler{QStringLiteral("mehr als ein Wort: \"%1\"").arg(wort)};
    return QString::number(flags.indexOf(u'1') + 1);
}

QString Pflanzendaten::monateAus(const QString &text)
{
    QString flags(12, u'0');
    for (const QString &teil : text.split(u',')) {
        const QStringList grenzen = teil.split(u'-');
        const int von = monat(grenzen.first().trimmed());
        const int bis = monat(grenzen.last().trimmed());
        if (!von || !bis || grenzen.size() > 2)
            throw Quellfehler{QStringLiteral("kein Monat: \"%1\"").arg(teil.trimmed())};
        for (int m = von;; m = m % 12 + 1) {
            flags[m - 1] = u'1';
            if (m == bis)
                break;
        }
    }
    return flags;
}

void Pflanzendaten::aufnehmen(const RecSatz &satz)
{
    if (satz.typ == u"Familien")
        return familie(satz);
    const Tabelle *tabelle = schema::haupttabelle(satz.typ);
    if (!tabelle)
        satz.falsch(satz.zeile(), QStringLiteral("unbekannte Satzart \"%1\"").arg(satz.typ));
    pflanze(satz, *tabelle);
}

void Pflanzendaten::familie(const RecSatz &satz)
{
    const RecFeld *nummer = satz.feld(u"FAMILIE");
    const RecFeld *name = satz.feld(u"FAMNAME");
    bool ok = false;
    const int zahl = nummer ? nummer->wert.toInt(&ok) : 0;
    const RecFeld *gattungen = satz.feld(u"GATTUNGEN");
    if (!ok || !name || satz.felder.size() != (gattungen ? 3 : 2))
        satz.falsch(satz.zeile(), QStringLiteral("eine Familie hat FAMILIE (Nummer), FAMNAME und sonst höchstens GATTUNGEN"));
    const QString kurz = name->wert.section(u' ', 0, 0);
    if (familien_.contains(kurz) || familien_.values().contains(zahl))
        satz.falsch(satz.zeile(), QStringLiteral("Familie %1 oder ihre Nummer %2 steht doppelt").arg(kurz).arg(zahl));
    familien_.insert(kurz, zahl);
    if (gattungen)
        regeln_.gattungen(satz, *gattungen, kurz);
    db_->Execute(QStringLiteral("INSERT INTO Familien VALUES (?, ?)"), {zahl, name->wert});
}

QVariant Pflanzendaten::wert(const RecSatz &satz, const RecFeld &feld, const Spalte &spalte)
{
    const auto falsch = [&](const QString &was) { satz.falsch(feld.zeile, feld.name + QStringLiteral(": ") + was); };
    try {
        switch (spalte.art) {
        case Art::Flags: return flagsAus(feld.wert, *spalte.liste);
        case Art::Nummer: return nummerAus(feld.wert, *spalte.liste);
        case Art::Monate: return monateAus(feld.wert);
        case Art::Literatur: {
            QString flags(schema::anzahlWerke, u'0');
            for (const QString &teil : feld.wert.split(u',')) {
                const int werk = teil.trimmed().toInt();
                if (werk < 1 || werk > schema::anzahlWerke)
                    falsch(QStringLiteral("kein Werk: \"%1\"").arg(teil.trimmed()));
                if (flags[werk - 1] == u'1')
                    falsch(QStringLiteral("Werk %1 steht doppelt").arg(werk));
                flags[werk - 1] = u'1';
            }
            return flags;
        }
        case Art::Wahrheit:
            if (feld.wert != u"ja" && feld.wert != u"nein")
                falsch(QStringLiteral("weder ja noch nein: \"%1\"").arg(feld.wert));
            return feld.wert == u"ja" ? QStringLiteral("True") : QStringLiteral("False");
        case Art::Zahl: {
            const std::optional<double> zahl = zahlLesen(feld.wert);
            if (!zahl)
                falsch(QStringLiteral("keine Zahl: \"%1\"").arg(feld.wert));
            return *zahl == std::floor(*zahl) ? QVariant(qint64(*zahl)) : QVariant(*zahl);
        }
        case Art::Schluessel:
        case Art::Bewertung:
        case Art::Ganzzahl: {
            bool ok = false;
            const qint64 zahl = feld.wert.toLongLong(&ok);
            if (!ok || zahl < 1 || zahl > (spalte.art == Art::Schluessel ? groessteNummer : 9))
                falsch(QStringLiteral("unzulässige Nummer: \"%1\"").arg(feld.wert));
            return zahl;
        }
        case Art::Familie: {
            const auto nummer = familien_.constFind(feld.wert.section(u' ', 0, 0));
            if (nummer == familien_.cend())
                falsch(QStringLiteral("unbekannte Familie \"%1\"").arg(feld.wert));
            return *nummer;
        }
        case Art::Quelle:
            for (const auto &[wort, buchstabe] : quellen)
                if (feld.wert == wort)
                    return buchstabe.toString();
            falsch(QStringLiteral("unbekannte Quelle \"%1\"").arg(feld.wert));
            return {};
        case Art::Name:
        case Art::Text:
        case Art::Memo:
        case Art::Eigen:
        case Art::Code: return feld.wert;
        }
    } catch (const Quellfehler &fehler) {
        if (fehler.text.startsWith(satz.datei))
            throw;
        falsch(fehler.text);
    }
    return {};
}

void Pflanzendaten::pflanze(const RecSatz &satz, const Tabelle &tabelle)
{
    const QLatin1String tabellenname(tabelle.name);
    QStringList spalten, marken;
    QVariantList werte;
    QHash<QString, double> zahlen;
    QHash<QString, QString> gesetzt; // column and what it stores
    qint64 nummer = 0;
    QStringList merkmale;
    QString name;
    std::vector<std::pair<QString, QString>> synonyme;
    for (const RecFeld &feld : satz.felder) {
        if (feld.wert.isEmpty())
            satz.falsch(feld.zeile, QStringLiteral("%1 ist leer").arg(feld.name));
        if (feld.name == u"SYN_BOT" || feld.name == u"SYN_DT") {
            synonyme.emplace_back(feld.name == u"SYN_BOT" ? QStringLiteral("Botanisch") : QStringLiteral("Deutsch"), feld.wert);
            continue;
        }
        if (feld.name == u"MERKMAL") {
            // For the plate alone: the tables have no column for it.
            if (feld.wert.size() > laengstesMerkmal)
                satz.falsch(feld.zeile, QStringLiteral("MERKMAL hat mehr als %1 Zeichen").arg(laengstesMerkmal));
            merkmale += feld.wert;
            if (merkmale.size() > meisteMerkmale)
                satz.falsch(feld.zeile, QStringLiteral("mehr als %1 Merkmale").arg(meisteMerkmale));
            continue;
        }
        const Spalte *spalte = tabelle.spalte(feld.name);
        if (!spalte)
            satz.falsch(feld.zeile, QStringLiteral("unbekanntes Feld \"%1\"").arg(feld.name));
        const QString spaltenname = QString::fromLatin1(spalte->name);
        if (spaltenname.startsWith(u"benu_", Qt::CaseInsensitive))
            satz.falsch(feld.zeile, QStringLiteral("%1 gehört dem Benutzer").arg(feld.name));
        if (gesetzt.contains(spaltenname))
            satz.falsch(feld.zeile, QStringLiteral("%1 steht doppelt").arg(feld.name));
        const QVariant inhalt = wert(satz, feld, *spalte);
        gesetzt.insert(spaltenname, inhalt.toString());
        if (spalte->art == Art::Schluessel)
            nummer = inhalt.toLongLong();
        if (spalte->art == Art::Zahl)
            zahlen.insert(spaltenname, inhalt.toDouble());
        if (spaltenname == u"BOT_NAME")
            name = feld.wert;
        spalten += u'"' + spaltenname + u'"';
        marken += QStringLiteral("?");
        werte += inhalt;
    }
    for (const char *pflicht : {"ARTNR", "BOT_NAME", "bewertung"})
        if (!gesetzt.contains(QString::fromLatin1(pflicht)))
            satz.falsch(satz.zeile(), QStringLiteral("%1 fehlt").arg(QLatin1String(pflicht)));
    for (const auto &[min, max] : spannen)
        if (zahlen.contains(min.toString()) && zahlen.contains(max.toString()) && zahlen[min.toString()] > zahlen[max.toString()])
            satz.falsch(satz.feld(min)->zeile, QStringLiteral("%1 liegt über %2").arg(min, max));
    regeln_.pruefen(satz, tabelle, gesetzt);
    const QString eindeutig = tabellenname + QStringLiteral(" %1");
    if (nummern_.contains(eindeutig.arg(nummer)))
        satz.falsch(satz.feld(u"ARTNR")->zeile, QStringLiteral("Nummer %1 steht doppelt").arg(nummer));
    if (namen_.contains(eindeutig.arg(name)))
        satz.falsch(satz.zeile(), QStringLiteral("Pflanze %1 steht doppelt").arg(name));
    nummern_.insert(eindeutig.arg(nummer));
    namen_.insert(eindeutig.arg(name));

    for (const Sammlung &sammlung : sammlungen())
        if (sammlung.tabelle == tabellenname)
            bildnamePruefen(satz, name);

    spalten += QStringLiteral("Benu_Aenderung");
    marken += QStringLiteral("1");
    db_->Execute(QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)").arg(tabellenname, spalten.join(u','), marken.join(u',')), werte);
    for (const auto &[sprache, synonym] : synonyme) {
        const QString tab = tabellenname + QStringLiteral("_Synonyme_") + sprache;
        if (!db_->hatTabelle(tab))
            satz.falsch(satz.zeile(), QStringLiteral("%1 kennt keine Synonymtabelle").arg(tabellenname));
        db_->Execute(QStringLiteral("INSERT INTO %1 VALUES (?, ?)").arg(tab), {nummer, synonym});
    }
    merkmale_.insert(tabellenname + u' ' + QString::number(nummer), merkmale);
    ++anzahl_[tabellenname];
}

void Pflanzendaten::bildnamePruefen(const RecSatz &satz, const QString &name)
{
    const QString stamm = bildname(name);
    if (stamm.isEmpty())
        satz.falsch(satz.zeile(), QStringLiteral("%1 ergibt keinen Bildnamen").arg(name));
    const QString eindeutig = satz.typ + u' ' + stamm;
    if (bildnamen_.contains(eindeutig))
        satz.falsch(satz.zeile(), QStringLiteral("Bildname %1 steht doppelt").arg(stamm));
    bildnamen_.insert(eindeutig);
}

void Pflanzendaten::bilderEintragen()
{
    const Formen formen = Formen::laden(formenordner_);
    for (const Sammlung &sammlung : sammlungen()) {
        const QString befehl =
            QStringLiteral("UPDATE %1_Bilder SET \"%2\" = ?, \"%3\" = ?, \"%4\" = ?, \"%5\" = ? WHERE ARTNR = ?")
                .arg(sammlung.tabelle, bildspalte('G', 1), bildbemerkungsspalte('G', 1), bildspalte('D', 1), bildbemerkungsspalte('D', 1));
        for (const Datensatz &pflanze : Datensatz::alle(*db_, sammlung.tabelle)) {
            const QString stamm = bildname(pflanze.name());
            const QString schluessel = sammlung.tabelle.toString() + u' ' + pflanze.text(u"ARTNR");
            const Steckbrief s(pflanze, sammlung, formen, merkmale_.value(schluessel));
            db_->Execute(befehl, {stamm, gesamttitel(s), stamm + QStringLiteral("-detail"), detailtitel(s), pflanze.text(u"ARTNR").toLongLong()});
        }
    }
}

/// Rows that are taken from another collection name that one's plates.
void Pflanzendaten::bilderDerHerkunft()
{
    QStringList spalten;
    for (const char haelfte : {'G', 'D'})
        spalten += {QStringLiteral("\"%1\"").arg(bildspalte(haelfte, 1)), QStringLiteral("\"%1\"").arg(bildbemerkungsspalte(haelfte, 1))};
    for (const SpartenEintrag &zeile : alleSparten())
        for (const Herkunft &herkunft : zeile.herkuenfte)
            db_->Execute(QStringLiteral(
                             "UPDATE %1 SET (%2) = (SELECT %2 FROM %3 WHERE %3.ARTNR = %1.ARTNR) WHERE ARTNR IN (SELECT ARTNR FROM %4 WHERE %5 = ?)")
                             .arg(zeile.bildtabelle, spalten.join(QStringLiteral(", ")), eintrag(herkunft.sparte).bildtabelle, zeile.haupttabelle,
                                  QLatin1String(zeile.herkunftsfeld)),
                         {herkunft.wert.toString()});
}

void Pflanzendaten::abschliessen()
{
    for (const Tabelle &tabelle : schema::haupttabellen())
        db_->Execute(QStringLiteral("INSERT INTO %1_Bilder (ARTNR, BotName) SELECT ARTNR, BOT_NAME FROM %1").arg(QLatin1String(tabelle.name)));
    bilderEintragen();
    bilderDerHerkunft();
    transaktion_.festschreiben();
    db_->Execute(QStringLiteral("ANALYZE"));
}
