// The phone as it lies on the desk: a body around the display and the keypad. On a low screen it is shorter, its keys lower.
#pragma once

#include <QtWidgets/QWidget>

namespace host {

class Display;
class Keypad;

class PhoneBody : public QWidget
{
    Q_OBJECT

public:
    explicit PhoneBody(QWidget *parent = nullptr);

    Display *display() const { return phoneDisplay; }
    Keypad *keypad() const { return phoneKeypad; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    Display *phoneDisplay;
    Keypad *phoneKeypad;
};

} // namespace host
