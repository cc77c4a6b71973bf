// How a channel message looks on the bus. Not a public header.
#pragma once

#include <QtCore/QByteArray>

#include <memory>

struct DBusMessage;

namespace QCopWire {

struct Unref {
    void operator()(DBusMessage *message) const;
};
using Message = std::unique_ptr<DBusMessage, Unref>;

/// What the bus is asked for by who receives. Neither path nor member: what comes under the interface and is no channel
/// message shall leave a trace.
inline constexpr char matchRule[] = "type='signal',interface='org.kav.QCop'";

/// A channel message, of at most what QCopBus::isSendable() returns. Null when there is no memory for it.
Message make(const QByteArray &channel, const QByteArray &message, const QByteArray &data);

/// Delivers a channel message to the subscribers in this process. Another message under the interface, or a call to the
/// object, is ignored with a line that says so; but not more than LineLimit allows, for who sends such messages must not
/// fill the disk of who keeps the errors. A signal that is sent to this process alone cannot be told from a broadcast
/// and counts as one.
void take(DBusMessage *message);

} // namespace QCopWire
