// The embedded edition's value list, a name over the list of the installed Qt.
#pragma once

#include <QtCore/QList>

template <typename T>
using QValueList = QList<T>;
