#include "host/phone/PhoneBody.h"

#include "host/phone/Display.h"
#include "host/phone/Keypad.h"
#include "toolkit/ZSkinService.h"

#include <QtGui/QPainter>

namespace host {

namespace {

constexpr int sideMargin = 26;
constexpr int bezel = 8;
constexpr int displayTop = 48;
constexpr int keypadTop = displayTop + ZSkinService::DisplayHeight + bezel + 14;
constexpr int keypadHeight = 264;
constexpr int bodyWidth = ZSkinService::DisplayWidth + 2 * sideMargin;
constexpr int bodyHeight = keypadTop + keypadHeight + 24;

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

void paintSpeaker(QPainter &painter)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(glass);
    painter.drawRoundedRect(QRectF(bodyWidth / 2.0 - 28, 20, 56, 7), 3.5, 3.5);
}

} // namespace

PhoneBody::PhoneBody(QWidget *parent)
    : QWidget(parent)
    , phoneDisplay(new Display(this))
    , phoneKeypad(new Keypad(this))
{
    setFixedSize(bodyWidth, bodyHeight);
    phoneDisplay->move(sideMargin, displayTop);
    phoneKeypad->setGeometry(sideMargin, keypadTop, ZSkinService::DisplayWidth, keypadHeight);
}

void PhoneBody::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintCase(painter, rect());
    paintSpeaker(painter);
    painter.setBrush(glass);
    painter.drawRoundedRect(QRectF(phoneDisplay->geometry()).adjusted(-bezel, -bezel, bezel, bezel), 8, 8);
}

} // namespace host
