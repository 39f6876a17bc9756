#pragma once

#include <QAbstractListModel>

class Recordset;

/* The lines of the record selector, read from the recordset when they are painted: line i is the record at
   AbsolutePosition i. */
class Artenmodell : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    /// New lines; `satz` must live until the next call. Null: no lines.
    void neu(Recordset *satz, bool botanisch);
    int rowCount(const QModelIndex &eltern = {}) const override;
    QVariant data(const QModelIndex &index, int rolle) const override;

private:
    Recordset *satz_ = nullptr;
    int anzahl_ = 0;
    bool botanisch_ = true;
};
