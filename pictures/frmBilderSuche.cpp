#include "frmBilderSuche.h"

#include "Bilderliste.h"
#include "controls/Geschuetzt.h"
#include "store/Pfade.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

constexpr int wurzelrolle = Qt::UserRole; // root of a drive, the system's
constexpr int namensspalte = 0;
constexpr int laufwerkszeilen = 3, ordnerzeilen = 10; ///< that are seen without scrolling

/// The disk that the program stands on, always there.
Laufwerk festplatte(const Programm &programm)
{
#ifdef Q_OS_WIN
    return {systemPfad(programm.ProgrammPfad).left(3), {}};
#else
    Q_UNUSED(programm);
    return {QDir::rootPath(), {}};
#endif
}

QLabel *schild(const QString &text, QWidget *fuer, QWidget *eltern)
{
    auto *neu = new QLabel(text, eltern);
    neu->setBuddy(fuer);
    return neu;
}

} // namespace

frmBilderSuche::frmBilderSuche(Programm &programm, const Laufwerksliste &laufwerke, QWidget *eltern)
    : QDialog(eltern),
      programm_(programm),
      drvLaufwerk_(new QListWidget(this)),
      dirVerzeichnisse_(new QTreeView(this)),
      ordner_(new QFileSystemModel(this)),
      txtFloxBildVerzeichnis_(new QLineEdit(this)),
      lblGefunden_(new QLabel(this)),
      cmdOK_(new QPushButton(QStringLiteral("OK"), this))
{
    setObjectName(QStringLiteral("frmBilderSuche"));
    setWindowTitle(QStringLiteral("Flox-Bilder suchen"));
    ordner_->setFilter(QDir::Dirs | QDir::NoDotAndDotDot);
    ordner_->setReadOnly(true);
    aufbauen();
    laufwerkeAuflisten(laufwerke);
    connect(drvLaufwerk_, &QListWidget::currentRowChanged, this, geschuetzt(this, [this] { drvLaufwerk_Change(); }));
    connect(dirVerzeichnisse_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex &index) {
        if (index.isValid() && !zeigt_)
            txtFloxBildVerzeichnis_->setText(anzeigePfad(mitStrich(ordner_->filePath(index))));
    });
    // Folders are read in the background: what is chosen is held in view until they have come.
    connect(ordner_, &QFileSystemModel::directoryLoaded, this, [this](const QString &geladen) {
        const QModelIndex index = dirVerzeichnisse_->currentIndex();
        if (index.isValid() && ordner_->filePath(index).startsWith(geladen))
            dirVerzeichnisse_->scrollTo(index, QAbstractItemView::PositionAtCenter);
    });
    connect(txtFloxBildVerzeichnis_, &QLineEdit::textChanged, this, [this] { txtFloxBildVerzeichnis_Change(); });
    connect(txtFloxBildVerzeichnis_, &QLineEdit::editingFinished, this, &frmBilderSuche::pfadEingegeben);
    ordnerZeigen(systemPfad(programm.BilderPfad));
}

frmBilderSuche::~frmBilderSuche()
{
    // The focus leaves the text box while the windows go; that must not reach a form half gone.
    txtFloxBildVerzeichnis_->disconnect(this);
}

void frmBilderSuche::aufbauen()
{
    drvLaufwerk_->setObjectName(QStringLiteral("drvLaufwerk"));
    dirVerzeichnisse_->setObjectName(QStringLiteral("dirVerzeichnisse"));
    txtFloxBildVerzeichnis_->setObjectName(QStringLiteral("txtFloxBildVerzeichnis"));
    lblGefunden_->setObjectName(QStringLiteral("lblGefunden"));
    cmdOK_->setObjectName(QStringLiteral("cmdOK"));
    cmdOK_->setDefault(true);
    auto *cmdAbbrechen = new QPushButton(QStringLiteral("Abbrechen"), this);
    cmdAbbrechen->setObjectName(QStringLiteral("cmdAbbrechen"));
    connect(cmdAbbrechen, &QPushButton::clicked, this, &QDialog::reject);
    connect(cmdOK_, &QPushButton::clicked, this, geschuetzt(this, [this] { cmdOK_Click(); }));

    auto *frage = new QLabel(QStringLiteral("Bitte den Ordner mit den Flox-Bilder suchen"), this);
    QFont schrift = frage->font();
    schrift.setPointSizeF(schrift.pointSizeF() * 1.25);
    schrift.setBold(true);
    frage->setFont(schrift);

    dirVerzeichnisse_->setModel(ordner_);
    dirVerzeichnisse_->setHeaderHidden(true);
    dirVerzeichnisse_->setUniformRowHeights(true);
    for (int spalte = namensspalte + 1; spalte < ordner_->columnCount(); ++spalte)
        dirVerzeichnisse_->hideColumn(spalte);
    drvLaufwerk_->setFixedHeight(laufwerkszeilen * zeilenhoehe() + 2 * drvLaufwerk_->frameWidth());
    dirVerzeichnisse_->setMinimumHeight(ordnerzeilen * zeilenhoehe());
    lblGefunden_->setMinimumWidth(lblGefunden_->fontMetrics().horizontalAdvance(QStringLiteral("nicht gefunden")));

    auto *raster = new QGridLayout;
    raster->setHorizontalSpacing(12);
    raster->setVerticalSpacing(8);
    raster->setColumnStretch(1, 1);
    raster->setRowStretch(1, 1);
    raster->addWidget(schild(QStringLiteral("&Laufwerk:"), drvLaufwerk_, this), 0, 0, Qt::AlignTop);
    raster->addWidget(drvLaufwerk_, 0, 1, 1, 2);
    raster->addWidget(schild(QStringLiteral("&Ordner:"), dirVerzeichnisse_, this), 1, 0, Qt::AlignTop);
    raster->addWidget(dirVerzeichnisse_, 1, 1, 1, 2);
    raster->addWidget(schild(QStringLiteral("&Pfad:"), txtFloxBildVerzeichnis_, this), 2, 0);
    raster->addWidget(txtFloxBildVerzeichnis_, 2, 1, 1, 2);
    raster->addWidget(new QLabel(QStringLiteral("Bilder:"), this), 3, 0);
    raster->addWidget(lblGefunden_, 3, 1);

    auto *tasten = new QHBoxLayout;
    tasten->addStretch();
    tasten->addWidget(cmdOK_);
    tasten->addWidget(cmdAbbrechen);
    auto *alles = new QVBoxLayout(this);
    alles->setContentsMargins(12, 12, 12, 12);
    alles->setSpacing(10);
    alles->addWidget(frage);
    alles->addLayout(raster, 1);
    alles->addLayout(tasten);
    const QList<QWidget *> folge = {drvLaufwerk_, dirVerzeichnisse_, txtFloxBildVerzeichnis_, cmdOK_, cmdAbbrechen};
    for (qsizetype i = 1; i < folge.size(); ++i)
        setTabOrder(folge[i - 1], folge[i]);
    resize(std::max(520, fontMetrics().averageCharWidth() * 72), sizeHint().height());
}

int frmBilderSuche::zeilenhoehe() const
{
    return fontMetrics().height() + 8;
}

void frmBilderSuche::laufwerkeAuflisten(const Laufwerksliste &laufwerke)
{
    const auto dazu = [this](const Laufwerk &laufwerk, const QString &text) {
        auto *zeile = new QListWidgetItem(text, drvLaufwerk_);
        zeile->setData(wurzelrolle, laufwerk.wurzel);
        zeile->setSizeHint({0, zeilenhoehe()});
    };
    const Laufwerk fest = festplatte(programm_);
    dazu(fest, QStringLiteral("Festplatte (%1)").arg(medium::beschriftung(fest)));
    for (const Laufwerk &laufwerk : laufwerke())
        dazu(laufwerk, medium::beschriftung(laufwerk));
}

/// Shows a folder in all three places; an empty path, the program's drive.
void frmBilderSuche::ordnerZeigen(const QString &systempfad)
{
    int zeile = 0;
    qsizetype laenge = -1;
    for (int i = 0; i < drvLaufwerk_->count(); ++i) {
        const QString wurzel = drvLaufwerk_->item(i)->data(wurzelrolle).toString();
        const QString ordner = wurzel.endsWith(u'/') ? wurzel : wurzel + u'/';
        if ((systempfad + u'/').startsWith(ordner) && wurzel.size() > laenge) {
            zeile = i;
            laenge = wurzel.size();
        }
    }
    laufwerk_ = zeile;
    drvLaufwerk_->setCurrentRow(zeile);
    const QString wurzel = drvLaufwerk_->item(zeile)->data(wurzelrolle).toString();
    zeigt_ = true;
    dirVerzeichnisse_->setRootIndex(ordner_->setRootPath(wurzel));
    if (const QModelIndex index = systempfad.isEmpty() ? QModelIndex() : ordner_->index(systempfad); index.isValid()) {
        dirVerzeichnisse_->setCurrentIndex(index);
        dirVerzeichnisse_->expand(index);
        dirVerzeichnisse_->scrollTo(index);
    }
    zeigt_ = false;
    txtFloxBildVerzeichnis_->setText(anzeigePfad(mitStrich(systempfad.isEmpty() ? wurzel : systempfad)));
}

void frmBilderSuche::drvLaufwerk_Change()
{
    const int zeile = drvLaufwerk_->currentRow();
    if (zeile < 0 || zeile == laufwerk_)
        return;
    const QString wurzel = drvLaufwerk_->item(zeile)->data(wurzelrolle).toString();
    if (QDir(wurzel).isReadable()) {
        ordnerZeigen(wurzel);
        return;
    }
    const QPointer<frmBilderSuche> ich(this);
    QMessageBox::warning(this, programmtitel.toString(), QStringLiteral("Laufwerk nicht bereit!"));
    if (!ich)
        return;
    const auto zurueck = [this] {
        const QSignalBlocker still(drvLaufwerk_);
        drvLaufwerk_->setCurrentRow(laufwerk_);
    };
    zurueck();
    // A press of the mouse selects its line only behind this.
    QMetaObject::invokeMethod(this, zurueck, Qt::QueuedConnection);
}

QString frmBilderSuche::pfad() const
{
    return mitStrich(txtFloxBildVerzeichnis_->text());
}

void frmBilderSuche::txtFloxBildVerzeichnis_Change()
{
    const bool gefunden = medium::haeltBilder(pfad());
    lblGefunden_->setText(gefunden ? QStringLiteral("gefunden") : QStringLiteral("nicht gefunden"));
    cmdOK_->setEnabled(gefunden);
    if (gefunden && pfad() != gefunden_)
        QApplication::beep();
    gefunden_ = gefunden ? pfad() : QString();
}

/// What was typed is shown in the tree as well, where there is such a folder.
void frmBilderSuche::pfadEingegeben()
{
    if (const QString ordner = systemPfad(pfad()); QFileInfo(ordner).isDir())
        ordnerZeigen(ordner);
}

void frmBilderSuche::cmdOK_Click()
{
    const QString ordner = pfad();
    bilderPfadWaehlen(programm_, ordner);
    programm_.BilderAufCD = medium::hatCdSymbol(ordner);
    accept();
}
