#include "Vorschaubild.h"

#include "store/Programm.h"

#include <cmath>
#include <tuple>
#include <utility>

QSize vorschaugroesse(QSize bild)
{
    if (bild.isEmpty())
        return {};
    const double hoehe = double(bild.height()) * twipsJePixel, breite = double(bild.width()) * twipsJePixel;
    const auto geteilt = [&](double teiler) { return std::pair(std::lrint(breite / teiler), std::lrint(hoehe / teiler)); };
    auto [neueBreite, neueHoehe] = geteilt(hoehe / vorschauHoehe);
    if (neueBreite > vorschauBreite)
        std::tie(neueBreite, neueHoehe) = geteilt(breite / vorschauBreite);
    return QSize(pixel(double(neueBreite)), pixel(double(neueHoehe))).expandedTo({1, 1});
}
