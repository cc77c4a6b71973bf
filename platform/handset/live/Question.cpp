#include "live/Question.h"

namespace handset::live {

void Question::answer(const QDBusMessage &message)
{
    deleteLater();
    whenAnswered(message);
}

void Question::fail(const QDBusError &error, const QDBusMessage &)
{
    answer(QDBusMessage::createError(error));
}

void ask(const QDBusConnection &bus, const QDBusMessage &question, int longestMs, QObject *context,
         const std::function<void(const QDBusMessage &)> &done)
{
    auto *const asked = new Question(done, context);
    const bool isSent = bus.callWithCallback(question, asked, SLOT(answer(QDBusMessage)),
                                             SLOT(fail(QDBusError, QDBusMessage)), longestMs);
    if (isSent)
        return;
    const QDBusError error = bus.lastError();
    QMetaObject::invokeMethod(
        asked, [asked, error] { asked->fail(error, {}); }, Qt::QueuedConnection);
}

} // namespace handset::live
