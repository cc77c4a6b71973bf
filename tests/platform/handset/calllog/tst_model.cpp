// Thousands of random operations, each compared with what a list of everything that ever happened says.
#include "handset/CallLog.h"
#include "handset/CallService.h"
#include "handset/DataCalls.h"
#include "handset/HandsetTestKit.h"
#include "handset/Status.h"
#include "support/TestGroup.h"

#include <algorithm>
#include <array>
#include <optional>
#include <random>

using namespace handset;
using namespace handset::test;

namespace {

enum Figure { Last, Dialed, Answered, Data, All, Lifetime, FigureCount };

/// Keeps every call with the moments it began and ended, and every reset with its moment; adds nothing up until asked.
class Model
{
public:
    void pass(qint64 ms) { now += ms; }

    void connectCall(Figure own) { calls.append({own, now, std::nullopt, 0, ++events}); }
    void endCall() { calls.last().end = now; }
    bool isConnected() const { return !calls.isEmpty() && calls.last().isRunning(); }

    /// A call that is over: no moments, only a length.
    void addPast(Figure own, qint64 ms)
    {
        const Call past{own, now, now, ms, ++events};
        // The running call stays the last one.
        calls.insert(isConnected() ? calls.size() - 1 : calls.size(), past);
    }

    void reset(Figure figure) { resets[figure] = {now, ++events}; }
    void write() { written = now; }

    /// What followed the last write did not happen.
    void crash()
    {
        if (isConnected())
            calls.last().end = written;
    }

    SixFigures figures() const
    {
        const auto seconds = [this](Figure figure) { return static_cast<quint64>(sum(figure)) / 1000; };
        return {seconds(Last), seconds(Dialed), seconds(Answered), seconds(Data), seconds(All), seconds(Lifetime)};
    }

private:
    struct Call {
        Figure own;
        qint64 begin;
        std::optional<qint64> end;
        qint64 pastMs;
        int event;
        bool isRunning() const { return !end; }
    };
    struct Moment {
        qint64 at = 0;
        int event = 0;
    };

    qint64 counted(const Call &call, const Moment &reset) const
    {
        if (call.pastMs > 0)
            return call.event > reset.event ? call.pastMs : 0;
        return std::max<qint64>(0, call.end.value_or(now) - std::max(call.begin, reset.at));
    }

    qint64 sum(Figure figure) const
    {
        if (figure == Last)
            return calls.isEmpty() ? 0 : counted(calls.last(), resets[Last]);
        qint64 total = 0;
        for (const Call &call : calls)
            if (figure == All || figure == Lifetime || figure == call.own)
                total += counted(call, resets[static_cast<std::size_t>(figure)]);
        return total;
    }

    QList<Call> calls;
    std::array<Moment, FigureCount> resets{};
    qint64 now = 0;
    qint64 written = 0;
    int events = 0;
};

/// The handset and the model, driven alike.
class Walk
{
public:
    Walk(const QString &directory, quint32 seed)
        : random(seed)
        , stateDirectory(directory)
    {
        phone = std::make_unique<Phone>(stateDirectory, clock);
    }

    bool step()
    {
        switch (pick(12)) {
        case 0:
            return beginCall();
        case 1:
            return connectCall();
        case 2:
            return hangUp();
        case 3:
        case 4:
        case 5:
            return pass();
        case 6:
            return resetOne();
        case 7:
            return resetAll();
        case 8:
            return checkpoint();
        case 9:
            return addHistory();
        case 10:
            return pick(20) != 0 || restart();
        default:
            return pick(20) != 0 || crash();
        }
    }

    SixFigures actual() const { return phone->figures(); }
    SixFigures expected() const { return model.figures(); }
    QString lastStep() const { return did; }

private:
    using LineState = simulated::SimulatedHandset::LineState;

    int pick(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random); }

    bool done(const char *what, int status, int wanted = Success)
    {
        did = QString::fromLatin1(what);
        return status == wanted;
    }

    bool beginCall()
    {
        const bool idle = (*phone)->lineState() == LineState::Idle;
        const int kind = pick(3);
        if (idle)
            own = std::array{Dialed, Answered, Data}[static_cast<std::size_t>(kind)];
        const QString number = QString::number(pick(1000));
        const int status = kind == 1 ? (*phone)->ring(number)
                                     : (*phone)->dial(number, kind == 2 ? CallKind::Data : CallKind::Voice);
        return done("began a call", status, idle ? Success : WrongState);
    }

    bool connectCall()
    {
        const LineState state = (*phone)->lineState();
        if (state == LineState::Dialing || state == LineState::Ringing)
            model.connectCall(own);
        const bool possible = state == LineState::Dialing || state == LineState::Ringing;
        if (possible)
            model.write();
        const int status = state == LineState::Ringing ? (*phone)->answer() : (*phone)->remoteAnswer();
        return done("connected", status, possible ? Success : WrongState);
    }

    bool hangUp()
    {
        const bool possible = (*phone)->lineState() != LineState::Idle;
        if (model.isConnected())
            model.endCall();
        return done("hung up", (*phone)->hangUp(), possible ? Success : WrongState);
    }

    bool pass()
    {
        const qint64 ms = std::array<qint64, 4>{1, 999, 61'001, 3'600'000}[static_cast<std::size_t>(pick(4))];
        clock->advance(ms);
        model.pass(ms);
        if (pick(5) == 0)
            clock->setWallMs(pick(1'000'000)); // nothing depends on it
        return done("let time pass", Success);
    }

    bool resetOne()
    {
        model.write();
        switch (pick(4)) {
        case 0:
            model.reset(Dialed);
            return done("reset dialed", phone->log().resetDialedCallsTime());
        case 1:
            model.reset(Answered);
            return done("reset answered", phone->log().resetAnsweredCallsTime());
        case 2:
            model.reset(Data);
            return done("reset data", phone->data().resetTotalDuration());
        default:
            model.reset(All);
            return done("reset all calls", phone->service().resetCallTime());
        }
    }

    bool resetAll()
    {
        model.write();
        for (const Figure figure : {Last, Dialed, Answered})
            model.reset(figure);
        return done("reset the call log", phone->log().resetAll());
    }

    bool checkpoint()
    {
        model.write();
        return done("wrote", pick(2) == 0 ? (*phone)->checkpoint() : phone->data().refreshTotals());
    }

    bool addHistory()
    {
        QList<PastCall> history;
        for (int count = pick(4); count > 0; --count) {
            const int kind = pick(3);
            const qint64 ms = pick(3) == 0 ? 0 : 1 + pick(5'000'000);
            history.append({kind == 2 ? CallKind::Data : CallKind::Voice,
                            kind == 1 ? CallDirection::Answered : CallDirection::Dialed,
                            {},
                            0,
                            ms});
            if (ms > 0)
                model.addPast(std::array{Dialed, Answered, Data}[static_cast<std::size_t>(kind)], ms);
        }
        return done("added history", (*phone)->addHistory(history));
    }

    bool restart()
    {
        if (stateDirectory.isEmpty())
            return true;
        if (model.isConnected())
            model.endCall();
        phone.reset();
        phone = std::make_unique<Phone>(stateDirectory, clock);
        return done("restarted", *phone && phone->opened.notice.isEmpty() ? Success : StorageFailed);
    }

    bool crash()
    {
        if (stateDirectory.isEmpty())
            return true;
        const QString next = stateDirectory + QLatin1Char('x');
        if (!copyState(stateDirectory, next))
            return false;
        stateDirectory = next;
        model.crash();
        phone = std::make_unique<Phone>(stateDirectory, clock);
        return done("crashed", *phone && phone->opened.notice.isEmpty() ? Success : StorageFailed);
    }

    std::mt19937 random;
    QString stateDirectory;
    std::shared_ptr<ManualClock> clock = std::make_shared<ManualClock>(0);
    std::unique_ptr<Phone> phone;
    Model model;
    Figure own = Dialed;
    QString did;
};

} // namespace

class TestModel : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void allSixFiguresAgreeAfterEveryOperation_data();
    void allSixFiguresAgreeAfterEveryOperation();
};

void TestModel::allSixFiguresAgreeAfterEveryOperation_data()
{
    QTest::addColumn<bool>("onDisk");
    QTest::addColumn<int>("operations");
    QTest::addColumn<quint32>("seed");

    // KAV_SEED tries another walk.
    const quint32 given = qEnvironmentVariable("KAV_SEED").toUInt();
    for (quint32 seed = 1; seed <= 4; ++seed)
        QTest::addRow("in memory, walk %u", seed) << false << 3000 << (given ? given : seed);
    for (quint32 seed = 5; seed <= 9; ++seed)
        QTest::addRow("on disk with restarts and crashes, walk %u", seed)
            << true << (seed < 9 ? 1000 : 500) << (given ? given : seed);
}

void TestModel::allSixFiguresAgreeAfterEveryOperation()
{
    QFETCH(bool, onDisk);
    QFETCH(int, operations);
    QFETCH(quint32, seed);
    const StateDir state;
    Walk walk(onDisk ? state.path() : QString(), seed);
    for (int i = 0; i < operations; ++i) {
        const bool succeeded = walk.step();
        const QByteArray where =
            QStringLiteral("seed %1, operation %2: %3").arg(seed).arg(i).arg(walk.lastStep()).toUtf8();
        QVERIFY2(succeeded, where.constData());
        if (walk.actual() != walk.expected())
            qInfo("%s", where.constData());
        QCOMPARE(walk.actual(), walk.expected());
    }
}

KAV_TEST_GROUP(TestModel, QCoreApplication);
#include "tst_model.moc"
