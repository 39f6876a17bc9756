#pragma once

#include <QStringView>
#include <QWidget>

/// What a bare form of one picture is.
struct Bildformular
{
    const char *form; ///< objectName of the form
    QStringView titel;
    const char *control; ///< objectName of the picture in it
    const char *bild;    ///< "list/key"
};

/* A window that shows one picture as large as the main window has room for. A click on the picture or Escape closes it. */
class Bildform : public QWidget
{
    Q_OBJECT

public:
    /// Shows the form over the window that `control` stands in; an open one comes to the front.
    static void zeigen(const Bildformular &formular, const QWidget *control);

protected:
    void keyPressEvent(QKeyEvent *ereignis) override;

private:
    Bildform(const Bildformular &formular, QWidget *hauptfenster);
};
