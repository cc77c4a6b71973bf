#include "utility/PHONE_UI_RecentCallCostsView.h"

#include "utility/PHONE_UI_RecentCallCostSetupView.h"
#include "utility/PHONE_UI_RecentCallMeter.h"
#include "utility/ResourceText.h"
#include "utility/ScreenFrame.h"

#include <iterator>
#include <new>

namespace {

enum Row {
    CreditAvailable,
    ExpirationDate,
    LastDeposit,
    LastCallCost,
    DialedCallsCost,
    AnsweredCallsCost,
    AllCallsCost,
    CallCostSetup,
    RowCount
};
constexpr int valueRowCount = CallCostSetup; // every row above the setup's has a value

constexpr ResourceText rowTitles[] = {
    {"TXT_RID_SETTING_A_CREDIT_AVAILABLE", "Credit Available"},
    {"TXT_RID_SETTING_A_EXPIRATION_DATE", "Expiration Date"},
    {"TXT_RID_SETTING_A_LAST_DEPOSIT", "Last Deposit"},
    {"TXT_RID_SETTING_A_LAST_CALL_COST", "Last Call Cost"},
    {"TXT_RID_SETTING_A_DIALED_CALLS_COST", "Dialed Calls Cost"},
    {"TXT_RID_SETTING_A_ANSWERED_CALLS_COST", "Answered Calls Cost"},
    {"TXT_RID_SETTING_A_ALL_CALLS_COST", "All Calls Cost"},
    {"TXT_RID_SETTING_A_CALL_COST_SETUP", "Call Cost Setup"},
};
static_assert(std::size(rowTitles) == RowCount);

struct Detail {
    ResourceText header;
    ResourceText message; // %1 is the row's value
};

constexpr Detail details[] = {
    {{"TXT_RID_HEADER_CREDIT_AVAILABLE", "Credit Available"},
     {"FMT_RID_INSTRUCTIONALTXT_CURRENT_CREDIT_AVAILABLE_IS_2", "Your current credit available is %1 units"}},
    {{"TXT_RID_HEADER_EXPIRATION_DATE", "Expiration Date"},
     {"FMT_RID_INSTRUCTIONALTXT_REMAINING_CREDIT_WILL_EXPIRE_ON_1", "Your remaining credit will expire on %1"}},
    {{"TXT_RID_HEADER_LAST_DEPOSIT", "Last Deposit"},
     {"FMT_RID_INSTRUCTIONALTXT_LAST_DEPOSIT_AMOUNT_WAS_1_UNITS", "Your last deposit amount was %1"}},
    {{"TXT_RID_HEADER_LAST_CALL", "Last Call"},
     {"FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_LAST_CALL_WAS_1_UNITS", "The cost of your last call was %1"}},
    {{"TXT_RID_HEADER_DIALED_CALLS", "Dialed Calls"},
     {"FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_DIALED_CALLS_IS_1_UNITS", "The cost of your dialed calls is %1"}},
    {{"TXT_RID_HEADER_ANSWERED_CALLS", "Answered Calls"},
     {"FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_ANSWERED_CALLS_IS_1_UNITS", "The cost of your answered calls is %1"}},
    {{"TXT_RID_HEADER_ALL_CALLS", "All Calls"},
     {"FMT_RID_INSTRUCTIONALTXT_THE_COST_OF_ALL_CALLS_IS_1_UNITS", "The cost of all your calls is %1"}},
};
static_assert(std::size(details) == valueRowCount);

constexpr ScreenFrame::Recipe frame = {
    "PHONE_UI_RecentCallCostsView", {"TXT_RID_HEADER_CALL_COSTS", "Call Costs"}, "2closeWidget()"};

} // namespace

PHONE_UI_RecentCallCostsView::PHONE_UI_RecentCallCostsView(QWidget *parent, const char *name)
    : ZKbMainWidget(parent, name, 0)
    , detailDlg(nullptr)
    , listBox(nullptr)
    , softKey(nullptr)
    , meter(nullptr)
    , costSetupView(nullptr)
    , currencyUnit(QString::fromLatin1(""))
{
    initFrame();
    initList();
}

PHONE_UI_RecentCallCostsView::~PHONE_UI_RecentCallCostsView()
{
    ScreenFrame::deleteAndNull(meter);
}

void PHONE_UI_RecentCallCostsView::initFrame()
{
    softKey = ScreenFrame::buildTitleAndSoftKey(this, frame);
    listBox = ScreenFrame::buildList(this, frame);
}

void PHONE_UI_RecentCallCostsView::initList()
{
    meter = new (std::nothrow) PHONE_UI_RecentCallMeter();
    if (!meter)
        return;
    currencyUnit = meter->getCurrencyUnit();
    ScreenFrame::appendRows(listBox, RowCount, [this](int row) {
        ZSettingItem *item = ScreenFrame::newRow(listBox, [&] { return getItemTitle(row); });
        if (item && row < valueRowCount)
            ScreenFrame::appendValue(item, getItemValue(row));
        return item;
    });
}

QString PHONE_UI_RecentCallCostsView::getItemTitle(int row)
{
    return row >= 0 && row < RowCount ? textFor<QObject>(rowTitles[row]) : QString();
}

QString PHONE_UI_RecentCallCostsView::getItemValue(int row)
{
    if (row < 0 || row >= valueRowCount)
        return QString();
    const QString figure = getItemFigure(row);
    return row == ExpirationDate ? figure : figure + QLatin1Char(' ') + currencyUnit;
}

// The meter's own text for the row.
QString PHONE_UI_RecentCallCostsView::getItemFigure(int row)
{
    switch (row) {
    case CreditAvailable:
        return meter->getCreditAvailable();
    case ExpirationDate:
        return meter->getExpirationDate();
    case LastDeposit:
        return meter->getLastDeposit();
    case LastCallCost:
        return meter->getLastCallCost();
    case DialedCallsCost:
        return meter->getDialedCallsCost();
    case AnsweredCallsCost:
        return meter->getAnsweredCallsCost();
    case AllCallsCost:
        return meter->getAllCallsCost();
    }
    return QString();
}

void PHONE_UI_RecentCallCostsView::slotSelectedItem(ZSettingItem *item)
{
    const int row = listBox->index(item);
    const QString value = getItemValue(row);
    if (row < valueRowCount)
        showDetail(row, value);
    else if (row == CallCostSetup)
        openCostSetup();
}

// An item that is not in the list (row -1) gets a dialog without any text.
void PHONE_UI_RecentCallCostsView::showDetail(int row, const QString &value)
{
    QString header;
    QString message;
    if (row >= 0) {
        header = textFor<PHONE_UI_RecentCallCostsView>(details[row].header);
        message = textFor<PHONE_UI_RecentCallCostsView>(details[row].message).arg(value, 0);
    }
    detailDlg = ScreenFrame::newDialog(this, header, message, ZMessageDlg::InformationDlg, "1slotOk()", nullptr);
    if (detailDlg)
        detailDlg->show();
}

void PHONE_UI_RecentCallCostsView::openCostSetup()
{
    costSetupView = new (std::nothrow) PHONE_UI_RecentCallCostSetupView(this, nullptr);
    if (costSetupView)
        ScreenFrame::showSubScreen(this, costSetupView);
}

void PHONE_UI_RecentCallCostsView::slotOk()
{
    ScreenFrame::deleteAndNull(detailDlg);
}

void PHONE_UI_RecentCallCostsView::slotCloseWgt()
{
    ScreenFrame::deleteAndNull(costSetupView);
    currencyUnit = meter->getCurrencyUnit();
    for (int row = 0; row < valueRowCount; ++row)
        ScreenFrame::rewriteValue(listBox, row, [&] { return getItemValue(row); });
    listBox->setFocus();
}

PHONE_UI_RecentCallCostsView *create_callCost(QWidget *parent, const char *name)
{
    return new (std::nothrow) PHONE_UI_RecentCallCostsView(parent, name);
}

void destroy_callCost(PHONE_UI_RecentCallCostsView *screen)
{
    delete screen;
}
