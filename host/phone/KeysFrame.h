// Shows that the keys go to the phone.
#pragma once

#include <QtWidgets/QWidget>

namespace host {

/// A frame around the display, on its bezel, while what is typed goes to the phone: to a screen, or a dialog over it.
class KeysFrame : public QWidget
{
    Q_OBJECT

public:
    /// A sibling of `display`, which it follows.
    explicit KeysFrame(QWidget *display);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void follow(const QWidget *focus);
    void surround();

    QWidget *const display;
};

} // namespace host
