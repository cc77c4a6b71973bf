#include "support/ScreenClock.h"

#include "toolkit/ZKbMainWidget.h"

#include <QtCore/QPointer>
#include <QtCore/QTimer>

#include <algorithm>

#include <dlfcn.h>

namespace {

struct Waiting {
    qint64 due;
    QPointer<QObject> receiver;
    QByteArray member;
};

qint64 now = 0;
QList<Waiting> waiting; // in the order of their coming

void add(Waiting timer)
{
    const auto later = std::upper_bound(waiting.cbegin(), waiting.cend(), timer,
                                        [](const Waiting &a, const Waiting &b) { return a.due < b.due; });
    waiting.insert(later, std::move(timer));
}

void call(QObject *receiver, const QByteArray &member)
{
    const QByteArray name = member.mid(1, member.indexOf('(') - 1);
    if (!QMetaObject::invokeMethod(receiver, name.constData(), Qt::DirectConnection))
        qFatal("a timer calls %s, which the screen has not", member.constData());
}

} // namespace

QList<ScreenClock::Timer> ScreenClock::pending()
{
    QList<Timer> timers;
    for (const Waiting &timer : std::as_const(waiting)) {
        if (timer.receiver)
            timers.append({timer.due - now, timer.member});
    }
    return timers;
}

void ScreenClock::advance(int milliseconds)
{
    const qint64 end = now + milliseconds;
    while (!waiting.isEmpty() && waiting.first().due <= end) {
        const Waiting timer = waiting.takeFirst();
        now = timer.due;
        if (timer.receiver)
            call(timer.receiver, timer.member);
    }
    now = end;
}

void ScreenClock::restart()
{
    now = 0;
    waiting.clear();
}

extern "C" void singleShotOfScreen(int milliseconds, const QObject *receiver,
                                   const char *member) asm("_ZN6QTimer10singleShotEiPK7QObjectPKc");

void singleShotOfScreen(int milliseconds, const QObject *receiver, const char *member)
{
    using SingleShot = void(int, const QObject *, const char *);
    if (qobject_cast<const ZKbMainWidget *>(receiver)) {
        add({now + milliseconds, const_cast<QObject *>(receiver), member});
        return;
    }
    void *original = dlsym(RTLD_NEXT, "_ZN6QTimer10singleShotEiPK7QObjectPKc");
    if (!original)
        qFatal("Qt has no QTimer::singleShot() any longer");
    reinterpret_cast<SingleShot *>(original)(milliseconds, receiver, member);
}
