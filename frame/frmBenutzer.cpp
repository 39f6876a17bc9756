#include "frmBenutzer.h"

#include "controls/Geschuetzt.h"
#include "store/Benutzernamen.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

frmBenutzer::frmBenutzer(Programm &programm, std::function<void()> umbenannt, QWidget *eltern)
    : QDialog(eltern), programm_(programm), umbenannt_(std::move(umbenannt)), optEigen_(new QButtonGroup(this)), txtName_(new QLineEdit(this))
{
    setObjectName(QStringLiteral("frmBenutzer"));
    setWindowTitle(QStringLiteral("Benutzerdefinierte Eigenschaften"));
    auto *fraEigenschaft = new QGroupBox(QStringLiteral("Eigenschaft Nr"), this);
    fraEigenschaft->setObjectName(QStringLiteral("fraEigenschaft"));
    fraEigenschaft->setProperty("karte", true);
    auto *reihe = new QHBoxLayout(fraEigenschaft);
    for (int i = 0; i < anzahlEigenschaften; ++i) {
        auto *option = new QRadioButton(QString::number(i + 1), fraEigenschaft);
        option->setObjectName(QStringLiteral("optEigen_%1").arg(i));
        optEigen_->addButton(option, i);
        reihe->addWidget(option);
    }
    txtName_->setObjectName(QStringLiteral("txtName"));
    auto *titel = new QLabel(QStringLiteral("Name:"), this);
    titel->setBuddy(txtName_);
    auto *zeile = new QHBoxLayout;
    zeile->addWidget(titel);
    zeile->addWidget(txtName_, 1);

    const auto taste = [this](const char *objektname, const QString &text) {
        auto *knopf = new QPushButton(text, this);
        knopf->setObjectName(QString::fromLatin1(objektname));
        return knopf;
    };
    auto *cmdOK = taste("cmdOK", QStringLiteral("OK"));
    auto *cmdSpeichern = taste("cmdSpeichern", QStringLiteral("Speichern"));
    auto *cmdAbbrechen = taste("cmdAbbrechen", QStringLiteral("Abbrechen"));
    cmdOK->setDefault(true);
    auto *tasten = new QHBoxLayout;
    tasten->addStretch();
    for (QPushButton *knopf : {cmdOK, cmdSpeichern, cmdAbbrechen})
        tasten->addWidget(knopf);

    auto *alles = new QVBoxLayout(this);
    alles->setContentsMargins(12, 12, 12, 12);
    alles->setSpacing(10);
    alles->addWidget(fraEigenschaft);
    alles->addLayout(zeile);
    alles->addSpacing(8);
    alles->addLayout(tasten);
    setMinimumWidth(420);

    connect(optEigen_, &QButtonGroup::idToggled, this, [this](int, bool gewaehlt) {
        if (const QString *gezeigt = gewaehlt ? name() : nullptr)
            txtName_->setText(*gezeigt);
    });
    connect(cmdSpeichern, &QPushButton::clicked, this, geschuetzt(this, [this] { cmdSpeichern_Click(); }));
    connect(cmdOK, &QPushButton::clicked, this, geschuetzt(this, [this] {
                if (cmdSpeichern_Click())
                    accept();
            }));
    connect(cmdAbbrechen, &QPushButton::clicked, this, &QDialog::reject);
    optEigen_->button(0)->setChecked(true);
    txtName_->setFocus();
}

QString *frmBenutzer::name()
{
    const std::optional<Sparte> sparte = sparteVonWort(programm_.AktiveSparte);
    if (!sparte) {
        QMessageBox::warning(this, programmtitel.toString(), QStringLiteral("Hoppla"));
        return nullptr;
    }
    return &programm_.BenutzerNamen[size_t(*sparte)][size_t(optEigen_->checkedId())];
}

bool frmBenutzer::cmdSpeichern_Click()
{
    QString *ziel = name();
    if (!ziel)
        return false;
    const QString vorher = std::exchange(*ziel, txtName_->text());
    try {
        benutzernamenSchreiben(programm_);
    } catch (const Fehler &) {
        *ziel = vorher;
        throw;
    }
    umbenannt_();
    return true;
}
