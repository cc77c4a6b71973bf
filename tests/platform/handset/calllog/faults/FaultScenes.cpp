#include "handset/calllog/faults/FaultScenes.h"

#include "calllog/Schema.h"
#include "handset/CallLog.h"
#include "handset/HandsetTestKit.h"
#include "handset/SimSecurity.h"
#include "handset/Status.h"
#include "handset/calllog/faults/FaultWorld.h"
#include "support/faults/SystemFaults.h"

#include <QtCore/QDir>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <utility>

#include <sys/wait.h>
#include <unistd.h>

namespace handset::faults {

using test::Phone;
using test::StateDir;

namespace {

constexpr int recordedCalls = 120;
constexpr qint64 pageSize = 4096;
constexpr qint64 second = 1000;
constexpr Date someDay{2030, 1, 1};

const QString database = QStringLiteral("calllog.db");
const QString writeAheadLog = QStringLiteral("calllog.db-wal");

// --- the files

QList<PastCall> manyCalls()
{
    QList<PastCall> calls;
    for (int i = 0; i < recordedCalls; ++i)
        calls.append({i % 7 == 0 ? CallKind::Data : CallKind::Voice,
                      i % 7 != 0 && i % 2 == 0 ? CallDirection::Answered : CallDirection::Dialed,
                      QString::number(100000 + i), i * test::minute, i * second + 7});
    return calls;
}

void check(bool done, const char *what)
{
    if (done)
        return;
    std::fprintf(stderr, "The scenes cannot be prepared: %s.\n", what);
    std::exit(2);
}

/// One try of PIN2 is used up.
void fill(Phone &phone)
{
    bool accepted = true;
    check(phone && phone->addHistory(manyCalls()) == Success && phone.session(7 * second, "x", 10, 20) &&
              phone->charging()->topUp(QStringLiteral("5000"), someDay) == Success &&
              phone->simCard().verifyPin(SimSecurity::Pin2, "0000", accepted) == Success && !accepted,
          "a log");
}

Files filesIn(const StateDir &state)
{
    Files files{{database, test::readFile(state.database())}};
    if (const QByteArray recorded = test::readFile(state.file(writeAheadLog)); !recorded.isEmpty())
        files.append({writeAheadLog, recorded});
    return files;
}

Files closedLog()
{
    const StateDir state;
    Phone phone(state.path());
    fill(phone);
    phone.close();
    return filesIn(state);
}

Files crashedLog()
{
    const StateDir state;
    Phone phone(state.path());
    fill(phone);
    check(phone.dial(), "a call");
    phone.clock->advance(13 * second);
    check(phone->checkpoint() == Success, "a checkpoint");
    return filesIn(state);
}

// With calls whose totals are what the rows come to.
Files logOfVersion(std::size_t version)
{
    const StateDir state;
    check(QDir().mkpath(state.path()), "a directory");
    {
        calllog::Database log(state.database(), calllog::Database::Access::ReadWrite);
        check(calllog::migrate(log, calllog::migrations().first(version)), "an earlier version");
        for (const char *statement :
             {"WITH RECURSIVE n (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 60)"
              " INSERT INTO calls (id, kind, direction, number, started_ms, duration_ms, state)"
              " SELECT i, 0, i % 2, '5550123', i * 60000, i * 1000, 1 FROM n",
              "UPDATE totals SET ms = (SELECT sum(duration_ms) FROM calls) WHERE counter IN ('all', 'lifetime')",
              "UPDATE totals SET ms = (SELECT sum(duration_ms) FROM calls WHERE direction = 0)"
              " WHERE counter = 'dialed'",
              "UPDATE totals SET ms = (SELECT sum(duration_ms) FROM calls WHERE direction = 1)"
              " WHERE counter = 'answered'",
              "UPDATE totals SET ms = 60000 WHERE counter = 'last'"})
            check(log.run(QString::fromLatin1(statement)), statement);
    }
    return filesIn(state);
}

Files withoutLastPage(Files files)
{
    QByteArray &content = files[0].second;
    content.replace(content.size() - pageSize, pageSize, QByteArray(pageSize, '\0'));
    return files;
}

Files withoutHeader(Files files)
{
    files[0].second.truncate(40);
    return files;
}

Files withWrongHeader(Files files)
{
    files[0].second[70] = 'X'; // of the application's id
    return files;
}

// --- the steps

const Steps aCall{
    {Do::Dial},  {Do::Connect}, {Do::Advance, 12 * second}, {Do::Checkpoint}, {Do::Advance, 9 * second},
    {Do::HangUp}};

Steps aShortCall()
{
    return {{Do::Dial}, {Do::Connect}, {Do::Advance, 3 * second}, {Do::HangUp}};
}

// --- playing

struct Actor {
    char name;
    Phone phone;
    Journal &journal;
    int next = 0;

    void say(const QByteArray &line) { journal.say(name + (' ' + line)); }
};

int perform(Phone &phone, const Step &step, bool &accepted)
{
    switch (step.what) {
    case Do::Dial:
        return phone->dial(QStringLiteral("777"), CallKind::Voice);
    case Do::Connect:
        return phone->remoteAnswer();
    case Do::Advance:
        phone.clock->advance(step.amount);
        return Success;
    case Do::Checkpoint:
        return phone->checkpoint();
    case Do::HangUp:
        return phone->hangUp();
    case Do::StartSession:
        return phone->packets().startSession("y", World::sentPerSecond, World::receivedPerSecond);
    case Do::StopSession:
        return phone->packets().stopSession();
    case Do::ResetDialed:
        return phone.log().resetDialedCallsTime();
    case Do::ResetAll:
        return phone.log().resetAll();
    case Do::TopUp:
        return phone->charging()->topUp(QString::number(step.amount), someDay);
    case Do::WrongPin:
        return phone->simCard().verifyPin(SimSecurity::Pin2, "9999", accepted);
    case Do::RightPin:
        return phone->simCard().verifyPin(SimSecurity::Pin2, "1234", accepted);
    case Do::Meanwhile:
        break;
    }
    return Success;
}

void perform(Actor &actor, const Steps &steps, const std::function<void()> &meanwhile)
{
    for (const Step &step : steps) {
        const QByteArray number = QByteArray::number(actor.next++);
        actor.say("begin " + number);
        if (step.what == Do::Meanwhile)
            meanwhile();
        bool accepted = false;
        const int status = perform(actor.phone, step, accepted);
        actor.say("end " + number + ' ' + QByteArray::number(status) + ' ' + QByteArray::number(int(accepted)) +
                  ' ' + QByteArray::number(int(actor.phone->owesRecord())));
    }
}

Journal *heard = nullptr;
char hearing = 'A';

void hear(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (heard && type == QtWarningMsg)
        heard->say(hearing + (" warning " + QString(text).replace(QLatin1Char('\n'), QLatin1Char(' ')).toUtf8()));
}

bool hasOpened(Actor &actor)
{
    const Opened &opened = actor.phone.opened;
    if (!actor.phone) {
        actor.say("error " + QString(opened.error).replace(QLatin1Char('\n'), QLatin1Char(' ')).toUtf8());
        return false;
    }
    if (!opened.notice.isEmpty())
        actor.say("notice " + QString(opened.notice).replace(QLatin1Char('\n'), QLatin1Char(' ')).toUtf8());
    return true;
}

void close(Actor &actor)
{
    actor.say("closing");
    actor.phone.close();
    actor.say("closed");
}

/// The other process and the pipes by which both take turns.
class Other
{
public:
    Other(const Scene &played, const QString &path, Journal &shared)
        : scene(played)
        , directory(path)
        , journal(shared)
    {
        if (!scene.hasOther)
            return;
        check(::pipe(turns) == 0 && ::pipe(answers) == 0, "a pipe");
        child = ::fork();
        if (child == 0) {
            ::close(turns[1]);
            ::close(answers[0]);
            live();
            std::exit(0); // not _exit(): a build that counts what is run writes its counts at the end
        }
        ::close(turns[0]);
        ::close(answers[1]);
        awaitAnswer();
    }

    void takeTurn()
    {
        if (::write(turns[1], "n", 1) == 1)
            awaitAnswer();
    }
    /// It ends when it has done its last part; whoever does not call this is not waited for.
    void end()
    {
        if (child <= 0)
            return;
        ::close(turns[1]);
        ::waitpid(child, nullptr, 0);
    }

private:
    void awaitAnswer()
    {
        char answer = 0;
        if (::read(answers[0], &answer, 1) != 1)
            journal.say("B gone");
    }
    bool answer() { return ::write(answers[1], "d", 1) == 1; }
    bool awaitTurn()
    {
        char turn = 0;
        return ::read(turns[0], &turn, 1) == 1;
    }
    // One that has nothing to do before the first one opens the directory opens it at its turn: who is first records.
    void live()
    {
        hearing = 'B';
        const bool opensFirst = !scene.otherBefore.empty();
        if (!opensFirst && (!answer() || !awaitTurn()))
            return;
        Actor actor{'B', Phone(directory), journal};
        if (!hasOpened(actor))
            return;
        perform(actor, scene.otherBefore, {});
        bool isTurn = !opensFirst || (answer() && awaitTurn());
        if (isTurn)
            perform(actor, scene.otherMeanwhile, {});
        while (isTurn)
            isTurn = answer() && awaitTurn();
        actor.next = static_cast<int>(scene.otherBefore.size() + scene.otherMeanwhile.size());
        perform(actor, scene.otherAfter, {});
        close(actor);
    }

    const Scene &scene;
    const QString &directory;
    Journal &journal;
    pid_t child = -1;
    int turns[2] = {-1, -1};
    int answers[2] = {-1, -1};
};

} // namespace

std::vector<Scene> allScenes()
{
    const Files closed = closedLog();
    const Files crashed = crashedLog();
    std::vector<Scene> scenes{
        {"a first start", {}, aShortCall()},
        {"a sound log", closed, {}},
        {"reopening after a crash", crashed, aShortCall()},
    };
    for (std::size_t version = 1; version < calllog::migrations().size(); ++version)
        scenes.push_back(
            {"migration from version " + QByteArray::number(int(version)), logOfVersion(version), aShortCall()});
    scenes.push_back({"a damaged log", withoutLastPage(closed), aShortCall(), true});
    scenes.push_back({"a damaged log after a crash", withoutHeader(crashed), aShortCall(), true});
    scenes.push_back({"a wrong header", withWrongHeader(closed), aShortCall(), true});
    scenes.push_back({"a call", closed, aCall});
    scenes.push_back({"a reset",
                      closed,
                      {{Do::Dial},
                       {Do::Connect},
                       {Do::Advance, 12 * second},
                       {Do::ResetDialed},
                       {Do::Advance, 9 * second},
                       {Do::HangUp},
                       {Do::ResetAll}}});
    scenes.push_back({"a top-up", closed, {{Do::TopUp, 700}, {Do::TopUp, 50}}});
    scenes.push_back({"a PIN try", closed, {{Do::WrongPin}, {Do::RightPin}, {Do::WrongPin}}});
    scenes.push_back({"a data session",
                      closed,
                      {{Do::StartSession},
                       {Do::Advance, 12 * second},
                       {Do::Checkpoint},
                       {Do::Advance, 9 * second},
                       {Do::StopSession}}});
    scenes.push_back({"two at once, who shares fails",
                      closed,
                      {{Do::Advance, 5 * second}, {Do::ResetDialed}, {Do::WrongPin}, {Do::TopUp, 700}},
                      false,
                      true,
                      {{Do::Dial}, {Do::Connect}},
                      {},
                      {{Do::Advance, 8 * second}, {Do::HangUp}}});
    scenes.push_back({"two at once, who records fails",
                      closed,
                      {{Do::Dial},
                       {Do::Connect},
                       {Do::Advance, 5 * second},
                       {Do::Meanwhile},
                       {Do::Advance, 7 * second},
                       {Do::HangUp}},
                      false,
                      true,
                      {},
                      {{Do::Advance, 5 * second}, {Do::ResetDialed}, {Do::WrongPin}, {Do::TopUp, 700}},
                      {}});
    return scenes;
}

bool putInto(const QString &directory, const Files &files)
{
    bool done = QDir().mkpath(directory);
    for (const auto &[name, content] : files)
        done = done && test::writeFile(directory + QLatin1Char('/') + name, content);
    return done;
}

void play(const Scene &scene, const QString &directory, const Fault &fault, Journal &journal)
{
    heard = &journal;
    hearing = 'A';
    qInstallMessageHandler(hear);
    Other other(scene, directory, journal);
    kavFaultsArm(directory.toLocal8Bit().constData(), fault.call.isEmpty() ? nullptr : fault.call.constData(),
                 fault.nth, fault.error, fault.always);
    {
        Actor actor{'A', Phone(directory), journal};
        if (hasOpened(actor)) {
            perform(actor, scene.steps, [&other] { other.takeTurn(); });
            close(actor);
        }
    }
    kavFaultsDisarm();
    for (std::size_t call = 0; kavFaultsCalls[call]; ++call)
        journal.count(call, kavFaultsCount(kavFaultsCalls[call]));
    if (kavFaultsFailed() > 0)
        journal.strike();
    other.end();
}

const Step &stepOf(const Scene &scene, char actor, int index)
{
    auto at = static_cast<std::size_t>(index);
    if (actor == 'A')
        return scene.steps[at];
    for (const Steps *part : {&scene.otherBefore, &scene.otherMeanwhile, &scene.otherAfter}) {
        if (at < part->size())
            return (*part)[at];
        at -= part->size();
    }
    return scene.steps.front();
}

} // namespace handset::faults
