#include "Bilderstreifen.h"

#include "Bildlader.h"
#include "Namensband.h"
#include "Vorschaubild.h"
#include "store/Pfade.h"

#include <QFileInfo>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmapCache>
#include <QScrollBar>
#include <QWheelEvent>

#include <cmath>

namespace {

// Measures of the strip in twips.
constexpr int bildrand = 30;
constexpr int ersterOben = 60, textOben = 1580, schritt = 1920, wegJeBild = 2095, abdeckungOben = 60;
constexpr double wegteiler = 1.35;
constexpr int ohneLeiste = 3; ///< pictures that fit without a bar
constexpr int eigenerZeiger = 99;

QString hinweis()
{
    return QStringLiteral("Anklicken um das Bild zu vergrößern");
}

/// Last part of a path as the program writes it.
QString dateiname(const QString &pfad)
{
    return pfad.mid(std::max(pfad.lastIndexOf(u'\\'), pfad.lastIndexOf(u'/')) + 1);
}

/// A caption of one line; what does not fit is cut when it is painted.
class Unterschrift : public QLabel
{
public:
    explicit Unterschrift(QWidget *eltern) : QLabel(eltern)
    {
        QFont schrift = font();
        schrift.setPointSizeF(schrift.pointSizeF() * 0.8);
        setFont(schrift);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter maler(this);
        maler.drawText(rect(), Qt::AlignHCenter | Qt::AlignTop, fontMetrics().elidedText(text(), Qt::ElideRight, width()));
    }
};

} // namespace

/// One place of the strip.
class Bilderstreifen::Platz : public QWidget
{
public:
    Platz(int index, Bilderstreifen *streifen, QWidget *eltern) : QWidget(eltern), index_(index), streifen_(streifen) {}

    void leeren()
    {
        bild_ = {};
        setToolTip({});
        setProperty("MousePointer", 0);
        unsetCursor();
        update();
    }
    void setEcht(bool echt, const QString &unterschrift)
    {
        setToolTip(echt ? hinweis() : QString());
        // Named by what it shows; what a click does is said after it.
        const QString bild = QStringLiteral("Bild %1").arg(index_ + 1), ohne = QStringLiteral("Kein Bild");
        setAccessibleName(!echt                    ? ohne + (unterschrift.isEmpty() ? QString() : QStringLiteral(": ") + unterschrift)
                          : unterschrift.isEmpty() ? bild
                                                   : unterschrift);
        setAccessibleDescription(toolTip());
        setProperty("MousePointer", echt ? eigenerZeiger : 0);
        setFocusPolicy(echt ? Qt::TabFocus : Qt::NoFocus);
        echt ? setCursor(Qt::PointingHandCursor) : unsetCursor();
    }
    void setBild(const QPixmap &bild)
    {
        bild_ = bild;
        update();
    }
    const QPixmap &bild() const { return bild_; }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter maler(this);
        if (!bild_.isNull())
            maler.drawPixmap(0, 0, bild_);
        if (streifen_->verdeckt_ && property("MousePointer").toInt() == eigenerZeiger)
            maler.fillRect(namensbandVon(rect()), palette().mid());
        if (hasFocus()) {
            // Dark within light: seen on any picture.
            maler.setPen(QPen(Qt::white, 3));
            maler.drawRect(rect().adjusted(1, 1, -2, -2));
            maler.setPen(QPen(Qt::black, 1));
            maler.drawRect(rect().adjusted(1, 1, -2, -2));
        }
    }
    void mousePressEvent(QMouseEvent *ereignis) override { gedrueckt_ = ereignis->button() == Qt::LeftButton; }
    void mouseDoubleClickEvent(QMouseEvent *) override { gedrueckt_ = false; }
    void mouseReleaseEvent(QMouseEvent *ereignis) override
    {
        // Whoever slides off the picture before letting go has thought better of it.
        if (ereignis->button() == Qt::LeftButton && std::exchange(gedrueckt_, false) && rect().contains(ereignis->position().toPoint()))
            anklicken();
    }
    void focusInEvent(QFocusEvent *ereignis) override
    {
        QWidget::focusInEvent(ereignis);
        if (ereignis->reason() == Qt::TabFocusReason || ereignis->reason() == Qt::BacktabFocusReason)
            streifen_->herholen(index_);
    }
    void keyPressEvent(QKeyEvent *ereignis) override
    {
        const int taste = ereignis->key();
        if (taste == Qt::Key_Space || taste == Qt::Key_Return || taste == Qt::Key_Enter)
            anklicken();
        else
            QWidget::keyPressEvent(ereignis);
    }

private:
    void anklicken()
    {
        if (property("MousePointer").toInt() == eigenerZeiger)
            emit streifen_->angeklickt(index_);
    }

    int index_;
    Bilderstreifen *streifen_ = nullptr;
    QPixmap bild_;
    bool gedrueckt_ = false;
};

Bilderstreifen::Bilderstreifen(QWidget *eltern)
    : QFrame(eltern), picBilderLeiste_(new QWidget(this)), picAbdeckung_(new QWidget(this)), vscBilder_(new QScrollBar(Qt::Vertical, this))
{
    picBilderLeiste_->setObjectName(QStringLiteral("picBilderLeiste"));
    picAbdeckung_->setObjectName(QStringLiteral("picAbdeckung"));
    picAbdeckung_->hide();
    vscBilder_->setObjectName(QStringLiteral("vscBilder"));
    vscBilder_->setRange(0, 100);
    vscBilder_->setPageStep(25);
    vscBilder_->hide();
    connect(vscBilder_, &QScrollBar::valueChanged, this, &Bilderstreifen::vscBilderEinrichten);
    for (int i = 0; i < groessteBilderzahl; ++i) {
        imgFloxBild_[size_t(i)] = new Platz(i, this, picBilderLeiste_);
        imgFloxBild_[size_t(i)]->setObjectName(QStringLiteral("imgFloxBild_%1").arg(i));
        auto *text = new Unterschrift(picBilderLeiste_);
        text->setObjectName(QStringLiteral("lblBilderText_%1").arg(i));
        lblBilderText_[size_t(i)] = text;
    }
    lader_.setMaxThreadCount(1);
}

Bilderstreifen::~Bilderstreifen()
{
    lader_.clear();
    lader_.waitForDone();
}

void Bilderstreifen::zeigen(const std::vector<Bildeintrag> &bilder, const QString &ersatz)
{
    bilder_ = bilder;
    if (bilder_.size() > size_t(groessteBilderzahl))
        bilder_.resize(groessteBilderzahl);
    ersatz_ = ersatz;
    if (bilder_.size() > size_t(ohneLeiste))
        vscBilder_->setValue(0);
    belegen();
}

void Bilderstreifen::belegen()
{
    anzahl_ = int(bilder_.size());
    ++satz_;
    lader_.clear();
    for (int i = 0; i < groessteBilderzahl; ++i) {
        Platz *platz = imgFloxBild_[size_t(i)];
        const bool belegt = i < anzahl_;
        const bool ersetzt = anzahl_ == 0 && i == 0;
        platz->leeren();
        beschriften(i);
        platz->setVisible(belegt || ersetzt);
        lblBilderText_[size_t(i)]->setVisible(belegt);
    }
    // A step of the bar is a third of a picture.
    if (anzahl_ > 0)
        vscBilder_->setSingleStep(int(std::lround(vscBilder_->maximum() * wegteiler * schritt / 3 / (anzahl_ * wegJeBild))));
    radrest_ = 0;
    vscBilderEinrichten();
    for (int i = 0; i < anzahl_; ++i)
        laden(i, bilder_[size_t(i)].pfad);
    if (anzahl_ == 0 && !ersatz_.isEmpty())
        laden(0, ersatz_);
}

void Bilderstreifen::beschriften(int i)
{
    const bool belegt = i < anzahl_;
    const QString unterschrift = belegt && !verdeckt_ ? bilder_[size_t(i)].beschreibung : QString();
    imgFloxBild_[size_t(i)]->setEcht(belegt && bilder_[size_t(i)].vorhanden, unterschrift);
    lblBilderText_[size_t(i)]->setText(unterschrift);
    lblBilderText_[size_t(i)]->setToolTip(unterschrift);
}

void Bilderstreifen::setVerdeckt(bool verdeckt)
{
    if (std::exchange(verdeckt_, verdeckt) == verdeckt)
        return;
    for (int i = 0; i < groessteBilderzahl; ++i) {
        beschriften(i);
        imgFloxBild_[size_t(i)]->update();
    }
}

void Bilderstreifen::ersetzen(int i)
{
    if (i >= anzahl_ || !bilder_[size_t(i)].vorhanden)
        return;
    Bildeintrag &bild = bilder_[size_t(i)];
    if (bild.ersatz.isEmpty())
        bilder_.erase(bilder_.begin() + i);
    else
        bild = {bild.ersatz, dateiname(bild.pfad), false};
    belegen();
}

void Bilderstreifen::laden(int i, const QString &pfad)
{
    const qreal skala = devicePixelRatioF();
    const QString datei = systemPfad(pfad);
    const QString schluessel = QStringLiteral("vorschau %1 %2 %3").arg(datei).arg(QFileInfo(datei).lastModified().toMSecsSinceEpoch()).arg(skala);
    const auto zeigen = [this, i](const QPixmap &bild) {
        imgFloxBild_[size_t(i)]->setBild(bild);
        platzieren(i);
    };
    if (QPixmap bild; QPixmapCache::find(schluessel, &bild))
        return zeigen(bild);
    const QSize kasten = QSize(pixel(vorschauBreite), pixel(vorschauHoehe)) * skala;
    lader_.start([this, i, datei, kasten, skala, schluessel, zeigen, satz = satz_] {
        QImage bild = ladeSkaliert(datei, kasten);
        bild.setDevicePixelRatio(skala);
        // The thread ends before this object does; the call waits for the message loop.
        QMetaObject::invokeMethod(
            this,
            [this, i, bild, schluessel, zeigen, satz] {
            if (bild.isNull())
                return satz == satz_ ? ersetzen(i) : void();
            const QPixmap fertig = QPixmap::fromImage(bild);
            QPixmapCache::insert(schluessel, fertig);
            if (satz == satz_)
                zeigen(fertig);
            },
            Qt::QueuedConnection);
    });
}

void Bilderstreifen::vscBilderEinrichten()
{
    vscBilder_->setVisible(anzahl_ > ohneLeiste);
    picAbdeckung_->move(picAbdeckung_->x(), pixel(abdeckungOben));
    for (int i = 0; i < groessteBilderzahl; ++i)
        platzieren(i);
}

void Bilderstreifen::platzieren(int i)
{
    const double verhaeltnis = anzahl_ > ohneLeiste ? double(vscBilder_->value()) / vscBilder_->maximum() / wegteiler : 0;
    const double versatz = i * schritt - verhaeltnis * anzahl_ * wegJeBild;
    Platz *platz = imgFloxBild_[size_t(i)];
    const QSizeF bild = platz->bild().isNull() ? QSizeF(pixel(vorschauBreite), pixel(vorschauHoehe)) : platz->bild().deviceIndependentSize();
    const double breite = bild.width() * twipsJePixel;
    const double links = (vorschauBreite - breite) / 2 + bildrand;
    platz->setGeometry(pixel(links), pixel(ersterOben + versatz), int(bild.width()), int(bild.height()));
    platz->setProperty("Left", links);
    platz->setProperty("Top", ersterOben + versatz);
    lblBilderText_[size_t(i)]->setGeometry(0, pixel(textOben + versatz), picBilderLeiste_->width(), pixel(schritt - textOben) - 2);
    lblBilderText_[size_t(i)]->setProperty("Top", textOben + versatz);
}

void Bilderstreifen::resizeEvent(QResizeEvent *ereignis)
{
    QFrame::resizeEvent(ereignis);
    const int leiste = vscBilder_->sizeHint().width();
    picBilderLeiste_->setGeometry(4, 2, qMax(pixel(vorschauBreite + 2 * bildrand), width() - leiste - 10), height() - 4);
    vscBilder_->setGeometry(width() - leiste - 3, 3, leiste, height() - 6);
    vscBilderEinrichten();
}

void Bilderstreifen::herholen(int i)
{
    if (vscBilder_->isHidden())
        return;
    const double oben = imgFloxBild_[size_t(i)]->property("Top").toDouble(), unten = oben + schritt;
    const double hoehe = double(picBilderLeiste_->height()) * twipsJePixel;
    const double weg = oben < ersterOben ? oben - ersterOben : unten > hoehe ? std::min(unten - hoehe, oben - ersterOben) : 0;
    const double jeSchritt = anzahl_ * wegJeBild / wegteiler / vscBilder_->maximum();
    vscBilder_->setValue(vscBilder_->value() + int(weg < 0 ? std::floor(weg / jeSchritt) : std::ceil(weg / jeSchritt)));
}

void Bilderstreifen::wheelEvent(QWheelEvent *ereignis)
{
    if (vscBilder_->isHidden())
        return QFrame::wheelEvent(ereignis);
    radrest_ += ereignis->angleDelta().y() * 3 * vscBilder_->singleStep();
    const int schritte = radrest_ / QWheelEvent::DefaultDeltasPerStep;
    radrest_ -= schritte * QWheelEvent::DefaultDeltasPerStep;
    vscBilder_->setValue(vscBilder_->value() - schritte);
    ereignis->accept();
}
