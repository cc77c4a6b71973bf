#include "qt/qcop/BusRelay.h"

#include <array>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr int pollMs = 5;
constexpr int restMs = 150;

bool hasInput(const pollfd &end)
{
    return (end.revents & (POLLIN | POLLHUP)) != 0;
}

} // namespace

BusRelay::BusRelay(const QString &busToReach, const QByteArray &word, Door kind)
    : heldWord(word)
    , bus(busToReach)
    , door(listeningSocket(kind, folder.filePath(QStringLiteral("bus"))))
    , porter([this] { run(); })
{}

BusRelay::~BusRelay()
{
    ended = true;
    shutdown(door, SHUT_RDWR); // ends the porter's accept()
    porter.join();
    close(door);
}

void BusRelay::run()
{
    for (int program = accept(door, nullptr, nullptr); program >= 0; program = accept(door, nullptr, nullptr)) {
        ++served;
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
        const bool isDeaf = holding && !released;
        std::array<pollfd, 2> ends{
            {{atTheBus, POLLIN, 0}, {program, static_cast<short>(isDeaf ? POLLRDHUP : POLLIN), 0}}};
        poll(ends.data(), ends.size(), pollMs);
        if (hasInput(ends[0]))
            isOpen = passOn(atTheBus, program, false);
        if (isDeaf && ends[1].revents != 0)
            isOpen = false; // it went
        else if (hasInput(ends[1]))
            isOpen = isOpen && passOn(program, atTheBus, true);
        if (tired)
            poll(nullptr, 0, restMs);
    }
}

// The word stays in the socket.
bool BusRelay::passOn(int from, int to, bool isProgram)
{
    std::array<char, 65536> piece{};
    const ssize_t peeked = recv(from, piece.data(), piece.size(), MSG_PEEK);
    if (peeked <= 0)
        return false;
    ssize_t length = peeked;
    if (isProgram && !released) {
        const qsizetype found = QByteArray::fromRawData(piece.data(), peeked).indexOf(heldWord);
        holding = holding || found >= 0;
        length = found >= 0 ? found : peeked;
    }
    length = length > 0 ? recv(from, piece.data(), static_cast<size_t>(length), 0) : 0;
    return length == 0 || send(to, piece.data(), static_cast<size_t>(length), MSG_NOSIGNAL) == length;
}
