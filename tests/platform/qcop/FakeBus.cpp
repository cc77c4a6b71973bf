#include "FakeBus.h"

#include <QtCore/QFile>

#include <algorithm>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr int backlog = 128;

bool listenAt(int socket, const QByteArray &path)
{
    sockaddr_un place{};
    place.sun_family = AF_UNIX;
    if (path.size() >= static_cast<qsizetype>(sizeof(place.sun_path)))
        return false;
    std::copy(path.begin(), path.end(), place.sun_path);
    return bind(socket, reinterpret_cast<const sockaddr *>(&place), sizeof(place)) == 0 &&
           listen(socket, backlog) == 0;
}

} // namespace

FakeBus::FakeBus(Manner manner)
    : socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
    , listening(listenAt(socket, QFile::encodeName(path())))
{
    if (manner == TurnsAway)
        doorman = std::thread([this] { turnAway(); });
}

FakeBus::~FakeBus()
{
    close();
}

QString FakeBus::path() const
{
    return folder.filePath(QStringLiteral("bus"));
}

QString FakeBus::address() const
{
    return QStringLiteral("unix:path=") + path();
}

void FakeBus::turnAway()
{
    for (int caller = accept(socket, nullptr, nullptr); caller >= 0; caller = accept(socket, nullptr, nullptr)) {
        ++turnedAway;
        ::close(caller);
    }
}

void FakeBus::close()
{
    if (!listening)
        return;
    listening = false;
    shutdown(socket, SHUT_RDWR); // ends the doorman's accept()
    if (doorman.joinable())
        doorman.join();
    ::close(socket);
}
