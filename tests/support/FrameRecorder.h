// What a person sees of a window, frame by frame.
#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtGui/QImage>
#include <QtGui/QPixmap>
#include <QtGui/QScreen>
#include <QtWidgets/QWidget>

/// Keeps a picture of `window`, a visible top-level widget, each time after it has painted what is new.
class FrameRecorder : public QObject
{
public:
    explicit FrameRecorder(QWidget *window)
        : watched(window)
    {
        window->installEventFilter(this);
    }

    QImage picture() const { return watched->screen()->grabWindow(watched->winId()).toImage(); }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        // The event that makes the window paint: it is handled here, so that the picture is taken right after it.
        if (event->type() != QEvent::UpdateRequest || isPainting)
            return false;
        isPainting = true;
        QCoreApplication::sendEvent(object, event);
        isPainting = false;
        frames.append(picture());
        return true;
    }

    QList<QImage> frames;

private:
    QWidget *watched;
    bool isPainting = false;
};
