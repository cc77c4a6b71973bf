// The AT modem as a program: led over its standard input, asked over its port.
#include "support/TestGroup.h"

#include <QtCore/QProcess>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr int limitMs = 60'000;

QByteArray lineOf(QProcess &process)
{
    while (!process.canReadLine()) {
        if (!process.waitForReadyRead(limitMs))
            return "nothing";
    }
    return process.readLine().trimmed();
}

/// A connection to its TCP port; waits for what it is told.
class Caller
{
public:
    explicit Caller(int port)
        : connected(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        address.sin_port = htons(static_cast<in_port_t>(port));
        isConnected = ::connect(connected, reinterpret_cast<sockaddr *>(&address), sizeof address) == 0;
    }
    ~Caller() { ::close(connected); }
    Q_DISABLE_COPY_MOVE(Caller)

    void write(const QByteArray &line)
    {
        QCOMPARE(::send(connected, line.constData(), static_cast<std::size_t>(line.size()), MSG_NOSIGNAL),
                 line.size());
    }
    /// Reads until `end` has come, or the connection is cut.
    QByteArray readUntil(const QByteArray &end)
    {
        QByteArray all;
        char byte = 0;
        while (!all.endsWith(end) && ::recv(connected, &byte, 1, 0) == 1)
            all += byte;
        return all;
    }

    bool isConnected = false;

private:
    int connected;
};

} // namespace

class TestAtModemProgram : public QObject
{
    Q_OBJECT

private slots:
    void theProgramObeysItsInputAndAnswersItsPort();
};

void TestAtModemProgram::theProgramObeysItsInputAndAnswersItsPort()
{
    QProcess program;
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    program.start(QCoreApplication::applicationDirPath() + "/kav_at_modem", {"--tcp"});
    const QByteArray told = lineOf(program);
    QVERIFY(told.startsWith("tcp "));
    QCOMPARE(lineOf(program), "listening");
    const auto obeyed = [&](const QByteArray &word) {
        program.write(word + '\n');
        return lineOf(program);
    };

    Caller caller(told.mid(4).toInt());
    QVERIFY(caller.isConnected);
    caller.write("ATE0\r");
    caller.readUntil("OK\r\n");
    QCOMPARE(obeyed("answer"), "no: no such call");
    QCOMPARE(obeyed("dance"), "no: no such word");
    QCOMPARE(obeyed("ring 5551234"), "ok");
    QCOMPARE(caller.readUntil("RING\r\n"), "\r\nRING\r\n");
    caller.write("ATA\r");
    caller.readUntil("OK\r\n");
    QCOMPARE(obeyed("tick-meter 4"), "ok");
    QCOMPARE(obeyed("remote-hangup"), "ok");
    QCOMPARE(caller.readUntil("CARRIER\r\n"), "\r\nNO CARRIER\r\n");
    const QByteArray record = obeyed("records");
    QVERIFY2(record.startsWith("received 5551234 ") && record.endsWith(" 4"), record.constData());
    QCOMPARE(lineOf(program), "ok");
    QCOMPARE(obeyed("unplug"), "ok");
    QCOMPARE(caller.readUntil("anything"), "");
    program.closeWriteChannel();
    QVERIFY(program.waitForFinished(limitMs));
    QCOMPARE(program.exitCode(), 0);
}

KAV_TEST_GROUP(TestAtModemProgram, QCoreApplication);
#include "tst_at_modem_program.moc"
