#include "Elementtexte.h"

#include "controls/Steuerelemente.h"
#include "store/Schema.h"

#include <algorithm>

Werteliste worteFuer(Sparte sparte, const Element &element)
{
    if (!element.worte.empty())
        return {element.worte};
    const Werteliste *liste = schema::wertelisteVon(spalteVon(sparte, element.feld));
    return liste ? *liste : Werteliste();
}

QString titelVon(Sparte sparte, const Element &element)
{
    if (!element.titeltext.isEmpty() || !element.titel)
        return element.titeltext.toString();
    return schema::titelVon(spalteVon(sparte, element.feld));
}

QString vorlesename(const QString &gruppe, const QString &titel, const QString &wort)
{
    QStringList davor;
    for (QString teil : {gruppe, titel}) {
        if (teil.endsWith(u':'))
            teil.chop(1);
        if (!teil.isEmpty())
            davor += teil;
    }
    const QString name = davor.join(QStringLiteral(", "));
    return name.isEmpty() || wort.isEmpty() ? name + wort : QStringLiteral("%1: %2").arg(name, wort);
}

void eigenschaftBenennen(Namenskaestchen &kaestchen, int i, const QString &name)
{
    kaestchen.setName(name);
    const QString eigene = QStringLiteral("Eigene Eigenschaft %1").arg(i + 1);
    kaestchen.setAccessibleName(name.isEmpty() ? eigene : QStringLiteral("%1: %2").arg(eigene, name));
}

QString schildtext(const QString &text)
{
    constexpr qsizetype hoechstensZeichen = 1000;
    constexpr int hoechstensZeilen = 20;
    qsizetype ende = std::min(text.size(), hoechstensZeichen);
    qsizetype zeile = -1;
    for (int i = 0; i < hoechstensZeilen; ++i) {
        zeile = text.indexOf(u'\n', zeile + 1);
        if (zeile < 0 || zeile >= ende)
            break;
        if (i + 1 == hoechstensZeilen)
            ende = zeile;
    }
    if (ende == text.size())
        return text;
    if (ende > 0 && text[ende - 1].isHighSurrogate())
        --ende;
    return text.left(ende) + u'…';
}

QString vonBisMeter(const QString &min, const QString &max, QStringView einheit)
{
    const auto da = [](const QString &wert) { return !wert.isEmpty() && zahlZeigen(wert) != u"0"; };
    if (da(min) && da(max))
        return QStringLiteral("%1 bis %2%3").arg(zahlZeigen(min), zahlZeigen(max), einheit);
    if (da(max))
        return QStringLiteral("max. %1%2").arg(zahlZeigen(max), einheit);
    if (da(min))
        return QStringLiteral("min. %1%2").arg(zahlZeigen(min), einheit);
    return {};
}

QString vonBisMindest(const QString &min, const QString &max, QStringView einheit, bool leereObergrenzeFehlt)
{
    if (zahlZeigen(max) == u"0" || (max.isEmpty() && leereObergrenzeFehlt))
        return QStringLiteral("mind. %1%2").arg(zahlZeigen(min), einheit);
    return QStringLiteral("%1 bis %2%3").arg(zahlZeigen(min), zahlZeigen(max), einheit);
}

QString ausbildungstext(QStringView flags)
{
    const QString worte = worteVon(positionen(Kodierung(), flags), WL_Ausbildung);
    if (worte.isEmpty())
        return {};
    QString text = QStringLiteral("Pflanze ist Bestandteil der Gehilfenprüfung ") + worte;
    if (const qsizetype komma = text.lastIndexOf(QStringLiteral(", ")); komma >= 0)
        text.replace(komma, 2, QStringLiteral(" und "));
    return text;
}
