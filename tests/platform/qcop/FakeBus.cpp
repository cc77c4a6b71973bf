#include "FakeBus.h"

#include "UnixSocket.h"

#include <sys/socket.h>
#include <unistd.h>

FakeBus::FakeBus(Manner manner)
    : socket(listeningSocket(address()))
    , listening(socket >= 0)
{
    if (manner == TurnsAway)
        doorman = std::thread([this] { turnAway(); });
}

FakeBus::~FakeBus()
{
    if (!listening)
        return;
    shutdown(socket, SHUT_RDWR); // ends the doorman's accept()
    if (doorman.joinable())
        doorman.join();
    close(socket);
}

QString FakeBus::address() const
{
    return busAddress(folder.filePath(QStringLiteral("bus")));
}

void FakeBus::turnAway()
{
    for (int caller = accept(socket, nullptr, nullptr); caller >= 0; caller = accept(socket, nullptr, nullptr)) {
        ++turnedAway;
        close(caller);
    }
}
