// The call log is opened while the disk is full, or a chosen call of the system fails: no finished call is lost, what was
// put aside is whole, the error or the notice says what happened, and the next start finds everything right. (The fault
// matrix in ../faults fails every call.)
#include "calllog/LogCheck.h"
#include "handset/HandsetTestKit.h"
#include "handset/Status.h"
#include "support/TestGroup.h"
#include "support/faults/SystemFaults.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QLoggingCategory>

#include <algorithm>
#include <cerrno>
#include <vector>

using namespace handset;
using namespace handset::test;

namespace {

constexpr qint64 pageSize = 4096;
constexpr int recordedCalls = 300;

const QString databaseFile = QStringLiteral("calllog.db");
const QString walFile = QStringLiteral("calllog.db-wal");
const QString keptFile = QStringLiteral("calllog-kept-1.db");

/// The files of a state directory, and what must be found in it whatever fails.
struct Surroundings {
    const char *name;
    QByteArray database;
    QByteArray wal;
    bool isDamaged = false; ///< so it is put aside, once
    QList<LoggedCall> calls;
    SixFigures figures;
};

bool putInto(const StateDir &state, const Surroundings &files)
{
    const bool made = QDir().mkpath(state.path());
    const bool hasLog = files.database.isEmpty() || writeFile(state.database(), files.database);
    const bool hasWal = files.wal.isEmpty() || writeFile(state.file(walFile), files.wal);
    return made && hasLog && hasWal;
}

QList<PastCall> manyCalls(int count = recordedCalls)
{
    QList<PastCall> calls;
    for (int i = 0; i < count; ++i)
        calls.append({CallKind::Voice, i % 2 == 0 ? CallDirection::Answered : CallDirection::Dialed,
                      QString::number(100000 + i), i * minute, i * 1000 + 7});
    return calls;
}

Surroundings closedLog()
{
    const StateDir state;
    Phone phone(state.path());
    phone->addHistory(manyCalls());
    phone.close();
    return {"a sound log", readFile(state.database()), {}, false, {}, {}};
}

Surroundings crashedLog()
{
    const StateDir state;
    Phone phone(state.path());
    phone->addHistory(manyCalls());
    phone.dialed(7 * second);
    return {"a log that was not closed", readFile(state.database()), readFile(state.file(walFile)), false, {}, {}};
}

QByteArray withoutPage(QByteArray database, qsizetype page)
{
    return database.replace(page * pageSize, pageSize, QByteArray(pageSize, '\0'));
}

std::vector<Surroundings> allSurroundings()
{
    const Surroundings closed = closedLog();
    const Surroundings crashed = crashedLog();
    const qsizetype lastPage = closed.database.size() / pageSize - 1;
    Surroundings damaged{"a damaged log", withoutPage(closed.database, lastPage), {}, true, {}, {}};
    Surroundings header{"a log with a wrong header", closed.database, {}, true, {}, {}};
    header.database[70] = 'X'; // of the application's id
    Surroundings both{"a damaged log that was not closed", crashed.database, crashed.wal, true, {}, {}};
    both.database.truncate(40); // and neither its header
    return {closed, crashed, damaged, header, both, {"an empty directory", {}, {}, false, {}, {}}};
}

// What SQLite makes of a failure without saying which.
bool isReasonOfItsOwn(const QString &error, int fault)
{
    if ((fault == EMFILE || fault == EACCES) && error.contains(QStringLiteral("disk I/O error")))
        return true;
    const std::array reasons{"attempt to write a readonly database",
                             "a page of it cannot be read",
                             "what is written to it cannot be read again",
                             "unable to open database file",
                             "KiB of disk space are needed",
                             "database disk image is malformed",
                             "it cannot be kept under another name (Device or resource busy)"};
    return std::any_of(reasons.begin(), reasons.end(),
                       [&](const char *reason) { return error.contains(QLatin1String(reason)); });
}

QByteArray keptWal(const StateDir &state)
{
    return readFile(state.file(keptFile + QStringLiteral("-wal")));
}

} // namespace

class TestLogFaults : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void aDiskThatIsFullAtAnyPointLosesNoCall_data();
    void aDiskThatIsFullAtAnyPointLosesNoCall();
    void aDiskWithTooLittleSpaceIsSaidBeforeAnythingIsWritten();
    void aNewLogIsOnTheDiskBeforeItTakesTheOldOnesPlace_data();
    void aNewLogIsOnTheDiskBeforeItTakesTheOldOnesPlace();
    void aNoticeIsToldByTheNextStartWhenItsOwnFails();
    void aNoticeIsToldByTheNextStartWhenARunningCallCannotBeClosed_data();
    void aNoticeIsToldByTheNextStartWhenARunningCallCannotBeClosed();
    void whatIsKeptAndCannotBeReadIsAnErrorThatNamesTheFile();
    void aHandsetThatEndsStopsTheReadingOfTheFile();
    void aBigLogThatCannotBeReadThroughIsSaidAndStaysInUse();
    void aPageThatCannotBeReadIsNoDamage();
    void aViewTooLargeToStayInMemoryCostsNoCallWhenAReadFailsOnce();
    void theCheckOfTheNewLogSaysHowFarItIsFromItsFirstPagesOn();
    void aNewLogThatCannotBeReadToCountItsCallsIsAnErrorWithTheReason();
    void whatAFileSystemDoesNotKnowOrDoesLaterIsNoFailure_data();
    void whatAFileSystemDoesNotKnowOrDoesLaterIsNoFailure();
    void aReplacementThatCannotBeFinishedIsFinishedByTheNextStart_data();
    void aReplacementThatCannotBeFinishedIsFinishedByTheNextStart();

private:
    void openWithoutFaults(const StateDir &state, const Surroundings &files, const QString &notice);
    long countOf(const Surroundings &files, const char *call);
    QString openWithFaults(const StateDir &state, int fault = 0);

    std::vector<Surroundings> surroundings;
};

void TestLogFaults::initTestCase()
{
    QLoggingCategory::setFilterRules(QStringLiteral("kav.handset.calllog.warning=false"));
    surroundings = allSurroundings();
    for (Surroundings &files : surroundings) {
        const StateDir state;
        QVERIFY(putInto(state, files));
        Phone phone(state.path());
        QVERIFY2(phone, qPrintable(phone.opened.error));
        QCOMPARE(phone.opened.notice.isEmpty(), !files.isDamaged);
        files.figures = phone.figures();
        phone.close();
        files.calls = LogFile(state.database()).calls();
    }
    QCOMPARE(surroundings[0].calls.size(), recordedCalls);
    QCOMPARE(surroundings[1].calls.size(), recordedCalls + 1);
    QVERIFY(surroundings[2].calls.size() > 0);
    QCOMPARE(surroundings[3].calls.size(), recordedCalls);
}

long TestLogFaults::countOf(const Surroundings &files, const char *call)
{
    const StateDir state;
    putInto(state, files);
    kavFaultsArm(qPrintable(state.path()), nullptr, 0, 0, false);
    Phone(state.path()).close();
    kavFaultsDisarm();
    return kavFaultsCount(call);
}

/// The notice, told while the faults are on. An error must say what the system did.
QString TestLogFaults::openWithFaults(const StateDir &state, int fault)
{
    Phone phone(state.path());
    if (!phone) {
        const QString error = phone.opened.error;
        const bool saysWhy = error.contains(state.path()) && !error.endsWith(QStringLiteral(": .")) &&
                             !error.contains(QStringLiteral("()")) &&
                             (fault == 0 || error.contains(QString::fromLocal8Bit(std::strerror(fault))) ||
                              isReasonOfItsOwn(error, fault));
        if (!saysWhy)
            QTest::qFail(qPrintable(error), __FILE__, __LINE__);
    }
    return phone ? phone.opened.notice : QString();
}

void TestLogFaults::openWithoutFaults(const StateDir &state, const Surroundings &files, const QString &notice)
{
    Phone phone(state.path());
    QVERIFY2(phone, qPrintable(phone.opened.error));
    QCOMPARE(phone.figures(), files.figures);
    QVERIFY2(files.isDamaged || phone.opened.notice.isEmpty(), qPrintable(phone.opened.notice));
    QVERIFY(!files.isDamaged || !(notice + phone.opened.notice).isEmpty());
    phone.close();
    const QList<LoggedCall> calls = LogFile(state.database()).calls();
    QCOMPARE(calls.size(), files.calls.size());
    for (qsizetype i = 0; i < calls.size(); ++i)
        QVERIFY(calls[i].id == files.calls[i].id && calls[i].number == files.calls[i].number &&
                calls[i].durationMs == files.calls[i].durationMs);
    QStringList expected{databaseFile};
    if (files.isDamaged) {
        expected.prepend(keptFile);
        QCOMPARE(readFile(state.file(keptFile)), files.database);
        QCOMPARE(keptWal(state), files.wal);
        if (!files.wal.isEmpty())
            expected.insert(1, keptFile + QStringLiteral("-wal"));
    }
    QCOMPARE(state.names(), expected);
    if (files.isDamaged)
        QCOMPARE(Phone(state.path()).opened.notice, QString());
}

void TestLogFaults::aDiskThatIsFullAtAnyPointLosesNoCall_data()
{
    QTest::addColumn<int>("index");
    for (int index = 0; index < static_cast<int>(surroundings.size()); ++index)
        QTest::addRow("%s", surroundings[static_cast<std::size_t>(index)].name) << index;
}

void TestLogFaults::aDiskThatIsFullAtAnyPointLosesNoCall()
{
    QFETCH(int, index);
    const Surroundings &files = surroundings[static_cast<std::size_t>(index)];
    for (const bool isTold : {false, true})
        for (long space = 0; space <= 200 << 10; space += 20 << 10) {
            const StateDir state;
            QVERIFY(putInto(state, files));
            kavFaultsLimitSpace(qPrintable(state.path()), space, isTold);
            const QString notice = openWithFaults(state, ENOSPC);
            kavFaultsDisarm();
            openWithoutFaults(state, files, notice);
            if (QTest::currentTestFailed()) {
                qInfo("%s: %ld bytes are left", files.name, space);
                return;
            }
        }
}

void TestLogFaults::aDiskWithTooLittleSpaceIsSaidBeforeAnythingIsWritten()
{
    for (const Surroundings &files : surroundings) {
        if (!files.isDamaged && !files.database.isEmpty())
            continue;
        const StateDir state;
        QVERIFY(putInto(state, files));
        const QStringList before = state.names();
        kavFaultsLimitSpace(qPrintable(state.path()), 90 << 10, true);
        const Phone phone(state.path());
        kavFaultsDisarm();
        QVERIFY(!phone);
        const QRegularExpression text(QStringLiteral("^The call log \"%1\" cannot be used: a new one cannot be "
                                                     "made \\(.*\\d+ KiB of disk space are needed "
                                                     "and \\d+ KiB are left\\)\\.$")
                                          .arg(QRegularExpression::escape(state.database())));
        QVERIFY2(text.match(phone.opened.error).hasMatch(), qPrintable(phone.opened.error));
        QCOMPARE(state.names(), before);
    }
}

void TestLogFaults::aNewLogIsOnTheDiskBeforeItTakesTheOldOnesPlace_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QStringList>("steps");
    const QStringList made{QStringLiteral("write calllog-new.db"), QStringLiteral("fsync calllog-new.db"),
                           QStringLiteral("rename calllog-new.db calllog-ready.db"), QStringLiteral("fsync .")};
    const QStringList kept{QStringLiteral("rename calllog.db calllog-kept-1.db"), QStringLiteral("fsync .")};
    const QStringList taken{QStringLiteral("rename calllog-ready.db calllog.db"), QStringLiteral("fsync .")};
    const QString linked = QStringLiteral("link calllog.db-wal calllog-kept-1.db-wal");
    QTest::newRow("after a page was damaged") << 2 << made + kept + taken;
    QTest::newRow("after the header was") << 3 << made + kept + taken;
    QTest::newRow("after a crash, with a write-ahead log that is kept too")
        << 4 << made + QStringList{linked} + kept + taken;
    QTest::newRow("in an empty directory") << 5 << made + taken;
}

// Nothing else shows what is left when the machine goes down in between.
void TestLogFaults::aNewLogIsOnTheDiskBeforeItTakesTheOldOnesPlace()
{
    QFETCH(int, index);
    QFETCH(QStringList, steps);
    const StateDir state;
    QVERIFY(putInto(state, surroundings[static_cast<std::size_t>(index)]));
    kavFaultsArm(qPrintable(state.path()), nullptr, 0, 0, false);
    {
        const Phone phone(state.path());
        kavFaultsDisarm();
        QVERIFY2(phone, qPrintable(phone.opened.error));
    }
    QStringList done = QString::fromLocal8Bit(kavFaultsOrder()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    const qsizetype written = done.lastIndexOf(steps.first());
    QVERIFY2(written >= 0, qPrintable(done.join(QLatin1Char('\n'))));
    done.remove(0, written);
    // What SQLite writes is left out: the copy that is read, what is empty beside the new log, and that in use.
    static const QRegularExpression others(
        QStringLiteral("^unlink |^(write|fsync) (calllog(-copy)?\\.db|calllog-new\\.db-)"));
    done.removeIf([](const QString &step) { return others.match(step).hasMatch(); });
    QCOMPARE(done.mid(0, steps.size()).join(QLatin1Char('\n')), steps.join(QLatin1Char('\n')));
}

void TestLogFaults::aNoticeIsToldByTheNextStartWhenItsOwnFails()
{
    const Surroundings &files = surroundings[2];
    const StateDir state;
    QVERIFY(putInto(state, files));
    // Everything works up to the last rename, and nothing after it.
    const long renames = countOf(files, "rename");
    const long opens = countOf(files, "open");
    QVERIFY(renames >= 3);
    bool isShown = false;
    for (long nth = opens; nth > 0 && !isShown; --nth) {
        const StateDir attempt;
        QVERIFY(putInto(attempt, files));
        kavFaultsArm(qPrintable(attempt.path()), "open", nth, EMFILE, true);
        Phone phone(attempt.path());
        kavFaultsDisarm();
        if (phone || !QFile::exists(attempt.file(keptFile)))
            continue;
        isShown = true;
        QVERIFY2(phone.opened.error.startsWith(
                     QStringLiteral("The call log \"%1\" cannot be used: ").arg(attempt.database())),
                 qPrintable(phone.opened.error));
        Phone next(attempt.path());
        QVERIFY2(next.opened.notice.startsWith(QStringLiteral(
                     "The call log is damaged; it was kept as \"calllog-kept-1.db\" and a new one was "
                     "begun with the calls")),
                 qPrintable(next.opened.notice));
        next.close();
        QCOMPARE(Phone(attempt.path()).opened.notice, QString());
    }
    QVERIFY(isShown);
}

void TestLogFaults::aNoticeIsToldByTheNextStartWhenARunningCallCannotBeClosed_data()
{
    QTest::addColumn<QString>("change");
    QTest::newRow("that the log was replaced")
        << QStringLiteral("UPDATE totals SET counter = 'nothing of ours' WHERE counter = 'last'");
    QTest::newRow("that the account was")
        << QStringLiteral("UPDATE kept SET content = x'00' WHERE name = 'charging'");
}

// Closing it is the last that an opening writes, and all that this one cannot.
void TestLogFaults::aNoticeIsToldByTheNextStartWhenARunningCallCannotBeClosed()
{
    QFETCH(QString, change);
    const StateDir before;
    const StateDir crashed;
    {
        Phone phone(before.path());
        QCOMPARE(phone->addHistory(manyCalls()), int(Success));
        QVERIFY(phone.dial());
        phone.clock->advance(7 * second);
        QCOMPARE(phone->checkpoint(), int(Success));
        QVERIFY(copyState(before.path(), crashed.path()));
    }
    QVERIFY(LogFile(crashed.database()).run(change));
    const Surroundings files{"", readFile(crashed.database()), readFile(crashed.file(walFile)), true, {}, {}};
    const long writes = countOf(files, "pwrite");
    int failed = 0;
    for (long nth = writes; nth > 0 && nth > writes - 20; --nth) {
        const StateDir state;
        QVERIFY(putInto(state, files));
        kavFaultsArm(qPrintable(state.path()), "pwrite", nth, ENOSPC, true);
        const QString notice = openWithFaults(state);
        kavFaultsDisarm();
        failed += notice.isEmpty() ? 1 : 0;
        const Phone next(state.path());
        QVERIFY2(!(notice + next.opened.notice).isEmpty(), qPrintable(QString::number(nth - writes)));
    }
    QVERIFY(failed > 0);
}

// A card that is too large to be one is read when all else has been.
void TestLogFaults::whatIsKeptAndCannotBeReadIsAnErrorThatNamesTheFile()
{
    const StateDir sample;
    QVERIFY(Phone(sample.path()).dialed(second));
    QVERIFY(LogFile(sample.database())
                .run(QStringLiteral("UPDATE kept SET content = zeroblob(3000000) WHERE name = 'card'")));
    const Surroundings files{"", readFile(sample.database()), {}, false, {}, {}};
    const StateDir state;
    QVERIFY(putInto(state, files));
    QString error;
    for (long nth = countOf(files, "pread"); nth > 0 && !error.contains(QStringLiteral("what it keeps"));
         nth -= 50) {
        kavFaultsArm(qPrintable(state.path()), "pread", nth, EIO, true);
        error = Phone(state.path()).opened.error;
        kavFaultsDisarm();
        QVERIFY(putInto(state, files));
    }
    const QRegularExpression text(
        QStringLiteral("^The call log \"%1\" cannot be used: what it keeps of the SIM card "
                       "and the account cannot be read \\(.{9,}\\)\\.$")
            .arg(QRegularExpression::escape(state.database())));
    QVERIFY2(text.match(error).hasMatch(), qPrintable(error));
}

void TestLogFaults::aHandsetThatEndsStopsTheReadingOfTheFile()
{
    const StateDir state;
    QCOMPARE(Phone(state.path())->addHistory(manyCalls(40'000)), int(Success));
    const long pages = QFileInfo(state.database()).size() / pageSize;
    long fewest = pages;
    // A busy machine may let the reading come to its end before the handset does.
    for (int attempt = 0; attempt < 20 && fewest >= pages / 2; ++attempt) {
        kavFaultsArm(qPrintable(state.path()), "pread", 0, 0, false);
        QVERIFY(Phone(state.path()));
        fewest = std::min(fewest, kavFaultsCount("pread"));
        kavFaultsDisarm();
    }
    QVERIFY2(fewest < pages / 2, qPrintable(QStringLiteral("%1 of %2 pages").arg(fewest).arg(pages)));
}

// Opening reads far less than half of it.
void TestLogFaults::aBigLogThatCannotBeReadThroughIsSaidAndStaysInUse()
{
    const StateDir state;
    QCOMPARE(Phone(state.path())->addHistory(manyCalls(40'000)), int(Success));
    const long pages = QFileInfo(state.database()).size() / pageSize;
    QString told;
    {
        kavFaultsArm(qPrintable(state.path()), "pread", pages / 2, EIO, true);
        Phone phone(state.path(), nullptr, [&told](const QString &text) { told = text; });
        QVERIFY2(phone, qPrintable(phone.opened.error));
        QTRY_VERIFY(!told.isEmpty());
        kavFaultsDisarm();
        QVERIFY(phone.dialed(3 * second));
    }
    QCOMPARE(told, QStringLiteral("The call log \"%1\" could not be read through: a page of it cannot be read.")
                       .arg(state.database()));
    const Phone next(state.path());
    QCOMPARE(next.opened.notice, QString());
    QCOMPARE(next.figures().last, quint64{3});
}

// Of a free page SQLite's check does not say why it could not get it.
void TestLogFaults::aPageThatCannotBeReadIsNoDamage()
{
    const StateDir state;
    QCOMPARE(Phone(state.path())->addHistory(manyCalls()), int(Success));
    const LogFile log(state.database());
    QVERIFY(log.run(QStringLiteral("CREATE TABLE mine AS SELECT zeroblob(100000)")));
    QVERIFY(log.run(QStringLiteral("DROP TABLE mine")));
    QVERIFY(log.value(QStringLiteral("PRAGMA freelist_count")).toInt() > 20);
    bool hasFailed = true;
    for (long nth = 1; hasFailed; ++nth) {
        kavFaultsArm(qPrintable(state.path()), "pread", nth, EIO, false);
        {
            const calllog::Database connection(state.database(), calllog::Database::Access::ReadOnly);
            const calllog::Finding finding = calllog::checkPages(connection.handle());
            QVERIFY2(finding.verdict != calllog::Verdict::Damaged, qPrintable(finding.reason));
        }
        kavFaultsDisarm();
        hasFailed = kavFaultsFailed() > 0;
        QVERIFY(hasFailed || nth > 10);
    }
}

// When the view is taken out, the list of tables is read anew from the file, and SQLite calls it corrupt when it cannot
// be, whatever the reason. That is a seventh of all reads.
void TestLogFaults::aViewTooLargeToStayInMemoryCostsNoCallWhenAReadFailsOnce()
{
    constexpr int letters = 3'000'000;
    constexpr int attempts = 12;
    const StateDir sample;
    QCOMPARE(Phone(sample.path())->addHistory(manyCalls()), int(Success));
    QVERIFY(LogFile(sample.database())
                .run(QStringLiteral("CREATE VIEW mine AS SELECT '%1'").arg(QString(letters, QLatin1Char('x')))));
    const Surroundings files{"", readFile(sample.database()), {}, true, {}, {}};
    const long reads = countOf(files, "pread");
    for (long attempt = 1; attempt <= attempts; ++attempt) {
        const StateDir state;
        QVERIFY(putInto(state, files));
        kavFaultsArm(qPrintable(state.path()), "pread", reads * attempt / attempts, EIO, false);
        const Phone phone(state.path());
        kavFaultsDisarm();
        QVERIFY2(phone.opened.notice.contains(QStringLiteral("(300)")),
                 qPrintable(phone.opened.error + phone.opened.notice));
    }
}

// SQLite checks the structure of the whole file first, and asks nobody while it does.
void TestLogFaults::theCheckOfTheNewLogSaysHowFarItIsFromItsFirstPagesOn()
{
    const StateDir state;
    QCOMPARE(Phone(state.path())->addHistory(manyCalls(150'000)), int(Success));
    QVERIFY(LogFile(state.database()).run(QStringLiteral("DELETE FROM totals WHERE counter = 'data'")));
    const long pages = QFileInfo(state.database()).size() / pageSize;
    Settings settings;
    settings.stateDirectory = state.path();
    bool isOnItsWay = false;
    settings.progress = [&](const QString &step, int percent) {
        isOnItsWay = step == QStringLiteral("Checking the new call log") && percent > 0;
        if (step == QStringLiteral("Checking the new call log") && percent == 0)
            kavFaultsArm(qPrintable(state.path()), "pread", 0, 0, false);
    };
    settings.isGivenUp = [&] { return isOnItsWay; };
    const Opened opened = open(settings);
    kavFaultsDisarm();
    QCOMPARE(opened.error, QStringLiteral("The opening of the call log was given up; it is as it was."));
    const long readBefore = kavFaultsCount("pread");
    QVERIFY2(readBefore > 0 && readBefore < pages * 3 / 4,
             qPrintable(QStringLiteral("%1 of %2 pages").arg(readBefore).arg(pages)));
}

// The new log is larger than what SQLite keeps of it in memory, so it is read to count the calls.
void TestLogFaults::aNewLogThatCannotBeReadToCountItsCallsIsAnErrorWithTheReason()
{
    const StateDir state;
    QCOMPARE(Phone(state.path())->addHistory(manyCalls(60'000)), int(Success));
    const SixFigures figures = Phone(state.path()).figures();
    QVERIFY(LogFile(state.database()).run(QStringLiteral("DELETE FROM totals WHERE counter = 'data'")));
    Settings settings;
    settings.stateDirectory = state.path();
    settings.progress = [&](const QString &step, int percent) {
        if (step == QStringLiteral("Counting what was read") && percent < 100)
            kavFaultsArm(qPrintable(state.path()), "pread", 1, ENOMEM, false); // EIO is called damage
    };
    {
        const Opened opened = open(settings);
        kavFaultsDisarm();
        QCOMPARE(kavFaultsFailed(), 1);
        QVERIFY2(
            opened.error.contains(QStringLiteral("a new one cannot be made (\"calllog-new.db\": disk I/O error")),
            qPrintable(opened.error + opened.notice));
    }
    const Phone phone(state.path());
    QVERIFY2(phone.opened.notice.contains(QStringLiteral("(60000)")), qPrintable(phone.opened.notice));
    QCOMPARE(phone.figures(), figures);
}

void TestLogFaults::whatAFileSystemDoesNotKnowOrDoesLaterIsNoFailure_data()
{
    QTest::addColumn<QByteArray>("call");
    QTest::addColumn<int>("error");
    QTest::addColumn<bool>("isAlways"); // else each once
    QTest::newRow("no second names") << QByteArray("link") << EPERM << true;
    QTest::newRow("second names that it does not support") << QByteArray("link") << EOPNOTSUPP << true;
    QTest::newRow("as many names as a file may have") << QByteArray("link") << EMLINK << true;
    QTest::newRow("a read that a signal interrupts") << QByteArray("read") << EINTR << false;
    QTest::newRow("a write that a signal interrupts") << QByteArray("write") << EINTR << false;
}

// Of a damaged log that was not closed: its recordings are kept under another name, too.
void TestLogFaults::whatAFileSystemDoesNotKnowOrDoesLaterIsNoFailure()
{
    QFETCH(QByteArray, call);
    QFETCH(int, error);
    QFETCH(bool, isAlways);
    const Surroundings &files = surroundings[4];
    const long calls = countOf(files, call.constData());
    QVERIFY(calls > 0);
    for (long nth = 1; nth <= (isAlways ? 1 : calls); ++nth) {
        const StateDir state;
        QVERIFY(putInto(state, files));
        kavFaultsArm(qPrintable(state.path()), call.constData(), nth, error, isAlways);
        QString notice;
        {
            const Phone phone(state.path());
            kavFaultsDisarm();
            QVERIFY2(phone, qPrintable(phone.opened.error));
            notice = phone.opened.notice;
        }
        QVERIFY(!notice.isEmpty());
        openWithoutFaults(state, files, notice);
    }
}

void TestLogFaults::aReplacementThatCannotBeFinishedIsFinishedByTheNextStart_data()
{
    QTest::addColumn<QByteArray>("call");
    QTest::addColumn<bool>("hasOldRecordings");
    QTest::newRow("the new log cannot take its place") << QByteArray("rename") << false;
    QTest::newRow("what the old one has recorded cannot make way") << QByteArray("link") << true;
}

void TestLogFaults::aReplacementThatCannotBeFinishedIsFinishedByTheNextStart()
{
    QFETCH(QByteArray, call);
    QFETCH(bool, hasOldRecordings);
    const Surroundings &sound = surroundings[0];
    const StateDir state;
    QVERIFY(QDir().mkpath(state.path()));
    QVERIFY(writeFile(state.file(QStringLiteral("calllog-ready.db")), sound.database));
    if (hasOldRecordings)
        QVERIFY(writeFile(state.file(walFile), "stale"));
    kavFaultsArm(qPrintable(state.path()), call.constData(), 1, EIO, true);
    const Phone refused(state.path());
    kavFaultsDisarm();
    QVERIFY(!refused);
    QVERIFY2(refused.opened.error.contains(QString::fromLocal8Bit(std::strerror(EIO))),
             qPrintable(refused.opened.error));
    const Phone next(state.path());
    QVERIFY2(next, qPrintable(next.opened.error));
    QCOMPARE(next.figures(), sound.figures);
}

KAV_TEST_GROUP(TestLogFaults, QCoreApplication);
#include "tst_log_faults.moc"
