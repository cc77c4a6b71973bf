// The rows of a ZListBox as a model. Inside the toolkit only.
#pragma once

#include <QtCore/QAbstractListModel>
#include <QtCore/QList>

class ZListItem;

/// Shows the items; the list owns them.
class ZListModel : public QAbstractListModel
{
public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    const QList<ZListItem *> &rows() const { return items; }
    ZListItem *itemAt(int row) const;
    /// The first row that is not a separator from `row` on in `direction` (1 or -1), or -1.
    int choosable(int row, int direction) const;

    void insert(int row, ZListItem *item);
    void remove(int row);
    /// Takes out every row and returns them.
    QList<ZListItem *> takeAll();
    void rowChanged(int row);

private:
    QList<ZListItem *> items;
};
