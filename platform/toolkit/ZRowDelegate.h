// Paints the rows of a ZListBox. Inside the toolkit only.
#pragma once

#include <QtWidgets/QAbstractItemDelegate>

class ZRowDelegate : public QAbstractItemDelegate
{
public:
    using QAbstractItemDelegate::QAbstractItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
