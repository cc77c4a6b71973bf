// Where screens are opened: the phone's display, shown in a window.
#pragma once

#include <QtGui/QImage>
#include <QtWidgets/QWidget>

namespace bench {

/// Of the display's size and already on show. A screen is opened in it as the phone does it.
class Stage : public QWidget
{
public:
    Stage();
    ~Stage() override;

    /// Handles events until what is new has been painted into the window's backing store, once. False when nothing
    /// was painted.
    bool paint();
    /// What the backing store has.
    QImage picture() const;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool isPainted = false;
};

} // namespace bench
