#include "Accesshilfen.h"

#include "store/Fehler.h"

#include <QFile>
#include <QJsonDocument>
#include <QProcess>

#include <cmath>

using namespace accessdatei;

namespace accessprobe {

namespace {

QByteArray ausgabe(const QString &programm, const QStringList &argumente)
{
    QProcess prozess;
    QProcessEnvironment umgebung = QProcessEnvironment::systemEnvironment();
    umgebung.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    prozess.setProcessEnvironment(umgebung);
    prozess.setProcessChannelMode(QProcess::SeparateChannels);
    prozess.start(programm, argumente);
    if (!prozess.waitForFinished(120000) || prozess.exitCode() != 0)
        throw Fehler(programm + QStringLiteral(": ") + QString::fromUtf8(prozess.readAllStandardError()) + prozess.errorString());
    return prozess.readAllStandardOutput();
}

bool gleich(const Wert &wert, const QJsonValue &fremd, Typ typ)
{
    constexpr double genauigkeit = 1e-6; // it prints single numbers with six digits
    const auto nahe = [&](double a, double b) { return std::abs(a - b) <= genauigkeit * std::max(1.0, std::abs(a)); };
    switch (wert.gestalt) {
    case Gestalt::Leer: return fremd.isUndefined() || fremd.isNull();
    case Gestalt::Wahrheit: return fremd.toInt(-1) == wert.ganz;
    case Gestalt::Ganzzahl: return fremd.toInteger(wert.ganz + 1) == wert.ganz;
    case Gestalt::Einfach:
    case Gestalt::Kommazahl: return nahe(wert.komma, fremd.toDouble(NAN));
    case Gestalt::Dezimal: return nahe(QByteArray(wert.text.data(), qsizetype(wert.text.size())).toDouble(), fremd.toDouble(NAN));
    case Gestalt::Datum: {
        // It knows no days before 1900, nor those of a finer kind.
        QString tag = QString::fromStdString(datumstext(wert.komma));
        if (typ == Typ::DatumGenau || tag.mid(6, 4) < u"1900")
            return true;
        if (tag.size() == 10)
            tag += QStringLiteral(" 00:00:00");
        return fremd.toString() == tag;
    }
    case Gestalt::Text: {
        QString eigener = QString::fromUtf8(wert.text);
        const QString anderer = fremd.toString(QStringLiteral("-"));
        // It tells of no empty texts.
        if (eigener.isEmpty() && fremd.isUndefined())
            return true;
        // Characters beyond the first 65,536 it does not know.
        if (anderer.contains(u"??"))
            for (QChar &zeichen : eigener)
                zeichen = zeichen.isSurrogate() ? u'?' : zeichen;
        return typ == Typ::Guid || anderer == eigener;
    }
    case Gestalt::Fremd: return true;
    }
    return false;
}

/// Place of the first column that is not what the other reader tells; -1 where all are.
int falscheSpalte(const Tabelle &tabelle, Zeile &zeile, const QJsonObject &fremde)
{
    for (size_t i = 0; i < tabelle.spalten.size(); ++i)
        if (const Spalte &spalte = tabelle.spalten[i]; !spalte.berechnet && !gleich(zeile.wert(i), fremde.value(spalte.name), spalte.typ))
            return int(i);
    return -1;
}

} // namespace

QStringList fremdeTabellen(const QString &pfad)
{
    return QString::fromUtf8(ausgabe(QStringLiteral("mdb-tables"), {QStringLiteral("-1"), pfad})).split(u'\n', Qt::SkipEmptyParts);
}

QList<QJsonObject> fremdeZeilen(const QString &pfad, const QString &tabelle)
{
    const QString form = QStringLiteral("%d.%m.%Y %H:%M:%S");
    QList<QJsonObject> zeilen;
    for (const QByteArray &zeile :
         ausgabe(QStringLiteral("mdb-json"), {QStringLiteral("-T"), form, QStringLiteral("-D"), form, pfad, tabelle}).split('\n')) {
        if (zeile.isEmpty())
            continue;
        QJsonParseError fehler;
        zeilen += QJsonDocument::fromJson(zeile, &fehler).object();
        if (fehler.error != QJsonParseError::NoError)
            throw Fehler(fehler.errorString() + QString::fromUtf8(zeile));
    }
    return zeilen;
}

QString unterschied(const QString &pfad)
{
    const std::unique_ptr<Leser> leser = Leser::ausDatei(pfad);
    QStringList namen;
    for (const Tabelle &tabelle : leser->tabellen())
        namen += tabelle.name;
    if (QStringList fremde = fremdeTabellen(pfad); QSet<QString>(namen.begin(), namen.end()) != QSet<QString>(fremde.begin(), fremde.end()))
        return namen.join(u',') + QStringLiteral(" <> ") + fremde.join(u',');
    for (const Tabelle &tabelle : leser->tabellen()) {
        QList<QJsonObject> fremde = fremdeZeilen(pfad, tabelle.name);
        QString befund;
        const qsizetype anzahl = fremde.size();
        const Durchgang durchgang = leser->durchlaufen(tabelle, [&](Zeile &zeile) {
            const auto passt = [&](const QJsonObject &vergleich) { return falscheSpalte(tabelle, zeile, vergleich) < 0; };
            // A row that was moved comes at its new place there.
            if (const auto gefunden = std::ranges::find_if(fremde, passt); gefunden != fremde.end()) {
                fremde.erase(gefunden);
                return true;
            }
            const QJsonObject naechste = fremde.value(0);
            const int spalte = falscheSpalte(tabelle, zeile, naechste);
            befund = spalte < 0 ? tabelle.name
                                : QStringLiteral("%1, %2: %3 <> %4")
                                      .arg(tabelle.name, tabelle.spalten[size_t(spalte)].name, alsText(zeile.wert(size_t(spalte))),
                                           QString::fromUtf8(QJsonDocument(naechste).toJson()));
            return false;
        });
        if (!befund.isEmpty())
            return befund;
        if (durchgang.zeilen != anzahl || durchgang.unlesbar || durchgang.schadhafteWerte)
            return QStringLiteral("%1: %2 Zeilen, dort %3, %4 unlesbar, %5 schadhaft")
                .arg(tabelle.name)
                .arg(durchgang.zeilen)
                .arg(anzahl)
                .arg(durchgang.unlesbar)
                .arg(durchgang.schadhafteWerte);
    }
    return {};
}

QString alsText(const Wert &wert)
{
    const QString geschrieben = QString::fromUtf8(wert.text);
    switch (wert.gestalt) {
    case Gestalt::Leer: return QStringLiteral("null");
    case Gestalt::Wahrheit: return wert.ganz ? QStringLiteral("True") : QStringLiteral("False");
    case Gestalt::Ganzzahl: return QString::number(wert.ganz);
    case Gestalt::Einfach: return QString::fromStdString(zahltext(float(wert.komma)));
    case Gestalt::Kommazahl: return QString::fromStdString(zahltext(wert.komma));
    case Gestalt::Dezimal: return geschrieben;
    case Gestalt::Datum: return QString::fromStdString(datumstext(wert.komma));
    case Gestalt::Text: return u'"' + geschrieben + u'"';
    case Gestalt::Fremd: return QStringLiteral("fremd");
    }
    return {};
}

QList<QStringList> zeilen(Leser &leser, const QString &tabelle)
{
    QList<QStringList> alle;
    const Tabelle *gesucht = leser.tabelle(tabelle);
    if (!gesucht)
        return alle;
    (void)leser.durchlaufen(*gesucht, [&](Zeile &zeile) {
        QStringList eine;
        for (size_t i = 0; i < gesucht->spalten.size(); ++i)
            eine += alsText(zeile.wert(i));
        alle += eine;
        return true;
    });
    return alle;
}

std::vector<uint8_t> bytes(const QString &pfad)
{
    QFile datei(pfad);
    if (!datei.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read.", qPrintable(pfad));
    const QByteArray alle = datei.readAll();
    return {alle.begin(), alle.end()};
}

Wert text(std::string_view utf8)
{
    return {.gestalt = Gestalt::Text, .text = utf8};
}

Wert ganz(int64_t zahl)
{
    return {.gestalt = Gestalt::Ganzzahl, .ganz = zahl};
}

Wert komma(double zahl)
{
    return {.gestalt = Gestalt::Kommazahl, .komma = zahl};
}

Wert wahr(bool wahr)
{
    return {.gestalt = Gestalt::Wahrheit, .ganz = wahr};
}

Wert datum(double tage)
{
    return {.gestalt = Gestalt::Datum, .komma = tage};
}

} // namespace accessprobe
