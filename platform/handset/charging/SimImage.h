// A SIM card as bytes to keep.
#pragma once

#include "charging/SimCard.h"

namespace handset::charging {

/// What of the card outlasts power-off, 150 bytes; the codes as hashes only:
///
///     0  "KSIM"
///     4  version: 1
///     5  EF_ACM, 5 records of 3 bytes, newest first
///    20  EF_ACMmax, 3 bytes
///    23  EF_PUCT, 5 bytes
///    28  update rules of EF_ACM, EF_ACMmax, EF_PUCT
///    31  PIN2: 1 on, 0 off; tries left, 0 to 3; tries of the PUK left, 0 to 10
///    34  PIN2: salt, 16 bytes, and PBKDF2-HMAC-SHA-256 hash, 32 bytes
///    82  PUK2: the same
///   130  the first 20 bytes of the SHA-256 hash of all before
///
/// Every version begins with the same five bytes and ends with the same check.
QByteArray saveCard(const SimCard &card);

inline constexpr qsizetype cardImageSize = 150;

/// Reads it back: PIN2 is not entered. InvalidArgument for bytes that are no card or are damaged, NotAvailable for
/// a card of a newer version; `card` then stays as it is, so that a new card given in is what is left.
int loadCard(QByteArrayView bytes, SimCard &card);

} // namespace handset::charging
