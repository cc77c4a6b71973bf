// How the factory reaches the simulated handset.
#pragma once

#include "handset/Handset.h"

namespace handset::simulated {

/// Opens a simulated handset; `settings.clock` is not null. As handset::open().
Opened open(const Settings &settings);

} // namespace handset::simulated
