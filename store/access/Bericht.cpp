#include "Austausch.h"
#include "Leser.h"
#include "store/Fehler.h"

#include <QFile>

#include <algorithm>

namespace accessdatei {

namespace {

QString zahl(qint64 anzahl, const QString &eines, const QString &mehrere)
{
    return QStringLiteral("%1 %2").arg(anzahl).arg(anzahl == 1 ? eines : mehrere);
}

QString plaetze(const Tabellenbericht &bericht)
{
    QStringList nummern;
    for (const qint64 platz : bericht.unlesbarePlaetze)
        nummern += QString::number(platz);
    return QStringLiteral(" (Nr. %1%2)")
        .arg(nummern.join(QStringLiteral(", ")), qint64(nummern.size()) < bericht.unlesbar ? QStringLiteral(" ...") : QString());
}

QString zeileVon(const Tabellenbericht &bericht)
{
    QStringList teile{zahl(bericht.zeilen, QStringLiteral("Zeile"), QStringLiteral("Zeilen"))};
    if (bericht.unlesbar)
        teile += QStringLiteral("%1 nicht lesbar").arg(bericht.unlesbar) + plaetze(bericht);
    if (bericht.abgewiesen)
        teile += QStringLiteral("%1 ohne eigene Nummer nicht übernommen").arg(bericht.abgewiesen);
    if (bericht.schadhafteWerte)
        teile += zahl(bericht.schadhafteWerte, QStringLiteral("Wert"), QStringLiteral("Werte")) + QStringLiteral(" unvollständig");
    if (bericht.ueberzaehligeBilder)
        teile += QStringLiteral("%1 ohne Platz für ihr Bild").arg(bericht.ueberzaehligeBilder);
    if (!bericht.fehlendeFelder.isEmpty())
        teile += QStringLiteral("in der Datei fehlt %1").arg(bericht.fehlendeFelder.join(QStringLiteral(", ")));
    if (!bericht.fremdeFelder.isEmpty())
        teile += QStringLiteral("nicht übernommen: %1").arg(bericht.fremdeFelder.join(QStringLiteral(", ")));
    return bericht.tabelle + QStringLiteral(": ") + teile.join(QStringLiteral("; "));
}

/// The signs that a text has which was read in another code page than it was written in.
bool zweifelhaft(const QString &text)
{
    return std::ranges::any_of(text,
                               [](QChar zeichen) { return (zeichen >= u'\u0080' && zeichen < u'\u00A0') || zeichen == QChar::ReplacementCharacter; });
}

/// The first doubtful text of a table, its name and those of its columns among them.
QString zweifelhafterText(Leser &leser, const Tabelle &tabelle, Fortschritt &fortschritt)
{
    if (zweifelhaft(tabelle.name))
        return tabelle.name;
    for (const Spalte &spalte : tabelle.spalten)
        if (zweifelhaft(spalte.name))
            return spalte.name;
    QString gefunden;
    (void)leser.durchlaufen(tabelle, [&](Zeile &zeile) {
        fortschritt.melden(1);
        for (size_t i = 0; i < tabelle.spalten.size() && gefunden.isEmpty(); ++i)
            if (const Wert wert = zeile.wert(i); wert.gestalt == Gestalt::Text)
                if (const QString text = QString::fromUtf8(wert.text); zweifelhaft(text))
                    gefunden = text;
        return gefunden.isEmpty();
    });
    return gefunden;
}

} // namespace

QString Bericht::text() const
{
    QStringList zeilen;
    for (const Tabellenbericht &tabelle : tabellen)
        zeilen += zeileVon(tabelle);
    const auto liste = [&](const QStringList &namen, const QString &satz) {
        if (!namen.isEmpty())
            zeilen += satz.arg(namen.join(QStringLiteral(", ")));
    };
    liste(fehlendeTabellen, QStringLiteral("In der Datei fehlen diese Tabellen; sie sind leer: %1"));
    liste(fremdeTabellen, QStringLiteral("Diese Tabellen kennt Flox nicht: %1"));
    liste(verknuepfteTabellen, QStringLiteral("Diese Tabellen sind nur Verknüpfungen mit einer anderen Datei und wurden nicht gelesen: %1"));
    liste(unlesbareTabellen, QStringLiteral("Diese Tabellen sind beschädigt und konnten nicht gelesen werden: %1"));
    if (bereinigteTexte)
        zeilen += zahl(bereinigteTexte, QStringLiteral("Text enthielt"), QStringLiteral("Texte enthielten"))
                  + QStringLiteral(" Zeichen, die Access nicht aufbewahrt.");
    return zeilen.join(u'\n');
}

bool istAccessdatei(const QString &pfad)
{
    QFile datei(pfad);
    if (!datei.open(QIODevice::ReadOnly))
        return false;
    const QByteArray kopf = datei.read(19);
    return kopf.startsWith(QByteArray("\0\1\0\0", 4)) && (kopf.endsWith("Standard Jet DB") || kopf.endsWith("Standard ACE DB"));
}

namespace {

Inhalt inhaltVon(const QString &pfad, Fortschritt &fortschritt, int codeseite)
{
    const std::unique_ptr<Leser> leser = Leser::ausDatei(pfad, [&](double anteil) { fortschritt.fragen(anteil); });
    if (codeseite)
        (void)leser->setCodeseite(codeseite);
    Inhalt inhalt{{}, leser->verknuepfungen(), leser->codeseite(), {}};
    for (const Tabelle &tabelle : leser->tabellen()) {
        inhalt.tabellen += tabelle.name;
        if (inhalt.codeseite && inhalt.zweifelhaft.isEmpty())
            inhalt.zweifelhaft = zweifelhafterText(*leser, tabelle, fortschritt);
    }
    inhalt.tabellen += leser->verknuepfungen() + leser->unlesbareTabellen();
    return inhalt;
}

} // namespace

std::optional<Inhalt> inhaltVon(const QString &pfad, const Lauf &lauf, int codeseite)
{
    try {
        Fortschritt fortschritt(lauf, 1);
        return inhaltVon(pfad, fortschritt, codeseite);
    } catch (const Abbruch &) {
        return std::nullopt;
    }
}

std::vector<Codeseitenwahl> codeseiten()
{
    return {{1252, u"Westeuropa (Windows 1252)"},   {850, u"Westeuropa (DOS 850)"},   {437, u"USA (DOS 437)"},
            {1250, u"Mitteleuropa (Windows 1250)"}, {852, u"Mitteleuropa (DOS 852)"}, {1251, u"Kyrillisch (Windows 1251)"},
            {10000, u"Westeuropa (Macintosh)"}};
}

} // namespace accessdatei
