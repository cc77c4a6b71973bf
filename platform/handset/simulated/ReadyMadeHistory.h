// A dozen plausible calls, to have something to look at.
#pragma once

#include "handset/Call.h"

#include <QtCore/QList>

namespace handset::simulated {

/// Oldest first; the newest began half an hour before `nowWallMs` (since 1970-01-01 00:00 UTC). The calls are the
/// same at every time. For SimulatedHandset::addHistory().
QList<PastCall> readyMadeHistory(qint64 nowWallMs);

} // namespace handset::simulated
