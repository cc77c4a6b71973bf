// The Call-Cost Setup screen, beside what its steps and the walk prove: traces, texts by their keys, what no key of the
// phone can type, reads that fail one after the other, every set of writes.
#include "utility/PHONE_UI_RecentCallCostSetupView.h"

#include "support/OtherPinEntry.h"
#include "support/PhoneScreen.h"
#include "support/PhoneTest.h"
#include "support/PrivateAccess.h"
#include "support/RecordingTranslator.h"
#include "support/ScreenClock.h"

#include "toolkit/ZListBox.h"
#include "toolkit/ZMultiLineEdit.h"
#include "toolkit/ZSettingItem.h"
#include "toolkit/ZSingleCaptureDlg.h"
#include "toolkit/ZSingleSelectDlg.h"

#include <QtCore/QPointer>
#include <QtCore/QTimer>

using ZKeys::PhoneKey;
using View = PHONE_UI_RecentCallCostSetupView;

KAV_EXPOSE(CurDialog, &View::curDialog);
KAV_EXPOSE(CurIndex, &View::curIndex);
KAV_EXPOSE(CurCallSetType, &View::curCallSetType);
KAV_EXPOSE(IsSaved, &View::isSaved);
KAV_EXPOSE(SelectDlg, &View::selectDlg);
KAV_EXPOSE(SelectListBox, &View::selectListBox);
KAV_EXPOSE(CaptureDlg, &View::captureDlg);
KAV_EXPOSE(MeterMax, &View::preMeterMax);
KAV_EXPOSE(CMMEnable, &View::preCMMEnable);
KAV_EXPOSE(ChargeType, &View::preChargeType);
KAV_EXPOSE(UnitText, &View::unitText);
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
    const char *ofMeter;
    const char *message;
    const char *key;
};
constexpr ResetFacts resets[] = {
    {"resetAll", "All costs have been reset to 0.00 units.",
     "TXT_RID_INSTRUCTIONALTXT_ALL_COSTS_RESET_TO_000_UNITS"},
    {"resetAllCallCosts", "All call costs have been reset to 0.00 units.",
     "TXT_RID_INSTRUCTIONALTXT_ALL_CALL_COSTS_RESET_TO_000_UNITS"},
    {"resetDialedCallCosts", "Dialed call costs have been reset to 0.00 units.",
     "TXT_RID_INSTRUCTIONALTXT_DIALED_CALL_COSTS_RESET_TO_000_UNITS"},
    {"resetAnsweredCallCosts", "Answered call costs have been reset to 0.00 units.",
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

    void itsSignalAndSlotsAreTheScreensOwn();
    void categoryTextsAreTracedAndEmptyOutsideTheTable();

    void aTypedAmountIsStoredAs_data();
    void aTypedAmountIsStoredAs();

    void buildingIsTracedStepByStep();
    void everyTextIsAskedForByItsKey();
    void aValueIsAskedOfTheCatalogueOnlyWhereItIsAText();
    void settingsThatCannotBeReadStayNull();
    void eachStepOfTheRefreshEndsItWhenItFails_data();
    void eachStepOfTheRefreshEndsItWhenItFails();
    void anUnknownChargeTypeChangesNoRow();

    void aRowThatIsDisabledOpensNothing();
    void thePinStatusIsReadBeforeTheIndex();
    void everySelectionIsTraced_data();
    void everySelectionIsTraced();
    void aScreenDestroyedWhileThePinIsAskedForIsSafe();
    void aRowBehindTheLastDoesNothing();
    void aSelectionOfNoRowAsksNothing();
    void aRowOfAnotherListIsTracedAndDoesNothing();

    void everySetOfChangesIsWrittenInOrder_data();
    void everySetOfChangesIsWrittenInOrder();
    void backSavesThenWritesThenCloses();

    void anAnsweredChoiceIsTraced();
    void aTranslatedNameIsCutAtItsEnd();
    void aSwitchThatIsAnsweredForAnotherEditorChangesNothing_data();
    void aSwitchThatIsAnsweredForAnotherEditorChangesNothing();
    void withoutACurrentRowTheSwitchIsOff_data();
    void withoutACurrentRowTheSwitchIsOff();
    void withoutACurrentRowTheCodeIsEmpty();
    void anEntryForAnotherEditorStoresNothing();
    void theEntryIsStoredThenGoesThenIsWritten();

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

// --- rows and traces

void TestCostSetup::itsSignalAndSlotsAreTheScreensOwn()
{
    QStringList methods;
    const QMetaObject &meta = View::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        methods.append(QString::fromLatin1(meta.method(i).methodSignature()));
    QCOMPARE(methods, QStringList({"closeWgt()", "slotBack()", "slotSave()", "slotClose()", "slotCancel()",
                                   "slotSelect()", "slotSingleSelect()", "slotSelectedItem(ZSettingItem*)"}));
    QCOMPARE(meta.superClass(), &ZKbMainWidget::staticMetaObject);
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

// --- entries

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

void TestCostSetup::buildingIsTracedStepByStep()
{
    quint8 rule = 3;
    script().whenCalled("AdviceOfCharge::updateRule",
                        [&] { script().answer("AdviceOfCharge::updateRule", ++rule); });
    const View built(nullptr, nullptr);
    QString steps =
        traced("initAccessRule", "initAccessRule done for 3 EFs, each are: EFACM: 4, EFACMMAX: 5, EFPUCT: 6");
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

// The limit, the currency and the price start from a text that is asked for, though it is empty. What the engine
// answers is none, and neither is the unit of the row of the currency.
void TestCostSetup::aValueIsAskedOfTheCatalogueOnlyWhereItIsAText()
{
    const QString context = QStringLiteral("PHONE_UI_RecentCallCostSetupView");
    RecordingTranslator translator;
    const auto keysAsked = [&] {
        QStringList keys;
        for (const auto &request : translator.take()) {
            if (request.context == context)
                keys.append(request.key);
        }
        return keys;
    };
    translator.add("units", "pieces");
    translator.add("GBP", "pounds");
    for (const int type : {0, 1}) {
        script().answer("AdviceOfCharge::chargeType", quint8(type));
        open();
        const QStringList keys = keysAsked();
        QCOMPARE(keys.count(QString("")), 4); // the left softkey and three rows
        QVERIFY(!keys.contains("units"));
        QVERIFY(!keys.contains("GBP"));
        QCOMPARE(value(CurrencyType), type == 0 ? QString("units") : QString("GBP"));
    }
}

void TestCostSetup::settingsThatCannotBeReadStayNull()
{
    script().failAll(3);
    open();
    QVERIFY(traces->text().contains(QLatin1String("EFACM: 0, EFACMMAX: 0, EFPUCT: 0")));
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

// --- access

void TestCostSetup::aRowThatIsDisabledOpensNothing()
{
    script().answer("AdviceOfCharge::updateRule", quint8(6));
    open();
    journal.clear();
    for (const int row : {ResetAll, Currency}) {
        auto *item = static_cast<ZSettingItem *>(PhoneScreen::list(view.get())->item(row));
        QVERIFY(!item->enabled());
        QMetaObject::invokeMethod(view.get(), "slotSelectedItem", Q_ARG(ZSettingItem *, item));
    }
    QCOMPARE(journal.lines(), QStringList());
    QVERIFY(!dialog());
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
    script().answer("AdviceOfCharge::updateRule", quint8(4)); // of no file of its own
    script().answer("SimSecurity::pinStatus", quint32(1));
    OtherPinEntry entry(1, SETUP_SECURITY_VERIFY_OK);
    entry.whenCalled = [](const OtherPinEntry::Call &) { QTest::qFail("it asks for PIN2", __FILE__, __LINE__); };
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

void TestCostSetup::aSelectionOfNoRowAsksNothing()
{
    open();
    journal.clear();
    const int chosen = view.get()->*exposed(CurIndex());
    emit PhoneScreen::list(view.get())->selected(nullptr);
    QCOMPARE(journal.lines(), QStringList());
    QCOMPARE(view.get()->*exposed(CurIndex()), chosen);
    QVERIFY(!dialog());
}

void TestCostSetup::aRowOfAnotherListIsTracedAndDoesNothing()
{
    script().answer("AdviceOfCharge::updateRule", quint8(4)); // of no file of its own
    script().answer("SimSecurity::pinStatus", quint32(1));
    open();
    ZListBox *list = PhoneScreen::list(view.get());
    const std::unique_ptr<ZSettingItem> stranger(new ZSettingItem(list, QString()));
    QVERIFY(stranger->enabled());
    journal.clear();
    emit list->selected(stranger.get());
    QCOMPARE(journal.lines(), QStringList("SimSecurity::pinStatus(1)"));
    QCOMPARE(view.get()->*exposed(CurIndex()), -1);
    QVERIFY(!dialog());
}

// --- writes

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

// --- editors

void TestCostSetup::anAnsweredChoiceIsTraced()
{
    open();
    for (const int row : {Limit, Currency}) {
        choose(row);
        PhoneScreen::press(PhoneKey::Down);
        traces->take();
        PhoneScreen::press(PhoneKey::Select);
        QVERIFY(traces->take().startsWith(traced(
            "slotSingleSelect", QStringLiteral("num: [1], curCallSetType: [%1]").arg(row == Limit ? 2 : 3))));
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
        traces->take();
        chooseInList(1);
        const QString cut =
            traced("slotSelect", QStringLiteral("preCurrencyTable: [%1]").arg(QLatin1String(code)));
        const QString told = traces->take();
        QVERIFY2(told.startsWith(cut), qPrintable(told));
        QCOMPARE(
            writes(),
            QStringList(
                QStringLiteral("AdviceOfCharge::setPriceAndCurrency(0.10, %1)").arg(QString::fromLatin1(code))));
        view.reset();
    }
}

void TestCostSetup::aSwitchThatIsAnsweredForAnotherEditorChangesNothing_data()
{
    QTest::addColumn<int>("editor");
    for (const int editor : {-1, 0, 1, 4, 5, 6})
        QTest::addRow("editor %d", editor) << editor;
}

void TestCostSetup::aSwitchThatIsAnsweredForAnotherEditorChangesNothing()
{
    QFETCH(const int, editor);
    open();
    const QStringList before = rows();
    for (const int row : {Limit, Currency}) {
        choose(row);
        PhoneScreen::press(PhoneKey::Down);
        view.get()->*exposed(CurCallSetType()) = editor;
        journal.clear();
        traces->take();
        PhoneScreen::press(PhoneKey::Select);
        QCOMPARE(traces->take(),
                 traced("slotSingleSelect", QStringLiteral("num: [1], curCallSetType: [%1]").arg(editor)));
        QCOMPARE(journal.lines(), QStringList());
        QCOMPARE(rows(), before);
        QVERIFY(nothingPending());
    }
}

void TestCostSetup::withoutACurrentRowTheSwitchIsOff_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("write");
    QTest::newRow("the limit's") << int(Limit) << "AdviceOfCharge::disableMeterMaximum";
    QTest::newRow("the currency's") << int(Currency) << "AdviceOfCharge::setChargeType(0)";
}

void TestCostSetup::withoutACurrentRowTheSwitchIsOff()
{
    QFETCH(const int, row);
    QFETCH(const QString, write);
    open();
    choose(row);
    ZListBox *list = view.get()->*exposed(SelectListBox());
    list->setSelected(list->currentItem(), false);
    QCOMPARE(list->currentItem(), -1);
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    PhoneScreen::press(PhoneKey::RightSoftkey); // Back writes what is still to be written
    QCOMPARE(writes(), QStringList(write));
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

void TestCostSetup::theEntryIsStoredThenGoesThenIsWritten()
{
    open();
    choose(Price);
    const QPointer<ZPopup> entry = dialog();
    QString stored; // when it goes
    connect(entry, &QObject::destroyed, this, [&] { stored = view.get()->*exposed(PricePerUnit()); });
    bool wasGone = false;
    script().whenCalled("AdviceOfCharge::setPriceAndCurrency", [&] { wasGone = !entry && !dialog(); });
    traces->take();
    type(QStringLiteral("0.35"));
    QCOMPARE(stored, QString("0.35"));
    QVERIFY(wasGone);
    QVERIFY(traces->take().startsWith(traced("slotSave", "curText: [0.35], curCallSetType: [1]")));
}

KAV_TEST_GROUP(TestCostSetup, QApplication);
#include "tst_cost_setup.moc"
