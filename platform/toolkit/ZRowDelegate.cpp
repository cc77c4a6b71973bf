#include "ZRowDelegate.h"

#include "ZKept.h"
#include "ZListBox.h"
#include "ZSkinService.h"
#include "ZText.h"

#include <QtGui/QPaintEngine>
#include <QtGui/QPainter>
#include <QtWidgets/QStyle>

#include <algorithm>
#include <climits>
#include <cmath>

namespace {

// Everything that a row's look depends on.
struct RowLook {
    QString title;
    QString value;
    QPixmap icon;
    bool isSeparator;
    bool isEnabled;
    bool isMarked;
    bool underBar;
    Qt::LayoutDirection direction;
    Qt::TextElideMode titleElision; // the view's
    QSize size;
    qreal pixelRatio; // of the device

    friend bool operator==(const RowLook &a, const RowLook &b)
    {
        return a.title == b.title && a.value == b.value && a.icon.cacheKey() == b.icon.cacheKey() &&
               a.isSeparator == b.isSeparator && a.isEnabled == b.isEnabled && a.isMarked == b.isMarked &&
               a.underBar == b.underBar && a.direction == b.direction && a.titleElision == b.titleElision &&
               a.size == b.size && qFuzzyCompare(a.pixelRatio, b.pixelRatio);
    }
    friend size_t qHash(const RowLook &look, size_t seed = 0)
    {
        return qHashMulti(seed, look.title, look.value, look.underBar);
    }
};

RowLook lookOf(const QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index)
{
    return {index.data(Qt::DisplayRole).toString(),
            index.data(ZListBox::ValueRole).toString(),
            index.data(Qt::DecorationRole).value<QPixmap>(),
            index.data(ZListBox::SeparatorRole).toBool(),
            index.data(ZListBox::EnabledRole).toBool(),
            index.data(ZListBox::MarkedRole).toBool(),
            option.state.testFlag(QStyle::State_Selected),
            option.direction,
            option.textElideMode,
            option.rect.size(),
            painter.device()->devicePixelRatio()};
}

// Paints a row. Works from the leading edge inwards in left-to-right terms; what is drawn is mirrored at the end.
class RowPainter
{
public:
    RowPainter(QPainter &rowPainter, const RowLook &rowLook, QPoint topLeft)
        : painter(rowPainter)
        , look(rowLook)
        , row(topLeft, look.size)
        , room(row.adjusted(ZSkinService::RowMargin, 0, -ZSkinService::RowMargin, 0))
    {}

    void paint()
    {
        if (look.isSeparator)
            paintHeading();
        else
            paintItem();
    }

private:
    void paintHeading()
    {
        painter.fillRect(row, ZSkinService::color(ZSkinService::HeadingColor));
        font = ZSkinService::font(ZSkinService::HeadingFont);
        painter.setPen(ZSkinService::color(ZSkinService::HeadingTextColor));
        paintIcon();
        paintText(look.title, room, Qt::AlignLeft, look.titleElision);
    }

    void paintItem()
    {
        painter.fillRect(
            row, ZSkinService::color(look.underBar ? ZSkinService::FocusBarColor : ZSkinService::ScreenColor));
        if (!look.underBar)
            painter.fillRect(row.left(), row.bottom(), row.width(), 1,
                             ZSkinService::color(ZSkinService::DividerColor));
        font = ZSkinService::font(look.isMarked ? ZSkinService::EmphasisFont : ZSkinService::RowFont);
        paintValue();
        paintIcon();
        painter.setPen(textColor(ZSkinService::RowTextColor));
        paintText(look.title, room, Qt::AlignLeft, look.titleElision);
    }

    // Takes the value's room from the trailing edge: the title gets what the value leaves.
    void paintValue()
    {
        if (look.value.isEmpty())
            return;
        const int width = std::min(ZText::width(painter, font, look.value) + 1, room.width());
        painter.setPen(textColor(ZSkinService::RowValueColor));
        paintText(look.value, QRect(room.right() - width + 1, room.top(), width, room.height()), Qt::AlignRight);
        room.setRight(room.right() - width - ZSkinService::RowGap);
    }

    // Takes the icon's room from the leading edge.
    void paintIcon()
    {
        if (look.icon.isNull() || room.width() <= 0)
            return;
        const QSize bounds(room.width(), row.height() - 2);
        const QSize natural = look.icon.deviceIndependentSize().toSize();
        const bool fits = natural.width() <= bounds.width() && natural.height() <= bounds.height();
        const QSize size = fits ? natural : natural.scaled(bounds, Qt::KeepAspectRatio);
        const QRect place(room.left(), row.top() + (row.height() - size.height()) / 2, size.width(),
                          size.height());
        painter.drawPixmap(QStyle::visualRect(look.direction, row, place), look.icon);
        room.setLeft(place.right() + 1 + ZSkinService::RowGap);
    }

    void paintText(const QString &text, const QRect &place, Qt::Alignment side,
                   Qt::TextElideMode where = Qt::ElideRight)
    {
        if (place.width() <= 0)
            return;
        ZText::draw(painter, font, QStyle::visualRect(look.direction, row, place),
                    QStyle::visualAlignment(look.direction, side), text, where);
    }

    QColor textColor(ZSkinService::ColorRole plain) const
    {
        if (look.underBar)
            return ZSkinService::color(look.isEnabled ? ZSkinService::FocusTextColor
                                                      : ZSkinService::FocusDisabledTextColor);
        return ZSkinService::color(look.isEnabled ? plain : ZSkinService::DisabledTextColor);
    }

    QPainter &painter;
    const RowLook &look;
    const QRect row;
    QRect room; // what is still free for text
    QFont font; // of all texts of the row
};

constexpr qsizetype mostPictureBytes = 1024 * 1024; // some 45 rows of the phone's display

// Whether a picture of a row is the same as the row: on a screen of its own resolution, not on paper, not scaled.
bool showsPictures(const QPainter &painter, const RowLook &look)
{
    return painter.paintEngine()->type() == QPaintEngine::Raster &&
           painter.worldTransform().type() <= QTransform::TxTranslate && !look.size.isEmpty() &&
           look.pixelRatio == std::floor(look.pixelRatio);
}

QPixmap *newPicture(const RowLook &look)
{
    auto *picture = new QPixmap(look.size * look.pixelRatio);
    picture->setDevicePixelRatio(look.pixelRatio);
    QPainter painter(picture);
    RowPainter(painter, look, QPoint(0, 0)).paint();
    return picture;
}

// Stays until the next one is asked for.
const QPixmap &pictureOf(const RowLook &look)
{
    static ZKept<RowLook, QPixmap> pictures(mostPictureBytes);
    if (const QPixmap *kept = pictures.find(look))
        return *kept;
    QPixmap *picture = newPicture(look);
    const qsizetype bytes = qsizetype(picture->width()) * picture->height() * picture->depth() / CHAR_BIT;
    return pictures.keep(look, picture, bytes);
}

} // namespace

// The same rows come up with every screen and every refill, and showing a picture costs a fraction of the writing.
void ZRowDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const RowLook look = lookOf(*painter, option, index);
    if (showsPictures(*painter, look))
        painter->drawPixmap(option.rect.topLeft(), pictureOf(look));
    else
        RowPainter(*painter, look, option.rect.topLeft()).paint();
}

QSize ZRowDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    return QSize(0, ZSkinService::RowHeight);
}
