// The phone's keys.
#pragma once

#include <QtWidgets/QWidget>

namespace host {

/// Real buttons that never take the focus. Every key but the two coloured ones goes to the screen or dialog on top.
class Keypad : public QWidget
{
    Q_OBJECT

public:
    explicit Keypad(QWidget *parent = nullptr);

signals:
    void callPressed();
    void hangUpPressed();
    /// A digit, "*" or "#" was pressed where nobody asks for text: on a screen, not in a dialog.
    void numberTyped(QChar digit);

private:
    void press(int qtKey);
};

} // namespace host
