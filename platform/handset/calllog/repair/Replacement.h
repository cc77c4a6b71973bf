// Puts a new call log in the place of one that cannot be used.
#pragma once

#include "calllog/Finding.h"
#include "calllog/StateDirectory.h"
#include "calllog/repair/Progress.h"

#include <optional>

namespace handset::calllog {

/// For every verdict but Usable and Blocked. What is there is kept under a new name, and what can be read of a damaged
/// log goes into the new one, with a notice. What is foreign or newer only by its header is taken for damaged. Nothing
/// has changed when no new log can be made. Whenever this is interrupted, finishReplacement() makes up for it on the next
/// start. Returns why there is no new log, part of a sentence; an empty text when there is one.
QString replace(StateDirectory &directory, Verdict verdict, const ProgressListener &progress);

/// Whether an interrupted replacement has left files.
bool hasRemains(const StateDirectory &directory);
/// To be called before anything else of a replacement. Blocked when that must be left alone for now.
Finding finishReplacement(StateDirectory &directory);

/// What has not been told yet of the log that this one replaced; empty for nothing, none where it cannot be read. It is
/// told again until whoever tells it empties it.
std::optional<QString> untoldNotice(Database &database);

} // namespace handset::calllog
