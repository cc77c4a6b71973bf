// A plug-in that writes down what its host does with its screens.
#pragma once

#include <QtCore/QStringList>

/// Exported as recordedCalls(): "create callTime", "show", "emit", "emitted", "destroy". The caller may empty it.
using RecordedCalls = QStringList &();
