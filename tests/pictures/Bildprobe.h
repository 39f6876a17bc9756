#pragma once

#include "pictures/Bilderliste.h"
#include "tests/Hilfen.h"

#include <QDir>
#include <QCoreApplication>
#include <QImage>
#include <QWheelEvent>
#include <QWidget>
#include <qtestspontaneevent.h>

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

/// Turns a wheel over the middle of a widget, as a hand does: what the widget ignores goes on to those around it. `winkel` in eighths of
/// a degree.
inline void radDrehen(QWidget *ziel, QPoint winkel, Qt::KeyboardModifiers tasten = Qt::NoModifier)
{
    const QPointF ort = ziel->rect().center();
    QWheelEvent ereignis(ort, ziel->mapToGlobal(ort), {}, winkel, Qt::NoButton, tasten, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&ereignis);
    QCoreApplication::instance()->notify(ziel, &ereignis);
}

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
