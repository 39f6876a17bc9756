#include "mdlDruck.h"

#include "filters/Kriterien.h"

#include <QSet>
#include <QString>

#include <array>

namespace {

constexpr Druckausnahme ausnahmenTopf[] = {
    {Druckart::Titel, "BOT_NAME"},
    {Druckart::Zeile, "Quelle"},
    {Druckart::MitSynonymen, "DTNAM", nullptr, u"Synonyme"},
    {Druckart::Bereich, "MINHOEHE", "MAXHOEHE", u"Höhe"},
    {Druckart::Bereich, "BLMINH", "BLMAXH", u"Blütenhöhe"},
    {Druckart::Bereich, "LICHTMIN", "LICHTMAX", u"Beleuchtungsstärke"},
    {Druckart::Bereich, "TEMPMIN", "TEMPMAX", u"Temperatur"},
};
constexpr Druckausnahme ausnahmenStauden[] = {
    {Druckart::Titel, "BOT_NAME"},
    {Druckart::Zeile, "Quelle"},
    {Druckart::MitSynonymen, "DTNAM", nullptr, u"Synonyme"},
    {Druckart::Bereich, "MINHOEHE", "MAXHOEHE", u"Höhe"},
    {Druckart::Bereich, "BLMINH", "BLMAXH", u"Blütenhöhe"},
};
constexpr Druckausnahme ausnahmenGehoelze[] = {
    {Druckart::Titel, "BOT_NAME"},
    {Druckart::Zeile, "Quelle"},
    {Druckart::MitSynonymen, "DTNAM", nullptr, u"Synonyme"},
};
constexpr Druckausnahme ausnahmenFriedhof[] = {
    {Druckart::Titel, "BOT_NAME"},
    {Druckart::Zeile, "gehoelze_Quelle"},
    {Druckart::Zeile, "stauden_Quelle"},
    {Druckart::MitSynonymen, "DTNAM", nullptr, u"Synonyme"},
    {Druckart::Bereich, "friedhof_MINHOEHE", "friedhof_MAXHOEHE", u"Höhe"},
    {Druckart::Bereich, "stauden_MINHOEHE", "stauden_MAXHOEHE", u"Höhe"},
    {Druckart::Bereich, "BLMINH", "BLMAXH", u"Blütenhöhe"},
};
constexpr Druckausnahme ausnahmenSorten[] = {{Druckart::Titel, "BOT_NAME"}};

constexpr Druckzeile kriterienTopf[] = {
    {u"Familie: ", "cmbFamilie"},
    {u"Pflanzentyp: ", "chkTyp"},
    {u"Blütezeit: ", "lblBlMonat"},
    {u"Blütenfarbe: ", "lblBlFarbe"},
    {u"Fruchtzeit: ", "lblFrMonat"},
    {u"Fruchtfarbe: ", "lblFrFarbe"},
    {u"Angebotszeit: ", "lblAngMonat"},
    {u"Haltbarkeit: ", "chkHaltbarkeit"},
    {u"Blattfarbe: ", "chkLaubFarbe"},
    {u"Wuchsform: ", "chkWuchsForm"},
    {u"Höhe: ", "txtMinHoehe"},
    {u"Tageslängenreaktion: ", "chkTageslaenge"},
    {u"Licht: ", "imgLicht"},
    {u"Beleuctungsstärke: ", "txtMinLicht"},
    {u"Temperatur: ", "txtMinTemp"},
    {u"Wasserstand (Hydrokultur): ", "chkWasser"},
    {u"ph-Wert (Hydrokultur)", "chkpH"},
    {u"Verwendung (Hydrokultur): ", "chkVerwHydro"},
    {u"Verwendung: ", "imgVerwendung"},
    {u"mögl. Krankheiten/Schädlinge: ", "txtKrank"},
    {u"Krankheitsanfälligkeit: ", "chkKrank"},
    {u"Höhe der Nachdüngung: ", "chkNachduengung"},
    {u"bot. Name: ", "txtbotName"},
    {u"bot. Synonym: ", "txtSynonym"},
    {u"deutscher Name/Synonym: ", "txtSynonymDeutsch"},
    {u"Sorten: ", "txtSorte"},
    {u"Eigene Bemerkungen: ", "txtBenutzerText"},
    {u"benu.definierte Eigenschaften: ", "sschkBenutzer"},
    {u"Ausbildung: ", "chkAusbildung"},
    {u"Bewertung: ", "optBewertung"},
};

constexpr Druckzeile kriterienStauden[] = {
    {u"Familie: ", "cmbFamilie"},
    {u"", "imgEigen", {}, 5, 5},
    {u"", "imgEigen", u", ", 1, 4},
    {u"Blütezeit: ", "lblBlMonat"},
    {u"Blütenfarbe: ", "lblBlFarbe"},
    {u"Blüten-Höhe: ", "txtMinHoehe"},
    {u"Fruchtzeit: ", "lblFrMonat"},
    {u"Fruchtfarbe: ", "lblFrFarbe"},
    {u"Blattfarbe: ", "chkLaubFarbe"},
    {u"Herbstfärbung: ", "lblHfFarbe"},
    {u"Blatt-Höhe: ", "txtBlattMinHoehe"},
    {u"Bodenart: ", "chkBodenArt"},
    {u"Bodenfeuchte: ", "chkBodenfeuchte"},
    {u"pH - Boden: ", "chkKalk"},
    {u"Nährstoffbedarf: ", "chkNaehrstoff"},
    {u"Licht: ", "imgLicht"},
    {u"Pflanzentyp: ", "optTyp"},
    {u"Kennziffer: ", "txtKennziffer"},
    {u"Lebensraum: ", "chkLebensraum"},
    {u"bot. Name: ", "txtbotName"},
    {u"bot. Synonym: ", "txtSynonym"},
    {u"deutscher Name/Synonym: ", "txtSynonymDeutsch"},
    {u"Sorten: ", "txtSorte"},
    {u"Bemerkung (Benutzer): ", "txtBenutzerText"},
    {u"benu.definierte Eigenschaften: ", "sschkBenutzer"},
    {u"Ausbildung: ", "chkAusbildung"},
    {u"Bewertung: ", "optBewertung"},
};

constexpr Druckzeile kriterienGehoelze[] = {
    {u"Familie: ", "cmbFamilie"},
    {u"", "imgEigen", {}, 1, 1, u"Laubgehölze"},
    {u"", "imgEigen", u", ", 2, 2, u"Nadelgehölze"},
    {u"Blütezeit: ", "lblBlMonat"},
    {u"Blütenfarbe: ", "lblBlFarbe"},
    {u"Fruchtzeit: ", "lblFrMonat"},
    {u"Fruchtfarbe: ", "lblFrFarbe"},
    {u"Frucht ist ", "chkGenuss"},
    {u"Besondere Merkmale", "chkBesMerkmal"},
    {u"zeitliche Einteilung: ", "chkLaubZeit"},
    {u"Blattfarbe: ", "chkLaubFarbe"},
    {u"Laubaustrieb: ", "lblBtMonat"},
    {u"Wuchsverhalten (Wurzel): ", "chkWurzelwuchs"},
    {u"Empfindlichkeit (Wurzel): ", "chkWurzelEmpf"},
    {u"Bodenart : ", "chkBodenArt"},
    {u"Bodenfeuchte : ", "chkBodenfeuchte"},
    {u"pH-Bereich : ", "chkBodenpH"},
    {u"Bes. Standorteigenschaften : ", "chkBesStandort"},
    {u"Licht : ", "imgLicht"},
    {u"Textsuche (botanischer Name) : ", "txtbotName"},
    {u"Textsuche (botanisches Synonym) : ", "txtSynonym"},
    {u"Textsuche (deutscher Name) : ", "txtSynonymDeutsch"},
    {u"Textsuche (Sorte) : ", "txtSorte"},
    {u"Textsuche (eigene Bemerkung): ", "txtBenutzerText"},
    {u"Größengruppe : ", "chkGroesse"},
    {u"Habitus : ", "chkHabitus"},
    {u"Wuchsgeschwindigkeit : ", "chkWuchsVerh"},
    {u"Verwendung : ", "imgVerwendung"},
    {u"Eigene Bemerkungen: ", "txtBenutzerText"},
    {u"benu.definierte Eigenschaften: ", "sschkBenutzer"},
    {u"Ausbildung: ", "chkAusbildung"},
    {u"Bewertung: ", "optBewertung"},
};

constexpr int letzte = Positionen::groesste;
constexpr QStringView nurLabel = u"";
constexpr Druckzeile kriterienFriedhof[] = {
    {u"Familie: ", "cmbFamilie"},
    {u"Blütezeit: ", "lblBlMonat"},
    {u"Blütenfarbe: ", "lblBlFarbe"},
    {u"Blüten-Höhe: ", "txtMinHoehe"},
    {u"Blüten sind schmückend", "chkBluehSchmuck", {}, 1, letzte, nurLabel},
    {u"Fruchtzeit: ", "lblFrMonat"},
    {u"Fruchtfarbe: ", "lblFrFarbe"},
    {u"Früchte sind schmückend", "chkFruchtSchmuck", {}, 1, letzte, nurLabel},
    {u"Blattfarbe: ", "chkLaubFarbe"},
    {u"zeitliche Einteilung: ", "chkLaubZeit"},
    {u"Blatt-Höhe: ", "txtBlattMinHoehe"},
    {u"Laub ist schmückend", "chkBlattschmuck", {}, 1, letzte, nurLabel},
    {u"Bodenart: ", "chkBodenArt"},
    {u"Bodenfeuchte: ", "chkBodenfeuchte"},
    {u"Boden pH-Wert: ", "chkKalk"},
    {u"Nährstoffbedarf: ", "chkNaehrstoff"},
    {u"Licht : ", "imgLicht"},
    {u"Pflanzentyp : ", "optTyp"},
    {u"Pflanzentyp : ", "chkGhTyp", u", "},
    {u"Pflanzentyp : ", "chkGhLaub", u", ", 1, 1, u"Laubgehölze"},
    {u"Pflanzentyp : ", "chkGhLaub", u", ", 2, 2, u"Nadelgehölze"},
    {u"Habitus: ", "chkHabitus"},
    {u"Grabbeet (eigtl. Grab): ", "chkVerwendung", {}, 1, 9},
    {u"Grabfeld (eigtl. Friedhof): ", "chkVerwendung", u", Grabfeld (eigtl. Friedhof): ", 10, 16},
    {u"Textsuche (botanischer Name) : ", "txtbotName"},
    {u"Textsuche (botanisches Synonym) : ", "txtSynonym"},
    {u"Textsuche (deutscher Name) : ", "txtSynonymDeutsch"},
    {u"Textsuche (Sorte) : ", "txtSorte"},
    {u"Textsuche (eigene Bemerkung): ", "txtBenutzerText"},
    {u"Eigene Bemerkungen: ", "txtBenutzerText"},
    {u"benu.definierte Eigenschaften: ", "sschkBenutzer"},
    {u"Ausbildung: ", "chkAusbildung"},
    {u"Bewertung: ", "optBewertung"},
};

constexpr Druckzeile kriterienApfel[] = {
    {u"Haltbarkeit: ", "ChkHaltbar"},
    {u"Fruchtgröße: ", "ChkFruGro"},
    {u"Form, Längs: ", "ChkFormLaengs"},
    {u"Form, Quer: ", "ChkFormQuer"},
    {u"Fruchtrelief: ", "ChkFruRelief"},
    {u"Aussehen, Griffigkeit: ", "ChkAussGrif"},
    {u"Druckfestigeit: ", "ChkDruckFes"},
    {u"Grundfarbe: ", "ChkGrundFar"},
    {u"Deckfarbe: ", "ChkDeckFarb"},
    {u"Deckfarbe Art: ", "ChkDFArt"},
    {u"Deckfarbe Ausdehnung: ", "ChkDFAusd"},
    {u"Schalenberostung: ", "ChkSchBeros"},
    {u"Reif: ", "ChkReif"},
    {u"Schalenpunkte/-höfe: ", "ChkSchP"},
    {u"Kelchgrube: ", "ChkKGr"},
    {u"Kelchgrubenrelief: ", "ChkKGrRelie"},
    {u"Kelchumgebung: ", "ChkKGrUmgeb"},
    {u"Kelchgrubenberostung: ", "ChkKGrBeros"},
    {u"Kelchgröße: ", "ChkKGroesse"},
    {u"Kelchöffnung: ", "ChkKOeffnun"},
    {u"Kelchblätter: ", "ChkKBlaette"},
    {u"Stiel Länge/Dicke: ", "ChkStLaenge"},
    {u"Stiel Besonderheiten: ", "ChkStBesond"},
    {u"Stielgrubengröße: ", "ChkStGrGroe"},
    {u"Stielgrubenberostung: ", "ChkStGrBero"},
    {u"Kelchröhre: ", "ChkSchKelch"},
    {u"Kernhaus Gefäßbündel: ", "ChkSchGefB"},
    {u"Kernwandform: ", "ChkSchKWFor"},
    {u"Kernwandrisse: ", "ChkSchKWRis"},
    {u"Kerne Anzahl: ", "ChkKernZahl"},
    {u"Kerne Qualität: ", "ChkKernQual"},
    {u"Kerne Länge: ", "ChkKernLaen"},
    {u"Fruchtfleisch Schale: ", "ChkFrFlScha"},
    {u"Fruchtfleisch Farbe: ", "ChkFrFlFarb"},
    {u"Fruchtfleisch Struktur: ", "ChkFrFlStru"},
    {u"Name: ", "txtName"},
    {u"Synonym: ", "txtSynonym"},
    {u"voller Name: ", "txtVName"},
    {u"eigene Bemerkungen: ", "txtBenutzerText"},
    {u"benu.definierte Eigenschaften: ", "sschkBenutzer"},
    {u"Ausbildung: ", "chkAusbildung"},
    {u"Bewertung: ", "optBewertung"},
};

constexpr Druckzeile kriterienObst[] = {
    {u"Obstart: ", "cboObstart"},
    {u"Wuchs: ", "chkWuchs"},
    {u"Blatt: ", "chkBlatt"},
    {u"Fruchtholz: ", "chkFruchtholz"},
    {u"Trieb/Rute: ", "chkTrieb"},
    {u"Unterlage: ", "chkUnterlage"},
    {u"Unempfindlich für: ", "chkUnempfindlich"},
    {u"Empfindlich auf: ", "chkEmpfindlich"},
    {u"Frostempfindlichkeit: ", "chkFrost"},
    {u"Blütezeit/-ort: ", "chkBluete"},
    {u"Als Befruchtersorte: ", "chkBefruchtersorte"},
    {u"Befruchtung: ", "chkBefruchtung"},
    {u"Alternanzneigung: ", "chkAlternanz"},
    {u"Fruchtstand: ", "chkFruchtstand"},
    {u"Fruchtfarbe: ", "chkFruchtfarbe"},
    {u"Grundfarbe: ", "chkGrundfarbe"},
    {u"Deckfarbe: ", "chkDeckfarbe"},
    {u"Fruchthaut/-schale: ", "chkSchale"},
    {u"Fruchtfleisch: ", "ckkfruchtfleisch"},
    {u"Fruchtform: ", "chkFruchtform"},
    {u"Geschmack: ", "chkGeschmack"},
    {u"Ertrag: ", "chkErtrag"},
    {u"Pflückreife: ", "txtPflueckreife"},
    {u"Genussreife: ", "txtGenussreife"},
    {u"Ernte: ", "chkErnte"},
    {u"Transportempfindlichkeit: ", "chkTransport"},
    {u"Verwendung: ", "chkVerwendung"},
    {u"Lagereignung: ", "chkLager"},
    {u"Im Frischluftlager haltbar bis: ", "cboFrischluft"},
    {u"Im Kühllager haltbar bis: ", "cboKuehllager"},
    {u"Im CA-Lager haltbar bis: ", "cboCALager"},
    {u"Lagerkrankheiten: ", "chkLagerkrankheiten"},
    {u"Boden: ", "chkBoden"},
    {u"Klima: ", "chkKlima"},
    {u"Nährstoffbedarf: ", "chkNaehrstoffe"},
    {u"Eignung: ", "chkEignung"},
    {u"Erziehungsform: ", "chkErziehungsform"},
    {u"Name: ", "txtName"},
    {u"Synonym: ", "txtSynonym"},
    {u"Mutanten: ", "txtMutanten"},
    {u"eigene Bemerkungen: ", "txtBenutzerText"},
    {u"benu.definierte Eigenschaften: ", "sschkBenutzer"},
    {u"Ausbildung: ", "chkAusbildung"},
    {u"Bewertung: ", "optBewertung"},
};

constexpr std::array<const Druckbeschreibung *, anzahlSparten> beschreibungen{&DruckTopf,  &DruckStauden, &DruckGehoelze,
                                                                              &DruckApfel, &DruckObst,    &DruckFriedhof};

} // namespace

constinit const Druckbeschreibung DruckTopf{Sparte::Topf, &DL_Topf, ausnahmenTopf, kriterienTopf};
constinit const Druckbeschreibung DruckApfel{Sparte::Apfel, &DL_Apfel, ausnahmenSorten, kriterienApfel};
constinit const Druckbeschreibung DruckStauden{Sparte::Stauden, &DL_Stauden, ausnahmenStauden, kriterienStauden};
constinit const Druckbeschreibung DruckGehoelze{Sparte::Gehoelze, &DL_Gehoelze, ausnahmenGehoelze, kriterienGehoelze};
constinit const Druckbeschreibung DruckObst{Sparte::Obst, &DL_Obst, ausnahmenSorten, kriterienObst};
constinit const Druckbeschreibung DruckFriedhof{Sparte::Friedhof, &DL_Friedhof, ausnahmenFriedhof, kriterienFriedhof};

const Druckbeschreibung *druckbeschreibung(Sparte sparte)
{
    return beschreibungen[size_t(sparte)];
}

QString druckfehler(const Druckbeschreibung &beschreibung)
{
    const QStringView satz = eintrag(beschreibung.sparte).haupttabelle;
    for (const short code : beschreibung.liste->folge)
        if (code < 0 || code >= int(schema::spaltenVon(satz).size()))
            return QStringLiteral("keine Spalte %1").arg(code);
    for (const Druckausnahme &ausnahme : beschreibung.ausnahmen) {
        const auto passt = [&](const char *feld, Art art) {
            const Spalte *spalte = schema::spalteVon(satz, feld);
            return spalte && spalte->art == art;
        };
        bool gut = false;
        switch (ausnahme.art) {
        case Druckart::Titel:
        case Druckart::MitSynonymen: gut = passt(ausnahme.feld, Art::Name) && !ausnahme.feld2; break;
        case Druckart::Zeile: gut = passt(ausnahme.feld, Art::Quelle) && !ausnahme.feld2; break;
        case Druckart::Bereich: gut = passt(ausnahme.feld, Art::Zahl) && passt(ausnahme.feld2, Art::Zahl); break;
        }
        if (!gut)
            return QStringLiteral("%1 passt nicht").arg(QLatin1String(ausnahme.feld));
    }
    const Filterbeschreibung *filter = filterbeschreibung(beschreibung.sparte);
    QSet<QString> gedruckt;
    for (const Druckzeile &zeile : beschreibung.kriterien) {
        if (!filter || !kriteriumNamens(*filter, zeile.control))
            return QStringLiteral("kein Kriterium %1").arg(QLatin1String(zeile.control));
        if (zeile.von < 1 || zeile.von > zeile.bis)
            return QStringLiteral("%1: keine Stellen %2 bis %3").arg(QLatin1String(zeile.control)).arg(zeile.von).arg(zeile.bis);
        gedruckt.insert(QString::fromLatin1(zeile.control));
    }
    for (const Kriterium &kriterium : filter ? filter->kriterien : std::span<const Kriterium>())
        if (kriterium.pruefung != Pruefung::Bild && kriterium.pruefung != Pruefung::Keine
            && !gedruckt.contains(QString::fromLatin1(kriterium.a.control)))
            return QStringLiteral("%1 wird nicht gedruckt").arg(QLatin1String(kriterium.a.control));
    return {};
}
