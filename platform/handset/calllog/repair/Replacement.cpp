#include "Replacement.h"

#include "OpenDatabase.h"
#include "Salvage.h"

#include <QtCore/QFile>

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace handset::calllog {

namespace {

// A new log is made under the first name and gets the second when it is complete and closed; it becomes the database
// when what was there before has made way. So a database is never seen half made.
constexpr auto unfinishedName = "calllog-new.db";
constexpr auto readyName = "calllog-ready.db";
// What a damaged log is read from, so that it is kept as it was found.
constexpr auto copyName = "calllog-copy.db";

QString describe(Verdict verdict)
{
    switch (verdict) {
    case Verdict::Usable:
    case Verdict::Missing:
    case Verdict::Blocked:
        break; // not worth a notice, or an error
    case Verdict::Damaged:
        return QStringLiteral("The call log is damaged");
    case Verdict::Lost:
        return QStringLiteral("The call log was emptied");
    case Verdict::Foreign:
        return QStringLiteral("\"%1\" is not a call log").arg(QString::fromLatin1(databaseName));
    case Verdict::Newer:
        return QStringLiteral("The call log was written by a newer version");
    }
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

Finding readCopy(StateDirectory &directory, CallStore &target, Salvaged &salvaged)
{
    const QString copy = QString::fromLatin1(copyName);
    directory.remove(copy);
    if (!directory.copy(QString::fromLatin1(databaseName), copy)) {
        directory.remove(copy);
        return {Verdict::Blocked, QStringLiteral("the old one cannot be copied")};
    }
    salvaged = salvage(directory.filePath(copy), target);
    directory.remove(copy);
    return salvaged.written ? Finding{} : failure(target.connection());
}

// A complete new log under the ready name, with what can be read of the damaged one. Anything but Usable says why
// there is none.
Finding makeReplacement(StateDirectory &directory, Verdict verdict, Salvaged &salvaged)
{
    const QString name = QString::fromLatin1(unfinishedName);
    directory.remove(name);
    Finding created = createFile(directory.filePath(name));
    if (created.verdict != Verdict::Usable)
        return created;
    std::unique_ptr<StateDirectory> unlocked;
    Attempt fresh = openDatabase(directory.filePath(name), unlocked, Care::Quick);
    if (!fresh.store)
        return fresh.finding;
    if (verdict == Verdict::Damaged) {
        Finding read = readCopy(directory, *fresh.store, salvaged);
        if (read.verdict != Verdict::Usable)
            return read;
    }
    fresh.store.reset();
    return directory.rename(name, QString::fromLatin1(readyName)) ? Finding{} : blocked(errno);
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

QString notice(Verdict verdict, const QString &keptName, const Salvaged &salvaged)
{
    QString text =
        QStringLiteral("%1; it was kept as \"%2\" and a new one was begun").arg(describe(verdict), keptName);
    if (verdict == Verdict::Damaged)
        text += whatWasRead(salvaged) + whatWasCounted(salvaged);
    return text + QLatin1Char('.');
}

} // namespace

Replacement replace(StateDirectory &directory, Verdict verdict)
{
    const QString name = QString::fromLatin1(databaseName);
    Salvaged salvaged;
    const Finding made = makeReplacement(directory, verdict, salvaged);
    if (made.verdict != Verdict::Usable)
        return {QStringLiteral("a new one cannot be made (%1)").arg(made.reason), {}};
    QString keptName;
    QString error;
    if (verdict != Verdict::Missing) {
        keptName = directory.keepAside(name, error);
        if (keptName.isNull())
            return {QStringLiteral("it cannot be kept under another name (%1)").arg(error), {}};
    }
    if (!directory.rename(QString::fromLatin1(readyName), name))
        return {QStringLiteral("a new one cannot take its place (%1)").arg(blocked(errno).reason), {}};
    return {{}, verdict == Verdict::Missing ? QString() : notice(verdict, keptName, salvaged)};
}

void finishReplacement(StateDirectory &directory)
{
    const QString name = QString::fromLatin1(databaseName);
    const QString ready = QString::fromLatin1(readyName);
    directory.remove(QString::fromLatin1(copyName));
    directory.remove(QString::fromLatin1(unfinishedName));
    if (directory.exists(name)) {
        directory.remove(ready);
        return;
    }
    QString error;
    if (directory.exists(ready) && (!directory.hasLeftovers(name) || !directory.keepAside(name, error).isNull()))
        directory.rename(ready, name);
}

} // namespace handset::calllog
