#include "utility/PHONE_UI_RecentCallDataVolumesView.h"

#include "qt/QCopChannel.h"
#include "utility/PHONE_UI_RecentCallDataVolumesDetailView.h"
#include "utility/PHONE_UI_RecentCallMeter.h"
#include "utility/ResourceText.h"
#include "utility/ScreenFrame.h"

#include <cstring>
#include <iterator>
#include <new>

#define KAV_SOURCE "utility/PHONE_UI_RecentCallDataVolumesView"
#include "utility/trace.h"

namespace {

enum Row { CurrentHeading, Session1, Session2, Session3, AllHeading, TotalData, ResetAll, RowCount };

// The session rows' texts are for a session without an access point name; their keys are the separators'.
constexpr ResourceText rowTitles[] = {
    {"TXT_RID_SEPARATOR_RECENT_DATA_SESSION", "Current Data Session"},
    {"TXT_RID_SEPARATOR_GPRS_DATA_SESSION_1", "GPRS Data Session 1"},
    {"TXT_RID_SEPARATOR_GPRS_DATA_SESSION_2", "GPRS Data Session 2"},
    {"TXT_RID_SEPARATOR_GPRS_DATA_SESSION_3", "GPRS Data Session 3"},
    {"TXT_RID_SEPARATOR_ALL_DATA_SESSIONS", "All Data Sessions"},
    {"TXT_RID_SETTING_A_TOTAL_DATA_TRANSFERRED", "Total Data Transferred"},
    {"TXT_RID_SETTING_A_RESET_ALL_DATA_SESSIONS", "Reset All Data Sessions"},
};
static_assert(std::size(rowTitles) == RowCount);

constexpr ResourceText resetHeader = {"TXT_RID_HEADER_RESET", "Reset"};
constexpr ResourceText resetQuestion = {
    "TXT_RID_INSTRUCTIONALTXT_ARE_YOU_SURE_YOU_WANT_TO_RESET_DATA_SESSIONS_VOLUME",
    "Are you sure you want to reset the data sessions volume?"};

constexpr ScreenFrame::Recipe frame = {
    "PHONE_UI_RecentCallDataVolumesView", {"TXT_RID_HEADER_DATA_VOLUMES", "Data Volumes"}, "2closeWidget()"};

constexpr const char *phoneChannel = "/KAV/phone";
constexpr const char *updateMessage = "/KAV/phone/RecentCall/Update";

// Readers of the trace know these two lines by their numbers, which stay whatever the file looks like.
constexpr int closeDetailLine = 178;
constexpr int destroyLine = 282;

void traceClose(const char *method, int line)
{
    log(traceLevel, "\n%s, %s, %d: \"CLOSE widget first before delete.\n\"\n", KAV_SOURCE, method, line);
}

} // namespace

PHONE_UI_RecentCallDataVolumesView::PHONE_UI_RecentCallDataVolumesView(QWidget *parent, const char *name)
    : ZKbMainWidget(parent, name, 0)
    , openDlg(nullptr)
    , softKey(nullptr)
    , listBox(nullptr)
    , meter(nullptr)
    , detailView(nullptr)
    , channel(nullptr)
{
    initFrame();
    initChannel();
    initMeter();
    initList();
}

PHONE_UI_RecentCallDataVolumesView::~PHONE_UI_RecentCallDataVolumesView()
{
    ScreenFrame::deleteAndNull(meter);
}

void PHONE_UI_RecentCallDataVolumesView::initFrame()
{
    softKey = ScreenFrame::buildTitleAndSoftKey(this, frame);
    listBox = ScreenFrame::buildList(this, frame);
}

void PHONE_UI_RecentCallDataVolumesView::initChannel()
{
    channel = new (std::nothrow) QCopChannel(phoneChannel, this, nullptr);
    if (channel)
        connect(channel, "2received(const QCString&,const QByteArray&)", this,
                "1slotUpdateChildWidgets(const QCString&,const QByteArray&)");
}

void PHONE_UI_RecentCallDataVolumesView::initMeter()
{
    meter = new (std::nothrow) PHONE_UI_RecentCallMeter();
    if (meter)
        meter->getRDV();
}

void PHONE_UI_RecentCallDataVolumesView::initList()
{
    if (!listBox)
        return;
    listBox->clear();
    ScreenFrame::appendRows(listBox, RowCount, [this](int row) {
        if (row == CurrentHeading || row == AllHeading)
            return ScreenFrame::newSeparator(listBox, getItemTitle(row));
        return ScreenFrame::newRow(listBox, [&] { return getItemTitle(row); });
    });
}

QString PHONE_UI_RecentCallDataVolumesView::getItemTitle(int row)
{
    if (row < 0 || row >= RowCount)
        return QString();
    if (row >= Session1 && row <= Session3)
        return getSessionName(row);
    return textFor<QObject>(rowTitles[row]);
}

QString PHONE_UI_RecentCallDataVolumesView::getSessionName(int row)
{
    QString apn;
    if (meter && row == Session1)
        apn = meter->getRDV_Session1_Apn();
    else if (meter && row == Session2)
        apn = meter->getRDV_Session2_Apn();
    else if (meter)
        apn = meter->getRDV_Session3_Apn();
    return ScreenFrame::sessionName(apn, rowTitles[row]);
}

void PHONE_UI_RecentCallDataVolumesView::slotSelectedItem(ZSettingItem *item)
{
    const int row = listBox->index(item);
    switch (row) {
    case Session1:
    case Session2:
    case Session3:
        openDetail(QString::fromLatin1(""), getSessionName(row), row);
        break;
    case TotalData: // both texts untranslated: the detail screen translates headings of its own
        openDetail(QString::fromLatin1("All Data Sessions"), QString::fromLatin1("Total Data Transferred"), row);
        break;
    case ResetAll:
        askForReset();
        break;
    }
}

void PHONE_UI_RecentCallDataVolumesView::openDetail(const QString &first, const QString &second, int index)
{
    detailView = new (std::nothrow) PHONE_UI_RecentCallDataVolumesDetailView(first, second, index, this, nullptr);
    if (detailView)
        ScreenFrame::showSubScreen(this, detailView);
}

void PHONE_UI_RecentCallDataVolumesView::askForReset()
{
    openDlg = ScreenFrame::newDialog(this, textFor<PHONE_UI_RecentCallDataVolumesView>(resetHeader),
                                     textFor<PHONE_UI_RecentCallDataVolumesView>(resetQuestion),
                                     ZMessageDlg::QuestionDlg, "1slotYes()", "1slotNo()");
    if (openDlg)
        openDlg->show();
}

void PHONE_UI_RecentCallDataVolumesView::slotYes()
{
    if (meter)
        meter->resetAllDataSessionsVolume();
    ScreenFrame::deleteAndNull(openDlg);
}

void PHONE_UI_RecentCallDataVolumesView::slotNo()
{
    ScreenFrame::deleteAndNull(openDlg);
}

void PHONE_UI_RecentCallDataVolumesView::slotCloseWgt()
{
    if (detailView) {
        traceClose("slotCloseWgt", closeDetailLine);
        detailView->close(false);
        ScreenFrame::deleteAndNull(detailView);
    }
    initList();
    if (listBox)
        listBox->setFocus();
}

void PHONE_UI_RecentCallDataVolumesView::slotUpdateChildWidgets(const QCString &message, const QByteArray &block)
{
    Q_UNUSED(block)
    if (message.isNull() || std::strcmp(message.constData(), updateMessage) != 0)
        return;
    ScreenFrame::deleteAndNull(meter);
    initMeter();
    initList();
    update();
}

PHONE_UI_RecentCallDataVolumesView *create_dataVolume(QWidget *parent, const char *name)
{
    return new (std::nothrow) PHONE_UI_RecentCallDataVolumesView(parent, name);
}

void destroy_dataVolume(PHONE_UI_RecentCallDataVolumesView *screen)
{
    if (!screen)
        return;
    traceClose("destroy_dataVolume", destroyLine);
    screen->close(false);
    delete screen;
}
