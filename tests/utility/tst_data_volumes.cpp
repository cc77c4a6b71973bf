// The Data Volumes screen and its detail screen: rows, details, the reset, the phone's update message.
#include "utility/PHONE_UI_RecentCallDataVolumesDetailView.h"
#include "utility/PHONE_UI_RecentCallDataVolumesView.h"

#include "support/FrameRecorder.h"
#include "support/PhoneScreen.h"
#include "support/PhoneTest.h"
#include "support/PluginLibrary.h"
#include "support/PrivateAccess.h"
#include "support/RecordingTranslator.h"
#include "support/Sample.h"

#include "qt/QCopChannel.h"
#include "toolkit/ZLabel.h"
#include "toolkit/ZListBox.h"
#include "toolkit/ZMessageDlg.h"
#include "toolkit/ZSettingItem.h"
#include "utility/PHONE_UI_RecentCallMeter.h"

#include <QtCore/QPointer>
#include <QtTest/QSignalSpy>

#include <climits>

using handset::DataSessions;
using ZKeys::PhoneKey;
using View = PHONE_UI_RecentCallDataVolumesView;
using DetailView = PHONE_UI_RecentCallDataVolumesDetailView;
using DataVolumes = HostedScreen<View>;

KAV_EXPOSE(OpenDlg, &View::openDlg);
KAV_EXPOSE(OpenDetail, &View::detailView);
KAV_EXPOSE(VolumesMeter, &View::meter);
KAV_EXPOSE(ItemTitle, &View::getItemTitle);
KAV_EXPOSE(DetailDlg, &DetailView::openDlg);
KAV_EXPOSE(DetailMeter, &DetailView::meter);
KAV_EXPOSE(DetailItemTitle, &DetailView::getItemTitle);
KAV_EXPOSE(SentText, &DetailView::sentText);
KAV_EXPOSE(ReceivedText, &DetailView::receivedText);
KAV_EXPOSE(SumText, &DetailView::sumText);

namespace {

const QByteArray channel("/KAV/phone");
const QByteArray update("/KAV/phone/RecentCall/Update");
constexpr int totalRow = 5;
constexpr int resetRow = 6;

DataSessions sessions(const char *first, const char *second, const char *third)
{
    DataSessions made;
    made.count = 3;
    made.records[0] = {1, 10, 20, {}, first};
    made.records[1] = {2, 300, 400, {}, second};
    made.records[2] = {3, 4000000000u, 400000000u, {}, third};
    return made;
}

QStringList rows(const QString &first, const QString &second, const QString &third)
{
    return {"Current Data Session|",
            first + "|",
            second + "|",
            third + "|",
            "All Data Sessions|",
            "Total Data Transferred|",
            "Reset All Data Sessions|"};
}

QString closeTrace(const char *function, int line)
{
    return QStringLiteral(
               "\nutility/PHONE_UI_RecentCallDataVolumesView, %1, %2: \"CLOSE widget first before delete.\n\"\n")
        .arg(QLatin1String(function))
        .arg(line);
}

// Notes the closing and the deletion of a screen, and whether the trace was written by then.
class CloseWatch : public QObject
{
public:
    CloseWatch(QWidget *watchedScreen, const TraceCapture &traceStream, const QString &expectedTrace)
        : traces(traceStream)
        , trace(expectedTrace)
    {
        watchedScreen->installEventFilter(this);
        connect(watchedScreen, &QObject::destroyed, this, [this] { events.append(QStringLiteral("deleted")); });
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Close)
            events.append(traces.text().endsWith(trace) ? QStringLiteral("closed after the trace")
                                                        : QStringLiteral("closed before the trace"));
        return false;
    }

    QStringList events;

private:
    const TraceCapture &traces;
    const QString trace;
};

// The detail screen leaves its meter behind; a test takes it away, so that only the screen's own leak is suppressed.
void deleteLeftMeter(PHONE_UI_RecentCallMeter *meter)
{
    delete meter;
}

} // namespace

class TestDataVolumes : public PhoneTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void rowsShowNamesOnlyAndSessionsAreAskedOnce();
    void aSessionWithoutAnAccessPointHasTheSeparatorsFallback();
    void aRowOutsideTheTableHasNoTitle();
    void theFrameIsTheCommonOne();
    void bothScreensAreFramesOfTheirOwnClasses();
    void slotsAndSignalsHaveTheirOrder();
    void backAndClearEmitCloseWidgetOnceEach();
    void choosingASeparatorOpensNothing();
    void choosingASessionOpensItsDetail_data();
    void choosingASessionOpensItsDetail();
    void choosingTheTotalOpensTheDetailOfAllSessionsWithPlainTexts();
    void closingADetailTracesClosesDeletesAndRebuilds();
    void theTraceComesBeforeTheClosingAndThatBeforeTheDeletion();
    void aClosingSignalWithoutADetailRebuildsAllTheSame();
    void theResetIsAskedForAndYesLeavesTheListAlone();
    void noToTheResetChangesNothing();
    void aFailedResetLeavesTheListAloneToo();

    void theUpdateMessageMakesANewMeterAndRebuildsTheList();
    void theOldMeterGoesBeforeTheNewOneIsMade();
    void otherMessagesChangeNothing_data();
    void otherMessagesChangeNothing();
    void aMessageIsComparedUpToItsNul();
    void anUpdateWhoseQueryFailsShowsFallbackNames();
    void anUpdateLeavesAnOpenDetailAlone();
    void anUpdateLeavesAnOpenQuestionAlone();
    void noFrameOfAnUpdateIsWithoutItsRows();
    void noFrameAfterADetailIsWithoutItsRows();
    void aBroadcastReachesTheScreenThroughTheEventLoop();
    void aBroadcastOnAnotherChannelDoesNot();
    void aBroadcastAfterTheScreenIsGoneReachesNobody();
    void everyOneOfTenThousandBroadcastsArrivesWithSelectionsInBetween();

    void destroyingTracesClosesThenDeletes();
    void destroyingTakesMeterQuestionAndDetailAlong();
    void destroyingNothingDoesNothing();
    void failedQueriesShowFallbackNames();
    void aQueryThatFailsAloneTakesOnlyItsOwnFiguresAway();

    void aDetailHasItsHeadingsAndFigures_data();
    void aDetailHasItsHeadingsAndFigures();
    void aDetailOfNoSlotHasNoFiguresAndStillANotice();
    void aDetailsHeadingsLieWhereTheyShould();
    void theListOfADetailCoversItsHeadings();
    void aDetailLeavesItsMeterBehind();
    void choosingAFigureTellsItAsTheMeterHasIt_data();
    void choosingAFigureTellsItAsTheMeterHasIt();
    void aChosenSeparatorOpensAnEmptyNotice();
    void leavingADetailOnlyEmitsCloseWgt();
    void aDetailKeepsItsTextsAndTakesTheFocus();
    void theDetailsLeftKeyIsDisabled();
    void figuresAreFoundByTheirEnglishWord();

private:
    std::unique_ptr<DataVolumes> hosted;
    View *screen() const { return hosted->get(); }
    DetailView *detail() const { return screen()->*exposed(OpenDetail()); }
    ZMessageDlg *dialog() const { return screen()->*exposed(OpenDlg()); }
    void open();
    void call(const char *slot) { QMetaObject::invokeMethod(screen(), slot); }
    void tell(const QByteArray &message);
    QPointer<DetailView> openDetail(int row);
    void closeDetail();
    QString nextBroadcast();
    void select(int step);
};

void TestDataVolumes::init()
{
    PhoneTest::init();
    script().answer("PacketData::sessions", sessions("internet", "mms", "wap"));
    script().answer("PacketData::totalBytes", quint32(777), quint32(222), quint32(111));
}

void TestDataVolumes::cleanup()
{
    if (hosted && screen())
        closeDetail();
    hosted.reset();
    PhoneTest::cleanup();
}

void TestDataVolumes::open()
{
    hosted = std::make_unique<DataVolumes>("dataVolume", nullptr, "dataVolume");
    screen()->show();
}

void TestDataVolumes::tell(const QByteArray &message)
{
    QMetaObject::invokeMethod(screen(), "slotUpdateChildWidgets", Q_ARG(QCString, message),
                              Q_ARG(QByteArray, "x"));
}

QPointer<DetailView> TestDataVolumes::openDetail(int row)
{
    PhoneScreen::chooseRow(screen(), row);
    return detail();
}

void TestDataVolumes::closeDetail()
{
    if (!detail())
        return;
    PHONE_UI_RecentCallMeter *left = detail()->*exposed(DetailMeter());
    call("slotCloseWgt");
    deleteLeftMeter(left);
}

void TestDataVolumes::rowsShowNamesOnlyAndSessionsAreAskedOnce()
{
    open();
    QCOMPARE(journal.lines(), QStringList("PacketData::sessions"));
    QCOMPARE(PhoneScreen::rows(screen()), rows("internet", "mms", "wap"));
    ZListBox *list = PhoneScreen::list(screen());
    for (int row = 0; row < 7; ++row) {
        auto *item = static_cast<ZSettingItem *>(list->item(row));
        QCOMPARE(item->isSeparator(), row == 0 || row == 4);
        QCOMPARE(item->subItemCount(), item->isSeparator() ? 0 : 1);
    }
    QCOMPARE(list->item(0)->type(), QString("%P"));
}

void TestDataVolumes::aSessionWithoutAnAccessPointHasTheSeparatorsFallback()
{
    script().answer("PacketData::sessions", sessions("", "", ""));
    RecordingTranslator translator;
    open();
    QCOMPARE(PhoneScreen::rows(screen()),
             rows("GPRS Data Session 1", "GPRS Data Session 2", "GPRS Data Session 3"));
    QStringList asked;
    for (const RecordingTranslator::Request &request : translator.take())
        asked.append(request.context + QLatin1Char('/') + request.key);
    const QString own = QStringLiteral("PHONE_UI_RecentCallDataVolumesView/");
    QCOMPARE(
        asked,
        QStringList(
            {own + "TXT_RID_HEADER_DATA_VOLUMES", own + "TXT_RID_SOFTKEY_BACK", own,
             "QObject/TXT_RID_SEPARATOR_RECENT_DATA_SESSION", "QObject/TXT_RID_SEPARATOR_GPRS_DATA_SESSION_1",
             "QObject/TXT_RID_SEPARATOR_GPRS_DATA_SESSION_2", "QObject/TXT_RID_SEPARATOR_GPRS_DATA_SESSION_3",
             "QObject/TXT_RID_SEPARATOR_ALL_DATA_SESSIONS", "QObject/TXT_RID_SETTING_A_TOTAL_DATA_TRANSFERRED",
             "QObject/TXT_RID_SETTING_A_RESET_ALL_DATA_SESSIONS"}));
}

void TestDataVolumes::aRowOutsideTheTableHasNoTitle()
{
    open();
    for (const int row : {-1, 7, 8})
        QVERIFY((screen()->*exposed(ItemTitle()))(row).isNull());
}

void TestDataVolumes::theFrameIsTheCommonOne()
{
    open();
    QCOMPARE(screen()->mainWidgetTitle(), QString("Data Volumes"));
    QCOMPARE(PhoneScreen::softkey(screen(), ZSoftKey::LeftKey), QString());
    QCOMPARE(PhoneScreen::softkey(screen(), ZSoftKey::RightKey), QString("Back"));
    QCOMPARE(screen()->className(), "PHONE_UI_RecentCallDataVolumesView");
}

void TestDataVolumes::bothScreensAreFramesOfTheirOwnClasses()
{
    QCOMPARE(View::staticMetaObject.superClass()->className(), "ZKbMainWidget");
    QCOMPARE(DetailView::staticMetaObject.superClass()->className(), "ZKbMainWidget");
    QWidget host;
    const DataVolumes inside("dataVolume", &host, "dataVolume");
    QCOMPARE(inside->parentWidget(), &host);
    QCOMPARE(inside->objectName(), QString("dataVolume"));
    QVERIFY(inside->isHidden());
}

void TestDataVolumes::slotsAndSignalsHaveTheirOrder()
{
    const auto methods = [](const QMetaObject &meta) {
        QStringList signatures;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
            signatures.append(QString::fromLatin1(meta.method(i).methodSignature()));
        return signatures;
    };
    QCOMPARE(methods(View::staticMetaObject),
             QStringList({"closeWidget()", "slotNo()", "slotYes()", "slotCloseWgt()",
                          "slotSelectedItem(ZSettingItem*)", "slotUpdateChildWidgets(QCString,QByteArray)"}));
    QCOMPARE(methods(DetailView::staticMetaObject),
             QStringList({"closeWgt()", "slotOk()", "slotBack()", "slotSelectedItem(ZSettingItem*)"}));
}

void TestDataVolumes::backAndClearEmitCloseWidgetOnceEach()
{
    open();
    journal.clear();
    QSignalSpy closed(screen(), &View::closeWidget);
    PhoneScreen::press(PhoneKey::RightSoftkey);
    PhoneScreen::press(PhoneKey::Clear);
    QCOMPARE(closed.size(), 2);
    QCOMPARE(journal.lines(), QStringList());
}

void TestDataVolumes::choosingASeparatorOpensNothing()
{
    open();
    for (const int row : {0, 4}) {
        auto *item = static_cast<ZSettingItem *>(PhoneScreen::list(screen())->item(row));
        QMetaObject::invokeMethod(screen(), "slotSelectedItem", Q_ARG(ZSettingItem *, item));
        QVERIFY(!detail());
        QVERIFY(!dialog());
    }
}

void TestDataVolumes::choosingASessionOpensItsDetail_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("name");
    QTest::newRow("first") << 1 << "internet";
    QTest::newRow("second without an access point") << 2 << "GPRS Data Session 2";
    QTest::newRow("third") << 3 << "wap";
}

void TestDataVolumes::choosingASessionOpensItsDetail()
{
    QFETCH(const int, row);
    QFETCH(const QString, name);
    script().answer("PacketData::sessions", sessions("internet", "", "wap"));
    open();
    journal.clear();
    QVERIFY(openDetail(row));
    QVERIFY(detail()->isVisible());
    QCOMPARE(detail()->parentWidget(), screen());
    QVERIFY(detail()->getInstructTextY().isEmpty() && !detail()->getInstructTextY().isNull());
    QCOMPARE(detail()->getInstructTextZ(), name);
    QCOMPARE(detail()->getIndex(), row);
    QCOMPARE(journal.lines(), QStringList("PacketData::sessions"));
}

void TestDataVolumes::choosingTheTotalOpensTheDetailOfAllSessionsWithPlainTexts()
{
    open();
    RecordingTranslator translator;
    translator.add(QStringLiteral("TXT_RID_SEPARATOR_ALL_DATA_SESSIONS"), QStringLiteral("Alle"));
    translator.add(QStringLiteral("TXT_RID_SETTING_A_TOTAL_DATA_TRANSFERRED"), QStringLiteral("Summe"));
    QVERIFY(openDetail(totalRow));
    QCOMPARE(detail()->getInstructTextY(), QString("All Data Sessions"));
    QCOMPARE(detail()->getInstructTextZ(), QString("Total Data Transferred"));
    QCOMPARE(detail()->getIndex(), 5);
    QCOMPARE(PhoneScreen::rows(detail()).mid(0, 2), QStringList({"Alle|", "Summe|"}));
}

void TestDataVolumes::closingADetailTracesClosesDeletesAndRebuilds()
{
    open();
    const QPointer<DetailView> opened = openDetail(1);
    PHONE_UI_RecentCallMeter *left = opened->*exposed(DetailMeter());
    QSignalSpy inserted(PhoneScreen::list(screen())->model(), &QAbstractItemModel::rowsInserted);
    QSignalSpy closed(screen(), &View::closeWidget);
    traces->take();
    journal.clear();
    PhoneScreen::press(PhoneKey::RightSoftkey);
    QVERIFY(!opened);
    QVERIFY(!detail());
    QCOMPARE(closed.size(), 0);
    QCOMPARE(traces->text().right(closeTrace("slotCloseWgt", 178).size()), closeTrace("slotCloseWgt", 178));
    QCOMPARE(journal.lines(), QStringList()); // names come from the meter that the screen still has
    QCOMPARE(inserted.size(), 7);
    QCOMPARE(PhoneScreen::shownRows(screen()), rows("internet", "mms", "wap"));
    QCOMPARE(screen()->focusWidget(), PhoneScreen::list(screen()));
    deleteLeftMeter(left);
}

void TestDataVolumes::theTraceComesBeforeTheClosingAndThatBeforeTheDeletion()
{
    open();
    const QPointer<DetailView> opened = openDetail(1);
    PHONE_UI_RecentCallMeter *left = opened->*exposed(DetailMeter());
    const CloseWatch detailWatch(opened, *traces, closeTrace("slotCloseWgt", 178));
    call("slotCloseWgt");
    QCOMPARE(detailWatch.events, QStringList({"closed after the trace", "deleted"}));
    deleteLeftMeter(left);
    const CloseWatch screenWatch(screen(), *traces, closeTrace("destroy_dataVolume", 282));
    hosted->destroy();
    QCOMPARE(screenWatch.events, QStringList({"closed after the trace", "deleted"}));
}

void TestDataVolumes::aClosingSignalWithoutADetailRebuildsAllTheSame()
{
    open();
    traces->take();
    QSignalSpy inserted(PhoneScreen::list(screen())->model(), &QAbstractItemModel::rowsInserted);
    call("slotCloseWgt");
    QCOMPARE(inserted.size(), 7);
    QCOMPARE(traces->take(), QString());
    QCOMPARE(screen()->focusWidget(), PhoneScreen::list(screen()));
}

void TestDataVolumes::theResetIsAskedForAndYesLeavesTheListAlone()
{
    open();
    PhoneScreen::chooseRow(screen(), resetRow);
    const QPointer<ZMessageDlg> question = dialog();
    QVERIFY(question);
    QCOMPARE(question->type(), ZMessageDlg::QuestionDlg);
    QCOMPARE(question->header(), QString("Reset"));
    QCOMPARE(question->message(), QString("Are you sure you want to reset the data sessions volume?"));
    QSignalSpy rewritten(PhoneScreen::list(screen())->model(), &QAbstractItemModel::dataChanged);
    QSignalSpy inserted(PhoneScreen::list(screen())->model(), &QAbstractItemModel::rowsInserted);
    journal.clear();
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    QVERIFY(!question);
    QVERIFY(!dialog());
    QCOMPARE(journal.lines(), QStringList("PacketData::resetTotalBytes"));
    QCOMPARE(rewritten.size() + inserted.size(), 0);
}

void TestDataVolumes::noToTheResetChangesNothing()
{
    open();
    PhoneScreen::chooseRow(screen(), resetRow);
    journal.clear();
    PhoneScreen::press(PhoneKey::Clear);
    QVERIFY(!dialog());
    QCOMPARE(journal.lines(), QStringList());
    call("slotNo"); // with nothing open
}

void TestDataVolumes::aFailedResetLeavesTheListAloneToo()
{
    open();
    script().fail("PacketData::resetTotalBytes", 9);
    PhoneScreen::chooseRow(screen(), resetRow);
    QSignalSpy inserted(PhoneScreen::list(screen())->model(), &QAbstractItemModel::rowsInserted);
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    QVERIFY(!dialog());
    QCOMPARE(inserted.size(), 0);
    QVERIFY(traces->text().contains("TAPI_GPRS_ResetTotalDataBytes failed.9"));
}

void TestDataVolumes::theUpdateMessageMakesANewMeterAndRebuildsTheList()
{
    open();
    const QPointer<PHONE_UI_RecentCallMeter> before = screen()->*exposed(VolumesMeter());
    script().answer("PacketData::sessions", sessions("", "new", "wap"));
    journal.clear();
    tell(update);
    QVERIFY(!before);
    QVERIFY(screen()->*exposed(VolumesMeter()));
    QCOMPARE(journal.lines(), QStringList("PacketData::sessions"));
    QCOMPARE(PhoneScreen::shownRows(screen()), rows("GPRS Data Session 1", "new", "wap"));
}

void TestDataVolumes::theOldMeterGoesBeforeTheNewOneIsMade()
{
    open();
    const PHONE_UI_RecentCallMeter *old = screen()->*exposed(VolumesMeter());
    bool wasFirst = false;
    connect(old, &QObject::destroyed, this,
            [&] { wasFirst = journal.lines().isEmpty() && screen()->*exposed(VolumesMeter()) == old; });
    journal.clear();
    tell(update);
    QVERIFY(wasFirst);
}

void TestDataVolumes::otherMessagesChangeNothing_data()
{
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("no message") << QByteArray();
    QTest::newRow("an empty one") << QByteArray("");
    QTest::newRow("another") << QByteArray("/KAV/phone/RecentCall/Other");
    QTest::newRow("a beginning of it") << update.chopped(1);
    QTest::newRow("more than it") << update + "x";
    QTest::newRow("other case") << update.toLower();
    QTest::newRow("the channel") << channel;
}

void TestDataVolumes::otherMessagesChangeNothing()
{
    QFETCH(const QByteArray, message);
    open();
    const QPointer<PHONE_UI_RecentCallMeter> before = screen()->*exposed(VolumesMeter());
    QSignalSpy inserted(PhoneScreen::list(screen())->model(), &QAbstractItemModel::rowsInserted);
    journal.clear();
    tell(message);
    QVERIFY(before);
    QCOMPARE(journal.lines(), QStringList());
    QCOMPARE(inserted.size(), 0);
}

void TestDataVolumes::aMessageIsComparedUpToItsNul()
{
    open();
    journal.clear();
    tell(update + QByteArray("\0and more", 9));
    QCOMPARE(journal.lines(), QStringList("PacketData::sessions"));
}

void TestDataVolumes::anUpdateWhoseQueryFailsShowsFallbackNames()
{
    open();
    script().fail("PacketData::sessions", 1);
    tell(update);
    QCOMPARE(PhoneScreen::shownRows(screen()),
             rows("GPRS Data Session 1", "GPRS Data Session 2", "GPRS Data Session 3"));
}

void TestDataVolumes::anUpdateLeavesAnOpenDetailAlone()
{
    open();
    const QPointer<DetailView> opened = openDetail(2);
    const QStringList figures = PhoneScreen::rows(opened);
    script().answer("PacketData::sessions", sessions("a", "b", "c"));
    tell(update);
    QVERIFY(opened);
    QVERIFY(opened->isVisible());
    QCOMPARE(PhoneScreen::rows(opened), figures);
    QCOMPARE(PhoneScreen::rows(screen()), rows("a", "b", "c"));
    QSignalSpy inserted(PhoneScreen::list(screen())->model(), &QAbstractItemModel::rowsInserted);
    closeDetail();
    QCOMPARE(inserted.size(), 7);
}

void TestDataVolumes::anUpdateLeavesAnOpenQuestionAlone()
{
    open();
    PhoneScreen::chooseRow(screen(), resetRow);
    const QPointer<ZMessageDlg> question = dialog();
    script().answer("PacketData::sessions", sessions("a", "b", "c"));
    tell(update);
    QVERIFY(question && question->isVisible());
    QCOMPARE(PhoneScreen::rows(screen()), rows("a", "b", "c"));
    journal.clear();
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    QVERIFY(!question);
    QCOMPARE(journal.lines(), QStringList("PacketData::resetTotalBytes"));
}

void TestDataVolumes::noFrameOfAnUpdateIsWithoutItsRows()
{
    open();
    FrameRecorder recorder(screen());
    QTRY_VERIFY_WITH_TIMEOUT(!recorder.frames.isEmpty(), 60'000);
    recorder.frames.clear();
    for (int broadcast = 1; broadcast <= 5; ++broadcast) {
        QCopChannel::send(channel, update);
        QTRY_VERIFY_WITH_TIMEOUT(recorder.frames.size() >= broadcast, 60'000);
    }
    const QImage whole = screen()->grab().toImage();
    for (const QImage &frame : std::as_const(recorder.frames))
        QCOMPARE(frame.convertToFormat(QImage::Format_RGB32), whole.convertToFormat(QImage::Format_RGB32));
}

void TestDataVolumes::noFrameAfterADetailIsWithoutItsRows()
{
    open();
    FrameRecorder recorder(screen());
    QVERIFY(openDetail(2));
    QTRY_VERIFY_WITH_TIMEOUT(!recorder.frames.isEmpty(), 60'000);
    recorder.frames.clear();
    closeDetail();
    QTRY_VERIFY_WITH_TIMEOUT(!recorder.frames.isEmpty(), 60'000);
    const QImage whole = screen()->grab().toImage();
    for (const QImage &frame : std::as_const(recorder.frames))
        QCOMPARE(frame.convertToFormat(QImage::Format_RGB32), whole.convertToFormat(QImage::Format_RGB32));
}

void TestDataVolumes::aBroadcastReachesTheScreenThroughTheEventLoop()
{
    open();
    script().answer("PacketData::sessions", sessions("a", "b", "c"));
    journal.clear();
    QCopChannel::send(channel, update);
    QCOMPARE(journal.lines(), QStringList());
    QTRY_COMPARE_WITH_TIMEOUT(journal.count("PacketData::sessions"), 1, 60'000);
    QCOMPARE(PhoneScreen::rows(screen()), rows("a", "b", "c"));
}

void TestDataVolumes::aBroadcastOnAnotherChannelDoesNot()
{
    open();
    journal.clear();
    QCopChannel witness("/KAV/other");
    QSignalSpy received(&witness, &QCopChannel::received);
    QCopChannel::send("/KAV/other", update);
    QTRY_COMPARE_WITH_TIMEOUT(received.size(), 1, 60'000);
    QCOMPARE(journal.lines(), QStringList());
}

void TestDataVolumes::aBroadcastAfterTheScreenIsGoneReachesNobody()
{
    open();
    QCopChannel::send(channel, update); // on its way while the screen goes
    hosted.reset();
    journal.clear();
    QCopChannel witness(channel);
    QSignalSpy received(&witness, &QCopChannel::received);
    QCopChannel::send(channel, update);
    QTRY_COMPARE_WITH_TIMEOUT(received.size(), 1, 60'000);
    QCOMPARE(journal.lines(), QStringList());
}

// Changes the first session's name, tells so as the phone does, and answers the name.
QString TestDataVolumes::nextBroadcast()
{
    static int number = 0;
    const QByteArray name = "network " + QByteArray::number(++number);
    script().answer("PacketData::sessions", sessions(name.constData(), "", "wap"));
    QCopChannel::send(channel, update);
    QCoreApplication::processEvents();
    return QString::fromLatin1(name);
}

// What a person does between two broadcasts: a detail that stays open over some, one that goes at once, and the
// question before the reset, with one broadcast while it is open.
void TestDataVolumes::select(int step)
{
    switch (step % 10) {
    case 0:
        openDetail(1 + step / 10 % 3);
        break;
    case 4:
        closeDetail();
        break;
    case 5:
        openDetail(totalRow);
        closeDetail();
        break;
    case 7:
        PhoneScreen::chooseRow(screen(), resetRow);
        break;
    case 8:
        PhoneScreen::press(step / 10 % 2 == 0 ? PhoneKey::LeftSoftkey : PhoneKey::RightSoftkey);
        break;
    }
}

void TestDataVolumes::everyOneOfTenThousandBroadcastsArrivesWithSelectionsInBetween()
{
    const int broadcasts = 10'000 / sampleStride(5);
    const TraceSink quiet;
    open();
    journal.setMuted(true);
    int asked = 0;
    script().whenCalled("PacketData::sessions", [&] { ++asked; });
    for (int i = 0; i < broadcasts; ++i) {
        const int askedBefore = asked;
        const QString name = nextBroadcast();
        QCOMPARE(asked, askedBefore + 1);
        QCOMPARE(PhoneScreen::rows(screen()), rows(name, "GPRS Data Session 2", "wap"));
        select(i);
        QCOMPARE(detail() != nullptr, i % 10 < 4);
        QCOMPARE(dialog() != nullptr, i % 10 == 7);
    }
    QCOMPARE(asked, broadcasts + broadcasts / 10); // and once for each session's detail
}

void TestDataVolumes::destroyingTracesClosesThenDeletes()
{
    open();
    const QPointer<View> opened = screen();
    traces->take();
    hosted->destroy();
    QVERIFY(!opened);
    QCOMPARE(traces->text().right(closeTrace("destroy_dataVolume", 282).size()),
             closeTrace("destroy_dataVolume", 282));
}

void TestDataVolumes::destroyingTakesMeterQuestionAndDetailAlong()
{
    open();
    const QPointer<DetailView> opened = openDetail(2);
    const std::unique_ptr<PHONE_UI_RecentCallMeter> left(opened->*exposed(DetailMeter()));
    auto *item = static_cast<ZSettingItem *>(PhoneScreen::list(screen())->item(resetRow));
    QMetaObject::invokeMethod(screen(), "slotSelectedItem", Q_ARG(ZSettingItem *, item));
    const QPointer<ZMessageDlg> question = dialog();
    const QPointer<PHONE_UI_RecentCallMeter> meter(screen()->*exposed(VolumesMeter()));
    QVERIFY(question && meter);
    hosted->destroy();
    QVERIFY(!opened);
    QVERIFY(!question);
    QVERIFY(!meter);
}

void TestDataVolumes::destroyingNothingDoesNothing()
{
    PluginLibrary library;
    library.function<void(View *)>("destroy_dataVolume")(nullptr);
    QCOMPARE(traces->text(), QString());
}

void TestDataVolumes::failedQueriesShowFallbackNames()
{
    script().failAll(-1);
    open();
    QCOMPARE(PhoneScreen::rows(screen()),
             rows("GPRS Data Session 1", "GPRS Data Session 2", "GPRS Data Session 3"));
    QVERIFY(openDetail(1));
    QCOMPARE(PhoneScreen::rows(detail()).mid(2), QStringList({"Sent|0 B", "Received|0 B", "Sum|0 B"}));
    closeDetail();
    QVERIFY(openDetail(totalRow));
    QCOMPARE(PhoneScreen::rows(detail()).mid(2), QStringList({"Sent|0 B", "Received|0 B", "Sum|0 B"}));
}

void TestDataVolumes::aQueryThatFailsAloneTakesOnlyItsOwnFiguresAway()
{
    const QStringList zeroes = {"Sent|0 B", "Received|0 B", "Sum|0 B"};
    open();
    script().fail("PacketData::totalBytes", 2);
    QVERIFY(openDetail(totalRow));
    QCOMPARE(PhoneScreen::rows(detail()).mid(2), zeroes);
    closeDetail();
    QVERIFY(openDetail(1));
    QCOMPARE(PhoneScreen::rows(detail()).mid(2), QStringList({"Sent|10 B", "Received|20 B", "Sum|30 B"}));
    closeDetail();
    script().succeed("PacketData::totalBytes");
    script().fail("PacketData::sessions", 2);
    QVERIFY(openDetail(1));
    QCOMPARE(PhoneScreen::rows(detail()).at(1), QString("internet|")); // the name that the list still has
    QCOMPARE(PhoneScreen::rows(detail()).mid(2), zeroes);
    closeDetail();
    QVERIFY(openDetail(totalRow));
    QCOMPARE(PhoneScreen::rows(detail()).mid(2), QStringList({"Sent|111 B", "Received|222 B", "Sum|777 B"}));
}

// --- the detail screen

void TestDataVolumes::aDetailHasItsHeadingsAndFigures_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QStringList>("shown");
    const QString current = QStringLiteral("Current Data Session|");
    QTest::newRow("first session") << 1
                                   << QStringList(
                                          {current, "internet|", "Sent|10 B", "Received|20 B", "Sum|30 B"});
    QTest::newRow("second session") << 2
                                    << QStringList({current, "mms|", "Sent|300 B", "Received|400 B", "Sum|700 B"});
    QTest::newRow("third session, whose sum wraps")
        << 3 << QStringList({current, "wap|", "Sent|4000000000 B", "Received|400000000 B", "Sum|105032704 B"});
    QTest::newRow("all sessions, whose sum is the platform's")
        << totalRow
        << QStringList(
               {"All Data Sessions|", "Total Data Transferred|", "Sent|111 B", "Received|222 B", "Sum|777 B"});
}

void TestDataVolumes::aDetailHasItsHeadingsAndFigures()
{
    QFETCH(const int, row);
    QFETCH(const QStringList, shown);
    open();
    journal.clear();
    QVERIFY(openDetail(row));
    QCOMPARE(detail()->mainWidgetTitle(), QString("Data Volume"));
    QCOMPARE(PhoneScreen::shownRows(detail()), shown);
    QCOMPARE(journal.lines(), QStringList(row == totalRow ? "PacketData::totalBytes" : "PacketData::sessions"));
    QVERIFY(PhoneScreen::list(detail())->item(0)->isSeparator());
    QVERIFY(PhoneScreen::list(detail())->item(1)->isSeparator());
}

void TestDataVolumes::aDetailOfNoSlotHasNoFiguresAndStillANotice()
{
    for (const int slot : {0, 4, 6, -1, INT_MAX, INT_MIN}) {
        DetailView view(QStringLiteral("y"), QStringLiteral("z"), slot, nullptr, nullptr);
        view.show();
        QCOMPARE(journal.take(), QStringList("PacketData::sessions"));
        QCOMPARE(PhoneScreen::rows(&view),
                 QStringList({"Current Data Session|", "z|", "Sent|", "Received|", "Sum|"}));
        QCOMPARE(view.getInstructTextY(), QString("y"));
        QCOMPARE(view.getIndex(), slot);
        for (const QString &text :
             {view.*exposed(SentText()), view.*exposed(ReceivedText()), view.*exposed(SumText())}) {
            QVERIFY(text.isEmpty());
            QVERIFY(!text.isNull());
        }
        for (const int row : {-1, 5, 6, 1'000'000, -1'000'000})
            QVERIFY((view.*exposed(DetailItemTitle()))(row).isNull());
        for (const int row : {2, 3, 4}) {
            PhoneScreen::chooseRow(&view, row);
            const QPointer<ZMessageDlg> notice = view.*exposed(DetailDlg());
            QVERIFY(notice);
            QCOMPARE(notice->message(), QString());
            QVERIFY(!notice->message().isNull());
            QCOMPARE(notice->header(), QString("Data Volume"));
            PhoneScreen::press(PhoneKey::LeftSoftkey);
            QVERIFY(!notice);
        }
        QCOMPARE(journal.lines(), QStringList());
        deleteLeftMeter(view.*exposed(DetailMeter()));
    }
}

void TestDataVolumes::aDetailsHeadingsLieWhereTheyShould()
{
    open();
    QVERIFY(openDetail(2));
    const QList<ZLabel *> labels = detail()->getContentWidget(true)->findChildren<ZLabel *>();
    QCOMPARE(labels.size(), 2);
    QCOMPARE(labels.at(0)->text(), QString("Current Data Session"));
    QCOMPARE(labels.at(0)->geometry(), QRect(0, 10, 240, 20));
    QCOMPARE(labels.at(1)->text(), QString("mms"));
    QCOMPARE(labels.at(1)->geometry(), QRect(0, 40, 240, 20));
    const QWidget *content = detail()->getContentWidget(true);
    QCOMPARE(PhoneScreen::list(detail())->geometry(), QRect(0, 0, content->width(), content->height()));
}

// The labels share the content area with the list; the list's own headings are what a person reads.
void TestDataVolumes::theListOfADetailCoversItsHeadings()
{
    open();
    QVERIFY(openDetail(2));
    QWidget *content = detail()->getContentWidget(true);
    ZListBox *list = PhoneScreen::list(detail());
    const QImage shown = content->grab().toImage();
    QCOMPARE(shown, list->grab().toImage());
    const QList<ZLabel *> labels = content->findChildren<ZLabel *>();
    for (ZLabel *label : labels)
        label->hide();
    QCOMPARE(content->grab().toImage(), shown);
    list->hide();
    QVERIFY(content->grab().toImage() != shown);
}

void TestDataVolumes::aDetailLeavesItsMeterBehind()
{
    auto view = std::make_unique<DetailView>(QString(), QStringLiteral("z"), 1, nullptr, nullptr);
    const QPointer<PHONE_UI_RecentCallMeter> left(view.get()->*exposed(DetailMeter()));
    view.reset();
    QVERIFY(left);
    QCOMPARE(left->getRDV_Session1_Sent(), QString("10 B"));
    deleteLeftMeter(left);
}

void TestDataVolumes::choosingAFigureTellsItAsTheMeterHasIt_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("figure");
    QTest::addColumn<QString>("message");
    QTest::newRow("sent of the first") << 1 << 2 << "Your sent data volume is 10 B";
    QTest::newRow("received of the first") << 1 << 3 << "Your received data volume is 20 B";
    QTest::newRow("sum of the first") << 1 << 4 << "Your total data transfer volume is 30 B";
    QTest::newRow("sent of the second") << 2 << 2 << "Your sent data volume is 300 B";
    QTest::newRow("received of the second") << 2 << 3 << "Your received data volume is 400 B";
    QTest::newRow("sum of the second") << 2 << 4 << "Your total data transfer volume is 700 B";
    QTest::newRow("sent of the third") << 3 << 2 << "Your sent data volume is 4000000000 B";
    QTest::newRow("received of the third") << 3 << 3 << "Your received data volume is 400000000 B";
    QTest::newRow("sum of the third") << 3 << 4 << "Your total data transfer volume is 105032704 B";
    QTest::newRow("sent of all") << totalRow << 2 << "Your sent data volume is 111 B";
    QTest::newRow("received of all") << totalRow << 3 << "Your received data volume is 222 B";
    QTest::newRow("sum of all") << totalRow << 4 << "Your total data transfer volume is 777 B";
}

void TestDataVolumes::choosingAFigureTellsItAsTheMeterHasIt()
{
    QFETCH(const int, row);
    QFETCH(const int, figure);
    QFETCH(const QString, message);
    open();
    QVERIFY(openDetail(row));
    PhoneScreen::chooseRow(detail(), figure);
    const QPointer<ZMessageDlg> notice = detail()->*exposed(DetailDlg());
    QVERIFY(notice);
    QCOMPARE(notice->type(), ZMessageDlg::InformationDlg);
    QCOMPARE(notice->header(), QString("Data Volume"));
    QCOMPARE(notice->message(), message);
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    QVERIFY(!notice);
    QVERIFY(!(detail()->*exposed(DetailDlg())));
    // The meter is asked again for the notice: what it has by then is told.
    script().answer("PacketData::sessions", DataSessions());
    script().answer("PacketData::totalBytes", quint32(0), quint32(0), quint32(0));
    PHONE_UI_RecentCallMeter *meter = detail()->*exposed(DetailMeter());
    meter->getRDV();
    meter->getADV();
    PhoneScreen::press(PhoneKey::Select);
    QVERIFY((detail()->*exposed(DetailDlg()))->message().endsWith(QLatin1String(" 0 B")));
}

void TestDataVolumes::aChosenSeparatorOpensAnEmptyNotice()
{
    open();
    QVERIFY(openDetail(1));
    for (const int row : {0, 1}) {
        auto *item = static_cast<ZSettingItem *>(PhoneScreen::list(detail())->item(row));
        QMetaObject::invokeMethod(detail(), "slotSelectedItem", Q_ARG(ZSettingItem *, item));
        ZMessageDlg *notice = detail()->*exposed(DetailDlg());
        QVERIFY(notice);
        QCOMPARE(notice->header(), QString("Data Volume"));
        QCOMPARE(notice->message(), QString());
        QMetaObject::invokeMethod(detail(), "slotOk");
        QVERIFY(!(detail()->*exposed(DetailDlg())));
    }
}

void TestDataVolumes::leavingADetailOnlyEmitsCloseWgt()
{
    DetailView view(QString(), QStringLiteral("z"), 1, nullptr, nullptr);
    view.show();
    QSignalSpy closed(&view, &DetailView::closeWgt);
    PhoneScreen::press(PhoneKey::RightSoftkey);
    QCOMPARE(closed.size(), 1);
    PhoneScreen::press(PhoneKey::Clear);
    QCOMPARE(closed.size(), 2);
    QVERIFY(view.isVisible());
    deleteLeftMeter(view.*exposed(DetailMeter()));
}

void TestDataVolumes::aDetailKeepsItsTextsAndTakesTheFocus()
{
    open();
    QVERIFY(openDetail(1));
    QCOMPARE(detail()->className(), "PHONE_UI_RecentCallDataVolumesDetailView");
    QCOMPARE(detail()->focusWidget(), PhoneScreen::list(detail()));
    QCOMPARE(PhoneScreen::list(detail())->currentItem(), 2);
}

void TestDataVolumes::theDetailsLeftKeyIsDisabled()
{
    open();
    QVERIFY(openDetail(1));
    auto *bar = static_cast<ZSoftKey *>(detail()->cstWidget());
    QVERIFY(!bar->isButtonEnabled(ZSoftKey::LeftKey));
    QVERIFY(bar->isButtonEnabled(ZSoftKey::RightKey));
    QCOMPARE(bar->text(ZSoftKey::LeftKey), QString());
    QCOMPARE(bar->text(ZSoftKey::RightKey), QString("Back"));
}

void TestDataVolumes::figuresAreFoundByTheirEnglishWord()
{
    RecordingTranslator translator;
    translator.add(QStringLiteral("TXT_RID_SETTING_A_SENT"), QStringLiteral("Received")); // misleading on purpose
    translator.add(QStringLiteral("FMT_RID_INSTRUCTIONALTXT_YOUR_SENT_DATA_VOLUME_IS_1"),
                   QString::fromUtf8("Envoyé: %1"));
    open();
    QVERIFY(openDetail(1));
    QCOMPARE(PhoneScreen::rows(detail()).at(2), QString("Received|10 B"));
    PhoneScreen::chooseRow(detail(), 2);
    QCOMPARE((detail()->*exposed(DetailDlg()))->message(), QString::fromUtf8("Envoyé: 10 B"));
}

KAV_TEST_GROUP(TestDataVolumes, QApplication);
#include "tst_data_volumes.moc"
