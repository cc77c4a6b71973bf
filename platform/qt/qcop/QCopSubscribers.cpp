#include "qt/qcop/QCopSubscribers.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QHash>
#include <QtCore/QList>

namespace {

using Subscribers = QHash<QByteArray, QList<QObject *>>;
Q_GLOBAL_STATIC(Subscribers, subscribers)

QByteArray nonNull(const QByteArray &bytes)
{
    return bytes.isNull() ? QByteArray("") : bytes;
}

} // namespace

QCopMessage::QCopMessage(const QByteArray &messageName, const QByteArray &dataBlock)
    : QEvent(kind())
    , message(nonNull(messageName))
    , data(nonNull(dataBlock))
{}

QEvent::Type QCopMessage::kind()
{
    static const auto registered = static_cast<Type>(registerEventType());
    return registered;
}

void QCopSubscribers::add(const QByteArray &channel, QObject *subscriber)
{
    (*subscribers)[channel].append(subscriber);
}

void QCopSubscribers::remove(const QByteArray &channel, QObject *subscriber)
{
    if (subscribers.isDestroyed())
        return;
    const auto entry = subscribers->find(channel);
    if (entry == subscribers->end())
        return;
    entry->removeOne(subscriber);
    if (entry->isEmpty())
        subscribers->erase(entry);
}

// One event for each subscriber rather than a walk over them: a slot may delete other subscribers or make new ones,
// and where it runs an event loop of its own, the messages still reach the rest in their order.
void QCopSubscribers::deliver(const QByteArray &channel, const QByteArray &message, const QByteArray &data)
{
    if (!subscribers.exists())
        return;
    const QList<QObject *> present = subscribers->value(channel);
    for (QObject *subscriber : present)
        QCoreApplication::postEvent(subscriber, new QCopMessage(message, data));
}
