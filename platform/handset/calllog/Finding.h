// What is found in the place of the call log.
#pragma once

#include "calllog/Database.h"

#include <QtCore/QString>

namespace handset::calllog {

/// In the state directory.
inline constexpr auto databaseName = "calllog.db";

/// Under this name a new log keeps the sentence about what it replaced, until that has been told. Empty when it has.
inline constexpr auto keptNotice = "notice";

enum class Verdict {
    Usable,
    Missing, ///< never made yet
    Damaged, ///< a call log of ours that cannot be trusted
    Lost,    ///< an empty file, or nothing but what SQLite keeps beside a database in use
    Foreign, ///< something else
    Newer,   ///< a call log of a later version
    Older,   ///< a call log of an earlier version
    Blocked  ///< nothing is known to be wrong with it, but it cannot be used now
};

struct Finding {
    Verdict verdict = Verdict::Usable;
    QString reason; ///< part of a sentence; empty where the verdict says it all
};

/// Blocked, for the reason of an errno.
Finding blocked(int error);
/// The same, of another file of the state directory.
Finding blocked(int error, const QString &file);
/// A reason that names a file.
QString inFile(const QString &file, const QString &reason);

/// What SQLite's primary result code says about a database; `reason` is SQLite's. Damaged is only what SQLite finds to
/// be no sound database: what cannot be read or written now may be one, and whether it is ours its tables say.
Finding failure(int code, const QString &reason);
/// The same, of the last error of a database.
Finding failure(const Database &database);
/// Whether an error of a database that is salvaged is damage: there a statement that does not fit the tables is, too.
bool isDamage(const sqlite::Failure &error);
/// What a line of SQLite's own check ("ok", or what is wrong) says.
Finding judgeCheck(const QString &line);

/// Words for a finding that has no reason of its own, and the reason of any other.
QString explain(const Finding &finding);

} // namespace handset::calllog
