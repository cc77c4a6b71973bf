// Sockets at bus addresses.
#pragma once

#include <QtCore/QString>

enum class Door {
    File,   ///< "unix:path=..."
    Network ///< "tcp:host=127.0.0.1,port=..."
};

/// "unix:path=..." of a socket file.
QString busAddress(const QString &path);

/// A socket that listens, in a file at `path` or on a free port of this machine; -1 when it cannot.
int listeningSocket(Door door, const QString &path, int backlog = 128);
/// The bus address at which a socket listens.
QString addressOf(int listening);
/// A socket that calls one that listens, and does not wait for it.
int callingSocket(int listening);
/// A socket that is connected to the bus in a socket file; -1 when it cannot be.
int connectedSocket(const QString &address);
