// Whole numbers for products that do not fit 64 bits.
#pragma once

namespace handset::charging {

/// Up to 2^128 - 1, 39 digits. A named type, as the language has none of this width.
__extension__ using Wide = unsigned __int128;

} // namespace handset::charging
