// A handset whose figures cost nothing to ask and do not change by themselves.
#pragma once

#include "handset/CallTime.h"

#include <QtCore/QByteArray>

namespace bench {

/// What the fixed handset answers for the dialed calls at first.
inline constexpr handset::CallTime fixedTime{5, 3, 7};

/// Makes it the handset that the phone's libraries talk to, and gives the trace stream a place where nothing is
/// kept.
void useFixedHandset();

/// From now on all its figures are others, about as long as those before. Settings and the date of expiration stay.
void changeFigures();

/// What the first of its data sessions is called from now on; "internet" at first.
void nameFirstSession(const QByteArray &name);

} // namespace bench
