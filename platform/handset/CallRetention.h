// Limits for how long calls are kept.
#pragma once

#include "handset/Handset.h"

#include <QtCore/QTimer>

namespace handset {

inline constexpr int mostKeptDays = 100'000;

/// A number of days, 0 to mostKeptDays, as a user writes it; nothing for any other text.
std::optional<int> keptDaysFrom(const QString &text);

/// When the calls begin that are kept for `days` at the moment `wallMs`: at the same time of the local day, so many days
/// ago. Both since 1970 UTC.
qint64 keptSince(int days, qint64 wallMs);

/// Deletes the calls of a handset that began earlier than so many days ago: from the event loop as soon as that runs, and
/// then once a day for as long as this lives. Totals stay, and so does a call that runs. What fails is tried again at the
/// next look. Nothing for a handset that keeps no calls.
class CallRetention
{
public:
    static constexpr int anHourMs = 60 * 60 * 1000;

    /// `handset` outlives this; the clock is not null. Looked at every `lookMs`, which is more often than anything is done:
    /// a timer stands still while the machine sleeps, and the wall clock may be set.
    CallRetention(Handset &handset, int days, std::shared_ptr<Clock> clock, int lookMs = anHourMs);

private:
    void look();

    Handset &owner;
    const int keptDays;
    const int lookMs;
    const std::shared_ptr<Clock> clock;
    std::optional<qint64> doneAtWallMs;
    QTimer timer;
};

} // namespace handset
