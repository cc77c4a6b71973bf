// Who in this process listens to which channel. Not a public header.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QEvent>

QT_BEGIN_NAMESPACE
class QObject;
QT_END_NAMESPACE

/// A message on its way to one subscriber. Both parts are non-null.
class QCopMessage : public QEvent
{
public:
    QCopMessage(const QByteArray &messageName, const QByteArray &dataBlock);

    static Type kind();

    const QByteArray message;
    const QByteArray data;
};

namespace QCopSubscribers {

/// Channels are compared as bytes. A subscriber is added once, and removed before it is deleted.
void add(const QByteArray &channel, QObject *subscriber);
void remove(const QByteArray &channel, QObject *subscriber);

/// Posts the message to each present subscriber of `channel`, in the order in which they were added.
void deliver(const QByteArray &channel, const QByteArray &message, const QByteArray &data);

} // namespace QCopSubscribers
