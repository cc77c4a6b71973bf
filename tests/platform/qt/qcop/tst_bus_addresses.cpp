// Where the session bus is looked for.
#include "qt/qcop/BusRelay.h"
#include "qt/qcop/Command.h"
#include "qt/qcop/FakeBus.h"
#include "qt/qcop/Peer.h"
#include "qt/qcop/PrivateBus.h"
#include "qt/qcop/QCopTest.h"
#include "support/TestGroup.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <cstring>
#include <memory>
#include <vector>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr char abstractName[] = "kav-bus-address-test";

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

} // namespace

class TestBusAddresses : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(bus.isRunning()); }
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void aBusIsFoundHoweverItsAddressIsWritten_data();
    void aBusIsFoundHoweverItsAddressIsWritten();
    void aBusOnANetworkAddressIsUsed();
    void whereNoBusCanBeThereIsNone_data();
    void whereNoBusCanBeThereIsNone();
    void theFirstThatTakesAConnectionCounts();
    void aProgramIsNotRunToGetToABus();
    void theBusOfTheUsersSessionIsFoundWhereNoAddressIsTold();

private:
    PrivateBus bus;
};

void TestBusAddresses::aBusIsFoundHoweverItsAddressIsWritten_data()
{
    QTest::addColumn<QString>("written");
    const QString place = bus.address().mid(5); // after "unix:"
    QTest::newRow("plain") << bus.address();
    QTest::newRow("with a key before") << "unix:runtime=no," + place;
    QTest::newRow("escaped") << "unix:" + QString(place).replace("/", "%2f");
    QTest::newRow("after one that is no socket") << "tcp:host=127.0.0.1,port=1;" + bus.address();
    QTest::newRow("after one where nobody is") << "unix:path=/nowhere/bus;" + bus.address();
    QTest::newRow("after none") << ";" + bus.address();
}

void TestBusAddresses::aBusIsFoundHoweverItsAddressIsWritten()
{
    QFETCH(QString, written);
    const FakeBus silent(FakeBus::Silent);
    Peer peer(written + ";" + silent.address());
    QVERIFY(peer.subscribe(1, phone));
    Peer other(bus.address());
    QVERIFY(other.connectToBus());
    QVERIFY(other.send(phone, "found"));
    QCOMPARE(peer.take(), Peer::line(1, "found"));
}

void TestBusAddresses::aBusOnANetworkAddressIsUsed()
{
    const BusRelay relay(bus.address(), "a word that nobody says", Door::Network);
    for (const QString &address :
         {relay.address(), relay.address() + ",family=ipv4", relay.address().replace("127.0.0.1", "localhost")}) {
        Peer peer(address);
        QVERIFY2(peer.subscribe(1, phone), qPrintable(address));
        Command command(bus.address(), {"send", phone, "over the network"});
        QCOMPARE(command.finish(), 0);
        QCOMPARE(peer.take(), Peer::line(1, "over the network"));
        QCOMPARE(peer.finish(), 0);
    }
}

void TestBusAddresses::whereNoBusCanBeThereIsNone_data()
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
    QTest::newRow("a secret that is not there") << "nonce-tcp:host=127.0.0.1,port=1,noncefile=/nowhere";
    QTest::newRow("a program that looks on the display") << "autolaunch:;" + bus.address();
}

void TestBusAddresses::whereNoBusCanBeThereIsNone()
{
    QFETCH(QString, address);
    qunsetenv("XDG_RUNTIME_DIR");
    qputenv("DISPLAY", ":59999");
    Command command(address, {"send", phone, "m"});
    QCOMPARE(command.finish(), exitFailure);
    QCOMPARE(command.errors(),
             QByteArray("kavqcop: there is no session bus (is DBUS_SESSION_BUS_ADDRESS set?)\n"));
    Peer peer(address);
    peer.make(1, phone);
    QVERIFY(!peer.send(phone, "at home"));
    QCOMPARE(peer.take(), Peer::line(1, "at home"));
    QCOMPARE(peer.finish(), 0);
    qunsetenv("DISPLAY");
}

// All at once: each takes as long as kavqcop waits for a bus.
void TestBusAddresses::theFirstThatTakesAConnectionCounts()
{
    const QTemporaryDir folder;
    QCOMPARE(::mkfifo(folder.filePath("secret").toUtf8().constData(), 0600), 0);
    const FakeBus silent(FakeBus::Silent);
    const FakeBus port(FakeBus::Silent, Door::Network);
    const AbstractSocket abstract;
    QVERIFY(abstract.isListening());
    const QString network = port.address().mid(4);
    const QStringList addresses{silent.address(),
                                silent.address().replace("/", "%2F"),
                                "unix:path=/nowhere/bus;" + silent.address(),
                                QStringLiteral("unix:abstract=") + abstractName,
                                port.address(),
                                port.address().replace("127.0.0.1", "localhost"),
                                "tcp:" + network.mid(network.indexOf("port=")),
                                "nonce-tcp:" + network + ",noncefile=" + QFile::encodeName("/dev/zero"),
                                "nonce-tcp:" + network + ",noncefile=" + folder.filePath("secret")};
    std::vector<std::unique_ptr<Command>> commands;
    for (const QString &address : addresses)
        commands.push_back(
            std::make_unique<Command>(address + ";" + bus.address(), Command::Arguments{"send", phone, "m"}));
    for (qsizetype i = 0; i < addresses.size(); ++i)
        QVERIFY2(commands[static_cast<std::size_t>(i)]->finish() == exitFailure, qPrintable(addresses[i]));
}

void TestBusAddresses::aProgramIsNotRunToGetToABus()
{
    const QTemporaryDir folder;
    const QString trace = folder.filePath("trace");
    Command command("unixexec:path=/usr/bin/touch,argv1=" + trace + ";" + bus.address(), {"send", phone, "m"});
    QCOMPARE(command.finish(), exitFailure);
    QVERIFY(!QFile::exists(trace));
}

void TestBusAddresses::theBusOfTheUsersSessionIsFoundWhereNoAddressIsTold()
{
    const QTemporaryDir parent;
    const QString runtime = parent.filePath("a~b c;d%e");
    QVERIFY(QDir().mkpath(runtime));
    QVERIFY(QFile::link(bus.address().mid(10), runtime + "/bus"));
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime));
    Peer peer("");
    QVERIFY(peer.subscribe(1, phone));
    Command command(bus.address(), {"send", phone, "found"});
    QCOMPARE(command.finish(), 0);
    QCOMPARE(peer.take(), Peer::line(1, "found"));
    Command elsewhere("unix:path=/nowhere/bus", {"send", phone, "m"});
    QCOMPARE(elsewhere.finish(), exitFailure); // another address is told
    qunsetenv("XDG_RUNTIME_DIR");
}

KAV_TEST_GROUP(TestBusAddresses, QCoreApplication);
#include "tst_bus_addresses.moc"
