#include "ZScrollBar.h"

#include "ZSkinService.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionSlider>

ZScrollBar::ZScrollBar(QWidget *parent)
    : QScrollBar(Qt::Vertical, parent)
{}

QSize ZScrollBar::sizeHint() const
{
    return QSize(ZSkinService::ScrollBarWidth, ZSkinService::ScrollBarWidth);
}

void ZScrollBar::paintEvent(QPaintEvent *)
{
    // The handle stands where the style has it, so that it can be dragged where it is seen.
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect slider = style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, this);
    QPainter painter(this);
    painter.fillRect(rect(), ZSkinService::color(ZSkinService::ScrollGrooveColor));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ZSkinService::color(ZSkinService::ScrollHandleColor));
    const QRectF handle = QRectF(slider).adjusted(1.5, 1, -1.5, -1);
    painter.drawRoundedRect(handle, handle.width() / 2, handle.width() / 2);
}
