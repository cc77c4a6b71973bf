// What is in use by others when a state directory is opened: it is waited for, and who it is is shown and told.
#include "handset/HandsetTestKit.h"
#include "handset/OtherProcess.h"
#include "handset/Status.h"
#include "support/TestGroup.h"

#include <QtCore/QFileInfo>

#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

#include <csignal>

#include <sqlite3.h>

#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace handset;
using namespace handset::test;

namespace {

// Long enough to be told of more than once.
constexpr Patience untilToldTwice{1600, 10};

/// A process that has something until this goes. `take` runs in it.
template <typename Take>
class Keeper
{
public:
    explicit Keeper(Take take)
    {
        int ready[2] = {-1, -1};
        if (::pipe(ready) != 0)
            return;
        process = ::fork();
        if (process == 0) {
            const char done = take() ? 'y' : 'n';
            if (::write(ready[1], &done, 1) == 1)
                ::pause();
            ::_exit(0);
        }
        char done = 'n';
        has = ::read(ready[0], &done, 1) == 1 && done == 'y';
        ::close(ready[0]);
        ::close(ready[1]);
    }
    ~Keeper() { end(); }
    Keeper(const Keeper &) = delete;
    Keeper &operator=(const Keeper &) = delete;

    void end()
    {
        if (process > 0) {
            ::kill(process, SIGKILL);
            ::waitpid(process, nullptr, 0);
        }
        process = -1;
    }
    QString name() const
    {
        constexpr qsizetype mostKept = 15; // by the kernel
        const QString program = QFileInfo(QCoreApplication::applicationFilePath()).fileName().left(mostKept);
        return QStringLiteral("%1 (process %2)").arg(program).arg(process);
    }

    bool has = false;

private:
    pid_t process = -1;
};

auto keepLock(const StateDir &state, int mode)
{
    return Keeper([lock = QFile::encodeName(state.file(QStringLiteral("lock"))), mode] {
        const int fd = ::open(lock.constData(), O_RDWR | O_CLOEXEC);
        return ::flock(fd, mode | LOCK_NB) == 0;
    });
}

/// As who replaces the log has it.
auto keepAlone(const StateDir &state)
{
    return keepLock(state, LOCK_EX);
}

/// As another program may have it.
auto keepDatabase(const StateDir &state)
{
    return Keeper([database = QFile::encodeName(state.database())] {
        sqlite3 *connection = nullptr;
        return sqlite3_open(database.constData(), &connection) == SQLITE_OK &&
               sqlite3_exec(connection,
                            "PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE; UPDATE totals SET ms = ms", nullptr,
                            nullptr, nullptr) == SQLITE_OK;
    });
}

// A log with recordings beside it, as a crash leaves them.
bool makeCrashed(const StateDir &state)
{
    const StateDir made;
    Phone phone(made.path());
    return phone.dialed(8 * second) && copyState(made.path(), state.path());
}

QStringList stepsOf(const Phone &phone)
{
    QStringList steps;
    for (const auto &[step, percent] : phone.progress)
        steps << step;
    steps.removeDuplicates();
    return steps;
}

// Whatever is waited for, and however often: the patience is one.
bool isOnePatience(const Phone &phone)
{
    const auto &told = phone.progress;
    return !told.isEmpty() && told.first().second >= 50 && told.last().second < 100 &&
           std::is_sorted(told.begin(), told.end(),
                          [](const auto &a, const auto &b) { return a.second < b.second; });
}

} // namespace

// What a user waits at most, who has not set it.
static_assert(Patience{}.opening == 5000);

class TestWaiting : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void whoReplacesTheLogIsShownWhileItIsWaitedForAndThenNamed();
    void aReplacementThatEndsInTimeIsAllThatIsShown();
    void whoHasTheDatabaseIsShownAndNamedAfterOnePatience_data();
    void whoHasTheDatabaseIsShownAndNamedAfterOnePatience();
    void whoKeepsADamagedLogFromBeingReplacedIsShownAndNamed();
    void whatIsWaitedForOneAfterTheOtherHasOnePatience();
    void whatIsWaitedForCanBeGivenUp_data();
    void whatIsWaitedForCanBeGivenUp();
};

void TestWaiting::whoReplacesTheLogIsShownWhileItIsWaitedForAndThenNamed()
{
    const StateDir state;
    QVERIFY(Phone(state.path()).dialed(8 * second));
    const auto replacing = keepAlone(state);
    QVERIFY(replacing.has);
    const Phone phone(state.path(), nullptr, {}, untilToldTwice);
    QVERIFY(!phone);
    QCOMPARE(phone.opened.error, QStringLiteral("The state directory \"%1\" cannot be used: it is in use by %2.")
                                     .arg(state.path(), replacing.name()));
    QCOMPARE(stepsOf(phone), QStringList{QStringLiteral("Waiting for %1").arg(replacing.name())});
    QVERIFY(isOnePatience(phone));
}

void TestWaiting::aReplacementThatEndsInTimeIsAllThatIsShown()
{
    const StateDir state;
    QVERIFY(Phone(state.path()).dialed(8 * second));
    auto replacing = keepAlone(state);
    QVERIFY(replacing.has);
    const QString name = replacing.name();
    QStringList steps;
    int last = 0;
    Settings settings;
    settings.stateDirectory = state.path();
    settings.patience.opening = 60'000;
    settings.progress = [&](const QString &step, int percent) {
        steps << step;
        last = percent;
        replacing.end();
    };
    const Opened opened = open(settings);
    QVERIFY2(opened.handset, qPrintable(opened.error));
    steps.removeDuplicates();
    QCOMPARE(steps, QStringList{QStringLiteral("Waiting for %1").arg(name)});
    QCOMPARE(last, 100);
    QCOMPARE(figuresOf(*opened.handset).dialed, quint64{8});
}

void TestWaiting::whoHasTheDatabaseIsShownAndNamedAfterOnePatience_data()
{
    QTest::addColumn<bool>("isCrashed");
    QTest::newRow("a log that was closed") << false;
    QTest::newRow("a log that is looked at before it is written") << true;
}

void TestWaiting::whoHasTheDatabaseIsShownAndNamedAfterOnePatience()
{
    QFETCH(bool, isCrashed);
    const StateDir state;
    QVERIFY(isCrashed ? makeCrashed(state) : Phone(state.path()).dialed(8 * second));
    {
        const auto program = keepDatabase(state);
        QVERIFY(program.has);
        const QByteArray before = readFile(state.database());
        const Phone phone(state.path(), nullptr, {}, untilToldTwice);
        QVERIFY(!phone);
        QCOMPARE(phone.opened.error, QStringLiteral("The call log \"%1\" cannot be used: it is in use by %2.")
                                         .arg(state.database(), program.name()));
        QCOMPARE(stepsOf(phone), QStringList{QStringLiteral("Waiting for %1").arg(program.name())});
        QVERIFY(isOnePatience(phone));
        QCOMPARE(readFile(state.database()), before);
    }
    const Phone phone(state.path());
    QVERIFY2(phone, qPrintable(phone.opened.error));
    QCOMPARE(phone.opened.notice, QString());
    QCOMPARE(phone.figures().dialed, quint64{8});
}

void TestWaiting::whoKeepsADamagedLogFromBeingReplacedIsShownAndNamed()
{
    const StateDir state;
    QVERIFY(Phone(state.path()).dialed(8 * second));
    OtherProcess holder(state.path());
    QCOMPARE(holder.firstLine(), QByteArray("holding"));
    const QStringList names = state.names();
    QVERIFY(LogFile(state.database()).run(QStringLiteral("UPDATE totals SET ms = 9 WHERE counter = 'lifetime'")));
    const Phone phone(state.path(), nullptr, {}, untilToldTwice);
    QVERIFY(!phone);
    const QRegularExpression text(
        QStringLiteral("^The call log \"%1\" cannot be used: it is damaged, and only who "
                       "has the directory alone can put that right; it is in use by "
                       "(handset_other_p \\(process \\d+\\))\\.$")
            .arg(QRegularExpression::escape(state.database())));
    const QRegularExpressionMatch match = text.match(phone.opened.error);
    QVERIFY2(match.hasMatch(), qPrintable(phone.opened.error));
    QCOMPARE(stepsOf(phone), QStringList{QStringLiteral("Waiting for ") + match.captured(1)});
    QVERIFY(isOnePatience(phone));
    QCOMPARE(state.names(), names);
    QCOMPARE(holder.ask("times"), QByteArray("8 8 0 0")); // it goes on with it
    holder.close();
    const Phone next(state.path());
    QVERIFY2(next.opened.notice.startsWith(QStringLiteral("The call log is damaged; it was kept as ")),
             qPrintable(next.opened.notice));
}

// A damaged log that somebody else has open, and that another program has as soon as that one lets it go.
void TestWaiting::whatIsWaitedForOneAfterTheOtherHasOnePatience()
{
    const StateDir state;
    QVERIFY(Phone(state.path()).dialed(8 * second));
    QVERIFY(LogFile(state.database()).run(QStringLiteral("UPDATE totals SET ms = 9 WHERE counter = 'lifetime'")));
    auto sharing = keepLock(state, LOCK_SH);
    QVERIFY(sharing.has);
    std::unique_ptr<decltype(keepDatabase(state))> program;
    QStringList steps;
    std::vector<int> gone;
    Settings settings;
    settings.stateDirectory = state.path();
    settings.patience = untilToldTwice;
    settings.progress = [&](const QString &step, int percent) {
        steps << step;
        if (percent < 100)
            gone.push_back(percent);
        if (!program)
            program.reset(new auto(keepDatabase(state)));
        sharing.end();
    };
    const QString first = sharing.name();
    const Opened opened = open(settings);
    QVERIFY(!opened.handset);
    QVERIFY(program && program->has);
    QVERIFY2(opened.error.endsWith(QStringLiteral("it is in use by %1.").arg(program->name())),
             qPrintable(opened.error));
    steps.removeDuplicates();
    QCOMPARE(steps, (QStringList{QStringLiteral("Waiting for ") + first,
                                 QStringLiteral("Waiting for ") + program->name()}));
    QVERIFY(gone.size() >= 2);
    QVERIFY(std::adjacent_find(gone.begin(), gone.end(), std::greater_equal<>()) ==
            gone.end()); // it only ever grows
}

void TestWaiting::whatIsWaitedForCanBeGivenUp_data()
{
    QTest::addColumn<bool>("isDatabase");
    QTest::newRow("a replacement of another process") << false;
    QTest::newRow("another program that has the database") << true;
}

void TestWaiting::whatIsWaitedForCanBeGivenUp()
{
    QFETCH(bool, isDatabase);
    const StateDir state;
    QVERIFY(makeCrashed(state));
    QVERIFY(writeFile(state.file(QStringLiteral("lock")), {}));
    Settings settings;
    settings.stateDirectory = state.path();
    settings.patience.opening = 60'000;
    settings.isGivenUp = [] { return true; };
    const auto opened = [&](const auto &keeper) { return keeper.has ? open(settings) : Opened{}; };
    const Opened given = isDatabase ? opened(keepDatabase(state)) : opened(keepAlone(state));
    QVERIFY(!given.handset);
    QCOMPARE(given.error, QStringLiteral("The opening of the call log was given up; it is as it was."));
    QCOMPARE(Phone(state.path()).figures().dialed, quint64{8});
}

KAV_TEST_GROUP(TestWaiting, QCoreApplication);
#include "tst_waiting.moc"
