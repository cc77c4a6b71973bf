#include "qt/QCopChannel.h"

#include "qt/qcop/QCopBus.h"
#include "qt/qcop/QCopSubscribers.h"

QCopChannel::QCopChannel(const QCString &channel, QObject *parent, const char *name)
    : QObject(parent)
    , channelName(channel.isNull() ? QCString("") : channel)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
    QCopSubscribers::add(channelName, this);
    if (QCopBus *bus = QCopBus::instance())
        bus->receive();
}

QCopChannel::~QCopChannel()
{
    QCopSubscribers::remove(channelName, this);
}

QCString QCopChannel::channel() const
{
    return channelName;
}

// Within the process a message never takes the way over the bus, so that neither a lost connection nor the bus's
// copy of a broadcast for its sender can make it arrive twice or not at all.
bool QCopChannel::send(const QCString &channel, const QCString &message, const QByteArray &data)
{
    QCopSubscribers::deliver(channel, message, data);
    QCopBus *bus = QCopBus::instance();
    return bus && bus->send(channel, message, data);
}

void QCopChannel::customEvent(QEvent *event)
{
    if (event->type() != QCopMessage::kind()) {
        QObject::customEvent(event);
        return;
    }
    const auto *message = static_cast<const QCopMessage *>(event);
    emit received(message->message, message->data); // a slot may have deleted this channel
}
