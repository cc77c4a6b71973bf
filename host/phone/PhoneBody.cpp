#include "host/phone/PhoneBody.h"

#include "host/phone/Display.h"
#include "host/phone/Keypad.h"
#include "toolkit/ZSkinService.h"

#include <QtGui/QPainter>

#include <algorithm>

namespace host {

namespace {

constexpr int sideMargin = 26;
constexpr int bezel = 8;
constexpr int displayToKeys = bezel + 14;
constexpr int bodyWidth = ZSkinService::DisplayWidth + 2 * sideMargin;

/// What may be lower where there is little room, each from its least to its usual height.
struct Heights {
    int head; ///< above the display
    int keys;
    int foot;

    constexpr int body() const { return head + ZSkinService::DisplayHeight + displayToKeys + keys + foot; }
};
constexpr Heights usual{48, 264, 24};
constexpr Heights least{20, 164, 12}; // with the desk around it, this fits a window on a screen of 600

int between(int from, int to, int height)
{
    return from + (to - from) * (height - least.body()) / (usual.body() - least.body());
}

Heights heightsIn(int height)
{
    const int given = std::clamp(height, least.body(), usual.body());
    const int head = between(least.head, usual.head, given);
    const int foot = between(least.foot, usual.foot, given);
    return {head, given - Heights{head, 0, foot}.body(), foot};
}

constexpr QColor bodyTop(0x39, 0x41, 0x4d);
constexpr QColor bodyFoot(0x22, 0x27, 0x2f);
constexpr QColor bodyEdge(0x12, 0x15, 0x1a);
constexpr QColor bodyGlint(0x6b, 0x76, 0x85);
constexpr QColor glass(0x0c, 0x0e, 0x11);

void paintCase(QPainter &painter, const QRectF &outline)
{
    QLinearGradient face(outline.topLeft(), outline.bottomLeft());
    face.setColorAt(0, bodyTop);
    face.setColorAt(1, bodyFoot);
    painter.setPen(QPen(bodyEdge, 2));
    painter.setBrush(face);
    painter.drawRoundedRect(outline.adjusted(1, 1, -1, -1), 34, 34);
    painter.setPen(QPen(bodyGlint, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(outline.adjusted(3.5, 3.5, -3.5, -3.5), 31, 31);
}

// Not where the display is too near to the edge.
void paintSpeaker(QPainter &painter, int head)
{
    if (head < 40)
        return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(glass);
    painter.drawRoundedRect(QRectF(bodyWidth / 2.0 - 28, head - 28, 56, 7), 3.5, 3.5);
}

} // namespace

PhoneBody::PhoneBody(QWidget *parent)
    : QWidget(parent)
    , phoneDisplay(new Display(this))
    , phoneKeypad(new Keypad(this))
{
    setFixedWidth(bodyWidth);
    setMinimumHeight(least.body());
    setMaximumHeight(usual.body());
    resize(PhoneBody::sizeHint());
}

QSize PhoneBody::sizeHint() const
{
    return {bodyWidth, usual.body()};
}

QSize PhoneBody::minimumSizeHint() const
{
    return {bodyWidth, least.body()};
}

void PhoneBody::resizeEvent(QResizeEvent *)
{
    const Heights heights = heightsIn(height());
    if (phoneDisplay->parentWidget() == this) // else it is shown alone
        phoneDisplay->move(sideMargin, heights.head);
    phoneKeypad->setGeometry(sideMargin, heights.head + ZSkinService::DisplayHeight + displayToKeys,
                             ZSkinService::DisplayWidth, heights.keys);
}

void PhoneBody::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintCase(painter, rect());
    paintSpeaker(painter, phoneDisplay->y());
    painter.setBrush(glass);
    painter.drawRoundedRect(QRectF(phoneDisplay->geometry()).adjusted(-bezel, -bezel, bezel, bezel), 8, 8);
}

} // namespace host
