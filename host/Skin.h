// The colours of the window: light or dark.
#pragma once

class QString;

namespace host {

/// Has everything that is shown from now on be "light" or "dark". An empty `name` leaves the colours to the desktop.
/// Before the first widget: the phone's screens take the skin that goes with the application's palette.
void chooseSkin(const QString &name);

} // namespace host
