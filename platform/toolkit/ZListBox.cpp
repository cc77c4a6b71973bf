#include "toolkit/ZListBox.h"

#include "toolkit/ZAccessible.h"
#include "toolkit/ZKeys.h"
#include "toolkit/ZListItemPrivate.h"
#include "toolkit/ZListModel.h"
#include "toolkit/ZRowDelegate.h"
#include "toolkit/ZScrollBar.h"
#include "toolkit/ZSettingItem.h"

#include <QtCore/QPersistentModelIndex>
#include <QtCore/QPointer>
#include <QtCore/qlogging.h>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <unordered_map>
#include <utility>

struct ZListBox::Private {
    // What the list knows of an item made on it.
    struct Record {
        quint64 serial; // tells an item from a later one at the same address
        int row = -1;   // where it was last seen
        bool inserted = false;
    };

    QString type;
    ZSkinService::WidgetClsID skinClass;
    ZListModel *model = nullptr;
    const QAbstractItemDelegate *stockDelegate = nullptr; // which every view comes with
    const QScrollBar *stockScrollBar = nullptr;
    std::unordered_map<const ZListItem *, Record> items;
    quint64 lastSerial = 0;
    QPersistentModelIndex pressed;
    int rowBeforeClear = -1; // where the bar goes back to when there is such a row again
    // What the pointer is on and goes on being on when that is there again: a list may be filled again every second.
    int pressedBeforeClear = -1;
    QString pressedTitle;
    bool layoutIsDue = false;

    int rowOf(const ZListItem *item);
    void renumber();
};

int ZListBox::Private::rowOf(const ZListItem *item)
{
    const auto it = items.find(item);
    if (it == items.end() || !it->second.inserted)
        return -1;
    // Rows are numbered when they are asked for, so that appending and asking stay cheap in long lists.
    if (model->itemAt(it->second.row) != item)
        renumber();
    return it->second.row;
}

namespace {

// Where the pointer went down last.
struct LastPress {
    QPointer<const ZListBox> list;
    quint64 atMs = 0; ///< of the events' clock

    /// Whether a double click on `other` began on this list, which has opened the screen that `other` is on.
    bool hasOpened(const ZListBox *other, quint64 nowMs) const
    {
        return list && list != other && nowMs - atMs <= static_cast<quint64>(QApplication::doubleClickInterval());
    }
};
LastPress lastPress;

} // namespace

void ZListBox::Private::renumber()
{
    int row = 0;
    for (const ZListItem *item : model->rows())
        items.at(item).row = row++;
}

ZListBox::ZListBox(QString type, QWidget *parent, unsigned int flags, ZSkinService::WidgetClsID skinClass)
    : QListView(parent)
    , d(std::make_unique<Private>())
{
    ZAccessible::install();
    d->type = type;
    d->skinClass = skinClass;
    d->model = new ZListModel(this);
    d->stockDelegate = itemDelegate();
    d->stockScrollBar = verticalScrollBar();
    if (flags != 0)
        setWindowFlags(Qt::WindowFlags::fromInt(flags));
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setUniformItemSizes(true);
    setModel(d->model);
    verticalScrollBar()->setSingleStep(ZSkinService::RowHeight);
}

ZListBox::~ZListBox()
{
    d->model->takeAll();
    const auto items = std::move(d->items);
    for (const auto &entry : items) {
        const_cast<ZListItem *>(entry.first)->d->list = nullptr;
        delete entry.first;
    }
}

void ZListBox::setItemType(QString type)
{
    d->type = type;
}

QString ZListBox::itemType() const
{
    return d->type;
}

ZSkinService::WidgetClsID ZListBox::skinClass() const
{
    return d->skinClass;
}

void ZListBox::insertItem(const ZListItem *item, int index, bool show)
{
    const auto it = d->items.find(item);
    if (!item || it == d->items.end()) {
        qWarning("ZListBox::insertItem: the item was not made on this list");
        return;
    }
    if (it->second.inserted) {
        qWarning("ZListBox::insertItem: the item is in the list already");
        return;
    }
    const int row = index < 0 ? count() : std::min(index, count());
    it->second.inserted = true;
    it->second.row = row;
    d->model->insert(row, const_cast<ZListItem *>(item));
    const int rowBeforeClear = std::exchange(d->rowBeforeClear, -1);
    if (currentItem() < 0 || row == rowBeforeClear)
        setSelected(row, true);
    if (row != rowBeforeClear)
        d->rowBeforeClear = rowBeforeClear;
    if (row == d->pressedBeforeClear && item->title() == d->pressedTitle)
        d->pressed = d->model->index(row);
    ZAccessible::rowAdded(this, row);
    layOutBeforePainting();
    if (show)
        viewport()->update();
}

ZListItem *ZListBox::item(int index) const
{
    return d->model->itemAt(index);
}

int ZListBox::index(const ZListItem *item) const
{
    return d->rowOf(item);
}

int ZListBox::count() const
{
    return d->model->rowCount();
}

void ZListBox::clear()
{
    if (count() > 0)
        d->rowBeforeClear = currentItem();
    if (d->pressed.isValid()) {
        d->pressedBeforeClear = d->pressed.row();
        d->pressedTitle = item(d->pressedBeforeClear)->title();
    }
    const QList<ZListItem *> items = d->model->takeAll();
    for (ZListItem *item : items)
        d->items.erase(item);
    for (ZListItem *item : items) {
        item->d->list = nullptr;
        delete item;
    }
    layOutBeforePainting();
}

int ZListBox::currentItem() const
{
    return currentIndex().row();
}

void ZListBox::setSelected(int index, bool on)
{
    const ZListItem *row = item(index);
    d->rowBeforeClear = -1;
    if (!row || row->isSeparator())
        return;
    if (on)
        setCurrentIndex(d->model->index(index));
    else if (index == currentItem())
        setCurrentIndex(QModelIndex());
}

bool ZListBox::isSelected(int index) const
{
    return index >= 0 && index == currentItem();
}

void ZListBox::scrollTo(const QModelIndex &index, ScrollHint hint)
{
    // The headings right above a row come into view with it: no key could bring them there.
    int heading = index.row();
    while (hint == EnsureVisible && heading > 0 && item(heading - 1)->isSeparator())
        --heading;
    if (heading != index.row())
        QListView::scrollTo(d->model->index(heading), hint);
    QListView::scrollTo(index, hint);
}

// One delegate does for all lists: connecting one to each takes as long as painting some rows.
QAbstractItemDelegate *ZListBox::itemDelegateForIndex(const QModelIndex &index) const
{
    static ZRowDelegate rows;
    return itemDelegate() == d->stockDelegate ? &rows : QListView::itemDelegateForIndex(index);
}

// Most lists never have more rows than they show, and making a scroll bar takes as long as painting some of them.
void ZListBox::updateGeometries()
{
    if (contentsSize().height() > viewport()->height() && verticalScrollBar() == d->stockScrollBar) {
        setVerticalScrollBar(new ZScrollBar(this));
        d->stockScrollBar = nullptr; // is gone
    }
    QListView::updateGeometries();
}

void ZListBox::adopt(ZListItem *item)
{
    d->items.emplace(item, Private::Record{++d->lastSerial});
}

void ZListBox::forget(ZListItem *item)
{
    const int row = d->rowOf(item);
    if (row >= 0)
        d->model->remove(row);
    d->items.erase(item);
    if (row >= 0) {
        leaveSeparator(row);
        layOutBeforePainting();
    }
}

void ZListBox::itemChanged(ZListItem *item)
{
    const int row = d->rowOf(item);
    if (row < 0)
        return;
    d->model->rowChanged(row);
    ZAccessible::rowChanged(this, row);
    if (row == currentItem())
        leaveSeparator(row);
}

// Moves the bar to the nearest row that can be chosen, looking in `direction` from `row` on first.
void ZListBox::moveBarTo(int row, int direction)
{
    const int first = std::clamp(row, 0, std::max(0, count() - 1));
    const int ahead = d->model->choosable(first, direction);
    setCurrentIndex(d->model->index(ahead >= 0 ? ahead : d->model->choosable(first, -direction)));
}

void ZListBox::leaveSeparator(int row)
{
    const ZListItem *current = item(currentItem());
    if (!current || current->isSeparator())
        moveBarTo(row, 1);
}

// The view lays its rows out by a timer, which comes after the next frame: that frame would be without them, and without
// a scroll bar that comes with them. The window is asked for a frame before it paints any of it.
void ZListBox::layOutBeforePainting()
{
    if (d->layoutIsDue || !isVisible())
        return;
    d->layoutIsDue = true;
    window()->installEventFilter(this);
}

bool ZListBox::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::UpdateRequest && d->layoutIsDue) {
        d->layoutIsDue = false;
        watched->removeEventFilter(this);
        executeDelayedItemsLayout();
    }
    return QListView::eventFilter(watched, event);
}

bool ZListBox::viewportEvent(QEvent *event)
{
    // Nobody asked for a frame: a window that is exposed, a photograph.
    if (event->type() == QEvent::Paint)
        executeDelayedItemsLayout();
    return QListView::viewportEvent(event);
}

void ZListBox::focusInEvent(QFocusEvent *event)
{
    QListView::focusInEvent(event);
    ZAccessible::focusCame(this);
}

void ZListBox::keyPressEvent(QKeyEvent *event)
{
    d->rowBeforeClear = -1;
    const ZKeys::PhoneKey key = ZKeys::phoneKey(event->key());
    if (key == ZKeys::PhoneKey::Select) {
        event->accept();
        if (!event->isAutoRepeat())
            choose(currentItem());
        return;
    }
    if (key != ZKeys::PhoneKey::None && key != ZKeys::PhoneKey::Up && key != ZKeys::PhoneKey::Down) {
        event->ignore();
        return;
    }
    event->setAccepted(moveBar(event));
}

// Answers whether the key was one of the list's own.
bool ZListBox::moveBar(QKeyEvent *event)
{
    const bool isFresh = !event->isAutoRepeat();
    const int page = std::max(1, viewport()->height() / ZSkinService::RowHeight - 1);
    switch (event->key()) {
    case Qt::Key_Up:
        step(-1, isFresh);
        return true;
    case Qt::Key_Down:
        step(1, isFresh);
        return true;
    case Qt::Key_PageUp:
        moveBarTo(std::max(0, currentItem() - page), -1);
        return true;
    case Qt::Key_PageDown:
        moveBarTo(std::min(count() - 1, currentItem() + page), 1);
        return true;
    case Qt::Key_Home:
        moveBarTo(0, 1);
        return true;
    case Qt::Key_End:
        moveBarTo(count() - 1, -1);
        return true;
    }
    const bool typed = !event->text().isEmpty() && event->text().at(0).isPrint() &&
                       !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    if (typed)
        keyboardSearch(event->text());
    return typed;
}

void ZListBox::step(int direction, bool wrap)
{
    int next = d->model->choosable(currentItem() + direction, direction);
    if (next < 0 && wrap)
        next = d->model->choosable(direction > 0 ? 0 : count() - 1, direction);
    if (next >= 0)
        setCurrentIndex(d->model->index(next));
}

void ZListBox::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    lastPress = {this, event->timestamp()};
    d->rowBeforeClear = -1;
    d->pressed = QPersistentModelIndex();
    d->pressedBeforeClear = -1;
    const QModelIndex under = indexAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || !(d->model->flags(under) & Qt::ItemIsSelectable))
        return;
    d->pressed = under;
    setCurrentIndex(under);
}

void ZListBox::mouseMoveEvent(QMouseEvent *event)
{
    event->accept();
}

void ZListBox::mouseReleaseEvent(QMouseEvent *event)
{
    event->accept();
    const QModelIndex pressed = std::exchange(d->pressed, QPersistentModelIndex());
    d->pressedBeforeClear = -1;
    if (event->button() == Qt::LeftButton && pressed.isValid() && pressed == indexAt(event->position().toPoint()))
        choose(pressed.row());
}

void ZListBox::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (lastPress.hasOpened(this, event->timestamp()))
        event->accept();
    else
        mousePressEvent(event);
}

// The list may be gone after either signal: nothing may follow a call of this.
void ZListBox::choose(int row)
{
    ZListItem *chosen = item(row);
    if (!chosen || chosen->isSeparator())
        return;
    const quint64 serial = d->items.at(chosen).serial;
    const QPointer<ZListBox> self(this);
    emit itemChosen(chosen);
    if (!self)
        return;
    const auto it = d->items.find(chosen);
    auto *setting =
        it != d->items.end() && it->second.serial == serial ? dynamic_cast<ZSettingItem *>(chosen) : nullptr;
    if (setting)
        emit selected(setting);
}
