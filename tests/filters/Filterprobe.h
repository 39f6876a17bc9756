#pragma once

#include "Filterhilfen.h"

#include "controls/Steuerelemente.h"
#include "filters/Filterdialog.h"
#include "plantwindows/Beschreibung.h"
#include "plantwindows/Pflanzenfenster.h"
#include "store/Fehler.h"
#include "store/Recordset.h"
#include "tests/Dateiwahl.h"
#include "tests/Hilfen.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTabWidget>
#include <QSignalSpy>
#include <QTest>

#include <memory>

/// A plant window with its filter dialog, on a program folder of its own.
class Filterprobe
{
public:
    explicit Filterprobe(Sparte sparte = Sparte::Topf);

    /// First activation and show.
    void oeffnen();
    /// "Filter definieren".
    void dialogZeigen();
    Filterdialog &dialog() { return *fenster->filterdialog(); }
    std::unique_ptr<Pflanzenfenster> weiteres(Sparte sparte, int nummer);

    /// A control of the dialog.
    template<typename T = QWidget>
    T *finde(const QString &name)
    {
        T *gefunden = dialog().findChild<T *>(name);
        if (!gefunden)
            qFatal("The dialog has no control '%s'.", qPrintable(name));
        return gefunden;
    }
    template<typename T = QWidget>
    T *element(const QString &stamm, int i)
    {
        return finde<T>(QStringLiteral("%1_%2").arg(stamm).arg(i));
    }
    QCheckBox *box(const QString &stamm, int i) { return element<QCheckBox>(stamm, i); }
    QLineEdit *feld(const char *name) { return finde<QLineEdit>(QString::fromLatin1(name)); }
    /// Brings the tab of a control to the front and clicks it.
    void klicken(QWidget *control);
    void zeigen(QWidget *control);
    /// A button of the dialog.
    void taste(const char *name) { klicken(finde<QPushButton>(QString::fromLatin1(name))); }

    Bildknopf *knopf(const char *name);
    /// A button of the window.
    void klick(const char *name);
    /// Pictures and availability of the two buttons that a run touches, FilterEin and FilterGesetzt.
    QString filterlage();

    /// Numbers of the plants in the window's set, in rising order.
    QList<qint64> pflanzen();
    /// Numbers of the plants in the working database for which a condition holds, in rising order.
    QList<qint64> arbeit(const QString &bedingung);
    void arbeitAendern(const QString &sql, const QVariantList &werte = {});
    QString park(int nummer = 1);

    Programmordner ordner;
    Programm programm;
    Testzentrale zentrale;
    std::unique_ptr<Pflanzenfenster> fenster;
};
