#include "qt/translation.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <cstring>

namespace {

bool isAscii(const char *text)
{
    return std::all_of(text, text + std::strlen(text), [](char c) { return static_cast<signed char>(c) >= 0; });
}

QString lookUp(const char *context, const char *key, const char *latin1)
{
    if (isAscii(latin1))
        return QCoreApplication::translate(context, key, latin1);
    return QCoreApplication::translate(context, key, QString::fromLatin1(latin1).toUtf8().constData());
}

} // namespace

QString translated(const char *context, const char *key, const char *english)
{
    const char *fallback = english ? english : "";
    if (context && key) {
        QString text = lookUp(context, key, fallback);
        // Where no translator knows the key, Qt answers the key itself.
        if (text != QLatin1StringView(key))
            return text;
    }
    return QString::fromLatin1(fallback);
}
