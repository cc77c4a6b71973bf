#include "bench/LeanLog.h"

#include <QtCore/QFile>

#include <sqlite3.h>

namespace bench {

namespace {

constexpr int cardBytes = 150; // of the handset's, too

// The handset's tables with its constraints, put so that they cost least: IN would build a table of its own each time.
constexpr auto schema =
    "PRAGMA journal_mode = WAL; PRAGMA synchronous = FULL; PRAGMA foreign_keys = ON; PRAGMA cell_size_check = ON;"
    "CREATE TABLE calls ("
    " id INTEGER PRIMARY KEY,"
    " kind INTEGER NOT NULL CHECK (kind BETWEEN 0 AND 1),"
    " direction INTEGER NOT NULL CHECK (direction BETWEEN 0 AND 1),"
    " number TEXT NOT NULL,"
    " started_ms INTEGER NOT NULL,"
    " duration_ms INTEGER NOT NULL CHECK (duration_ms >= 0),"
    " state INTEGER NOT NULL CHECK (state BETWEEN 0 AND 3),"
    " units INTEGER NOT NULL DEFAULT 0 CHECK (units >= 0)"
    ") STRICT;"
    "CREATE INDEX running_calls ON calls (state) WHERE state = 0;"
    "CREATE TABLE totals (counter TEXT PRIMARY KEY, ms INTEGER NOT NULL CHECK (ms >= 0)) STRICT, WITHOUT ROWID;"
    "CREATE TABLE costs (counter TEXT PRIMARY KEY, units INTEGER NOT NULL CHECK (units >= 0)) STRICT, WITHOUT "
    "ROWID;"
    "CREATE TABLE kept (name TEXT PRIMARY KEY, content BLOB NOT NULL) STRICT, WITHOUT ROWID;";

constexpr auto copyAll =
    "INSERT INTO calls (id, kind, direction, number, started_ms, duration_ms, state, units)"
    " SELECT id, kind, direction, number, started_ms, duration_ms, state, units FROM theirs.calls;"
    "INSERT INTO totals (counter, ms) SELECT counter, ms FROM theirs.totals;"
    "INSERT INTO costs (counter, units) SELECT counter, units FROM theirs.costs;"
    "INSERT INTO kept (name, content) VALUES ('card', zeroblob(150));";

constexpr auto everyRow =
    " (SELECT 0, kind, direction, number, started_ms, duration_ms, state, units FROM %1.calls"
    " UNION ALL SELECT 1, counter, ms, 0, 0, 0, 0, 0 FROM %1.totals"
    " UNION ALL SELECT 2, counter, units, 0, 0, 0, 0, 0 FROM %1.costs) ";

QByteArray numberOfMissing(const char *here, const char *there)
{
    const QString all = QString::fromLatin1(everyRow);
    const QString sql = QStringLiteral("SELECT count(*) FROM (SELECT * FROM ") + all.arg(QLatin1StringView(here)) +
                        QStringLiteral("EXCEPT SELECT * FROM ") + all.arg(QLatin1StringView(there)) + u')';
    return sql.toUtf8();
}

} // namespace

void LeanLog::Finalize::operator()(sqlite3_stmt *statement) const
{
    sqlite3_finalize(statement);
}

LeanLog::LeanLog(const QString &file, const QString &handsetLog)
    : card(cardBytes, '\0')
{
    sqlite3_open_v2(QFile::encodeName(file).constData(), &database,
                    SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX, nullptr);
    if (!run(schema) || !attach(handsetLog) || !run(copyAll) || !run("DETACH theirs"))
        return;
    beginTransaction = prepare("BEGIN");
    commit = prepare("COMMIT");
    insertCall = prepare("INSERT INTO calls (kind, direction, number, started_ms, duration_ms, units, state)"
                         " VALUES (0, 0, ?1, ?2, 0, 0, 0)");
    finishCall = prepare("UPDATE calls SET state = 1, duration_ms = ?2, units = ?3 WHERE id = ?1");
    clearLastTime = prepare("UPDATE totals SET ms = 0 WHERE counter = 'last'");
    clearLastCost = prepare("UPDATE costs SET units = 0 WHERE counter = 'last'");
    // One walk over the few rows is cheaper than a statement for each.
    addTime = prepare("UPDATE totals SET ms = ms + ?1 WHERE +counter = 'dialed' OR +counter = 'all'"
                      " OR +counter = 'lifetime' OR +counter = 'last'");
    addCost = prepare("UPDATE costs SET units = units + ?1 WHERE +counter = 'dialed' OR +counter = 'last'");
    putCard = prepare("UPDATE kept SET content = ?1 WHERE name = 'card'");
}

LeanLog::~LeanLog()
{
    for (Statement *statement : {&beginTransaction, &commit, &insertCall, &finishCall, &clearLastTime,
                                 &clearLastCost, &addTime, &addCost, &putCard})
        statement->reset();
    sqlite3_close(database);
}

bool LeanLog::record(const handset::PastCall &call)
{
    return begin(call) && finish(call);
}

QString LeanLog::difference(const QString &handsetLog)
{
    if (!attach(handsetLog))
        return problem;
    qint64 missing = 0;
    for (const QByteArray &sql : {numberOfMissing("main", "theirs"), numberOfMissing("theirs", "main")}) {
        const Statement statement = prepare(sql.constData());
        if (!statement || sqlite3_step(statement.get()) != SQLITE_ROW)
            return QString::fromUtf8(sqlite3_errmsg(database));
        missing += sqlite3_column_int64(statement.get(), 0);
    }
    run("DETACH theirs");
    return missing == 0 ? QString() : QStringLiteral("%1 rows of the two logs differ").arg(missing);
}

bool LeanLog::run(const char *sql)
{
    if (sqlite3_exec(database, sql, nullptr, nullptr, nullptr) == SQLITE_OK)
        return true;
    problem = QString::fromUtf8(sqlite3_errmsg(database));
    return false;
}

LeanLog::Statement LeanLog::prepare(const char *sql)
{
    sqlite3_stmt *statement = nullptr;
    if (sqlite3_prepare_v3(database, sql, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr) != SQLITE_OK)
        problem = QString::fromUtf8(sqlite3_errmsg(database));
    return Statement(statement);
}

bool LeanLog::step(const Statement &statement)
{
    const bool done = sqlite3_step(statement.get()) == SQLITE_DONE;
    sqlite3_reset(statement.get());
    return done;
}

bool LeanLog::add(const Statement &statement, qint64 number, int rowCount)
{
    sqlite3_bind_int64(statement.get(), 1, number);
    return step(statement) && sqlite3_changes(database) == rowCount;
}

bool LeanLog::begin(const handset::PastCall &call)
{
    const QByteArray number = call.number.toUtf8();
    sqlite3_bind_text(insertCall.get(), 1, number.constData(), static_cast<int>(number.size()), SQLITE_STATIC);
    sqlite3_bind_int64(insertCall.get(), 2, call.startWallMs);
    return step(beginTransaction) && step(insertCall) && step(clearLastTime) && step(clearLastCost) &&
           step(commit);
}

bool LeanLog::finish(const handset::PastCall &call)
{
    sqlite3_bind_int64(finishCall.get(), 1, sqlite3_last_insert_rowid(database));
    sqlite3_bind_int64(finishCall.get(), 2, call.durationMs);
    sqlite3_bind_int64(finishCall.get(), 3, call.units);
    card[0] = static_cast<char>(card[0] + 1); // the meter on it has gone on
    sqlite3_bind_blob(putCard.get(), 1, card.constData(), static_cast<int>(card.size()), SQLITE_STATIC);
    return step(beginTransaction) && step(finishCall) && add(addTime, call.durationMs, 4) &&
           add(addCost, call.units, 2) && step(putCard) && sqlite3_changes(database) == 1 && step(commit);
}

bool LeanLog::attach(const QString &handsetLog)
{
    const Statement statement = prepare("ATTACH ?1 AS theirs");
    const QByteArray file = QFile::encodeName(handsetLog);
    sqlite3_bind_text(statement.get(), 1, file.constData(), -1, SQLITE_STATIC);
    if (statement && step(statement))
        return true;
    problem = QString::fromUtf8(sqlite3_errmsg(database));
    return false;
}

} // namespace bench
