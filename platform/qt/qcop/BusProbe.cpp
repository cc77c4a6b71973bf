#include "BusProbe.h"

#include <QtCore/QByteArray>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QMutex>
#include <QtCore/QtEndian>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <memory>
#include <optional>
#include <thread>

#include <netdb.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr std::chrono::milliseconds slice{50}; // how long being given up may go unnoticed
constexpr qint64 nonceSize = 16;               // what a nonce-tcp bus wants to be told first, says D-Bus

enum class Connection {
    Made,
    Refused,
    Waiting ///< behind others who wait to be accepted: to be tried again
};

/// When to stop asking.
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

/// A place that takes connections, and what it is told before all else.
struct Place {
    sockaddr_storage address{};
    socklen_t size = 0;
    QByteArray nonce;
};

class Socket
{
public:
    explicit Socket(int family)
        : descriptor(::socket(family, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0))
    {}
    ~Socket()
    {
        if (descriptor >= 0)
            ::close(descriptor);
    }
    Q_DISABLE_COPY_MOVE(Socket)

    Connection connectTo(const Place &place, const Patience &patience) const
    {
        Connection connection = tryToConnect(place, patience);
        while (connection == Connection::Waiting && !patience.isOver()) {
            std::this_thread::sleep_for(slice);
            connection = tryToConnect(place, patience);
        }
        return connection;
    }

    bool say(const QByteArray &words) const
    {
        return ::send(descriptor, words.constData(), static_cast<std::size_t>(words.size()), MSG_NOSIGNAL) ==
               words.size();
    }

    // The first of what is there, once something is; empty when nothing comes, or the end.
    QByteArray hear(const Patience &patience) const
    {
        QByteArray heard(64, Qt::Uninitialized);
        const ssize_t size = isReady(POLLIN, patience)
                                 ? ::recv(descriptor, heard.data(), static_cast<std::size_t>(heard.size()), 0)
                                 : 0;
        return heard.left(std::max<ssize_t>(size, 0));
    }

private:
    Connection tryToConnect(const Place &place, const Patience &patience) const
    {
        if (::connect(descriptor, reinterpret_cast<const sockaddr *>(&place.address), place.size) == 0)
            return Connection::Made;
        if (errno == EAGAIN)
            return Connection::Waiting;
        // One on its way that does not arrive in time waits as well, and D-Bus would wait for it.
        if (errno != EINPROGRESS)
            return Connection::Refused;
        return isReady(POLLOUT, patience) ? outcome() : Connection::Waiting;
    }

    Connection outcome() const
    {
        int error = 0;
        socklen_t size = sizeof error;
        const bool isMade = ::getsockopt(descriptor, SOL_SOCKET, SO_ERROR, &error, &size) == 0 && error == 0;
        return isMade ? Connection::Made : Connection::Refused;
    }

    bool isReady(short what, const Patience &patience) const
    {
        pollfd asked{descriptor, what, 0};
        while (!patience.isOver()) {
            if (::poll(&asked, 1, static_cast<int>(slice.count())) > 0)
                return true;
        }
        return false;
    }

    const int descriptor;
};

/// One of the addresses in a list: "unix:path=/run/user/1000/bus,guid=...".
class Address
{
public:
    explicit Address(const QByteArray &text)
        : transport(text.left(text.indexOf(':')))
    {
        for (const QByteArray &entry : text.mid(transport.size() + 1).split(',')) {
            const qsizetype sign = entry.indexOf('=');
            if (sign >= 0)
                values.insert(entry.left(sign), QByteArray::fromPercentEncoding(entry.mid(sign + 1)));
        }
    }

    bool isUnix() const { return transport == "unix"; }
    bool isTcp() const { return transport == "tcp" || transport == "nonce-tcp"; }
    bool wantsNonce() const { return transport == "nonce-tcp"; }
    // Whether D-Bus would run a program to get there, however long that takes.
    bool isProgram() const { return transport == "unixexec" || transport == "autolaunch"; }
    QByteArray value(const char *key) const { return values.value(key); }

private:
    const QByteArray transport;
    QHash<QByteArray, QByteArray> values;
};

std::optional<Place> unixPlace(const QByteArray &name, bool isAbstract)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const qsizetype prefix = isAbstract ? 1 : 0; // an abstract name follows a NUL
    if (name.isEmpty() || name.size() + prefix >= static_cast<qsizetype>(sizeof(address.sun_path)))
        return {};
    std::copy(name.begin(), name.end(), address.sun_path + prefix);
    Place place;
    std::memcpy(&place.address, &address, sizeof address);
    place.size =
        isAbstract
            ? static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + static_cast<std::size_t>(name.size()))
            : static_cast<socklen_t>(sizeof address);
    return place;
}

/// What a name server says, which may take longer than anybody waits. The thread that asks it keeps what it needs.
struct Lookup {
    QByteArray host;
    QByteArray port;
    int family = AF_UNSPEC;
    QMutex mutex;
    QList<Place> places; // guarded
    bool isDone = false; // guarded

    void run()
    {
        addrinfo wanted{};
        wanted.ai_family = family;
        wanted.ai_socktype = SOCK_STREAM;
        wanted.ai_flags = AI_ADDRCONFIG;
        addrinfo *found = nullptr;
        QList<Place> all;
        if (::getaddrinfo(host.constData(), port.constData(), &wanted, &found) == 0) {
            for (const addrinfo *one = found; one; one = one->ai_next) {
                Place place;
                std::memcpy(&place.address, one->ai_addr, one->ai_addrlen);
                place.size = one->ai_addrlen;
                all.append(place);
            }
            ::freeaddrinfo(found);
        }
        const QMutexLocker locker(&mutex);
        places = all;
        isDone = true;
    }
};

int familyOf(const QByteArray &name)
{
    if (name == "ipv4")
        return AF_INET;
    return name == "ipv6" ? AF_INET6 : AF_UNSPEC;
}

// Nothing when the answer does not come in time.
std::optional<QList<Place>> tcpPlaces(const Address &address, const Patience &patience)
{
    const auto lookup = std::make_shared<Lookup>();
    lookup->host = address.value("host").isEmpty() ? QByteArray("localhost") : address.value("host");
    lookup->port = address.value("port");
    lookup->family = familyOf(address.value("family"));
    std::thread([lookup] { lookup->run(); }).detach();
    while (!patience.isOver()) {
        if (const QMutexLocker locker(&lookup->mutex); lookup->isDone)
            return lookup->places;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return {};
}

// Nothing for what is no file: D-Bus would read it to an end that may never come.
std::optional<QByteArray> nonceIn(const QByteArray &fileName)
{
    const QString name = QFile::decodeName(fileName);
    QFile file(name);
    if (!QFileInfo(name).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    return file.read(nonceSize);
}

// How every client of a bus begins.
QByteArray greeting()
{
    return QByteArray(1, '\0') + "AUTH EXTERNAL " + QByteArray::number(::geteuid()).toHex() + "\r\n";
}

QByteArray number(quint32 value)
{
    QByteArray bytes(4, '\0');
    qToLittleEndian(value, bytes.data());
    return bytes;
}

// A field of a message's header: its kind, its type, its text; each begins at a multiple of 8.
QByteArray field(char kind, char type, const QByteArray &text)
{
    QByteArray bytes =
        QByteArray(1, kind) + '\1' + type + '\0' + number(static_cast<quint32>(text.size())) + text + '\0';
    return bytes.leftJustified((bytes.size() + 7) / 8 * 8, '\0');
}

// The call by which a client that has been let in gets its name, as the D-Bus protocol lays messages out.
QByteArray hello()
{
    const QByteArray bus("org.freedesktop.DBus");
    const QByteArray fields = field(1, 'o', "/org/freedesktop/DBus") + field(2, 's', bus) + field(6, 's', bus);
    const QByteArray member = field(3, 's', "Hello");
    const qsizetype size = fields.size() + 8 + 5 + 1; // without what fills up behind the last
    return QByteArray("l\1\0\1", 4) + number(0) + number(1) + number(static_cast<quint32>(size)) + fields + member;
}

// The one of the user's session is where D-Bus looks when it is told nothing.
QByteArray sessionBusAddresses()
{
    const QByteArray told = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    const QByteArray directory = qgetenv("XDG_RUNTIME_DIR");
    return !told.isEmpty() || directory.isEmpty() ? told
                                                  : "unix:path=" + directory.toPercentEncoding("/") + "/bus";
}

// A bus that lets one in with nothing but the user's number then gives one a name. One that wants another proof has
// answered with that.
bool isAnswered(const Socket &socket, const Place &place, const Patience &patience)
{
    if (!socket.say(place.nonce + greeting()))
        return false;
    const QByteArray answer = socket.hear(patience);
    if (!answer.startsWith("OK "))
        return !answer.isEmpty();
    return socket.say("BEGIN\r\n" + hello()) && !socket.hear(patience).isEmpty();
}

enum class Answer {
    Given,
    None,
    Nobody ///< takes a connection: D-Bus goes on to the next address
};

Answer ask(const Place &place, const Patience &patience)
{
    const Socket socket(place.address.ss_family);
    const Connection connection = socket.connectTo(place, patience);
    if (connection == Connection::Refused)
        return Answer::Nobody;
    // D-Bus, too, stays with the first that takes a connection.
    return connection == Connection::Made && isAnswered(socket, place, patience) ? Answer::Given : Answer::None;
}

Answer askUnix(const Address &address, const Patience &patience)
{
    const bool isAbstract = address.value("path").isEmpty();
    const std::optional<Place> place = unixPlace(address.value(isAbstract ? "abstract" : "path"), isAbstract);
    return place ? ask(*place, patience) : Answer::Nobody;
}

Answer askTcp(const Address &address, const Patience &patience)
{
    const std::optional<QByteArray> nonce =
        address.wantsNonce() ? nonceIn(address.value("noncefile")) : QByteArray();
    const std::optional<QList<Place>> places = tcpPlaces(address, patience);
    if (!nonce || !places)
        return Answer::None;
    for (Place place : *places) {
        place.nonce = *nonce;
        if (const Answer answer = ask(place, patience); answer != Answer::Nobody)
            return answer;
    }
    return Answer::Nobody;
}

Answer ask(const Address &address, const Patience &patience)
{
    if (address.isUnix())
        return askUnix(address, patience);
    if (address.isTcp())
        return askTcp(address, patience);
    return address.isProgram() ? Answer::None : Answer::Nobody;
}

} // namespace

bool busAnswers(std::chrono::milliseconds limit, const std::function<bool()> &isGivenUp)
{
    const Patience patience(limit, isGivenUp);
    for (const QByteArray &address : sessionBusAddresses().split(';')) {
        if (const Answer answer = ask(Address(address), patience); answer != Answer::Nobody)
            return answer == Answer::Given;
    }
    // Told nothing, D-Bus now runs a program that looks on the display, and starts a bus.
    return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") || qEnvironmentVariableIsEmpty("DISPLAY");
}
