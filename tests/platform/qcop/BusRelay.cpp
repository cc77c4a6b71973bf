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
    , bus(busToReach)
    , door(listeningSocket(address()))
    , porter([this] { run(); })
{}

BusRelay::~BusRelay()
{
    ended = true;
    shutdown(door, SHUT_RDWR); // ends the porter's accept()
    porter.join();
    close(door);
}

QString BusRelay::address() const
{
    return busAddress(folder.filePath(QStringLiteral("bus")));
}

void BusRelay::run()
{
    for (int program = accept(door, nullptr, nullptr); program >= 0; program = accept(door, nullptr, nullptr)) {
        const int atTheBus = connectedSocket(bus);
        serve(program, atTheBus);
        close(atTheBus);
        close(program);
    }
}

void BusRelay::serve(int program, int atTheBus)
{
    bool isOpen = atTheBus >= 0;
    while (isOpen && !ended) {
        std::array<pollfd, 2> ends{{{atTheBus, POLLIN, 0}, {holding && !released ? -1 : program, POLLIN, 0}}};
        poll(ends.data(), ends.size(), pollMs);
        if (hasInput(ends[0]))
            isOpen = passOn(atTheBus, program, false);
        if (hasInput(ends[1]))
            isOpen = isOpen && passOn(program, atTheBus, true);
    }
}

// The first time, the word stays in the socket with what it came with.
bool BusRelay::passOn(int from, int to, bool isProgram)
{
    std::array<char, 65536> piece{};
    const ssize_t peeked = recv(from, piece.data(), piece.size(), MSG_PEEK);
    if (peeked <= 0)
        return false;
    if (isProgram && !released && QByteArray::fromRawData(piece.data(), peeked).contains(heldWord)) {
        holding = true;
        return true;
    }
    const ssize_t length = recv(from, piece.data(), static_cast<size_t>(peeked), 0);
    return length > 0 && send(to, piece.data(), static_cast<size_t>(length), MSG_NOSIGNAL) == length;
}
