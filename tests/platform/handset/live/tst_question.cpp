// What is asked of a daemon is answered in its place among what it signals, however late it is looked at.
#include "live/Question.h"
#include "qt/qcop/PrivateBus.h"
#include "support/TestGroup.h"

#include <QtCore/QThread>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>

#include <algorithm>
#include <memory>

using namespace handset;

namespace {

const QString peerInterface = QStringLiteral("kav.test.Peer");
const QString peerPath = QStringLiteral("/peer");

} // namespace

/// Lives in a thread of its own.
class Peer : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "kav.test.Peer")

public:
    bool answersFirst = false;

public slots:
    void tell(const QDBusMessage &question)
    {
        question.setDelayedReply(true);
        QDBusConnection bus = QDBusConnection(QStringLiteral("peer"));
        const QDBusMessage signal = QDBusMessage::createSignal(peerPath, peerInterface, QStringLiteral("told"));
        const QDBusMessage answer = question.createReply(QStringLiteral("answer"));
        bus.send(answersFirst ? answer : signal);
        bus.send(answersFirst ? signal : answer);
    }
    void refuse(const QDBusMessage &question)
    {
        question.setDelayedReply(true);
        QDBusConnection(QStringLiteral("peer"))
            .send(question.createErrorReply(QStringLiteral("kav.test.No"), QStringLiteral("not now")));
    }
    void saysNothing(const QDBusMessage &question) { question.setDelayedReply(true); }
};

class TestQuestion : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init() { heard.clear(); }

    void anAnswerAndASignalAreHeardInTheOrderOfTheirSending_data();
    void anAnswerAndASignalAreHeardInTheOrderOfTheirSending();
    void anErrorIsAnAnswer();
    void whatIsNotAnsweredInItsTimeIsAnError();
    void whatCannotBeSentIsAnErrorAndNotAtOnce();
    void anAnswerWhoseContextHasGoneIsForgotten();

public slots:
    void told() { heard << QStringLiteral("signal"); }

private:
    QDBusMessage question(const char *method) const
    {
        return QDBusMessage::createMethodCall(peerName, peerPath, peerInterface, QLatin1String(method));
    }
    // Whatever the peer has sent until now has arrived, and has not been looked at.
    void letAllArrive() const
    {
        const QDBusMessage ping = QDBusMessage::createMethodCall(
            peerName, peerPath, QStringLiteral("org.freedesktop.DBus.Peer"), QStringLiteral("Ping"));
        QCOMPARE(asking().call(ping).type(), QDBusMessage::ReplyMessage);
    }
    static QDBusConnection asking() { return QDBusConnection(QStringLiteral("asking")); }
    void ask(const char *method, int longestMs, QObject *context)
    {
        live::ask(asking(), question(method), longestMs, context, [this](const QDBusMessage &answer) {
            heard << (answer.type() == QDBusMessage::ErrorMessage ? answer.errorName()
                                                                  : answer.arguments().value(0).toString());
        });
    }

    PrivateBus bus;
    QThread thread;
    Peer peer;
    QString peerName;
    QStringList heard;
};

void TestQuestion::initTestCase()
{
    QVERIFY(bus.isRunning());
    peer.moveToThread(&thread);
    thread.start();
    QDBusConnection its = QDBusConnection::connectToBus(bus.address(), QStringLiteral("peer"));
    QVERIFY(its.registerObject(peerPath, &peer, QDBusConnection::ExportAllSlots));
    peerName = its.baseService();
    QDBusConnection ours = QDBusConnection::connectToBus(bus.address(), QStringLiteral("asking"));
    QVERIFY(ours.connect(peerName, peerPath, peerInterface, QStringLiteral("told"), this, SLOT(told())));
}

void TestQuestion::cleanupTestCase()
{
    QDBusConnection::disconnectFromBus(QStringLiteral("asking"));
    QDBusConnection::disconnectFromBus(QStringLiteral("peer"));
    thread.quit();
    QVERIFY(thread.wait());
}

void TestQuestion::anAnswerAndASignalAreHeardInTheOrderOfTheirSending_data()
{
    QTest::addColumn<bool>("answersFirst");
    QTest::newRow("a signal behind the answer") << true;
    QTest::newRow("a signal before the answer") << false;
}

void TestQuestion::anAnswerAndASignalAreHeardInTheOrderOfTheirSending()
{
    QFETCH(bool, answersFirst);
    peer.answersFirst = answersFirst;
    QStringList expected{QStringLiteral("answer"), QStringLiteral("signal")};
    if (!answersFirst)
        std::reverse(expected.begin(), expected.end());
    ask("tell", -1, this);
    letAllArrive();
    QCOMPARE(heard, QStringList());
    QTRY_COMPARE(heard.size(), 2);
    QCOMPARE(heard, expected);
}

void TestQuestion::anErrorIsAnAnswer()
{
    ask("refuse", -1, this);
    QTRY_COMPARE(heard, QStringList(QStringLiteral("kav.test.No")));
}

void TestQuestion::whatIsNotAnsweredInItsTimeIsAnError()
{
    ask("saysNothing", 50, this);
    QTRY_COMPARE(heard, QStringList(QStringLiteral("org.freedesktop.DBus.Error.NoReply")));
}

void TestQuestion::whatCannotBeSentIsAnErrorAndNotAtOnce()
{
    live::ask(QDBusConnection(QStringLiteral("no such connection")), question("tell"), -1, this,
              [this](const QDBusMessage &answer) { heard << answer.errorName(); });
    QCOMPARE(heard, QStringList());
    QTRY_COMPARE(heard, QStringList(QStringLiteral("org.freedesktop.DBus.Error.Disconnected")));
}

void TestQuestion::anAnswerWhoseContextHasGoneIsForgotten()
{
    auto context = std::make_unique<QObject>();
    peer.answersFirst = true;
    ask("tell", -1, context.get());
    letAllArrive();
    context.reset();
    QTRY_COMPARE(heard, QStringList(QStringLiteral("signal")));
}

KAV_TEST_GROUP(TestQuestion, QCoreApplication);
#include "tst_question.moc"
