// A process that makes calls is killed at any moment, hundreds of times: no finished call may be lost.
#include "HandsetTestKit.h"
#include "Schema.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QHash>
#include <QtCore/QProcess>

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

    std::mt19937 random;
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
    // Counted from the start for one half, so that the opening is hit as well; from the first call for the other.
    if (seed % 2 == 0)
        QVERIFY(process.waitForReadyRead(30000));
    const int wait = std::uniform_int_distribution<int>(0, seed % 2 == 0 ? 25 : 60)(random);
    QDeadlineTimer deadline(wait, Qt::PreciseTimer);
    QByteArray output;
    while (!deadline.hasExpired()) {
        process.waitForReadyRead(static_cast<int>(deadline.remainingTime()));
        output += process.readAll();
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

    const StateDir state;
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
