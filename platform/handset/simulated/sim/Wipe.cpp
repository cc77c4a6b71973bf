#include "Wipe.h"

#include <cstring>

namespace handset::sim {

void wipe(QByteArray &secret)
{
    if (!secret.isDetached()) {
        secret.clear();
        return;
    }
    auto &buffer = secret.data_ptr();
    ::explicit_bzero(buffer.data() - buffer.freeSpaceAtBegin(),
                     static_cast<std::size_t>(buffer.constAllocatedCapacity()));
    secret.resize(0);
}

} // namespace handset::sim
