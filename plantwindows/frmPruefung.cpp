#include "frmPruefung.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

struct Ergebnisspalte
{
    QStringView titel;
    QString (*text)(const Ergebniszeile &);
    bool dehnbar;
};

constexpr Ergebnisspalte spalten[] =
    {
        {u"Nr.", [](const Ergebniszeile &zeile) { return QString::number(zeile.nummer); }, false},
        {u"Frage", [](const Ergebniszeile &zeile) { return zeile.frage; }, false},
        {u"Ihre Antwort", [](const Ergebniszeile &zeile) { return zeile.gegeben; }, true},
        {u"richtig ist", [](const Ergebniszeile &zeile) { return zeile.richtig; }, true},
        {u"Urteil",
         [](const Ergebniszeile &zeile) {
    const QString wort = urteilswort(zeile.befund.urteil).toString();
    return zeile.befund.grund.isEmpty() ? wort : QStringLiteral("%1 (%2)").arg(wort, zeile.befund.grund);
         },
         false},
        {u"Punkte", [](const Ergebniszeile &zeile) { return punktetext(halbePunkte(zeile.befund.urteil)); }, false},
};

} // namespace

frmPruefung::frmPruefung(Pruefungsergebnis ergebnis, QWidget *eltern) : QDialog(eltern), ergebnis_(std::move(ergebnis))
{
    setObjectName(QStringLiteral("frmPruefung"));
    setWindowTitle(QStringLiteral("Ergebnis der Prüfung"));
    auto *lblPunkte = new QLabel(ergebnis_.punktesatz(), this);
    lblPunkte->setObjectName(QStringLiteral("lblPunkte"));
    QFont schrift = lblPunkte->font();
    schrift.setBold(true);
    schrift.setPointSizeF(schrift.pointSizeF() * 1.5);
    lblPunkte->setFont(schrift);
    auto *lblUmstaende = new QLabel(ergebnis_.umstaende(), this);
    lblUmstaende->setObjectName(QStringLiteral("lblUmstaende"));
    lblUmstaende->setProperty("feldtitel", true);

    auto *tabelle = new QTableWidget(int(ergebnis_.zeilen.size()), int(std::size(spalten)), this);
    tabelle->setObjectName(QStringLiteral("tabErgebnis"));
    tabelle->setAccessibleName(QStringLiteral("Antworten"));
    tabelle->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabelle->setSelectionBehavior(QAbstractItemView::SelectRows);
    tabelle->setTabKeyNavigation(false);
    tabelle->setShowGrid(false);
    tabelle->setWordWrap(true);
    tabelle->verticalHeader()->hide();
    int vorige = 0;
    bool getoent = true;
    for (int i = 0; i < int(ergebnis_.zeilen.size()); ++i) {
        const Ergebniszeile &zeile = ergebnis_.zeilen[size_t(i)];
        // The answers of a plant stand on one ground, and its number once.
        const bool erste = zeile.nummer != std::exchange(vorige, zeile.nummer);
        getoent = getoent != erste;
        for (int j = 0; j < int(std::size(spalten)); ++j) {
            auto *zelle = new QTableWidgetItem(j == 0 && !erste ? QString() : spalten[j].text(zeile));
            if (getoent)
                zelle->setBackground(palette().alternateBase());
            if (j == 0 || j + 1 == int(std::size(spalten)))
                zelle->setTextAlignment(Qt::AlignCenter);
            if (zeile.befund.urteil != Urteil::Richtig && spalten[j].titel == u"Urteil") {
                QFont fett = tabelle->font();
                fett.setBold(true);
                zelle->setFont(fett);
            }
            tabelle->setItem(i, j, zelle);
        }
    }
    for (int j = 0; j < int(std::size(spalten)); ++j) {
        tabelle->setHorizontalHeaderItem(j, new QTableWidgetItem(spalten[j].titel.toString()));
        tabelle->horizontalHeader()->setSectionResizeMode(j, spalten[j].dehnbar ? QHeaderView::Stretch : QHeaderView::ResizeToContents);
    }
    tabelle->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);

    auto *cmdDruck = new QPushButton(QStringLiteral("Drucken ..."), this);
    cmdDruck->setObjectName(QStringLiteral("cmdErgebnisDrucken"));
    connect(cmdDruck, &QPushButton::clicked, this, &frmPruefung::druckenGewuenscht);
    auto *cmdSchliessen = new QPushButton(QStringLiteral("&Schließen"), this);
    cmdSchliessen->setObjectName(QStringLiteral("cmdErgebnisSchliessen"));
    cmdSchliessen->setDefault(true);
    connect(cmdSchliessen, &QPushButton::clicked, this, &QDialog::accept);
    auto *tasten = new QHBoxLayout;
    tasten->addStretch(1);
    tasten->addWidget(cmdDruck);
    tasten->addWidget(cmdSchliessen);
    auto *alles = new QVBoxLayout(this);
    alles->setContentsMargins(12, 12, 12, 12);
    alles->setSpacing(8);
    alles->addWidget(lblPunkte);
    alles->addWidget(lblUmstaende);
    alles->addWidget(tabelle, 1);
    alles->addLayout(tasten);
    resize(820, 600);
    cmdSchliessen->setFocus();
}
