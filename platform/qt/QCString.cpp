#include "qt/QCString.h"

#include <QtCore/QMetaType>

// A queued connection made by text looks its arguments' types up by the names in the signature.
static void registerName()
{
    qRegisterMetaType<QCString>("QCString");
}
Q_CONSTRUCTOR_FUNCTION(registerName)
