#include "utility/PHONE_UI_RecentCallCostSetupView.h"

#include "callsetup/PHONE_ENG_Setup.h"
#include "qt/QValueList.h"
#include "security/SETUP_SECURITY_Util.h"
#include "telephony/tapi.h"
#include "toolkit/ZApplication.h"
#include "toolkit/ZListBoxItem.h"
#include "toolkit/ZMultiLineEdit.h"
#include "toolkit/ZNoticeDlg.h"
#include "toolkit/ZSingleCaptureDlg.h"
#include "toolkit/ZSingleSelectDlg.h"
#include "utility/CurrencyCatalogue.h"
#include "utility/PHONE_UI_RecentCallMeter.h"
#include "utility/ResourceText.h"
#include "utility/ScreenFrame.h"

#include <QtCore/QTimer>
#include <QtCore/QUuid>

#include <iterator>
#include <new>

#define KAV_SOURCE "utility/PHONE_UI_RecentCallCostSetupView"
#include "utility/trace.h"

// Names of display settings that came with the screen; nothing reads them.
static const QString screensaverStatus = QString::fromLatin1("ScreensaverStatus");
static const QString screenSaverTimeout = QString::fromLatin1("ScreenSaverTimeout");
static const QString displayTimeout = QString::fromLatin1("DiaplyTimeout");
static const QString dimTimeout = QString::fromLatin1("DimTimeout");
static const QString dimIntensity = QString::fromLatin1("DimIntensity");

namespace {

enum Row {
    ResetAll,
    ResetAllCalls,
    ResetDialedCalls,
    ResetAnsweredCalls,
    CreditLimit,
    AdjustCreditLimit,
    Currency,
    CurrencyType,
    CostPerMinute,
    RowCount
};
constexpr int firstValueRow = CreditLimit;

enum Editor {
    LimitEditor = 0,
    PriceEditor = 1,
    LimitSwitch = 2,
    CurrencySwitch = 3,
    CurrencyList = 4,
    CustomCurrencyEditor = 5
};

constexpr ResourceText rowTitles[] = {
    {"TXT_RID_SETTING_A_RESET_ALL", "Reset All"},
    {"TXT_RID_SETTING_A_RESET_ALL_CALL_COSTS", "Reset All Call Costs"},
    {"TXT_RID_SETTING_A_RESET_DIALED_CALL_COSTS", "Reset Dialed Call Costs"},
    {"TXT_RID_SETTING_A_RESET_ANSWERED_CALL_COSTS", "Reset Answered Call Costs"},
    {"TXT_RID_SETTING_A_CREDIT_LIMIT", "Credit Limit"},
    {"TXT_RID_SETTING_A_ADJUST_CREDIT_LIMIT", "Adjust Credit Limit"},
    {"TXT_RID_SETTING_A_CURRENCY", "Currency"},
    {"TXT_RID_SETTING_A_CURRENCY_TYPE", "Currency Type"},
    {"TXT_RID_SETTING_A_COST_PER_MINUTE", "Cost Per Minute"},
};
static_assert(std::size(rowTitles) == RowCount);

struct Reset {
    ResourceText message;
    void (PHONE_UI_RecentCallMeter::*operation)();
};

// From row 0 on.
constexpr Reset resets[] = {
    {{"TXT_RID_INSTRUCTIONALTXT_ALL_COSTS_RESET_TO_000_UNITS", "All costs have been reset to 0.00 units."},
     &PHONE_UI_RecentCallMeter::resetAll},
    {{"TXT_RID_INSTRUCTIONALTXT_ALL_CALL_COSTS_RESET_TO_000_UNITS",
      "All call costs have been reset to 0.00 units."},
     &PHONE_UI_RecentCallMeter::resetAllCallCosts},
    {{"TXT_RID_INSTRUCTIONALTXT_DIALED_CALL_COSTS_RESET_TO_000_UNITS",
      "Dialed call costs have been reset to 0.00 units."},
     &PHONE_UI_RecentCallMeter::resetDialedCallCosts},
    {{"TXT_RID_INSTRUCTIONALTXT_ANSWERED_CALL_COSTS_RESET_TO_000_UNITS",
      "Answered call costs have been reset to 0.00 units."},
     &PHONE_UI_RecentCallMeter::resetAnsweredCallCosts},
};
static_assert(std::size(resets) == firstValueRow);

constexpr ResourceText switchOn = {"TXT_RID_SETTING_B_ON", "On"};
constexpr ResourceText switchOff = {"TXT_RID_SETTING_B_OFF", "Off"};
constexpr ResourceText choiceOn = {"TXT_RID_LIST_A_ON", "On"};
constexpr ResourceText choiceOff = {"TXT_RID_LIST_A_OFF", "Off"};
constexpr ResourceText choiceCustom = {"TXT_RID_LIST_A_CUSTOM", "Custom"};
constexpr ResourceText saveKey = {"TXT_RID_SOFTKEY_SAVE", "Save"};
constexpr ResourceText resetHeader = {"TXT_RID_HEADER_RESET_CALLS", "Reset Calls"};
constexpr ResourceText currencyHeader = {"TXT_RID_HEADER_CURRENCY", "Currency"};
constexpr ResourceText chooseTypeHeader = {"TXT_RID_HEADER_CHOOSE_TYPE", "Choose Type"};
constexpr ResourceText customCurrencyHeader = {"TXT_RID_HEADER_CURRENCY_TYPE", "Currency Type"};
constexpr ResourceText priceHeader = {"TXT_RID_HEADER_COST_PER_MINUTE", "Cost Per Minute"};
constexpr ResourceText limitHeader = {"TXT_RID_HEADER_ADJUST_CREDIT_LIMIT", "Adjust Credit Limit"};

constexpr ScreenFrame::Recipe frame = {
    "PHONE_UI_RecentCallCostSetupView", {"TXT_RID_HEADER_CALL_COST_SETUP", "Call-Cost Setup"}, "1slotBack()"};

// The engine's codes of the SIM files.
constexpr unsigned char fileACM = 61;
constexpr unsigned char fileACMMAX = 59;
constexpr unsigned char filePUCT = 64;

// Update access rules.
constexpr unsigned char ruleUnderPin2 = 4;
constexpr unsigned char ruleNever = 6;

constexpr quint8 secondPin = 1;
constexpr quint32 pinStatusPreset = 255;
constexpr quint32 pinStatusNoEntry = 3;

constexpr unsigned char chargeInUnits = 0;
constexpr unsigned char chargeInCurrency = 1;

constexpr int noticeMilliseconds = 5000;
constexpr double smallestAmount = 0.001;
constexpr int currencyCodeLength = 3;
constexpr unsigned int choiceWidth = 50; // of a choice's text, as the platform's lists take it

// The platform's input methods and their modes.
constexpr QUuid numberInput(0x637a8c00, 0x1098, 0x42ca, 0x96, 0x9a, 0x2b, 0xf1, 0x63, 0xcd, 0x3c, 0x14);
constexpr QUuid symbolInput(0x637a8c00, 0x1098, 0x42ca, 0x96, 0x9a, 0x2b, 0xf1, 0x63, 0xcd, 0x3c, 0x15);
constexpr QUuid letterInput(0x637a8c00, 0x1098, 0x42ca, 0x96, 0x9a, 0x2b, 0xf1, 0x63, 0xcd, 0x3c, 0x12);
constexpr int numberMode = 6;
constexpr int letterMode = 0;

QString text(const ResourceText &resource)
{
    return textFor<PHONE_UI_RecentCallCostSetupView>(resource);
}

PHONE_ENG_Setup *engine()
{
    return PHONE_ENG_Setup::instance();
}

struct PinEntry {
    int res;
    SETUP_SECURITY_PINTYPE_E pinType = SETUP_SECURITY_PIN2;
    SETUP_SECURITY_PINVERIFY_ERR_E err = SETUP_SECURITY_VERIFY_OK;

    bool isAccepted() const { return res != 0 && err == SETUP_SECURITY_VERIFY_OK; }
};

PinEntry enterPin(QWidget *screen)
{
    PinEntry entry = {};
    entry.res = SETUP_SECURITY_Util::verifyPin(entry.pinType, SETUP_SECURITY_SK_OK_CANCEL, entry.err, screen);
    return entry;
}

} // namespace

PHONE_UI_RecentCallCostSetupView::PHONE_UI_RecentCallCostSetupView(QWidget *parent, const char *name)
    : ZKbMainWidget(parent, name, 0)
    , curIndex(-1)
    , isSaved(false)
    , curDialog(nullptr)
    , noticeDlg(nullptr)
    , softKey(nullptr)
    , listBox(nullptr)
    , captureDlg(nullptr)
    , selectDlg(nullptr)
    , curCallSetType(-1)
    , selectListBox(nullptr)
    , meter(nullptr)
    , preCMMEnable(false)
    , preChargeType(chargeInUnits)
    , accessRuleACM(0)
    , accessRuleACMMAX(0)
    , accessRulePUCT(0)
{
    initFrame();
    initAccessRule();
    initList();
    showData();
}

PHONE_UI_RecentCallCostSetupView::~PHONE_UI_RecentCallCostSetupView()
{
    if (!isSaved)
        updateCallCostSetup();
    ScreenFrame::deleteAndNull(meter);
}

void PHONE_UI_RecentCallCostSetupView::initFrame()
{
    isSaved = false;
    softKey = ScreenFrame::buildTitleAndSoftKey(this, frame);
    listBox = ScreenFrame::buildList(this, frame);
}

void PHONE_UI_RecentCallCostSetupView::initAccessRule()
{
    engine()->getEFUpdateRule(fileACM, accessRuleACM);
    engine()->getEFUpdateRule(fileACMMAX, accessRuleACMMAX);
    engine()->getEFUpdateRule(filePUCT, accessRulePUCT);
    KAV_TRACE("initAccessRule done for 3 EFs, each are: EFACM: %d, EFACMMAX: %d, EFPUCT: %d", accessRuleACM,
              accessRuleACMMAX, accessRulePUCT);
}

void PHONE_UI_RecentCallCostSetupView::initList()
{
    clearChanges();
    meter = new (std::nothrow) PHONE_UI_RecentCallMeter();
    if (!meter)
        return;
    appendRows();
    disableRows(ResetAll, ResetAnsweredCalls, accessRuleACM);
    disableRows(CreditLimit, AdjustCreditLimit, accessRuleACMMAX);
    disableRows(Currency, CostPerMinute, accessRulePUCT);
}

void PHONE_UI_RecentCallCostSetupView::appendRows()
{
    ScreenFrame::appendRows(listBox, RowCount, [this](int row) {
        ZSettingItem *item = ScreenFrame::newRow(listBox, [&] { return makeCategoryString(row); });
        if (item && row >= firstValueRow)
            ScreenFrame::appendValue(item, makeCategoryItem(row));
        return item;
    });
}

void PHONE_UI_RecentCallCostSetupView::disableRows(int first, int last, unsigned char rule)
{
    for (int row = first; rule == ruleNever && row <= last; ++row)
        setRowEnabled(row, false);
}

QString PHONE_UI_RecentCallCostSetupView::makeCategoryString(int type)
{
    KAV_TRACE("in makeCategoryString(), type: [%d]", type);
    return type >= 0 && type < RowCount ? textFor<QObject>(rowTitles[type]) : QString();
}

QString PHONE_UI_RecentCallCostSetupView::makeCategoryItem(int type)
{
    KAV_TRACE("in makeCategoryItem(), type: [%d]", type);
    switch (type) {
    case CreditLimit:
    case Currency:
        return text(switchOn);
    case AdjustCreditLimit:
    case CurrencyType:
    case CostPerMinute:
        return text({"", ""});
    }
    return QString();
}

// Reads the engine's settings into the screen; the first failed read ends it, and the rows below keep their texts.
void PHONE_UI_RecentCallCostSetupView::showData()
{
    if (meter)
        unitText = meter->getCurrencyUnit();
    KAV_TRACE("showData(), the unitText: [%s]", unitText.toLatin1().constData());

    int res = engine()->getMeterMax(preMeterMax, preCMMEnable);
    KAV_TRACE("res: [%d], preMeterMax: [%s], preCMMEnable: [%d]", res, preMeterMax.toLatin1().constData(),
              preCMMEnable);
    if (res != 0)
        return;
    activeLimit(preCMMEnable);
    setRowValue(AdjustCreditLimit, preMeterMax + QLatin1Char(' ') + unitText);

    res = engine()->getChargeType(preChargeType);
    KAV_TRACE("res: [%d], preChargeType: [%d]", res, preChargeType);
    if (res != 0)
        return;
    activeCurrency(preChargeType);

    res = engine()->getPriceUnitCurrency(prePricePerUnit, preCurrencyTable);
    KAV_TRACE("res: [%d], prePricePerUnit: [%s], preCurrencyTable: [%s]", res,
              prePricePerUnit.toLatin1().constData(), preCurrencyTable.toLatin1().constData());
    if (res != 0)
        return;
    if (preChargeType != chargeInCurrency)
        setRowValue(CurrencyType, QString::fromLatin1("units"));
    else if (!preCurrencyTable.isEmpty())
        setRowValue(CurrencyType, preCurrencyTable);
    setRowValue(CostPerMinute, prePricePerUnit + QLatin1Char(' ') + unitText);
}

// Sets the enabled state outright, also of a row that an access rule had disabled.
void PHONE_UI_RecentCallCostSetupView::activeLimit(bool on)
{
    KAV_TRACE("CMMEnable: [%d]", on);
    setRowValue(CreditLimit, text(on ? switchOn : switchOff));
    setRowEnabled(AdjustCreditLimit, on);
}

void PHONE_UI_RecentCallCostSetupView::activeCurrency(int type)
{
    KAV_TRACE("ChargeType: [%d]", type);
    if (type != chargeInCurrency && type != chargeInUnits)
        return;
    const bool inCurrency = type == chargeInCurrency;
    setRowValue(Currency, text(inCurrency ? switchOn : switchOff));
    setRowEnabled(CurrencyType, inCurrency);
    setRowEnabled(CostPerMinute, inCurrency);
}

void PHONE_UI_RecentCallCostSetupView::setRowValue(int row, const QString &value)
{
    if (listBox)
        ScreenFrame::rewriteValue(listBox, row, [&] { return value; });
}

void PHONE_UI_RecentCallCostSetupView::setRowEnabled(int row, bool enable)
{
    if (ZListItem *item = listBox ? listBox->item(row) : nullptr)
        item->setEnabled(enable);
}

void PHONE_UI_RecentCallCostSetupView::slotSelectedItem(ZSettingItem *item)
{
    if (!item || !item->enabled())
        return;
    quint32 pinStatus = pinStatusPreset;
    TAPI_SECURITY_GetAnyPinStatus(secondPin, &pinStatus);
    const int index = listBox->index(item);
    curIndex = index;
    KAV_TRACE("index: [%d]", index);
    if (guardOf(index) == ruleUnderPin2 && pinStatus != pinStatusNoEntry) {
        const PinEntry entry = enterPin(this);
        if (index > ResetAnsweredCalls)
            KAV_TRACE("res: [%d], pinType: [%d], err: [%d]", entry.res, entry.pinType, entry.err);
        if (!entry.isAccepted())
            return;
    }
    if (index > ResetAnsweredCalls)
        openEditor(index);
    else if (index >= ResetAll)
        resetCosts(index);
}

// The update rule of the SIM file that a row's setting stands in.
unsigned char PHONE_UI_RecentCallCostSetupView::guardOf(int row) const
{
    if (row >= ResetAll && row <= ResetAnsweredCalls)
        return accessRuleACM;
    if (row == CreditLimit || row == AdjustCreditLimit)
        return accessRuleACMMAX;
    return row >= Currency && row <= CostPerMinute ? accessRulePUCT : 0;
}

void PHONE_UI_RecentCallCostSetupView::openEditor(int row)
{
    switch (row) {
    case CreditLimit:
        curCallSetType = LimitSwitch;
        showSelectDlg(text(rowTitles[CreditLimit]));
        break;
    case AdjustCreditLimit:
        curCallSetType = LimitEditor;
        showCaptureDlg(text(limitHeader));
        break;
    case Currency:
        curCallSetType = CurrencySwitch;
        showSelectDlg(text(currencyHeader));
        break;
    case CurrencyType:
        curCallSetType = CurrencyList;
        showSelectDlg(text(chooseTypeHeader));
        break;
    case CostPerMinute:
        curCallSetType = PriceEditor;
        showCaptureDlg(text(priceHeader));
        break;
    }
}

// Without a question: the notice tells that it is done.
void PHONE_UI_RecentCallCostSetupView::resetCosts(int row)
{
    const QString message = text(resets[row].message);
    (meter->*resets[row].operation)();
    noticeDlg = new (std::nothrow)
        ZNoticeDlg(ZNoticeDlg::DoneNotice, text(resetHeader), message, this, nullptr, true, 0, true);
    if (!noticeDlg)
        return;
    noticeDlg->show();
    QTimer::singleShot(noticeMilliseconds, this, "1slotClose()");
    curDialog = noticeDlg;
}

bool PHONE_UI_RecentCallCostSetupView::showSelectDlg(const QString &title)
{
    selectDlg = new (std::nothrow) ZSingleSelectDlg(title, QString(), this, nullptr, true, 0, 0);
    selectListBox = selectDlg ? selectDlg->getListBox() : nullptr;
    if (!selectListBox)
        return false;
    curDialog = selectDlg;
    connect(selectDlg, "2rightSoftkeyClicked()", this, "1slotClose()");
    KAV_TRACE("curCallSetType: [%d], curCallSetType: [%d]", curCallSetType, curCallSetType);
    fillSelectList();
    selectListBox->setSelected(0, true);
    selectDlg->show();
    return true;
}

void PHONE_UI_RecentCallCostSetupView::fillSelectList()
{
    const char *answer = nullptr;
    if (curCallSetType == LimitSwitch || curCallSetType == CurrencySwitch) {
        selectListBox->setItemType(QString::fromLatin1("%I%M"));
        appendChoice(1, text(choiceOn));
        appendChoice(1, text(choiceOff));
        answer = "1slotSingleSelect()";
    } else if (curCallSetType == CurrencyList) {
        selectListBox->setItemType(QString::fromLatin1("%M"));
        appendChoice(0, text(choiceCustom));
        fillCurrencyList();
        answer = "1slotSelect()";
    }
    if (!answer)
        return;
    connect(selectDlg, "2leftSoftkeyClicked()", this, answer);
    connect(selectDlg, "2signalCenterSelKeyPressed()", this, answer);
}

void PHONE_UI_RecentCallCostSetupView::fillCurrencyList()
{
    for (const ResourceText &currency : CurrencyCatalogue::rows())
        appendChoice(0, text(currency));
}

void PHONE_UI_RecentCallCostSetupView::appendChoice(int subItem, const QString &choice)
{
    auto *item = new (std::nothrow) ZListBoxItem(selectListBox, QString());
    if (!item)
        return;
    item->appendSubItem(subItem, choice, QString::fromLatin1(""), nullptr, choiceWidth,
                        ZListBoxItem::HighShowPriority);
    selectListBox->insertItem(item, -1, true);
}

bool PHONE_UI_RecentCallCostSetupView::showCaptureDlg(const QString &title)
{
    captureDlg = new (std::nothrow)
        ZSingleCaptureDlg(title, QString(), ZSingleCaptureDlg::TextCaptureDlg, this, nullptr, true, 0, 0);
    if (!captureDlg)
        return false;
    captureDlg->setSoftkeyTextLeft(text(saveKey));
    KAV_TRACE("in RCCostSetupView::showCaptureDlg(), curCallSetType: [%d]", curCallSetType);
    prepareCaptureField();
    connect(captureDlg, "2leftSoftkeyClicked()", this, "1slotSave()");
    captureDlg->show();
    curDialog = captureDlg;
    return true;
}

// The field starts empty, whatever the setting is now.
void PHONE_UI_RecentCallCostSetupView::prepareCaptureField()
{
    ZMultiLineEdit *field = captureDlg->getMultiLineEdit();
    if (curCallSetType == LimitEditor || curCallSetType == PriceEditor) {
        ZApplication::setInputMethods(field, numberInput, QValueList<QUuid>{numberInput, symbolInput}, numberMode,
                                      QString());
        connect(captureDlg, "2rightSoftkeyClicked()", this, "1slotClose()");
    } else if (curCallSetType == CustomCurrencyEditor) {
        ZApplication::setInputMethods(field, letterInput, QValueList<QUuid>{letterInput}, letterMode, QString());
        field->setMaxLength(currencyCodeLength);
        connect(captureDlg, "2rightSoftkeyClicked()", this, "1slotCancel()");
    }
}

// The limit's switch is written with the next edit, on Back or at the end; the currency's at once.
void PHONE_UI_RecentCallCostSetupView::slotSingleSelect()
{
    const int num = selectListBox->currentItem();
    KAV_TRACE("num: [%d], curCallSetType: [%d]", num, curCallSetType);
    if (curCallSetType == LimitSwitch) {
        preCMMEnable = num == 0;
        activeLimit(preCMMEnable);
        preCMMEnableChanged = true;
    } else if (curCallSetType == CurrencySwitch) {
        preChargeType = num == 0 ? chargeInCurrency : chargeInUnits;
        activeCurrency(preChargeType);
        preChargeTypeChanged = true;
        updateCallCostSetup();
        showData();
    }
}

// A shown name ends in the code in parentheses; a blank behind them goes into the code as it is.
void PHONE_UI_RecentCallCostSetupView::slotSelect()
{
    if (selectListBox->isSelected(0)) {
        curCallSetType = CustomCurrencyEditor;
        showCaptureDlg(text(customCurrencyHeader));
        return;
    }
    const auto *item = static_cast<ZListBoxItem *>(selectListBox->item(selectListBox->currentItem()));
    const QString shown = item ? item->getSubItemText(0, 0, false) : QString();
    preCurrencyTable = shown.right(currencyCodeLength + 1).left(currencyCodeLength);
    preCurrencyTableChanged = true;
    KAV_TRACE("preCurrencyTable: [%s]", preCurrencyTable.toLatin1().constData());
    updateCallCostSetup();
    showData();
}

void PHONE_UI_RecentCallCostSetupView::slotSave()
{
    QString entered = captureDlg->getResultText();
    KAV_TRACE("curText: [%s], curCallSetType: [%d]", entered.toLatin1().constData(), curCallSetType);
    if (entered.isEmpty()) {
        captureDlg->show();
        return;
    }
    bool isNumber = false;
    const float number = entered.toFloat(&isNumber);
    if (isNumber && static_cast<double>(number) < smallestAmount)
        entered = QString::fromLatin1("0.000");
    storeEntry(entered);
    slotClose();
    updateCallCostSetup();
    showData();
}

void PHONE_UI_RecentCallCostSetupView::storeEntry(const QString &entry)
{
    if (curCallSetType == PriceEditor) {
        prePricePerUnit = entry;
        prePricePerUnitChanged = true;
    } else if (curCallSetType == LimitEditor) {
        preMeterMax = entry;
        preMeterMaxChanged = true;
    } else if (curCallSetType == CustomCurrencyEditor) {
        preCurrencyTable = entry;
        preCurrencyTableChanged = true;
    }
}

// Out of the custom code's entry, back to the list. The entry goes with the screen.
void PHONE_UI_RecentCallCostSetupView::slotCancel()
{
    curCallSetType = CurrencyList;
    showSelectDlg(text(rowTitles[CurrencyType]));
}

void PHONE_UI_RecentCallCostSetupView::slotClose()
{
    ScreenFrame::deleteAndNull(curDialog);
}

void PHONE_UI_RecentCallCostSetupView::slotBack()
{
    isSaved = true;
    updateCallCostSetup();
    emit closeWgt();
}

void PHONE_UI_RecentCallCostSetupView::clearChanges()
{
    preMeterMaxChanged = false;
    preCMMEnableChanged = false;
    preChargeTypeChanged = false;
    preCurrencyTableChanged = false;
    prePricePerUnitChanged = false;
}

// A failed write leaves all flags as they are, so that the next try starts from the beginning. A new limit switches
// the limit on by itself, so its switch is only looked at without one.
void PHONE_UI_RecentCallCostSetupView::updateCallCostSetup()
{
    KAV_TRACE("preMeterMaxChanged: [%d], preCMMEnableChanged: [%d], preChargeTypeChanged: [%d]",
              preMeterMaxChanged, preCMMEnableChanged, preChargeTypeChanged);
    KAV_TRACE("preCurrencyTableChanged: [%d], prePricePerUnitChanged: [%d]", preCurrencyTableChanged,
              prePricePerUnitChanged);
    if (preMeterMaxChanged) {
        const int result = engine()->setMeterMax(preMeterMax);
        KAV_TRACE("result: [%d]", result);
        if (result != 0)
            return;
    } else if (preCMMEnableChanged && !preCMMEnable) {
        const int result = engine()->disableCMM();
        KAV_TRACE("result: [%d]", result);
        if (result != 0)
            return;
    }
    if (preChargeTypeChanged) {
        const int result = engine()->setChargeType(preChargeType);
        KAV_TRACE("result: [%d], preChargeType: [%d]", result, preChargeType);
        if (result != 0)
            return;
    }
    if (prePricePerUnitChanged || preCurrencyTableChanged) {
        const int result = engine()->setPriceUnitCurrency(prePricePerUnit, preCurrencyTable);
        KAV_TRACE("result: [%d], prePricePerUnit: [%s], preCurrencyTable: [%s]", result,
                  prePricePerUnit.toLatin1().constData(), preCurrencyTable.toLatin1().constData());
        if (result != 0)
            return;
    }
    clearChanges();
}
