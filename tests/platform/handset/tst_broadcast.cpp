// The message that tells the screens of every process that the packet-data figures have changed.
#include "calllog/Schema.h"
#include "handset/AdviceOfCharge.h"
#include "handset/CallLog.h"
#include "handset/HandsetTestKit.h"
#include "handset/OtherProcess.h"
#include "handset/PacketData.h"
#include "handset/SimSecurity.h"
#include "handset/Status.h"
#include "qt/QCopChannel.h"
#include "qt/qcop/PrivateBus.h"
#include "qt/qcop/QCopBus.h"
#include "support/LackingHandset.h"
#include "support/TestGroup.h"

#include <QtCore/QProcess>
#include <QtCore/QTimer>
#include <QtTest/QSignalSpy>

#include <chrono>
#include <functional>
#include <random>

using namespace handset;
using namespace handset::test;

namespace {

/// Counts the updates, and looks at the handset when one comes.
class Screen
{
public:
    Screen()
    {
        QObject::connect(&channel, &QCopChannel::received, &channel,
                         [this](const QCString &message, const QByteArray &data) {
                             if (message != "/KAV/phone/RecentCall/Update" || !data.isEmpty())
                                 QTest::qFail("a message that is no update", __FILE__, __LINE__);
                             ++count;
                         });
    }

    /// Since the last call.
    int updates()
    {
        QCoreApplication::processEvents();
        return std::exchange(count, 0);
    }

private:
    QCopChannel channel{"/KAV/phone"};
    int count = 0;
};

/// Counts what this process tells the others of its handset.
class Announcements
{
public:
    Announcements()
    {
        QObject::connect(&channel, &QCopChannel::received, &channel, [this](const QCString &message) {
            announced += message == "/KAV/handset/Changed" ? 1 : 100;
        });
    }

    /// Since the last call.
    int count()
    {
        QCoreApplication::processEvents();
        return std::exchange(announced, 0);
    }

private:
    QCopChannel channel{"/KAV/handset"};
    int announced = 0;
};

} // namespace

class TestBroadcast : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }
    void cleanup() { install(nullptr); }

    void beginningAndEndAreTold();
    void whatFailsIsNotTold();
    void aCallIsNotTold();
    void aRunningSessionIsToldOnceASecond();
    void howeverTheTicksComeItIsToldAtMostOnceASecond();
    void aClockThatStandsStillHasNothingToTell();
    void aRunningSessionIsToldWithoutAnyonesHelp();
    void onlyTheInstalledHandsetTells();
    void aHandsetWithoutPacketDataCanBeInstalled();
    void anotherProcessIsToldUpToTheEndOfTheApplication();
    void whatIsChangedHereIsAnnouncedOnce();
    void whatIsOwedIsAnnouncedAgainWhenItIsWritten();
    void whatAnotherProcessChangesIsSignalledHere();
    void whatItChangesBeforeAnybodyListensIsSignalledToo();

private:
    static void tick(const Phone &phone)
    {
        QVERIFY(QMetaObject::invokeMethod(phone->findChild<QTimer *>(), "timeout"));
    }

    /// What hears of the changes of other processes; null before it does.
    static QCopChannel *listener() { return QCoreApplication::instance()->findChild<QCopChannel *>(); }

    PrivateBus bus;
};

// Before the first channel. With a bus, what it brings back of the own messages would be counted, too.
void TestBroadcast::initTestCase()
{
    QVERIFY(bus.isRunning());
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address().toLocal8Bit());
}

void TestBroadcast::beginningAndEndAreTold()
{
    const Phone phone;
    install(phone.opened.handset);
    Screen screen;
    Screen other;
    QCOMPARE(phone->packets().startSession("x", 1, 1), int(Success));
    QCOMPARE(screen.updates(), 1);
    QCOMPARE(phone->packets().stopSession(), int(Success));
    QCOMPARE(screen.updates(), 1);
    QCOMPARE(other.updates(), 2);
}

void TestBroadcast::whatFailsIsNotTold()
{
    const Phone phone;
    install(phone.opened.handset);
    Screen screen;
    QCOMPARE(phone->packets().stopSession(), int(WrongState));
    QCOMPARE(phone->packets().startSession("", 1, 1), int(InvalidArgument));
    QCOMPARE(screen.updates(), 0);
}

void TestBroadcast::aCallIsNotTold()
{
    Phone phone;
    install(phone.opened.handset);
    Screen screen;
    QVERIFY(phone.dial());
    for (int seconds = 0; seconds < 10; ++seconds) {
        phone.clock->advance(1000);
        tick(phone);
    }
    QCOMPARE(phone->hangUp(), int(Success));
    QCOMPARE(screen.updates(), 0);
}

void TestBroadcast::aRunningSessionIsToldOnceASecond()
{
    const Phone phone;
    install(phone.opened.handset);
    Screen screen;
    for (const quint32 rate : {0U, 1U, 1'000'000U}) { // the duration alone changes, too
        QCOMPARE(phone->packets().startSession("x", rate, rate), int(Success));
        QCOMPARE(screen.updates(), 1);
        for (int seconds = 1; seconds <= 12; ++seconds) {
            phone.clock->advance(1000);
            tick(phone);
            QCOMPARE(screen.updates(), 1);
            tick(phone);
            QCOMPARE(screen.updates(), 0);
            QCOMPARE(phone.sessions().first().section(QLatin1Char(' '), 2, 2), QString::number(seconds));
        }
        QCOMPARE(phone->packets().stopSession(), int(Success));
        QCOMPARE(screen.updates(), 1);
        tick(phone);
        QCOMPARE(screen.updates(), 0);
    }
}

void TestBroadcast::howeverTheTicksComeItIsToldAtMostOnceASecond()
{
    std::mt19937 random(3);
    const auto below = [&](int bound) { return std::uniform_int_distribution<int>(0, bound - 1)(random); };
    const Phone phone;
    install(phone.opened.handset);
    Screen screen;
    QCOMPARE(phone->packets().startSession("x", 1000, 1000), int(Success));
    QCOMPARE(screen.updates(), 1);
    qint64 now = 0;
    qint64 lastTold = 0;
    int told = 0;
    for (int step = 0; step < 3000; ++step) {
        const qint64 passed = below(200);
        phone.clock->advance(passed);
        now += passed;
        tick(phone);
        if (below(3) == 0) // queries and checkpoints tell nothing and put nothing off
            QCOMPARE(phone->checkpoint(), int(Success));
        if (screen.updates() == 0) {
            QVERIFY(now - lastTold < 1000);
            continue;
        }
        QVERIFY(now - lastTold >= 1000);
        lastTold = now;
        ++told;
    }
    QVERIFY(told > 200);
}

void TestBroadcast::aClockThatStandsStillHasNothingToTell()
{
    const Phone phone;
    install(phone.opened.handset);
    Screen screen;
    QCOMPARE(phone->packets().startSession("x", 1000, 1000), int(Success));
    QCOMPARE(screen.updates(), 1);
    for (int ticks = 0; ticks < 20; ++ticks)
        tick(phone);
    phone.clock->setWallMs(0);
    tick(phone);
    QCOMPARE(screen.updates(), 0);
}

void TestBroadcast::aRunningSessionIsToldWithoutAnyonesHelp()
{
    const Opened opened = open({}); // the machine's clocks
    install(opened.handset);
    QCopChannel channel("/KAV/phone");
    const QSignalSpy spy(&channel, &QCopChannel::received);
    auto &packets = dynamic_cast<simulated::SimulatedHandset &>(*opened.handset).packets();
    QCOMPARE(packets.startSession("x", 1, 1), int(Success));
    QTRY_VERIFY_WITH_TIMEOUT(spy.count() >= 4, 60'000);
    QVERIFY(sessionsOf(*opened.handset).first().section(QLatin1Char(' '), 2, 2).toInt() >= 3);
    QCOMPARE(packets.stopSession(), int(Success));
}

void TestBroadcast::onlyTheInstalledHandsetTells()
{
    Phone first;
    Phone other;
    Screen screen;
    const auto makeSession = [](Phone &phone) {
        return phone->packets().startSession("x", 1, 1) == Success &&
               (phone.clock->advance(1000), tick(phone), phone->packets().stopSession() == Success);
    };
    QVERIFY(makeSession(first));
    QCOMPARE(screen.updates(), 0);
    install(first.opened.handset);
    QVERIFY(makeSession(first));
    QCOMPARE(screen.updates(), 3);
    QVERIFY(makeSession(other));
    QCOMPARE(screen.updates(), 0);
    install(other.opened.handset);
    QVERIFY(makeSession(first));
    QCOMPARE(screen.updates(), 0);
    QVERIFY(makeSession(other));
    QCOMPARE(screen.updates(), 3);
    install(other.opened.handset); // once more changes nothing
    QVERIFY(makeSession(other));
    QCOMPARE(screen.updates(), 3);
    install(nullptr);
    QVERIFY(makeSession(other));
    QCOMPARE(screen.updates(), 0);

    // Nor does one that was replaced tell of its end.
    install(first.opened.handset);
    QCOMPARE(first->packets().startSession("x", 1, 1), int(Success));
    QCOMPARE(screen.updates(), 1);
    first.close();
    install(other.opened.handset);
    QCOMPARE(screen.updates(), 0);
}

void TestBroadcast::aHandsetWithoutPacketDataCanBeInstalled()
{
    const Phone phone;
    install(std::make_shared<LackingHandset>());
    install(phone.opened.handset);
    install(std::make_shared<LackingHandset>());
    Screen screen;
    QCOMPARE(phone->packets().startSession("x", 1, 1), int(Success));
    QCOMPARE(screen.updates(), 0);
}

void TestBroadcast::anotherProcessIsToldUpToTheEndOfTheApplication()
{
    const StateDir state;
    QCopChannel channel("/KAV/phone");
    const QSignalSpy spy(&channel, &QCopChannel::received);
    QVERIFY(QCopBus::instance()->waitFor(std::chrono::minutes(1)));
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    endWithParent(process);
    process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/handset_other_process"),
                  {QStringLiteral("leave-session"), state.path()});
    QVERIFY(process.waitForFinished(60'000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    QTRY_COMPARE_WITH_TIMEOUT(spy.count(), 2, 60'000); // the beginning and the end
    QCOMPARE(state.names(), QStringList{QStringLiteral("calllog.db")});
    const QString finished = QString::number(static_cast<int>(calllog::CallState::Finished));
    QCOMPARE(LogFile(state.database()).sessions(), QStringList{QStringLiteral("1 x 9000 9 18 ") + finished});
}

void TestBroadcast::whatIsChangedHereIsAnnouncedOnce()
{
    Phone phone;
    install(phone.opened.handset);
    Announcements announcements;
    const auto announcedAfter = [&](int status) { return status == Success ? announcements.count() : -1; };
    QCOMPARE(announcedAfter(phone->dial(QStringLiteral("1"), CallKind::Voice)), 1);
    QCOMPARE(announcedAfter(phone->remoteAnswer()), 1);
    phone.clock->advance(30 * second);
    QCOMPARE(announcedAfter(phone->checkpoint()), 0); // every process counts by itself
    QCOMPARE(announcedAfter(phone.log().resetDialedCallsTime()), 1);
    QCOMPARE(announcedAfter(phone->charging()->topUp(QStringLiteral("100"), {2030, 1, 1})), 1);
    QCOMPARE(announcedAfter(phone->hangUp()), 1);
    QCOMPARE(announcedAfter(phone->packets().startSession("x", 1, 1)), 1);
    QCOMPARE(announcedAfter(phone.packets().resetTotalBytes()), 1);
    QCOMPARE(announcedAfter(phone->packets().stopSession()), 1);
    const PastCall past{CallKind::Voice, CallDirection::Dialed, QStringLiteral("1"), 0, 40 * second};
    QCOMPARE(announcedAfter(phone->addHistory({past, past})), 1);
    bool accepted = false;
    for (const char *pin : {"9999", "1234"})
        QCOMPARE(announcedAfter(phone.handset().simSecurity()->verifyPin(SimSecurity::Pin2, pin, accepted)), 1);
    QVERIFY(accepted);
    // A call that is ended by a setting, and one by the handset itself.
    QVERIFY(phone.dial());
    QCOMPARE(announcements.count(), 2);
    QCOMPARE(announcedAfter(phone.handset().adviceOfCharge()->setMeterMaximum(QStringLiteral("1"))), 1);
    QCOMPARE(phone->lineState(), simulated::SimulatedHandset::LineState::Idle);
    QCOMPARE(announcedAfter(phone.handset().adviceOfCharge()->setMeterMaximum(QStringLiteral("0"))), 1);
    QVERIFY(phone.dial());
    QCOMPARE(announcements.count(), 2);
    phone.clock->advance(24 * hour); // longer than the account lasts
    QCOMPARE(announcedAfter(phone->checkpoint()), 1);
    QCOMPARE(phone->lineState(), simulated::SimulatedHandset::LineState::Idle);
}

// At the end its row still said that it runs, and so did whoever looked then.
void TestBroadcast::whatIsOwedIsAnnouncedAgainWhenItIsWritten()
{
    const StateDir state;
    Phone phone(state.path(), nullptr, {}, hardlyAny);
    install(phone.opened.handset);
    const LogFile file(state.database());
    const auto endsOwed = [&](const std::function<int()> &end) {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^The call log failed: ")));
        return file.run(QStringLiteral("BEGIN IMMEDIATE")) && end() == Success && phone->owesRecord() &&
               file.run(QStringLiteral("ROLLBACK"));
    };
    QVERIFY(phone.dial());
    Announcements announcements;
    QVERIFY(endsOwed([&] { return phone->hangUp(); }));
    QCOMPARE(announcements.count(), 1);
    phone.clock->advance(5 * second);
    tick(phone);
    QVERIFY(!phone->owesRecord());
    QCOMPARE(announcements.count(), 1);
    QCOMPARE(phone->packets().startSession("x", 1, 1), int(Success));
    QCOMPARE(announcements.count(), 1);
    QVERIFY(endsOwed([&] { return phone->packets().stopSession(); }));
    QCOMPARE(announcements.count(), 1);
    QCOMPARE(phone->checkpoint(), int(Success));
    QVERIFY(!phone->owesRecord());
    QCOMPARE(announcements.count(), 1);
}

void TestBroadcast::whatAnotherProcessChangesIsSignalledHere()
{
    const Phone phone;
    install(phone.opened.handset);
    QSignalSpy spy(phone.operator->(), &simulated::SimulatedHandset::changed);
    const auto tellAs = [](const QByteArray &process) {
        QCopChannel::send("/KAV/handset", "/KAV/handset/Changed", process);
    };
    QTRY_VERIFY_WITH_TIMEOUT(listener(), 60'000);
    QCoreApplication::processEvents();
    spy.clear();
    tellAs("1"); // no process of ours
    QCoreApplication::processEvents();
    QCOMPARE(spy.count(), 1);
    spy.clear();
    tellAs(QByteArray::number(QCoreApplication::applicationPid()));
    QCoreApplication::processEvents();
    QCOMPARE(spy.count(), 0);
}

// It sends no message here, and could send none that arrives.
void TestBroadcast::whatItChangesBeforeAnybodyListensIsSignalledToo()
{
    const StateDir state;
    OtherProcess recorder(state.path());
    QCOMPARE(recorder.firstLine(), QByteArray("holding"));
    const Phone phone(state.path());
    delete listener(); // as in a process that has just started
    install(phone.opened.handset);
    QSignalSpy spy(phone.operator->(), &simulated::SimulatedHandset::changed);
    QCOMPARE(recorder.ask("dial 5"), QByteArray("0"));
    QCOMPARE(recorder.ask("connect"), QByteArray("0"));
    QTRY_COMPARE_WITH_TIMEOUT(spy.count(), 1, 60'000);
    QVERIFY(listener());
    QCOMPARE(phone->lineState(), simulated::SimulatedHandset::LineState::Connected);
}

KAV_TEST_GROUP(TestBroadcast, QCoreApplication);
#include "tst_broadcast.moc"
