// The 7-bit default alphabet of SIM and short messages (3GPP TS 23.038, 6.2.1), one byte a character.
#pragma once

#include <QtCore/QChar>

#include <optional>

namespace handset::charging {

/// The byte, 0 to 127, that stands for `character`; nothing when the alphabet does not have it. Characters that
/// need the escape to the extension table (the euro sign, brackets) are not in it.
std::optional<quint8> toDefaultAlphabet(QChar character);

/// A byte that is no character becomes '?', the escape a blank, so that what is read can be stored again.
QChar fromDefaultAlphabet(quint8 byte);

} // namespace handset::charging
