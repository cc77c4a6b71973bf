// The Call-Cost Setup screen: rows, access rules, PIN2, editors, the order of writes, resets.
#include "PHONE_UI_RecentCallCostSetupView.h"

#include "PhoneScreen.h"
#include "PhoneTest.h"
#include "PrivateAccess.h"
#include "RecordingTranslator.h"

#include "ZListBox.h"
#include "ZListBoxItem.h"
#include "ZMultiLineEdit.h"
#include "ZNoticeDlg.h"
#include "ZSettingItem.h"
#include "ZSingleCaptureDlg.h"
#include "ZSingleSelectDlg.h"

#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtTest/QSignalSpy>

using ZKeys::PhoneKey;
using View = PHONE_UI_RecentCallCostSetupView;

KAV_EXPOSE(CurDialog, &View::curDialog);
KAV_EXPOSE(CurIndex, &View::curIndex);
KAV_EXPOSE(CurCallSetType, &View::curCallSetType);
KAV_EXPOSE(SelectDlg, &View::selectDlg);
KAV_EXPOSE(CaptureDlg, &View::captureDlg);
KAV_EXPOSE(MeterMaxChanged, &View::preMeterMaxChanged);
KAV_EXPOSE(CMMEnableChanged, &View::preCMMEnableChanged);
KAV_EXPOSE(ChargeTypeChanged, &View::preChargeTypeChanged);
KAV_EXPOSE(CurrencyTableChanged, &View::preCurrencyTableChanged);
KAV_EXPOSE(PricePerUnitChanged, &View::prePricePerUnitChanged);
KAV_EXPOSE(CurrencyTable, &View::preCurrencyTable);
KAV_EXPOSE(PricePerUnit, &View::prePricePerUnit);
KAV_EXPOSE(MakeCategoryString, &View::makeCategoryString);
KAV_EXPOSE(MakeCategoryItem, &View::makeCategoryItem);

namespace {

const QString source = QStringLiteral("utility/PHONE_UI_RecentCallCostSetupView");

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
    const char *message;
};
constexpr ResetFacts resets[] = {
    {"CallLog::resetAll", "All costs have been reset to 0.00 units."},
    {"CallLog::resetAllCallsCost", "All call costs have been reset to 0.00 units."},
    {"CallLog::resetDialedCallsCost", "Dialed call costs have been reset to 0.00 units."},
    {"CallLog::resetAnsweredCallsCost", "Answered call costs have been reset to 0.00 units."},
};

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
    void theNoticeGoesByItself();
    void aScreenDestroyedBeforeTheNoticeGoesIsSafe();

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
    row("0.001", "0.001");
    row("0.0011", "0.0011");
    row("12", "12");
    row("12.50", "12.50");
    row("007", "007");
    row("abc", "abc");
    row("1,5", "1,5");
    row("0x0", "0x0");
}

void TestCostSetup::aTypedAmountIsStoredAs()
{
    QFETCH(const QString, typed);
    QFETCH(const QString, stored);
    open();
    choose(AdjustLimit);
    journal.clear();
    type(typed);
    QCOMPARE(writes().size(), 1);
    QCOMPARE(writes()
                 .first()
                 .mid(int(qstrlen("AdviceOfCharge::setMeterMaximum")))
                 .remove(QLatin1Char('('))
                 .remove(QLatin1Char(')'))
                 .trimmed(),
             stored);
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

// Its five seconds are the screen's own; the test makes the timer's call itself.
void TestCostSetup::theNoticeGoesByItself()
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
    view.reset();
    QCoreApplication::processEvents();
}

KAV_TEST_MAIN(TestCostSetup)
#include "tst_cost_setup.moc"
