// Puts a new call log in the place of one that cannot be used.
#pragma once

#include "Finding.h"
#include "StateDirectory.h"

namespace handset::calllog {

struct Replacement {
    QString error;  ///< part of a sentence: why there is no new log; empty when there is one
    QString notice; ///< a sentence: what has become of the old one; empty for nothing
};

/// For every verdict but Usable and Blocked. What is there is kept under a new name, and what can be read of a damaged
/// log goes into the new one. Whenever this is interrupted, finishReplacement() makes up for it on the next start.
Replacement replace(StateDirectory &directory, Verdict verdict);

/// To be called before anything else in a directory.
void finishReplacement(StateDirectory &directory);

} // namespace handset::calllog
