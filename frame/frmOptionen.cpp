#include "frmOptionen.h"

#include "store/Wertelisten.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <algorithm>

frmOptionen::frmOptionen(Programm &programm, QWidget *eltern) : QDialog(eltern), programm_(programm), kaesten_(new QVBoxLayout)
{
    setObjectName(QStringLiteral("frmOptionen"));
    setWindowTitle(QStringLiteral("Optionen"));
    kaesten_->setSpacing(10);
    ausbildungBauen();
    bilderBauen();
    monateBauen();
    dateienBauen();

    auto *cmdOK = new QPushButton(QStringLiteral("OK"), this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &frmOptionen::cmdOK_Click);
    auto *cmdAbbrechen = new QPushButton(QStringLiteral("Abbrechen"), this);
    cmdAbbrechen->setObjectName(QStringLiteral("cmdAbbrechen"));
    connect(cmdAbbrechen, &QPushButton::clicked, this, &QDialog::reject);
    auto *tasten = new QHBoxLayout;
    tasten->addStretch();
    tasten->addWidget(cmdOK);
    tasten->addWidget(cmdAbbrechen);

    auto *alles = new QVBoxLayout(this);
    alles->setContentsMargins(12, 12, 12, 12);
    alles->setSpacing(14);
    alles->addLayout(kaesten_);
    alles->addStretch();
    alles->addLayout(tasten);
    chkAusbildung_[0]->setFocus();
}

QGroupBox *frmOptionen::kasten(const char *name, const QString &titel)
{
    auto *rahmen = new QGroupBox(titel, this);
    rahmen->setObjectName(QString::fromLatin1(name));
    rahmen->setProperty("karte", true);
    kaesten_->addWidget(rahmen);
    return rahmen;
}

void frmOptionen::ausbildungBauen()
{
    constexpr int spalten = 2;
    QGroupBox *fraAusbildung = kasten("fraAusbildung", QStringLiteral("Ausbildung"));
    auto *raster = new QGridLayout(fraAusbildung);
    raster->setHorizontalSpacing(24);
    auto *Label8 = new QLabel(QStringLiteral("Automatisch nur Pflanzen anzeigen die wichtig sind für die Gehilfenprüfung"), fraAusbildung);
    Label8->setObjectName(QStringLiteral("Label8"));
    raster->addWidget(Label8, 0, 0, 1, spalten);
    const int zeilen = int(chkAusbildung_.size()) / spalten;
    for (int i = 0; i < int(chkAusbildung_.size()); ++i) {
        auto *kaestchen = new QCheckBox(WL_Ausbildung.wort(i + 1).toString(), fraAusbildung);
        kaestchen->setObjectName(QStringLiteral("chkAusbildung_%1").arg(i));
        kaestchen->setChecked(programm_.AzubiAuswahl[size_t(i)]);
        raster->addWidget(kaestchen, 1 + i % zeilen, i / zeilen);
        chkAusbildung_[size_t(i)] = kaestchen;
    }
}

void frmOptionen::bilderBauen()
{
    QGroupBox *fraOriginal = kasten("fraOriginal", QStringLiteral("Bilder"));
    auto *zeilen = new QVBoxLayout(fraOriginal);
    chkOriginal_ = new QCheckBox(QStringLiteral("Bilder immer in Originalgröße darstellen"), fraOriginal);
    chkOriginal_->setObjectName(QStringLiteral("chkOriginal"));
    chkOriginal_->setChecked(programm_.OriginalGroesse);
    zeilen->addWidget(chkOriginal_);
}

void frmOptionen::monateBauen()
{
    QGroupBox *fraMonat = kasten("fraMonat", QStringLiteral("Monatsdarstellung"));
    auto *zeilen = new QVBoxLayout(fraMonat);
    const QString texte[] = {QStringLiteral("1 2 3 4 5 6 7 8 9 10 11 12"), QStringLiteral("J F M A M J J A S O N D")};
    for (size_t i = 0; i < optMonat_.size(); ++i) {
        optMonat_[i] = new QRadioButton(texte[i], fraMonat);
        optMonat_[i]->setObjectName(QStringLiteral("optMonat_%1").arg(i));
        zeilen->addWidget(optMonat_[i]);
    }
    const size_t gewaehlt = programm_.MonatsDarstellung != 0;
    optMonat_[gewaehlt]->setChecked(true);
    // Tab reaches the one that is chosen.
    optMonat_[1 - gewaehlt]->setFocusPolicy(Qt::ClickFocus);
}

void frmOptionen::dateienBauen()
{
    QGroupBox *fraDateien = kasten("fraDateien", QStringLiteral("Dateien"));
    auto *zeilen = new QVBoxLayout(fraDateien);
    chkAccess_ = new QCheckBox(QStringLiteral("Teilmengen und Mulko-Dateien im Access-Format"), fraDateien);
    chkAccess_->setObjectName(QStringLiteral("chkAccess"));
    chkAccess_->setChecked(programm_.AccessFormat);
    zeilen->addWidget(chkAccess_);
}

void frmOptionen::cmdOK_Click()
{
    programm_.MonatsDarstellung = optMonat_[1]->isChecked();
    programm_.OriginalGroesse = chkOriginal_->isChecked();
    programm_.AccessFormat = chkAccess_->isChecked();
    AusbildungUebernehmen();
    accept();
}

void frmOptionen::AusbildungUebernehmen()
{
    std::ranges::transform(chkAusbildung_, programm_.AzubiAuswahl.begin(), &QCheckBox::isChecked);
    programm_.AusbildungAktiv = std::ranges::any_of(programm_.AzubiAuswahl, std::identity());
}
