// Several calls, and several packet-data sessions, at once: as a modem has them that others talk through.
#include "calllog/CallFigures.h"
#include "calllog/Ledger.h"
#include "calllog/OpenLedger.h"
#include "calllog/PacketFigures.h"
#include "handset/HandsetTestKit.h"
#include "support/TestGroup.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QHash>
#include <QtCore/QRandomGenerator>
#include <QtTest/QTest>

using namespace handset;
using namespace handset::test;
using calllog::Charge;
using calllog::SessionAmounts;
using calllog::Total;

namespace {

constexpr charging::Tariff aUnitASecond{10, 10, 100, 0, 0, 0, 0};

PastCall callOf(CallDirection direction, const QString &number = QStringLiteral("1"),
                CallKind kind = CallKind::Voice)
{
    PastCall call;
    call.kind = kind;
    call.direction = direction;
    call.number = number;
    return call;
}
PastCall dialed(const QString &number = QStringLiteral("1"))
{
    return callOf(CallDirection::Dialed, number);
}
PastCall answered(const QString &number = QStringLiteral("2"))
{
    return callOf(CallDirection::Answered, number);
}

/// A ledger, and the clock that it goes by.
class Books
{
public:
    explicit Books(const QString &directory = {})
        : clock(std::make_shared<ManualClock>(qint64{1'800'000'000'000}))
        , path(directory)
    {
        open();
    }

    void open()
    {
        ledger.reset();
        calllog::OpenedLedger opened = calllog::openLedger(path, clock);
        QVERIFY2(opened.ledger, qPrintable(opened.error));
        ledger = std::move(opened.ledger);
        notice = opened.notice;
    }
    calllog::Ledger *operator->() const { return ledger.get(); }

    qint64 begin(const PastCall &call, Charge charge = Charge::Unlimited)
    {
        qint64 id = 0;
        const int status = ledger->beginCall(call, id, charge);
        return status == Success ? id : -status;
    }
    qint64 beginSession(const QByteArray &apn, const SessionAmounts &before = {})
    {
        qint64 id = 0;
        const int status = ledger->beginSession(apn, 0, 0, id, before);
        return status == Success ? id : -status;
    }
    qint64 figure(Total total)
    {
        qint64 value = -1;
        return ledger->figure(total, value) == Success ? value : -1;
    }
    QList<qint64> times()
    {
        return {figure(Total::LastTime), figure(Total::DialedTime), figure(Total::AnsweredTime),
                figure(Total::DataTime), figure(Total::AllTime),    figure(Total::LifetimeTime)};
    }
    QList<qint64> costs()
    {
        return {figure(Total::LastCost), figure(Total::DialedCost), figure(Total::AnsweredCost)};
    }
    void setTariffs(const charging::Tariff &tariff)
    {
        QCOMPARE(ledger->edit([&](charging::ChargingState &state) {
            state.tariffs = {tariff, tariff};
            return int{Success};
        }),
                 int(Success));
    }

    std::shared_ptr<ManualClock> clock;
    QString notice; ///< of the last opening

private:
    QString path;
    std::unique_ptr<calllog::Ledger> ledger;
};

/// What is known of calls, said as simply as can be.
class Model
{
public:
    void begin(qint64 id, const PastCall &call)
    {
        runs.insert(id, call);
        last = id;
        lastMs = call.durationMs;
        count(call, call.durationMs);
    }
    void pass(qint64 ms)
    {
        for (const PastCall &call : runs)
            count(call, ms);
        lastMs += runs.contains(last) ? ms : 0;
    }
    void end(qint64 id) { runs.remove(id); }
    void reset(Total total) { (total == Total::LastTime ? lastMs : sums[total]) = 0; }
    QList<qint64> times() const
    {
        return {lastMs,
                sums.value(Total::DialedTime),
                sums.value(Total::AnsweredTime),
                sums.value(Total::DataTime),
                sums.value(Total::AllTime),
                sums.value(Total::LifetimeTime)};
    }

    QHash<qint64, PastCall> runs;

private:
    void count(const PastCall &call, qint64 ms)
    {
        for (const Total total :
             {calllog::ownTime(call.kind, call.direction), Total::AllTime, Total::LifetimeTime})
            sums[total] += ms;
    }

    QHash<Total, qint64> sums;
    qint64 last = 0;
    qint64 lastMs = 0;
};

// What the disk has when the process is killed.
bool copyAsKilled(const StateDir &from, const StateDir &to)
{
    const QStringList names{QStringLiteral("/calllog.db"), QStringLiteral("/calllog.db-wal")};
    return QDir().mkpath(to.path()) && std::all_of(names.begin(), names.end(), [&](const QString &name) {
               return QFile::copy(from.path() + name, to.path() + name);
           });
}

} // namespace

class TestSeveralAtOnce : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void everyRunningCallCounts();
    void theLastCallIsTheOneThatWasConnectedLast();
    void eachCallIsChargedByItsOwnTariff();
    void anUnlimitedCallGoesOnWhenNothingMoreMayBeCharged();
    void aMeasuredCallCostsWhatItsMeterSays();
    void whatTheMeterSaysAfterTheEndIsAddedToTheCall();
    void whatTheMeterSaysOfAnEarlierCallIsNotTheLastOnes();
    void aMeasuredCallThatCouldNotBeBegunIsNotChargedByTheTariff();
    void aMeasuredCallDoesNotMakeTheCardLookLost();
    void onlyAMeasuredCallIsToldWhatItCosts();
    void aCallThatWasOnAlreadyCountsFromItsBeginning();
    void whatAnInterruptedCallHasCountedIsFoundByItsSuccessor();
    void whoIsGoneIsNotEndedAgain();
    void aCallEndsAlthoughTheRowOfAnotherIsGone();
    void theEndOfTheLedgerEndsThemAll();
    void everyRunningSessionCountsItsOwnBytes();
    void aSessionThatWasOnAlreadyCountsWhatItHasComeTo();
    void whatAnInterruptedSessionHasCountedIsFoundByItsSuccessor();
    void bytesOfNoSessionAreRefused();
    void randomCallsAreThoseOfTheModel();
};

void TestSeveralAtOnce::everyRunningCallCounts()
{
    Books books;
    const qint64 one = books.begin(dialed());
    books.clock->advance(10 * second);
    const qint64 two = books.begin(answered());
    const qint64 three = books.begin(callOf(CallDirection::Dialed, QStringLiteral("3"), CallKind::Data));
    QVERIFY(one > 0 && two > one && three > two);
    books.clock->advance(5 * second);
    QCOMPARE(books.times(), QList<qint64>({5000, 15000, 5000, 5000, 25000, 25000}));
    QCOMPARE(books->checkpoint(), int(Success));
    QCOMPARE(books.times(), QList<qint64>({5000, 15000, 5000, 5000, 25000, 25000}));
    QCOMPARE(books->endCall(two), int(Success));
    books.clock->advance(2 * second);
    QCOMPARE(books.times(), QList<qint64>({7000, 17000, 5000, 7000, 29000, 29000}));
    QCOMPARE(books->endCall(one), int(Success));
    QCOMPARE(books->endCall(three), int(Success));
    QVERIFY(!books->isConnected());
    books.clock->advance(hour);
    QCOMPARE(books.times(), QList<qint64>({7000, 17000, 5000, 7000, 29000, 29000}));
}

void TestSeveralAtOnce::theLastCallIsTheOneThatWasConnectedLast()
{
    Books books;
    const qint64 one = books.begin(dialed());
    books.clock->advance(10 * second);
    const qint64 two = books.begin(answered());
    QCOMPARE(books.figure(Total::LastTime), 0);
    books.clock->advance(3 * second);
    QCOMPARE(books->endCall(two), int(Success));
    books.clock->advance(4 * second);
    QCOMPARE(books->checkpoint(), int(Success));
    QCOMPARE(books.figure(Total::LastTime), 3 * second); // the first one goes on, and is not the last
    QCOMPARE(books->endCall(one), int(Success));
    QCOMPARE(books.figure(Total::LastTime), 3 * second);
}

void TestSeveralAtOnce::eachCallIsChargedByItsOwnTariff()
{
    Books books;
    books.setTariffs(aUnitASecond);
    const qint64 one = books.begin(dialed());
    books.setTariffs({20, 10, 100, 0, 0, 0, 0});
    const qint64 two = books.begin(answered());
    books.clock->advance(10 * second);
    QCOMPARE(books.costs(), QList<qint64>({20, 10, 20}));
    QCOMPARE(books->dueUnits(), 30u);
    QCOMPARE(books->checkpoint(), int(Success));
    QCOMPARE(books.costs(), QList<qint64>({20, 10, 20}));
    QCOMPARE(books->standing().state.card.acm(), 30u);
    QCOMPARE(books->endCall(one), int(Success));
    QCOMPARE(books->endCall(two), int(Success));
}

void TestSeveralAtOnce::anUnlimitedCallGoesOnWhenNothingMoreMayBeCharged()
{
    Books books;
    books.setTariffs(aUnitASecond);
    QCOMPARE(books->edit([](charging::ChargingState &state) {
        state.account = charging::Account{3, 3, {2030, 1, 1}};
        return int{Success};
    }),
             int(Success));
    const qint64 id = books.begin(dialed());
    books.clock->advance(minute);
    QVERIFY(!books->standing().call()->mostMs);
    QCOMPARE(books.figure(Total::LastTime), minute);
    QCOMPARE(books->endCall(id), int(Success));
    QCOMPARE(books.figure(Total::AllTime), minute);
    QCOMPARE(books->standing().state.account->credit, 0u);
    // One that the handset would have to end does not begin.
    QCOMPARE(books.begin(dialed(), Charge::Limited), -NotAllowed);
    QVERIFY(books.begin(answered()) > 0);
}

void TestSeveralAtOnce::aMeasuredCallCostsWhatItsMeterSays()
{
    Books books;
    books.setTariffs(aUnitASecond);
    const qint64 measured = books.begin(dialed(), Charge::Measured);
    books.clock->advance(minute);
    QCOMPARE(books.costs(), QList<qint64>({0, 0, 0}));
    QCOMPARE(books->setUnits(measured, 4), int(Success));
    QCOMPARE(books.costs(), QList<qint64>({4, 4, 0}));
    QCOMPARE(books->setUnits(measured, 2), int(Success)); // a meter never falls
    QCOMPARE(books.costs(), QList<qint64>({4, 4, 0}));
    QCOMPARE(books->reset({Total::DialedCost}), int(Success));
    QCOMPARE(books->setUnits(measured, 7), int(Success));
    QCOMPARE(books.costs(), QList<qint64>({7, 3, 0}));
    QCOMPARE(books->endCall(measured), int(Success));
    QCOMPARE(books.costs(), QList<qint64>({7, 3, 0}));
    QCOMPARE(books->standing().state.card.acm(), 0u); // that is somebody else's
}

void TestSeveralAtOnce::whatTheMeterSaysAfterTheEndIsAddedToTheCall()
{
    StateDir state;
    Books books(state.path());
    const qint64 measured = books.begin(dialed(), Charge::Measured);
    QCOMPARE(books->setUnits(measured, 4), int(Success));
    QCOMPARE(books->endCall(measured), int(Success));
    QCOMPARE(books->setUnits(measured, 9), int(Success));
    QCOMPARE(books->setUnits(measured, 6), int(Success)); // a meter never falls
    QCOMPARE(books.costs(), QList<qint64>({9, 9, 0}));
    QCOMPARE(LogFile(state.database()).value(QStringLiteral("SELECT units FROM calls")).toInt(), 9);
    QCOMPARE(books->addUnconnected(answered()), int(Success)); // is no last call
    QCOMPARE(books->setUnits(measured, 10), int(Success));
    QCOMPARE(books->setUnits(measured + 1, 10), int(WrongState));
    QCOMPARE(books.costs(), QList<qint64>({10, 10, 0}));
    QCOMPARE(books->standing().state.card.acm(), 0u);
}

void TestSeveralAtOnce::whatTheMeterSaysOfAnEarlierCallIsNotTheLastOnes()
{
    Books books;
    const qint64 first = books.begin(answered(), Charge::Measured);
    QCOMPARE(books->endCall(first), int(Success));
    const qint64 next = books.begin(dialed(), Charge::Measured);
    QCOMPARE(books->setUnits(next, 1), int(Success));
    QCOMPARE(books->setUnits(first, 5), int(Success));
    QCOMPARE(books.costs(), QList<qint64>({1, 1, 5}));
}

void TestSeveralAtOnce::aMeasuredCallThatCouldNotBeBegunIsNotChargedByTheTariff()
{
    Books books;
    books.setTariffs(aUnitASecond);
    PastCall past = dialed();
    past.durationMs = 10 * second;
    past.units = 3;
    QCOMPARE(books->addHistory({past}, Charge::Measured), int(Success));
    QCOMPARE(books.costs(), QList<qint64>({3, 3, 0}));
    QCOMPARE(books->standing().state.card.acm(), 0u);
}

// Its costs are another card's: this one was never written for them.
void TestSeveralAtOnce::aMeasuredCallDoesNotMakeTheCardLookLost()
{
    StateDir state;
    Books books(state.path());
    const qint64 measured = books.begin(dialed(), Charge::Measured);
    QCOMPARE(books->setUnits(measured, 4), int(Success));
    QCOMPARE(books->endCall(measured), int(Success));
    books.open();
    QCOMPARE(books.notice, QString());
    QCOMPARE(books.costs(), QList<qint64>({4, 4, 0}));
}

void TestSeveralAtOnce::onlyAMeasuredCallIsToldWhatItCosts()
{
    Books books;
    const qint64 id = books.begin(dialed());
    QCOMPARE(books->setUnits(id, 4), int(WrongState));
    QCOMPARE(books->setUnits(id + 1, 4), int(WrongState));
    QCOMPARE(books.costs(), QList<qint64>({0, 0, 0}));
}

void TestSeveralAtOnce::aCallThatWasOnAlreadyCountsFromItsBeginning()
{
    StateDir state;
    Books books(state.path());
    PastCall call = dialed();
    call.durationMs = 7 * second;
    const qint64 id = books.begin(call);
    PastCall late = answered();
    late.isLate = true;
    const qint64 lateId = books.begin(late);
    books.clock->advance(second);
    QCOMPARE(books.times(), QList<qint64>({1000, 8000, 1000, 0, 9000, 9000}));
    QCOMPARE(books->endCall(id), int(Success));
    QCOMPARE(books->endCall(lateId), int(Success));
    const LogFile file(state.database());
    QCOMPARE(file.value(QStringLiteral("SELECT group_concat(duration_ms || '/' || late) FROM calls")).toString(),
             QStringLiteral("8000/0,1000/1"));
    call.durationMs = -1;
    QCOMPARE(books.begin(call), -InvalidArgument);
}

void TestSeveralAtOnce::whatAnInterruptedCallHasCountedIsFoundByItsSuccessor()
{
    StateDir state;
    const StateDir copy;
    Books books(state.path());
    const qint64 begun = books.clock->wallMs();
    PastCall call = dialed();
    call.startWallMs = begun;
    books.begin(call);
    books.clock->advance(6 * second);
    QCOMPARE(books->checkpoint(), int(Success));
    books.clock->advance(2 * second);
    QVERIFY(copyAsKilled(state, copy));
    Books next(copy.path());
    QVERIFY(next->record());
    calllog::Counted counted;
    QCOMPARE(next->counted(call, begun, counted), int(Success));
    QCOMPARE(counted.ms, 6 * second);
    QCOMPARE(next->counted(call, begun + 1, counted), int(Success));
    QCOMPARE(counted.ms, 0);
    QCOMPARE(next->counted(answered(), begun, counted), int(Success));
    QCOMPARE(counted.ms, 0);
    QCOMPARE(next->counted(dialed(QStringLiteral("11")), begun, counted), int(Success));
    QCOMPARE(counted.ms, 0);
}

void TestSeveralAtOnce::whoIsGoneIsNotEndedAgain()
{
    Books books;
    const qint64 id = books.begin(dialed());
    QCOMPARE(books->endCall(id + 1), int(WrongState));
    QCOMPARE(books->endCall(id), int(Success));
    QCOMPARE(books->endCall(id), int(WrongState));
    const qint64 session = books.beginSession("x");
    QCOMPARE(books->endSession(session + 1), int(WrongState));
    QCOMPARE(books->endSession(session), int(Success));
    QCOMPARE(books->endSession(session), int(WrongState));
}

void TestSeveralAtOnce::aCallEndsAlthoughTheRowOfAnotherIsGone()
{
    StateDir state;
    Books books(state.path());
    const qint64 one = books.begin(dialed());
    const qint64 two = books.begin(answered());
    books.clock->advance(second);
    QVERIFY(LogFile(state.database()).run(QStringLiteral("DELETE FROM calls WHERE id = %1").arg(one)));
    QCOMPARE(books->endCall(two), int(Success));
    QCOMPARE(books.figure(Total::AnsweredTime), second);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("call")));
    QCOMPARE(books->endCall(one), int(Success));
    QCOMPARE(books.figure(Total::DialedTime), second);
}

void TestSeveralAtOnce::theEndOfTheLedgerEndsThemAll()
{
    StateDir state;
    Books books(state.path());
    books.begin(dialed());
    books.clock->advance(second);
    books.begin(answered());
    books.beginSession("x");
    books.beginSession("y");
    books.clock->advance(second);
    books.open();
    const LogFile file(state.database());
    QCOMPARE(file.value(QStringLiteral("SELECT group_concat(state || '/' || duration_ms) FROM calls")).toString(),
             QStringLiteral("1/2000,1/1000"));
    QCOMPARE(
        file.value(QStringLiteral("SELECT group_concat(state || '/' || duration_ms) FROM sessions")).toString(),
        QStringLiteral("1/1000,1/1000"));
    QCOMPARE(books.figure(Total::AllTime), 3 * second);
}

void TestSeveralAtOnce::everyRunningSessionCountsItsOwnBytes()
{
    Books books;
    const qint64 one = books.beginSession("one");
    const qint64 two = books.beginSession("two");
    books.clock->advance(2 * second);
    QCOMPARE(books->addBytes(one, 10, 20), int(Success));
    QCOMPARE(books->addBytes(two, 1, 2), int(Success));
    QCOMPARE(books->addBytes(one, 100, 200), int(Success));
    QCOMPARE(books->addBytes(one, -5, -6), int(Success)); // never less
    SessionAmounts all;
    QCOMPARE(books->sessionTotals(all), int(Success));
    QCOMPARE(all.ms, 4 * second);
    QCOMPARE(all.sent, 111);
    QCOMPARE(all.received, 222);
    QCOMPARE(books->endSession(one), int(Success));
    books.clock->advance(second);
    QCOMPARE(books->resetSessions({Total::BytesSent}), int(Success));
    QCOMPARE(books->addBytes(two, 3, 4), int(Success));
    QCOMPARE(books->endSession(two), int(Success));
    QCOMPARE(books->sessionTotals(all), int(Success));
    QCOMPARE(all.ms, 5 * second);
    QCOMPARE(all.sent, 3);
    QCOMPARE(all.received, 226);
    QList<calllog::SessionRow> rows;
    QCOMPARE(books->sessions(3, rows), int(Success));
    QCOMPARE(rows.size(), 2);
    QCOMPARE(rows[0].amounts.sent, 4);
    QCOMPARE(rows[1].amounts.received, 220);
    QCOMPARE(rows[1].amounts.ms, 2 * second);
}

void TestSeveralAtOnce::aSessionThatWasOnAlreadyCountsWhatItHasComeTo()
{
    Books books;
    const qint64 id = books.beginSession("x", {3 * second, 5, 7});
    books.clock->advance(second);
    QCOMPARE(books->addBytes(id, 1, 1), int(Success));
    SessionAmounts all;
    QCOMPARE(books->sessionTotals(all), int(Success));
    QCOMPARE(all.ms, 4 * second);
    QCOMPARE(all.sent, 6);
    QCOMPARE(all.received, 8);
    QCOMPARE(books.beginSession("y", {-1, 0, 0}), -InvalidArgument);
}

void TestSeveralAtOnce::whatAnInterruptedSessionHasCountedIsFoundByItsSuccessor()
{
    StateDir state;
    const StateDir copy;
    Books books(state.path());
    const qint64 begun = books.clock->wallMs();
    const qint64 id = books.beginSession("net");
    books.clock->advance(3 * second);
    QCOMPARE(books->addBytes(id, 30, 40), int(Success));
    QVERIFY(copyAsKilled(state, copy));
    Books next(copy.path());
    QVERIFY(next->record());
    SessionAmounts counted;
    QCOMPARE(next->counted("net", begun, begun, counted), int(Success));
    QCOMPARE(counted.ms, 3 * second);
    QCOMPARE(counted.sent, 30);
    QCOMPARE(counted.received, 40);
    QCOMPARE(next->counted("other", begun, begun, counted), int(Success));
    QCOMPARE(counted.ms, 0);
}

void TestSeveralAtOnce::bytesOfNoSessionAreRefused()
{
    Books books;
    QCOMPARE(books->addBytes(1, 1, 1), int(WrongState));
    const qint64 id = books.beginSession("x");
    QCOMPARE(books->endSession(id), int(Success));
    QCOMPARE(books->addBytes(id, 1, 1), int(WrongState));
}

void TestSeveralAtOnce::randomCallsAreThoseOfTheModel()
{
    constexpr int steps = 3000;
    constexpr int mostCalls = 5;
    QRandomGenerator random(11);
    Books books;
    Model model;
    for (int step = 0; step < steps; ++step) {
        const quint32 dice = random.bounded(100u);
        const QList<qint64> running = model.runs.keys();
        if (dice < 20 && running.size() < mostCalls) {
            PastCall call = callOf(random.bounded(2) ? CallDirection::Dialed : CallDirection::Answered,
                                   QStringLiteral("1"), random.bounded(5) ? CallKind::Voice : CallKind::Data);
            call.durationMs = random.bounded(4) ? 0 : random.bounded(5000);
            const qint64 id = books.begin(call);
            QVERIFY(id > 0);
            model.begin(id, call);
        } else if (dice < 40 && !running.isEmpty()) {
            const qint64 id = running[random.bounded(static_cast<int>(running.size()))];
            QCOMPARE(books->endCall(id), int(Success));
            model.end(id);
        } else if (dice < 50) {
            const Total total = static_cast<Total>(random.bounded(5)); // not the lifetime
            QCOMPARE(books->reset({total}), int(Success));
            model.reset(total);
        } else if (dice < 60) {
            QCOMPARE(books->checkpoint(), int(Success));
        } else {
            const int ms = random.bounded(3000);
            books.clock->advance(ms);
            model.pass(ms);
        }
        QCOMPARE(books.times(), model.times());
    }
}

KAV_TEST_GROUP(TestSeveralAtOnce, QCoreApplication);
#include "tst_several_at_once.moc"
