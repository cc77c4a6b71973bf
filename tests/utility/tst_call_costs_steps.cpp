// What the Call Costs screen asks of the toolkit, call by call, with the exact arguments and in the exact order.
#include "utility/PHONE_UI_RecentCallCostsView.h"

#include "support/PhoneScreen.h"
#include "support/PhoneTest.h"
#include "support/PluginLibrary.h"
#include "support/RecordingTranslator.h"
#include "support/ToolkitRecorder.h"

#include "toolkit/ZKbMainWidget.h"
#include "toolkit/ZListBox.h"

#include <iterator>

#include <dlfcn.h>

using handset::Date;
using ZKeys::PhoneKey;
using CallCosts = HostedScreen<PHONE_UI_RecentCallCostsView>;

// QWidget::setFocus(), which the screen and the toolkit call on the list. Both are recorded.
extern "C" void focusWidget(QWidget *self, Qt::FocusReason reason) asm("_ZN7QWidget8setFocusEN2Qt11FocusReasonE");
void focusWidget(QWidget *self, Qt::FocusReason reason)
{
    static auto *const original = reinterpret_cast<void (*)(QWidget *, Qt::FocusReason)>(
        dlsym(RTLD_NEXT, "_ZN7QWidget8setFocusEN2Qt11FocusReasonE"));
    if (Journal::shared().knows(self))
        Journal::shared().record(Journal::shared().nameOf(self) + QLatin1String(".setFocus()"));
    original(self, reason);
}

namespace {

struct RowFacts {
    const char *title;
    const char *value;
    const char *operation;
    const char *header;
    const char *headerKey;
    const char *message; // with the value
    const char *messageKey;
};
constexpr RowFacts rowFacts[] = {
    {"Credit Available", "12.50 EUR", "CallService::remainingCredit", "Credit Available",
     "TXT_RID_HEADER_CREDIT_AVAILABLE", "Your current credit available is 12.50 EUR units",
     "FMT_RID_INSTRUCTIONALTXT_CURRENT_CREDIT_AVAILABLE_IS_2"},
    {"Expiration Date", "2006:3:9", "CallLog::depositExpirationDate", "Expiration Date",
     "TXT_RID_HEADER_EXPIRATION_DATE", "Your remaining credit will expire on 2006:3:9",
     "FMT_RID_INSTRUCTIONALTXT_REMAINING_CREDIT_WILL_EXPIRE_ON_1"},
    {"Last Deposit", "20 EUR", "CallLog::lastDeposit", "Last Deposit", "TXT_RID_HEADER_LAST_DEPOSIT",
     "Your last deposit amount was 20 EUR", "FMT_RID_INSTRUCTIONALTXT_LAST_DEPOSIT_AMOUNT_WAS_1_UNITS"},
    {"Last Call Cost", "0.30 EUR", "CallService::lastCallCost", "Last Call", "TXT_RID_HEADER_LAST_CALL",
     "The cost of your last call was 0.30 EUR", "FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_LAST_CALL_WAS_1_UNITS"},
    {"Dialed Calls Cost", "4.40 EUR", "CallLog::dialedCallsCost", "Dialed Calls", "TXT_RID_HEADER_DIALED_CALLS",
     "The cost of your dialed calls is 4.40 EUR", "FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_DIALED_CALLS_IS_1_UNITS"},
    {"Answered Calls Cost", "5.50 EUR", "CallLog::answeredCallsCost", "Answered Calls",
     "TXT_RID_HEADER_ANSWERED_CALLS", "The cost of your answered calls is 5.50 EUR",
     "FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_ANSWERED_CALLS_IS_1_UNITS"},
    {"All Calls Cost", "9.90 EUR", "CallLog::allCallsCost", "All Calls", "TXT_RID_HEADER_ALL_CALLS",
     "The cost of all your calls is 9.90 EUR", "FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_ALL_CALLS_IS_1_UNITS"},
};
constexpr int setupRow = 7;
static_assert(std::size(rowFacts) == setupRow);

const QStringList unitSteps{"AdviceOfCharge::chargeType", "AdviceOfCharge::priceAndCurrency"};
const QString frameEnd = QStringLiteral("connect(screen, \"2clearKeyClicked()\", screen, \"2closeWidget()\")");

QStringList fillingSteps()
{
    QStringList steps = unitSteps;
    for (int row = 0; row < setupRow; ++row) {
        const QString item = QStringLiteral("row %1").arg(row);
        steps << QStringLiteral("ZSettingItem(list, null)")
              << QStringLiteral("%1.appendSubItem(0, \"%2\", false, 0)").arg(item, rowFacts[row].title)
              << QString::fromLatin1(rowFacts[row].operation)
              << QStringLiteral("%1.appendSubItem(0, \"%2\", false, 1)").arg(item, rowFacts[row].value)
              << QStringLiteral("list.insertItem(%1, -1, true)").arg(item);
    }
    return steps << QStringLiteral("ZSettingItem(list, null)")
                 << QStringLiteral("row 7.appendSubItem(0, \"Call Cost Setup\", false, 0)")
                 << QStringLiteral("list.insertItem(row 7, -1, true)");
}

QStringList rewritingSteps()
{
    QStringList steps = unitSteps;
    for (int row = 0; row < setupRow; ++row)
        steps << QString::fromLatin1(rowFacts[row].operation)
              << QStringLiteral("row %1.setSubItem(0, 1, \"%2\", false, 1)").arg(row).arg(rowFacts[row].value);
    return steps;
}

} // namespace

class TestCallCostsSteps : public PhoneTest
{
    Q_OBJECT

private slots:
    void init();

    void theListIsFilledRowByRowAndTheSetupHasNoValue();
    void aFigureIsAskedThenADetailMadeConnectedAndShown_data();
    void aFigureIsAskedThenADetailMadeConnectedAndShown();
    void aFigureIsAskedBeforeAnyTextOfItsDetail_data();
    void aFigureIsAskedBeforeAnyTextOfItsDetail();
    void answeringADetailDeletesItAndDoesNothingElse();
    void anItemThatIsNotInTheListGetsADetailOfTheSameKind();
    void theSetupIsMadeConnectedAndThenShown();
    void afterTheSetupItGoesFirstThenTheRowsAreRewrittenThenTheFocusSet();

private:
    // Without the moves of the focus that the toolkit makes by itself.
    QStringList stepsButFocus() { return journal.take().filter(QRegularExpression("^(?!.*setFocus)")); }
};

void TestCallCostsSteps::init()
{
    PhoneTest::init();
    ToolkitRecorder::restart();
    script().answer("AdviceOfCharge::chargeType", quint8(1));
    script().answer("AdviceOfCharge::priceAndCurrency", QString("0.10"), QString("EUR"));
    script().answer("CallService::remainingCredit", QByteArray("12.50"));
    script().answer("CallLog::depositExpirationDate", Date{2006, 3, 9});
    script().answer("CallLog::lastDeposit", QByteArray("20"));
    script().answer("CallService::lastCallCost", QByteArray("0.30"));
    script().answer("CallLog::dialedCallsCost", QByteArray("4.40"));
    script().answer("CallLog::answeredCallsCost", QByteArray("5.50"));
    script().answer("CallLog::allCallsCost", QByteArray("9.90"));
}

void TestCallCostsSteps::theListIsFilledRowByRowAndTheSetupHasNoValue()
{
    const CallCosts screen("callCost");
    const QStringList steps = journal.take();
    QVERIFY(steps.contains(frameEnd));
    COMPARE_LINES(steps.mid(steps.indexOf(frameEnd) + 1), fillingSteps());
}

void TestCallCostsSteps::aFigureIsAskedThenADetailMadeConnectedAndShown_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < setupRow; ++row)
        QTest::newRow(rowFacts[row].title) << row;
}

void TestCallCostsSteps::aFigureIsAskedThenADetailMadeConnectedAndShown()
{
    QFETCH(const int, row);
    const CallCosts screen("callCost");
    screen->show();
    journal.take();
    PhoneScreen::chooseRow(screen.get(), row);
    const RowFacts &facts = rowFacts[row];
    COMPARE_LINES(
        stepsButFocus(),
        QStringList({QString::fromLatin1(facts.operation),
                     QStringLiteral("ZMessageDlg(\"%1\", \"%2\", 2, 0, screen, null, true, 0)")
                         .arg(facts.header, facts.message),
                     "connect(dialog 1, \"2leftSoftkeyClicked()\", screen, \"1slotOk()\")", "dialog 1.show()"}));
}

void TestCallCostsSteps::aFigureIsAskedBeforeAnyTextOfItsDetail_data()
{
    aFigureIsAskedThenADetailMadeConnectedAndShown_data();
}

void TestCallCostsSteps::aFigureIsAskedBeforeAnyTextOfItsDetail()
{
    QFETCH(const int, row);
    const CallCosts screen("callCost");
    screen->show();
    RecordingTranslator translator;
    translator.setJournalled(true);
    journal.take();
    PhoneScreen::chooseRow(screen.get(), row);
    QStringList steps = journal.take();
    const qsizetype made = steps.indexOf(QRegularExpression("^ZMessageDlg.*"));
    QVERIFY(made > 0);
    steps = steps.mid(0, made);
    QCOMPARE(steps.value(0), QString(rowFacts[row].operation));
    steps.sort();
    QStringList expected{QString::fromLatin1(rowFacts[row].operation),
                         QStringLiteral("translate \"%1\"").arg(rowFacts[row].headerKey),
                         QStringLiteral("translate \"%1\"").arg(rowFacts[row].messageKey)};
    expected.sort();
    COMPARE_LINES(steps, expected);
}

void TestCallCostsSteps::answeringADetailDeletesItAndDoesNothingElse()
{
    const CallCosts screen("callCost");
    screen->show();
    PhoneScreen::chooseRow(screen.get(), 3);
    journal.take();
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    COMPARE_LINES(stepsButFocus(), QStringList("delete dialog 1"));
}

void TestCallCostsSteps::anItemThatIsNotInTheListGetsADetailOfTheSameKind()
{
    const CallCosts screen("callCost");
    screen->show();
    journal.take();
    QMetaObject::invokeMethod(screen.get(), "slotSelectedItem", Q_ARG(ZSettingItem *, nullptr));
    const QStringList steps = stepsButFocus();
    QCOMPARE(steps.size(), 3);
    QVERIFY2(steps[0].endsWith(", 2, 0, screen, null, true, 0)"), qPrintable(steps[0]));
    QCOMPARE(steps[1], QString("connect(dialog 1, \"2leftSoftkeyClicked()\", screen, \"1slotOk()\")"));
    QCOMPARE(steps[2], QString("dialog 1.show()"));
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    COMPARE_LINES(stepsButFocus(), QStringList("delete dialog 1"));
}

void TestCallCostsSteps::theSetupIsMadeConnectedAndThenShown()
{
    const CallCosts screen("callCost");
    screen->show();
    journal.nameObject(screen.get(), "costs"); // the setup is the recorder's next "screen"
    journal.take();
    PhoneScreen::chooseRow(screen.get(), setupRow);
    const QStringList steps = stepsButFocus();
    QCOMPARE(steps.value(0), QString("ZKbMainWidget(costs, null, 0)"));
    COMPARE_LINES(steps.mid(steps.size() - 2),
                  QStringList({"connect(screen, \"2closeWgt()\", costs, \"1slotCloseWgt()\")", "screen.show()"}));
    QCOMPARE(steps.filter(QRegularExpression("^ZMessageDlg|^CallLog|^CallService")), QStringList());
}

void TestCallCostsSteps::afterTheSetupItGoesFirstThenTheRowsAreRewrittenThenTheFocusSet()
{
    const CallCosts screen("callCost");
    screen->show();
    journal.nameObject(screen.get(), "costs");
    journal.nameObject(PhoneScreen::list(screen.get()), "costs list");
    PhoneScreen::chooseRow(screen.get(), setupRow);
    const auto *setup = screen->findChild<ZKbMainWidget *>();
    QVERIFY(setup);
    connect(setup, &QObject::destroyed, this, [this] { journal.record(QStringLiteral("delete setup")); });
    journal.take();
    PhoneScreen::press(PhoneKey::RightSoftkey);
    const QStringList all = journal.lines();
    QCOMPARE(all.value(all.size() - 1), QString("costs list.setFocus()"));
    COMPARE_LINES(stepsButFocus(), QStringList("delete setup") + rewritingSteps());
}

KAV_TEST_GROUP(TestCallCostsSteps, QApplication);
#include "tst_call_costs_steps.moc"
