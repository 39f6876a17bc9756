#include "RecLeser.h"

#include <QDir>
#include <QStringDecoder>
#include <QStringTokenizer>

const RecFeld *RecSatz::feld(QStringView name) const
{
    for (const RecFeld &feld : felder)
        if (name.compare(feld.name, Qt::CaseInsensitive) == 0)
            return &feld;
    return nullptr;
}

void RecSatz::falsch(int zeile, const QString &was) const
{
    throw Quellfehler{QStringLiteral("%1:%2: %3").arg(datei).arg(zeile).arg(was)};
}

std::map<QString, QByteArray> recTexte(const QString &ordner)
{
    std::map<QString, QByteArray> texte;
    for (const QFileInfo &datei : QDir(ordner).entryInfoList({QStringLiteral("*.rec")}, QDir::Files, QDir::Name)) {
        QFile quelle(datei.filePath());
        if (!quelle.open(QIODevice::ReadOnly))
            throw Quellfehler{QStringLiteral("%1: kann nicht gelesen werden").arg(datei.filePath())};
        texte.emplace(datei.filePath(), quelle.readAll());
    }
    return texte;
}

std::vector<RecSatz> recLesen(const QByteArray &utf8, const QString &datei)
{
    std::vector<RecSatz> saetze;
    RecSatz satz;
    satz.datei = datei;
    const auto abschliessen = [&] {
        if (!satz.felder.empty())
            saetze.push_back({satz.typ, satz.datei, std::move(satz.felder)});
        satz.felder.clear();
    };
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(utf8);
    if (decoder.hasError())
        for (int zeile = 1; const QByteArray &bytes : utf8.split('\n')) {
            QStringDecoder einzeln(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
            if (const QString dort = einzeln(bytes); einzeln.hasError())
                satz.falsch(zeile, QStringLiteral("kein UTF-8"));
            ++zeile;
        }
    int zeile = 0;
    for (const QStringView roh : qTokenize(QStringView(text), u'\n')) {
        ++zeile;
        const QStringView inhalt = roh.trimmed();
        if (inhalt.isEmpty()) {
            abschliessen();
        } else if (roh.startsWith(u'#')) {
            continue;
        } else if (roh.startsWith(u'+')) {
            if (satz.felder.empty())
                satz.falsch(zeile, QStringLiteral("Fortsetzung ohne Feld"));
            satz.felder.back().wert += u'\n' + roh.mid(1).trimmed().toString();
        } else if (roh.startsWith(u'%')) {
            abschliessen();
            if (roh.startsWith(u"%rec:"))
                satz.typ = roh.mid(5).trimmed().toString();
        } else {
            const qsizetype doppelpunkt = roh.indexOf(u':');
            const QStringView name = roh.left(doppelpunkt < 0 ? 0 : doppelpunkt);
            if (name.isEmpty() || name.contains(u' '))
                satz.falsch(zeile, QStringLiteral("keine Feldzeile: %1").arg(inhalt));
            satz.felder.push_back({name.toString(), roh.mid(doppelpunkt + 1).trimmed().toString(), zeile});
        }
    }
    abschliessen();
    return saetze;
}
