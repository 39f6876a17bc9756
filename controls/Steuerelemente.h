#pragma once

#include <QAbstractButton>
#include <QCheckBox>
#include <QLabel>
#include <QWidget>

/* Small controls with the properties by which forms, filter files and tests speak of them. Colours are signed 32-bit
   numbers, 0xBBGGRR; two numbers stand for colours of the palette and stay numbers until they are painted. */

inline constexpr int farbeKnopf = int(0x8000000Fu); ///< button face: not set
inline constexpr int farbeTitel = int(0x80000003u); ///< highlight: month set

/// Whether a palette's colours are dark ones.
bool istDunkel(const QPalette &palette);
/// Text that says that something is wrong.
QColor warnfarbe(const QPalette &palette);
/// Text in a cell that is not set: less heavy than the palette's, and still readable on a button's face.
QColor zellenschrift(const QPalette &palette);

/* Cells and pictures that can be chosen and stand in one parent as "stem_0", "stem_1" ... are a row: Tab reaches the row once,
   the arrow keys, Home and End move inside it, Space chooses. Whether one is set stands in its accessible description. */

/// The frame of the control that holds the focus, seen on every colour.
void fokusrahmenMalen(QPainter &maler, const QRect &flaeche, const QPalette &palette);

/// A cell of a swatch or month row.
class Farbzelle : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int BackColor READ backColor WRITE setBackColor)
    Q_PROPERTY(int BackStyle READ backStyle WRITE setBackStyle)
    Q_PROPERTY(QString Caption READ caption WRITE setCaption)

public:
    explicit Farbzelle(bool bunt, QWidget *eltern = nullptr);

    int backColor() const { return backColor_; }
    void setBackColor(int farbe);
    /// 0 transparent, 1 opaque; only the last cell of a swatch row paints by it.
    int backStyle() const { return backStyle_; }
    void setBackStyle(int stil);
    QString caption() const { return caption_; }
    void setCaption(const QString &text);
    /// Can be reached and chosen by keyboard.
    void setBedienbar();
    /// Colour that a cell not set hints at: what choosing it would paint.
    void setEigenfarbe(int farbe);
    /// Size in pixels.
    void setMass(QSize mass);
    QSize sizeHint() const override { return mass_; }
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    /// One click; the second one of a double click is none.
    void geklickt();
    void doppelgeklickt();

protected:
    bool event(QEvent *ereignis) override;
    void paintEvent(QPaintEvent *) override;
    void mouseReleaseEvent(QMouseEvent *ereignis) override;
    void mouseDoubleClickEvent(QMouseEvent *ereignis) override;
    void keyPressEvent(QKeyEvent *ereignis) override;

private:
    void zustandMelden();

    bool bunt_;
    bool bedienbar_ = false;
    bool nachDoppelklick_ = false;
    int backColor_ = farbeKnopf;
    int backStyle_ = 0;
    int eigenfarbe_ = farbeKnopf;
    QSize mass_{19, 22};
    QString caption_;
};

/// A picture out of an image list.
class Bildfeld : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString Bild READ bild WRITE setBild)
    Q_PROPERTY(QString Tag READ tag WRITE setTag)
    Q_PROPERTY(int BorderStyle READ borderStyle WRITE setBorderStyle)

public:
    explicit Bildfeld(QSize groesse, QWidget *eltern = nullptr);

    /// Picture as "list/key"; the property `Bild` gives it the same way.
    QString bild() const { return bild_; }
    void setBild(const QString &bild);
    QString tag() const { return tag_; }
    void setTag(const QString &tag) { tag_ = tag; }
    int borderStyle() const { return borderStyle_; }
    void setBorderStyle(int stil);
    /// Can be reached and chosen by keyboard.
    void setBedienbar();
    QSize sizeHint() const override { return groesse_; }

signals:
    void geklickt();
    void mausDarueber();
    void mausVerlassen();

protected:
    bool event(QEvent *ereignis) override;
    void paintEvent(QPaintEvent *) override;
    void mouseMoveEvent(QMouseEvent *) override { emit mausDarueber(); }
    void enterEvent(QEnterEvent *) override { emit mausDarueber(); }
    void leaveEvent(QEvent *) override { emit mausVerlassen(); }
    void mouseReleaseEvent(QMouseEvent *ereignis) override;
    void mouseDoubleClickEvent(QMouseEvent *) override { nachDoppelklick_ = true; }
    void keyPressEvent(QKeyEvent *ereignis) override;

private:
    void zustandMelden();

    bool bedienbar_ = false;
    bool nachDoppelklick_ = false;
    QSize groesse_;
    QString bild_, tag_;
    int borderStyle_ = 0;
};

/// A picture button: an image control with a tool tip. Its owner decides which picture it shows in which state.
class Bildknopf : public QAbstractButton
{
    Q_OBJECT
    Q_PROPERTY(QString Bild READ bild WRITE setBild)
    Q_PROPERTY(QString Tag READ tag WRITE setTag)

public:
    explicit Bildknopf(const QString &hinweis, QWidget *eltern = nullptr);

    /// Key in the list iliIcons, such as "next_n".
    QString bild() const { return bild_; }
    void setBild(const QString &bild);
    QString tag() const { return tag_; }
    void setTag(const QString &tag) { tag_ = tag; }
    QSize sizeHint() const override { return {36, 36}; }
    QSize minimumSizeHint() const override { return {28, 28}; }
    /// Whether the click that is being handled came from the mouse.
    bool vonMaus() const { return vonMaus_; }

signals:
    void mausBewegt();
    void mausGedrueckt();
    /// Released; `darauf`: still on the button, so that a click follows.
    void mausLosgelassen(bool darauf = true);
    void mausVerlassen();

protected:
    void paintEvent(QPaintEvent *) override;
    void mouseMoveEvent(QMouseEvent *ereignis) override;
    void mousePressEvent(QMouseEvent *ereignis) override;
    void mouseReleaseEvent(QMouseEvent *ereignis) override;
    void enterEvent(QEnterEvent *ereignis) override;
    void leaveEvent(QEvent *ereignis) override;

private:
    bool vonMaus_ = false;
    QString bild_, tag_;
};

/// Scale of nine steps with an indicator whose place is measured in twips, and the step as a figure beside it.
class Bewertungsleiste : public QWidget
{
    Q_OBJECT

public:
    explicit Bewertungsleiste(QWidget *eltern = nullptr);

    /// Moves the indicator; `wert` counts from 1 (rarity) to 9 (standard assortment).
    void setWert(int wert);
    /// There is no rating: the indicator stays where it was, the figure goes.
    void setOhneWert();
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *) override;

private:
    QWidget *anzeige_ = nullptr; ///< picBewAnzeige
    QLabel *zahl_ = nullptr;
};

/// A check box captioned with a name: "&" is a character of it, and a long one is cut where it is painted.
class Namenskaestchen : public QCheckBox
{
    Q_OBJECT

public:
    explicit Namenskaestchen(const QString &name, QWidget *eltern = nullptr);

    void setName(const QString &name);
    QString name() const { return name_; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *ereignis) override;
    void paintEvent(QPaintEvent *) override;

private:
    QString gekuerzt() const;

    QString name_;
};

/// One line of text that never asks for width: what does not fit is cut where it is painted.
class Kurzschild : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *) override;
};
