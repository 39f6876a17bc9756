#pragma once

#include "controls/Steuerelemente.h"
#include "plantwindows/Beschreibung.h"
#include "plantwindows/Pflanzenfenster.h"
#include "tests/Hilfen.h"

#include <QMap>
#include <QVariant>

#include <memory>
#include <vector>

/* What the tests of plant windows share. */

/// All elements of a description, in the order they are shown.
std::vector<const Element *> alleElemente(const Fensterbeschreibung &beschreibung);

/// A plant window on a program folder of its own.
class Fensterprobe
{
public:
    explicit Fensterprobe(Sparte sparte = Sparte::Topf, int nummer = 1);
    /// A window of the test's own description, which must live as long.
    explicit Fensterprobe(const Fensterbeschreibung &beschreibung, int nummer = 1);

    /// Before the window is opened: the working database keeps only the first records of the Sparte, all of them rated high
    /// enough to be shown.
    void nurPflanzen(int anzahl);
    /// Before the window is opened: every record is rated high enough to be shown.
    void alleZeigen();
    /// First activation and show.
    void oeffnen();
    /// Another window of the same program; it is not opened.
    std::unique_ptr<Pflanzenfenster> weiteres(int nummer);

    using Werte = QMap<QString, QVariant>;
    /// Sets fields of the current record in the window's copy and shows it again; an invalid value is a null.
    void setzen(const Werte &werte);
    /// Every field but the key and the names is null.
    void leeren();
    /// Sets a field of a record of the working database.
    void arbeitSetzen(qint64 artnr, const QString &feld, const QVariant &wert);
    QString arbeitLesen(qint64 artnr, const QString &feld);

    template<typename T = QWidget>
    T *finde(const QString &name)
    {
        T *gefunden = fenster->findChild<T *>(name);
        if (!gefunden)
            qFatal("There is no control '%s'.", qPrintable(name));
        return gefunden;
    }
    Farbzelle *zelle(const QString &stamm, int i) { return finde<Farbzelle>(QStringLiteral("%1_%2").arg(stamm).arg(i)); }
    Bildknopf *knopf(const char *name) { return finde<Bildknopf>(QString::fromLatin1(name)); }
    /// Text of a label or a text box.
    QString text(const QString &name);
    /// Not hidden by its window, on whatever tab it stands.
    bool gezeigt(const QString &name) { return !finde(name)->isHidden(); }
    /// Positions, counted from 0, of the array's controls for which `ja` holds.
    template<typename Ja>
    QList<int> stellen(const QString &stamm, Ja ja)
    {
        QList<int> gefunden;
        for (int i = 0; auto *control = fenster->findChild<QWidget *>(QStringLiteral("%1_%2").arg(stamm).arg(i)); ++i)
            if (ja(control))
                gefunden += i;
        return gefunden;
    }
    /// Brings the tab to the front on which a control stands.
    void reiterVon(const QString &name);
    QString panel(int nummer) { return text(QStringLiteral("stbAnzeige_%1").arg(nummer)); }
    void klick(const char *knopfname);
    /// The mouse, no button pressed, moves over a control.
    static void mausBewegen(QWidget *control, QPoint stelle = {1, 1});
    QString name() { return fenster->Auslesen(QStringLiteral("BOT_NAME")); }

    Programmordner ordner;
    Programm programm;
    Testzentrale zentrale;
    std::unique_ptr<Pflanzenfenster> fenster;
};

/// Checks one element of a description with an empty and with a filled field, controls and caption; fails the running test.
void elementPruefen(Fensterprobe &probe, const Element &element);
