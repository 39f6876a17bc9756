#pragma once

#include "pictures/Bilderliste.h"
#include "tests/Hilfen.h"

#include <QDir>
#include <QImage>

/// A program folder with picture files, and the two samples that show the medium.
class Bilderordner : public Programmordner
{
public:
    explicit Bilderordner(bool medium = true)
    {
        QDir().mkpath(pfad(QStringLiteral("icons")));
        bild(QStringLiteral("icons/bildfehlt.jpg"), {400, 300});
        if (medium)
            for (const char *name : {"begonia-rex", "bougainvillea-glabra"})
                bild(QStringLiteral("topfpflanzen/%1.jpg").arg(QLatin1String(name)), {160, 120});
    }
    void bild(const QString &datei, QSize groesse) const
    {
        QDir().mkpath(QFileInfo(pfad(datei)).path());
        QImage bild(groesse, QImage::Format_RGB32);
        bild.fill(Qt::darkGreen);
        if (!bild.save(pfad(datei), "JPG"))
            qFatal("A picture of the test cannot be written.");
    }
};

/// A row with these stems; a null text stands for a null.
inline Bildzeile zeileAus(const QStringList &g, const QStringList &d)
{
    Bildzeile zeile;
    const auto fuellen = [](auto &haelfte, const QStringList &staemme) {
        for (qsizetype i = 0; i < staemme.size(); ++i)
            if (!staemme[i].isNull())
                haelfte[size_t(i)] = {staemme[i], QStringLiteral("Text ") + staemme[i]};
    };
    fuellen(zeile.g, g);
    fuellen(zeile.d, d);
    return zeile;
}
