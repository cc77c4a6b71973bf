// The embedded edition's message channel between processes.
#pragma once

#include "qt/QCString.h"
#include "qt/classname.h"

#include <QtCore/QObject>

/// A subscription to a named channel. A message reaches every subscriber of its channel once, the sender's own
/// process included, in the order of sending, through the event loop. Between processes it travels over the D-Bus
/// session bus; where there is none, it stays within the process. GUI thread only.
///
/// A subscriber gets the messages sent after it was made and none after its deletion, also where a slot makes or
/// deletes it while a message is being delivered. Within the process that is exact. From other processes come, as
/// well, messages that were on their way when it was made; and the first subscription counts from the moment when
/// the bus acknowledged it. The constructor returns after that moment: a figure read after construction is either
/// up to date, or a message about its change is still to come. The exception is a bus that does not answer within a
/// quarter of a second: the constructor then returns first, later ones do not wait for that bus, and the
/// subscription begins once it answers.
class QCopChannel : public QObject
{
    Q_OBJECT
    KAV_CLASS_NAME

public:
    /// Subscribes to `channel` (any bytes). `parent` owns the subscription; `name` (Latin-1, may be null) is its
    /// object name. The process's first subscription opens the connection that all share; a later one costs no
    /// call to the bus. There is no failure: without a bus the subscription is to the own process's messages, and
    /// to the others' as soon as there is a bus.
    explicit QCopChannel(const QCString &channel, QObject *parent = nullptr, const char *name = nullptr);
    ~QCopChannel() override;

    /// The name given to the constructor; never null.
    QCString channel() const;

    /// Sends `message` with `data` to every subscriber of `channel`. Any bytes pass through whole; a null array
    /// arrives as an empty one. The three may be 64 MiB each and 127 MiB together. False when the bus did not take
    /// the message, for there is none or the message is too large; it is then delivered within the process all the
    /// same. True says that the message is queued for the bus, which the end of the application waits for.
    static bool send(const QCString &channel, const QCString &message, const QByteArray &data = QByteArray());

signals:
    /// A message on the channel, with its data block. The slots may delete the channel.
    void received(const QCString &message, const QByteArray &data);

protected:
    void customEvent(QEvent *event) override;

private:
    const QCString channelName;
};
