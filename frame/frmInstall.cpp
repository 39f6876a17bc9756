#include "frmInstall.h"

#include "System.h"
#include "store/Pfade.h"

#include <QComboBox>
#include <QMessageBox>

frmInstall::frmInstall(Laufwerksliste laufwerke, QWidget *eltern) : QDialog(eltern), laufwerke_(std::move(laufwerke)), Drive1_(new QComboBox(this))
{
    setObjectName(QStringLiteral("frmInstall"));
    Drive1_->setObjectName(QStringLiteral("Drive1"));
    Drive1_Refresh();
}

void frmInstall::Drive1_Refresh()
{
    Drive1_->clear();
    for (const Laufwerk &laufwerk : laufwerke_())
        Drive1_->addItem(medium::beschriftung(laufwerk), laufwerk.wurzel);
}

frmInstall::Ergebnis frmInstall::CDStarten(const QString &programm)
{
    for (;; Drive1_Refresh()) {
        std::vector<Laufwerk> laufwerke;
        for (int i = 0; i < Drive1_->count(); ++i)
            laufwerke.push_back({Drive1_->itemData(i).toString(), {}});
        if (const std::optional<Laufwerk> cd = medium::cdSuchen(laufwerke))
            return programmStarten(pfadAus(cd->wurzel, programm), QStringLiteral("setup.exe")) ? Ergebnis::Gestartet : Ergebnis::Gescheitert;
        const auto antwort = QMessageBox::information(parentWidget(), QStringLiteral("FLOX-CD ist nicht eingelegt"),
                                                      QStringLiteral("Die FLOX-CD befindet sich nicht im CD-Laufwerk! \rBitte einlegen!"),
                                                      QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok);
        if (antwort != QMessageBox::Ok)
            return Ergebnis::Abgebrochen;
    }
}
