// A session bus that is not there, that does not answer, that dies and comes back.
#include "qt/qcop/BusRelay.h"
#include "qt/qcop/FakeBus.h"
#include "qt/qcop/Peer.h"
#include "qt/qcop/PrivateBus.h"
#include "qt/qcop/QCopTest.h"
#include "support/TestGroup.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QRegularExpression>
#include <QtTest/QTest>

namespace {

using Lines = QList<QByteArray>;

Lines numberLines(int id, qsizetype count)
{
    Lines lines;
    for (qsizetype number = 0; number < count; ++number)
        lines << Peer::line(id, QByteArray::number(number));
    return lines;
}

} // namespace

class TestBusComesAndGoes : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void nothingIsAskedOfTheBusBeforeTheFirstChannel();
    void nothingIsAskedOfTheBusBeforeTheFirstMessage();
    void manyChannelsAskForAMissingBusOnceASecondAtMost();
    void aBusThatDoesNotAnswerHoldsUpTheFirstChannelOnly();
    void aBusThatDoesNotAnswerHoldsUpNoProcessThatEnds();
    void aSubscriptionCountsWhenTheBusHasAcknowledgedIt();
    void whoOnlySendsIsSubscribedToNothing();
    void aSenderThatSubscribesLaterGetsNothingOfItsOwnBack();
    void aProcessDoesNotEndBeforeItsMessagesAreAtTheBus();
    void aBusThatTakesLongForTheLastMessagesGetsThemAll();
    void aBusThatComesLaterIsFoundByAWaitingSubscriber();
    void aBusKilledAmidABurstLosesNothingWithinTheProcess();
    void aBusThatIsGoneIsToldByTheNextMessage();
    void aBusThatComesBackIsUsedAgain();
    void aProcessEndsWellAfterItsBus();
};

void TestBusComesAndGoes::nothingIsAskedOfTheBusBeforeTheFirstChannel()
{
    const FakeBus bus(FakeBus::TurnsAway);
    QVERIFY(bus.isListening());
    Peer peer(bus.address());
    QVERIFY(!peer.isOnBus()); // it runs
    QCOMPARE(bus.callers(), 0);
    peer.make(1, phone);
    QTRY_VERIFY_WITH_TIMEOUT(bus.callers() > 0, limitMs);
    QCOMPARE(peer.finish(), 0);
}

void TestBusComesAndGoes::nothingIsAskedOfTheBusBeforeTheFirstMessage()
{
    const FakeBus bus(FakeBus::TurnsAway);
    Peer peer(bus.address());
    QVERIFY(!peer.isOnBus());
    QCOMPARE(bus.callers(), 0);
    QVERIFY(!peer.send(phone, "message"));
    QTRY_VERIFY_WITH_TIMEOUT(bus.callers() > 0, limitMs);
    QCOMPARE(peer.finish(), 0);
}

// The time is taken around everything, so that a busy machine only makes it longer. A timer may be a twentieth early.
void TestBusComesAndGoes::manyChannelsAskForAMissingBusOnceASecondAtMost()
{
    QElapsedTimer timer;
    timer.start();
    const FakeBus bus(FakeBus::TurnsAway);
    Peer peer(bus.address());
    QVERIFY(peer.cycle(10000) >= 0);
    QTRY_VERIFY_WITH_TIMEOUT(bus.callers() > 0, limitMs);
    const int calls = bus.callers();
    const qint64 milliseconds = timer.elapsed();
    QVERIFY2(calls <= 1 + milliseconds / 950,
             qPrintable(QStringLiteral("%1 calls in %2 ms").arg(calls).arg(milliseconds)));
    QCOMPARE(peer.finish(), 0);
}

void TestBusComesAndGoes::aBusThatDoesNotAnswerHoldsUpTheFirstChannelOnly()
{
    const FakeBus bus(FakeBus::Silent);
    QVERIFY(bus.isListening());
    Peer peer(bus.address());
    constexpr int channels = 1000;
    const int waits = peer.cycle(channels); // the first waits for more than one thing
    QVERIFY2(waits >= 0 && waits < channels / 10, qPrintable(QStringLiteral("%1 waits").arg(waits)));
    peer.make(1, phone);
    QVERIFY(!peer.send(phone, "at home"));
    QCOMPARE(peer.take(), Peer::line(1, "at home"));
    QCOMPARE(peer.finish(), 0);
}

void TestBusComesAndGoes::aBusThatDoesNotAnswerHoldsUpNoProcessThatEnds()
{
    const FakeBus bus(FakeBus::Silent); // stays silent until the process has ended
    QVERIFY(bus.isListening());
    Peer peer(bus.address());
    peer.make(1, phone);
    QVERIFY(!peer.send(phone, "at home"));
    QCOMPARE(peer.take(), Peer::line(1, "at home"));
    QCOMPARE(peer.finish(), 0);
}

void TestBusComesAndGoes::aSubscriptionCountsWhenTheBusHasAcknowledgedIt()
{
    const PrivateBus bus;
    BusRelay relay(bus.address(), "AddMatch");
    Peer receiver(relay.address());
    receiver.make(1, phone); // returns although the bus does not answer
    QTRY_VERIFY_WITH_TIMEOUT(relay.isHolding(), limitMs);
    QVERIFY(!receiver.isOnBus());
    relay.release();
    QTRY_VERIFY_WITH_TIMEOUT(receiver.isOnBus(), limitMs);
    Peer sender(bus.address());
    QVERIFY(sender.connectToBus());
    QVERIFY(sender.send(phone, "heard"));
    QCOMPARE(receiver.take(), Peer::line(1, "heard"));
}

void TestBusComesAndGoes::whoOnlySendsIsSubscribedToNothing()
{
    constexpr char rule[] = "interface='org.kav.QCop'"; // as a subscription says it, and a message does not
    const PrivateBus bus;
    Peer receiver(bus.address());
    QVERIFY(receiver.subscribe(1, phone));
    const BusRelay senders(bus.address(), rule);
    Peer sender(senders.address());
    QVERIFY(sender.connectToBus());
    QVERIFY(sender.send(phone, "heard"));
    QCOMPARE(receiver.take(), Peer::line(1, "heard"));
    QCOMPARE(sender.finish(), 0);
    QVERIFY(!senders.isHolding());
    BusRelay receivers(bus.address(), rule);
    Peer another(receivers.address());
    another.make(1, phone);
    QTRY_VERIFY_WITH_TIMEOUT(receivers.isHolding(), limitMs);
    receivers.release();
}

void TestBusComesAndGoes::aSenderThatSubscribesLaterGetsNothingOfItsOwnBack()
{
    PrivateBus bus;
    Peer one(bus.address());
    Peer two(bus.address());
    QVERIFY(two.subscribe(2, phone));
    for (int round = 0; round < 2; ++round) {
        QVERIFY(one.connectToBus());
        QVERIFY(one.send(phone, "before"));
        QVERIFY(one.subscribe(1, phone));
        QVERIFY(one.send(phone, "after"));
        QCOMPARE(two.takeUntil(2, "after"), Lines({Peer::line(2, "before")}));
        QVERIFY(two.send(phone, "end"));
        QCOMPARE(one.takeUntil(1, "end"), Lines({Peer::line(1, "after")}));
        QCOMPARE(two.takeUntil(2, "end"), Lines());
        one.unsubscribe(1);
        bus.kill();
        QTRY_VERIFY_WITH_TIMEOUT(!one.isOnBus() && !two.isOnBus(), limitMs);
        QVERIFY(bus.start());
        QTRY_VERIFY_WITH_TIMEOUT(one.isOnBus() && two.isOnBus(), limitMs);
    }
    QCOMPARE(one.errors() + two.errors(), QByteArray());
}

void TestBusComesAndGoes::aProcessDoesNotEndBeforeItsMessagesAreAtTheBus()
{
    constexpr qint64 size = 4000000; // more than a socket holds
    PrivateBus bus;
    Peer sender(bus.address());
    Peer receiver(bus.address());
    QVERIFY(receiver.subscribe(1, phone));
    QVERIFY(sender.connectToBus());
    bus.halt();
    QVERIFY(sender.sendPattern(phone, "large", size));
    QVERIFY(!sender.endsWithin(500));
    bus.goOn();
    QCOMPARE(sender.finish(), 0);
    QCOMPARE(receiver.take(), Peer::patternLine(1, "large", size));
}

// Longer than a bus is waited for that takes nothing.
void TestBusComesAndGoes::aBusThatTakesLongForTheLastMessagesGetsThemAll()
{
    constexpr qint64 size = 4000000;
    const PrivateBus bus;
    BusRelay relay(bus.address(), "a word that nobody says");
    Peer receiver(bus.address());
    QVERIFY(receiver.subscribe(1, phone));
    Peer sender(relay.address());
    QVERIFY(sender.connectToBus());
    relay.tire();
    QVERIFY(sender.sendPattern(phone, "large", size));
    QVERIFY(sender.send(phone, "the last"));
    QCOMPARE(sender.finish(), 0);
    QCOMPARE(receiver.take(), Peer::patternLine(1, "large", size));
    QCOMPARE(receiver.take(), Peer::line(1, "the last"));
}

void TestBusComesAndGoes::aBusThatComesLaterIsFoundByAWaitingSubscriber()
{
    PrivateBus bus(false);
    Peer peer(bus.address());
    QVERIFY(!peer.subscribe(1, phone));
    QVERIFY(bus.start());
    QTRY_VERIFY_WITH_TIMEOUT(peer.isOnBus(), limitMs);
    Peer other(bus.address());
    QVERIFY(other.connectToBus());
    QVERIFY(other.send(phone, "found"));
    QCOMPARE(peer.take(), Peer::line(1, "found"));
}

void TestBusComesAndGoes::aBusKilledAmidABurstLosesNothingWithinTheProcess()
{
    constexpr int burst = 20000;
    PrivateBus bus;
    Peer one(bus.address());
    Peer two(bus.address());
    QVERIFY(one.subscribe(1, phone) && two.subscribe(2, phone));
    one.startBurst(phone, "", burst);
    QCOMPARE(two.take(), Peer::line(2, "0"));
    bus.kill();
    one.finishBurst();
    QTRY_VERIFY_WITH_TIMEOUT(!one.isOnBus() && !two.isOnBus(), limitMs);
    QVERIFY(!one.send(phone, "end"));
    QVERIFY(!two.send(phone, "end"));
    QCOMPARE(one.takeUntil(1, "end"), numberLines(1, burst));
    const Lines atTwo = Lines({Peer::line(2, "0")}) + two.takeUntil(2, "end");
    QCOMPARE(atTwo, numberLines(2, atTwo.size())); // the bus took some with it, the last ones
    QCOMPARE(one.finish(), 0);
    QCOMPARE(two.finish(), 0);
}

void TestBusComesAndGoes::aBusThatIsGoneIsToldByTheNextMessage()
{
    PrivateBus bus;
    Peer peer(bus.address());
    QVERIFY(peer.subscribe(1, phone));
    QVERIFY(peer.send(phone, "with"));
    bus.kill();
    QTRY_VERIFY_WITH_TIMEOUT(!peer.isOnBus(), limitMs);
    QVERIFY(!peer.send(phone, "without"));
    QCOMPARE(peer.take(), Peer::line(1, "with"));
    QCOMPARE(peer.take(), Peer::line(1, "without"));
}

void TestBusComesAndGoes::aBusThatComesBackIsUsedAgain()
{
    PrivateBus bus;
    Peer one(bus.address());
    Peer two(bus.address());
    QVERIFY(one.subscribe(1, phone) && two.subscribe(2, phone));
    for (int round = 0; round < 2; ++round) {
        bus.kill();
        QTRY_VERIFY_WITH_TIMEOUT(!one.isOnBus() && !two.isOnBus(), limitMs);
        QVERIFY(bus.start());
        QTRY_VERIFY_WITH_TIMEOUT(one.isOnBus() && two.isOnBus(), limitMs);
        QVERIFY(one.send(phone, "there"));
        QCOMPARE(two.take(), Peer::line(2, "there"));
        QVERIFY(two.send(phone, "and back"));
        QCOMPARE(two.take(), Peer::line(2, "and back"));
        QCOMPARE(one.takeUntil(1, "and back"), Lines({Peer::line(1, "there")}));
    }
    QCOMPARE(one.errors() + two.errors(), QByteArray());
}

void TestBusComesAndGoes::aProcessEndsWellAfterItsBus()
{
    PrivateBus bus;
    Peer peer(bus.address());
    QVERIFY(peer.subscribe(1, phone));
    QVERIFY(peer.send(phone, "message"));
    bus.kill();
    QCOMPARE(peer.finish(), 0);
    QCOMPARE(peer.errors(), QByteArray());
}

KAV_TEST_GROUP(TestBusComesAndGoes, QCoreApplication);
#include "tst_bus_comes_and_goes.moc"
