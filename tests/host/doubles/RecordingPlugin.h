// A plug-in that writes down what its host does with its screens.
#pragma once

#include <QtCore/QStringList>

/// Exported as recordedCalls(): "create callTime", "show", "emit", "emitted", "destroy callTime", "deleted"; for
/// its only row, which asks a question that blocks, "ask" and "yes", "no" or "given up". Never null; the caller may empty it.
using RecordedCalls = QStringList *();
