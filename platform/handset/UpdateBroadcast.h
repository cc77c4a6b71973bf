// What processes tell each other of the handset.
#pragma once

#include <functional>

namespace handset {

/// Sends the message "/KAV/phone/RecentCall/Update" on the QCop channel "/KAV/phone", without data: the figures of
/// packet data have changed. It is queued; no subscriber runs in here.
void broadcastUpdate();

/// Sends the message "/KAV/handset/Changed" on the QCop channel "/KAV/handset": this process has changed something in
/// its ledger. Queued, too. The data are the number of the process.
void broadcastChange();
/// From a second after the first call on `listener` is called for each change of another process, and once at that moment
/// for those before; it takes the place of the one before. Null for nobody. Does nothing without an application object.
void followChanges(const std::function<void()> &listener);

} // namespace handset
