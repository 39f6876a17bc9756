#include "frmDrucken.h"

#include "Druckgeraet.h"
#include "Seitenvorschau.h"
#include "controls/Geschuetzt.h"
#include "controls/Sanduhr.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QShowEvent>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr int dinA4 = 9; // number of the paper size
constexpr QStringView endung = u".pdf";

/// Without characters that file systems do not take.
QString dateiname(QString text)
{
    static const QRegularExpression fremd(QStringLiteral("[^\\w .,()+-]"), QRegularExpression::UseUnicodePropertiesOption);
    text = text.remove(fremd).simplified();
    return (text.isEmpty() ? QStringLiteral("Flox") : text).append(endung);
}

} // namespace

frmDrucken::frmDrucken(Programm &programm, std::function<std::optional<Druckauftrag>()> auftrag, Druckgeraet &geraet, QWidget *eltern)
    : QDialog(eltern), programm_(programm), auftrag_(std::move(auftrag)), geraet_(geraet)
{
    setObjectName(QStringLiteral("frmDrucken"));
    setWindowTitle(QStringLiteral("Drucken"));
    programm_.SchriftGroesse = 9;
    aufbauen();
    const std::optional<Druckauftrag> aktuell = auftrag_();
    optDruckFrage_[0]->setChecked(true);
    optDruckFrage_[1]->setEnabled(aktuell && aktuell->FilterEin && aktuell->FilterGesetzt);
}

void frmDrucken::aufbauen()
{
    auto *fraDruckFrage = new QGroupBox(QStringLiteral("Was soll gedruckt werden ?"), this);
    fraDruckFrage->setObjectName(QStringLiteral("fraDruckFrage"));
    auto *fragen = new QVBoxLayout(fraDruckFrage);
    const QString texte[] = {QStringLiteral("aktuelle Pflanze"), QStringLiteral("Liste der gefilterten Pflanzen")};
    for (int i = 0; i < 2; ++i) {
        optDruckFrage_[i] = new QRadioButton(texte[i], fraDruckFrage);
        optDruckFrage_[i]->setObjectName(QStringLiteral("optDruckFrage_%1").arg(i));
        fragen->addWidget(optDruckFrage_[i]);
    }
    const auto taste = [this](const char *objektname, const QString &text, auto beiKlick) {
        auto *knopf = new QPushButton(text, this);
        knopf->setObjectName(QString::fromLatin1(objektname));
        connect(knopf, &QPushButton::clicked, this, geschuetzt(this, beiKlick));
        return knopf;
    };
    auto *cmdDruck = taste("cmdDruck", QStringLiteral("Druck"), [this] { cmdDruck_Click(); });
    auto *cmdAbbruch = taste("cmdAbbruch", QStringLiteral("Abbrechen"), [this] { reject(); });
    auto *cmdEinrichten = taste("cmdDruckerEinrichten", QStringLiteral("Druckereinrichtung"), [this] { cmdDruckerEinrichten_Click(); });
    cmdDruck->setDefault(true);
    lblDrucker_ = new QLabel(this);
    lblDrucker_->setObjectName(QStringLiteral("lblDrucker"));
    lblDrucker_->setTextFormat(Qt::PlainText);
    lblDrucker_->setWordWrap(true);

    auto *tasten = new QHBoxLayout;
    tasten->addStretch();
    tasten->addWidget(cmdDruck);
    tasten->addWidget(cmdAbbruch);
    auto *links = new QVBoxLayout;
    links->addWidget(fraDruckFrage);
    links->addSpacing(8);
    links->addWidget(lblDrucker_);
    links->addWidget(cmdEinrichten, 0, Qt::AlignLeft);
    links->addStretch();
    links->addLayout(tasten);
    vorschau_ = new Seitenvorschau(this);
    vorschau_->setObjectName(QStringLiteral("picVorschau"));
    vorschau_->setAccessibleName(QStringLiteral("Vorschau der ersten Seite"));
    vorschau_->setToolTip(QStringLiteral("Vorschau der ersten Seite"));
    auto *alles = new QHBoxLayout(this);
    alles->addLayout(links);
    alles->addSpacing(8);
    alles->addWidget(vorschau_, 1);
    // From top to bottom.
    setTabOrder(optDruckFrage_[1], cmdEinrichten);
    setTabOrder(cmdEinrichten, cmdDruck);
    setTabOrder(cmdDruck, cmdAbbruch);
    connect(optDruckFrage_[1], &QRadioButton::toggled, this, [this] { vorschauen(); });
    resize(720, 580);
}

void frmDrucken::showEvent(QShowEvent *ereignis)
{
    QDialog::showEvent(ereignis);
    // The box about a missing printer wants a dialog that stands.
    if (!ereignis->spontaneous())
        QTimer::singleShot(0, this, [this] { vorschauen(); });
}

std::optional<frmDrucken::Ausdruck> frmDrucken::auslegen(size_t hoechstens)
{
    const std::optional<Druckauftrag> auftrag = auftrag_();
    if (!auftrag)
        return std::nullopt;
    const bool liste = optDruckFrage_[1]->isChecked();
    Printer drucker(geraet_.blatt(), hoechstens);
    Druck druck(programm_, *auftrag, drucker);
    if (!(liste ? druck.DruckGefilterteListe() : druck.DruckAktuellePflanze()))
        return std::nullopt;
    QString titel = QStringLiteral("Flox");
    if (liste)
        titel = QStringLiteral("%1 - Liste").arg(eintrag(auftrag->sparte).titel);
    else if (auftrag->pflanzen && auftrag->pflanzen->AbsolutePosition() >= 0)
        titel = auftrag->pflanzen->Fields(u"BOT_NAME").Text();
    return Ausdruck{drucker.EndDoc(), titel, druck.gekuerzt()};
}

void frmDrucken::vorschauen()
{
    vorschau_->zeigen({});
    geschuetztAusfuehren(this, [this] {
        try {
            lblDrucker_->setText(QStringLiteral("Drucker: %1\nPapier: %2").arg(geraet_.name(), geraet_.blatt().pageSize().name()));
            if (std::optional<Ausdruck> ausdruck = auslegen(1))
                vorschau_->zeigen(std::move(ausdruck->seiten));
        } catch (const Geraetefehler &fehler) {
            geraetefehlerZeigen(fehler);
            reject();
        }
    });
}

void frmDrucken::geraetefehlerZeigen(const Geraetefehler &fehler)
{
    QMessageBox::warning(this, QStringLiteral("Probleme mit dem Drucker"), fehler.text(), QMessageBox::Ok | QMessageBox::Cancel);
}

void frmDrucken::cmdDruckerEinrichten_Click()
{
    if (geraet_.einrichten(this))
        vorschauen();
}

QString frmDrucken::dateiErfragen(const QString &vorschlag)
{
    // The suffix is added here: the dialog leaves a name with a dot, as in a date, without it. So the question is asked here, too.
    for (QString datei = vorschlag;;) {
        QFileDialog dialog(this, QStringLiteral("Ausdruck speichern"), dateiordner(), QStringLiteral("PDF-Dateien (*.pdf)"));
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setFileMode(QFileDialog::AnyFile);
        dialog.setOption(QFileDialog::DontConfirmOverwrite);
        dialog.selectFile(datei);
        if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
            return {};
        datei = dialog.selectedFiles().constFirst();
        if (!datei.endsWith(endung, Qt::CaseInsensitive))
            datei += endung;
        const QString frage = QStringLiteral("Die Datei \"%1\" gibt es schon.\nSoll sie ersetzt werden?").arg(QFileInfo(datei).fileName());
        if (!QFileInfo::exists(datei)
            || QMessageBox::warning(this, dialog.windowTitle(), frage, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes)
            return datei;
    }
}

void frmDrucken::cmdDruck_Click()
{
    try {
        if (Printer(geraet_.blatt()).PaperSize() != dinA4) {
            QMessageBox::information(this, programmtitel.toString(), QStringLiteral("Geht nicht"));
            return;
        }
        const std::optional<Ausdruck> ausdruck = [this] {
            const Sanduhr sanduhr(this);
            return auslegen();
        }();
        if (!ausdruck) {
            QMessageBox::information(this, programmtitel.toString(), QStringLiteral("Hoppla"));
            return;
        }
        QString datei;
        if (geraet_.schreibtDatei()) {
            datei = dateiErfragen(geraet_.datei().isEmpty() ? dateiname(ausdruck->titel) : geraet_.datei());
            if (datei.isEmpty())
                return;
        }
        if (ausdruck->gekuerzt)
            QMessageBox::information(this, programmtitel.toString(),
                                     (ausdruck->gekuerzt->isEmpty() ? QStringLiteral("Ein Text") : QStringLiteral("Der Text \"%1\"").arg(*ausdruck->gekuerzt))
                                         + QStringLiteral(" ist zu lang. Nur seine ersten 100 Zeilen werden gedruckt."));
        const Sanduhr sanduhr(this);
        geraet_.drucken(ausdruck->seiten, ausdruck->titel, datei);
    } catch (const Geraetefehler &fehler) {
        geraetefehlerZeigen(fehler);
    }
    accept();
}
