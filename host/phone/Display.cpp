#include "host/phone/Display.h"

#include "host/AccessibleRole.h"
#include "toolkit/ZApplication.h"
#include "toolkit/ZPopup.h"
#include "toolkit/ZSkinService.h"

#include <QtGui/QPainter>
#include <QtWidgets/QApplication>

namespace host {

namespace {

QList<ZPopup *> dialogsOverDisplay()
{
    QList<ZPopup *> dialogs;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        auto *dialog = qobject_cast<ZPopup *>(window);
        if (dialog && dialog->isVisible())
            dialogs << dialog;
    }
    return dialogs;
}

} // namespace

Display::Display(QWidget *parent)
    : QWidget(parent)
{
    setFixedSize(ZSkinService::DisplayWidth, ZSkinService::DisplayHeight);
    giveAccessibleRole<Display, QAccessible::Pane>();
    setAccessibleName(tr("Display of the phone"));
    ZApplication::setDisplay(this);
}

Display::~Display()
{
    if (ZApplication::display() == this)
        ZApplication::setDisplay(nullptr);
}

QImage Display::photograph()
{
    QImage image(size(), QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    render(&painter);
    for (ZPopup *dialog : dialogsOverDisplay())
        dialog->render(&painter, mapFromGlobal(dialog->mapToGlobal(QPoint())), {}, DrawChildren);
    return image;
}

void Display::paintEvent(QPaintEvent *)
{
    QPainter(this).fillRect(rect(), Qt::black);
}

} // namespace host
