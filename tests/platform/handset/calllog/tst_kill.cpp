// A process that makes calls or has packet-data sessions is killed at any moment, hundreds of times: nothing that was
// finished may be lost, and of a running session no more than what followed its last checkpoint.
#include "calllog/Schema.h"
#include "handset/HandsetTestKit.h"
#include "support/TestGroup.h"

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

constexpr int killsForOneDirectory = 20;
constexpr qint64 mostBetweenCheckpoints = 5000; ///< of the other process, in ms

/// What the processes said they finished: durations by number. Sessions by access point, the last one they said;
/// with a '=' in front when it was finished.
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

    void aKillAtAnyMomentLosesNoFinishedCall() { killAgainAndAgain("calls", 220, &TestKill::checkCalls); }
    void aKillAtAnyMomentLosesNoMoreThanACheckpointOfASession()
    {
        killAgainAndAgain("sessions", 100, &TestKill::checkSessions);
    }

private:
    using Check = void (TestKill::*)(const LogFile &file);

    void killAgainAndAgain(const char *mode, int kills, Check check);
    void runUntilKilled(const char *mode, const QString &directory, unsigned seed);
    void read(const QByteArray &output);
    void checkCopy(const QString &directory, Check check);
    void checkCalls(const LogFile &file);
    static void checkCharges(const LogFile &file);
    void checkSessions(const LogFile &file);

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

void TestKill::runUntilKilled(const char *mode, const QString &directory, unsigned seed)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/handset_other_process"),
                  {QString::fromLatin1(mode), directory, QString::number(seed)});
    QVERIFY(process.waitForStarted(60000));
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
    QVERIFY(process.waitForFinished(60000));
    QCOMPARE(process.exitStatus(), QProcess::CrashExit); // it did not give up by itself
    output += process.readAll();
    read(output);
}

// Looks at a copy, so that the next process finds what the killed one left.
void TestKill::checkCopy(const QString &directory, Check check)
{
    const QString copy = directory + QStringLiteral("-copy");
    QVERIFY(copyState(directory, copy));
    if (!QFile::exists(copy + QStringLiteral("/calllog.db"))) {
        QVERIFY(reported.isEmpty());
        return;
    }
    const LogFile file(copy + QStringLiteral("/calllog.db"));
    QCOMPARE(file.value(QStringLiteral("PRAGMA integrity_check")), QVariant(QStringLiteral("ok")));
    (this->*check)(file);
}

void TestKill::checkCalls(const LogFile &file)
{
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
    checkCharges(file);
}

// Row, figures, the SIM's meter and the credit say the same, whenever the process was killed.
void TestKill::checkCharges(const LogFile &file)
{
    const auto number = [&](const char *select) { return file.value(QString::fromLatin1(select)).toLongLong(); };
    QCOMPARE(number("SELECT count(*) FROM calls WHERE units <> iif(direction = 0, duration_ms / 10000, 0)"), 0);
    const qint64 all = number("SELECT coalesce(sum(units), 0) FROM calls");
    QCOMPARE(number("SELECT units FROM costs WHERE counter = 'dialed'"),
             number("SELECT coalesce(sum(units), 0) FROM calls WHERE kind = 0"));
    QCOMPARE(number("SELECT units FROM costs WHERE counter = 'answered'"), 0);
    QCOMPARE(number("SELECT units FROM costs WHERE counter = 'last'"),
             number("SELECT coalesce(sum(units), 0) FROM calls"
                    " WHERE id = (SELECT max(id) FROM calls WHERE state <> 2)"));
    const QByteArray card =
        file.value(QStringLiteral("SELECT content FROM kept WHERE name = 'card'")).toByteArray();
    if (card.isNull() || card == "new") { // killed before the deposit
        QCOMPARE(all, 0);
        return;
    }
    bool isHex = false;
    QCOMPARE(card.mid(5, 3).toHex().toLongLong(&isHex, 16), all); // the newest record of EF_ACM
    QVERIFY(isHex);
    QCOMPARE(number("SELECT json_extract(CAST(content AS TEXT), '$.credit') FROM kept WHERE name = 'charging'"),
             16'000'000 - all);
}

void TestKill::checkSessions(const LogFile &file)
{
    Reported found;
    int running = 0;
    qint64 sums[3] = {0, 0, 0};
    const QStringList rows = file.sessions();
    for (const QString &row : rows) {
        const QStringList words = row.split(QLatin1Char(' ')); // id, access point, ms, sent, received, state
        const QStringList rates = words[1].split(QLatin1Char('-'));
        const qint64 ms = words[2].toLongLong();
        QCOMPARE(words[3].toLongLong(), ms * rates[1].toLongLong() / 1000);
        QCOMPARE(words[4].toLongLong(), ms * rates[2].toLongLong() / 1000);
        for (int i = 0; i < 3; ++i)
            sums[i] += words[2 + i].toLongLong();
        const int state = words[5].toInt();
        running += state == static_cast<int>(CallState::Running) ? 1 : 0;
        found.insert(words[1], ms);
        if (state == static_cast<int>(CallState::Finished))
            found.insert(QLatin1Char('=') + words[1], ms);
    }
    QVERIFY(running <= 1);
    QCOMPARE(file.sessionTotals(), QStringLiteral("%1 %2 %3").arg(sums[0]).arg(sums[1]).arg(sums[2]));
    for (auto session = reported.cbegin(); session != reported.cend(); ++session) {
        const qint64 ms = found.value(session.key(), -1);
        if (session.key().startsWith(QLatin1Char('=')))
            QCOMPARE(ms, session.value());
        else
            QVERIFY(ms >= session.value() && ms < session.value() + mostBetweenCheckpoints);
    }
}

void TestKill::killAgainAndAgain(const char *mode, int kills, Check check)
{
    const quint32 given = qEnvironmentVariable("KAV_SEED").toUInt();
    const quint32 seed = given ? given : 1;
    qInfo("seed %u (KAV_SEED repeats it)", seed);
    random.seed(seed);

    const StateDir state(StateDir::OnDisk);
    int finished = 0;
    for (int kill = 0; kill < kills; ++kill) {
        if (kill % killsForOneDirectory == 0)
            reported.clear();
        const QString directory = state.file(QString::number(kill / killsForOneDirectory));
        const qsizetype before = reported.size();
        runUntilKilled(mode, directory, static_cast<unsigned>(kill + 1));
        if (!QTest::currentTestFailed())
            checkCopy(directory, check);
        if (QTest::currentTestFailed())
            qInfo("at kill %d in %s", kill, qPrintable(directory));
        QVERIFY(!QTest::currentTestFailed());
        finished += static_cast<int>(reported.size() - before);
    }
    qInfo("%d kills, %d calls or sessions reported, none lost", kills, finished);
    QVERIFY(finished > kills); // or the processes were killed before they did anything
}

KAV_TEST_GROUP(TestKill, QCoreApplication);
#include "tst_kill.moc"
