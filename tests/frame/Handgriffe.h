#pragma once

#include "plantwindows/Pflanzenfenster.h"
#include "tests/Hilfen.h"

#include <QCheckBox>
#include <QMdiSubWindow>
#include <QPlainTextEdit>

class Bildknopf;
class Filterdialog;
class QMessageBox;

/* What a hand does in the main window: press, type, answer. Nothing here knows how the windows work inside. */
namespace hand {

/// The main window is the active one, as after a click into it.
void nachVorn(Pflanzenfenster *form);
QMdiSubWindow *unterfenster(Pflanzenfenster *form);
/// Presses the middle of a window's title bar.
void titelleiste(Pflanzenfenster *form);
/// Presses the close button in a window's title bar.
void schliessknopf(Pflanzenfenster *form);
/// Ctrl + F4 behind a press of the title bar.
void schliessen(Pflanzenfenster *form);
Bildknopf *knopf(Pflanzenfenster *form, const char *name);
/// Presses a picture button of a window.
void klick(Pflanzenfenster *form, const char *name);
/// The note; its tab comes to the front.
QPlainTextEdit *notiz(Pflanzenfenster *form);
QCheckBox *eigenschaft(Pflanzenfenster *form, int i);
void ankreuzen(Pflanzenfenster *form, int i);
/// Keys for whatever has the focus.
void tippen(const QString &text);
void taste(Qt::Key taste, Qt::KeyboardModifiers umschalter = Qt::NoModifier);
/// Clicks into the note and types at its end.
void notieren(Pflanzenfenster *form, const QString &text);
/// Presses a button of a dialog.
void druecken(QWidget *dialog, const char *name);
/// Note and properties of a plant in the working database, as "note/properties".
QString gespeichert(const Programmordner &ordner, Sparte sparte, qint64 artnr);
/// Rows of a window's main table in its private copy.
qint64 zeilenDerKopie(Pflanzenfenster *form);

} // namespace hand

/// Answers the message boxes that open while it lives with the buttons named, in turn; then with the default button, or by closing the box.
class Antworten : public QObject
{
public:
    explicit Antworten(const QStringList &knoepfe = {});
    QStringList texte;
    QList<QStringList> angeboten; ///< captions of the buttons of each box
    /// Called while a box stands open, before it is answered.
    std::function<void()> davor;

private:
    void antworten(QMessageBox &box);

    QStringList knoepfe_;
    QTimer takt_;
};

/// The working database takes no change of a plant for as long as this lives; told at once, without waiting.
class Schreibverbot
{
public:
    explicit Schreibverbot(const Programmordner &ordner);
    ~Schreibverbot();
    Schreibverbot(const Schreibverbot &) = delete;
    Schreibverbot &operator=(const Schreibverbot &) = delete;

private:
    std::shared_ptr<Datenbank> db_;
};

/// A second user of a database file who is about to write: reading goes on, writing has to wait.
class Schreibsperre
{
public:
    explicit Schreibsperre(const QString &pfad);
    ~Schreibsperre();
    Schreibsperre(const Schreibsperre &) = delete;
    Schreibsperre &operator=(const Schreibsperre &) = delete;

private:
    struct sqlite3 *db_ = nullptr;
};
