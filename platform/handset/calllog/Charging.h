// What the network charges, and the prepaid account.
#pragma once

#include "charging/ChargingState.h"

#include <QtCore/QString>

#include <optional>

namespace handset::calllog {

class Ledger;

/// Operations return a status of handset/Status.h; one that fails has changed nothing. What is set is kept in the
/// ledger; what cannot be read is nothing.
class Charging
{
public:
    /// Why the handset ended the last call by itself.
    enum class StopReason {
        None,         ///< it did not
        LimitReached, ///< the accumulated call meter has reached its maximum
        CreditUsedUp  ///< nothing is left on the prepaid account
    };

    /// A charged call that can go on no longer than this is near its end (3GPP TS 27.007, +CCWE: about 30 s).
    static constexpr qint64 warningMs = 30'000;

    /// `owner` outlives this.
    explicit Charging(Ledger &owner)
        : ledger(owner)
    {}

    /// What the next call that is dialed, or answered, costs; a tariff of nothing for what is no direction.
    charging::Tariff tariff(CallDirection direction) const;
    /// Holds from the next call on. InvalidArgument for an element out of its range and for what is no direction.
    int setTariff(CallDirection direction, const charging::Tariff &tariff);

    /// Pays `amount` in: a decimal text in the unit of the charge type, rounded down to whole units. The credit saturates
    /// at Account::greatestCredit. InvalidArgument for what is no amount of at least one unit and at most 24 bits of
    /// them, and for a day that is none.
    int topUp(const QString &amount, const Date &expires);
    /// Nothing until something has been paid in: then the handset is not a prepaid one.
    std::optional<charging::Account> account() const;

    /// As ChargingState::unitsLeft(), now.
    std::optional<quint32> unitsLeft() const;
    /// What the connected call has cost so far; 0 without one.
    quint64 runningUnits() const;
    /// How long the connected call may still go on until the handset ends it, in ms; nothing when it may go on.
    std::optional<qint64> msLeft() const;
    bool isTimeUp() const { return msLeft() == qint64{0}; }

    /// Of the last call; None again as soon as another begins.
    StopReason stopReason() const { return lastStop; }
    /// The call that has just been ended has been ended because its time was up.
    void callStopped();
    void callBegins() { lastStop = StopReason::None; }

private:
    Ledger &ledger;
    StopReason lastStop = StopReason::None;
};

} // namespace handset::calllog
