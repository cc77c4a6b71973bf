#include "host/phone/PhoneKey.h"

#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtGui/QPixmapCache>

#include <algorithm>

namespace host {

namespace {

constexpr QColor keyTop(0x4a, 0x53, 0x60);
constexpr QColor keyFoot(0x35, 0x3c, 0x47);
constexpr QColor keyEdge(0x1b, 0x1f, 0x26);
constexpr QColor printed(0xee, 0xf1, 0xf5);
constexpr QColor printedSmall(0xa9, 0xb4, 0xc2);
constexpr QColor callColor(0x57, 0xd0, 0x7a);
constexpr QColor hangUpColor(0xf2, 0x6b, 0x5e);

QFont printFont(int pixels, bool bold)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(pixels);
    font.setBold(bold);
    return font;
}

QPolygonF triangle(bool up)
{
    const qreal tip = up ? -4.0 : 4.0;
    return QPolygonF({QPointF(-7, -tip), QPointF(0, tip), QPointF(7, -tip)});
}

// A receiver lying on its back, 22 wide.
QPainterPath receiver()
{
    QPainterPath path;
    path.moveTo(-11, -1);
    path.quadTo(0, -9, 11, -1);
    path.lineTo(11, 4);
    path.lineTo(5, 4);
    path.lineTo(5, 0);
    path.quadTo(0, -2, -5, 0);
    path.lineTo(-5, 4);
    path.lineTo(-11, 4);
    path.closeSubpath();
    return path;
}

} // namespace

PhoneKey::PhoneKey(Legend printedLegend, const QString &text, const QString &smallLetters, QWidget *parent)
    : QAbstractButton(parent)
    , legend(printedLegend)
    , letters(smallLetters)
{
    setText(text);
    setFocusPolicy(Qt::NoFocus);
    setAutoRepeat(legend == Legend::ArrowUp || legend == Legend::ArrowDown);
}

QSize PhoneKey::sizeHint() const
{
    return {76, 30};
}

void PhoneKey::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    // Where it is shown larger than it is, a picture would be coarse.
    const bool isScaled = painter.deviceTransform().m11() != devicePixelRatioF();
    painter.setRenderHint(QPainter::Antialiasing);
    if (isScaled)
        paintFace(painter);
    else
        painter.drawPixmap(0, 0, face());
    if (isDown())
        painter.translate(0, 1);
    if (legend == Legend::Text)
        paintText(painter);
    else
        paintSign(painter);
}

// The key without its legend. Most keys are of one size, and are painted once.
QPixmap PhoneKey::face() const
{
    const qreal ratio = devicePixelRatioF();
    const QString name = QStringLiteral("host::PhoneKey %1 %2 %3 %4 %5")
                             .arg(width())
                             .arg(height())
                             .arg(ratio)
                             .arg(isDown())
                             .arg(isDown() || underMouse());
    QPixmap pixmap;
    if (QPixmapCache::find(name, &pixmap))
        return pixmap;
    pixmap = QPixmap(size() * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    paintFace(painter);
    painter.end();
    QPixmapCache::insert(name, pixmap);
    return pixmap;
}

void PhoneKey::paintFace(QPainter &painter) const
{
    QLinearGradient shade(0, 0, 0, height());
    shade.setColorAt(0, isDown() ? keyFoot.darker(115) : keyTop);
    shade.setColorAt(1, isDown() || !underMouse() ? keyFoot : keyTop);
    painter.setPen(keyEdge);
    painter.setBrush(shade);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 8, 8);
}

void PhoneKey::paintText(QPainter &painter) const
{
    painter.setPen(printed);
    painter.setFont(printFont(std::min(15, height() - 4), true));
    if (letters.isEmpty()) {
        painter.drawText(rect(), Qt::AlignCenter, text());
        return;
    }
    // Absolute: what is printed on a key is the same in every reading direction.
    constexpr int before = Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter;
    constexpr int behind = Qt::AlignLeft | Qt::AlignAbsolute | Qt::AlignVCenter;
    const int middle = width() / 2 - 8;
    painter.drawText(QRect(0, 0, middle, height()), before, text());
    painter.setPen(printedSmall);
    painter.setFont(printFont(10, false));
    painter.drawText(QRect(middle + 7, 0, width() - middle - 7, height()), behind, letters);
}

void PhoneKey::paintSign(QPainter &painter) const
{
    painter.translate(QRectF(rect()).center());
    painter.setPen(Qt::NoPen);
    painter.setBrush(printed);
    switch (legend) {
    case Legend::Text:
        break;
    case Legend::Bar:
        painter.drawRoundedRect(QRectF(-13, -2, 26, 4), 2, 2);
        break;
    case Legend::ArrowUp:
    case Legend::ArrowDown:
        painter.drawPolygon(triangle(legend == Legend::ArrowUp));
        break;
    case Legend::Ring:
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(printed, 2.5));
        painter.drawEllipse(QPointF(), 7, 7);
        break;
    case Legend::Call:
        painter.rotate(-135);
        painter.setBrush(callColor);
        painter.drawPath(receiver());
        break;
    case Legend::HangUp:
        painter.setBrush(hangUpColor);
        painter.drawPath(receiver());
        break;
    }
}

} // namespace host
