#include "ZApplication.h"

#include "ZLayers.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QWidget>

namespace {

QPointer<QWidget> &chosenDisplay()
{
    static QPointer<QWidget> display;
    return display;
}

QString typedText(int qtKey)
{
    const bool printable = qtKey >= Qt::Key_Space && qtKey <= Qt::Key_AsciiTilde;
    return printable ? QString(QChar(static_cast<char16_t>(qtKey))).toLower() : QString();
}

} // namespace

void ZApplication::setDisplay(QWidget *display)
{
    chosenDisplay() = display;
}

QWidget *ZApplication::display()
{
    return chosenDisplay() ? chosenDisplay().data() : ZLayers::outermostScreen();
}

QWidget *ZApplication::keyTarget()
{
    QWidget *layer = ZLayers::top(nullptr);
    return layer ? ZLayers::keyTarget(layer) : nullptr;
}

bool ZApplication::pressKey(int qtKey)
{
    const QPointer<QWidget> target = keyTarget();
    if (!target)
        return false;
    const QString text = typedText(qtKey);
    QKeyEvent press(QEvent::KeyPress, qtKey, Qt::NoModifier, text);
    QCoreApplication::sendEvent(target, &press);
    if (target) {
        QKeyEvent release(QEvent::KeyRelease, qtKey, Qt::NoModifier, text);
        QCoreApplication::sendEvent(target, &release);
    }
    return true;
}
