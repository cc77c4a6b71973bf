// Where the session bus is. Not a public header.
#pragma once

#include <QtCore/QByteArray>

namespace BusAddress {

/// What libraries take for a bus that is not there.
inline constexpr char none[] = "disabled:";

/// The addresses of the session bus, separated by ";": those that the process is told by its environment, else that of
/// the user's session, where D-Bus looks when it is told nothing. Empty when there is neither.
QByteArray ofSession();

/// From now on the libraries of this process find no session bus; ofSession() still tells where it is. Changes the
/// environment, and so wants a process without threads that read it.
void hideSession();

} // namespace BusAddress
