#include "qt/qcop/QCopWire.h"

#include "qt/qcop/LineLimit.h"
#include "qt/qcop/QCopSubscribers.h"

#include <dbus/dbus.h>

#include <array>

namespace QCopWire {

namespace {

constexpr char objectPath[] = "/org/kav/QCop";
constexpr char interfaceName[] = "org.kav.QCop";
constexpr char memberName[] = "Message";
constexpr char argumentTypes[] = "ayayay"; // channel, message, data

bool append(DBusMessageIter *arguments, const QByteArray &bytes)
{
    DBusMessageIter array;
    const char *start = bytes.constData();
    return dbus_message_iter_open_container(arguments, DBUS_TYPE_ARRAY, DBUS_TYPE_BYTE_AS_STRING, &array) &&
           dbus_message_iter_append_fixed_array(&array, DBUS_TYPE_BYTE, &start, static_cast<int>(bytes.size())) &&
           dbus_message_iter_close_container(arguments, &array);
}

bool isChannelMessage(DBusMessage *message)
{
    return dbus_message_is_signal(message, interfaceName, memberName) &&
           dbus_message_has_path(message, objectPath) && dbus_message_has_signature(message, argumentTypes);
}

void deliver(DBusMessage *message)
{
    std::array<QByteArray, 3> parts;
    DBusMessageIter part;
    dbus_message_iter_init(message, &part);
    for (QByteArray &bytes : parts) {
        DBusMessageIter array;
        const char *start = nullptr;
        int size = 0;
        dbus_message_iter_recurse(&part, &array);
        dbus_message_iter_get_fixed_array(&array, &start, &size);
        bytes = QByteArray(start, size);
        dbus_message_iter_next(&part);
    }
    QCopSubscribers::deliver(parts[0], parts[1], parts[2]);
}

bool isForChannels(DBusMessage *message)
{
    return dbus_message_has_interface(message, interfaceName) ||
           (dbus_message_get_type(message) == DBUS_MESSAGE_TYPE_METHOD_CALL &&
            dbus_message_has_path(message, objectPath));
}

// A path may have megabytes.
QByteArray shortened(const char *text)
{
    constexpr qsizetype most = 100;
    const QByteArray whole(text);
    return whole.size() > most ? whole.left(most) + "..." : whole;
}

void traceForeign(DBusMessage *message)
{
    static LineLimit lines;
    const std::optional<qint64> unsaid = lines.take(std::chrono::steady_clock::now());
    if (!unsaid)
        return;
    if (*unsaid > 0)
        qWarning("QCopChannel: %lld more were ignored since without a line", static_cast<long long>(*unsaid));
    qWarning("QCopChannel: \"%s.%s\" with \"%s\" at \"%s\" from %s is no channel message and is ignored",
             shortened(dbus_message_get_interface(message)).constData(),
             shortened(dbus_message_get_member(message)).constData(),
             shortened(dbus_message_get_signature(message)).constData(),
             shortened(dbus_message_get_path(message)).constData(),
             shortened(dbus_message_get_sender(message)).constData());
}

} // namespace

void Unref::operator()(DBusMessage *message) const
{
    dbus_message_unref(message);
}

Message make(const QByteArray &channel, const QByteArray &message, const QByteArray &data)
{
    Message made(dbus_message_new_signal(objectPath, interfaceName, memberName));
    DBusMessageIter arguments;
    if (!made)
        return made;
    dbus_message_iter_init_append(made.get(), &arguments);
    const bool isWhole = append(&arguments, channel) && append(&arguments, message) && append(&arguments, data);
    return isWhole ? std::move(made) : Message();
}

void take(DBusMessage *message)
{
    if (isChannelMessage(message))
        deliver(message);
    else if (isForChannels(message))
        traceForeign(message);
}

} // namespace QCopWire
