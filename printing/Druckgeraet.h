#pragma once

#include "Druckfortschritt.h"
#include "Druckseiten.h"
#include "store/Fehler.h"

#include <QPageLayout>

#include <memory>

class QPagedPaintDevice;
class QPrinter;
class QWidget;

/* Where a printout goes. */

/// The device is not there or cannot be started.
class Geraetefehler : public Fehler
{
public:
    Geraetefehler()
        : Fehler(QStringLiteral("Es ist ein Problem mit dem Drucker aufgetreten!\n\n"
                                "Entweder er ist nicht richtig installiert oder  nicht betriebsbereit.\nBitte überprüfen!"))
    {
    }
};

class Druckgeraet
{
public:
    virtual ~Druckgeraet() = default;
    /// Paper and printable area. Throws Geraetefehler.
    virtual QPageLayout blatt() const = 0;
    /// What it is, for the user.
    virtual QString name() const = 0;
    /// Whether it writes a PDF file, whose path `drucken` needs.
    virtual bool schreibtDatei() const = 0;
    /// Path that the user chose with the device; empty: none.
    virtual QString datei() const { return {}; }
    /// The set-up dialog; false when it was cancelled.
    virtual bool einrichten(QWidget *eltern) = 0;
    /// Prints all pages and tells of each. Throws Geraetefehler, or Fehler where a file cannot be written; the old file is kept
    /// then. Cancelled by `fortschritt` it leaves no file; a printer may have taken the pages before.
    virtual void drucken(const Druckseiten &seiten, const QString &titel, const QString &datei, const Druckfortschritt &fortschritt) = 0;
};

/// The system's printer, or a PDF file where none is installed.
class Systemdrucker : public Druckgeraet
{
public:
    Systemdrucker();
    ~Systemdrucker() override;

    QPageLayout blatt() const override;
    QString name() const override;
    bool schreibtDatei() const override;
    QString datei() const override;
    bool einrichten(QWidget *eltern) override;
    void drucken(const Druckseiten &seiten, const QString &titel, const QString &datei, const Druckfortschritt &fortschritt) override;

private:
    void raenderAnpassen();

    std::unique_ptr<QPrinter> drucker_;
    QString vorschlag_; ///< path that nobody chose
};

/// Paints all pages on a device at its own resolution; false, with part of them painted, when it fails.
bool seitenMalen(const Druckseiten &seiten, QPagedPaintDevice &geraet, const Druckfortschritt &fortschritt = {});
/// Folder that files are offered in first: the user's documents.
QString dateiordner();
/// Writes the pages as a PDF file. Throws Fehler, with an old file kept, where it cannot be written.
void pdfSchreiben(const Druckseiten &seiten, const QPageLayout &blatt, const QString &titel, const QString &datei,
                  const Druckfortschritt &fortschritt = {});
