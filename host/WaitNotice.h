// What is shown while the telephone behind is waited for.
#pragma once

#include <QtCore/QTimer>
#include <QtWidgets/QLabel>

namespace host {

/// Lies over the display, and over a dialog there, from when a wait is long enough to be noticed until it has ended.
/// The pointer says so, too.
class WaitNotice : public QLabel
{
    Q_OBJECT

public:
    /// What is over sooner needs no notice.
    static constexpr int delayMs = 150;

    explicit WaitNotice(QWidget *display);
    ~WaitNotice() override;

    /// As handset::Handset::setWaitListener().
    void setWaiting(bool waits);

private:
    void appear();

    QTimer delay;
    bool hasCursor = false;
};

} // namespace host
