#include "Handgriffe.h"
#include "Rahmenprobe.h"

#include "filters/Filterdialog.h"
#include "tests/Testprogramm.h"

#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QTest>

using namespace Qt::StringLiterals;

/* The status bar tells which plants a window shows, whatever has changed them. */

class TestFilterstand : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        probe_ = std::make_unique<Rahmenprobe>();
        probe_->laden();
        probe_->waehlen("mnudbtopfpflanzen");
        form_ = probe_->fenster(1);
        QVERIFY(form_);
        alle_ = Recordset(probe_->ordner.db(), u"Topfpfl"_s).RecordCount();
    }
    void cleanup() { probe_.reset(); }

    void beimOeffnen() { QCOMPARE(stand(), satz(u"Bewertung ab Stufe 3"_s)); }

    void filterUndAus()
    {
        const int vorher = form_->Anzahl;
        Filterdialog *dialog = oeffnen();
        licht(dialog);
        hand::druecken(dialog, "cmdOK");
        QVERIFY(form_->Anzahl < vorher);
        QCOMPARE(stand(), satz(u"Filter: schattig"_s));
        hand::klick(form_, "cmdFilterEin");
        QCOMPARE(form_->Anzahl, vorher);
        QCOMPARE(stand(), satz(u"Filter aus – Bewertung ab Stufe 3"_s));
        hand::klick(form_, "cmdFilterEin");
        QCOMPARE(stand(), satz(u"Filter: schattig"_s));
    }

    /// What is chosen in the dialog counts only when it has run.
    void verworfeneWahl()
    {
        const QString vorher = stand();
        Filterdialog *dialog = oeffnen();
        licht(dialog);
        hand::druecken(dialog, "cmdAbbruch");
        probe_->zentrale->FormenAktualisieren();
        QCOMPARE(stand(), vorher);
        (void)oeffnen();
        probe_->zentrale->FormenAktualisieren();
        QCOMPARE(stand(), vorher);
        hand::druecken(dialog, "cmdOK");
        QCOMPARE(stand(), satz(u"Filter: schattig"_s));
    }

    void alleDurchDieBewertung()
    {
        Filterdialog *dialog = oeffnen();
        dialog->findChild<QSlider *>(u"sldBewertung"_s)->setValue(1);
        hand::druecken(dialog, "cmdOK");
        QCOMPARE(form_->Anzahl, alle_);
        QCOMPARE(stand(), satz(u"Alle Pflanzen"_s));
    }

    /// Nothing fits: all plants are shown again, and the line says so.
    void keinTreffer()
    {
        Filterdialog *dialog = oeffnen();
        dialog->findChild<QLineEdit *>(u"txtbotName"_s)->setText(u"gibt es nicht"_s);
        Antworten antworten;
        hand::druecken(dialog, "cmdOK");
        QTRY_COMPARE(antworten.texte.size(), 1);
        QCOMPARE(form_->Anzahl, alle_);
        QCOMPARE(stand(), satz(u"Alle Pflanzen"_s));
    }

private:
    QString stand() const
    {
        const auto *feld = form_->findChild<QLabel *>(u"stbAnzeige_1"_s);
        return feld->text() == feld->toolTip() ? feld->text() : u"The tool tip differs."_s;
    }
    QString satz(const QString &anfang) const { return u"%1 – %2 von %3"_s.arg(anfang).arg(form_->Anzahl).arg(alle_); }
    Filterdialog *oeffnen()
    {
        hand::klick(form_, "cmdFilter");
        return form_->filterdialog();
    }
    static void licht(Filterdialog *dialog) { QTest::mouseClick(dialog->findChild<QWidget *>(u"imgLicht_2"_s), Qt::LeftButton); }

    std::unique_ptr<Rahmenprobe> probe_;
    Pflanzenfenster *form_ = nullptr;
    int alle_ = 0;
};

FLOX_TEST(tst_filterstand, TestFilterstand)
#include "tst_filterstand.moc"
