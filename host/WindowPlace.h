// Where a window was on the desk, and how large, from one start to the next.
#pragma once

class QWidget;

namespace host {

/// Puts the window where it was when keepPlace() was called last; leaves it as it is where that was never, or cannot be
/// read. Before it is shown.
void takePlace(QWidget &window);
/// Keeps place, size and whether it fills the screen, in the file kavcallmeter/window of the user's folder for settings.
/// What cannot be written is not kept.
void keepPlace(const QWidget &window);

} // namespace host
