#include "utility/PHONE_UI_RecentCallDataTimesView.h"

#include "utility/PHONE_UI_RecentCallMeter.h"
#include "utility/ResourceText.h"
#include "utility/ScreenFrame.h"

#include <iterator>
#include <new>

namespace {

enum Row { CurrentHeading, Session1, Session2, Session3, AllHeading, TotalTime, ResetAll, RowCount };

// The session rows' texts are for a session without an access point name.
constexpr ResourceText rowTitles[] = {
    {"TXT_RID_SEPARATOR_RECENT_DATA_SESSION", "Current Data Session"},
    {"TXT_RID_SETTING_A_GPRS_DATA_SESSION_1", "GPRS Data Session 1"},
    {"TXT_RID_SETTING_A_GPRS_DATA_SESSION_2", "GPRS Data Session 2"},
    {"TXT_RID_SETTING_A_GPRS_DATA_SESSION_3", "GPRS Data Session 3"},
    {"TXT_RID_SEPARATOR_ALL_DATA_SESSIONS", "All Data Sessions"},
    {"TXT_RID_SETTING_A_TOTAL_TIME", "Total Time"},
    {"TXT_RID_SETTING_A_RESET_ALL_DATA_SESSIONS", "Reset All Data Sessions"},
};
static_assert(std::size(rowTitles) == RowCount);

constexpr int timeRows[] = {Session1, Session2, Session3, TotalTime};

constexpr ResourceText header = {"TXT_RID_HEADER_DATA_TIMES", "Data Times"};
constexpr ResourceText sessionNotice = {"FMT_RID_INSTRUCTIONALTXT_THE_CURRENT_2_DATA_SESSION_TIME_IS_1",
                                        "The current Data Session time for %2 is %1."};
constexpr ResourceText totalNotice = {
    "FMT_RID_INSTRUCTIONALTXT_THE_TOTAL_TIME_FOR_ALL_YOUR_GPRS_DATA_SESSIONS_IS_1",
    "The total time for all your data sessions is %1."};
constexpr ResourceText resetHeader = {"TXT_RID_HEADER_RESET", "Reset"};
constexpr ResourceText resetQuestion = {
    "TXT_RID_INSTRUCTIONALTXT_ARE_YOU_SURE_YOU_WANT_TO_RESET_DATA_SESSIONS_TIMER",
    "Are you sure you want to reset the data sessions timer?"};

constexpr ScreenFrame::Recipe frame = {"PHONE_UI_RecentCallDataTimesView", header, "2closeWidget()"};

} // namespace

PHONE_UI_RecentCallDataTimesView::PHONE_UI_RecentCallDataTimesView(QWidget *parent, const char *name)
    : ZKbMainWidget(parent, name, 0)
    , openDlg(nullptr)
    , softKey(nullptr)
    , listBox(nullptr)
    , meter(nullptr)
{
    meter = new (std::nothrow) PHONE_UI_RecentCallMeter();
    if (!meter)
        return;
    initFrame();
    loadFigures();
    initList();
}

PHONE_UI_RecentCallDataTimesView::~PHONE_UI_RecentCallDataTimesView()
{
    ScreenFrame::deleteAndNull(meter);
}

void PHONE_UI_RecentCallDataTimesView::initFrame()
{
    softKey = ScreenFrame::buildTitleAndSoftKey(this, frame);
    listBox = ScreenFrame::buildList(this, frame);
}

void PHONE_UI_RecentCallDataTimesView::loadFigures()
{
    meter->getRDT();
    meter->getADT();
}

void PHONE_UI_RecentCallDataTimesView::initList()
{
    ScreenFrame::appendRows(listBox, RowCount, [this](int row) {
        if (row == CurrentHeading || row == AllHeading)
            return ScreenFrame::newSeparator(listBox, getItemTitle(row));
        ZSettingItem *item = ScreenFrame::newRow(listBox, [&] { return getItemTitle(row); });
        if (item && row != ResetAll)
            ScreenFrame::appendValue(item, getItemValue(row));
        return item;
    });
}

QString PHONE_UI_RecentCallDataTimesView::getItemTitle(int row)
{
    if (row < 0 || row >= RowCount)
        return QString();
    if (row >= Session1 && row <= Session3)
        return getSessionName(row);
    return textFor<QObject>(rowTitles[row]);
}

QString PHONE_UI_RecentCallDataTimesView::getItemValue(int row)
{
    switch (row) {
    case Session1:
        return meter->getRDT_Session1();
    case Session2:
        return meter->getRDT_Session2();
    case Session3:
        return meter->getRDT_Session3();
    case TotalTime:
        return meter->getADT_Sessions();
    }
    return QString();
}

QString PHONE_UI_RecentCallDataTimesView::getSessionName(int row)
{
    QString apn;
    if (row == Session1)
        apn = meter->getRDT_Session1_Apn();
    else if (row == Session2)
        apn = meter->getRDT_Session2_Apn();
    else
        apn = meter->getRDT_Session3_Apn();
    return ScreenFrame::sessionName(apn, rowTitles[row]);
}

void PHONE_UI_RecentCallDataTimesView::slotSelectedItem(ZSettingItem *item)
{
    const int row = listBox->index(item);
    switch (row) {
    case Session1:
    case Session2:
    case Session3: {
        const QString text = textFor<PHONE_UI_RecentCallDataTimesView>(sessionNotice).arg(getItemValue(row));
        showNotice(text.arg(getSessionName(row)));
        break;
    }
    case TotalTime:
        showNotice(textFor<PHONE_UI_RecentCallDataTimesView>(totalNotice).arg(getItemValue(row)));
        break;
    case ResetAll:
        askForReset();
        break;
    }
}

void PHONE_UI_RecentCallDataTimesView::showNotice(const QString &text)
{
    openDlg = ScreenFrame::newDialog(this, textFor<PHONE_UI_RecentCallDataTimesView>(header), text,
                                     ZMessageDlg::InformationDlg, "1slotClose()", nullptr);
    if (openDlg)
        openDlg->show();
}

void PHONE_UI_RecentCallDataTimesView::askForReset()
{
    openDlg = ScreenFrame::newDialog(this, textFor<PHONE_UI_RecentCallDataTimesView>(resetHeader),
                                     textFor<PHONE_UI_RecentCallDataTimesView>(resetQuestion),
                                     ZMessageDlg::QuestionDlg, "1slotYes()", "1slotClose()");
    if (openDlg)
        openDlg->show();
}

void PHONE_UI_RecentCallDataTimesView::slotClose()
{
    ScreenFrame::deleteAndNull(openDlg);
}

void PHONE_UI_RecentCallDataTimesView::slotYes()
{
    meter->resetAllDataSessionsTimer();
    ScreenFrame::deleteAndNull(openDlg);
    loadFigures();
    for (const int row : timeRows)
        ScreenFrame::rewriteValue(listBox, row, [&] { return getItemValue(row); });
}

PHONE_UI_RecentCallDataTimesView *create_dataTime(QWidget *parent, const char *name)
{
    return new (std::nothrow) PHONE_UI_RecentCallDataTimesView(parent, name);
}

void destroy_dataTime(PHONE_UI_RecentCallDataTimesView *screen)
{
    delete screen;
}
