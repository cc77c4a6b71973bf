// What the simulation's network charges, and the prepaid account.
#pragma once

#include "Call.h"
#include "Date.h"
#include "Tariff.h"

#include <QtCore/QString>

#include <optional>

namespace handset::simulated {

/// A prepaid account, in charging units.
struct Account {
    quint64 credit = 0;  ///< left, 0 to greatestCredit
    quint64 deposit = 0; ///< the last one
    Date expires;        ///< until when the last deposit is good

    static constexpr quint64 greatestCredit = 0xFFFFFFFF;

    friend bool operator==(const Account &, const Account &) = default;
};

/// Operations answer a status of handset/Status.h; one that fails has changed nothing. What is set is kept like the
/// call log.
class ChargingControl
{
public:
    /// Why the telephone ended the last call by itself.
    enum class StopReason {
        None,         ///< it did not
        LimitReached, ///< the accumulated call meter has reached its maximum
        CreditUsedUp  ///< nothing is left on the prepaid account
    };

    /// A charged call that can go on no longer than this is near its end (3GPP TS 27.007, +CCWE: about 30 s).
    static constexpr qint64 warningMs = 30'000;

    virtual ~ChargingControl() = default;

    /// What the next call that is dialed, or answered, costs; a tariff of nothing for what is no direction.
    virtual sim::Tariff tariff(CallDirection direction) const = 0;
    /// Holds from the next call on. InvalidArgument for an element out of its range and for what is no direction.
    virtual int setTariff(CallDirection direction, const sim::Tariff &tariff) = 0;

    /// Pays `amount` in: a decimal text in the unit of the charge type, rounded down to whole units. The credit stops
    /// at Account::greatestCredit. InvalidArgument for what is no amount of at least one unit and at most 24 bits of
    /// them, and for a day that is none.
    virtual int topUp(const QString &amount, const Date &expires) = 0;
    /// Nothing until something has been paid in: then the telephone is not a prepaid one.
    virtual std::optional<Account> account() const = 0;

    /// Units that may still be charged: up to the meter's maximum and, with an account, to the end of the credit.
    /// Nothing where neither sets an end.
    virtual std::optional<quint32> unitsLeft() const = 0;
    /// What the connected call has cost so far; 0 without one.
    virtual quint64 runningUnits() const = 0;
    /// How long the connected call may still go on until the telephone ends it, in ms; nothing when it may go on.
    virtual std::optional<qint64> msLeft() const = 0;
    /// Of the last call; None again as soon as another begins.
    virtual StopReason stopReason() const = 0;
};

} // namespace handset::simulated
