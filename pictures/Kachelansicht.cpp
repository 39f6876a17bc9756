#include "Kachelansicht.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyleHints>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kachelrand = 8, namensabstand = 4; ///< around a tile; between picture and name
constexpr double rundung = 4;

} // namespace

Kachelansicht::Kachelansicht(Uebersichtsmodell &modell, Vorschaulager &lager, QWidget *eltern) : QListView(eltern), modell_(modell), lager_(lager)
{
    setUniformItemSizes(true);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // The width would change with the number of rows, and that with the width.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setVerticalScrollMode(ScrollPerPixel);
    setFrameShape(NoFrame);
    viewport()->setMouseTracking(true);
    anforderung_.setSingleShot(true);
    connect(&anforderung_, &QTimer::timeout, this, &Kachelansicht::anfordern);
    connect(&lager_, &Vorschaulager::angekommen, this, [this](const QString &datei) {
        const auto [von, bis] = sichtbar();
        for (int zeile = von; zeile <= bis; ++zeile)
            if (modell_.bild(zeile).datei == datei || datei == modell_.seite().ersatz)
                viewport()->update(ort(zeile));
        // In place of what cannot be read another file is wanted.
        if (const Vorschaulager::Eintrag *da = lager_.finden(datei); da && da->bild.isNull())
            anforderung_.start(0);
    });
    setModel(&modell_);
}

void Kachelansicht::setKachel(int breite)
{
    breite = std::clamp(breite, kleinste, groesste);
    if (breite == kachel_)
        return;
    const auto [von, bis] = sichtbar();
    const int jetzt = currentIndex().row();
    anker_ = jetzt >= von && jetzt <= bis ? jetzt : (von + bis) / 2;
    kachel_ = breite;
    updateGeometries();
    anker_ = -1;
    viewport()->update();
}

void Kachelansicht::updateGeometries()
{
    const int vorher = anker_ >= 0 ? anker_ : verticalOffset() / zeilenhoehe_ * spalten_;
    const int imFenster = ort(vorher).top();
    const QSize fenster = viewport()->size();
    spalten_ = std::max(1, fenster.width() / (kachel_ + 2 * kachelrand));
    spaltenbreite_ = double(fenster.width()) / spalten_;
    const int alteHoehe = std::exchange(zeilenhoehe_, platz().height() + 2 * kachelrand + namensabstand + fontMetrics().height());
    QScrollBar *balken = verticalScrollBar();
    balken->setSingleStep(std::max(1, zeilenhoehe_ / 4));
    balken->setPageStep(std::max(zeilenhoehe_, fenster.height() / zeilenhoehe_ * zeilenhoehe_));
    balken->setRange(0, std::max(0, zeilen() * zeilenhoehe_ - fenster.height()));
    // The same row at the same height of the window, as far as it is seen whole there.
    const int hoehe =
        imFenster < 0 ? imFenster * zeilenhoehe_ / std::max(1, alteHoehe) : std::min(imFenster, std::max(0, fenster.height() - zeilenhoehe_));
    balken->setValue(vorher / spalten_ * zeilenhoehe_ - hoehe);
    unterMaus_ = -1;
    anforderung_.start(0);
}

void Kachelansicht::doItemsLayout()
{
    QAbstractItemView::doItemsLayout();
}

int Kachelansicht::verticalOffset() const
{
    return verticalScrollBar()->value();
}

QRect Kachelansicht::ort(int zeile) const
{
    const int spalte = zeile % spalten_, links = int(std::lround(spalte * spaltenbreite_));
    return {links, zeile / spalten_ * zeilenhoehe_ - verticalOffset(), int(std::lround((spalte + 1) * spaltenbreite_)) - links, zeilenhoehe_};
}

std::pair<int, int> Kachelansicht::sichtbar() const
{
    const int von = verticalOffset() / zeilenhoehe_ * spalten_;
    const int bis = (verticalOffset() + std::max(0, viewport()->height() - 1)) / zeilenhoehe_ * spalten_ + spalten_ - 1;
    return {von, std::min(bis, modell_.rowCount() - 1)};
}

QRect Kachelansicht::visualRect(const QModelIndex &index) const
{
    return index.isValid() ? ort(index.row()) : QRect();
}

QModelIndex Kachelansicht::indexAt(const QPoint &punkt) const
{
    if (!viewport()->rect().contains(punkt))
        return {};
    const int spalte = std::min(spalten_ - 1, int(punkt.x() / spaltenbreite_));
    const int zeile = (punkt.y() + verticalOffset()) / zeilenhoehe_ * spalten_ + spalte;
    return zeile < modell_.rowCount() ? modell_.index(zeile) : QModelIndex();
}

void Kachelansicht::scrollTo(const QModelIndex &index, ScrollHint art)
{
    if (!index.isValid())
        return;
    const QRect stelle = ort(index.row());
    QScrollBar *balken = verticalScrollBar();
    const int frei = viewport()->height() - stelle.height();
    if (art == PositionAtCenter)
        balken->setValue(balken->value() + stelle.top() - frei / 2);
    else if (art == PositionAtTop || (art == EnsureVisible && stelle.top() < 0))
        balken->setValue(balken->value() + stelle.top());
    else if (art == PositionAtBottom || stelle.top() > frei)
        balken->setValue(balken->value() + std::min(stelle.top() - frei, stelle.top()));
}

QModelIndex Kachelansicht::moveCursor(CursorAction weg, Qt::KeyboardModifiers)
{
    const int letzte = modell_.rowCount() - 1, jetzt = currentIndex().row();
    if (letzte < 0)
        return {};
    if (jetzt < 0)
        return modell_.index(std::min(letzte, sichtbar().first));
    const int seite = std::max(1, viewport()->height() / zeilenhoehe_) * spalten_;
    // A line up or down that is not there is no reason to leave the column.
    const auto umZeilen = [&](int um) {
        int neu = jetzt + um;
        if (neu < 0)
            neu = jetzt % spalten_;
        else if (neu > letzte)
            neu = jetzt / spalten_ == letzte / spalten_ ? jetzt : std::min(letzte, (letzte / spalten_) * spalten_ + jetzt % spalten_);
        return neu;
    };
    int neu = jetzt;
    switch (weg) {
    case MoveUp: neu = umZeilen(-spalten_); break;
    case MoveDown: neu = umZeilen(spalten_); break;
    case MovePageUp: neu = umZeilen(-seite); break;
    case MovePageDown: neu = umZeilen(seite); break;
    case MoveLeft:
    case MovePrevious: neu = std::max(0, jetzt - 1); break;
    case MoveRight:
    case MoveNext: neu = std::min(letzte, jetzt + 1); break;
    case MoveHome: neu = 0; break;
    case MoveEnd: neu = letzte; break;
    }
    return modell_.index(neu);
}

void Kachelansicht::setSelection(const QRect &rahmen, QItemSelectionModel::SelectionFlags art)
{
    selectionModel()->select(indexAt(rahmen.center()), art);
}

QRegion Kachelansicht::visualRegionForSelection(const QItemSelection &auswahl) const
{
    QRegion flaeche;
    const auto [von, bis] = sichtbar();
    for (const QItemSelectionRange &teil : auswahl)
        for (int zeile = std::max(von, teil.top()); zeile <= std::min(bis, teil.bottom()); ++zeile)
            flaeche += ort(zeile);
    return flaeche;
}

void Kachelansicht::keyboardSearch(const QString &suche)
{
    const bool neu = !suchuhr_.isValid() || suchuhr_.hasExpired(QApplication::keyboardInputInterval());
    suchuhr_.start();
    suche_ = neu ? suche : suche_ + suche;
    // The same letter again and again walks through the plants that begin with it.
    const bool gleiche = suche_.size() > 1 && suche_.count(suche_.front(), Qt::CaseInsensitive) == suche_.size();
    int zeile = modell_.zeileMit(suche_, currentIndex().row(), neu);
    if (zeile < 0 && gleiche)
        zeile = modell_.zeileMit(suche_.left(1), currentIndex().row(), true);
    if (zeile >= 0)
        setCurrentIndex(modell_.index(zeile));
}

void Kachelansicht::scrollContentsBy(int, int dy)
{
    viewport()->scroll(0, dy);
    schweben(-1);
    anforderung_.start(0);
}

/// Box that thumbnails are fitted to. It shrinks where what is seen at once would not find room.
QSize Kachelansicht::kasten() const
{
    const auto [von, bis] = sichtbar();
    const QSizeF eines = QSizeF(platz()) * devicePixelRatioF();
    const double alle = 4 * eines.width() * eines.height() * (bis - von + 1);
    const double teil = std::min(1.0, std::sqrt(double(lager_.grenze()) / 2 / std::max(1.0, alle)));
    return (eines * teil).toSize().expandedTo({1, 1});
}

void Kachelansicht::anfordern()
{
    const auto [von, bis] = sichtbar();
    if (bis < von || !isVisible())
        return lager_.wuenschen({}, {});
    // What is seen, then what comes next on either side.
    const int seite = bis - von + 1, letzte = modell_.rowCount() - 1;
    QStringList dateien;
    dateien.reserve(2 * seite);
    const auto dazu = [&](int zeile) {
        const QString &datei = modell_.bild(zeile).datei;
        const Vorschaulager::Eintrag *da = lager_.finden(datei);
        dateien += da && da->bild.isNull() ? modell_.seite().ersatz : datei;
    };
    for (int zeile = von; zeile <= bis; ++zeile)
        dazu(zeile);
    for (int zeile = bis + 1; zeile <= std::min(letzte, bis + seite / 2); ++zeile)
        dazu(zeile);
    for (int zeile = von - 1; zeile >= std::max(0, von - seite / 2); --zeile)
        dazu(zeile);
    lager_.wuenschen(dateien, kasten());
}

const Vorschaulager::Eintrag *Kachelansicht::bild(int zeile) const
{
    const Vorschaulager::Eintrag *da = lager_.finden(modell_.bild(zeile).datei);
    if (da && da->bild.isNull())
        da = lager_.finden(modell_.seite().ersatz);
    return da && !da->bild.isNull() ? da : nullptr;
}

void Kachelansicht::malen(QPainter &maler, int zeile) const
{
    const QRect stelle = ort(zeile);
    const bool gewaehlt = zeile == currentIndex().row();
    if (gewaehlt || zeile == unterMaus_) {
        maler.setPen(Qt::NoPen);
        maler.setBrush(palette().brush(gewaehlt ? QPalette::Highlight : QPalette::AlternateBase));
        maler.drawRoundedRect(QRectF(stelle).adjusted(2, 2, -2, -2), rundung, rundung);
    }
    const QRect platz(QPoint(stelle.left() + (stelle.width() - kachel_) / 2, stelle.top() + kachelrand), this->platz());
    if (const Vorschaulager::Eintrag *da = bild(zeile)) {
        const QSizeF groesse = QSizeF(da->bild.size()).scaled(QSizeF(platz.size()), Qt::KeepAspectRatio);
        const QRectF ziel(platz.left() + std::round((platz.width() - groesse.width()) / 2), platz.bottom() + 1 - groesse.height(), groesse.width(),
                          groesse.height());
        maler.drawImage(ziel, da->bild);
    } else {
        maler.setPen(Qt::NoPen);
        maler.setBrush(palette().brush(QPalette::Button));
        maler.drawRoundedRect(platz, rundung, rundung);
    }
    const QRect text(stelle.left() + kachelrand, platz.bottom() + 1 + namensabstand, stelle.width() - 2 * kachelrand, fontMetrics().height());
    maler.setPen(palette().color(gewaehlt ? QPalette::HighlightedText : QPalette::Text));
    maler.drawText(text, Qt::AlignHCenter | Qt::AlignVCenter | Qt::TextSingleLine,
                   fontMetrics().elidedText(modell_.pflanze(zeile).botanisch, Qt::ElideRight, text.width()));
}

void Kachelansicht::paintEvent(QPaintEvent *ereignis)
{
    QPainter maler(viewport());
    maler.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const auto [von, bis] = sichtbar();
    for (int zeile = von; zeile <= bis; ++zeile)
        if (ereignis->region().intersects(ort(zeile)))
            malen(maler, zeile);
}

void Kachelansicht::changeEvent(QEvent *ereignis)
{
    QListView::changeEvent(ereignis);
    if (ereignis->type() == QEvent::FontChange || ereignis->type() == QEvent::StyleChange)
        updateGeometries();
}

void Kachelansicht::keyPressEvent(QKeyEvent *ereignis)
{
    switch (ereignis->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (currentIndex().isValid())
            emit gewaehlt(currentIndex());
        break;
    case Qt::Key_Plus: emit groesseGewuenscht(1); break;
    case Qt::Key_Minus: emit groesseGewuenscht(-1); break;
    case Qt::Key_Escape: ereignis->ignore(); break;
    default: QListView::keyPressEvent(ereignis);
    }
}

void Kachelansicht::mousePressEvent(QMouseEvent *ereignis)
{
    gedrueckt_ = ereignis->button() == Qt::LeftButton ? indexAt(ereignis->position().toPoint()).row() : -1;
    if (gedrueckt_ >= 0)
        setCurrentIndex(modell_.index(gedrueckt_));
}

void Kachelansicht::mouseMoveEvent(QMouseEvent *ereignis)
{
    schweben(indexAt(ereignis->position().toPoint()).row());
}

void Kachelansicht::mouseReleaseEvent(QMouseEvent *ereignis)
{
    // Whoever slides off the picture before letting go has thought better of it.
    const int zeile = std::exchange(gedrueckt_, -1);
    if (ereignis->button() == Qt::LeftButton && zeile >= 0 && indexAt(ereignis->position().toPoint()).row() == zeile)
        emit gewaehlt(modell_.index(zeile));
}

void Kachelansicht::leaveEvent(QEvent *ereignis)
{
    QListView::leaveEvent(ereignis);
    schweben(-1);
}

void Kachelansicht::schweben(int zeile)
{
    if (zeile == unterMaus_)
        return;
    for (const int betroffen : {std::exchange(unterMaus_, zeile), zeile})
        if (betroffen >= 0)
            viewport()->update(ort(betroffen));
    zeile >= 0 ? viewport()->setCursor(Qt::PointingHandCursor) : viewport()->unsetCursor();
}

void Kachelansicht::wheelEvent(QWheelEvent *ereignis)
{
    if (!(ereignis->modifiers() & Qt::ControlModifier)) {
        radrest_ = 0;
        return QListView::wheelEvent(ereignis);
    }
    radrest_ += ereignis->angleDelta().y();
    if (const int schritte = radrest_ / QWheelEvent::DefaultDeltasPerStep) {
        radrest_ -= schritte * QWheelEvent::DefaultDeltasPerStep;
        emit groesseGewuenscht(schritte);
    }
    ereignis->accept();
}
