#include "OpenCallStore.h"

#include "Salvage.h"
#include "Schema.h"
#include "StateDirectory.h"

#include <QtCore/QFile>
#include <QtCore/QtEndian>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace handset::calllog {

namespace {

constexpr auto databaseName = "calllog.db";
// Becomes the database when it is complete and the damaged one has made way.
constexpr auto replacementName = "calllog-new.db";

enum class Verdict {
    Usable,
    Damaged, ///< a call log of ours that cannot be trusted
    Foreign, ///< something else
    Newer,   ///< a call log of a later version
    Blocked  ///< nothing is known to be wrong with it, but it cannot be used now
};

struct Finding {
    Verdict verdict = Verdict::Usable;
    QString reason;
};

struct Attempt {
    Finding finding;
    std::unique_ptr<CallStore> store; ///< null unless usable
};

Finding blocked(int error)
{
    return {Verdict::Blocked, QString::fromLocal8Bit(std::strerror(error))};
}

Finding failure(const Database &database)
{
    const QSqlError &error = database.lastError();
    switch (sqlite::code(error)) {
    case 0:
    case sqlite::Error: // the tables are not those of a call log
    case sqlite::Corrupt:
    case sqlite::NotADatabase:
        return {Verdict::Damaged, error.text()};
    case sqlite::Busy:
    case sqlite::Locked:
        return {Verdict::Blocked, QStringLiteral("another process is using it")};
    }
    return {Verdict::Blocked, error.text()};
}

// --- the file, before SQLite sees it ---------------------------------------------------------------------------

// SQLite takes a file that lost the end of its last page for a whole one.
Finding checkHeader(QFile &file)
{
    constexpr qint64 headerSize = 100;
    const QByteArray header = file.read(headerSize);
    if (header.size() < headerSize || !header.startsWith(QByteArray("SQLite format 3", 16)))
        return {Verdict::Foreign, {}};
    const auto number = [&](qsizetype offset) { return qFromBigEndian<quint32>(header.constData() + offset); };
    const qint64 stored = qFromBigEndian<quint16>(header.constData() + 16);
    const qint64 pageSize = stored == 1 ? 65536 : stored;
    const bool countIsValid = number(24) == number(92);
    if (countIsValid && file.size() != pageSize * static_cast<qint64>(number(28)))
        return {Verdict::Damaged, QStringLiteral("its length is wrong")};
    return {};
}

Finding createFile(const QString &path)
{
    // SQLite gives the files that it keeps beside the database the database's mode.
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (fd < 0)
        return blocked(errno);
    ::close(fd);
    return {};
}

Finding examineFile(const StateDirectory &directory, const QString &name)
{
    const QString path = directory.filePath(name);
    const QByteArray encoded = QFile::encodeName(path);
    struct stat status{};
    if (::lstat(encoded.constData(), &status) != 0)
        return errno == ENOENT ? createFile(path) : blocked(errno);
    if (S_ISLNK(status.st_mode))
        return {Verdict::Blocked, QStringLiteral("it is a symbolic link")};
    if (!S_ISREG(status.st_mode))
        return {Verdict::Foreign, {}};
    if (status.st_mode & 077 && ::chmod(encoded.constData(), 0600) != 0)
        return blocked(errno);
    const bool leftovers = directory.hasLeftovers(name);
    if (status.st_size == 0) // SQLite would throw the leftovers away
        return leftovers ? Finding{Verdict::Damaged, QStringLiteral("it is empty")} : Finding{};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {Verdict::Blocked, file.errorString()};
    // Until the leftovers are worked in, the length may differ.
    return leftovers ? Finding{} : checkHeader(file);
}

// --- the database ----------------------------------------------------------------------------------------------

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

Attempt openDatabase(const QString &file, std::unique_ptr<StateDirectory> &directory)
{
    auto database = std::make_unique<Database>(file, Database::Access::ReadWrite);
    if (!database->isOpen())
        return {failure(*database), nullptr};
    for (const auto step : {identify, configure, verify, settle}) {
        Finding finding = step(*database);
        if (finding.verdict != Verdict::Usable)
            return {std::move(finding), nullptr};
    }
    auto store = CallStore::create(database, directory);
    if (!store)
        return {failure(*database), nullptr};
    return {{}, std::move(store)};
}

Attempt openFile(std::unique_ptr<StateDirectory> &directory)
{
    const QString name = QString::fromLatin1(databaseName);
    Finding finding = examineFile(*directory, name);
    if (finding.verdict != Verdict::Usable)
        return {std::move(finding), nullptr};
    return openDatabase(directory->filePath(name), directory);
}

// --- what cannot be used ---------------------------------------------------------------------------------------

QString describe(Verdict verdict)
{
    switch (verdict) {
    case Verdict::Usable:
    case Verdict::Blocked:
        break;
    case Verdict::Damaged:
        return QStringLiteral("is damaged");
    case Verdict::Foreign:
        return QStringLiteral("is not a call log");
    case Verdict::Newer:
        return QStringLiteral("was written by a newer version");
    }
    return QStringLiteral("cannot be used");
}

QString cannotBeUsed(const StateDirectory &directory, const QString &reason)
{
    return QStringLiteral("The call log \"%1\" cannot be used: %2.")
        .arg(directory.filePath(QString::fromLatin1(databaseName)), reason);
}

// A complete log under another name, closed again. Answers the number of calls in it, -1 for a failure.
qint64 makeReplacement(StateDirectory &directory)
{
    const QString name = QString::fromLatin1(replacementName);
    directory.remove(name);
    if (createFile(directory.filePath(name)).verdict != Verdict::Usable)
        return -1;
    std::unique_ptr<StateDirectory> unlocked;
    const Attempt fresh = openDatabase(directory.filePath(name), unlocked);
    if (!fresh.store)
        return -1;
    return salvage(directory.filePath(QString::fromLatin1(databaseName)), *fresh.store);
}

struct Replacement {
    QString keptName; ///< null when it failed
    QString error;
    qint64 calls = 0;
};

Replacement replace(StateDirectory &directory, Verdict verdict)
{
    Replacement done;
    if (verdict == Verdict::Damaged)
        done.calls = makeReplacement(directory);
    if (done.calls < 0) {
        done.error = QStringLiteral("it is damaged and a new one cannot be written");
        return done;
    }
    done.keptName = directory.keepAside(QString::fromLatin1(databaseName), done.error);
    if (!done.keptName.isNull() && verdict == Verdict::Damaged)
        directory.rename(QString::fromLatin1(replacementName), QString::fromLatin1(databaseName));
    return done;
}

// The telephone stopped between the two renames of replace().
void finishReplacement(StateDirectory &directory)
{
    const QString name = QString::fromLatin1(databaseName);
    struct stat status{};
    if (::lstat(QFile::encodeName(directory.filePath(name)).constData(), &status) == 0)
        return;
    QString error;
    if (directory.hasLeftovers(name) && directory.keepAside(name, error).isNull())
        return;
    directory.rename(QString::fromLatin1(replacementName), name);
}

QString notice(Verdict verdict, const Replacement &replacement)
{
    QString text = QStringLiteral("The call log %1; it was kept as \"%2\" and a new one was begun.")
                       .arg(describe(verdict), replacement.keptName);
    if (verdict == Verdict::Damaged)
        text.insert(text.size() - 1, QStringLiteral(" with the %1 calls that could be read").arg(replacement.calls));
    return text;
}

OpenedStore openReplacing(std::unique_ptr<StateDirectory> directory)
{
    OpenedStore opened;
    finishReplacement(*directory);
    Attempt attempt = openFile(directory);
    if (!attempt.store && attempt.finding.verdict != Verdict::Blocked) {
        const Verdict verdict = attempt.finding.verdict;
        const Replacement replacement = replace(*directory, verdict);
        if (replacement.keptName.isNull())
            return {nullptr, cannotBeUsed(*directory, replacement.error), {}};
        opened.notice = notice(verdict, replacement);
        attempt = openFile(directory);
    }
    if (!attempt.store)
        return {nullptr, cannotBeUsed(*directory, attempt.finding.reason), opened.notice};
    opened.store = std::move(attempt.store);
    return opened;
}

OpenedStore openInMemory()
{
    std::unique_ptr<StateDirectory> none;
    Attempt attempt = openDatabase(QStringLiteral(":memory:"), none);
    if (!attempt.store)
        return {nullptr, QStringLiteral("The call log cannot be opened: %1.").arg(attempt.finding.reason), {}};
    return {std::move(attempt.store), {}, {}};
}

} // namespace

OpenedStore openCallStore(const QString &directory)
{
    if (!QSqlDatabase::isDriverAvailable(QStringLiteral("QSQLITE")))
        return {nullptr, QStringLiteral("The call log cannot be opened: Qt's SQLite driver is not installed."), {}};
    if (directory.isEmpty())
        return openInMemory();
    QString error;
    std::unique_ptr<StateDirectory> locked = StateDirectory::open(directory, error);
    if (!locked)
        return {nullptr, error, {}};
    return openReplacing(std::move(locked));
}

} // namespace handset::calllog
