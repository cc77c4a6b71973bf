// Thousands of random keys on the Call Times screen, over a handset that answers at random, beside a model that
// says what a person must see.
#include "utility/PHONE_UI_RecentCallTimesView.h"

#include "support/PhoneScreen.h"
#include "support/PhoneTest.h"
#include "support/PluginLibrary.h"

#include "toolkit/ZListBox.h"
#include "toolkit/ZMessageDlg.h"

#include <QtCore/QRandomGenerator>
#include <QtTest/QSignalSpy>

#include <array>

using handset::CallTime;
using ZKeys::PhoneKey;
using CallTimes = HostedScreen<PHONE_UI_RecentCallTimesView>;

namespace {

constexpr int keyCount = 6000;
constexpr int rowCount = 6;
constexpr int dataRow = 3;
constexpr int allRow = 4;

constexpr PhoneKey keys[] = {PhoneKey::Up,          PhoneKey::Down,         PhoneKey::Select,
                             PhoneKey::LeftSoftkey, PhoneKey::RightSoftkey, PhoneKey::Clear};

// By row; null for the data calls, whose figure is a number of seconds.
constexpr const char *queries[rowCount] = {"CallLog::lastCallTime",      "CallLog::dialedCallsTime",
                                           "CallLog::answeredCallsTime", nullptr,
                                           "CallService::totalCallTime", "CallLog::lifetimeCallsTime"};
constexpr const char *resets[rowCount] = {nullptr,
                                          "CallLog::resetDialedCallsTime",
                                          "CallLog::resetAnsweredCallsTime",
                                          "DataCalls::resetTotalDuration",
                                          "CallService::resetCallTime",
                                          nullptr};
constexpr const char *questions[rowCount] = {nullptr,
                                             "Would you like to reset the Dialed Calls timer?",
                                             "Would you like to reset the Answered Calls timer?",
                                             "Would you like to reset the Circuit Switching Data Calls timer?",
                                             "Would you like to reset the All Calls timer?",
                                             nullptr};
constexpr const char *refusal = "Current request cannot be completed, while you are in calling. ";

QString asText(quint32 seconds)
{
    return QString::asprintf("%02u:%02u:%02u", seconds / 3600, seconds / 60 % 60, seconds % 60);
}

// What the handset has, in seconds, and how it answers now.
struct HandsetState {
    std::array<quint32, rowCount> figures{}; // below 100 hours, where both ways of showing a time agree
    std::array<bool, rowCount> queryFails{};
    std::array<bool, rowCount> resetFails{};
    quint8 status = 0;
    bool statusFails = false;

    QString answer(int row) const { return queryFails[size_t(row)] ? asText(0) : asText(figures[size_t(row)]); }
};

// What a person sees, and what the keys do.
struct Person {
    std::array<QString, rowCount> values;
    int asking = -1; // the row of the open question
    bool noticed = false;
    int left = 0; // how often the screen asked to be closed
};

} // namespace

class TestKeyWalk : public PhoneTest
{
    Q_OBJECT

private slots:
    void everyKeyDoesWhatThePersonExpects_data();
    void everyKeyDoesWhatThePersonExpects();

private:
    void changeHandset(QRandomGenerator &random);
    void scriptHandset();
    void pressInModel(PhoneKey key, int currentRow);
    void answerInModel(bool yes);
    void resetInModel(int row);
    void compareWithScreen(const CallTimes &screen);

    HandsetState handset;
    Person person;
};

void TestKeyWalk::changeHandset(QRandomGenerator &random)
{
    const auto row = size_t(random.bounded(rowCount));
    handset.figures[row] = random.bounded(100u * 3600u);
    handset.queryFails[row] = random.bounded(5) == 0;
    handset.resetFails[row] = random.bounded(5) == 0;
    handset.status = quint8(random.bounded(6));
    handset.statusFails = random.bounded(10) == 0;
    scriptHandset();
}

void TestKeyWalk::scriptHandset()
{
    script().answer("DataCalls::totalDuration", handset.figures[dataRow]);
    script().fail("DataCalls::totalDuration", handset.queryFails[dataRow] ? 3 : 0);
    script().answer("DataCalls::callStatus", handset.status);
    script().fail("DataCalls::callStatus", handset.statusFails ? -1 : 0);
    for (size_t row = 0; row < rowCount; ++row) {
        if (queries[row]) {
            script().answer(queries[row], CallTime::fromSeconds(handset.figures[row]));
            script().fail(queries[row], handset.queryFails[row] ? 1 : 0);
        }
        if (resets[row]) {
            script().fail(resets[row], handset.resetFails[row] ? 7 : 0);
            script().whenCalled(resets[row], [this, row] {
                if (handset.resetFails[row])
                    return;
                handset.figures[row] = 0;
                scriptHandset();
            });
        }
    }
}

void TestKeyWalk::resetInModel(int row)
{
    if (row == dataRow) {
        const bool allowed = !handset.statusFails && (handset.status == 0 || handset.status == 2);
        if (allowed)
            person.values[dataRow] = asText(0);
        person.noticed = !handset.statusFails && (handset.status == 1 || handset.status == 3);
        return;
    }
    HandsetState after = handset;
    if (!after.resetFails[size_t(row)])
        after.figures[size_t(row)] = 0;
    for (int i = 0; i < rowCount; ++i) {
        if (i == row || row == allRow)
            person.values[size_t(i)] = after.answer(i);
    }
}

void TestKeyWalk::answerInModel(bool yes)
{
    if (yes)
        resetInModel(person.asking);
    person.asking = -1;
}

void TestKeyWalk::pressInModel(PhoneKey key, int currentRow)
{
    const bool left = key == PhoneKey::LeftSoftkey || key == PhoneKey::Select;
    const bool right = key == PhoneKey::RightSoftkey || key == PhoneKey::Clear;
    if (person.noticed) {
        // Its right softkey has no caption; the clear key puts it away too.
        person.noticed = !left && key != PhoneKey::Clear;
    } else if (person.asking >= 0) {
        if (left || right)
            answerInModel(left);
    } else if (key == PhoneKey::Select) {
        person.asking = questions[currentRow] ? currentRow : -1;
    } else if (right) {
        ++person.left;
    }
}

void TestKeyWalk::compareWithScreen(const CallTimes &screen)
{
    for (int row = 0; row < rowCount; ++row)
        QCOMPARE(PhoneScreen::value(screen.get(), row), person.values[size_t(row)]);
    QStringList expected;
    if (person.asking >= 0)
        expected.append(questions[person.asking]);
    if (person.noticed)
        expected.append(refusal);
    QStringList shown;
    const auto dialogs = PhoneScreen::shownDialogs();
    for (const ZMessageDlg *dialog : dialogs)
        shown.append(dialog->message());
    COMPARE_LINES(shown, expected);
}

void TestKeyWalk::everyKeyDoesWhatThePersonExpects_data()
{
    QTest::addColumn<quint32>("seed");
    for (const quint32 seed : {1u, 20260731u, 4294967295u})
        QTest::addRow("seed %u", seed) << seed;
}

void TestKeyWalk::everyKeyDoesWhatThePersonExpects()
{
    QFETCH(const quint32, seed);
    QRandomGenerator random(seed);
    handset = {};
    person = {};
    for (quint32 &figure : handset.figures)
        figure = random.bounded(100u * 3600u);
    scriptHandset();
    const CallTimes screen("callTime");
    screen->show();
    const QSignalSpy closed(screen.get(), "2closeWidget()");
    for (int row = 0; row < rowCount; ++row)
        person.values[size_t(row)] = handset.answer(row);
    for (int i = 0; i < keyCount; ++i) {
        if (random.bounded(4) == 0)
            changeHandset(random);
        const PhoneKey key = keys[random.bounded(int(std::size(keys)))];
        pressInModel(key, PhoneScreen::list(screen.get())->currentItem());
        PhoneScreen::press(key);
        compareWithScreen(screen);
        QCOMPARE(closed.count(), person.left);
        if (QTest::currentTestFailed()) {
            qInfo("key %d of the walk: %d", i, int(key));
            return;
        }
    }
    QVERIFY(person.left > 0);
}

KAV_TEST_GROUP(TestKeyWalk, QApplication);
#include "tst_key_walk.moc"
