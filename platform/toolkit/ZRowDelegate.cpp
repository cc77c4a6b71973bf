#include "toolkit/ZRowDelegate.h"

#include "toolkit/ZKept.h"
#include "toolkit/ZListBox.h"
#include "toolkit/ZPicture.h"
#include "toolkit/ZSkinService.h"
#include "toolkit/ZText.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyle>

#include <algorithm>

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
    int leftFree = 0; // of the title's room, at its trailing edge, for a value that is not part of the look

    friend bool operator==(const RowLook &a, const RowLook &b)
    {
        return a.title == b.title && a.value == b.value && a.icon.cacheKey() == b.icon.cacheKey() &&
               a.isSeparator == b.isSeparator && a.isEnabled == b.isEnabled && a.isMarked == b.isMarked &&
               a.underBar == b.underBar && a.direction == b.direction && a.titleElision == b.titleElision &&
               a.size == b.size && qFuzzyCompare(a.pixelRatio, b.pixelRatio) && a.leftFree == b.leftFree;
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

    // Onto the rest of the row.
    void paintValue()
    {
        font = itemFont();
        const int width = valueWidth();
        painter.setPen(textColor(ZSkinService::RowValueColor));
        paintText(look.value, QRect(room.right() - width + 1, room.top(), width, room.height()), Qt::AlignRight);
    }

    // The row without its value.
    RowLook rest()
    {
        font = itemFont();
        const int left = valueWidth() + ZSkinService::RowGap;
        RowLook rest = look;
        rest.value.clear();
        // Where the title is whole anyway, one picture does for values of any width.
        if (!look.icon.isNull() || ZText::width(painter, font, look.title) > room.width() - left)
            rest.leftFree = left;
        return rest;
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
        font = itemFont();
        const QRect wholeRoom = room;
        room.setRight(room.right() - (look.value.isEmpty() ? look.leftFree : valueWidth() + ZSkinService::RowGap));
        paintIcon();
        painter.setPen(textColor(ZSkinService::RowTextColor));
        paintText(look.title, room, Qt::AlignLeft, look.titleElision);
        room = wholeRoom;
        if (!look.value.isEmpty())
            paintValue();
    }

    QFont itemFont() const
    {
        return ZSkinService::font(look.isMarked ? ZSkinService::EmphasisFont : ZSkinService::RowFont);
    }

    // The value is whole: the title gets what it leaves.
    int valueWidth() const { return std::min(ZText::width(painter, font, look.value) + 1, room.width()); }

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

constexpr qsizetype mostPictureBytes = qsizetype(1024) * 1024; // some 45 rows of the phone's display
constexpr qsizetype bytesOfALook = 512;                        // without a picture

// By look. Null for a look that was painted once.
ZKept<RowLook, QPixmap> &pictures()
{
    static ZKept<RowLook, QPixmap> kept(mostPictureBytes);
    return kept;
}

// Stays until the next one is asked for.
const QPixmap &pictureOf(const QPainter &painter, const RowLook &look)
{
    const QPixmap *kept = pictures().find(look);
    if (kept && !kept->isNull())
        return *kept;
    QPixmap *picture = ZPicture::make(
        painter, look.size, [&look](QPainter &inside) { RowPainter(inside, look, QPoint(0, 0)).paint(); });
    return pictures().keep(look, picture, ZPicture::bytes(*picture));
}

// Whether the row has looked like that before.
bool isKnown(const RowLook &look)
{
    if (pictures().find(look))
        return true;
    pictures().keep(look, new QPixmap, bytesOfALook);
    return false;
}

} // namespace

// The same titles come up with every screen and every refill, and showing a picture costs a fraction of the writing. A
// value may never come up again: it is written on the picture of the rest, and becomes part of one the second time.
void ZRowDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const RowLook look = lookOf(*painter, option, index);
    const QPoint topLeft = option.rect.topLeft();
    RowPainter row(*painter, look, topLeft);
    if (!ZPicture::standsFor(*painter, look.size)) {
        row.paint();
    } else if (look.isSeparator || look.value.isEmpty() || isKnown(look)) {
        painter->drawPixmap(topLeft, pictureOf(*painter, look));
    } else {
        painter->drawPixmap(topLeft, pictureOf(*painter, row.rest()));
        row.paintValue();
    }
}

QSize ZRowDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    return QSize(0, ZSkinService::RowHeight);
}
