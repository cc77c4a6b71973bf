// Sums, differences and products that stop at the ends of their range.
#pragma once

#include <QtCore/QtGlobal>

#include <limits>

namespace handset::calllog {

/// The sum of two durations of 0 or more.
constexpr qint64 saturatingSum(qint64 a, qint64 b)
{
    qint64 sum = 0;
    return __builtin_add_overflow(a, b, &sum) ? std::numeric_limits<qint64>::max() : sum;
}

/// The time from one reading of a clock to a later one; 0 when the clock went back.
constexpr qint64 elapsed(qint64 from, qint64 to)
{
    if (to <= from)
        return 0;
    qint64 difference = 0;
    return __builtin_sub_overflow(to, from, &difference) ? std::numeric_limits<qint64>::max() : difference;
}

/// What `perSecond` of something a second come to in `ms`, both 0 or more, the fraction cut off.
constexpr qint64 saturatingAmount(quint32 perSecond, qint64 ms)
{
    qint64 ofWholeSeconds = 0;
    if (__builtin_mul_overflow(ms / 1000, qint64{perSecond}, &ofWholeSeconds))
        return std::numeric_limits<qint64>::max();
    return saturatingSum(ofWholeSeconds, ms % 1000 * perSecond / 1000);
}

} // namespace handset::calllog
