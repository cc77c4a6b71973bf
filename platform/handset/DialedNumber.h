// Which numbers can be dialed.
#pragma once

#include <QtCore/QString>

#include <algorithm>

namespace handset {

/// As a SIM can hold it and a keypad can dial it: 1 to 80 of the digits, "+", "*" and "#".
inline bool isDialable(const QString &number)
{
    constexpr qsizetype longestNumber = 80;
    const auto isKey = [](QChar c) { return (c >= u'0' && c <= u'9') || c == u'+' || c == u'*' || c == u'#'; };
    return !number.isEmpty() && number.size() <= longestNumber && std::all_of(number.begin(), number.end(), isKey);
}

} // namespace handset
