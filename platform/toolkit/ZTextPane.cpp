#include "toolkit/ZTextPane.h"

#include "toolkit/ZScrollBar.h"
#include "toolkit/ZSkinService.h"
#include "toolkit/ZText.h"

#include <QtGui/QPainter>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QStyle>

#include <algorithm>
#include <cmath>

namespace {

constexpr int padding = ZSkinService::DialogPadding;
constexpr int wheelLines = 3;   // a notch of the wheel
constexpr int wheelNotch = 120; // in the unit of QWheelEvent::angleDelta()

// On a display narrower than this, lines are cut: nobody could read them, and a long text would have a line for
// each of its characters.
constexpr int narrowestLine = 60;

int textWidth(int width)
{
    return std::max(narrowestLine, width - 2 * padding);
}

} // namespace

ZTextPane::ZTextPane(const QString &message, QWidget *parent)
    : QWidget(parent)
    , text(ZText::paragraph(message), ZSkinService::font(ZSkinService::RowFont))
{
    text.setCacheEnabled(true);
    setFocusPolicy(Qt::NoFocus);
    alignLines();
}

// Every line begins where reading begins on this display, in whatever direction its own words run.
void ZTextPane::alignLines()
{
    QTextOption option(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignAbsolute);
    option.setTextDirection(Qt::LayoutDirectionAuto); // else it is the application's
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    text.setTextOption(option);
    update();
}

void ZTextPane::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LayoutDirectionChange) {
        alignLines();
        layOut();
    }
    QWidget::changeEvent(event);
}

QString ZTextPane::message() const
{
    return text.text().replace(QChar::LineSeparator, QLatin1Char('\n'));
}

bool ZTextPane::hasHeightForWidth() const
{
    return true;
}

int ZTextPane::heightForWidth(int width) const
{
    breakLines(textWidth(width));
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
    text.beginLayout();
    for (QTextLine line = text.createLine(); line.isValid(); line = text.createLine()) {
        line.setLineWidth(width);
        line.setPosition(QPointF(0, top));
        top += std::ceil(line.height());
    }
    text.endLayout();
}

int ZTextPane::textHeight() const
{
    if (text.lineCount() == 0)
        return 0;
    const QTextLine last = text.lineAt(text.lineCount() - 1);
    return static_cast<int>(std::ceil(last.y() + last.height()));
}

// How many lines from `line` on are in sight when it is the first one: one at the least.
int ZTextPane::linesFrom(int line) const
{
    const qreal bottom = text.lineAt(line).y() + height() - 2 * padding;
    int end = line + 1;
    while (end < text.lineCount() && text.lineAt(end).y() + text.lineAt(end).height() <= bottom)
        ++end;
    return end - line;
}

// How many lines up to `line` are in sight when it is the last one: one at the least.
int ZTextPane::linesBackFrom(int line) const
{
    const qreal top = text.lineAt(line).y() + text.lineAt(line).height() - (height() - 2 * padding);
    int first = line;
    while (first > 0 && text.lineAt(first - 1).y() >= top)
        --first;
    return line + 1 - first;
}

bool ZTextPane::scrollByKey(int qtKey)
{
    if (lastFirstLine == 0)
        return false;
    switch (qtKey) {
    case Qt::Key_Up:
        scrollTo(firstLine - 1);
        return true;
    case Qt::Key_Down:
        scrollTo(firstLine + 1);
        return true;
    case Qt::Key_PageUp:
        scrollTo(firstLine + 1 - linesBackFrom(firstLine));
        return true;
    case Qt::Key_PageDown:
        scrollTo(firstLine - 1 + linesFrom(firstLine));
        return true;
    case Qt::Key_Home:
        scrollTo(0);
        return true;
    case Qt::Key_End:
        scrollTo(lastFirstLine);
        return true;
    }
    return false;
}

void ZTextPane::scrollTo(int line)
{
    firstLine = std::clamp(line, 0, lastFirstLine);
    if (scrollBar)
        scrollBar->setValue(firstLine);
    update();
}

void ZTextPane::paintEvent(QPaintEvent *)
{
    if (text.lineCount() == 0)
        return;
    QPainter painter(this);
    painter.setPen(ZSkinService::color(ZSkinService::RowTextColor));
    const QPointF origin(padding, padding - text.lineAt(firstLine).y());
    const int end = firstLine + linesFrom(firstLine);
    for (int line = firstLine; line < end; ++line)
        text.lineAt(line).draw(&painter, origin);
}

void ZTextPane::resizeEvent(QResizeEvent *)
{
    layOut();
}

void ZTextPane::layOut()
{
    breakLines(textWidth(width()));
    const int count = text.lineCount();
    lastFirstLine = count == 0 ? 0 : count - linesBackFrom(count - 1);
    if (lastFirstLine > 0 && !scrollBar) {
        scrollBar = new ZScrollBar(this);
        scrollBar->setFocusPolicy(Qt::NoFocus);
        connect(scrollBar, &QScrollBar::valueChanged, this, [this](int line) { scrollTo(line); });
    }
    if (scrollBar) {
        const int x = layoutDirection() == Qt::RightToLeft ? 0 : width() - ZSkinService::ScrollBarWidth;
        const int length = std::max(0, height() - ZSkinService::DialogRadius); // the box has round corners
        scrollBar->setGeometry(x, 0, ZSkinService::ScrollBarWidth, length);
        scrollBar->setRange(0, lastFirstLine);
        scrollBar->setPageStep(std::max(1, count - lastFirstLine));
        scrollBar->setVisible(lastFirstLine > 0);
    }
    scrollTo(firstLine);
}

void ZTextPane::wheelEvent(QWheelEvent *event)
{
    scrollTo(firstLine - wheelLines * event->angleDelta().y() / wheelNotch);
    event->accept();
}
