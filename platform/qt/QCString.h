// The embedded edition's byte string. moc compares signatures as text, so signals and slots say QCString.
#pragma once

#include <QtCore/QByteArray>

using QCString = QByteArray;
