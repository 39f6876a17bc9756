#include "Bildform.h"

#include "controls/Bilder.h"
#include "controls/Steuerelemente.h"

#include <QKeyEvent>
#include <QScreen>
#include <QVBoxLayout>

namespace {

constexpr double anteil = 0.85;           // of the main window
constexpr QMargins innenrand{8, 8, 8, 8}; // pixels

} // namespace

Bildform::Bildform(const Bildformular &formular, QWidget *hauptfenster) : QWidget(hauptfenster, Qt::Window)
{
    setObjectName(QString::fromLatin1(formular.form));
    setWindowTitle(formular.titel.toString());
    setAttribute(Qt::WA_DeleteOnClose);
    const QString bild = QString::fromLatin1(formular.bild);
    const QSize platz = (hauptfenster->size() * anteil).boundedTo(hauptfenster->screen()->availableSize()).shrunkBy(innenrand);
    auto *feld = new Bildfeld(bilder::eigengroesse(bild).scaled(platz, Qt::KeepAspectRatio), this);
    feld->setObjectName(QString::fromLatin1(formular.control));
    feld->setBild(bild);
    feld->setAccessibleName(windowTitle());
    connect(feld, &Bildfeld::geklickt, this, &QWidget::close);
    auto *anordnung = new QVBoxLayout(this);
    anordnung->setContentsMargins(innenrand);
    anordnung->addWidget(feld);
    resize(sizeHint());
    move(hauptfenster->mapToGlobal(hauptfenster->rect().center()) - rect().center());
}

void Bildform::zeigen(const Bildformular &formular, const QWidget *control)
{
    QWidget *hauptfenster = control->window();
    auto *form = hauptfenster->findChild<Bildform *>(QString::fromLatin1(formular.form), Qt::FindDirectChildrenOnly);
    if (!form)
        form = new Bildform(formular, hauptfenster);
    form->show();
    form->raise();
    form->activateWindow();
}

void Bildform::keyPressEvent(QKeyEvent *ereignis)
{
    if (ereignis->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(ereignis);
}
