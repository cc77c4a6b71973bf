#include "qt/qcop/QCopConnection.h"

#include <QtCore/QList>
#include <QtCore/QSocketNotifier>

#include <dbus/dbus.h>

#include <limits>

#include <poll.h>

#include <algorithm>

namespace {

constexpr qsizetype mostKept = 4096; // bytes of a message that is kept to be sent again

QSocketNotifier *notifierOf(DBusWatch *watch)
{
    return static_cast<QSocketNotifier *>(dbus_watch_get_data(watch));
}

void toggle(DBusWatch *watch, void *)
{
    notifierOf(watch)->setEnabled(dbus_watch_get_enabled(watch));
}

// Maybe from its own signal; what it watches is closed next.
void unwatch(DBusWatch *watch, void *)
{
    notifierOf(watch)->setEnabled(false);
    notifierOf(watch)->deleteLater();
}

} // namespace

void QCopConnection::Closer::operator()(DBusConnection *opened) const
{
    dbus_connection_close(opened);
    dbus_connection_unref(opened);
}

QCopConnection::Opened QCopConnection::open(const QByteArray &addresses)
{
    for (const QByteArray &address : addresses.split(';')) {
        if (address.startsWith("unixexec:") || address.startsWith("autolaunch:"))
            break; // nobody knows how long a program takes
        if (Opened opened{dbus_connection_open_private(address.constData(), nullptr)})
            return opened;
    }
    return {};
}

QCopConnection::QCopConnection(Opened opened)
    : connection(std::move(opened))
{
    const auto added = [](DBusWatch *watch, void *self) -> dbus_bool_t {
        static_cast<QCopConnection *>(self)->watch(watch);
        return TRUE;
    };
    const auto dispatchable = [](DBusConnection *, DBusDispatchStatus status, void *self) {
        if (status == DBUS_DISPATCH_DATA_REMAINS)
            QMetaObject::invokeMethod(static_cast<QCopConnection *>(self), &QCopConnection::dispatch,
                                      Qt::QueuedConnection);
    };
    // To a call libdbus then answers that there is nothing to call.
    const auto arrived = [](DBusConnection *, DBusMessage *message, void *self) {
        static_cast<QCopConnection *>(self)->take(message);
        return DBUS_HANDLER_RESULT_NOT_YET_HANDLED;
    };
    dbus_connection_set_watch_functions(connection.get(), added, unwatch, toggle, this, nullptr);
    dbus_connection_set_dispatch_status_function(connection.get(), dispatchable, this, nullptr);
    dbus_connection_add_filter(connection.get(), arrived, this, nullptr);
    needed = ask("Hello");
}

QCopConnection::~QCopConnection()
{
    dbus_connection_set_dispatch_status_function(connection.get(), nullptr, nullptr, nullptr);
}

void QCopConnection::watch(DBusWatch *watch)
{
    const bool reads = dbus_watch_get_flags(watch) & DBUS_WATCH_READABLE;
    auto *notifier = new QSocketNotifier(dbus_watch_get_unix_fd(watch),
                                         reads ? QSocketNotifier::Read : QSocketNotifier::Write, this);
    dbus_watch_set_data(watch, notifier, nullptr);
    toggle(watch, nullptr);
    connect(notifier, &QSocketNotifier::activated, this,
            [watch, reads] { dbus_watch_handle(watch, reads ? DBUS_WATCH_READABLE : DBUS_WATCH_WRITABLE); });
}

void QCopConnection::subscribe()
{
    needed = ask("AddMatch", QCopWire::matchRule);
}

bool QCopConnection::send(const QByteArray &channel, const QByteArray &message, const QByteArray &data)
{
    const QCopWire::Message sent = isLoggedIn() ? messageOf(channel, message, data) : nullptr;
    return sent && dbus_connection_send(connection.get(), sent.get(), nullptr) &&
           dbus_connection_get_is_connected(connection.get());
}

// The bus handles the messages of a connection in their order: its answer says that all before it are handled.
bool QCopConnection::sync(std::chrono::milliseconds patience)
{
    if (!isLoggedIn())
        return false;
    const quint32 question = ask("GetId");
    QDeadlineTimer deadline(patience);
    exchange(QDeadlineTimer(0));
    while (answered < question && !over && !deadline.hasExpired()) {
        if (waitForRoom(deadline))
            deadline = QDeadlineTimer(patience);
        exchange(QDeadlineTimer(0));
    }
    return answered >= question;
}

bool QCopConnection::waitUntilReady(QDeadlineTimer deadline)
{
    dispatch();
    while (!isReady() && !over && !deadline.hasExpired())
        exchange(deadline);
    return isReady();
}

// The number of the question; one that is never answered where there is no memory for it.
quint32 QCopConnection::ask(const char *method, const char *argument)
{
    dbus_uint32_t number = std::numeric_limits<dbus_uint32_t>::max();
    const QCopWire::Message question(
        dbus_message_new_method_call(DBUS_SERVICE_DBUS, DBUS_PATH_DBUS, DBUS_INTERFACE_DBUS, method));
    if (question &&
        (!argument || dbus_message_append_args(question.get(), DBUS_TYPE_STRING, &argument, DBUS_TYPE_INVALID)))
        dbus_connection_send(connection.get(), question.get(), &number);
    return number;
}

// Waits for word from the bus, or until it has room for some of what is queued for it. Whether it has.
bool QCopConnection::waitForRoom(QDeadlineTimer deadline) const
{
    const bool hasWords = dbus_connection_has_messages_to_send(connection.get());
    pollfd bus{-1, static_cast<short>(hasWords ? POLLIN | POLLOUT : POLLIN), 0};
    dbus_connection_get_unix_fd(connection.get(), &bus.fd);
    return ::poll(&bus, 1, static_cast<int>(deadline.remainingTime())) > 0 && (bus.revents & POLLOUT);
}

void QCopConnection::exchange(QDeadlineTimer deadline)
{
    dbus_connection_read_write(connection.get(), static_cast<int>(deadline.remainingTime()));
    dispatch();
}

void QCopConnection::dispatch()
{
    while (dbus_connection_dispatch(connection.get()) == DBUS_DISPATCH_DATA_REMAINS)
        ;
}

void QCopConnection::take(DBusMessage *message)
{
    if (dbus_message_has_sender(message, DBUS_SERVICE_DBUS)) {
        takeAnswer(message);
    } else if (dbus_message_is_signal(message, DBUS_INTERFACE_LOCAL, "Disconnected")) {
        over = true;
        emit ended();
    } else if (!dbus_message_has_sender(message, name.constData())) { // else a copy; send() has delivered it
        QCopWire::take(message);
    }
}

void QCopConnection::takeAnswer(DBusMessage *message)
{
    const quint32 question = dbus_message_get_reply_serial(message);
    if (question == 0)
        return; // a signal
    const char *text = nullptr;
    const bool isRefusal = dbus_message_get_type(message) == DBUS_MESSAGE_TYPE_ERROR;
    if (!isRefusal && name.isEmpty() &&
        dbus_message_get_args(message, nullptr, DBUS_TYPE_STRING, &text, DBUS_TYPE_INVALID))
        name = text;
    if (name.isEmpty() || (isRefusal && question == needed)) {
        dbus_connection_close(connection.get());
        return;
    }
    answered = question;
    if (answered == needed)
        emit ready();
}

QCopWire::Message QCopConnection::messageOf(const QByteArray &channel, const QByteArray &message,
                                            const QByteArray &data)
{
    const auto isIt = [&](const Kept &one) {
        return one.wire && one.channel == channel && one.message == message && one.data == data;
    };
    auto found = std::find_if(kept.begin(), kept.end(), isIt);
    if (found == kept.end()) {
        QCopWire::Message made = QCopWire::make(channel, message, data);
        if (!made || channel.size() + message.size() + data.size() > mostKept)
            return made;
        found = kept.begin() + static_cast<std::ptrdiff_t>(oldest);
        oldest = (oldest + 1) % kept.size();
        *found = {std::move(made), channel, message, data};
    }
    return QCopWire::Message(dbus_message_copy(found->wire.get()));
}
