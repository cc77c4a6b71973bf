#include "toolkit/ZAccessible.h"

#include "qt/translation.h"
#include "toolkit/ZKbMainWidget.h"
#include "toolkit/ZLayers.h"
#include "toolkit/ZListBox.h"
#include "toolkit/ZListItem.h"
#include "toolkit/ZPopup.h"
#include "toolkit/ZSoftKey.h"
#include "toolkit/ZTextPane.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtGui/QAccessible>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAccessibleWidget>

namespace {

// Of a widget on a screen or a dialog: what is covered is not on show.
class LayerAccess : public QAccessibleWidget
{
public:
    LayerAccess(QWidget *shown, QAccessible::Role role)
        : QAccessibleWidget(shown, role)
    {}

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        if (ZLayers::isHidden(widget()))
            state.invisible = true;
        return state;
    }
};

class ScreenAccess : public LayerAccess
{
public:
    explicit ScreenAccess(QWidget *screen)
        : LayerAccess(screen, QAccessible::Pane)
    {}

    QAccessible::Role role() const override
    {
        return widget()->isWindow() ? QAccessible::Window : LayerAccess::role();
    }
};

QString nameOf(ZSoftKey::KEY_IDX key)
{
    return key == ZSoftKey::LeftKey ? translatedFor<ZSoftKey>("TXT_RID_LABEL_LEFT_SOFTKEY", "Left softkey")
                                    : translatedFor<ZSoftKey>("TXT_RID_LABEL_RIGHT_SOFTKEY", "Right softkey");
}

// Says what is asked, and what the softkeys answer.
class DialogAccess : public LayerAccess
{
public:
    explicit DialogAccess(ZPopup *shown)
        : LayerAccess(shown, QAccessible::Dialog)
        , dialog(shown)
    {}

    QAccessible::State state() const override
    {
        QAccessible::State state = LayerAccess::state();
        state.modal = dialog->isModalOverParent();
        return state;
    }

    QString text(QAccessible::Text which) const override
    {
        switch (which) {
        case QAccessible::Name: // a message without a header speaks for itself
            return dialog->header().isEmpty() ? dialog->accessibleDescription() : dialog->header();
        case QAccessible::Description:
            return description();
        default:
            return LayerAccess::text(which);
        }
    }

private:
    QString description() const
    {
        QStringList lines;
        if (!dialog->header().isEmpty() && !dialog->accessibleDescription().isEmpty())
            lines << dialog->accessibleDescription();
        for (const ZSoftKey::KEY_IDX key : {ZSoftKey::LeftKey, ZSoftKey::RightKey}) {
            const QString caption = dialog->softKey()->text(key);
            if (!caption.isEmpty())
                lines << nameOf(key) + QLatin1String(": ") + caption;
        }
        return lines.join(QLatin1Char('\n'));
    }

    const ZPopup *const dialog;
};

QList<QAbstractButton *> keysOf(const QWidget *bar)
{
    return bar->findChildren<QAbstractButton *>(Qt::FindDirectChildrenOnly);
}

// Has the keys with a caption; the others are not seen either.
class SoftKeysAccess : public LayerAccess
{
public:
    explicit SoftKeysAccess(QWidget *bar)
        : LayerAccess(bar, QAccessible::Grouping)
    {}

    int childCount() const override { return static_cast<int>(shown().size()); }
    QAccessibleInterface *child(int index) const override
    {
        return QAccessible::queryAccessibleInterface(shown().value(index));
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        for (int index = 0; child && index < childCount(); ++index) {
            if (child->object() == shown().at(index))
                return index;
        }
        return -1;
    }

private:
    QList<QAbstractButton *> shown() const
    {
        QList<QAbstractButton *> keys = keysOf(widget());
        keys.removeIf([](const QAbstractButton *key) { return key->accessibleName().isEmpty(); });
        return keys;
    }
};

class KeyAccess : public LayerAccess
{
public:
    KeyAccess(QAbstractButton *pressed, ZSoftKey::KEY_IDX itsPlace)
        : LayerAccess(pressed, QAccessible::Button)
        , button(pressed)
        , place(itsPlace)
    {}

    QAccessible::Role role() const override { return isEmpty() ? QAccessible::NoRole : LayerAccess::role(); }

    QAccessible::State state() const override
    {
        QAccessible::State state = LayerAccess::state();
        if (isEmpty())
            state.invisible = true;
        return state;
    }

    QString text(QAccessible::Text which) const override
    {
        return which == QAccessible::Description && !isEmpty() ? nameOf(place) : LayerAccess::text(which);
    }

    QStringList actionNames() const override { return isEmpty() ? QStringList() : QStringList(pressAction()); }

    // Later: who asks waits for this to return, and the answer may be another dialog.
    void doAction(const QString &action) override
    {
        if (action == pressAction() && !state().invisible)
            QTimer::singleShot(0, button, &QAbstractButton::click);
    }

private:
    bool isEmpty() const { return button->accessibleName().isEmpty(); }

    QAbstractButton *const button;
    const ZSoftKey::KEY_IDX place;
};

class RowAccess : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    RowAccess(ZListBox *itsList, int itsRow)
        : list(itsList)
        , row(itsRow)
    {}

    int index() const { return row; }

    bool isValid() const override { return list && list->item(row); }
    QObject *object() const override { return nullptr; }
    QAccessibleInterface *parent() const override { return QAccessible::queryAccessibleInterface(list); }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }

    QString text(QAccessible::Text which) const override
    {
        switch (which) {
        case QAccessible::Name:
            return list->model()->index(row, 0).data(Qt::AccessibleTextRole).toString();
        case QAccessible::Value:
            return list->item(row)->value();
        default:
            return {};
        }
    }
    void setText(QAccessible::Text, const QString &) override {}

    QRect rect() const override
    {
        const QRect seen = list->visualRect(list->model()->index(row, 0));
        return {list->viewport()->mapToGlobal(seen.topLeft()), seen.size()};
    }

    QAccessible::Role role() const override
    {
        const ZListItem *item = list->item(row);
        if (!item->isSeparator())
            return QAccessible::ListItem;
        return item->title().isEmpty() ? QAccessible::Separator : QAccessible::Heading;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        const ZListItem *item = list->item(row);
        state.invisible = !list->isVisible() || ZLayers::isHidden(list);
        state.offscreen = !list->viewport()->rect().intersects(list->visualRect(list->model()->index(row, 0)));
        state.disabled = !item->enabled();
        state.selectable = !item->isSeparator();
        state.focusable = state.selectable;
        state.selected = list->isSelected(row);
        state.focused = state.selected && list->window()->focusWidget() == list;
        return state;
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this) : nullptr;
    }
    QStringList actionNames() const override
    {
        const bool canBeChosen = isValid() && !list->item(row)->isSeparator();
        return canBeChosen ? QStringList{pressAction(), setFocusAction()} : QStringList();
    }
    QStringList keyBindingsForAction(const QString &) const override { return {}; }
    void doAction(const QString &action) override;

private:
    const QPointer<ZListBox> list;
    const int row;
};

// Later: who asks waits for this to return, and what is chosen may open a dialog that waits for its answer.
void RowAccess::doAction(const QString &action)
{
    if (!actionNames().contains(action) || state().invisible)
        return;
    list->setSelected(row, true);
    list->setFocus(Qt::OtherFocusReason);
    if (action != pressAction())
        return;
    QTimer::singleShot(0, list, [shown = list] {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Select, Qt::NoModifier);
        QCoreApplication::sendEvent(shown, &press);
        QKeyEvent release(QEvent::KeyRelease, Qt::Key_Select, Qt::NoModifier);
        if (shown)
            QCoreApplication::sendEvent(shown, &release);
    });
}

// A list has the name of the screen that it fills.
class ListAccess : public LayerAccess
{
public:
    explicit ListAccess(ZListBox *shown)
        : LayerAccess(shown, QAccessible::List)
        , list(shown)
    {}
    ~ListAccess() override
    {
        for (const QAccessible::Id row : std::as_const(rows))
            QAccessible::deleteAccessibleInterface(row);
    }

    QString text(QAccessible::Text which) const override
    {
        const QString own = LayerAccess::text(which);
        return which == QAccessible::Name && own.isEmpty() ? titleOfScreen() : own;
    }

    int childCount() const override { return list->count(); }

    // A row is what is at its place: what reads it keeps it, however often the list is filled again.
    QAccessibleInterface *child(int index) const override
    {
        if (index < 0 || index >= list->count())
            return nullptr;
        while (rows.size() <= index) {
            auto *row = new RowAccess(list, static_cast<int>(rows.size()));
            rows << QAccessible::registerAccessibleInterface(row);
        }
        return QAccessible::accessibleInterface(rows.at(index));
    }
    QAccessibleInterface *childAt(int x, int y) const override
    {
        return child(list->indexAt(list->viewport()->mapFromGlobal(QPoint(x, y))).row());
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        const auto *row = dynamic_cast<const RowAccess *>(child);
        return row && row->parent() == this ? row->index() : -1;
    }
    QAccessibleInterface *focusChild() const override { return child(list->currentItem()); }

    bool knows(int row) const { return row < rows.size(); }

private:
    QString titleOfScreen() const
    {
        for (const QWidget *outer = list; outer; outer = outer->parentWidget()) {
            if (const auto *screen = qobject_cast<const ZKbMainWidget *>(outer))
                return screen->mainWidgetTitle();
        }
        return {};
    }

    ZListBox *const list;
    mutable QList<QAccessible::Id> rows; ///< as many as have been asked for
};

// Without its scroll bar: whoever reads it has all of it.
class TextAccess : public LayerAccess
{
public:
    explicit TextAccess(ZTextPane *shown)
        : LayerAccess(shown, QAccessible::StaticText)
        , pane(shown)
    {}

    QString text(QAccessible::Text which) const override
    {
        return which == QAccessible::Name ? pane->message() : LayerAccess::text(which);
    }

    int childCount() const override { return 0; }
    QAccessibleInterface *child(int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }

private:
    const ZTextPane *const pane;
};

bool isOnScreenOrDialog(const QWidget *widget)
{
    for (const QWidget *outer = widget; outer; outer = outer->parentWidget()) {
        if (qobject_cast<const ZKbMainWidget *>(outer) || qobject_cast<const ZPopup *>(outer))
            return true;
    }
    return false;
}

QAccessibleInterface *accessOfKey(QAbstractButton *button, const ZSoftKey *bar)
{
    const bool isLeft = keysOf(bar).indexOf(button) == ZSoftKey::LeftKey;
    return new KeyAccess(button, isLeft ? ZSoftKey::LeftKey : ZSoftKey::RightKey);
}

QAccessibleInterface *accessOf(const QString &, QObject *object)
{
    auto *widget = qobject_cast<QWidget *>(object);
    if (!widget)
        return nullptr;
    if (auto *list = qobject_cast<ZListBox *>(widget))
        return new ListAccess(list);
    if (auto *dialog = qobject_cast<ZPopup *>(widget))
        return new DialogAccess(dialog);
    if (qobject_cast<ZKbMainWidget *>(widget))
        return new ScreenAccess(widget);
    if (qobject_cast<ZSoftKey *>(widget))
        return new SoftKeysAccess(widget);
    if (auto *pane = dynamic_cast<ZTextPane *>(widget))
        return new TextAccess(pane);
    auto *button = qobject_cast<QAbstractButton *>(widget);
    if (const auto *bar = button ? qobject_cast<const ZSoftKey *>(widget->parentWidget()) : nullptr)
        return accessOfKey(button, bar);
    const bool isPlain = widget->metaObject() == &QWidget::staticMetaObject;
    return isPlain && isOnScreenOrDialog(widget) ? new LayerAccess(widget, QAccessible::Client) : nullptr;
}

struct Factory {
    Factory() { QAccessible::installFactory(accessOf); }
    ~Factory() { QAccessible::removeFactory(accessOf); }
    Q_DISABLE_COPY_MOVE(Factory)
};

void tell(ZListBox *list, QAccessible::Event what, int row)
{
    QAccessibleEvent event(list, what);
    event.setChild(row);
    QAccessible::updateAccessibility(&event);
}

void tell(QWidget *widget, QAccessible::Event what)
{
    QAccessibleEvent event(widget, what);
    QAccessible::updateAccessibility(&event);
}

} // namespace

void ZAccessible::install()
{
    [[maybe_unused]] static const Factory factory;
}

// Later, as Qt tells that the list itself has the focus once it has.
void ZAccessible::focusCame(ZListBox *list)
{
    if (!QAccessible::isActive())
        return;
    QTimer::singleShot(0, list, [list] {
        if (list->hasFocus() && list->currentItem() >= 0)
            tell(list, QAccessible::Focus, list->currentItem());
    });
}

void ZAccessible::rowAdded(ZListBox *list, int row)
{
    if (!QAccessible::isActive())
        return;
    const auto *known = dynamic_cast<ListAccess *>(QAccessible::queryAccessibleInterface(list));
    if (known && !known->knows(list->count() - 1))
        tell(list, QAccessible::ObjectCreated, list->count() - 1);
    for (int moved = row; moved < list->count(); ++moved)
        tell(list, QAccessible::NameChanged, moved);
}

void ZAccessible::rowChanged(ZListBox *list, int row)
{
    if (QAccessible::isActive())
        tell(list, QAccessible::NameChanged, row);
}

void ZAccessible::keyAppeared(QAbstractButton *key)
{
    if (QAccessible::isActive())
        tell(key, QAccessible::ObjectCreated);
}

void ZAccessible::keyVanished(QAbstractButton *key)
{
    if (QAccessible::isActive())
        tell(key, QAccessible::ObjectDestroyed);
}
