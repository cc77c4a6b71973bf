// Memory that runs out: every allocation of the plug-in fails once, one after the other.
#include "utility/PHONE_UI_RecentCallTimesView.h"

#include "support/AllocationFailure.h"
#include "support/PhoneScreen.h"
#include "support/PhoneTest.h"
#include "support/PluginLibrary.h"
#include "support/PrivateAccess.h"
#include "support/Sample.h"

#include "qt/QCString.h"
#include "toolkit/ZApplication.h"
#include "toolkit/ZKbMainWidget.h"
#include "toolkit/ZListBox.h"
#include "toolkit/ZPopup.h"
#include "utility/PHONE_UI_RecentCallCostsView.h"
#include "utility/PHONE_UI_RecentCallDataVolumesDetailView.h"

#include <QtTest/QSignalSpy>

#include <algorithm>

using handset::CallTime;
using ZKeys::PhoneKey;
using View = PHONE_UI_RecentCallTimesView;
using CallTimes = HostedScreen<View>;
using CostsView = PHONE_UI_RecentCallCostsView;
using DetailView = PHONE_UI_RecentCallDataVolumesDetailView;

KAV_EXPOSE(DataCallTimeText, &View::dataCallTimeText);
KAV_EXPOSE(CurrencyUnit, &CostsView::currencyUnit);
KAV_EXPOSE(SentText, &DetailView::sentText);
KAV_EXPOSE(ReceivedText, &DetailView::receivedText);
KAV_EXPOSE(SumText, &DetailView::sumText);

namespace {

// What the plug-in allocates while it opens the screen, in order.
enum Allocation {
    ScreenItself = 1,
    SoftkeyBar,
    List,
    Meter,
    MessageClient,
    FirstRow,
    LastRow = FirstRow + 5,
    // and while the screen is used
    FirstDialog
};

// And for the screens of the data volumes.
constexpr int VolumesMeter = 5; // after screen, softkey bar, list and channel
constexpr int DetailMeter = 6;  // after screen, softkey bar, two labels and list

handset::DataSessions namedSessions()
{
    handset::DataSessions sessions;
    sessions.count = 3;
    sessions.records[0] = {1, 10, 20, {}, "internet"};
    sessions.records[1] = {2, 30, 40, {}, "mms"};
    sessions.records[2] = {3, 50, 60, {}, "wap"};
    return sessions;
}

QStringList volumeRows(const QString &first, const QString &second, const QString &third)
{
    return {"Current Data Session|",
            first + "|",
            second + "|",
            third + "|",
            "All Data Sessions|",
            "Total Data Transferred|",
            "Reset All Data Sessions|"};
}

void tellUpdate(ZKbMainWidget *screen)
{
    QMetaObject::invokeMethod(screen, "slotUpdateChildWidgets",
                              Q_ARG(QCString, QCString("/KAV/phone/RecentCall/Update")),
                              Q_ARG(QByteArray, QByteArray()));
}

bool isAsking()
{
    return !PhoneScreen::shownDialogs().isEmpty();
}

bool isEmptyNotNull(const QString &text)
{
    return text.isEmpty() && !text.isNull();
}

int shownRowCount(const View *screen)
{
    const ZListBox *list = PhoneScreen::list(screen);
    return list ? list->count() : 0;
}

} // namespace

class TestAllocationFailures : public PhoneTest
{
    Q_OBJECT

private slots:
    void init();

    void openingAllocatesWhatIsListed();
    void whatIsMissingIsMissingAndTheRestWorks_data();
    void whatIsMissingIsMissingAndTheRestWorks();
    void withoutTheMeterNothingIsAskedOrAllocatedAnyMore();
    void withoutTheMessageClientNothingIsAsked();
    void aQuestionThatCannotBeMadeIsAskedTheNextTime();
    void aNoticeThatCannotBeMadeIsMadeTheNextTime();
    void noFailureAnywhereIsACrash();
    void aScreenWithoutItsMeterHasTitleAndBackAndNoRows();
    void whatIsMissingOnCallCostsIsMissingAndTheRestWorks_data();
    void whatIsMissingOnCallCostsIsMissingAndTheRestWorks();
    void aDetailOrSetupThatCannotBeMadeIsMadeTheNextTime_data();
    void aDetailOrSetupThatCannotBeMadeIsMadeTheNextTime();
    void aDataTimesScreenWithoutItsMeterHasNothingAtAll();
    void aDataVolumesScreenWithoutItsMeterShowsFallbackNames();
    void anUpdateMakesTheMeterThatWasMissing();
    void anUpdateWithoutMemoryForAMeterShowsFallbackNames();
    void aDetailWithoutItsMeterHasBlankFigures();
    void noFailureOnAnyOtherScreenIsACrash_data();
    void noFailureOnAnyOtherScreenIsACrash();

private:
    void useEverything();
    void useScreen(const char *names);
};

void TestAllocationFailures::init()
{
    PhoneTest::init();
    script().answer("DataCalls::totalDuration", quint32{3725});
    script().answer("DataCalls::callStatus", quint8{1});
}

void TestAllocationFailures::openingAllocatesWhatIsListed()
{
    const AllocationFailure none(0);
    const CallTimes screen("callTime");
    QCOMPARE(AllocationFailure::count(), int(LastRow));
}

void TestAllocationFailures::whatIsMissingIsMissingAndTheRestWorks_data()
{
    QTest::addColumn<int>("nth");
    QTest::addColumn<bool>("hasScreen");
    QTest::addColumn<bool>("hasSoftkeys");
    QTest::addColumn<bool>("hasList");
    QTest::addColumn<int>("rows");
    QTest::newRow("no failure: all there is") << 0 << true << true << true << 6;
    QTest::newRow("no screen: create answers null") << int(ScreenItself) << false << false << false << 0;
    QTest::newRow("no softkey bar: the clear key leaves") << int(SoftkeyBar) << true << false << true << 6;
    QTest::newRow("no list: title and Back") << int(List) << true << true << false << 0;
    QTest::newRow("no meter: title, Back and an empty list") << int(Meter) << true << true << true << 0;
    QTest::newRow("no message client: the same") << int(MessageClient) << true << true << true << 0;
    for (int row = 0; row < 6; ++row)
        QTest::addRow("no row %d: the rows before it", row) << FirstRow + row << true << true << true << row;
}

void TestAllocationFailures::whatIsMissingIsMissingAndTheRestWorks()
{
    QFETCH(const int, nth);
    QFETCH(const bool, hasScreen);
    QFETCH(const bool, hasSoftkeys);
    QFETCH(const bool, hasList);
    QFETCH(const int, rows);
    const AllocationFailure failure(nth);
    const CallTimes screen("callTime");
    QCOMPARE(AllocationFailure::happened(), nth > 0);
    QCOMPARE(screen.get() != nullptr, hasScreen);
    if (!hasScreen)
        return;
    screen->show();
    QCOMPARE(screen->mainWidgetTitle(), QString("Call Times"));
    QCOMPARE(screen->cstWidget() != nullptr, hasSoftkeys);
    QCOMPARE(PhoneScreen::softkey(screen.get(), ZSoftKey::RightKey), hasSoftkeys ? "Back" : QString());
    QCOMPARE(PhoneScreen::list(screen.get()) != nullptr, hasList);
    QCOMPARE(shownRowCount(screen.get()), rows);
    const QSignalSpy closed(screen.get(), "2closeWidget()");
    PhoneScreen::press(PhoneKey::Select);
    PhoneScreen::press(PhoneKey::RightSoftkey);
    QCOMPARE(closed.count(), hasSoftkeys ? 1 : 0);
    PhoneScreen::press(PhoneKey::Clear);
    QCOMPARE(closed.count(), hasSoftkeys ? 2 : 1);
}

void TestAllocationFailures::withoutTheMeterNothingIsAskedOrAllocatedAnyMore()
{
    const AllocationFailure failure(Meter);
    const CallTimes screen("callTime");
    QCOMPARE(AllocationFailure::count(), int(Meter));
    QCOMPARE(journal.lines(), QStringList());
    QCOMPARE(traces->text(), QString());
    QVERIFY(isEmptyNotNull(screen.get()->*exposed(DataCallTimeText())));
}

void TestAllocationFailures::withoutTheMessageClientNothingIsAsked()
{
    const AllocationFailure failure(MessageClient);
    const CallTimes screen("callTime");
    QCOMPARE(AllocationFailure::count(), int(MessageClient));
    QCOMPARE(journal.lines(), QStringList());
}

void TestAllocationFailures::aQuestionThatCannotBeMadeIsAskedTheNextTime()
{
    const CallTimes screen("callTime");
    screen->show();
    {
        const AllocationFailure failure(1);
        PhoneScreen::chooseRow(screen.get(), 1);
        QVERIFY(AllocationFailure::happened());
    }
    QVERIFY(!isAsking());
    journal.clear();
    PhoneScreen::chooseRow(screen.get(), 1);
    QVERIFY(isAsking());
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    QCOMPARE(journal.lines().value(0), QString("CallLog::resetDialedCallsTime"));
}

void TestAllocationFailures::aNoticeThatCannotBeMadeIsMadeTheNextTime()
{
    const CallTimes screen("callTime");
    screen->show();
    PhoneScreen::chooseRow(screen.get(), 3);
    journal.clear();
    {
        const AllocationFailure failure(1);
        PhoneScreen::press(PhoneKey::LeftSoftkey);
        QVERIFY(AllocationFailure::happened());
    }
    QVERIFY(!isAsking());
    QCOMPARE(journal.lines(), QStringList("DataCalls::callStatus"));
    PhoneScreen::chooseRow(screen.get(), 3);
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    QVERIFY(isAsking());
}

// Opens the screen, chooses every row there is and says yes, and leaves by both ways. During a data call.
void TestAllocationFailures::useEverything()
{
    CallTimes screen("callTime");
    if (!screen.get())
        return;
    screen->show();
    const QSignalSpy closed(screen.get(), "2closeWidget()");
    for (int row = 0; row < shownRowCount(screen.get()); ++row) {
        PhoneScreen::chooseRow(screen.get(), row);
        while (isAsking())
            PhoneScreen::press(PhoneKey::LeftSoftkey);
    }
    PhoneScreen::press(PhoneKey::RightSoftkey);
    PhoneScreen::press(PhoneKey::Clear);
    QVERIFY(closed.count() >= 1);
    screen.destroy();
}

void TestAllocationFailures::noFailureAnywhereIsACrash()
{
    int nth = 1;
    for (; nth < 1000; ++nth) {
        const AllocationFailure failure(nth);
        useEverything();
        if (QTest::currentTestFailed() || !AllocationFailure::happened())
            break;
    }
    // All that is listed, four questions and the notice have had their turn.
    QCOMPARE(nth, FirstDialog + 5);
}

void TestAllocationFailures::aScreenWithoutItsMeterHasTitleAndBackAndNoRows()
{
    const AllocationFailure failure(Meter); // after screen, softkey bar and list, as on Call Times
    const HostedScreen<CostsView> screen("callCost");
    QVERIFY(AllocationFailure::happened());
    QVERIFY(isEmptyNotNull(screen.get()->*exposed(CurrencyUnit())));
    screen->show();
    QCOMPARE(screen->mainWidgetTitle(), QString("Call Costs"));
    QCOMPARE(PhoneScreen::softkey(screen.get(), ZSoftKey::RightKey), QString("Back"));
    QCOMPARE(PhoneScreen::list(screen.get())->count(), 0);
    const QSignalSpy closed(screen.get(), "2closeWidget()");
    PhoneScreen::press(PhoneKey::RightSoftkey);
    PhoneScreen::press(PhoneKey::Clear);
    QCOMPARE(closed.count(), 2);
    QCOMPARE(journal.lines(), QStringList());
}

void TestAllocationFailures::whatIsMissingOnCallCostsIsMissingAndTheRestWorks_data()
{
    constexpr int firstRow = Meter + 1; // there is no message client
    QTest::addColumn<int>("nth");
    QTest::addColumn<bool>("hasSoftkeys");
    QTest::addColumn<bool>("hasList");
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("figures");
    QTest::newRow("no failure: all there is") << 0 << true << true << 8 << 7;
    QTest::newRow("no softkey bar: the clear key leaves") << int(SoftkeyBar) << false << true << 8 << 7;
    QTest::newRow("no list: title and Back") << int(List) << true << false << 0 << 0;
    QTest::newRow("no meter: title, Back and an empty list") << int(Meter) << true << true << 0 << 0;
    for (int row = 0; row < 8; ++row)
        QTest::addRow("no row %d: the rows before it", row) << firstRow + row << true << true << row << row;
}

void TestAllocationFailures::whatIsMissingOnCallCostsIsMissingAndTheRestWorks()
{
    QFETCH(const int, nth);
    QFETCH(const bool, hasSoftkeys);
    QFETCH(const bool, hasList);
    QFETCH(const int, rows);
    QFETCH(const int, figures);
    const AllocationFailure failure(nth);
    const HostedScreen<ZKbMainWidget> screen("callCost");
    QCOMPARE(AllocationFailure::happened(), nth > 0);
    screen->show();
    QCOMPARE(screen->mainWidgetTitle(), QString("Call Costs"));
    QCOMPARE(PhoneScreen::softkey(screen.get(), ZSoftKey::RightKey), hasSoftkeys ? "Back" : QString());
    const ZListBox *list = PhoneScreen::list(screen.get());
    QCOMPARE(list != nullptr, hasList);
    QCOMPARE(list ? list->count() : 0, rows);
    QCOMPARE(journal.startingWith("Call").size(), figures);
    const QSignalSpy closed(screen.get(), "2closeWidget()");
    PhoneScreen::press(PhoneKey::RightSoftkey);
    QCOMPARE(closed.count(), hasSoftkeys ? 1 : 0);
    PhoneScreen::press(PhoneKey::Clear);
    QCOMPARE(closed.count(), hasSoftkeys ? 2 : 1);
}

void TestAllocationFailures::aDetailOrSetupThatCannotBeMadeIsMadeTheNextTime_data()
{
    QTest::addColumn<int>("row");
    QTest::newRow("a detail") << 0;
    QTest::newRow("the setup") << 7;
}

void TestAllocationFailures::aDetailOrSetupThatCannotBeMadeIsMadeTheNextTime()
{
    QFETCH(const int, row);
    const HostedScreen<ZKbMainWidget> screen("callCost");
    screen->show();
    const QStringList rows = PhoneScreen::rows(screen.get());
    {
        const AllocationFailure failure(1);
        PhoneScreen::chooseRow(screen.get(), row);
        QVERIFY(AllocationFailure::happened());
    }
    const auto isOpen = [&] { return isAsking() || screen->findChild<ZKbMainWidget *>(); };
    QVERIFY(!isOpen());
    QCOMPARE(PhoneScreen::rows(screen.get()), rows);
    PhoneScreen::press(PhoneKey::Select);
    QVERIFY(isOpen());
    PhoneScreen::press(row == 0 ? PhoneKey::LeftSoftkey : PhoneKey::RightSoftkey);
    QVERIFY(!isOpen());
}

void TestAllocationFailures::aDataTimesScreenWithoutItsMeterHasNothingAtAll()
{
    const AllocationFailure failure(ScreenItself + 1); // the meter comes before the frame
    const HostedScreen<ZKbMainWidget> screen("dataTime");
    QVERIFY(AllocationFailure::happened());
    QCOMPARE(AllocationFailure::count(), ScreenItself + 1);
    screen->show();
    QCOMPARE(screen->mainWidgetTitle(), QString());
    QVERIFY(!screen->cstWidget());
    QVERIFY(!screen->getContentWidget(false));
    QVERIFY(!PhoneScreen::list(screen.get()));
    const QSignalSpy closed(screen.get(), "2closeWidget()");
    PhoneScreen::press(PhoneKey::RightSoftkey);
    PhoneScreen::press(PhoneKey::Clear);
    QCOMPARE(closed.count(), 0);
    QCOMPARE(journal.lines(), QStringList());
    QCOMPARE(traces->text(), QString());
}

void TestAllocationFailures::aDataVolumesScreenWithoutItsMeterShowsFallbackNames()
{
    script().answer("PacketData::sessions", namedSessions());
    const AllocationFailure failure(VolumesMeter);
    const HostedScreen<ZKbMainWidget> screen("dataVolume");
    QVERIFY(AllocationFailure::happened());
    COMPARE_LINES(PhoneScreen::rows(screen.get()),
                  volumeRows("GPRS Data Session 1", "GPRS Data Session 2", "GPRS Data Session 3"));
    screen->show();
    PhoneScreen::chooseRow(screen.get(), 6);
    PhoneScreen::press(PhoneKey::LeftSoftkey); // nobody to tell the reset
    QVERIFY(!isAsking());
    QCOMPARE(journal.lines(), QStringList());
}

void TestAllocationFailures::anUpdateMakesTheMeterThatWasMissing()
{
    script().answer("PacketData::sessions", namedSessions());
    const AllocationFailure failure(VolumesMeter);
    const HostedScreen<ZKbMainWidget> screen("dataVolume");
    QVERIFY(AllocationFailure::happened());
    tellUpdate(screen.get());
    COMPARE_LINES(PhoneScreen::rows(screen.get()), volumeRows("internet", "mms", "wap"));
}

void TestAllocationFailures::anUpdateWithoutMemoryForAMeterShowsFallbackNames()
{
    script().answer("PacketData::sessions", namedSessions());
    const HostedScreen<ZKbMainWidget> screen("dataVolume");
    journal.clear();
    const AllocationFailure failure(1);
    tellUpdate(screen.get());
    QVERIFY(AllocationFailure::happened());
    QCOMPARE(journal.lines(), QStringList());
    COMPARE_LINES(PhoneScreen::rows(screen.get()),
                  volumeRows("GPRS Data Session 1", "GPRS Data Session 2", "GPRS Data Session 3"));
}

void TestAllocationFailures::aDetailWithoutItsMeterHasBlankFigures()
{
    script().answer("PacketData::sessions", namedSessions());
    const HostedScreen<ZKbMainWidget> screen("dataVolume");
    screen->show();
    journal.clear();
    {
        const AllocationFailure failure(DetailMeter);
        PhoneScreen::chooseRow(screen.get(), 1);
        QVERIFY(AllocationFailure::happened());
    }
    const auto *detail = screen->findChild<DetailView *>();
    QVERIFY(detail && detail->isVisible());
    QVERIFY(isEmptyNotNull(detail->*exposed(SentText())));
    QVERIFY(isEmptyNotNull(detail->*exposed(ReceivedText())));
    QVERIFY(isEmptyNotNull(detail->*exposed(SumText())));
    COMPARE_LINES(PhoneScreen::rows(detail),
                  QStringList({"Current Data Session|", "internet|", "Sent|", "Received|", "Sum|"}));
    PhoneScreen::press(PhoneKey::Select);
    QVERIFY(isAsking());
    QCOMPARE(journal.lines(), QStringList());
}

void TestAllocationFailures::noFailureOnAnyOtherScreenIsACrash_data()
{
    // All that useScreen() makes the screen ask for when nothing fails.
    QTest::addColumn<QByteArray>("names");
    QTest::addColumn<int>("allocations");
    QTest::newRow("Call Costs and its setup") << QByteArray("callCost") << 435;
    QTest::newRow("Data Times") << QByteArray("dataTime") << 18;
    QTest::newRow("Data Volumes and its detail") << QByteArray("dataVolume") << 151;
}

// Chooses every row of `screen` and of what opens over it, and leaves each by the left softkey or the clear key.
void useRows(ZKbMainWidget *screen)
{
    const ZListBox *list = PhoneScreen::list(screen);
    for (int row = 0; list && row < list->count(); ++row) {
        PhoneScreen::list(screen)->setSelected(row, true);
        PhoneScreen::press(PhoneKey::Select);
        for (ZKbMainWidget *sub : screen->findChildren<ZKbMainWidget *>()) {
            if (sub->isVisible())
                useRows(sub);
        }
        const auto isCovered = [&] {
            const QList<ZPopup *> popups = screen->findChildren<ZPopup *>();
            const auto isVisible = [](const QWidget *widget) { return widget->isVisible(); };
            const QList<ZKbMainWidget *> subs = screen->findChildren<ZKbMainWidget *>();
            return std::any_of(popups.begin(), popups.end(), isVisible) ||
                   std::any_of(subs.begin(), subs.end(), isVisible);
        };
        for (int tries = 0; tries < 8 && isCovered(); ++tries)
            PhoneScreen::press(tries == 0 ? PhoneKey::LeftSoftkey : PhoneKey::Clear);
    }
}

void TestAllocationFailures::useScreen(const char *names)
{
    const HostedScreen<ZKbMainWidget> screen(names);
    if (!screen.get())
        return;
    screen->show();
    useRows(screen.get());
    const QSignalSpy closed(screen.get(), "2closeWidget()");
    PhoneScreen::press(PhoneKey::Clear);
    PhoneScreen::press(PhoneKey::RightSoftkey);
    // Without a meter the Data Times screen has nothing at all, not even this.
    QVERIFY(closed.count() >= 1 || screen->mainWidgetTitle().isEmpty());
}

void TestAllocationFailures::noFailureOnAnyOtherScreenIsACrash()
{
    QFETCH(const QByteArray, names);
    QFETCH(const int, allocations);
    for (int nth = 1; nth <= allocations; nth += sampleStride(5)) {
        const AllocationFailure failure(nth);
        useScreen(names.constData());
        if (QTest::currentTestFailed())
            qWarning("the allocation that failed was number %d", nth);
        QVERIFY(!QTest::currentTestFailed());
        QVERIFY(AllocationFailure::happened());
    }
    const AllocationFailure noneOfThem(allocations + 1);
    useScreen(names.constData());
    QVERIFY(!AllocationFailure::happened());
}

KAV_TEST_GROUP(TestAllocationFailures, QApplication);
#include "tst_allocation_failures.moc"
