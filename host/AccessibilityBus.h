// Where the accessibility bus of an X display is.
#pragma once

#include <QtCore/QByteArray>

namespace host {

/// The address that the root window of the application's X display announces for the accessibility bus; empty where it
/// announces none, and where the application shows its windows elsewhere. Needs the application object.
QByteArray announcedAccessibilityBus();

} // namespace host
