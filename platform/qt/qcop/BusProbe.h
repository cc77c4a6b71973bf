// Whether something answers at the session bus's address. Not a public header.
#pragma once

#include <chrono>
#include <functional>

/// D-Bus itself waits for ever for a bus that takes a connection and then says nothing, and the end of the process
/// waits for D-Bus. So the bus is asked before: true when it says anything within `limit`, and also where nobody can be
/// asked (no address of a socket, or nobody there), which D-Bus finds out by itself. The addresses are those that D-Bus
/// tries: DBUS_SESSION_BUS_ADDRESS, else "bus" in XDG_RUNTIME_DIR. False as soon as `isGivenUp` is true, which is asked
/// about twenty times a second. To be called in a thread of its own.
bool busAnswers(std::chrono::milliseconds limit, const std::function<bool()> &isGivenUp);
