#include "frmDrucken.h"

#include "Druckgeraet.h"
#include "Seitenvorschau.h"
#include "frmTabelle.h"
#include "controls/Geschuetzt.h"
#include "controls/Sanduhr.h"
#include "store/Dateien.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QShowEvent>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int dinA4 = 9; // number of the paper size

/// Without characters that file systems do not take.
QString dateiname(QString text, QStringView endung)
{
    static const QRegularExpression fremd(QStringLiteral("[^\\w .,()+-]"), QRegularExpression::UseUnicodePropertiesOption);
    text = text.remove(fremd).simplified();
    return (text.isEmpty() ? QStringLiteral("Flox") : text).append(endung);
}

/// Shows how far a long output is, with a button that cancels it.
class Fortschrittsfenster
{
public:
    Fortschrittsfenster(QWidget *eltern, const QString &text, std::chrono::milliseconds geduld)
        : dialog_(text, QStringLiteral("Abbrechen"), 0, 0, eltern)
    {
        dialog_.setObjectName(QStringLiteral("dlgFortschritt"));
        dialog_.setWindowTitle(QStringLiteral("Drucken"));
        dialog_.setWindowModality(Qt::WindowModal);
        dialog_.setMinimumDuration(int(geduld.count()));
        dialog_.setMinimumWidth(320);
        dialog_.setAutoReset(false);
        dialog_.setAutoClose(false);
        dialog_.setValue(0);
    }
    void melden(qsizetype fertig, qsizetype gesamt)
    {
        dialog_.setMaximum(int(gesamt));
        dialog_.setValue(int(fertig));
        if (dialog_.wasCanceled())
            throw Druckabbruch();
    }

private:
    QProgressDialog dialog_;
};

QString satzUeberGekuerzte(const QStringList &texte)
{
    constexpr qsizetype hoechstens = 20; // a box must fit on the screen
    if (texte.size() == 1)
        return QStringLiteral("Der Text \"%1\" ist zu lang. Nur seine ersten 100 Zeilen werden gedruckt.").arg(texte.constFirst());
    QString satz = QStringLiteral("Diese Texte sind zu lang. Nur ihre ersten 100 Zeilen werden gedruckt:\n");
    for (const QString &text : texte.first(std::min(texte.size(), hoechstens)))
        satz += QStringLiteral("\n\"%1\"").arg(text);
    if (texte.size() > hoechstens)
        satz += QStringLiteral("\nund %1 weitere").arg(texte.size() - hoechstens);
    return satz;
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

frmDrucken::frmDrucken(Programm &programm, Blattmacher macher, Druckgeraet &geraet, QWidget *eltern)
    : QDialog(eltern), programm_(programm), macher_(std::move(macher)), geraet_(geraet)
{
    setObjectName(QStringLiteral("frmDrucken"));
    setWindowTitle(QStringLiteral("Drucken"));
    aufbauen();
    optDruckFrage_[0]->setChecked(true);
    optDruckFrage_[0]->parentWidget()->hide();
}

void frmDrucken::aufbauen()
{
    auto *fraDruckFrage = new QGroupBox(QStringLiteral("Was soll gedruckt werden ?"), this);
    fraDruckFrage->setObjectName(QStringLiteral("fraDruckFrage"));
    fraDruckFrage->setProperty("karte", true);
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
    cmdTabelle_ = taste("cmdTabelle", QStringLiteral("Tabelle speichern"), [this] { cmdTabelle_Click(); });
    cmdTabelle_->setToolTip(QStringLiteral("Die gefilterten Pflanzen mit wählbaren Spalten für Tabellenprogramme speichern"));
    cmdTabelle_->setEnabled(false);
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
    links->addSpacing(8);
    links->addWidget(cmdTabelle_, 0, Qt::AlignLeft);
    links->addStretch();
    links->addLayout(tasten);
    vorschau_ = new Seitenvorschau(this);
    vorschau_->setObjectName(QStringLiteral("picVorschau"));
    const auto blaetterer = [this](const char *objektname, Qt::ArrowType pfeil, const QString &text, int schritt) {
        auto *knopf = new QToolButton(this);
        knopf->setObjectName(QString::fromLatin1(objektname));
        knopf->setArrowType(pfeil);
        knopf->setAutoRaise(true);
        knopf->setFocusPolicy(Qt::StrongFocus);
        knopf->setAccessibleName(text);
        knopf->setToolTip(text);
        connect(knopf, &QToolButton::clicked, this, [this, schritt] { vorschau_->setSeite(vorschau_->seite() + schritt); });
        return knopf;
    };
    cmdSeiteZurueck_ = blaetterer("cmdSeiteZurueck", Qt::LeftArrow, QStringLiteral("vorige Seite"), -1);
    cmdSeiteVor_ = blaetterer("cmdSeiteVor", Qt::RightArrow, QStringLiteral("nächste Seite"), 1);
    lblSeite_ = new QLabel(this);
    lblSeite_->setObjectName(QStringLiteral("lblSeite"));
    lblSeite_->setAlignment(Qt::AlignCenter);
    lblSeite_->setMinimumWidth(lblSeite_->fontMetrics().horizontalAdvance(QStringLiteral("Seite 0000 von 0000")));
    connect(vorschau_, &Seitenvorschau::gewechselt, this, [this] { seiteBenennen(); });
    auto *blaettern = new QHBoxLayout;
    blaettern->addStretch();
    for (QWidget *teil : std::initializer_list<QWidget *>{cmdSeiteZurueck_, lblSeite_, cmdSeiteVor_})
        blaettern->addWidget(teil);
    blaettern->addStretch();
    auto *rechts = new QVBoxLayout;
    rechts->addWidget(vorschau_, 1);
    rechts->addLayout(blaettern);
    auto *alles = new QHBoxLayout(this);
    alles->setContentsMargins(12, 12, 12, 12);
    alles->setSpacing(12);
    alles->addLayout(links);
    alles->addLayout(rechts, 1);
    // From top to bottom.
    setTabOrder(optDruckFrage_[1], cmdEinrichten);
    setTabOrder(cmdEinrichten, cmdTabelle_);
    setTabOrder(cmdTabelle_, cmdDruck);
    setTabOrder(cmdDruck, cmdAbbruch);
    setTabOrder(cmdAbbruch, cmdSeiteZurueck_);
    setTabOrder(cmdSeiteZurueck_, cmdSeiteVor_);
    seiteBenennen();
    connect(optDruckFrage_[1], &QRadioButton::toggled, this, [this](bool liste) {
        cmdTabelle_->setEnabled(liste);
        vorschauen();
    });
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
    if (macher_) {
        Printer drucker(geraet_.blatt(), hoechstens);
        const QString titel = macher_(drucker);
        return Ausdruck{drucker.EndDoc(), titel, {}};
    }
    const std::optional<Druckauftrag> auftrag = auftrag_();
    if (!auftrag)
        return std::nullopt;
    const bool liste = optDruckFrage_[1]->isChecked();
    Printer drucker(geraet_.blatt(), hoechstens);
    Druck druck(programm_, *auftrag, drucker);
    Fortschrittsfenster fenster(this, QStringLiteral("Der Ausdruck wird vorbereitet ..."), geduld);
    if (hoechstens == std::numeric_limits<size_t>::max())
        druck.fortschritt = [&](qsizetype fertig, qsizetype gesamt) { fenster.melden(fertig, gesamt); };
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
    gezaehlt_ = false;
    vorschau_->zeigen({});
    geschuetztAusfuehren(this, [this] {
        const Sanduhr sanduhr(this);
        try {
            lblDrucker_->setText(QStringLiteral("Drucker: %1\nPapier: %2").arg(geraet_.name(), geraet_.blatt().pageSize().name()));
            // Who does not wait for the last page still sees the first one.
            const auto auszug = [this]() -> std::optional<Ausdruck> {
                try {
                    std::optional<Ausdruck> ganz = auslegen();
                    gezaehlt_ = ganz.has_value();
                    return ganz;
                } catch (const Druckabbruch &) {
                    return auslegen(1);
                }
            };
            if (std::optional<Ausdruck> ausdruck = auszug())
                vorschau_->zeigen(std::move(ausdruck->seiten));
        } catch (const Geraetefehler &fehler) {
            geraetefehlerZeigen(fehler);
            reject();
        }
    });
}

void frmDrucken::seiteBenennen()
{
    const int anzahl = int(vorschau_->seiten().seiten.size()), seite = vorschau_->seite() + 1;
    lblSeite_->setText(anzahl == 0 ? QString()
                       : gezaehlt_ ? QStringLiteral("Seite %1 von %2").arg(seite).arg(anzahl)
                                   : QStringLiteral("Seite %1").arg(seite));
    vorschau_->setAccessibleName(anzahl == 0 ? QStringLiteral("Vorschau") : QStringLiteral("Vorschau: %1").arg(lblSeite_->text()));
    cmdSeiteZurueck_->setEnabled(seite > 1);
    cmdSeiteVor_->setEnabled(seite < anzahl);
}

void frmDrucken::keyPressEvent(QKeyEvent *ereignis)
{
    switch (ereignis->key()) {
    case Qt::Key_PageUp: vorschau_->setSeite(vorschau_->seite() - 1); break;
    case Qt::Key_PageDown: vorschau_->setSeite(vorschau_->seite() + 1); break;
    case Qt::Key_Home: vorschau_->setSeite(0); break;
    case Qt::Key_End: vorschau_->setSeite(int(vorschau_->seiten().seiten.size()) - 1); break;
    default: QDialog::keyPressEvent(ereignis);
    }
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

QString frmDrucken::dateiErfragen(const QString &titel, const QString &vorschlag, const QList<Dateiart> &arten)
{
    QStringList muster;
    for (const Dateiart &art : arten)
        muster += art.muster;
    // The suffix is added here: the dialog leaves a name with a dot, as in a date, without it. So the question is asked here, too.
    for (QString datei = vorschlag;;) {
        const QString ordner = QFileInfo(programm_.DruckOrdner).isDir() ? programm_.DruckOrdner : dateiordner();
        QFileDialog dialog(this, titel, ordner, muster.join(QStringLiteral(";;")));
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setFileMode(QFileDialog::AnyFile);
        dialog.setOption(QFileDialog::DontConfirmOverwrite);
        dialog.selectFile(datei);
        if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
            return {};
        datei = dialog.selectedFiles().constFirst();
        const auto genannt = [&](const Dateiart &art) { return datei.endsWith(art.endung, Qt::CaseInsensitive); };
        if (const qsizetype gewaehlt = muster.indexOf(dialog.selectedNameFilter()); std::ranges::none_of(arten, genannt))
            datei += arten[std::max<qsizetype>(0, gewaehlt)].endung;
        const QString frage = QStringLiteral("Die Datei \"%1\" gibt es schon.\nSoll sie ersetzt werden?").arg(QFileInfo(datei).fileName());
        if (!QFileInfo::exists(datei)
            || QMessageBox::warning(this, dialog.windowTitle(), frage, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes)
            return datei;
    }
}

void frmDrucken::cmdTabelle_Click()
{
    const std::optional<Druckauftrag> auftrag = auftrag_();
    if (!auftrag)
        return;
    frmTabelle form(tabellenspalten(auftrag->sparte), this);
    if (form.exec() != QDialog::Accepted)
        return;
    const Dateiart ods{QStringLiteral("OpenDocument-Tabelle (*.ods)"), QStringLiteral(".ods")};
    const Dateiart csv{QStringLiteral("CSV-Datei (*.csv)"), QStringLiteral(".csv")};
    const QString datei = dateiErfragen(form.windowTitle(), dateiname(eintrag(auftrag->sparte).titel.toString(), {}), {ods, csv});
    if (datei.isEmpty())
        return;
    try {
        const Sanduhr sanduhr(this);
        Fortschrittsfenster fenster(this, QStringLiteral("Die Tabelle wird geschrieben ..."), geduld);
        const Datentabelle inhalt =
            datentabelle(programm_, *auftrag, form.gewaehlt(), [&](qsizetype fertig, qsizetype gesamt) { fenster.melden(fertig, gesamt); });
        schreibeSicher(datei, datei.endsWith(csv.endung, Qt::CaseInsensitive) ? alsCsv(inhalt) : alsOds(inhalt));
    } catch (const Druckabbruch &) {
        return;
    }
    gespeichert_ = datei;
    programm_.DruckOrdner = QFileInfo(datei).absolutePath();
    accept();
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
            const Dateiart pdf{QStringLiteral("PDF-Dateien (*.pdf)"), QStringLiteral(".pdf")};
            datei = dateiErfragen(QStringLiteral("Ausdruck speichern"),
                                  geraet_.datei().isEmpty() ? dateiname(ausdruck->titel, pdf.endung) : geraet_.datei(), {pdf});
            if (datei.isEmpty())
                return;
        }
        if (!ausdruck->gekuerzt.isEmpty())
            QMessageBox::information(this, programmtitel.toString(), satzUeberGekuerzte(ausdruck->gekuerzt));
        const Sanduhr sanduhr(this);
        Fortschrittsfenster fenster(this, QStringLiteral("Der Ausdruck wird ausgegeben ..."), geduld);
        geraet_.drucken(ausdruck->seiten, ausdruck->titel, datei, [&](qsizetype fertig, qsizetype gesamt) { fenster.melden(fertig, gesamt); });
        gespeichert_ = datei;
        if (!datei.isEmpty())
            programm_.DruckOrdner = QFileInfo(datei).absolutePath();
    } catch (const Druckabbruch &) {
        return;
    } catch (const Geraetefehler &fehler) {
        geraetefehlerZeigen(fehler);
    }
    accept();
}
