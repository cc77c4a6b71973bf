// A day as the handset reports it.
#pragma once

#include <QtCore/QtGlobal>

namespace handset {

struct Date {
    quint16 year = 0; ///< 1 to 65535, Gregorian; 0 in a record that was not filled
    quint8 month = 0; ///< 1 to 12
    quint8 day = 0;   ///< 1 to 31

    friend bool operator==(const Date &, const Date &) = default;
};

} // namespace handset
