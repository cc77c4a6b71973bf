#include "bench/Stage.h"

#include "toolkit/ZApplication.h"
#include "toolkit/ZSkinService.h"

#include <QtGui/QPainter>
#include <QtGui/QScreen>
#include <QtWidgets/QApplication>

namespace bench {

namespace {

constexpr int mostRounds = 100; // of the event loop, until something is painted

} // namespace

Stage::Stage()
{
    setFixedSize(ZSkinService::DisplayWidth, ZSkinService::DisplayHeight);
    ZApplication::setDisplay(this);
    show();
    activateWindow();
    paint();
}

Stage::~Stage()
{
    ZApplication::setDisplay(nullptr);
}

bool Stage::paint()
{
    isPainted = false;
    for (int i = 0; i < mostRounds && !isPainted; ++i)
        QCoreApplication::processEvents();
    return isPainted;
}

QImage Stage::picture() const
{
    return screen()->grabWindow(winId()).toImage();
}

bool Stage::event(QEvent *event)
{
    const bool handled = QWidget::event(event);
    // This is when the window paints all that is new of it and of the widgets in it.
    if (event->type() == QEvent::UpdateRequest)
        isPainted = true;
    return handled;
}

void Stage::paintEvent(QPaintEvent *)
{
    QPainter(this).fillRect(rect(), Qt::black);
}

} // namespace bench
