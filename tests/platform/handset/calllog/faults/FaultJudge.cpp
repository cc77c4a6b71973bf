#include "handset/calllog/faults/FaultJudge.h"

#include "handset/CallLog.h"
#include "handset/CallService.h"
#include "handset/HandsetTestKit.h"
#include "handset/SimSecurity.h"
#include "handset/Status.h"
#include "support/faults/SystemFaults.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <algorithm>
#include <cstring>
#include <memory>
#include <set>

#include <sqlite3.h>

namespace handset::faults {

using test::Phone;

namespace {

const QString databaseName = QStringLiteral("/calllog.db");

// --- what is in the file

/// A connection that only reads.
class Reader
{
public:
    explicit Reader(const QString &file)
    {
        sqlite3_open_v2(QFile::encodeName(file).constData(), &connection, SQLITE_OPEN_READWRITE, nullptr);
        sqlite3_busy_timeout(connection, 5000);
    }
    ~Reader() { sqlite3_close(connection); }
    Reader(const Reader &) = delete;
    Reader &operator=(const Reader &) = delete;

    /// The rows' values, with blanks between them.
    QByteArrayList rows(const char *select)
    {
        QByteArrayList all;
        sqlite3_stmt *statement = nullptr;
        if (sqlite3_prepare_v2(connection, select, -1, &statement, nullptr) != SQLITE_OK)
            return {sqlite3_errmsg(connection)};
        int code = SQLITE_ROW;
        while ((code = sqlite3_step(statement)) == SQLITE_ROW) {
            QByteArrayList values;
            for (int i = 0; i < sqlite3_column_count(statement); ++i)
                values << QByteArray(reinterpret_cast<const char *>(sqlite3_column_text(statement, i)));
            all << values.join(' ');
        }
        if (code != SQLITE_DONE)
            all << sqlite3_errmsg(connection);
        sqlite3_finalize(statement);
        return all;
    }
    qint64 number(const char *select) { return rows(select).value(0).toLongLong(); }

private:
    sqlite3 *connection = nullptr;
};

QByteArrayList readRows(Reader &file)
{
    QByteArrayList rows;
    const QByteArrayList calls =
        file.rows("SELECT id, kind, direction, duration_ms, state, units FROM calls ORDER BY id");
    for (const QByteArray &line : calls) {
        const QByteArrayList w = line.split(' ');
        rows << World::callRow(w.value(0).toLongLong(), w.value(1).toInt(), w.value(2).toInt(),
                               w.value(3).toLongLong(), w.value(4).toInt(), w.value(5).toLongLong());
    }
    const QByteArrayList sessions =
        file.rows("SELECT id, duration_ms, sent, received, state FROM sessions ORDER BY id");
    for (const QByteArray &line : sessions) {
        const QByteArrayList w = line.split(' ');
        rows << World::sessionRow(w.value(0).toLongLong(), w.value(1).toLongLong(), w.value(2).toLongLong(),
                                  w.value(3).toLongLong(), w.value(4).toInt());
    }
    return rows;
}

World readWorld(Reader &file, const Phone &phone)
{
    World world;
    const std::array times{"last", "dialed", "answered", "data", "all", "lifetime"};
    for (std::size_t i = 0; i < times.size(); ++i)
        world.times[i] = file.number(QByteArray("SELECT ms FROM totals WHERE counter = '") + times[i] + '\'');
    const std::array costs{"last", "dialed", "answered"};
    for (std::size_t i = 0; i < costs.size(); ++i)
        world.costs[i] = file.number(QByteArray("SELECT units FROM costs WHERE counter = '") + costs[i] + '\'');
    const std::array totals{"duration", "sent", "received"};
    for (std::size_t i = 0; i < totals.size(); ++i)
        world.sessionTotals[i] =
            file.number(QByteArray("SELECT value FROM session_totals WHERE counter = '") + totals[i] + '\'');
    world.meter = phone->simCard().card().acm();
    const std::optional<charging::Account> account = phone->charging()->account();
    world.credit = account ? static_cast<qint64>(account->credit) : -1;
    int tries = -1;
    phone.handset().simSecurity()->triesLeft(SimSecurity::Pin2, tries);
    world.tries = tries;
    world.lastCall = file.number("SELECT max(id) FROM calls");
    world.lastSession = file.number("SELECT max(id) FROM sessions");
    return world;
}

// --- what may be in it

/// The worlds that agree with what the processes said. What was not said to its end may have happened or not.
class Reckoning
{
public:
    Reckoning(const Scene &played, const World &before, const QByteArrayList &journal)
        : scene(played)
        , worlds{before}
    {
        for (const QByteArray &line : journal)
            follow(line);
        leaveOpenStep();
        for (World &world : worlds)
            if (world.isOwing()) // an end that may have been written
                extra.push_back(world);
        for (World &world : extra)
            world.settle();
        worlds.insert(worlds.end(), extra.begin(), extra.end());
        for (World &world : worlds)
            world.crash();
    }

    std::set<QByteArray> all() const
    {
        std::set<QByteArray> texts;
        for (const World &world : worlds)
            texts.insert(world.lines().join('\n'));
        return texts;
    }

private:
    void follow(const QByteArray &line)
    {
        const QByteArrayList words = line.split(' ');
        const char actor = words[0].front();
        if (words.value(1) == "begin") {
            leaveOpenStep(); // who was in it has been killed
            openActor = actor;
            openStep = &stepOf(scene, actor, words.value(2).toInt());
        } else if (words.value(1) == "end") {
            const Step &step = stepOf(scene, actor, words.value(2).toInt());
            if (step.what == Do::Advance)
                clockOf(actor) += step.amount;
            if (words.value(3).toInt() == Success)
                for (World &world : worlds)
                    apply(world, actor, step);
            if (words.value(5) == "0" && actor == recorder())
                for (World &world : worlds)
                    world.settle();
            openStep = nullptr;
        }
    }

    // Nobody said its end: it has happened, or not.
    void leaveOpenStep()
    {
        if (!openStep)
            return;
        const std::vector<World> unchanged = worlds;
        for (World &world : worlds)
            apply(world, openActor, *openStep);
        worlds.insert(worlds.end(), unchanged.begin(), unchanged.end());
        openStep = nullptr;
    }

    qint64 &clockOf(char actor) { return clocks[actor == 'A' ? 0 : 1]; }
    char recorder() const { return scene.otherBefore.empty() ? 'A' : 'B'; }

    void apply(World &world, char actor, const Step &step)
    {
        const qint64 now = clockOf(actor);
        switch (step.what) {
        case Do::Dial:
            return world.dial();
        case Do::Connect:
            return world.connect(now);
        case Do::Advance:
        case Do::Meanwhile:
            return;
        case Do::Checkpoint:
            return world.write(now);
        case Do::HangUp:
            return world.hangUp(now);
        case Do::StartSession:
            return world.startSession(now);
        case Do::StopSession:
            return world.stopSession(now);
        case Do::ResetDialed:
            return world.resetDialed(now);
        case Do::ResetAll:
            return world.resetAll(now);
        case Do::TopUp:
            return world.topUp(now, step.amount);
        case Do::WrongPin:
            --world.tries;
            return;
        case Do::RightPin:
            world.tries = 3;
            return;
        }
    }

    const Scene &scene;
    std::vector<World> worlds;
    std::vector<World> extra;
    std::array<qint64, 2> clocks{};
    char openActor = 'A';
    const Step *openStep = nullptr;
};

// What differs from the nearest of them.
QByteArray difference(const QByteArray &found, const std::set<QByteArray> &permitted)
{
    const QByteArrayList lines = found.split('\n');
    QByteArrayList least;
    for (const QByteArray &world : permitted) {
        QByteArrayList differs;
        const QByteArrayList expected = world.split('\n');
        for (const QByteArray &line : lines)
            if (!expected.contains(line))
                differs << "found \"" + line + '"';
        for (const QByteArray &line : expected)
            if (!lines.contains(line))
                differs << "expected \"" + line + '"';
        if (least.isEmpty() || differs.size() < least.size())
            least = differs;
    }
    return least.join(", ");
}

// --- what was said

// What SQLite, or this project, makes of a failure without saying which.
bool isReasonOfItsOwn(const QByteArray &text)
{
    static constexpr std::array reasons{"attempt to write a readonly database",
                                        "a page of it cannot be read",
                                        "what is written to it cannot be read again",
                                        "unable to open database file",
                                        "KiB of disk space are needed",
                                        "database disk image is malformed",
                                        "it cannot be kept under another name (Device or resource busy)"};
    return std::any_of(reasons.begin(), reasons.end(), [&](const char *reason) { return text.contains(reason); });
}

bool namesWhatHappened(const QByteArray &text, const Fault &fault)
{
    if (text.endsWith(": .") || text.endsWith(": ") || text.contains("()"))
        return false;
    // What SQLite cannot open for writing it tries to open for reading, and so forgets the reason.
    return fault.error <= 0 || text.contains(std::strerror(fault.error)) || isReasonOfItsOwn(text) ||
           (fault.call == "open" && text.contains("disk I/O error"));
}

class Judge
{
public:
    Judge(const Scene &played, const Before &was, const QString &path, const Fault &injected, const Journal &said)
        : scene(played)
        , before(was)
        , directory(path)
        , fault(injected)
        , journal(said.lines())
    {}

    QByteArrayList verdict()
    {
        judgeWords();
        if (!scene.isDamaged && QFile::exists(directory + databaseName))
            judgeFile();
        judgeNextStart();
        if (faults.isEmpty())
            judgeStartAfterThat();
        return faults;
    }

private:
    void require(bool holds, const QByteArray &sentence)
    {
        if (!holds)
            faults << sentence;
    }

    void judgeWords()
    {
        bool hasFailed = false;
        bool hasWarned = false;
        for (const QByteArray &line : journal) {
            const QByteArrayList words = line.split(' ');
            const QByteArray what = words.value(1);
            const QByteArray text = words.mid(2).join(' ');
            wasToldNotice = wasToldNotice || what == "notice";
            require(what != "notice" || scene.isDamaged, "an unexpected notice: " + text);
            if (what == "error")
                require(text.contains(directory.toUtf8()) && namesWhatHappened(text, fault),
                        "an error that does not name what happened: " + text);
            if (what == "warning")
                require(namesWhatHappened(text, fault), "a warning that does not name what happened: " + text);
            require(words.value(0) == "A" || what != "error", "the other process could not open the log");
            hasWarned = hasWarned || what == "warning";
            if (what != "end")
                continue;
            const int status = words.value(3).toInt();
            hasFailed = hasFailed || status == StorageFailed || words.value(5) == "1";
            judgeStatus(words, status, hasFailed);
        }
        require(!hasFailed || hasWarned, "an operation failed and no warning says why");
    }

    void judgeStatus(const QByteArrayList &words, int status, bool hasFailed)
    {
        const Step &step = stepOf(scene, words[0].front(), words[2].toInt());
        const bool isRefused = status == WrongState && hasFailed;
        require(status == Success || status == StorageFailed || isRefused, "an operation answered " + words[3]);
        require(step.what != Do::HangUp || status != StorageFailed, "a call could not be ended");
        require(words[0] == "A" || status == Success, "an operation of the other process failed");
        if (status == Success && (step.what == Do::WrongPin || step.what == Do::RightPin))
            require((words[4] == "1") == (step.what == Do::RightPin), "a PIN was judged wrongly");
    }

    // Of a copy: who opens it without the handset must not change what that finds.
    void judgeFile()
    {
        const QString copy = directory + QStringLiteral("-copy");
        if (!test::copyState(directory, copy)) {
            faults << "the file cannot be copied";
            return;
        }
        const QByteArrayList answer = Reader(copy + databaseName).rows("PRAGMA integrity_check");
        require(answer == QByteArrayList{"ok"} || answer.isEmpty(), "the file is damaged: " + answer.join(", "));
        QDir(copy).removeRecursively();
    }

    void judgeNextStart()
    {
        Phone phone(directory);
        require(bool(phone), "the next start fails: " + phone.opened.error.toUtf8());
        if (!phone)
            return;
        const QByteArray notice = phone.opened.notice.toUtf8();
        require(scene.isDamaged || notice.isEmpty(), "the next start tells: " + notice);
        require(!scene.isDamaged || wasToldNotice || !notice.isEmpty(),
                "nobody is told that the log was replaced");
        Reader file(directory + databaseName);
        judgeFigures(file, phone);
        judgeUse(file, phone);
    }

    void judgeFigures(Reader &file, const Phone &phone)
    {
        World found = readWorld(file, phone);
        const QByteArrayList rows = readRows(file);
        for (const QByteArray &row : rows)
            if (!before.rows.contains(row))
                found.rows << row;
        for (const QByteArray &row : before.rows)
            require(rows.contains(row), "lost: " + row);
        const std::set<QByteArray> permitted = Reckoning(scene, before.world, journal).all();
        const QByteArray text = found.lines().join('\n');
        require(permitted.count(text) == 1, difference(text, permitted));
        require(isTold(phone, found), "what is told is not what is in the file");
    }

    static bool isTold(const Phone &phone, const World &found)
    {
        const test::SixFigures figures = phone.figures();
        const auto inSeconds = [&](World::Time time) { return static_cast<quint64>(found.times[time] / 1000); };
        return figures == test::SixFigures{inSeconds(World::Last),     inSeconds(World::Dialed),
                                           inSeconds(World::Answered), inSeconds(World::Data),
                                           inSeconds(World::All),      inSeconds(World::Lifetime)};
    }

    void judgeUse(Reader &file, Phone &phone)
    {
        const World was = readWorld(file, phone);
        require(phone.dialed(3000), "no call can be made");
        const World is = readWorld(file, phone);
        require(is.times[World::Lifetime] == was.times[World::Lifetime] + 3000 && is.times[World::Last] == 3000,
                "the next call is not counted");
    }

    void judgeStartAfterThat()
    {
        QStringList found = QDir(directory).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
        found.removeIf([this](const QString &name) {
            return name == QLatin1String("lock") || name == QLatin1String("recorder") ||
                   name == QLatin1String("calllog.db") ||
                   (scene.isDamaged && name.startsWith(QLatin1String("calllog-kept-1.db")));
        });
        require(found.isEmpty(), "left behind: " + found.join(QLatin1Char(' ')).toUtf8());
        const Phone phone(directory);
        require(phone && phone.opened.notice.isEmpty(),
                "the start after the next says: " + (phone.opened.error + phone.opened.notice).toUtf8());
        judgeKept();
    }

    // As it was found.
    void judgeKept()
    {
        if (!scene.isDamaged)
            return;
        for (const auto &[name, content] : scene.files) {
            const QString kept =
                QString(name).replace(QStringLiteral("calllog.db"), QStringLiteral("calllog-kept-1.db"));
            require(test::readFile(directory + QLatin1Char('/') + kept) == content,
                    "not kept as it was: " + name.toUtf8());
        }
    }

    const Scene &scene;
    const Before &before;
    const QString &directory;
    const Fault &fault;
    const QByteArrayList journal;
    bool wasToldNotice = false;
    QByteArrayList faults;
};

} // namespace

Before lookBefore(const QString &directory)
{
    const Phone phone(directory);
    if (!phone)
        return {};
    Reader file(directory + databaseName);
    return {readWorld(file, phone), readRows(file)};
}

QByteArrayList judge(const Scene &scene, const Before &before, const QString &directory, const Fault &fault,
                     const Journal &journal)
{
    return Judge(scene, before, directory, fault, journal).verdict();
}

} // namespace handset::faults
