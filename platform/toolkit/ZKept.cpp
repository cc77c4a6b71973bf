#include "toolkit/ZKept.h"

#include <QtCore/QList>
#include <QtGui/QGuiApplication>

namespace {

QList<ZKeeper *> &keepers()
{
    static QList<ZKeeper *> list;
    return list;
}

} // namespace

ZKeeper::ZKeeper()
{
    keepers().append(this);
}

ZKeeper::~ZKeeper()
{
    keepers().removeOne(this);
    if (keepers().isEmpty())
        qRemovePostRoutine(&forgetAll);
}

void ZKeeper::followApplication()
{
    if (application == qApp)
        return;
    application = qApp;
    forget();
    qRemovePostRoutine(&forgetAll);
    qAddPostRoutine(&forgetAll);
    QObject::connect(qApp, &QGuiApplication::fontDatabaseChanged, &context, [this] { forget(); });
}

void ZKeeper::forgetAll()
{
    for (ZKeeper *keeper : std::as_const(keepers()))
        keeper->forget();
}
