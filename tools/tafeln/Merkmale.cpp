#include "Merkmale.h"

#include "tools/RecLeser.h"

#include <QDir>

QHash<QString, QStringList> merkmaleLesen(const QString &ordner)
{
    QHash<QString, QStringList> merkmale;
    for (const QFileInfo &datei : QDir(ordner).entryInfoList({QStringLiteral("*.rec")}, QDir::Files, QDir::Name)) {
        QFile quelle(datei.filePath());
        if (!quelle.open(QIODevice::ReadOnly))
            throw Quellfehler{QStringLiteral("%1: kann nicht gelesen werden").arg(datei.filePath())};
        for (const RecSatz &satz : recLesen(quelle.readAll(), datei.filePath()))
            if (const RecFeld *nummer = satz.feld(u"ARTNR"))
                for (const RecFeld &feld : satz.felder)
                    if (feld.name == u"MERKMAL")
                        merkmale[satz.typ + u' ' + nummer->wert] += feld.wert;
    }
    return merkmale;
}
