// A bus that falls silent, wherever in its conversation with a process it has got to.
#include "qt/qcop/BusRelay.h"
#include "qt/qcop/Command.h"
#include "qt/qcop/FakeBus.h"
#include "qt/qcop/Peer.h"
#include "qt/qcop/PrivateBus.h"
#include "qt/qcop/QCopTest.h"
#include "support/TestGroup.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryFile>
#include <QtTest/QTest>

#include <memory>
#include <vector>

namespace {

constexpr qint64 large = 4000000; // more than a socket holds

/// Where the bus falls silent: a word of the process's that it does not take any more; or it never says a thing.
struct Stage {
    const char *name;
    Door door;
    const char *word;
};

constexpr char full[] = "";           // takes no connection
constexpr const char *mute = nullptr; // takes the connection only

constexpr Stage stages[] = {
    {"a full socket", Door::File, full},
    {"a full port", Door::Network, full},
    {"a mute socket", Door::File, mute},
    {"a mute port", Door::Network, mute},
    {"a socket, while it makes sure who this is", Door::File, "AUTH"},
    {"a socket, while it is asked for descriptors", Door::File, "NEGOTIATE_UNIX_FD"},
    {"a socket, when it has let the process in", Door::File, "BEGIN"},
    {"a port, when it has let the process in", Door::Network, "BEGIN"},
    {"a socket, when it is asked for a name", Door::File, "Hello"},
    {"a port, when it is asked for a name", Door::Network, "Hello"},
};

constexpr Stage subscribing[] = {
    {"a socket, when it is asked for messages", Door::File, "AddMatch"},
    {"a port, when it is asked for messages", Door::Network, "AddMatch"},
};

/// A bus that falls silent at a stage.
class SilentBus
{
public:
    SilentBus(const QString &bus, const Stage &stage)
    {
        if (stage.word == mute)
            fake = std::make_unique<FakeBus>(FakeBus::Silent, stage.door);
        else if (*stage.word == '\0')
            fake = std::make_unique<FakeBus>(FakeBus::Full, stage.door);
        else
            relay = std::make_unique<BusRelay>(bus, stage.word, stage.door);
    }

    QString address() const { return fake ? fake->address() : relay->address(); }
    bool isSilent() const { return fake || relay->isHolding(); }

private:
    std::unique_ptr<FakeBus> fake;
    std::unique_ptr<BusRelay> relay;
};

/// kavqcop at a bus that falls silent.
struct Case {
    QByteArray name;
    std::unique_ptr<SilentBus> bus;
    std::unique_ptr<Command> command;
};

void addStages()
{
    QTest::addColumn<Stage>("stage");
    for (const Stage &stage : stages)
        QTest::newRow(stage.name) << stage;
}

} // namespace

Q_DECLARE_METATYPE(Stage)

class TestSilentBus : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(bus.isRunning()); }
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void itHoldsUpNoSubscriberAndNoEnd_data();
    void itHoldsUpNoSubscriberAndNoEnd();
    void itHoldsUpNoSenderAndNoEnd_data();
    void itHoldsUpNoSenderAndNoEnd();
    void aSubscriptionThatIsNeverAcknowledgedHoldsUpNothing();
    void kavqcopGivesItUp();
    void whatItDoesNotTakeHoldsUpNoEnd();
    void aListenersEndIsNotHeldUp();
    void kavqcopGivesUpWhatItDoesNotTake();
    void oneThatLogsNobodyInIsTriedAgain();
    void oneThatWasHaltedIsUsedWhenItGoesOn();

private:
    PrivateBus bus;
};

void TestSilentBus::itHoldsUpNoSubscriberAndNoEnd_data()
{
    addStages();
}

void TestSilentBus::itHoldsUpNoSubscriberAndNoEnd()
{
    QFETCH(Stage, stage);
    const SilentBus silent(bus.address(), stage);
    Peer peer(silent.address());
    peer.make(1, phone);
    QTRY_VERIFY_WITH_TIMEOUT(silent.isSilent(), limitMs);
    QVERIFY(!peer.isOnBus());
    QVERIFY(!peer.send(phone, "at home"));
    QCOMPARE(peer.take(), Peer::line(1, "at home"));
    QCOMPARE(peer.finish(), 0);
    QCOMPARE(peer.errors(), QByteArray());
}

void TestSilentBus::itHoldsUpNoSenderAndNoEnd_data()
{
    addStages();
}

void TestSilentBus::itHoldsUpNoSenderAndNoEnd()
{
    QFETCH(Stage, stage);
    const SilentBus silent(bus.address(), stage);
    Peer peer(silent.address());
    QVERIFY(!peer.send(phone, "nobody there"));
    QTRY_VERIFY_WITH_TIMEOUT(silent.isSilent(), limitMs);
    QVERIFY(!peer.send(phone, "nor now"));
    QCOMPARE(peer.finish(), 0);
}

// All at once: each waits at its end for the bus to take what it has sent.
void TestSilentBus::aSubscriptionThatIsNeverAcknowledgedHoldsUpNothing()
{
    const SilentBus file(bus.address(), subscribing[0]);
    const SilentBus port(bus.address(), subscribing[1]);
    Peer atTheFile(file.address());
    Peer atThePort(port.address());
    for (Peer *peer : {&atTheFile, &atThePort}) {
        peer->make(1, phone);
        QTRY_VERIFY_WITH_TIMEOUT((peer == &atTheFile ? file : port).isSilent(), limitMs);
        QVERIFY(!peer->isOnBus());
        QTRY_VERIFY_WITH_TIMEOUT(peer->send(phone, "at home"), limitMs); // once it is let in, it may send
        QCOMPARE(peer->take(), Peer::line(1, "at home"));
        peer->endsWithin(0);
    }
    QCOMPARE(atTheFile.finish(), 0);
    QCOMPARE(atThePort.finish(), 0);
}

// All at once: each takes as long as kavqcop waits for a bus.
void TestSilentBus::kavqcopGivesItUp()
{
    std::vector<Case> cases;
    const auto add = [&](const Stage &stage, const Command::Arguments &arguments) {
        Case one{stage.name, std::make_unique<SilentBus>(bus.address(), stage), nullptr};
        one.name += ", " + arguments.first();
        one.command = std::make_unique<Command>(one.bus->address(), arguments);
        cases.push_back(std::move(one));
    };
    for (const Stage &stage : stages) {
        add(stage, {"send", phone, "m"});
        add(stage, {"listen", phone});
    }
    for (const Stage &stage : subscribing)
        add(stage, {"listen", phone});
    for (const Case &one : cases) {
        QVERIFY2(one.command->finish() == exitFailure, one.name.constData());
        QVERIFY2(one.bus->isSilent(), one.name.constData());
        QVERIFY2(one.command->errors().startsWith("kavqcop: there is no session bus"), one.name.constData());
    }
}

// All at once, as above.
void TestSilentBus::whatItDoesNotTakeHoldsUpNoEnd()
{
    std::vector<std::unique_ptr<BusRelay>> relays;
    std::vector<std::unique_ptr<Peer>> peers;
    for (const Door door : {Door::File, Door::Network}) {
        for (const bool isSubscribed : {false, true}) {
            const BusRelay &relay =
                *relays.emplace_back(std::make_unique<BusRelay>(bus.address(), "last words", door));
            Peer &peer = *peers.emplace_back(std::make_unique<Peer>(relay.address()));
            QVERIFY(isSubscribed ? peer.subscribe(1, phone) : peer.connectToBus());
            QVERIFY(peer.sendPattern(phone, "last words", large));
            QTRY_VERIFY_WITH_TIMEOUT(relay.isHolding(), limitMs);
            QVERIFY(peer.send(phone, "and more"));
            peer.endsWithin(0);
        }
    }
    for (const auto &peer : peers) {
        QCOMPARE(peer->finish(), 0);
        QCOMPARE(peer->errors(), QByteArray());
    }
}

void TestSilentBus::aListenersEndIsNotHeldUp()
{
    PrivateBus own;
    Peer peer(own.address());
    QVERIFY(peer.subscribe(1, phone));
    own.halt();
    QCOMPARE(peer.finish(), 0);
    own.goOn();
}

void TestSilentBus::kavqcopGivesUpWhatItDoesNotTake()
{
    QTemporaryFile file;
    QVERIFY(file.open() && file.write(QByteArray(large, 'd')) == large && file.flush());
    const Command::Arguments arguments{"send", phone, "last words", "--data-file", file.fileName().toUtf8()};
    const BusRelay socket(bus.address(), "last words");
    const BusRelay port(bus.address(), "last words", Door::Network);
    Command atTheSocket(socket.address(), arguments);
    Command atThePort(port.address(), arguments);
    for (Command *command : {&atTheSocket, &atThePort}) {
        QCOMPARE(command->finish(), exitFailure);
        QCOMPARE(command->errors(), QByteArray("kavqcop: the session bus did not take the message\n"));
    }
}

void TestSilentBus::oneThatLogsNobodyInIsTriedAgain()
{
    BusRelay relay(bus.address(), "Hello");
    Peer peer(relay.address());
    peer.make(1, phone);
    QTRY_VERIFY_WITH_TIMEOUT(relay.isHolding(), limitMs);
    const int before = relay.callers();
    QTRY_VERIFY_WITH_TIMEOUT(relay.callers() > before, limitMs);
    relay.release();
    QTRY_VERIFY_WITH_TIMEOUT(peer.isOnBus(), limitMs);
}

void TestSilentBus::oneThatWasHaltedIsUsedWhenItGoesOn()
{
    PrivateBus own;
    own.halt();
    Peer peer(own.address());
    peer.make(1, phone);
    QVERIFY(!peer.send(phone, "at home"));
    QVERIFY(!peer.isOnBus());
    own.goOn();
    QTRY_VERIFY_WITH_TIMEOUT(peer.isOnBus(), limitMs);
    QVERIFY(peer.send(phone, "to all"));
}

KAV_TEST_GROUP(TestSilentBus, QCoreApplication);
#include "tst_silent_bus.moc"
