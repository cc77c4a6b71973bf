// What the telephone tells the screens of all processes.
#pragma once

namespace handset {

/// Sends the message "/KAV/phone/RecentCall/Update" on the QCop channel "/KAV/phone", without data: the figures of
/// packet data have changed. It is queued; no subscriber runs in here.
void broadcastUpdate();

} // namespace handset
