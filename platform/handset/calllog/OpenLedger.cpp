#include "calllog/OpenLedger.h"

#include "calllog/CheckBeside.h"
#include "calllog/ExamineFile.h"
#include "calllog/OpenDatabase.h"
#include "calllog/repair/Replacement.h"
#include "handset/Status.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QStringList>

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

Attempt openFile(const StateDirectory &directory, Hold hold, const ProgressListener &progress)
{
    const QString name = QString::fromLatin1(databaseName);
    if (QString problem = directory.mendRights(name); !problem.isEmpty())
        return {{Verdict::Blocked, std::move(problem)}, nullptr};
    Finding finding = examineFile(directory, name);
    if (finding.verdict != Verdict::Usable)
        return {std::move(finding), nullptr};
    const QString path = directory.filePath(name);
    if (isMarkedDamaged(path))
        return {{Verdict::Damaged, {}}, nullptr};
    return openDatabase(path, careFor(directory, name), hold, progress);
}

OpenedLedger cannotBeUsed(const StateDirectory &directory, const QString &reason)
{
    const QString error = QStringLiteral("The call log \"%1\" cannot be used: %2.")
                              .arg(directory.filePath(QString::fromLatin1(databaseName)), reason);
    return {nullptr, error, {}};
}

bool isToBeReplaced(const Attempt &attempt)
{
    return !attempt.database && attempt.finding.verdict != Verdict::Blocked;
}

// With the directory alone: makes a log where there is none that can be used. `before` is what was found in it shared,
// Usable where nobody has looked. A read that went wrong once may look like damage: what is damaged still is when it is
// read again.
Attempt openReplacing(StateDirectory &directory, Verdict before, const ProgressListener &progress)
{
    Finding finished = finishReplacement(directory);
    if (finished.verdict != Verdict::Usable)
        return {{Verdict::Blocked, explain(finished)}, nullptr};
    Attempt attempt = openFile(directory, Hold::Alone, progress);
    if (isToBeReplaced(attempt) && attempt.finding.verdict != before)
        attempt = openFile(directory, Hold::Alone, progress);
    if (!isToBeReplaced(attempt))
        return attempt;
    if (const QString error = replace(directory, attempt.finding.verdict, progress); !error.isEmpty())
        return {{Verdict::Blocked, error}, nullptr};
    return openFile(directory, Hold::Alone, progress);
}

// Who shares the directory leaves everything as it is; who finds no log that can be used takes it alone, unless another
// one is quicker and makes it usable. What an interrupted replacement has left beside a log is cleared away by the next
// one who can be alone at once.
Attempt openInDirectory(StateDirectory &directory, const ProgressListener &progress)
{
    constexpr int betweenLooksMs = 200;
    QString holder = hasRemains(directory) ? directory.takeAlone(0) : QStringLiteral("not asked yet");
    Attempt attempt;
    for (const QDeadlineTimer end(StateDirectory::longestWaitMs); !holder.isEmpty();) {
        attempt = openFile(directory, Hold::Shared, progress);
        if (!isToBeReplaced(attempt))
            return attempt;
        holder = directory.takeAlone(betweenLooksMs);
        if (!holder.isEmpty() && end.hasExpired()) {
            if (attempt.finding.verdict == Verdict::Damaged)
                attempt.finding.reason.clear(); // SQLite's words, of several lines
            return {{Verdict::Blocked, explain(attempt.finding) + QStringLiteral(", and ") + holder}, nullptr};
        }
    }
    attempt = openReplacing(directory, attempt.finding.verdict, progress);
    directory.share();
    return attempt;
}

// What can be told of a ledger only when it is read.
OpenedLedger open(std::unique_ptr<Ledger> ledger, QStringList notices)
{
    if (ledger->load(notices) != Success)
        return {nullptr, QStringLiteral("What the call log keeps of the SIM card cannot be read."), {}};
    notices.removeAll({});
    return {std::move(ledger), {}, notices.join(QLatin1Char(' '))};
}

OpenedLedger openInMemory(const std::shared_ptr<Clock> &clock)
{
    Attempt attempt = openDatabase(QStringLiteral(":memory:"), Care::Quick, Hold::Alone);
    if (!attempt.database)
        return {nullptr, QStringLiteral("The call log cannot be opened: %1.").arg(explain(attempt.finding)), {}};
    return open(std::make_unique<Ledger>(std::move(attempt.database), nullptr, clock), {});
}

// Thrown out of a long step, all of which leave what is kept as it is until they are done.
struct GivenUp {
};

ProgressListener progressListener(const Settings &settings)
{
    if (!settings.isGivenUp)
        return settings.progress;
    return [&settings](const QString &step, int percent) {
        if (settings.progress)
            settings.progress(step, percent);
        if (settings.isGivenUp())
            throw GivenUp{};
    };
}

} // namespace

OpenedLedger openLedger(const QString &path, const std::shared_ptr<Clock> &clock, const ProgressListener &progress)
{
    if (!QSqlDatabase::isDriverAvailable(QStringLiteral("QSQLITE")))
        return {
            nullptr, QStringLiteral("The call log cannot be opened: Qt's SQLite driver is not installed."), {}};
    if (path.isEmpty())
        return openInMemory(clock);
    QString error;
    std::unique_ptr<StateDirectory> directory = StateDirectory::open(path, error);
    if (!directory)
        return {nullptr, error, {}};
    Attempt attempt = openInDirectory(*directory, progress);
    if (!attempt.database)
        return cannotBeUsed(*directory, explain(attempt.finding));
    const QString untold = untoldNotice(*attempt.database);
    const StateDirectory &place = *directory;
    auto ledger = std::make_unique<Ledger>(std::move(attempt.database), std::move(directory), clock);
    Ledger &opening = *ledger;
    const QString notice = place.notice();
    OpenedLedger opened = open(std::move(ledger), {notice, untold});
    if (!opened.ledger)
        return opened;
    if (!opening.record() && place.isRecording())
        return cannotBeUsed(place, explain(failure(opening.connection())));
    // Now that nothing else can fail: of an opening that does only the error is told.
    if (!untoldNotice(opening.connection()).isEmpty())
        opening.noticeIsTold();
    opening.connection().setPatience(Database::usualPatienceMs);
    if (!attempt.isReadThrough)
        opened.unread = place.filePath(QString::fromLatin1(databaseName));
    return opened;
}

OpenedLedger openLedger(const Settings &settings)
{
    try {
        return openLedger(settings.stateDirectory, settings.clock, progressListener(settings));
    } catch (const GivenUp &) {
        return {nullptr, QStringLiteral("The opening of the call log was given up; it is as it was."), {}, {}};
    }
}

} // namespace handset::calllog
