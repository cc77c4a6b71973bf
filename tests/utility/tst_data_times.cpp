// The Data Times screen: rows, notices, the reset.
#include "utility/PHONE_UI_RecentCallDataTimesView.h"

#include "support/PhoneScreen.h"
#include "support/PhoneTest.h"
#include "support/PluginLibrary.h"
#include "support/PrivateAccess.h"
#include "support/RecordingTranslator.h"

#include "qt/QCopChannel.h"
#include "toolkit/ZListBox.h"
#include "toolkit/ZMessageDlg.h"
#include "toolkit/ZSettingItem.h"
#include "utility/PHONE_UI_RecentCallMeter.h"

#include <QtCore/QPointer>
#include <QtTest/QSignalSpy>

using handset::CallTime;
using handset::DataSessions;
using ZKeys::PhoneKey;
using View = PHONE_UI_RecentCallDataTimesView;
using DataTimes = HostedScreen<View>;

KAV_EXPOSE(OpenDlg, &View::openDlg);
KAV_EXPOSE(TimesMeter, &View::meter);
KAV_EXPOSE(ItemTitle, &View::getItemTitle);
KAV_EXPOSE(ItemValue, &View::getItemValue);

namespace {

constexpr int totalRow = 5;
constexpr int resetRow = 6;

DataSessions sessions(const char *first, const char *second, const char *third)
{
    DataSessions made;
    made.count = 3;
    made.records[0] = {1, 0, 0, {1, 2, 3}, first};
    made.records[1] = {2, 0, 0, {0, 10, 0}, second};
    made.records[2] = {3, 0, 0, {12, 0, 9}, third};
    return made;
}

QStringList rows(const QString &first, const QString &second, const QString &third)
{
    return {"Current Data Session|", first + "|01:02:03",  second + "|00:10:00",      third + "|12:00:09",
            "All Data Sessions|",    "Total Time|100:0:0", "Reset All Data Sessions|"};
}

QList<int> rewrittenRows(const QSignalSpy &dataChanged)
{
    QList<int> changed;
    for (const auto &arguments : dataChanged)
        changed.append(arguments.at(0).toModelIndex().row());
    return changed;
}

} // namespace

class TestDataTimes : public PhoneTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void sessionsAreCalledByTheirAccessPoint();
    void aSessionWithoutAnAccessPointHasItsFallbackName();
    void aRowOutsideTheTableHasNoTitleAndNoValue();
    void sessionsAreAskedBeforeTheTotalAndOnceOnly();
    void theFrameIsTheCommonOne();
    void theScreenIsAFrameOfItsOwnClass();
    void slotsAndSignalsHaveTheirOrder();
    void backAndClearEmitCloseWidgetOnceEach();
    void separatorsHaveNoValueAndCannotBeReached();
    void choosingASeparatorOpensNothing_data();
    void choosingASeparatorOpensNothing();
    void choosingASessionTellsNameAndTime_data();
    void choosingASessionTellsNameAndTime();
    void theNoticeOfANamelessSessionUsesTheFallback();
    void anAccessPointWithPercentSignsIsToldAsItIs();
    void choosingTheTotalTellsIt();
    void answeringANoticeChangesNothing();
    void theResetIsAskedForWhateverGoesOn();
    void noToTheResetChangesNothing();
    void yesResetsAsksAgainAndRewritesFourRows();
    void aFailedResetShowsWhatTheHandsetStillHas();
    void aSecondDialogReplacesTheFirstWithoutDeletingIt();
    void failedQueriesShowDefaults();
    void aQueryThatFailsAloneTakesOnlyItsOwnFiguresAway_data();
    void aQueryThatFailsAloneTakesOnlyItsOwnFiguresAway();
    void aQueryThatFailsAfterTheResetShowsDefaultsNotOldFigures_data();
    void aQueryThatFailsAfterTheResetShowsDefaultsNotOldFigures();
    void anUpdateMessageIsNoneOfItsBusiness();
    void textsComeFromTheCatalogueInTheirContexts();
    void destroyingTheScreenTakesAnOpenDialogAlong();
    void destroyingTheScreenTakesItsMeterAlong();
    void destroyingNothingDoesNothing();

private:
    std::unique_ptr<DataTimes> hosted;
    View *screen() const { return hosted->get(); }
    void open();
    ZMessageDlg *dialog() const { return screen()->*exposed(OpenDlg()); }
};

void TestDataTimes::init()
{
    PhoneTest::init();
    script().answer("PacketData::sessions", sessions("internet", "mms", "wap"));
    script().answer("PacketData::totalDuration", CallTime{100, 0, 0});
}

void TestDataTimes::cleanup()
{
    hosted.reset();
    PhoneTest::cleanup();
}

void TestDataTimes::open()
{
    hosted = std::make_unique<DataTimes>("dataTime", nullptr, "dataTime");
    screen()->show();
}

void TestDataTimes::sessionsAreCalledByTheirAccessPoint()
{
    open();
    QCOMPARE(PhoneScreen::rows(screen()), rows("internet", "mms", "wap"));
    QCOMPARE(PhoneScreen::shownRows(screen()), rows("internet", "mms", "wap"));
}

void TestDataTimes::aSessionWithoutAnAccessPointHasItsFallbackName()
{
    script().answer("PacketData::sessions", sessions("", "", ""));
    open();
    QCOMPARE(PhoneScreen::rows(screen()),
             rows("GPRS Data Session 1", "GPRS Data Session 2", "GPRS Data Session 3"));
}

void TestDataTimes::aRowOutsideTheTableHasNoTitleAndNoValue()
{
    open();
    for (const int row : {-1, 7, 8}) {
        QVERIFY((screen()->*exposed(ItemTitle()))(row).isNull());
        QVERIFY((screen()->*exposed(ItemValue()))(row).isNull());
    }
}

void TestDataTimes::sessionsAreAskedBeforeTheTotalAndOnceOnly()
{
    const DataTimes built("dataTime");
    QCOMPARE(journal.lines(), QStringList({"PacketData::sessions", "PacketData::totalDuration"}));
    QVERIFY(!built->isVisible());
}

void TestDataTimes::theFrameIsTheCommonOne()
{
    open();
    QCOMPARE(screen()->mainWidgetTitle(), QString("Data Times"));
    QCOMPARE(PhoneScreen::softkey(screen(), ZSoftKey::LeftKey), QString());
    QCOMPARE(PhoneScreen::softkey(screen(), ZSoftKey::RightKey), QString("Back"));
    const QWidget *content = screen()->getContentWidget(true);
    QCOMPARE(PhoneScreen::list(screen())->geometry(), QRect(0, 0, content->width(), content->height()));
    QCOMPARE(screen()->className(), "PHONE_UI_RecentCallDataTimesView");
    QCOMPARE(screen()->objectName(), QString("dataTime"));
}

void TestDataTimes::theScreenIsAFrameOfItsOwnClass()
{
    QCOMPARE(View::staticMetaObject.superClass()->className(), "ZKbMainWidget");
    const DataTimes nameless("dataTime", nullptr, nullptr);
    QCOMPARE(nameless->objectName(), QString());
    QVERIFY(!nameless->parentWidget());
    QWidget host;
    const DataTimes inside("dataTime", &host, nullptr);
    QCOMPARE(inside->parentWidget(), &host);
    QVERIFY(inside->isHidden());
}

void TestDataTimes::slotsAndSignalsHaveTheirOrder()
{
    QStringList methods;
    const QMetaObject &meta = View::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        methods.append(QString::fromLatin1(meta.method(i).methodSignature()));
    QCOMPARE(methods,
             QStringList({"closeWidget()", "slotYes()", "slotClose()", "slotSelectedItem(ZSettingItem*)"}));
}

void TestDataTimes::backAndClearEmitCloseWidgetOnceEach()
{
    open();
    journal.clear();
    QSignalSpy closed(screen(), &View::closeWidget);
    PhoneScreen::press(PhoneKey::RightSoftkey);
    PhoneScreen::press(PhoneKey::Clear);
    QCOMPARE(closed.size(), 2);
    QCOMPARE(journal.lines(), QStringList());
}

void TestDataTimes::separatorsHaveNoValueAndCannotBeReached()
{
    open();
    ZListBox *list = PhoneScreen::list(screen());
    QVERIFY(list->item(0)->isSeparator());
    QVERIFY(list->item(4)->isSeparator());
    QCOMPARE(list->item(0)->type(), QString("%P"));
    QList<int> reached;
    for (int i = 0; i < 5; ++i) {
        reached.append(list->currentItem());
        PhoneScreen::press(PhoneKey::Down);
    }
    QCOMPARE(reached, QList<int>({1, 2, 3, 5, 6}));
    QCOMPARE(static_cast<ZSettingItem *>(list->item(resetRow))->subItemCount(), 1);
}

void TestDataTimes::choosingASeparatorOpensNothing_data()
{
    QTest::addColumn<int>("row");
    QTest::newRow("the heading of the current session") << 0;
    QTest::newRow("the heading of all sessions") << 4;
}

void TestDataTimes::choosingASeparatorOpensNothing()
{
    QFETCH(const int, row);
    open();
    journal.clear();
    auto *item = static_cast<ZSettingItem *>(PhoneScreen::list(screen())->item(row));
    QMetaObject::invokeMethod(screen(), "slotSelectedItem", Q_ARG(ZSettingItem *, item));
    QVERIFY(!dialog());
    QCOMPARE(journal.lines(), QStringList());
}

void TestDataTimes::choosingASessionTellsNameAndTime_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("message");
    QTest::newRow("first") << 1 << "The current Data Session time for internet is 01:02:03.";
    QTest::newRow("second") << 2 << "The current Data Session time for mms is 00:10:00.";
    QTest::newRow("third") << 3 << "The current Data Session time for wap is 12:00:09.";
}

void TestDataTimes::choosingASessionTellsNameAndTime()
{
    QFETCH(const int, row);
    QFETCH(const QString, message);
    open();
    journal.clear();
    PhoneScreen::chooseRow(screen(), row);
    QVERIFY(dialog());
    QVERIFY(dialog()->isVisible());
    QCOMPARE(dialog()->type(), ZMessageDlg::InformationDlg);
    QCOMPARE(dialog()->parentWidget(), screen());
    QCOMPARE(dialog()->header(), QString("Data Times"));
    QCOMPARE(dialog()->message(), message);
    QCOMPARE(journal.lines(), QStringList()); // what the meter has kept, not asked again
}

void TestDataTimes::theNoticeOfANamelessSessionUsesTheFallback()
{
    script().answer("PacketData::sessions", sessions("internet", "", "wap"));
    open();
    PhoneScreen::chooseRow(screen(), 2);
    QCOMPARE(dialog()->message(), QString("The current Data Session time for GPRS Data Session 2 is 00:10:00."));
}

void TestDataTimes::anAccessPointWithPercentSignsIsToldAsItIs()
{
    script().answer("PacketData::sessions", sessions("%1 %2 100%", "mms", "wap"));
    open();
    QCOMPARE(PhoneScreen::list(screen())->item(1)->title(), QString("%1 %2 100%"));
    PhoneScreen::chooseRow(screen(), 1);
    QCOMPARE(dialog()->message(), QString("The current Data Session time for %1 %2 100% is 01:02:03."));
}

void TestDataTimes::choosingTheTotalTellsIt()
{
    open();
    PhoneScreen::chooseRow(screen(), totalRow);
    QCOMPARE(dialog()->header(), QString("Data Times"));
    QCOMPARE(dialog()->message(), QString("The total time for all your data sessions is 100:0:0."));
}

void TestDataTimes::answeringANoticeChangesNothing()
{
    open();
    PhoneScreen::chooseRow(screen(), 1);
    const QPointer<ZMessageDlg> notice = dialog();
    QSignalSpy rewritten(PhoneScreen::list(screen())->model(), &QAbstractItemModel::dataChanged);
    journal.clear();
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    QVERIFY(!notice);
    QVERIFY(!dialog());
    QCOMPARE(rewritten.size(), 0);
    QCOMPARE(journal.lines(), QStringList());
    QMetaObject::invokeMethod(screen(), "slotClose"); // with nothing open
}

void TestDataTimes::theResetIsAskedForWhateverGoesOn()
{
    script().answer("DataCalls::callStatus", quint8(3));
    open();
    journal.clear();
    PhoneScreen::chooseRow(screen(), resetRow);
    QVERIFY(dialog());
    QCOMPARE(dialog()->type(), ZMessageDlg::QuestionDlg);
    QCOMPARE(dialog()->header(), QString("Reset"));
    QCOMPARE(dialog()->message(), QString("Are you sure you want to reset the data sessions timer?"));
    QCOMPARE(journal.lines(), QStringList());
}

void TestDataTimes::noToTheResetChangesNothing()
{
    open();
    PhoneScreen::chooseRow(screen(), resetRow);
    const QPointer<ZMessageDlg> question = dialog();
    QSignalSpy rewritten(PhoneScreen::list(screen())->model(), &QAbstractItemModel::dataChanged);
    journal.clear();
    PhoneScreen::press(PhoneKey::RightSoftkey);
    QVERIFY(!question);
    QVERIFY(!dialog());
    QCOMPARE(journal.lines(), QStringList());
    QCOMPARE(rewritten.size(), 0);
}

void TestDataTimes::yesResetsAsksAgainAndRewritesFourRows()
{
    open();
    PhoneScreen::chooseRow(screen(), resetRow);
    const QPointer<ZMessageDlg> question = dialog();
    script().answer("PacketData::sessions", sessions("renamed", "mms", "wap"));
    script().answer("PacketData::totalDuration", CallTime{});
    script().whenCalled("PacketData::resetTotalDuration", [&] { QVERIFY(question); });
    script().whenCalled("PacketData::sessions", [&] { QVERIFY(!question); });
    QSignalSpy rewritten(PhoneScreen::list(screen())->model(), &QAbstractItemModel::dataChanged);
    QSignalSpy removed(PhoneScreen::list(screen())->model(), &QAbstractItemModel::rowsRemoved);
    journal.clear();
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    QVERIFY(!dialog());
    QCOMPARE(journal.lines(),
             QStringList({"PacketData::resetTotalDuration", "PacketData::sessions", "PacketData::totalDuration"}));
    QCOMPARE(rewrittenRows(rewritten), QList<int>({1, 2, 3, 5}));
    QCOMPARE(removed.size(), 0);
    QStringList expected = rows("internet", "mms", "wap"); // labels are not rebuilt
    expected[totalRow] = QStringLiteral("Total Time|00:00:00");
    QCOMPARE(PhoneScreen::shownRows(screen()), expected);
}

void TestDataTimes::aFailedResetShowsWhatTheHandsetStillHas()
{
    open();
    script().fail("PacketData::resetTotalDuration", 3);
    PhoneScreen::chooseRow(screen(), resetRow);
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    QCOMPARE(PhoneScreen::rows(screen()), rows("internet", "mms", "wap"));
}

void TestDataTimes::aSecondDialogReplacesTheFirstWithoutDeletingIt()
{
    open();
    PhoneScreen::chooseRow(screen(), 1);
    const QPointer<ZMessageDlg> first = dialog();
    auto *item = static_cast<ZSettingItem *>(PhoneScreen::list(screen())->item(totalRow));
    QMetaObject::invokeMethod(screen(), "slotSelectedItem", Q_ARG(ZSettingItem *, item));
    const QPointer<ZMessageDlg> second = dialog();
    QVERIFY(first);
    QVERIFY(second);
    QVERIFY(first != second);
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    QVERIFY(first);
    QVERIFY(!second);
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    QVERIFY(!first || !first->isVisible());
}

void TestDataTimes::failedQueriesShowDefaults()
{
    script().failAll(2);
    open();
    const QString zero = QStringLiteral("00:00:00");
    QCOMPARE(PhoneScreen::rows(screen()),
             QStringList({"Current Data Session|", "GPRS Data Session 1|" + zero, "GPRS Data Session 2|" + zero,
                          "GPRS Data Session 3|" + zero, "All Data Sessions|", "Total Time|" + zero,
                          "Reset All Data Sessions|"}));
}

void TestDataTimes::aQueryThatFailsAloneTakesOnlyItsOwnFiguresAway_data()
{
    QTest::addColumn<QByteArray>("operation");
    QTest::newRow("the sessions") << QByteArray("PacketData::sessions");
    QTest::newRow("the total") << QByteArray("PacketData::totalDuration");
}

void TestDataTimes::aQueryThatFailsAloneTakesOnlyItsOwnFiguresAway()
{
    QFETCH(const QByteArray, operation);
    script().fail(operation.constData(), -1);
    open();
    const bool hasSessions = operation != "PacketData::sessions";
    const QStringList shown = PhoneScreen::shownRows(screen());
    QCOMPARE(shown.at(2), hasSessions ? QString("mms|00:10:00") : QString("GPRS Data Session 2|00:00:00"));
    QCOMPARE(shown.at(totalRow), hasSessions ? QString("Total Time|00:00:00") : QString("Total Time|100:0:0"));
}

void TestDataTimes::aQueryThatFailsAfterTheResetShowsDefaultsNotOldFigures_data()
{
    aQueryThatFailsAloneTakesOnlyItsOwnFiguresAway_data();
}

void TestDataTimes::aQueryThatFailsAfterTheResetShowsDefaultsNotOldFigures()
{
    QFETCH(const QByteArray, operation);
    open();
    script().fail(operation.constData(), 3);
    PhoneScreen::chooseRow(screen(), resetRow);
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    QStringList expected =
        rows("internet", "mms", "wap"); // labels stay, even those of sessions that are not known
    if (operation == "PacketData::sessions") {
        for (const int row : {1, 2, 3})
            expected[row] = expected.at(row).section(QLatin1Char('|'), 0, 0) + QLatin1String("|00:00:00");
    } else {
        expected[totalRow] = QStringLiteral("Total Time|00:00:00");
    }
    QCOMPARE(PhoneScreen::shownRows(screen()), expected);
    // The notice names the session anew, by what the meter has now.
    PhoneScreen::chooseRow(screen(), 1);
    QCOMPARE(dialog()->message(),
             operation == "PacketData::sessions"
                 ? QString("The current Data Session time for GPRS Data Session 1 is 00:00:00.")
                 : QString("The current Data Session time for internet is 01:02:03."));
}

void TestDataTimes::anUpdateMessageIsNoneOfItsBusiness()
{
    open();
    journal.clear();
    const QByteArray channel("/KAV/phone");
    QCopChannel witness(channel);
    QSignalSpy received(&witness, &QCopChannel::received);
    QCopChannel::send(channel, "/KAV/phone/RecentCall/Update");
    QTRY_COMPARE_WITH_TIMEOUT(received.size(), 1, 60'000);
    QCOMPARE(journal.lines(), QStringList());
}

void TestDataTimes::textsComeFromTheCatalogueInTheirContexts()
{
    script().answer("PacketData::sessions", sessions("", "", "wap"));
    RecordingTranslator translator;
    translator.add(QStringLiteral("TXT_RID_SETTING_A_GPRS_DATA_SESSION_2"), QString::fromUtf8("Données 2"));
    translator.add(QStringLiteral("FMT_RID_INSTRUCTIONALTXT_THE_CURRENT_2_DATA_SESSION_TIME_IS_1"),
                   QString::fromUtf8("%2 à %1"));
    open();
    QStringList asked;
    for (const RecordingTranslator::Request &request : translator.take())
        asked.append(request.context + QLatin1Char('/') + request.key);
    const QString own = QStringLiteral("PHONE_UI_RecentCallDataTimesView/");
    QCOMPARE(asked,
             QStringList(
                 {own + "TXT_RID_HEADER_DATA_TIMES", own + "TXT_RID_SOFTKEY_BACK", own,
                  "QObject/TXT_RID_SEPARATOR_RECENT_DATA_SESSION", "QObject/TXT_RID_SETTING_A_GPRS_DATA_SESSION_1",
                  "QObject/TXT_RID_SETTING_A_GPRS_DATA_SESSION_2", "QObject/TXT_RID_SEPARATOR_ALL_DATA_SESSIONS",
                  "QObject/TXT_RID_SETTING_A_TOTAL_TIME", "QObject/TXT_RID_SETTING_A_RESET_ALL_DATA_SESSIONS"}));
    PhoneScreen::chooseRow(screen(), 2);
    QCOMPARE(dialog()->message(), QString::fromUtf8("Données 2 à 00:10:00"));
}

void TestDataTimes::destroyingTheScreenTakesAnOpenDialogAlong()
{
    open();
    PhoneScreen::chooseRow(screen(), resetRow);
    const QPointer<ZMessageDlg> question = dialog();
    hosted->destroy();
    QVERIFY(!question);
}

void TestDataTimes::destroyingTheScreenTakesItsMeterAlong()
{
    open();
    const QPointer<PHONE_UI_RecentCallMeter> meter(screen()->*exposed(TimesMeter()));
    QVERIFY(meter);
    journal.clear();
    traces->take();
    hosted->destroy();
    QVERIFY(!meter);
    QCOMPARE(journal.lines(), QStringList());
    QCOMPARE(traces->text(), QString());
}

void TestDataTimes::destroyingNothingDoesNothing()
{
    PluginLibrary library;
    library.function<void(View *)>("destroy_dataTime")(nullptr);
    QCOMPARE(traces->take(), QString());
}

KAV_TEST_GROUP(TestDataTimes, QApplication);
#include "tst_data_times.moc"
