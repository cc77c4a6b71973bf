#include "host/WaitNotice.h"

#include "host/panel/LiveRegion.h"

#include <QtWidgets/QApplication>

namespace host {

namespace {

constexpr int paddingPx = 8;

} // namespace

// A dialog over the display is a window of its own, and so is what lies over both.
WaitNotice::WaitNotice(QWidget *display)
    : QLabel(tr("Please wait ..."), display, Qt::ToolTip)
{
    setObjectName(QStringLiteral("wait notice"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFrameShape(QFrame::Box);
    setMargin(paddingPx);
    setAutoFillBackground(true);
    delay.setSingleShot(true);
    delay.setInterval(delayMs);
    connect(&delay, &QTimer::timeout, this, &WaitNotice::appear);
}

WaitNotice::~WaitNotice()
{
    setWaiting(false);
}

void WaitNotice::setWaiting(bool waits)
{
    if (waits) {
        if (!isVisible() && !delay.isActive())
            delay.start();
        return;
    }
    delay.stop();
    hide();
    if (hasCursor)
        QGuiApplication::restoreOverrideCursor();
    hasCursor = false;
}

void WaitNotice::appear()
{
    hasCursor = true;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    adjustSize();
    const QRect place = parentWidget()->rect();
    move(parentWidget()->mapToGlobal(place.center()) - rect().center());
    show();
    LiveRegion::tell(parentWidget()->window(), text());
}

} // namespace host
