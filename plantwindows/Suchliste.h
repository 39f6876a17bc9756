#pragma once

#include "store/Faltung.h"

#include <QAbstractListModel>
#include <QStyledItemDelegate>

#include <vector>

/* The lines below the search's box: plants, with what was hit marked, between headings. */

/// A piece of text with what is marked in it.
struct Suchtext
{
    QString text;
    std::vector<Strecke> marken = {};
};

struct Suchzeile
{
    enum class Art {
        Pflanze,
        Textstelle, ///< a plant with the words around a hit in a second line
        Titel,
        Auskunft, ///< a sentence in place of plants, or below them
    };
    Art art = Art::Pflanze;
    qint64 artnr = 0;
    int bewertung = 0;
    Suchtext name;
    Suchtext gueltig = {}; ///< behind a synonym: the name that holds
    Suchtext deutsch = {};
    QString grund = {}; ///< why the plant is not in the present set; empty: it is
    QString quelle = {};
    Suchtext stelle = {};

    bool istPflanze() const { return art == Art::Pflanze || art == Art::Textstelle; }
    /// As it is read out.
    QString alsSatz() const;
};

class Suchmodell : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    void setZeilen(std::vector<Suchzeile> zeilen);
    const Suchzeile &zeile(int nummer) const { return zeilen_[size_t(nummer)]; }
    int rowCount(const QModelIndex &eltern = {}) const override;
    QVariant data(const QModelIndex &index, int rolle) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    /// The next plant's line from `nummer` on, `richtung` 1 or -1; -1 where there is none.
    int pflanzeAb(int nummer, int richtung) const;

private:
    std::vector<Suchzeile> zeilen_;
};

class Suchmaler : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *maler, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
