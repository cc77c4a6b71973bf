// The test's side of a kavqcop.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QProcess>

/// A running kavqcop, as a shell calls it.
class Command
{
public:
    using Arguments = QList<QByteArray>;

    /// `bus` is the address of its session bus. The arguments are bytes.
    Command(const QString &bus, const Arguments &arguments);
    ~Command();
    Q_DISABLE_COPY_MOVE(Command)

    bool isListening();
    /// The exit status; -1 when it crashed or goes on.
    int finish();

    QByteArray output() { return process.readAllStandardOutput(); }
    QByteArray errors() { return errorText += process.readAllStandardError(); }

private:
    QProcess process;
    QByteArray errorText;
};
