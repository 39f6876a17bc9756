#include "Aussehen.h"

#include "controls/Bilder.h"
#include "controls/Steuerelemente.h"

#include <QApplication>
#include <QGroupBox>
#include <QIcon>
#include <QLabel>
#include <QPainter>
#include <QPlainTextEdit>
#include <QProxyStyle>
#include <QStyleOption>
#include <QToolTip>

#include <algorithm>

namespace aussehen {

namespace {

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
    {QPalette::Text,            0x233326, 0xe3e9e1}, {QPalette::BrightText,      0x2f6b3a, 0x8fd19a},
    {QPalette::PlaceholderText, 0x5c665a, 0xa3b0a1}, {QPalette::Button,          0xeaeee6, 0x2d352f},
    {QPalette::ButtonText,      0x233326, 0xe3e9e1}, {QPalette::Light,           0xffffff, 0x414c44},
    {QPalette::Midlight,        0xf5f7f2, 0x384139}, {QPalette::Mid,             0xc2cbbd, 0x56635a},
    {QPalette::Dark,            0x9da898, 0x141815}, {QPalette::Shadow,          0x6e786b, 0x0b0e0c},
    {QPalette::Highlight,       0x3f7d45, 0x3f7d45}, {QPalette::HighlightedText, 0xffffff, 0xffffff},
    {QPalette::Link,            0x1f5f8b, 0x86c1ee}, {QPalette::LinkVisited,     0x6a3d7c, 0xcbabdf},
    {QPalette::ToolTipBase,     0xfffdec, 0x363c2b}, {QPalette::ToolTipText,     0x233326, 0xe3e9e1},
};

/// Colours that are no role of the palette.
enum class Flaeche { Karte, Rand, Fokus, Anders };

struct Flaechenfarbe
{
    QRgb hell, dunkel;
};
/// In the order of Flaeche.
constexpr Flaechenfarbe flaechenfarben[] = {{0xffffff, 0x262d28}, {0xd5dcd0, 0x3c463f}, {0x233326, 0xe3e9e1}, {0xfdf0c4, 0x433c1d}};
// clang-format on

/// Titles of cards and groups: the only texts that are "bright".
constexpr QPalette::ColorRole titelrolle = QPalette::BrightText;

constexpr int kartenrundung = 6, kastenrundung = 4, feldrundung = 3; // pixels
constexpr int kastenrand = 3;                                        // pixels: the outline of a text box, and air
constexpr QMargins gruppenrand(7, 27, 7, 5);                         // pixels: around the content of a group box; above stands its title
constexpr QPoint gruppentitel(12, 8);                                // pixels

Schema gilt = Schema::Hell;

QColor flaechenfarbe(Flaeche flaeche, Schema schema = gilt)
{
    const Flaechenfarbe &zeile = flaechenfarben[size_t(flaeche)];
    return QColor(schema == Schema::Hell ? zeile.hell : zeile.dunkel);
}

QFont fett(QFont schrift)
{
    schrift.setBold(true);
    return schrift;
}

/// The usual style with a focus frame that is seen, and with what rooms mark by properties: "karte" a frame or a group box that is a card,
/// "gruppentitel" and "feldtitel" labels, "verschieden" a value unlike another's. It does what a style sheet of a few lines would do, which
/// made a window take three times as long to open. Marks are looked at when a widget is polished.
class Stil : public QProxyStyle
{
public:
    Stil() : QProxyStyle(QStringLiteral("fusion")) {}

    using QProxyStyle::polish;
    void polish(QWidget *widget) override
    {
        QProxyStyle::polish(widget);
        if (auto *schild = qobject_cast<QLabel *>(widget); schild && traegt(schild, "gruppentitel")) {
            schild->setFont(fett(schild->testAttribute(Qt::WA_SetFont) ? schild->font() : QFont())); // what it had not set it still inherits
            schild->setForegroundRole(titelrolle);
        } else if (schild && traegt(schild, "feldtitel")) {
            schild->setForegroundRole(QPalette::PlaceholderText);
        } else if (auto *kasten = qobject_cast<QPlainTextEdit *>(widget)) {
            kasten->setFrameShape(kasten->frameShape()); // takes its width anew
            if (const bool anders = traegt(kasten, "verschieden"); anders || kasten->testAttribute(Qt::WA_SetPalette)) {
                QPalette farben;
                if (anders)
                    farben.setColor(QPalette::Base, flaechenfarbe(Flaeche::Anders));
                kasten->setPalette(farben);
            }
        } else if (auto *rahmen = qobject_cast<QFrame *>(widget); rahmen && traegt(rahmen, "karte")) {
            rahmen->setFrameShape(QFrame::StyledPanel);
        } else if (istGruppenkarte(widget)) {
            QEvent neu(QEvent::StyleChange); // takes its margins anew
            QCoreApplication::sendEvent(widget, &neu);
        }
    }

    int pixelMetric(PixelMetric mass, const QStyleOption *option, const QWidget *widget) const override
    {
        if (mass == PM_DefaultFrameWidth && qobject_cast<const QPlainTextEdit *>(widget))
            return kastenrand;
        return QProxyStyle::pixelMetric(mass, option, widget);
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *maler, const QWidget *widget) const override
    {
        if (element == PE_FrameFocusRect) {
            fokusrahmenMalen(*maler, option->rect, option->palette);
            return;
        }
        if (element == PE_Widget && traegt(widget, "verschieden")) {
            rundMalen(*maler, option->rect, feldrundung, QPen(Qt::NoPen), flaechenfarbe(Flaeche::Anders));
            return;
        }
        QProxyStyle::drawPrimitive(element, option, maler, widget);
        // The usual outline is darker than the window, whatever the window's colour.
        if ((element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton) && istDunkel(option->palette))
            rundMalen(*maler, option->rect, element == PE_IndicatorCheckBox ? 2 : option->rect.width() / 2.0,
                      QPen(option->palette.color(QPalette::PlaceholderText), 1), Qt::NoBrush);
    }

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *maler, const QWidget *widget) const override
    {
        const auto *rahmen = element == CE_ShapedFrame ? qstyleoption_cast<const QStyleOptionFrame *>(option) : nullptr;
        if (!rahmen || rahmen->frameShape != QFrame::StyledPanel)
            QProxyStyle::drawControl(element, option, maler, widget);
        else if (qobject_cast<const QPlainTextEdit *>(widget)) {
            const QPen stift = option->state & State_HasFocus ? QPen(flaechenfarbe(Flaeche::Fokus), 2) : QPen(flaechenfarbe(Flaeche::Rand), 1);
            rundMalen(*maler, option->rect, kastenrundung, stift, option->palette.color(QPalette::Base));
        } else if (traegt(widget, "karte"))
            karteMalen(*maler, option->rect);
        else
            QProxyStyle::drawControl(element, option, maler, widget);
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *maler, const QWidget *widget) const override
    {
        const auto *gruppe = control == CC_GroupBox && istGruppenkarte(widget) ? qstyleoption_cast<const QStyleOptionGroupBox *>(option) : nullptr;
        if (!gruppe) {
            QProxyStyle::drawComplexControl(control, option, maler, widget);
            return;
        }
        karteMalen(*maler, option->rect);
        const QFont vorher = maler->font();
        maler->setFont(fett(vorher));
        drawItemText(maler, subControlRect(CC_GroupBox, option, SC_GroupBoxLabel, widget), Qt::AlignLeft | Qt::AlignTop | Qt::TextShowMnemonic,
                     option->palette, option->state & State_Enabled, gruppe->text, titelrolle);
        maler->setFont(vorher);
    }

    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl teil, const QWidget *widget) const override
    {
        if (control != CC_GroupBox || !istGruppenkarte(widget))
            return QProxyStyle::subControlRect(control, option, teil, widget);
        if (teil == SC_GroupBoxContents)
            return option->rect.marginsRemoved(gruppenrand);
        if (teil == SC_GroupBoxLabel)
            return QRect(option->rect.topLeft() + gruppentitel, titelgroesse(*option, *widget));
        return option->rect;
    }

    QSize sizeFromContents(ContentsType art, const QStyleOption *option, const QSize &inhalt, const QWidget *widget) const override
    {
        if (art == CT_GroupBox && istGruppenkarte(widget))
            return QSize(titelgroesse(*option, *widget).width() + 2 * gruppentitel.x(), gruppenrand.top() + gruppenrand.bottom());
        return QProxyStyle::sizeFromContents(art, option, inhalt, widget);
    }

private:
    static bool traegt(const QWidget *widget, const char *marke) { return widget && widget->property(marke).toBool(); }
    static bool istGruppenkarte(const QWidget *widget) { return qobject_cast<const QGroupBox *>(widget) && traegt(widget, "karte"); }
    static QSize titelgroesse(const QStyleOption &option, const QWidget &widget)
    {
        const auto &gruppe = static_cast<const QStyleOptionGroupBox &>(option);
        return QFontMetrics(fett(widget.font())).size(Qt::TextShowMnemonic, gruppe.text);
    }
    static void karteMalen(QPainter &maler, const QRect &flaeche)
    {
        rundMalen(maler, flaeche, kartenrundung, QPen(flaechenfarbe(Flaeche::Rand), 1), flaechenfarbe(Flaeche::Karte));
    }
    /// The outline lies inside the rectangle.
    static void rundMalen(QPainter &maler, const QRect &flaeche, double rundung, const QPen &stift, const QBrush &grund)
    {
        maler.save();
        maler.setRenderHint(QPainter::Antialiasing);
        maler.setPen(stift);
        maler.setBrush(grund);
        const double innen = stift.style() == Qt::NoPen ? 0 : stift.widthF() / 2;
        maler.drawRoundedRect(QRectF(flaeche).adjusted(innen, innen, -innen, -innen), rundung, rundung);
        maler.restore();
    }
};

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
    for (QWidget *feld : QApplication::allWidgets())
        if (feld->property("verschieden").toBool())
            feld->style()->polish(feld);
    QApplication::setWindowIcon(QIcon(bilder::pixmap(QStringLiteral("flox"), {64, 64}, 1)));
}

std::vector<Farbpaar> farbpaare(Schema schema)
{
    const QPalette farben = palette(schema);
    const QColor karte = flaechenfarbe(Flaeche::Karte, schema);
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
    paare.push_back({"title of a card", farben.color(titelrolle), karte});
    paare.push_back({"title of a group", farben.color(titelrolle), farben.color(QPalette::Window)});
    for (const QPalette::ColorRole schrift : {QPalette::Text, QPalette::WindowText, QPalette::PlaceholderText})
        paare.push_back({"value that differs", farben.color(schrift), flaechenfarbe(Flaeche::Anders, schema)});
    paare.push_back({"month or letter that is not set", zellenschrift(farben), farben.color(QPalette::Button)});
    return paare;
}

} // namespace aussehen
