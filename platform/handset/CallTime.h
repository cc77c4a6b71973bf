// A duration as the handset reports it.
#pragma once

#include <QtCore/QtGlobal>

#include <limits>

namespace handset {

struct CallTime {
    quint32 hours = 0;  ///< 0 to 4294967295, where the time saturates at 59 min 59 s
    quint8 minutes = 0; ///< 0 to 59
    quint8 seconds = 0; ///< 0 to 59

    friend bool operator==(const CallTime &, const CallTime &) = default;

    /// Of a duration in whole seconds; beyond 4294967295 h 59 min 59 s that is the answer.
    static constexpr CallTime fromSeconds(quint64 seconds)
    {
        constexpr quint64 maximumHours = std::numeric_limits<quint32>::max();
        const quint64 hours = seconds / 3600;
        if (hours > maximumHours)
            return {static_cast<quint32>(maximumHours), 59, 59};
        return {static_cast<quint32>(hours), static_cast<quint8>(seconds / 60 % 60),
                static_cast<quint8>(seconds % 60)};
    }
};

} // namespace handset
