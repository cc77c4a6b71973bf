// The Call Costs screen: rows, details, the way into the setup and back.
#include "utility/PHONE_UI_RecentCallCostSetupView.h"
#include "utility/PHONE_UI_RecentCallCostsView.h"
#include "utility/PHONE_UI_RecentCallMeter.h"

#include "support/PhoneScreen.h"
#include "support/PhoneTest.h"
#include "support/PluginLibrary.h"
#include "support/PrivateAccess.h"
#include "support/RecordingTranslator.h"

#include "toolkit/ZListBox.h"
#include "toolkit/ZMessageDlg.h"
#include "toolkit/ZSettingItem.h"

#include <QtCore/QPointer>
#include <QtTest/QSignalSpy>

#include <climits>

using handset::Date;
using ZKeys::PhoneKey;
using View = PHONE_UI_RecentCallCostsView;
using SetupView = PHONE_UI_RecentCallCostSetupView;
using CallCosts = HostedScreen<View>;

KAV_EXPOSE(DetailDlg, &View::detailDlg);
KAV_EXPOSE(CostSetupView, &View::costSetupView);
KAV_EXPOSE(CurrencyUnit, &View::currencyUnit);
KAV_EXPOSE(OwnMeter, &View::meter);
KAV_EXPOSE(ItemTitle, &View::getItemTitle);
KAV_EXPOSE(ItemValue, &View::getItemValue);

namespace {

struct RowFacts {
    const char *title;
    const char *titleKey;
    const char *value; // with the unit "EUR", as init() scripts the handset
    const char *operation;
    const char *header;
    const char *headerKey;
    const char *message;
    const char *messageKey;
};
constexpr RowFacts rowFacts[] = {
    {"Credit Available", "TXT_RID_SETTING_A_CREDIT_AVAILABLE", "12.50 EUR", "CallService::remainingCredit",
     "Credit Available", "TXT_RID_HEADER_CREDIT_AVAILABLE", "Your current credit available is %1 units",
     "FMT_RID_INSTRUCTIONALTXT_CURRENT_CREDIT_AVAILABLE_IS_2"},
    {"Expiration Date", "TXT_RID_SETTING_A_EXPIRATION_DATE", "2006:3:9", "CallLog::depositExpirationDate",
     "Expiration Date", "TXT_RID_HEADER_EXPIRATION_DATE", "Your remaining credit will expire on %1",
     "FMT_RID_INSTRUCTIONALTXT_REMAINING_CREDIT_WILL_EXPIRE_ON_1"},
    {"Last Deposit", "TXT_RID_SETTING_A_LAST_DEPOSIT", "20 EUR", "CallLog::lastDeposit", "Last Deposit",
     "TXT_RID_HEADER_LAST_DEPOSIT", "Your last deposit amount was %1",
     "FMT_RID_INSTRUCTIONALTXT_LAST_DEPOSIT_AMOUNT_WAS_1_UNITS"},
    {"Last Call Cost", "TXT_RID_SETTING_A_LAST_CALL_COST", "0.30 EUR", "CallService::lastCallCost", "Last Call",
     "TXT_RID_HEADER_LAST_CALL", "The cost of your last call was %1",
     "FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_LAST_CALL_WAS_1_UNITS"},
    {"Dialed Calls Cost", "TXT_RID_SETTING_A_DIALED_CALLS_COST", "4.40 EUR", "CallLog::dialedCallsCost",
     "Dialed Calls", "TXT_RID_HEADER_DIALED_CALLS", "The cost of your dialed calls is %1",
     "FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_DIALED_CALLS_IS_1_UNITS"},
    {"Answered Calls Cost", "TXT_RID_SETTING_A_ANSWERED_CALLS_COST", "5.50 EUR", "CallLog::answeredCallsCost",
     "Answered Calls", "TXT_RID_HEADER_ANSWERED_CALLS", "The cost of your answered calls is %1",
     "FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_ANSWERED_CALLS_IS_1_UNITS"},
    {"All Calls Cost", "TXT_RID_SETTING_A_ALL_CALLS_COST", "9.90 EUR", "CallLog::allCallsCost", "All Calls",
     "TXT_RID_HEADER_ALL_CALLS", "The cost of all your calls is %1",
     "FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_ALL_CALLS_IS_1_UNITS"},
};
constexpr int valueRows = int(std::size(rowFacts));
static_assert(valueRows == 7);
constexpr int setupRow = 7;
constexpr int dateRow = 1;

QStringList rowsWithUnit(const QString &unit)
{
    QStringList rows;
    for (const RowFacts &row : rowFacts)
        rows.append(QLatin1String(row.title) + QLatin1Char('|') +
                    QString(row.value).replace(QStringLiteral("EUR"), unit));
    rows.append(QStringLiteral("Call Cost Setup|"));
    return rows;
}

QStringList figuresAsked()
{
    QStringList operations;
    for (const RowFacts &row : rowFacts)
        operations.append(row.operation);
    return operations;
}

QList<int> rewrittenRows(const QSignalSpy &dataChanged)
{
    QList<int> rows;
    for (const auto &arguments : dataChanged)
        rows.append(arguments.at(0).toModelIndex().row());
    return rows;
}

void addValueRows()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < valueRows; ++row)
        QTest::newRow(rowFacts[row].title) << row;
}

} // namespace

class TestCallCosts : public PhoneTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void rowsHaveTheirTitlesAndValuesAndTheSetupNone();
    void theUnitIsReadBeforeTheFiguresWhichAreReadInOrder();
    void titleSoftkeysAndClassAreTheScreensOwn();
    void slotsAndSignalsHaveTheirOrder();
    void backAndClearEmitCloseWidgetOnceEach();
    void theUnitFollowsABlankWhateverItIs_data();
    void theUnitFollowsABlankWhateverItIs();
    void withoutAUnitTheValueEndsInTheBlank_data();
    void withoutAUnitTheValueEndsInTheBlank();
    void anEmptyAmountLeavesTheBlankAndTheUnit();
    void aRowOutsideTheTableHasNoTitleAndNoValue_data();
    void aRowOutsideTheTableHasNoTitleAndNoValue();
    void choosingARowTellsItsValueInASentence_data() { addValueRows(); }
    void choosingARowTellsItsValueInASentence();
    void theValueIsAskedBeforeTheDetailOpens_data() { addValueRows(); }
    void theValueIsAskedBeforeTheDetailOpens();
    void aDetailTellsTheFigureOfNowInTheUnitOfBefore_data() { addValueRows(); }
    void aDetailTellsTheFigureOfNowInTheUnitOfBefore();
    void aFigureThatFailsNowIsToldAsItsFallback_data() { addValueRows(); }
    void aFigureThatFailsNowIsToldAsItsFallback();
    void answeringADetailChangesNothing();
    void anItemThatIsNotInTheListOpensAnEmptyDialog_data();
    void anItemThatIsNotInTheListOpensAnEmptyDialog();
    void rowsBehindTheSetupDoNothing();
    void theSetupRowOpensTheSetupScreenAndNoDialog();
    void afterTheSetupTheUnitIsReadAgainAndSevenRowsAreRewritten();
    void aClosedSetupGivesTheFocusBackToTheSameRow();
    void aClosingSignalWithoutASetupOnlyRefreshesAndTakesTheFocus();
    void destroyingTheScreenTakesAnOpenSetupAndDetailAlong();
    void destroyingTheScreenDeletesItsMeter();
    void eachFailingOperationShowsItsFallbackAlone_data() { addValueRows(); }
    void eachFailingOperationShowsItsFallbackAlone();
    void eachOperationThatFailsAfterTheSetupShowsItsFallbackAlone_data() { addValueRows(); }
    void eachOperationThatFailsAfterTheSetupShowsItsFallbackAlone();
    void aUnitThatFailsAfterTheSetupIsGoneUntilItIsReadAgain_data();
    void aUnitThatFailsAfterTheSetupIsGoneUntilItIsReadAgain();
    void everythingFailingLeavesFallbacksAndAWayOut();
    void textsComeFromTheCatalogueInTheirContexts();
    void exactlyTheseTextsAreAskedFor();
    void theUnitIsShownInTheLanguageOfTheCatalogue();
    void destroyingNothingDoesNothing();

private:
    std::unique_ptr<CallCosts> hosted;
    View *screen() const { return hosted->get(); }
    void open();
    ZMessageDlg *detail() const { return screen()->*exposed(DetailDlg()); }
    SetupView *setup() const { return screen()->*exposed(CostSetupView()); }
};

void TestCallCosts::init()
{
    PhoneTest::init();
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

void TestCallCosts::cleanup()
{
    hosted.reset();
    PhoneTest::cleanup();
}

void TestCallCosts::open()
{
    hosted = std::make_unique<CallCosts>("callCost", nullptr, "callCost");
    screen()->show();
}

void TestCallCosts::rowsHaveTheirTitlesAndValuesAndTheSetupNone()
{
    open();
    QCOMPARE(PhoneScreen::rows(screen()), rowsWithUnit("EUR"));
    QCOMPARE(PhoneScreen::shownRows(screen()), rowsWithUnit("EUR"));
    const auto *last = static_cast<ZSettingItem *>(PhoneScreen::list(screen())->item(setupRow));
    QCOMPARE(last->subItemCount(), 1);
}

void TestCallCosts::theUnitIsReadBeforeTheFiguresWhichAreReadInOrder()
{
    const CallCosts built("callCost");
    QCOMPARE(journal.lines(),
             QStringList({"AdviceOfCharge::chargeType", "AdviceOfCharge::priceAndCurrency"}) + figuresAsked());
    QVERIFY(!built->isVisible());
}

void TestCallCosts::titleSoftkeysAndClassAreTheScreensOwn()
{
    open();
    QCOMPARE(screen()->mainWidgetTitle(), QString("Call Costs"));
    QCOMPARE(PhoneScreen::softkey(screen(), ZSoftKey::LeftKey), QString());
    QCOMPARE(PhoneScreen::softkey(screen(), ZSoftKey::RightKey), QString("Back"));
    QCOMPARE(screen()->className(), "PHONE_UI_RecentCallCostsView");
    QCOMPARE(screen()->objectName(), QString("callCost"));
}

void TestCallCosts::slotsAndSignalsHaveTheirOrder()
{
    QStringList methods;
    const QMetaObject &meta = View::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        methods.append(QString::fromLatin1(meta.method(i).methodSignature()));
    QCOMPARE(methods,
             QStringList({"closeWidget()", "slotOk()", "slotCloseWgt()", "slotSelectedItem(ZSettingItem*)"}));
    QCOMPARE(meta.superClass()->className(), "ZKbMainWidget");
}

void TestCallCosts::backAndClearEmitCloseWidgetOnceEach()
{
    open();
    journal.clear();
    QSignalSpy closed(screen(), &View::closeWidget);
    PhoneScreen::press(PhoneKey::RightSoftkey);
    QCOMPARE(closed.size(), 1);
    PhoneScreen::press(PhoneKey::Clear);
    QCOMPARE(closed.size(), 2);
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    QCOMPARE(closed.size(), 2);
    QCOMPARE(journal.lines(), QStringList());
    QVERIFY(screen()->isVisible());
}

void TestCallCosts::theUnitFollowsABlankWhateverItIs_data()
{
    QTest::addColumn<quint8>("type");
    QTest::addColumn<QString>("currency");
    QTest::addColumn<QString>("unit");
    QTest::newRow("units") << quint8(0) << "GBP"
                           << "units";
    QTest::newRow("a currency of the short table") << quint8(1) << "GBP"
                                                   << "GBP";
    QTest::newRow("Austria: offered, but only a code here") << quint8(1) << "ATS"
                                                            << "ATS";
    QTest::newRow("Brunei: likewise") << quint8(1) << "BND"
                                      << "BND";
    QTest::newRow("a code in lower case stays so") << quint8(1) << "gbp"
                                                   << "gbp";
}

void TestCallCosts::theUnitFollowsABlankWhateverItIs()
{
    QFETCH(const quint8, type);
    QFETCH(const QString, currency);
    QFETCH(const QString, unit);
    script().answer("AdviceOfCharge::chargeType", type);
    script().answer("AdviceOfCharge::priceAndCurrency", QString("0.10"), currency);
    open();
    QCOMPARE(PhoneScreen::shownRows(screen()), rowsWithUnit(unit));
}

void TestCallCosts::withoutAUnitTheValueEndsInTheBlank_data()
{
    QTest::addColumn<QByteArray>("failing");
    QTest::newRow("the charge type cannot be read") << QByteArray("AdviceOfCharge::chargeType");
    QTest::newRow("the currency cannot be read") << QByteArray("AdviceOfCharge::priceAndCurrency");
    QTest::newRow("the charge type is none that is known") << QByteArray();
}

void TestCallCosts::withoutAUnitTheValueEndsInTheBlank()
{
    QFETCH(const QByteArray, failing);
    if (failing.isEmpty())
        script().answer("AdviceOfCharge::chargeType", quint8(2));
    else
        script().fail(failing.constData(), 2);
    open();
    QCOMPARE(PhoneScreen::rows(screen()), rowsWithUnit(""));
    QCOMPARE(PhoneScreen::value(screen(), 0), QString("12.50 "));
    QCOMPARE(PhoneScreen::value(screen(), dateRow), QString("2006:3:9"));
    PhoneScreen::chooseRow(screen(), 0);
    QCOMPARE(detail()->message(), QString("Your current credit available is 12.50  units"));
}

void TestCallCosts::anEmptyAmountLeavesTheBlankAndTheUnit()
{
    script().answer("CallService::remainingCredit", QByteArray(""));
    open();
    QCOMPARE(PhoneScreen::value(screen(), 0), QString(" EUR"));
    PhoneScreen::chooseRow(screen(), 0);
    QCOMPARE(detail()->message(), QString("Your current credit available is  EUR units"));
}

void TestCallCosts::aRowOutsideTheTableHasNoTitleAndNoValue_data()
{
    QTest::addColumn<int>("row");
    for (const int row : {-1, 8, 9, INT_MAX, INT_MIN})
        QTest::addRow("row %d", row) << row;
}

void TestCallCosts::aRowOutsideTheTableHasNoTitleAndNoValue()
{
    QFETCH(const int, row);
    open();
    journal.clear();
    QVERIFY((screen()->*exposed(ItemTitle()))(row).isNull());
    QVERIFY((screen()->*exposed(ItemValue()))(row).isNull());
    QVERIFY((screen()->*exposed(ItemValue()))(setupRow).isNull());
    QCOMPARE(journal.lines(), QStringList());
}

void TestCallCosts::choosingARowTellsItsValueInASentence()
{
    QFETCH(const int, row);
    open();
    PhoneScreen::chooseRow(screen(), row);
    ZMessageDlg *dialog = detail();
    QVERIFY(dialog);
    QVERIFY(dialog->isVisible());
    QCOMPARE(dialog->type(), ZMessageDlg::InformationDlg);
    QCOMPARE(dialog->parentWidget(), screen());
    QCOMPARE(dialog->header(), QString(rowFacts[row].header));
    QCOMPARE(dialog->message(), QString(rowFacts[row].message).arg(QString(rowFacts[row].value)));
    if (row == 0)
        QCOMPARE(dialog->message(), QString("Your current credit available is 12.50 EUR units"));
}

void TestCallCosts::theValueIsAskedBeforeTheDetailOpens()
{
    QFETCH(const int, row);
    open();
    journal.clear();
    script().whenCalled(rowFacts[row].operation, [&] { QVERIFY(!detail()); });
    PhoneScreen::chooseRow(screen(), row);
    QCOMPARE(journal.lines(), QStringList(rowFacts[row].operation));
    QVERIFY(detail());
}

void TestCallCosts::aDetailTellsTheFigureOfNowInTheUnitOfBefore()
{
    QFETCH(const int, row);
    open();
    for (const RowFacts &facts : rowFacts) {
        if (facts.operation != QLatin1String("CallLog::depositExpirationDate"))
            script().answer(facts.operation, QByteArray("77"));
    }
    script().answer("CallLog::depositExpirationDate", Date{2027, 10, 11});
    script().answer("AdviceOfCharge::priceAndCurrency", QString("0.10"), QString("GBP"));
    PhoneScreen::chooseRow(screen(), row);
    const QString now = row == dateRow ? QStringLiteral("2027:10:11") : QStringLiteral("77 EUR");
    QCOMPARE(detail()->message(), QString(rowFacts[row].message).arg(now));
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    QCOMPARE(PhoneScreen::shownRows(screen()), rowsWithUnit("EUR"));
}

void TestCallCosts::aFigureThatFailsNowIsToldAsItsFallback()
{
    QFETCH(const int, row);
    open();
    script().failAll(4);
    PhoneScreen::chooseRow(screen(), row);
    const QString fallback = row == dateRow ? QStringLiteral("2000/00/00") : QStringLiteral("0.00 EUR");
    QCOMPARE(detail()->message(), QString(rowFacts[row].message).arg(fallback));
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    QCOMPARE(PhoneScreen::shownRows(screen()), rowsWithUnit("EUR"));
}

void TestCallCosts::answeringADetailChangesNothing()
{
    open();
    PhoneScreen::chooseRow(screen(), 4);
    const QPointer<ZMessageDlg> dialog = detail();
    journal.clear();
    QSignalSpy rewritten(PhoneScreen::list(screen())->model(), &QAbstractItemModel::dataChanged);
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    QVERIFY(!dialog);
    QVERIFY(!detail());
    QCOMPARE(rewritten.size(), 0);
    QCOMPARE(journal.lines(), QStringList());
    QCOMPARE(PhoneScreen::list(screen())->currentItem(), 4);
    QMetaObject::invokeMethod(screen(), "slotOk"); // again, with nothing open
    QVERIFY(!detail());
}

void TestCallCosts::anItemThatIsNotInTheListOpensAnEmptyDialog_data()
{
    QTest::addColumn<bool>("isNull");
    QTest::newRow("a row of no list") << false;
    QTest::newRow("no row at all") << true;
}

void TestCallCosts::anItemThatIsNotInTheListOpensAnEmptyDialog()
{
    QFETCH(const bool, isNull);
    open();
    journal.clear();
    ZSettingItem stranger(nullptr, QString());
    RecordingTranslator translator;
    QMetaObject::invokeMethod(screen(), "slotSelectedItem", Q_ARG(ZSettingItem *, isNull ? nullptr : &stranger));
    QVERIFY(detail());
    QVERIFY(detail()->isVisible());
    QCOMPARE(detail()->type(), ZMessageDlg::InformationDlg);
    QCOMPARE(detail()->header(), QString());
    QCOMPARE(detail()->message(), QString());
    QCOMPARE(lines(translator.take()).filter("RecentCall"), QStringList());
    QCOMPARE(journal.lines(), QStringList());
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    QVERIFY(!detail());
}

void TestCallCosts::rowsBehindTheSetupDoNothing()
{
    open();
    ZListBox *list = PhoneScreen::list(screen());
    for (int row = setupRow + 1; row < setupRow + 4; ++row)
        list->insertItem(new ZSettingItem(list, QString()), -1, true);
    journal.clear();
    for (int row = setupRow + 1; row < setupRow + 4; ++row) {
        QMetaObject::invokeMethod(screen(), "slotSelectedItem",
                                  Q_ARG(ZSettingItem *, static_cast<ZSettingItem *>(list->item(row))));
        QVERIFY(!detail());
        QVERIFY(!setup());
    }
    QCOMPARE(journal.lines(), QStringList());
}

void TestCallCosts::theSetupRowOpensTheSetupScreenAndNoDialog()
{
    open();
    PhoneScreen::chooseRow(screen(), setupRow);
    QVERIFY(setup());
    QVERIFY(setup()->isVisible());
    QCOMPARE(setup()->parentWidget(), screen());
    QCOMPARE(setup()->objectName(), QString());
    QVERIFY(!detail());
    QCOMPARE(PhoneScreen::shownDialogs().size(), 0);
}

void TestCallCosts::afterTheSetupTheUnitIsReadAgainAndSevenRowsAreRewritten()
{
    open();
    PhoneScreen::chooseRow(screen(), setupRow);
    const QPointer<SetupView> opened = setup();
    script().answer("AdviceOfCharge::priceAndCurrency", QString("0.20"), QString("GBP"));
    script().answer("CallLog::allCallsCost", QByteArray("0.00"));
    QSignalSpy rewritten(PhoneScreen::list(screen())->model(), &QAbstractItemModel::dataChanged);
    QSignalSpy closed(screen(), &View::closeWidget);
    script().whenCalled("AdviceOfCharge::chargeType", [&] { QVERIFY(!opened && !setup()); });
    journal.clear();
    PhoneScreen::press(PhoneKey::RightSoftkey);
    QVERIFY(!opened);
    QVERIFY(!setup());
    QCOMPARE(closed.size(), 0);
    QCOMPARE(rewrittenRows(rewritten), QList<int>({0, 1, 2, 3, 4, 5, 6}));
    QCOMPARE(journal.lines(),
             QStringList({"AdviceOfCharge::chargeType", "AdviceOfCharge::priceAndCurrency"}) + figuresAsked());
    QStringList rows = rowsWithUnit("GBP");
    rows[6] = QStringLiteral("All Calls Cost|0.00 GBP");
    QCOMPARE(PhoneScreen::shownRows(screen()), rows);
}

void TestCallCosts::aClosedSetupGivesTheFocusBackToTheSameRow()
{
    open();
    PhoneScreen::chooseRow(screen(), setupRow);
    PhoneScreen::press(PhoneKey::Clear);
    QVERIFY(!setup());
    QCOMPARE(screen()->focusWidget(), PhoneScreen::list(screen()));
    QCOMPARE(PhoneScreen::list(screen())->currentItem(), setupRow);
    PhoneScreen::press(PhoneKey::Select);
    QVERIFY(setup());
}

void TestCallCosts::aClosingSignalWithoutASetupOnlyRefreshesAndTakesTheFocus()
{
    open();
    QWidget elsewhere(screen());
    elsewhere.setFocusPolicy(Qt::StrongFocus);
    elsewhere.show();
    elsewhere.setFocus();
    QCOMPARE(screen()->focusWidget(), &elsewhere);
    QSignalSpy rewritten(PhoneScreen::list(screen())->model(), &QAbstractItemModel::dataChanged);
    QMetaObject::invokeMethod(screen(), "slotCloseWgt");
    QCOMPARE(rewrittenRows(rewritten), QList<int>({0, 1, 2, 3, 4, 5, 6}));
    QCOMPARE(screen()->focusWidget(), PhoneScreen::list(screen()));
}

void TestCallCosts::destroyingTheScreenTakesAnOpenSetupAndDetailAlong()
{
    open();
    PhoneScreen::chooseRow(screen(), 2);
    const QPointer<ZMessageDlg> dialog = detail();
    QMetaObject::invokeMethod(
        screen(), "slotSelectedItem",
        Q_ARG(ZSettingItem *, static_cast<ZSettingItem *>(PhoneScreen::list(screen())->item(setupRow))));
    const QPointer<SetupView> opened = setup();
    QVERIFY(dialog);
    QVERIFY(opened);
    hosted->destroy();
    QVERIFY(!dialog);
    QVERIFY(!opened);
}

void TestCallCosts::destroyingTheScreenDeletesItsMeter()
{
    open();
    const QPointer<PHONE_UI_RecentCallMeter> meter = screen()->*exposed(OwnMeter());
    QVERIFY(meter);
    QVERIFY(!meter->parent()); // nobody else deletes it
    hosted->destroy();
    QVERIFY(!meter);
}

void TestCallCosts::eachFailingOperationShowsItsFallbackAlone()
{
    QFETCH(const int, row);
    script().fail(rowFacts[row].operation, 7);
    open();
    QStringList rows = rowsWithUnit("EUR");
    rows[row] = QLatin1String(rowFacts[row].title) +
                (row == dateRow ? QStringLiteral("|2000/00/00") : QStringLiteral("|0.00 EUR"));
    QCOMPARE(PhoneScreen::rows(screen()), rows);
}

void TestCallCosts::eachOperationThatFailsAfterTheSetupShowsItsFallbackAlone()
{
    QFETCH(const int, row);
    open();
    PhoneScreen::chooseRow(screen(), setupRow);
    script().fail(rowFacts[row].operation, -9);
    PhoneScreen::press(PhoneKey::RightSoftkey);
    QVERIFY(!setup());
    QStringList rows = rowsWithUnit("EUR");
    rows[row] = QLatin1String(rowFacts[row].title) +
                (row == dateRow ? QStringLiteral("|2000/00/00") : QStringLiteral("|0.00 EUR"));
    QCOMPARE(PhoneScreen::shownRows(screen()), rows);
}

void TestCallCosts::aUnitThatFailsAfterTheSetupIsGoneUntilItIsReadAgain_data()
{
    QTest::addColumn<QByteArray>("operation");
    QTest::newRow("charge type") << QByteArray("AdviceOfCharge::chargeType");
    QTest::newRow("currency") << QByteArray("AdviceOfCharge::priceAndCurrency");
}

void TestCallCosts::aUnitThatFailsAfterTheSetupIsGoneUntilItIsReadAgain()
{
    QFETCH(const QByteArray, operation);
    open();
    PhoneScreen::chooseRow(screen(), setupRow);
    script().fail(operation.constData(), 1);
    PhoneScreen::press(PhoneKey::RightSoftkey);
    QVERIFY((screen()->*exposed(CurrencyUnit())).isNull());
    QCOMPARE(PhoneScreen::shownRows(screen()), rowsWithUnit(""));
    script().succeed(operation.constData());
    PhoneScreen::press(PhoneKey::Select); // the setup again
    QVERIFY(setup());
    PhoneScreen::press(PhoneKey::RightSoftkey);
    QCOMPARE(PhoneScreen::shownRows(screen()), rowsWithUnit("EUR"));
}

void TestCallCosts::everythingFailingLeavesFallbacksAndAWayOut()
{
    script().failAll(-1);
    open();
    for (int row = 0; row < valueRows; ++row)
        QCOMPARE(PhoneScreen::value(screen(), row), row == dateRow ? QString("2000/00/00") : QString("0.00 "));
    PhoneScreen::chooseRow(screen(), setupRow);
    QVERIFY(setup());
    PhoneScreen::press(PhoneKey::RightSoftkey);
    QVERIFY(!setup());
    QSignalSpy closed(screen(), &View::closeWidget);
    PhoneScreen::press(PhoneKey::RightSoftkey);
    QCOMPARE(closed.size(), 1);
}

void TestCallCosts::textsComeFromTheCatalogueInTheirContexts()
{
    RecordingTranslator translator;
    for (const RowFacts &row : rowFacts) {
        translator.add(row.titleKey, QString::fromUtf8("Título ") + row.title);
        translator.add(row.headerKey, QString::fromUtf8("Überschrift ") + row.header);
        translator.add(row.messageKey, QString::fromUtf8("Voilà: %1 €"));
    }
    open();
    QStringList titleContexts;
    for (const RecordingTranslator::Request &request : translator.take()) {
        if (request.key.startsWith(QLatin1String("TXT_RID_SETTING_A_")))
            titleContexts.append(request.context);
    }
    QCOMPARE(titleContexts, QStringList(8, QStringLiteral("QObject")));
    for (int row = 0; row < valueRows; ++row) {
        QCOMPARE(PhoneScreen::list(screen())->item(row)->title(),
                 QString::fromUtf8("Título ") + rowFacts[row].title);
        PhoneScreen::chooseRow(screen(), row);
        QCOMPARE(detail()->header(), QString::fromUtf8("Überschrift ") + rowFacts[row].header);
        QCOMPARE(detail()->message(), QString::fromUtf8("Voilà: %1 €").arg(QString(rowFacts[row].value)));
        const QStringList asked = lines(translator.take());
        const QString context = QStringLiteral("PHONE_UI_RecentCallCostsView");
        QVERIFY(asked.contains(lines({{context, rowFacts[row].headerKey, rowFacts[row].header}}).first()));
        QVERIFY(asked.contains(lines({{context, rowFacts[row].messageKey, rowFacts[row].message}}).first()));
        PhoneScreen::press(PhoneKey::LeftSoftkey);
    }
}

void TestCallCosts::exactlyTheseTextsAreAskedFor()
{
    const QString own = QStringLiteral("PHONE_UI_RecentCallCostsView");
    const QString common = QStringLiteral("QObject");
    QList<RecordingTranslator::Request> expected{
        {own, "TXT_RID_HEADER_CALL_COSTS", "Call Costs"},
        {own, "TXT_RID_SOFTKEY_BACK", "Back"},
        {own, "", ""},
        {common, "TXT_RID_SETTING_A_CALL_COST_SETUP", "Call Cost Setup"},
    };
    for (const RowFacts &row : rowFacts) {
        expected.append({common, row.titleKey, row.title});
        expected.append({own, row.headerKey, row.header});
        expected.append({own, row.messageKey, row.message});
    }
    RecordingTranslator translator;
    open();
    for (int row = 0; row < valueRows; ++row) {
        PhoneScreen::chooseRow(screen(), row);
        PhoneScreen::press(PhoneKey::LeftSoftkey);
    }
    QStringList asked = lines(translator.take());
    // The dialogs' own softkeys are the toolkit's.
    asked.removeIf([](const QString &line) { return line.startsWith(QLatin1String("ZMessageDlg, ")); });
    asked.sort();
    QStringList sorted = lines(expected);
    sorted.sort();
    COMPARE_LINES(asked, sorted);
}

void TestCallCosts::theUnitIsShownInTheLanguageOfTheCatalogue()
{
    script().answer("AdviceOfCharge::chargeType", quint8(0));
    RecordingTranslator translator;
    translator.add(QStringLiteral("TXT_RID_LIST_A_UNITS"), QString::fromUtf8("unités"));
    translator.add(QStringLiteral("TXT_RID_LIST_A_GBP"), QString::fromUtf8("£ \u20ac"));
    open();
    QCOMPARE(PhoneScreen::shownRows(screen()), rowsWithUnit(QString::fromUtf8("unités")));
    PhoneScreen::chooseRow(screen(), setupRow);
    script().answer("AdviceOfCharge::chargeType", quint8(1));
    script().answer("AdviceOfCharge::priceAndCurrency", QString("0.10"), QString("GBP"));
    PhoneScreen::press(PhoneKey::RightSoftkey);
    QCOMPARE(PhoneScreen::shownRows(screen()), rowsWithUnit(QString::fromUtf8("£ \u20ac")));
    PhoneScreen::chooseRow(screen(), 2);
    QCOMPARE(detail()->message(), QString::fromUtf8("Your last deposit amount was 20 £ \u20ac"));
}

void TestCallCosts::destroyingNothingDoesNothing()
{
    PluginLibrary library;
    auto *destroy = library.function<void(View *)>("destroy_callCost");
    QVERIFY(destroy);
    destroy(nullptr);
    QCOMPARE(journal.lines(), QStringList());
    QCOMPARE(traces->take(), QString());
}

KAV_TEST_GROUP(TestCallCosts, QApplication);
#include "tst_call_costs.moc"
