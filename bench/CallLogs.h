// Call logs of any size on the disk, to be measured.
#pragma once

#include "handset/Clock.h"
#include "simulated/SimulatedHandset.h"

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

#include <memory>

class QProcess;

namespace bench {

inline constexpr auto logName = "calllog.db";

// Calls.
inline constexpr int readAtOnceLog =
    5'000; ///< just below the size up to which the whole is read before the first screen
inline constexpr int usualLog = 1'000'000;  ///< of someone who has had the handset for decades
inline constexpr int largeLog = 10'000'000; ///< built only when it is asked for, and not kept

/// The simulated handset on a log of its own, with a clock that stands still.
struct BenchedHandset {
    std::shared_ptr<const QTemporaryDir> directory; ///< goes with the last that uses it
    std::shared_ptr<handset::simulated::SimulatedHandset> handset;
    std::shared_ptr<handset::ManualClock> clock;
    QString error; ///< then there is no handset

    /// The log's file.
    QString file() const { return directory->filePath(QLatin1StringView(logName)); }
};

/// Logs are built once and kept in the directory; one that is older than the handset's library is built again.
class CallLogs
{
public:
    explicit CallLogs(const QString &path)
        : directory(path)
    {}

    /// How the handset that wrote a log has ended.
    enum class After {
        Closing,
        Crash ///< killed with a call connected and calls in the write-ahead log
    };

    /// Builds the log of `calls` calls where it is missing; beyond a million, whole millions. Returns what went wrong.
    QString prepare(int calls) const;
    QString prepareCrashed(int calls) const;
    /// Removes the logs of `calls` calls.
    void remove(int calls) const;

    /// A copy of the log of `calls` calls; null where it cannot be made.
    std::shared_ptr<const QTemporaryDir> copy(int calls, After after = After::Closing) const;
    bool copyTo(const QTemporaryDir &where, int calls, After after = After::Closing) const;

    /// A handset on a copy. With `keep` the same copy serves every call of this; it goes on to hold what is recorded.
    BenchedHandset open(int calls, bool keep);

    /// The handset on the log in `where`.
    static BenchedHandset openIn(const std::shared_ptr<const QTemporaryDir> &where);

private:
    QString original(int calls, After after) const;

    QString directory;
    QHash<int, std::shared_ptr<const QTemporaryDir>> kept;
};

/// Records calls, says so, and is killed with one connected when its input ends or something comes from there; returns
/// only where that fails. In a process of its own, which startCrashing() starts.
int recordAndCrash(const QString &directory);
void startCrashing(QProcess &process, const QString &directory);

} // namespace bench
