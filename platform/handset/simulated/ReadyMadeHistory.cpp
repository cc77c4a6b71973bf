#include "simulated/ReadyMadeHistory.h"

#include <array>

namespace handset::simulated {

namespace {

constexpr qint64 second = 1000;
constexpr qint64 minute = 60 * second;
constexpr qint64 hour = 60 * minute;
constexpr qint64 day = 24 * hour;

struct Sample {
    CallKind kind;
    CallDirection direction;
    const char *number;
    qint64 agoMs;
    qint64 durationMs;
};

using enum CallKind;
using enum CallDirection;

constexpr std::array samples{
    Sample{Voice, Dialed, "+4930555010", 9 * day + 4 * hour, 3 * minute + 12 * second},
    Sample{Voice, Answered, "+4930555017", 8 * day + 7 * hour, 12 * minute + 48 * second},
    Sample{Data, Dialed, "0191011", 7 * day + 2 * hour, 25 * minute + 30 * second},
    Sample{Voice, Dialed, "5550123", 6 * day + 5 * hour, 0},
    Sample{Voice, Dialed, "5550123", 6 * day + 4 * hour, 1 * minute + 5 * second},
    Sample{Voice, Answered, "", 5 * day + 9 * hour, 41 * second},
    Sample{Voice, Dialed, "+33155501429", 4 * day + 3 * hour, 1 * hour + 7 * minute + 9 * second},
    Sample{Voice, Answered, "+4930555010", 3 * day + 6 * hour, 8 * minute + 2 * second},
    Sample{Data, Dialed, "0191011", 2 * day + 1 * hour, 1 * hour + 2 * minute + 17 * second},
    Sample{Voice, Answered, "5550188", 1 * day + 8 * hour, 0},
    Sample{Voice, Dialed, "*100#", 5 * hour, 9 * second},
    Sample{Voice, Answered, "+4930555017", 30 * minute, 4 * minute + 26 * second},
};
static_assert(samples.size() == 12);

} // namespace

QList<PastCall> readyMadeHistory(qint64 nowWallMs)
{
    QList<PastCall> calls;
    calls.reserve(samples.size());
    for (const Sample &sample : samples)
        calls.append({sample.kind, sample.direction, QString::fromLatin1(sample.number), nowWallMs - sample.agoMs,
                      sample.durationMs});
    return calls;
}

} // namespace handset::simulated
