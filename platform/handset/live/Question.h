// What a daemon is asked, with the answer in its place among what it signals.
#pragma once

#include <QtCore/QObject>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusError>
#include <QtDBus/QDBusMessage>

#include <functional>

namespace handset::live {

/// Calls `done` once with what comes, the answer or an error, unless `context` has gone by then. What the one asked has
/// signalled before it answered has been delivered by then, and what it signalled after has not: so a list or a property
/// that is answered never undoes what a signal has told since. A QDBusPendingCallWatcher does not promise that; where the
/// answer is there before the watcher is, it tells of it one turn of the event loop later than of a signal. An answer that
/// takes longer than `longestMs` is an error; -1 for as long as D-Bus waits usually.
void ask(const QDBusConnection &bus, const QDBusMessage &question, int longestMs, QObject *context,
         const std::function<void(const QDBusMessage &)> &done);

/// One question that is under way; its context's child until the answer is there.
class Question : public QObject
{
    Q_OBJECT

public:
    Question(const std::function<void(const QDBusMessage &)> &done, QObject *context)
        : QObject(context)
        , whenAnswered(done)
    {}

public slots:
    void answer(const QDBusMessage &message);
    void fail(const QDBusError &error, const QDBusMessage &question);

private:
    const std::function<void(const QDBusMessage &)> whenAnswered;
};

} // namespace handset::live
