// Asking whether a bus answers, before D-Bus is left alone with it.
#include "BusProbe.h"
#include "FakeBus.h"
#include "PrivateBus.h"
#include "TestGroup.h"
#include "UnixSocket.h"

#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <cerrno>
#include <cstring>
#include <thread>
#include <vector>

#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {

constexpr std::chrono::milliseconds shortly = 100ms; // for those who never answer
constexpr std::chrono::milliseconds patiently = 60s; // for those who do
constexpr char abstractName[] = "kav-bus-probe-test";

bool never()
{
    return false;
}

bool answers(const QString &address, std::chrono::milliseconds limit)
{
    qputenv("DBUS_SESSION_BUS_ADDRESS", address.toUtf8());
    return busAnswers(limit, never);
}

// A silent socket with a name that is no file.
class AbstractSocket
{
public:
    AbstractSocket()
    {
        sockaddr_un place{};
        place.sun_family = AF_UNIX;
        std::memcpy(place.sun_path + 1, abstractName, std::strlen(abstractName));
        const auto size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + std::strlen(abstractName));
        listens = ::bind(descriptor, reinterpret_cast<const sockaddr *>(&place), size) == 0 &&
                  ::listen(descriptor, 1) == 0;
    }
    ~AbstractSocket() { ::close(descriptor); }
    Q_DISABLE_COPY_MOVE(AbstractSocket)

    bool isListening() const { return listens; }

private:
    const int descriptor = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    bool listens = false;
};

// A socket on a port of this machine, with callers that nobody lets in.
class NetworkSocket
{
public:
    explicit NetworkSocket(int backlog = 8)
    {
        place.sin_family = AF_INET;
        place.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof place;
        listens = ::bind(descriptor, reinterpret_cast<const sockaddr *>(&place), size) == 0 &&
                  ::listen(descriptor, backlog) == 0 &&
                  ::getsockname(descriptor, reinterpret_cast<sockaddr *>(&place), &size) == 0;
    }
    ~NetworkSocket()
    {
        for (const int caller : callers)
            ::close(caller);
        ::close(descriptor);
    }
    Q_DISABLE_COPY_MOVE(NetworkSocket)

    bool isListening() const { return listens; }
    QString port() const { return QString::number(ntohs(place.sin_port)); }
    // From then on a call is not even refused.
    void fill()
    {
        for (int i = 0; i < 4; ++i) {
            callers.push_back(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
            ::connect(callers.back(), reinterpret_cast<const sockaddr *>(&place), sizeof place);
        }
    }

private:
    sockaddr_in place{};
    const int descriptor = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    bool listens = false;
    std::vector<int> callers;
};

// Says one thing to its one caller, and nothing more until that one goes.
class BriefBus
{
public:
    explicit BriefBus(const char *words)
        : door(listeningSocket(address()))
        , porter([this, words] {
            const int caller = ::accept(door, nullptr, nullptr);
            char heard[256];
            if (::recv(caller, heard, sizeof heard, 0) > 0)
                ::send(caller, words, std::strlen(words), MSG_NOSIGNAL);
            while (::recv(caller, heard, sizeof heard, 0) > 0)
                ;
            ::close(caller);
        })
    {}
    ~BriefBus()
    {
        ::shutdown(door, SHUT_RDWR);
        porter.join();
        ::close(door);
    }
    Q_DISABLE_COPY_MOVE(BriefBus)

    QString address() const { return busAddress(folder.filePath(QStringLiteral("bus"))); }

private:
    QTemporaryDir folder;
    const int door;
    std::thread porter;
};

// A bus with more callers than it can keep waiting.
class CrowdedBus
{
public:
    CrowdedBus()
        : door(listeningSocket(address()))
    {
        ::listen(door, 0);
        while (call())
            ;
    }
    ~CrowdedBus()
    {
        for (const int caller : callers)
            ::close(caller);
        ::close(door);
    }
    Q_DISABLE_COPY_MOVE(CrowdedBus)

    QString address() const { return busAddress(folder.filePath(QStringLiteral("bus"))); }
    bool isCrowded() const { return error == EAGAIN; }
    // Lets the one in who has waited longest, and says a word.
    void letIn()
    {
        callers.push_back(::accept(door, nullptr, nullptr));
        ::send(callers.back(), "OK\r\n", 4, MSG_NOSIGNAL);
    }
    int waiting() const { return static_cast<int>(callers.size()); }

private:
    bool call()
    {
        const QByteArray path = folder.filePath(QStringLiteral("bus")).toUtf8();
        sockaddr_un place{};
        place.sun_family = AF_UNIX;
        std::memcpy(place.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
        callers.push_back(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
        if (::connect(callers.back(), reinterpret_cast<const sockaddr *>(&place), sizeof(place)) == 0)
            return true;
        error = errno;
        return false;
    }

    QTemporaryDir folder;
    const int door;
    std::vector<int> callers;
    int error = 0;
};

} // namespace

class TestBusProbe : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void aBusAnswersHoweverItsAddressIsWritten_data();
    void aBusAnswersHoweverItsAddressIsWritten();
    void aSilentOneIsGivenUp_data();
    void aSilentOneIsGivenUp();
    void aSilentNetworkAddressIsGivenUp_data();
    void aSilentNetworkAddressIsGivenUp();
    void aNetworkAddressThatTakesNoMoreCallersIsGivenUp();
    void aBusOnANetworkAddressAnswers();
    void aSecretThatIsNoFileIsNotRead();
    void aBusThatFallsSilentOnceOneIsInIsGivenUp();
    void aProgramIsNotRunToGetToABus_data();
    void aProgramIsNotRunToGetToABus();
    void whoTurnsCallersAwayIsNoBus();
    void whereNobodyCanBeAskedDBusFindsOut_data();
    void whereNobodyCanBeAskedDBusFindsOut();
    void theBusOfTheUsersSessionIsAskedWhereNoAddressIsTold();
    void theFirstThatTakesAConnectionCounts();
    void askingEndsWhenItIsGivenUp();
    void aCrowdedBusIsWaitedFor();
    void aCrowdedBusIsGivenUp();
};

void TestBusProbe::aBusAnswersHoweverItsAddressIsWritten_data()
{
    QTest::addColumn<QString>("written");
    QTest::newRow("plain") << "%1";
    QTest::newRow("with a key more") << "%1,guid=0123456789abcdef0123456789abcdef";
    QTest::newRow("with a key before") << "unix:guid=0123,%2";
    QTest::newRow("after one that is no socket") << "tcp:host=127.0.0.1,port=1;%1";
    QTest::newRow("after one where nobody is") << "unix:path=/nowhere/bus;%1";
    QTest::newRow("escaped") << "escaped";
}

void TestBusProbe::aBusAnswersHoweverItsAddressIsWritten()
{
    QFETCH(QString, written);
    const PrivateBus bus;
    QVERIFY(bus.isRunning());
    QString entry = bus.address().mid(5); // after "unix:"
    QString address = written == "escaped" ? "unix:" + entry.replace("/", "%2f")
                                           : written.replace("%1", bus.address()).replace("%2", entry);
    // A silent one behind it shows that it is this one that answers.
    const FakeBus silent(FakeBus::Silent);
    address += ";" + silent.address();
    QVERIFY2(answers(address, patiently), qPrintable(address));
}

void TestBusProbe::aSilentOneIsGivenUp_data()
{
    QTest::addColumn<QString>("before");
    QTest::newRow("alone") << "";
    QTest::newRow("after one where nobody is") << "unix:path=/nowhere/bus;";
    QTest::newRow("after one that is no socket") << "autolaunch:;";
}

void TestBusProbe::aSilentOneIsGivenUp()
{
    QFETCH(QString, before);
    const FakeBus silent(FakeBus::Silent);
    QVERIFY(silent.isListening());
    QVERIFY(!answers(before + silent.address(), shortly));
    QVERIFY(!answers(before + silent.address().replace("/", "%2F"), shortly));
    const AbstractSocket abstract;
    QVERIFY(abstract.isListening());
    QVERIFY(!answers(before + "unix:abstract=" + abstractName, shortly));
}

void TestBusProbe::aSilentNetworkAddressIsGivenUp_data()
{
    QTest::addColumn<QString>("written");
    QTest::newRow("by its number") << "tcp:host=127.0.0.1,port=%1";
    QTest::newRow("by its number, with its family") << "tcp:host=127.0.0.1,port=%1,family=ipv4";
    QTest::newRow("by its name") << "tcp:host=localhost,port=%1,family=ipv4";
    QTest::newRow("without a host") << "tcp:port=%1,family=ipv4";
    QTest::newRow("with a secret") << "nonce-tcp:host=127.0.0.1,port=%1,noncefile=%2";
    QTest::newRow("with a secret that is not there") << "nonce-tcp:host=127.0.0.1,port=%1,noncefile=/nowhere";
    QTest::newRow("after one where nobody is") << "unix:path=/nowhere/bus;tcp:host=127.0.0.1,port=%1";
}

void TestBusProbe::aSilentNetworkAddressIsGivenUp()
{
    QFETCH(QString, written);
    const QTemporaryDir folder;
    QFile secret(folder.filePath("secret"));
    QVERIFY(secret.open(QIODevice::WriteOnly) && secret.write("0123456789abcdef") == 16);
    secret.close();
    const NetworkSocket silent;
    QVERIFY(silent.isListening());
    QVERIFY(!answers(written.replace("%1", silent.port()).replace("%2", secret.fileName()), shortly));
}

void TestBusProbe::aNetworkAddressThatTakesNoMoreCallersIsGivenUp()
{
    NetworkSocket full(0);
    QVERIFY(full.isListening());
    full.fill();
    QVERIFY(!answers("tcp:host=127.0.0.1,port=" + full.port(), shortly));
}

// It wants another proof than the user's number, which over a network proves nothing.
void TestBusProbe::aBusOnANetworkAddressAnswers()
{
    QProcess bus;
    endWithParent(bus);
    bus.start("dbus-daemon", {"--session", "--nofork", "--print-address", "--address=tcp:host=127.0.0.1,port=0"});
    while (!bus.canReadLine())
        QVERIFY(bus.waitForReadyRead(30000));
    const QString address = QString::fromUtf8(bus.readLine()).trimmed();
    QVERIFY2(address.startsWith("tcp:"), qPrintable(address));
    const FakeBus silent(FakeBus::Silent);
    QVERIFY(answers(address + ";" + silent.address(), patiently));
    bus.kill();
    bus.waitForFinished();
}

void TestBusProbe::aSecretThatIsNoFileIsNotRead()
{
    const QTemporaryDir folder;
    QCOMPARE(::mkfifo(folder.filePath("secret").toUtf8().constData(), 0600), 0);
    const NetworkSocket silent;
    QVERIFY(!answers("nonce-tcp:host=127.0.0.1,port=" + silent.port() + ",noncefile=" + folder.filePath("secret"),
                     patiently));
}

void TestBusProbe::aBusThatFallsSilentOnceOneIsInIsGivenUp()
{
    const BriefBus letsIn("OK 0123456789abcdef0123456789abcdef\r\n");
    QVERIFY(!answers(letsIn.address(), shortly));
    const BriefBus wantsAnotherProof("REJECTED DBUS_COOKIE_SHA1\r\n");
    QVERIFY(answers(wantsAnotherProof.address(), patiently));
}

void TestBusProbe::aProgramIsNotRunToGetToABus_data()
{
    QTest::addColumn<QString>("address");
    QTest::newRow("one that the address names") << "unixexec:path=/bin/sleep,argv1=1000";
    QTest::newRow("one that looks on the display") << "autolaunch:";
    QTest::newRow("where no address is told") << "";
}

void TestBusProbe::aProgramIsNotRunToGetToABus()
{
    QFETCH(QString, address);
    qunsetenv("XDG_RUNTIME_DIR");
    qputenv("DISPLAY", ":59999");
    QVERIFY(!answers(address, patiently));
    qunsetenv("DISPLAY");
}

void TestBusProbe::whoTurnsCallersAwayIsNoBus()
{
    const FakeBus bus(FakeBus::TurnsAway);
    QVERIFY(!answers(bus.address(), patiently));
}

void TestBusProbe::whereNobodyCanBeAskedDBusFindsOut_data()
{
    QTest::addColumn<QString>("address");
    QTest::newRow("none") << "";
    QTest::newRow("nobody there") << "unix:path=/nowhere/bus";
    QTest::newRow("no socket") << "tcp:host=127.0.0.1,port=1";
    QTest::newRow("no place") << "unix:";
    QTest::newRow("an empty place") << "unix:path=";
    QTest::newRow("an empty abstract place") << "unix:abstract=";
    QTest::newRow("a place that is too long") << "unix:path=/" + QString(200, 'n');
    QTest::newRow("a key alone") << "unix:path";
    QTest::newRow("no address at all") << ";;=,";
}

void TestBusProbe::whereNobodyCanBeAskedDBusFindsOut()
{
    QFETCH(QString, address);
    qunsetenv("XDG_RUNTIME_DIR");
    qunsetenv("DISPLAY");
    QVERIFY(answers(address, shortly));
}

void TestBusProbe::theBusOfTheUsersSessionIsAskedWhereNoAddressIsTold()
{
    const QTemporaryDir runtime;
    qunsetenv("DISPLAY");
    qputenv("XDG_RUNTIME_DIR", runtime.path().toUtf8());
    QVERIFY(answers("", shortly)); // nobody there
    const int silent = listeningSocket(busAddress(runtime.filePath("bus")));
    QVERIFY(silent >= 0);
    QVERIFY(!answers("", shortly));
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    QVERIFY(!busAnswers(shortly, never));
    QVERIFY(answers("unix:path=/nowhere/bus", shortly)); // another address is told
    ::close(silent);
}

void TestBusProbe::theFirstThatTakesAConnectionCounts()
{
    const PrivateBus bus;
    const FakeBus silent(FakeBus::Silent);
    QVERIFY(answers(bus.address() + ";" + silent.address(), patiently));
    QVERIFY(!answers(silent.address() + ";" + bus.address(), shortly));
}

void TestBusProbe::askingEndsWhenItIsGivenUp()
{
    const FakeBus silent(FakeBus::Silent);
    qputenv("DBUS_SESSION_BUS_ADDRESS", silent.address().toUtf8());
    int asked = 0;
    QVERIFY(!busAnswers(24h, [&asked] { return ++asked > 2; }));
    QCOMPARE(asked, 3);
}

void TestBusProbe::aCrowdedBusIsWaitedFor()
{
    CrowdedBus bus;
    QVERIFY(bus.isCrowded());
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address().toUtf8());
    int toLetIn = bus.waiting(); // one of them never came in, but the asker does
    QVERIFY(busAnswers(patiently, [&] {
        if (toLetIn-- > 0)
            bus.letIn();
        return false;
    }));
}

void TestBusProbe::aCrowdedBusIsGivenUp()
{
    const CrowdedBus bus;
    QVERIFY(bus.isCrowded());
    QVERIFY(!answers(bus.address(), shortly));
}

KAV_TEST_GROUP(TestBusProbe, NoApplication);
#include "tst_bus_probe.moc"
