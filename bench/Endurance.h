// Opening and destroying screens over and over: does the process grow?
#pragma once

#include <string>
#include <vector>

namespace bench {

struct Memory {
    long long heap = 0;     ///< bytes that are allocated
    long long resident = 0; ///< bytes of the process that are in memory
};

struct Endured {
    std::string screen;
    int warmUp = 0; ///< cycles before the first reading
    int cycles = 0; ///< cycles between the readings
    Memory before;
    Memory after;
    double leftBehind = 0; ///< bytes that every cycle is meant to leave behind
};

/// Bytes per cycle that are put up with: half a block, as the smallest of the C library's heap takes 32 bytes, and that
/// is what the smallest leak makes of every cycle. Less is no leak: the texts that are kept are others at every reading,
/// and resident memory comes in pages that are never given back exactly.
inline constexpr double mostGrowth = 16;
/// And so many more where blocks stay behind on purpose: they break the heap up, which then hands out larger ones.
inline constexpr double mostBrokenUp = 16;

/// Every screen whose name contains `filter`: `cycles` times created, shown, painted and destroyed, each time with other
/// figures, the first tenth of them to warm up.
std::vector<Endured> endure(const std::string &filter, int cycles);

} // namespace bench
