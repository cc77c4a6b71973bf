// Whether something answers at the session bus's address. Not a public header.
#pragma once

#include <chrono>
#include <functional>

/// D-Bus itself waits for ever for a bus that takes a connection and then says nothing, and the end of the process
/// waits for D-Bus. So the bus is asked before, on a connection that ends with the answer: true when it lets this user
/// in and gives a name within `limit`, or asks for another proof of who this is; and also where nobody is at any of the
/// addresses, which D-Bus finds out by itself. The addresses are those that D-Bus tries in their order, of unix, tcp and
/// nonce-tcp sockets: DBUS_SESSION_BUS_ADDRESS, else "bus" in XDG_RUNTIME_DIR. A name server, and a host that answers to
/// nothing, are waited for no longer than `limit`. False where D-Bus would run a program to get to a bus (unixexec,
/// autolaunch): nobody knows how long that takes. False as soon as `isGivenUp` is true, which is asked about twenty times
/// a second, and oftener where a name is looked up. To be called in a thread of its own.
bool busAnswers(std::chrono::milliseconds limit, const std::function<bool()> &isGivenUp);
