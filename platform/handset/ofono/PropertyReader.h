// Takes values of the daemon's by their types.
#pragma once

#include <QtCore/QSet>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtDBus/QDBusArgument>

#include <type_traits>

namespace handset::ofono {

/// A value of another type than ours is ignored, as is whatever else the daemon should not say: with a warning, one for
/// each name, however often it comes.
class PropertyReader
{
public:
    /// False, and `out` as it was, where `value` is of another type. `name` is for the warning.
    template <typename T>
    bool take(const QString &name, const QVariant &value, T &out)
    {
        if (value.metaType() == QMetaType::fromType<T>()) {
            out = value.value<T>();
            return true;
        }
        if constexpr (std::is_same_v<T, QVariantMap>) {
            if (holdsMap(value, "a{sv}"))
                return unpack(value, out);
        } else if constexpr (std::is_same_v<T, QMap<QString, uchar>>) {
            if (holdsMap(value, "a{sy}"))
                return unpack(value, out);
        }
        warn(name);
        return false;
    }
    void warn(const QString &name);
    /// Likewise that the daemon does not tell it at all.
    void warn(const QString &name, const QString &error);

private:
    static bool holdsMap(const QVariant &value, const char *signature);
    template <typename T>
    static bool unpack(const QVariant &value, T &out)
    {
        out = qdbus_cast<T>(value.value<QDBusArgument>());
        return true;
    }

    QSet<QString> told;
};

} // namespace handset::ofono
