// Which operations of the handset fail.
#pragma once

#include "handset/Operations.h"

#include <array>

namespace host {

class Faults
{
public:
    /// What operation `index` (a row of handset::operationNames) answers instead of doing anything; 0: it works.
    int code(int index) const { return codes[static_cast<std::size_t>(index)]; }
    /// 0 lets it work again.
    void set(int index, int code) { codes[static_cast<std::size_t>(index)] = code; }
    void clear() { codes = {}; }

    friend bool operator==(const Faults &, const Faults &) = default;

private:
    std::array<int, handset::operationNames.size()> codes{};
};

} // namespace host
