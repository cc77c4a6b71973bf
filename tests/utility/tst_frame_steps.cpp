// What the Call Times screen asks of the toolkit, call by call, with the exact arguments and in the exact order.
#include "utility/PHONE_UI_RecentCallTimesView.h"

#include "support/PhoneScreen.h"
#include "support/PhoneTest.h"
#include "support/PluginLibrary.h"
#include "support/PrivateAccess.h"
#include "support/RecordingTranslator.h"
#include "support/ToolkitRecorder.h"

#include "utility/PHONE_UI_RecentCallMeter.h"

using handset::CallTime;
using ZKeys::PhoneKey;
using CallTimes = HostedScreen<PHONE_UI_RecentCallTimesView>;

KAV_EXPOSE(Meter, &PHONE_UI_RecentCallTimesView::meter);

namespace {

// What follows the frame: the services and the six rows, all figures as TestFrameSteps::init() scripts them.
const QStringList fillingSteps{
    "PHONE_MsgClient(screen, null)",
    "msgClient.getTotalByteAndConnectedDuration()",
    "DataCalls::refreshTotals",
    "DataCalls::totalDuration",
    "ZSettingItem(list, null)",
    "row 0.appendSubItem(0, \"Last Call\", false, 0)",
    "CallLog::lastCallTime",
    "row 0.appendSubItem(0, \"01:01:01\", false, 1)",
    "list.insertItem(row 0, -1, true)",
    "ZSettingItem(list, null)",
    "row 1.appendSubItem(0, \"Dialed Calls\", false, 0)",
    "CallLog::dialedCallsTime",
    "row 1.appendSubItem(0, \"02:02:02\", false, 1)",
    "list.insertItem(row 1, -1, true)",
    "ZSettingItem(list, null)",
    "row 2.appendSubItem(0, \"Answered Calls\", false, 0)",
    "CallLog::answeredCallsTime",
    "row 2.appendSubItem(0, \"03:03:03\", false, 1)",
    "list.insertItem(row 2, -1, true)",
    "ZSettingItem(list, null)",
    "row 3.appendSubItem(0, \"Data Calls\", false, 0)",
    "row 3.appendSubItem(0, \"01:02:05\", false, 1)",
    "list.insertItem(row 3, -1, true)",
    "ZSettingItem(list, null)",
    "row 4.appendSubItem(0, \"All Calls\", false, 0)",
    "CallService::totalCallTime",
    "row 4.appendSubItem(0, \"05:05:05\", false, 1)",
    "list.insertItem(row 4, -1, true)",
    "ZSettingItem(list, null)",
    "row 5.appendSubItem(0, \"Lifetime Calls\", false, 0)",
    "CallLog::lifetimeCallsTime",
    "row 5.appendSubItem(0, \"06:06:06\", false, 1)",
    "list.insertItem(row 5, -1, true)",
};

// The frame of a screen that is created with `name` in a parent called host.
QStringList frameSteps(const char *name, const QString &title, QSize content)
{
    return {
        QStringLiteral("ZKbMainWidget(host, \"%1\", 0)").arg(QLatin1String(name)),
        QStringLiteral("screen.setMainWidgetTitle(\"%1\")").arg(title),
        "ZSoftKey(\"CST_2A\", screen, null)",
        "softKey.setText(1, \"Back\", 0)",
        "softKey.setText(0, \"\", 0)",
        "softKey.setClickedSlot(1, screen, \"2closeWidget()\")",
        "screen.setCSTWidget(softKey)",
        "screen.getContentWidget(true)",
        "ZListBox(\"%M\", content, 0, 40)",
        QStringLiteral("list.setGeometry(0, 0, %1, %2)").arg(content.width()).arg(content.height()),
        "connect(list, \"2selected(ZSettingItem *)\", screen, \"1slotSelectedItem(ZSettingItem *)\")",
        "connect(screen, \"2clearKeyClicked()\", screen, \"2closeWidget()\")",
    };
}

// A dialog of the screen with its connections.
QStringList questionSteps(int number, const QString &message)
{
    const QString dialog = QStringLiteral("dialog %1").arg(number);
    return {
        QStringLiteral("ZMessageDlg(\"Reset Timer\", \"%1\", 1, 0, screen, null, true, 0)").arg(message),
        QStringLiteral("connect(%1, \"2leftSoftkeyClicked()\", screen, \"1slotYes()\")").arg(dialog),
        QStringLiteral("connect(%1, \"2rightSoftkeyClicked()\", screen, \"1slotNo()\")").arg(dialog),
        dialog + ".show()",
    };
}

} // namespace

class TestFrameSteps : public PhoneTest
{
    Q_OBJECT

private slots:
    void init();

    void theFrameIsBuiltInTenStepsAndThenFilled();
    void everyScreenOfTheHostBuildsTheSameFrame_data();
    void everyScreenOfTheHostBuildsTheSameFrame();
    void textsAreLookedUpWhereTheyAreNeeded();
    void nullNameAndParentArePassedOn();
    void backAndClearMakeTheScreenDoNothing();
    void aRowThatCannotBeResetMakesTheScreenDoNothing_data();
    void aRowThatCannotBeResetMakesTheScreenDoNothing();
    void aQuestionIsMadeConnectedAndShown_data();
    void aQuestionIsMadeConnectedAndShown();
    void aSingleResetRewritesItsRowAndDeletesTheQuestion_data();
    void aSingleResetRewritesItsRowAndDeletesTheQuestion();
    void anAllCallsResetReadsTheDataTimeAndRewritesSixRows();
    void aDataCallResetIsConfirmedToTheMessageClient();
    void aRefusalShowsANoticeOfItsOwn();
    void noDeletesTheQuestionAndDoesNothingElse();
    void theScreenTakesMeterThenNoticeThenClientWithIt();

private:
    void reset(const CallTimes &screen, int row);
};

void TestFrameSteps::init()
{
    PhoneTest::init();
    ToolkitRecorder::restart();
    script().answer("CallLog::lastCallTime", CallTime{1, 1, 1});
    script().answer("CallLog::dialedCallsTime", CallTime{2, 2, 2});
    script().answer("CallLog::answeredCallsTime", CallTime{3, 3, 3});
    script().answer("DataCalls::totalDuration", quint32{3725});
    script().answer("CallService::totalCallTime", CallTime{5, 5, 5});
    script().answer("CallLog::lifetimeCallsTime", CallTime{6, 6, 6});
}

// Chooses the row and confirms; the journal then holds what the confirmation did.
void TestFrameSteps::reset(const CallTimes &screen, int row)
{
    screen.get()->show();
    PhoneScreen::chooseRow(screen.get(), row);
    journal.take();
    PhoneScreen::press(PhoneKey::LeftSoftkey);
}

void TestFrameSteps::theFrameIsBuiltInTenStepsAndThenFilled()
{
    QWidget host;
    journal.nameObject(&host, "host");
    const CallTimes screen("callTime", &host, "callTime");
    const QStringList steps = journal.take();
    const QSize content = screen->getContentWidget(false)->size();
    COMPARE_LINES(steps, frameSteps("callTime", "Call Times", content) + fillingSteps);
}

void TestFrameSteps::everyScreenOfTheHostBuildsTheSameFrame_data()
{
    QTest::addColumn<QByteArray>("names");
    QTest::addColumn<QString>("title");
    QTest::newRow("Call Costs") << QByteArray("callCost") << "Call Costs";
    QTest::newRow("Data Times") << QByteArray("dataTime") << "Data Times";
    QTest::newRow("Data Volumes") << QByteArray("dataVolume") << "Data Volumes";
}

void TestFrameSteps::everyScreenOfTheHostBuildsTheSameFrame()
{
    QFETCH(const QByteArray, names);
    QFETCH(const QString, title);
    QWidget host;
    journal.nameObject(&host, "host");
    const HostedScreen<ZKbMainWidget> screen(names.constData(), &host, names.constData());
    const QStringList steps = journal.take();
    const QSize content = screen->getContentWidget(false)->size();
    const QStringList expected = frameSteps(names.constData(), title, content);
    COMPARE_LINES(steps.mid(0, expected.size()), expected);
}

void TestFrameSteps::textsAreLookedUpWhereTheyAreNeeded()
{
    RecordingTranslator translator;
    translator.setJournalled(true);
    const CallTimes screen("callTime");
    const QStringList lines = journal.lines();
    // The text is looked up after the step before the one that uses it.
    const auto isLookedUpBetween = [&](const char *before, const char *key, const char *use) {
        const qsizetype at = lines.indexOf(QStringLiteral("translate \"%1\"").arg(QLatin1StringView(key)));
        return at >= 0 && lines.indexOf(before) < at && at < lines.indexOf(use);
    };
    QVERIFY(isLookedUpBetween("ZKbMainWidget(null, null, 0)", "TXT_RID_HEADER_CALL_TIMES",
                              "screen.setMainWidgetTitle(\"Call Times\")"));
    QVERIFY(isLookedUpBetween("ZSoftKey(\"CST_2A\", screen, null)", "TXT_RID_SOFTKEY_BACK",
                              "softKey.setText(1, \"Back\", 0)"));
    QVERIFY(isLookedUpBetween("softKey.setText(1, \"Back\", 0)", "", "softKey.setText(0, \"\", 0)"));
    // The first row's stands for all: the others are made by the same step.
    QVERIFY(isLookedUpBetween("ZSettingItem(list, null)", "TXT_RID_SETTING_A_LAST_CALL",
                              "row 0.appendSubItem(0, \"Last Call\", false, 0)"));
    QVERIFY(isLookedUpBetween("list.insertItem(row 0, -1, true)", "TXT_RID_SETTING_A_DIALED_CALLS",
                              "row 1.appendSubItem(0, \"Dialed Calls\", false, 0)"));
}

void TestFrameSteps::nullNameAndParentArePassedOn()
{
    const CallTimes screen("callTime", nullptr, nullptr);
    QCOMPARE(journal.lines().value(0), QString("ZKbMainWidget(null, null, 0)"));
}

void TestFrameSteps::backAndClearMakeTheScreenDoNothing()
{
    const CallTimes screen("callTime");
    screen->show();
    journal.take();
    PhoneScreen::press(PhoneKey::RightSoftkey);
    PhoneScreen::press(PhoneKey::Clear);
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    COMPARE_LINES(journal.lines(), QStringList());
}

void TestFrameSteps::aRowThatCannotBeResetMakesTheScreenDoNothing_data()
{
    QTest::addColumn<int>("row");
    QTest::newRow("Last Call") << 0;
    QTest::newRow("Lifetime Calls") << 5;
}

void TestFrameSteps::aRowThatCannotBeResetMakesTheScreenDoNothing()
{
    QFETCH(const int, row);
    const CallTimes screen("callTime");
    screen->show();
    journal.take();
    PhoneScreen::chooseRow(screen.get(), row);
    COMPARE_LINES(journal.lines(), QStringList());
}

void TestFrameSteps::aQuestionIsMadeConnectedAndShown_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("message");
    QTest::newRow("Dialed Calls") << 1 << "Would you like to reset the Dialed Calls timer?";
    QTest::newRow("Answered Calls") << 2 << "Would you like to reset the Answered Calls timer?";
    QTest::newRow("Data Calls") << 3 << "Would you like to reset the Circuit Switching Data Calls timer?";
    QTest::newRow("All Calls") << 4 << "Would you like to reset the All Calls timer?";
}

void TestFrameSteps::aQuestionIsMadeConnectedAndShown()
{
    QFETCH(const int, row);
    QFETCH(const QString, message);
    const CallTimes screen("callTime");
    screen->show();
    journal.take();
    PhoneScreen::chooseRow(screen.get(), row);
    COMPARE_LINES(journal.lines(), questionSteps(1, message));
}

void TestFrameSteps::aSingleResetRewritesItsRowAndDeletesTheQuestion_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QStringList>("steps");
    QTest::newRow("Dialed Calls") << 1
                                  << QStringList{"CallLog::resetDialedCallsTime", "CallLog::dialedCallsTime",
                                                 "row 1.setSubItem(0, 1, \"02:02:02\", false, 1)",
                                                 "delete dialog 1"};
    QTest::newRow("Answered Calls") << 2
                                    << QStringList{"CallLog::resetAnsweredCallsTime", "CallLog::answeredCallsTime",
                                                   "row 2.setSubItem(0, 1, \"03:03:03\", false, 1)",
                                                   "delete dialog 1"};
}

void TestFrameSteps::aSingleResetRewritesItsRowAndDeletesTheQuestion()
{
    QFETCH(const int, row);
    QFETCH(const QStringList, steps);
    const CallTimes screen("callTime");
    reset(screen, row);
    COMPARE_LINES(journal.lines(), steps);
}

void TestFrameSteps::anAllCallsResetReadsTheDataTimeAndRewritesSixRows()
{
    const CallTimes screen("callTime");
    reset(screen, 4);
    COMPARE_LINES(journal.lines(), QStringList({
                                       "CallService::resetCallTime",
                                       "msgClient.getTotalByteAndConnectedDuration()",
                                       "DataCalls::refreshTotals",
                                       "DataCalls::totalDuration",
                                       "CallLog::lastCallTime",
                                       "row 0.setSubItem(0, 1, \"01:01:01\", false, 1)",
                                       "CallLog::dialedCallsTime",
                                       "row 1.setSubItem(0, 1, \"02:02:02\", false, 1)",
                                       "CallLog::answeredCallsTime",
                                       "row 2.setSubItem(0, 1, \"03:03:03\", false, 1)",
                                       "row 3.setSubItem(0, 1, \"01:02:05\", false, 1)",
                                       "CallService::totalCallTime",
                                       "row 4.setSubItem(0, 1, \"05:05:05\", false, 1)",
                                       "CallLog::lifetimeCallsTime",
                                       "row 5.setSubItem(0, 1, \"06:06:06\", false, 1)",
                                       "delete dialog 1",
                                   }));
}

void TestFrameSteps::aDataCallResetIsConfirmedToTheMessageClient()
{
    const CallTimes screen("callTime");
    reset(screen, 3);
    COMPARE_LINES(journal.lines(), QStringList({
                                       "DataCalls::callStatus",
                                       "msgClient.resetTotalDuration(true)",
                                       "DataCalls::resetTotalDuration",
                                       "row 3.setSubItem(0, 1, \"00:00:00\", false, 1)",
                                       "delete dialog 1",
                                   }));
}

void TestFrameSteps::aRefusalShowsANoticeOfItsOwn()
{
    script().answer("DataCalls::callStatus", quint8{1});
    const CallTimes screen("callTime");
    reset(screen, 3);
    COMPARE_LINES(
        journal.take(),
        QStringList({
            "DataCalls::callStatus",
            "ZMessageDlg(\"\", \"Current request cannot be completed, while you are in calling. \", 2, 0, null, "
            "null, false, 0)",
            "dialog 2.show()",
            "row 3.setSubItem(0, 1, \"01:02:05\", false, 1)",
            "delete dialog 1",
        }));

    PhoneScreen::press(PhoneKey::LeftSoftkey); // puts the notice away
    reset(screen, 3);
    COMPARE_LINES(journal.lines(), QStringList({
                                       "DataCalls::callStatus",
                                       "dialog 2.show()",
                                       "row 3.setSubItem(0, 1, \"01:02:05\", false, 1)",
                                       "delete dialog 3",
                                   }));
}

void TestFrameSteps::noDeletesTheQuestionAndDoesNothingElse()
{
    const CallTimes screen("callTime");
    screen->show();
    PhoneScreen::chooseRow(screen.get(), 4);
    journal.take();
    PhoneScreen::press(PhoneKey::RightSoftkey);
    COMPARE_LINES(journal.lines(), QStringList("delete dialog 1"));
}

void TestFrameSteps::theScreenTakesMeterThenNoticeThenClientWithIt()
{
    script().answer("DataCalls::callStatus", quint8{3});
    CallTimes screen("callTime");
    reset(screen, 3);
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    PhoneScreen::chooseRow(screen.get(), 1);
    connect(screen.get()->*exposed(Meter()), &QObject::destroyed, this,
            [this] { journal.record("delete meter"); });
    journal.take();
    screen.destroy();
    // Meter and notice are the screen's own to delete; the rest goes with the screen as its children.
    QCOMPARE(journal.lines().mid(0, 2), QStringList({"delete meter", "delete dialog 2"}));
    QStringList children = journal.lines().mid(2);
    children.sort();
    QCOMPARE(children, QStringList({"delete dialog 3", "delete msgClient"}));
}

KAV_TEST_GROUP(TestFrameSteps, QApplication);
#include "tst_frame_steps.moc"
