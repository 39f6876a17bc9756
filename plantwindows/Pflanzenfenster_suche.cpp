#include "Pflanzenfenster.h"

#include "Suchbestand.h"
#include "controls/Geschuetzt.h"

#include <QComboBox>
#include <QKeyEvent>

#include <algorithm>

/* The window's side of its search: when it opens, which plants it can go to, and why not to others. */

namespace {

constexpr size_t anzahlLetzte = 10;
/// A rating of this step and better fits a lower bound of `bewertungVon`, and the other way round.
constexpr int bewertungVon(int stufe)
{
    return 2 * stufe - 1;
}

/// What a key types, where that is a letter and nothing else.
QString buchstabe(const QKeyEvent &ereignis)
{
    const bool allein = !(ereignis.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier | Qt::GroupSwitchModifier));
    const QString text = ereignis.text();
    return allein && text.size() == 1 && text[0].isLetter() ? text : QString();
}

} // namespace

bool Pflanzenfenster::suchenMitTaste(const QKeyEvent &ereignis)
{
    const QString anfang = buchstabe(ereignis);
    if (anfang.isEmpty())
        return false;
    geschuetztAusfuehren(this, [&] {
        aktivMelden();
        sucheOeffnen(anfang);
    });
    return true;
}

Suchbestand &Pflanzenfenster::suchbestand()
{
    if (!suchbestand_)
        suchbestand_ = Suchbestand::fuer(programm_.arbeitsdatenbank(), sparte());
    return *suchbestand_;
}

void Pflanzenfenster::sucheOeffnen(const QString &anfang)
{
    if (beimUeben())
        return;
    datenFordern();
    if (DatenGeaendert)
        BenutzerdatenSpeichern();
    suchbestand().bereiten();
    suchmenge_ = satz_.haupt().Schluesselfolge();
    std::ranges::sort(suchmenge_);
    if (!suche_)
        suche_ = new frmSuche(*this, sparte(), suchbestand_, this);
    suche_->oeffnen(QRect(cboArten_->mapToGlobal(QPoint(0, 0)), cboArten_->size()), anfang, verlauf_.letzte(anzahlLetzte));
}

const Kriterium *Pflanzenfenster::bewertungskriterium() const
{
    const Filterbeschreibung *beschreibung = filterbeschreibung(sparte());
    if (!beschreibung)
        return nullptr;
    const auto kriterium = std::ranges::find(beschreibung->kriterien, Pruefung::Bewertung, &Kriterium::pruefung);
    return kriterium == beschreibung->kriterien.end() ? nullptr : &*kriterium;
}

std::optional<int> Pflanzenfenster::noetigeStufe(int bewertung) const
{
    const Kriterium *kriterium = bewertungskriterium();
    if (!kriterium || !gelaufen_ || bewertung <= 0)
        return std::nullopt;
    const Kriteriumzustand &zustand = gelaufen_->kriterien[size_t(kriterium - filterbeschreibung(sparte())->kriterien.data())];
    const bool mindestens = gewaehlt(kriterium->a, zustand.a, 0);
    const int grenze = bewertungVon(zustand.b.werte.front());
    if (mindestens ? bewertung >= grenze : bewertung <= grenze)
        return std::nullopt;
    return mindestens ? (bewertung + 1) / 2 : (bewertung + 2) / 2;
}

QString Pflanzenfenster::grundDesFehlens(qint64 artnr, int bewertung)
{
    if (std::ranges::binary_search(suchmenge_, artnr))
        return {};
    if (noetigeStufe(bewertung))
        return QStringLiteral("Bewertung %1, nicht in der Auswahl").arg(bewertung);
    return QStringLiteral("nicht in der Auswahl");
}

QString Pflanzenfenster::ratZumFehlen(qint64, int bewertung)
{
    if (const std::optional<int> stufe = noetigeStufe(bewertung))
        return QStringLiteral("Nicht in der Auswahl: Im Filter die Bewertung auf Stufe %1 stellen").arg(*stufe);
    if (FilterGesetzt && FilterEin)
        return QStringLiteral("Nicht in der Auswahl: Mit „Filter ein/aus“ den Filter ausschalten");
    return QStringLiteral("Nicht in der Auswahl");
}

void Pflanzenfenster::gefunden(qint64 artnr)
{
    geschuetztAusfuehren(this, [&] {
        aktivMelden();
        if (!springen(artnr))
            hinweisFuerEineWeile(QStringLiteral("Die Pflanze ist nicht mehr in der Auswahl."));
    });
}

void Pflanzenfenster::nichtErreichbar(const QString &rat)
{
    hinweisFuerEineWeile(rat);
}
