#pragma once

#include "Bilderseite.h"

#include <QAbstractListModel>

/* A page of pictures as a list of rows: it makes no item of its own, so that any number costs nothing. */
class Uebersichtsmodell : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    void setSeite(Bilderseite seite);
    const Bilderseite &seite() const { return seite_; }
    const Bilderseite::Bild &bild(int zeile) const { return seite_.bilder[size_t(zeile)]; }
    const Bilderseite::Pflanze &pflanze(int zeile) const { return seite_.pflanzen[size_t(bild(zeile).pflanze)]; }
    /// First row of a plant; -1: it has none.
    int zeileVon(qint64 artnr) const;
    /// First row of the next plant, from that of row `ab` on and around the end, whose name begins so; -1: there is none. `weiter`
    /// begins behind that plant.
    int zeileMit(QStringView anfang, int ab, bool weiter) const;

    int rowCount(const QModelIndex &eltern = {}) const override { return eltern.isValid() ? 0 : int(seite_.bilder.size()); }
    QVariant data(const QModelIndex &index, int rolle) const override;

private:
    int ersteZeile(int pflanze) const;

    Bilderseite seite_;
};
