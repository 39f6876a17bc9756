#include "frmSuche.h"

#include "Suchbestand.h"
#include "Suchliste.h"
#include "controls/Geschuetzt.h"
#include "controls/Steuerelemente.h"
#include "controls/Vorlesen.h"
#include "store/Suchbau.h"

#include <QCursor>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QScreen>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int kleinsteBreite = 560, groessteBreite = 820; // pixels
constexpr int groessteHoehe = 520;                        // pixels
constexpr int kleinsteHoehe = 160;                        // pixels: below the selector; less room, and it opens above
constexpr int laengsteEingabe = 200;
constexpr size_t meisteNamen = 60;
constexpr size_t meisteAehnliche = 8; ///< below names that fit
constexpr size_t meisteTexte = 20;

Suchzeile satz(Suchzeile::Art art, const QString &text)
{
    return {.art = art, .name = {text}};
}

QString pflanzen(size_t anzahl)
{
    return anzahl == 1 ? QStringLiteral("1 Pflanze") : QStringLiteral("%1 Pflanzen").arg(anzahl);
}

} // namespace

frmSuche::frmSuche(Suchziel &ziel, Sparte sparte, std::shared_ptr<Suchbestand> bestand, QWidget *eltern)
    : QFrame(eltern, Qt::Popup),
      ziel_(ziel),
      sparte_(sparte),
      bestand_(std::move(bestand)),
      txtSuche_(new QLineEdit(this)),
      lstSuche_(new QListView(this)),
      lblSuche_(new Kurzschild(this)),
      modell_(new Suchmodell(this))
{
    setObjectName(QStringLiteral("frmSuche"));
    setAccessibleName(QStringLiteral("Suchen"));
    setFrameShape(QFrame::StyledPanel);

    txtSuche_->setObjectName(QStringLiteral("txtSuche"));
    txtSuche_->setAccessibleName(QStringLiteral("Pflanze suchen"));
    txtSuche_->setPlaceholderText(QStringLiteral("Name, Synonym oder Wort im Text"));
    txtSuche_->setClearButtonEnabled(true);
    for (auto *loeschen : txtSuche_->findChildren<QToolButton *>())
        loeschen->setAccessibleName(QStringLiteral("Eingabe löschen"));
    txtSuche_->setMaxLength(laengsteEingabe);
    txtSuche_->installEventFilter(this);
    setFocusProxy(txtSuche_);
    connect(txtSuche_, &QLineEdit::textChanged, this, [this] { suchen(); });

    lstSuche_->setObjectName(QStringLiteral("lstSuche"));
    lstSuche_->setAccessibleName(QStringLiteral("Gefundene Pflanzen"));
    lstSuche_->setFrameShape(QFrame::NoFrame);
    lstSuche_->setFocusPolicy(Qt::NoFocus);
    lstSuche_->setModel(modell_);
    lstSuche_->setItemDelegate(new Suchmaler(lstSuche_));
    lstSuche_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    lstSuche_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    lstSuche_->setMouseTracking(true);
    lstSuche_->setMinimumHeight(1); // one line is a list, too
    connect(lstSuche_, &QListView::entered, this, [this](const QModelIndex &index) {
        // A list that opens or changes below a mouse at rest is not chosen from.
        if (modell_->zeile(index.row()).istPflanze() && QCursor::pos() != maus_)
            waehlen(index.row());
    });
    connect(lstSuche_, &QListView::clicked, this, [this](const QModelIndex &index) { annehmen(index.row()); });

    lblSuche_->setObjectName(QStringLiteral("lblSuche"));
    lblSuche_->setTextFormat(Qt::PlainText);
    lblSuche_->setProperty("feldtitel", true);

    ansage_.setSingleShot(true);
    ansage_.setInterval(ansagepause);
    connect(&ansage_, &QTimer::timeout, this, [this] {
        if (isVisible())
            vorlesen(*lblSuche_);
    });

    auto *alles = new QVBoxLayout(this);
    alles->setContentsMargins(6, 6, 6, 4);
    alles->setSpacing(4);
    alles->addWidget(txtSuche_);
    alles->addWidget(lstSuche_, 1);
    alles->addWidget(lblSuche_);

    connect(bestand_.get(), &Suchbestand::bereit, this, [this] {
        if (isVisible())
            suchen();
    });
}

frmSuche::~frmSuche() = default;

void frmSuche::oeffnen(const QRect &anker, const QString &anfang, std::vector<qint64> zuletzt)
{
    anker_ = anker;
    zuletzt_ = std::move(zuletzt);
    {
        const QSignalBlocker ruhe(txtSuche_);
        txtSuche_->setText(anfang);
    }
    lblSuche_->setAccessibleName({}); // what was told the last time is news again
    suchen();
    show();
    txtSuche_->setFocus(Qt::PopupFocusReason);
}

void frmSuche::suchen()
{
    const Suchfrage frage(txtSuche_->text());
    std::vector<Suchzeile> zeilen;
    anzahl_.clear();
    try {
        zeilen = frage.leer() ? letzteZeilen() : trefferZeilen(frage);
    } catch (const Fehler &fehler) {
        zeilen = {satz(Suchzeile::Art::Auskunft, fehler.text())};
    }
    zeilenZeigen(std::move(zeilen), frage.leer() && zuletzt_.size() > 1 ? 2 : 0);
}

std::vector<Suchzeile> frmSuche::letzteZeilen()
{
    std::vector<Suchzeile> zeilen{satz(Suchzeile::Art::Titel, QStringLiteral("Zuletzt gezeigt"))};
    for (const qint64 artnr : zuletzt_)
        if (const std::optional<Suchnamen> namen = suchnamen(ziel_.arbeitsdatenbank(), sparte_, artnr))
            zeilen.push_back(namenszeile(*namen, Suchfrage(u""), Guete::Anfang));
    return zeilen;
}

Suchzeile frmSuche::namenszeile(const Suchnamen &namen, const Suchfrage &frage, Guete bis)
{
    const auto mitMarken = [&](const QString &text) { return Suchtext{text, fundstellen(text, frage, bis)}; };
    Suchzeile zeile{.artnr = namen.artnr, .bewertung = namen.bewertung, .name = mitMarken(namen.botanisch)};
    zeile.deutsch = mitMarken(namen.deutsch);
    if (const QString synonym = getroffenesSynonym(namen, frage, bis); !synonym.isEmpty())
        zeile.gueltig = std::exchange(zeile.name, mitMarken(synonym));
    zeile.grund = ziel_.grundDesFehlens(namen.artnr, namen.bewertung);
    return zeile;
}

std::vector<Suchzeile> frmSuche::trefferZeilen(const Suchfrage &frage)
{
    using Art = Suchzeile::Art;
    if (!bestand_->hatVerzeichnis())
        return {satz(Art::Auskunft, bestand_->fehler().isEmpty() ? QStringLiteral("Das Verzeichnis wird angelegt …")
                                                                 : QStringLiteral("Gesucht werden kann nicht: %1").arg(bestand_->fehler()))};
    const Suchverzeichnis &verzeichnis = bestand_->verzeichnis();
    const Suchergebnis ergebnis = bestand_->suchen(frage, meisteNamen);
    std::vector<Suchzeile> zeilen;
    const auto dazu = [&](const Trefferliste &liste, size_t hoechstens, const QString &titel, const auto &zeileFuer) {
        if (liste.erste.empty())
            return;
        if (!titel.isEmpty())
            zeilen.push_back(satz(Art::Titel, titel));
        const size_t gezeigt = std::min(hoechstens, liste.erste.size());
        for (size_t i = 0; i < gezeigt; ++i)
            zeileFuer(verzeichnis.namen(liste.erste[i].pflanze), liste.erste[i].guete);
        if (liste.gesamt > gezeigt)
            zeilen.push_back(satz(Art::Auskunft, QStringLiteral("… und %1 weitere").arg(liste.gesamt - gezeigt)));
    };
    const auto nameDazu = [&](const Suchnamen &namen, Guete guete) { zeilen.push_back(namenszeile(namen, frage, std::max(guete, Guete::Innen))); };
    dazu(ergebnis.namen, meisteNamen, {}, nameDazu);
    dazu(ergebnis.aehnliche, ergebnis.namen.gesamt > 0 ? meisteAehnliche : meisteNamen, QStringLiteral("Ähnlich geschrieben"), nameDazu);
    dazu(ergebnis.texte, meisteTexte, QStringLiteral("Im Text"), [&](const Suchnamen &namen, Guete) {
        // Where the text stands, the words may be gone by now.
        std::optional<Fundstelle> stelle = fundstelle(ziel_.arbeitsdatenbank(), sparte_, namen.artnr, frage);
        if (!stelle)
            return;
        Suchzeile zeile = namenszeile(namen, frage, Guete::Innen);
        zeile.art = Art::Textstelle;
        zeile.quelle = stelle->titel;
        zeile.stelle = {stelle->auszug, std::move(stelle->treffer)};
        zeilen.push_back(std::move(zeile));
    });
    if (zeilen.empty())
        zeilen.push_back(satz(Art::Auskunft, QStringLiteral("Nichts gefunden")));
    const size_t namen = ergebnis.namen.gesamt + ergebnis.aehnliche.gesamt;
    QStringList teile;
    if (namen > 0 || ergebnis.texte.gesamt == 0)
        teile += pflanzen(namen);
    if (ergebnis.texte.gesamt > 0)
        teile += (teile.isEmpty() ? pflanzen(ergebnis.texte.gesamt) : QString::number(ergebnis.texte.gesamt)) + QStringLiteral(" im Text");
    anzahl_ = teile.join(QStringLiteral(", "));
    return zeilen;
}

void frmSuche::zeilenZeigen(std::vector<Suchzeile> zeilen, int gewaehlt)
{
    maus_ = QCursor::pos();
    modell_->setZeilen(std::move(zeilen));
    platzNehmen();
    lstSuche_->scrollToTop();
    int erste = modell_->pflanzeAb(gewaehlt, 1);
    if (erste < 0)
        erste = modell_->pflanzeAb(0, 1);
    // Of plants that were found in the same way, one that Enter can go to.
    for (int i = erste; i >= 0 && i < modell_->rowCount() && modell_->zeile(i).istPflanze(); ++i)
        if (modell_->zeile(i).grund.isEmpty()) {
            erste = i;
            break;
        }
    waehlen(erste);
}

void frmSuche::platzNehmen()
{
    const QScreen *schirm = QGuiApplication::screenAt(anker_.center());
    const QRect flaeche = (schirm ? schirm : screen())->availableGeometry();
    const int breite = std::min(std::clamp(anker_.width(), kleinsteBreite, groessteBreite), flaeche.width());
    int zeilen = 0;
    for (int i = 0; i < modell_->rowCount(); ++i)
        zeilen += lstSuche_->sizeHintForRow(i);
    const QMargins rand = layout()->contentsMargins();
    const int rahmen =
        2 * frameWidth() + rand.top() + rand.bottom() + 2 * layout()->spacing() + txtSuche_->sizeHint().height() + lblSuche_->sizeHint().height();
    const int unten = flaeche.bottom() - anker_.bottom(), oben = anker_.top() - flaeche.top();
    const bool darunter = unten >= kleinsteHoehe || unten >= oben;
    const int hoehe = std::min({rahmen + zeilen, groessteHoehe, darunter ? unten : oben});
    const int links = std::clamp(anker_.left(), flaeche.left(), std::max(flaeche.left(), flaeche.right() + 1 - breite));
    setGeometry(links, darunter ? anker_.bottom() + 1 : anker_.top() - hoehe, breite, hoehe);
}

bool frmSuche::eventFilter(QObject *quelle, QEvent *ereignis)
{
    if (quelle == txtSuche_) {
        if (ereignis->type() == QEvent::ShortcutOverride) {
            // Keys of the window behind wait until the search is over.
            ereignis->accept();
            return true;
        }
        if (ereignis->type() == QEvent::KeyPress && taste(*static_cast<QKeyEvent *>(ereignis)))
            return true;
    }
    return QFrame::eventFilter(quelle, ereignis);
}

bool frmSuche::taste(QKeyEvent &ereignis)
{
    const int jetzt = lstSuche_->currentIndex().row(), letzte = modell_->rowCount() - 1;
    const auto gehen = [&](int nach, int richtung) {
        const int zeile = modell_->pflanzeAb(std::clamp(nach, 0, std::max(letzte, 0)), richtung);
        // Beyond the last plant in this direction it stays at that.
        waehlen(zeile >= 0 ? zeile : modell_->pflanzeAb(richtung > 0 ? letzte : 0, -richtung));
    };
    const auto seite = [&](int richtung) {
        const int zeilenhoehe = std::max(1, lstSuche_->sizeHintForRow(std::max(jetzt, 0)));
        gehen(jetzt + richtung * std::max(1, lstSuche_->viewport()->height() / zeilenhoehe - 1), richtung);
    };
    const bool strg = ereignis.modifiers().testFlag(Qt::ControlModifier);
    switch (ereignis.key()) {
    case Qt::Key_Down: gehen(jetzt + 1, 1); return true;
    case Qt::Key_Up: gehen(jetzt - 1, -1); return true;
    case Qt::Key_PageDown: seite(1); return true;
    case Qt::Key_PageUp: seite(-1); return true;
    case Qt::Key_Home:
        if (strg)
            gehen(0, 1);
        return strg;
    case Qt::Key_End:
        if (strg)
            gehen(letzte, -1);
        return strg;
    case Qt::Key_Enter:
    case Qt::Key_Return: annehmen(jetzt); return true;
    case Qt::Key_Escape: close(); return true;
    case Qt::Key_F:
        if (strg)
            txtSuche_->selectAll();
        return strg;
    case Qt::Key_Tab:
    case Qt::Key_Backtab: return true; // there is nowhere else to go
    default: return false;
    }
}

void frmSuche::waehlen(int zeile)
{
    const QModelIndex index = zeile < 0 ? QModelIndex() : modell_->index(zeile);
    lstSuche_->setCurrentIndex(index);
    if (index.isValid()) {
        // With the heading above it.
        if (zeile > 0 && !modell_->zeile(zeile - 1).istPflanze())
            lstSuche_->scrollTo(modell_->index(zeile - 1));
        lstSuche_->scrollTo(index);
    }
    fusszeile();
}

QString frmSuche::stelle(int zeile) const
{
    int stelle = 0, alle = 0;
    for (int i = 0; i < modell_->rowCount(); ++i) {
        alle += modell_->zeile(i).istPflanze();
        stelle += i <= zeile && modell_->zeile(i).istPflanze();
    }
    return alle > 1 ? QStringLiteral("%1 von %2").arg(stelle).arg(alle) : QString();
}

void frmSuche::fusszeile()
{
    const QModelIndex index = lstSuche_->currentIndex();
    const Suchzeile *zeile = index.isValid() && modell_->zeile(index.row()).istPflanze() ? &modell_->zeile(index.row()) : nullptr;
    const QString tasten = QStringLiteral("Eingabetaste: zeigen   Esc: schließen");
    const QString satz = zeile && !zeile->grund.isEmpty() ? ziel_.ratZumFehlen(zeile->artnr, zeile->bewertung)
                         : anzahl_.isEmpty()              ? tasten
                                                          : anzahl_ + QStringLiteral("   –   ") + tasten;
    lblSuche_->setText(satz);
    // Read out where the keyboard is: how many there are, the one that Enter would go to and its place.
    QStringList ansage{anzahl_};
    ansage += zeile ? zeile->alsSatz() : modell_->rowCount() > 0 ? modell_->zeile(0).alsSatz() : QString();
    if (zeile)
        ansage += stelle(index.row());
    ansage.removeAll(QString());
    const QString gesagt = ansage.join(QStringLiteral(". "));
    txtSuche_->setAccessibleDescription(gesagt);
    if (gesagt != lblSuche_->accessibleName()) {
        lblSuche_->setAccessibleName(gesagt);
        ansage_.start();
    }
}

void frmSuche::annehmen(int zeile)
{
    if (zeile < 0 || zeile >= modell_->rowCount() || !modell_->zeile(zeile).istPflanze())
        return;
    const Suchzeile gewaehlt = modell_->zeile(zeile);
    if (!gewaehlt.grund.isEmpty()) {
        waehlen(zeile);
        ziel_.nichtErreichbar(ziel_.ratZumFehlen(gewaehlt.artnr, gewaehlt.bewertung));
        return;
    }
    close();
    ziel_.gefunden(gewaehlt.artnr);
}
