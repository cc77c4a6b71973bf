// Puts the call log through scenes in which a call of the system fails, or the process is killed at it: every call of
// every scene in every way, or a sample of all that. After each one a judge opens the directory without faults.
#include "handset/calllog/faults/FaultBytes.h"
#include "handset/calllog/faults/FaultJudge.h"
#include "handset/calllog/faults/FaultProcess.h"
#include "handset/calllog/faults/FaultScenes.h"
#include "support/Sample.h"
#include "support/faults/SystemFaults.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <map>
#include <random>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

using namespace handset::faults;

namespace {

constexpr qsizetype allBytes = 5000; ///< that are tried where all is
constexpr qsizetype aheadShare = 10; ///< of so many, one in the write-ahead log

struct Way {
    const char *name;
    int error;
    const char *calls; ///< with blanks around each
};

constexpr std::array ways{
    Way{"ENOSPC", ENOSPC, " open write pwrite fsync ftruncate rename link "},
    Way{"EIO", EIO, " open read pread write pwrite fsync ftruncate rename link unlink "},
    Way{"EMFILE", EMFILE, " open "},
    Way{"EACCES", EACCES, " open rename link unlink mmap "},
    Way{"EPERM", EPERM, " link "},
    Way{"ENOMEM", ENOMEM, " open read pread mmap "},
    Way{"short", kavFaultsHalf, " read pread write pwrite "},
    Way{"kill", kavFaultsKill, " open read pread write pwrite fsync ftruncate rename link unlink mmap "},
    Way{"kill-halfway", kavFaultsKillHalfway, " write pwrite "},
};

/// A row of the table: the first call that fails is each of `count` in its turn.
struct Cell {
    std::size_t scene;
    QByteArray call;
    QByteArray error; ///< with "+" behind it where every later call fails as well
    int number;
    bool always;
    long count;
};

struct Injection {
    std::size_t cell;
    long nth;
};

struct Outcome {
    bool hasStruck = false;
    QByteArrayList faults;
};

struct Asked {
    QByteArray scene;
    QByteArray call;
    QByteArray error;
    long nth = 0;
    qsizetype sample = 0; ///< 0: all
    quint32 seed = 1;
    int jobs = 1;
    bool isVerbose = false;
    qsizetype bytes = 0;  ///< positions to be changed instead, and of a write-ahead log a part of as many
    bool isAhead = false; ///< of `at`: in the write-ahead log
    qint64 at = -1;
    int value = 0;
};

struct Prepared {
    std::vector<Scene> scenes;
    std::vector<Before> before;
};

// --- one injection

Outcome inject(const Scene &scene, const Before &before, const Fault &fault, Journal &journal, Journal &verdict)
{
    const QTemporaryDir place(
        QDir(QStringLiteral("/dev/shm")).exists() ? QStringLiteral("/dev/shm/kav-faults-XXXXXX") : QString());
    const QString directory = place.filePath(QStringLiteral("state"));
    Outcome outcome;
    journal.clear();
    verdict.clear();
    if (!scene.files.isEmpty() && !putInto(directory, scene.files))
        return {false, {"the files cannot be put in their place"}};
    const int status = inProcess([&] { play(scene, directory, fault, journal); });
    const bool killed = WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL && fault.error < 0;
    outcome.hasStruck = killed || journal.hasStruck();
    if (!killed && status != 0)
        outcome.faults << "the process ended with status " + QByteArray::number(status);
    const int judged = inProcess([&] {
        const QByteArrayList all = judge(scene, before, directory, fault, journal);
        for (const QByteArray &sentence : all)
            verdict.say(QByteArray(sentence).replace('\n', ' '));
    });
    if (judged != 0)
        outcome.faults << "the judge ended with status " + QByteArray::number(judged);
    outcome.faults += verdict.lines();
    return outcome;
}

Before beforeOf(const Scene &scene)
{
    const QTemporaryDir place;
    const QString directory = place.filePath(QStringLiteral("state"));
    return scene.files.isEmpty() || putInto(directory, scene.files) ? lookBefore(directory) : Before{};
}

// --- all of them

QByteArray commandOf(const Prepared &prepared, const Cell &cell, long nth)
{
    return "scripts/faults --scene '" + prepared.scenes[cell.scene].name + "' --call " + cell.call + " --error " +
           cell.error + " --nth " + QByteArray::number(int(nth));
}

bool isAsked(const QByteArray &asked, const QByteArray &name)
{
    return asked.isEmpty() || asked == name;
}

// As many calls as there are without a fault; what comes after one differs, but the first that fails is among these.
std::vector<Cell> cellsOf(const Prepared &prepared, const Asked &asked, Outcome &faultless)
{
    std::vector<Cell> cells;
    Journal journal;
    Journal verdict;
    for (std::size_t i = 0; i < prepared.scenes.size(); ++i) {
        const Scene &scene = prepared.scenes[i];
        if (!isAsked(asked.scene, scene.name))
            continue;
        const Outcome outcome = inject(scene, prepared.before[i], {}, journal, verdict);
        for (const QByteArray &sentence : outcome.faults)
            faultless.faults << scene.name + ", without a fault: " + sentence;
        for (const Way &way : ways)
            for (std::size_t call = 0; kavFaultsCalls[call]; ++call) {
                const QByteArray name = kavFaultsCalls[call];
                const long count = journal.counted(call);
                if (count == 0 || !isAsked(asked.call, name) || !QByteArray(way.calls).contains(' ' + name + ' '))
                    continue;
                for (const bool always : {false, true}) {
                    const QByteArray error = always ? QByteArray(way.name) + '+' : QByteArray(way.name);
                    if (isAsked(asked.error, error) && !(always && way.error < 0))
                        cells.push_back({i, name, error, way.error, always, count});
                }
            }
    }
    return cells;
}

// A sample goes through the rows in turns, so that it has something of each.
std::vector<Injection> injectionsOf(const std::vector<Cell> &cells, const Asked &asked)
{
    std::mt19937 random(asked.seed);
    std::vector<std::vector<Injection>> rows(cells.size());
    std::size_t longest = 0;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        for (long nth = 1; nth <= cells[i].count; ++nth)
            if (asked.nth == 0 || asked.nth == nth)
                rows[i].push_back({i, nth});
        std::shuffle(rows[i].begin(), rows[i].end(), random);
        longest = std::max(longest, rows[i].size());
    }
    std::shuffle(rows.begin(), rows.end(), random);
    std::vector<Injection> all;
    for (std::size_t turn = 0; turn < longest; ++turn)
        for (const std::vector<Injection> &row : rows)
            if (turn < row.size())
                all.push_back(row[turn]);
    if (asked.sample > 0 && all.size() > static_cast<std::size_t>(asked.sample))
        all.resize(static_cast<std::size_t>(asked.sample));
    return all;
}

struct Tally {
    long struck = 0;
    long faults = 0;
};

/// A worker's share; what it finds goes to `report`, a line each: cell, 1 where the fault was met, and what is wrong.
void work(const Prepared &prepared, const std::vector<Cell> &cells, const std::vector<Injection> &injections,
          const Asked &asked, int share, QFile &report)
{
    Journal journal;
    Journal verdict;
    for (std::size_t i = static_cast<std::size_t>(share); i < injections.size();
         i += static_cast<std::size_t>(asked.jobs)) {
        const Cell &cell = cells[injections[i].cell];
        const Fault fault{cell.call, cell.number, cell.always, injections[i].nth};
        const Outcome outcome =
            inject(prepared.scenes[cell.scene], prepared.before[cell.scene], fault, journal, verdict);
        report.write(QByteArray::number(qulonglong{injections[i].cell}) + ' ' +
                     QByteArray::number(int(outcome.hasStruck)) + ' ' + outcome.faults.join("; ") + '\n');
        if (!outcome.faults.isEmpty() || asked.isVerbose) {
            std::printf("%s\n    %s\n", commandOf(prepared, cell, fault.nth).constData(),
                        outcome.faults.join("\n    ").constData());
            if (asked.isVerbose)
                std::printf("      %s\n", journal.lines().join("\n      ").constData());
            std::fflush(stdout);
        }
        if (share == 0 && i / static_cast<std::size_t>(asked.jobs) % 500 == 499)
            std::fprintf(stderr, "%zu of %zu\n", i + 1, injections.size());
    }
}

std::vector<Tally> run(const Prepared &prepared, const std::vector<Cell> &cells,
                       const std::vector<Injection> &injections, const Asked &asked)
{
    const QTemporaryDir reports;
    const auto reportOf = [&reports](int share) { return reports.filePath(QString::number(share)); };
    std::vector<pid_t> workers;
    for (int share = 0; share < asked.jobs; ++share) {
        std::fflush(nullptr);
        const pid_t worker = ::fork();
        if (worker == 0) {
            QFile report(reportOf(share));
            if (report.open(QIODevice::WriteOnly))
                work(prepared, cells, injections, asked, share, report);
            report.close();
            std::fflush(nullptr);
            std::exit(0); // not _exit(): a build that counts what is run writes its counts at the end
        }
        workers.push_back(worker);
    }
    for (const pid_t worker : workers)
        ::waitpid(worker, nullptr, 0);
    std::vector<Tally> tallies(cells.size());
    for (int share = 0; share < asked.jobs; ++share) {
        QFile report(reportOf(share));
        const QByteArray text = report.open(QIODevice::ReadOnly) ? report.readAll() : QByteArray();
        for (const QByteArray &line : text.split('\n')) {
            const QByteArrayList words = line.split(' ');
            if (words.size() < 3)
                continue;
            Tally &tally = tallies[words[0].toUInt()];
            tally.struck += words[1].toInt();
            tally.faults += words[2].isEmpty() ? 0 : 1;
        }
    }
    return tallies;
}

// --- what is told

int tell(const Prepared &prepared, const std::vector<Cell> &cells, const std::vector<Tally> &tallies,
         const Outcome &faultless, std::size_t tried)
{
    std::printf("%-34s %-9s %-12s %9s %10s\n", "scene", "call", "error", "met", "violations");
    long struck = 0;
    long faults = 0;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        if (tallies[i].struck > 0 || tallies[i].faults > 0)
            std::printf("%-34s %-9s %-12s %9ld %10ld\n", prepared.scenes[cells[i].scene].name.constData(),
                        cells[i].call.constData(), cells[i].error.constData(), tallies[i].struck,
                        tallies[i].faults);
        struck += tallies[i].struck;
        faults += tallies[i].faults;
    }
    for (const QByteArray &sentence : faultless.faults)
        std::printf("%s\n", sentence.constData());
    std::printf("%zu runs, %ld met their fault, %ld violations\n", tried, struck, faults);
    const bool isRight = faults == 0 && faultless.faults.isEmpty() && struck > 0;
    return isRight ? 0 : 1;
}

bool read(QCoreApplication &application, Asked &asked)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Fails every call that the call log makes to the system, or "
                                                    "kills the process there, and judges what is left."));
    parser.addHelpOption();
    const auto option = [&parser](const char *name, const char *text, const char *value) {
        parser.addOption({QString::fromLatin1(name), QString::fromLatin1(text), QString::fromLatin1(value)});
    };
    option("scene", "Only this scene.", "name");
    option("call", "Only this call: open, read, ...", "name");
    option("error", "Only this: ENOSPC, EIO, ..., short, kill, kill-halfway; with + every later call fails, too.",
           "name");
    option("nth", "Only the n-th such call.", "n");
    option("sample", "Tries no more than so many, some of each kind.", "number");
    option("seed", "Chooses the sample.", "number");
    option("bytes",
           "Changes a byte at each of so many positions of a log, and of a tenth in its write-ahead log, instead.",
           "number");
    option("at", "The same, at this position alone, to --value.", "position");
    parser.addOption({QStringLiteral("ahead"), QStringLiteral("Of --at: in the write-ahead log.")});
    option("value", "0 to 255.", "number");
    option("jobs", "So many at once.", "number");
    parser.addOption({QStringLiteral("verbose"), QStringLiteral("Prints what the processes of each scene say.")});
    parser.addOption({QStringLiteral("list"), QStringLiteral("Lists the scenes.")});
    parser.process(application);
    asked.scene = parser.value(QStringLiteral("scene")).toUtf8();
    asked.call = parser.value(QStringLiteral("call")).toUtf8();
    asked.error = parser.value(QStringLiteral("error")).toUtf8();
    asked.nth = parser.value(QStringLiteral("nth")).toLong();
    const bool isAll = qEnvironmentVariableIsSet("KAV_ALL_FAULTS");
    asked.sample = isAll ? 0 : parser.value(QStringLiteral("sample")).toLongLong() / sampleStride(6);
    asked.seed = std::max(1u, parser.value(QStringLiteral("seed")).toUInt());
    asked.bytes = parser.value(QStringLiteral("bytes")).toLongLong() / sampleStride(6);
    if (asked.bytes > 0 && isAll)
        asked.bytes = std::max(asked.bytes, allBytes);
    asked.at = parser.isSet(QStringLiteral("at")) ? parser.value(QStringLiteral("at")).toLongLong() : -1;
    asked.isAhead = parser.isSet(QStringLiteral("ahead"));
    asked.value = parser.value(QStringLiteral("value")).toInt();
    asked.jobs = std::max(1, parser.value(QStringLiteral("jobs")).toInt());
    asked.isVerbose = parser.isSet(QStringLiteral("verbose"));
    return !parser.isSet(QStringLiteral("list"));
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    Asked asked;
    const bool isRun = read(application, asked);
    if (asked.at >= 0)
        return (asked.isAhead ? changeBytesAhead : changeBytes)(0, asked.seed, asked.at, asked.value);
    if (asked.bytes > 0)
        return std::max(changeBytes(asked.bytes, asked.seed, -1, 0),
                        changeBytesAhead(asked.bytes / aheadShare, asked.seed, -1, 0));
    Prepared prepared{allScenes(), {}};
    for (const Scene &scene : prepared.scenes) {
        if (!isRun)
            std::printf("%s\n", scene.name.constData());
        prepared.before.push_back(beforeOf(scene));
    }
    if (!isRun)
        return 0;
    Outcome faultless;
    const std::vector<Cell> cells = cellsOf(prepared, asked, faultless);
    const std::vector<Injection> injections = injectionsOf(cells, asked);
    return tell(prepared, cells, run(prepared, cells, injections, asked), faultless, injections.size());
}
