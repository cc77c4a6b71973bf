#include "qt/qcop/Peer.h"

#include "qt/qcop/PeerPattern.h"
#include "qt/qcop/PrivateBus.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QProcess>
#include <QtCore/QProcessEnvironment>

namespace {

constexpr int limitMs = 60000;

} // namespace

Peer::Peer(const QString &bus)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus);
    process.setProcessEnvironment(environment);
    endWithParent(process);
    process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/qcop_peer"), QStringList());
}

Peer::~Peer()
{
    finish();
    process.kill();
    process.waitForFinished(60'000);
}

bool Peer::connectToBus()
{
    command("connect");
    return answer() == "1";
}

bool Peer::subscribe(int id, const QByteArray &channel)
{
    make(id, channel);
    return connectToBus();
}

void Peer::make(int id, const QByteArray &channel)
{
    command("make " + QByteArray::number(id) + ' ' + channel.toHex());
    answer();
}

void Peer::unsubscribe(int id)
{
    command("unsubscribe " + QByteArray::number(id));
    answer();
}

bool Peer::send(const QByteArray &channel, const QByteArray &message, const QByteArray &data)
{
    command("send " + channel.toHex() + ' ' + message.toHex() + ' ' + data.toHex());
    return answer() == "1";
}

void Peer::startBurst(const QByteArray &channel, const QByteArray &prefix, int count)
{
    command("burst " + channel.toHex() + ' ' + prefix.toHex() + ' ' + QByteArray::number(count));
    process.waitForBytesWritten(limitMs);
}

bool Peer::finishBurst()
{
    return answer() == "1";
}

bool Peer::sendPattern(const QByteArray &channel, const QByteArray &message, qint64 size)
{
    command("pattern " + channel.toHex() + ' ' + message.toHex() + ' ' + QByteArray::number(size));
    return answer() == "1";
}

bool Peer::isOnBus()
{
    command("status");
    return answer() == "1";
}

void Peer::hold()
{
    command("hold");
    readLine(); // "held"
}

void Peer::goOn()
{
    command("");
    answer();
}

int Peer::cycle(int count)
{
    command("cycle " + QByteArray::number(count));
    bool isNumber = false;
    const int waits = answer().toInt(&isNumber);
    return isNumber ? waits : -1;
}

bool Peer::endsWithin(int milliseconds)
{
    process.closeWriteChannel();
    return process.state() == QProcess::NotRunning || process.waitForFinished(milliseconds);
}

int Peer::finish()
{
    const bool isDone = endsWithin(limitMs) && process.exitStatus() == QProcess::NormalExit;
    return isDone ? process.exitCode() : -1;
}

QByteArray Peer::take()
{
    while (messages.isEmpty()) {
        const QByteArray line = readLine();
        if (line.isNull())
            return QByteArray();
        messages.append(line);
    }
    return messages.takeFirst();
}

QList<QByteArray> Peer::takeUntil(int id, const QByteArray &message)
{
    QList<QByteArray> taken;
    for (QByteArray line = take(); line != Peer::line(id, message); line = take()) {
        if (line.isNull())
            return taken << "missing: " + message;
        taken << line;
    }
    return taken;
}

QByteArray Peer::line(int id, const QByteArray &message, const QByteArray &data)
{
    return "got " + QByteArray::number(id) + ' ' + message.toHex() + ' ' + peerDigest(data);
}

QByteArray Peer::patternLine(int id, const QByteArray &message, qint64 size)
{
    return line(id, message, peerPattern(size));
}

QByteArray Peer::errors()
{
    process.waitForReadyRead(0);
    errorText += process.readAllStandardError();
    return errorText;
}

void Peer::command(const QByteArray &line)
{
    process.write(line + '\n');
}

// Messages may come in between.
QByteArray Peer::answer()
{
    for (QByteArray line = readLine(); !line.isNull(); line = readLine()) {
        if (line.startsWith("= "))
            return line.mid(2);
        messages.append(line);
    }
    return QByteArray();
}

QByteArray Peer::readLine()
{
    while (!process.canReadLine()) {
        if (!process.waitForReadyRead(limitMs))
            return QByteArray();
    }
    return process.readLine().chopped(1);
}
