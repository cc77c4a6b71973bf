// Whether something answers at the session bus's address. Not a public header.
#pragma once

#include <chrono>
#include <functional>

/// D-Bus itself waits for ever for a bus that takes a connection and then says nothing, and the end of the process
/// waits for D-Bus. So the bus is asked before: true when it says anything within `limit`, and also where nobody can be
/// asked (no address in the environment, none of a socket, nobody there), which D-Bus finds out by itself. False as
/// soon as `isGivenUp` is true. To be called in a thread of its own.
bool busAnswers(std::chrono::milliseconds limit, const std::function<bool()> &isGivenUp);
