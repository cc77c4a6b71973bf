// The recorder as a process, run as its unit runs it: without a window system.
#pragma once

#include "handset/HandsetTestKit.h"
#include "qt/qcop/PrivateBus.h"

#include <QtCore/QFile>
#include <QtCore/QProcess>

#include <csignal>

namespace handset::test {

inline constexpr int limitMs = 60'000; ///< no wait is that long, however busy the machine is

/// With a state directory of its own. Ends with the test, however that ends.
class RecorderProcess
{
public:
    RecorderProcess() { endWithParent(recorder); }

    /// Both its system and its session bus are at `busAddress`.
    void startOn(const QString &busAddress, const QStringList &more = {})
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"), busAddress);
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), busAddress);
        for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            environment.remove(QLatin1String(name));
        recorder.setProcessEnvironment(environment);
        recorder.start(QStringLiteral(KAV_RECORDER), QStringList{QStringLiteral("--state"), state.path()} + more);
    }
    void end(int signal)
    {
        ::kill(static_cast<pid_t>(recorder.processId()), signal);
        QTRY_COMPARE_WITH_TIMEOUT(recorder.state(), QProcess::NotRunning, limitMs);
    }
    /// What has become of it, and what it has said.
    QByteArray story()
    {
        const QByteArray fate = recorder.state() == QProcess::Running
                                    ? QByteArrayLiteral("runs")
                                    : "has ended with " + QByteArray::number(recorder.exitCode());
        return "The recorder " + fate + ".\n" + recorder.readAllStandardError() + recorder.readAllStandardOutput();
    }
    /// The states of all rows.
    QString calls() const { return all(QStringLiteral("state")); }
    QString all(const QString &column) const
    {
        return value(QStringLiteral("SELECT group_concat(%1, ' ') FROM calls").arg(column)).toString();
    }
    qint64 countedMs() const { return value(QStringLiteral("SELECT sum(duration_ms) FROM calls")).toLongLong(); }
    QVariant value(const QString &query) const
    {
        return QFile::exists(state.database()) ? LogFile(state.database()).value(query) : QVariant();
    }

    StateDir state;
    QProcess recorder;
};

} // namespace handset::test
