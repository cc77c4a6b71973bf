#include "toolkit/ZSingleSelectDlg.h"

#include "qt/translation.h"
#include "toolkit/ZKeys.h"
#include "toolkit/ZListBox.h"
#include "toolkit/ZListItem.h"
#include "toolkit/ZMultiTap.h"
#include "toolkit/ZRowDelegate.h"
#include "toolkit/ZSkinService.h"
#include "toolkit/ZTextPane.h"

#include <QtCore/QElapsedTimer>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtGui/QPixmap>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>

#include <algorithm>
#include <functional>
#include <utility>

namespace {

constexpr int markSize = 13; // of the ring in front of a row
constexpr qreal dotSize = 6; // of what is inside the chosen row's
constexpr qreal ringWidth = 1.5;

// Rows as everywhere, and a ring in front of those that have an icon's place and no icon.
class ChoiceDelegate : public ZRowDelegate
{
public:
    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        if (!hasMark(option, index)) {
            ZRowDelegate::paint(painter, option, index);
            return;
        }
        // The mark's strip gets the row's ground from the delegate as well, as an empty row.
        ZRowDelegate::paint(painter, option, QModelIndex());
        QStyleOptionViewItem rest = option;
        const QRect &row = option.rect;
        const int strip = ZSkinService::RowMargin + markSize;
        rest.rect = QStyle::visualRect(option.direction, row, row.adjusted(strip, 0, 0, 0));
        ZRowDelegate::paint(painter, rest, index);
        const QRect mark(row.left() + ZSkinService::RowMargin, row.top() + (row.height() - markSize) / 2, markSize,
                         markSize);
        paintMark(painter, QStyle::visualRect(option.direction, row, mark), option.state & QStyle::State_Selected);
    }

private:
    static bool hasMark(const QStyleOptionViewItem &option, const QModelIndex &index)
    {
        const auto *list = qobject_cast<const ZListBox *>(option.widget);
        const ZListItem *item = list ? list->item(index.row()) : nullptr;
        return item && !item->isSeparator() && item->type() == QLatin1String("%I%M") && item->icon().isNull();
    }

    static void paintMark(QPainter *painter, const QRect &place, bool chosen)
    {
        const QColor color =
            ZSkinService::color(chosen ? ZSkinService::FocusTextColor : ZSkinService::RowValueColor);
        const qreal inset = ringWidth / 2;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QPen(color, ringWidth));
        painter->setBrush(Qt::NoBrush);
        painter->drawEllipse(QRectF(place).adjusted(inset, inset, -inset, -inset));
        if (chosen) {
            painter->setPen(Qt::NoPen);
            painter->setBrush(color);
            painter->drawEllipse(QRectF(place).center(), dotSize / 2, dotSize / 2);
        }
        painter->restore();
    }
};

class ChoiceList : public ZListBox
{
public:
    using ZListBox::ZListBox;

    QAbstractItemDelegate *itemDelegateForIndex(const QModelIndex &) const override
    {
        static ChoiceDelegate choices;
        return &choices;
    }
};

// The message, if there is one, over the list.
class ChoiceBody : public QWidget
{
public:
    ChoiceBody(const QString &text, QWidget *parent, std::function<int()> roomForBody)
        : QWidget(parent)
        , room(std::move(roomForBody))
        , message(text.isEmpty() ? nullptr : new ZTextPane(text, this))
        , list(new ChoiceList(QStringLiteral("%M"), this, 0, ZSkinService::SettingListClass))
    {}

    ZListBox *rows() const { return list; }

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return messageHeight(width) + listHeight(width); }

protected:
    void resizeEvent(QResizeEvent *) override
    {
        const int top = messageHeight(width());
        if (message)
            message->setGeometry(0, 0, width(), top);
        list->setGeometry(0, top, width(), std::max(0, height() - top));
        // The last row ends where the box is rounded.
        QPainterPath box;
        box.addRoundedRect(QRectF(rect()).adjusted(0, -ZSkinService::DialogRadius, 0, 0),
                           ZSkinService::DialogRadius, ZSkinService::DialogRadius);
        setMask(QRegion(box.toFillPolygon().toPolygon()) & rect());
    }

private:
    // A long message leaves the list half of the room.
    int messageHeight(int width) const
    {
        return message ? std::min(message->heightForWidth(width), room() / 2) : 0;
    }

    // Whole rows, and one at the least.
    int listHeight(int width) const
    {
        const int fitting = (room() - messageHeight(width)) / ZSkinService::RowHeight;
        return std::clamp(list->count(), 1, std::max(1, fitting)) * ZSkinService::RowHeight;
    }

    std::function<int()> room;
    ZTextPane *message;
    ZListBox *list;
};

// The next row that begins with `start`, from `step` rows after the current one on and round; -1 for none.
int nextRowWith(const ZListBox *list, const QString &start, int step)
{
    const int count = list->count();
    for (int passed = 0; passed < count; ++passed) {
        const int row = (std::max(0, list->currentItem()) + step + passed) % count;
        const ZListItem *item = list->item(row);
        if (!item->isSeparator() && item->title().startsWith(start, Qt::CaseInsensitive))
            return row;
    }
    return -1;
}

} // namespace

struct ZSingleSelectDlg::Private {
    ZListBox *list = nullptr;
    ZMultiTap multiTap;
    QString letters; // that were typed quickly, one after the other
    QElapsedTimer sinceLetter;
};

ZSingleSelectDlg::ZSingleSelectDlg(const QString &header, const QString &message, QWidget *parent,
                                   const char *name, bool modal, unsigned int flags, int timeout)
    : ZPopup(header, parent, name, modal, flags)
    , d(std::make_unique<Private>())
{
    setSoftkeyTextLeft(translatedFor<ZSingleSelectDlg>("TXT_RID_SOFTKEY_SELECT", "Select"));
    setSoftkeyTextRight(translatedFor<ZSingleSelectDlg>("TXT_RID_SOFTKEY_CANCEL", "Cancel"));
    setAccessibleDescription(message);
    answerAfter(timeout, RightAnswer);
    auto *body = new ChoiceBody(message, this, [this] { return roomForBody(); });
    d->list = body->rows();
    d->list->setTextElideMode(Qt::ElideMiddle);
    d->list->setAccessibleName(header);
    d->list->installEventFilter(this);
    setBody(body);
    const auto resized = [this] {
        if (isVisible())
            bodySizeChanged();
    };
    connect(d->list->model(), &QAbstractItemModel::rowsInserted, this, resized);
    connect(d->list->model(), &QAbstractItemModel::rowsRemoved, this, resized);
    connect(d->list->model(), &QAbstractItemModel::modelReset, this, resized);
    connect(d->list, &ZListBox::itemChosen, this, [this] { answer(SelectAnswer); });
}

ZSingleSelectDlg::~ZSingleSelectDlg() = default;

ZListBox *ZSingleSelectDlg::getListBox()
{
    return d->list;
}

void ZSingleSelectDlg::setVisible(bool visible)
{
    if (visible)
        bodySizeChanged();
    ZPopup::setVisible(visible);
    if (visible)
        d->list->scrollTo(d->list->currentIndex());
}

bool ZSingleSelectDlg::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != d->list)
        return ZPopup::eventFilter(watched, event);
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto *press = static_cast<const QKeyEvent *>(event);
    return moveByNumberKey(press) || moveByLetter(press);
}

// Answers whether the key has done its work, here and below.
bool ZSingleSelectDlg::moveByNumberKey(const QKeyEvent *event)
{
    const QString characters = ZMultiTap::charactersOf(event->key());
    const bool isPlain = !(event->modifiers() & ~Qt::KeypadModifier);
    if (characters.isEmpty() || !isPlain || nextRowWith(d->list, characters.right(1), 0) >= 0) {
        d->multiTap.end();
        return false;
    }
    for (qsizetype tries = 0; tries < characters.size() && !event->isAutoRepeat(); ++tries) {
        const int row = nextRowWith(d->list, d->multiTap.tap(event->key()).character, 1);
        if (row < 0)
            continue;
        d->list->setSelected(row, true);
        break;
    }
    return true;
}

bool ZSingleSelectDlg::moveByLetter(const QKeyEvent *event)
{
    const QString letter = event->text();
    const bool isShortcut = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (letter.isEmpty() || !letter.front().isPrint() || isShortcut ||
        ZKeys::phoneKey(event->key()) != ZKeys::PhoneKey::None)
        return false;
    const bool isQuick =
        d->sinceLetter.isValid() && !d->sinceLetter.hasExpired(QApplication::keyboardInputInterval());
    d->letters = isQuick ? d->letters + letter : letter;
    d->sinceLetter.start();
    const bool isOneLetter = d->letters.count(letter) * letter.size() == d->letters.size();
    int row = nextRowWith(d->list, d->letters, d->letters == letter ? 1 : 0);
    if (row < 0 && isOneLetter)
        row = nextRowWith(d->list, letter, 1);
    if (row >= 0)
        d->list->setSelected(row, true);
    return true;
}
