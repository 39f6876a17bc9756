#include "Aussehen.h"

#include "controls/Bilder.h"
#include "controls/Steuerelemente.h"

#include <QApplication>
#include <QIcon>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleOption>
#include <QToolTip>

#include <utility>

namespace aussehen {

namespace {

/// The usual style with a focus frame that is seen.
class Stil : public QProxyStyle
{
public:
    Stil() : QProxyStyle(QStringLiteral("fusion")) {}
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *maler, const QWidget *widget) const override
    {
        if (element == PE_FrameFocusRect)
            fokusrahmenMalen(*maler, option->rect, option->palette);
        else
            QProxyStyle::drawPrimitive(element, option, maler, widget);
    }
};

} // namespace

void anwenden()
{
    QApplication::setStyle(new Stil);
    const QColor gruen(0x3f, 0x7d, 0x45), dunkel(0x23, 0x33, 0x26), flaeche(0xf3, 0xf5, 0xf0), knopf(0xea, 0xee, 0xe6);
    const QColor gedaempft(0x5c, 0x66, 0x5a); // on every light colour here at least 4.5 : 1
    // Every role is named: what is left out would come from the desktop, whose colours may be dark.
    const std::pair<QPalette::ColorRole, QColor> rollen[] = {
        {QPalette::Window, flaeche},
        {QPalette::WindowText, dunkel},
        {QPalette::Base, Qt::white},
        {QPalette::AlternateBase, QColor(0xf7, 0xf9, 0xf5)},
        {QPalette::Text, dunkel},
        {QPalette::BrightText, Qt::white},
        {QPalette::PlaceholderText, gedaempft},
        {QPalette::Button, knopf},
        {QPalette::ButtonText, dunkel},
        {QPalette::Light, Qt::white},
        {QPalette::Midlight, QColor(0xf5, 0xf7, 0xf2)},
        {QPalette::Mid, QColor(0xc2, 0xcb, 0xbd)},
        {QPalette::Dark, QColor(0x9d, 0xa8, 0x98)},
        {QPalette::Shadow, QColor(0x6e, 0x78, 0x6b)},
        {QPalette::Highlight, gruen},
        {QPalette::HighlightedText, Qt::white},
        {QPalette::Link, QColor(0x1f, 0x5f, 0x8b)},
        {QPalette::LinkVisited, QColor(0x6a, 0x3d, 0x7c)},
        {QPalette::ToolTipBase, QColor(0xff, 0xfd, 0xec)},
        {QPalette::ToolTipText, dunkel},
    };
    QPalette farben;
    for (const auto &[rolle, farbe] : rollen)
        for (const QPalette::ColorGroup zustand : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            farben.setColor(zustand, rolle, farbe);
    for (const QPalette::ColorRole rolle : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        farben.setColor(QPalette::Disabled, rolle, gedaempft);
    farben.setColor(QPalette::Disabled, QPalette::Highlight, gedaempft);
    QApplication::setPalette(farben);
    QToolTip::setPalette(farben);
    qApp->setStyleSheet(
        QStringLiteral("QFrame[karte=\"true\"] { background: white; border: 1px solid #d5dcd0; border-radius: 6px; }"
                       "QFrame[karte=\"true\"] QScrollArea, QFrame[karte=\"true\"] QScrollArea > QWidget > QWidget { background: transparent; }"
                       "QGroupBox[karte=\"true\"] { background: white; border: 1px solid #d5dcd0; border-radius: 6px; }"
                       "QGroupBox[karte=\"true\"] { padding: 26px 6px 4px 6px; font-weight: bold; }"
                       "QGroupBox[karte=\"true\"] > QWidget { font-weight: normal; }"
                       "QGroupBox[karte=\"true\"]::title { subcontrol-origin: border; left: 10px; top: 8px; color: #2f6b3a; }"
                       "QLabel[gruppentitel=\"true\"] { color: #2f6b3a; font-weight: bold; }"
                       "QLabel[feldtitel=\"true\"] { color: #5c665a; }"
                       "QFrame[karte=\"true\"] QPlainTextEdit { border: 1px solid #e2e7de; border-radius: 4px; background: #fcfdfb; padding: 2px; }"
                       "QFrame[karte=\"true\"] QPlainTextEdit:focus { border: 2px solid #233326; padding: 1px; }"));
    QApplication::setWindowIcon(QIcon(bilder::pixmap(QStringLiteral("flox"), {64, 64}, 1)));
}

} // namespace aussehen
