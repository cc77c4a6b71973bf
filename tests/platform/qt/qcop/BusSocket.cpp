#include "qt/qcop/BusSocket.h"

#include <QtCore/QFile>

#include <algorithm>
#include <cstring>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr QLatin1String prefix("unix:path=");

struct Place {
    sockaddr_storage address{};
    socklen_t size = sizeof address;

    const sockaddr *get() const { return reinterpret_cast<const sockaddr *>(&address); }
};

Place inFile(const QString &name)
{
    const QByteArray path = QFile::encodeName(name);
    sockaddr_un file{};
    file.sun_family = AF_UNIX;
    std::copy_n(path.begin(), std::min<qsizetype>(path.size(), sizeof file.sun_path - 1), file.sun_path);
    Place place;
    std::memcpy(&place.address, &file, sizeof file);
    place.size = sizeof file;
    return place;
}

Place onPort()
{
    sockaddr_in port{};
    port.sin_family = AF_INET;
    port.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    Place place;
    std::memcpy(&place.address, &port, sizeof port);
    place.size = sizeof port;
    return place;
}

Place placeOf(int descriptor)
{
    Place place;
    getsockname(descriptor, reinterpret_cast<sockaddr *>(&place.address), &place.size);
    return place;
}

int socketFor(const Place &place, int options = 0)
{
    return socket(place.address.ss_family, SOCK_STREAM | SOCK_CLOEXEC | options, 0);
}

} // namespace

QString busAddress(const QString &path)
{
    return prefix + path;
}

int listeningSocket(Door door, const QString &path, int backlog)
{
    const Place place = door == Door::File ? inFile(path) : onPort();
    const int descriptor = socketFor(place);
    if (bind(descriptor, place.get(), place.size) == 0 && listen(descriptor, backlog) == 0)
        return descriptor;
    close(descriptor);
    return -1;
}

QString addressOf(int listening)
{
    const Place place = placeOf(listening);
    if (place.address.ss_family == AF_UNIX)
        return busAddress(QFile::decodeName(reinterpret_cast<const sockaddr_un *>(&place.address)->sun_path));
    const in_port_t port = reinterpret_cast<const sockaddr_in *>(&place.address)->sin_port;
    return QStringLiteral("tcp:host=127.0.0.1,port=%1").arg(ntohs(port));
}

int callingSocket(int listening)
{
    const Place place = placeOf(listening);
    const int descriptor = socketFor(place, SOCK_NONBLOCK);
    static_cast<void>(connect(descriptor, place.get(), place.size));
    return descriptor;
}

int connectedSocket(const QString &address)
{
    const Place place = inFile(address.mid(prefix.size()));
    const int descriptor = socketFor(place);
    if (connect(descriptor, place.get(), place.size) == 0)
        return descriptor;
    close(descriptor);
    return -1;
}
