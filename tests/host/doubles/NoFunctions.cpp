// A library that is none of ours.
#include <QtCore/qglobal.h>

extern "C" Q_DECL_EXPORT int somethingElse()
{
    return 0;
}
