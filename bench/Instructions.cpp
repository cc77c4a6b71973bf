#include "bench/Instructions.h"

#include "bench/Counted.h"
#include "bench/Measurement.h"

#include <QtConcurrent/QtConcurrentMap>
#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>

#include <algorithm>
#include <atomic>
#include <cstdio>

#include <sys/personality.h>

namespace bench {

namespace {

struct Job {
    const Comparison *comparison;
    int side;
    std::size_t row;
    Count count = {};
};

Side sideOf(const Job &job)
{
    return sidesOf(*job.comparison).at(static_cast<std::size_t>(job.side));
}

// A name for files.
QString fileName(const Job &job)
{
    static const QRegularExpression others(QStringLiteral("[^A-Za-z0-9]+"));
    QString name = QString::fromStdString(job.comparison->name + '-' + sideOf(job).label);
    return name.replace(others, QStringLiteral("-"));
}

QStringList command(const Job &job, const CountingPlace &place, const QString &file)
{
    const Side side = sideOf(job);
    QStringList words{QStringLiteral("valgrind"), QStringLiteral("--tool=callgrind"), QStringLiteral("--quiet"),
                      QStringLiteral("--callgrind-out-file=") + file};
    if (side.program)
        return words << side.program->path << side.program->arguments;
    if (job.comparison->countsOneThread)
        words << QStringLiteral("--collect-atstart=no");
    // Nothing is instrumented before a side is warm, which is much quicker.
    return words << QStringLiteral("--instr-atstart=no") << QCoreApplication::applicationFilePath()
                 << QStringLiteral("--large") << QStringLiteral("--count-row")
                 << QString::fromStdString(job.comparison->name) << QStringLiteral("--count-side")
                 << QString::number(job.side) << QStringLiteral("--data") << place.data;
}

// Of one file of callgrind's; negative where that is none of an iteration.
double instructionsIn(const QString &path, bool isMarked)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    bool counts = !isMarked;
    double total = -1;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine().trimmed();
        if (line.startsWith("desc: Trigger:"))
            counts = counts || line.endsWith(countedMark);
        else if (line.startsWith("totals: "))
            total = line.mid(8).toDouble();
    }
    return counts ? total : -1;
}

// The files in which a side's iterations are counted, in their order.
QStringList filesOf(const QString &file)
{
    const QFileInfo info(file);
    QStringList numbers;
    for (const QString &name : info.dir().entryList({info.fileName() + QStringLiteral(".*")}, QDir::Files))
        numbers.append(name.mid(info.fileName().size() + 1));
    std::sort(numbers.begin(), numbers.end(),
              [](const QString &one, const QString &other) { return one.toInt() < other.toInt(); });
    for (QString &number : numbers)
        number.prepend(file + u'.');
    return numbers;
}

Count countOf(const QString &file, const Job &job)
{
    const bool isProgram = sideOf(job).program.has_value();
    std::vector<double> counts;
    for (const QString &path : isProgram ? QStringList(file) : filesOf(file)) {
        const double instructions = instructionsIn(path, !isProgram);
        if (instructions >= 0)
            counts.push_back(instructions / job.comparison->operations);
    }
    // Those before are of the iterations to warm up, and empty.
    const auto wanted = static_cast<std::size_t>(isProgram ? 1 : job.comparison->counted);
    if (counts.size() < wanted || counts.back() <= 0)
        return {0, 0, 0, "callgrind has not counted"};
    counts.erase(counts.begin(), counts.end() - static_cast<std::ptrdiff_t>(wanted));
    std::sort(counts.begin(), counts.end());
    return {counts[counts.size() / 2], counts.front(), counts.back(), {}};
}

// What a failed process has to say.
std::string complaintOf(QProcess &process)
{
    const QByteArray said = process.readAllStandardError().trimmed();
    return said.isEmpty() ? process.errorString().toStdString() : said.toStdString();
}

Count run(const Job &job, const CountingPlace &place)
{
    const QString file = QDir(place.profiles).filePath(fileName(job));
    QStringList words = command(job, place, file);
    QProcess process;
    QProcessEnvironment environment = environmentOf(sideOf(job).program.value_or(Program{}));
    environment.insert(QStringLiteral("QT_HASH_SEED"), QStringLiteral("0"));
    process.setProcessEnvironment(environment);
    process.setChildProcessModifier([] { ::personality(ADDR_NO_RANDOMIZE); });
    process.setStandardOutputFile(QProcess::nullDevice());
    const QString program = words.takeFirst();
    process.start(program, words);
    process.waitForFinished(-1);
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0 ||
        process.error() == QProcess::FailedToStart)
        return {0, 0, 0, complaintOf(process)};
    return countOf(file, job);
}

std::vector<Job> jobsFor(const std::vector<Comparison> &comparisons)
{
    std::vector<Job> jobs;
    for (std::size_t row = 0; row < comparisons.size(); ++row) {
        const int sides =
            comparisons[row].countsInstructions ? 1 + static_cast<int>(comparisons[row].beside.size()) : 0;
        for (int side = 0; side < sides; ++side)
            jobs.push_back({&comparisons[row], side, row});
    }
    return jobs;
}

} // namespace

std::vector<std::vector<Count>> countInstructions(const std::vector<Comparison> &comparisons,
                                                  const CountingPlace &place)
{
    std::vector<Job> jobs = jobsFor(comparisons);
    std::atomic<std::size_t> begun = 0;
    QtConcurrent::blockingMap(jobs, [&](Job &job) {
        std::fprintf(stderr, "[%zu/%zu] counting: %s, %s\n", ++begun, jobs.size(), job.comparison->name.c_str(),
                     sideOf(job).label.c_str());
        job.count = run(job, place);
    });
    std::vector<std::vector<Count>> counts(comparisons.size());
    for (const Job &job : jobs)
        counts[job.row].push_back(job.count);
    return counts;
}

} // namespace bench
