// The narrow scroll bar of lists and long messages. Inside the toolkit only.
#pragma once

#include <QtWidgets/QScrollBar>

/// A vertical scroll bar painted by the skin: a groove and a handle that can be dragged. A press beside the handle
/// moves by a page.
class ZScrollBar : public QScrollBar
{
public:
    explicit ZScrollBar(QWidget *parent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QRect handle() const;

    int grip = -1; // where in the handle the pointer holds it; -1 when it does not
};
