#include "BusProbe.h"

#include <QtCore/QByteArray>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QList>

#include <algorithm>
#include <cerrno>
#include <optional>
#include <thread>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr std::chrono::milliseconds slice{50}; // how long being given up may go unnoticed

enum class Connection {
    Made,
    Refused,
    Waiting ///< behind others who wait to be accepted: to be tried again
};

struct Place {
    sockaddr_un address{};
    socklen_t size = 0;
};

class Socket
{
public:
    Socket()
        : descriptor(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0))
    {}
    ~Socket()
    {
        if (descriptor >= 0)
            ::close(descriptor);
    }
    Q_DISABLE_COPY_MOVE(Socket)

    Connection connectTo(const Place &place) const
    {
        if (::connect(descriptor, reinterpret_cast<const sockaddr *>(&place.address), place.size) == 0)
            return Connection::Made;
        return errno == EAGAIN ? Connection::Waiting : Connection::Refused;
    }

    bool say(const QByteArray &words) const
    {
        return ::send(descriptor, words.constData(), static_cast<std::size_t>(words.size()), MSG_NOSIGNAL) ==
               words.size();
    }

    bool hasInput() const
    {
        pollfd input{descriptor, POLLIN, 0};
        return ::poll(&input, 1, static_cast<int>(slice.count())) > 0;
    }

    bool isAnswered() const
    {
        char first = 0;
        return ::recv(descriptor, &first, 1, 0) == 1;
    }

private:
    const int descriptor;
};

std::optional<Place> placeOf(const QByteArray &name, bool isAbstract)
{
    Place place;
    place.address.sun_family = AF_UNIX;
    const qsizetype prefix = isAbstract ? 1 : 0; // an abstract name follows a NUL
    if (name.isEmpty() || name.size() + prefix >= static_cast<qsizetype>(sizeof(place.address.sun_path)))
        return {};
    std::copy(name.begin(), name.end(), place.address.sun_path + prefix);
    place.size =
        isAbstract
            ? static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + static_cast<std::size_t>(name.size()))
            : static_cast<socklen_t>(sizeof(place.address));
    return place;
}

// "unix:path=/run/user/1000/bus,guid=..."
std::optional<Place> placeIn(const QByteArray &address)
{
    const QByteArray transport = "unix:";
    if (!address.startsWith(transport))
        return {};
    for (const QByteArray &entry : address.mid(transport.size()).split(',')) {
        const qsizetype sign = entry.indexOf('=');
        const QByteArray key = entry.left(sign);
        if (key == "path" || key == "abstract")
            return placeOf(QByteArray::fromPercentEncoding(entry.mid(sign + 1)), key == "abstract");
    }
    return {};
}

// How every client of a bus begins.
QByteArray greeting()
{
    return QByteArray(1, '\0') + "AUTH EXTERNAL " + QByteArray::number(::geteuid()).toHex() + "\r\n";
}

// The one of the user's session is where D-Bus looks when it is told nothing.
QByteArray sessionBusAddresses()
{
    const QByteArray told = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    const QByteArray directory = qgetenv("XDG_RUNTIME_DIR");
    return !told.isEmpty() || directory.isEmpty() ? told
                                                  : "unix:path=" + directory.toPercentEncoding("/") + "/bus";
}

class Patience
{
public:
    Patience(std::chrono::milliseconds limit, const std::function<bool()> &givenUp)
        : deadline(limit)
        , isGivenUp(givenUp)
    {}

    bool isOver() const { return deadline.hasExpired() || isGivenUp(); }

private:
    const QDeadlineTimer deadline;
    const std::function<bool()> &isGivenUp;
};

Connection connectTo(const Place &place, const Socket &socket, const Patience &patience)
{
    Connection connection = socket.connectTo(place);
    while (connection == Connection::Waiting && !patience.isOver()) {
        std::this_thread::sleep_for(slice);
        connection = socket.connectTo(place);
    }
    return connection;
}

bool isAnswered(const Socket &socket, const Patience &patience)
{
    while (!patience.isOver()) {
        if (socket.hasInput())
            return socket.isAnswered();
    }
    return false;
}

} // namespace

bool busAnswers(std::chrono::milliseconds limit, const std::function<bool()> &isGivenUp)
{
    const Patience patience(limit, isGivenUp);
    for (const QByteArray &address : sessionBusAddresses().split(';')) {
        const std::optional<Place> place = placeIn(address);
        if (!place)
            continue;
        const Socket socket;
        const Connection connection = connectTo(*place, socket, patience);
        if (connection == Connection::Refused)
            continue;
        // D-Bus, too, stays with the first that takes a connection.
        return connection == Connection::Made && socket.say(greeting()) && isAnswered(socket, patience);
    }
    return true;
}
