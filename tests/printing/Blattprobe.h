#pragma once

#include "Seitenpruefung.h"

/* What the tests of the data sheet share. */

/// Flag string with "1" at the given positions, counted from 1.
inline QString flags(std::initializer_list<int> stellen)
{
    QString text(std::max(stellen), u' ');
    for (const int stelle : stellen)
        text[stelle - 1] = u'1';
    return text;
}

/// "Zeile 1", "Zeile 2" and so on.
inline QStringList reihe(int von, int bis)
{
    QStringList zeilen;
    for (int i = von; i <= bis; ++i)
        zeilen += QStringLiteral("Zeile %1").arg(i);
    return zeilen;
}

/// A plant with the names "Planta prima" and "Erstpflanze", without synonyms, and with these values only.
struct Blattprobe : Druckprobe
{
    explicit Blattprobe(Sparte sparte = Sparte::Topf, const Werte &werte = {}) : Druckprobe(sparte)
    {
        leeren();
        for (const SpartenEintrag &eine : alleSparten())
            for (const QStringView tabelle : {eine.synonymBotanisch, eine.synonymDeutsch})
                if (!tabelle.isEmpty())
                    auftrag.arbeit->Execute(QStringLiteral("DELETE FROM %1").arg(tabelle));
        setzen({{QStringLiteral("BOT_NAME"), QStringLiteral("Planta prima")}, {QStringLiteral("DTNAM"), QStringLiteral("Erstpflanze")}});
        setzen(werte);
    }
    /// Adds a synonym of a potted plant with the plant's number.
    void synonym(const QString &text, bool deutsch)
    {
        const SpartenEintrag &topf = eintrag(Sparte::Topf);
        const QStringView tabelle = deutsch ? topf.synonymDeutsch : topf.synonymBotanisch;
        auftrag.arbeit->Execute(QStringLiteral("INSERT INTO %1 (ARTNR, SYN) VALUES (?, ?)").arg(tabelle), {pflanzen->Schluessel(), text});
    }
};

/// The head of that plant's sheet.
inline Sollseiten blattanfang(Sparte sparte = Sparte::Topf)
{
    const QString label = sparte == Sparte::Apfel      ? QStringLiteral("Voller Name")
                          : sparte == Sparte::Gehoelze ? QStringLiteral("Deutscher Name")
                          : sparte == Sparte::Obst     ? QStringLiteral("Obstart")
                                                       : QString();
    return Sollseiten().titel(QStringLiteral("Planta prima")).eintrag(label, QStringLiteral("Erstpflanze"));
}
