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

/// Bytes per cycle that are put up with. The smallest block of the C library's heap takes 32 bytes, so that is what the
/// smallest leak makes of every cycle. Resident memory comes in pages that are never given back exactly: half a block.
/// The heap is exact but for a cache that grows once more; where blocks stay behind on purpose they break it up, and it
/// then hands out blocks that are up to 16 bytes larger.
inline constexpr double mostResident = 16;
inline constexpr double mostHeap = 1;
inline constexpr double mostHeapBrokenUp = 16;

/// Every screen whose name contains `filter`: `cycles` times created, shown, painted and destroyed, the first tenth of
/// them to warm up.
std::vector<Endured> endure(const std::string &filter, int cycles);

} // namespace bench
