// What the daemon is asked for its properties with, and what its errors come to.
#pragma once

#include <QtCore/QCoreApplication>
#include <QtDBus/QDBusError>
#include <QtDBus/QDBusMessage>

namespace handset::modemmanager {

inline const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");

/// The question for all properties of an object's interface.
inline QDBusMessage allProperties(const QString &owner, const QString &path, const QString &interface)
{
    return QDBusMessage::createMethodCall(owner, path, propertiesInterface, QStringLiteral("GetAll")) << interface;
}

/// The daemon has said nothing; it may be there all the same.
inline bool isNoAnswer(const QDBusError &error)
{
    return error.type() == QDBusError::NoReply || error.type() == QDBusError::Timeout ||
           error.type() == QDBusError::TimedOut;
}

/// It cannot do that at the moment.
inline bool isForTheMoment(const QDBusError &error)
{
    return error.name().endsWith(QLatin1String(".InProgress")) ||
           error.name().endsWith(QLatin1String(".Core.Retry"));
}

/// Part of a sentence for the user.
inline QString inWords(const QDBusError &error)
{
    return isNoAnswer(error) ? QCoreApplication::translate("handset", "ModemManager does not answer")
                             : error.message();
}

} // namespace handset::modemmanager
