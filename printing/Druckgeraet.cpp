#include "Druckgeraet.h"

#include "store/Dateien.h"

#include <QBuffer>
#include <QDialogButtonBox>
#include <QDir>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QStandardPaths>

namespace {

constexpr int aufloesung = 300; // dots to the inch

/// A file that does not exist yet.
QString freierName(const QString &ordner)
{
    const QDir dir(ordner);
    QString name = QStringLiteral("Flox.pdf");
    for (int i = 2; dir.exists(name); ++i)
        name = QStringLiteral("Flox %1.pdf").arg(i);
    return dir.filePath(name);
}

} // namespace

bool seitenMalen(const Druckseiten &seiten, QPagedPaintDevice &geraet, const Druckfortschritt &fortschritt)
{
    QPainter maler;
    if (!maler.begin(&geraet))
        return false;
    for (size_t i = 0; i < seiten.seiten.size(); ++i) {
        if (fortschritt)
            fortschritt(qsizetype(i), qsizetype(seiten.seiten.size()));
        if (i > 0 && !geraet.newPage())
            return false;
        seiteMalen(maler, seiten.seiten[i], geraet.logicalDpiX() / mmProZoll);
    }
    return maler.end();
}

QString dateiordner()
{
    const QString dokumente = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(dokumente).isDir() ? dokumente : QDir::homePath();
}

void pdfSchreiben(const Druckseiten &seiten, const QPageLayout &blatt, const QString &titel, const QString &datei,
                  const Druckfortschritt &fortschritt)
{
    // The writer does not tell of a full disk: it writes to memory, and the file is written whole or not at all.
    QByteArray inhalt;
    QBuffer puffer(&inhalt);
    puffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter pdf(&puffer);
        pdf.setResolution(int(Schriftmass::einheitenProZoll));
        pdf.setPageLayout(blatt);
        pdf.setTitle(titel);
        pdf.setCreator(QStringLiteral("Flox"));
        if (!seitenMalen(seiten, pdf, fortschritt))
            throw Geraetefehler();
    }
    schreibeSicher(datei, inhalt);
}

Systemdrucker::Systemdrucker() : drucker_(std::make_unique<QPrinter>(QPrinter::HighResolution))
{
    if (schreibtDatei()) {
        drucker_->setPageSize(QPageSize(QPageSize::A4));
        // The set-up dialog shows a path in any case and asks where it is taken.
        vorschlag_ = freierName(dateiordner());
        drucker_->setOutputFileName(vorschlag_);
    }
    drucker_->setResolution(aufloesung);
    raenderAnpassen();
}

Systemdrucker::~Systemdrucker() = default;

void Systemdrucker::raenderAnpassen()
{
    // As much of the paper as the device can reach; on a PDF page that is all of it.
    QPageLayout layout = drucker_->pageLayout();
    if (schreibtDatei())
        layout.setMinimumMargins({});
    layout.setMargins(layout.minimumMargins());
    drucker_->setPageLayout(layout);
}

QPageLayout Systemdrucker::blatt() const
{
    if (!drucker_->isValid())
        throw Geraetefehler();
    return drucker_->pageLayout();
}

QString Systemdrucker::name() const
{
    return schreibtDatei() ? QStringLiteral("PDF-Datei") : drucker_->printerName();
}

bool Systemdrucker::schreibtDatei() const
{
    return drucker_->outputFormat() == QPrinter::PdfFormat;
}

QString Systemdrucker::datei() const
{
    return drucker_->outputFileName() == vorschlag_ ? QString() : drucker_->outputFileName();
}

bool Systemdrucker::einrichten(QWidget *eltern)
{
    // The dialog changes its printer before it is accepted.
    auto neu = std::make_unique<QPrinter>(QPrinter::HighResolution);
    if (schreibtDatei())
        neu->setOutputFileName(drucker_->outputFileName());
    else
        neu->setPrinterName(drucker_->printerName());
    neu->setOutputFormat(drucker_->outputFormat());
    neu->setPageLayout(drucker_->pageLayout());
    neu->setResolution(aufloesung);
    neu->setCopyCount(drucker_->copyCount());
    neu->setCollateCopies(drucker_->collateCopies());
    neu->setDuplex(drucker_->duplex());
    neu->setColorMode(drucker_->colorMode());
    neu->setPaperSource(drucker_->paperSource());
    neu->setPageOrder(drucker_->pageOrder());
    QPrintDialog dialog(neu.get(), eltern);
    dialog.setWindowTitle(QStringLiteral("Druckereinrichtung"));
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize);
    // Its own button promises to print at once.
    if (auto *tasten = dialog.findChild<QDialogButtonBox *>(); tasten && tasten->button(QDialogButtonBox::Ok))
        tasten->button(QDialogButtonBox::Ok)->setText(QStringLiteral("OK"));
    if (dialog.exec() != QDialog::Accepted)
        return false;
    drucker_ = std::move(neu);
    raenderAnpassen();
    return true;
}

void Systemdrucker::drucken(const Druckseiten &seiten, const QString &titel, const QString &datei, const Druckfortschritt &fortschritt)
{
    if (schreibtDatei()) {
        pdfSchreiben(seiten, blatt(), titel, datei, fortschritt);
        return;
    }
    drucker_->setDocName(titel);
    drucker_->setCreator(QStringLiteral("Flox"));
    try {
        if (seitenMalen(seiten, *drucker_, fortschritt))
            return;
    } catch (const Druckabbruch &) {
        drucker_->abort();
        throw;
    }
    drucker_->abort(); // half a printout is none
    throw Geraetefehler();
}
