// A telephone whose figures never change and cost nothing to ask.
#pragma once

#include "CallTime.h"

namespace bench {

/// What the fixed telephone answers for every call time.
inline constexpr handset::CallTime fixedTime{5, 3, 7};

/// Makes it the telephone that the phone's libraries talk to, and gives the trace stream a place where nothing is
/// kept.
void useFixedTelephone();

} // namespace bench
