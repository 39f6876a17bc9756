#include "Pfad.h"

#include <cmath>
#include <numbers>

namespace {

using std::numbers::pi;

/// Numbers and commands of a path text, one after the other.
class Leser
{
public:
    explicit Leser(QStringView text) : text_(text) {}
    bool ende()
    {
        while (i_ < text_.size() && (text_[i_].isSpace() || text_[i_] == u','))
            ++i_;
        return i_ >= text_.size();
    }
    bool befehl() { return !ende() && text_[i_].isLetter(); }
    QChar zeichen() { return text_[i_++]; }
    double zahl()
    {
        if (ende())
            fehler = true;
        const qsizetype von = i_;
        if (i_ < text_.size() && (text_[i_] == u'-' || text_[i_] == u'+'))
            ++i_;
        // Up to 15 digits, the quotient of two whole numbers is the nearest value there is.
        static constexpr double zehner[] = {1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
        qint64 ganz = 0;
        int ziffern = 0, hinten = 0;
        bool punkt = false;
        for (; i_ < text_.size() && ((text_[i_] >= u'0' && text_[i_] <= u'9') || (text_[i_] == u'.' && !punkt)); ++i_) {
            if (text_[i_] == u'.') {
                punkt = true;
                continue;
            }
            ganz = ganz * 10 + (text_[i_].unicode() - u'0');
            hinten += punkt;
            if (++ziffern > 15) {
                fehler = true;
                break;
            }
        }
        fehler |= ziffern == 0;
        return fehler ? 0 : (text_[von] == u'-' ? -1 : 1) * (double(ganz) / zehner[hinten]);
    }
    /// One digit: the flags of an arc may stand without a separator.
    bool flagge()
    {
        if (ende() || (text_[i_] != u'0' && text_[i_] != u'1'))
            return fehler = true;
        return text_[i_++] == u'1';
    }
    bool fehler = false;

private:
    const QStringView text_;
    qsizetype i_ = 0;
};

/// Elliptic arc as cubic curves, from the end points to the centre.
void bogen(QPainterPath &pfad, QPointF a, double rx, double ry, double drehung, bool gross, bool rechts, QPointF b)
{
    rx = std::abs(rx), ry = std::abs(ry);
    if (rx < 1e-9 || ry < 1e-9 || a == b)
        return pfad.lineTo(b);
    QTransform drehen;
    drehen.rotate(drehung);
    const QPointF h = drehen.inverted().map((a - b) / 2);
    const double zu = h.x() * h.x() / (rx * rx) + h.y() * h.y() / (ry * ry);
    if (zu > 1)
        rx *= std::sqrt(zu), ry *= std::sqrt(zu);
    const double n = rx * rx * h.y() * h.y() + ry * ry * h.x() * h.x();
    const double f = (gross == rechts ? -1 : 1) * std::sqrt(std::max(0.0, (rx * rx * ry * ry - n) / n));
    const QPointF c(f * rx * h.y() / ry, -f * ry * h.x() / rx);
    const double von = std::atan2((h.y() - c.y()) / ry, (h.x() - c.x()) / rx);
    double weg = std::atan2((-h.y() - c.y()) / ry, (-h.x() - c.x()) / rx) - von;
    if (rechts && weg < 0)
        weg += 2 * pi;
    if (!rechts && weg > 0)
        weg -= 2 * pi;
    QTransform lage;
    lage.translate((a.x() + b.x()) / 2, (a.y() + b.y()) / 2);
    lage.rotate(drehung);
    lage.translate(c.x(), c.y());
    lage.scale(rx, ry);
    const int stuecke = std::max(1, int(std::ceil(std::abs(weg) / (pi / 2) - 1e-6)));
    const double schritt = weg / stuecke, k = 4.0 / 3 * std::tan(schritt / 4);
    for (int i = 0; i < stuecke; ++i) {
        const double s = von + i * schritt, e = s + schritt;
        const QPointF p(std::cos(s), std::sin(s)), q(std::cos(e), std::sin(e));
        pfad.cubicTo(lage.map(p + k * QPointF(-p.y(), p.x())), lage.map(q - k * QPointF(-q.y(), q.x())), i + 1 == stuecke ? b : lage.map(q));
    }
}

} // namespace

std::optional<QPainterPath> pfadAus(QStringView text)
{
    Leser leser(text);
    QPainterPath pfad;
    QPointF ort, anfang, griff; // griff: control point that S and T reflect
    QChar befehl, letzter;
    while (!leser.ende() && !leser.fehler) {
        if (leser.befehl())
            befehl = leser.zeichen();
        else if (befehl.isNull() || befehl.toUpper() == u'Z')
            return {};
        const QPointF null = befehl.isLower() ? ort : QPointF();
        const auto punkt = [&] {
            const double x = leser.zahl();
            return null + QPointF(x, leser.zahl());
        };
        const char16_t art = befehl.toUpper().unicode(), vor = letzter.toUpper().unicode();
        if (pfad.elementCount() == 0 && art != u'M')
            return {};
        switch (art) {
        case u'M':
            pfad.moveTo(ort = anfang = punkt());
            befehl = befehl.isLower() ? u'l' : u'L';
            break;
        case u'L': pfad.lineTo(ort = punkt()); break;
        case u'H': pfad.lineTo(ort = {null.x() + leser.zahl(), ort.y()}); break;
        case u'V': pfad.lineTo(ort = {ort.x(), null.y() + leser.zahl()}); break;
        case u'C':
        case u'S': {
            const QPointF a = art == u'C' ? punkt() : vor == u'C' || vor == u'S' ? 2 * ort - griff : ort;
            griff = punkt();
            const QPointF ziel = punkt();
            pfad.cubicTo(a, griff, ziel);
            ort = ziel;
            break;
        }
        case u'Q':
        case u'T': {
            griff = art == u'Q' ? punkt() : vor == u'Q' || vor == u'T' ? 2 * ort - griff : ort;
            pfad.quadTo(griff, ort = punkt());
            break;
        }
        case u'A': {
            const double rx = leser.zahl(), ry = leser.zahl(), drehung = leser.zahl();
            const bool gross = leser.flagge(), rechts = leser.flagge();
            const QPointF ziel = punkt();
            bogen(pfad, ort, rx, ry, drehung, gross, rechts, ziel);
            ort = ziel;
            break;
        }
        case u'Z':
            pfad.closeSubpath();
            ort = anfang;
            break;
        default: return {};
        }
        letzter = art == u'M' ? QChar(u'M') : befehl;
    }
    if (leser.fehler || pfad.isEmpty())
        return {};
    pfad.setFillRule(Qt::WindingFill);
    return pfad;
}
