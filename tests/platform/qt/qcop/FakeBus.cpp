#include "qt/qcop/FakeBus.h"

#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr int crowd = 8; // more than a door that keeps nobody waiting holds, in a file or on a port

} // namespace

FakeBus::FakeBus(Manner manner, Door door)
    : socket(listeningSocket(door, folder.filePath(QStringLiteral("bus")), manner == Full ? 0 : 128))
    , listening(socket >= 0)
{
    if (manner == TurnsAway)
        doorman = std::thread([this] { turnAway(); });
    while (manner == Full && waiting.size() < crowd)
        waiting.push_back(callingSocket(socket));
}

FakeBus::~FakeBus()
{
    for (const int caller : waiting)
        close(caller);
    if (!listening)
        return;
    shutdown(socket, SHUT_RDWR); // ends the doorman's accept()
    if (doorman.joinable())
        doorman.join();
    close(socket);
}

void FakeBus::turnAway()
{
    for (int caller = accept(socket, nullptr, nullptr); caller >= 0; caller = accept(socket, nullptr, nullptr)) {
        ++turnedAway;
        close(caller);
    }
}
