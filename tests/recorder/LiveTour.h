// The host's tour of all screens over a real daemon, with what the recorder has recorded.
#pragma once

#include "host/HostProcess.h"
#include "recorder/RecorderProcess.h"

#include <QtCore/QTemporaryDir>
#include <QtCore/QTime>

namespace handset::test {

/// All screens, with the times that the recorder has written; a reset of the dialed calls at last. Nothing here is to
/// come from the daemon, which may not have told it by then.
inline QByteArray liveTour(const RecorderProcess &bench)
{
    const auto time = [&](const char *of) {
        const qint64 ms = bench.value(QStringLiteral("SELECT ") + QLatin1String(of)).toLongLong();
        return QTime(0, 0).addMSecs(int(ms)).toString(QStringLiteral("hh:mm:ss")).toLatin1();
    };
    return "state kept\n"
           "open callTime\n"
           "expect title Call Times\n"
           "expect row 0 Last Call | " +
           time("duration_ms FROM calls ORDER BY id DESC LIMIT 1") + "\nexpect row 1 Dialed Calls | " +
           time("sum(duration_ms) FROM calls WHERE direction = 0") + "\nexpect row 2 Answered Calls | " +
           time("sum(duration_ms) FROM calls WHERE direction = 1") + "\nexpect row 3 Data Calls | 00:00:00" +
           "\nexpect row 4 All Calls | " + time("sum(duration_ms) FROM calls") +
           "\nexpect row 5 Lifetime Calls | " + time("sum(duration_ms) FROM calls") +
           "\npress down select\n"
           "expect message Would you like to reset the Dialed Calls timer?\n"
           "press left\n"
           "expect row 1 Dialed Calls | 00:00:00\n"
           "open callCost\n"
           "expect title Call Costs\n"
           "expect row 0 Credit Available | 0.00 units\n"
           "expect row 1 Expiration Date | 2000/00/00\n"
           "press up select\n"
           "expect title Call-Cost Setup\n"
           "expect rows 9\n"
           "open dataTime\n"
           "expect title Data Times\n"
           "expect row 1 GPRS Data Session 1 | 00:00:00\n"
           "open dataVolume\n"
           "expect title Data Volumes\n"
           "press select\n"
           "expect title Data Volume\n"
           "expect row 4 Sum | 0 B\n";
}

/// Plays it on the backend, whose daemon is at `busAddress`; the recorder has ended.
inline HostResult playLiveTour(const RecorderProcess &bench, const QString &backend, const QString &busAddress)
{
    const QTemporaryDir home;
    const QString file = home.filePath(QStringLiteral("live.tour"));
    if (!writeFile(file, liveTour(bench)))
        return {};
    QProcessEnvironment environment = hostEnvironment(home.path());
    environment.remove(QStringLiteral("QT_QPA_PLATFORM")); // the tour sees to that itself
    environment.insert(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"), busAddress);
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), busAddress);
    return runHost({QStringLiteral("--backend"), backend, QStringLiteral("--state"), bench.state.path(),
                    QStringLiteral("--tour"), home.filePath(QStringLiteral("photographs")),
                    QStringLiteral("--script"), file},
                   environment);
}

} // namespace handset::test
