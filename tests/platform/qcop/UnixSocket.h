// Sockets at bus addresses.
#pragma once

#include <QtCore/QString>

/// "unix:path=..." of a socket file.
QString busAddress(const QString &path);

/// A socket that listens at a bus address; -1 when it cannot.
int listeningSocket(const QString &address);
/// A socket that is connected to a bus address; -1 when it cannot be.
int connectedSocket(const QString &address);
