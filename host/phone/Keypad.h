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

    /// The key of the phone that a desktop keyboard's `qtKey` stands for beside those of a screen: the green key for
    /// F3, the red one for F4, a digit, "*" or "#" for itself. 0 for none.
    static int keyOf(int qtKey);
    /// Presses the phone's key that `qtKey` (a Qt::Key) names.
    void press(int qtKey);
    /// Emits numberTyped() for a digit, "*" or "#" that whatever has the keys gets from the keyboard itself.
    void tellTyped(int qtKey);

signals:
    void callPressed();
    void hangUpPressed();
    /// A digit, "*" or "#" was pressed where nobody asks for text: on a screen, not in a dialog.
    void numberTyped(QChar digit);
};

} // namespace host
