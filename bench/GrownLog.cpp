#include "bench/GrownLog.h"

#include <QtCore/QFile>

#include <sqlite3.h>

#include <memory>

namespace bench {

namespace {

struct Close {
    void operator()(sqlite3 *database) const { sqlite3_close(database); }
};
struct Free {
    void operator()(char *text) const { sqlite3_free(text); }
};
using Database = std::unique_ptr<sqlite3, Close>;
using Text = std::unique_ptr<char, Free>;

// Nothing but this program has the file, and one that is not finished is not used: no journal is needed.
constexpr auto begin = "PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF; ATTACH %Q AS original; BEGIN;";

constexpr auto addCalls =
    "WITH RECURSIVE round(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM round WHERE n < %d - 1)"
    " INSERT INTO main.calls (kind, direction, number, started_ms, duration_ms, state, units)"
    " SELECT kind, direction, number, started_ms + n * (SELECT max(started_ms) - min(started_ms) FROM "
    "original.calls), duration_ms, state, units FROM round CROSS JOIN original.calls;";

constexpr auto addTotals = "UPDATE main.totals SET ms = ms * %d WHERE counter <> 'last';"
                           "UPDATE main.costs SET units = units * %d WHERE counter <> 'last';";

constexpr auto end = "COMMIT; DETACH original; PRAGMA journal_mode = WAL;";

} // namespace

QString growLog(const QString &log, const QString &original, int times)
{
    sqlite3 *opened = nullptr;
    int code = sqlite3_open_v2(QFile::encodeName(log).constData(), &opened, SQLITE_OPEN_READWRITE, nullptr);
    const Database database(opened);
    const auto run = [&](char *sql) {
        const Text text(sql);
        if (code == SQLITE_OK)
            code = sqlite3_exec(database.get(), text.get(), nullptr, nullptr, nullptr);
    };
    run(sqlite3_mprintf(begin, QFile::encodeName(original).constData()));
    run(sqlite3_mprintf(addCalls, times));
    run(sqlite3_mprintf(addTotals, times, times));
    run(sqlite3_mprintf(end));
    return code == SQLITE_OK ? QString() : QString::fromUtf8(sqlite3_errmsg(database.get()));
}

} // namespace bench
