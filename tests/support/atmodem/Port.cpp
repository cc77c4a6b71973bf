#include "support/atmodem/Port.h"

#include <QtCore/QObject>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>

#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace atmodem {

namespace {

int tcpSocket(int &number)
{
    const int listening = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const int yes = 1;
    ::setsockopt(listening, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<in_port_t>(number));
    socklen_t size = sizeof address;
    auto *const general = reinterpret_cast<sockaddr *>(&address);
    if (::bind(listening, general, size) != 0 || ::getsockname(listening, general, &size) != 0) {
        ::close(listening);
        return -1;
    }
    number = ntohs(address.sin_port);
    return listening;
}

// The kernel knows a name by its exact length.
int abstractSocket(const QByteArray &name)
{
    const int listening = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const auto length = std::min<std::size_t>(static_cast<std::size_t>(name.size()), sizeof address.sun_path - 1);
    std::memcpy(address.sun_path + 1, name.constData(), length);
    const auto size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + length);
    if (::bind(listening, reinterpret_cast<sockaddr *>(&address), size) != 0) {
        ::close(listening);
        return -1;
    }
    return listening;
}

} // namespace

Port::Port(const QByteArray &abstractName)
    : name(abstractName)
{
    open();
}

Port::~Port()
{
    changed = nullptr;
    close();
}

void Port::open()
{
    if (listening >= 0)
        return;
    listening = name.isEmpty() ? tcpSocket(tcpNumber) : abstractSocket(name);
    if (listening < 0)
        return;
    ::listen(listening, 8);
    doorbell = std::make_unique<QSocketNotifier>(listening, QSocketNotifier::Read);
    QObject::connect(doorbell.get(), &QSocketNotifier::activated, [this] { accept(); });
}

void Port::close()
{
    doorbell.reset();
    if (listening >= 0)
        ::close(listening);
    listening = -1;
    disconnect();
}

// A new one takes the place of the old one: a daemon that was killed and comes again.
void Port::accept()
{
    const int fresh = ::accept4(listening, nullptr, nullptr, SOCK_CLOEXEC);
    if (fresh < 0)
        return;
    disconnect();
    connected = fresh;
    incoming = std::make_unique<QSocketNotifier>(connected, QSocketNotifier::Read);
    QObject::connect(incoming.get(), &QSocketNotifier::activated, [this] { read(); });
    if (changed)
        changed();
}

void Port::read()
{
    std::array<char, 4096> buffer;
    const ssize_t count = ::recv(connected, buffer.data(), buffer.size(), MSG_DONTWAIT);
    if (count < 0 && (errno == EAGAIN || errno == EINTR))
        return;
    if (count <= 0) {
        disconnect();
        return;
    }
    if (received)
        received(QByteArray(buffer.data(), count));
}

void Port::disconnect()
{
    if (connected < 0)
        return;
    // The notifier may be the one that calls.
    incoming->setEnabled(false);
    incoming.release()->deleteLater();
    ::close(connected);
    connected = -1;
    if (changed)
        changed();
}

void Port::write(const QByteArray &bytes)
{
    if (connected >= 0) [[maybe_unused]]
        const ssize_t ignored =
            ::send(connected, bytes.constData(), static_cast<std::size_t>(bytes.size()), MSG_NOSIGNAL);
}

} // namespace atmodem
