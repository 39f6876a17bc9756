#pragma once

#include "store/Programm.h"

#include <QDir>
#include <QPixmap>
#include <QTemporaryDir>

#include <functional>

class QComboBox;
class Pflanzenfenster;

/* Where pictures of the program's windows are taken: a program folder of its own, so that nothing is written beside the program, and settings
   that nobody has changed. */
class Studio
{
public:
    /// `programm` is a program folder with its pictures; the main window gets the size `mass`. Pictures go to `ziel`. Throws where it is none.
    Studio(const QString &programm, const QString &datenbank, const QDir &ziel, QSize mass);

    /// As PNG. Throws where there is no picture or no place for it.
    void ablegen(const QString &name, const QPixmap &bild) const;
    /// What an action opens as a dialog is looked at by `ansehen`, and goes again. Throws where none opens.
    static void dialog(const QString &name, const std::function<void()> &aktion, const std::function<void(QWidget &)> &ansehen);
    /// Shows the first plant whose name begins so; the first one of all where there is none.
    static void pflanze(Pflanzenfenster &form, const QString &anfang);

    Programm programm;

private:
    QTemporaryDir ordner_;
    QDir ziel_;
};

/// A window, or by `aufnehmen` whatever else, as soon as it no longer changes: previews come one by one. The same picture in every run.
QPixmap ruhig(QWidget &fenster, const std::function<QPixmap()> &aufnehmen = {});
/// No settings and no scaling of the machine's reach the pictures. Before there is an application.
void umgebungStellen(const QTemporaryDir &einstellungen);
