#include "frmHilfe.h"

#include "Hilfeblatt.h"
#include "controls/Bilder.h"
#include "controls/Geschuetzt.h"
#include "printing/Druckgeraet.h"

#include <QAction>
#include <QFileInfo>
#include <QHeaderView>
#include <QHelpContentWidget>
#include <QHelpEngine>
#include <QHelpIndexWidget>
#include <QHelpLink>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPrintDialog>
#include <QPrinter>
#include <QScreen>
#include <QSplitter>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>
#include <QWindow>

namespace {

const QString namensraum = QStringLiteral("flox"), ordner = QStringLiteral("hilfe");

QUrl adresse(const QString &thema)
{
    return QUrl(QStringLiteral("qthelp://%1/%2/%3").arg(namensraum, ordner, thema));
}

} // namespace

frmHilfe::frmHilfe(const QString &sammlung) : blatt_(nullptr)
{
    const QString weg = QDir::toNativeSeparators(sammlung);
    if (!QFileInfo::exists(sammlung))
        throw Fehler(QStringLiteral("Die Hilfe kann nicht angezeigt werden.\n\nDie Datei fehlt:\n%1").arg(weg));
    sammlung_ = std::make_unique<QHelpEngine>(sammlung);
    sammlung_->setReadOnly(true);
    sammlung_->setUsesFilterEngine(true);
    if (!sammlung_->setupData() || datei(startseite()).isEmpty())
        throw Fehler(QStringLiteral("Die Hilfe kann nicht angezeigt werden.\n\nDie Datei ist beschädigt oder unvollständig:\n%1").arg(weg));
    setObjectName(QStringLiteral("frmHilfe"));
    setWindowTitle(QStringLiteral("Flox - Hilfe"));
    // The program ends without asking whether the manual is open.
    setAttribute(Qt::WA_QuitOnClose, false);
    drucken = [this] { druckdialog(); };
    aufbauen();
    anzeigen(adresse(startseite()));
}

frmHilfe::~frmHilfe()
{
    // Its widgets ask the collection to the last.
    delete takeCentralWidget();
}

QByteArray frmHilfe::datei(const QString &name) const
{
    return sammlung_->fileData(adresse(name.section(u'#', 0, 0)));
}

QStringList frmHilfe::dateien() const
{
    QStringList namen;
    for (const QUrl &eine : sammlung_->files(namensraum, QString()))
        namen += eine.path().section(u'/', 2);
    return namen;
}

QHelpContentModel *frmHilfe::inhalt() const
{
    return sammlung_->contentModel();
}

QString frmHilfe::seite() const
{
    const QUrl quelle = blatt_->source();
    return quelle.hasFragment() ? quelle.fileName() + u'#' + quelle.fragment() : quelle.fileName();
}

bool frmHilfe::aufschlagen(const QString &thema)
{
    const QString ziel = thema.isEmpty() ? startseite() : thema;
    if (datei(ziel).isEmpty())
        return false;
    anzeigen(adresse(ziel));
    return true;
}

void frmHilfe::anzeigen(const QUrl &ziel)
{
    if (blatt_->source() == ziel)
        blatt_->reload();
    else
        blatt_->setSource(ziel);
}

void frmHilfe::aufbauen()
{
    blatt_ = new Hilfeblatt([this](const QUrl &url) { return sammlung_->fileData(url); }, this);
    blatt_->setObjectName(QStringLiteral("txtSeite"));
    blatt_->setAccessibleName(QStringLiteral("Seite der Hilfe"));
    leisteBauen();
    auto *teiler = new QSplitter(this);
    teiler->setChildrenCollapsible(false);
    teiler->addWidget(verzeichnisse());
    teiler->addWidget(blatt_);
    teiler->setStretchFactor(1, 1);
    teiler->setSizes({310, 750});
    setCentralWidget(teiler);
    setMinimumSize(560, 360);
    const QRect schirm = screen()->availableGeometry();
    const QSize wunsch(1060, 760);
    resize(wunsch.boundedTo(schirm.size() * 9 / 10));
    move(schirm.right() - width() - schirm.width() / 40, schirm.top() + schirm.height() / 30);
    connect(blatt_, &QTextBrowser::sourceChanged, this, [this](const QUrl &quelle) {
        setWindowTitle(QStringLiteral("%1 - Flox - Hilfe").arg(blatt_->documentTitle()));
        inhaltNachziehen(quelle);
        treffermarken();
    });
    connect(inhalt(), &QHelpContentModel::contentsCreated, this, [this] {
        sammlung_->contentWidget()->expandAll();
        inhaltNachziehen(blatt_->source());
    });
}

void frmHilfe::leisteBauen()
{
    auto *leiste = addToolBar(QStringLiteral("Werkzeuge"));
    leiste->setObjectName(QStringLiteral("tlbHilfe"));
    leiste->setMovable(false);
    leiste->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    leiste->setIconSize({22, 22});
    leiste->setContextMenuPolicy(Qt::PreventContextMenu);
    const auto taste = [&](const char *name, const char *bild, const QString &text, const QList<QKeySequence> &tasten, auto tat) {
        auto *eintrag =
            leiste->addAction(QIcon(bilder::pixmap(QStringLiteral("iliIcons/%1_n").arg(QLatin1String(bild)), {22, 22}, devicePixelRatioF())), text);
        eintrag->setObjectName(QString::fromLatin1(name));
        eintrag->setShortcuts(tasten);
        eintrag->setToolTip(QStringLiteral("%1 (%2)").arg(text, tasten.front().toString(QKeySequence::NativeText)));
        connect(eintrag, &QAction::triggered, this, tat);
        return eintrag;
    };
    auto *zurueck = taste("cmdZurueck", "back", QStringLiteral("Zurück"), {QKeySequence(Qt::ALT | Qt::Key_Left), QKeySequence(Qt::Key_Back)},
                          [this] { blatt_->backward(); });
    auto *vor = taste("cmdVor", "next", QStringLiteral("Vor"), {QKeySequence(Qt::ALT | Qt::Key_Right), QKeySequence(Qt::Key_Forward)},
                      [this] { blatt_->forward(); });
    taste("cmdAnfang", "first", QStringLiteral("Erste Seite"), {QKeySequence(Qt::ALT | Qt::Key_Home)}, [this] { (void)aufschlagen({}); });
    leiste->addSeparator();
    taste("cmdKleiner", "kleiner", QStringLiteral("Kleiner"), {QKeySequence(Qt::CTRL | Qt::Key_Minus)}, [this] { zoomen(-1); });
    taste("cmdGroesser", "groesser", QStringLiteral("Größer"), {QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)},
          [this] { zoomen(1); });
    taste("cmdNormal", "original", QStringLiteral("Normal"), {QKeySequence(Qt::CTRL | Qt::Key_0)}, [this] { zoomen(0); });
    leiste->addSeparator();
    taste("cmdDrucken", "druck", QStringLiteral("Drucken"), {QKeySequence(Qt::CTRL | Qt::Key_P)}, geschuetzt(this, [this] { drucken(); }));
    for (const auto &[eintrag, signal] : {std::pair(zurueck, &QTextBrowser::backwardAvailable), {vor, &QTextBrowser::forwardAvailable}}) {
        eintrag->setEnabled(false);
        connect(blatt_, signal, eintrag, &QAction::setEnabled);
    }
    auto *suchen = new QAction(this);
    suchen->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_F));
    connect(suchen, &QAction::triggered, this, [this] {
        reiter_->setCurrentIndex(reiter_->count() - 1);
        txtSuche_->setFocus();
        txtSuche_->selectAll();
    });
    addAction(suchen);
}

QWidget *frmHilfe::verzeichnisse()
{
    reiter_ = new QTabWidget(this);
    reiter_->setObjectName(QStringLiteral("SSTabHilfe"));
    reiter_->setDocumentMode(true);
    auto *inhaltsbaum = sammlung_->contentWidget();
    inhaltsbaum->setObjectName(QStringLiteral("treInhalt"));
    inhaltsbaum->setAccessibleName(QStringLiteral("Inhalt"));
    inhaltsbaum->setFrameShape(QFrame::NoFrame);
    inhaltsbaum->header()->hide();
    inhaltsbaum->setStyleSheet(QStringLiteral("QTreeView::item { padding: 2px 0px; }"));
    connect(inhaltsbaum, &QHelpContentWidget::linkActivated, this, &frmHilfe::anzeigen);
    // One click is enough, as for any link.
    connect(inhaltsbaum, &QTreeView::clicked, this, [this](const QModelIndex &ort) {
        if (const QHelpContentItem *eintrag = inhalt()->contentItemAt(ort); eintrag && !eintrag->url().isEmpty())
            anzeigen(eintrag->url());
    });
    reiter_->addTab(inhaltsbaum, QStringLiteral("Inhalt"));

    auto *index = new QWidget(reiter_);
    auto *eingabe = new QLineEdit(index);
    eingabe->setObjectName(QStringLiteral("txtIndex"));
    eingabe->setPlaceholderText(QStringLiteral("Stichwort"));
    eingabe->setClearButtonEnabled(true);
    auto *stichworte = sammlung_->indexWidget();
    stichworte->setObjectName(QStringLiteral("lstIndex"));
    stichworte->setAccessibleName(QStringLiteral("Index"));
    stichworte->setFrameShape(QFrame::NoFrame);
    auto *spalte = new QVBoxLayout(index);
    spalte->setContentsMargins(6, 8, 6, 0);
    spalte->addWidget(eingabe);
    spalte->addWidget(stichworte);
    connect(eingabe, &QLineEdit::textChanged, stichworte, [stichworte](const QString &text) { stichworte->filterIndices(text, {}); });
    connect(eingabe, &QLineEdit::returnPressed, stichworte, &QHelpIndexWidget::activateCurrentItem);
    connect(stichworte, &QHelpIndexWidget::documentActivated, this, [this](const QHelpLink &ziel) { anzeigen(ziel.url); });
    // A word of several pages leads to the first one; the others are a search away.
    connect(stichworte, &QHelpIndexWidget::documentsActivated, this, [this](const QList<QHelpLink> &ziele) { anzeigen(ziele.front().url); });
    connect(stichworte, &QListView::clicked, stichworte, &QHelpIndexWidget::activateCurrentItem);
    reiter_->addTab(index, QStringLiteral("Index"));
    reiter_->addTab(sucheBauen(), QStringLiteral("Suche"));
    connect(reiter_, &QTabWidget::currentChanged, this, &frmHilfe::treffermarken);
    return reiter_;
}

QWidget *frmHilfe::sucheBauen()
{
    auto *flaeche = new QWidget(reiter_);
    txtSuche_ = new QLineEdit(flaeche);
    txtSuche_->setObjectName(QStringLiteral("txtSuche"));
    txtSuche_->setPlaceholderText(QStringLiteral("Im ganzen Handbuch suchen"));
    txtSuche_->setClearButtonEnabled(true);
    lblTreffer_ = new QLabel(flaeche);
    lblTreffer_->setObjectName(QStringLiteral("lblTreffer"));
    lblTreffer_->setWordWrap(true);
    lstTreffer_ = new QListWidget(flaeche);
    lstTreffer_->setObjectName(QStringLiteral("lstTreffer"));
    lstTreffer_->setAccessibleName(QStringLiteral("Gefundene Seiten"));
    lstTreffer_->setFrameShape(QFrame::NoFrame);
    lstTreffer_->setWordWrap(true);
    lstTreffer_->setAlternatingRowColors(true);
    lstTreffer_->setStyleSheet(QStringLiteral("QListWidget::item { padding: 5px 3px; }"));
    // Lines are wrapped for a width that does not change with their number.
    lstTreffer_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    lstTreffer_->setResizeMode(QListView::Adjust);
    lstTreffer_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto *spalte = new QVBoxLayout(flaeche);
    spalte->setContentsMargins(6, 8, 6, 0);
    spalte->addWidget(txtSuche_);
    spalte->addWidget(lblTreffer_);
    spalte->addWidget(lstTreffer_, 1);
    connect(txtSuche_, &QLineEdit::textChanged, this, &frmHilfe::suche);
    connect(txtSuche_, &QLineEdit::returnPressed, this, [this] {
        if (lstTreffer_->count() > 0) {
            lstTreffer_->setCurrentRow(0);
            lstTreffer_->setFocus();
        }
    });
    connect(lstTreffer_, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem *zeile) {
        if (zeile)
            (void)aufschlagen(zeile->data(Qt::UserRole).toString());
    });
    suche({});
    return flaeche;
}

void frmHilfe::suche(const QString &frage)
{
    if (frage != txtSuche_->text()) {
        txtSuche_->setText(frage);
        return;
    }
    if (volltext_.empty() && !frage.isEmpty())
        for (const QString &name : dateien())
            if (name.endsWith(u".htm"))
                volltext_.push_back(hilfeseite(name, QString::fromUtf8(datei(name))));
    lstTreffer_->clear();
    const std::vector<Treffer> gefunden = suchen(volltext_, frage);
    for (const Treffer &eine : gefunden) {
        auto *zeile = new QListWidgetItem(eine.auszug.isEmpty() ? eine.titel : eine.titel + u'\n' + eine.auszug, lstTreffer_);
        zeile->setData(Qt::UserRole, eine.name);
    }
    lblTreffer_->setText(suchworte(frage).isEmpty()
                             ? QStringLiteral("Mehrere Wörter: Seiten, auf denen alle vorkommen. \"In Anführungszeichen\": genau so.")
                         : gefunden.empty()     ? QStringLiteral("Nichts gefunden.")
                         : gefunden.size() == 1 ? QStringLiteral("Eine Seite gefunden.")
                                                : QStringLiteral("%1 Seiten gefunden.").arg(gefunden.size()));
    treffermarken();
}

void frmHilfe::treffermarken()
{
    // Who reads along the contents or pressed F1 has not come for the words.
    blatt_->hervorheben(suchtGerade() ? suchworte(txtSuche_->text()) : QStringList());
}

bool frmHilfe::suchtGerade() const
{
    return reiter_->currentIndex() == reiter_->count() - 1;
}

void frmHilfe::inhaltZeigen()
{
    reiter_->setCurrentIndex(0);
}

void frmHilfe::zoomen(int schritte)
{
    blatt_->setStufe(schritte == 0 ? 0 : blatt_->stufe() + schritte);
    treffermarken();
}

void frmHilfe::inhaltNachziehen(QUrl quelle)
{
    auto *baum = sammlung_->contentWidget();
    quelle.setFragment({});
    if (const QModelIndex ort = baum->indexOf(quelle); ort.isValid())
        baum->setCurrentIndex(ort);
}

void frmHilfe::druckdialog()
{
    QPrinter drucker(QPrinter::HighResolution);
    drucker.setDocName(windowTitle());
    const QPointer<frmHilfe> noch(this);
    QPrintDialog dialog(&drucker, this);
    dialog.setWindowTitle(QStringLiteral("Seite drucken"));
    if (dialog.exec() != QDialog::Accepted || !noch)
        return;
    blatt_->document()->print(&drucker);
    if (drucker.printerState() == QPrinter::Error)
        throw Geraetefehler();
}

void frmHilfe::keyPressEvent(QKeyEvent *ereignis)
{
    if (ereignis->key() == Qt::Key_Escape)
        close();
    else
        QMainWindow::keyPressEvent(ereignis);
}

void frmHilfe::anDialogHaengen()
{
    QWindow *modal = QGuiApplication::modalWindow();
    QWindow *eigen = windowHandle();
    if (!eigen || modal == dialog_)
        return;
    // A dialog of this window locks it, like any other.
    for (QWindow *kette = modal; kette; kette = kette->transientParent())
        if (kette == eigen)
            return;
    if (dialog_)
        disconnect(dialog_, nullptr, this, nullptr);
    dialog_ = modal;
    // A window in the care of a dialog is not locked by it. It must be out of that care before the dialog goes.
    eigen->setTransientParent(modal);
    if (modal)
        connect(modal, &QWindow::visibleChanged, this, [this](bool sichtbar) {
            if (!sichtbar)
                anDialogHaengen();
        });
}

bool frmHilfe::event(QEvent *ereignis)
{
    // Told while the dialog is only coming.
    if (ereignis->type() == QEvent::WindowBlocked)
        QTimer::singleShot(0, this, &frmHilfe::anDialogHaengen);
    return QMainWindow::event(ereignis);
}

void frmHilfe::nachVorn()
{
    winId(); // a window of the system, which can be tied to another
    anDialogHaengen();
    if (isMinimized())
        setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}
