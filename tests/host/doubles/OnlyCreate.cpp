// A plug-in that cannot take its screen back.
#include <QtCore/qglobal.h>

class QWidget;

extern "C" Q_DECL_EXPORT QWidget *create_callTime(QWidget *, const char *)
{
    return nullptr;
}
