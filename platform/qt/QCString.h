// The embedded edition's byte string. moc compares signatures as text, so signals and slots say QCString;
// the library registers the name for connections that are made by text.
#pragma once

#include <QtCore/QByteArray>

using QCString = QByteArray;
