// What is charged by, and what changes when something is charged.
#pragma once

#include "charging/SimCard.h"
#include "charging/Tariff.h"
#include "handset/Call.h"
#include "handset/Date.h"

#include <array>
#include <optional>

namespace handset::charging {

/// A prepaid account, in charging units.
struct Account {
    quint64 credit = 0;  ///< left, 0 to greatestCredit
    quint64 deposit = 0; ///< the last one
    Date expires;        ///< until when the last deposit is good

    static constexpr quint64 greatestCredit = 0xFFFFFFFF;

    friend bool operator==(const Account &, const Account &) = default;
};

/// 3GPP TS 22.101, 10.1.1: the numbers that every handset knows. A call that is dialed to one costs nothing.
inline constexpr std::array emergencyNumbers{"112", "911"};

/// A value: copies are states of their own.
struct ChargingState {
    SimCard card;
    quint8 chargeType = AdviceOfCharge::InUnits;
    std::array<Tariff, 2> tariffs; ///< dialed, answered
    std::optional<Account> account;

    /// A new card; dialed calls cost a unit for every ten seconds, answered calls nothing; no account.
    ChargingState();

    Tariff &tariff(CallDirection direction) { return tariffs[static_cast<std::size_t>(direction)]; }
    const Tariff &tariff(CallDirection direction) const { return tariffs[static_cast<std::size_t>(direction)]; }

    /// What a call costs that begins now.
    Tariff tariffOf(const PastCall &call) const;
    /// Units that may still be charged: up to the meter's maximum and, with an account, to the end of the credit.
    /// Nothing where neither sets an end.
    std::optional<quint32> unitsLeft() const;
    /// Whether a call under this tariff may begin or go on.
    bool permits(const Tariff &tariff) const;
    /// How long a call may last that has been charged `units`, all of it; nothing where nothing ends it.
    std::optional<qint64> longestMs(const Tariff &tariff, quint32 units) const;
    /// Counts units on the meter and takes them off the credit, each as far as it goes.
    void charge(quint64 units);
};

/// The tariff of a running call, its elements in two bytes each, the higher one first.
QByteArray tariffRecord(const Tariff &tariff);
/// False for bytes that are none; `tariff` has no meaning then.
bool readTariff(QByteArrayView kept, Tariff &tariff);

/// The card as bytes to keep: saveCard(), and a byte behind it while PIN2 is entered.
QByteArray cardRecord(const SimCard &card);
/// The rest as bytes to keep, a JSON object of numbers and a check
///
///     {"version": 2, "chargeType": 0, "dialed": [e1 to e7], "answered": [e1 to e7],
///      "credit": units, "deposit": units, "expires": [year, month, day], "check": text}
///
/// with credit, deposit and day only where there is an account. The check is the first 20 bytes, in hexadecimal digits,
/// of the SHA-256 hash of the object without it: written without blanks, its members in the order of their names.
/// Version 1 has none; one that has is damaged.
QByteArray chargingRecord(const ChargingState &state);

/// Whether both have the same card record; asks for no code of a new card.
bool isSameCard(const SimCard &one, const SimCard &other);
/// Whether both have the same charging record.
bool isSameCharging(const ChargingState &one, const ChargingState &other);

/// Reads back what was kept. What a new call log has there leaves `state` as it is. False for what cannot be used:
/// damaged, of a later version, or missing (a null array).
bool readCard(const QByteArray &kept, ChargingState &state);
bool readCharging(const QByteArray &kept, ChargingState &state);
/// Whether this is what a new call log has in the place of a value.
bool isNeverWritten(const QByteArray &kept);
/// Whether this is of the version that has no check.
bool isUnchecked(const QByteArray &keptCharging);

} // namespace handset::charging
