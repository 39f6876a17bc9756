#include "Lernstand.h"

#include "Dateien.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace {

constexpr int kleinsterFaktor = 130, ersterAbstand = 1, zweiterAbstand = 6;
constexpr int laengsterAbstand = 36500; ///< days: a century is for ever

QString tag(QDate datum)
{
    return datum.toString(Qt::ISODate);
}

/// A whole number within its bounds; nothing for anything else.
std::optional<int> ganzzahl(const QJsonValue &wert, int von, int bis)
{
    const double zahl = wert.toDouble(von - 1.0);
    return zahl >= von && zahl <= bis && zahl == int(zahl) ? std::optional(int(zahl)) : std::nullopt;
}

std::optional<Lernwert> wertLesen(const QJsonObject &zeile)
{
    const auto folge = ganzzahl(zeile[u"folge"], 0, 1'000'000), abstand = ganzzahl(zeile[u"abstand"], 0, laengsterAbstand);
    const auto faktor = ganzzahl(zeile[u"faktor"], kleinsterFaktor, 100'000);
    const QDate zuletzt = QDate::fromString(zeile[u"zuletzt"].toString(), Qt::ISODate);
    const QDate faellig = QDate::fromString(zeile[u"faellig"].toString(), Qt::ISODate);
    if (!folge || !abstand || !faktor || !zuletzt.isValid() || !faellig.isValid())
        return std::nullopt;
    return Lernwert{*folge, *abstand, *faktor, zuletzt, faellig};
}

/// The file gets another name in its folder; that name.
QString beiseite(const QString &pfad)
{
    const QFileInfo datei(pfad);
    const QString zeit = QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd-HHmmss"));
    const QString stamm = QStringLiteral("%1-beschaedigt-%2").arg(datei.completeBaseName(), zeit);
    QString name = QStringLiteral("%1.%2").arg(stamm, datei.suffix());
    for (int i = 2; datei.dir().exists(name); ++i)
        name = QStringLiteral("%1-%2.%3").arg(stamm).arg(i).arg(datei.suffix());
    benenneUm(pfad, datei.dir().filePath(name));
    return name;
}

} // namespace

Lernwert nachAntwort(Lernwert wert, int guete, QDate heute)
{
    const bool gut = guete >= ausreichendeGuete;
    if (gut && wert.faellig.isValid() && wert.faellig > heute)
        return wert;
    if (gut) {
        const int fehlt = besteGuete - guete;
        wert.faktor = std::max(kleinsterFaktor, wert.faktor + 10 - fehlt * (8 + fehlt * 2));
        ++wert.folge;
        // Fractions of a day are rounded up.
        const qint64 weiter = (qint64(wert.abstand) * wert.faktor + 99) / 100;
        wert.abstand = wert.folge == 1 ? ersterAbstand : wert.folge == 2 ? zweiterAbstand : int(std::min<qint64>(weiter, laengsterAbstand));
    } else {
        wert.folge = 0;
        wert.abstand = ersterAbstand;
    }
    wert.zuletzt = heute;
    wert.faellig = heute.addDays(wert.abstand);
    return wert;
}

int gueteVon(int punkte, int vonPunkten)
{
    struct Stufe
    {
        int abProzent, guete;
    };
    static constexpr Stufe stufen[] = {{100, 5}, {80, 4}, {60, 3}, {30, 2}, {1, 1}};
    const int prozent = vonPunkten > 0 ? punkte * 100 / vonPunkten : 0;
    const auto stufe = std::ranges::find_if(stufen, [&](const Stufe &s) { return prozent >= s.abProzent; });
    return stufe == std::end(stufen) ? 0 : stufe->guete;
}

Lernstand::Geladen Lernstand::laden(const QString &pfad)
{
    Geladen geladen;
    if (!QFileInfo::exists(pfad))
        return geladen;
    const QByteArray inhalt = liesGanz(pfad);
    const QString name = QFileInfo(pfad).fileName();
    QJsonParseError fehler;
    const QJsonObject alles = QJsonDocument::fromJson(inhalt, &fehler).object();
    const auto nummer = ganzzahl(alles[u"format"], 1, 1'000'000);
    if (nummer && *nummer > format)
        throw Fehler(QStringLiteral("Die Datei '%1' hat eine neuere Version von Flox geschrieben (Format %2). Sie wird nicht gelesen und nicht "
                                    "verändert.")
                         .arg(QDir::toNativeSeparators(pfad))
                         .arg(*nummer));
    qsizetype gelesen = 0;
    const QJsonArray zeilen = alles[u"pflanzen"].toArray();
    for (const QJsonValue &eintrag : zeilen) {
        const QJsonObject zeile = eintrag.toObject();
        const Schluessel schluessel{zeile[u"tabelle"].toString(), zeile[u"artnr"].toInteger(), zeile[u"name"].toString()};
        const std::optional<Lernwert> wert = wertLesen(zeile);
        if (!wert || schluessel.tabelle.isEmpty() || schluessel.artnr == 0)
            continue;
        geladen.stand.setWert(schluessel, *wert);
        ++gelesen;
    }
    if (nummer && alles[u"pflanzen"].isArray() && gelesen == zeilen.size())
        return geladen;
    geladen.hinweis = QStringLiteral("Die Datei '%1', in der Flox den Stand Ihrer Übungen führt, ist beschädigt. Sie heißt jetzt '%2'.\n\n")
                          .arg(name, beiseite(pfad))
                      + (gelesen > 0 ? QStringLiteral("Lesbar waren noch %1 Pflanzen; mit ihnen geht es weiter.").arg(gelesen)
                                     : QStringLiteral("Der Stand beginnt neu."));
    // What was saved of it must not depend on the next answer.
    if (gelesen > 0)
        geladen.stand.speichern(pfad);
    return geladen;
}

void Lernstand::speichern(const QString &pfad) const
{
    QList<Schluessel> folge = werte_.keys();
    std::ranges::sort(
        folge, [](const Schluessel &a, const Schluessel &b) { return std::tie(a.tabelle, a.artnr, a.name) < std::tie(b.tabelle, b.artnr, b.name); });
    QJsonArray zeilen;
    for (const Schluessel &schluessel : std::as_const(folge)) {
        const Lernwert &wert = werte_[schluessel];
        zeilen.append(QJsonObject{{QStringLiteral("tabelle"), schluessel.tabelle},
                                  {QStringLiteral("artnr"), schluessel.artnr},
                                  {QStringLiteral("name"), schluessel.name},
                                  {QStringLiteral("folge"), wert.folge},
                                  {QStringLiteral("abstand"), wert.abstand},
                                  {QStringLiteral("faktor"), wert.faktor},
                                  {QStringLiteral("zuletzt"), tag(wert.zuletzt)},
                                  {QStringLiteral("faellig"), tag(wert.faellig)}});
    }
    schreibeSicher(pfad, QJsonDocument(QJsonObject{{QStringLiteral("format"), format}, {QStringLiteral("pflanzen"), zeilen}}).toJson());
}

std::optional<Lernwert> Lernstand::wert(const Schluessel &schluessel) const
{
    const auto gefunden = werte_.constFind(schluessel);
    return gefunden == werte_.cend() ? std::nullopt : std::optional(*gefunden);
}
