// The two clocks of the telephone.
#pragma once

#include <QtCore/QtGlobal>

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
};

/// The machine's clocks.
class SystemClock final : public Clock
{
public:
    qint64 monotonicMs() const override;
    qint64 wallMs() const override;
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

    /// Moves both clocks on; `ms` is 0 or more.
    void advance(qint64 ms)
    {
        monotonic += ms;
        wall += ms;
    }
    /// Sets the wall clock alone, as a user or the network does.
    void setWallMs(qint64 ms) { wall = ms; }

private:
    qint64 monotonic = 0;
    qint64 wall = 0;
};

} // namespace handset
