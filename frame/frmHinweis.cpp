#include "frmHinweis.h"

#include "Rtf.h"
#include "controls/Geschuetzt.h"
#include "store/Dateien.h"
#include "store/Pfade.h"

#include <QCheckBox>
#include <QDir>
#include <QHBoxLayout>
#include <QPushButton>
#include <QShowEvent>
#include <QTextBlockFormat>
#include <QTextCursor>
#include <QTextEdit>
#include <QTimer>
#include <QVBoxLayout>

namespace {

/// Files of the hints, by their numbers; 0 is none.
constexpr QStringView dateien[] = {u"", u"\\dbspeichern.htt", u"\\dbladen.htt"};

bool istHinweis(int nummer)
{
    return nummer == frmHinweis::speichern || nummer == frmHinweis::laden;
}

std::vector<Rtfabsatz> hinweistext(const Programm &programm)
{
    if (!istHinweis(programm.HinweisNummer))
        return {};
    const QString pfad = systemPfad(programm.ProgrammPfad + dateien[programm.HinweisNummer].toString());
    const auto text = rtfLesen(liesGanz(pfad));
    if (!text)
        throw Fehler(QStringLiteral("Die Datei '%1' ist kein Hinweistext.").arg(QDir::toNativeSeparators(pfad)));
    return *text;
}

void einsetzen(QTextEdit &ziel, const std::vector<Rtfabsatz> &absaetze)
{
    constexpr int abstand = 8; // pixels
    ziel.clear();
    QTextCursor ort(ziel.document());
    QTextBlockFormat format;
    format.setBottomMargin(abstand);
    format.setLineHeight(115, QTextBlockFormat::ProportionalHeight);
    for (const Rtfabsatz &absatz : absaetze) {
        if (&absatz == &absaetze.front())
            ort.setBlockFormat(format);
        else
            ort.insertBlock(format);
        for (const Rtflauf &lauf : absatz) {
            QTextCharFormat schrift;
            schrift.setFontWeight(lauf.fett ? QFont::Bold : QFont::Normal);
            schrift.setFontItalic(lauf.kursiv);
            ort.insertText(lauf.text, schrift);
        }
    }
    ziel.moveCursor(QTextCursor::Start);
}

} // namespace

frmHinweis::frmHinweis(Programm &programm, QWidget *eltern)
    : QDialog(eltern),
      programm_(programm),
      RichTextBox1_(new QTextEdit(this)),
      chkHinweis_(new QCheckBox(QStringLiteral("Diesen Hinweis nie wieder anzeigen"), this))
{
    setObjectName(QStringLiteral("frmHinweis"));
    setWindowTitle(QStringLiteral("Hinweis"));
    RichTextBox1_->setObjectName(QStringLiteral("RichTextBox1"));
    RichTextBox1_->setAccessibleName(QStringLiteral("Hinweis"));
    RichTextBox1_->setReadOnly(true);
    RichTextBox1_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    RichTextBox1_->setTabChangesFocus(true);
    constexpr int rand = 12; // pixels
    RichTextBox1_->document()->setDocumentMargin(rand);
    chkHinweis_->setObjectName(QStringLiteral("chkHinweis"));
    auto *cmdAusblenden = new QPushButton(QStringLiteral("Ausblenden"), this);
    cmdAusblenden->setObjectName(QStringLiteral("cmdAusblenden"));
    cmdAusblenden->setDefault(true);
    connect(cmdAusblenden, &QPushButton::clicked, this, &QDialog::accept);

    auto *unten = new QHBoxLayout;
    unten->addWidget(chkHinweis_);
    unten->addStretch();
    unten->addWidget(cmdAusblenden);
    auto *alles = new QVBoxLayout(this);
    alles->setContentsMargins(12, 12, 12, 12);
    alles->setSpacing(12);
    alles->addWidget(RichTextBox1_, 1);
    alles->addLayout(unten);
    resize(560, 420);
    cmdAusblenden->setFocus();
}

void frmHinweis::zeigen(Programm &programm, int nummer, QWidget *eltern)
{
    if (istHinweis(nummer) && programm.HinweisAus[size_t(nummer)])
        return;
    programm.HinweisNummer = nummer;
    frmHinweis(programm, eltern).exec();
}

void frmHinweis::showEvent(QShowEvent *ereignis)
{
    QDialog::showEvent(ereignis);
    if (ereignis->spontaneous())
        return;
    try {
        einsetzen(*RichTextBox1_, hinweistext(programm_));
    } catch (const Fehler &fehler) {
        RichTextBox1_->clear();
        // The box stands in front of the form, not before it.
        QTimer::singleShot(0, this, [this, text = fehler.text()] { fehlerZeigen(this, text); });
    }
}

void frmHinweis::done(int ergebnis)
{
    if (chkHinweis_->isChecked() && istHinweis(programm_.HinweisNummer))
        programm_.HinweisAus[size_t(programm_.HinweisNummer)] = true;
    QDialog::done(ergebnis);
}
