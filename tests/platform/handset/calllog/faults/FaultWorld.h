// What a call log has after a scene, reckoned by hand.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayList>
#include <QtCore/QtGlobal>

#include <array>
#include <optional>

namespace handset::faults {

/// Figures in ms, units and bytes, as they stand in the file; of calls and sessions the rows that the scene adds. One call
/// and one session at a time. Dialed calls cost a unit for every complete 10 s, others nothing.
class World
{
public:
    enum Time { Last, Dialed, Answered, Data, All, Lifetime, TimeCount };
    enum Cost { LastCost, DialedCost, AnsweredCost, CostCount };
    enum SessionTotal { Duration, Sent, Received, SessionTotalCount };

    std::array<qint64, TimeCount> times{};
    std::array<qint64, CostCount> costs{};
    std::array<qint64, SessionTotalCount> sessionTotals{};
    qint64 meter = 0;
    qint64 credit = -1; ///< less than 0: no account
    qint64 tries = 3;
    QByteArrayList rows; ///< of calls and sessions that are over, in no special order
    qint64 lastCall = 0; ///< the greatest id
    qint64 lastSession = 0;

    void dial() { dialing = true; }
    void connect(qint64 now);
    void hangUp(qint64 now);
    void startSession(qint64 now);
    void stopSession(qint64 now);
    /// What runs is written up to now, as every change does.
    void write(qint64 now);
    void resetDialed(qint64 now);
    void resetAll(qint64 now);
    void topUp(qint64 now, qint64 units);

    bool isOwing() const { return hangsUpAt || stopsAt; }
    /// The end that is owed is written.
    void settle();
    /// Nothing more is written: the next one who records closes the rows with what they have.
    void crash();

    /// A line for each thing, to be compared.
    QByteArrayList lines() const;

    static constexpr qint64 sentPerSecond = 100;
    static constexpr qint64 receivedPerSecond = 2000;
    static QByteArray callRow(qint64 id, int kind, int direction, qint64 ms, int state, qint64 units);
    static QByteArray sessionRow(qint64 id, qint64 ms, qint64 sent, qint64 received, int state);

private:
    struct Running {
        qint64 id = 0;
        qint64 began = 0;
        qint64 ms = 0;
    };
    void writeCall(qint64 now);
    void writeSession(qint64 now);
    void closeCall(int state);
    void closeSession(int state);

    bool dialing = false;
    std::optional<Running> call;
    std::optional<Running> session;
    std::optional<qint64> hangsUpAt;
    std::optional<qint64> stopsAt;
};

} // namespace handset::faults
