#include "calllog/repair/LogCopy.h"

#include "calllog/Schema.h"
#include "calllog/repair/FileHeader.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>

#include <cerrno>
#include <optional>

namespace handset::calllog {

namespace {

constexpr qint64 largestFirstPage = 65536;
// What the definition of our first table begins with, as SQLite keeps it.
constexpr auto firstDefinition = "CREATE TABLE calls (";
constexpr auto ourColumnsSql = "SELECT count(*) FROM pragma_table_info('calls') WHERE name IN"
                               " ('id', 'kind', 'direction', 'number', 'started_ms', 'duration_ms', 'state')";
constexpr qint64 ourColumns = 7;
constexpr auto definitionsSql =
    "SELECT group_concat(sql, ';') FROM (SELECT sql FROM main.sqlite_schema WHERE sql NOT NULL ORDER BY name)";

QString databaseFile()
{
    return QString::fromLatin1(databaseName);
}

// Spares other programs' databases the copy. The definitions of a log that was never closed are in its write-ahead log.
Finding findDefinitions(const StateDirectory &directory, bool &found)
{
    found = false;
    for (const QString &file : {databaseFile(), databaseFile() + QStringLiteral("-wal")}) {
        QByteArray bytes;
        const int error = directory.readBeginning(file, largestFirstPage, bytes);
        if (error != 0 && error != ENOENT)
            return blocked(error, file);
        found = found || bytes.contains(firstDefinition);
    }
    return {};
}

// What cannot be asked because the copy is damaged says nothing; anything else is in the way.
Finding unanswered(const Database &copy, Verdict verdict)
{
    return isDamage(copy.lastError()) ? Finding{verdict, {}} : failure(copy);
}

// A version with the very tables of ours is not a newer one.
Finding judgeVersion(Database &copy)
{
    Database fresh(QStringLiteral(":memory:"), Database::Access::ReadWrite);
    const QString definitions = QString::fromLatin1(definitionsSql);
    if (!migrate(fresh, migrations()))
        return {Verdict::Blocked, fresh.lastError().reason};
    const QString found = copy.text(definitions);
    if (found.isEmpty())
        return unanswered(copy, Verdict::Newer);
    return {found == fresh.text(definitions) ? Verdict::Damaged : Verdict::Newer, {}};
}

Finding judgeTables(Database &copy, Verdict verdict)
{
    const std::optional<qint64> columns = copy.number(QString::fromLatin1(ourColumnsSql));
    if (!columns)
        return unanswered(copy, verdict);
    if (*columns != ourColumns)
        return {verdict, {}};
    return verdict == Verdict::Newer ? judgeVersion(copy) : Finding{Verdict::Damaged, {}};
}

} // namespace

Finding findSpace(const StateDirectory &directory, qint64 bytes)
{
    constexpr qint64 kib = 1024;
    qint64 left = 0;
    if (const int error = directory.freeSpace(left))
        return blocked(error);
    if (left >= bytes)
        return {};
    const QString text = QStringLiteral("%1 KiB of disk space are needed and %2 KiB are left");
    return {Verdict::Blocked, text.arg((bytes + kib - 1) / kib).arg(left / kib)};
}

LogCopy::~LogCopy()
{
    opened.reset();
    directory.remove(QString::fromLatin1(name));
}

Finding LogCopy::look(Verdict verdict)
{
    const bool mayBeMistaken = verdict == Verdict::Foreign || verdict == Verdict::Newer;
    if (!mayBeMistaken)
        return {verdict, {}};
    bool mayBeOurs = false;
    Finding finding = findDefinitions(directory, mayBeOurs);
    if (finding.verdict == Verdict::Usable && mayBeOurs)
        finding = make();
    if (finding.verdict != Verdict::Usable)
        return finding;
    return mayBeOurs ? judgeTables(*opened, verdict) : Finding{verdict, {}};
}

Finding LogCopy::make()
{
    if (opened)
        return {};
    const QString file = QString::fromLatin1(name);
    directory.remove(file);
    // Both may come to the size of what is copied.
    Finding space = findSpace(directory, spaceOfNewLog + 2 * directory.size(databaseFile()));
    if (space.verdict != Verdict::Usable)
        return space;
    Progress copying(progress, QCoreApplication::translate("handset", "Copying the call log"),
                     directory.size(databaseFile()), Progress::bytes);
    if (const int error = directory.copy(databaseFile(), file, copying))
        return {Verdict::Blocked, QStringLiteral("it cannot be copied: %1").arg(blocked(error, file).reason)};
    Finding mended = mend();
    if (mended.verdict != Verdict::Usable)
        return mended;
    // SQLite calls some failed reads damage: what is damaged still is when it is opened again.
    Finding list = open();
    if (list.verdict == Verdict::Damaged)
        list = open();
    return list.verdict == Verdict::Blocked ? list : Finding{};
}

Finding LogCopy::open()
{
    opened.reset();
    const QString file = QString::fromLatin1(name);
    // It may have to be written before it can be read: leftovers are worked in.
    auto database = std::make_unique<Database>(directory.filePath(file), Database::Access::ReadWrite);
    // Nobody else has it, so no file is needed beside it. And without the second a database that is shorter than it
    // says is refused as a whole.
    for (const char *setting : {"locking_mode = EXCLUSIVE", "writable_schema = ON"})
        if (!database->isOpen() || !database->run(QStringLiteral("PRAGMA ") + QString::fromLatin1(setting)))
            return {Verdict::Blocked, inFile(file, database->lastError().reason)};
    opened = std::move(database);
    // The second also makes SQLite go on with the tables that it knows when the list of them cannot be read to its end,
    // whatever the reason: only the statement that reads it says so.
    if (opened->number(QStringLiteral("SELECT count(*) FROM sqlite_schema")))
        return {};
    Finding list = unanswered(*opened, Verdict::Damaged);
    return {list.verdict, inFile(file, list.reason)};
}

Finding LogCopy::check() const
{
    const QString file = QString::fromLatin1(name);
    Progress reading(progress, QCoreApplication::translate("handset", "Reading the damaged call log once more"),
                     directory.size(file), Progress::bytes);
    const int error = directory.readThrough(file, reading);
    return error == 0 ? Finding{} : blocked(error, file);
}

// SQLite would also fill up a page that was cut off with zeros, and read calls from it that nobody made.
Finding LogCopy::mend()
{
    const QString file = QString::fromLatin1(name);
    QByteArray first;
    if (const int error = directory.readBeginning(file, largestFirstPage, first))
        return blocked(error, file);
    if (first.size() < FileHeader::size)
        return {};
    QFile copy(directory.filePath(file));
    if (!copy.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        return {Verdict::Blocked, inFile(file, copy.errorString())};
    const MendedHeader mended = mendHeader(first, copy.size());
    if (copy.write(mended.bytes) != mended.bytes.size() || !copy.resize(mended.fileSize))
        return {Verdict::Blocked, inFile(file, copy.errorString())};
    return {};
}

} // namespace handset::calllog
