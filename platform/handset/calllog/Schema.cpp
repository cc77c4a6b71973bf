#include "calllog/Schema.h"

#include <QtCore/QCoreApplication>

#include <array>

namespace handset::calllog {

namespace {

constexpr std::array toVersion1{
    // kind: 0 voice, 1 data. direction: 0 dialed, 1 answered. state: CallState.
    "CREATE TABLE calls ("
    " id INTEGER PRIMARY KEY,"
    " kind INTEGER NOT NULL CHECK (kind IN (0, 1)),"
    " direction INTEGER NOT NULL CHECK (direction IN (0, 1)),"
    " number TEXT NOT NULL,"
    " started_ms INTEGER NOT NULL,"
    " duration_ms INTEGER NOT NULL CHECK (duration_ms >= 0),"
    " state INTEGER NOT NULL CHECK (state IN (0, 1, 2, 3))"
    ") STRICT",
    // Finds a call that was never closed without looking at all the others.
    "CREATE INDEX running_calls ON calls (state) WHERE state = 0",
    "CREATE TABLE totals (counter TEXT PRIMARY KEY, ms INTEGER NOT NULL CHECK (ms >= 0)) STRICT, WITHOUT ROWID",
    "INSERT INTO totals (counter, ms) VALUES"
    " ('last', 0), ('dialed', 0), ('answered', 0), ('data', 0), ('all', 0), ('lifetime', 0)",
};

constexpr std::array toVersion2{
    "ALTER TABLE calls ADD COLUMN units INTEGER NOT NULL DEFAULT 0 CHECK (units >= 0)",
    "CREATE TABLE costs (counter TEXT PRIMARY KEY, units INTEGER NOT NULL CHECK (units >= 0)) STRICT, WITHOUT "
    "ROWID",
    "INSERT INTO costs (counter, units) VALUES ('last', 0), ('dialed', 0), ('answered', 0)",
    // What a backend keeps beside the calls, under names of its own.
    "CREATE TABLE kept (name TEXT PRIMARY KEY, content BLOB NOT NULL) STRICT, WITHOUT ROWID",
    // Packet data. state: CallState, never NotConnected. The access point name is Latin-1.
    "CREATE TABLE sessions ("
    " id INTEGER PRIMARY KEY,"
    " apn TEXT NOT NULL,"
    " started_ms INTEGER NOT NULL,"
    " duration_ms INTEGER NOT NULL CHECK (duration_ms >= 0),"
    " sent INTEGER NOT NULL CHECK (sent >= 0),"
    " received INTEGER NOT NULL CHECK (received >= 0),"
    " state INTEGER NOT NULL CHECK (state IN (0, 1, 3))"
    ") STRICT",
    "CREATE INDEX running_sessions ON sessions (state) WHERE state = 0",
    // Milliseconds and bytes.
    "CREATE TABLE session_totals (counter TEXT PRIMARY KEY, value INTEGER NOT NULL CHECK (value >= 0))"
    " STRICT, WITHOUT ROWID",
    "INSERT INTO session_totals (counter, value) VALUES ('duration', 0), ('sent', 0), ('received', 0)",
};

constexpr std::array toVersion3{
    // What the totals count of calls and sessions whose rows went with a damaged page: milliseconds and units of calls,
    // and of sessions as in session_totals. NULL where that is not known, in a log of an earlier version, until it is
    // read through.
    "CREATE TABLE lost (counter TEXT PRIMARY KEY, value INTEGER CHECK (value >= 0)) STRICT, WITHOUT ROWID",
    "INSERT INTO lost SELECT 'calls', CASE ms WHEN 0 THEN 0 END FROM totals WHERE counter = 'lifetime'",
    "INSERT INTO lost SELECT 'units', CASE max(units) WHEN 0 THEN 0 END FROM costs",
    "INSERT INTO lost SELECT counter, CASE value WHEN 0 THEN 0 END FROM session_totals",
    // From here on a backend's value that is missing has been lost; one that was never written reads "new".
    "INSERT OR IGNORE INTO kept (name, content) VALUES ('card', x'6E6577'), ('charging', x'6E6577')",
};

// No row changes for these, so the definitions are put in their places as they are: a new column is NULL in every row
// that is there, and a check that allows the same needs no row to be read. BETWEEN costs a fifth of what IN does, which
// makes a table of its list for every row.
constexpr std::array toVersion4{
    "PRAGMA writable_schema = ON",
    // Of the running call: the boot, and the reading of its clock in ms, up to which it is written; its longest time in
    // ms; its tariff, e1 to e7 in two bytes each. NULL when it is over.
    "UPDATE sqlite_schema SET sql = 'CREATE TABLE calls ("
    " id INTEGER PRIMARY KEY,"
    " kind INTEGER NOT NULL CHECK (kind BETWEEN 0 AND 1),"
    " direction INTEGER NOT NULL CHECK (direction BETWEEN 0 AND 1),"
    " number TEXT NOT NULL,"
    " started_ms INTEGER NOT NULL,"
    " duration_ms INTEGER NOT NULL CHECK (duration_ms >= 0),"
    " state INTEGER NOT NULL CHECK (state BETWEEN 0 AND 3),"
    " units INTEGER NOT NULL DEFAULT 0 CHECK (units >= 0),"
    " boot TEXT, written_ms INTEGER, most_ms INTEGER, tariff BLOB"
    ") STRICT' WHERE name = 'calls'",
    // The same of the running session, and the bytes that it counts in a second.
    "UPDATE sqlite_schema SET sql = 'CREATE TABLE sessions ("
    " id INTEGER PRIMARY KEY,"
    " apn TEXT NOT NULL,"
    " started_ms INTEGER NOT NULL,"
    " duration_ms INTEGER NOT NULL CHECK (duration_ms >= 0),"
    " sent INTEGER NOT NULL CHECK (sent >= 0),"
    " received INTEGER NOT NULL CHECK (received >= 0),"
    " state INTEGER NOT NULL CHECK (state BETWEEN 0 AND 3 AND state <> 2),"
    " boot TEXT, written_ms INTEGER, sent_per_s INTEGER, received_per_s INTEGER"
    ") STRICT' WHERE name = 'sessions'",
    "PRAGMA writable_schema = RESET",
};

// Several calls run at once. Of a running one besides: how it is charged (Charge), and whether it is the last call; NULL
// when it is over. late: the call had gone on before it was counted.
constexpr std::array toVersion5{
    "PRAGMA writable_schema = ON",
    "UPDATE sqlite_schema SET sql = 'CREATE TABLE calls ("
    " id INTEGER PRIMARY KEY,"
    " kind INTEGER NOT NULL CHECK (kind BETWEEN 0 AND 1),"
    " direction INTEGER NOT NULL CHECK (direction BETWEEN 0 AND 1),"
    " number TEXT NOT NULL,"
    " started_ms INTEGER NOT NULL,"
    " duration_ms INTEGER NOT NULL CHECK (duration_ms >= 0),"
    " state INTEGER NOT NULL CHECK (state BETWEEN 0 AND 3),"
    " units INTEGER NOT NULL DEFAULT 0 CHECK (units >= 0),"
    " boot TEXT, written_ms INTEGER, most_ms INTEGER, tariff BLOB, charge INTEGER, is_last INTEGER,"
    " late INTEGER NOT NULL DEFAULT 0 CHECK (late BETWEEN 0 AND 1)"
    ") STRICT' WHERE name = 'calls'",
    "PRAGMA writable_schema = RESET",
};

// Of a running row: until where the process that records has written it, ms of the boot's clock; written_ms may be
// another's. NULL when it is over.
constexpr std::array toVersion6{
    "PRAGMA writable_schema = ON",
    "UPDATE sqlite_schema SET sql = 'CREATE TABLE calls ("
    " id INTEGER PRIMARY KEY,"
    " kind INTEGER NOT NULL CHECK (kind BETWEEN 0 AND 1),"
    " direction INTEGER NOT NULL CHECK (direction BETWEEN 0 AND 1),"
    " number TEXT NOT NULL,"
    " started_ms INTEGER NOT NULL,"
    " duration_ms INTEGER NOT NULL CHECK (duration_ms >= 0),"
    " state INTEGER NOT NULL CHECK (state BETWEEN 0 AND 3),"
    " units INTEGER NOT NULL DEFAULT 0 CHECK (units >= 0),"
    " boot TEXT, written_ms INTEGER, most_ms INTEGER, tariff BLOB, charge INTEGER, is_last INTEGER,"
    " late INTEGER NOT NULL DEFAULT 0 CHECK (late BETWEEN 0 AND 1),"
    " recorded_ms INTEGER"
    ") STRICT' WHERE name = 'calls'",
    "UPDATE sqlite_schema SET sql = 'CREATE TABLE sessions ("
    " id INTEGER PRIMARY KEY,"
    " apn TEXT NOT NULL,"
    " started_ms INTEGER NOT NULL,"
    " duration_ms INTEGER NOT NULL CHECK (duration_ms >= 0),"
    " sent INTEGER NOT NULL CHECK (sent >= 0),"
    " received INTEGER NOT NULL CHECK (received >= 0),"
    " state INTEGER NOT NULL CHECK (state BETWEEN 0 AND 3 AND state <> 2),"
    " boot TEXT, written_ms INTEGER, sent_per_s INTEGER, received_per_s INTEGER,"
    " recorded_ms INTEGER"
    ") STRICT' WHERE name = 'sessions'",
    "PRAGMA writable_schema = RESET",
};

constexpr std::array<Migration, 6> allSteps{toVersion1, toVersion2, toVersion3,
                                            toVersion4, toVersion5, toVersion6};

/// What SQLite's virtual machine does to check one row of `calls` when it gets a column: measured with 3.40, over a
/// million rows. With another SQLite a step only seems to be slower or faster towards its end.
constexpr int machineStepsPerCall = 48;

// None of them in a database without tables.
qint64 countCalls(Database &database, qint64 version)
{
    return version == 0 ? 0 : database.number(QStringLiteral("SELECT max(id) FROM calls")).value_or(0);
}

bool runStep(Database &database, Migration step, qint64 version, const ProgressListener &listener)
{
    Progress progress(listener, QCoreApplication::translate("handset", "Bringing the call log up to date"),
                      countCalls(database, version - 1));
    const auto countCall = [&progress] {
        progress.oneIsDone();
        return false; // goes on
    };
    const Interruption counting(database.handle(), countCall, machineStepsPerCall);
    const bool done = database.inTransaction([&] {
        for (const char *statement : step)
            if (!database.run(QString::fromLatin1(statement)))
                return false;
        return database.run(QStringLiteral("PRAGMA application_id = %1").arg(applicationId)) &&
               database.run(QStringLiteral("PRAGMA user_version = %1").arg(version));
    });
    if (done)
        progress.finish();
    return done;
}

} // namespace

std::span<const Migration> migrations()
{
    return allSteps;
}

bool migrate(Database &database, std::span<const Migration> path, const ProgressListener &listener)
{
    const std::optional<qint64> version = database.number(QStringLiteral("PRAGMA user_version"));
    if (!version)
        return false;
    for (qint64 at = *version; at < static_cast<qint64>(path.size()); ++at)
        if (!runStep(database, path[static_cast<std::size_t>(at)], at + 1, listener))
            return false;
    return true;
}

} // namespace handset::calllog
