#include "host/phone/KeysFrame.h"

#include "toolkit/ZPopup.h"
#include "toolkit/ZSkinService.h"

#include <QtCore/QEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>

namespace host {

namespace {

constexpr int frameWidthPx = 3;
constexpr int frameGapPx = 2; // between frame and display

} // namespace

KeysFrame::KeysFrame(QWidget *phoneDisplay)
    : QWidget(phoneDisplay->parentWidget())
    , display(phoneDisplay)
{
    setObjectName(QStringLiteral("keys frame"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    display->installEventFilter(this);
    surround();
    stackUnder(display);
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget *, const QWidget *focus) { follow(focus); });
    follow(QApplication::focusWidget());
}

// A dialog is a window of its own.
void KeysFrame::follow(const QWidget *focus)
{
    const bool isPhones =
        focus && (display->isAncestorOf(focus) || qobject_cast<const ZPopup *>(focus->window()) != nullptr);
    setVisible(isPhones);
}

void KeysFrame::surround()
{
    constexpr int around = frameWidthPx + frameGapPx;
    setGeometry(display->geometry().adjusted(-around, -around, around, around));
}

bool KeysFrame::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
        surround();
    return QWidget::eventFilter(watched, event);
}

void KeysFrame::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ZSkinService::color(ZSkinService::AccentColor), frameWidthPx));
    constexpr qreal half = frameWidthPx / 2.0;
    painter.drawRoundedRect(QRectF(rect()).adjusted(half, half, -half, -half), 5, 5);
}

} // namespace host
