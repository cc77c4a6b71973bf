// Who is calling.
#pragma once

#include <cstring>

#include <dlfcn.h>

inline constexpr const char *pluginFile = "libkavcallmeter.so";

/// Whether the code at `address` (__builtin_return_address(0) of the function that asks) belongs to a file whose name
/// contains `library`.
inline bool isCodeOf(const char *library, const void *address)
{
    Dl_info info;
    return dladdr(address, &info) != 0 && info.dli_fname && std::strstr(info.dli_fname, library);
}
