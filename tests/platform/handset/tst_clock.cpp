// The machine's clocks and the one that stands still.
#include "handset/HandsetTestKit.h"
#include "support/TestGroup.h"

#include <QtCore/QDateTime>
#include <QtCore/QProcess>
#include <QtCore/QScopeGuard>
#include <QtCore/QUuid>

#include <ctime>

#include <sys/syscall.h>
#include <unistd.h>

using namespace handset;

namespace {

constexpr time_t sleptSeconds = 12'345;
bool hasSlept = false; ///< the machine, for that long

// The call for a time_t of 64 bits, where there is another.
#ifdef SYS_clock_gettime64
constexpr long callNumber = SYS_clock_gettime64;
#else
constexpr long callNumber = SYS_clock_gettime;
#endif

} // namespace

// In front of the C library's: the boot clock of a machine that has been suspended.
extern "C" int clock_gettime(clockid_t clock, timespec *time) noexcept
{
    const long status = ::syscall(callNumber, clock, time);
    if (status == 0 && clock == CLOCK_BOOTTIME && hasSlept)
        time->tv_sec += sleptSeconds;
    return static_cast<int>(status);
}

class TestClock : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void theMonotonicClockNeverGoesBack();
    void theMonotonicClockCountsThroughSuspend();
    void aSteadyClockStopsAtTheEndOfAllNumbers();
    void theBootIsTheKernelsInEveryProcess();
    void theWallClockIsUtcInEveryTimeZone_data();
    void theWallClockIsUtcInEveryTimeZone();
    void aManualClockStandsStillUntilItIsMoved();
    void settingTheWallClockLeavesTheMonotonicOneAlone();
};

void TestClock::theMonotonicClockNeverGoesBack()
{
    const SystemClock clock;
    qint64 previous = clock.monotonicMs();
    for (int i = 0; i < 10000; ++i) {
        const qint64 now = clock.monotonicMs();
        QVERIFY(now >= previous);
        previous = now;
    }
}

void TestClock::theMonotonicClockCountsThroughSuspend()
{
    const SystemClock clock;
    const qint64 before = clock.monotonicMs();
    const auto wakeUp = qScopeGuard([] { hasSlept = false; });
    hasSlept = true;
    QVERIFY(clock.monotonicMs() - before >= qint64{sleptSeconds} * 1000);
}

// As another program reads it, and without the end of the line: it is compared with what a row has kept.
// The clock of a host may read whatever it likes.
void TestClock::aSteadyClockStopsAtTheEndOfAllNumbers()
{
    constexpr qint64 first = std::numeric_limits<qint64>::min();
    constexpr qint64 last = std::numeric_limits<qint64>::max(); // further off than a number can say
    const auto clock = std::make_shared<ManualClock>();
    clock->reboot(first);
    const SteadyClock steady(clock);
    clock->reboot(last);
    QCOMPARE(steady.monotonicMs(), first + last);
    clock->reboot(first);
    QCOMPARE(steady.monotonicMs(), first + last);
}

void TestClock::theBootIsTheKernelsInEveryProcess()
{
    QProcess reader;
    reader.start(QStringLiteral("/bin/cat"), {QStringLiteral("/proc/sys/kernel/random/boot_id")});
    QVERIFY(reader.waitForFinished(60'000));
    const QByteArray boot = reader.readAllStandardOutput().trimmed();
    QVERIFY(!QUuid(QString::fromLatin1(boot)).isNull());
    QCOMPARE(SystemClock().boot(), boot);
    QCOMPARE(SteadyClock(std::make_shared<SystemClock>()).boot(), boot);
}

void TestClock::theWallClockIsUtcInEveryTimeZone_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::newRow("UTC") << QByteArray("UTC0");
    QTest::newRow("east of Greenwich, by a quarter of an hour") << QByteArray("NPT-5:45");
    QTest::newRow("west of Greenwich, in summer time") << QByteArray("NST3:30NDT,M1.1.0,M12.5.0");
}

void TestClock::theWallClockIsUtcInEveryTimeZone()
{
    QFETCH(QByteArray, zone);
    qputenv("TZ", zone);
    ::tzset();
    const auto utc = [] { return static_cast<qint64>(::time(nullptr)) * 1000; };
    const qint64 before = utc();
    const qint64 reading = SystemClock().wallMs();
    // time() may lag behind by a tick of the kernel
    QVERIFY(reading >= before);
    QVERIFY(reading <= utc() + 2000);
}

void TestClock::aManualClockStandsStillUntilItIsMoved()
{
    ManualClock clock(5000);
    QCOMPARE(clock.monotonicMs(), qint64{0});
    QCOMPARE(clock.wallMs(), qint64{5000});
    clock.advance(250);
    QCOMPARE(clock.monotonicMs(), qint64{250});
    QCOMPARE(clock.wallMs(), qint64{5250});
}

void TestClock::settingTheWallClockLeavesTheMonotonicOneAlone()
{
    ManualClock clock(5000);
    clock.advance(100);
    clock.setWallMs(-7);
    QCOMPARE(clock.monotonicMs(), qint64{100});
    QCOMPARE(clock.wallMs(), qint64{-7});
}

KAV_TEST_GROUP(TestClock, QCoreApplication);
#include "tst_clock.moc"
