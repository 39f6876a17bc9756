#include "Aussehen.h"

#include "controls/Bilder.h"

#include <QApplication>
#include <QIcon>
#include <QPalette>

namespace aussehen {

void anwenden()
{
    QApplication::setStyle(QStringLiteral("fusion"));
    QPalette farben;
    const QColor gruen(0x3f, 0x7d, 0x45), dunkel(0x23, 0x33, 0x26), flaeche(0xf3, 0xf5, 0xf0);
    farben.setColor(QPalette::Window, flaeche);
    farben.setColor(QPalette::WindowText, dunkel);
    farben.setColor(QPalette::Base, Qt::white);
    farben.setColor(QPalette::AlternateBase, QColor(0xf7, 0xf9, 0xf5));
    farben.setColor(QPalette::Text, dunkel);
    farben.setColor(QPalette::Button, QColor(0xea, 0xee, 0xe6));
    farben.setColor(QPalette::ButtonText, dunkel);
    farben.setColor(QPalette::Mid, QColor(0xc2, 0xcb, 0xbd));
    farben.setColor(QPalette::Highlight, gruen);
    farben.setColor(QPalette::HighlightedText, Qt::white);
    farben.setColor(QPalette::ToolTipBase, QColor(0xff, 0xfd, 0xec));
    farben.setColor(QPalette::ToolTipText, dunkel);
    for (const QPalette::ColorRole rolle : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        farben.setColor(QPalette::Disabled, rolle, QColor(0x8a, 0x93, 0x88));
    QApplication::setPalette(farben);
    qApp->setStyleSheet(QStringLiteral("QFrame[karte=\"true\"] { background: white; border: 1px solid #d5dcd0; border-radius: 6px; }"
                                       "QFrame[karte=\"true\"] QScrollArea, QFrame[karte=\"true\"] QScrollArea > QWidget > QWidget { background: transparent; }"
                                       "QLabel[gruppentitel=\"true\"] { color: #2f6b3a; font-weight: bold; }"
                                       "QLabel[feldtitel=\"true\"] { color: #6a7568; }"
                                       "QFrame[karte=\"true\"] QPlainTextEdit { border: 1px solid #e2e7de; border-radius: 4px; background: #fcfdfb; padding: 2px; }"));
    QApplication::setWindowIcon(QIcon(bilder::pixmap(QStringLiteral("flox"), {64, 64}, 1)));
}

} // namespace aussehen
