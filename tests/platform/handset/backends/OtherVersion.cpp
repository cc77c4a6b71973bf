// A backend that was built for another version of the interfaces, and would not know what it is given.
#include <cstdlib>

extern "C" __attribute__((visibility("default"))) int kavHandsetInterfaceVersion()
{
    return 0;
}

extern "C" __attribute__((visibility("default"))) void kavOpenHandset(const void *, void *)
{
    std::abort();
}
