#include "host/HostProcess.h"

#include <QtCore/QProcess>

namespace {

constexpr int longestRunMs = 120000;

} // namespace

QProcessEnvironment hostEnvironment(const QString &home)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("HOME"), home);
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), home); // without one Qt says that it picked one
    environment.insert(QStringLiteral("XDG_DATA_HOME"), home + QStringLiteral("/data"));
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home + QStringLiteral("/config"));
    environment.insert(QStringLiteral("XDG_CACHE_HOME"), home + QStringLiteral("/cache"));
    environment.insert(QStringLiteral("TZ"), QStringLiteral("America/St_Johns"));
    environment.remove(QStringLiteral("DISPLAY"));
    environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    return environment;
}

HostResult runHost(const QStringList &arguments, const QProcessEnvironment &environment, const QString &outputFile)
{
    QProcess process;
    if (!outputFile.isEmpty())
        process.setStandardOutputFile(outputFile);
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(KAV_HOST_PROGRAM), arguments);
    HostResult result;
    if (process.waitForFinished(longestRunMs) && process.exitStatus() == QProcess::NormalExit)
        result.code = process.exitCode();
    else
        process.kill();
    result.output = QString::fromUtf8(process.readAllStandardOutput());
    result.errors = QString::fromUtf8(process.readAllStandardError());
    process.waitForFinished(longestRunMs);
    return result;
}
