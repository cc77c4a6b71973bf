#include "calllog/OpenDatabase.h"

#include "calllog/LogCheck.h"
#include "calllog/Schema.h"
#include "calllog/SchemaCheck.h"
#include "charging/ChargingState.h"

#include <functional>
#include <initializer_list>

namespace handset::calllog {

namespace {

// None of these looks at a table yet.
Finding identify(Database &database)
{
    const auto application = database.number(QStringLiteral("PRAGMA application_id"));
    const auto version = database.number(QStringLiteral("PRAGMA user_version"));
    if (!application || !version)
        return failure(database);
    const bool mayBeNew = *application == 0 && *version == 0;
    if (!mayBeNew && *application != applicationId)
        return {Verdict::Foreign, {}};
    if (*version > static_cast<qint64>(migrations().size()))
        return {Verdict::Newer, {}};
    if (*version < 0)
        return {Verdict::Damaged, QStringLiteral("its version is wrong")};
    Finding tables = checkSchema(database, *version);
    if (mayBeNew && tables.verdict == Verdict::Damaged) // nothing says that it was ever one of ours
        return {Verdict::Foreign, {}};
    return tables;
}

// SQLite does not wait where several want to change the mode at once.
QString useWriteAheadLog(Database &database)
{
    const QString statement = QStringLiteral("PRAGMA journal_mode = WAL");
    QString mode = database.text(statement);
    while (mode.isEmpty() && database.lastError().code() == sqlite::Busy && database.waitForOthers())
        mode = database.text(statement);
    return mode;
}

Finding configure(Database &database)
{
    const QString mode = useWriteAheadLog(database);
    if (mode.isEmpty())
        return failure(database);
    if (mode != QLatin1String("wal") && mode != QLatin1String("memory"))
        return {Verdict::Blocked, QStringLiteral("it cannot be opened for writing")};
    for (const char *setting :
         {"synchronous = FULL", "foreign_keys = ON", "cell_size_check = ON", "journal_size_limit = 4194304"})
        if (!database.run(QStringLiteral("PRAGMA ") + QString::fromLatin1(setting)))
            return failure(database);
    return {};
}

// The whole file, page by page and row by row. That takes time in proportion to its size (some 0.6 s for a million
// calls), so a big log is read beside its use: settle() reads every page of it that the figures and the next calls
// depend on.
Finding verify(Database &database)
{
    return checkPages(database.handle());
}

Finding verifySums(Database &database)
{
    CheckedLog checked = checkSums(database.handle());
    if (checked.finding.verdict != Verdict::Usable || !saysMore(checked.unknown))
        return std::move(checked.finding);
    return database.inTransaction([&] { return putUnknown(database, checked.unknown); }) ? Finding{}
                                                                                         : failure(database);
}

// Every total by its name, and no other; a negative one is none.
constexpr auto hasAllTotals =
    "SELECT (SELECT group_concat(counter) FROM (SELECT counter FROM totals WHERE ms >= 0 ORDER BY counter))"
    " = 'all,answered,data,dialed,last,lifetime'"
    " AND (SELECT group_concat(counter) FROM (SELECT counter FROM costs WHERE units >= 0 ORDER BY counter))"
    " = 'answered,dialed,last'"
    " AND (SELECT group_concat(counter) FROM (SELECT counter FROM session_totals WHERE value >= 0 ORDER BY "
    "counter))"
    " = 'duration,received,sent'"
    " AND (SELECT group_concat(counter) FROM (SELECT counter FROM lost ORDER BY counter))"
    " = 'calls,duration,received,sent,units'";

// The log's own values to their last bytes: there is no other place for a SIM card and its account. (The plus sign makes
// that a walk through the whole table.) One that is larger than any of ours is somebody else's work, and too much to be
// made a text; who reads it judges it.
constexpr auto readKept =
    "SELECT sum(length(CASE WHEN length(content) <= 1048576"
    " AND +name IN ('card', 'charging', 'checked', 'notice') THEN hex(content) END)) FROM kept";

// No figure could be told beside a call whose tariff is none.
Finding checkRunningCalls(Database &database)
{
    Statement running(database.handle(), "SELECT tariff FROM calls WHERE state = 0 AND tariff NOT NULL");
    charging::Tariff tariff;
    while (running.next())
        if (!charging::readTariff(running.bytes(0), tariff))
            return {Verdict::Damaged, QStringLiteral("the tariff of the running call is wrong")};
    return running.error() == 0 ? Finding{} : failure(running.error(), sqlite::reason(database.handle()));
}

// Reads what every later operation depends on, and may write.
Finding settle(Database &database)
{
    const std::optional<qint64> hasAll = database.number(QString::fromLatin1(hasAllTotals));
    if (!hasAll)
        return failure(database);
    if (*hasAll == 0)
        return {Verdict::Damaged, QStringLiteral("a total is missing")};
    for (const char *needed :
         {"SELECT max(id) FROM calls", readKept,
          "SELECT sum(length(apn)) FROM (SELECT apn FROM sessions ORDER BY id DESC LIMIT 3)",
          "SELECT count(*) FROM calls WHERE state = 0", "SELECT count(*) FROM sessions WHERE state = 0"})
        if (!database.number(QString::fromLatin1(needed)))
            return failure(database);
    if (Finding running = checkRunningCalls(database); running.verdict != Verdict::Usable)
        return running;
    return database.inTransaction([] { return true; }) ? Finding{} : failure(database);
}

// Tables of an earlier version are brought up to date by who has the directory alone.
Finding isNewest(Database &database)
{
    const auto version = database.number(QStringLiteral("PRAGMA user_version"));
    if (!version)
        return failure(database);
    return *version == static_cast<qint64>(migrations().size()) ? Finding{} : Finding{Verdict::Older, {}};
}

using Step = std::function<Finding(Database &)>;

Finding walk(Database &database, std::initializer_list<Step> steps)
{
    if (!database.isOpen())
        return failure(database);
    for (const Step &step : steps) {
        Finding finding = step(database);
        if (finding.verdict != Verdict::Usable)
            return finding;
    }
    return {};
}

// Closing a damaged database that could be written would work its leftovers in, and make it worse. (A database that
// is only read passes this without its CHECK constraints: it is verified again.)
Finding examine(const QString &file, Waiting *waiting)
{
    Database database(file, Database::Access::ReadOnly);
    database.setPatience(waiting);
    Finding finding = walk(database, {identify, verify});
    const bool isBusy = waiting && waiting->isOver();
    if (finding.verdict == Verdict::Blocked && !isBusy) // some leftovers cannot be read without writing
        return {};
    return finding;
}

} // namespace

Attempt openDatabase(const QString &file, Care care, Hold hold, Waiting *waiting, const ProgressListener &progress)
{
    if (care == Care::Leftovers) {
        Finding examined = examine(file, waiting);
        if (examined.verdict != Verdict::Usable)
            return {std::move(examined), nullptr};
    }
    auto database = std::make_unique<Database>(file, Database::Access::ReadWrite);
    database->setPatience(waiting);
    const auto leaveOlder = [&](Database &older) { return hold == Hold::Shared ? isNewest(older) : Finding{}; };
    const auto bringUpToDate = [&](Database &older) {
        return migrate(older, migrations(), progress) ? Finding{} : failure(older);
    };
    Finding finding =
        care == Care::Quick
            ? walk(*database, {identify, leaveOlder, configure, bringUpToDate, settle})
            : walk(*database, {identify, leaveOlder, verify, configure, bringUpToDate, settle, verifySums});
    if (finding.verdict != Verdict::Usable)
        return {std::move(finding), nullptr};
    return {{}, std::move(database), care != Care::Quick};
}

} // namespace handset::calllog
