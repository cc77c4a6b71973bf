// Sums in SQL that stop at the end of their range.
#pragma once

#include <QtCore/QString>

namespace handset::calllog {

/// An assignment of UPDATE that adds a bound value to a column, both 0 or more, up to 2^63 - 1. SQLite's own sum turns
/// into a floating-point number beyond that, which is the greater of the two.
inline QString saturatingAddSql(const char *column, const char *value)
{
    return QStringLiteral("%1 = min(9223372036854775807, %1 + %2)")
        .arg(QLatin1String(column), QLatin1String(value));
}

} // namespace handset::calllog
