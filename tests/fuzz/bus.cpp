// What comes from the bus as a channel message.
#include "fuzz/Fuzz.h"

#include "qt/QCopChannel.h"
#include "qt/qcop/QCopWire.h"

#include <QtCore/QCoreApplication>

#include <dbus/dbus.h>

namespace {

void take(DBusMessage *message)
{
    static const QCopChannel channel("/KAV/phone");
    QCopWire::take(message);
    QCoreApplication::processEvents();
}

// As from anybody: arguments of any types behind a header that may be right.
void tryArguments(QByteArrayView bytes)
{
    Taker taker(bytes);
    const QCopWire::Message message(dbus_message_new_signal("/org/kav/QCop", "org.kav.QCop", "Message"));
    DBusMessageIter arguments;
    dbus_message_iter_init_append(message.get(), &arguments);
    // Who calls libdbus has to see to the length of a signature.
    constexpr int most = 100;
    for (int i = 0; i < most && !taker.isAtEnd(); ++i) {
        const quint8 kind = taker.byte() % 4;
        if (kind == 0) {
            const auto number = taker.number<dbus_uint32_t>();
            dbus_message_iter_append_basic(&arguments, DBUS_TYPE_UINT32, &number);
        } else if (kind == 1) {
            const QByteArray text = taker.text(255).toHex();
            const char *const place = text.constData();
            dbus_message_iter_append_basic(&arguments, DBUS_TYPE_STRING, &place);
        } else {
            const QByteArray block = kind == 2 ? taker.text(255) : QByteArray("/KAV/phone");
            const char *const place = block.constData();
            DBusMessageIter part;
            dbus_message_iter_open_container(&arguments, DBUS_TYPE_ARRAY, "y", &part);
            dbus_message_iter_append_fixed_array(&part, DBUS_TYPE_BYTE, &place, static_cast<int>(block.size()));
            dbus_message_iter_close_container(&arguments, &part);
        }
    }
    take(message.get());
}

} // namespace

void tryBytes(QByteArrayView bytes)
{
    static int count = 1;
    static char program[] = "bus";
    static char *names[] = {program, nullptr};
    static const QCoreApplication application(count, names);
    const QCopWire::Message message(dbus_message_demarshal(bytes.data(), static_cast<int>(bytes.size()), nullptr));
    if (message)
        take(message.get());
    tryArguments(bytes);
}
