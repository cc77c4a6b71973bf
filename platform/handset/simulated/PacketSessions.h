// The simulated telephone's packet data: one session at a time, measured and kept in the call log.
#pragma once

#include "Clock.h"
#include "PacketControl.h"
#include "PacketData.h"
#include "SessionStore.h"

#include <functional>
#include <memory>
#include <optional>

namespace handset::simulated {

/// Bytes are the rate times the time that has passed, the fraction cut off only where they are told or written. The end
/// of this ends the session.
class PacketSessions final : public PacketData, public PacketControl
{
public:
    /// How often tick() and checkpoint() are to be called at least while a session runs.
    static constexpr int updateIntervalMs = 1000;
    static constexpr int checkpointIntervalMs = 5000;

    /// `database` is the call log's, and outlives this. `clocks` is not null.
    PacketSessions(calllog::Database &database, std::shared_ptr<Clock> clocks);
    ~PacketSessions() override;
    PacketSessions(const PacketSessions &) = delete;
    PacketSessions &operator=(const PacketSessions &) = delete;

    int sessions(DataSessions &sessions) override;
    int totalDuration(CallTime &duration) override;
    int totalBytes(quint32 &total, quint32 &received, quint32 &sent) override;
    int resetTotalDuration() override;
    int resetTotalBytes() override;
    void setUpdateListener(const std::function<void()> &listener) override { onUpdate = listener; }

    int startSession(const QByteArray &apn, quint32 sentPerSecond, quint32 receivedPerSecond) override;
    int stopSession() override;
    bool isSessionRunning() const override { return running.has_value(); }

    /// Writes what is owed and what the running session has counted so far; success with neither.
    int checkpoint();
    /// Whether the end of a session is kept that could not be written yet. It counts in every figure.
    bool owesEnd() const { return owed.has_value(); }
    /// Tells the update listener when the running session has gone on for a second since it was told last.
    void tick();

    /// Called when a session has been started or stopped, and after a reset.
    void setChangeListener(std::function<void()> listener) { onChange = std::move(listener); }

private:
    struct RunningSession {
        qint64 id = 0; ///< the row's
        quint32 sentPerSecond = 0;
        quint32 receivedPerSecond = 0;
        qint64 ms = 0;          ///< up to the last reading
        qint64 lastReading = 0; ///< of the monotonic clock
        qint64 toldMs = 0;      ///< to the update listener
        calllog::SessionAmounts written;

        calllog::SessionAmounts amounts() const;
        calllog::UnwrittenAmounts unwritten() const;
    };

    void readClock();
    /// What the running session, or one that is over, has come to beyond what is written.
    std::optional<calllog::UnwrittenAmounts> unwritten();
    int totals(calllog::SessionAmounts &amounts);
    int reset(std::initializer_list<calllog::SessionCounter> counters);
    void end();
    int writeOwed();
    void tellUpdate() const;
    void tellChange() const;

    calllog::SessionStore store;
    std::shared_ptr<Clock> clock;
    std::optional<RunningSession> running;
    std::optional<calllog::UnwrittenAmounts> owed; ///< by a session that is over; there is no running one then
    calllog::RepeatedWrite owedWrite;
    std::function<void()> onUpdate;
    std::function<void()> onChange;
};

} // namespace handset::simulated
