// Whole numbers for products that do not fit 64 bits.
#pragma once

#ifndef __SIZEOF_INT128__
#include <boost/multiprecision/cpp_int.hpp>
#endif

namespace handset::charging {

/// Up to 2^128 - 1, 39 digits. A named type, as the language has none of this width, nor has a processor of 32 bits.
#ifdef __SIZEOF_INT128__
__extension__ using Wide = unsigned __int128;
#else
using Wide = boost::multiprecision::uint128_t;
#endif

} // namespace handset::charging
