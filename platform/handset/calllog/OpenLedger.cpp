#include "calllog/OpenLedger.h"

#include "calllog/CheckBeside.h"
#include "calllog/ExamineFile.h"
#include "calllog/OpenDatabase.h"
#include "calllog/repair/Replacement.h"
#include "handset/Status.h"

#include <QtCore/QStringList>

#include <cerrno>

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

/// The place that is opened, and how.
struct Opening {
    StateDirectory &directory;
    Waiting &waiting;
    const ProgressListener &progress;
};

// Who has the log itself is not known to have the directory: it may be any program.
Attempt openWaiting(const Opening &opening, const QString &name, Hold hold)
{
    const StateDirectory &directory = opening.directory;
    opening.waiting.setWriters([&directory, name] { return directory.writers(name); });
    Attempt attempt =
        openDatabase(directory.filePath(name), careFor(directory, name), hold, &opening.waiting, opening.progress);
    opening.waiting.goOn();
    const QString who = opening.waiting.lastHolders();
    if (attempt.finding.verdict == Verdict::Blocked && !who.isEmpty())
        attempt.finding.reason = QStringLiteral("it is in use by ") + who;
    return attempt;
}

Attempt openFile(const Opening &opening, Hold hold)
{
    const StateDirectory &directory = opening.directory;
    const QString name = QString::fromLatin1(databaseName);
    if (QString problem = directory.mendRights(name); !problem.isEmpty())
        return {{Verdict::Blocked, std::move(problem)}, nullptr};
    Finding finding = examineFile(directory, name);
    if (finding.verdict != Verdict::Usable)
        return {std::move(finding), nullptr};
    if (isMarkedDamaged(directory.filePath(name)))
        return {{Verdict::Damaged, {}}, nullptr};
    return openWaiting(opening, name, hold);
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
Attempt openReplacing(const Opening &opening, Verdict before)
{
    Finding finished = finishReplacement(opening.directory);
    if (finished.verdict != Verdict::Usable)
        return {{Verdict::Blocked, explain(finished)}, nullptr};
    Attempt attempt = openFile(opening, Hold::Alone);
    if (isToBeReplaced(attempt) && attempt.finding.verdict != before)
        attempt = openFile(opening, Hold::Alone);
    if (!isToBeReplaced(attempt))
        return attempt;
    const QString error = replace(opening.directory, attempt.finding.verdict, opening.progress);
    if (!error.isEmpty())
        return {{Verdict::Blocked, error}, nullptr};
    return openFile(opening, Hold::Alone);
}

// What is needed, and who is in the way of it.
Attempt blockedByOthers(Finding found, const QString &others)
{
    if (found.verdict == Verdict::Usable) // nobody has looked
        return {{Verdict::Blocked, others}, nullptr};
    if (found.verdict == Verdict::Damaged)
        found.reason.clear(); // SQLite's words, of several lines
    const QString text = QStringLiteral("%1, and only who has the directory alone can put that right; %2");
    return {{Verdict::Blocked, text.arg(explain(found), others)}, nullptr};
}

// Who shares the directory leaves everything as it is; who finds no log that can be used takes it alone, unless another
// one is quicker and makes it usable. What an interrupted replacement has left beside a log is cleared away by the next
// one who can be alone at once.
Attempt openInDirectory(const Opening &opening)
{
    constexpr int betweenLooksMs = 200;
    StateDirectory &directory = opening.directory;
    Attempt attempt;
    bool isAlone = false;
    QString others;
    if (hasRemains(directory))
        isAlone = directory.takeAlone(0, opening.waiting, others) == 0;
    while (!isAlone) {
        if (!directory.isHeld())
            return blockedByOthers(attempt.finding, others);
        attempt = openFile(opening, Hold::Shared);
        if (!isToBeReplaced(attempt))
            return attempt;
        const int error = directory.takeAlone(betweenLooksMs, opening.waiting, others);
        isAlone = error == 0;
        if (!isAlone && (error != EWOULDBLOCK || opening.waiting.isOver()))
            return blockedByOthers(attempt.finding, others);
    }
    opening.waiting.arrive();
    attempt = openReplacing(opening, attempt.finding.verdict);
    // Others who want it alone see that this one records, and let it go again.
    opening.waiting.arrive();
    if (!directory.share(opening.waiting))
        return blockedByOthers({}, QStringLiteral("another process has taken it alone"));
    return attempt;
}

// What can be told of a ledger only when it is read is added to `notices`. Returns why it cannot be used.
QString load(Ledger &ledger, QStringList &notices)
{
    if (ledger.load(notices) == Success)
        return {};
    return QStringLiteral("what it keeps of the SIM card and the account cannot be read (%1)")
        .arg(explain(failure(ledger.connection())));
}

OpenedLedger opened(std::unique_ptr<Ledger> ledger, QStringList notices)
{
    notices.removeAll({});
    return {std::move(ledger), {}, notices.join(QLatin1Char(' '))};
}

OpenedLedger openInMemory(const std::shared_ptr<Clock> &clock)
{
    const QString error = QStringLiteral("The call log cannot be opened: %1.");
    Attempt attempt = openDatabase(QStringLiteral(":memory:"), Care::Quick, Hold::Alone, nullptr);
    if (!attempt.database)
        return {nullptr, error.arg(explain(attempt.finding)), {}};
    auto ledger = std::make_unique<Ledger>(std::move(attempt.database), nullptr, clock);
    QStringList notices;
    const QString problem = load(*ledger, notices);
    return problem.isEmpty() ? opened(std::move(ledger), notices) : OpenedLedger{nullptr, error.arg(problem), {}};
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

// `unread` is the file that is still to be read through; empty when it has been.
OpenedLedger open(const QString &path, const std::shared_ptr<Clock> &clock, const Patience &patience,
                  const ProgressListener &progress, QString &unread)
{
    if (path.isEmpty())
        return openInMemory(clock);
    QString error;
    Waiting waiting(patience.opening, progress);
    std::unique_ptr<StateDirectory> directory = StateDirectory::open(path, waiting, error);
    if (!directory)
        return {nullptr, error, {}};
    Attempt attempt = openInDirectory({*directory, waiting, progress});
    if (!attempt.database)
        return cannotBeUsed(*directory, explain(attempt.finding));
    waiting.arrive();
    const std::optional<QString> untold = untoldNotice(*attempt.database);
    const StateDirectory &place = *directory;
    auto ledger = std::make_unique<Ledger>(std::move(attempt.database), std::move(directory), clock);
    QStringList notices{place.notice(), untold.value_or(QString())};
    QString problem = load(*ledger, notices);
    if (problem.isEmpty() && !ledger->record() && ledger->whyNotRecording() == StorageFailed)
        problem = explain(failure(ledger->connection()));
    waiting.goOn();
    if (!problem.isEmpty())
        return cannotBeUsed(place, problem);
    // Now that nothing else can fail: of an opening that does only the error is told. What could not be read is left to
    // the next one.
    if (untold && !untoldNotice(ledger->connection()).value_or(QString()).isEmpty())
        ledger->noticeIsTold();
    ledger->connection().setPatience(patience.operation);
    if (!attempt.isReadThrough)
        unread = place.filePath(QString::fromLatin1(databaseName));
    return opened(std::move(ledger), notices);
}

} // namespace

OpenedLedger openLedger(const QString &path, const std::shared_ptr<Clock> &clock, const Patience &patience,
                        const ProgressListener &progress)
{
    QString unread;
    return open(path, clock, patience, progress, unread);
}

OpenedLedger openLedger(const Settings &settings)
{
    try {
        QString unread;
        OpenedLedger opened =
            open(settings.stateDirectory, settings.clock, settings.patience, progressListener(settings), unread);
        if (!unread.isEmpty())
            opened.ledger->readThrough(unread, settings.tell);
        return opened;
    } catch (const GivenUp &) {
        return {nullptr, QStringLiteral("The opening of the call log was given up; it is as it was."), {}};
    }
}

} // namespace handset::calllog
