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
};

/// The smallest block of the C library's heap takes 32 bytes: what leaks one per cycle grows by 32 bytes per cycle.
/// Of the heap, no more than a thirty-second of such a block is put up with, room for a cache that grows once more;
/// of resident memory, which comes in pages and is never given back exactly, half a block.
inline constexpr double mostHeapPerCycle = 1;
inline constexpr double mostResidentPerCycle = 16;

/// Every screen whose name contains `filter`: `cycles` times created, shown, painted and destroyed, the first tenth of
/// them to warm up.
std::vector<Endured> endure(const std::string &filter, int cycles);

} // namespace bench
