// What of the simulation's charging outlasts a restart.
#pragma once

#include "Charge.h"
#include "ChargingControl.h"
#include "SimCard.h"

#include <array>

namespace handset::simulated {

/// A value: copies are states of their own.
struct ChargingState {
    sim::SimCard card;
    quint8 chargeType = AdviceOfCharge::InUnits;
    std::array<sim::Tariff, 2> tariffs; ///< dialed, answered
    std::optional<Account> account;

    /// A new card; dialed calls cost a unit for every ten seconds, answered calls nothing; no account.
    ChargingState();

    sim::Tariff &tariff(CallDirection direction) { return tariffs[static_cast<std::size_t>(direction)]; }
    const sim::Tariff &tariff(CallDirection direction) const
    {
        return tariffs[static_cast<std::size_t>(direction)];
    }

    /// As ChargingControl::unitsLeft().
    std::optional<quint32> unitsLeft() const;
    /// Counts units on the meter and takes them off the credit, each as far as it goes.
    void charge(quint64 units);
};

/// Whether calls under this tariff ever cost anything.
bool costsAnything(const sim::Tariff &tariff);

/// The names under which the call log keeps the state: the card as sim::saveCard() has it, the rest as a JSON object
/// of numbers and a check
///
///     {"version": 2, "chargeType": 0, "dialed": [e1 to e7], "answered": [e1 to e7],
///      "credit": units, "deposit": units, "expires": [year, month, day], "check": text}
///
/// with credit, deposit and day only where there is an account. The check is the first 20 bytes, in hexadecimal digits,
/// of the SHA-256 hash of the object without it: written without blanks, its members in the order of their names.
/// Version 1 has none; one that has is damaged.
inline constexpr auto keptCardName = "card";
inline constexpr auto keptChargingName = "charging";

calllog::KeptValues keptValues(const ChargingState &state);
/// Those of `after` that are others than those of `before`, which are kept already or are a new telephone's.
calllog::KeptValues changedValues(const ChargingState &before, const ChargingState &after);

/// Reads back what was kept. What a new call log has there leaves `state` as it is. False for what cannot be used:
/// damaged, of a later version, or missing (a null array).
bool readCard(const QByteArray &kept, ChargingState &state);
bool readCharging(const QByteArray &kept, ChargingState &state);
/// Whether this is what a new call log has in the place of a value.
bool isNeverWritten(const QByteArray &kept);
/// Whether what was read has no check yet, and should be written anew.
bool isUnchecked(const QByteArray &keptCharging);

} // namespace handset::simulated
