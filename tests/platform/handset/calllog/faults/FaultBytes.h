// One byte of a call log, or of its write-ahead log, is another.
#pragma once

#include <QtCore/QtGlobal>

namespace handset::faults {

/// Changes a byte at each of `count` positions of a grown log, its header, those of its pages and its keys among them, and opens it: what the telephone
/// tells then must be what it told before, or a notice or an error says that it is not. With `position` there only.
/// A figure of which docs/handset.md says that it cannot be known to be wrong may be another. Prints how many there were of
/// each, and each that was none of these; returns 0 when there is none.
int changeBytes(qsizetype count, quint32 seed, qint64 position, int value);
/// The same in the write-ahead log of one that was not closed. There the telephone tells all, or what it would tell had the
/// write-ahead log ended before what has changed.
int changeBytesAhead(qsizetype count, quint32 seed, qint64 position, int value);

} // namespace handset::faults
