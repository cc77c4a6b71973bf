// Sums and differences that stop at the ends of their range.
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

} // namespace handset::calllog
