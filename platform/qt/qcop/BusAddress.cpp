#include "qt/qcop/BusAddress.h"

#include <QtCore/QtGlobal>

#include <optional>

namespace BusAddress {

namespace {

constexpr char variable[] = "DBUS_SESSION_BUS_ADDRESS";

std::optional<QByteArray> hidden;

QByteArray addressesInEnvironment()
{
    const QByteArray told = qgetenv(variable);
    const QByteArray directory = qgetenv("XDG_RUNTIME_DIR");
    return !told.isEmpty() || directory.isEmpty() ? told
                                                  : "unix:path=" + directory.toPercentEncoding("/", "~") + "/bus";
}

} // namespace

QByteArray ofSession()
{
    return hidden ? *hidden : addressesInEnvironment();
}

void hideSession()
{
    hidden = ofSession();
    qputenv(variable, none);
}

} // namespace BusAddress
