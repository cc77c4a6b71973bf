#include "calllog/repair/Replacement.h"

#include "calllog/LedgerTables.h"
#include "calllog/OpenDatabase.h"
#include "calllog/repair/CountedReads.h"
#include "calllog/repair/LogCopy.h"
#include "calllog/repair/Salvage.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace handset::calllog {

namespace {

// A new log is made under the first name and gets the second when it is complete and on the disk; it becomes the
// database when what was there before has made way. So a database is never seen half made.
constexpr auto unfinishedName = "calllog-new.db";
constexpr auto readyName = "calllog-ready.db";

QString describe(Verdict verdict)
{
    switch (verdict) {
    case Verdict::Usable:
    case Verdict::Missing:
    case Verdict::Newer:
    case Verdict::Older:
    case Verdict::Blocked:
        break; // not worth a notice, or an error
    case Verdict::Damaged:
        return QStringLiteral("The call log is damaged");
    case Verdict::Lost:
        return QStringLiteral("The call log was emptied");
    case Verdict::Foreign:
        return QStringLiteral("\"%1\" is not a call log").arg(QString::fromLatin1(databaseName));
    }
    return {};
}

QString whatWasRead(const Salvaged &salvaged)
{
    const QString text = salvaged.sessions > 0
                             ? QStringLiteral(" with the calls (%1) and data sessions (%2) that could be read")
                             : QStringLiteral(" with the calls that could be read (%1)");
    return salvaged.sessions > 0 ? text.arg(salvaged.calls).arg(salvaged.sessions) : text.arg(salvaged.calls);
}

// Totals of no sessions are nothing to speak of; a log of the first version has none.
QString whatWasCounted(const Salvaged &salvaged)
{
    QStringList counted;
    if (!salvaged.totalsRead)
        counted << QStringLiteral("timers");
    if (!salvaged.sessionTotalsRead && salvaged.sessions > 0)
        counted << QStringLiteral("data totals");
    const QString all = counted.join(QStringLiteral(" and "));
    return all.isEmpty() ? QString() : QStringLiteral(" and %1 counted from them").arg(all);
}

struct Replaced {
    Verdict verdict = Verdict::Missing;
    QString keptName;
    ProgressListener progress;
};

QString notice(const Replaced &old, const Salvaged &salvaged)
{
    QString text = QStringLiteral("%1; it was kept as \"%2\" and a new one was begun")
                       .arg(describe(old.verdict), old.keptName);
    if (old.verdict == Verdict::Damaged)
        text += whatWasRead(salvaged) + whatWasCounted(salvaged);
    return text + QLatin1Char('.');
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

// As it is not used before it is complete there is no need to be able to go back: what is written goes into the file at
// once, which takes half the room.
Finding prepare(Database &database)
{
    const QString mode = database.text(QStringLiteral("PRAGMA journal_mode = MEMORY"));
    if (mode != QLatin1String("memory"))
        return mode.isEmpty() ? failure(database)
                              : Finding{Verdict::Blocked, QStringLiteral("it cannot be written")};
    return database.run(QStringLiteral("PRAGMA synchronous = OFF")) ? Finding{} : failure(database);
}

// The write-ahead log that a call log has must have nothing in it: the new file is renamed alone.
Finding emptyWriteAheadLog(Database &database)
{
    if (database.text(QStringLiteral("PRAGMA journal_mode = WAL")) != QLatin1String("wal"))
        return failure(database);
    Statement checkpoint(database.handle(), "PRAGMA wal_checkpoint(TRUNCATE)");
    if (!checkpoint.run() || !checkpoint.hasRow())
        return {Verdict::Blocked, sqlite::reason(database.handle())};
    const bool isBusy = checkpoint.number(0) != 0;
    const bool isAllWritten = checkpoint.number(1) == checkpoint.number(2);
    return !isBusy && isAllWritten ? Finding{}
                                   : Finding{Verdict::Blocked, QStringLiteral("its write-ahead log is not empty")};
}

// A notice that was never told goes on in front of the new one.
Finding putNotice(Database &database, const QString &notice)
{
    LedgerTables tables(database);
    const QString name = QString::fromLatin1(keptNotice);
    QByteArray untold;
    if (!tables.kept(name, untold))
        return failure(database);
    const QByteArray all = untold.isEmpty() ? notice.toUtf8() : untold + ' ' + notice.toUtf8();
    return tables.put(name, all) ? Finding{} : failure(database);
}

Finding fill(Database &database, LogCopy &copy, const Replaced &old, Salvaged &salvaged)
{
    Finding finding = prepare(database);
    if (finding.verdict == Verdict::Usable && old.verdict == Verdict::Damaged)
        finding = salvage(copy.database(), database, salvaged, old.progress);
    if (finding.verdict == Verdict::Usable && old.verdict == Verdict::Damaged)
        finding = copy.check();
    if (finding.verdict == Verdict::Usable && old.verdict != Verdict::Missing)
        finding = putNotice(database, notice(old, salvaged));
    return finding.verdict == Verdict::Usable ? emptyWriteAheadLog(database) : finding;
}

/// The structure of the file first, and then the rows.
constexpr int timesRead = 2;

// As it is on the disk, not as it was meant.
Finding readBack(const QString &file, Progress progress)
{
    Database database(file, Database::Access::ReadWrite);
    if (!database.isOpen() || !database.run(QStringLiteral("PRAGMA locking_mode = EXCLUSIVE")))
        return failure(database);
    CountedReads reads(database.handle(), progress);
    progress.begin();
    const QString line = database.text(QStringLiteral("PRAGMA quick_check(1)"));
    reads.rethrow();
    progress.finish();
    return line.isEmpty() ? failure(database) : judgeCheck(line);
}

Finding makeUnfinished(StateDirectory &directory, LogCopy &copy, const Replaced &old)
{
    const QString name = QString::fromLatin1(unfinishedName);
    const QString path = directory.filePath(name);
    directory.remove(name);
    Finding finding = createFile(path);
    if (finding.verdict != Verdict::Usable)
        return finding;
    Salvaged salvaged;
    {
        const Attempt fresh = openDatabase(path, Care::Quick, Hold::Alone, nullptr);
        finding = fresh.database ? fill(*fresh.database, copy, old, salvaged) : fresh.finding;
    }
    if (finding.verdict != Verdict::Usable)
        return finding;
    Progress writing(old.progress, QCoreApplication::translate("handset", "Writing the new call log to the disk"),
                     directory.size(name), Progress::bytes);
    if (const int error = directory.sync(name, writing))
        return blocked(error);
    finding = readBack(path, {old.progress, QCoreApplication::translate("handset", "Checking the new call log"),
                              timesRead * directory.size(name), Progress::bytes});
    if (finding.verdict == Verdict::Usable && directory.hasLeftovers(name))
        return {Verdict::Blocked, QStringLiteral("its write-ahead log is left")};
    return finding;
}

/// Leaves no unfinished log behind, also where what makes it is given up.
class UnfinishedLog
{
public:
    explicit UnfinishedLog(StateDirectory &which)
        : directory(which)
    {}
    ~UnfinishedLog() { directory.remove(QString::fromLatin1(unfinishedName)); }
    Q_DISABLE_COPY_MOVE(UnfinishedLog)

private:
    StateDirectory &directory;
};

// A complete new log under the ready name, with what can be read of a damaged one. Anything but Usable says why there
// is none; then nothing has changed.
Finding makeReplacement(StateDirectory &directory, LogCopy &copy, const Replaced &old)
{
    const bool isRead = old.verdict == Verdict::Damaged;
    Finding finding = isRead ? copy.make() : findSpace(directory, spaceOfNewLog);
    if (finding.verdict != Verdict::Usable)
        return finding;
    const QString name = QString::fromLatin1(unfinishedName);
    const UnfinishedLog unfinished(directory);
    finding = makeUnfinished(directory, copy, old);
    int error = 0;
    if (finding.verdict == Verdict::Usable)
        error = directory.rename(name, QString::fromLatin1(readyName));
    if (error != 0)
        finding = blocked(error);
    if (finding.verdict == Verdict::Usable)
        return finding;
    // It is nobody's but ours.
    const bool isMisread = finding.verdict != Verdict::Blocked;
    return {Verdict::Blocked, inFile(name, isMisread ? QStringLiteral("what is written to it cannot be read again")
                                                     : explain(finding))};
}

} // namespace

QString replace(StateDirectory &directory, Verdict verdict, const ProgressListener &progress)
{
    const QString name = QString::fromLatin1(databaseName);
    LogCopy copy(directory, progress);
    const Finding found = copy.look(verdict);
    if (found.verdict == Verdict::Blocked)
        return QStringLiteral("a new one cannot be made (%1)").arg(explain(found));
    if (found.verdict == Verdict::Newer) // nothing is wrong with it, and that version will want it again
        return explain(found);
    const Replaced old{found.verdict, directory.unusedName(name), progress};
    const Finding made = makeReplacement(directory, copy, old);
    if (made.verdict != Verdict::Usable)
        return QStringLiteral("a new one cannot be made (%1)").arg(explain(made));
    if (old.verdict != Verdict::Missing) {
        if (const int error = directory.keepAside(name, old.keptName))
            return QStringLiteral("it cannot be kept under another name (%1)").arg(blocked(error).reason);
    }
    if (const int error = directory.rename(QString::fromLatin1(readyName), name))
        return QStringLiteral("a new one cannot take its place (%1)").arg(blocked(error).reason);
    return {};
}

bool hasRemains(const StateDirectory &directory)
{
    for (const char *name : {LogCopy::name, unfinishedName, readyName})
        for (const char *beside : {"", "-wal", "-journal", "-shm"})
            if (directory.find(QLatin1String(name) + QLatin1String(beside)) != ENOENT)
                return true;
    return false;
}

Finding finishReplacement(StateDirectory &directory)
{
    const QString name = QString::fromLatin1(databaseName);
    const QString unfinished = QString::fromLatin1(unfinishedName);
    const QString ready = QString::fromLatin1(readyName);
    const int found = directory.find(name);
    const int foundReady = directory.find(ready);
    if (found != 0 && found != ENOENT)
        return blocked(found);
    if (foundReady != 0 && foundReady != ENOENT)
        return blocked(foundReady, ready);
    directory.remove(QString::fromLatin1(LogCopy::name));
    // A write-ahead log without its database may be all there is of one.
    const bool isAlone = directory.find(unfinished) == ENOENT && directory.hasLeftovers(unfinished);
    if (isAlone && found == ENOENT)
        directory.keepAside(unfinished, directory.unusedName(unfinished));
    else
        directory.remove(unfinished);
    if (found == 0) {
        directory.remove(ready);
        return {};
    }
    if (foundReady != 0)
        return {};
    if (directory.hasLeftovers(name)) {
        if (const int error = directory.keepAside(name, directory.unusedName(name)))
            return blocked(error);
    }
    const int error = directory.rename(ready, name);
    return error == 0 ? Finding{} : blocked(error, ready);
}

std::optional<QString> untoldNotice(Database &database)
{
    QByteArray notice;
    const bool isRead = LedgerTables(database).kept(QString::fromLatin1(keptNotice), notice);
    return isRead ? std::optional(QString::fromUtf8(notice)) : std::nullopt;
}

} // namespace handset::calllog
