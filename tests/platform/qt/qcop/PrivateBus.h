// A session bus of the test's own.
#pragma once

#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>

/// A dbus-daemon at an address that stays the same when it is started again. Ends with the test, however that ends.
class PrivateBus
{
public:
    /// `isStarted` false leaves the address without a bus.
    explicit PrivateBus(bool isStarted = true);
    ~PrivateBus();
    Q_DISABLE_COPY_MOVE(PrivateBus)

    QString address() const;
    /// False when the bus does not come up.
    bool start();
    void kill();
    /// Keeps it from answering, and lets it go on.
    void halt();
    void goOn();
    bool isRunning() const { return daemon.state() == QProcess::Running; }

private:
    QTemporaryDir folder;
    QProcess daemon;
};

/// Makes the child end when the test program does, even by a crash.
void endWithParent(QProcess &child);
