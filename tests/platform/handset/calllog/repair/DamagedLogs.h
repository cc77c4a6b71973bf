// What the tests of damaged call logs share.
#pragma once

#include "handset/HandsetTestKit.h"

namespace handset::test {

constexpr qint64 pageSize = 4096;

inline const QString wasReplaced =
    QStringLiteral("The call log is damaged; it was kept as \"calllog-kept-1.db\" and a new one "
                   "was begun with the calls ");

/// Of all kinds and directions, one in eleven not connected.
inline QList<PastCall> manyCalls(int count)
{
    QList<PastCall> calls;
    for (int i = 0; i < count; ++i)
        calls.append({i % 7 == 0 ? CallKind::Data : CallKind::Voice,
                      i % 7 != 0 && i % 2 == 0 ? CallDirection::Answered : CallDirection::Dialed,
                      QString::number(100000 + i), i * minute, i % 11 == 0 ? 0 : i * 1000 + 7});
    return calls;
}

} // namespace handset::test
