#include "OpenCallStore.h"

#include "CheckBeside.h"
#include "ExamineFile.h"
#include "OpenDatabase.h"
#include "repair/Replacement.h"

namespace handset::calllog {

namespace {

/// Bytes, some 5,000 calls; that much is read through in a few milliseconds.
constexpr qint64 readAtOnce = 256 << 10;

Care careFor(const StateDirectory &directory, const QString &name)
{
    const qint64 size = directory.size(name) + directory.size(name + QStringLiteral("-wal"));
    if (size > readAtOnce)
        return Care::Quick;
    return directory.hasLeftovers(name) ? Care::Leftovers : Care::Thorough;
}

Attempt openFile(std::unique_ptr<StateDirectory> &directory, const ProgressListener &progress)
{
    const QString name = QString::fromLatin1(databaseName);
    if (QString problem = directory->mendRights(name); !problem.isEmpty())
        return {{Verdict::Blocked, std::move(problem)}, nullptr};
    Finding finding = examineFile(*directory, name);
    if (finding.verdict != Verdict::Usable)
        return {std::move(finding), nullptr};
    const QString path = directory->filePath(name);
    if (isMarkedDamaged(path))
        return {{Verdict::Damaged, {}}, nullptr, {}};
    const Care care = careFor(*directory, name);
    Attempt attempt = openDatabase(path, directory, care, progress);
    if (care == Care::Quick)
        attempt.unread = path;
    return attempt;
}

OpenedStore cannotBeUsed(const StateDirectory &directory, const QString &reason)
{
    const QString error = QStringLiteral("The call log \"%1\" cannot be used: %2.")
                              .arg(directory.filePath(QString::fromLatin1(databaseName)), reason);
    return {nullptr, error, {}};
}

bool isToBeReplaced(const Attempt &attempt)
{
    return !attempt.store && attempt.finding.verdict != Verdict::Blocked;
}

OpenedStore openReplacing(std::unique_ptr<StateDirectory> directory, const ProgressListener &progress)
{
    const Finding finished = finishReplacement(*directory);
    if (finished.verdict != Verdict::Usable)
        return cannotBeUsed(*directory, explain(finished));
    Attempt attempt = openFile(directory, progress);
    // A read that went wrong once may look like damage. What is damaged still is when it is read again.
    if (isToBeReplaced(attempt))
        attempt = openFile(directory, progress);
    if (isToBeReplaced(attempt)) {
        const Replacement replacement = replace(*directory, attempt.finding.verdict, progress);
        if (!replacement.error.isEmpty())
            return cannotBeUsed(*directory, replacement.error);
        attempt = openFile(directory, progress);
    }
    if (!attempt.store)
        return cannotBeUsed(*directory, explain(attempt.finding));
    OpenedStore opened{std::move(attempt.store), {}, {}, attempt.unread};
    opened.notice = untoldNotice(*opened.store);
    return opened;
}

OpenedStore openInMemory()
{
    std::unique_ptr<StateDirectory> none;
    Attempt attempt = openDatabase(QStringLiteral(":memory:"), none, Care::Quick);
    if (!attempt.store)
        return {nullptr, QStringLiteral("The call log cannot be opened: %1.").arg(explain(attempt.finding)), {}};
    return {std::move(attempt.store), {}, {}};
}

} // namespace

OpenedStore openCallStore(const QString &directory, const ProgressListener &progress)
{
    if (!QSqlDatabase::isDriverAvailable(QStringLiteral("QSQLITE")))
        return {
            nullptr, QStringLiteral("The call log cannot be opened: Qt's SQLite driver is not installed."), {}};
    if (directory.isEmpty())
        return openInMemory();
    QString error;
    std::unique_ptr<StateDirectory> locked = StateDirectory::open(directory, error);
    if (!locked)
        return {nullptr, error, {}};
    const QString notice = locked->notice();
    OpenedStore opened = openReplacing(std::move(locked), progress);
    opened.notice = QStringList{notice, opened.notice}.join(QLatin1Char(' ')).trimmed();
    return opened;
}

} // namespace handset::calllog
