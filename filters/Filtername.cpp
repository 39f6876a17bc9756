#include "Filtername.h"

#include <algorithm>

namespace {

constexpr qsizetype laengsterName = 80;

QString ohneDoppelpunkt(const Filterbeschreibung &beschreibung, const Kriterium &kriterium)
{
    return titelVon(beschreibung, kriterium).remove(u':').trimmed();
}

/// Name of the tab where a label alone would be ambiguous; else empty.
QString unterscheidung(const Filterbeschreibung &beschreibung, const Kriterium &kriterium)
{
    const QString titel = ohneDoppelpunkt(beschreibung, kriterium);
    const auto gleich = [&](const Kriterium &k) { return ohneDoppelpunkt(beschreibung, k) == titel; };
    const bool einzig = std::ranges::count_if(beschreibung.kriterien, gleich) == 1;
    return einzig || kriterium.reiter < 0 ? QString() : beschreibung.reiter[size_t(kriterium.reiter)].toString();
}

QStringList gewaehlteWorte(const Kriterium &k, const Steuerteil &teil, const Teilzustand &zustand, const Elementwort &wort)
{
    QStringList worte;
    for (int i = 0; i < teil.elemente(); ++i)
        if (gewaehlt(teil, zustand, i))
            worte += wort(k, teil, i);
    return worte;
}

QString worte(const Kriterium &k, const Kriteriumzustand &z, const Elementwort &wort)
{
    switch (k.pruefung) {
    case Pruefung::Familie:
    case Pruefung::Gleich:
    case Pruefung::Enthaelt:
    case Pruefung::SynonymBotanisch:
    case Pruefung::SynonymDeutsch: return z.a.text;
    case Pruefung::WortImText:
        if (k.a.art == Steuerung::Liste)
            return z.a.text;
        [[fallthrough]];
    case Pruefung::Bild:
    case Pruefung::AlleWahr:
    case Pruefung::EinsWahr:
    case Pruefung::Flags:
    case Pruefung::FlagsNachWort:
    case Pruefung::FlagsOderWahr: {
        const QStringList alle = gewaehlteWorte(k, k.a, z.a, wort) + gewaehlteWorte(k, k.b, z.b, wort);
        return alle.join(u'+');
    }
    case Pruefung::Bereich:
        if (z.a.text == k.a.vorgabe)
            return QStringLiteral("bis %1 %2").arg(z.b.text, k.einheit);
        if (z.b.text == k.b.vorgabe)
            return QStringLiteral("ab %1 %2").arg(z.a.text, k.einheit);
        return QStringLiteral("%1-%2 %3").arg(z.a.text, z.b.text, k.einheit);
    case Pruefung::Keine: break;
    case Pruefung::Bewertung:
        return QStringLiteral("%1 %2").arg(gewaehlt(k.a, z.a, 0) ? QStringLiteral("ab") : QStringLiteral("bis")).arg(z.b.werte.front());
    }
    return {};
}

QString fuerDateien(const QString &text)
{
    QString rein = text;
    for (QChar &zeichen : rein)
        if (!zeichen.isPrint() || QStringView(u"\\/:*?\"<>|.").contains(zeichen))
            zeichen = u' ';
    return rein.simplified();
}

} // namespace

QString gruppenname(const Filterbeschreibung &beschreibung, const Kriterium &kriterium)
{
    const QString titel = ohneDoppelpunkt(beschreibung, kriterium), reiter = unterscheidung(beschreibung, kriterium);
    return reiter.isEmpty() || reiter == titel ? titel : QStringLiteral("%1, %2").arg(reiter, titel);
}

QString filtername(const Filterbeschreibung &beschreibung, const Filterzustand &zustand, const Elementwort &wort)
{
    QString name;
    for (size_t i = 0; i < beschreibung.kriterien.size(); ++i) {
        const Kriterium &k = beschreibung.kriterien[i];
        if (!zeigtAktiv(k, zustand.kriterien[i]))
            continue;
        const QString reiter = unterscheidung(beschreibung, k);
        // Family and picture say what they are.
        const QString gruppe = k.pruefung == Pruefung::Familie || k.pruefung == Pruefung::Bild ? QString()
                               : reiter.isEmpty()                                              ? ohneDoppelpunkt(beschreibung, k)
                                                                                               : reiter;
        const QString stueck = fuerDateien(gruppe + u' ' + worte(k, zustand.kriterien[i], wort));
        const QString laenger = name.isEmpty() ? stueck.left(laengsterName).trimmed() : QStringLiteral("%1, %2").arg(name, stueck);
        if (laenger.size() > laengsterName)
            break;
        name = laenger;
    }
    return name;
}
