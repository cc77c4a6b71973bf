// The phone as it lies on the desk: a body around the display and the keypad.
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

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Display *phoneDisplay;
    Keypad *phoneKeypad;
};

} // namespace host
