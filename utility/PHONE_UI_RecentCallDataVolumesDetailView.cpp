#include "utility/PHONE_UI_RecentCallDataVolumesDetailView.h"

#include "toolkit/ZLabel.h"
#include "toolkit/ZSoftKey.h"
#include "utility/PHONE_UI_RecentCallMeter.h"
#include "utility/ResourceText.h"
#include "utility/ScreenFrame.h"

#include <iterator>
#include <new>

namespace {

enum Row { Heading, Name, Sent, Received, Sum, RowCount };
constexpr int allSessions = 5; // any other index is a session's slot

// A figure is known by its English word, whatever the row's label says in another language.
struct Figure {
    const char *word;
    ResourceText label;
    ResourceText notice; // %1 is the volume
};

constexpr Figure figures[] = {
    {"Sent",
     {"TXT_RID_SETTING_A_SENT", "Sent"},
     {"FMT_RID_INSTRUCTIONALTXT_YOUR_SENT_DATA_VOLUME_IS_1", "Your sent data volume is %1"}},
    {"Received",
     {"TXT_RID_SETTING_A_RECEIVED", "Received"},
     {"FMT_RID_INSTRUCTIONALTXT_YOUR_RECEIVED_DATA_VOLUME_IS_1", "Your received data volume is %1"}},
    {"Sum",
     {"TXT_RID_SETTING_A_SUM", "Sum"},
     {"FMT_RID_INSTRUCTIONALTXT_YOUR_TOTAL_DATA_TRANSFER_VOLUME_IS_1", "Your total data transfer volume is %1"}},
};
static_assert(std::size(figures) == RowCount - Sent);

using Getter = QString (PHONE_UI_RecentCallMeter::*)();
struct Getters {
    int index;
    Getter figures[std::size(::figures)];
};

constexpr Getters getters[] = {
    {1,
     {&PHONE_UI_RecentCallMeter::getRDV_Session1_Sent, &PHONE_UI_RecentCallMeter::getRDV_Session1_Received,
      &PHONE_UI_RecentCallMeter::getRDV_Session1_Total}},
    {2,
     {&PHONE_UI_RecentCallMeter::getRDV_Session2_Sent, &PHONE_UI_RecentCallMeter::getRDV_Session2_Received,
      &PHONE_UI_RecentCallMeter::getRDV_Session2_Total}},
    {3,
     {&PHONE_UI_RecentCallMeter::getRDV_Session3_Sent, &PHONE_UI_RecentCallMeter::getRDV_Session3_Received,
      &PHONE_UI_RecentCallMeter::getRDV_Session3_Total}},
    {allSessions,
     {&PHONE_UI_RecentCallMeter::getADV_Sessions_Sent, &PHONE_UI_RecentCallMeter::getADV_Sessions_Received,
      &PHONE_UI_RecentCallMeter::getADV_Sessions_Total}},
};

constexpr ResourceText header = {"TXT_RID_HEADER_DATA_VOLUME", "Data Volume"};
constexpr ResourceText currentHeading = {"TXT_RID_SEPARATOR_RECENT_DATA_SESSION", "Current Data Session"};
constexpr ResourceText allHeading = {"TXT_RID_SEPARATOR_ALL_DATA_SESSIONS", "All Data Sessions"};
constexpr ResourceText totalName = {"TXT_RID_SETTING_A_TOTAL_DATA_TRANSFERRED", "Total Data Transferred"};

constexpr ScreenFrame::Recipe frame = {"PHONE_UI_RecentCallDataVolumesDetailView", header, "1slotBack()"};

constexpr QRect headingGeometry(0, 10, 240, 20);
constexpr QRect nameGeometry(0, 40, 240, 20);

QString wordOfRow(int row)
{
    return row >= Sent && row < RowCount ? QString::fromLatin1(figures[row - Sent].word) : QString();
}

const Figure *figureOf(const QString &word)
{
    for (const Figure &figure : figures) {
        if (word.compare(QLatin1StringView(figure.word)) == 0)
            return &figure;
    }
    return nullptr;
}

const Getters *gettersOf(int index)
{
    for (const Getters &candidate : getters) {
        if (candidate.index == index)
            return &candidate;
    }
    return nullptr;
}

void addHeading(QWidget *content, const QString &text, const QRect &geometry)
{
    auto *label = new (std::nothrow) ZLabel(text, content, nullptr, 0, ZSkinService::HeadingLabelClass);
    if (label)
        label->setGeometry(geometry.x(), geometry.y(), geometry.width(), geometry.height());
}

} // namespace

PHONE_UI_RecentCallDataVolumesDetailView::PHONE_UI_RecentCallDataVolumesDetailView(QString textY, QString textZ,
                                                                                   int slot, QWidget *parent,
                                                                                   const char *name)
    : ZKbMainWidget(parent, name, 0)
    , openDlg(nullptr)
    , listBox(nullptr)
    , softKey(nullptr)
    , meter(nullptr)
    , instructTextY(textY)
    , instructTextZ(textZ)
    , index(slot)
    , sentText(QString::fromLatin1(""))
    , receivedText(QString::fromLatin1(""))
    , sumText(QString::fromLatin1(""))
{
    initFrame();
    initFigures();
    initList();
}

// The meter is not deleted: it is left behind.
PHONE_UI_RecentCallDataVolumesDetailView::~PHONE_UI_RecentCallDataVolumesDetailView() = default;

QString PHONE_UI_RecentCallDataVolumesDetailView::getInstructTextY()
{
    return instructTextY;
}

QString PHONE_UI_RecentCallDataVolumesDetailView::getInstructTextZ()
{
    return instructTextZ;
}

int PHONE_UI_RecentCallDataVolumesDetailView::getIndex()
{
    return index;
}

void PHONE_UI_RecentCallDataVolumesDetailView::initFrame()
{
    setMainWidgetTitle(textFor<PHONE_UI_RecentCallDataVolumesDetailView>(header));
    initSoftKey();
    QWidget *content = getContentWidget(true);
    addHeading(content, getItemTitle(Heading), headingGeometry);
    addHeading(content, getItemTitle(Name), nameGeometry);
    listBox = ScreenFrame::newList(this);
    if (listBox)
        listBox->setFocus();
    ScreenFrame::connectList(this, listBox, frame);
}

// Unlike the other screens' bars, this one has its left key disabled.
void PHONE_UI_RecentCallDataVolumesDetailView::initSoftKey()
{
    softKey = ScreenFrame::newSoftKey(this);
    if (!softKey)
        return;
    ScreenFrame::emptyLeftKey(softKey, frame);
    softKey->setButtonEnable(ZSoftKey::LeftKey, false);
    ScreenFrame::nameBackKey(softKey, frame);
    softKey->setClickedSlot(ZSoftKey::RightKey, this, frame.backMember);
    setCSTWidget(softKey);
}

void PHONE_UI_RecentCallDataVolumesDetailView::initFigures()
{
    meter = new (std::nothrow) PHONE_UI_RecentCallMeter();
    if (!meter)
        return;
    if (index == allSessions)
        meter->getADV();
    else
        meter->getRDV();
    sentText = askMeter(wordOfRow(Sent));
    receivedText = askMeter(wordOfRow(Received));
    sumText = askMeter(wordOfRow(Sum));
}

void PHONE_UI_RecentCallDataVolumesDetailView::initList()
{
    ScreenFrame::appendRows(listBox, RowCount, [this](int row) {
        if (row < Sent)
            return ScreenFrame::newSeparator(listBox, getItemTitle(row));
        ZSettingItem *item = ScreenFrame::newRow(listBox, [&] { return getItemTitle(row); });
        if (item)
            ScreenFrame::appendValue(item, getItemValue(wordOfRow(row)));
        return item;
    });
}

QString PHONE_UI_RecentCallDataVolumesDetailView::getItemTitle(int row)
{
    const bool isTotal = index == allSessions;
    if (row == Heading)
        return textFor<QObject>(isTotal ? allHeading : currentHeading);
    if (row == Name)
        return isTotal ? textFor<QObject>(totalName) : QString::fromLatin1("%1").arg(instructTextZ);
    const Figure *figure = figureOf(wordOfRow(row));
    return figure ? textFor<QObject>(figure->label) : QString();
}

QString PHONE_UI_RecentCallDataVolumesDetailView::getItemValue(const QString &word)
{
    if (word.compare(QLatin1StringView(figures[0].word)) == 0)
        return sentText;
    if (word.compare(QLatin1StringView(figures[1].word)) == 0)
        return receivedText;
    if (word.compare(QLatin1StringView(figures[2].word)) == 0)
        return sumText;
    return QString();
}

// The meter's text for a figure of this screen's session; empty without a meter or for a slot that is none.
QString PHONE_UI_RecentCallDataVolumesDetailView::askMeter(const QString &word)
{
    const Figure *figure = figureOf(word);
    const Getters *slot = gettersOf(index);
    if (!meter || !figure || !slot)
        return QString::fromLatin1("");
    return (meter->*slot->figures[figure - figures])();
}

QString PHONE_UI_RecentCallDataVolumesDetailView::getNoticeText(const QString &word)
{
    const Figure *figure = figureOf(word);
    if (!figure || !gettersOf(index))
        return QString::fromLatin1("");
    return textFor<PHONE_UI_RecentCallDataVolumesDetailView>(figure->notice).arg(askMeter(word));
}

void PHONE_UI_RecentCallDataVolumesDetailView::slotSelectedItem(ZSettingItem *item)
{
    const QString text = getNoticeText(wordOfRow(listBox->index(item)));
    openDlg = ScreenFrame::newDialog(this, textFor<PHONE_UI_RecentCallDataVolumesDetailView>(header), text,
                                     ZMessageDlg::InformationDlg, "1slotOk()", nullptr);
    if (openDlg)
        openDlg->show();
}

void PHONE_UI_RecentCallDataVolumesDetailView::slotOk()
{
    ScreenFrame::deleteAndNull(openDlg);
}

void PHONE_UI_RecentCallDataVolumesDetailView::slotBack()
{
    emit closeWgt();
}
