// The phone's keys.
#pragma once

#include <QtWidgets/QWidget>

namespace host {

/// Real buttons that never take the focus. The keys that screens know go to the screen or dialog on top; the two
/// coloured keys are reported.
class Keypad : public QWidget
{
    Q_OBJECT

public:
    explicit Keypad(QWidget *parent = nullptr);

signals:
    void callPressed();
    void hangUpPressed();
};

} // namespace host
