#include "Pfad.h"

#include <cctype>
#include <charconv>
#include <cmath>
#include <numbers>

namespace {

using std::numbers::pi;

/// Numbers and commands of a path text, one after the other.
class Leser
{
public:
    explicit Leser(const QByteArray &text) : ort_(text.begin()), ende_(text.end()) {}
    bool ende()
    {
        while (ort_ != ende_ && (*ort_ == ',' || std::isspace(uchar(*ort_))))
            ++ort_;
        return ort_ == ende_;
    }
    bool befehl() { return !ende() && std::isalpha(uchar(*ort_)); }
    char zeichen() { return *ort_++; }
    double zahl()
    {
        if (!ende() && *ort_ == '+')
            ++ort_;
        double wert = 0;
        const auto [weiter, was] = std::from_chars(ort_, ende_, wert, std::chars_format::fixed);
        fehler |= was != std::errc() || !std::isfinite(wert);
        ort_ = weiter;
        return wert;
    }
    /// One digit: the flags of an arc may stand without a separator.
    bool flagge()
    {
        fehler |= ende() || (*ort_ != '0' && *ort_ != '1');
        return !fehler && *ort_++ == '1';
    }
    bool fehler = false;

private:
    const char *ort_, *const ende_;
};

/// Elliptic arc as cubic curves, from the end points to the centre.
void bogen(QPainterPath &pfad, double rx, double ry, double drehung, bool gross, bool rechts, QPointF b)
{
    const QPointF a = pfad.currentPosition();
    rx = std::abs(rx), ry = std::abs(ry);
    if (rx < 1e-9 || ry < 1e-9 || a == b)
        return pfad.lineTo(b);
    const QPointF h = QTransform().rotate(-drehung).map((a - b) / 2);
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
    const QTransform lage = QTransform().translate((a.x() + b.x()) / 2, (a.y() + b.y()) / 2).rotate(drehung).translate(c.x(), c.y()).scale(rx, ry);
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
    const QByteArray zeichen = text.toLatin1();
    Leser leser(zeichen);
    QPainterPath pfad;
    QPointF griff; // control point that S and T reflect
    char befehl = 0, vor = 0;
    while (!leser.ende() && !leser.fehler) {
        if (leser.befehl())
            befehl = leser.zeichen();
        else if (!befehl || vor == 'Z')
            return {};
        const char art = char(std::toupper(befehl));
        if (pfad.elementCount() == 0 && art != 'M')
            return {};
        const QPointF ort = pfad.currentPosition(), null = art == befehl ? QPointF() : ort;
        const auto punkt = [&] {
            const double x = leser.zahl();
            return null + QPointF(x, leser.zahl());
        };
        const auto griffNach = [&](char kurve, char glatt) { return art == kurve ? punkt() : vor == kurve || vor == glatt ? 2 * ort - griff : ort; };
        switch (art) {
        case 'M':
            pfad.moveTo(punkt());
            befehl = char(befehl - 1); // further points are those of L
            break;
        case 'L': pfad.lineTo(punkt()); break;
        case 'H': pfad.lineTo(null.x() + leser.zahl(), ort.y()); break;
        case 'V': pfad.lineTo(ort.x(), null.y() + leser.zahl()); break;
        case 'C':
        case 'S': {
            const QPointF a = griffNach('C', 'S');
            griff = punkt();
            pfad.cubicTo(a, griff, punkt());
            break;
        }
        case 'Q':
        case 'T':
            griff = griffNach('Q', 'T');
            pfad.quadTo(griff, punkt());
            break;
        case 'A': {
            const double rx = leser.zahl(), ry = leser.zahl(), drehung = leser.zahl();
            const bool gross = leser.flagge(), rechts = leser.flagge();
            bogen(pfad, rx, ry, drehung, gross, rechts, punkt());
            break;
        }
        case 'Z': pfad.closeSubpath(); break;
        default: return {};
        }
        vor = art;
    }
    if (leser.fehler || pfad.isEmpty())
        return {};
    pfad.setFillRule(Qt::WindingFill);
    return pfad;
}
