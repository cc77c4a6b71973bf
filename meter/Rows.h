// The single calls and sessions, and what they come to by day, month or billing cycle.
#pragma once

#include "calllog/Listing.h"
#include "meter/Table.h"

#include <QtCore/QDate>

namespace meter {

enum class By { Day, Month, Cycle };

/// The first day of the day, month or billing cycle that has `day`; a cycle begins on day 1 to 28 of a month.
QDate beginOf(const QDate &day, By by, int cycleDay);

Table tableOf(const QList<handset::calllog::ListedCall> &calls);
Table tableOf(const QList<handset::calllog::ListedSession> &sessions);
/// A row for each period in which something began, in the local time. What ran beyond the end of one counts where it began.
Table totalsOf(const QList<handset::calllog::ListedCall> &calls,
               const QList<handset::calllog::ListedSession> &sessions, By by, int cycleDay);

} // namespace meter
