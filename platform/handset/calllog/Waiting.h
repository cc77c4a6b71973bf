// What an opening waits for.
#pragma once

#include "calllog/repair/Progress.h"

#include <QtCore/QString>

#include <exception>
#include <functional>
#include <utility>

namespace handset::calllog {

/// Who is in the way: names of processes, part of a sentence; empty when that is not known.
using Holders = std::function<QString()>;

/// The waiting of one opening for other processes: it has one patience, wherever and for whatever on its way it comes to
/// wait. Who waits for longer than a second is told whom for, and how much of the patience is gone.
class Waiting
{
public:
    /// `patienceMs` is how long it may be, of what is meant to be waited: a busy machine takes longer. `progress`
    /// may end the opening by an exception; it may be null.
    Waiting(int patienceMs, ProgressListener progress);

    /// Waits for a moment of so many milliseconds; false, at once, when the patience is at its end.
    bool pause(int milliseconds, const Holders &holders);
    /// The same for who writes the database, inside SQLite, which must not be left by an exception: false, too, when there
    /// was one. It is thrown by goOn().
    bool pauseInSqlite(int milliseconds);
    void setWriters(Holders whoWrites) { writers = std::move(whoWrites); }
    void goOn();
    /// What was waited for is there; whatever comes next has what is left of the patience.
    void arrive();

    bool isOver() const { return waitedMs >= patience; }
    /// Of the time when the patience was at its end.
    const QString &lastHolders() const { return holdersAtEnd; }

private:
    void tell(const Holders &holders);

    int patience; ///< milliseconds, as the next two
    ProgressListener listener;
    Holders writers;
    int waitedMs = 0;
    int toldMs = 0;
    QString step; ///< as it was told last
    QString holdersAtEnd;
    std::exception_ptr thrown;
};

} // namespace handset::calllog
