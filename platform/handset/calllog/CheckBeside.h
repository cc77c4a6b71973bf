// Reads a call log through while it is in use.
#pragma once

#include "calllog/LogCheck.h"

#include <QtCore/QObject>

#include <atomic>
#include <functional>
#include <mutex>
#include <thread>

namespace handset::calllog {

/// Begins on construction, in a thread of its own, on a connection of its own that only reads. What it finds comes
/// through the event loop of the thread that made it: a damaged log is marked, so that the next start replaces it, and
/// told. Until then it is used as it is.
class CheckBeside
{
public:
    /// `path` is that of `database`, which outlives this. `tell` is given one sentence for the user; it may be null.
    CheckBeside(Database &database, QString path, std::function<void(const QString &)> tell);
    /// Does not wait for the end of the reading.
    ~CheckBeside();
    CheckBeside(const CheckBeside &) = delete;
    CheckBeside &operator=(const CheckBeside &) = delete;

private:
    CheckedLog read();
    void report(const CheckedLog &checked);
    void setReading(sqlite3 *connection);
    void finish(const CheckedLog &checked);

    Database &log;
    QString file;
    std::function<void(const QString &)> listener;
    QObject here; ///< in the thread that made this
    std::atomic<bool> isOver = false;
    std::mutex readingLock;
    sqlite3 *reading = nullptr; ///< the reader's connection as long as it may be interrupted
    std::thread reader;
};

/// Whether a check that ran beside has found this very file damaged; not another one of the same name.
bool isMarkedDamaged(const QString &path);

} // namespace handset::calllog
