// Processes share a state directory, and the one that records is killed at any moment, again and again, while the others
// ask, reset and set: nothing that was finished may be lost, and of what ran no more than what followed its last
// checkpoint.
#include "calllog/Schema.h"
#include "handset/HandsetTestKit.h"
#include "handset/SharedClock.h"
#include "support/Sample.h"
#include "support/TestGroup.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QHash>
#include <QtCore/QProcess>

#include <algorithm>
#include <array>
#include <optional>
#include <random>

using namespace handset;
using namespace handset::test;
using calllog::CallState;

namespace {

constexpr int killsForOneDirectory = 20;
constexpr qint64 mostBetweenCheckpoints = 5000; ///< of the other processes, in ms

/// What the processes said: durations in ms by number or access point; with a '~' in front at a checkpoint.
using Reported = QHash<QString, qint64>;

/// When one of the figures that the others reset was reset last, by the clock: not before `from`, nor after `to`.
struct LastReset {
    qint64 from = -1;
    qint64 to = -1;
};

/// What is known of the resets of one figure.
class Resets
{
public:
    void begin(std::size_t worker, qint64 clock) { begun[worker] = clock; }
    void end(std::size_t worker, qint64 clock, bool isDone)
    {
        if (isDone)
            last = {std::max(last.from, begun[worker]), std::max(last.to, clock)};
        begun[worker] = -1;
    }
    /// Killed in the middle of it: it may have reset.
    void die(std::size_t worker, qint64 clock)
    {
        if (begun[worker] >= 0)
            last.to = std::max(last.to, clock);
        begun[worker] = -1;
    }
    LastReset seen(qint64 clock) const
    {
        const bool isOneOpen = std::any_of(begun.begin(), begun.end(), [](qint64 each) { return each >= 0; });
        return {last.from, isOneOpen ? clock : last.to};
    }

private:
    LastReset last;
    std::array<qint64, 4> begun{-1, -1, -1, -1}; ///< by each worker, and not ended
};

/// The processes on a directory.
class Crew
{
public:
    explicit Crew(const QString &path)
        : directory(path)
        , clock(path + QStringLiteral("-clock"))
    {
        for (std::size_t i = 0; i < workers.size(); ++i)
            start(i);
    }
    ~Crew()
    {
        for (Worker &worker : workers) {
            worker.process.kill();
            worker.process.waitForFinished(60'000);
        }
    }
    Crew(const Crew &) = delete;
    Crew &operator=(const Crew &) = delete;

    /// Until they have said so much more.
    void listen(int lines)
    {
        const qsizetype enough = reported.size() + lines;
        const QDeadlineTimer deadline(60'000);
        while (reported.size() < enough && !QTest::currentTestFailed()) {
            QVERIFY2(!deadline.hasExpired(), "nobody records");
            for (std::size_t i = 0; i < workers.size(); ++i) {
                QVERIFY(workers[i].process.state() != QProcess::NotRunning); // it did not give up by itself
                workers[i].process.waitForReadyRead(1);
                if (collect(i))
                    recorder = i;
            }
        }
    }
    /// For as long, without looking who says what.
    void wait(int ms) { workers[newest].process.waitForFinished(ms); }

    /// Whoever spoke last records; the newest may still be at its start.
    void killRecorder() { kill(recorder); }
    void killNewest() { kill(newest); }

    /// What they have said and nobody has read yet.
    void drain()
    {
        for (std::size_t i = 0; i < workers.size(); ++i) {
            workers[i].process.waitForReadyRead(0);
            collect(i);
        }
    }
    LastReset seen(const QString &figure) { return resets[figure].seen(clock.monotonicMs()); }

    Reported reported;

private:
    struct Worker {
        QProcess process;
        QByteArray unread;
    };

    void start(std::size_t i)
    {
        // Numbers of calls begin with it, so no two processes of a test use the same one.
        static int seed = 0;
        newest = i;
        workers[i].unread.clear();
        workers[i].process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        workers[i].process.start(
            QCoreApplication::applicationDirPath() + QStringLiteral("/handset_other_process"),
            {QStringLiteral("share"), directory, QString::number(++seed), directory + QStringLiteral("-clock")});
        QVERIFY(workers[i].process.waitForStarted(60'000));
    }

    void kill(std::size_t i)
    {
        workers[i].process.kill();
        QVERIFY(workers[i].process.waitForFinished(60'000));
        collect(i);
        for (Resets &each : resets)
            each.die(i, clock.monotonicMs());
        QVERIFY(!QTest::currentTestFailed());
        start(i);
    }

    /// Whether there was a line to read.
    bool collect(std::size_t i)
    {
        Worker &worker = workers[i];
        const qsizetype before = reported.size();
        worker.unread += worker.process.readAllStandardOutput();
        for (qsizetype end = worker.unread.indexOf('\n'); end >= 0; end = worker.unread.indexOf('\n')) {
            const QByteArray line = worker.unread.first(end);
            const QList<QByteArray> words = line.split(' ');
            worker.unread.remove(0, end + 1);
            bool isDuration = false;
            const qint64 duration = words.value(1).toLongLong(&isDuration);
            if (!isDuration || words.size() != 2)
                QTest::qFail(line.constData(), __FILE__, __LINE__);
            const QString figure = QString::fromLatin1(words[0].sliced(1));
            if (words[0].startsWith('<'))
                resets[figure].begin(i, duration);
            else if (words[0].startsWith('>') || words[0].startsWith('='))
                resets[figure].end(i, duration, words[0].startsWith('>'));
            else
                reported.insert(QString::fromLatin1(words[0]), duration);
        }
        return reported.size() > before;
    }

    QString directory;
    SharedClock clock;
    QHash<QString, Resets> resets; ///< of "time" and "cost"
    std::array<Worker, 4> workers;
    std::size_t recorder = 0;
    std::size_t newest = 0;
};

/// A row of a call or a session.
struct Written {
    qint64 ms = -1;
    int state = -1;
};

qint64 number(const LogFile &file, const char *select)
{
    return file.value(QString::fromLatin1(select)).toLongLong();
}

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

void checkReported(const QHash<QString, Written> &found, const Reported &reported)
{
    for (auto said = reported.cbegin(); said != reported.cend(); ++said) {
        const bool isCheckpoint = said.key().startsWith(QLatin1Char('~'));
        const Written row = found.value(isCheckpoint ? said.key().sliced(1) : said.key());
        if (isCheckpoint) {
            QVERIFY2(row.ms >= said.value(), qPrintable(said.key()));
            QVERIFY(row.state != int(CallState::Interrupted) || row.ms < said.value() + mostBetweenCheckpoints);
        } else {
            QVERIFY2(row.ms == said.value(), qPrintable(said.key()));
            QVERIFY(row.state == int(CallState::Finished) || row.state == int(CallState::NotConnected));
        }
    }
}

void checkCalls(const LogFile &file)
{
    QVERIFY(number(file, "SELECT count(*) FROM calls WHERE state = 0") <= 1);
    QCOMPARE(total(file, "lifetime"), sumWhere(file, "true"));
    QCOMPARE(total(file, "all"), sumWhere(file, "true"));
    QCOMPARE(total(file, "answered"), sumWhere(file, "kind = 0 AND direction = 1"));
    QCOMPARE(total(file, "data"), sumWhere(file, "kind = 1"));
    QCOMPARE(total(file, "last"), sumWhere(file, "id = (SELECT max(id) FROM calls WHERE state <> 2)"));
}

// Row, figures, the SIM's meter and the credit say the same, whenever the process was killed.
void checkCharges(const LogFile &file)
{
    QCOMPARE(number(file, "SELECT count(*) FROM calls WHERE units <> iif(direction = 0, duration_ms / 10000, 0)"),
             0);
    const qint64 all = number(file, "SELECT coalesce(sum(units), 0) FROM calls");
    QCOMPARE(number(file, "SELECT units FROM costs WHERE counter = 'answered'"), 0);
    QCOMPARE(number(file, "SELECT units FROM costs WHERE counter = 'last'"),
             number(file, "SELECT coalesce(sum(units), 0) FROM calls"
                          " WHERE id = (SELECT max(id) FROM calls WHERE state <> 2)"));
    const QByteArray card =
        file.value(QStringLiteral("SELECT content FROM kept WHERE name = 'card'")).toByteArray();
    bool isHex = card == "new" && all == 0;
    if (!isHex)
        QCOMPARE(card.mid(5, 3).toHex().toLongLong(&isHex, 16), all); // the newest record of EF_ACM
    QVERIFY(isHex);
    QCOMPARE(number(file, "SELECT json_extract(CAST(content AS TEXT), '$.credit') FROM kept"
                          " WHERE name = 'charging'"),
             16'000'000 - all);
}

// A figure has what its rows have come to since it was reset: `since` gives that for a moment of the clock.
template <typename Since>
void checkReset(qint64 figure, const LastReset &last, Since since)
{
    const qint64 least = since(last.to);
    const qint64 most = since(last.from);
    QVERIFY2(figure >= least && figure <= most,
             qPrintable(QStringLiteral("%1 is not within %2 and %3").arg(figure).arg(least).arg(most)));
}

qint64 askFor(const LogFile &file, const char *select, qint64 clock)
{
    return file.value(QString::fromLatin1(select).arg(clock)).toLongLong();
}

void checkResets(const LogFile &file, const LastReset &ofTime, const LastReset &ofCost)
{
    checkReset(total(file, "dialed"), ofTime, [&](qint64 clock) {
        return askFor(file,
                      "SELECT coalesce(sum(max(0, started_ms + duration_ms - max(started_ms, %1))), 0) FROM calls"
                      " WHERE kind = 0 AND direction = 0",
                      clock);
    });
    checkReset(number(file, "SELECT units FROM costs WHERE counter = 'dialed'"), ofCost, [&](qint64 clock) {
        return askFor(file,
                      "SELECT coalesce(sum(units - min(units, max(0, %1 - started_ms) / 10000)), 0) FROM calls"
                      " WHERE kind = 0 AND direction = 0",
                      clock);
    });
}

void checkSessions(const LogFile &file, QHash<QString, Written> &found)
{
    int running = 0;
    qint64 sums[3] = {0, 0, 0};
    const QStringList rows = file.sessions();
    for (const QString &row : rows) {
        const QStringList words = row.split(QLatin1Char(' ')); // id, access point, ms, sent, received, state
        const QStringList rates = words[1].split(QLatin1Char('-'));
        const Written session{words[2].toLongLong(), words[5].toInt()};
        QCOMPARE(words[3].toLongLong(), session.ms * rates[1].toLongLong() / 1000);
        QCOMPARE(words[4].toLongLong(), session.ms * rates[2].toLongLong() / 1000);
        for (int i = 0; i < 3; ++i)
            sums[i] += words[2 + i].toLongLong();
        running += session.state == int(CallState::Running) ? 1 : 0;
        found.insert(words[1], session);
    }
    QVERIFY(running <= 1);
    QCOMPARE(file.sessionTotals(), QStringLiteral("%1 %2 %3").arg(sums[0]).arg(sums[1]).arg(sums[2]));
}

// Of one moment, while the others go on.
void checkLog(const QString &database, Crew &crew)
{
    const LogFile file(database);
    // What they say before and after it is read stands around what it has.
    crew.drain();
    LastReset ofTime = crew.seen(QStringLiteral("time"));
    LastReset ofCost = crew.seen(QStringLiteral("cost"));
    const Reported reported = crew.reported;
    QVERIFY(file.run(QStringLiteral("BEGIN")));
    QVERIFY(file.value(QStringLiteral("SELECT count(*) FROM calls")).isValid());
    crew.drain();
    ofTime.to = crew.seen(QStringLiteral("time")).to;
    ofCost.to = crew.seen(QStringLiteral("cost")).to;
    QCOMPARE(file.value(QStringLiteral("PRAGMA integrity_check")), QVariant(QStringLiteral("ok")));
    QHash<QString, Written> found;
    for (const LoggedCall &call : file.calls())
        found.insert(call.number, {call.durationMs, call.state});
    checkCalls(file);
    checkCharges(file);
    checkResets(file, ofTime, ofCost);
    checkSessions(file, found);
    checkReported(found, reported);
    QVERIFY(file.run(QStringLiteral("COMMIT")));
}

} // namespace

class TestKill : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void aRecorderKilledAtAnyMomentLosesNothing();
};

// Each time it is the process that records; KAV_KILLS says how often.
void TestKill::aRecorderKilledAtAnyMomentLosesNothing()
{
    const int given = qEnvironmentVariableIntValue("KAV_KILLS");
    const int kills = given > 0 ? given : 120 / sampleStride(3);
    const quint32 seed = std::max(1u, qEnvironmentVariable("KAV_SEED").toUInt());
    qInfo("seed %u (KAV_SEED repeats it)", seed);
    std::mt19937 random(seed);
    const auto below = [&](unsigned bound) { return static_cast<int>(random() % bound); };

    const StateDir state(StateDir::OnDisk);
    std::optional<Crew> crew;
    for (int kill = 0; kill < kills; ++kill) {
        const QString directory = state.sibling(QString::number(kill / killsForOneDirectory));
        if (kill % killsForOneDirectory == 0)
            crew.emplace(directory);
        if (kill % 3 == 0) { // one more while it starts, and opens the log
            crew->wait(below(100));
            crew->killNewest();
        }
        crew->listen(1 + below(8));
        crew->killRecorder();
        if (!QTest::currentTestFailed())
            checkLog(directory + QStringLiteral("/calllog.db"), *crew);
        if (QTest::currentTestFailed())
            qInfo("at kill %d in %s", kill, qPrintable(directory));
        QVERIFY(!QTest::currentTestFailed());
    }
    crew.reset();
    Phone phone(state.sibling(QString::number((kills - 1) / killsForOneDirectory)));
    QCOMPARE(phone.opened.notice, QString());
    QVERIFY(phone->isRecording());
    QVERIFY(phone.dialed(3 * second));
    QCOMPARE(phone.figures().last, quint64{3});
}

KAV_TEST_GROUP(TestKill, QCoreApplication);
#include "tst_kill.moc"
