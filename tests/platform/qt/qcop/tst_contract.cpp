// What a channel promises within one process, the same with a session bus and without one.
#include "qt/QCopChannel.h"
#include "qt/qcop/QCopBus.h"
#include "qt/qcop/QCopRig.h"
#include "support/TestGroup.h"

#include <QtCore/QEventLoop>
#include <QtCore/QRegularExpression>
#include <QtCore/QVariant>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <functional>
#include <malloc.h>
#if defined(__SANITIZE_ADDRESS__)
#define KAV_ADDRESS_SANITIZER
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define KAV_ADDRESS_SANITIZER
#endif
#endif
#ifdef KAV_ADDRESS_SANITIZER
extern "C" size_t __sanitizer_get_current_allocated_bytes(); // GCC 12 comes without the header that declares it
#endif

using namespace std::chrono_literals;

namespace {

constexpr char phone[] = "/KAV/phone";
constexpr std::chrono::milliseconds busPatience = 30s;
constexpr qint64 MiB = 1024 * 1024;

qint64 allocatedBytes()
{
#ifdef KAV_ADDRESS_SANITIZER
    return static_cast<qint64>(__sanitizer_get_current_allocated_bytes());
#else
    return static_cast<qint64>(mallinfo2().uordblks);
#endif
}

/// Everything sent is delivered, and what the bus gives back to its sender has come as well.
void settle()
{
    if (QCopBus::instance()->isReady())
        QVERIFY(QCopBus::instance()->sync(busPatience));
    QCoreApplication::processEvents();
}

QList<QByteArray> names(const QSignalSpy &spy)
{
    QList<QByteArray> result;
    for (const QList<QVariant> &call : spy)
        result << call[0].toByteArray();
    return result;
}

using Bytes = QList<QByteArray>;

} // namespace

class TestContract : public QObject
{
    Q_OBJECT

public slots:
    void slotUpdate(const QCString &message, const QByteArray &data);

private slots:
    void initTestCase();
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }
    void cleanup() { settle(); }

    void aMessageIsNeverDeliveredWithinSend();
    void everySubscriberGetsAMessageOnce();
    void sendTellsWhetherTheBusTookTheMessage();
    void anotherChannelGetsNothing_data();
    void anotherChannelGetsNothing();
    void anyBytesPassThroughWhole_data();
    void anyBytesPassThroughWhole();
    void nullArraysArriveAsEmptyOnes();
    void aMessageTooLargeForABusStaysWithinTheProcess_data();
    void aMessageTooLargeForABusStaysWithinTheProcess();
    void messagesArriveInTheOrderOfSending();
    void theOrderHoldsWhereASlotRunsAnEventLoop();
    void aMessageSentByASlotComesAfterThoseSentBefore();
    void aSubscriberDeletedAfterSendingGetsNothing();
    void aSubscriberDeletedByAnEarlierOnesSlotGetsNothing();
    void aSubscriberMayDeleteItselfInItsSlot();
    void aSubscribersParentMayBeDeletedInItsSlot();
    void aSubscriberMadeAfterSendingGetsLaterMessagesOnly();
    void aSubscriberMadeInASlotGetsLaterMessagesOnly();
    void slotsCanBeConnectedByTheirText_data();
    void slotsCanBeConnectedByTheirText();
    void aChannelKnowsItsNames();
    void anEventOfSomebodyElseIsNoMessage();
    void tenThousandChannelsLeaveNoMemoryBehind();
    void tenThousandMessagesLeaveNoMemoryBehind();

private:
    std::unique_ptr<QCopRig> rig;
    Bytes updates;
};

void TestContract::slotUpdate(const QCString &message, const QByteArray &data)
{
    updates << message << data;
}

void TestContract::initTestCase()
{
    rig = QCopRig::make();
    QCOMPARE(QCopBus::instance()->waitFor(busPatience), rig->isWithBus());
}

void TestContract::aMessageIsNeverDeliveredWithinSend()
{
    const QCopChannel channel(phone);
    const QSignalSpy spy(&channel, &QCopChannel::received);
    QCopChannel::send(phone, "now");
    QCOMPARE(spy.count(), 0);
    settle();
    QCOMPARE(names(spy), Bytes({"now"}));
}

void TestContract::everySubscriberGetsAMessageOnce()
{
    const QCopChannel first(phone);
    const QCopChannel second(phone);
    const QSignalSpy firstSpy(&first, &QCopChannel::received);
    const QSignalSpy secondSpy(&second, &QCopChannel::received);
    QCopChannel::send(phone, "once", "data");
    settle();
    QCOMPARE(names(firstSpy), Bytes({"once"}));
    QCOMPARE(names(secondSpy), Bytes({"once"}));
    QCOMPARE(secondSpy[0][1].toByteArray(), QByteArray("data"));
}

void TestContract::sendTellsWhetherTheBusTookTheMessage()
{
    QCOMPARE(QCopChannel::send(phone, "anybody there?"), rig->isWithBus());
}

void TestContract::anotherChannelGetsNothing_data()
{
    QTest::addColumn<QByteArray>("subscribed");
    QTest::addColumn<QByteArray>("sent");

    QTest::newRow("a name that begins the same")
        << QByteArray("/KAV/phone") << QByteArray("/KAV/phone/RecentCall");
    QTest::newRow("a name that ends earlier") << QByteArray("/KAV/phone/RecentCall") << QByteArray("/KAV/phone");
    QTest::newRow("a name in other letters") << QByteArray("/KAV/phone") << QByteArray("/kav/phone");
    QTest::newRow("a name that differs behind a NUL") << QByteArray("a\0b", 3) << QByteArray("a\0c", 3);
    QTest::newRow("a name with a NUL at the end") << QByteArray("a") << QByteArray("a\0", 2);
    QTest::newRow("a name in bytes that are no UTF-8") << QByteArray("\xff") << QByteArray("\xfe");
    QTest::newRow("the empty name") << QByteArray("a") << QByteArray("");
}

void TestContract::anotherChannelGetsNothing()
{
    QFETCH(QByteArray, subscribed);
    QFETCH(QByteArray, sent);
    const QCopChannel channel(subscribed);
    const QSignalSpy spy(&channel, &QCopChannel::received);
    QCopChannel::send(sent, "not for you");
    QCopChannel::send(subscribed, "for you");
    settle();
    QCOMPARE(names(spy), Bytes({"for you"}));
}

void TestContract::anyBytesPassThroughWhole_data()
{
    QByteArray all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("no bytes") << QByteArray("");
    QTest::newRow("every byte value") << all;
    QTest::newRow("NULs only") << QByteArray(3, '\0');
    QTest::newRow("bytes that are no UTF-8") << QByteArray("\xc3\x28\xed\xa0\x80\xff");
    QTest::newRow("a megabyte") << all.repeated(4096);
}

void TestContract::anyBytesPassThroughWhole()
{
    QFETCH(QByteArray, bytes);
    const QCopChannel channel(bytes);
    const QSignalSpy spy(&channel, &QCopChannel::received);
    QCOMPARE(QCopChannel::send(bytes, bytes, bytes), rig->isWithBus());
    settle();
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy[0][0].toByteArray(), bytes);
    QCOMPARE(spy[0][1].toByteArray(), bytes);
}

void TestContract::nullArraysArriveAsEmptyOnes()
{
    const QCopChannel channel{QCString()};
    const QSignalSpy spy(&channel, &QCopChannel::received);
    QCopChannel::send(QCString(), QCString(), QByteArray());
    QCopChannel::send("", "", "");
    settle();
    QCOMPARE(spy.count(), 2);
    for (const QList<QVariant> &call : spy) {
        QVERIFY(!call[0].toByteArray().isNull());
        QVERIFY(!call[1].toByteArray().isNull());
    }
    QCOMPARE(names(spy), Bytes({"", ""}));
}

void TestContract::aMessageTooLargeForABusStaysWithinTheProcess_data()
{
    QTest::addColumn<qint64>("nameSize");
    QTest::addColumn<qint64>("dataSize");
    QTest::newRow("a data block above 64 MiB") << qint64(1) << 64 * MiB + 1;
    QTest::newRow("a name above 64 MiB") << 64 * MiB + 1 << qint64(1);
    QTest::newRow("more than 127 MiB together") << 64 * MiB << 63 * MiB + 1;
}

void TestContract::aMessageTooLargeForABusStaysWithinTheProcess()
{
    QFETCH(qint64, nameSize);
    QFETCH(qint64, dataSize);
    const QByteArray name(nameSize, 'n');
    const QByteArray data(dataSize, 'd');
    const QCopChannel channel("");
    const QSignalSpy spy(&channel, &QCopChannel::received);
    QVERIFY(!QCopChannel::send("", name, data));
    QCOMPARE(QCopChannel::send("", "next"), rig->isWithBus()); // the connection is not the worse for it
    settle();
    QCOMPARE(spy.count(), 2);
    QVERIFY(spy[0][0].toByteArray() == name);
    QVERIFY(spy[0][1].toByteArray() == data);
}

void TestContract::messagesArriveInTheOrderOfSending()
{
    const QCopChannel channel(phone);
    const QSignalSpy spy(&channel, &QCopChannel::received);
    Bytes sent;
    for (int number = 0; number < 1000; ++number) {
        sent << QByteArray::number(number);
        QCopChannel::send(phone, sent.last());
    }
    settle();
    QCOMPARE(names(spy), sent);
}

void TestContract::theOrderHoldsWhereASlotRunsAnEventLoop()
{
    const QCopChannel asking(phone);
    const QCopChannel next(phone);
    const QSignalSpy nextSpy(&next, &QCopChannel::received);
    connect(&asking, &QCopChannel::received, &asking, [](const QCString &message) {
        if (message == "first")
            QCoreApplication::processEvents(); // as a modal dialog does
    });
    QCopChannel::send(phone, "first");
    QCopChannel::send(phone, "second");
    settle();
    QCOMPARE(names(nextSpy), Bytes({"first", "second"}));
}

void TestContract::aMessageSentByASlotComesAfterThoseSentBefore()
{
    const QCopChannel channel(phone);
    const QSignalSpy spy(&channel, &QCopChannel::received);
    connect(&channel, &QCopChannel::received, &channel, [](const QCString &message) {
        if (message == "question")
            QCopChannel::send(phone, "answer");
    });
    QCopChannel::send(phone, "question");
    QCopChannel::send(phone, "remark");
    QTRY_COMPARE_WITH_TIMEOUT(spy.count(), 3, 60'000);
    settle();
    QCOMPARE(names(spy), Bytes({"question", "remark", "answer"}));
}

void TestContract::aSubscriberDeletedAfterSendingGetsNothing()
{
    auto *channel = new QCopChannel(phone);
    int count = 0;
    connect(channel, &QCopChannel::received, this, [&count] { ++count; });
    QCopChannel::send(phone, "too late");
    delete channel;
    settle();
    QCOMPARE(count, 0);
}

void TestContract::aSubscriberDeletedByAnEarlierOnesSlotGetsNothing()
{
    const QCopChannel first(phone);
    auto *second = new QCopChannel(phone);
    const QCopChannel third(phone);
    const QSignalSpy thirdSpy(&third, &QCopChannel::received);
    int count = 0;
    connect(second, &QCopChannel::received, this, [&count] { ++count; });
    connect(&first, &QCopChannel::received, this, [&second] {
        delete second;
        second = nullptr;
    });
    QCopChannel::send(phone, "bad news");
    QCopChannel::send(phone, "more of it");
    settle();
    QCOMPARE(count, 0);
    QCOMPARE(names(thirdSpy), Bytes({"bad news", "more of it"}));
}

void TestContract::aSubscriberMayDeleteItselfInItsSlot()
{
    auto *channel = new QCopChannel(phone);
    const QCopChannel next(phone);
    const QSignalSpy nextSpy(&next, &QCopChannel::received);
    Bytes seen;
    connect(channel, &QCopChannel::received, this,
            [channel, &seen](const QCString &message, const QByteArray &data) {
                delete channel;
                seen << message << data; // still there
            });
    QCopChannel::send(phone, "end", "data");
    QCopChannel::send(phone, "after it");
    settle();
    QCOMPARE(seen, Bytes({"end", "data"}));
    QCOMPARE(names(nextSpy), Bytes({"end", "after it"}));
}

void TestContract::aSubscribersParentMayBeDeletedInItsSlot()
{
    auto *screen = new QObject;
    auto *channel = new QCopChannel(phone, screen);
    auto *other = new QCopChannel(phone, screen);
    int count = 0;
    connect(channel, &QCopChannel::received, this, [screen, &count] {
        ++count;
        delete screen;
    });
    connect(other, &QCopChannel::received, this, [&count] { ++count; });
    QCopChannel::send(phone, "close");
    QCopChannel::send(phone, "close");
    settle();
    QCOMPARE(count, 1);
}

void TestContract::aSubscriberMadeAfterSendingGetsLaterMessagesOnly()
{
    QCopChannel::send(phone, "before");
    const QCopChannel channel(phone);
    const QSignalSpy spy(&channel, &QCopChannel::received);
    QCopChannel::send(phone, "after");
    settle();
    QCOMPARE(names(spy), Bytes({"after"}));
}

void TestContract::aSubscriberMadeInASlotGetsLaterMessagesOnly()
{
    const QCopChannel channel(phone);
    std::unique_ptr<QCopChannel> late;
    Bytes lateMessages;
    connect(&channel, &QCopChannel::received, this, [&late, &lateMessages](const QCString &message) {
        if (message != "first")
            return;
        late = std::make_unique<QCopChannel>(phone);
        connect(late.get(), &QCopChannel::received, late.get(),
                [&lateMessages](const QCString &name) { lateMessages << name; });
        QCopChannel::send(phone, "third");
    });
    QCopChannel::send(phone, "first");
    QCopChannel::send(phone, "second");
    QTRY_VERIFY_WITH_TIMEOUT(lateMessages.contains("third"), 60'000);
    settle();
    QCOMPARE(lateMessages, Bytes({"third"}));
}

void TestContract::slotsCanBeConnectedByTheirText_data()
{
    QTest::addColumn<Qt::ConnectionType>("type");
    QTest::newRow("called directly") << Qt::AutoConnection;
    QTest::newRow("called from the event loop, with copies of the arguments") << Qt::QueuedConnection;
}

void TestContract::slotsCanBeConnectedByTheirText()
{
    QFETCH(Qt::ConnectionType, type);
    updates.clear();
    const QCopChannel channel(phone);
    QVERIFY(connect(&channel, "2received(const QCString&,const QByteArray&)", this,
                    "1slotUpdate(const QCString&,const QByteArray&)", type));
    QCopChannel::send(phone, "/KAV/phone/RecentCall/Update", "block");
    QTRY_VERIFY_WITH_TIMEOUT(!updates.isEmpty(), 60'000);
    settle();
    QCOMPARE(updates, Bytes({"/KAV/phone/RecentCall/Update", "block"}));
}

void TestContract::aChannelKnowsItsNames()
{
    QObject screen;
    const auto *channel = new QCopChannel("a\xff", &screen, "\xe9t\xe9");
    QCOMPARE(channel->channel(), QCString("a\xff"));
    QCOMPARE(channel->parent(), &screen);
    QCOMPARE(channel->objectName(), QString::fromLatin1("\xe9t\xe9"));
    QCOMPARE(channel->className(), "QCopChannel");
    QVERIFY(QCopChannel(phone).objectName().isEmpty());
}

void TestContract::anEventOfSomebodyElseIsNoMessage()
{
    QCopChannel channel("/KAV/phone");
    const QSignalSpy spy(&channel, SIGNAL(received(QCString, QByteArray)));
    QEvent event(static_cast<QEvent::Type>(QEvent::registerEventType()));
    QCoreApplication::sendEvent(&channel, &event);
    QCOMPARE(spy.size(), 0);
}

void TestContract::tenThousandChannelsLeaveNoMemoryBehind()
{
    const auto growthOver = [](int count) {
        const qint64 before = allocatedBytes();
        for (int number = 0; number < count; ++number) {
            const QCopChannel common(phone);
            const QCopChannel own(QByteArray::number(number));
        }
        settle();
        return allocatedBytes() - before;
    };
    constexpr qint64 limit = 20000; // a byte a channel
    // Tables grow once, and what the allocator keeps at hand for a thread counts as taken; what is left behind is left
    // behind in every round.
    qint64 growth = growthOver(10000);
    for (int round = 0; round == 0 || (round < 5 && growth >= limit); ++round)
        growth = growthOver(10000);
    QVERIFY2(growth < limit, qPrintable(QStringLiteral("%1 bytes more").arg(growth)));
}

void TestContract::tenThousandMessagesLeaveNoMemoryBehind()
{
    const QCopChannel channel(phone);
    int count = 0;
    connect(&channel, &QCopChannel::received, this, [&count] { ++count; });
    int sent = 0;
    const auto growthOver = [&sent](int messages) {
        const qint64 before = allocatedBytes();
        for (const int end = sent + messages; sent < end;) {
            QCopChannel::send(phone, "/KAV/phone/RecentCall/Update", QByteArray(100, 'd'));
            if (++sent % 100 == 0)
                settle();
        }
        return allocatedBytes() - before;
    };
    constexpr qint64 limit = 100000; // ten bytes a message
    // Queues grow once, to what the threads' pace asks for; what is left behind is left behind in every round.
    qint64 growth = growthOver(2000);
    for (int round = 0; round == 0 || (round < 5 && growth >= limit); ++round)
        growth = growthOver(10000);
    QCOMPARE(count, sent);
    QVERIFY2(growth < limit, qPrintable(QStringLiteral("%1 bytes more").arg(growth)));
}

KAV_TEST_GROUP(TestContract, QCoreApplication);
#include "tst_contract.moc"
