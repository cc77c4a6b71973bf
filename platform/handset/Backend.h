// What a backend in a library of its own exports, so that the factory can open it by name or by its file's path.
#pragma once

#include "handset/Handset.h"

namespace handset {

/// Changes with every change of the interfaces in this folder: a library that was built for others is not used.
inline constexpr int interfaceVersion = 4;

/// Opens a handset, as handset::open(); the clock is not null. Throws nothing.
using OpenBackend = void (*)(const Settings &settings, Opened &opened);

/// Whether what the backend needs is there now: a modem. Waits for the answer, `longestMs` at most. Throws nothing.
using IsPresent = bool (*)(int longestMs);
/// As handset::awaitModem(), of this backend's daemon alone. Throws nothing.
using Await = void (*)(const std::function<void()> &here, Awaited &awaited);

} // namespace handset

/// To stand once in a backend's library, outside every namespace: `open` is an
/// `handset::Opened open(const handset::Settings &)`.
#define KAV_HANDSET_BACKEND(open)                                                                                 \
    extern "C" Q_DECL_EXPORT int kavHandsetInterfaceVersion()                                                     \
    {                                                                                                             \
        return handset::interfaceVersion;                                                                         \
    }                                                                                                             \
    extern "C" Q_DECL_EXPORT void kavOpenHandset(const handset::Settings &settings, handset::Opened &opened)      \
    {                                                                                                             \
        opened = open(settings);                                                                                  \
    }

/// May stand beside it: `isPresent` is a `bool isPresent(int longestMs)`, `await` a
/// `handset::Awaited await(const std::function<void()> &here)`, whose watch may come with an
/// error. A backend without it is used only by its name.
#define KAV_HANDSET_PRESENCE(isPresent, await)                                                                    \
    extern "C" Q_DECL_EXPORT bool kavHandsetIsPresent(int longestMs)                                              \
    {                                                                                                             \
        return isPresent(longestMs);                                                                              \
    }                                                                                                             \
    extern "C" Q_DECL_EXPORT void kavHandsetAwait(const std::function<void()> &here, handset::Awaited &awaited)   \
    {                                                                                                             \
        awaited = await(here);                                                                                    \
    }
