#include "qt/qcop/BusProbe.h"

#include "qt/qcop/QCopConnection.h"

#include <QtCore/QtGlobal>

#include <dbus/dbus.h>

#include <thread>
#include <utility>

namespace {

using Answer = BusProbe::Answer;

constexpr int patienceMs = 250;

constexpr char registryName[] = "org.a11y.Bus";
constexpr char registryPath[] = "/org/a11y/bus";
constexpr char statusInterface[] = "org.a11y.Status";

/// The reply of somebody on a bus: a message, or none and why.
struct Reply {
    QCopWire::Message message;
    Answer answer = Answer::Silence;
};

// Nobody is started to answer.
Reply call(DBusConnection *bus, const QCopWire::Message &question)
{
    Reply reply;
    if (!question)
        return reply;
    dbus_message_set_auto_start(question.get(), FALSE);
    DBusError error = DBUS_ERROR_INIT;
    reply.message.reset(dbus_connection_send_with_reply_and_block(bus, question.get(), patienceMs, &error));
    // A bus that goes away leaves questions without a reply, too.
    const bool isSilence =
        dbus_connection_get_is_connected(bus) && dbus_error_has_name(&error, DBUS_ERROR_NO_REPLY);
    if (reply.message)
        reply.answer = Answer::Given;
    else if (!isSilence)
        reply.answer = Answer::Nobody;
    dbus_error_free(&error);
    return reply;
}

QCopWire::Message questionTo(const char *name, const char *path, const char *interface, const char *method)
{
    return QCopWire::Message(dbus_message_new_method_call(name, path, interface, method));
}

Answer logIn(const QCopConnection::Opened &opened)
{
    if (!opened)
        return Answer::Nobody;
    return call(opened.get(), questionTo(DBUS_SERVICE_DBUS, DBUS_PATH_DBUS, DBUS_INTERFACE_DBUS, "Hello")).answer;
}

bool isTrue(DBusMessageIter *property)
{
    DBusMessageIter value;
    dbus_message_iter_next(property);
    if (dbus_message_iter_get_arg_type(property) != DBUS_TYPE_VARIANT)
        return false;
    dbus_message_iter_recurse(property, &value);
    dbus_bool_t is = FALSE;
    if (dbus_message_iter_get_arg_type(&value) == DBUS_TYPE_BOOLEAN)
        dbus_message_iter_get_basic(&value, &is);
    return is;
}

// Its properties, all of them booleans, say whether accessibility is wanted.
bool hasTrue(DBusMessage *properties)
{
    DBusMessageIter arguments;
    DBusMessageIter entry;
    if (!dbus_message_has_signature(properties, "a{sv}") || !dbus_message_iter_init(properties, &arguments))
        return false;
    dbus_message_iter_recurse(&arguments, &entry);
    for (; dbus_message_iter_get_arg_type(&entry) == DBUS_TYPE_DICT_ENTRY; dbus_message_iter_next(&entry)) {
        DBusMessageIter property;
        dbus_message_iter_recurse(&entry, &property);
        if (isTrue(&property))
            return true;
    }
    return false;
}

Reply askForStatus(DBusConnection *session)
{
    const QCopWire::Message question = questionTo(registryName, registryPath, DBUS_INTERFACE_PROPERTIES, "GetAll");
    const char *interface = statusInterface;
    if (question)
        dbus_message_append_args(question.get(), DBUS_TYPE_STRING, &interface, DBUS_TYPE_INVALID);
    return call(session, question);
}

// Asking where the accessibility bus is starts one, which is done only where Qt does the same next.
Answer askForAccessibility(DBusConnection *session)
{
    const Reply status = askForStatus(session);
    if (status.answer != Answer::Given)
        return status.answer;
    if (!hasTrue(status.message.get()) && !qEnvironmentVariableIsSet("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"))
        return Answer::Nobody;
    const Reply place = call(session, questionTo(registryName, registryPath, registryName, "GetAddress"));
    const char *address = nullptr;
    if (!place.message ||
        !dbus_message_get_args(place.message.get(), nullptr, DBUS_TYPE_STRING, &address, DBUS_TYPE_INVALID))
        return place.message ? Answer::Nobody : place.answer;
    return logIn(QCopConnection::open(address));
}

} // namespace

BusProbe BusProbe::ofBus(const QByteArray &addresses)
{
    return ask(addresses, false);
}

BusProbe BusProbe::ofSession(const QByteArray &addresses)
{
    return ask(addresses, true);
}

BusProbe BusProbe::ask(const QByteArray &addresses, bool isSession)
{
    Promise bus;
    Promise behind;
    BusProbe probe;
    probe.bus = bus.get_future();
    probe.behind = behind.get_future();
    std::thread(run, addresses, isSession, std::move(bus), std::move(behind)).detach();
    return probe;
}

void BusProbe::run(const QByteArray &addresses, bool isSession, Promise bus, Promise behind)
{
    const QCopConnection::Opened opened = QCopConnection::open(addresses);
    const Answer answer = logIn(opened);
    bus.set_value(answer);
    behind.set_value(isSession && answer == Answer::Given ? askForAccessibility(opened.get()) : Answer::Nobody);
}

BusProbe::Answer BusProbe::taken(const Future &future, Clock::time_point deadline)
{
    return future.wait_until(deadline) == std::future_status::ready ? future.get() : Answer::Silence;
}
