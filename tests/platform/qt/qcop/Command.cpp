#include "qt/qcop/Command.h"

#include "qt/qcop/PrivateBus.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QProcess>
#include <QtCore/QProcessEnvironment>

namespace {

constexpr int limitMs = 60000;

// A shell line that calls its $0 with `arguments`. QProcess takes texts, arguments are bytes: printf makes them of
// octal escapes.
QString shellLine(const Command::Arguments &arguments)
{
    QString line = QStringLiteral("exec \"$0\"");
    for (const QByteArray &argument : arguments) {
        line += QStringLiteral(" \"$(printf '");
        for (const char byte : argument)
            line += QStringLiteral("\\%1").arg(static_cast<unsigned char>(byte), 3, 8, QLatin1Char('0'));
        line += QStringLiteral("')\"");
    }
    return line;
}

} // namespace

Command::Command(const QString &bus, const Arguments &arguments)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus);
    process.setProcessEnvironment(environment);
    process.setReadChannel(QProcess::StandardError);
    endWithParent(process);
    process.start(QStringLiteral("/bin/sh"),
                  {QStringLiteral("-c"), shellLine(arguments),
                   QCoreApplication::applicationDirPath() + QStringLiteral("/../bin/kavqcop")});
}

Command::~Command()
{
    process.kill();
    process.waitForFinished(60'000);
}

bool Command::isListening()
{
    while (!errors().contains("listening on ")) {
        if (!process.waitForReadyRead(limitMs))
            return false;
    }
    return true;
}

int Command::finish()
{
    if (process.state() != QProcess::NotRunning)
        process.waitForFinished(limitMs);
    const bool isDone = process.state() == QProcess::NotRunning && process.exitStatus() == QProcess::NormalExit;
    return isDone ? process.exitCode() : -1;
}
