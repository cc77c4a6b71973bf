// The narrow scroll bar of lists and long messages. Inside the toolkit only.
#pragma once

#include <QtWidgets/QScrollBar>

/// A vertical scroll bar painted by the skin: a groove and a handle.
class ZScrollBar : public QScrollBar
{
public:
    explicit ZScrollBar(QWidget *parent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};
