// The entry points of the plug-in, libkavcallmeter.so.1: a pair for each screen that a menu leads to. A host links the
// library, or loads it and looks the functions up by their names: they are C functions.
//
// Every screen is a ZKbMainWidget ("toolkit/ZKbMainWidget.h"), whose first base is QWidget; its own class is the
// plug-in's, and a host takes the pointer for one to a QWidget, as CreateScreen and DestroyScreen below say. A screen is
// made filled and not yet shown, and the caller owns it. `parent` is the display that it lies in, null for a window of its
// own; `name` becomes its object name and may be null. Null is returned where there is no memory for it.
//
// By its signal closeWidget() a screen says that the user leaves it, and does nothing else: the caller destroys it, with the
// function of its pair, when that emission is over. Null is ignored by all of them.
#pragma once

class QWidget;
class PHONE_UI_RecentCallCostsView;
class PHONE_UI_RecentCallDataTimesView;
class PHONE_UI_RecentCallDataVolumesView;
class PHONE_UI_RecentCallTimesView;

extern "C" {

/// The screen "Call Times".
PHONE_UI_RecentCallTimesView *create_callTime(QWidget *parent, const char *name);
/// Deletes the screen.
void destroy_callTime(PHONE_UI_RecentCallTimesView *screen);

/// The screen "Call Costs".
PHONE_UI_RecentCallCostsView *create_callCost(QWidget *parent, const char *name);
/// Deletes the screen.
void destroy_callCost(PHONE_UI_RecentCallCostsView *screen);

/// The screen "Data Times".
PHONE_UI_RecentCallDataTimesView *create_dataTime(QWidget *parent, const char *name);
/// Deletes the screen.
void destroy_dataTime(PHONE_UI_RecentCallDataTimesView *screen);

/// The screen "Data Volumes".
PHONE_UI_RecentCallDataVolumesView *create_dataVolume(QWidget *parent, const char *name);
/// Closes the screen and then deletes it. Where the screen is a window of its own, and the last one, an application ends
/// with it (QGuiApplication::quitOnLastWindowClosed).
void destroy_dataVolume(PHONE_UI_RecentCallDataVolumesView *screen);

} // extern "C"

namespace callmeter {

/// What a looked-up create function is called as.
using CreateScreen = QWidget *(QWidget *parent, const char *name);
/// What a looked-up destroy function is called as.
using DestroyScreen = void(QWidget *screen);

} // namespace callmeter
