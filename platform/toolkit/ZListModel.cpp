#include "toolkit/ZListModel.h"

#include "toolkit/ZListBox.h"
#include "toolkit/ZListItem.h"

#include <QtGui/QPixmap>

#include <utility>

namespace {

QString spokenText(const ZListItem *item)
{
    const QString value = item->value();
    return value.isEmpty() ? item->title() : item->title() + QLatin1String(", ") + value;
}

QVariant iconOf(const ZListItem *item)
{
    const QPixmap icon = item->icon();
    return icon.isNull() ? QVariant() : QVariant(icon);
}

} // namespace

int ZListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(items.size());
}

QVariant ZListModel::data(const QModelIndex &index, int role) const
{
    const ZListItem *item = itemAt(index.row());
    if (!item)
        return QVariant();
    switch (role) {
    case Qt::DisplayRole:
        return item->title();
    case Qt::DecorationRole:
        return iconOf(item);
    case Qt::AccessibleTextRole:
        return spokenText(item);
    case ZListBox::ValueRole:
        return item->value();
    case ZListBox::EnabledRole:
        return item->enabled();
    case ZListBox::SeparatorRole:
        return item->isSeparator();
    case ZListBox::MarkedRole:
        return item->isMarked();
    }
    return QVariant();
}

Qt::ItemFlags ZListModel::flags(const QModelIndex &index) const
{
    // A disabled row can be reached and chosen: for the view it is one like the others.
    const ZListItem *item = itemAt(index.row());
    const Qt::ItemFlags common = Qt::ItemNeverHasChildren;
    return item && !item->isSeparator() ? common | Qt::ItemIsEnabled | Qt::ItemIsSelectable : common;
}

ZListItem *ZListModel::itemAt(int row) const
{
    return row >= 0 && row < items.size() ? items.at(row) : nullptr;
}

int ZListModel::choosable(int row, int direction) const
{
    for (int i = row; i >= 0 && i < items.size(); i += direction) {
        if (!items.at(i)->isSeparator())
            return i;
    }
    return -1;
}

void ZListModel::insert(int row, ZListItem *item)
{
    beginInsertRows(QModelIndex(), row, row);
    items.insert(row, item);
    endInsertRows();
}

void ZListModel::remove(int row)
{
    beginRemoveRows(QModelIndex(), row, row);
    items.removeAt(row);
    endRemoveRows();
}

QList<ZListItem *> ZListModel::takeAll()
{
    beginResetModel();
    QList<ZListItem *> taken = std::exchange(items, {});
    endResetModel();
    return taken;
}

void ZListModel::rowChanged(int row)
{
    emit dataChanged(index(row), index(row));
}
