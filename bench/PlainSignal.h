// A signal of Qt D-Bus as a program sends it that has no channels.
#pragma once

namespace bench {

inline constexpr auto plainPath = "/bench/Plain";
inline constexpr auto plainInterface = "bench.Plain";
inline constexpr auto plainMember = "Update"; ///< with one argument, ay

} // namespace bench
