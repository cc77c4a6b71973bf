// Every time from 0:0:0 to 999:59:59, through the telephony library and the meter.
#include "utility/PHONE_UI_RecentCallMeter.h"

#include "support/PhoneTest.h"

#include <cstdio>

using handset::CallTime;

namespace {

constexpr quint32 hourCount = 1000;
constexpr quint32 timeCount = hourCount * 3600;

// Under the sanitizers each call costs thirty times as much: every 61st time then, a prime to sixty, so that all
// hours, minutes and seconds still occur. All times are run in the other builds.
#if defined(__SANITIZE_ADDRESS__)
constexpr quint32 stride = 61;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
constexpr quint32 stride = 61;
#else
constexpr quint32 stride = 1;
#endif
#else
constexpr quint32 stride = 1;
#endif

// What a person expects to read: two digits a field, unless the hours need three; then plain numbers.
QLatin1StringView expected(const CallTime &time, char (&buffer)[32])
{
    const char *format = time.hours < 100 ? "%02u:%02u:%02u" : "%u:%u:%u";
    std::snprintf(buffer, sizeof buffer, format, time.hours, unsigned(time.minutes), unsigned(time.seconds));
    return QLatin1StringView(buffer);
}

} // namespace

class TestMeterEveryTime : public PhoneTest
{
    Q_OBJECT

private slots:
    void everyTimeReadsAsAPersonExpects();
};

void TestMeterEveryTime::everyTimeReadsAsAPersonExpects()
{
    const TraceSink sink;
    journal.setMuted(true);
    PHONE_UI_RecentCallMeter meter;
    char buffer[32];
    quint32 compared = 0;
    for (quint32 seconds = 0; seconds < timeCount; seconds += stride) {
        const CallTime time = CallTime::fromSeconds(seconds);
        script().answer("CallLog::lastCallTime", time);
        const QString text = meter.getLastCallTimes();
        if (text != expected(time, buffer))
            QCOMPARE(text, QString(buffer));
        ++compared;
    }
    QCOMPARE(compared, (timeCount + stride - 1) / stride);
}

KAV_TEST_GROUP(TestMeterEveryTime, QApplication);
#include "tst_meter_every_time.moc"
