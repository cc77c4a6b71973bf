#include "OpenDatabase.h"

#include "Schema.h"

#include <initializer_list>

namespace handset::calllog {

namespace {

Finding identify(Database &database)
{
    const auto application = database.number(QStringLiteral("PRAGMA application_id"));
    const auto version = database.number(QStringLiteral("PRAGMA user_version"));
    const auto tables = database.number(QStringLiteral("SELECT count(*) FROM sqlite_schema"));
    if (!application || !version || !tables)
        return failure(database);
    const bool isNew = *application == 0 && *version == 0 && *tables == 0;
    if (!isNew && *application != applicationId)
        return {Verdict::Foreign, {}};
    if (*version > static_cast<qint64>(migrations().size()))
        return {Verdict::Newer, {}};
    return *version < 0 ? Finding{Verdict::Damaged, QStringLiteral("its version is wrong")} : Finding{};
}

Finding configure(Database &database)
{
    const QString mode = database.text(QStringLiteral("PRAGMA journal_mode = WAL"));
    if (mode.isEmpty())
        return failure(database);
    if (mode != QLatin1String("wal") && mode != QLatin1String("memory"))
        return {Verdict::Blocked, QStringLiteral("it cannot be opened for writing")};
    for (const char *setting : {"synchronous = FULL", "foreign_keys = ON", "cell_size_check = ON"})
        if (!database.run(QStringLiteral("PRAGMA ") + QString::fromLatin1(setting)))
            return failure(database);
    return {};
}

// The whole file, page by page and row by row. That takes time in proportion to its size (some 0.6 s for a million
// calls), so a big log that was closed properly is spared: settle() reads every page of it that the figures and the
// next calls depend on.
Finding verify(Database &database)
{
    const QString result = database.text(QStringLiteral("PRAGMA quick_check(1)"));
    if (result == QLatin1String("ok"))
        return {};
    return result.isEmpty() ? failure(database) : Finding{Verdict::Damaged, result};
}

// Reads and writes what every later operation depends on, and closes the call that was running when the telephone
// stopped: its time is counted up to its last checkpoint.
Finding settle(Database &database)
{
    if (!migrate(database, migrations()))
        return failure(database);
    const auto totals = database.number(QStringLiteral("SELECT count(*) FROM totals WHERE ms >= 0"));
    const auto newest = database.number(QStringLiteral("SELECT max(id) FROM calls"));
    if (!totals || !newest)
        return failure(database);
    if (*totals != static_cast<qint64>(counterNames.size()))
        return {Verdict::Damaged, QStringLiteral("a total is missing")};
    const QString close = QStringLiteral("UPDATE calls SET state = %1 WHERE state = %2")
                              .arg(static_cast<int>(CallState::Interrupted))
                              .arg(static_cast<int>(CallState::Running));
    return database.inTransaction([&] { return database.run(close); }) ? Finding{} : failure(database);
}

using Step = Finding (*)(Database &);

Finding walk(Database &database, std::initializer_list<Step> steps)
{
    if (!database.isOpen())
        return failure(database);
    for (const Step step : steps) {
        Finding finding = step(database);
        if (finding.verdict != Verdict::Usable)
            return finding;
    }
    return {};
}

// Closing a damaged database that could be written would work its leftovers in, and make it worse. (A database that
// is only read passes this without its CHECK constraints: it is verified again.)
Finding examine(const QString &file)
{
    Database database(file, Database::Access::ReadOnly);
    Finding finding = walk(database, {identify, verify});
    if (finding.verdict == Verdict::Blocked) // some leftovers cannot be read without writing
        return {};
    return finding;
}

} // namespace

Attempt openDatabase(const QString &file, std::unique_ptr<StateDirectory> &directory, Care care)
{
    if (care == Care::Leftovers) {
        Finding examined = examine(file);
        if (examined.verdict != Verdict::Usable)
            return {std::move(examined), nullptr};
    }
    auto database = std::make_unique<Database>(file, Database::Access::ReadWrite);
    Finding finding = care == Care::Quick ? walk(*database, {identify, configure, settle})
                                          : walk(*database, {identify, verify, configure, settle});
    if (finding.verdict != Verdict::Usable)
        return {std::move(finding), nullptr};
    auto store = CallStore::create(database, directory);
    if (!store)
        return {failure(*database), nullptr};
    return {{}, std::move(store)};
}

} // namespace handset::calllog
