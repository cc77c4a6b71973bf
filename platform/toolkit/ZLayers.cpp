#include "toolkit/ZLayers.h"

#include "toolkit/ZPopup.h"

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

struct Layer {
    QWidget *widget;
    ZLayers::Kind kind;
};

// Bottom to top. Every layer takes itself out before it is destroyed.
QList<Layer> &layers()
{
    static QList<Layer> list;
    return list;
}

bool isLayer(const QWidget *widget)
{
    return std::any_of(layers().cbegin(), layers().cend(),
                       [widget](const Layer &layer) { return layer.widget == widget; });
}

bool holds(const QWidget *outer, const QWidget *inner)
{
    return outer == inner || outer->isAncestorOf(inner);
}

QRect rectInWindow(const QWidget *widget)
{
    return QRect(widget->mapTo(widget->window(), QPoint(0, 0)), widget->size());
}

bool overlap(const QWidget *a, const QWidget *b)
{
    return a->window() == b->window() && rectInWindow(a).intersects(rectInWindow(b));
}

bool canTakeKeys(const QWidget *widget, const QWidget *layer)
{
    return widget->focusPolicy() != Qt::NoFocus && widget->isEnabled() && !widget->isWindow() &&
           widget->isVisibleTo(layer);
}

QWidget *firstFocusable(QWidget *layer)
{
    const QList<QWidget *> inside = layer->findChildren<QWidget *>();
    for (QWidget *widget : inside) {
        if (canTakeKeys(widget, layer) && ZLayers::layerOf(widget) == layer)
            return widget;
    }
    return nullptr;
}

bool canBeReached(QWidget *widget)
{
    if (!widget || !widget->isVisible())
        return false;
    QWidget *layer = ZLayers::layerOf(widget);
    return !layer || !ZLayers::covering(layer);
}

// The covered widget that asked for the focus which is now above it, if so: where the Tab key has got to.
QPointer<QWidget> &turnedAway()
{
    static QPointer<QWidget> widget;
    return widget;
}

// Whoever asks for the focus under a dialog or a sub-screen does not get it.
void guardFocus(QWidget *, QWidget *now)
{
    turnedAway() = nullptr;
    QWidget *layer = now ? ZLayers::layerOf(now) : nullptr;
    QWidget *cover = layer ? ZLayers::covering(layer) : nullptr;
    if (!cover)
        return;
    ZLayers::keyTarget(cover)->setFocus(Qt::OtherFocusReason);
    turnedAway() = now;
}

void startGuard()
{
    static QPointer<QCoreApplication> guarded;
    if (guarded == qApp)
        return;
    guarded = qApp;
    QObject::connect(qApp, &QApplication::focusChanged, qApp, &guardFocus);
}

} // namespace

void ZLayers::shown(QWidget *layer, Kind kind)
{
    startGuard();
    gone(layer);
    QList<Layer> &list = layers();
    // What is inside the layer was shown before it, if its window was; it lies over it all the same.
    QList<Layer> group = {{layer, kind}};
    std::copy_if(list.cbegin(), list.cend(), std::back_inserter(group),
                 [layer](const Layer &other) { return holds(layer, other.widget); });
    list.removeIf([layer](const Layer &other) { return holds(layer, other.widget); });
    // On top of what lies in the same layer, and under whatever covers that one.
    const QWidget *outer = layer->isWindow() ? nullptr : layerOf(layer->parentWidget());
    const auto last = std::find_if(list.crbegin(), list.crend(),
                                   [outer](const Layer &other) { return !outer || holds(outer, other.widget); });
    qsizetype place = std::distance(last, list.crend());
    for (const Layer &moved : std::as_const(group))
        list.insert(place++, moved);
}

void ZLayers::gone(const QWidget *layer)
{
    layers().removeIf([layer](const Layer &other) { return other.widget == layer; });
}

QWidget *ZLayers::layerOf(QWidget *widget)
{
    for (QWidget *w = widget; w; w = w->isWindow() ? nullptr : w->parentWidget()) {
        if (isLayer(w))
            return w;
    }
    return nullptr;
}

QWidget *ZLayers::top(const QWidget *window)
{
    QWidget *result = nullptr;
    bool resultIsDialogWindow = false;
    for (const Layer &layer : std::as_const(layers())) {
        if (!layer.widget->isVisible() || (window && layer.widget->window() != window))
            continue;
        const bool isDialogWindow = layer.kind != Kind::Screen && layer.widget->isWindow();
        if (resultIsDialogWindow && !isDialogWindow)
            continue;
        result = layer.widget;
        resultIsDialogWindow = isDialogWindow;
    }
    return result;
}

QWidget *ZLayers::outermostScreen()
{
    QWidget *last = nullptr;
    for (const Layer &layer : std::as_const(layers())) {
        if (layer.kind == Kind::Screen && layer.widget->isVisible())
            last = layer.widget;
    }
    for (const Layer &layer : std::as_const(layers())) {
        if (last && layer.kind == Kind::Screen && layer.widget != last && layer.widget->isAncestorOf(last))
            return layer.widget;
    }
    return last;
}

QWidget *ZLayers::covering(const QWidget *layer)
{
    const QList<Layer> &list = layers();
    for (auto it = list.crbegin(); it != list.crend() && it->widget != layer; ++it) {
        if (it->kind != Kind::OpenDialog && it->widget->isVisible() && overlap(it->widget, layer))
            return it->widget;
    }
    return nullptr;
}

// A dialog that is a window of its own is not in the window that it lies over.
bool ZLayers::isHidden(QWidget *widget)
{
    const QWidget *layer = layerOf(widget);
    if (!layer)
        return false;
    const auto placed = [](const QWidget *shown) {
        return QRect(shown->mapToGlobal(QPoint(0, 0)), shown->size());
    };
    const QList<Layer> &list = layers();
    const bool isDialogWindow = qobject_cast<const ZPopup *>(layer->window());
    for (auto it = list.crbegin(); it != list.crend(); ++it) {
        if (it->widget == layer && isDialogWindow)
            break;
        const bool isOver = it->kind == Kind::ModalDialog && it->widget->isWindow() && it->widget->isVisible();
        if (isOver && it->widget != layer->window() && placed(it->widget).intersects(placed(layer)))
            return true;
    }
    return covering(layer) != nullptr;
}

QWidget *ZLayers::keyTarget(QWidget *layer)
{
    QWidget *last = layer->focusWidget();
    if (last && last != layer && canTakeKeys(last, layer) && layerOf(last) == layer)
        return last;
    QWidget *first = firstFocusable(layer);
    return first ? first : layer;
}

void ZLayers::takeKeys(QWidget *layer)
{
    QWidget *cover = covering(layer);
    keyTarget(cover ? cover : layer)->setFocus(Qt::OtherFocusReason);
}

void ZLayers::passKeysOn(QWidget *layer, QWidget *preferred)
{
    QWidget *window = layer->window();
    QWidget *focus = window->focusWidget();
    if (layer->isWindow() || !focus || !holds(layer, focus))
        return;
    if (canBeReached(preferred) && !holds(layer, preferred)) {
        preferred->setFocus(Qt::OtherFocusReason);
    } else if (QWidget *next = top(window)) {
        keyTarget(next)->setFocus(Qt::OtherFocusReason);
    }
}

void ZLayers::tabOut(QWidget *layer, bool next)
{
    QWidget *focus = layer->window()->focusWidget();
    QWidget *start = turnedAway() ? turnedAway().data() : focus ? focus : layer;
    const auto step = [next](QWidget *w) { return next ? w->nextInFocusChain() : w->previousInFocusChain(); };
    for (QWidget *w = step(start); w && w != start; w = step(w)) {
        const bool wanted = (w->focusPolicy() & Qt::TabFocus) && w->isEnabled() && !w->focusProxy() &&
                            w->window() == layer->window();
        if (wanted && canBeReached(w)) {
            w->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return;
        }
    }
}
