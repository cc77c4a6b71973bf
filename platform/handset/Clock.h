// The two clocks of the handset.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QtGlobal>

#include <memory>
#include <utility>

namespace handset {

/// Durations come from the monotonic clock, dates from the wall clock. Both in milliseconds.
class Clock
{
public:
    virtual ~Clock() = default;

    /// Never goes back; counts through suspend; its zero means nothing.
    virtual qint64 monotonicMs() const = 0;
    /// Since 1970-01-01 00:00 UTC; may jump either way.
    virtual qint64 wallMs() const = 0;
    /// Says between which readings of monotonicMs(), of whichever process, a difference is a time: those of the same
    /// boot of the machine.
    virtual QByteArray boot() const { return {}; }
};

/// The machine's clocks.
class SystemClock final : public Clock
{
public:
    SystemClock();

    qint64 monotonicMs() const override;
    qint64 wallMs() const override;
    QByteArray boot() const override { return bootId; }

private:
    QByteArray bootId;
};

/// A clock that stands still until it is moved.
class ManualClock final : public Clock
{
public:
    explicit ManualClock(qint64 startWallMs = 0)
        : wall(startWallMs)
    {}

    qint64 monotonicMs() const override { return monotonic; }
    qint64 wallMs() const override { return wall; }
    QByteArray boot() const override { return bootId; }

    /// Moves both clocks on; `ms` is 0 or more.
    void advance(qint64 ms)
    {
        monotonic += ms;
        wall += ms;
    }
    /// Sets the wall clock alone, as a user or the network does.
    void setWallMs(qint64 ms) { wall = ms; }
    /// The machine starts anew: the monotonic clock stands at `monotonicMs`, 0 or more.
    void reboot(qint64 monotonicMs)
    {
        bootId += '1';
        monotonic = monotonicMs;
    }

private:
    qint64 monotonic = 0;
    qint64 wall = 0;
    QByteArray bootId = "1";
};

/// Another clock, of which no reading is less than the one before: when that one goes back this one stands still, and
/// goes on as it does from there.
class SteadyClock final : public Clock
{
public:
    /// `source` is not null.
    explicit SteadyClock(std::shared_ptr<Clock> source)
        : clock(std::move(source))
        , last(clock->monotonicMs())
        , reading(last)
    {}

    qint64 monotonicMs() const override;
    qint64 wallMs() const override { return clock->wallMs(); }
    QByteArray boot() const override { return clock->boot(); }

private:
    std::shared_ptr<Clock> clock;
    mutable qint64 last;
    mutable qint64 reading;
};

} // namespace handset
