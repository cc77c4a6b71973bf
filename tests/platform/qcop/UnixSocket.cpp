#include "UnixSocket.h"

#include <QtCore/QFile>

#include <algorithm>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr int backlog = 128;
constexpr QLatin1String prefix("unix:path=");

int socketAt(const QString &address, int (*attach)(int, const sockaddr *, socklen_t))
{
    const QByteArray path = QFile::encodeName(address.mid(prefix.size()));
    sockaddr_un place{};
    place.sun_family = AF_UNIX;
    if (path.size() >= static_cast<qsizetype>(sizeof(place.sun_path)))
        return -1;
    std::copy(path.begin(), path.end(), place.sun_path);
    const int descriptor = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (descriptor >= 0 && attach(descriptor, reinterpret_cast<const sockaddr *>(&place), sizeof(place)) == 0)
        return descriptor;
    close(descriptor);
    return -1;
}

} // namespace

QString busAddress(const QString &path)
{
    return prefix + path;
}

int listeningSocket(const QString &address)
{
    const int descriptor = socketAt(address, bind);
    if (descriptor >= 0 && listen(descriptor, backlog) == 0)
        return descriptor;
    close(descriptor);
    return -1;
}

int connectedSocket(const QString &address)
{
    return socketAt(address, connect);
}
