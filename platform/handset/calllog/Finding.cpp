#include "calllog/Finding.h"

#include <QtCore/QRegularExpression>

#include <cstring>

namespace handset::calllog {

Finding blocked(int error)
{
    return {Verdict::Blocked, QString::fromLocal8Bit(std::strerror(error))};
}

Finding blocked(int error, const QString &file)
{
    return {Verdict::Blocked, inFile(file, blocked(error).reason)};
}

QString inFile(const QString &file, const QString &reason)
{
    return QStringLiteral("\"%1\": %2").arg(file, reason);
}

Finding failure(int code, const QString &reason)
{
    switch (code) {
    case sqlite::Corrupt:
    case sqlite::NotADatabase:
        return {Verdict::Damaged, reason};
    case sqlite::Busy:
    case sqlite::Locked:
        return {Verdict::Blocked, QStringLiteral("another process is using it")};
    }
    return {Verdict::Blocked, reason};
}

Finding failure(const Database &database)
{
    return failure(database.lastError().code(), database.lastError().reason);
}

bool isDamage(const sqlite::Failure &error)
{
    switch (error.code()) {
    case sqlite::Error:
    case sqlite::Corrupt:
    case sqlite::NotADatabase:
        return true;
    }
    return false;
}

Finding judgeCheck(const QString &line)
{
    if (line == QLatin1String("ok"))
        return {};
    // The check goes on when a page cannot be read, and says so among what is wrong; of a free page without the reason.
    static const QRegularExpression pageError(
        QStringLiteral("unable to get the page\\. error code=(\\d+)|failed to get page \\d+"));
    const QRegularExpressionMatch match = pageError.match(line);
    const int code = match.captured(1).toInt() & 0xff;
    if (match.hasMatch() && code != sqlite::Corrupt && code != sqlite::NotADatabase)
        return {Verdict::Blocked, QStringLiteral("a page of it cannot be read")};
    return {Verdict::Damaged, line};
}

QString explain(const Finding &finding)
{
    if (!finding.reason.isEmpty())
        return finding.reason;
    switch (finding.verdict) {
    case Verdict::Usable:
        return QStringLiteral("nothing is wrong with it");
    case Verdict::Missing:
        return QStringLiteral("it is missing");
    case Verdict::Damaged:
        return QStringLiteral("it is damaged");
    case Verdict::Lost:
        return QStringLiteral("it is empty");
    case Verdict::Foreign:
        return QStringLiteral("it is not a call log");
    case Verdict::Newer:
        return QStringLiteral("it was written by a newer version");
    case Verdict::Older:
        return QStringLiteral("it was written by an earlier version");
    case Verdict::Blocked:
        break;
    }
    return QStringLiteral("the reason is unknown");
}

} // namespace handset::calllog
