#include "utility/PHONE_UI_RecentCallTimesView.h"

#include "message/PHONE_MsgClient.h"
#include "telephony/util.h"
#include "utility/PHONE_UI_RecentCallMeter.h"
#include "utility/ScreenFrame.h"

#include <iterator>
#include <new>

namespace {

enum Row { LastCall, DialedCalls, AnsweredCalls, DataCalls, AllCalls, LifetimeCalls, RowCount };

constexpr ResourceText rowTitles[] = {
    {"TXT_RID_SETTING_A_LAST_CALL", "Last Call"},
    {"TXT_RID_SETTING_A_DIALED_CALLS", "Dialed Calls"},
    {"TXT_RID_SETTING_A_ANSWERED_CALLS", "Answered Calls"},
    {"TXT_RID_SETTING_A_CIRCUIT_SWITCH_DATA_CALLS", "Data Calls"},
    {"TXT_RID_SETTING_A_ALL_CALLS", "All Calls"},
    {"TXT_RID_SETTING_A_LIFETIME_CALLS", "Lifetime Calls"},
};
static_assert(std::size(rowTitles) == RowCount);

// From row 1 on: the rows that can be reset.
constexpr ResourceText resetQuestions[] = {
    {"TXT_RID_INSTRUCTIONALTXT_RESET_DIALED_CALLS_TIMER", "Would you like to reset the Dialed Calls timer?"},
    {"TXT_RID_INSTRUCTIONALTXT_RESET_ANSWERED_CALLS_TIMER", "Would you like to reset the Answered Calls timer?"},
    {"TXT_RID_INSTRUCTIONALTXT_RESET_CIRCUIT_SWITCHING_DATA_CALLS_TIMER",
     "Would you like to reset the Circuit Switching Data Calls timer?"},
    {"TXT_RID_INSTRUCTIONALTXT_RESET_ALL_CALLS_TIMER", "Would you like to reset the All Calls timer?"},
};
static_assert(std::size(resetQuestions) == AllCalls - DialedCalls + 1);

constexpr ResourceText resetHeader = {"TXT_RID_HEADER_RESET_TIMER", "Reset Timer"};
constexpr ResourceText inCallRefusal = {
    "TXT_RID_INSTRUCTIONALTXT_CURRENT_REQUEST_CANNOT_BE_COMPLETED_WHILE_YOU_ARE_IN_CALLING",
    "Current request cannot be completed, while you are in calling. "};

constexpr ScreenFrame::Recipe frame = {
    "PHONE_UI_RecentCallTimesView", {"TXT_RID_HEADER_CALL_TIMES", "Call Times"}, "2closeWidget()"};

// A status of its own for a query that writes none: neither allowed nor refused.
constexpr quint8 unknownDataCallStatus = 255;

QString twoDigits(quint32 number)
{
    const QString digits = QString::number(number);
    return number <= 9 ? QLatin1Char('0') + digits : digits;
}

} // namespace

PHONE_UI_RecentCallTimesView::PHONE_UI_RecentCallTimesView(QWidget *parent, const char *name)
    : ZKbMainWidget(parent, name, 0)
    , resetRow(-1)
    , resetDlg(nullptr)
    , softKey(nullptr)
    , listBox(nullptr)
    , meter(nullptr)
    , inCallDlg(nullptr)
    , dataCallTimeText(QString::fromLatin1(""))
    , dataCallSeconds(0)
    , msgClient(nullptr)
{
    initFrame();
    initList();
}

PHONE_UI_RecentCallTimesView::~PHONE_UI_RecentCallTimesView()
{
    ScreenFrame::deleteAndNull(meter);
    ScreenFrame::deleteAndNull(inCallDlg);
}

void PHONE_UI_RecentCallTimesView::initFrame()
{
    softKey = ScreenFrame::buildTitleAndSoftKey(this, frame);
    listBox = ScreenFrame::buildList(this, frame);
}

void PHONE_UI_RecentCallTimesView::initList()
{
    meter = new (std::nothrow) PHONE_UI_RecentCallMeter();
    if (!meter)
        return;
    msgClient = new (std::nothrow) PHONE_MsgClient(this, nullptr);
    if (!msgClient)
        return;
    updateDataCallTime();
    ScreenFrame::appendRows(listBox, RowCount, [this](int row) {
        ZSettingItem *item = ScreenFrame::newRow(listBox, [&] { return getItemTitle(row); });
        if (item)
            ScreenFrame::appendValue(item, getItemValue(row));
        return item;
    });
}

QString PHONE_UI_RecentCallTimesView::getItemTitle(int row)
{
    return row >= 0 && row < RowCount ? textFor<QObject>(rowTitles[row]) : QString();
}

QString PHONE_UI_RecentCallTimesView::getItemValue(int row)
{
    switch (row) {
    case LastCall:
        return meter->getLastCallTimes();
    case DialedCalls:
        return meter->getDialedCallsTimes();
    case AnsweredCalls:
        return meter->getAnsweredCallsTimes();
    case DataCalls:
        return dataCallTimeText;
    case AllCalls:
        return meter->getAllCallsTimes();
    case LifetimeCalls:
        return meter->getLifeTimeCallsTimes();
    }
    return QString();
}

QString PHONE_UI_RecentCallTimesView::formatDuration(quint32 seconds)
{
    const quint32 hours = seconds / 3600;
    const quint32 minutes = seconds % 3600 / 60;
    const quint32 secs = seconds % 3600 % 60;
    return twoDigits(hours) + QLatin1Char(':') + twoDigits(minutes) + QLatin1Char(':') + twoDigits(secs);
}

void PHONE_UI_RecentCallTimesView::updateDataCallTime()
{
    if (msgClient)
        msgClient->getTotalByteAndConnectedDuration();
    quint32 seconds = 0;
    UTIL_GetTotalDuration(&seconds);
    dataCallSeconds = seconds;
    dataCallTimeText = formatDuration(seconds);
}

void PHONE_UI_RecentCallTimesView::rewriteRow(int row)
{
    if (listBox)
        ScreenFrame::rewriteValue(listBox, row, [&] { return getItemValue(row); });
}

void PHONE_UI_RecentCallTimesView::slotSelectedItem(ZSettingItem *item)
{
    const int row = listBox->index(item);
    if (row < DialedCalls || row > AllCalls)
        return;
    resetRow = row;
    resetDlg = ScreenFrame::newDialog(this, textFor<PHONE_UI_RecentCallTimesView>(resetHeader),
                                      textFor<PHONE_UI_RecentCallTimesView>(resetQuestions[row - DialedCalls]),
                                      ZMessageDlg::QuestionDlg, "1slotYes()", "1slotNo()");
    if (resetDlg)
        resetDlg->show();
}

void PHONE_UI_RecentCallTimesView::slotYes()
{
    switch (resetRow) {
    case DialedCalls:
        meter->resetDialedCallsTimer();
        break;
    case AnsweredCalls:
        meter->resetAnsweredCallsTimer();
        break;
    case DataCalls:
        resetDataCallTimer();
        break;
    case AllCalls:
        meter->resetAllCallsTimer();
        break;
    }
    refreshAfterReset();
    ScreenFrame::deleteAndNull(resetDlg);
}

void PHONE_UI_RecentCallTimesView::slotNo()
{
    ScreenFrame::deleteAndNull(resetDlg);
}

// An All Calls reset may have changed every timer, another reset only its own.
void PHONE_UI_RecentCallTimesView::refreshAfterReset()
{
    if (resetRow >= DialedCalls && resetRow < AllCalls)
        rewriteRow(resetRow);
    if (resetRow != AllCalls)
        return;
    updateDataCallTime();
    for (int row = 0; row < RowCount; ++row)
        rewriteRow(row);
}

// The handset would reset the total in the middle of a data call; the user is told to wait instead.
void PHONE_UI_RecentCallTimesView::resetDataCallTimer()
{
    quint8 status = unknownDataCallStatus;
    UTIL_GetDataCallStaus(&status);
    switch (status) {
    case 0:
    case 2:
        dataCallTimeText = formatDuration(0);
        msgClient->resetTotalDuration(true);
        break;
    case 1:
    case 3:
        refuseReset();
        break;
    }
}

void PHONE_UI_RecentCallTimesView::refuseReset()
{
    if (!inCallDlg)
        inCallDlg = new (std::nothrow)
            ZMessageDlg(QString::fromLatin1(""), textFor<PHONE_UI_RecentCallTimesView>(inCallRefusal),
                        ZMessageDlg::InformationDlg, 0, nullptr, nullptr, false, 0);
    if (inCallDlg)
        inCallDlg->show();
}

PHONE_UI_RecentCallTimesView *create_callTime(QWidget *parent, const char *name)
{
    return new (std::nothrow) PHONE_UI_RecentCallTimesView(parent, name);
}

void destroy_callTime(PHONE_UI_RecentCallTimesView *screen)
{
    delete screen;
}
