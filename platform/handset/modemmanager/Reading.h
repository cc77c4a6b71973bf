// Values as the daemon sends them.
#pragma once

#include <QtCore/QMetaType>
#include <QtCore/QSet>
#include <QtCore/QStringList>
#include <QtCore/QVariantMap>

#include <optional>

namespace handset::modemmanager {

/// Reads properties of the types that they have by the daemon's description. One of another type is none, with a warning
/// for the first of its name.
class Reading
{
public:
    template <typename Type>
    std::optional<Type> value(const QVariantMap &properties, const char *name)
    {
        const auto found = properties.constFind(QLatin1String(name));
        if (found == properties.constEnd())
            return std::nullopt;
        if (found->metaType() == QMetaType::fromType<Type>())
            return found->value<Type>();
        warn(name, QString::fromLatin1(found->typeName()));
        return std::nullopt;
    }
    std::optional<QVariantMap> map(const QVariantMap &properties, const char *name);
    /// Object paths, in their order.
    std::optional<QStringList> paths(const QVariantMap &properties, const char *name);

    /// Of one of a modem's Ports, a number of MMModemPortType; 0 where it is not told.
    static quint32 kindOfPort(const QVariantMap &properties, const QString &port);

    /// One warning for what has this name.
    void warn(const char *name, const QString &what);

private:
    QSet<QByteArray> warned;
};

} // namespace handset::modemmanager
