#pragma once

#include <QFrame>
#include <QLayout>

#include <vector>

class QGridLayout;
class QScrollArea;
class Textkasten;

/* Cards in columns: as many columns as the width has room for and cards are shown, filled in reading order so that the longest
   column is as short as can be. A card that is hidden leaves no hole. */

/// Lets the card show through that it stands on. It has its widget.
void durchscheinen(QScrollArea &rolle);

/// A group of controls in a frame.
class Karte : public QFrame
{
    Q_OBJECT

public:
    explicit Karte(QWidget *eltern);

    /// The box whose text decides how high the card would like to be.
    void setKasten(Textkasten *kasten) { kasten_ = kasten; }
    bool hatKasten() const { return kasten_; }
    /// The grid of the card's lines.
    void setRaster(QGridLayout *raster) { raster_ = raster; }
    /// Distance of the lines, in pixels.
    void setZeilenabstand(int abstand);
    /// Takes all the height that is left.
    void setFuellend(bool fuellend) { fuellend_ = fuellend; }
    bool fuellend() const { return fuellend_; }
    /// Heights in pixels for a width in pixels: with the box at its smallest, and with all its text seen.
    int mindesthoehe(int breite) const;
    int wunschhoehe(int breite) const;

private:
    Textkasten *kasten_ = nullptr;
    QGridLayout *raster_ = nullptr;
    bool fuellend_ = false;
};

class Spaltenlayout : public QLayout
{
    Q_OBJECT

public:
    explicit Spaltenlayout(QWidget *eltern);
    ~Spaltenlayout() override;

    /// Width in pixels from which a further column is opened.
    void setSpaltenbreite(int breite);
    void addItem(QLayoutItem *item) override { items_.push_back(item); }
    int count() const override { return int(items_.size()); }
    QLayoutItem *itemAt(int i) const override { return i >= 0 && i < count() ? items_[size_t(i)] : nullptr; }
    QLayoutItem *takeAt(int i) override;
    void setGeometry(const QRect &flaeche) override;
    QSize sizeHint() const override { return minimumSize(); }
    QSize minimumSize() const override;
    bool hasHeightForWidth() const override { return true; }
    /// The height below which a page of this width has to scroll.
    int heightForWidth(int breite) const override;

private:
    struct Spalte
    {
        std::vector<Karte *> karten;
        int wunsch = 0, mindest = 0; ///< heights in pixels, distances included
    };
    struct Aufteilung
    {
        std::vector<Spalte> spalten;
        int breite = 0; ///< of one column
    };
    std::vector<Karte *> sichtbare() const;
    Aufteilung aufteilen(int breite) const;

    std::vector<QLayoutItem *> items_;
    int spaltenbreite_ = 330;
};

/// The numbers of cards in each of `spalten` columns, in reading order, for which the longest column is shortest. Pure.
std::vector<int> ausgewogen(const std::vector<int> &hoehen, int abstand, int spalten);
