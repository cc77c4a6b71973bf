#include "host/phone/DisplayView.h"

#include "host/phone/Display.h"

#include <QtGui/QMouseEvent>
#include <QtWidgets/QAccessibleWidget>
#include <QtWidgets/QGraphicsProxyWidget>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QScroller>

#include <algorithm>

namespace host {

namespace {

// For a screen reader the display is in the view: a scene has no children otherwise.
class DisplayViewAccess : public QAccessibleWidget
{
public:
    explicit DisplayViewAccess(DisplayView *view)
        : QAccessibleWidget(view, QAccessible::LayeredPane)
    {}

    int childCount() const override { return 1; }
    QAccessibleInterface *child(int index) const override
    {
        return index == 0 ? QAccessible::queryAccessibleInterface(display()) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return child && child->object() == display() ? 0 : -1;
    }

private:
    QWidget *display() const { return static_cast<DisplayView *>(widget())->shown(); }
};

class ShownDisplayAccess : public QAccessibleWidget
{
public:
    explicit ShownDisplayAccess(QWidget *display)
        : QAccessibleWidget(display, QAccessible::Pane)
    {}

    QAccessibleInterface *parent() const override
    {
        return QAccessible::queryAccessibleInterface(
            widget()->graphicsProxyWidget()->scene()->views().constFirst());
    }
};

QAccessibleInterface *accessInView(const QString &, QObject *object)
{
    if (auto *view = qobject_cast<DisplayView *>(object))
        return new DisplayViewAccess(view);
    auto *display = qobject_cast<Display *>(object);
    return display && display->graphicsProxyWidget() ? new ShownDisplayAccess(display) : nullptr;
}

// No edge gives way: what is beside the list is another widget.
void keepWithinEdges(QScroller &scroller)
{
    QScrollerProperties properties = scroller.scrollerProperties();
    for (const auto metric :
         {QScrollerProperties::HorizontalOvershootPolicy, QScrollerProperties::VerticalOvershootPolicy})
        properties.setScrollMetric(metric, QScrollerProperties::OvershootAlwaysOff);
    scroller.setScrollerProperties(properties);
}

} // namespace

DisplayView::DisplayView(QWidget *phoneDisplay, QWidget *parent)
    : QGraphicsView(parent)
    , display(phoneDisplay)
{
    [[maybe_unused]] static const bool isInstalled = (QAccessible::installFactory(&accessInView), true);
    auto *scene = new QGraphicsScene(this);
    setScene(scene);
    display->setParent(nullptr);
    display->move(0, 0);
    proxy = scene->addWidget(display);
    scene->setSceneRect(display->rect());
    setObjectName(QStringLiteral("display alone"));
    setAccessibleName(display->accessibleName()); // it has the focus
    setFrameShape(NoFrame);
    setBackgroundBrush(Qt::black);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMinimumSize(display->size());
    proxy->setFocus();
}

void DisplayView::resizeEvent(QResizeEvent *event)
{
    QGraphicsView::resizeEvent(event);
    const qreal scale = std::min(qreal(width()) / display->width(), qreal(height()) / display->height());
    setTransform(QTransform::fromScale(scale, scale));
}

QAbstractScrollArea *DisplayView::scrollableAt(QPoint place) const
{
    for (QWidget *w = display->childAt(mapToScene(place).toPoint()); w && w != display; w = w->parentWidget()) {
        auto *area = qobject_cast<QAbstractScrollArea *>(w);
        if (area && area->verticalScrollBar()->maximum() > 0)
            return area;
    }
    return nullptr;
}

void DisplayView::feed(int input, const QMouseEvent &event)
{
    QScroller::scroller(touched)->handleInput(static_cast<QScroller::Input>(input),
                                              mapToScene(event.position().toPoint()), qint64(event.timestamp()));
}

// Whether a finger on a list taps or scrolls is known when it moves, or lets go.
void DisplayView::mousePressEvent(QMouseEvent *event)
{
    touched = event->button() == Qt::LeftButton ? scrollableAt(event->position().toPoint()) : nullptr;
    if (!touched) {
        QGraphicsView::mousePressEvent(event);
        return;
    }
    QScroller *scroller = QScroller::scroller(touched);
    keepWithinEdges(*scroller);
    isTap = scroller->state() != QScroller::Scrolling; // else the finger stops it
    feed(QScroller::InputPress, *event);
}

void DisplayView::mouseMoveEvent(QMouseEvent *event)
{
    if (!touched) {
        QGraphicsView::mouseMoveEvent(event);
        return;
    }
    feed(QScroller::InputMove, *event);
    if (QScroller::scroller(touched)->state() == QScroller::Dragging)
        isTap = false;
}

void DisplayView::mouseReleaseEvent(QMouseEvent *event)
{
    if (!touched) {
        QGraphicsView::mouseReleaseEvent(event);
        return;
    }
    feed(QScroller::InputRelease, *event);
    touched = nullptr;
    if (!isTap)
        return;
    QMouseEvent press(QEvent::MouseButtonPress, event->position(), event->globalPosition(), event->button(),
                      event->button(), event->modifiers(), event->pointingDevice());
    press.setTimestamp(event->timestamp());
    QGraphicsView::mousePressEvent(&press);
    QGraphicsView::mouseReleaseEvent(event);
}

void DisplayView::mouseDoubleClickEvent(QMouseEvent *event)
{
    touched = event->button() == Qt::LeftButton ? scrollableAt(event->position().toPoint()) : nullptr;
    if (touched)
        mousePressEvent(event);
    else
        QGraphicsView::mouseDoubleClickEvent(event);
}

// The view itself has nothing to scroll.
void DisplayView::wheelEvent(QWheelEvent *event)
{
    QGraphicsView::wheelEvent(event);
    event->accept();
}

} // namespace host
