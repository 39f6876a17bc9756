#pragma once

#include "DruckFeld.h"
#include "Druckfortschritt.h"
#include "Printer.h"
#include "filters/Filterzustand.h"
#include "store/Recordset.h"

#include <array>
#include <optional>

struct Druckbeschreibung;

/// What the print dialog and the printouts read of a plant window.
struct Druckauftrag
{
    Sparte sparte;
    Recordset *pflanzen = nullptr;     ///< stands on the plant on screen and is not moved
    std::shared_ptr<Datenbank> arbeit; ///< synonyms and families
    Filterzustand filter;              ///< the dialog's controls as they are
    bool FilterEin = false, FilterGesetzt = false;
};

/* The printouts of a plant and of a filtered list: the same for every Sparte, led by its description. They write on a Printer;
   no window or device is needed. Errors of the database are thrown. */
class Druck
{
public:
    /// Sets the printer up. Reads SchriftGroesse and leaves the width of head and foot rules in SeitenBreite.
    Druck(Programm &programm, const Druckauftrag &auftrag, Printer &drucker);

    /// The data sheet of the plant on screen. Both return false, with nothing printed, for a Sparte without printouts.
    bool DruckAktuellePflanze();
    /// The criteria of the filter, then the names of all plants.
    bool DruckGefilterteListe();

    /// Labels of the texts that were longer than DruckZeilen can hold and were cut; a text without one is named by its beginning.
    const QStringList &gekuerzt() const { return gekuerzt_; }
    /// Told of the plants of a list while they are laid out.
    Druckfortschritt fortschritt;

    /// Fills DruckZeilen with the text in the printer's font, broken at blanks and line ends: `hoechstens` millimetres wide, and
    /// from CurrentX never beyond the right end of the rules (but 10 mm at least). What has no place is cut with " ...".
    void TextUmbrechen(const QString &text, double hoechstens = textbreite);
    static constexpr double textbreite = 125;
    /// The lines of the last wrapped text, the last one at 1, the first one at DruckZeilenAnzahl; 0 is not used.
    std::array<QString, 101> DruckZeilen;
    int DruckZeilenAnzahl = 0;
    /// Lines counted on the page, up to the list of plants; the line that a break falls upon does not count on the new page.
    int ZeilenZaehler = 0;

private:
    void DruckKopf();
    void DruckFuss();
    void SeitenwechselPflanze();
    void SeitenwechselListe();
    void seiteWechseln(double scaleLeft, double y);

    void schrift(double groesse, bool fett = false, bool kursiv = false);
    /// Whether so many more lines would touch the foot: less paper than the count of lines assumes.
    bool amFuss(int zeilen = 1) const;
    /// Whether the page takes no more line: more than `zeilen` are counted, or the foot is reached.
    bool seiteVoll(int zeilen) const { return ZeilenZaehler > zeilen || amFuss(); }
    /// Wraps an entry; false where there is nothing to print.
    bool umbrechen(const QString &text, const QString &label, double hoechstens = textbreite);

    void titel(const QString &name);
    void zeileUeberBeideSpalten(const QString &text);
    void blatteintrag(const QString &label, const QString &text);

    void listenzeile(const QString &text, bool fett);
    void kriterium(const QString &label, const QString &worte);
    void pflanze(const QString &botanisch, const QString &deutsch);

    Programm &programm_;
    const Druckauftrag &auftrag_;
    Printer &drucker_;
    const SpartenEintrag &sparte_;
    const Druckbeschreibung *beschreibung_;
    Wortquelle worte_;
    QStringList gekuerzt_;
    QString fussname_;           ///< plant that the foot names
    int listenZaehler_ = 0;      ///< lines of plants on the page; the criteria above them do not count
    bool abgeschnitten_ = false; ///< the last text had more lines than there are places
};
