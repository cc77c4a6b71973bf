#include "ZRowDelegate.h"

#include "ZListBox.h"
#include "ZSkinService.h"
#include "ZText.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyle>

#include <algorithm>

namespace {

// One painted row. Works from the leading edge inwards in left-to-right terms; what is drawn is mirrored at the end.
class RowPainter
{
public:
    RowPainter(QPainter *rowPainter, const QStyleOptionViewItem &option, const QModelIndex &rowIndex)
        : painter(rowPainter)
        , index(rowIndex)
        , row(option.rect)
        , direction(option.direction)
        , titleElision(option.textElideMode)
        , underBar(option.state & QStyle::State_Selected)
        , room(row.adjusted(ZSkinService::RowMargin, 0, -ZSkinService::RowMargin, 0))
    {}

    void paint()
    {
        if (index.data(ZListBox::SeparatorRole).toBool())
            paintHeading();
        else
            paintItem();
    }

private:
    void paintHeading()
    {
        painter->fillRect(row, ZSkinService::color(ZSkinService::HeadingColor));
        painter->setFont(ZSkinService::font(ZSkinService::HeadingFont));
        painter->setPen(ZSkinService::color(ZSkinService::HeadingTextColor));
        paintIcon();
        paintText(index.data(Qt::DisplayRole).toString(), room, Qt::AlignLeft, titleElision);
    }

    void paintItem()
    {
        const bool marked = index.data(ZListBox::MarkedRole).toBool();
        painter->fillRect(row,
                          ZSkinService::color(underBar ? ZSkinService::FocusBarColor : ZSkinService::ScreenColor));
        if (!underBar)
            painter->fillRect(row.left(), row.bottom(), row.width(), 1,
                              ZSkinService::color(ZSkinService::DividerColor));
        painter->setFont(ZSkinService::font(marked ? ZSkinService::EmphasisFont : ZSkinService::RowFont));
        paintValue();
        paintIcon();
        painter->setPen(textColor(ZSkinService::RowTextColor));
        paintText(index.data(Qt::DisplayRole).toString(), room, Qt::AlignLeft, titleElision);
    }

    // Takes the value's room from the trailing edge: the title gets what the value leaves.
    void paintValue()
    {
        const QString value = ZText::oneLine(index.data(ZListBox::ValueRole).toString());
        if (value.isEmpty())
            return;
        const int width = std::min(painter->fontMetrics().horizontalAdvance(value) + 1, room.width());
        painter->setPen(textColor(ZSkinService::RowValueColor));
        paintText(value, QRect(room.right() - width + 1, room.top(), width, room.height()), Qt::AlignRight);
        room.setRight(room.right() - width - ZSkinService::RowGap);
    }

    // Takes the icon's room from the leading edge.
    void paintIcon()
    {
        const QPixmap icon = index.data(Qt::DecorationRole).value<QPixmap>();
        if (icon.isNull() || room.width() <= 0)
            return;
        const QSize bounds(room.width(), row.height() - 2);
        const QSize natural = icon.deviceIndependentSize().toSize();
        const bool fits = natural.width() <= bounds.width() && natural.height() <= bounds.height();
        const QSize size = fits ? natural : natural.scaled(bounds, Qt::KeepAspectRatio);
        const QRect place(room.left(), row.top() + (row.height() - size.height()) / 2, size.width(),
                          size.height());
        painter->drawPixmap(QStyle::visualRect(direction, row, place), icon);
        room.setLeft(place.right() + 1 + ZSkinService::RowGap);
    }

    void paintText(const QString &text, const QRect &place, Qt::Alignment side,
                   Qt::TextElideMode where = Qt::ElideRight)
    {
        if (place.width() <= 0)
            return;
        ZText::draw(*painter, QStyle::visualRect(direction, row, place), QStyle::visualAlignment(direction, side),
                    text, where);
    }

    QColor textColor(ZSkinService::ColorRole plain) const
    {
        const bool enabled = index.data(ZListBox::EnabledRole).toBool();
        if (underBar)
            return ZSkinService::color(enabled ? ZSkinService::FocusTextColor
                                               : ZSkinService::FocusDisabledTextColor);
        return ZSkinService::color(enabled ? plain : ZSkinService::DisabledTextColor);
    }

    QPainter *painter;
    const QModelIndex &index;
    const QRect row;
    const Qt::LayoutDirection direction;
    const Qt::TextElideMode titleElision; // the view's
    const bool underBar;
    QRect room; // what is still free for text
};

} // namespace

void ZRowDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    RowPainter(painter, option, index).paint();
}

QSize ZRowDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    return QSize(0, ZSkinService::RowHeight);
}
