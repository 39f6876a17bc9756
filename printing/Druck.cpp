#include "Druck.h"

#include "Datenblatt.h"
#include "Kriteriendruck.h"
#include "mdlDruck.h"
#include "store/Nebentabellen.h"

#include <algorithm>
#include <cmath>
#include <ranges>
#include <vector>

namespace {

// Millimetres on the page.
constexpr double wertspalte = 65;   // origin of the values of a data sheet
constexpr double labelspalte = -50; // from there
constexpr double listenrand = 20;
constexpr double listeDeutsch = 90; // German names of the list
constexpr double spaltenabstand = 2;
constexpr double kleinsteBreite = 10;
constexpr double kopfhoehe = 20;
constexpr double ersteZeile = 25;  // below the head
constexpr double fussluecke = 5;   // between the foot's text and the number of the page
constexpr double fussabstand = 25; // foot rule to the end of ScaleHeight

// Lines of a page.
constexpr int eintragZeilen = 64; // an entry begins on a page with no more lines than these
constexpr int textZeilen = 65;    // a line within a text
constexpr int listenZeilen = 68;

/// Characters by which a text without a label is named.
constexpr qsizetype namensanfang = 30;

/// Longer than any line: such a text need not be measured as a whole.
constexpr qsizetype nieEineZeile = 1000;

/// Most characters of a word that fit, at least one; a pair of surrogates stays together.
qsizetype passend(QStringView wort, double breite, const Schriftmass &mass)
{
    const auto ganz = [&](qsizetype n) { return n < wort.size() && wort[n].isLowSurrogate() ? n + 1 : n; };
    const auto passt = [&](qsizetype n) { return mass.breite(wort.left(ganz(n)).toString()) <= breite; };
    // What takes no room would be measured over and over.
    if (passt(wort.size()))
        return wort.size();
    const auto anzahlen = std::views::iota(qsizetype(1), wort.size() + 1);
    const qsizetype passende = std::ranges::partition_point(anzahlen, passt) - anzahlen.begin();
    return ganz(std::max<qsizetype>(1, passende));
}

/// Appends the lines of a paragraph, up to `hoechstens` in all: each the longest head that fits, broken at the last blank; a
/// word too long for a line is divided. Blanks at a break belong to no line.
void absatzUmbrechen(const QString &absatz, double breite, const Schriftmass &mass, std::vector<QString> &zeilen, size_t hoechstens)
{
    // Measured as a whole: letters move together beside a blank, too.
    const auto passt = [&](qsizetype von, qsizetype bis) { return bis - von < nieEineZeile && mass.breite(absatz.mid(von, bis - von)) <= breite; };
    if (passt(0, absatz.size())) {
        zeilen.push_back(absatz);
        return;
    }
    qsizetype anfang = 0, ende = 0; // of the line so far
    for (qsizetype wort = 0; wort < absatz.size() && zeilen.size() < hoechstens;) {
        qsizetype wortende = absatz.indexOf(u' ', wort);
        if (wortende < 0)
            wortende = absatz.size();
        if (wortende > wort) {
            if (!passt(anfang, wortende)) {
                if (ende > anfang)
                    zeilen.push_back(absatz.mid(anfang, ende - anfang));
                anfang = wort;
            }
            while (!passt(anfang, wortende) && zeilen.size() < hoechstens) {
                const qsizetype n = passend(QStringView(absatz).mid(anfang, std::min(wortende - anfang, nieEineZeile)), breite, mass);
                zeilen.push_back(absatz.mid(anfang, n));
                anfang += n;
            }
            ende = wortende;
        }
        wort = wortende + 1;
    }
    if (zeilen.size() < hoechstens)
        zeilen.push_back(absatz.mid(anfang, ende - anfang));
}

/// Paragraphs end at CR, LF or both; a line end at the end of the text begins no other one.
QStringList absaetze(QString text)
{
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n').replace(u'\t', u' ');
    if (text.endsWith(u'\n'))
        text.chop(1);
    return text.split(u'\n');
}

} // namespace

Druck::Druck(Programm &programm, const Druckauftrag &auftrag, Printer &drucker)
    : programm_(programm),
      auftrag_(auftrag),
      drucker_(drucker),
      sparte_(eintrag(auftrag.sparte)),
      beschreibung_(druckbeschreibung(auftrag.sparte)),
      worte_{programm, sparte_, auftrag.arbeit}
{
    drucker_.PrintQuality = 300;
    drucker_.ScaleLeft = -seitenrand;
    drucker_.ScaleTop = -seitenrand;
    programm_.SeitenBreite = int(std::lround(drucker_.ScaleWidth() - 25));
}

void Druck::schrift(double groesse, bool fett, bool kursiv)
{
    drucker_.Font = {QStringLiteral("Arial"), groesse, fett, kursiv};
}

void Druck::TextUmbrechen(const QString &text, double hoechstens)
{
    constexpr size_t plaetze = std::tuple_size_v<decltype(DruckZeilen)> - 1;
    DruckZeilenAnzahl = 0;
    abgeschnitten_ = false;
    if (text.isEmpty())
        return;
    const double bisRand = programm_.SeitenBreite + seitenrand + drucker_.ScaleLeft - drucker_.CurrentX;
    const double breite = std::max(kleinsteBreite, std::min(hoechstens, bisRand));
    const Schriftmass &mass = schriftmass(drucker_.Font);
    std::vector<QString> zeilen;
    for (const QString &absatz : absaetze(text)) {
        if (zeilen.size() > plaetze)
            break;
        absatzUmbrechen(absatz, breite, mass, zeilen, plaetze + 1);
    }
    abgeschnitten_ = zeilen.size() > plaetze;
    if (abgeschnitten_) {
        zeilen.resize(plaetze);
        const QString ende = QStringLiteral(" ...");
        QString &letzte = zeilen.back();
        while (!letzte.isEmpty() && mass.breite(letzte + ende) > breite)
            letzte.chop(letzte.back().isLowSurrogate() ? 2 : 1);
        letzte += ende;
    }
    DruckZeilenAnzahl = int(zeilen.size());
    for (size_t i = 0; i < zeilen.size(); ++i)
        DruckZeilen[zeilen.size() - i] = std::move(zeilen[i]);
}

bool Druck::umbrechen(const QString &text, const QString &label, double hoechstens)
{
    TextUmbrechen(text, hoechstens);
    if (text.trimmed().isEmpty())
        DruckZeilenAnzahl = 0;
    if (abgeschnitten_) {
        const QString anfang = text.left(10 * namensanfang).simplified().left(namensanfang).trimmed();
        gekuerzt_ += label.isEmpty() ? anfang + QStringLiteral(" ...") : label;
        gekuerzt_.removeDuplicates(); // a sheet may print a field twice
    }
    return DruckZeilenAnzahl > 0;
}

void Druck::DruckKopf()
{
    const double breite = programm_.SeitenBreite;
    drucker_.DrawWidth = 5;
    drucker_.line(0, 0, breite, 0);
    drucker_.line(breite, 0, breite, kopfhoehe);
    drucker_.line(breite, kopfhoehe, 0, kopfhoehe);
    drucker_.line(0, kopfhoehe, 0, 0);
    schrift(programm_.SchriftGroesse * 1.5, true);
    drucker_.CurrentY = 5;
    drucker_.CurrentX = 50;
    drucker_.Print(QStringLiteral("Pflanzen-Informations-System"));
    drucker_.CurrentX = 50;
    schrift(programm_.SchriftGroesse);
    drucker_.Print(QStringLiteral("der Fachhochschule Lindenhof"));
}

void Druck::DruckFuss()
{
    // Under the head, whatever margin the text above has.
    drucker_.ScaleLeft = -seitenrand;
    schrift(programm_.SchriftGroesse * 2.0 / 3);
    drucker_.CurrentY = drucker_.ScaleHeight() - fussabstand;
    drucker_.line(0, drucker_.CurrentY, programm_.SeitenBreite, drucker_.CurrentY);
    drucker_.CurrentY += 2;
    drucker_.CurrentX = 50;
    drucker_.PrintAnfang(QStringLiteral("Ausdruck von Flox %1  -  \u00A9 FH Lindenhof").arg(programm_.ProgrammVersion));
    drucker_.CurrentX += fussluecke;
    drucker_.PrintSeitenzahl(programm_.SeitenBreite, fussname_);
}

void Druck::seiteWechseln(double scaleLeft, double y)
{
    DruckFuss();
    drucker_.NewPage();
    drucker_.ScaleLeft = scaleLeft;
    drucker_.CurrentX = 0;
    drucker_.CurrentY = y;
    schrift(programm_.SchriftGroesse);
    ZeilenZaehler = 0;
}

void Druck::SeitenwechselPflanze()
{
    seiteWechseln(-wertspalte, 10);
}

void Druck::SeitenwechselListe()
{
    seiteWechseln(-listenrand, 5);
}

bool Druck::amFuss(int zeilen) const
{
    return drucker_.CurrentY + zeilen * drucker_.TextHeight() > drucker_.ScaleHeight() - fussabstand;
}

/* The data sheet. */

bool Druck::DruckAktuellePflanze()
{
    if (!beschreibung_)
        return false;
    ZeilenZaehler = 0;
    DruckKopf();
    drucker_.ScaleLeft = -wertspalte;
    drucker_.CurrentY = ersteZeile;
    if (auftrag_.pflanzen && auftrag_.pflanzen->AbsolutePosition() >= 0)
        fussname_ = auftrag_.pflanzen->Fields(u"BOT_NAME").Text();
    for (const Blatteintrag &eintrag : datenblatt(programm_, auftrag_)) {
        if (drucker_.genug())
            break;
        switch (eintrag.art) {
        case Blatteintrag::Titel: titel(eintrag.text); break;
        case Blatteintrag::Zeile: zeileUeberBeideSpalten(eintrag.text); break;
        case Blatteintrag::Feld: blatteintrag(eintrag.label, eintrag.text); break;
        }
    }
    DruckFuss();
    return true;
}

void Druck::zeileUeberBeideSpalten(const QString &text)
{
    if (text.isEmpty())
        return;
    if (seiteVoll(eintragZeilen))
        SeitenwechselPflanze();
    schrift(programm_.SchriftGroesse);
    drucker_.CurrentX = labelspalte;
    drucker_.Print(text);
    ++ZeilenZaehler;
}

void Druck::titel(const QString &name)
{
    const auto gross = [&] { schrift(programm_.SchriftGroesse * 2, true, true); };
    gross();
    drucker_.CurrentX = 0;
    umbrechen(name, {});
    for (int i = DruckZeilenAnzahl; i >= 1; --i) {
        if (amFuss()) {
            SeitenwechselPflanze();
            gross();
        }
        drucker_.CurrentX = 0;
        drucker_.Print(DruckZeilen[size_t(i)]);
        ++ZeilenZaehler;
    }
}

void Druck::blatteintrag(const QString &label, const QString &text)
{
    schrift(programm_.SchriftGroesse);
    drucker_.CurrentX = 0;
    if (!umbrechen(text, label))
        return;
    const auto beschriften = [&] {
        drucker_.CurrentX = labelspalte;
        schrift(programm_.SchriftGroesse, true);
        drucker_.PrintAnfang(label);
        schrift(programm_.SchriftGroesse);
        drucker_.CurrentX = 0;
    };
    if (seiteVoll(eintragZeilen))
        SeitenwechselPflanze();
    beschriften();
    if (DruckZeilenAnzahl == 1) {
        ++ZeilenZaehler;
        drucker_.Print(QString(DruckZeilen[1]).replace(QStringLiteral("m2"), QStringLiteral("m\u00B2")));
        return;
    }
    for (int i = DruckZeilenAnzahl; i >= 1; --i) {
        ++ZeilenZaehler;
        if (seiteVoll(textZeilen)) {
            SeitenwechselPflanze();
            beschriften();
        }
        drucker_.CurrentX = 0;
        drucker_.Print(DruckZeilen[size_t(i)]);
    }
}

/* The list. */

bool Druck::DruckGefilterteListe()
{
    if (!beschreibung_)
        return false;
    ZeilenZaehler = 0;
    DruckKopf();
    drucker_.ScaleLeft = -listenrand;
    drucker_.CurrentY = ersteZeile;
    listenzeile(QStringLiteral("Filter:"), true);
    kriterium(QStringLiteral("Datenbank: "), sparte_.titel.toString());
    if (const Filterbeschreibung *filter = filterbeschreibung(auftrag_.sparte))
        for (const Kriteriumzeile &zeile : kriterienzeilen(beschreibung_->kriterien, *filter, auftrag_.filter, worte_))
            kriterium(zeile.label, zeile.worte);
    // The heading stays with a plant.
    if (amFuss(3))
        SeitenwechselListe();
    else
        listenzeile(QString(), false);
    listenzeile(QStringLiteral("Pflanzen:"), true);
    if (auftrag_.pflanzen) {
        Recordset &pflanzen = *auftrag_.pflanzen;
        const qsizetype anzahl = qsizetype(pflanzen.Schluesselfolge().size());
        listenZaehler_ = 0;
        for (qsizetype i = 0; i < anzahl && !drucker_.genug(); ++i) {
            if (fortschritt && i % meldeschritt == 0)
                fortschritt(i, anzahl);
            pflanze(pflanzen.textBei(i, u"BOT_NAME"), pflanzen.textBei(i, u"DTNAM"));
        }
    }
    DruckFuss();
    return true;
}

void Druck::listenzeile(const QString &text, bool fett)
{
    if (seiteVoll(eintragZeilen))
        SeitenwechselListe();
    schrift(programm_.SchriftGroesse, fett);
    drucker_.CurrentX = 0;
    drucker_.Print(text);
    schrift(programm_.SchriftGroesse);
    ++ZeilenZaehler;
}

void Druck::kriterium(const QString &label, const QString &worte)
{
    if (seiteVoll(eintragZeilen))
        SeitenwechselListe();
    schrift(programm_.SchriftGroesse, true);
    drucker_.CurrentX = 0;
    if (!label.isEmpty())
        drucker_.PrintAnfang(label.endsWith(u' ') ? label : label + u' ');
    schrift(programm_.SchriftGroesse);
    const double einzug = drucker_.CurrentX;
    if (!umbrechen(worte, label.section(u':', 0, 0))) {
        drucker_.Print(QString()); // the line of a label without words ends here
        ++ZeilenZaehler;
    }
    for (int i = DruckZeilenAnzahl; i >= 1; --i) {
        ++ZeilenZaehler;
        if (seiteVoll(textZeilen))
            SeitenwechselListe();
        drucker_.CurrentX = einzug;
        drucker_.Print(DruckZeilen[size_t(i)]);
    }
}

void Druck::pflanze(const QString &botanisch, const QString &deutsch)
{
    drucker_.CurrentX = 0;
    umbrechen(botanisch, {}, listeDeutsch - spaltenabstand);
    QStringList namen;
    for (int i = DruckZeilenAnzahl; i >= 1; --i)
        namen += DruckZeilen[size_t(i)];
    drucker_.CurrentX = listeDeutsch;
    umbrechen(deutsch, {});
    const int zeilen = std::max(int(namen.size()), DruckZeilenAnzahl);
    // A deleted plant has no lines.
    for (int i = 0; i < zeilen; ++i) {
        // The test belongs to the record before this one; made here, no page stays empty behind the last. Only a plant longer
        // than a page is parted.
        if (i == 0 ? listenZaehler_ > listenZeilen || amFuss(zeilen) : amFuss()) {
            SeitenwechselListe();
            listenZaehler_ = 0;
        }
        const double y = drucker_.CurrentY;
        drucker_.CurrentX = 0;
        drucker_.Print(i < namen.size() ? namen[i] : QString());
        drucker_.CurrentX = listeDeutsch;
        drucker_.CurrentY = y;
        drucker_.Print(i < DruckZeilenAnzahl ? DruckZeilen[size_t(DruckZeilenAnzahl - i)] : QString());
        ++listenZaehler_;
    }
}
