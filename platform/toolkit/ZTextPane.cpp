#include "ZTextPane.h"

#include "ZScrollBar.h"
#include "ZSkinService.h"
#include "ZText.h"

#include <QtGui/QPainter>
#include <QtGui/QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {

constexpr int padding = ZSkinService::DialogPadding;
constexpr int lineStep = 18; // pixels a key press scrolls by

} // namespace

ZTextPane::ZTextPane(const QString &text, QWidget *parent)
    : QWidget(parent)
    , lines(ZText::paragraph(text), ZSkinService::font(ZSkinService::RowFont))
{
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTextDirection(layoutDirection());
    option.setAlignment(Qt::AlignLeading);
    lines.setTextOption(option);
    lines.setCacheEnabled(true);
    setFocusPolicy(Qt::NoFocus);
}

bool ZTextPane::hasHeightForWidth() const
{
    return true;
}

int ZTextPane::heightForWidth(int width) const
{
    breakLines(width - 2 * padding);
    return textHeight() + 2 * padding;
}

QSize ZTextPane::sizeHint() const
{
    return QSize(ZSkinService::DisplayWidth, heightForWidth(ZSkinService::DisplayWidth));
}

void ZTextPane::breakLines(int width) const
{
    if (brokenAt == width)
        return;
    brokenAt = width;
    qreal top = 0;
    lines.beginLayout();
    for (QTextLine line = lines.createLine(); line.isValid(); line = lines.createLine()) {
        line.setLineWidth(std::max(1, width));
        line.setPosition(QPointF(0, top));
        top += std::ceil(line.height());
    }
    lines.endLayout();
}

int ZTextPane::textHeight() const
{
    return static_cast<int>(std::ceil(lines.boundingRect().height()));
}

int ZTextPane::maximumOffset() const
{
    return std::max(0, textHeight() + 2 * padding - height());
}

bool ZTextPane::scrollByKey(int qtKey)
{
    if (maximumOffset() == 0)
        return false;
    const int page = std::max(lineStep, height() - 2 * padding - lineStep);
    switch (qtKey) {
    case Qt::Key_Up:
        scrollTo(offset - lineStep);
        return true;
    case Qt::Key_Down:
        scrollTo(offset + lineStep);
        return true;
    case Qt::Key_PageUp:
        scrollTo(offset - page);
        return true;
    case Qt::Key_PageDown:
        scrollTo(offset + page);
        return true;
    case Qt::Key_Home:
        scrollTo(0);
        return true;
    case Qt::Key_End:
        scrollTo(maximumOffset());
        return true;
    }
    return false;
}

void ZTextPane::scrollTo(int newOffset)
{
    offset = std::clamp(newOffset, 0, maximumOffset());
    if (scrollBar)
        scrollBar->setValue(offset);
    update();
}

void ZTextPane::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.setPen(ZSkinService::color(ZSkinService::RowTextColor));
    const QRect text = rect().adjusted(padding, padding, -padding, -padding);
    painter.setClipRect(rect().adjusted(0, padding - 2, 0, 2 - padding));
    lines.draw(&painter, QPointF(text.left(), text.top() - offset), {}, QRectF(event->rect()));
}

void ZTextPane::resizeEvent(QResizeEvent *)
{
    breakLines(width() - 2 * padding);
    const bool tooLong = maximumOffset() > 0;
    if (tooLong && !scrollBar) {
        scrollBar = new ZScrollBar(this);
        scrollBar->setFocusPolicy(Qt::NoFocus);
        connect(scrollBar, &QScrollBar::valueChanged, this, [this](int value) { scrollTo(value); });
    }
    if (scrollBar) {
        const int x = layoutDirection() == Qt::RightToLeft ? 0 : width() - ZSkinService::ScrollBarWidth;
        scrollBar->setGeometry(x, 0, ZSkinService::ScrollBarWidth, height());
        scrollBar->setRange(0, maximumOffset());
        scrollBar->setPageStep(height());
        scrollBar->setSingleStep(lineStep);
        scrollBar->setVisible(tooLong);
    }
    scrollTo(offset);
}

void ZTextPane::wheelEvent(QWheelEvent *event)
{
    scrollTo(offset - event->angleDelta().y() * 3 * lineStep / 120);
    event->accept();
}
