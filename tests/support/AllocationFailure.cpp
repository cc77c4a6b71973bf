#include "AllocationFailure.h"

#include "CalledFrom.h"

#include <new>

namespace {

struct State {
    const char *library = nullptr; // armed when set
    int nth = 0;
    int count = 0;
};

State state;

bool mustFail(const void *caller)
{
    if (!state.library || !isCodeOf(state.library, caller))
        return false;
    return ++state.count == state.nth;
}

} // namespace

AllocationFailure::AllocationFailure(int nth)
{
    state = {pluginFile, nth, 0};
}

AllocationFailure::~AllocationFailure()
{
    state.library = nullptr;
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
