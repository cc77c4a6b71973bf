// Messages between processes on one session bus.
#include "qt/qcop/Peer.h"
#include "qt/qcop/PrivateBus.h"
#include "qt/qcop/QCopTest.h"
#include "support/TestGroup.h"

#include <QtCore/QRegularExpression>
#include <QtTest/QTest>

namespace {

constexpr int burst = 1000;
using Lines = QList<QByteArray>;

QByteArray everyByte()
{
    QByteArray all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    return all;
}

Lines burstLines(int id, const QByteArray &prefix, int count)
{
    Lines lines;
    for (int number = 0; number < count; ++number)
        lines << Peer::line(id, prefix + QByteArray::number(number));
    return lines;
}

/// The lines of one sender, as they came.
Lines startingWith(const Lines &lines, int id, const QByteArray &prefix)
{
    const QByteArray start = "got " + QByteArray::number(id) + ' ' + prefix.toHex();
    Lines found;
    for (const QByteArray &line : lines) {
        if (line.startsWith(start))
            found << line;
    }
    return found;
}

} // namespace

class TestProcesses : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(bus.isRunning()); }
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void aMessageReachesTheOtherProcessBothWays();
    void anyBytesReachTheOtherProcessWhole_data();
    void anyBytesReachTheOtherProcessWhole();
    void megabytesReachTheOtherProcessWhole();
    void everySubscriberOfThreeProcessesGetsAMessageOnce();
    void otherChannelsStaySilent();
    void everySendersMessagesStayInOrder();
    void aSubscriptionOnceAcknowledgedMissesNothing();
    void aDeletedSubscriberGetsNothingMore();
    void aSenderThatSubscribesLaterGetsWhatOthersSend();
    void aReceiverThatWasBusyGetsEverythingAndWhatFollows();
    void messagesSentRightBeforeTheEndOfAProcessStillArrive();

private:
    PrivateBus bus;
};

void TestProcesses::aMessageReachesTheOtherProcessBothWays()
{
    Peer one(bus.address());
    Peer two(bus.address());
    QVERIFY(one.subscribe(1, phone));
    QVERIFY(two.subscribe(2, phone));
    QVERIFY(one.send(phone, "there", "data"));
    QCOMPARE(two.take(), Peer::line(2, "there", "data"));
    QVERIFY(two.send(phone, "and back"));
    QCOMPARE(one.takeUntil(1, "and back"), Lines({Peer::line(1, "there", "data")}));
    QCOMPARE(one.finish(), 0);
    QCOMPARE(two.finish(), 0);
    QCOMPARE(one.errors() + two.errors(), QByteArray());
}

void TestProcesses::anyBytesReachTheOtherProcessWhole_data()
{
    QTest::addColumn<QByteArray>("channel");
    QTest::addColumn<QByteArray>("message");
    QTest::addColumn<QByteArray>("data");
    const QByteArray all = everyByte();
    QTest::newRow("every byte value everywhere") << all << all << all;
    QTest::newRow("nothing but an empty name") << QByteArray() << QByteArray() << QByteArray();
    QTest::newRow("NULs") << QByteArray("a\0b", 3) << QByteArray("\0", 1) << QByteArray(5, '\0');
    QTest::newRow("bytes that are no UTF-8")
        << QByteArray("\xff\xfe") << QByteArray("\xc3\x28") << QByteArray("\x80");
    QTest::newRow("names longer than a page") << all.repeated(20) << all.repeated(30) << QByteArray("d");
}

void TestProcesses::anyBytesReachTheOtherProcessWhole()
{
    QFETCH(QByteArray, channel);
    QFETCH(QByteArray, message);
    QFETCH(QByteArray, data);
    Peer sender(bus.address());
    Peer receiver(bus.address());
    QVERIFY(sender.connectToBus());
    QVERIFY(receiver.subscribe(1, channel));
    QVERIFY(sender.send(channel, message, data));
    QCOMPARE(receiver.take(), Peer::line(1, message, data));
}

void TestProcesses::megabytesReachTheOtherProcessWhole()
{
    Peer sender(bus.address());
    Peer receiver(bus.address());
    QVERIFY(sender.connectToBus());
    QVERIFY(receiver.subscribe(1, phone));
    for (const qint64 size : {1000000, 10000000, 1 << 26}) { // the last is more than libdbus by itself lets wait
        QVERIFY(sender.sendPattern(phone, "large", size));
        QVERIFY(sender.send(phone, "behind it"));
        QCOMPARE(receiver.take(), Peer::patternLine(1, "large", size));
        QCOMPARE(receiver.take(), Peer::line(1, "behind it"));
    }
}

void TestProcesses::everySubscriberOfThreeProcessesGetsAMessageOnce()
{
    Peer sender(bus.address());
    Peer two(bus.address());
    Peer three(bus.address());
    QVERIFY(sender.subscribe(11, phone) && sender.subscribe(12, phone));
    QVERIFY(two.subscribe(21, phone));
    QVERIFY(three.subscribe(31, phone) && three.subscribe(32, phone));
    QVERIFY(sender.send(phone, "all"));
    QCOMPARE(two.take(), Peer::line(21, "all"));
    // Behind anything that the bus might have given back to the sender, or twice to another.
    QVERIFY(two.send(phone, "end"));
    QCOMPARE(sender.takeUntil(12, "end"),
             Lines({Peer::line(11, "all"), Peer::line(12, "all"), Peer::line(11, "end")}));
    QCOMPARE(three.takeUntil(32, "end"),
             Lines({Peer::line(31, "all"), Peer::line(32, "all"), Peer::line(31, "end")}));
    QCOMPARE(two.takeUntil(21, "end"), Lines());
}

void TestProcesses::otherChannelsStaySilent()
{
    Peer sender(bus.address());
    Peer receiver(bus.address());
    QVERIFY(sender.connectToBus());
    QVERIFY(receiver.subscribe(1, phone));
    QVERIFY(sender.send("/KAV/phone/RecentCall", "not for you"));
    QVERIFY(sender.send("/KAV", "nor this"));
    QVERIFY(sender.send(QByteArray("/KAV/phone\0", 11), "nor this"));
    QVERIFY(sender.send(phone, "for you"));
    QCOMPARE(receiver.take(), Peer::line(1, "for you"));
}

void TestProcesses::everySendersMessagesStayInOrder()
{
    Peer one(bus.address());
    Peer two(bus.address());
    QVERIFY(one.subscribe(1, phone) && two.subscribe(2, phone));
    one.startBurst(phone, "one ", burst);
    two.startBurst(phone, "two ", burst);
    QVERIFY(one.finishBurst() && two.finishBurst());
    QVERIFY(one.send(phone, "done one"));
    QVERIFY(two.send(phone, "done two"));
    const Lines atTwo = two.takeUntil(2, "done one");
    const Lines atOne = one.takeUntil(1, "done two");
    QCOMPARE(startingWith(atTwo, 2, "one "), burstLines(2, "one ", burst));
    QCOMPARE(startingWith(atTwo, 2, "two "), burstLines(2, "two ", burst));
    QCOMPARE(startingWith(atOne, 1, "one "), burstLines(1, "one ", burst));
    QCOMPARE(startingWith(atOne, 1, "two "), burstLines(1, "two ", burst));
}

void TestProcesses::aSubscriptionOnceAcknowledgedMissesNothing()
{
    Peer sender(bus.address());
    QVERIFY(sender.connectToBus());
    for (int round = 0; round < 20; ++round) {
        Peer receiver(bus.address());
        QVERIFY(receiver.subscribe(1, phone));
        QVERIFY(sender.send(phone, "at once"));
        QCOMPARE(receiver.take(), Peer::line(1, "at once"));
    }
}

void TestProcesses::aDeletedSubscriberGetsNothingMore()
{
    Peer sender(bus.address());
    Peer receiver(bus.address());
    QVERIFY(sender.connectToBus());
    QVERIFY(receiver.subscribe(1, phone) && receiver.subscribe(2, phone));
    receiver.unsubscribe(1);
    QVERIFY(sender.send(phone, "after"));
    QCOMPARE(receiver.takeUntil(2, "after"), Lines());
    receiver.unsubscribe(2);
    QVERIFY(receiver.subscribe(3, "/KAV/other"));
    QVERIFY(sender.send(phone, "for nobody"));
    QVERIFY(sender.send("/KAV/other", "last"));
    QCOMPARE(receiver.takeUntil(3, "last"), Lines());
}

void TestProcesses::aSenderThatSubscribesLaterGetsWhatOthersSend()
{
    Peer one(bus.address());
    Peer two(bus.address());
    QVERIFY(one.connectToBus() && two.connectToBus());
    QVERIFY(one.send(phone, "nobody listens"));
    QVERIFY(one.subscribe(1, phone));
    QVERIFY(two.send(phone, "now one does"));
    QCOMPARE(one.take(), Peer::line(1, "now one does"));
}

void TestProcesses::aReceiverThatWasBusyGetsEverythingAndWhatFollows()
{
    constexpr int count = 15;
    constexpr qint64 size = 10000000; // together more than libdbus by itself lets wait
    Peer sender(bus.address());
    Peer receiver(bus.address());
    QVERIFY(sender.connectToBus());
    QVERIFY(receiver.subscribe(1, phone));
    receiver.hold();
    for (int number = 0; number < count; ++number)
        QVERIFY(sender.sendPattern(phone, QByteArray::number(number), size));
    QCOMPARE(sender.finish(), 0); // the bus has them
    receiver.goOn();
    for (int number = 0; number < count; ++number)
        QCOMPARE(receiver.take(), Peer::patternLine(1, QByteArray::number(number), size));
    Peer next(bus.address());
    QVERIFY(next.connectToBus());
    QVERIFY(next.send(phone, "still there?"));
    QCOMPARE(receiver.take(), Peer::line(1, "still there?"));
    QCOMPARE(receiver.errors(), QByteArray());
}

void TestProcesses::messagesSentRightBeforeTheEndOfAProcessStillArrive()
{
    Peer receiver(bus.address());
    QVERIFY(receiver.subscribe(1, phone));
    Peer sender(bus.address());
    QVERIFY(sender.connectToBus());
    sender.startBurst(phone, "", burst);
    QCOMPARE(sender.finish(), 0);
    Lines lines;
    for (int number = 0; number < burst; ++number)
        lines << receiver.take();
    QCOMPARE(lines, burstLines(1, "", burst));
}

KAV_TEST_GROUP(TestProcesses, QCoreApplication);
#include "tst_processes.moc"
