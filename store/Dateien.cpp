#include "Dateien.h"

#include <QFile>
#include <QSaveFile>

#include <memory>

bool kopiereUeber(const QString &quelle, const QString &ziel)
{
    QFile von(quelle);
    if (!von.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return false;
    QFile::remove(ziel + QStringLiteral("-journal"));
    QFile nach(ziel);
    if (!nach.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        return false;
    constexpr qint64 block = 1 << 20;
    const auto puffer = std::make_unique_for_overwrite<char[]>(block);
    qint64 geschrieben = 0;
    for (;;) {
        const qint64 gelesen = von.read(puffer.get(), block);
        if (gelesen < 0)
            return false;
        if (gelesen == 0)
            break;
        if (nach.write(puffer.get(), gelesen) != gelesen)
            return false;
        geschrieben += gelesen;
    }
    return nach.size() == geschrieben || nach.resize(geschrieben);
}

bool schreibeSicher(const QString &pfad, const QByteArray &inhalt)
{
    QSaveFile datei(pfad);
    if (!datei.open(QIODevice::WriteOnly))
        return false;
    if (datei.write(inhalt) != inhalt.size() || !datei.flush()) {
        datei.cancelWriting();
        return false;
    }
    return datei.commit();
}
