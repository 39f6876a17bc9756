#include "Hilfeblatt.h"

#include "controls/Steuerelemente.h"

#include <QImage>
#include <QScrollBar>
#include <QTextDocument>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace {

constexpr int seitenrand = 16; // pixels

/// Colours of the manual's style sheet and what stands for them on dark paper.
// clang-format off
constexpr std::pair<const char *, const char *> dunkleFarben[] = {
    {"#233326", "#e3e9e1"}, {"#2f6b3a", "#8fd19a"}, {"#1f5f8b", "#86c1ee"}, {"#eaf2e6", "#2b3a2f"}, {"#d5dcd0", "#48544b"},
    {"#eef1ea", "#323b35"}, {"#fff8dc", "#3a3823"}, {"#5c665a", "#a3b0a1"},
};
// clang-format on

QString fuerDunkel(QString blatt)
{
    for (const auto &[hell, dunkel] : dunkleFarben)
        blatt.replace(QLatin1String(hell), QLatin1String(dunkel));
    return blatt;
}

} // namespace

Hilfeblatt::Hilfeblatt(std::function<QByteArray(const QUrl &)> lesen, QWidget *eltern)
    : QTextBrowser(eltern), lesen_(std::move(lesen)), schrift_(font())
{
    setFrameShape(QFrame::NoFrame);
    setOpenExternalLinks(false);
    // Pictures are fitted into a width that does not depend on the length of the page.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    document()->setDocumentMargin(seitenrand);
    nachGroesse_.setObjectName(QStringLiteral("timGroesse"));
    nachGroesse_.setSingleShot(true);
    nachGroesse_.setInterval(150);
    connect(&nachGroesse_, &QTimer::timeout, this, [this] {
        if (hatBilder_ && viewport()->width() != breite_)
            neuSetzen();
    });
}

QVariant Hilfeblatt::loadResource(int art, const QUrl &url)
{
    const QByteArray daten = lesen_(source().resolved(url));
    if (art == QTextDocument::HtmlResource)
        hatBilder_ = false;
    if (art == QTextDocument::StyleSheetResource && istDunkel(palette()))
        return fuerDunkel(QString::fromUtf8(daten));
    if (art != QTextDocument::ImageResource)
        return QString::fromUtf8(daten);
    hatBilder_ = true;
    breite_ = viewport()->width();
    QImage bild = QImage::fromData(daten);
    const double skala = devicePixelRatioF();
    const int breite = int(std::min(bild.width() * faktor(), double(breite_ - 2 * seitenrand - 4)) * skala);
    if (bild.isNull() || breite < 1)
        return bild;
    if (breite != bild.width())
        bild = bild.scaledToWidth(breite, Qt::SmoothTransformation);
    bild.setDevicePixelRatio(skala);
    return bild;
}

void Hilfeblatt::neuSetzen()
{
    // The reader keeps his place.
    const QScrollBar *leiste = verticalScrollBar();
    const double ort = leiste->maximum() > 0 ? double(leiste->value()) / leiste->maximum() : 0;
    reload();
    verticalScrollBar()->setValue(int(ort * verticalScrollBar()->maximum() + 0.5));
}

void Hilfeblatt::setStufe(int stufe)
{
    stufe = std::clamp(stufe, kleinste, groesste);
    if (stufe == stufe_)
        return;
    stufe_ = stufe;
    QFont schrift = schrift_;
    schrift.setPointSizeF(schrift_.pointSizeF() * faktor());
    setFont(schrift);
    neuSetzen();
}

void Hilfeblatt::hervorheben(const QStringList &worte)
{
    QList<ExtraSelection> marken;
    int erste = -1;
    for (const QString &wort : worte)
        for (QTextCursor ort = document()->find(wort); !ort.isNull(); ort = document()->find(wort, ort)) {
            ExtraSelection marke;
            marke.cursor = ort;
            marke.format.setBackground(QColor(0xff, 0xe8, 0x8a));
            marke.format.setForeground(QColor(0x23, 0x33, 0x26));
            marken += marke;
            erste = erste < 0 ? ort.selectionStart() : std::min(erste, ort.selectionStart());
        }
    setExtraSelections(marken);
    if (erste >= 0 && !source().hasFragment()) {
        QTextCursor ort(document());
        ort.setPosition(erste);
        setTextCursor(ort);
        // Not at the edge: what stands before it belongs to it.
        constexpr int davor = 90; // pixels
        verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect().top() - davor);
    }
}

void Hilfeblatt::resizeEvent(QResizeEvent *ereignis)
{
    QTextBrowser::resizeEvent(ereignis);
    nachGroesse_.start();
}

void Hilfeblatt::changeEvent(QEvent *ereignis)
{
    QTextBrowser::changeEvent(ereignis);
    if (ereignis->type() == QEvent::PaletteChange && !source().isEmpty())
        neuSetzen();
}

void Hilfeblatt::wheelEvent(QWheelEvent *ereignis)
{
    // Its own zoom would not reach the pictures.
    if (ereignis->modifiers() != Qt::ControlModifier)
        return QTextBrowser::wheelEvent(ereignis);
    if (const int weg = ereignis->angleDelta().y())
        setStufe(stufe_ + (weg > 0 ? 1 : -1));
    ereignis->accept();
}
