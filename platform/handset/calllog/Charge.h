// What calls cost, as the call log keeps it.
#pragma once

#include "Counter.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>

#include <array>
#include <optional>

namespace handset::calllog {

/// Each in charging units, 0 to 2^63 - 1, where it stops.
enum class CostCounter {
    Last,    ///< the last connected call
    Dialed,  ///< dialed voice calls since their reset
    Answered ///< answered voice calls since their reset
};

struct CostCounterName {
    CostCounter counter;
    const char *key; ///< in the database; never change one
};

inline constexpr std::array costCounterNames{
    CostCounterName{CostCounter::Last, "last"},
    CostCounterName{CostCounter::Dialed, "dialed"},
    CostCounterName{CostCounter::Answered, "answered"},
};
static_assert(costCounterNames.size() == 3);
static_assert(
    [] {
        for (std::size_t i = 0; i < costCounterNames.size(); ++i)
            if (static_cast<std::size_t>(costCounterNames[i].counter) != i)
                return false;
        return true;
    }(),
    "costCounterNames is indexed by the counter");

inline const QString &costCounterKey(CostCounter counter)
{
    static const auto keys = [] {
        std::array<QString, costCounterNames.size()> texts;
        for (std::size_t i = 0; i < texts.size(); ++i)
            texts[i] = QString::fromLatin1(costCounterNames[i].key);
        return texts;
    }();
    return keys[static_cast<std::size_t>(counter)];
}

/// The counter of its own kind that a call's cost adds to, beside the last call's; nothing for a data call.
constexpr std::optional<CostCounter> ownCostCounter(Counter ownTime)
{
    switch (ownTime) {
    case Counter::Dialed:
        return CostCounter::Dialed;
    case Counter::Answered:
        return CostCounter::Answered;
    case Counter::Last:
    case Counter::Data:
    case Counter::All:
    case Counter::Lifetime:
        break;
    }
    return std::nullopt;
}

/// Something that a backend keeps in the call log under a name, whole: a card, an account.
struct KeptValue {
    QString name;
    QByteArray content;
};
using KeptValues = QList<KeptValue>;

/// What is due on a running call, and what changes with it.
struct Charge {
    qint64 units = 0; ///< 0 or more
    KeptValues kept;  ///< in the same transaction
};

/// Knows what the connected call costs.
class CallCharges
{
public:
    virtual ~CallCharges() = default;

    /// The connected time at which the call is over whatever anyone does, in ms; nothing when there is no such end.
    virtual std::optional<qint64> longestMs() const = 0;
    /// What is due after `connectedMs` and has not been charged yet.
    virtual Charge due(qint64 connectedMs) const = 0;
    /// It is charged now: it is written, or is with the call's end as soon as that can be written.
    virtual void charged(const Charge &charge) = 0;
};

} // namespace handset::calllog
