// The tables at the end.
#pragma once

#include "bench/Summary.h"

#include <QtCore/QString>

namespace bench {

/// Prints both tables and how many bars there are to meet and are met. `repetitions` is how often each side was timed.
void print(const Summary &summary, int repetitions);

/// The same as a page of the manual. False where the file cannot be written.
bool writePage(const QString &file, const Summary &summary, int repetitions);

} // namespace bench
