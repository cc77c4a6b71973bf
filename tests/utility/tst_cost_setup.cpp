// The Call-Cost Setup screen: rows, access rules, PIN2, editors, the order of writes, resets.
#include "utility/PHONE_UI_RecentCallCostSetupView.h"

#include "support/OtherPinEntry.h"
#include "support/PhoneScreen.h"
#include "support/PhoneTest.h"
#include "support/PluginLibrary.h"
#include "support/PrivateAccess.h"
#include "support/RecordingTranslator.h"
#include "support/ScreenClock.h"

#include "toolkit/ZApplication.h"
#include "toolkit/ZListBox.h"
#include "toolkit/ZListBoxItem.h"
#include "toolkit/ZMultiLineEdit.h"
#include "toolkit/ZNoticeDlg.h"
#include "toolkit/ZSettingItem.h"
#include "toolkit/ZSingleCaptureDlg.h"
#include "toolkit/ZSingleSelectDlg.h"

#include <QtCore/QFile>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtTest/QSignalSpy>

using ZKeys::PhoneKey;
using View = PHONE_UI_RecentCallCostSetupView;

KAV_EXPOSE(CurDialog, &View::curDialog);
KAV_EXPOSE(CurIndex, &View::curIndex);
KAV_EXPOSE(CurCallSetType, &View::curCallSetType);
KAV_EXPOSE(IsSaved, &View::isSaved);
KAV_EXPOSE(NoticeDlg, &View::noticeDlg);
KAV_EXPOSE(SoftKey, &View::softKey);
KAV_EXPOSE(ListBox, &View::listBox);
KAV_EXPOSE(SelectDlg, &View::selectDlg);
KAV_EXPOSE(SelectListBox, &View::selectListBox);
KAV_EXPOSE(CaptureDlg, &View::captureDlg);
KAV_EXPOSE(Meter, &View::meter);
KAV_EXPOSE(MeterMax, &View::preMeterMax);
KAV_EXPOSE(CMMEnable, &View::preCMMEnable);
KAV_EXPOSE(ChargeType, &View::preChargeType);
KAV_EXPOSE(UnitText, &View::unitText);
KAV_EXPOSE(RuleACM, &View::accessRuleACM);
KAV_EXPOSE(RuleACMMAX, &View::accessRuleACMMAX);
KAV_EXPOSE(RulePUCT, &View::accessRulePUCT);
KAV_EXPOSE(MeterMaxChanged, &View::preMeterMaxChanged);
KAV_EXPOSE(CMMEnableChanged, &View::preCMMEnableChanged);
KAV_EXPOSE(ChargeTypeChanged, &View::preChargeTypeChanged);
KAV_EXPOSE(CurrencyTableChanged, &View::preCurrencyTableChanged);
KAV_EXPOSE(PricePerUnitChanged, &View::prePricePerUnitChanged);
KAV_EXPOSE(CurrencyTable, &View::preCurrencyTable);
KAV_EXPOSE(PricePerUnit, &View::prePricePerUnit);
KAV_EXPOSE(MakeCategoryString, &View::makeCategoryString);
KAV_EXPOSE(MakeCategoryItem, &View::makeCategoryItem);
KAV_EXPOSE(UpdateCallCostSetup, &View::updateCallCostSetup);
KAV_EXPOSE(ActiveCurrency, &View::activeCurrency);

namespace {

const QString source = QStringLiteral("utility/PHONE_UI_RecentCallCostSetupView");
const QString meterSource = QStringLiteral("utility/PHONE_UI_RecentCallMeter");

enum Row {
    ResetAll,
    ResetAllCalls,
    ResetDialed,
    ResetAnswered,
    Limit,
    AdjustLimit,
    Currency,
    CurrencyType,
    Price
};

constexpr const char *titles[] = {"Reset All",
                                  "Reset All Call Costs",
                                  "Reset Dialed Call Costs",
                                  "Reset Answered Call Costs",
                                  "Credit Limit",
                                  "Adjust Credit Limit",
                                  "Currency",
                                  "Currency Type",
                                  "Cost Per Minute"};

struct ResetFacts {
    const char *operation;
    const char *ofMeter;
    const char *message;
    const char *key;
};
constexpr ResetFacts resets[] = {
    {"CallLog::resetAll", "resetAll", "All costs have been reset to 0.00 units.",
     "TXT_RID_INSTRUCTIONALTXT_ALL_COSTS_RESET_TO_000_UNITS"},
    {"CallLog::resetAllCallsCost", "resetAllCallCosts", "All call costs have been reset to 0.00 units.",
     "TXT_RID_INSTRUCTIONALTXT_ALL_CALL_COSTS_RESET_TO_000_UNITS"},
    {"CallLog::resetDialedCallsCost", "resetDialedCallCosts", "Dialed call costs have been reset to 0.00 units.",
     "TXT_RID_INSTRUCTIONALTXT_DIALED_CALL_COSTS_RESET_TO_000_UNITS"},
    {"CallLog::resetAnsweredCallsCost", "resetAnsweredCallCosts",
     "Answered call costs have been reset to 0.00 units.",
     "TXT_RID_INSTRUCTIONALTXT_ANSWERED_CALL_COSTS_RESET_TO_000_UNITS"},
};

// Which editor a row opens, and what about it is traced; rows from Limit on.
struct EditorFacts {
    int editor;
    const char *function;
    const char *trace;
};
constexpr EditorFacts editors[] = {
    {2, "showSelectDlg", "curCallSetType: [2], curCallSetType: [2]"},
    {0, "showCaptureDlg", "in RCCostSetupView::showCaptureDlg(), curCallSetType: [0]"},
    {3, "showSelectDlg", "curCallSetType: [3], curCallSetType: [3]"},
    {4, "showSelectDlg", "curCallSetType: [4], curCallSetType: [4]"},
    {1, "showCaptureDlg", "in RCCostSetupView::showCaptureDlg(), curCallSetType: [1]"},
};

QString traced(const char *function, const QString &message)
{
    return longTrace(source, QString::fromLatin1(function), message);
}

// What opening a row traces, behind the guard.
QString tracesOfOpening(int row)
{
    if (row < Limit)
        return shortTrace(meterSource, resets[row].ofMeter) + shortTrace(meterSource, resets[row].ofMeter);
    const EditorFacts &facts = editors[row - Limit];
    return traced(facts.function, QString::fromLatin1(facts.trace));
}

// What showData() asks when everything succeeds, in currency.
const QStringList showDataCalls = {"AdviceOfCharge::chargeType", "AdviceOfCharge::priceAndCurrency",
                                   "AdviceOfCharge::meterMaximum", "AdviceOfCharge::chargeType",
                                   "AdviceOfCharge::priceAndCurrency"};

} // namespace

class TestCostSetup : public PhoneTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void rowsShowTheEnginesSettings();
    void theScreenAsksTheEngineInItsOrder();
    void titleSoftkeysAndMetaObjectAreTheScreensOwn();
    void categoryTextsAreTracedAndEmptyOutsideTheTable();
    void inUnitsTheCurrencyTypeReadsUnits();
    void withAnEmptyCodeTheCurrencyTypeKeepsItsText();
    void anUnknownChargeTypeLeavesTheSwitchAlone();
    void aFailedReadEndsTheRefreshWhereItIs_data();
    void aFailedReadEndsTheRefreshWhereItIs();

    void aRuleOfNeverDisablesItsRows_data();
    void aRuleOfNeverDisablesItsRows();
    void theLimitsRowIsEnabledAgainWhenTheLimitIsOn();
    void thePinStatusIsReadOnceForEveryEnabledRow();
    void noPinIsAskedWithoutARuleOrWithStatusThree_data();
    void noPinIsAskedWithoutARuleOrWithStatusThree();
    void aRefusedPinOpensNothing_data();
    void aRefusedPinOpensNothing();

    void theLimitSwitchWaitsForTheNextWrite();
    void theLimitSwitchIsWrittenWithBack();
    void switchingTheLimitOnWithoutANumberWritesNothing();
    void aNewLimitDropsTheSwitchedOffLimit();
    void theCurrencySwitchIsWrittenAtOnce_data();
    void theCurrencySwitchIsWrittenAtOnce();
    void theChoiceOpensOnItsFirstRowWhateverTheSetting();
    void aCancelledChoiceChangesNothing();

    void theCurrencyListOffersCustomAndTheCatalogue();
    void aChosenCurrencyIsCutFromItsName_data();
    void aChosenCurrencyIsCutFromItsName();
    void customOpensAnEntryOfThreeLetters();
    void cancellingCustomGoesBackToTheListUnderItsOtherTitle();

    void anEntryStartsEmptyAndAnEmptyOneIsShownAgain();
    void aTypedAmountIsStoredAs_data();
    void aTypedAmountIsStoredAs();
    void aTypedPriceIsWrittenWithTheCurrency();

    void writesGoInTheirOrderAndStopAtTheFirstFailure_data();
    void writesGoInTheirOrderAndStopAtTheFirstFailure();
    void backTriesAgainAndLeavesWhateverTheResult();
    void destroyingTheScreenWritesWhatIsPending();
    void afterBackDestroyingWritesNothing();

    void aResetHappensAtOnceAndIsTold_data();
    void aResetHappensAtOnceAndIsTold();
    void aFailedResetIsToldAllTheSame();
    void closingTakesTheLatestPopup();
    void aScreenDestroyedBeforeTheNoticeGoesIsSafe();

    void theMembersStandInTheirOrder();
    void theTextsThatNothingReadsAreInTheLibrary();
    void buildingIsTracedStepByStep();
    void everyTextIsAskedForByItsKey();
    void settingsThatCannotBeReadStayNull();
    void eachStepOfTheRefreshEndsItWhenItFails_data();
    void eachStepOfTheRefreshEndsItWhenItFails();
    void anUnknownChargeTypeChangesNoRow();

    void aRuleThatCannotBeReadLeavesItsRowsFree();
    void thePinStatusIsReadBeforeTheIndex();
    void everySelectionIsTraced_data();
    void everySelectionIsTraced();
    void aPinStatusThatCannotBeReadAsksForThePin();
    void thePinIsAskedForAtEverySelection();
    void theRuleOfAFileGuardsItsRowsAlone_data();
    void theRuleOfAFileGuardsItsRowsAlone();
    void thePinEntryIsGivenItsTypeItsSoftkeysAndTheScreen();
    void aPinIsAcceptedByAResultWithoutAnError_data();
    void aPinIsAcceptedByAResultWithoutAnError();
    void aPinThatIsTypedOpensItsRow_data();
    void aPinThatIsTypedOpensItsRow();
    void aScreenDestroyedWhileThePinIsAskedForIsSafe();
    void aRowBehindTheLastDoesNothing();

    void everySetOfChangesIsWrittenInOrder_data();
    void everySetOfChangesIsWrittenInOrder();
    void aFailedWriteIsNotShown();
    void backSavesThenWritesThenCloses();
    void destroyingTriesAFailedWriteOnceMore();

    void anAnsweredChoiceIsLeftBehind_data();
    void anAnsweredChoiceIsLeftBehind();
    void everyChoiceOpensOnItsFirstRow_data();
    void everyChoiceOpensOnItsFirstRow();
    void aTranslatedNameIsCutAtItsEnd();
    void withoutACurrentRowTheCodeIsEmpty();
    void anEntryForAnotherEditorStoresNothing();
    void theEntryGoesBeforeItIsWritten();

    void theNoticeGoesAfterFiveSeconds();
    void theTimerClosesTheEditorThatIsOpenByThen();
    void theTimerTakesAwayAHiddenEditor();
    void theTimerDoesNothingWhenNothingIsOpen();
    void everyNoticeHasATimerOfItsOwn();

private:
    std::unique_ptr<View> view;
    void open();
    void choose(int row) { PhoneScreen::chooseRow(view.get(), row); }
    void chooseInList(int row);
    void type(const QString &text);
    QStringList rows() const { return PhoneScreen::rows(view.get()); }
    QString value(int row) const { return PhoneScreen::value(view.get(), row); }
    bool isEnabled(int row) const { return PhoneScreen::list(view.get())->item(row)->enabled(); }
    ZPopup *dialog() const { return view.get()->*exposed(CurDialog()); }
    bool nothingPending() const;
    QStringList writes() const;
};

void TestCostSetup::init()
{
    PhoneTest::init();
    ScreenClock::restart();
    script().answer("AdviceOfCharge::updateRule", quint8(0));
    script().answer("AdviceOfCharge::meterMaximum", QString("100"), true);
    script().answer("AdviceOfCharge::chargeType", quint8(1));
    script().answer("AdviceOfCharge::priceAndCurrency", QString("0.10"), QString("GBP"));
    script().answer("SimSecurity::pinStatus", quint32(3));
}

void TestCostSetup::cleanup()
{
    view.reset();
    PhoneTest::cleanup();
}

void TestCostSetup::open()
{
    view = std::make_unique<View>(nullptr, "setup");
    view->show();
}

void TestCostSetup::chooseInList(int row)
{
    auto *choice = view.get()->*exposed(SelectDlg());
    choice->getListBox()->setSelected(row, true);
    PhoneScreen::press(PhoneKey::Select);
}

void TestCostSetup::type(const QString &text)
{
    auto *entry = view.get()->*exposed(CaptureDlg());
    QVERIFY(entry);
    entry->getMultiLineEdit()->setPlainText(text);
    PhoneScreen::press(PhoneKey::LeftSoftkey);
}

bool TestCostSetup::nothingPending() const
{
    const View *screen = view.get();
    return !(screen->*exposed(MeterMaxChanged())) && !(screen->*exposed(CMMEnableChanged())) &&
           !(screen->*exposed(ChargeTypeChanged())) && !(screen->*exposed(CurrencyTableChanged())) &&
           !(screen->*exposed(PricePerUnitChanged()));
}

QStringList TestCostSetup::writes() const
{
    QStringList written;
    for (const QString &line : journal.lines()) {
        if (line.startsWith(QLatin1String("AdviceOfCharge::set")) ||
            line.startsWith(QLatin1String("AdviceOfCharge::disable")))
            written.append(line);
    }
    return written;
}

// --- rows

void TestCostSetup::rowsShowTheEnginesSettings()
{
    open();
    const QStringList values = {"", "", "", "", "On", "100 GBP", "On", "GBP", "0.10 GBP"};
    for (int row = 0; row < 9; ++row) {
        QCOMPARE(rows().at(row), QLatin1String(titles[row]) + QLatin1Char('|') + values.at(row));
        QVERIFY(isEnabled(row));
    }
    QCOMPARE(rows().size(), 9);
}

void TestCostSetup::theScreenAsksTheEngineInItsOrder()
{
    script().answer("AdviceOfCharge::updateRule", quint8(4));
    const View built(nullptr, nullptr);
    const QStringList rules = {"AdviceOfCharge::updateRule 61", "AdviceOfCharge::updateRule 59",
                               "AdviceOfCharge::updateRule 64"};
    QStringList asked = journal.lines();
    for (QString &line : asked)
        line.remove(QLatin1Char('(')).remove(QLatin1Char(')'));
    QCOMPARE(asked.mid(3), showDataCalls);
    for (int i = 0; i < 3; ++i)
        QVERIFY2(asked.at(i).startsWith(QLatin1String("AdviceOfCharge::updateRule")) &&
                     asked.at(i).endsWith(rules.at(i).right(2)),
                 qPrintable(asked.at(i)));
    QVERIFY(traces->text().contains(
        QStringLiteral("initAccessRule done for 3 EFs, each are: EFACM: 4, EFACMMAX: 4, EFPUCT: 4")));
}

void TestCostSetup::titleSoftkeysAndMetaObjectAreTheScreensOwn()
{
    open();
    QCOMPARE(view->mainWidgetTitle(), QString("Call-Cost Setup"));
    QCOMPARE(PhoneScreen::softkey(view.get(), ZSoftKey::LeftKey), QString());
    QCOMPARE(PhoneScreen::softkey(view.get(), ZSoftKey::RightKey), QString("Back"));
    QStringList methods;
    const QMetaObject &meta = View::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        methods.append(QString::fromLatin1(meta.method(i).methodSignature()));
    QCOMPARE(methods, QStringList({"closeWgt()", "slotBack()", "slotSave()", "slotClose()", "slotCancel()",
                                   "slotSelect()", "slotSingleSelect()", "slotSelectedItem(ZSettingItem*)"}));
}

void TestCostSetup::categoryTextsAreTracedAndEmptyOutsideTheTable()
{
    open();
    for (const int type : {-1, 9, 1000}) {
        traces->take();
        QVERIFY((view.get()->*exposed(MakeCategoryString()))(type).isNull());
        QVERIFY((view.get()->*exposed(MakeCategoryItem()))(type).isNull());
        QCOMPARE(traces->take(), longTrace(source, "makeCategoryString",
                                           QStringLiteral("in makeCategoryString(), type: [%1]").arg(type)) +
                                     longTrace(source, "makeCategoryItem",
                                               QStringLiteral("in makeCategoryItem(), type: [%1]").arg(type)));
    }
    for (const int type : {4, 6})
        QCOMPARE((view.get()->*exposed(MakeCategoryItem()))(type), QString("On"));
    for (const int type : {5, 7, 8})
        QCOMPARE((view.get()->*exposed(MakeCategoryItem()))(type), QString(""));
    for (const int type : {0, 1, 2, 3})
        QVERIFY((view.get()->*exposed(MakeCategoryItem()))(type).isNull());
}

void TestCostSetup::inUnitsTheCurrencyTypeReadsUnits()
{
    script().answer("AdviceOfCharge::chargeType", quint8(0));
    open();
    QCOMPARE(value(Currency), QString("Off"));
    QCOMPARE(value(CurrencyType), QString("units"));
    QCOMPARE(value(Price), QString("0.10 units"));
    QVERIFY(!isEnabled(CurrencyType));
    QVERIFY(!isEnabled(Price));
    QVERIFY(isEnabled(Currency));
}

void TestCostSetup::withAnEmptyCodeTheCurrencyTypeKeepsItsText()
{
    open();
    script().answer("AdviceOfCharge::priceAndCurrency", QString("0.20"), QString(""));
    choose(Currency);
    chooseInList(0);
    QCOMPARE(value(CurrencyType), QString("GBP"));
    QCOMPARE(value(Price), QString("0.20 "));
}

void TestCostSetup::anUnknownChargeTypeLeavesTheSwitchAlone()
{
    script().answer("AdviceOfCharge::chargeType", quint8(7));
    open();
    QCOMPARE(value(Currency), QString("On")); // as the list was built
    QCOMPARE(value(CurrencyType), QString("units"));
    QVERIFY(isEnabled(Price));
}

void TestCostSetup::aFailedReadEndsTheRefreshWhereItIs_data()
{
    QTest::addColumn<QByteArray>("operation");
    QTest::addColumn<QStringList>("values");
    QTest::newRow("the limit") << QByteArray("AdviceOfCharge::meterMaximum")
                               << QStringList({"On", "", "On", "", ""});
    QTest::newRow("the charge type") << QByteArray("AdviceOfCharge::chargeType")
                                     << QStringList({"Off", "100 ", "On", "", ""});
    QTest::newRow("the price") << QByteArray("AdviceOfCharge::priceAndCurrency")
                               << QStringList({"Off", "100 ", "On", "", ""});
}

void TestCostSetup::aFailedReadEndsTheRefreshWhereItIs()
{
    QFETCH(const QByteArray, operation);
    QFETCH(QStringList, values);
    script().answer("AdviceOfCharge::meterMaximum", QString("100"), false);
    script().fail(operation.constData(), 3);
    open();
    for (int row = Limit; row <= Price; ++row)
        QCOMPARE(value(row), values.at(row - Limit));
}

// --- access

void TestCostSetup::aRuleOfNeverDisablesItsRows_data()
{
    QTest::addColumn<quint8>("file");
    QTest::addColumn<QList<int>>("disabled");
    QTest::newRow("costs") << quint8(61) << QList<int>({ResetAll, ResetAllCalls, ResetDialed, ResetAnswered});
    QTest::newRow("limit") << quint8(59) << QList<int>({Limit});
    QTest::newRow("price") << quint8(64) << QList<int>({Currency});
}

void TestCostSetup::aRuleOfNeverDisablesItsRows()
{
    QFETCH(const quint8, file);
    QFETCH(const QList<int>, disabled);
    // The rule of each file in turn: the script is asked before it answers.
    int asked = 0;
    script().whenCalled("AdviceOfCharge::updateRule", [&] {
        constexpr quint8 files[] = {61, 59, 64};
        script().answer("AdviceOfCharge::updateRule", quint8(files[asked++] == file ? 6 : 0));
    });
    open();
    QCOMPARE(asked, 3);
    for (int row = 0; row < 9; ++row)
        QCOMPARE(isEnabled(row), !disabled.contains(row));
    journal.clear();
    for (const int row : disabled) {
        auto *item = static_cast<ZSettingItem *>(PhoneScreen::list(view.get())->item(row));
        QMetaObject::invokeMethod(view.get(), "slotSelectedItem", Q_ARG(ZSettingItem *, item));
    }
    QCOMPARE(journal.lines(), QStringList());
    QVERIFY(!dialog());
}

void TestCostSetup::theLimitsRowIsEnabledAgainWhenTheLimitIsOn()
{
    script().answer("AdviceOfCharge::updateRule", quint8(6));
    open();
    QVERIFY(!isEnabled(Limit));
    QVERIFY(isEnabled(AdjustLimit));
    QVERIFY(isEnabled(CurrencyType));
    QVERIFY(isEnabled(Price));
    choose(AdjustLimit);
    QVERIFY(dialog());
    QCOMPARE(dialog()->header(), QString("Adjust Credit Limit"));
    QCOMPARE(journal.startingWith("SimSecurity::verifyPin"), QStringList());
}

void TestCostSetup::thePinStatusIsReadOnceForEveryEnabledRow()
{
    open();
    for (int row = 0; row < 9; ++row) {
        journal.clear();
        choose(row);
        QCOMPARE(journal.startingWith("SimSecurity::pinStatus").size(), 1);
        QVERIFY(journal.lines().first().startsWith(QLatin1String("SimSecurity::pinStatus")));
        QCOMPARE(view.get()->*exposed(CurIndex()), row);
        QMetaObject::invokeMethod(view.get(), "slotClose");
        QVERIFY(!dialog());
    }
}

void TestCostSetup::noPinIsAskedWithoutARuleOrWithStatusThree_data()
{
    QTest::addColumn<quint8>("rule");
    QTest::addColumn<quint32>("status");
    QTest::newRow("free files") << quint8(0) << quint32(1);
    QTest::newRow("another rule") << quint8(5) << quint32(1);
    QTest::newRow("the PIN has been entered") << quint8(4) << quint32(3);
}

void TestCostSetup::noPinIsAskedWithoutARuleOrWithStatusThree()
{
    QFETCH(const quint8, rule);
    QFETCH(const quint32, status);
    script().answer("AdviceOfCharge::updateRule", rule);
    script().answer("SimSecurity::pinStatus", status);
    open();
    for (int row = 0; row < 9; ++row) {
        choose(row);
        QVERIFY(dialog());
        QMetaObject::invokeMethod(view.get(), "slotClose");
    }
    QCOMPARE(journal.startingWith("SimSecurity::verifyPin"), QStringList());
}

void TestCostSetup::aRefusedPinOpensNothing_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < 9; ++row)
        QTest::newRow(titles[row]) << row;
}

// The PIN entry blocks until it is answered: the answer is given from the event loop.
void TestCostSetup::aRefusedPinOpensNothing()
{
    QFETCH(const int, row);
    script().answer("AdviceOfCharge::updateRule", quint8(4));
    script().answer("SimSecurity::pinStatus", quint32(1));
    script().answer("SimSecurity::triesLeft", 3);
    open();
    traces->take();
    bool cancelled = false;
    QTimer::singleShot(0, view.get(), [&] {
        cancelled = true;
        PhoneScreen::press(PhoneKey::RightSoftkey);
    });
    choose(row);
    QVERIFY(cancelled);
    QVERIFY(!dialog());
    QCOMPARE(traces->text().contains(QLatin1String("pinType: [1]")), row >= Limit);
    QCOMPARE(journal.startingWith("CallLog::reset"), QStringList());
}

// --- switches

void TestCostSetup::theLimitSwitchWaitsForTheNextWrite()
{
    open();
    choose(Limit);
    QCOMPARE(dialog()->header(), QString("Credit Limit"));
    journal.clear();
    chooseInList(1);
    QCOMPARE(value(Limit), QString("Off"));
    QVERIFY(!isEnabled(AdjustLimit));
    QCOMPARE(journal.lines(), QStringList());
    QVERIFY(view.get()->*exposed(CMMEnableChanged()));
    choose(Currency);
    journal.clear();
    chooseInList(0);
    QCOMPARE(writes().size(), 2);
    QCOMPARE(writes().first(), QString("AdviceOfCharge::disableMeterMaximum"));
    QVERIFY(nothingPending());
}

void TestCostSetup::theLimitSwitchIsWrittenWithBack()
{
    open();
    choose(Limit);
    chooseInList(1);
    journal.clear();
    QSignalSpy closed(view.get(), &View::closeWgt);
    PhoneScreen::press(PhoneKey::Clear);
    QCOMPARE(closed.size(), 1);
    QCOMPARE(journal.lines(), QStringList("AdviceOfCharge::disableMeterMaximum"));
}

void TestCostSetup::switchingTheLimitOnWithoutANumberWritesNothing()
{
    script().answer("AdviceOfCharge::meterMaximum", QString("100"), false);
    open();
    QCOMPARE(value(Limit), QString("Off"));
    choose(Limit);
    chooseInList(0);
    QCOMPARE(value(Limit), QString("On"));
    journal.clear();
    choose(Currency);
    chooseInList(0);
    QCOMPARE(writes().size(), 1);
    QVERIFY(writes().first().startsWith(QLatin1String("AdviceOfCharge::setChargeType")));
    QVERIFY(nothingPending());
    QCOMPARE(value(Limit), QString("Off")); // the engine's own state again
}

void TestCostSetup::aNewLimitDropsTheSwitchedOffLimit()
{
    open();
    choose(AdjustLimit); // before the switch disables the row
    QMetaObject::invokeMethod(view.get(), "slotClose");
    choose(Limit);
    chooseInList(1);
    PhoneScreen::list(view.get())->item(AdjustLimit)->setEnabled(true);
    choose(AdjustLimit);
    journal.clear();
    type(QStringLiteral("250"));
    QCOMPARE(writes().size(), 1);
    QVERIFY(writes().first().contains(QLatin1String("setMeterMaximum")));
    QVERIFY(writes().first().contains(QLatin1String("250")));
    QVERIFY(nothingPending());
}

void TestCostSetup::theCurrencySwitchIsWrittenAtOnce_data()
{
    QTest::addColumn<int>("choice");
    QTest::addColumn<QString>("type");
    QTest::newRow("on is charge type 1") << 0 << "1";
    QTest::newRow("off is charge type 0") << 1 << "0";
}

void TestCostSetup::theCurrencySwitchIsWrittenAtOnce()
{
    QFETCH(const int, choice);
    QFETCH(const QString, type);
    open();
    choose(Currency);
    QCOMPARE(dialog()->header(), QString("Currency"));
    journal.clear();
    chooseInList(choice);
    QCOMPARE(writes().size(), 1);
    QVERIFY(writes().first().startsWith(QLatin1String("AdviceOfCharge::setChargeType")));
    QVERIFY(writes().first().contains(type));
    QCOMPARE(journal.lines().mid(1), showDataCalls);
    QVERIFY(nothingPending());
}

void TestCostSetup::theChoiceOpensOnItsFirstRowWhateverTheSetting()
{
    script().answer("AdviceOfCharge::meterMaximum", QString("100"), false);
    open();
    choose(Limit);
    ZListBox *list = (view.get()->*exposed(SelectDlg()))->getListBox();
    QCOMPARE(list->count(), 2);
    QCOMPARE(list->itemType(), QString("%I%M"));
    QCOMPARE(list->currentItem(), 0);
    QVERIFY(list->isSelected(0));
    QCOMPARE(static_cast<ZListBoxItem *>(list->item(0))->getSubItemText(0, 1, false), QString("On"));
    QCOMPARE(static_cast<ZListBoxItem *>(list->item(1))->getSubItemText(0, 1, false), QString("Off"));
}

void TestCostSetup::aCancelledChoiceChangesNothing()
{
    open();
    const QStringList before = rows();
    for (const int row : {Limit, Currency, CurrencyType}) {
        choose(row);
        const QPointer<ZPopup> choice = dialog();
        journal.clear();
        PhoneScreen::press(row == Limit ? PhoneKey::Clear : PhoneKey::RightSoftkey);
        QVERIFY(!choice);
        QVERIFY(!dialog());
        QCOMPARE(journal.lines(), QStringList());
    }
    QCOMPARE(rows(), before);
    QVERIFY(nothingPending());
}

// --- the currency list

void TestCostSetup::theCurrencyListOffersCustomAndTheCatalogue()
{
    RecordingTranslator translator;
    translator.add(QStringLiteral("TXT_RID_LIST_A_SAO_TOME_PRINCIPE_DOBRA_SRD"),
                   QString::fromUtf8("São Tomé (SRD)"));
    open();
    translator.take();
    choose(CurrencyType);
    QCOMPARE(dialog()->header(), QString("Choose Type"));
    ZListBox *list = (view.get()->*exposed(SelectDlg()))->getListBox();
    QCOMPARE(list->count(), 194);
    QCOMPARE(list->itemType(), QString("%M"));
    const auto shown = [&](int row) {
        return static_cast<ZListBoxItem *>(list->item(row))->getSubItemText(0, 0, false);
    };
    QCOMPARE(shown(0), QString("Custom"));
    QCOMPARE(shown(1), QString("UNITED ARAB EMIRATES  DIRHAM  (AED)"));
    QCOMPARE(shown(30), QString::fromLatin1("CHINA  RENMINBI \xA5UAN  (CNY)"));
    QCOMPARE(shown(145), QString::fromUtf8("São Tomé (SRD)"));
    QCOMPARE(shown(193), QString("ZIMBABWE  DOLLAR  (ZWD)"));
    int ofTheScreen = 0;
    for (const RecordingTranslator::Request &request : translator.take())
        ofTheScreen += request.context == QLatin1String("PHONE_UI_RecentCallCostSetupView") ? 1 : 0;
    QVERIFY(ofTheScreen >= 195); // header, Custom, 193 currencies
}

void TestCostSetup::aChosenCurrencyIsCutFromItsName_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("code");
    QTest::newRow("the first") << 1 << "AED";
    QTest::newRow("the last") << 193 << "ZWD";
    QTest::newRow("one whose name ends in a blank: Ivory Coast") << 182 << "OF)";
    QTest::newRow("one whose name ends in a blank: Senegal") << 185 << "OF)";
    QTest::newRow("between them") << 183 << "XOF";
}

void TestCostSetup::aChosenCurrencyIsCutFromItsName()
{
    QFETCH(const int, row);
    QFETCH(const QString, code);
    open();
    choose(CurrencyType);
    journal.clear();
    traces->take();
    chooseInList(row);
    QCOMPARE(view.get()->*exposed(CurCallSetType()), 4);
    QCOMPARE(writes().size(), 1);
    QVERIFY(writes().first().contains(QStringLiteral("0.10, ") + code));
    QVERIFY(traces->text().contains(QStringLiteral("\"preCurrencyTable: [%1]\"").arg(code)));
    QCOMPARE(journal.lines().mid(1), showDataCalls);
}

void TestCostSetup::customOpensAnEntryOfThreeLetters()
{
    open();
    choose(CurrencyType);
    chooseInList(0);
    auto *entry = view.get()->*exposed(CaptureDlg());
    QVERIFY(entry);
    QVERIFY(entry->isVisible());
    QCOMPARE(entry->header(), QString("Currency Type"));
    QCOMPARE(entry->getMultiLineEdit()->maxLength(), 3);
    QCOMPARE(view.get()->*exposed(CurCallSetType()), 5);
    journal.clear();
    type(QStringLiteral("EUR"));
    QCOMPARE(writes().size(), 1);
    QVERIFY(writes().first().contains(QLatin1String("0.10, EUR")));
    QVERIFY(!dialog());
}

void TestCostSetup::cancellingCustomGoesBackToTheListUnderItsOtherTitle()
{
    open();
    choose(CurrencyType);
    chooseInList(0);
    const QPointer<ZSingleCaptureDlg> entry = view.get()->*exposed(CaptureDlg());
    PhoneScreen::press(PhoneKey::RightSoftkey);
    QCOMPARE(view.get()->*exposed(CurCallSetType()), 4);
    QVERIFY(entry); // left behind, and no longer the current dialog
    QVERIFY(dialog() != entry);
    QCOMPARE(dialog()->header(), QString("Currency Type"));
    QCOMPARE((view.get()->*exposed(SelectDlg()))->getListBox()->count(), 194);
    PhoneScreen::press(PhoneKey::RightSoftkey);
    QVERIFY(!dialog());
}

// --- entries

void TestCostSetup::anEntryStartsEmptyAndAnEmptyOneIsShownAgain()
{
    open();
    for (const int row : {AdjustLimit, Price}) {
        choose(row);
        const QPointer<ZSingleCaptureDlg> entry = view.get()->*exposed(CaptureDlg());
        QCOMPARE(entry->getResultText(), QString());
        QCOMPARE(entry->softKey()->text(ZSoftKey::LeftKey), QString("Save"));
        QVERIFY(entry->getMultiLineEdit()->maxLength() < 0);
        journal.clear();
        PhoneScreen::press(PhoneKey::LeftSoftkey);
        QVERIFY(entry);
        QVERIFY(entry->isVisible());
        QCOMPARE(journal.lines(), QStringList());
        QVERIFY(nothingPending());
        PhoneScreen::press(PhoneKey::RightSoftkey);
        QVERIFY(!entry);
    }
}

void TestCostSetup::aTypedAmountIsStoredAs_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("stored");
    const auto row = [](const char *typed, const char *stored) { QTest::newRow(typed) << typed << stored; };
    row("-5", "0.000");
    row("0", "0.000");
    row("0.0005", "0.000");
    row("0.000", "0.000");
    row("0.00099", "0.000");
    row("-0.5", "0.000");
    row("0.0009999", "0.000");
    row("-inf", "0.000");
    row("-0", "0.000");
    row("1e-4", "0.000");
    row("0.001", "0.001");
    row("0.00099999999", "0.00099999999"); // the nearest single-precision number is a thousandth
    row("1e-50", "1e-50");                 // no single-precision number
    row("nan", "nan");
    row("0.0011", "0.0011");
    row("12", "12");
    row("12.50", "12.50");
    row("007", "007");
    row("abc", "abc");
    row("1,5", "1,5");
    row("0x0", "0x0");
    row(" 12 ", " 12 ");
    row(" 0 ", "0.000");
    row("+0", "0.000");
    row("   ", "   ");
}

void TestCostSetup::aTypedAmountIsStoredAs()
{
    QFETCH(const QString, typed);
    QFETCH(const QString, stored);
    open();
    choose(AdjustLimit);
    journal.clear();
    type(typed);
    QCOMPARE(writes(), QStringList(QStringLiteral("AdviceOfCharge::setMeterMaximum(%1)").arg(stored)));
    choose(Price);
    journal.clear();
    type(typed);
    QCOMPARE(writes(), QStringList(QStringLiteral("AdviceOfCharge::setPriceAndCurrency(%1, GBP)").arg(stored)));
    if (typed.size() > 3)
        return; // no custom code
    choose(CurrencyType);
    chooseInList(0);
    journal.clear();
    type(typed);
    QCOMPARE(writes(), QStringList(QStringLiteral("AdviceOfCharge::setPriceAndCurrency(0.10, %1)").arg(stored)));
}

void TestCostSetup::aTypedPriceIsWrittenWithTheCurrency()
{
    open();
    choose(Price);
    QCOMPARE(dialog()->header(), QString("Cost Per Minute"));
    const QPointer<ZPopup> entry = dialog();
    journal.clear();
    type(QStringLiteral("0.35"));
    QVERIFY(!entry);
    QVERIFY(!dialog());
    QCOMPARE(writes().size(), 1);
    QVERIFY(writes().first().contains(QLatin1String("0.35, GBP")));
    QCOMPARE(journal.lines().mid(1), showDataCalls);
}

// --- writes

void TestCostSetup::writesGoInTheirOrderAndStopAtTheFirstFailure_data()
{
    QTest::addColumn<QByteArray>("failing");
    QTest::addColumn<int>("tried");
    QTest::newRow("all succeed") << QByteArray() << 3;
    QTest::newRow("the limit fails") << QByteArray("AdviceOfCharge::setMeterMaximum") << 1;
    QTest::newRow("the charge type fails") << QByteArray("AdviceOfCharge::setChargeType") << 2;
    QTest::newRow("the price fails") << QByteArray("AdviceOfCharge::setPriceAndCurrency") << 3;
}

void TestCostSetup::writesGoInTheirOrderAndStopAtTheFirstFailure()
{
    QFETCH(const QByteArray, failing);
    QFETCH(const int, tried);
    open();
    script().fail("AdviceOfCharge::setMeterMaximum", 9); // so that three edits collect
    choose(AdjustLimit);
    type(QStringLiteral("5"));
    choose(Currency);
    chooseInList(0);
    choose(Price);
    type(QStringLiteral("2"));
    script().succeed("AdviceOfCharge::setMeterMaximum");
    // A failed write is read over by the refresh behind it: what is pending is flagged, with the engine's values.
    if (!failing.isEmpty())
        script().fail(failing.constData(), 3);
    journal.clear();
    QSignalSpy closed(view.get(), &View::closeWgt);
    PhoneScreen::press(PhoneKey::RightSoftkey);
    QCOMPARE(closed.size(), 1);
    constexpr const char *order[] = {"setMeterMaximum", "setChargeType", "setPriceAndCurrency"};
    QCOMPARE(writes().size(), tried);
    for (int i = 0; i < tried; ++i)
        QVERIFY2(writes().at(i).contains(QLatin1String(order[i])), qPrintable(writes().at(i)));
    QCOMPARE(nothingPending(), failing.isEmpty());
}

void TestCostSetup::backTriesAgainAndLeavesWhateverTheResult()
{
    open();
    script().fail("AdviceOfCharge::setPriceAndCurrency", 3);
    choose(Price);
    type(QStringLiteral("2"));
    QVERIFY(view.get()->*exposed(PricePerUnitChanged()));
    journal.clear();
    QSignalSpy closed(view.get(), &View::closeWgt);
    PhoneScreen::press(PhoneKey::RightSoftkey);
    QCOMPARE(writes().size(), 1);
    QCOMPARE(closed.size(), 1);
}

void TestCostSetup::destroyingTheScreenWritesWhatIsPending()
{
    open();
    choose(Limit);
    chooseInList(1);
    journal.clear();
    view.reset();
    QCOMPARE(journal.lines(), QStringList("AdviceOfCharge::disableMeterMaximum"));
}

void TestCostSetup::afterBackDestroyingWritesNothing()
{
    open();
    script().fail("AdviceOfCharge::disableMeterMaximum", 3);
    choose(Limit);
    chooseInList(1);
    PhoneScreen::press(PhoneKey::RightSoftkey);
    journal.clear();
    view.reset();
    QCOMPARE(journal.lines(), QStringList());
}

// --- resets

void TestCostSetup::aResetHappensAtOnceAndIsTold_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < 4; ++row)
        QTest::newRow(titles[row]) << row;
}

void TestCostSetup::aResetHappensAtOnceAndIsTold()
{
    QFETCH(const int, row);
    open();
    journal.clear();
    choose(row);
    QCOMPARE(journal.lines().mid(1), QStringList(resets[row].operation));
    auto *notice = dynamic_cast<ZNoticeDlg *>(dialog());
    QVERIFY(notice);
    QVERIFY(notice->isVisible());
    QCOMPARE(notice->parentWidget(), view.get());
    QCOMPARE(notice->header(), QString("Reset Calls"));
    QCOMPARE(notice->message(), QString(resets[row].message));
}

void TestCostSetup::aFailedResetIsToldAllTheSame()
{
    script().failAll(3);
    open();
    choose(ResetAllCalls);
    QVERIFY(dialog());
    QCOMPARE(static_cast<ZNoticeDlg *>(dialog())->message(), QString(resets[1].message));
}

// Whatever is open when the timer's call comes.
void TestCostSetup::closingTakesTheLatestPopup()
{
    open();
    choose(ResetAll);
    const QPointer<ZPopup> notice = dialog();
    QMetaObject::invokeMethod(view.get(), "slotClose");
    QVERIFY(!notice);
    QVERIFY(!dialog());
    QMetaObject::invokeMethod(view.get(), "slotClose"); // with nothing left to close
    choose(ResetAll);
    const QPointer<ZPopup> second = dialog();
    // The notice keeps the keys away from the list; an editor opened over it is what is current then.
    auto *item = static_cast<ZSettingItem *>(PhoneScreen::list(view.get())->item(AdjustLimit));
    QMetaObject::invokeMethod(view.get(), "slotSelectedItem", Q_ARG(ZSettingItem *, item));
    const QPointer<ZPopup> editor = dialog();
    QVERIFY(editor != second);
    QMetaObject::invokeMethod(view.get(), "slotClose");
    QVERIFY(!editor);
    QVERIFY(second);
    QVERIFY(!dialog());
}

void TestCostSetup::aScreenDestroyedBeforeTheNoticeGoesIsSafe()
{
    open();
    choose(ResetAll);
    QCOMPARE(ScreenClock::pending().size(), 1);
    view.reset();
    QVERIFY(ScreenClock::pending().isEmpty());
    ScreenClock::advance(5000);
    QCoreApplication::processEvents();
}

// --- the letter of it

void TestCostSetup::theMembersStandInTheirOrder()
{
    open();
    const View &screen = *view;
    const void *const members[] = {
        &(screen.*exposed(CurIndex())),
        &(screen.*exposed(IsSaved())),
        &(screen.*exposed(CurDialog())),
        &(screen.*exposed(NoticeDlg())),
        &(screen.*exposed(SoftKey())),
        &(screen.*exposed(ListBox())),
        &(screen.*exposed(CaptureDlg())),
        &(screen.*exposed(SelectDlg())),
        &(screen.*exposed(CurCallSetType())),
        &(screen.*exposed(SelectListBox())),
        &(screen.*exposed(Meter())),
        &(screen.*exposed(MeterMax())),
        &(screen.*exposed(CMMEnable())),
        &(screen.*exposed(ChargeType())),
        &(screen.*exposed(CurrencyTable())),
        &(screen.*exposed(PricePerUnit())),
        &(screen.*exposed(UnitText())),
        &(screen.*exposed(MeterMaxChanged())),
        &(screen.*exposed(CMMEnableChanged())),
        &(screen.*exposed(ChargeTypeChanged())),
        &(screen.*exposed(CurrencyTableChanged())),
        &(screen.*exposed(PricePerUnitChanged())),
        &(screen.*exposed(RuleACM())),
        &(screen.*exposed(RuleACMMAX())),
        &(screen.*exposed(RulePUCT())),
    };
    for (size_t i = 1; i < std::size(members); ++i)
        QVERIFY2(std::less<>()(members[i - 1], members[i]), qPrintable(QString::number(i)));
    // The five flags are five bytes in a row.
    const auto address = [](const bool &flag) { return reinterpret_cast<quintptr>(&flag); };
    QCOMPARE(address(screen.*exposed(PricePerUnitChanged())) - address(screen.*exposed(MeterMaxChanged())),
             quintptr(4));
    QCOMPARE(View::staticMetaObject.superClass(), &ZKbMainWidget::staticMetaObject);
}

void TestCostSetup::theTextsThatNothingReadsAreInTheLibrary()
{
    QFile library(PluginLibrary().fileName());
    QVERIFY(library.open(QIODevice::ReadOnly));
    const QByteArray image = library.readAll();
    for (const char *text :
         {"ScreensaverStatus", "ScreenSaverTimeout", "DiaplyTimeout", "DimTimeout", "DimIntensity"})
        QVERIFY2(image.contains(QByteArray(text) + '\0'), text);
}

void TestCostSetup::buildingIsTracedStepByStep()
{
    const View built(nullptr, nullptr);
    QString steps =
        traced("initAccessRule", "initAccessRule done for 3 EFs, each are: EFACM: 0, EFACMMAX: 0, EFPUCT: 0");
    for (int row = 0; row < 9; ++row) {
        steps += traced("makeCategoryString", QStringLiteral("in makeCategoryString(), type: [%1]").arg(row));
        if (row >= Limit)
            steps += traced("makeCategoryItem", QStringLiteral("in makeCategoryItem(), type: [%1]").arg(row));
    }
    steps +=
        longTrace(meterSource, "TranslateCurrency", "PHONE_UI_RecentCallMeter::TranslateCurrency string=GBP.\\n");
    steps += traced("showData", "showData(), the unitText: [GBP]");
    steps += traced("showData", "res: [0], preMeterMax: [100], preCMMEnable: [1]");
    steps += traced("activeLimit", "CMMEnable: [1]");
    steps += traced("showData", "res: [0], preChargeType: [1]");
    steps += traced("activeCurrency", "ChargeType: [1]");
    steps += traced("showData", "res: [0], prePricePerUnit: [0.10], preCurrencyTable: [GBP]");
    QCOMPARE(traces->take(), steps);
}

void TestCostSetup::everyTextIsAskedForByItsKey()
{
    const QString context = QStringLiteral("PHONE_UI_RecentCallCostSetupView");
    RecordingTranslator translator;
    open();
    const auto isAsked = [&](const QList<RecordingTranslator::Request> &asked, const QString &of, const char *key,
                             const char *english) {
        const bool found = asked.contains({of, QString::fromLatin1(key), QString::fromLatin1(english)});
        if (!found)
            qInfo("not asked for %s, but %s", key, qPrintable(lines(asked).join(QLatin1String("; "))));
        return found;
    };
    const auto built = translator.take();
    constexpr const char *titleKeys[] = {"RESET_ALL",
                                         "RESET_ALL_CALL_COSTS",
                                         "RESET_DIALED_CALL_COSTS",
                                         "RESET_ANSWERED_CALL_COSTS",
                                         "CREDIT_LIMIT",
                                         "ADJUST_CREDIT_LIMIT",
                                         "CURRENCY",
                                         "CURRENCY_TYPE",
                                         "COST_PER_MINUTE"};
    for (int row = 0; row < 9; ++row) {
        const QByteArray key = QByteArray("TXT_RID_SETTING_A_").append(titleKeys[row]);
        QVERIFY(isAsked(built, QStringLiteral("QObject"), key.constData(), titles[row]));
    }
    QVERIFY(isAsked(built, context, "TXT_RID_HEADER_CALL_COST_SETUP", "Call-Cost Setup"));
    QVERIFY(isAsked(built, context, "TXT_RID_SOFTKEY_BACK", "Back"));
    QVERIFY(isAsked(built, context, "TXT_RID_SETTING_B_ON", "On"));

    constexpr const char *headers[][2] = {{"TXT_RID_SETTING_A_CREDIT_LIMIT", "Credit Limit"},
                                          {"TXT_RID_HEADER_ADJUST_CREDIT_LIMIT", "Adjust Credit Limit"},
                                          {"TXT_RID_HEADER_CURRENCY", "Currency"},
                                          {"TXT_RID_HEADER_CHOOSE_TYPE", "Choose Type"},
                                          {"TXT_RID_HEADER_COST_PER_MINUTE", "Cost Per Minute"}};
    for (int row = 0; row < 9; ++row) {
        choose(row);
        const auto opened = translator.take();
        if (row < Limit) {
            QVERIFY(isAsked(opened, context, resets[row].key, resets[row].message));
            QVERIFY(isAsked(opened, context, "TXT_RID_HEADER_RESET_CALLS", "Reset Calls"));
        } else {
            QVERIFY(isAsked(opened, context, headers[row - Limit][0], headers[row - Limit][1]));
        }
        if (row == Limit || row == Currency) {
            QVERIFY(isAsked(opened, context, "TXT_RID_LIST_A_ON", "On"));
            QVERIFY(isAsked(opened, context, "TXT_RID_LIST_A_OFF", "Off"));
        } else if (row == AdjustLimit || row == Price) {
            QVERIFY(isAsked(opened, context, "TXT_RID_SOFTKEY_SAVE", "Save"));
        }
        QMetaObject::invokeMethod(view.get(), "slotClose");
    }
    choose(CurrencyType);
    QVERIFY(isAsked(translator.take(), context, "TXT_RID_LIST_A_CUSTOM", "Custom"));
    chooseInList(0);
    QVERIFY(isAsked(translator.take(), context, "TXT_RID_HEADER_CURRENCY_TYPE", "Currency Type"));
    PhoneScreen::press(PhoneKey::RightSoftkey);
    QVERIFY(isAsked(translator.take(), context, "TXT_RID_SETTING_A_CURRENCY_TYPE", "Currency Type"));
    PhoneScreen::press(PhoneKey::RightSoftkey);
    choose(Limit);
    chooseInList(1);
    QVERIFY(isAsked(translator.take(), context, "TXT_RID_SETTING_B_OFF", "Off"));
}

void TestCostSetup::settingsThatCannotBeReadStayNull()
{
    script().failAll(3);
    open();
    QVERIFY((view.get()->*exposed(MeterMax())).isNull());
    QVERIFY((view.get()->*exposed(CurrencyTable())).isNull());
    QVERIFY((view.get()->*exposed(PricePerUnit())).isNull());
    QVERIFY((view.get()->*exposed(UnitText())).isNull());
    QCOMPARE(rows(), QStringList({"Reset All|", "Reset All Call Costs|", "Reset Dialed Call Costs|",
                                  "Reset Answered Call Costs|", "Credit Limit|On", "Adjust Credit Limit|",
                                  "Currency|On", "Currency Type|", "Cost Per Minute|"}));
}

void TestCostSetup::eachStepOfTheRefreshEndsItWhenItFails_data()
{
    QTest::addColumn<QByteArray>("operation");
    QTest::addColumn<int>("nth"); // call of it
    QTest::addColumn<QList<int>>("asked");
    QTest::addColumn<QStringList>("values");
    const QByteArray type = "AdviceOfCharge::chargeType";
    const QByteArray price = "AdviceOfCharge::priceAndCurrency";
    QTest::newRow("the unit's charge type: no unit, the rest goes on")
        << type << 1 << QList<int>({0, 2, 3, 4}) << QStringList({"Off", "200 ", "On", "EUR", "0.20 "});
    QTest::newRow("the unit's currency: no unit, the rest goes on")
        << price << 1 << QList<int>({0, 1, 2, 3, 4}) << QStringList({"Off", "200 ", "On", "EUR", "0.20 "});
    QTest::newRow("the limit: all rows stay")
        << QByteArray("AdviceOfCharge::meterMaximum") << 1 << QList<int>({0, 1, 2})
        << QStringList({"On", "100 GBP", "On", "GBP", "0.10 GBP"});
    QTest::newRow("the charge type: the limit's rows are new")
        << type << 2 << QList<int>({0, 1, 2, 3}) << QStringList({"Off", "200 EUR", "On", "GBP", "0.10 GBP"});
    QTest::newRow("the price: its rows stay")
        << price << 2 << QList<int>({0, 1, 2, 3, 4}) << QStringList({"Off", "200 EUR", "On", "GBP", "0.10 GBP"});
}

void TestCostSetup::eachStepOfTheRefreshEndsItWhenItFails()
{
    QFETCH(const QByteArray, operation);
    QFETCH(const int, nth);
    QFETCH(const QList<int>, asked);
    QFETCH(const QStringList, values);
    open();
    script().answer("AdviceOfCharge::meterMaximum", QString("200"), false);
    script().answer("AdviceOfCharge::priceAndCurrency", QString("0.20"), QString("EUR"));
    int calls = 0;
    script().whenCalled(operation.constData(),
                        [&] { script().fail(operation.constData(), ++calls == nth ? 3 : 0); });
    choose(Currency);
    journal.clear();
    chooseInList(0);
    QStringList expected = {"AdviceOfCharge::setChargeType(1)"};
    for (const int step : asked)
        expected.append(showDataCalls.at(step));
    COMPARE_LINES(journal.lines(), expected);
    for (int row = Limit; row <= Price; ++row)
        QCOMPARE(value(row), values.at(row - Limit));
    QVERIFY(nothingPending());
}

void TestCostSetup::anUnknownChargeTypeChangesNoRow()
{
    script().answer("AdviceOfCharge::chargeType", quint8(0));
    open();
    const QStringList before = rows();
    for (const int type : {2, 7, -1, 255}) {
        traces->take();
        (view.get()->*exposed(ActiveCurrency()))(type);
        QCOMPARE(traces->take(), traced("activeCurrency", QStringLiteral("ChargeType: [%1]").arg(type)));
        QCOMPARE(rows(), before);
        QVERIFY(!isEnabled(CurrencyType));
        QVERIFY(!isEnabled(Price));
    }
}

// --- access to the letter

void TestCostSetup::aRuleThatCannotBeReadLeavesItsRowsFree()
{
    script().answer("AdviceOfCharge::updateRule", quint8(6));
    script().fail("AdviceOfCharge::updateRule", 3);
    open();
    for (int row = 0; row < 9; ++row)
        QVERIFY(isEnabled(row));
    QVERIFY(traces->text().contains(QLatin1String("EFACM: 0, EFACMMAX: 0, EFPUCT: 0")));
}

void TestCostSetup::thePinStatusIsReadBeforeTheIndex()
{
    open();
    for (int row = 0; row < 9; ++row) {
        traces->take();
        int asked = 0;
        const int before = view.get()->*exposed(CurIndex());
        script().whenCalled("SimSecurity::pinStatus", [&] {
            ++asked;
            QCOMPARE(view.get()->*exposed(CurIndex()), before);
            QVERIFY(traces->take().isEmpty());
        });
        choose(row);
        QCOMPARE(asked, 1);
        QCOMPARE(journal.startingWith("SimSecurity::pinStatus").last(), QString("SimSecurity::pinStatus(1)"));
        QMetaObject::invokeMethod(view.get(), "slotClose");
    }
}

void TestCostSetup::everySelectionIsTraced_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<quint8>("rule");
    QTest::addColumn<int>("error");
    for (int row = 0; row < 9; ++row) {
        QTest::addRow("%s, free", titles[row]) << row << quint8(0) << 0;
        QTest::addRow("%s, PIN accepted", titles[row]) << row << quint8(4) << 0;
        QTest::addRow("%s, PIN refused", titles[row]) << row << quint8(4) << 3;
    }
}

void TestCostSetup::everySelectionIsTraced()
{
    QFETCH(const int, row);
    QFETCH(const quint8, rule);
    QFETCH(const int, error);
    script().answer("AdviceOfCharge::updateRule", rule);
    script().answer("SimSecurity::pinStatus", quint32(1));
    const OtherPinEntry entry(1, SETUP_SECURITY_PINVERIFY_ERR_E(error));
    open();
    traces->take();
    choose(row);
    QString steps = traced("slotSelectedItem", QStringLiteral("index: [%1]").arg(row));
    if (rule == 4 && row >= Limit)
        steps += traced("slotSelectedItem", QStringLiteral("res: [1], pinType: [1], err: [%1]").arg(error));
    if (error == 0)
        steps += tracesOfOpening(row);
    QCOMPARE(traces->take(), steps);
    QCOMPARE(bool(dialog()), error == 0);
    QCOMPARE(view.get()->*exposed(CurIndex()), row);
    if (error == 0 && row >= Limit)
        QCOMPARE(view.get()->*exposed(CurCallSetType()), editors[row - Limit].editor);
}

// The status is preset to one that asks.
void TestCostSetup::aPinStatusThatCannotBeReadAsksForThePin()
{
    script().answer("AdviceOfCharge::updateRule", quint8(4));
    script().fail("SimSecurity::pinStatus", 3);
    OtherPinEntry entry(0, SETUP_SECURITY_VERIFY_CANCELLED);
    int asked = 0;
    entry.whenCalled = [&](const OtherPinEntry::Call &) { ++asked; };
    open();
    for (int row = 0; row < 9; ++row)
        choose(row);
    QCOMPARE(asked, 9);
    QVERIFY(!dialog());
}

void TestCostSetup::thePinIsAskedForAtEverySelection()
{
    script().answer("AdviceOfCharge::updateRule", quint8(4));
    open();
    for (const quint32 status : {0u, 1u, 2u, 4u, 255u}) {
        script().answer("SimSecurity::pinStatus", status);
        OtherPinEntry entry(1, SETUP_SECURITY_VERIFY_OK);
        int asked = 0;
        entry.whenCalled = [&](const OtherPinEntry::Call &) { ++asked; };
        for (int row = 0; row < 9; ++row) {
            choose(row);
            QCOMPARE(asked, row + 1);
            QVERIFY(dialog());
            QMetaObject::invokeMethod(view.get(), "slotClose");
        }
    }
}

void TestCostSetup::theRuleOfAFileGuardsItsRowsAlone_data()
{
    QTest::addColumn<quint8>("file");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    QTest::newRow("costs") << quint8(61) << int(ResetAll) << int(ResetAnswered);
    QTest::newRow("limit") << quint8(59) << int(Limit) << int(AdjustLimit);
    QTest::newRow("price") << quint8(64) << int(Currency) << int(Price);
}

void TestCostSetup::theRuleOfAFileGuardsItsRowsAlone()
{
    QFETCH(const quint8, file);
    QFETCH(const int, first);
    QFETCH(const int, last);
    int rulesAsked = 0;
    script().whenCalled("AdviceOfCharge::updateRule", [&] {
        constexpr quint8 files[] = {61, 59, 64};
        script().answer("AdviceOfCharge::updateRule", quint8(files[rulesAsked++] == file ? 4 : 0));
    });
    script().answer("SimSecurity::pinStatus", quint32(1));
    OtherPinEntry entry(0, SETUP_SECURITY_VERIFY_CANCELLED);
    int asked = 0;
    entry.whenCalled = [&](const OtherPinEntry::Call &) { ++asked; };
    open();
    for (int row = 0; row < 9; ++row) {
        asked = 0;
        choose(row);
        const bool isGuarded = row >= first && row <= last;
        QCOMPARE(asked, isGuarded ? 1 : 0);
        QCOMPARE(bool(dialog()), !isGuarded);
        QMetaObject::invokeMethod(view.get(), "slotClose");
    }
}

void TestCostSetup::thePinEntryIsGivenItsTypeItsSoftkeysAndTheScreen()
{
    script().answer("AdviceOfCharge::updateRule", quint8(4));
    script().answer("SimSecurity::pinStatus", quint32(1));
    open();
    OtherPinEntry entry(1, SETUP_SECURITY_VERIFY_OK);
    int asked = 0;
    entry.whenCalled = [&](const OtherPinEntry::Call &call) {
        ++asked;
        QCOMPARE(int(call.pinType), 1);
        QCOMPARE(int(call.softkeys), 1);
        QCOMPARE(call.parent, view.get());
        QVERIFY(!dialog()); // nothing is opened before it
    };
    for (int row = 0; row < 9; ++row) {
        choose(row);
        QMetaObject::invokeMethod(view.get(), "slotClose");
    }
    QCOMPARE(asked, 9);
}

void TestCostSetup::aPinIsAcceptedByAResultWithoutAnError_data()
{
    QTest::addColumn<int>("result");
    QTest::addColumn<int>("error");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("a result and no error") << 1 << 0 << true;
    QTest::newRow("any other result and no error") << -7 << 0 << true;
    QTest::newRow("a result and an error") << 1 << 1 << false;
    QTest::newRow("no result and no error") << 0 << 0 << false;
    QTest::newRow("no result and an error") << 0 << 3 << false;
}

void TestCostSetup::aPinIsAcceptedByAResultWithoutAnError()
{
    QFETCH(const int, result);
    QFETCH(const int, error);
    QFETCH(const bool, accepted);
    script().answer("AdviceOfCharge::updateRule", quint8(4));
    script().answer("SimSecurity::pinStatus", quint32(1));
    open();
    const OtherPinEntry entry(result, SETUP_SECURITY_PINVERIFY_ERR_E(error));
    const QStringList before = rows();
    for (int row = 0; row < 9; ++row) {
        journal.clear();
        choose(row);
        QCOMPARE(bool(dialog()), accepted);
        if (!accepted)
            QCOMPARE(journal.lines(), QStringList("SimSecurity::pinStatus(1)"));
        QMetaObject::invokeMethod(view.get(), "slotClose");
    }
    QCOMPARE(rows(), before);
}

void TestCostSetup::aPinThatIsTypedOpensItsRow_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < 9; ++row)
        QTest::newRow(titles[row]) << row;
}

void TestCostSetup::aPinThatIsTypedOpensItsRow()
{
    QFETCH(const int, row);
    script().answer("AdviceOfCharge::updateRule", quint8(4));
    script().answer("SimSecurity::pinStatus", quint32(1));
    script().answer("SimSecurity::triesLeft", 3);
    script().answer("SimSecurity::verifyPin", true);
    open();
    QTimer::singleShot(0, view.get(), [] {
        for (const int key : {Qt::Key_4, Qt::Key_7, Qt::Key_1, Qt::Key_1})
            ZApplication::pressKey(key);
        PhoneScreen::press(PhoneKey::LeftSoftkey);
    });
    choose(row);
    QCOMPARE(journal.startingWith("SimSecurity::verifyPin"), QStringList("SimSecurity::verifyPin(1, 4711)"));
    QVERIFY(dialog());
    QVERIFY(dialog()->isVisible());
    QCOMPARE(journal.startingWith("CallLog::reset").size(), row < Limit ? 1 : 0);
}

void TestCostSetup::aScreenDestroyedWhileThePinIsAskedForIsSafe()
{
    script().answer("AdviceOfCharge::updateRule", quint8(4));
    script().answer("SimSecurity::pinStatus", quint32(1));
    script().answer("SimSecurity::triesLeft", 3);
    for (int row = 0; row < 9; ++row) {
        open();
        QTimer::singleShot(0, this, [this] { view.reset(); });
        choose(row);
        QVERIFY(!view);
    }
    QCOMPARE(journal.startingWith("CallLog::reset"), QStringList());
}

void TestCostSetup::aRowBehindTheLastDoesNothing()
{
    open();
    ZListBox *list = PhoneScreen::list(view.get());
    list->insertItem(new ZSettingItem(list, QString()), -1, true);
    const int editor = view.get()->*exposed(CurCallSetType());
    journal.clear();
    choose(9);
    QCOMPARE(journal.lines(), QStringList("SimSecurity::pinStatus(1)"));
    QCOMPARE(view.get()->*exposed(CurIndex()), 9);
    QCOMPARE(view.get()->*exposed(CurCallSetType()), editor);
    QVERIFY(!dialog());
}

// --- writes to the letter

void TestCostSetup::everySetOfChangesIsWrittenInOrder_data()
{
    QTest::addColumn<QByteArray>("failing");
    QTest::newRow("nothing fails") << QByteArray();
    QTest::newRow("the limit fails") << QByteArray("AdviceOfCharge::setMeterMaximum");
    QTest::newRow("the switched-off limit fails") << QByteArray("AdviceOfCharge::disableMeterMaximum");
    QTest::newRow("the charge type fails") << QByteArray("AdviceOfCharge::setChargeType");
    QTest::newRow("the price fails") << QByteArray("AdviceOfCharge::setPriceAndCurrency");
}

void TestCostSetup::everySetOfChangesIsWrittenInOrder()
{
    QFETCH(const QByteArray, failing);
    open();
    if (!failing.isEmpty())
        script().fail(failing.constData(), 3);
    View *screen = view.get();
    bool *const flags[] = {&(screen->*exposed(MeterMaxChanged())), &(screen->*exposed(CMMEnableChanged())),
                           &(screen->*exposed(ChargeTypeChanged())), &(screen->*exposed(CurrencyTableChanged())),
                           &(screen->*exposed(PricePerUnitChanged()))};
    screen->*exposed(MeterMax()) = QStringLiteral("77");
    screen->*exposed(CurrencyTable()) = QStringLiteral("ABC");
    screen->*exposed(PricePerUnit()) = QStringLiteral("1.5");
    for (int set = 0; set < 64; ++set) {
        const auto has = [set](int flag) { return (set >> flag & 1) != 0; };
        const bool isOn = has(5);
        screen->*exposed(CMMEnable()) = isOn;
        screen->*exposed(ChargeType()) = quint8(isOn ? 1 : 0);
        for (int i = 0; i < 5; ++i)
            *flags[i] = has(i);
        QStringList calls;
        QString steps =
            traced("updateCallCostSetup", QStringLiteral("preMeterMaxChanged: [%1], preCMMEnableChanged: [%2], "
                                                         "preChargeTypeChanged: [%3]")
                                              .arg(has(0))
                                              .arg(has(1))
                                              .arg(has(2))) +
            traced("updateCallCostSetup",
                   QStringLiteral("preCurrencyTableChanged: [%1], prePricePerUnitChanged: [%2]")
                       .arg(has(3))
                       .arg(has(4)));
        bool goesOn = true;
        const auto call = [&](bool wanted, const QString &line, const QString &behind) {
            if (!wanted || !goesOn)
                return;
            calls.append(line);
            goesOn = failing.isEmpty() || !line.startsWith(QLatin1String(failing));
            steps += traced("updateCallCostSetup", QStringLiteral("result: [%1]").arg(goesOn ? 0 : 3) + behind);
        };
        call(has(0), "AdviceOfCharge::setMeterMaximum(77)", QString());
        call(!has(0) && has(1) && !isOn, "AdviceOfCharge::disableMeterMaximum", QString());
        call(has(2), QStringLiteral("AdviceOfCharge::setChargeType(%1)").arg(isOn),
             QStringLiteral(", preChargeType: [%1]").arg(isOn));
        call(has(3) || has(4), "AdviceOfCharge::setPriceAndCurrency(1.5, ABC)",
             ", prePricePerUnit: [1.5], preCurrencyTable: [ABC]");
        journal.clear();
        traces->take();
        (screen->*exposed(UpdateCallCostSetup()))();
        COMPARE_LINES(journal.lines(), calls);
        QCOMPARE(traces->take(), steps);
        for (int i = 0; i < 5; ++i)
            QCOMPARE(*flags[i], !goesOn && has(i));
    }
    for (bool *flag : flags)
        *flag = false; // nothing is left for the destructor
}

void TestCostSetup::aFailedWriteIsNotShown()
{
    open();
    const QStringList before = rows();
    script().fail("AdviceOfCharge::setMeterMaximum", 3);
    choose(AdjustLimit);
    journal.clear();
    type(QStringLiteral("5"));
    QCOMPARE(journal.lines(), QStringList("AdviceOfCharge::setMeterMaximum(5)") + showDataCalls);
    QVERIFY(!dialog());
    QCOMPARE(view->findChildren<ZPopup *>().size(), 0);
    QCOMPARE(rows(), before);
    QVERIFY(view.get()->*exposed(MeterMaxChanged()));
}

void TestCostSetup::backSavesThenWritesThenCloses()
{
    open();
    choose(Limit);
    chooseInList(1);
    QStringList order;
    script().whenCalled("AdviceOfCharge::disableMeterMaximum", [&] {
        order.append(view.get()->*exposed(IsSaved()) ? "saved" : "not saved");
        order.append("written");
    });
    connect(view.get(), &View::closeWgt, this, [&] { order.append("closed"); });
    QVERIFY(!(view.get()->*exposed(IsSaved())));
    PhoneScreen::press(PhoneKey::RightSoftkey);
    QCOMPARE(order, QStringList({"saved", "written", "closed"}));
    script().whenCalled("AdviceOfCharge::disableMeterMaximum", nullptr);
}

void TestCostSetup::destroyingTriesAFailedWriteOnceMore()
{
    open();
    script().fail("AdviceOfCharge::setMeterMaximum", 3);
    choose(AdjustLimit);
    type(QStringLiteral("5"));
    script().succeed("AdviceOfCharge::setMeterMaximum");
    journal.clear();
    view.reset();
    // The refresh behind the failed write has read the handset's own limit over the new one.
    QCOMPARE(journal.lines(), QStringList("AdviceOfCharge::setMeterMaximum(100)"));
}

// --- editors to the letter

void TestCostSetup::anAnsweredChoiceIsLeftBehind_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<PhoneKey>("key");
    for (const int row : {Limit, Currency, CurrencyType}) {
        QTest::addRow("%s, select key", titles[row]) << row << PhoneKey::Select;
        QTest::addRow("%s, left softkey", titles[row]) << row << PhoneKey::LeftSoftkey;
    }
}

void TestCostSetup::anAnsweredChoiceIsLeftBehind()
{
    QFETCH(const int, row);
    QFETCH(const PhoneKey, key);
    open();
    choose(row);
    const QPointer<ZPopup> choice = dialog();
    PhoneScreen::press(PhoneKey::Down);
    traces->take();
    PhoneScreen::press(key);
    QVERIFY(choice);
    QVERIFY(!choice->isVisible());
    QCOMPARE(dialog(), choice.data());
    if (row != CurrencyType)
        QVERIFY(traces->take().startsWith(traced(
            "slotSingleSelect", QStringLiteral("num: [1], curCallSetType: [%1]").arg(row == Limit ? 2 : 3))));
    QVERIFY(row == Limit ? view.get()->*exposed(CMMEnableChanged()) : writes().size() == 1);
    view.reset();
    QVERIFY(!choice); // it went with its screen
}

void TestCostSetup::everyChoiceOpensOnItsFirstRow_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<quint8>("chargeType");
    QTest::newRow("the limit is off") << int(Limit) << quint8(1);
    QTest::newRow("costs are in units") << int(Currency) << quint8(0);
    QTest::newRow("a currency of the list is set") << int(CurrencyType) << quint8(1);
}

void TestCostSetup::everyChoiceOpensOnItsFirstRow()
{
    QFETCH(const int, row);
    QFETCH(const quint8, chargeType);
    script().answer("AdviceOfCharge::meterMaximum", QString("100"), false);
    script().answer("AdviceOfCharge::chargeType", chargeType);
    open();
    for (int times = 0; times < 2; ++times) {
        choose(row);
        ZListBox *list = (view.get()->*exposed(SelectDlg()))->getListBox();
        QCOMPARE(list, view.get()->*exposed(SelectListBox()));
        QVERIFY(list->isSelected(0));
        PhoneScreen::press(PhoneKey::Down);
        PhoneScreen::press(PhoneKey::RightSoftkey);
    }
}

void TestCostSetup::aTranslatedNameIsCutAtItsEnd()
{
    RecordingTranslator translator;
    const QString key = QStringLiteral("TXT_RID_LIST_A_UNITED_ARAB_EMIRATES_DIRHAM_AED");
    for (const auto &[shown, code] : {std::pair("Emirate (XYZ)", "XYZ"), std::pair("AB)", "AB)"),
                                      std::pair("12345", "234"), std::pair("A", "A")}) {
        translator.add(key, QString::fromLatin1(shown));
        open();
        choose(CurrencyType);
        journal.clear();
        chooseInList(1);
        QCOMPARE(
            writes(),
            QStringList(
                QStringLiteral("AdviceOfCharge::setPriceAndCurrency(0.10, %1)").arg(QString::fromLatin1(code))));
        view.reset();
    }
}

void TestCostSetup::withoutACurrentRowTheCodeIsEmpty()
{
    open();
    choose(CurrencyType);
    ZListBox *list = view.get()->*exposed(SelectListBox());
    list->setSelected(list->currentItem(), false);
    QCOMPARE(list->currentItem(), -1);
    journal.clear();
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    QCOMPARE(writes(), QStringList("AdviceOfCharge::setPriceAndCurrency(0.10, )"));
}

void TestCostSetup::anEntryForAnotherEditorStoresNothing()
{
    open();
    for (const int editor : {2, 3, 4, 6, -1}) {
        choose(AdjustLimit);
        view.get()->*exposed(CurCallSetType()) = editor;
        journal.clear();
        type(QStringLiteral("5"));
        QCOMPARE(journal.lines(), showDataCalls);
        QVERIFY(!dialog());
        QVERIFY(nothingPending());
    }
}

void TestCostSetup::theEntryGoesBeforeItIsWritten()
{
    open();
    choose(Price);
    const QPointer<ZPopup> entry = dialog();
    bool wasGone = false;
    script().whenCalled("AdviceOfCharge::setPriceAndCurrency", [&] { wasGone = !entry && !dialog(); });
    traces->take();
    type(QStringLiteral("0.35"));
    QVERIFY(wasGone);
    QVERIFY(traces->take().startsWith(traced("slotSave", "curText: [0.35], curCallSetType: [1]")));
}

// --- the notice's time

void TestCostSetup::theNoticeGoesAfterFiveSeconds()
{
    open();
    choose(ResetAll);
    const QPointer<ZPopup> notice = dialog();
    QCOMPARE(view.get()->*exposed(NoticeDlg()), notice.data());
    QCOMPARE(ScreenClock::pending(), QList<ScreenClock::Timer>({{5000, "1slotClose()"}}));
    ScreenClock::advance(4999);
    QVERIFY(notice);
    QVERIFY(notice->isVisible());
    ScreenClock::advance(1);
    QVERIFY(!notice);
    QVERIFY(!dialog());
    QVERIFY(ScreenClock::pending().isEmpty());
}

void TestCostSetup::theTimerClosesTheEditorThatIsOpenByThen()
{
    open();
    for (int row = Limit; row <= Price; ++row) {
        choose(ResetAll);
        const QPointer<ZPopup> notice = dialog();
        PhoneScreen::press(PhoneKey::LeftSoftkey);
        QVERIFY(notice && !notice->isVisible());
        choose(row);
        const QPointer<ZPopup> editor = dialog();
        QVERIFY(editor != notice);
        ScreenClock::advance(5000);
        QVERIFY(!editor);
        QVERIFY(!dialog());
        QVERIFY(notice); // left behind
    }
    QVERIFY(nothingPending());
}

void TestCostSetup::theTimerTakesAwayAHiddenEditor()
{
    open();
    choose(ResetAll);
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    choose(Limit);
    const QPointer<ZPopup> choice = dialog();
    chooseInList(1);
    QVERIFY(choice);
    ScreenClock::advance(5000);
    QVERIFY(!choice);
    QVERIFY(view.get()->*exposed(CMMEnableChanged())); // the answer stays
}

void TestCostSetup::theTimerDoesNothingWhenNothingIsOpen()
{
    open();
    choose(ResetAll);
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    choose(Limit);
    PhoneScreen::press(PhoneKey::RightSoftkey);
    QVERIFY(!dialog());
    const QStringList before = rows();
    journal.clear();
    ScreenClock::advance(5000);
    QVERIFY(!dialog());
    QCOMPARE(journal.lines(), QStringList());
    QCOMPARE(rows(), before);
}

void TestCostSetup::everyNoticeHasATimerOfItsOwn()
{
    open();
    choose(ResetAll);
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    ScreenClock::advance(3000);
    choose(ResetDialed);
    const QPointer<ZPopup> second = dialog();
    QCOMPARE(ScreenClock::pending().size(), 2);
    ScreenClock::advance(2000); // the first one's time closes the second
    QVERIFY(!second);
    ScreenClock::advance(3000);
    QVERIFY(!dialog());
    QVERIFY(ScreenClock::pending().isEmpty());
}

KAV_TEST_GROUP(TestCostSetup, QApplication);
#include "tst_cost_setup.moc"
