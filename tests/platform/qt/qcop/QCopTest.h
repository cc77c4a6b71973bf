// What the tests of channels have in common.
#pragma once

constexpr char phone[] = "/KAV/phone";
constexpr int limitMs = 60000; ///< for another process to do something
constexpr int exitFailure = 1; ///< of kavqcop
