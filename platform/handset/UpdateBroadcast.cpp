#include "handset/UpdateBroadcast.h"

#include "qt/QCopChannel.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtCore/QTimer>

namespace handset {

namespace {

constexpr auto changeChannel = "/KAV/handset";
constexpr auto changeMessage = "/KAV/handset/Changed";
// What opens first is drawn first; and who is gone by then has no need of it.
constexpr int subscribeAfterMs = 1000;

QByteArray ownNumber()
{
    return QByteArray::number(QCoreApplication::applicationPid());
}

std::function<void()> &changeListener()
{
    static auto *const listener = new std::function<void()>; // outlives the application object
    return *listener;
}

void subscribe()
{
    static QPointer<QCopChannel> channel;
    if (channel || !changeListener())
        return;
    channel = new QCopChannel(changeChannel, QCoreApplication::instance());
    QObject::connect(channel, &QCopChannel::received, channel,
                     [](const QCString &message, const QByteArray &sender) {
                         if (message == changeMessage && sender != ownNumber() && changeListener())
                             changeListener()();
                     });
    // Whatever has been changed until now.
    changeListener()();
}

} // namespace

void broadcastUpdate()
{
    QCopChannel::send("/KAV/phone", "/KAV/phone/RecentCall/Update");
}

void broadcastChange()
{
    QCopChannel::send(changeChannel, changeMessage, ownNumber());
}

void followChanges(const std::function<void()> &listener)
{
    changeListener() = listener;
    if (listener && QCoreApplication::instance())
        QTimer::singleShot(subscribeAfterMs, QCoreApplication::instance(), &subscribe);
}

} // namespace handset
