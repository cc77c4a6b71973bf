// A call as the handset records it.
#pragma once

#include <QtCore/QString>
#include <QtCore/QtGlobal>

namespace handset {

enum class CallKind {
    Voice,
    Data ///< circuit-switched
};

enum class CallDirection { Dialed, Answered };

/// False for a number that is none of them: a value may come from a cast.
constexpr bool isKnown(CallKind kind)
{
    switch (kind) {
    case CallKind::Voice:
    case CallKind::Data:
        return true;
    }
    return false;
}
constexpr bool isKnown(CallDirection direction)
{
    switch (direction) {
    case CallDirection::Dialed:
    case CallDirection::Answered:
        return true;
    }
    return false;
}

/// A call that is over.
struct PastCall {
    CallKind kind = CallKind::Voice;
    CallDirection direction = CallDirection::Dialed;
    QString number;         ///< as dialed or shown; may be empty (withheld)
    qint64 startWallMs = 0; ///< since 1970-01-01 00:00 UTC: when it was dialed or began to ring
    qint64 durationMs = 0;  ///< connected time, 0 or more; 0 is a call that was never connected
    qint64 units = 0;       ///< charged, 0 or more
    bool isLate = false;    ///< it had gone on before it was counted, nobody knows how long

    friend bool operator==(const PastCall &, const PastCall &) = default;
};

} // namespace handset
