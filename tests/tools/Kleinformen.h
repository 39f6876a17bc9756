#pragma once

#include <QFile>
#include <QTemporaryDir>

/* The least that says how plants look: a folder of forms that is read in no time. */

/// Makes `ordner` a folder of forms with the two that every plant needs, and what `zeilen` says of Abutilon from line 4 on. Returns its path.
inline QString kleinsteFormen(const QTemporaryDir &ordner, const QByteArray &zeilen = {})
{
    QFile datei(ordner.filePath(QStringLiteral("formen.rec")));
    if (!datei.open(QIODevice::WriteOnly))
        qFatal("The folder of the test cannot be written.");
    datei.write("%rec: Pflanzenform\n\nPflanze: Abutilon\n" + zeilen
                + "\n\n%rec: Blattform\n\nForm: elliptisch\nTitel: t\nFlaeche: blatt M0 0L10 -50L0 -100Z\n\n"
                  "%rec: Bluetenform\n\nForm: fuenfzaehlig-rund\nTitel: t\nFlaeche: bluete M0 0L40 -50L0 -100Z\n\n");
    return ordner.path();
}
