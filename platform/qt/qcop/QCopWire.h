// How a channel message looks on the bus. Not a public header.
#pragma once

#include <QtCore/QByteArray>

namespace QCopWire {

inline constexpr char objectPath[] = "/org/kav/QCop";
inline constexpr char interfaceName[] = "org.kav.QCop";
inline constexpr char memberName[] = "Message";
inline constexpr char argumentTypes[] = "ayayay"; ///< channel, message, data

/// What a message on the bus says of itself.
struct Heading {
    QByteArray interface;
    QByteArray member;
    QByteArray signature;
    QByteArray path;
    QByteArray sender;
};

/// A line that a message of this heading is no channel message and is ignored, if there may be one more: who sends such
/// messages must not fill the disk of who keeps the errors.
void traceForeign(const Heading &heading);

} // namespace QCopWire
