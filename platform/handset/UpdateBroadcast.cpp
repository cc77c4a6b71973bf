#include "UpdateBroadcast.h"

#include "QCopChannel.h"

namespace handset {

void broadcastUpdate()
{
    QCopChannel::send("/KAV/phone", "/KAV/phone/RecentCall/Update");
}

} // namespace handset
