// The rows that there are, by what they are about.
#pragma once

#include "bench/Comparison.h"

#include <QtCore/QString>

#include <vector>

namespace bench {

std::vector<Comparison> getterComparisons();
std::vector<Comparison> currencyListComparisons();
std::vector<Comparison> screenComparisons();
/// `directory` as of coldStartComparisons().
std::vector<Comparison> overModemComparisons(const QString &directory);
std::vector<Comparison> broadcastComparisons();
std::vector<Comparison> fanOutComparisons();
/// `directory` keeps the logs that are measured; they are built on first use.
std::vector<Comparison> coldStartComparisons(const QString &directory);
std::vector<Comparison> callLogComparisons(const QString &directory);
/// `largest` is the number of calls of the largest log.
std::vector<Comparison> reopeningComparisons(const QString &directory, int largest);
/// `directory` as before.
std::vector<Comparison> takeOverComparisons(const QString &directory);

} // namespace bench
