// Takes secrets out of memory.
#pragma once

#include <QtCore/QByteArray>

namespace handset::sim {

/// Overwrites the whole buffer behind `secret`, the part that it no longer uses too, in a way that the compiler
/// cannot leave out, and empties it. A buffer that other QByteArrays share, or that is not on the heap, is theirs:
/// `secret` is emptied and the buffer left to them. So never copy a secret.
void wipe(QByteArray &secret);

} // namespace handset::sim
