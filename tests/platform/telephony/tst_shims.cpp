// What all C functions have in common: one operation of the handset each, its status passed on, outputs written
// on success only.
#include "support/PhoneTest.h"
#include "telephony/Shims.h"

#include "handset/Handset.h"
#include "handset/Status.h"

#include <algorithm>
#include <cstddef>
#include <limits>

namespace {

constexpr unsigned char untouched = 0xa5;

// Outputs are as aligned as their types need.
struct alignas(std::max_align_t) Place {
    Output bytes;
    Place() { bytes.fill(untouched); }
    bool isUntouched() const
    {
        return std::all_of(bytes.begin(), bytes.end(), [](unsigned char byte) { return byte == untouched; });
    }
};

QString roleOf(const char *operation)
{
    return QString::fromLatin1(operation).section(QStringLiteral("::"), 0, 0);
}

} // namespace

class TestShims : public PhoneTest
{
    Q_OBJECT

private slots:
    void aQueryAsksItsOwnOperationOnce_data() { everyQuery(); }
    void aQueryAsksItsOwnOperationOnce();
    void aCommandRunsItsOwnOperationOnce_data() { everyCommand(); }
    void aCommandRunsItsOwnOperationOnce();
    void aFailedQueryPassesItsCodeOnAndWritesNothing_data() { everyQuery(); }
    void aFailedQueryPassesItsCodeOnAndWritesNothing();
    void aFailedCommandPassesItsCodeOn_data() { everyCommand(); }
    void aFailedCommandPassesItsCodeOn();
    void aNullPointerIsRefusedWithoutAskingTheHandset_data() { everyQuery(); }
    void aNullPointerIsRefusedWithoutAskingTheHandset();
    void eachOfThreeNullPointersIsRefused();
    void withoutTheRoleAQueryIsNotAvailable_data() { everyQuery(); }
    void withoutTheRoleAQueryIsNotAvailable();
    void withoutTheRoleACommandIsNotAvailable_data() { everyCommand(); }
    void withoutTheRoleACommandIsNotAvailable();
    void withoutAHandsetNothingIsAvailable();
    void aHandsetThatIsReplacedDuringAQueryLivesUntilItHasAnswered();

private:
    static void everyQuery();
    static void everyCommand();
};

void TestShims::everyQuery()
{
    QTest::addColumn<int>("index");
    for (std::size_t i = 0; i < shimQueries.size(); ++i)
        QTest::newRow(shimQueries[i].name) << static_cast<int>(i);
}

void TestShims::everyCommand()
{
    QTest::addColumn<int>("index");
    for (std::size_t i = 0; i < shimCommands.size(); ++i)
        QTest::newRow(shimCommands[i].name) << static_cast<int>(i);
}

void TestShims::aQueryAsksItsOwnOperationOnce()
{
    QFETCH(const int, index);
    const ShimQuery &query = shimQueries[static_cast<std::size_t>(index)];
    Place place;
    QCOMPARE(query.call(&place), int(handset::Success));
    QVERIFY(!place.isUntouched());
    const QStringList asked = journal.lines();
    QCOMPARE(asked.size(), 1);
    QVERIFY2(asked.first().startsWith(QLatin1StringView(query.operation)), qPrintable(asked.first()));
}

void TestShims::aCommandRunsItsOwnOperationOnce()
{
    QFETCH(const int, index);
    const ShimCommand &command = shimCommands[static_cast<std::size_t>(index)];
    QCOMPARE(command.call(), int(handset::Success));
    QCOMPARE(journal.lines(), QStringList{QString::fromLatin1(command.operation)});
}

void TestShims::aFailedQueryPassesItsCodeOnAndWritesNothing()
{
    QFETCH(const int, index);
    const ShimQuery &query = shimQueries[static_cast<std::size_t>(index)];
    for (const int code : {1, 2, 3, 4, 77, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        Place place;
        script().fail(query.operation, code);
        QCOMPARE(query.call(&place), code);
        QVERIFY(place.isUntouched());
    }
}

void TestShims::aFailedCommandPassesItsCodeOn()
{
    QFETCH(const int, index);
    const ShimCommand &command = shimCommands[static_cast<std::size_t>(index)];
    for (const int code : {1, 2, 3, 4, 77, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        script().fail(command.operation, code);
        QCOMPARE(command.call(), code);
    }
}

void TestShims::aNullPointerIsRefusedWithoutAskingTheHandset()
{
    QFETCH(const int, index);
    QCOMPARE(shimQueries[static_cast<std::size_t>(index)].call(nullptr), int(handset::InvalidArgument));
    QCOMPARE(journal.lines(), QStringList());
    handset::install(nullptr);
    QCOMPARE(shimQueries[static_cast<std::size_t>(index)].call(nullptr), int(handset::InvalidArgument));
}

void TestShims::eachOfThreeNullPointersIsRefused()
{
    for (int missing = 0; missing < 3; ++missing) {
        uint32_t counters[3] = {7, 7, 7};
        const auto pointer = [&](int i) { return i == missing ? nullptr : &counters[i]; };
        QCOMPARE(TAPI_GPRS_GetTotalDataBytes(pointer(0), pointer(1), pointer(2)), int(handset::InvalidArgument));
        for (const uint32_t counter : counters)
            QCOMPARE(counter, 7u);
    }
    QCOMPARE(journal.lines(), QStringList());
}

void TestShims::withoutTheRoleAQueryIsNotAvailable()
{
    QFETCH(const int, index);
    const ShimQuery &query = shimQueries[static_cast<std::size_t>(index)];
    (*PhoneTest::handset)->takeAway(roleOf(query.operation));
    Place place;
    QCOMPARE(query.call(&place), int(handset::NotAvailable));
    QVERIFY(place.isUntouched());
    QCOMPARE(journal.lines(), QStringList());
}

void TestShims::withoutTheRoleACommandIsNotAvailable()
{
    QFETCH(const int, index);
    const ShimCommand &command = shimCommands[static_cast<std::size_t>(index)];
    (*PhoneTest::handset)->takeAway(roleOf(command.operation));
    QCOMPARE(command.call(), int(handset::NotAvailable));
    QCOMPARE(journal.lines(), QStringList());
}

void TestShims::withoutAHandsetNothingIsAvailable()
{
    handset::install(nullptr);
    for (const ShimQuery &query : shimQueries) {
        Place place;
        QCOMPARE(query.call(&place), int(handset::NotAvailable));
        QVERIFY(place.isUntouched());
    }
    for (const ShimCommand &command : shimCommands)
        QCOMPARE(command.call(), int(handset::NotAvailable));
}

void TestShims::aHandsetThatIsReplacedDuringAQueryLivesUntilItHasAnswered()
{
    auto shortLived = std::make_shared<ScriptedHandset>();
    const std::weak_ptr<ScriptedHandset> watched = shortLived;
    shortLived->script.answer("CallLog::lastCallTime", handset::CallTime{1, 2, 3});
    shortLived->script.whenCalled("CallLog::lastCallTime", [] { handset::install(nullptr); });
    handset::install(std::move(shortLived));
    TAPI_CallTime time = {};
    QCOMPARE(TAPI_LOG_GetLastCallTime(&time), int(handset::Success));
    QCOMPARE(time.hours, 1u);
    QVERIFY(watched.expired());
}

KAV_TEST_GROUP(TestShims, QApplication);
#include "tst_shims.moc"
