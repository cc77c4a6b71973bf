// From starting the host to the first paint of its window, beside a program whose window is one label.
#include "CallLogs.h"
#include "Groups.h"

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

// Answers what went wrong.
QString run(const Program &program, const QString &picture = {})
{
    QProcess process;
    process.setProcessEnvironment(environmentOf(program));
    if (!picture.isEmpty()) {
        QProcessEnvironment environment = process.processEnvironment();
        environment.insert(QStringLiteral("KAVBENCH_PICTURE"), picture);
        process.setProcessEnvironment(environment);
    }
    process.start(program.path, program.arguments);
    if (!process.waitForFinished(patienceMs) || process.exitStatus() != QProcess::NormalExit)
        return QStringLiteral("it does not end: ") + process.errorString();
    const QString said = QString::fromLocal8Bit(process.readAllStandardError()).trimmed();
    return process.exitCode() == 0 ? QString() : QStringLiteral("it fails: ") + said;
}

// What is measured must be the whole window.
QString faultOf(const Program &program)
{
    const QTemporaryDir directory;
    const QString picture = directory.filePath(QStringLiteral("window"));
    if (QString error = run(program, picture); !error.isEmpty())
        return error;
    const QImage first(picture + QStringLiteral("-first.png"));
    const QImage last(picture + QStringLiteral("-last.png"));
    return first.isNull() || first != last ? QStringLiteral("the first paint is not the whole window") : QString();
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

} // namespace

std::vector<Comparison> coldStartComparisons(const QString &directory)
{
    // A telephone that has been used.
    const auto state = std::make_shared<QTemporaryDir>();
    const CallLogs logs(directory);
    const Program host =
        untilFirstPaint(QStringLiteral("kavrecentcalls"), {QStringLiteral("--state"), state->path()});
    Comparison row;
    row.name = "Starting the host, to the first whole paint";
    row.ours = side("kavrecentcalls", host);
    row.beside = {
        {side("a window with one label", untilFirstPaint(QStringLiteral("kavbench_label"), {})), Bar{1.7, 1.3}}};
    row.clock = Clock::Wall;
    row.iterations = 3;
    row.prepare = [logs, state, host] {
        const QString error = logs.prepare(usedCalls);
        return error.isEmpty() && !logs.copyTo(*state, usedCalls)
                   ? QStringLiteral("The call log cannot be copied.")
                   : error;
    };
    return {row};
}

} // namespace bench
