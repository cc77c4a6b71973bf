#include "toolkit/ZScrollBar.h"

#include "toolkit/ZSkinService.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QStyle>

#include <algorithm>

namespace {

constexpr int shortestHandle = 16;

int pointerY(const QMouseEvent *event)
{
    return event->position().toPoint().y();
}

} // namespace

ZScrollBar::ZScrollBar(QWidget *parent)
    : QScrollBar(Qt::Vertical, parent)
{}

QSize ZScrollBar::sizeHint() const
{
    return QSize(ZSkinService::ScrollBarWidth, ZSkinService::ScrollBarWidth);
}

QRect ZScrollBar::handle() const
{
    const qint64 steps = qint64(maximum()) - minimum() + pageStep();
    const int share = steps > 0 ? static_cast<int>(qint64(height()) * pageStep() / steps) : height();
    const int length = std::min(height(), std::max(shortestHandle, share));
    const int top = QStyle::sliderPositionFromValue(minimum(), maximum(), value(), height() - length);
    return QRect(0, top, width(), length);
}

void ZScrollBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), ZSkinService::color(ZSkinService::ScrollGrooveColor));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ZSkinService::color(ZSkinService::ScrollHandleColor));
    const QRectF inner = QRectF(handle()).adjusted(1.5, 1, -1.5, -1);
    painter.drawRoundedRect(inner, inner.width() / 2, inner.width() / 2);
}

void ZScrollBar::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    if (event->button() != Qt::LeftButton)
        return;
    const QRect held = handle();
    const int y = pointerY(event);
    grip = -1;
    if (y < held.top())
        triggerAction(SliderPageStepSub);
    else if (y > held.bottom())
        triggerAction(SliderPageStepAdd);
    else
        grip = y - held.top();
}

void ZScrollBar::mouseMoveEvent(QMouseEvent *event)
{
    event->accept();
    if (grip >= 0)
        setValue(QStyle::sliderValueFromPosition(minimum(), maximum(), pointerY(event) - grip,
                                                 height() - handle().height()));
}

void ZScrollBar::mouseReleaseEvent(QMouseEvent *event)
{
    event->accept();
    grip = -1;
}
