#include "support/AllocationFailure.h"

#include <cstring>
#include <new>

#include <dlfcn.h>

namespace {

constexpr const char *pluginFile = "libkavcallmeter.so";

struct State {
    bool armed = false;
    int nth = 0;
    int count = 0;
};

State state;

// The result of an allocation is always looked at by whoever asked, so the return address is in its code.
bool isPlugin(const void *caller)
{
    Dl_info info;
    return dladdr(caller, &info) != 0 && info.dli_fname && std::strstr(info.dli_fname, pluginFile);
}

bool mustFail(const void *caller)
{
    if (!state.armed || !isPlugin(caller))
        return false;
    return ++state.count == state.nth;
}

} // namespace

AllocationFailure::AllocationFailure(int nth)
{
    state = {true, nth, 0};
}

AllocationFailure::~AllocationFailure()
{
    state.armed = false;
}

int AllocationFailure::count()
{
    return state.count;
}

bool AllocationFailure::happened()
{
    return state.nth > 0 && state.count >= state.nth;
}

// The standard allocation functions underneath, so that memory checkers see pairs of new and delete.

void *operator new(std::size_t size, const std::nothrow_t &) noexcept
{
    if (mustFail(__builtin_return_address(0)))
        return nullptr;
    try {
        return ::operator new(size);
    } catch (const std::bad_alloc &) {
        return nullptr;
    }
}

void *operator new[](std::size_t size, const std::nothrow_t &) noexcept
{
    if (mustFail(__builtin_return_address(0)))
        return nullptr;
    try {
        return ::operator new[](size);
    } catch (const std::bad_alloc &) {
        return nullptr;
    }
}
