// The phone's display.
#pragma once

#include <QtGui/QImage>
#include <QtWidgets/QWidget>

namespace host {

/// 240 x 320 pixels that screens are children of. Dialogs without a parent lie over it as windows of their own.
class Display : public QWidget
{
    Q_OBJECT

public:
    explicit Display(QWidget *parent = nullptr);
    ~Display() override;

    /// What a person sees on the display, the dialogs over it included.
    QImage photograph();

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace host
