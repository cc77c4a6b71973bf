// The texts of the Call Times screen in the application's catalogue.
#include "utility/PHONE_UI_RecentCallTimesView.h"

#include "support/PhoneScreen.h"
#include "support/PhoneTest.h"
#include "support/PluginLibrary.h"
#include "support/RecordingTranslator.h"

#include "toolkit/ZMessageDlg.h"

#include <algorithm>
#include <iterator>

using ZKeys::PhoneKey;
using CallTimes = HostedScreen<PHONE_UI_RecentCallTimesView>;

namespace {

enum Place { Title, RightSoftkey, LeftSoftkey, RowTitle, QuestionHeader, Question, Notice };

struct Text {
    Place place;
    int row; // of a row title or a question
    const char *context;
    const char *key;
    const char *english;
};

#define SCREEN "PHONE_UI_RecentCallTimesView"
// Every text that the screen asks the catalogue for.
constexpr Text texts[] = {
    {Title, 0, SCREEN, "TXT_RID_HEADER_CALL_TIMES", "Call Times"},
    {RightSoftkey, 0, SCREEN, "TXT_RID_SOFTKEY_BACK", "Back"},
    {LeftSoftkey, 0, SCREEN, "", ""},
    {RowTitle, 0, "QObject", "TXT_RID_SETTING_A_LAST_CALL", "Last Call"},
    {RowTitle, 1, "QObject", "TXT_RID_SETTING_A_DIALED_CALLS", "Dialed Calls"},
    {RowTitle, 2, "QObject", "TXT_RID_SETTING_A_ANSWERED_CALLS", "Answered Calls"},
    {RowTitle, 3, "QObject", "TXT_RID_SETTING_A_CIRCUIT_SWITCH_DATA_CALLS", "Data Calls"},
    {RowTitle, 4, "QObject", "TXT_RID_SETTING_A_ALL_CALLS", "All Calls"},
    {RowTitle, 5, "QObject", "TXT_RID_SETTING_A_LIFETIME_CALLS", "Lifetime Calls"},
    {QuestionHeader, 1, SCREEN, "TXT_RID_HEADER_RESET_TIMER", "Reset Timer"},
    {Question, 1, SCREEN, "TXT_RID_INSTRUCTIONALTXT_RESET_DIALED_CALLS_TIMER",
     "Would you like to reset the Dialed Calls timer?"},
    {Question, 2, SCREEN, "TXT_RID_INSTRUCTIONALTXT_RESET_ANSWERED_CALLS_TIMER",
     "Would you like to reset the Answered Calls timer?"},
    {Question, 3, SCREEN, "TXT_RID_INSTRUCTIONALTXT_RESET_CIRCUIT_SWITCHING_DATA_CALLS_TIMER",
     "Would you like to reset the Circuit Switching Data Calls timer?"},
    {Question, 4, SCREEN, "TXT_RID_INSTRUCTIONALTXT_RESET_ALL_CALLS_TIMER",
     "Would you like to reset the All Calls timer?"},
    {Notice, 3, SCREEN, "TXT_RID_INSTRUCTIONALTXT_CURRENT_REQUEST_CANNOT_BE_COMPLETED_WHILE_YOU_ARE_IN_CALLING",
     "Current request cannot be completed, while you are in calling. "},
};
static_assert(std::size(texts) == 15);
#undef SCREEN

// What translators into other languages hand in.
struct Sample {
    const char *name;
    const char16_t *text;
};
constexpr Sample samples[] = {
    {"accented Latin-1", u"Dur\u00e9es \u00e0 z\u00e9ro, \u00f1 \u00df \u00ff"},
    {"Latin beyond Latin-1", u"Czasy po\u0142\u0105cze\u0144"},
    {"Greek", u"\u03a7\u03c1\u03cc\u03bd\u03bf\u03b9"},
    {"Cyrillic", u"\u0412\u0440\u0435\u043c\u044f"},
    {"Arabic", u"\u0645\u062f\u0629 \u0627\u0644\u0645\u0643\u0627\u0644\u0645\u0629"},
    {"Chinese", u"\u901a\u8bdd\u65f6\u95f4"},
    {"characters beyond 16 bits", u"\U0001F4DE \U00020000"},
    {"markup, percent and ampersand", u"<b>50 %1</b> & more"},
    {"blanks around", u"  Times  "},
    {"nothing", u""},
};

} // namespace

class TestTranslations : public PhoneTest
{
    Q_OBJECT

private slots:
    void exactlyTheseTextsAreAskedFor();
    void withoutACatalogueTheEnglishDefaultIsShown_data();
    void withoutACatalogueTheEnglishDefaultIsShown();
    void aMissingEntryShowsTheEnglishDefault_data();
    void aMissingEntryShowsTheEnglishDefault();
    void aTranslationIsShownAsItIs_data();
    void aTranslationIsShownAsItIs();
    void entriesOfOtherTextsLeaveATextAlone();
    void theRefusalHasNoHeaderToTranslate();

private:
    QString shown(const Text &text);
};

// The text as a person sees it on a fresh screen, or on the dialogs that it takes.
QString TestTranslations::shown(const Text &text)
{
    script().answer("DataCalls::callStatus", quint8{1});
    const CallTimes screen("callTime");
    screen->show();
    switch (text.place) {
    case Title:
        return screen->mainWidgetTitle();
    case RightSoftkey:
        return PhoneScreen::softkey(screen.get(), ZSoftKey::RightKey);
    case LeftSoftkey:
        return PhoneScreen::softkey(screen.get(), ZSoftKey::LeftKey);
    case RowTitle:
        return PhoneScreen::shownRows(screen.get()).value(text.row).section(QLatin1Char('|'), 0, 0);
    case QuestionHeader:
        PhoneScreen::chooseRow(screen.get(), text.row);
        return PhoneScreen::shownDialog()->header();
    case Question:
        PhoneScreen::chooseRow(screen.get(), text.row);
        return PhoneScreen::shownDialog()->message();
    case Notice:
        PhoneScreen::chooseRow(screen.get(), text.row);
        PhoneScreen::press(PhoneKey::LeftSoftkey);
        return PhoneScreen::shownDialog()->message();
    }
    return QString();
}

void TestTranslations::exactlyTheseTextsAreAskedFor()
{
    RecordingTranslator translator;
    for (const Text &text : texts)
        shown(text);
    QStringList asked = lines(translator.take());
    // The dialogs' own softkeys are the toolkit's.
    asked.removeIf([](const QString &line) { return line.startsWith(QLatin1String("ZMessageDlg, ")); });
    asked.sort();
    asked.removeDuplicates();
    QStringList expected;
    for (const Text &text : texts)
        expected.append(QStringLiteral("%1, %2, %3").arg(text.context, text.key, text.english));
    expected.sort();
    COMPARE_LINES(asked, expected);
}

void TestTranslations::withoutACatalogueTheEnglishDefaultIsShown_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < int(std::size(texts)); ++i)
        QTest::newRow(*texts[i].key ? texts[i].key : "the left softkey") << i;
}

void TestTranslations::withoutACatalogueTheEnglishDefaultIsShown()
{
    QFETCH(const int, index);
    QCOMPARE(shown(texts[index]), QString(texts[index].english));
}

void TestTranslations::aMissingEntryShowsTheEnglishDefault_data()
{
    withoutACatalogueTheEnglishDefaultIsShown_data();
}

void TestTranslations::aMissingEntryShowsTheEnglishDefault()
{
    QFETCH(const int, index);
    const RecordingTranslator empty;
    QCOMPARE(shown(texts[index]), QString(texts[index].english));
}

void TestTranslations::aTranslationIsShownAsItIs_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("translation");
    for (int i = 0; i < int(std::size(texts)); ++i) {
        for (const Sample &sample : samples)
            QTest::addRow("%s in %s", *texts[i].key ? texts[i].key : "the left softkey", sample.name)
                << i << QString::fromUtf16(sample.text);
    }
}

void TestTranslations::aTranslationIsShownAsItIs()
{
    QFETCH(const int, index);
    QFETCH(const QString, translation);
    RecordingTranslator translator;
    translator.add(texts[index].key, translation);
    QCOMPARE(shown(texts[index]), translation);
}

void TestTranslations::entriesOfOtherTextsLeaveATextAlone()
{
    for (const Text &text : texts) {
        RecordingTranslator translator;
        for (const Text &other : texts) {
            if (&other != &text)
                translator.add(other.key, QStringLiteral("other"));
        }
        QCOMPARE(shown(text), QString(text.english));
    }
}

void TestTranslations::theRefusalHasNoHeaderToTranslate()
{
    RecordingTranslator translator;
    for (const Text &text : texts)
        translator.add(text.key, QStringLiteral("translated"));
    script().answer("DataCalls::callStatus", quint8{1});
    const CallTimes screen("callTime");
    screen->show();
    PhoneScreen::chooseRow(screen.get(), 3);
    PhoneScreen::press(PhoneKey::LeftSoftkey);
    QCOMPARE(PhoneScreen::shownDialog()->header(), QString());
    QCOMPARE(PhoneScreen::shownDialog()->message(), QString("translated"));
}

KAV_TEST_GROUP(TestTranslations, QApplication);
#include "tst_translations.moc"
