#include "Vorlesen.h"

#include <QAccessible>
#include <QWidget>

void vorlesen(QWidget &schild)
{
    if (QAccessibleInterface *zugang = QAccessible::queryAccessibleInterface(&schild))
        emit Mithoerer::einziger().gesagt(&schild, zugang->text(QAccessible::Name));
    // Readers differ in which of the two they speak.
    for (const QAccessible::Event art : {QAccessible::NameChanged, QAccessible::Alert}) {
        QAccessibleEvent ereignis(&schild, art);
        QAccessible::updateAccessibility(&ereignis);
    }
}

Mithoerer &Mithoerer::einziger()
{
    static Mithoerer alle;
    return alle;
}
