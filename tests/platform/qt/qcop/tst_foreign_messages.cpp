// What other programs see of a channel on the bus, and what they can do to it.
#include "qt/qcop/LineLimit.h"
#include "qt/qcop/Peer.h"
#include "qt/qcop/PrivateBus.h"
#include "qt/qcop/QCopTest.h"
#include "support/TestGroup.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QVariant>
#include <QtCore/QVariantList>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtTest/QTest>

namespace {

const QString path = QStringLiteral("/org/kav/QCop");
const QString interface = QStringLiteral("org.kav.QCop");
const QString member = QStringLiteral("Message");
const QString linkName = QStringLiteral("foreign");
constexpr char trace[] = "is no channel message and is ignored";

QVariant bytes(const char *text)
{
    return QByteArray(text);
}

} // namespace

class TestForeignMessages : public QObject
{
    Q_OBJECT

public slots:
    void see(const QDBusMessage &message)
    {
        if (message.service() != link().baseService())
            seen << message;
    }

private slots:
    void initTestCase();
    void init();
    void cleanup() { peer.reset(); }
    void cleanupTestCase() { QDBusConnection::disconnectFromBus(linkName); }

    void aMessageIsOneBroadcastSignal();
    void aWellFormedMessageOfAnotherProgramArrives();
    void aMalformedMessageIsIgnoredWithATrace_data();
    void aMalformedMessageIsIgnoredWithATrace();
    void manyMalformedMessagesLeaveTenTraces();
    void aTraceOfAnEndlessPathIsShort();
    void tracesGoOnAfterAMinuteAndSayWhatWasLeftOut();
    void aCallIsRefusedWithATrace();
    void signalsOfOtherInterfacesLeaveNoTrace();

private:
    QDBusConnection link() const { return QDBusConnection(linkName); }
    void sendWellFormed();

    PrivateBus bus;
    std::unique_ptr<Peer> peer;
    QString peerName;
    QList<QDBusMessage> seen;
};

void TestForeignMessages::initTestCase()
{
    QVERIFY(bus.isRunning());
    QDBusConnection connection = QDBusConnection::connectToBus(bus.address(), linkName);
    QVERIFY(connection.connect(QString(), QString(), interface, QString(), this, SLOT(see(QDBusMessage))));
}

void TestForeignMessages::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    peer = std::make_unique<Peer>(bus.address());
    QVERIFY(peer->subscribe(1, phone));
    seen.clear();
    QVERIFY(peer->send("", "who"));
    QTRY_COMPARE_WITH_TIMEOUT(seen.size(), 1, limitMs);
    peerName = seen.first().service();
    seen.clear();
}

void TestForeignMessages::sendWellFormed()
{
    QDBusMessage message = QDBusMessage::createSignal(path, interface, member);
    message << bytes(phone) << bytes("well formed") << bytes("data");
    QVERIFY(link().send(message));
}

void TestForeignMessages::aMessageIsOneBroadcastSignal()
{
    QVERIFY(peer->send(phone, QByteArray("a\0\xff", 3), "data"));
    QVERIFY(peer->send(phone, ""));
    QTRY_COMPARE_WITH_TIMEOUT(seen.size(), 2, limitMs);
    const QDBusMessage &message = seen.first();
    QCOMPARE(message.type(), QDBusMessage::SignalMessage);
    QCOMPARE(message.path(), path);
    QCOMPARE(message.interface(), interface);
    QCOMPARE(message.member(), member);
    QCOMPARE(message.signature(), QStringLiteral("ayayay"));
    QCOMPARE(message.arguments(), QVariantList({bytes(phone), QByteArray("a\0\xff", 3), bytes("data")}));
}

void TestForeignMessages::aWellFormedMessageOfAnotherProgramArrives()
{
    sendWellFormed();
    QCOMPARE(peer->take(), Peer::line(1, "well formed", "data"));
    QCOMPARE(peer->errors(), QByteArray());
}

void TestForeignMessages::aMalformedMessageIsIgnoredWithATrace_data()
{
    QTest::addColumn<QDBusMessage>("message");
    const auto row = [](const char *name, const QVariantList &arguments) {
        QDBusMessage message = QDBusMessage::createSignal(path, interface, member);
        message.setArguments(arguments);
        QTest::newRow(name) << message;
    };
    row("no arguments", {});
    row("texts in place of bytes", {QStringLiteral("/KAV/phone"), QStringLiteral("a"), QStringLiteral("b")});
    row("no data block", {bytes(phone), bytes("a")});
    row("one argument too many", {bytes(phone), bytes("a"), bytes("b"), bytes("c")});
    row("a number in place of the message", {bytes(phone), 7, bytes("b")});
    row("lists in place of bytes", {QStringList{QStringLiteral("/KAV/phone")}, QStringList(), QStringList()});

    const QVariantList good{bytes(phone), bytes("a"), bytes("b")};
    QDBusMessage message = QDBusMessage::createSignal(QStringLiteral("/elsewhere"), interface, member);
    message.setArguments(good);
    QTest::newRow("another object") << message;
    message = QDBusMessage::createSignal(path, interface, QStringLiteral("message"));
    message.setArguments(good);
    QTest::newRow("another member") << message;
}

void TestForeignMessages::aMalformedMessageIsIgnoredWithATrace()
{
    QFETCH(QDBusMessage, message);
    QVERIFY(link().send(message));
    QDBusMessage directed =
        QDBusMessage::createTargetedSignal(peerName, message.path(), interface, message.member());
    directed.setArguments(message.arguments());
    QVERIFY(link().send(directed));
    sendWellFormed();
    QCOMPARE(peer->take(), Peer::line(1, "well formed", "data"));
    QTRY_COMPARE_WITH_TIMEOUT(peer->errors().count(trace), 2, limitMs);
}

void TestForeignMessages::manyMalformedMessagesLeaveTenTraces()
{
    const QDBusMessage message = QDBusMessage::createSignal(path, interface, member); // without arguments
    for (int i = 0; i < 1000; ++i)
        QVERIFY(link().send(message));
    sendWellFormed();
    QCOMPARE(peer->take(), Peer::line(1, "well formed", "data"));
    QCOMPARE(peer->finish(), 0);
    QCOMPARE(peer->errors().count(trace), 10);
    QCOMPARE(peer->errors().count('\n'), 10);
}

void TestForeignMessages::aTraceOfAnEndlessPathIsShort()
{
    const QString endless = QString("/elsewhere").repeated(10000);
    QVERIFY(link().send(QDBusMessage::createSignal(endless, interface, member)));
    sendWellFormed();
    QCOMPARE(peer->take(), Peer::line(1, "well formed", "data"));
    QTRY_COMPARE_WITH_TIMEOUT(peer->errors().count(trace), 1, limitMs);
    QVERIFY2(peer->errors().size() < 500, qPrintable(QString::number(peer->errors().size())));
}

void TestForeignMessages::tracesGoOnAfterAMinuteAndSayWhatWasLeftOut()
{
    using namespace std::chrono_literals;
    const auto start = std::chrono::steady_clock::now();
    LineLimit limit;
    for (int i = 0; i < 10; ++i)
        QCOMPARE(limit.take(start).value_or(-1), 0);
    for (int i = 0; i < 7; ++i)
        QVERIFY(!limit.take(start + 59s).has_value());
    QCOMPARE(limit.take(start + 60s).value_or(-1), 7);
    for (int i = 0; i < 9; ++i)
        QCOMPARE(limit.take(start + 61s).value_or(-1), 0);
    QVERIFY(!limit.take(start + 119s).has_value());
    QCOMPARE(limit.take(start + 1h).value_or(-1), 1);
}

void TestForeignMessages::aCallIsRefusedWithATrace()
{
    QDBusMessage call = QDBusMessage::createMethodCall(peerName, path, interface, member);
    call << bytes(phone) << bytes("called") << bytes("data");
    QCOMPARE(link().call(call, QDBus::BlockWithGui).type(), QDBusMessage::ErrorMessage);
    sendWellFormed();
    QCOMPARE(peer->take(), Peer::line(1, "well formed", "data"));
    QTRY_COMPARE_WITH_TIMEOUT(peer->errors().count(trace), 1, limitMs);
}

void TestForeignMessages::signalsOfOtherInterfacesLeaveNoTrace()
{
    QDBusMessage other = QDBusMessage::createSignal(path, QStringLiteral("org.other"), member);
    other << bytes(phone) << bytes("a") << bytes("b");
    QVERIFY(link().send(other));
    QVERIFY(link().send(QDBusMessage::createTargetedSignal(peerName, path, QStringLiteral("org.other"), member)));
    sendWellFormed();
    QCOMPARE(peer->take(), Peer::line(1, "well formed", "data"));
    QCOMPARE(peer->errors(), QByteArray());
}

KAV_TEST_GROUP(TestForeignMessages, QCoreApplication);
#include "tst_foreign_messages.moc"
