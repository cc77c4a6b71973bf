#include "bench/CallLogs.h"

#include "bench/GrownLog.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QProcess>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>

#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

namespace bench {

namespace {

using handset::CallDirection;
using handset::CallKind;
using handset::PastCall;

constexpr int batchSize = 10'000;
constexpr int mostWritten = usualLog;             // a larger log is grown from one of as many calls
constexpr qint64 firstCallMs = 1'136'073'600'000; // 2006-01-01
constexpr qint64 callEveryMs = 900'000;

// Of every four calls two are dialed, one answered and one a data call; they last 1 to 120 s.
PastCall callAt(int i)
{
    PastCall call;
    call.kind = i % 4 == 3 ? CallKind::Data : CallKind::Voice;
    call.direction = i % 4 == 2 ? CallDirection::Answered : CallDirection::Dialed;
    call.number = QStringLiteral("+4930555%1").arg(i % 1000, 3, 10, QLatin1Char('0'));
    call.startWallMs = firstCallMs + i * callEveryMs;
    call.durationMs = (i % 120 + 1) * qint64{1000};
    return call;
}

BenchedHandset openBenched(const QString &directory)
{
    BenchedHandset benched;
    benched.clock = std::make_shared<handset::ManualClock>(firstCallMs);
    handset::Settings settings;
    settings.stateDirectory = directory;
    settings.clock = benched.clock;
    const handset::Opened opened = handset::open(settings);
    benched.handset = std::dynamic_pointer_cast<handset::simulated::SimulatedHandset>(opened.handset);
    benched.error = benched.handset ? opened.notice : opened.error;
    if (!benched.error.isEmpty())
        benched.handset.reset();
    return benched;
}

void showProgress(int done, int calls)
{
    if (calls <= batchSize)
        return;
    if (done == batchSize)
        std::fprintf(stderr, "  building a log of %d calls:", calls);
    if (done % (calls / 10) == 0)
        std::fprintf(stderr, " %d%%", done / (calls / 100));
    if (done == calls)
        std::fputc('\n', stderr);
}

QString fill(handset::simulated::SimulatedHandset &handset, int calls)
{
    for (int next = 0; next < calls;) {
        QList<PastCall> batch;
        const int end = std::min(calls, next + batchSize);
        batch.reserve(end - next);
        while (next < end)
            batch.append(callAt(next++));
        if (handset.addHistory(batch) != 0)
            return QStringLiteral("The calls could not be written.");
        showProgress(next, calls);
    }
    return {};
}

QString write(const QString &path, int calls)
{
    BenchedHandset benched = openBenched(path);
    return benched.handset ? fill(*benched.handset, calls) : benched.error;
}

// Under another name until it is whole.
template <typename Make>
QString build(const QString &path, Make make)
{
    const QString unfinished = path + QStringLiteral(".unfinished");
    QDir(unfinished).removeRecursively();
    if (QString error = make(unfinished); !error.isEmpty())
        return error;
    QDir(path).removeRecursively();
    return QDir().rename(unfinished, path) ? QString() : QStringLiteral("%1 cannot be made.").arg(path);
}

// The tables of the log may be others since.
bool isUpToDate(const QString &path)
{
    Dl_info library = {};
    if (!::dladdr(reinterpret_cast<const void *>(&handset::open), &library))
        return false;
    const QFileInfo built(path);
    return built.exists() &&
           built.lastModified() > QFileInfo(QString::fromLocal8Bit(library.dli_fname)).lastModified();
}

// On the disk when it is done: writing it back must not disturb what is measured next.
bool copyFile(const QString &from, const QString &to)
{
    if (!QFile::copy(from, to))
        return false;
    const int fd = ::open(QFile::encodeName(to).constData(), O_RDONLY | O_CLOEXEC);
    const bool written = fd >= 0 && ::fsync(fd) == 0;
    if (fd >= 0)
        ::close(fd);
    return written;
}

bool copyFiles(const QString &from, const QString &to)
{
    const QStringList names = QDir(from).entryList(QDir::Files);
    return !names.isEmpty() && std::all_of(names.begin(), names.end(), [&](const QString &name) {
        return copyFile(from + QLatin1Char('/') + name, to + QLatin1Char('/') + name);
    });
}

} // namespace

QString CallLogs::original(int calls, After after) const
{
    const QLatin1StringView suffix(after == After::Crash ? "-crashed" : "");
    return QStringLiteral("%1/calls-%2%3").arg(directory).arg(calls).arg(suffix);
}

QString CallLogs::prepare(int calls) const
{
    const QString path = original(calls, After::Closing);
    if (isUpToDate(path))
        return {};
    if (calls <= mostWritten)
        return build(path, [calls](const QString &where) { return write(where, calls); });
    if (QString error = prepare(mostWritten); !error.isEmpty())
        return error;
    const QString smaller = original(mostWritten, After::Closing);
    return build(path, [&](const QString &where) {
        std::fprintf(stderr, "  building a log of %d calls from one of %d\n", calls, mostWritten);
        const QString file = QLatin1Char('/') + QLatin1StringView(logName);
        return QDir().mkpath(where) && copyFiles(smaller, where)
                   ? growLog(where + file, smaller + file, calls / mostWritten)
                   : QStringLiteral("%1 cannot be copied.").arg(smaller);
    });
}

void CallLogs::remove(int calls) const
{
    for (const After after : {After::Closing, After::Crash})
        QDir(original(calls, after)).removeRecursively();
}

QString CallLogs::prepareCrashed(int calls) const
{
    const QString path = original(calls, After::Crash);
    if (isUpToDate(path))
        return {};
    if (QString error = prepare(calls); !error.isEmpty())
        return error;
    const QTemporaryDir where(directory + QStringLiteral("/crashed-XXXXXX"));
    QProcess process;
    if (copyTo(where, calls))
        startCrashing(process, where.path());
    process.closeWriteChannel();
    process.waitForFinished(-1);
    const bool hasCrashed = process.exitStatus() == QProcess::CrashExit;
    const qint64 unwritten = QFileInfo(where.filePath(QLatin1StringView(logName) + QStringLiteral("-wal"))).size();
    QDir(path).removeRecursively();
    if (!hasCrashed || unwritten == 0 || !QDir().mkpath(path) || !copyFiles(where.path(), path))
        return QStringLiteral("%1 cannot be made.").arg(path);
    return {};
}

std::shared_ptr<const QTemporaryDir> CallLogs::copy(int calls, After after) const
{
    auto made = std::make_shared<QTemporaryDir>(directory + QStringLiteral("/measured-XXXXXX"));
    return copyTo(*made, calls, after) ? made : nullptr;
}

bool CallLogs::copyTo(const QTemporaryDir &where, int calls, After after) const
{
    return where.isValid() && copyFiles(original(calls, after), where.path());
}

int recordAndCrash(const QString &directory)
{
    constexpr int calls = 50; // which the write-ahead log still holds
    constexpr qint64 callMs = 60'000;
    const BenchedHandset benched = openBenched(directory);
    int result = benched.handset ? 0 : 1;
    for (int i = 0; i <= calls && result == 0; ++i) {
        result = benched.handset->dial(QStringLiteral("+4930555010"), handset::CallKind::Voice);
        result = result == 0 ? benched.handset->remoteAnswer() : result;
        benched.clock->advance(callMs);
        result = result == 0 ? benched.handset->checkpoint() : result;
        result = result == 0 && i < calls ? benched.handset->hangUp() : result;
    }
    if (result != 0)
        return EXIT_FAILURE;
    std::puts("recorded");
    std::fflush(stdout);
    std::getchar();
    ::kill(::getpid(), SIGKILL);
    return EXIT_FAILURE;
}

void startCrashing(QProcess &process, const QString &directory)
{
    process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--crash-in"), directory});
}

BenchedHandset CallLogs::open(int calls, bool keep)
{
    std::shared_ptr<const QTemporaryDir> where = keep ? kept.value(calls) : nullptr;
    if (!where)
        where = copy(calls);
    if (!where) {
        BenchedHandset failed;
        failed.error = QStringLiteral("%1 cannot be copied.").arg(original(calls, After::Closing));
        return failed;
    }
    if (keep)
        kept.insert(calls, where);
    return openIn(where);
}

BenchedHandset CallLogs::openIn(const std::shared_ptr<const QTemporaryDir> &where)
{
    BenchedHandset benched = openBenched(where->path());
    benched.directory = where;
    return benched;
}

} // namespace bench
