// A port of the AT modem: a socket that listens, and the one daemon that is connected to it.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QSocketNotifier>

#include <functional>
#include <memory>

namespace atmodem {

class Port
{
public:
    /// A TCP port of this machine that the kernel chooses, or the abstract unix socket of that name.
    explicit Port(const QByteArray &abstractName = {});
    ~Port();
    Q_DISABLE_COPY_MOVE(Port)

    /// The TCP port's number; 0 for an abstract socket.
    int number() const { return tcpNumber; }
    /// False when the name is taken.
    bool isListening() const { return listening >= 0; }
    bool isConnected() const { return connected >= 0; }
    void write(const QByteArray &bytes);
    /// Nobody can connect any more, and who is connected is thrown out.
    void close();
    /// Listens again, as it did before.
    void open();

    std::function<void(const QByteArray &bytes)> received;
    std::function<void()> changed; ///< somebody has connected or gone

private:
    void accept();
    void read();
    void disconnect();

    QByteArray name;
    int tcpNumber = 0;
    int listening = -1;
    int connected = -1;
    std::unique_ptr<QSocketNotifier> doorbell;
    std::unique_ptr<QSocketNotifier> incoming;
};

} // namespace atmodem
