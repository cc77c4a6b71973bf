#include "QCopOutlet.h"

#include "QCopSubscribers.h"
#include "QCopWire.h"

#include <dbus/dbus.h>

#include <array>
#include <limits>

namespace {

constexpr qsizetype mostKept = 4096; // bytes of a message that is kept to be sent again

QByteArray bytesOf(const char *text)
{
    return QByteArray(text ? text : "");
}

bool isChannelMessage(DBusMessage *message)
{
    return dbus_message_is_signal(message, QCopWire::interfaceName, QCopWire::memberName) &&
           dbus_message_has_path(message, QCopWire::objectPath) &&
           dbus_message_has_signature(message, QCopWire::argumentTypes);
}

// The three arrays of a channel message.
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

// What somebody sends to this very connection. To a call libdbus then answers that there is nothing to call.
DBusHandlerResult take(DBusConnection *, DBusMessage *message, void *)
{
    const bool isCall = dbus_message_get_type(message) == DBUS_MESSAGE_TYPE_METHOD_CALL;
    if (isChannelMessage(message))
        deliver(message);
    else if (bytesOf(dbus_message_get_interface(message)) == QCopWire::interfaceName ||
             (isCall && dbus_message_has_path(message, QCopWire::objectPath)))
        QCopWire::traceForeign(
            {bytesOf(dbus_message_get_interface(message)), bytesOf(dbus_message_get_member(message)),
             bytesOf(dbus_message_get_signature(message)), bytesOf(dbus_message_get_path(message)),
             bytesOf(dbus_message_get_sender(message))});
    return DBUS_HANDLER_RESULT_NOT_YET_HANDLED;
}

bool append(DBusMessageIter *arguments, const QByteArray &bytes)
{
    DBusMessageIter array;
    const char *start = bytes.constData();
    return dbus_message_iter_open_container(arguments, DBUS_TYPE_ARRAY, DBUS_TYPE_BYTE_AS_STRING, &array) &&
           dbus_message_iter_append_fixed_array(&array, DBUS_TYPE_BYTE, &start, static_cast<int>(bytes.size())) &&
           dbus_message_iter_close_container(arguments, &array);
}

int descriptorOf(DBusConnection *connection)
{
    int descriptor = -1;
    dbus_connection_get_unix_fd(connection, &descriptor);
    return descriptor;
}

} // namespace

void QCopOutlet::Closer::operator()(DBusConnection *opened) const
{
    dbus_connection_close(opened);
    dbus_connection_unref(opened);
}

void QCopOutlet::Unref::operator()(DBusMessage *message) const
{
    dbus_message_unref(message);
}

QCopOutlet::Connection QCopOutlet::connectToBus()
{
    dbus_threads_init_default();
    Connection opened(dbus_bus_get_private(DBUS_BUS_SESSION, nullptr));
    if (opened)
        dbus_connection_set_exit_on_disconnect(opened.get(), FALSE);
    return opened;
}

QCopOutlet::QCopOutlet(Connection opened)
    : connection(std::move(opened))
    , readable(descriptorOf(connection.get()), QSocketNotifier::Read)
    , writable(descriptorOf(connection.get()), QSocketNotifier::Write)
{
    dbus_connection_add_filter(connection.get(), &take, nullptr, nullptr);
    connect(&readable, &QSocketNotifier::activated, this, &QCopOutlet::exchange);
    connect(&writable, &QSocketNotifier::activated, this, &QCopOutlet::exchange);
    watch();
}

QCopOutlet::~QCopOutlet()
{
    // Before the socket is closed.
    readable.setEnabled(false);
    writable.setEnabled(false);
}

QString QCopOutlet::name() const
{
    return QString::fromLatin1(dbus_bus_get_unique_name(connection.get()));
}

bool QCopOutlet::isConnected() const
{
    return dbus_connection_get_is_connected(connection.get());
}

bool QCopOutlet::send(const QByteArray &channel, const QByteArray &message, const QByteArray &data)
{
    const Message sent = messageOf(channel, message, data);
    const bool isQueued = sent && isConnected() && dbus_connection_send(connection.get(), sent.get(), nullptr);
    watch();
    return isQueued && isConnected();
}

bool QCopOutlet::sync(std::chrono::milliseconds limit)
{
    const Message question(
        dbus_message_new_method_call(DBUS_SERVICE_DBUS, DBUS_PATH_DBUS, DBUS_INTERFACE_DBUS, "GetId"));
    // The bus handles the messages of a connection in their order: its answer says that all before it are handled.
    const Message answer(question ? dbus_connection_send_with_reply_and_block(
                                        connection.get(), question.get(), static_cast<int>(limit.count()), nullptr)
                                  : nullptr);
    exchange(); // what came before the answer
    return answer != nullptr;
}

void QCopOutlet::exchange()
{
    dbus_connection_read_write(connection.get(), 0);
    while (dbus_connection_dispatch(connection.get()) == DBUS_DISPATCH_DATA_REMAINS)
        ;
    watch();
}

QCopOutlet::Message QCopOutlet::messageOf(const QByteArray &channel, const QByteArray &message,
                                          const QByteArray &data)
{
    if (last && channel == lastChannel && message == lastMessage && data == lastData)
        return Message(dbus_message_copy(last.get()));
    Message made(dbus_message_new_signal(QCopWire::objectPath, QCopWire::interfaceName, QCopWire::memberName));
    DBusMessageIter arguments;
    if (!made)
        return made;
    dbus_message_iter_init_append(made.get(), &arguments);
    if (!append(&arguments, channel) || !append(&arguments, message) || !append(&arguments, data))
        return Message();
    if (channel.size() + message.size() + data.size() > mostKept)
        return made;
    last = std::move(made);
    lastChannel = channel;
    lastMessage = message;
    lastData = data;
    return Message(dbus_message_copy(last.get()));
}

void QCopOutlet::watch()
{
    const bool connected = isConnected();
    readable.setEnabled(connected);
    writable.setEnabled(connected && dbus_connection_has_messages_to_send(connection.get()));
    if (!connected && !isLost) {
        isLost = true;
        QMetaObject::invokeMethod(this, &QCopOutlet::lost, Qt::QueuedConnection);
    }
}
