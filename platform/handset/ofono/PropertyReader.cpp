#include "ofono/PropertyReader.h"

#include <QtCore/QLoggingCategory>

namespace handset::ofono {

namespace {

Q_LOGGING_CATEGORY(lcOfono, "kav.handset.ofono")

} // namespace

void PropertyReader::warn(const QString &name)
{
    if (told.contains(name))
        return;
    told.insert(name);
    qCWarning(lcOfono, "oFono says something of %s that cannot be read; it is ignored", qUtf8Printable(name));
}

void PropertyReader::warn(const QString &name, const QString &error)
{
    if (told.contains(name))
        return;
    told.insert(name);
    qCWarning(lcOfono, "oFono does not tell %s: %s", qUtf8Printable(name), qUtf8Printable(error));
}

bool PropertyReader::holdsMap(const QVariant &value, const char *signature)
{
    return value.metaType() == QMetaType::fromType<QDBusArgument>() &&
           value.value<QDBusArgument>().currentSignature() == QLatin1String(signature);
}

} // namespace handset::ofono
