// Call logs that are too large to be written call by call.
#pragma once

#include <QtCore/QString>

namespace bench {

/// Makes a log in `log`, a copy of `original`, of `times` as many calls: those of `original` again and again, each time
/// later, and the totals that go with them. Both are closed. Returns what went wrong.
QString growLog(const QString &log, const QString &original, int times);

} // namespace bench
