#include "Aufgabe.h"

#include "Pflanzensatz.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr qsizetype kuerzestesWort = 3;    ///< letters: shorter words tell nothing
constexpr qsizetype inZusammensetzung = 5; ///< letters from which on a word is known inside a longer one
constexpr QStringView verdecktesWort = u"[…]";

const QRegularExpression &wortmuster()
{
    static const QRegularExpression muster(QStringLiteral("\\p{L}+"));
    return muster;
}

QString ohneSorte(const QString &name)
{
    static const QRegularExpression sorte(QStringLiteral("\\s*['‘].*['’]"));
    return QString(name).remove(sorte).simplified();
}

QStringList getrennt(const QString &liste)
{
    QStringList teile;
    for (const QString &teil : liste.split(u','))
        if (!teil.trimmed().isEmpty())
            teile += teil.trimmed();
    return teile;
}

/// "Rosaceae (Rosengewächse)" is answered by either name or both.
Loesung familienloesung(const QString &familie)
{
    static const QRegularExpression beide(QStringLiteral("^(.*\\S)\\s*\\((.*)\\)$"));
    Loesung loesung{familie};
    if (const QRegularExpressionMatch fund = beide.match(familie); fund.hasMatch())
        loesung.auch = {fund.captured(1), fund.captured(2), fund.captured(1) + u' ' + fund.captured(2)};
    return loesung;
}

QString teilVon(Fragenart art, const QString &botanisch)
{
    const Namensteile teile = namensteile(botanisch);
    switch (art) {
    case Fragenart::Gattung: return teile.gattung;
    case Fragenart::Art: return teile.art;
    case Fragenart::Sorte: return teile.sorte;
    case Fragenart::Familie:
    case Fragenart::DeutscherName:
    case Fragenart::Sortenname: break;
    }
    return {};
}

Loesung loesungVon(const Namensfrage &frage, Pflanzensatz &satz)
{
    const QString wert = satz.Auslesen(QString::fromLatin1(frage.feld)).simplified();
    Loesung loesung{wert};
    switch (frage.art) {
    case Fragenart::Gattung:
    case Fragenart::Art:
    case Fragenart::Sorte: {
        loesung.text = teilVon(frage.art, wert);
        loesung.teile = {frage.art == Fragenart::Art ? nurArt(loesung.text) : QString()};
        if (frage.art == Fragenart::Art && loesung.text.endsWith(u"Hybriden"))
            loesung.auch = {loesung.text.chopped(1), loesung.text.chopped(4)};
        for (const QString &synonym : satz.synonyme(false))
            loesung.frueher += teilVon(frage.art, synonym);
        break;
    }
    case Fragenart::Familie: return familienloesung(satz.familie(wert));
    case Fragenart::DeutscherName:
        loesung.deutsch = true;
        for (const QString &name : QStringList{wert} + satz.synonyme(true))
            loesung.auch += {name, ohneSorte(name)};
        break;
    case Fragenart::Sortenname:
        loesung.deutsch = true;
        for (const char *feld : frage.auch)
            loesung.auch += getrennt(satz.Auslesen(QString::fromLatin1(feld)));
        break;
    }
    return loesung;
}

} // namespace

Aufgabe aufgabeVon(Pflanzensatz &satz, const Fensterbeschreibung &beschreibung)
{
    Aufgabe aufgabe;
    aufgabe.artnr = satz.artnr();
    if (!aufgabe.artnr)
        return aufgabe;
    QStringList namen = satz.synonyme(false) + satz.synonyme(true);
    for (const Namensfrage &frage : beschreibung.fragen) {
        Loesung loesung = loesungVon(frage, satz);
        const QString wert = satz.Auslesen(QString::fromLatin1(frage.feld));
        namen += frage.art == Fragenart::Familie ? loesung.text : wert;
        namen += loesung.auch;
        if (!loesung.text.isEmpty())
            aufgabe.teile.push_back({&frage, std::move(loesung)});
    }
    aufgabe.name = satz.Auslesen(QStringLiteral("BOT_NAME")).simplified();
    aufgabe.worte = namensworte(namen + QStringList{aufgabe.name});
    return aufgabe;
}

QStringList namensworte(const QStringList &namen)
{
    static const QStringList allgemein{QStringLiteral("Hybriden"), QStringLiteral("Hybride"), QStringLiteral("Hybrid"), QStringLiteral("Gruppe"),
                                       QStringLiteral("subsp"),    QStringLiteral("convar"),  QStringLiteral("var"),    QStringLiteral("und"),
                                       QStringLiteral("von"),      QStringLiteral("der"),     QStringLiteral("die"),    QStringLiteral("des")};
    QStringList worte;
    for (const QString &name : namen)
        for (auto fund = wortmuster().globalMatch(name); fund.hasNext();)
            if (const QString wort = fund.next().captured(); wort.size() >= kuerzestesWort && !allgemein.contains(wort))
                worte += wort;
    worte.removeDuplicates();
    return worte;
}

QString ohneNamen(const QString &text, const QStringList &worte)
{
    const auto verraten = [&](const QString &wort) {
        return std::ranges::any_of(worte, [&](const QString &name) {
            return name.size() >= inZusammensetzung ? wort.contains(name, Qt::CaseInsensitive) : wort.startsWith(name);
        });
    };
    QString ergebnis;
    qsizetype bis = 0;
    for (auto fund = wortmuster().globalMatch(text); fund.hasNext();) {
        const QRegularExpressionMatch wort = fund.next();
        if (!verraten(wort.captured()))
            continue;
        ergebnis += QStringView(text).sliced(bis, wort.capturedStart() - bis);
        ergebnis += verdecktesWort;
        bis = wort.capturedEnd();
    }
    return ergebnis + text.sliced(bis);
}
