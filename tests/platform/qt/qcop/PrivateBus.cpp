#include "qt/qcop/PrivateBus.h"

#include "qt/qcop/BusSocket.h"

#include <QtCore/QFile>
#include <QtCore/QProcess>

#include <csignal>
#include <sys/prctl.h>

namespace {

constexpr int startLimitMs = 60000;

} // namespace

void endWithParent(QProcess &child)
{
    child.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
}

PrivateBus::PrivateBus(bool isStarted)
{
    endWithParent(daemon);
    if (isStarted)
        start();
}

PrivateBus::~PrivateBus()
{
    kill();
}

QString PrivateBus::address() const
{
    return busAddress(folder.filePath(QStringLiteral("bus")));
}

bool PrivateBus::start()
{
    QFile::remove(folder.filePath(QStringLiteral("bus")));
    daemon.start(QStringLiteral("dbus-daemon"),
                 {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address"),
                  QStringLiteral("--address=") + address()});
    // The address is printed when the bus listens.
    while (!daemon.canReadLine()) {
        if (!daemon.waitForReadyRead(startLimitMs))
            return false;
    }
    daemon.readAll();
    return true;
}

void PrivateBus::halt()
{
    ::kill(static_cast<pid_t>(daemon.processId()), SIGSTOP);
}

void PrivateBus::goOn()
{
    ::kill(static_cast<pid_t>(daemon.processId()), SIGCONT);
}

void PrivateBus::kill()
{
    if (!isRunning())
        return;
    daemon.kill();
    daemon.waitForFinished(startLimitMs);
}
