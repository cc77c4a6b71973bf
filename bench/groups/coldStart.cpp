// From starting the host to the first paint of its window, beside a program whose window is one label.
#include "bench/CallLogs.h"
#include "bench/Groups.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>

#include <memory>

namespace bench {

namespace {

constexpr int patienceMs = 60'000;
constexpr int usedCalls = 100;

QString inPrograms(const QString &name)
{
    return QCoreApplication::applicationDirPath() + u'/' + name;
}

Program untilFirstPaint(const QString &name, const QStringList &arguments)
{
    return {inPrograms(name),
            arguments,
            {{QStringLiteral("QT_PLUGIN_PATH"), inPrograms(QStringLiteral("plugins"))},
             {QStringLiteral("QT_QPA_GENERIC_PLUGINS"), QStringLiteral("kavfirstpaint")}}};
}

Program with(Program program, const char *name, const QString &value)
{
    program.environment.insert(QLatin1StringView(name), value);
    return program;
}

// Returns what went wrong.
QString run(const Program &program)
{
    QProcess process;
    process.setProcessEnvironment(environmentOf(program));
    process.start(program.path, program.arguments);
    if (!process.waitForFinished(patienceMs) || process.exitStatus() != QProcess::NormalExit)
        return QStringLiteral("it does not end: ") + process.errorString();
    const QString said = QString::fromLocal8Bit(process.readAllStandardError()).trimmed();
    return process.exitCode() == 0 ? QString() : QStringLiteral("it fails: ") + said;
}

// What is measured must be whole.
QString faultOf(const Program &program)
{
    const QTemporaryDir directory;
    const QString picture = directory.filePath(QStringLiteral("window"));
    if (QString error = run(with(program, "KAVBENCH_PICTURE", picture)); !error.isEmpty())
        return error;
    const QImage first(picture + QStringLiteral("-first.png"));
    const QImage last(picture + QStringLiteral("-last.png"));
    return first.isNull() || first != last ? QStringLiteral("the first paint is not the whole of it") : QString();
}

Side side(const char *label, const Program &program)
{
    return {label,
            [program](benchmark::State &state) {
                if (const QString fault = faultOf(program); !fault.isEmpty())
                    state.SkipWithError(qUtf8Printable(fault));
                for (auto _ : state) {
                    if (const QString error = run(program); !error.isEmpty())
                        return state.SkipWithError(qUtf8Printable(error));
                }
            },
            program};
}

// The state of a handset that has been used.
QString prepareState(const CallLogs &logs, const QTemporaryDir &state, const Program &host)
{
    if (QString error = logs.prepare(usedCalls); !error.isEmpty())
        return error;
    return logs.copyTo(state, usedCalls) ? faultOf(host) : QStringLiteral("The call log cannot be copied.");
}

Comparison starting(const char *name, const QString &until, const CallLogs &logs)
{
    // Each row's own, as one handset at a time has it.
    const auto state = std::make_shared<QTemporaryDir>();
    Program host = untilFirstPaint(QStringLiteral("kavrecentcalls"), {QStringLiteral("--state"), state->path()});
    host = with(with(host, "KAVBENCH_PART", QStringLiteral("host::PhoneBody")), "KAVBENCH_UNTIL", until);
    const Program label = with(untilFirstPaint(QStringLiteral("kavbench_label"), {}), "KAVBENCH_UNTIL", until);
    Comparison row;
    row.name = name;
    row.ours = side("kavrecentcalls", host);
    row.beside = {{side("a window with one label", label)}};
    row.clock = Clock::Wall;
    row.iterations = 3;
    row.prepare = [logs, state, host] { return prepareState(logs, *state, host); };
    return row;
}

} // namespace

std::vector<Comparison> coldStartComparisons(const QString &directory)
{
    const CallLogs logs(directory);
    Comparison first = starting("Starting the host, to the first paint with the whole phone", {}, logs);
    first.beside.front().bar = Bar{1.7, 1.3};
    Comparison all = starting("Starting the host, until nothing is left to paint", QStringLiteral("idle"), logs);
    // What it took when the bar was set, and 5% more: nothing is gained by moving work behind the first paint.
    all.beside.front().bar = Bar{2.68, 2.55};
    return {first, all};
}

} // namespace bench
