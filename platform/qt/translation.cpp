#include "translation.h"

#include <QtCore/QCoreApplication>

QString translated(const char *context, const char *key, const char *english)
{
    const QString fallback = QString::fromUtf8(english ? english : "");
    if (!context || !key)
        return fallback;
    const QString text = QCoreApplication::translate(context, key, english);
    // Where no translator knows the key, Qt answers the key itself.
    return text == QString::fromUtf8(key) ? fallback : text;
}
