#include "frmTabelle.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

frmTabelle::frmTabelle(std::vector<Tabellenspalte> spalten, QWidget *eltern)
    : QDialog(eltern),
      spalten_(std::move(spalten)),
      lstSpalten_(new QListWidget(this)),
      cmdOK_(new QPushButton(QStringLiteral("Speichern ..."), this))
{
    setObjectName(QStringLiteral("frmTabelle"));
    setWindowTitle(QStringLiteral("Tabelle speichern"));
    auto *frage = new QLabel(QStringLiteral("Welche &Spalten soll die Tabelle haben?"), this);
    frage->setObjectName(QStringLiteral("lblFrage"));
    frage->setBuddy(lstSpalten_);
    lstSpalten_->setObjectName(QStringLiteral("lstSpalten"));
    lstSpalten_->setAccessibleName(QStringLiteral("Spalten der Tabelle"));
    for (const Tabellenspalte &spalte : spalten_) {
        auto *zeile = new QListWidgetItem(spalte.titel, lstSpalten_);
        // Room for the frame of the focus around the letters.
        zeile->setSizeHint(QSize(0, fontMetrics().height() + 8));
        zeile->setToolTip(spalte.titel); // a long one is cut in a narrow list
        zeile->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    }
    lstSpalten_->setCurrentRow(0);
    const auto taste = [this](const char *name, const QString &text, auto beiKlick) {
        auto *knopf = new QPushButton(text, this);
        knopf->setObjectName(QString::fromLatin1(name));
        knopf->setAutoDefault(false);
        connect(knopf, &QPushButton::clicked, this, beiKlick);
        return knopf;
    };
    auto *wahl = new QHBoxLayout;
    wahl->addWidget(taste("cmdAlle", QStringLiteral("&Alle"), [this] { setzen([](const Tabellenspalte &) { return true; }); }));
    wahl->addWidget(taste("cmdKeine", QStringLiteral("&Keine"), [this] { setzen([](const Tabellenspalte &) { return false; }); }));
    wahl->addStretch();
    cmdOK_->setObjectName(QStringLiteral("cmdOK"));
    cmdOK_->setDefault(true);
    connect(cmdOK_, &QPushButton::clicked, this, &QDialog::accept);
    auto *tasten = new QHBoxLayout;
    tasten->addStretch();
    tasten->addWidget(cmdOK_);
    tasten->addWidget(taste("cmdAbbruch", QStringLiteral("Abbrechen"), [this] { reject(); }));
    auto *alles = new QVBoxLayout(this);
    alles->setContentsMargins(12, 12, 12, 12);
    alles->addWidget(frage);
    alles->addWidget(lstSpalten_, 1);
    alles->addLayout(wahl);
    alles->addSpacing(8);
    alles->addLayout(tasten);
    connect(lstSpalten_, &QListWidget::itemChanged, this, &frmTabelle::pruefen);
    setzen([](const Tabellenspalte &spalte) { return spalte.vorgeschlagen; });
    lstSpalten_->setFocus();
    resize(380, 480);
}

void frmTabelle::setzen(bool (*an)(const Tabellenspalte &))
{
    for (size_t i = 0; i < spalten_.size(); ++i)
        lstSpalten_->item(int(i))->setCheckState(an(spalten_[i]) ? Qt::Checked : Qt::Unchecked);
    pruefen();
}

void frmTabelle::pruefen()
{
    cmdOK_->setEnabled(!gewaehlt().empty());
}

std::vector<Tabellenspalte> frmTabelle::gewaehlt() const
{
    std::vector<Tabellenspalte> spalten;
    for (size_t i = 0; i < spalten_.size(); ++i)
        if (lstSpalten_->item(int(i))->checkState() == Qt::Checked)
            spalten.push_back(spalten_[i]);
    return spalten;
}
