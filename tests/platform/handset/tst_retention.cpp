// How long calls are kept.
#include "handset/CallRetention.h"
#include "handset/DecoratedHandset.h"
#include "handset/HandsetTestKit.h"
#include "handset/KeptCalls.h"
#include "handset/Status.h"
#include "support/TestGroup.h"

#include <QtCore/QDateTime>

using namespace handset;
using namespace handset::test;

namespace {

constexpr qint64 day = 24 * hour;

/// Notes what it is asked to delete.
class NotingCalls final : public KeptCalls
{
public:
    int newest(qint64, int, QList<KeptCall> &) override { return NotAvailable; }
    int count(qint64, qint64, qint64 &) override { return NotAvailable; }
    int remove(qint64) override { return NotAvailable; }
    int removeBefore(qint64 wallMs, qint64 &) override
    {
        asked << wallMs;
        return status;
    }

    QList<qint64> asked;
    int status = Success;
};

class NotingHandset final : public DecoratedHandset<NotingHandset>
{
public:
    KeptCalls *keptCalls() override { return &calls; }
    NotingCalls calls;
};

qint64 now()
{
    return QDateTime(QDate(2026, 3, 4), QTime(5, 6, 7)).toMSecsSinceEpoch();
}

// The numbers of the calls that are kept, the newest first.
QStringList keptNumbers(Handset &handset)
{
    QStringList numbers;
    QList<KeptCall> calls;
    if (handset.keptCalls()->newest(KeptCalls::endOfTime, 100, calls) == Success) {
        for (const KeptCall &kept : std::as_const(calls))
            numbers << kept.call.number;
    }
    return numbers;
}

} // namespace

class TestRetention : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }
    void aNumberOfDaysIsReadAndNothingElse_data();
    void aNumberOfDaysIsReadAndNothingElse();
    void aCallIsKeptUntilTheSameTimeOfDay();
    void whatIsOlderIsDeletedAtTheStartAndTheRestStays();
    void withoutANumberOfDaysAllIsKept();
    void whatGrowsOldIsDeletedADayLater();
    void aRunningCallIsNeverDeleted();
    void aClockThatIsSetBackDoesNotPutItOff();
    void whatFailsIsTriedAgainAtTheNextLook();
    void aHandsetThatKeepsNoCallsIsLeftAlone();
};

void TestRetention::aNumberOfDaysIsReadAndNothingElse_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("days"); // -1 for none
    QTest::newRow("none") << "0" << 0;
    QTest::newRow("the most") << "100000" << 100'000;
    QTest::newRow("more than that") << "100001" << -1;
    QTest::newRow("less than none") << "-1" << -1;
    QTest::newRow("a part of a day") << "1.5" << -1;
    QTest::newRow("a word") << "all" << -1;
    QTest::newRow("nothing") << "" << -1;
}

void TestRetention::aNumberOfDaysIsReadAndNothingElse()
{
    QFETCH(const QString, text);
    QTEST(keptDaysFrom(text).value_or(-1), "days");
}

// Also where a day between had 23 or 25 hours: the local time counts.
void TestRetention::aCallIsKeptUntilTheSameTimeOfDay()
{
    QCOMPARE(QDateTime::fromMSecsSinceEpoch(keptSince(200, now())), QDateTime(QDate(2025, 8, 16), QTime(5, 6, 7)));
    QCOMPARE(keptSince(0, now()), now());
}

void TestRetention::whatIsOlderIsDeletedAtTheStartAndTheRestStays()
{
    const StateDir state;
    const auto clock = std::make_shared<ManualClock>(now());
    SixFigures before;
    {
        Phone phone(state.path(), clock);
        QVERIFY(phone);
        QVERIFY(phone.dialed(second, CallKind::Voice, QStringLiteral("31")));
        clock->setWallMs(now() + day);
        QVERIFY(phone.dialed(second, CallKind::Voice, QStringLiteral("30")));
        before = phone.figures();
    }
    clock->setWallMs(now() + 31 * day);
    Settings settings{QStringLiteral("simulated"), state.path(), clock};
    settings.keptDays = 30;
    const Opened opened = open(settings);
    QVERIFY2(opened.handset, qPrintable(opened.error));
    QTRY_COMPARE(keptNumbers(*opened.handset), QStringList{"30"});
    QCOMPARE(figuresOf(*opened.handset), before);
}

void TestRetention::withoutANumberOfDaysAllIsKept()
{
    const auto clock = std::make_shared<ManualClock>(now());
    Phone phone({}, clock);
    QVERIFY(phone.dialed(second));
    clock->advance(100'000 * day);
    QCoreApplication::processEvents();
    QCOMPARE(keptNumbers(phone.handset()).size(), 1);
}

void TestRetention::whatGrowsOldIsDeletedADayLater()
{
    const auto clock = std::make_shared<ManualClock>(now());
    NotingHandset handset;
    const CallRetention retention(handset, 30, clock, 1);
    QTRY_COMPARE(handset.calls.asked, QList<qint64>{keptSince(30, now())});
    clock->advance(day - 1);
    for (int look = 0; look < 10; ++look) {
        bool isOver = false;
        QTimer::singleShot(1, Qt::PreciseTimer, [&] { isOver = true; });
        QTRY_VERIFY(isOver);
    }
    QCOMPARE(handset.calls.asked.size(), 1);
    clock->advance(1);
    QTRY_COMPARE(handset.calls.asked.size(), 2);
    QCOMPARE(handset.calls.asked.last(), keptSince(30, now() + day));
}

void TestRetention::aRunningCallIsNeverDeleted()
{
    const auto clock = std::make_shared<ManualClock>(now());
    Phone phone({}, clock);
    QVERIFY(phone.dialed(second, CallKind::Voice, QStringLiteral("1")));
    QVERIFY(phone.dial(CallKind::Voice, QStringLiteral("2")));
    clock->advance(10 * day);
    const CallRetention retention(phone.handset(), 1, clock);
    QTRY_COMPARE(keptNumbers(phone.handset()), QStringList{"2"});
    QCOMPARE(phone->hangUp(), 0);
    QCOMPARE(keptNumbers(phone.handset()), QStringList{"2"});
}

void TestRetention::aClockThatIsSetBackDoesNotPutItOff()
{
    const auto clock = std::make_shared<ManualClock>(now());
    NotingHandset handset;
    const CallRetention retention(handset, 30, clock, 1);
    QTRY_COMPARE(handset.calls.asked.size(), 1);
    clock->setWallMs(now() - 365 * day);
    QTRY_COMPARE(handset.calls.asked.size(), 2);
}

void TestRetention::whatFailsIsTriedAgainAtTheNextLook()
{
    const auto clock = std::make_shared<ManualClock>(now());
    NotingHandset handset;
    handset.calls.status = StorageFailed;
    const CallRetention retention(handset, 30, clock, 1);
    QTRY_VERIFY(handset.calls.asked.size() >= 3);
}

void TestRetention::aHandsetThatKeepsNoCallsIsLeftAlone()
{
    class Bare final : public DecoratedHandset<Bare>
    {
    };
    Bare handset;
    const CallRetention retention(handset, 30, std::make_shared<ManualClock>(now()), 1);
    bool isOver = false;
    QTimer::singleShot(5, [&] { isOver = true; });
    QTRY_VERIFY(isOver);
}

KAV_TEST_GROUP(TestRetention, QCoreApplication);
#include "tst_retention.moc"
