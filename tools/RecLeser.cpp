#include "RecLeser.h"

#include <QStringDecoder>
#include <QStringList>

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

std::vector<RecSatz> recLesen(const QByteArray &utf8, const QString &datei)
{
    std::vector<RecSatz> saetze;
    RecSatz satz;
    satz.datei = datei;
    const auto abschliessen = [&] {
        if (!satz.felder.empty())
            saetze.push_back(satz);
        satz.felder.clear();
    };
    int zeile = 0;
    for (const QByteArray &bytes : utf8.split('\n')) {
        ++zeile;
        QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        const QString roh = decoder(bytes);
        if (decoder.hasError())
            satz.falsch(zeile, QStringLiteral("kein UTF-8"));
        const QString inhalt = roh.trimmed();
        if (inhalt.isEmpty()) {
            abschliessen();
        } else if (roh.startsWith(u'#')) {
            continue;
        } else if (roh.startsWith(u'+')) {
            if (satz.felder.empty())
                satz.falsch(zeile, QStringLiteral("Fortsetzung ohne Feld"));
            satz.felder.back().wert += u'\n' + roh.mid(1).trimmed();
        } else if (roh.startsWith(u'%')) {
            abschliessen();
            if (roh.startsWith(u"%rec:"))
                satz.typ = roh.mid(5).trimmed();
        } else {
            const qsizetype doppelpunkt = roh.indexOf(u':');
            const QString name = roh.left(doppelpunkt < 0 ? 0 : doppelpunkt);
            if (name.isEmpty() || name.contains(u' '))
                satz.falsch(zeile, QStringLiteral("keine Feldzeile: %1").arg(inhalt));
            satz.felder.push_back({name, roh.mid(doppelpunkt + 1).trimmed(), zeile});
        }
    }
    abschliessen();
    return saetze;
}
