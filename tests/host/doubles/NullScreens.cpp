// A plug-in that has no memory left for its screens.
#include <QtCore/qglobal.h>

class QWidget;

#define KAV_DOUBLE(NAME)                                                                                          \
    extern "C" Q_DECL_EXPORT QWidget *create_##NAME(QWidget *, const char *)                                      \
    {                                                                                                             \
        return nullptr;                                                                                           \
    }                                                                                                             \
    extern "C" Q_DECL_EXPORT void destroy_##NAME(QWidget *)                                                       \
    {                                                                                                             \
        qFatal("destroy_" #NAME " called without a screen");                                                      \
    }

KAV_DOUBLE(callTime)
KAV_DOUBLE(callCost)
KAV_DOUBLE(dataTime)
KAV_DOUBLE(dataVolume)
