#include "modemmanager/Reading.h"

#include <QtCore/QLoggingCategory>
#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusObjectPath>

namespace handset::modemmanager {

namespace {

Q_LOGGING_CATEGORY(lcModemManager, "kav.modemmanager")

/// What has come as `signature`, which Qt takes apart only where it is told as what.
template <typename Type>
std::optional<Type> taken(const QVariant &value, const char *signature)
{
    if (value.metaType() == QMetaType::fromType<Type>())
        return value.value<Type>();
    if (value.metaType() != QMetaType::fromType<QDBusArgument>())
        return std::nullopt;
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != QLatin1String(signature))
        return std::nullopt;
    return qdbus_cast<Type>(argument);
}

} // namespace

std::optional<QVariantMap> Reading::map(const QVariantMap &properties, const char *name)
{
    const auto found = properties.constFind(QLatin1String(name));
    if (found == properties.constEnd())
        return std::nullopt;
    std::optional<QVariantMap> read = taken<QVariantMap>(*found, "a{sv}");
    if (!read)
        warn(name, QString::fromLatin1(found->typeName()));
    return read;
}

std::optional<QStringList> Reading::paths(const QVariantMap &properties, const char *name)
{
    const auto found = properties.constFind(QLatin1String(name));
    if (found == properties.constEnd())
        return std::nullopt;
    const auto read = taken<QList<QDBusObjectPath>>(*found, "ao");
    if (!read) {
        warn(name, QString::fromLatin1(found->typeName()));
        return std::nullopt;
    }
    QStringList names;
    for (const QDBusObjectPath &path : *read)
        names.append(path.path());
    return names;
}

quint32 Reading::kindOfPort(const QVariantMap &properties, const QString &port)
{
    const auto ports = properties.value(QStringLiteral("Ports")).value<QDBusArgument>();
    if (ports.currentSignature() != QLatin1String("a(su)"))
        return 0;
    quint32 found = 0;
    ports.beginArray();
    while (!ports.atEnd()) {
        QString name;
        quint32 kind = 0;
        ports.beginStructure();
        ports >> name >> kind;
        ports.endStructure();
        found = name == port ? kind : found;
    }
    ports.endArray();
    return found;
}

void Reading::warn(const char *name, const QString &what)
{
    if (warned.contains(name))
        return;
    warned.insert(name);
    qCWarning(lcModemManager, "ModemManager's %s cannot be used: %s", name, qUtf8Printable(what));
}

} // namespace handset::modemmanager
