// From time and data to units.
#include "charging/Tariff.h"
#include "support/TestGroup.h"

#include <QtCore/QRandomGenerator>
#include <QtTest/QTest>

#include <limits>
#include <vector>

using namespace handset::charging;

namespace {

constexpr qint64 second = 1000;

// One unit a minute, nothing else.
Tariff perMinute()
{
    Tariff tariff;
    tariff.unitsPerInterval = 10;
    tariff.interval = 600;
    return tariff;
}

Tariff randomTariff(QRandomGenerator &random)
{
    const auto element = [&random](int greatest) {
        return static_cast<quint16>(random.bounded(4) == 0 ? 0 : random.bounded(greatest + 1));
    };
    return {element(60), element(50), element(300), element(40), element(30), element(20), element(80)};
}

// Walks through the call tenth by tenth, looking only at whether an interval is over, and counts in thousandths.
quint64 unitsByWalking(const Tariff &tariff, qint64 ms, quint64 segments)
{
    quint64 thousandths = quint64{tariff.scale} * tariff.unitsAtStart;
    quint64 left = tariff.firstInterval ? tariff.firstInterval : tariff.interval;
    for (qint64 tenth = 0; tenth < ms / 100 && left > 0; ++tenth) {
        if (--left == 0) {
            thousandths += quint64{tariff.scale} * tariff.unitsPerInterval;
            left = tariff.interval;
        }
    }
    for (quint64 full = tariff.segmentsPerDataInterval; full > 0 && full <= segments;
         full += tariff.segmentsPerDataInterval)
        thousandths += quint64{tariff.scale} * tariff.unitsPerDataInterval;
    return thousandths / 1000;
}

} // namespace

class TestTariff : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void aLegCostsWhatTheElementsSay_data();
    void aLegCostsWhatTheElementsSay();
    void aTariffWithoutElementsIsFree();
    void everyTariffCountsAsAWalkThroughTheCallDoes();
    void aLongerLegNeverCostsLess();
    void aLegStopsAt24Bits();
    void eachLegIsCountedAlone();
    void legsTogetherStopAt24Bits();
    void theTimeUntilALimitIsExact_data();
    void theTimeUntilALimitIsExact();
    void aLimitThatIsNeverReachedHasNoTime_data();
    void aLimitThatIsNeverReachedHasNoTime();
    void theUnitIsDueExactlyWhenItWasForetold();
    void meteringStepByStepAddsUpToTheWhole();
    void theLastUnitThatAMeterHoldsCanBeForetold();
    void elementsBeyondTheNetworksRangeAreTold();
};

void TestTariff::aLegCostsWhatTheElementsSay_data()
{
    QTest::addColumn<Tariff>("tariff");
    QTest::addColumn<qint64>("ms");
    QTest::addColumn<quint64>("segments");
    QTest::addColumn<quint32>("units");

    const auto row = [](const char *name, const Tariff &tariff, qint64 ms, quint64 segments, quint32 units) {
        QTest::newRow(name) << tariff << ms << segments << units;
    };
    const quint64 none = 0;
    row("nothing before the first interval is over", perMinute(), 59'900, none, 0);
    row("the clock counts whole tenths", perMinute(), 59'999, none, 0);
    row("a unit when it is", perMinute(), 60'000, none, 1);
    row("and the next after as much again", perMinute(), 120'000, none, 2);
    row("an hour", perMinute(), 3'600'000, none, 60);
    row("no time", perMinute(), 0, none, 0);
    row("a clock that went back", perMinute(), -5'000, none, 0);

    Tariff first = perMinute();
    first.firstInterval = 100;
    row("a first interval of its own", first, 10'000, none, 1);
    row("does not shift the end of the others by itself", first, 69'999, none, 1);
    row("they follow it", first, 70'000, none, 2);
    Tariff tenth = perMinute();
    tenth.interval = 1;
    row("a unit every tenth of a second", tenth, 1'050, none, 10);
    Tariff start = perMinute();
    start.unitsAtStart = 20;
    row("units for the beginning alone", start, 0, none, 2);
    row("and with the time", start, 60'000, none, 3);

    Tariff half = perMinute();
    half.scale = 50;
    row("a scale of a half: the fraction waits", half, 60'000, none, 0);
    row("until it is a whole unit", half, 120'000, none, 1);
    Tariff scaled = start;
    scaled.scale = 250;
    row("the scale counts for the beginning too", scaled, 60'000, none, 7);
    Tariff free = start;
    free.scale = 0;
    row("a scale of nothing", free, 3'600'000, none, 0);
    Tariff quarter = perMinute();
    quarter.unitsPerInterval = 3;
    row("tenths of a unit add up", quarter, 240'000, none, 1);

    Tariff data;
    data.unitsPerDataInterval = 15;
    data.segmentsPerDataInterval = 10;
    row("segments short of an interval", data, 0, 9, 0);
    row("an interval of segments", data, 0, 10, 1);
    row("two of them", data, 0, 20, 3);
    row("no data interval", Tariff{10, 600, 100, 0, 50, 0, 0}, 60'000, 1'000, 1);
    row("time and data together", Tariff{10, 600, 100, 10, 20, 5, 0}, 120'000, 10, 7);
    row("only a first interval", Tariff{10, 0, 100, 0, 0, 0, 300}, 3'600'000, none, 1);
    row("no interval at all", Tariff{10, 0, 100, 0, 0, 0, 0}, 3'600'000, none, 0);
}

void TestTariff::aLegCostsWhatTheElementsSay()
{
    QFETCH(Tariff, tariff);
    QFETCH(qint64, ms);
    QFETCH(quint64, segments);
    QTEST(tariff.units({ms, segments}), "units");
}

void TestTariff::aTariffWithoutElementsIsFree()
{
    const Tariff tariff;
    QCOMPARE(tariff.units({std::numeric_limits<qint64>::max(), std::numeric_limits<quint64>::max()}), 0U);
    QVERIFY(tariff.isValid());
}

void TestTariff::everyTariffCountsAsAWalkThroughTheCallDoes()
{
    QRandomGenerator random(22024);
    for (int i = 0; i < 20'000; ++i) {
        const Tariff tariff = randomTariff(random);
        const qint64 ms = random.bounded(60'000);
        const quint64 segments = random.bounded(300U);
        QCOMPARE(quint64{tariff.units({ms, segments})}, unitsByWalking(tariff, ms, segments));
    }
}

void TestTariff::aLongerLegNeverCostsLess()
{
    QRandomGenerator random(1);
    for (int i = 0; i < 300; ++i) {
        const Tariff tariff = randomTariff(random);
        quint32 before = 0;
        CallLeg leg;
        for (int step = 0; step < 300; ++step) {
            leg.durationMs += random.bounded(1'000);
            leg.segments += static_cast<quint64>(random.bounded(5));
            const quint32 now = tariff.units(leg);
            QVERIFY(now >= before);
            before = now;
        }
    }
}

void TestTariff::aLegStopsAt24Bits()
{
    Tariff tariff;
    tariff.unitsPerInterval = 10;
    tariff.interval = 1;
    QCOMPARE(tariff.units({qint64{16'777'214} * 100}), 16'777'214U);
    QCOMPARE(tariff.units({qint64{16'777'215} * 100}), 16'777'215U);
    QCOMPARE(tariff.units({qint64{16'777'216} * 100}), 16'777'215U);
    constexpr quint16 most = std::numeric_limits<quint16>::max();
    const Tariff greatest{most, 1, most, most, most, 1, 1};
    QCOMPARE(greatest.units({std::numeric_limits<qint64>::max(), std::numeric_limits<quint64>::max()}), maxUnits);
}

void TestTariff::eachLegIsCountedAlone()
{
    // Three legs of 40 s: together two minutes, each alone less than one.
    const std::vector<CallLeg> legs(3, CallLeg{40 * second, 0});
    QCOMPARE(perMinute().units(legs), 0U);
    Tariff start = perMinute();
    start.unitsAtStart = 10;
    QCOMPARE(start.units(legs), 3U);
    // Halves of different legs do not make a unit.
    Tariff half = perMinute();
    half.scale = 50;
    const std::vector<CallLeg> minutes(2, CallLeg{60 * second, 0});
    QCOMPARE(half.units(minutes), 0U);
    QCOMPARE(perMinute().units(std::span<const CallLeg>()), 0U);
}

void TestTariff::legsTogetherStopAt24Bits()
{
    Tariff tariff;
    tariff.unitsPerInterval = 10;
    tariff.interval = 1;
    const std::vector<CallLeg> legs{{qint64{16'777'200} * 100}, {qint64{14} * 100}};
    QCOMPARE(tariff.units(legs), 16'777'214U);
    const std::vector<CallLeg> many(300, CallLeg{qint64{16'777'215} * 100});
    QCOMPARE(tariff.units(many), maxUnits);
}

void TestTariff::theTimeUntilALimitIsExact_data()
{
    QTest::addColumn<Tariff>("tariff");
    QTest::addColumn<CallLeg>("leg");
    QTest::addColumn<quint32>("limit");
    QTest::addColumn<qint64>("ms");

    const auto row = [](const char *name, const Tariff &tariff, const CallLeg &leg, quint32 limit, qint64 ms) {
        QTest::newRow(name) << tariff << leg << limit << ms;
    };
    row("the first unit", perMinute(), {}, 1, 60'000);
    row("in the middle of it", perMinute(), {30'001}, 1, 29'999);
    row("thirty seconds before the tenth", perMinute(), {570'000}, 10, 30'000);
    row("already there", perMinute(), {60'000}, 1, 0);
    row("long past it", perMinute(), {600'000}, 1, 0);
    row("no units at all", perMinute(), {}, 0, 0);
    row("a clock that went back", perMinute(), {-9'000}, 1, 60'000);
    row("units for the beginning reach it", Tariff{10, 600, 100, 20, 0, 0, 0}, {}, 2, 0);
    row("the rest takes time", Tariff{10, 600, 100, 20, 0, 0, 0}, {}, 3, 60'000);
    row("a first interval of its own", Tariff{10, 600, 100, 0, 0, 0, 100}, {}, 2, 70'000);
    row("only a first interval", Tariff{20, 0, 100, 0, 0, 0, 100}, {}, 2, 10'000);
    row("halves: two intervals a unit", Tariff{10, 600, 50, 0, 0, 0, 0}, {}, 1, 120'000);
    row("data brings it nearer", Tariff{10, 600, 100, 0, 10, 10, 0}, {0, 15}, 2, 60'000);
}

void TestTariff::theTimeUntilALimitIsExact()
{
    QFETCH(Tariff, tariff);
    QFETCH(CallLeg, leg);
    QFETCH(quint32, limit);
    const std::optional<qint64> until = tariff.msUntil(leg, limit);
    QVERIFY(until);
    QTEST(*until, "ms");
}

void TestTariff::aLimitThatIsNeverReachedHasNoTime_data()
{
    QTest::addColumn<Tariff>("tariff");
    QTest::addColumn<quint32>("limit");

    QTest::newRow("a free tariff") << Tariff{} << 1U;
    QTest::newRow("no interval") << Tariff{10, 0, 100, 0, 0, 0, 0} << 1U;
    QTest::newRow("a scale of nothing") << Tariff{10, 600, 0, 0, 0, 0, 0} << 1U;
    QTest::newRow("only a first interval, worth less") << Tariff{10, 0, 100, 0, 0, 0, 100} << 2U;
    QTest::newRow("more than a meter holds") << perMinute() << maxUnits + 1;
    QTest::newRow("data alone") << Tariff{0, 0, 100, 0, 10, 10, 0} << 1U;
}

void TestTariff::aLimitThatIsNeverReachedHasNoTime()
{
    QFETCH(Tariff, tariff);
    QFETCH(quint32, limit);
    QVERIFY(!tariff.msUntil({}, limit));
}

void TestTariff::theUnitIsDueExactlyWhenItWasForetold()
{
    QRandomGenerator random(5);
    int foretold = 0;
    for (int i = 0; i < 50'000; ++i) {
        const Tariff tariff = randomTariff(random);
        const CallLeg leg{random.bounded(60'000), static_cast<quint64>(random.bounded(300))};
        const quint32 next = tariff.units(leg) + 1 + static_cast<quint32>(random.bounded(20));
        const std::optional<qint64> until = tariff.msUntil(leg, next);
        if (!until) {
            QVERIFY(tariff.units({std::numeric_limits<qint64>::max(), leg.segments}) < next);
            continue;
        }
        ++foretold;
        QVERIFY(*until > 0);
        QVERIFY(tariff.units({leg.durationMs + *until, leg.segments}) >= next);
        QVERIFY(tariff.units({leg.durationMs + *until - 1, leg.segments}) < next);
    }
    QVERIFY(foretold > 10'000);
}

void TestTariff::meteringStepByStepAddsUpToTheWhole()
{
    QRandomGenerator random(6);
    for (int i = 0; i < 200; ++i) {
        const Tariff tariff = randomTariff(random);
        const CallLeg whole{60'000, 40};
        CallLeg leg{0, 40};
        quint32 charged = tariff.units(leg);
        while (const std::optional<qint64> until = tariff.msUntil(leg, charged + 1)) {
            if (leg.durationMs + *until > whole.durationMs)
                break;
            leg.durationMs += *until;
            const quint32 now = tariff.units(leg);
            QVERIFY(now > charged);
            charged = now;
        }
        QCOMPARE(charged, tariff.units(whole));
    }
}

void TestTariff::theLastUnitThatAMeterHoldsCanBeForetold()
{
    // The slowest tariff there is.
    const Tariff slow{1, Tariff::greatestElement, 1, 0, 0, 0, Tariff::greatestElement};
    const std::optional<qint64> until = slow.msUntil({}, maxUnits);
    QVERIFY(until);
    QCOMPARE(*until, qint64{16'777'215} * 1000 * 8191 * 100);
    QCOMPARE(slow.units({*until}), maxUnits);
    QCOMPARE(slow.units({*until - 1}), maxUnits - 1);
}

void TestTariff::elementsBeyondTheNetworksRangeAreTold()
{
    constexpr quint16 most = Tariff::greatestElement;
    QVERIFY((Tariff{most, most, most, most, most, most, most}.isValid()));
    quint16 Tariff::*const elements[] = {&Tariff::unitsPerInterval,
                                         &Tariff::interval,
                                         &Tariff::scale,
                                         &Tariff::unitsAtStart,
                                         &Tariff::unitsPerDataInterval,
                                         &Tariff::segmentsPerDataInterval,
                                         &Tariff::firstInterval};
    for (quint16 Tariff::*const element : elements) {
        Tariff tariff;
        tariff.*element = most + 1;
        QVERIFY(!tariff.isValid());
    }
}

KAV_TEST_GROUP(TestTariff, NoApplication);
#include "tst_tariff.moc"
