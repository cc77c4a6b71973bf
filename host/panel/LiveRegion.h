// What is told to a screen reader without being asked for.
#pragma once

#include <QtCore/QStringList>
#include <QtWidgets/QWidget>

namespace host {

/// A place in the window that nobody sees: a notification, whose name is what was told last. Screen readers speak it as
/// soon as it appears, wherever the focus is.
class LiveRegion : public QWidget
{
    Q_OBJECT

public:
    /// Has the region of `window`, which is made when there is none yet, tell `text`. Where nobody listens nothing is made.
    static void tell(QWidget *window, const QString &text);

private:
    explicit LiveRegion(QWidget *window);
    void speak();

    QStringList due; ///< of one turn of the event loop, so that none is lost to the next
};

} // namespace host
