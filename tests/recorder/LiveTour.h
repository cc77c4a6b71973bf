// The host's tour of all screens over a real daemon, with what the recorder has recorded.
#pragma once

#include "host/HostProcess.h"
#include "recorder/RecorderProcess.h"

#include <QtCore/QTemporaryDir>
#include <QtCore/QTime>
#include <QtGui/QImage>

namespace handset::test {

/// All screens, with the times that the recorder has written, and the resets of the phone's own figures. `costs` are the
/// steps through Call Costs and its set-up, which the modem makes different.
inline QByteArray liveTour(const RecorderProcess &bench, const QByteArray &costs)
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
           "expect row 2 Last Deposit | 0.00 units\n" +
           costs +
           "open dataTime\n"
           "expect title Data Times\n"
           "expect row 1 " +
           bench.value(QStringLiteral("SELECT apn FROM sessions")).toByteArray() + " | " +
           time("duration_ms FROM sessions") + "\nexpect row 5 Total Time | " + time("duration_ms FROM sessions") +
           "\npress up select\n"
           "expect message Are you sure you want to reset the data sessions timer?\n"
           "press left\n"
           "expect row 5 Total Time | 00:00:00\n"
           "open dataVolume\n"
           "expect title Data Volumes\n"
           "press select\n"
           "expect title Data Volume\n"
           "expect row 4 Sum | 0 B\n"
           "open dataVolume\n"
           "press up select\n"
           "expect message Are you sure you want to reset the data sessions volume?\n"
           "press left\n"
           "expect title Data Volumes\n";
}

/// Without advice of charge: the own tariff, which is not set, and nothing of the SIM, for which the screen shows what it
/// begins with.
inline QByteArray costsOfTheOwnTariff()
{
    return "expect row 6 All Calls Cost | 0.00 units\n"
           "press up select\n"
           "expect title Call-Cost Setup\n"
           "expect rows 9\n"
           "expect row 4 Credit Limit | On\n"
           "expect row 6 Currency | On\n";
}

/// Of a card at 40 units, whose price is 0.25 EUR, with calls of 5 units each way: PIN2 before each write, a wrong one once.
inline QByteArray costsOfTheCard()
{
    return "expect row 3 Last Call Cost | 5.00 units\n"
           "expect row 4 Dialed Calls Cost | 5.00 units\n"
           "expect row 5 Answered Calls Cost | 5.00 units\n"
           "expect row 6 All Calls Cost | 50.00 units\n"
           "press up select\n"
           "expect title Call-Cost Setup\n"
           "expect rows 9\n"
           "expect row 4 Credit Limit | Off\n"
           "expect row 6 Currency | Off\n"
           "press down*6 select\n"
           "expect header Enter PIN2\n"
           "press 9 9 9 9 left\n"
           "expect header Enter PIN2\n"
           "press 1 2 3 4 left\n"
           "expect header Currency\n"
           "press select\n"
           "expect row 6 Currency | On\n"
           "expect row 7 Currency Type | EUR\n"
           "expect row 8 Cost Per Minute | 0.25 EUR\n"
           "press down select\n"
           "expect header Choose Type\n"
           "press 4 left\n"
           "expect row 7 Currency Type | DEM\n"
           "expect row 8 Cost Per Minute | 0.25 DEM\n"
           "press down select\n"
           "expect header Enter PIN2\n"
           "press 1 2 3 4 left\n"
           "expect header Cost Per Minute\n"
           "press 0 * 5 0 left\n"
           "expect row 8 Cost Per Minute | 0.5 DEM\n"
           "press up*4 select\n"
           "expect header Enter PIN2\n"
           "press 1 2 3 4 left\n"
           "expect header Credit Limit\n"
           "press left\n"
           "expect row 4 Credit Limit | On\n"
           "press down select\n"
           "expect header Adjust Credit Limit\n"
           "press 3 0 left\n"
           "expect row 5 Adjust Credit Limit | 30.00 DEM\n"
           "press right\n"
           "expect title Call Costs\n"
           "expect row 3 Last Call Cost | 2.50 DEM\n"
           "expect row 6 All Calls Cost | 25.00 DEM\n"
           "press select down select\n"
           "expect header Enter PIN2\n"
           "press 1 2 3 4 left\n"
           "expect header Reset Calls\n"
           "press left right\n"
           "expect row 5 Answered Calls Cost | 2.50 DEM\n"
           "expect row 6 All Calls Cost | 0.00 DEM\n";
}

/// Plays a script on the backend, whose daemon is at `busAddress`; without one the tour that the host brings along, which
/// changes nothing.
inline HostResult playTour(const RecorderProcess &bench, const QString &backend, const QString &busAddress,
                           const QByteArray &script = {})
{
    const QTemporaryDir home;
    QStringList arguments{QStringLiteral("--backend"), backend,
                          QStringLiteral("--state"),   bench.state.path(),
                          QStringLiteral("--tour"),    home.filePath(QStringLiteral("photographs"))};
    if (const QString file = home.filePath(QStringLiteral("live.tour")); !script.isEmpty()) {
        if (!writeFile(file, script))
            return {};
        arguments << QStringLiteral("--script") << file;
    }
    QProcessEnvironment environment = hostEnvironment(home.path());
    environment.remove(QStringLiteral("QT_QPA_PLATFORM")); // the tour sees to that itself
    environment.insert(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"), busAddress);
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), busAddress);
    return runHost(arguments, environment);
}

/// Both tours, the second with what the recorder has recorded, which has ended.
inline HostResult playLiveTours(const RecorderProcess &bench, const QString &backend, const QString &busAddress,
                                const QByteArray &costs)
{
    const HostResult shipped = playTour(bench, backend, busAddress);
    return shipped.code == 0 && shipped.errors.isEmpty()
               ? playTour(bench, backend, busAddress, liveTour(bench, costs))
               : shipped;
}

/// The host's window as it is when the screen has been opened at once, of the backend whose daemon is at `busAddress`.
inline QImage photographScreen(const RecorderProcess &bench, const QString &screen, const QString &backend,
                               const QString &busAddress)
{
    const QTemporaryDir home;
    const QString file = home.filePath(QStringLiteral("window.png"));
    QProcessEnvironment environment = hostEnvironment(home.path());
    environment.insert(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"), busAddress);
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), busAddress);
    const HostResult shown =
        runHost({QStringLiteral("--backend"), backend, QStringLiteral("--state"), bench.state.path(),
                 QStringLiteral("--screen"), screen, QStringLiteral("--photo"), file},
                environment);
    if (shown.code != 0 || !shown.errors.isEmpty())
        qWarning("the host ended with %d: %s", shown.code, qPrintable(shown.errors));
    return QImage(file);
}

} // namespace handset::test
