// Call logs that are read through beside their use, and whose replacement takes its time: told step by step, given up at
// any of them, and never in the way of whoever uses or ends the handset.
#include "calllog/Database.h"
#include "calllog/LogCheck.h"
#include "handset/HandsetTestKit.h"
#include "handset/Status.h"
#include "handset/calllog/repair/DamagedLogs.h"
#include "support/FullDisk.h"
#include "support/Sample.h"
#include "support/TestGroup.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <sys/stat.h>

using namespace handset;
using namespace handset::test;

class TestBigDamagedLog : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void aBigLogIsReadThroughBesideItsUseAndReplacedByTheNextStart_data();
    void aBigLogIsReadThroughBesideItsUseAndReplacedByTheNextStart();
    void noTableOfABigLogLocksItForGood_data();
    void noTableOfABigLogLocksItForGood();
    void everyLongStepOfAReplacementSaysHowFarItIs_data();
    void everyLongStepOfAReplacementSaysHowFarItIs();
    void aReplacementThatIsGivenUpInAnyStepLeavesEverythingAsItWas();
    void aReadingThatTakesNoTimeSaysNothing();
    void aMarkThatCannotBeMadeIsSaid_data();
    void aMarkThatCannotBeMadeIsSaid();
    void aBigLogThatIsSoundIsReadThroughWithoutAWord();
    void aMarkOfAnotherLogIsNoDamage_data();
    void aMarkOfAnotherLogIsNoDamage();
    void aPipeInThePlaceOfTheMarkIsNotWaitedFor();
    void aHandsetThatEndsDoesNotWaitForTheReading();
    void aSalvagedLogIsNoLargerThanTheOneBefore_data();
    void aSalvagedLogIsNoLargerThanTheOneBefore();
    void aBigLogIsReadAsFarAsTheSlotsDependOnIt();

private:
    static bool damage(const QString &file, bool isOverwritten);
};

void TestBigDamagedLog::aBigLogIsReadThroughBesideItsUseAndReplacedByTheNextStart_data()
{
    QTest::addColumn<bool>("isClosed");
    QTest::addColumn<bool>("isOverwritten");
    QTest::newRow("closed, with a page overwritten") << true << true;
    QTest::newRow("left by a crash, with a page overwritten") << false << true;
    QTest::newRow("closed, with a total that is not that of its calls") << true << false;
}

// A page in the middle, or the time of all calls ever. Nothing that opening looks at.
bool TestBigDamagedLog::damage(const QString &file, bool isOverwritten)
{
    if (!isOverwritten)
        return LogFile(file).run(QStringLiteral("UPDATE totals SET ms = ms + 1 WHERE counter = 'lifetime'"));
    QByteArray content = readFile(file);
    content.replace(content.size() / pageSize / 2 * pageSize, pageSize, QByteArray(pageSize, '\0'));
    return writeFile(file, content);
}

void TestBigDamagedLog::aBigLogIsReadThroughBesideItsUseAndReplacedByTheNextStart()
{
    QFETCH(bool, isClosed);
    QFETCH(bool, isOverwritten);
    const StateDir made;
    const StateDir state;
    SixFigures figures;
    QCOMPARE(Phone(made.path())->addHistory(manyCalls(20'000)), int(Success));
    {
        Phone phone(made.path());
        QCOMPARE(phone->addHistory({{CallKind::Voice, CallDirection::Dialed, QStringLiteral("5"), 0, 1000}}),
                 int(Success));
        figures = phone.figures();
        if (!isClosed)
            QVERIFY(copyState(made.path(), state.path()));
    }
    if (isClosed)
        QVERIFY(copyState(made.path(), state.path()));
    QVERIFY(damage(state.database(), isOverwritten));
    {
        QStringList told;
        Phone phone(state.path(), nullptr, [&](const QString &notice) { told << notice; });
        // Whatever the reading finds comes through the event loop, which has not run yet.
        QCOMPARE(phone.opened.notice, QString());
        QCOMPARE(phone.figures().dialed, figures.dialed);
        QVERIFY(phone.dialed(3 * second));
        QTRY_COMPARE_WITH_TIMEOUT(told.size(), 1, 60000); // the reading beside takes what the machine leaves it
        QCOMPARE(told.first(),
                 QStringLiteral("The call log is damaged. The next start begins a new one, with what can "
                                "be read of it."));
        QVERIFY(phone.dialed(4 * second)); // it is used as it is until then
    }
    {
        const Phone phone(state.path());
        QVERIFY2(phone.opened.notice.startsWith(QStringLiteral("The call log is damaged; it was kept as ")),
                 qPrintable(phone.opened.notice));
        QCOMPARE(phone.figures().dialed, figures.dialed + 7);
    }
    const qsizetype calls = LogFile(state.database()).calls().size();
    QVERIFY2(calls > (isOverwritten ? 19'800 : 20'002) && calls <= 20'003, qPrintable(QString::number(calls)));
    // What was lost with the page is known, so that the new log is sound.
    {
        const calllog::Database connection(state.database(), calllog::Database::Access::ReadOnly);
        QCOMPARE(calllog::checkSums(connection.handle()).finding.reason, QString());
    }
    const Phone phone(state.path());
    QCOMPARE(phone.opened.notice, QString());
    QVERIFY(!QFile::exists(state.file(QStringLiteral("calllog.db-damaged"))));
}

void TestBigDamagedLog::noTableOfABigLogLocksItForGood_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"calls", "running_calls", "totals", "costs", "kept", "sessions", "running_sessions",
                             "session_totals", "lost"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

// What opening needs of it, or the handset after that.
void TestBigDamagedLog::noTableOfABigLogLocksItForGood()
{
    QFETCH(QString, name);
    const StateDir state;
    QCOMPARE(Phone(state.path())->addHistory(manyCalls(10'000)), int(Success));
    const QString root = QStringLiteral("SELECT rootpage FROM sqlite_schema WHERE name = '%1'").arg(name);
    const qint64 page = LogFile(state.database()).value(root).toLongLong();
    QByteArray content = readFile(state.database());
    QVERIFY(page > 1 && page * pageSize <= content.size());
    QVERIFY(writeFile(state.database(),
                      content.replace((page - 1) * pageSize, pageSize, QByteArray(pageSize, '\xff'))));
    QStringList told;
    {
        const Phone phone(state.path(), nullptr, [&](const QString &notice) { told << notice; });
        QVERIFY2(phone, qPrintable(phone.opened.error));
        if (phone.opened.notice.isEmpty())
            QTRY_COMPARE_WITH_TIMEOUT(told.size(), 1,
                                      60000); // the reading beside takes what the machine leaves it
    }
    const Phone phone(state.path());
    QVERIFY2(phone, qPrintable(phone.opened.error));
    QCOMPARE(phone.opened.notice.isEmpty(), told.isEmpty()); // replaced by the start before, or by this one
}

void TestBigDamagedLog::everyLongStepOfAReplacementSaysHowFarItIs_data()
{
    QTest::addColumn<bool>("isOverwritten");
    QTest::newRow("with a page overwritten near its beginning") << true;
    if (sampleStride(2) == 1)
        QTest::newRow("with a total missing") << false;
}

// Long enough for every step of its replacement to say how far it is.
static void makeLongDamagedLog(const StateDir &state)
{
    QCOMPARE(Phone(state.path())->addHistory(manyCalls(210'000)), int(Success));
    QVERIFY(LogFile(state.database())
                .run(QStringLiteral(
                    "INSERT INTO sessions (id, apn, started_ms, duration_ms, sent, received, state)"
                    " WITH RECURSIVE numbers (n) AS (SELECT 1 UNION ALL SELECT"
                    " n + 1 FROM numbers WHERE n < 60000) SELECT n, 'x', n, 0, 0, 0, 1 FROM numbers")));
    QVERIFY(LogFile(state.database()).run(QStringLiteral("DELETE FROM totals WHERE counter = 'data'")));
}

// The steps by their names, in their order; what is told of one never goes back, and ends with the whole of it.
void TestBigDamagedLog::everyLongStepOfAReplacementSaysHowFarItIs()
{
    QFETCH(bool, isOverwritten);
    const StateDir state;
    makeLongDamagedLog(state);
    if (isOverwritten) {
        QByteArray content = readFile(state.database());
        QVERIFY(writeFile(state.database(), content.replace(40 * pageSize, pageSize, QByteArray(pageSize, '\0'))));
    }
    const Phone phone(state.path());
    QVERIFY2(phone.opened.notice.startsWith(QStringLiteral("The call log is damaged")),
             qPrintable(phone.opened.notice));
    QStringList steps;
    QList<QList<int>> percents;
    for (const auto &[step, percent] : phone.progress) {
        if (steps.isEmpty() || steps.last() != step) {
            steps << step;
            percents << QList<int>();
        }
        percents.last() << percent;
    }
    QStringList expected{QStringLiteral("Copying the call log"),
                         QStringLiteral("Reading the damaged call log"),
                         QStringLiteral("Reading the damaged log of data sessions"),
                         QStringLiteral("Counting what was read"),
                         QStringLiteral("Reading the damaged call log once more"),
                         QStringLiteral("Writing the new call log to the disk"),
                         QStringLiteral("Checking the new call log")};
    if (isOverwritten)
        expected.insert(1, QStringLiteral("Looking for the end of the damage"));
    QCOMPARE(steps, expected);
    for (qsizetype step = 0; step < steps.size(); ++step) {
        QVERIFY2(std::is_sorted(percents[step].begin(), percents[step].end()), qPrintable(steps[step]));
        QVERIFY2(percents[step].size() > 1 && percents[step].first() < 100, qPrintable(steps[step]));
        QVERIFY2(percents[step].last() == 100 && percents[step].count(100) == 1, qPrintable(steps[step]));
    }
    const QList<int> ofCalls{23, 47, 71, 95, 100};
    QCOMPARE(percents[steps.indexOf(QStringLiteral("Reading the damaged call log"))], ofCalls);
    const QList<int> ofSessions{83, 100};
    QCOMPARE(percents[steps.indexOf(QStringLiteral("Reading the damaged log of data sessions"))], ofSessions);
    QCOMPARE(percents[steps.indexOf(QStringLiteral("Counting what was read"))].size(),
             6); // once, of both together
    // The check goes through calls and sessions, too. How many steps a row takes is SQLite's: one more or less is as good.
    QVERIFY2(percents.last().size() >= 5 && percents.last().size() <= 8,
             qPrintable(QString::number(percents.last().size())));
    QVERIFY2(percents.last().value(1) >= 14 && percents.last().value(1) <= 23,
             qPrintable(QString::number(percents.last().value(1))));
}

void TestBigDamagedLog::aReplacementThatIsGivenUpInAnyStepLeavesEverythingAsItWas()
{
    const StateDir state;
    makeLongDamagedLog(state);
    const QStringList names = state.names();
    const QByteArray content = readFile(state.database());
    static constexpr const char *steps[] = {"Copying the call log",
                                            "Reading the damaged call log",
                                            "Reading the damaged log of data sessions",
                                            "Counting what was read",
                                            "Reading the damaged call log once more",
                                            "Writing the new call log to the disk",
                                            "Checking the new call log"};
    for (std::size_t i = 0; i < std::size(steps); i += std::size_t(sampleStride(3))) {
        const char *const step = steps[i];
        Settings settings;
        settings.stateDirectory = state.path();
        bool isReached = false;
        settings.progress = [&](const QString &told, int) {
            isReached = isReached || told == QLatin1String(step);
        };
        settings.isGivenUp = [&] { return isReached; };
        const Opened opened = open(settings);
        QVERIFY2(!opened.handset && isReached, step);
        QCOMPARE(opened.error, QStringLiteral("The opening of the call log was given up; it is as it was."));
        QCOMPARE(opened.notice, QString());
        QCOMPARE(state.names(), names);
        QVERIFY2(readFile(state.database()) == content, step);
    }
    const Phone phone(state.path());
    QVERIFY2(phone.opened.notice.contains(QStringLiteral("with the calls (210000)")),
             qPrintable(phone.opened.notice));
}

void TestBigDamagedLog::aReadingThatTakesNoTimeSaysNothing()
{
    const StateDir state;
    QCOMPARE(Phone(state.path())->addHistory(manyCalls(5'000)), int(Success));
    QVERIFY(LogFile(state.database()).run(QStringLiteral("DELETE FROM totals WHERE counter = 'data'")));
    const Phone phone(state.path());
    QVERIFY(!phone.opened.notice.isEmpty());
    QVERIFY(phone.progress.isEmpty());
}

void TestBigDamagedLog::aMarkThatCannotBeMadeIsSaid_data()
{
    QTest::addColumn<bool>("isFull");
    QTest::newRow("something else in its place") << false;
    QTest::newRow("a full disk") << true;
}

void TestBigDamagedLog::aMarkThatCannotBeMadeIsSaid()
{
    QFETCH(bool, isFull);
    const StateDir state;
    QCOMPARE(Phone(state.path())->addHistory(manyCalls(20'000)), int(Success));
    QVERIFY(damage(state.database(), false));
    if (!isFull)
        QVERIFY(QDir().mkpath(state.file(QStringLiteral("calllog.db-damaged"))));
    QStringList told;
    Phone phone(state.path(), nullptr, [&](const QString &notice) { told << notice; });
    QVERIFY2(phone, qPrintable(phone.opened.error));
    {
        const support::FullDisk full(isFull ? 0 : RLIM_INFINITY);
        QTRY_COMPARE(told.size(), 1);
    }
    QCOMPARE(told.first(),
             QStringLiteral("The call log is damaged, and that cannot be noted for the next start."));
    QVERIFY(phone.dialed(second)); // it is used as it is
}

void TestBigDamagedLog::aBigLogThatIsSoundIsReadThroughWithoutAWord()
{
    const StateDir state;
    QCOMPARE(Phone(state.path())->addHistory(manyCalls(20'000)), int(Success));
    // What is not known is measured on the way, which shows that it has been read through.
    QVERIFY(LogFile(state.database()).run(QStringLiteral("UPDATE lost SET value = NULL")));
    QStringList told;
    const Phone phone(state.path(), nullptr, [&](const QString &notice) { told << notice; });
    QTRY_COMPARE(LogFile(state.database()).value(QStringLiteral("SELECT count(value) FROM lost")).toInt(), 5);
    QCOMPARE(told, QStringList());
}

void TestBigDamagedLog::aMarkOfAnotherLogIsNoDamage_data()
{
    QTest::addColumn<bool>("hasNumberOfTheLog");
    QTest::newRow("with a number of its own") << false;
    QTest::newRow("whose number the file system gave to this one when it was gone") << true;
}

void TestBigDamagedLog::aMarkOfAnotherLogIsNoDamage()
{
    QFETCH(bool, hasNumberOfTheLog);
    const StateDir state;
    QVERIFY(Phone(state.path()).dialed(second));
    struct stat status = {};
    QCOMPARE(::stat(QFile::encodeName(state.database()).constData(), &status), 0);
    const QByteArray mark = hasNumberOfTheLog ? QByteArray::number(qulonglong{status.st_ino}) + '\n' : "1\n";
    QVERIFY(writeFile(state.file(QStringLiteral("calllog.db-damaged")), mark));
    const Phone phone(state.path());
    QCOMPARE(phone.opened.notice, QString());
    QCOMPARE(state.names().filter(QStringLiteral("-damaged")), QStringList());
}

void TestBigDamagedLog::aPipeInThePlaceOfTheMarkIsNotWaitedFor()
{
    const StateDir state;
    QVERIFY(Phone(state.path()).dialed(second));
    QCOMPARE(::mkfifo(QFile::encodeName(state.file(QStringLiteral("calllog.db-damaged"))).constData(), 0600), 0);
    const Phone phone(state.path());
    QCOMPARE(phone.opened.notice, QString());
    QCOMPARE(phone.opened.error, QString());
}

void TestBigDamagedLog::aHandsetThatEndsDoesNotWaitForTheReading()
{
    const StateDir state;
    QCOMPARE(Phone(state.path())->addHistory(manyCalls(20'000)), int(Success));
    // With the reading at any point; the last connection, which works the write-ahead log in, is the handset's own.
    for (int start = 0; start < 50; ++start) {
        QVERIFY(Phone(state.path()).dialed(second));
        QCOMPARE(state.names(), QStringList{QStringLiteral("calllog.db")});
    }
    QCOMPARE(LogFile(state.database()).calls().size(), 20'050);
}

void TestBigDamagedLog::aSalvagedLogIsNoLargerThanTheOneBefore_data()
{
    QTest::addColumn<int>("page"); // in hundredths of the file
    for (int place = 5; place < 100; place += sampleStride(2) * 45)
        QTest::addRow("with a page damaged at %d hundredths of it", place) << place;
}

void TestBigDamagedLog::aSalvagedLogIsNoLargerThanTheOneBefore()
{
    QFETCH(int, page);
    constexpr int many = 100'000;
    const StateDir state;
    QVERIFY(Phone(state.path())->addHistory(manyCalls(many)) == Success);
    QByteArray content = readFile(state.database());
    content.replace(content.size() / pageSize * page / 100 * pageSize, pageSize, QByteArray(pageSize, '\0'));
    content[0] = 'X'; // what opening finds at once, also in a log that is read through only later
    QVERIFY(writeFile(state.database(), content));
    {
        const Phone phone(state.path());
        QVERIFY2(phone.opened.notice.startsWith(QStringLiteral("The call log is damaged")),
                 qPrintable(phone.opened.notice));
    }
    QVERIFY(LogFile(state.database()).calls().size() > many - 300);
    const qint64 salvaged = QFileInfo(state.database()).size();
    QVERIFY2(salvaged <= content.size(),
             qPrintable(QStringLiteral("%1 bytes after %2").arg(salvaged).arg(content.size())));
}

// --- packet-data sessions

// A big log that was closed is not read through: but the third newest session may be on another page than the newest.
void TestBigDamagedLog::aBigLogIsReadAsFarAsTheSlotsDependOnIt()
{
    const StateDir state;
    const auto name = [](int number) { return QByteArray::number(number) + QByteArray(95, 'a'); };
    const auto pageOf = [&](int number) {
        const QByteArray content = readFile(state.database());
        return content.lastIndexOf(name(number)) / pageSize;
    };
    int newest = 1000;
    QVERIFY(Phone(state.path()).session(second, name(newest)));
    do {
        QVERIFY(Phone(state.path()).session(second, name(++newest)));
    } while (newest < 1100 && (newest < 1003 || pageOf(newest) == pageOf(newest - 2)));
    QVERIFY(newest < 1100);
    const PastCall call{CallKind::Voice, CallDirection::Dialed, QString(40, QLatin1Char('5')), 0, second};
    QCOMPARE(Phone(state.path())->addHistory(QList<PastCall>(150'000, call)), int(Success));
    QByteArray content = readFile(state.database());
    QVERIFY(content.size() > 4 << 20);
    QVERIFY(writeFile(state.database(),
                      content.replace(pageOf(newest - 2) * pageSize, pageSize, QByteArray(pageSize, '\0'))));
    const Phone phone(state.path());
    QVERIFY2(phone.opened.notice.startsWith(wasReplaced), qPrintable(phone.opened.notice));
    QVERIFY(phone.sessions().first().contains(QString::fromLatin1(name(newest))));
    QCOMPARE(phone.sessionTotals().section(QLatin1Char(' '), 0, 0), QString::number(newest - 999));
}
KAV_TEST_GROUP(TestBigDamagedLog, QCoreApplication);
#include "tst_big_damaged_log.moc"
