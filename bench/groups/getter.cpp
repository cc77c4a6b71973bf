// A call time as text: the meter's getter beside what Qt and the C library offer for the same figures, with the same
// query and the same traces around it.
#include "bench/Counted.h"
#include "bench/FixedHandset.h"
#include "bench/Groups.h"
#include "log/aplog.h"
#include "telephony/tapi.h"
#include "utility/PHONE_UI_RecentCallMeter.h"

#include <QtCore/QTime>

#include <cstdio>

namespace bench {

namespace {

using Format = QString (*)(const TAPI_CallTime &);

QString withQTime(const TAPI_CallTime &time)
{
    return QTime(static_cast<int>(time.hours), time.minutes, time.seconds).toString();
}

QString withSnprintf(const TAPI_CallTime &time)
{
    char text[24];
    const int length = std::snprintf(text, sizeof text, "%02u:%02u:%02u", time.hours, time.minutes, time.seconds);
    return QString::fromLatin1(text, length);
}

// The lines that the getter writes for a query, so that what is left between the two is the formatting.
void traceQuery()
{
    std::fprintf(libaplog_to_module_ptr, "%s,%s,%d \n", "utility/PHONE_UI_RecentCallMeter", "getDialedCallsTimes",
                 1);
}

void traceFormat(const char *when, const QString &text)
{
    std::fprintf(libaplog_to_module_ptr, "\n%s, %s, %d: \"formatTimeString %s,TIMESTR=%s.\\n\"\n",
                 "utility/PHONE_UI_RecentCallMeter", "formatTimeString", 1, when, text.toLatin1().constData());
}

template <Format format>
QString asGetterDoes()
{
    TAPI_CallTime time = {};
    traceQuery();
    const int result = TAPI_LOG_GetDialedCallsTime(&time);
    traceQuery();
    if (result != 0)
        return QStringLiteral("00:00:00");
    QString text = format(time);
    traceFormat("begin", text);
    traceFormat("after", text);
    return text;
}

QString fromGetter()
{
    static PHONE_UI_RecentCallMeter meter;
    return meter.getDialedCallsTimes();
}

using Text = QString (*)();

Side side(const char *label, Text text)
{
    return {label, [text](benchmark::State &state) {
                useFixedHandset();
                if (text() != QStringLiteral("05:03:07"))
                    state.SkipWithError("it gives another text");
                for (auto _ : state) {
                    const Counted counted;
                    benchmark::DoNotOptimize(text());
                }
            }};
}

} // namespace

std::vector<Comparison> getterComparisons()
{
    return {
        {"Time text: a getter beside formatting with the same query and traces",
         side("meter getter", &fromGetter),
         {{side("QTime::toString", &asGetterDoes<&withQTime>), Bar{1.1, 1}},
          {side("snprintf, QString", &asGetterDoes<&withSnprintf>), Bar{1.4, 1.3}}}},
    };
}

} // namespace bench
