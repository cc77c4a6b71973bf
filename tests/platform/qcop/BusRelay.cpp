#include "BusRelay.h"

#include "UnixSocket.h"

#include <array>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr int pollMs = 5;

bool hasInput(const pollfd &end)
{
    return (end.revents & (POLLIN | POLLHUP)) != 0;
}

} // namespace

BusRelay::BusRelay(const QString &busToReach, const QByteArray &word)
    : heldWord(word)
    , door(listeningSocket(address()))
    , bus(connectedSocket(busToReach))
    , ready(door >= 0 && bus >= 0)
{
    if (ready)
        porter = std::thread([this] { run(); });
}

BusRelay::~BusRelay()
{
    ended = true;
    shutdown(door, SHUT_RDWR);
    if (porter.joinable())
        porter.join();
    close(door);
    close(bus);
}

QString BusRelay::address() const
{
    return busAddress(folder.filePath(QStringLiteral("bus")));
}

void BusRelay::run()
{
    const int program = accept(door, nullptr, nullptr);
    bool isOpen = program >= 0;
    while (isOpen && !ended) {
        std::array<pollfd, 2> ends{{{bus, POLLIN, 0}, {holding && !released ? -1 : program, POLLIN, 0}}};
        poll(ends.data(), ends.size(), pollMs);
        if (hasInput(ends[0]))
            isOpen = passOn(bus, program);
        if (hasInput(ends[1]))
            isOpen = isOpen && passOn(program, bus);
    }
    close(program);
}

// The first time, the word stays in the socket with what it came with.
bool BusRelay::passOn(int from, int to)
{
    std::array<char, 65536> piece{};
    const ssize_t peeked = recv(from, piece.data(), piece.size(), MSG_PEEK);
    if (peeked <= 0)
        return false;
    if (from != bus && !released && QByteArray::fromRawData(piece.data(), peeked).contains(heldWord)) {
        holding = true;
        return true;
    }
    const ssize_t length = recv(from, piece.data(), static_cast<size_t>(peeked), 0);
    return length > 0 && send(to, piece.data(), static_cast<size_t>(length), MSG_NOSIGNAL) == length;
}
