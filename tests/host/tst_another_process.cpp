// A window, and another process on the same state directory: what one of them does is announced on the bus, and seen in the
// other one.
#include "handset/CallLog.h"
#include "handset/Clock.h"
#include "handset/Handset.h"
#include "handset/HandsetTestKit.h"
#include "handset/KeptCalls.h"
#include "handset/OtherProcess.h"
#include "handset/SimSecurity.h"
#include "handset/Status.h"
#include "host/PhoneWindow.h"
#include "qt/QCopChannel.h"
#include "qt/qcop/PrivateBus.h"
#include "qt/qcop/QCopBus.h"
#include "simulated/SimulatedHandset.h"
#include "support/PhoneScreen.h"
#include "support/TestGroup.h"
#include "toolkit/ZApplication.h"
#include "toolkit/ZListBox.h"
#include "toolkit/ZListItem.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include <chrono>
#include <optional>

using namespace host;
using handset::simulated::SimulatedHandset;
using handset::test::OtherProcess;

namespace {

constexpr int patienceMs = 60'000;

enum class First { Window, Other };

} // namespace

class TestAnotherProcess : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void whatTheOtherSetsIsShown_data();
    void whatTheOtherSetsIsShown();
    void aCallThatTheOtherRecordsIsShownFromItsBeginningToItsReset();
    void aDataScreenFollowsASessionThatTheOtherRecords();
    void whatTheWindowDoesReachesTheOther_data();
    void whatTheWindowDoesReachesTheOther();
    void aCallThatTheWindowRecordsReachesTheOther();
    void theWindowRecordsWhenTheOtherIsKilled();
    void aTelephoneIsPutAsideOnceNobodyHasItOpen();

private:
    void begin(First first);
    void openWindow();
    void startOther();
    void otherDoes(const char *command, const char *answer = "0");
    bool otherIsTold();
    QString label(const char *name) const;
    QPushButton *button(const char *text) const;

    PrivateBus bus;
    ScreenLibrary library;
    std::optional<handset::test::StateDir> state;
    std::optional<OtherProcess> other;
    std::shared_ptr<handset::ManualClock> clock;
    std::shared_ptr<handset::Handset> owner;
    SimulatedHandset *handset = nullptr;
    std::unique_ptr<PhoneWindow> window;
};

// Before the first channel.
void TestAnotherProcess::initTestCase()
{
    QVERIFY(bus.isRunning());
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address().toLocal8Bit());
    QCopBus::instance()->receive();
    QVERIFY(QCopBus::instance()->waitFor(std::chrono::minutes(1)));
    const QString problem = library.load("libkavcallmeter.so.1");
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
}

void TestAnotherProcess::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    state.emplace();
}

void TestAnotherProcess::cleanup()
{
    window.reset();
    handset::install(nullptr);
    owner.reset();
    other.reset();
    state.reset();
}

// Returns when each of them listens; whoever is first records.
void TestAnotherProcess::begin(First first)
{
    if (first == First::Window)
        openWindow();
    startOther();
    if (first == First::Other)
        openWindow();
    QCOMPARE(handset->isRecording(), first == First::Window);
    QCOMPARE(other->ask("recording"), QByteArray(first == First::Other ? "yes" : "no"));
    QTRY_VERIFY_WITH_TIMEOUT(QCoreApplication::instance()->findChild<QCopChannel *>(), patienceMs);
    QTRY_COMPARE_WITH_TIMEOUT(other->ask("follows"), QByteArray("1"), patienceMs);
    QCOMPARE(other->ask("changes").size(), 1); // of the beginning: forgotten
}

void TestAnotherProcess::openWindow()
{
    clock = std::make_shared<handset::ManualClock>(0);
    const handset::Opened opened = handset::open({"simulated", state->path(), clock});
    QVERIFY2(opened.handset, qPrintable(opened.error));
    owner = opened.handset;
    handset = dynamic_cast<SimulatedHandset *>(owner.get());
    handset::install(owner);
    window = std::make_unique<PhoneWindow>(library, PhoneWindow::OpenedHandset{owner, state->path(), {}});
    // Qt's offscreen platform warns of every window that has a least size.
    QTest::ignoreMessage(QtWarningMsg, "This plugin does not support propagateSizeHints()");
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get(), patienceMs));
    QVERIFY(window->complete());
    for (int page = 3; page >= 0; --page)
        window->choosePage(page);
}

void TestAnotherProcess::startOther()
{
    other.emplace(state->path());
    QCOMPARE(other->firstLine(), QByteArray("holding"));
    QCOMPARE(other->ask("install"), QByteArray("0"));
}

// The panel looks every second by itself, too, but says nothing of it: what is signalled has come over the bus.
void TestAnotherProcess::otherDoes(const char *command, const char *answer)
{
    QSignalSpy spy(handset, &SimulatedHandset::changed);
    QCOMPARE(other->ask(command), QByteArray(answer));
    QCOMPARE(spy.count(), 0);
    QTRY_COMPARE_WITH_TIMEOUT(spy.count(), 1, patienceMs);
}

// Once for each change.
bool TestAnotherProcess::otherIsTold()
{
    QByteArray changes("0");
    const bool isTold = QTest::qWaitFor([&] { return (changes = other->ask("changes")) != "0"; }, patienceMs);
    return isTold && changes == "1";
}

QString TestAnotherProcess::label(const char *name) const
{
    return window->findChild<QLabel *>(QString::fromLatin1(name))->text();
}

QPushButton *TestAnotherProcess::button(const char *text) const
{
    const QList<QPushButton *> buttons = window->findChildren<QPushButton *>();
    const auto found = std::find_if(buttons.begin(), buttons.end(), [text](const QPushButton *each) {
        return each->text().remove(u'&') == QLatin1StringView(text);
    });
    return found == buttons.end() ? nullptr : *found;
}

void TestAnotherProcess::whatTheOtherSetsIsShown_data()
{
    QTest::addColumn<First>("first");
    QTest::newRow("where it records") << First::Other;
    QTest::newRow("where the window records") << First::Window;
}

void TestAnotherProcess::whatTheOtherSetsIsShown()
{
    QFETCH(First, first);
    begin(first);
    QVERIFY(!QTest::currentTestFailed());
    otherDoes("pay 100");
    QCOMPARE(label("credit"), "Credit: 100.00 units");
    otherDoes("limit 66051");
    QCOMPARE(label("EF_ACMmax content"), "01 02 03  =  66051 units");
    otherDoes("pin 1234", "0 1");
    QCOMPARE(label("pin2 state"), "On, and entered.\nTries left: PIN2 3, PUK2 10.");
    otherDoes("pin 4321", "0 0");
    QCOMPARE(label("pin2 state"), "On, not entered.\nTries left: PIN2 2, PUK2 10.");
}

void TestAnotherProcess::aCallThatTheOtherRecordsIsShownFromItsBeginningToItsReset()
{
    begin(First::Other);
    QVERIFY(!QTest::currentTestFailed());
    otherDoes("dial 5550101");
    otherDoes("connect");
    QCOMPARE(other->ask("advance 7000"), QByteArray("0"));
    clock->advance(7000);
    QTRY_COMPARE_WITH_TIMEOUT(label("figure Dialed calls"), "00:00:07",
                              patienceMs); // though nothing is written yet
    QVERIFY(window->openScreen(0));
    auto *const times = qobject_cast<ZListBox *>(ZApplication::keyTarget());
    QVERIFY(times);
    QVERIFY(times->item(1)->value().endsWith("00:00:07"));
    otherDoes("hang-up");
    QCOMPARE(label("figure Dialed calls"), "00:00:07");
    otherDoes("reset-dialed");
    QCOMPARE(label("figure Dialed calls"), "00:00:00");
    QCOMPARE(label("figure Lifetime calls"), "00:00:07");
}

void TestAnotherProcess::aDataScreenFollowsASessionThatTheOtherRecords()
{
    begin(First::Other);
    QVERIFY(!QTest::currentTestFailed());
    QVERIFY(window->openScreen(3));
    auto *const list = qobject_cast<ZListBox *>(ZApplication::keyTarget());
    QVERIFY(list);
    QCOMPARE(list->item(1)->title(), "GPRS Data Session 1");
    QCOMPARE(other->ask("start-session"), QByteArray("0"));
    QTRY_COMPARE_WITH_TIMEOUT(list->item(1)->title(), "x", patienceMs);
    QTRY_VERIFY_WITH_TIMEOUT(label("session 1").contains("(id 1), 00:00:00"), patienceMs);
}

void TestAnotherProcess::whatTheWindowDoesReachesTheOther_data()
{
    whatTheOtherSetsIsShown_data();
}

void TestAnotherProcess::whatTheWindowDoesReachesTheOther()
{
    QFETCH(First, first);
    begin(first);
    QVERIFY(!QTest::currentTestFailed());
    window->choosePage(1);
    window->findChild<QLineEdit *>("top-up amount")->setText("50");
    button("Top up")->click();
    QVERIFY(otherIsTold());
    QCOMPARE(other->ask("costs"), QByteArray("0.00 0.00 50.00"));
    window->choosePage(2);
    QTest::keyClicks(window->findChild<QWidget *>("pin2"), "1234");
    button("Enter")->click(); // it may lie below what the panel shows
    QVERIFY(otherIsTold());
    QCOMPARE(other->ask("pin-status"),
             QByteArray::number(handset::SimSecurity::NoEntryNeeded) + " 3"); // entered, with all tries left
}

void TestAnotherProcess::aCallThatTheWindowRecordsReachesTheOther()
{
    begin(First::Window);
    QVERIFY(!QTest::currentTestFailed());
    window->findChild<QLineEdit *>("number")->setText("5550101");
    button("Dial")->click();
    QVERIFY(otherIsTold());
    button("Other side answers")->click();
    QVERIFY(otherIsTold());
    clock->advance(9000);
    QCOMPARE(other->ask("advance 9000"), QByteArray("0"));
    QCOMPARE(other->ask("times"), QByteArray("9 9 0 9"));
    button("Hang up")->click();
    QVERIFY(otherIsTold());
    QVERIFY(window->openScreen(0)); // and there the user resets the dialed calls
    PhoneScreen::press(ZKeys::PhoneKey::Down);
    PhoneScreen::press(ZKeys::PhoneKey::Select);
    PhoneScreen::press(ZKeys::PhoneKey::LeftSoftkey);
    QVERIFY(otherIsTold());
    QCOMPARE(other->ask("times"), QByteArray("9 0 0 9"));
}

void TestAnotherProcess::theWindowRecordsWhenTheOtherIsKilled()
{
    begin(First::Other);
    QVERIFY(!QTest::currentTestFailed());
    otherDoes("dial 5550101");
    otherDoes("connect");
    QCOMPARE(other->ask("advance 4000"), QByteArray("0"));
    QCOMPARE(other->ask("checkpoint"), QByteArray("0"));
    clock->advance(4000);
    other->kill();
    QSignalSpy spy(handset, &SimulatedHandset::changed);
    QTRY_COMPARE_WITH_TIMEOUT(spy.count(), 1, patienceMs); // it has taken over
    QCOMPARE(label("figure Dialed calls"), "00:00:04");
    QCOMPARE(label("line state"), "Idle");
    button("Dial")->click();
    QVERIFY(label("line state").startsWith("Dialing"));
}

void TestAnotherProcess::aTelephoneIsPutAsideOnceNobodyHasItOpen()
{
    begin(First::Other);
    otherDoes("dial 5550101");
    window.reset();
    handset::install(nullptr);
    owner.reset();
    const QString log = QDir(state->path()).filePath("calllog.db");
    handset::PutAside before = handset::putAside(state->path());
    QVERIFY2(before.error.contains("handset_other"), qPrintable(before.error)); // who is in the way
    QVERIFY(QFile::exists(log));
    other.reset();
    before = handset::putAside(state->path());
    QCOMPARE(before.error, QString());
    QCOMPARE(before.kept, QStringLiteral("calllog-kept-1.db"));
    QVERIFY(!QFile::exists(log));
    const handset::Opened anew = handset::open({"simulated", state->path()});
    QVERIFY2(anew.handset && anew.notice.isEmpty(), qPrintable(anew.error + anew.notice));
    qint64 calls = -1;
    QCOMPARE(anew.handset->keptCalls()->count(0, handset::KeptCalls::endOfTime, calls), 0);
    QCOMPARE(calls, 0);
}

KAV_TEST_GROUP(TestAnotherProcess, QApplication);

#include "tst_another_process.moc"
