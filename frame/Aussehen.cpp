#include "Aussehen.h"

#include "controls/Bilder.h"
#include "controls/Steuerelemente.h"

#include <QApplication>
#include <QIcon>
#include <QProxyStyle>
#include <QStyleOption>
#include <QToolTip>

#include <algorithm>

namespace aussehen {

namespace {

/// The usual style with a focus frame that is seen.
class Stil : public QProxyStyle
{
public:
    Stil() : QProxyStyle(QStringLiteral("fusion")) {}
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *maler, const QWidget *widget) const override
    {
        if (element == PE_FrameFocusRect) {
            fokusrahmenMalen(*maler, option->rect, option->palette);
            return;
        }
        QProxyStyle::drawPrimitive(element, option, maler, widget);
        // The usual outline is darker than the window, whatever the window's colour.
        if ((element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton) && istDunkel(option->palette))
            kastenrand(*maler, QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5), option->palette, element == PE_IndicatorCheckBox ? 2 : 100);
    }

private:
    static void kastenrand(QPainter &maler, const QRectF &flaeche, const QPalette &palette, double rundung)
    {
        maler.save();
        maler.setRenderHint(QPainter::Antialiasing);
        maler.setBrush(Qt::NoBrush);
        maler.setPen(QPen(palette.color(QPalette::PlaceholderText), 1));
        const double radius = std::min(rundung, flaeche.width() / 2);
        maler.drawRoundedRect(flaeche, radius, radius);
        maler.restore();
    }
};

struct Rollenfarbe
{
    QPalette::ColorRole rolle;
    QRgb hell, dunkel;
};

// clang-format off
/// Every role is named: what is left out would come from the desktop.
constexpr Rollenfarbe rollen[] = {
    {QPalette::Window,          0xf3f5f0, 0x1f2521}, {QPalette::WindowText,      0x233326, 0xe3e9e1},
    {QPalette::Base,            0xffffff, 0x181d1a}, {QPalette::AlternateBase,   0xf7f9f5, 0x1e2420},
    {QPalette::Text,            0x233326, 0xe3e9e1}, {QPalette::BrightText,      0xffffff, 0xffffff},
    {QPalette::PlaceholderText, 0x5c665a, 0xa3b0a1}, {QPalette::Button,          0xeaeee6, 0x2d352f},
    {QPalette::ButtonText,      0x233326, 0xe3e9e1}, {QPalette::Light,           0xffffff, 0x414c44},
    {QPalette::Midlight,        0xf5f7f2, 0x384139}, {QPalette::Mid,             0xc2cbbd, 0x56635a},
    {QPalette::Dark,            0x9da898, 0x141815}, {QPalette::Shadow,          0x6e786b, 0x0b0e0c},
    {QPalette::Highlight,       0x3f7d45, 0x3f7d45}, {QPalette::HighlightedText, 0xffffff, 0xffffff},
    {QPalette::Link,            0x1f5f8b, 0x86c1ee}, {QPalette::LinkVisited,     0x6a3d7c, 0xcbabdf},
    {QPalette::ToolTipBase,     0xfffdec, 0x363c2b}, {QPalette::ToolTipText,     0x233326, 0xe3e9e1},
};

/// Colours that only the style sheet has.
struct Blattfarbe
{
    const char *wort, *hell, *dunkel;
};
constexpr Blattfarbe blattfarben[] = {
    {"@karte",      "#ffffff", "#262d28"},
    {"@rand",       "#d5dcd0", "#3c463f"},
    {"@titel",      "#2f6b3a", "#8fd19a"},
    {"@feldtitel",  "#5c665a", "#a7b3a5"},
    {"@schreiben",  "#fcfdfb", "#1b211d"},
    {"@fokus",      "#233326", "#e3e9e1"},
    {"@anders",     "#fdf0c4", "#433c1d"},
};

constexpr char stilblatt[] =
    "QFrame[karte=\"true\"] { background: @karte; border: 1px solid @rand; border-radius: 6px; }"
    "QFrame[karte=\"true\"] QScrollArea, QFrame[karte=\"true\"] QScrollArea > QWidget > QWidget { background: transparent; }"
    "QGroupBox[karte=\"true\"] { background: @karte; border: 1px solid @rand; border-radius: 6px; }"
    "QGroupBox[karte=\"true\"] { padding: 26px 6px 4px 6px; font-weight: bold; }"
    "QGroupBox[karte=\"true\"] > QWidget { font-weight: normal; }"
    "QGroupBox[karte=\"true\"]::title { subcontrol-origin: border; left: 10px; top: 8px; color: @titel; }"
    "QLabel[gruppentitel=\"true\"] { color: @titel; font-weight: bold; }"
    "QLabel[feldtitel=\"true\"] { color: @feldtitel; }"
    "QFrame[karte=\"true\"] QPlainTextEdit { border: 1px solid @rand; border-radius: 4px; background: @schreiben; padding: 2px; }"
    "QFrame[karte=\"true\"] QPlainTextEdit:focus { border: 2px solid @fokus; padding: 1px; }"
    "QFrame[karte=\"true\"] QWidget[verschieden=\"true\"] { background: @anders; border-radius: 3px; }";
// clang-format on

Schema gilt = Schema::Hell;

const char *blattfarbe(const Blattfarbe &farbe, Schema schema)
{
    return schema == Schema::Hell ? farbe.hell : farbe.dunkel;
}

QColor blattfarbe(QLatin1String wort, Schema schema)
{
    return QColor(
        QLatin1String(blattfarbe(*std::ranges::find(blattfarben, wort, [](const Blattfarbe &f) { return QLatin1String(f.wort); }), schema)));
}

} // namespace

QPalette palette(Schema schema)
{
    QPalette farben;
    for (const Rollenfarbe &zeile : rollen)
        for (const QPalette::ColorGroup zustand : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            farben.setColor(zustand, zeile.rolle, QColor(schema == Schema::Hell ? zeile.hell : zeile.dunkel));
    const QColor gedaempft = farben.color(QPalette::PlaceholderText);
    for (const QPalette::ColorRole rolle : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        farben.setColor(QPalette::Disabled, rolle, gedaempft);
    farben.setColor(QPalette::Disabled, QPalette::Highlight, farben.color(schema == Schema::Hell ? QPalette::PlaceholderText : QPalette::Mid));
    return farben;
}

Schema schema()
{
    return gilt;
}

void anwenden(Schema schema)
{
    static bool gestalt = false;
    if (!std::exchange(gestalt, true))
        QApplication::setStyle(new Stil);
    gilt = schema;
    bilder::setDunkel(schema == Schema::Dunkel);
    QApplication::setPalette(palette(schema));
    QToolTip::setPalette(palette(schema));
    QString blatt = QString::fromLatin1(stilblatt);
    for (const Blattfarbe &farbe : blattfarben)
        blatt.replace(QLatin1String(farbe.wort), QLatin1String(blattfarbe(farbe, schema)));
    qApp->setStyleSheet(blatt);
    QApplication::setWindowIcon(QIcon(bilder::pixmap(QStringLiteral("flox"), {64, 64}, 1)));
}

std::vector<Farbpaar> farbpaare(Schema schema)
{
    const QPalette farben = palette(schema);
    const QColor karte = blattfarbe(QLatin1String("@karte"), schema);
    std::vector<Farbpaar> paare;
    const auto dazu = [&](const char *wo, QPalette::ColorRole schrift, QPalette::ColorRole grund) {
        for (const QPalette::ColorGroup zustand : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            paare.push_back({wo, farben.color(zustand, schrift), farben.color(zustand, grund)});
    };
    for (const QPalette::ColorRole grund : {QPalette::Window, QPalette::Base, QPalette::AlternateBase, QPalette::Button}) {
        dazu("text", QPalette::Text, grund);
        dazu("text of a window", QPalette::WindowText, grund);
        dazu("text of a button", QPalette::ButtonText, grund);
        dazu("hint in an empty field", QPalette::PlaceholderText, grund);
        dazu("link", QPalette::Link, grund);
        dazu("link followed", QPalette::LinkVisited, grund);
        paare.push_back({"warning", warnfarbe(farben), farben.color(grund)});
    }
    dazu("selection", QPalette::HighlightedText, QPalette::Highlight);
    dazu("tool tip", QPalette::ToolTipText, QPalette::ToolTipBase);
    for (const QPalette::ColorRole schrift : {QPalette::Text, QPalette::WindowText, QPalette::PlaceholderText, QPalette::Link, QPalette::LinkVisited})
        paare.push_back({"on a card", farben.color(schrift), karte});
    paare.push_back({"warning on a card", warnfarbe(farben), karte});
    paare.push_back({"title of a card", blattfarbe(QLatin1String("@titel"), schema), karte});
    paare.push_back({"title of a group", blattfarbe(QLatin1String("@titel"), schema), farben.color(QPalette::Window)});
    paare.push_back({"name of a field", blattfarbe(QLatin1String("@feldtitel"), schema), karte});
    paare.push_back({"name of a field beside a card", blattfarbe(QLatin1String("@feldtitel"), schema), farben.color(QPalette::Window)});
    paare.push_back({"text that is written", farben.color(QPalette::Text), blattfarbe(QLatin1String("@schreiben"), schema)});
    for (const QPalette::ColorRole schrift : {QPalette::Text, QPalette::WindowText, QPalette::PlaceholderText})
        paare.push_back({"value that differs", farben.color(schrift), blattfarbe(QLatin1String("@anders"), schema)});
    paare.push_back({"month or letter that is not set", zellenschrift(farben), farben.color(QPalette::Button)});
    return paare;
}

} // namespace aussehen
