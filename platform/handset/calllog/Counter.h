// The running totals that the call log keeps.
#pragma once

#include "Call.h"

#include <array>

namespace handset::calllog {

/// Each in milliseconds, 0 to 2^63 - 1, where it stops.
enum class Counter {
    Last,     ///< the last connected call
    Dialed,   ///< dialed voice calls since their reset
    Answered, ///< answered voice calls since their reset
    Data,     ///< data calls since their reset
    All,      ///< every connected call since their reset
    Lifetime  ///< every connected call ever
};

struct CounterName {
    Counter counter;
    const char *key; ///< in the database; never change one
};

inline constexpr std::array counterNames{
    CounterName{Counter::Last, "last"},         CounterName{Counter::Dialed, "dialed"},
    CounterName{Counter::Answered, "answered"}, CounterName{Counter::Data, "data"},
    CounterName{Counter::All, "all"},           CounterName{Counter::Lifetime, "lifetime"},
};
static_assert(counterNames.size() == 6);
static_assert(
    [] {
        for (std::size_t i = 0; i < counterNames.size(); ++i)
            if (static_cast<std::size_t>(counterNames[i].counter) != i)
                return false;
        return true;
    }(),
    "counterNames is indexed by the counter");

inline const QString &counterKey(Counter counter)
{
    static const auto keys = [] {
        std::array<QString, counterNames.size()> texts;
        for (std::size_t i = 0; i < texts.size(); ++i)
            texts[i] = QString::fromLatin1(counterNames[i].key);
        return texts;
    }();
    return keys[static_cast<std::size_t>(counter)];
}

/// The counter of its own kind that a call adds to, beside the last, all and lifetime calls.
constexpr Counter ownCounter(CallKind kind, CallDirection direction)
{
    if (kind == CallKind::Data)
        return Counter::Data;
    return direction == CallDirection::Dialed ? Counter::Dialed : Counter::Answered;
}

} // namespace handset::calllog
