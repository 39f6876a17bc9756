#pragma once

#include "Druckhilfen.h"

#include "controls/Geschuetzt.h"
#include "printing/Druckgeraet.h"
#include "printing/Seitenvorschau.h"
#include "printing/frmDrucken.h"
#include "tests/Dateiwahl.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

/* What the tests of the print dialog share. */

/// Notes what it is given to print.
class Probegeraet : public Druckgeraet
{
public:
    struct Ausdruck
    {
        QStringList abschrift;
        QString titel, datei;
        Qt::CursorShape zeiger;
    };

    QPageLayout blatt() const override;
    QString name() const override { return QStringLiteral("Probe & Druck"); }
    bool schreibtDatei() const override { return dateien; }
    QString datei() const override { return vorgewaehlt; }
    bool einrichten(QWidget *eltern) override;
    void drucken(const Druckseiten &seiten, const QString &titel, const QString &datei, const Druckfortschritt &fortschritt) override;

    QPageLayout papier = blattA4();
    bool fehlt = false, dateien = false;
    QString vorgewaehlt;
    std::function<bool()> beimEinrichten;
    std::function<void()> stoerung;
    QList<QWidget *> einrichter;
    QList<Ausdruck> gedruckt;
    QList<std::pair<qsizetype, qsizetype>> gemeldet; ///< what the progress was told
};

/// Answers message boxes and keeps all they say.
class Boxen : public QObject
{
public:
    /// Without a button by Escape.
    explicit Boxen(QMessageBox::StandardButton antwort = QMessageBox::Ok);

    QStringList gesagt; ///< "title: text"
    QMessageBox::Icon bild = QMessageBox::NoIcon;
    QMessageBox::StandardButtons knoepfe;

private:
    QTimer takt_;
};

extern const QString druckerproblem; ///< what the box about the printer says

/// A dialog for the plants of one Sparte, on a device of its own.
class Dialogprobe
{
protected:
    void neu(Sparte sparte = Sparte::Topf);
    /// Shows the dialog; where the device works it stands with its preview afterwards.
    void oeffnen(Druckgeraet &geraet);
    void oeffnen() { oeffnen(geraet_); }
    template<typename T = QPushButton>
    T *finde(const char *name)
    {
        T *gefunden = form_->findChild<T *>(QLatin1String(name));
        if (!gefunden)
            qFatal("There is no control '%s'.", name);
        return gefunden;
    }
    void druecken(const char *name) { QTest::mouseClick(finde(name), Qt::LeftButton); }
    void waehlen(bool liste) { finde<QRadioButton>(liste ? "optDruckFrage_1" : "optDruckFrage_0")->click(); }
    /// What the preview shows.
    QStringList gezeigt() { return abschrift(finde<Seitenvorschau>("picVorschau")->seiten()); }
    Druckseiten erwartet(bool liste) { return liste ? probe_->liste(geraet_.papier) : probe_->blatt(geraet_.papier); }
    /// What it should show.
    QStringList alleSeiten(bool liste) { return abschrift(erwartet(liste)); }
    /// Neither closed nor left with a wait cursor.
    bool offen() const { return form_->isVisible() && form_->cursor().shape() == Qt::ArrowCursor; }
    bool zu() const { return !form_->isVisible() && form_->cursor().shape() == Qt::ArrowCursor; }

    std::unique_ptr<Druckprobe> probe_;
    Probegeraet geraet_;
    bool fenster_ = true; ///< whether a plant window is active
    std::unique_ptr<frmDrucken> form_;
};
