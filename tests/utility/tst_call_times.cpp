// The Call Times screen: rows, questions, resets, the refusal.
#include "utility/PHONE_UI_RecentCallTimesView.h"

#include "support/PhoneScreen.h"
#include "support/PhoneTest.h"
#include "support/PluginLibrary.h"
#include "support/PrivateAccess.h"

#include "toolkit/ZListBox.h"
#include "toolkit/ZMessageDlg.h"
#include "toolkit/ZSettingItem.h"

#include <QtCore/QPointer>
#include <QtCore/QRandomGenerator>
#include <QtTest/QSignalSpy>

#include <climits>

using handset::CallTime;
using ZKeys::PhoneKey;
using View = PHONE_UI_RecentCallTimesView;
using CallTimes = HostedScreen<View>;

KAV_EXPOSE(ResetRow, &View::resetRow);
KAV_EXPOSE(ResetDlg, &View::resetDlg);
KAV_EXPOSE(InCallDlg, &View::inCallDlg);
KAV_EXPOSE(DataCallTimeText, &View::dataCallTimeText);
KAV_EXPOSE(DataCallSeconds, &View::dataCallSeconds);
KAV_EXPOSE(ItemTitle, &View::getItemTitle);
KAV_EXPOSE(ItemValue, &View::getItemValue);

namespace {

constexpr quint32 dataSeconds = 3725; // shown as 01:02:05
const QString zero = QStringLiteral("00:00:00");

struct RowFacts {
    const char *title;
    const char *value;    // as TestCallTimes::init() scripts the handset
    const char *query;    // null: the data-call total, read once for all rows
    const char *reset;    // null: choosing the row does nothing
    const char *question; // null likewise
};
constexpr RowFacts rowFacts[] = {
    {"Last Call", "01:01:01", "CallLog::lastCallTime", nullptr, nullptr},
    {"Dialed Calls", "02:02:02", "CallLog::dialedCallsTime", "CallLog::resetDialedCallsTime",
     "Would you like to reset the Dialed Calls timer?"},
    {"Answered Calls", "03:03:03", "CallLog::answeredCallsTime", "CallLog::resetAnsweredCallsTime",
     "Would you like to reset the Answered Calls timer?"},
    {"Data Calls", "01:02:05", nullptr, "DataCalls::resetTotalDuration",
     "Would you like to reset the Circuit Switching Data Calls timer?"},
    {"All Calls", "05:05:05", "CallService::totalCallTime", "CallService::resetCallTime",
     "Would you like to reset the All Calls timer?"},
    {"Lifetime Calls", "06:06:06", "CallLog::lifetimeCallsTime", nullptr, nullptr},
};
constexpr int rowCount = int(std::size(rowFacts));
static_assert(rowCount == 6);
constexpr int dataRow = 3;
constexpr int allRow = 4;

constexpr const char *usedOperations[] = {
    "CallLog::lastCallTime",           "CallLog::dialedCallsTime",   "CallLog::answeredCallsTime",
    "CallLog::lifetimeCallsTime",      "CallService::totalCallTime", "CallLog::resetDialedCallsTime",
    "CallLog::resetAnsweredCallsTime", "CallService::resetCallTime", "DataCalls::refreshTotals",
    "DataCalls::totalDuration",        "DataCalls::callStatus",      "DataCalls::resetTotalDuration",
};

QStringList expectedRows(const QStringList &values)
{
    QStringList rows;
    for (int i = 0; i < rowCount; ++i)
        rows.append(QLatin1String(rowFacts[i].title) + QLatin1Char('|') + values.at(i));
    return rows;
}

QStringList scriptedValues()
{
    QStringList values;
    for (const RowFacts &row : rowFacts)
        values.append(QLatin1String(row.value));
    return values;
}

// The rule for a number of seconds as a person would put it.
QString asHoursMinutesSeconds(quint32 seconds)
{
    return QStringLiteral("%1:%2:%3")
        .arg(seconds / 3600, 2, 10, QLatin1Char('0'))
        .arg(seconds / 60 % 60, 2, 10, QLatin1Char('0'))
        .arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

// The rows of the model that were rewritten, in order.
QList<int> rewrittenRows(const QSignalSpy &dataChanged)
{
    QList<int> rows;
    for (const auto &arguments : dataChanged) {
        for (int row = arguments.at(0).toModelIndex().row(); row <= arguments.at(1).toModelIndex().row(); ++row)
            rows.append(row);
    }
    return rows;
}

} // namespace

class TestCallTimes : public PhoneTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void rowsHaveTheirTitlesAndValues();
    void figuresAreAskedInOrderWhileTheScreenIsBuilt();
    void aRowOutsideTheTableHasNoTitleAndNoValue_data();
    void aRowOutsideTheTableHasNoTitleAndNoValue();
    void valuesOfManyDigitsAreShownWhole();

    void secondsAreShownAs_data();
    void secondsAreShownAs();
    void randomSecondsAreShownAsAPersonExpects();
    void aFailedDurationQueryShowsZeroes();

    void aRowWithoutAResetDoesNothing_data();
    void aRowWithoutAResetDoesNothing();
    void choosingNoRowDoesNothing();
    void choosingARowAsksItsQuestion_data();
    void choosingARowAsksItsQuestion();
    void noLeavesEverythingAsItWas_data();
    void noLeavesEverythingAsItWas();
    void yesResetsThatRowOnly_data();
    void yesResetsThatRowOnly();
    void yesToAllCallsRewritesSixRowsAfterReadingTheDataTime();
    void anAnswerWithoutAQuestionDoesNothing_data();
    void anAnswerWithoutAQuestionDoesNothing();
    void yesForARowThatCannotBeResetDoesNothing_data();
    void yesForARowThatCannotBeResetDoesNothing();
    void theQuestionIsGoneAfterAnAnswer_data();
    void theQuestionIsGoneAfterAnAnswer();
    void aSecondQuestionBeforeTheFirstAnswerDoesNoHarm();
    void aFailedResetShowsWhatTheHandsetStillHas_data();
    void aFailedResetShowsWhatTheHandsetStillHas();
    void titlesAreNeverRewritten();

    void theDataCallStatusDecides_data();
    void theDataCallStatusDecides();
    void aFailedStatusQueryDoesNothing();
    void theDataRowIsZeroThoughTheHandsetRefuses();
    void theDataTimeIsZeroBeforeTheHandsetIsTold();
    void anAllCallsResetShowsTheDataTimeThatTheHandsetHas();
    void aResetDoesNotForgetTheSecondsRead();

    void theRefusalIsANoticeOfItsOwn();
    void theRefusalStaysWhenTheQuestionIsGone();
    void theSameNoticeIsShownAgain();
    void otherTimersCanBeResetDuringADataCall();
    void theScreenDeletesTheNotice_data();
    void theScreenDeletesTheNotice();
    void putAwayTheNoticeAsksNothing();

    void oneFailingOperationSpoilsItsOwnRowOnly_data();
    void oneFailingOperationSpoilsItsOwnRowOnly();
    void allOperationsFailingLeaveZeroesAndAWayOut_data();
    void allOperationsFailingLeaveZeroesAndAWayOut();
    void aHandsetWithoutRolesLeavesZeroes();
    void twoScreensDoNotDisturbEachOther();

private:
    std::unique_ptr<CallTimes> hosted;
    View *screen() const { return hosted->get(); }

    void open();
    void ask(int row);
    void reset(int row);
    QString value(int row) const { return PhoneScreen::value(screen(), row); }
    ZMessageDlg *question() const { return screen()->*exposed(ResetDlg()); }
    ZMessageDlg *notice() const { return screen()->*exposed(InCallDlg()); }
};

void TestCallTimes::init()
{
    PhoneTest::init();
    script().answer("CallLog::lastCallTime", CallTime{1, 1, 1});
    script().answer("CallLog::dialedCallsTime", CallTime{2, 2, 2});
    script().answer("CallLog::answeredCallsTime", CallTime{3, 3, 3});
    script().answer("DataCalls::totalDuration", dataSeconds);
    script().answer("CallService::totalCallTime", CallTime{5, 5, 5});
    script().answer("CallLog::lifetimeCallsTime", CallTime{6, 6, 6});
}

void TestCallTimes::cleanup()
{
    hosted.reset();
    PhoneTest::cleanup();
}

void TestCallTimes::open()
{
    hosted = std::make_unique<CallTimes>("callTime", nullptr, "callTime");
    screen()->show();
}

// Opens the question of a row and forgets what was asked until then.
void TestCallTimes::ask(int row)
{
    PhoneScreen::chooseRow(screen(), row);
    journal.clear();
}

void TestCallTimes::reset(int row)
{
    ask(row);
    PhoneScreen::press(PhoneKey::LeftSoftkey);
}

// --- rows

void TestCallTimes::rowsHaveTheirTitlesAndValues()
{
    open();
    COMPARE_LINES(PhoneScreen::rows(screen()), expectedRows(scriptedValues()));
    COMPARE_LINES(PhoneScreen::shownRows(screen()), expectedRows(scriptedValues()));
    for (int row = 0; row < rowCount; ++row) {
        const auto *item = dynamic_cast<ZSettingItem *>(PhoneScreen::list(screen())->item(row));
        QVERIFY(item);
        QCOMPARE(item->subItemCount(), 2);
        QCOMPARE(item->subItemText(0), QString(rowFacts[row].title));
        QCOMPARE(item->subItemText(1), QString(rowFacts[row].value));
        QVERIFY(!item->isSeparator());
        QVERIFY(item->enabled());
    }
}

void TestCallTimes::figuresAreAskedInOrderWhileTheScreenIsBuilt()
{
    const CallTimes built("callTime");
    COMPARE_LINES(journal.lines(),
                  QStringList({"DataCalls::refreshTotals", "DataCalls::totalDuration", "CallLog::lastCallTime",
                               "CallLog::dialedCallsTime", "CallLog::answeredCallsTime",
                               "CallService::totalCallTime", "CallLog::lifetimeCallsTime"}));
}

void TestCallTimes::aRowOutsideTheTableHasNoTitleAndNoValue_data()
{
    QTest::addColumn<int>("row");
    for (const int row : {-1, 6, 7, INT_MAX, INT_MIN})
        QTest::addRow("row %d", row) << row;
}

void TestCallTimes::aRowOutsideTheTableHasNoTitleAndNoValue()
{
    QFETCH(const int, row);
    open();
    journal.clear();
    QVERIFY((screen()->*exposed(ItemTitle()))(row).isNull());
    QVERIFY((screen()->*exposed(ItemValue()))(row).isNull());
    QCOMPARE(journal.lines(), QStringList());
}

void TestCallTimes::valuesOfManyDigitsAreShownWhole()
{
    for (const RowFacts &row : rowFacts) {
        if (row.query)
            script().answer(row.query, CallTime{4294967295u, 5, 9});
    }
    script().answer("DataCalls::totalDuration", quint32{4294967295u});
    open();
    const QString most = QStringLiteral("4294967295:5:9");
    COMPARE_LINES(PhoneScreen::shownRows(screen()), expectedRows({most, most, most, "1193046:28:15", most, most}));
}

// --- the data-call time

void TestCallTimes::secondsAreShownAs_data()
{
    QTest::addColumn<quint32>("seconds");
    QTest::addColumn<QString>("text");
    const auto row = [](quint32 seconds, const char *text) {
        QTest::addRow("%u s", seconds) << seconds << QString(text);
    };
    row(0, "00:00:00");
    row(1, "00:00:01");
    row(9, "00:00:09");
    row(10, "00:00:10");
    row(59, "00:00:59");
    row(60, "00:01:00");
    row(599, "00:09:59");
    row(600, "00:10:00");
    row(3599, "00:59:59");
    row(3600, "01:00:00");
    row(3725, "01:02:05");
    row(35999, "09:59:59");
    row(36000, "10:00:00");
    row(359999, "99:59:59");
    row(360000, "100:00:00");
    row(2147483647u, "596523:14:07");
    row(2147483648u, "596523:14:08");
    row(4294967295u, "1193046:28:15");
}

void TestCallTimes::secondsAreShownAs()
{
    QFETCH(const quint32, seconds);
    QFETCH(const QString, text);
    script().answer("DataCalls::totalDuration", seconds);
    open();
    QCOMPARE(value(dataRow), text);
    QCOMPARE(screen()->*exposed(DataCallSeconds()), seconds);
}

void TestCallTimes::randomSecondsAreShownAsAPersonExpects()
{
    open();
    QRandomGenerator random(20260731);
    for (int i = 0; i < 300; ++i) {
        const quint32 seconds = random.generate() >> (i % 32);
        script().answer("DataCalls::totalDuration", seconds);
        reset(allRow);
        QCOMPARE(value(dataRow), asHoursMinutesSeconds(seconds));
    }
}

void TestCallTimes::aFailedDurationQueryShowsZeroes()
{
    script().fail("DataCalls::totalDuration", 3);
    open();
    QCOMPARE(value(dataRow), zero);
    QCOMPARE(screen()->*exposed(DataCallSeconds()), 0u);
    script().succeed("DataCalls::totalDuration");
    reset(allRow);
    QCOMPARE(value(dataRow), QString("01:02:05"));
    script().fail("DataCalls::totalDuration", -1);
    reset(allRow);
    QCOMPARE(value(dataRow), zero);
    QCOMPARE(screen()->*exposed(DataCallSeconds()), 0u);
}

// --- choosing and answering

void TestCallTimes::aRowWithoutAResetDoesNothing_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < rowCount; ++row) {
        if (!rowFacts[row].reset)
            QTest::newRow(rowFacts[row].title) << row;
    }
}

void TestCallTimes::aRowWithoutAResetDoesNothing()
{
    QFETCH(const int, row);
    open();
    const QSignalSpy rewritten(PhoneScreen::list(screen())->model(), &QAbstractItemModel::dataChanged);
    ask(row);
    QVERIFY(!question());
    QVERIFY(PhoneScreen::shownDialogs().isEmpty());
    QCOMPARE(journal.lines(), QStringList());
    QCOMPARE(rewritten.count(), 0);
}

void TestCallTimes::choosingNoRowDoesNothing()
{
    open();
    journal.clear();
    ZListBox *list = PhoneScreen::list(screen());
    emit list->selected(nullptr);
    auto *notInserted = new ZSettingItem(list, QString());
    emit list->selected(notInserted);
    QVERIFY(!question());
    QVERIFY(PhoneScreen::shownDialogs().isEmpty());
    QCOMPARE(journal.lines(), QStringList());
}

void TestCallTimes::choosingARowAsksItsQuestion_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < rowCount; ++row) {
        if (rowFacts[row].reset)
            QTest::newRow(rowFacts[row].title) << row;
    }
}

void TestCallTimes::choosingARowAsksItsQuestion()
{
    QFETCH(const int, row);
    open();
    ask(row);
    ZMessageDlg *dialog = PhoneScreen::shownDialog();
    QVERIFY(dialog);
    QCOMPARE(dialog, question());
    QCOMPARE(dialog->header(), QString("Reset Timer"));
    QCOMPARE(dialog->message(), QString(rowFacts[row].question));
    QCOMPARE(dialog->type(), ZMessageDlg::QuestionDlg);
    QVERIFY(dialog->isModalOverParent());
    QCOMPARE(dialog->parentWidget(), screen());
    QCOMPARE(dialog->softKey()->text(ZSoftKey::LeftKey), QString("Yes"));
    QCOMPARE(dialog->softKey()->text(ZSoftKey::RightKey), QString("No"));
    QCOMPARE(screen()->*exposed(ResetRow()), row);
    QCOMPARE(journal.lines(), QStringList());
}

void TestCallTimes::noLeavesEverythingAsItWas_data()
{
    choosingARowAsksItsQuestion_data();
}

void TestCallTimes::noLeavesEverythingAsItWas()
{
    QFETCH(const int, row);
    open();
    script().answer("CallLog::dialedCallsTime", CallTime{7, 7, 7});
    const QSignalSpy rewritten(PhoneScreen::list(screen())->model(), &QAbstractItemModel::dataChanged);
    ask(row);
    const QPointer<ZMessageDlg> dialog(PhoneScreen::shownDialog());
    PhoneScreen::press(PhoneKey::RightSoftkey);
    QVERIFY(!dialog);
    QVERIFY(!question());
    QCOMPARE(journal.lines(), QStringList());
    QCOMPARE(rewritten.count(), 0);
    COMPARE_LINES(PhoneScreen::rows(screen()), expectedRows(scriptedValues()));
}

void TestCallTimes::yesResetsThatRowOnly_data()
{
    QTest::addColumn<int>("row");
    for (const int row : {1, 2, dataRow})
        QTest::newRow(rowFacts[row].title) << row;
}

void TestCallTimes::yesResetsThatRowOnly()
{
    QFETCH(const int, row);
    open();
    // Meanwhile every figure has changed: only the row that was reset may show it.
    for (const RowFacts &facts : rowFacts) {
        if (facts.query)
            script().answer(facts.query, CallTime{9, 9, 9});
    }
    const QSignalSpy rewritten(PhoneScreen::list(screen())->model(), &QAbstractItemModel::dataChanged);
    reset(row);
    QStringList asked{rowFacts[row].reset};
    if (row == dataRow)
        asked.prepend("DataCalls::callStatus");
    else
        asked.append(rowFacts[row].query);
    COMPARE_LINES(journal.lines(), asked);
    QCOMPARE(rewrittenRows(rewritten), QList<int>{row});
    QStringList values = scriptedValues();
    values[row] = row == dataRow ? zero : QStringLiteral("09:09:09");
    COMPARE_LINES(PhoneScreen::rows(screen()), expectedRows(values));
    QVERIFY(!question());
    QVERIFY(PhoneScreen::shownDialogs().isEmpty());
}

void TestCallTimes::yesToAllCallsRewritesSixRowsAfterReadingTheDataTime()
{
    open();
    for (const RowFacts &facts : rowFacts) {
        if (facts.query)
            script().answer(facts.query, CallTime{9, 9, 9});
    }
    script().answer("DataCalls::totalDuration", quint32{60});
    const QSignalSpy rewritten(PhoneScreen::list(screen())->model(), &QAbstractItemModel::dataChanged);
    reset(allRow);
    COMPARE_LINES(journal.lines(), QStringList({"CallService::resetCallTime", "DataCalls::refreshTotals",
                                                "DataCalls::totalDuration", "CallLog::lastCallTime",
                                                "CallLog::dialedCallsTime", "CallLog::answeredCallsTime",
                                                "CallService::totalCallTime", "CallLog::lifetimeCallsTime"}));
    QCOMPARE(rewrittenRows(rewritten), (QList<int>{0, 1, 2, 3, 4, 5}));
    const QString nine = QStringLiteral("09:09:09");
    COMPARE_LINES(PhoneScreen::rows(screen()), expectedRows({nine, nine, nine, "00:01:00", nine, nine}));
    QVERIFY(PhoneScreen::shownDialogs().isEmpty());
}

void TestCallTimes::anAnswerWithoutAQuestionDoesNothing_data()
{
    QTest::addColumn<QByteArray>("slot");
    QTest::newRow("yes") << QByteArray("slotYes");
    QTest::newRow("no") << QByteArray("slotNo");
}

void TestCallTimes::anAnswerWithoutAQuestionDoesNothing()
{
    QFETCH(const QByteArray, slot);
    open();
    QCOMPARE(screen()->*exposed(ResetRow()), -1);
    journal.clear();
    QVERIFY(QMetaObject::invokeMethod(screen(), slot.constData()));
    QCOMPARE(journal.lines(), QStringList());
    COMPARE_LINES(PhoneScreen::rows(screen()), expectedRows(scriptedValues()));
}

void TestCallTimes::yesForARowThatCannotBeResetDoesNothing_data()
{
    QTest::addColumn<int>("row");
    for (const int row : {-1, 0, 5, 6, INT_MAX, INT_MIN})
        QTest::addRow("row %d", row) << row;
}

void TestCallTimes::yesForARowThatCannotBeResetDoesNothing()
{
    QFETCH(const int, row);
    open();
    ask(1);
    const QSignalSpy rewritten(PhoneScreen::list(screen())->model(), &QAbstractItemModel::dataChanged);
    screen()->*exposed(ResetRow()) = row;
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    QCOMPARE(journal.lines(), QStringList());
    QCOMPARE(rewritten.count(), 0);
    QVERIFY(!question());
    QVERIFY(PhoneScreen::shownDialogs().isEmpty());
}

void TestCallTimes::theQuestionIsGoneAfterAnAnswer_data()
{
    QTest::addColumn<bool>("yes");
    QTest::newRow("yes") << true;
    QTest::newRow("no") << false;
}

void TestCallTimes::theQuestionIsGoneAfterAnAnswer()
{
    QFETCH(const bool, yes);
    open();
    ask(1);
    const QPointer<ZMessageDlg> dialog(question());
    PhoneScreen::press(yes ? PhoneKey::LeftSoftkey : PhoneKey::RightSoftkey);
    QVERIFY(!dialog);
    QVERIFY(!question());
    // Deleting it once more would be seen by the memory checker.
    QVERIFY(QMetaObject::invokeMethod(screen(), "slotNo"));
    QVERIFY(QMetaObject::invokeMethod(screen(), "slotYes"));
    ask(2);
    QVERIFY(PhoneScreen::shownDialog());
}

void TestCallTimes::aSecondQuestionBeforeTheFirstAnswerDoesNoHarm()
{
    open();
    ZListBox *list = PhoneScreen::list(screen());
    emit list->selected(static_cast<ZSettingItem *>(list->item(1)));
    const QPointer<ZMessageDlg> first(question());
    emit list->selected(static_cast<ZSettingItem *>(list->item(2)));
    const QPointer<ZMessageDlg> second(question());
    QVERIFY(first && second && first != second);
    journal.clear();
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    QCOMPARE(journal.lines().value(0), QString("CallLog::resetAnsweredCallsTime"));
    QVERIFY(!second);
    hosted.reset();
    QVERIFY(!first);
}

void TestCallTimes::aFailedResetShowsWhatTheHandsetStillHas_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("code");
    for (const int row : {1, 2, allRow}) {
        for (const int code : {1, -1, INT_MAX})
            QTest::addRow("%s fails with %d", rowFacts[row].title, code) << row << code;
    }
}

void TestCallTimes::aFailedResetShowsWhatTheHandsetStillHas()
{
    QFETCH(const int, row);
    QFETCH(const int, code);
    open();
    script().fail(rowFacts[row].reset, code);
    reset(row);
    QCOMPARE(journal.count(rowFacts[row].reset), 1);
    COMPARE_LINES(PhoneScreen::rows(screen()), expectedRows(scriptedValues()));
    QVERIFY(PhoneScreen::shownDialogs().isEmpty());
}

void TestCallTimes::titlesAreNeverRewritten()
{
    open();
    ZListBox *list = PhoneScreen::list(screen());
    auto *item = static_cast<ZSettingItem *>(list->item(1));
    item->setSubItem(0, 0, QStringLiteral("marked"), false, ZSettingItem::TitleRegion);
    reset(allRow);
    reset(1);
    QCOMPARE(item->title(), QString("marked"));
    QCOMPARE(item->subItemCount(), 2);
}

// --- resetting the data-call time

void TestCallTimes::theDataCallStatusDecides_data()
{
    QTest::addColumn<quint8>("status");
    QTest::addColumn<bool>("resets");
    QTest::addColumn<bool>("refuses");
    for (int status = 0; status <= 255; ++status) {
        const bool resets = status == 0 || status == 2;
        const bool refuses = status == 1 || status == 3;
        QTest::addRow("status %d %s", status,
                      resets    ? "resets"
                      : refuses ? "refuses"
                                : "does nothing")
            << quint8(status) << resets << refuses;
    }
}

void TestCallTimes::theDataCallStatusDecides()
{
    QFETCH(const quint8, status);
    QFETCH(const bool, resets);
    QFETCH(const bool, refuses);
    script().answer("DataCalls::callStatus", status);
    open();
    const QSignalSpy rewritten(PhoneScreen::list(screen())->model(), &QAbstractItemModel::dataChanged);
    reset(dataRow);
    QStringList asked{"DataCalls::callStatus"};
    if (resets)
        asked.append("DataCalls::resetTotalDuration");
    COMPARE_LINES(journal.lines(), asked);
    QStringList values = scriptedValues();
    if (resets)
        values[dataRow] = zero;
    COMPARE_LINES(PhoneScreen::rows(screen()), expectedRows(values));
    QCOMPARE(rewrittenRows(rewritten), QList<int>{dataRow});
    QVERIFY(!question());
    QCOMPARE(PhoneScreen::shownDialogs().size(), refuses ? 1 : 0);
    QCOMPARE(PhoneScreen::shownDialog(), notice());
}

void TestCallTimes::aFailedStatusQueryDoesNothing()
{
    open();
    for (const int code : {1, -1, INT_MAX}) {
        script().fail("DataCalls::callStatus", code);
        reset(dataRow);
        COMPARE_LINES(journal.lines(), QStringList("DataCalls::callStatus"));
        QCOMPARE(value(dataRow), QString("01:02:05"));
        QVERIFY(PhoneScreen::shownDialogs().isEmpty());
    }
}

void TestCallTimes::theDataRowIsZeroThoughTheHandsetRefuses()
{
    script().fail("DataCalls::resetTotalDuration", 3);
    open();
    reset(dataRow);
    QCOMPARE(journal.count("DataCalls::resetTotalDuration"), 1);
    QCOMPARE(value(dataRow), zero);
}

void TestCallTimes::theDataTimeIsZeroBeforeTheHandsetIsTold()
{
    open();
    QString then;
    script().whenCalled("DataCalls::resetTotalDuration", [&] { then = screen()->*exposed(DataCallTimeText()); });
    reset(dataRow);
    QCOMPARE(then, zero);
}

void TestCallTimes::anAllCallsResetShowsTheDataTimeThatTheHandsetHas()
{
    script().fail("DataCalls::resetTotalDuration", 3);
    open();
    reset(dataRow);
    QCOMPARE(value(dataRow), zero);
    reset(allRow);
    QCOMPARE(value(dataRow), QString("01:02:05"));
}

void TestCallTimes::aResetDoesNotForgetTheSecondsRead()
{
    open();
    reset(dataRow);
    QCOMPARE(value(dataRow), zero);
    QCOMPARE(screen()->*exposed(DataCallSeconds()), dataSeconds);
}

// --- the refusal

void TestCallTimes::theRefusalIsANoticeOfItsOwn()
{
    script().answer("DataCalls::callStatus", quint8{1});
    open();
    QVERIFY(!notice());
    reset(dataRow);
    ZMessageDlg *dialog = PhoneScreen::shownDialog();
    QVERIFY(dialog);
    QCOMPARE(dialog, notice());
    QVERIFY(!dialog->parentWidget());
    QVERIFY(!dialog->isModalOverParent());
    QCOMPARE(dialog->header(), QString());
    QCOMPARE(dialog->message(), QString("Current request cannot be completed, while you are in calling. "));
    QCOMPARE(dialog->type(), ZMessageDlg::InformationDlg);
    QCOMPARE(dialog->objectName(), QString());
}

void TestCallTimes::theRefusalStaysWhenTheQuestionIsGone()
{
    script().answer("DataCalls::callStatus", quint8{3});
    open();
    ask(dataRow);
    const QPointer<ZMessageDlg> asked(question());
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    QCoreApplication::processEvents();
    QVERIFY(!asked);
    QVERIFY(notice());
    QVERIFY(notice()->isVisible());
    QCOMPARE(value(dataRow), QString("01:02:05"));
}

void TestCallTimes::theSameNoticeIsShownAgain()
{
    script().answer("DataCalls::callStatus", quint8{1});
    open();
    reset(dataRow);
    const QPointer<ZMessageDlg> first(notice());
    for (int again = 0; again < 3; ++again) {
        PhoneScreen::press(PhoneKey::LeftSoftkey);
        QVERIFY(first);
        QVERIFY(!first->isVisible());
        reset(dataRow);
        QCOMPARE(notice(), first.data());
        QVERIFY(first->isVisible());
        QVERIFY(!question());
    }
    script().answer("DataCalls::callStatus", quint8{0});
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    reset(dataRow);
    QVERIFY(first);
    QVERIFY(!first->isVisible());
    QCOMPARE(value(dataRow), zero);
}

void TestCallTimes::otherTimersCanBeResetDuringADataCall()
{
    script().answer("DataCalls::callStatus", quint8{3});
    open();
    for (const int row : {1, 2, allRow}) {
        reset(row);
        QCOMPARE(journal.count(rowFacts[row].reset), 1);
        QCOMPARE(journal.count("DataCalls::callStatus"), 0);
    }
    QVERIFY(!notice());
}

void TestCallTimes::theScreenDeletesTheNotice_data()
{
    QTest::addColumn<bool>("putAway");
    QTest::newRow("while it is on show") << false;
    QTest::newRow("after it was put away") << true;
}

void TestCallTimes::theScreenDeletesTheNotice()
{
    QFETCH(const bool, putAway);
    script().answer("DataCalls::callStatus", quint8{1});
    open();
    reset(dataRow);
    const QPointer<ZMessageDlg> dialog(notice());
    if (putAway)
        PhoneScreen::press(PhoneKey::LeftSoftkey);
    QVERIFY(dialog);
    hosted.reset();
    QVERIFY(!dialog);
}

void TestCallTimes::putAwayTheNoticeAsksNothing()
{
    script().answer("DataCalls::callStatus", quint8{1});
    open();
    reset(dataRow);
    const QSignalSpy rewritten(PhoneScreen::list(screen())->model(), &QAbstractItemModel::dataChanged);
    const QSignalSpy closed(screen(), "2closeWidget()");
    journal.clear();
    traces->take();
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    QVERIFY(PhoneScreen::shownDialogs().isEmpty());
    QCOMPARE(journal.lines(), QStringList());
    QCOMPARE(traces->text(), QString());
    QCOMPARE(rewritten.count(), 0);
    QCOMPARE(closed.count(), 0);
}

// --- failures

void TestCallTimes::oneFailingOperationSpoilsItsOwnRowOnly_data()
{
    QTest::addColumn<QByteArray>("operation");
    QTest::addColumn<int>("code");
    for (const char *operation : usedOperations) {
        for (const int code : {1, -1, INT_MAX})
            QTest::addRow("%s fails with %d", operation, code) << QByteArray(operation) << code;
    }
}

void TestCallTimes::oneFailingOperationSpoilsItsOwnRowOnly()
{
    QFETCH(const QByteArray, operation);
    QFETCH(const int, code);
    script().fail(operation.constData(), code);
    open();
    QStringList values = scriptedValues();
    for (int row = 0; row < rowCount; ++row) {
        if (rowFacts[row].query == operation || (row == dataRow && operation == "DataCalls::totalDuration"))
            values[row] = zero;
    }
    COMPARE_LINES(PhoneScreen::rows(screen()), expectedRows(values));
    for (const int row : {1, 2, allRow}) {
        reset(row);
        COMPARE_LINES(PhoneScreen::rows(screen()), expectedRows(values));
    }
    reset(dataRow);
    if (operation != "DataCalls::callStatus")
        values[dataRow] = zero;
    COMPARE_LINES(PhoneScreen::rows(screen()), expectedRows(values));
    QVERIFY(PhoneScreen::shownDialogs().isEmpty());
}

void TestCallTimes::allOperationsFailingLeaveZeroesAndAWayOut_data()
{
    QTest::addColumn<int>("code");
    for (const int code : {1, 2, -1, INT_MAX, INT_MIN})
        QTest::addRow("all fail with %d", code) << code;
}

void TestCallTimes::allOperationsFailingLeaveZeroesAndAWayOut()
{
    QFETCH(const int, code);
    script().failAll(code);
    open();
    const QStringList zeroes = expectedRows(QStringList(6, zero));
    COMPARE_LINES(PhoneScreen::rows(screen()), zeroes);
    for (int row = 1; row <= allRow; ++row) {
        reset(row);
        COMPARE_LINES(PhoneScreen::rows(screen()), zeroes);
        QVERIFY(PhoneScreen::shownDialogs().isEmpty());
    }
    const QSignalSpy closed(screen(), "2closeWidget()");
    PhoneScreen::press(PhoneKey::RightSoftkey);
    PhoneScreen::press(PhoneKey::Clear);
    QCOMPARE(closed.count(), 2);
}

void TestCallTimes::aHandsetWithoutRolesLeavesZeroes()
{
    (*handset)->takeAway("CallLog");
    (*handset)->takeAway("CallService");
    (*handset)->takeAway("DataCalls");
    open();
    COMPARE_LINES(PhoneScreen::rows(screen()), expectedRows(QStringList(6, zero)));
    for (int row = 1; row <= allRow; ++row)
        reset(row);
    QVERIFY(PhoneScreen::shownDialogs().isEmpty());
}

void TestCallTimes::twoScreensDoNotDisturbEachOther()
{
    script().answer("DataCalls::callStatus", quint8{1});
    const CallTimes other("callTime");
    open();
    reset(dataRow);
    QVERIFY(notice());
    QVERIFY(!(other.get()->*exposed(InCallDlg())));
    const QPointer<ZMessageDlg> dialog(notice());
    hosted.reset();
    QVERIFY(!dialog);
    COMPARE_LINES(PhoneScreen::rows(other.get()), expectedRows(scriptedValues()));
}

KAV_TEST_GROUP(TestCallTimes, QApplication);
#include "tst_call_times.moc"
