// A process that makes calls is killed at any moment, hundreds of times: no finished call may be lost.
#include "HandsetTestKit.h"
#include "Schema.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QElapsedTimer>
#include <QtCore/QHash>
#include <QtCore/QProcess>

#include <algorithm>
#include <limits>
#include <random>

using namespace handset;
using namespace handset::test;
using calllog::CallState;

namespace {

constexpr int kills = 220;
constexpr int killsForOneDirectory = 20;

/// What the processes said they finished: durations by number.
using Reported = QHash<QString, qint64>;

qint64 total(const LogFile &file, const char *counter)
{
    const QString select = QStringLiteral("SELECT ms FROM totals WHERE counter = '%1'");
    return file.value(select.arg(QLatin1String(counter))).toLongLong();
}

qint64 sumWhere(const LogFile &file, const char *condition)
{
    const QString select = QStringLiteral("SELECT coalesce(sum(duration_ms), 0) FROM calls WHERE %1");
    return file.value(select.arg(QLatin1String(condition))).toLongLong();
}

} // namespace

class TestKill : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void aKillAtAnyMomentLosesNoFinishedCall();

private:
    void runUntilKilled(const QString &directory, unsigned seed);
    void read(const QByteArray &output);
    void check(const QString &directory);

    int below(int bound) { return std::uniform_int_distribution<int>(0, bound - 1)(random); }

    std::mt19937 random;
    int usualStartUp = 50; ///< in ms: from the start of a process to its first call
    Reported reported;
};

void TestKill::read(const QByteArray &output)
{
    const QByteArray finished = output.left(output.lastIndexOf('\n') + 1);
    for (const QByteArray &line : finished.split('\n')) {
        if (line.isEmpty())
            continue;
        const QList<QByteArray> words = line.split(' ');
        bool isDuration = false;
        const qint64 duration = words.value(1).toLongLong(&isDuration);
        QVERIFY2(isDuration && words.size() == 2, line.constData());
        reported.insert(QString::fromLatin1(words[0]), duration);
    }
}

void TestKill::runUntilKilled(const QString &directory, unsigned seed)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/handset_other_process"),
                  {QStringLiteral("calls"), directory, QString::number(seed)});
    QVERIFY(process.waitForStarted());
    QByteArray output;
    const auto readFor = [&](QDeadlineTimer deadline, int lines) {
        while (!deadline.hasExpired() && output.count('\n') < lines) {
            process.waitForReadyRead(static_cast<int>(deadline.remainingTime()));
            output += process.readAll();
        }
    };
    if (seed % 2 == 0) { // some moment after some call
        QElapsedTimer startUp;
        startUp.start();
        readFor(QDeadlineTimer(60000), 1);
        usualStartUp = std::max<int>(10, static_cast<int>(startUp.elapsed()));
        readFor(QDeadlineTimer(60000), 1 + below(20));
        readFor(QDeadlineTimer(below(5), Qt::PreciseTimer), std::numeric_limits<int>::max());
    } else { // some moment while it starts, and opens the log
        readFor(QDeadlineTimer(below(2 * usualStartUp), Qt::PreciseTimer), std::numeric_limits<int>::max());
    }
    process.kill();
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::CrashExit); // it did not give up by itself
    output += process.readAll();
    read(output);
}

// Looks at a copy, so that the next process finds what the killed one left.
void TestKill::check(const QString &directory)
{
    const QString copy = directory + QStringLiteral("-copy");
    QVERIFY(copyState(directory, copy));
    if (!QFile::exists(copy + QStringLiteral("/calllog.db"))) {
        QVERIFY(reported.isEmpty());
        return;
    }
    const LogFile file(copy + QStringLiteral("/calllog.db"));
    QCOMPARE(file.value(QStringLiteral("PRAGMA integrity_check")), QVariant(QStringLiteral("ok")));

    Reported found;
    int running = 0;
    for (const LoggedCall &call : file.calls()) {
        running += call.state == static_cast<int>(CallState::Running) ? 1 : 0;
        if (call.state == static_cast<int>(CallState::Finished) ||
            call.state == static_cast<int>(CallState::NotConnected))
            found.insert(call.number, call.durationMs);
    }
    QVERIFY(running <= 1);
    for (auto call = reported.cbegin(); call != reported.cend(); ++call)
        QCOMPARE(found.value(call.key(), -1), call.value());

    QCOMPARE(total(file, "lifetime"), sumWhere(file, "true"));
    QCOMPARE(total(file, "all"), sumWhere(file, "true"));
    QCOMPARE(total(file, "dialed"), sumWhere(file, "kind = 0 AND direction = 0"));
    QCOMPARE(total(file, "answered"), sumWhere(file, "kind = 0 AND direction = 1"));
    QCOMPARE(total(file, "data"), sumWhere(file, "kind = 1"));
    QCOMPARE(total(file, "last"), sumWhere(file, "id = (SELECT max(id) FROM calls WHERE state <> 2)"));
}

void TestKill::aKillAtAnyMomentLosesNoFinishedCall()
{
    const quint32 given = qEnvironmentVariable("KAV_SEED").toUInt();
    const quint32 seed = given ? given : std::random_device()();
    qInfo("seed %u (KAV_SEED repeats it)", seed);
    random.seed(seed);

    const StateDir state(StateDir::OnDisk);
    int finished = 0;
    for (int kill = 0; kill < kills; ++kill) {
        if (kill % killsForOneDirectory == 0)
            reported.clear();
        const QString directory = state.file(QString::number(kill / killsForOneDirectory));
        const qsizetype before = reported.size();
        runUntilKilled(directory, static_cast<unsigned>(kill + 1));
        if (!QTest::currentTestFailed())
            check(directory);
        if (QTest::currentTestFailed())
            qInfo("at kill %d in %s", kill, qPrintable(directory));
        QVERIFY(!QTest::currentTestFailed());
        finished += static_cast<int>(reported.size() - before);
    }
    qInfo("%d kills, %d finished calls, none lost", kills, finished);
    QVERIFY(finished > kills); // or the processes were killed before they did anything
}

QTEST_GUILESS_MAIN(TestKill)
#include "tst_kill.moc"
