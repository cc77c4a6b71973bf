#include "Finding.h"

#include <cstring>

namespace handset::calllog {

Finding blocked(int error)
{
    return {Verdict::Blocked, QString::fromLocal8Bit(std::strerror(error))};
}

Finding failure(const Database &database)
{
    const QSqlError &error = database.lastError();
    switch (sqlite::code(error)) {
    case sqlite::Error: // the tables are not those of a call log
    case sqlite::Corrupt:
    case sqlite::NotADatabase:
        return {Verdict::Damaged, sqlite::reason(error)};
    case sqlite::Busy:
    case sqlite::Locked:
        return {Verdict::Blocked, QStringLiteral("another process is using it")};
    }
    return {Verdict::Blocked, sqlite::reason(error)};
}

} // namespace handset::calllog
