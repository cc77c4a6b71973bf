// The running totals that the call log keeps.
#pragma once

#include "handset/Call.h"

#include <QtCore/QtGlobal>

#include <array>
#include <optional>
#include <span>

namespace handset::calllog {

/// Each is 0 to 2^63 - 1, where it saturates, and counts since its reset; the lifetime calls have none. Times are in
/// milliseconds, costs in charging units.
enum class Total {
    LastTime, ///< of the last connected call
    DialedTime,
    AnsweredTime,
    DataTime,     ///< circuit-switched data calls
    AllTime,      ///< every connected call
    LifetimeTime, ///< every connected call ever
    LastCost,
    DialedCost,
    AnsweredCost,
    SessionTime, ///< packet data
    BytesSent,
    BytesReceived
};

/// Where a total stands in the database; never change one.
struct TotalPlace {
    Total total;
    const char *table;
    const char *column;
    const char *key;
};

inline constexpr std::array totalPlaces{
    TotalPlace{Total::LastTime, "totals", "ms", "last"},
    TotalPlace{Total::DialedTime, "totals", "ms", "dialed"},
    TotalPlace{Total::AnsweredTime, "totals", "ms", "answered"},
    TotalPlace{Total::DataTime, "totals", "ms", "data"},
    TotalPlace{Total::AllTime, "totals", "ms", "all"},
    TotalPlace{Total::LifetimeTime, "totals", "ms", "lifetime"},
    TotalPlace{Total::LastCost, "costs", "units", "last"},
    TotalPlace{Total::DialedCost, "costs", "units", "dialed"},
    TotalPlace{Total::AnsweredCost, "costs", "units", "answered"},
    TotalPlace{Total::SessionTime, "session_totals", "value", "duration"},
    TotalPlace{Total::BytesSent, "session_totals", "value", "sent"},
    TotalPlace{Total::BytesReceived, "session_totals", "value", "received"},
};
static_assert(totalPlaces.size() == 12);
static_assert(
    [] {
        for (std::size_t i = 0; i < totalPlaces.size(); ++i)
            if (static_cast<std::size_t>(totalPlaces[i].total) != i)
                return false;
        return true;
    }(),
    "totalPlaces is indexed by the total");

/// Those of a table.
inline constexpr std::span<const TotalPlace> timePlaces = std::span(totalPlaces).first<6>();
inline constexpr std::span<const TotalPlace> costPlaces = std::span(totalPlaces).subspan<6, 3>();
inline constexpr std::span<const TotalPlace> sessionPlaces = std::span(totalPlaces).last<3>();

constexpr const TotalPlace &placeOf(Total total)
{
    return totalPlaces[static_cast<std::size_t>(total)];
}

/// The time of its own kind that a call adds to, beside those of the last, all and lifetime calls.
constexpr Total ownTime(CallKind kind, CallDirection direction)
{
    if (kind == CallKind::Data)
        return Total::DataTime;
    return direction == CallDirection::Dialed ? Total::DialedTime : Total::AnsweredTime;
}

/// The cost of its own kind that a call adds to, beside the last call's; nothing for a data call.
constexpr std::optional<Total> ownCost(CallKind kind, CallDirection direction)
{
    if (kind == CallKind::Data)
        return std::nullopt;
    return direction == CallDirection::Dialed ? Total::DialedCost : Total::AnsweredCost;
}

/// What a session, or all of them, have come to: each 0 to 2^63 - 1, where it saturates.
struct SessionAmounts {
    qint64 ms = 0;
    qint64 sent = 0;     ///< bytes
    qint64 received = 0; ///< bytes
};

} // namespace handset::calllog
