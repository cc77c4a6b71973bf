// The phone's display alone, as large as the window.
#pragma once

#include <QtCore/QPointer>
#include <QtWidgets/QGraphicsView>

class QAbstractScrollArea;
class QScroller;

namespace host {

/// Shows the display scaled to its own size, in the display's proportions, and takes a finger for what it is: a tap is a
/// click, and what can scroll follows the finger and goes on when that lets go.
class DisplayView : public QGraphicsView
{
    Q_OBJECT

public:
    /// Owns `display` from now on, which has no parent then.
    DisplayView(QWidget *display, QWidget *parent);

    QWidget *shown() const { return display; }

protected:
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    QAbstractScrollArea *scrollableAt(QPoint place) const;
    void feed(int input, const QMouseEvent &event);

    QWidget *const display;
    QGraphicsProxyWidget *proxy;
    QPointer<QAbstractScrollArea> touched; ///< what the finger is on, if that can scroll
    bool isTap = false;                    ///< the finger has not moved on it so far
};

} // namespace host
