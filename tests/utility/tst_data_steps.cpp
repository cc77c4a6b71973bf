// What the screens of the data sessions ask of the toolkit and the handset, call by call, with the exact arguments
// and in the exact order.
#include "utility/PHONE_UI_RecentCallDataTimesView.h"
#include "utility/PHONE_UI_RecentCallDataVolumesDetailView.h"
#include "utility/PHONE_UI_RecentCallDataVolumesView.h"

#include "support/PhoneScreen.h"
#include "support/PhoneTest.h"
#include "support/PluginLibrary.h"
#include "support/PrivateAccess.h"
#include "support/ToolkitRecorder.h"

#include "qt/QCString.h"
#include "toolkit/ZListBox.h"
#include "utility/PHONE_UI_RecentCallMeter.h"

#include <dlfcn.h>

using handset::CallTime;
using handset::DataSessions;
using ZKeys::PhoneKey;
using DetailView = PHONE_UI_RecentCallDataVolumesDetailView;
using DataTimes = HostedScreen<PHONE_UI_RecentCallDataTimesView>;
using DataVolumes = HostedScreen<PHONE_UI_RecentCallDataVolumesView>;

KAV_EXPOSE(OpenDetail, &PHONE_UI_RecentCallDataVolumesView::detailView);
KAV_EXPOSE(DetailMeter, &DetailView::meter);

// QWidget::setFocus() of a list, which the screens and the toolkit call. Both are recorded.
extern "C" void focusWidget(QWidget *self, Qt::FocusReason reason) asm("_ZN7QWidget8setFocusEN2Qt11FocusReasonE");
void focusWidget(QWidget *self, Qt::FocusReason reason)
{
    static auto *const original = reinterpret_cast<void (*)(QWidget *, Qt::FocusReason)>(
        dlsym(RTLD_NEXT, "_ZN7QWidget8setFocusEN2Qt11FocusReasonE"));
    if (Journal::shared().nameOf(self) == QLatin1String("list"))
        Journal::shared().record(QStringLiteral("list.setFocus()"));
    original(self, reason);
}

namespace {

constexpr int totalRow = 5;
constexpr int resetRow = 6;

DataSessions threeSessions()
{
    DataSessions sessions;
    sessions.count = 3;
    sessions.records[0] = {1, 10, 20, {1, 2, 3}, "internet"};
    sessions.records[1] = {2, 30, 40, {0, 10, 0}, ""};
    sessions.records[2] = {3, 50, 60, {12, 0, 9}, "wap"};
    return sessions;
}

QStringList separatorSteps(int row, const QString &label)
{
    return {
        "ZSettingItem(list, \"%P\")",
        QStringLiteral("row %1.setSeparator(\"%2\", null)").arg(row).arg(label),
        QStringLiteral("list.insertItem(row %1, -1, true)").arg(row),
    };
}

QStringList rowSteps(int row, const QString &label, const QString &value = QString())
{
    QStringList steps = {
        "ZSettingItem(list, null)",
        QStringLiteral("row %1.appendSubItem(0, \"%2\", false, 0)").arg(row).arg(label),
    };
    if (!value.isNull())
        steps.append(QStringLiteral("row %1.appendSubItem(0, \"%2\", false, 1)").arg(row).arg(value));
    steps.append(QStringLiteral("list.insertItem(row %1, -1, true)").arg(row));
    return steps;
}

// The list of the Data Volumes screen filled, whose rows are numbered from `first`.
QStringList volumeRowSteps(int first)
{
    return QStringList("list.clear()") + separatorSteps(first, "Current Data Session") +
           rowSteps(first + 1, "internet") + rowSteps(first + 2, "GPRS Data Session 2") +
           rowSteps(first + 3, "wap") + separatorSteps(first + 4, "All Data Sessions") +
           rowSteps(first + 5, "Total Data Transferred") + rowSteps(first + 6, "Reset All Data Sessions");
}

QStringList frameSteps(const QString &title, QSize content)
{
    return {
        "ZKbMainWidget(null, null, 0)",
        QStringLiteral("screen.setMainWidgetTitle(\"%1\")").arg(title),
        "ZSoftKey(\"CST_2A\", screen, null)",
        "softKey.setText(1, \"Back\", 0)",
        "softKey.setText(0, \"\", 0)",
        "softKey.setClickedSlot(1, screen, \"2closeWidget()\")",
        "screen.setCSTWidget(softKey)",
        "screen.getContentWidget(true)",
        "ZListBox(\"%M\", content, 0, 40)",
        QStringLiteral("list.setGeometry(0, 0, %1, %2)").arg(content.width()).arg(content.height()),
        "connect(list, \"2selected(ZSettingItem *)\", screen, \"1slotSelectedItem(ZSettingItem *)\")",
        "connect(screen, \"2clearKeyClicked()\", screen, \"2closeWidget()\")",
    };
}

// The detail screen built and shown, whose list has the given two headings and three figures.
QStringList detailSteps(const QString &heading, const QString &name, const char *query, const QStringList &figures,
                        QSize content)
{
    return QStringList({
               "ZKbMainWidget(screen, null, 0)",
               "screen.setMainWidgetTitle(\"Data Volume\")",
               "ZSoftKey(\"CST_2A\", screen, null)",
               "softKey.setText(0, \"\", 0)",
               "softKey.setButtonEnable(0, false)",
               "softKey.setText(1, \"Back\", 0)",
               "softKey.setClickedSlot(1, screen, \"1slotBack()\")",
               "screen.setCSTWidget(softKey)",
               "screen.getContentWidget(true)",
               QStringLiteral("ZLabel(\"%1\", content, null, 0, 86)").arg(heading),
               "label 0.setGeometry(0, 10, 240, 20)",
               QStringLiteral("ZLabel(\"%1\", content, null, 0, 86)").arg(name),
               "label 1.setGeometry(0, 40, 240, 20)",
               "screen.getContentWidget(true)",
               "ZListBox(\"%M\", content, 0, 40)",
               QStringLiteral("list.setGeometry(0, 0, %1, %2)").arg(content.width()).arg(content.height()),
               "list.setFocus()",
               "connect(list, \"2selected(ZSettingItem *)\", screen, \"1slotSelectedItem(ZSettingItem *)\")",
               "connect(screen, \"2clearKeyClicked()\", screen, \"1slotBack()\")",
               query,
           }) +
           separatorSteps(0, heading) + separatorSteps(1, name) + rowSteps(2, "Sent", figures.at(0)) +
           rowSteps(3, "Received", figures.at(1)) + rowSteps(4, "Sum", figures.at(2)) +
           QStringList({"connect(screen, \"2closeWgt()\", screen, \"1slotCloseWgt()\")", "screen.show()"});
}

QStringList noticeSteps(const QString &header, const QString &message, const char *slot)
{
    return {
        QStringLiteral("ZMessageDlg(\"%1\", \"%2\", 2, 0, screen, null, true, 0)").arg(header, message),
        QStringLiteral("connect(dialog 1, \"2leftSoftkeyClicked()\", screen, \"1%1()\")").arg(QLatin1String(slot)),
        "dialog 1.show()",
    };
}

QStringList questionSteps(const QString &message, const char *no)
{
    return {
        QStringLiteral("ZMessageDlg(\"Reset\", \"%1\", 1, 0, screen, null, true, 0)").arg(message),
        "connect(dialog 1, \"2leftSoftkeyClicked()\", screen, \"1slotYes()\")",
        QStringLiteral("connect(dialog 1, \"2rightSoftkeyClicked()\", screen, \"1%1()\")").arg(QLatin1String(no)),
        "dialog 1.show()",
    };
}

// Without the toolkit's own doing: the list gets the focus when its screen is shown, and when a dialog goes.
QStringList ownSteps(QStringList steps)
{
    const QString focus = QStringLiteral("list.setFocus()");
    for (qsizetype i = steps.size() - 1; i >= 0; --i) {
        if (steps.at(i) == focus && (i == 0 || steps.at(i - 1).endsWith(QLatin1String(".show()"))))
            steps.removeAt(i);
    }
    return steps;
}

} // namespace

class TestDataSteps : public PhoneTest
{
    Q_OBJECT

private slots:
    void init();

    void dataTimesBuildsItsFrameAsksAndFills();
    void dataTimesTellsASessionInANotice();
    void dataTimesTellsTheTotalInANotice();
    void dataTimesAsksBeforeTheReset();
    void dataTimesRewritesFourValuesAfterTheReset();

    void dataVolumesBuildsFrameAndChannelThenAsksAndFills();
    void dataVolumesRebuildsAndRepaintsOnAnUpdate();
    void dataVolumesAsksBeforeTheReset();
    void dataVolumesOnlyResetsOnYes();
    void theDetailOfASessionIsBuiltConnectedAndShown();
    void theDetailOfAllSessionsIsBuiltConnectedAndShown();
    void closingTheDetailClosesItRebuildsAndTakesTheFocus();
    void withoutADetailTheListIsRebuiltAndTakesTheFocusAllTheSame();
    void aFigureIsToldInANotice();
    void destroyingDataVolumesClosesItFirst();

private:
    // What the detail screen leaves behind; it goes when the test does.
    std::unique_ptr<PHONE_UI_RecentCallMeter> leftMeter;
    DetailView *openDetail(const DataVolumes &screen, int row);
};

void TestDataSteps::init()
{
    PhoneTest::init();
    ToolkitRecorder::restart();
    script().answer("PacketData::sessions", threeSessions());
    script().answer("PacketData::totalDuration", CallTime{5, 3, 7});
    script().answer("PacketData::totalBytes", quint32(777), quint32(222), quint32(111));
}

// The journal then holds what it took to open the detail, whose rows and labels are numbered from 0.
DetailView *TestDataSteps::openDetail(const DataVolumes &screen, int row)
{
    screen->show();
    ZListBox *list = PhoneScreen::list(screen.get());
    while (list->currentItem() != row)
        PhoneScreen::press(PhoneKey::Down);
    ToolkitRecorder::restart();
    journal.take();
    PhoneScreen::press(PhoneKey::Select);
    DetailView *detail = screen.get()->*exposed(OpenDetail());
    leftMeter.reset(detail->*exposed(DetailMeter()));
    return detail;
}

void TestDataSteps::dataTimesBuildsItsFrameAsksAndFills()
{
    const DataTimes screen("dataTime");
    const QStringList steps = journal.take();
    const QSize content = screen->getContentWidget(false)->size();
    COMPARE_LINES(steps, frameSteps("Data Times", content) +
                             QStringList({"PacketData::sessions", "PacketData::totalDuration"}) +
                             separatorSteps(0, "Current Data Session") + rowSteps(1, "internet", "01:02:03") +
                             rowSteps(2, "GPRS Data Session 2", "00:10:00") + rowSteps(3, "wap", "12:00:09") +
                             separatorSteps(4, "All Data Sessions") + rowSteps(5, "Total Time", "05:03:07") +
                             rowSteps(6, "Reset All Data Sessions"));
}

void TestDataSteps::dataTimesTellsASessionInANotice()
{
    const DataTimes screen("dataTime");
    screen->show();
    journal.take();
    PhoneScreen::press(PhoneKey::Select);
    COMPARE_LINES(
        journal.take(),
        noticeSteps("Data Times", "The current Data Session time for internet is 01:02:03.", "slotClose"));
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    COMPARE_LINES(journal.startingWith("delete"), QStringList("delete dialog 1"));
}

void TestDataSteps::dataTimesTellsTheTotalInANotice()
{
    const DataTimes screen("dataTime");
    screen->show();
    journal.take();
    PhoneScreen::chooseRow(screen.get(), totalRow);
    COMPARE_LINES(
        journal.lines(),
        noticeSteps("Data Times", "The total time for all your data sessions is 05:03:07.", "slotClose"));
}

void TestDataSteps::dataTimesAsksBeforeTheReset()
{
    const DataTimes screen("dataTime");
    screen->show();
    journal.take();
    PhoneScreen::chooseRow(screen.get(), resetRow);
    COMPARE_LINES(journal.lines(),
                  questionSteps("Are you sure you want to reset the data sessions timer?", "slotClose"));
}

void TestDataSteps::dataTimesRewritesFourValuesAfterTheReset()
{
    const DataTimes screen("dataTime");
    screen->show();
    PhoneScreen::chooseRow(screen.get(), resetRow);
    journal.take();
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    COMPARE_LINES(ownSteps(journal.lines()), QStringList({
                                                 "PacketData::resetTotalDuration",
                                                 "delete dialog 1",
                                                 "PacketData::sessions",
                                                 "PacketData::totalDuration",
                                                 "row 1.setSubItem(0, 1, \"01:02:03\", false, 1)",
                                                 "row 2.setSubItem(0, 1, \"00:10:00\", false, 1)",
                                                 "row 3.setSubItem(0, 1, \"12:00:09\", false, 1)",
                                                 "row 5.setSubItem(0, 1, \"05:03:07\", false, 1)",
                                             }));
}

void TestDataSteps::dataVolumesBuildsFrameAndChannelThenAsksAndFills()
{
    const DataVolumes screen("dataVolume");
    const QStringList steps = journal.take();
    const QSize content = screen->getContentWidget(false)->size();
    COMPARE_LINES(steps,
                  frameSteps("Data Volumes", content) +
                      QStringList({"QCopChannel(\"/KAV/phone\", screen, null)",
                                   "connect(channel, \"2received(const QCString&,const QByteArray&)\", screen, "
                                   "\"1slotUpdateChildWidgets(const QCString&,const QByteArray&)\")",
                                   "PacketData::sessions"}) +
                      volumeRowSteps(0));
}

void TestDataSteps::dataVolumesRebuildsAndRepaintsOnAnUpdate()
{
    const DataVolumes screen("dataVolume");
    screen->show();
    journal.take();
    QMetaObject::invokeMethod(screen.get(), "slotUpdateChildWidgets",
                              Q_ARG(QCString, QCString("/KAV/phone/RecentCall/Update")),
                              Q_ARG(QByteArray, QByteArray()));
    COMPARE_LINES(journal.lines(),
                  QStringList("PacketData::sessions") + volumeRowSteps(7) + QStringList("screen.update()"));
}

void TestDataSteps::dataVolumesAsksBeforeTheReset()
{
    const DataVolumes screen("dataVolume");
    screen->show();
    journal.take();
    PhoneScreen::chooseRow(screen.get(), resetRow);
    COMPARE_LINES(journal.lines(),
                  questionSteps("Are you sure you want to reset the data sessions volume?", "slotNo"));
}

void TestDataSteps::dataVolumesOnlyResetsOnYes()
{
    const DataVolumes screen("dataVolume");
    screen->show();
    PhoneScreen::chooseRow(screen.get(), resetRow);
    journal.take();
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    COMPARE_LINES(ownSteps(journal.lines()), QStringList({"PacketData::resetTotalBytes", "delete dialog 1"}));
}

void TestDataSteps::theDetailOfASessionIsBuiltConnectedAndShown()
{
    const DataVolumes screen("dataVolume");
    DetailView *detail = openDetail(screen, 2);
    const QStringList steps = ownSteps(journal.take());
    const QSize content = detail->getContentWidget(false)->size();
    COMPARE_LINES(steps, detailSteps("Current Data Session", "GPRS Data Session 2", "PacketData::sessions",
                                     {"30 B", "40 B", "70 B"}, content));
}

void TestDataSteps::theDetailOfAllSessionsIsBuiltConnectedAndShown()
{
    const DataVolumes screen("dataVolume");
    DetailView *detail = openDetail(screen, totalRow);
    const QStringList steps = ownSteps(journal.take());
    const QSize content = detail->getContentWidget(false)->size();
    COMPARE_LINES(steps, detailSteps("All Data Sessions", "Total Data Transferred", "PacketData::totalBytes",
                                     {"111 B", "222 B", "777 B"}, content));
}

void TestDataSteps::closingTheDetailClosesItRebuildsAndTakesTheFocus()
{
    const DataVolumes screen("dataVolume");
    DetailView *detail = openDetail(screen, 1);
    journal.nameObject(detail, "detail");
    journal.nameObject(PhoneScreen::list(screen.get()), "list");
    connect(detail, &QObject::destroyed, this, [&] { journal.record("delete detail"); });
    ToolkitRecorder::restart();
    journal.take();
    PhoneScreen::press(PhoneKey::RightSoftkey);
    QStringList steps = journal.lines();
    QCOMPARE(steps.value(0), QString("detail.close(false)"));
    const qsizetype deleted = steps.indexOf(QStringLiteral("delete detail"));
    QVERIFY(deleted > 0);
    COMPARE_LINES(steps.mid(deleted + 1), volumeRowSteps(0) + QStringList("list.setFocus()"));
}

void TestDataSteps::withoutADetailTheListIsRebuiltAndTakesTheFocusAllTheSame()
{
    const DataVolumes screen("dataVolume");
    screen->show();
    ToolkitRecorder::restart();
    journal.take();
    QMetaObject::invokeMethod(screen.get(), "slotCloseWgt");
    COMPARE_LINES(journal.lines(), volumeRowSteps(0) + QStringList("list.setFocus()"));
}

void TestDataSteps::aFigureIsToldInANotice()
{
    const DataVolumes screen("dataVolume");
    openDetail(screen, 3);
    journal.take();
    PhoneScreen::press(PhoneKey::Select);
    COMPARE_LINES(journal.take(), noticeSteps("Data Volume", "Your sent data volume is 50 B", "slotOk"));
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    COMPARE_LINES(journal.startingWith("delete"), QStringList("delete dialog 1"));
}

void TestDataSteps::destroyingDataVolumesClosesItFirst()
{
    DataVolumes screen("dataVolume");
    connect(screen.get(), &QObject::destroyed, this, [&] { journal.record("delete screen"); });
    journal.take();
    screen.destroy();
    COMPARE_LINES(journal.lines(), QStringList({"screen.close(false)", "delete screen"}));
}

KAV_TEST_GROUP(TestDataSteps, QApplication);
#include "tst_data_steps.moc"
