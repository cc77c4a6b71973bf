#include "bench/SessionBus.h"

#include <csignal>

#include <sys/prctl.h>

namespace bench {

namespace {

constexpr int startMs = 5000;

} // namespace

SessionBus::SessionBus(const QString &directory)
{
    daemon.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    daemon.start(QStringLiteral("dbus-daemon"),
                 {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address"),
                  QStringLiteral("--address=unix:path=%1/bus").arg(directory)});
    if (!daemon.waitForReadyRead(startMs))
        return;
    qputenv("DBUS_SESSION_BUS_ADDRESS", daemon.readLine().trimmed());
}

SessionBus::~SessionBus()
{
    daemon.kill();
    daemon.waitForFinished();
}

} // namespace bench
