// Values of oFono's that Qt does not know.
#pragma once

#include <QtCore/QList>
#include <QtCore/QVariantMap>
#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusObjectPath>

namespace handset::ofono {

/// One of a(oa{sv}), as modems, calls and contexts are listed.
struct Object {
    QDBusObjectPath path;
    QVariantMap properties;
};
using Objects = QList<Object>;

inline QDBusArgument &operator<<(QDBusArgument &argument, const Object &object)
{
    argument.beginStructure();
    argument << object.path << object.properties;
    argument.endStructure();
    return argument;
}

inline const QDBusArgument &operator>>(const QDBusArgument &argument, Object &object)
{
    argument.beginStructure();
    argument >> object.path >> object.properties;
    argument.endStructure();
    return argument;
}

} // namespace handset::ofono
