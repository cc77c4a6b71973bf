// The single-shot timers of the screens, under a clock that a test moves by hand.
//
// A program that links kav_screen_clock and exports its symbols stands between the plug-in and
// QTimer::singleShot(). What is to be called on a screen later waits until advance() gets there. Every other timer
// goes to Qt.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>

namespace ScreenClock {

struct Timer {
    qint64 milliseconds; ///< from now
    QByteArray member;   ///< as it was given, "1slotClose()"

    friend bool operator==(const Timer &, const Timer &) = default;
};

/// The timers of screens that still live, in the order of their coming.
QList<Timer> pending();
/// Lets time pass, and makes the calls that come due meanwhile, in their order.
void advance(int milliseconds);
/// Forgets all timers. Every test function calls this first.
void restart();

} // namespace ScreenClock
