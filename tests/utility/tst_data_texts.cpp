// The texts of the screens of the data sessions in the application's catalogue.
#include "utility/PHONE_UI_RecentCallDataTimesView.h"
#include "utility/PHONE_UI_RecentCallDataVolumesDetailView.h"
#include "utility/PHONE_UI_RecentCallDataVolumesView.h"

#include "support/PhoneScreen.h"
#include "support/PhoneTest.h"
#include "support/PluginLibrary.h"
#include "support/PrivateAccess.h"
#include "support/RecordingTranslator.h"

#include "toolkit/ZKbMainWidget.h"
#include "toolkit/ZMessageDlg.h"
#include "utility/PHONE_UI_RecentCallMeter.h"

#include <algorithm>

using ZKeys::PhoneKey;
using DetailView = PHONE_UI_RecentCallDataVolumesDetailView;
using DataTimes = HostedScreen<PHONE_UI_RecentCallDataTimesView>;
using DataVolumes = HostedScreen<PHONE_UI_RecentCallDataVolumesView>;

KAV_EXPOSE(OpenDetail, &PHONE_UI_RecentCallDataVolumesView::detailView);
KAV_EXPOSE(DetailMeter, &DetailView::meter);

namespace {

struct Text {
    const char *context;
    const char *key;
    const char *english;
};

#define SCREEN "PHONE_UI_RecentCallDataTimesView"
// Every text that Data Times asks the catalogue for, with sessions that have no access point name.
constexpr Text timesTexts[] = {
    {SCREEN, "TXT_RID_HEADER_DATA_TIMES", "Data Times"},
    {SCREEN, "TXT_RID_SOFTKEY_BACK", "Back"},
    {SCREEN, "", ""},
    {"QObject", "TXT_RID_SEPARATOR_RECENT_DATA_SESSION", "Current Data Session"},
    {"QObject", "TXT_RID_SETTING_A_GPRS_DATA_SESSION_1", "GPRS Data Session 1"},
    {"QObject", "TXT_RID_SETTING_A_GPRS_DATA_SESSION_2", "GPRS Data Session 2"},
    {"QObject", "TXT_RID_SETTING_A_GPRS_DATA_SESSION_3", "GPRS Data Session 3"},
    {"QObject", "TXT_RID_SEPARATOR_ALL_DATA_SESSIONS", "All Data Sessions"},
    {"QObject", "TXT_RID_SETTING_A_TOTAL_TIME", "Total Time"},
    {"QObject", "TXT_RID_SETTING_A_RESET_ALL_DATA_SESSIONS", "Reset All Data Sessions"},
    {SCREEN, "FMT_RID_INSTRUCTIONALTXT_THE_CURRENT_2_DATA_SESSION_TIME_IS_1",
     "The current Data Session time for %2 is %1."},
    {SCREEN, "FMT_RID_INSTRUCTIONALTXT_THE_TOTAL_TIME_FOR_ALL_YOUR_GPRS_DATA_SESSIONS_IS_1",
     "The total time for all your data sessions is %1."},
    {SCREEN, "TXT_RID_HEADER_RESET", "Reset"},
    {SCREEN, "TXT_RID_INSTRUCTIONALTXT_ARE_YOU_SURE_YOU_WANT_TO_RESET_DATA_SESSIONS_TIMER",
     "Are you sure you want to reset the data sessions timer?"},
};
#undef SCREEN

#define SCREEN "PHONE_UI_RecentCallDataVolumesView"
#define DETAIL "PHONE_UI_RecentCallDataVolumesDetailView"
// The same of Data Volumes and its detail screen.
constexpr Text volumesTexts[] = {
    {SCREEN, "TXT_RID_HEADER_DATA_VOLUMES", "Data Volumes"},
    {SCREEN, "TXT_RID_SOFTKEY_BACK", "Back"},
    {SCREEN, "", ""},
    {"QObject", "TXT_RID_SEPARATOR_RECENT_DATA_SESSION", "Current Data Session"},
    {"QObject", "TXT_RID_SEPARATOR_GPRS_DATA_SESSION_1", "GPRS Data Session 1"},
    {"QObject", "TXT_RID_SEPARATOR_GPRS_DATA_SESSION_2", "GPRS Data Session 2"},
    {"QObject", "TXT_RID_SEPARATOR_GPRS_DATA_SESSION_3", "GPRS Data Session 3"},
    {"QObject", "TXT_RID_SEPARATOR_ALL_DATA_SESSIONS", "All Data Sessions"},
    {"QObject", "TXT_RID_SETTING_A_TOTAL_DATA_TRANSFERRED", "Total Data Transferred"},
    {"QObject", "TXT_RID_SETTING_A_RESET_ALL_DATA_SESSIONS", "Reset All Data Sessions"},
    {SCREEN, "TXT_RID_HEADER_RESET", "Reset"},
    {SCREEN, "TXT_RID_INSTRUCTIONALTXT_ARE_YOU_SURE_YOU_WANT_TO_RESET_DATA_SESSIONS_VOLUME",
     "Are you sure you want to reset the data sessions volume?"},
    {DETAIL, "TXT_RID_HEADER_DATA_VOLUME", "Data Volume"},
    {DETAIL, "TXT_RID_SOFTKEY_BACK", "Back"},
    {DETAIL, "", ""},
    {"QObject", "TXT_RID_SETTING_A_SENT", "Sent"},
    {"QObject", "TXT_RID_SETTING_A_RECEIVED", "Received"},
    {"QObject", "TXT_RID_SETTING_A_SUM", "Sum"},
    {DETAIL, "FMT_RID_INSTRUCTIONALTXT_YOUR_SENT_DATA_VOLUME_IS_1", "Your sent data volume is %1"},
    {DETAIL, "FMT_RID_INSTRUCTIONALTXT_YOUR_RECEIVED_DATA_VOLUME_IS_1", "Your received data volume is %1"},
    {DETAIL, "FMT_RID_INSTRUCTIONALTXT_YOUR_TOTAL_DATA_TRANSFER_VOLUME_IS_1",
     "Your total data transfer volume is %1"},
};
#undef DETAIL
#undef SCREEN

template <std::size_t Size>
QStringList requests(const Text (&texts)[Size])
{
    QStringList lines;
    for (const Text &text : texts)
        lines.append(QStringLiteral("%1, %2, %3").arg(text.context, text.key, text.english));
    lines.sort();
    return lines;
}

// What the catalogue was asked for, each text once; the dialogs' own softkeys are the toolkit's.
QStringList asked(RecordingTranslator &translator)
{
    QStringList all = lines(translator.take());
    all.removeIf([](const QString &line) { return line.startsWith(QLatin1String("ZMessageDlg, ")); });
    all.sort();
    all.removeDuplicates();
    return all;
}

// What a translator might hand in: beyond Latin-1, and with the figures in the other order.
QString translation(const Text &text)
{
    const QString key = QString::fromLatin1(text.key);
    const bool hasName = key.contains(QLatin1String("_2_"));
    const QString figures = key.startsWith(QLatin1String("FMT_")) ? QStringLiteral("%1 ") : QString();
    return figures + (hasName ? QStringLiteral("%2 ") : QString()) + QString::fromUtf8("Ωé") + key;
}

// The end of a translation is there whatever its figures have become.
bool isShown(const QStringList &seen, const Text &text)
{
    const QString end = QString::fromUtf8("Ωé") + QLatin1String(text.key);
    return std::any_of(seen.begin(), seen.end(), [&](const QString &line) { return line.endsWith(end); });
}

} // namespace

class TestDataTexts : public PhoneTest
{
    Q_OBJECT

private slots:
    void init();
    void dataTimesAsksForExactlyTheseTexts();
    void dataTimesShowsEveryTranslationAndNoEnglish();
    void dataVolumesAndItsDetailAskForExactlyTheseTexts();
    void dataVolumesAndItsDetailShowEveryTranslationAndNoEnglish();
    void theNoticeTakesItsTimeAndNameInAnyOrder();

private:
    QStringList seen; // every text that a person came by
    void lookAt(const ZKbMainWidget *screen);
    void choose(const ZKbMainWidget *screen, int row);
    void walkThroughDataTimes();
    void walkThroughDataVolumes();
    template <std::size_t Size>
    void compareWithTranslations(const Text (&texts)[Size]);
};

void TestDataTexts::init()
{
    PhoneTest::init();
    seen.clear();
}

void TestDataTexts::lookAt(const ZKbMainWidget *screen)
{
    seen.append(screen->mainWidgetTitle());
    seen.append(PhoneScreen::softkey(screen, ZSoftKey::LeftKey));
    seen.append(PhoneScreen::softkey(screen, ZSoftKey::RightKey));
    const QStringList rows = PhoneScreen::shownRows(screen);
    for (const QString &row : rows)
        seen.append(row.section(QLatin1Char('|'), 0, 0));
}

// Chooses a row, reads the dialog that opens, and answers it.
void TestDataTexts::choose(const ZKbMainWidget *screen, int row)
{
    PhoneScreen::chooseRow(screen, row);
    const ZMessageDlg *dialog = PhoneScreen::shownDialog();
    QVERIFY(dialog);
    seen.append(dialog->header());
    seen.append(dialog->message());
    PhoneScreen::press(PhoneKey::LeftSoftkey);
}

void TestDataTexts::walkThroughDataTimes()
{
    const DataTimes screen("dataTime");
    screen->show();
    lookAt(screen.get());
    for (const int row : {1, 2, 3, 5, 6})
        choose(screen.get(), row);
}

void TestDataTexts::walkThroughDataVolumes()
{
    const DataVolumes screen("dataVolume");
    screen->show();
    lookAt(screen.get());
    choose(screen.get(), 6);
    for (const int row : {1, 2, 3, 5}) {
        PhoneScreen::chooseRow(screen.get(), row);
        const DetailView *detail = screen.get()->*exposed(OpenDetail());
        const std::unique_ptr<PHONE_UI_RecentCallMeter> left(detail->*exposed(DetailMeter()));
        lookAt(detail);
        for (const int figure : {2, 3, 4})
            choose(detail, figure);
        PhoneScreen::press(PhoneKey::RightSoftkey);
    }
}

template <std::size_t Size>
void TestDataTexts::compareWithTranslations(const Text (&texts)[Size])
{
    for (const Text &text : texts) {
        QVERIFY2(isShown(seen, text), text.key);
        QVERIFY2(!*text.english || !seen.contains(QLatin1String(text.english)), text.english);
    }
}

void TestDataTexts::dataTimesAsksForExactlyTheseTexts()
{
    RecordingTranslator translator;
    walkThroughDataTimes();
    COMPARE_LINES(asked(translator), requests(timesTexts));
}

void TestDataTexts::dataTimesShowsEveryTranslationAndNoEnglish()
{
    RecordingTranslator translator;
    for (const Text &text : timesTexts)
        translator.add(QString::fromLatin1(text.key), translation(text));
    walkThroughDataTimes();
    compareWithTranslations(timesTexts);
}

void TestDataTexts::dataVolumesAndItsDetailAskForExactlyTheseTexts()
{
    RecordingTranslator translator;
    walkThroughDataVolumes();
    COMPARE_LINES(asked(translator), requests(volumesTexts));
}

void TestDataTexts::dataVolumesAndItsDetailShowEveryTranslationAndNoEnglish()
{
    RecordingTranslator translator;
    for (const Text &text : volumesTexts)
        translator.add(QString::fromLatin1(text.key), translation(text));
    walkThroughDataVolumes();
    compareWithTranslations(volumesTexts);
}

void TestDataTexts::theNoticeTakesItsTimeAndNameInAnyOrder()
{
    handset::DataSessions sessions;
    sessions.count = 1;
    sessions.records[0] = {1, 0, 0, {1, 2, 3}, "internet"};
    script().answer("PacketData::sessions", sessions);
    for (const char *order : {"%1 %2", "%2 %1"}) {
        RecordingTranslator translator;
        translator.add(QStringLiteral("FMT_RID_INSTRUCTIONALTXT_THE_CURRENT_2_DATA_SESSION_TIME_IS_1"),
                       QString::fromLatin1(order));
        const DataTimes screen("dataTime");
        screen->show();
        seen.clear();
        choose(screen.get(), 1);
        QCOMPARE(seen.at(1), QString::fromLatin1(order).arg("01:02:03", "internet"));
    }
}

KAV_TEST_GROUP(TestDataTexts, QApplication);
#include "tst_data_texts.moc"
