#include "modemmanager/VoiceCalls.h"

#include "handset/DialedNumber.h"
#include "live/Question.h"
#include "modemmanager/Asking.h"

#include <CallProxy.h>
#include <VoiceProxy.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QTimer>
#include <QtDBus/QDBusPendingCallWatcher>
#include <QtDBus/QDBusReply>

#include <algorithm>

namespace handset::modemmanager {

namespace {

const QString callInterface = QStringLiteral("org.freedesktop.ModemManager1.Call");

// Between two attempts at what the daemon cannot do at the moment.
constexpr int againMs = 200;

// Between two questions of the daemon's to a modem that does not tell by itself what becomes of a dialed call.
constexpr qint64 askedEveryMs = 2'000;

// Of Call.State.
constexpr int callOver = 7;

// Call.State; nothing for one that has not begun.
std::optional<CallPhase> phaseOf(int state)
{
    switch (state) {
    case 1:
        return CallPhase::Dialing;
    case 2:
        return CallPhase::Alerting;
    case 3:
        return CallPhase::Incoming;
    case 4:
        return CallPhase::Active;
    case 5:
        return CallPhase::Held;
    case 6:
        return CallPhase::Waiting;
    case callOver:
        return CallPhase::Over;
    default:
        return std::nullopt;
    }
}

// Call.Direction.
std::optional<CallDirection> directionOf(int direction)
{
    switch (direction) {
    case 1:
        return CallDirection::Answered;
    case 2:
        return CallDirection::Dialed;
    default:
        return std::nullopt;
    }
}

} // namespace

VoiceCalls::VoiceCalls(const live::BusDaemon &daemon, const QString &modem, News news, Reading &typed,
                       live::Patience waits)
    : source(daemon)
    , reading(typed)
    , patience(waits)
    , modemPath(modem)
    , dialedNews(news)
    , voice(new VoiceProxy(daemon.owner(), modem, daemon.bus(), this))
{
    voice->setTimeout(patience.answerMs);
    // Not by the signals of the proxy: Qt connects those without a word to nothing as long as nobody in the process has
    // registered the type of an object's path.
    const QString ofVoice = QLatin1String(VoiceProxy::staticInterfaceName());
    QDBusConnection bus = daemon.bus();
    bus.connect(daemon.owner(), modem, ofVoice, QStringLiteral("CallAdded"), QStringLiteral("o"), this,
                SLOT(callAdded(QDBusMessage)));
    bus.connect(daemon.owner(), modem, ofVoice, QStringLiteral("CallDeleted"), QStringLiteral("o"), this,
                SLOT(callDeleted(QDBusMessage)));
    // Of whatever call: what one signals is heard from its first moment on.
    bus.connect(daemon.owner(), {}, callInterface, QStringLiteral("StateChanged"), QStringLiteral("iiu"), this,
                SLOT(stateSignalled(QDBusMessage)));
    bus.connect(daemon.owner(), {}, propertiesInterface, QStringLiteral("PropertiesChanged"), {callInterface},
                QStringLiteral("sa{sv}as"), this, SLOT(propertiesChanged(QDBusMessage)));
    list();
}

// Until it is answered: whatever the daemon is busy with, the calls are there.
void VoiceCalls::list()
{
    const QDBusMessage question = QDBusMessage::createMethodCall(
        source.owner(), modemPath, QLatin1String(VoiceProxy::staticInterfaceName()), QStringLiteral("ListCalls"));
    live::ask(source.bus(), question, patience.answerMs, this, [this](const QDBusMessage &answer) {
        const QDBusReply<QList<QDBusObjectPath>> paths = answer;
        if (!paths.isValid() && isNoAnswer(paths.error()))
            return list();
        if (!paths.isValid())
            return reading.warn("ListCalls", paths.error().message());
        for (const QDBusObjectPath &path : paths.value())
            follow(path.path(), true);
    });
}

void VoiceCalls::follow(const QString &path, bool isFound)
{
    if (calls.contains(path))
        return;
    Followed &followed = calls[path];
    followed.call.id = path;
    followed.call.isFound = isFound;
    getProperties(path);
}

void VoiceCalls::getProperties(const QString &path)
{
    const QDBusMessage question = allProperties(source.owner(), path, callInterface);
    live::ask(source.bus(), question, patience.answerMs, this, [this, path](const QDBusMessage &answer) {
        const auto followed = calls.find(path);
        if (followed == calls.end())
            return;
        const QDBusReply<QVariantMap> properties = answer;
        if (!properties.isValid() && isNoAnswer(properties.error()))
            return getProperties(path);
        if (!properties.isValid() && followed->before.isEmpty())
            return forget(path);
        learn(*followed, properties.isValid() ? properties.value() : QVariantMap());
    });
}

// The signals that came before the answer were sent before it, too.
void VoiceCalls::learn(Followed &followed, const QVariantMap &properties)
{
    followed.isKnown = true;
    followed.call.number = reading.value<QString>(properties, "Number").value_or(QString());
    followed.call.direction = directionOf(reading.value<int>(properties, "Direction").value_or(0));
    QList<int> states = std::exchange(followed.before, {});
    const int now = reading.value<int>(properties, "State").value_or(0);
    if (states.isEmpty() || states.constLast() != now)
        states.append(now);
    const QString path = followed.call.id;
    for (const int state : std::as_const(states))
        stateChanged(path, state);
}

void VoiceCalls::callAdded(const QDBusMessage &message)
{
    follow(message.arguments().value(0).value<QDBusObjectPath>().path(), false);
}

void VoiceCalls::callDeleted(const QDBusMessage &message)
{
    deleted(message.arguments().value(0).value<QDBusObjectPath>().path());
}

void VoiceCalls::stateSignalled(const QDBusMessage &message)
{
    stateChanged(message.path(), message.arguments().value(1).toInt());
}

void VoiceCalls::stateChanged(const QString &path, int state)
{
    const auto followed = calls.find(path);
    if (followed == calls.end())
        return;
    if (followed->isKnown)
        move(*followed, state);
    else
        followed->before.append(state);
}

// One that was over before it could be looked at has been a call all the same, except where it was over when this began.
void VoiceCalls::move(Followed &followed, int state)
{
    const std::optional<CallPhase> phase = phaseOf(state);
    if (!phase)
        return;
    if (*phase == CallPhase::Over && !followed.hasBegun) {
        if (followed.call.isFound)
            return forget(followed.call.id);
        const bool comesIn = followed.call.direction == CallDirection::Answered;
        followed.call.phase = comesIn ? CallPhase::Incoming : CallPhase::Dialing;
        emit reported(followed.call);
    }
    followed.call.connectedBeforeMs = lateMs(followed, *phase);
    followed.sinceMoved.start();
    followed.hasBegun = true;
    followed.call.phase = *phase;
    const live::ReportedCall now = followed.call;
    // How it comes to the next phase is seen.
    followed.call.isFound = false;
    if (*phase == CallPhase::Over) {
        followed.hasBegun = false;
        forget(now.id);
    }
    emit reported(now);
}

// The other side has taken a dialed call some time since the daemon asked the modem before: in the middle of that, on the
// average, and never further from it than half of it.
qint64 VoiceCalls::lateMs(const Followed &followed, CallPhase now) const
{
    const CallPhase before = followed.call.phase;
    const bool isTaken = followed.hasBegun && now == CallPhase::Active &&
                         (before == CallPhase::Dialing || before == CallPhase::Alerting);
    if (dialedNews == News::Told || !isTaken)
        return 0;
    return std::min<qint64>(followed.sinceMoved.elapsed(), askedEveryMs) / 2;
}

// One that has come and gone meanwhile is still to be told of.
void VoiceCalls::deleted(const QString &path)
{
    const auto followed = calls.find(path);
    if (followed != calls.end() && !followed->isKnown && !followed->before.isEmpty())
        followed->before.append(callOver);
    else
        forget(path);
}

// Its object may stay for as long as the daemon likes.
void VoiceCalls::forget(const QString &path)
{
    const auto followed = calls.constFind(path);
    if (followed == calls.constEnd())
        return;
    const bool isOn = followed->hasBegun;
    calls.erase(followed);
    if (isOn)
        emit gone(path);
}

void VoiceCalls::propertiesChanged(const QDBusMessage &message)
{
    const auto followed = calls.find(message.path());
    if (followed == calls.end() || !followed->isKnown)
        return;
    const auto number = reading.value<QString>(qdbus_cast<QVariantMap>(message.arguments().value(1)), "Number");
    if (!number || *number == followed->call.number)
        return;
    followed->call.number = *number;
    if (followed->hasBegun)
        emit reported(followed->call);
}

// What the daemon cannot do at the moment is tried again until the time for it is up.
void VoiceCalls::ask(const Question &question, const QString &wish, QDeadlineTimer limit,
                     const std::function<void(const QDBusMessage &)> &done)
{
    auto *const answer = new QDBusPendingCallWatcher(question(), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [=, this] {
        answer->deleteLater();
        if (!answer->isError()) {
            if (done)
                done(answer->reply());
        } else if (isForTheMoment(answer->error()) && !limit.hasExpired()) {
            QTimer::singleShot(againMs, this, [=, this] { ask(question, wish, limit, done); });
        } else {
            emit refused(QStringLiteral("%1: %2.").arg(wish, inWords(answer->error())));
        }
    });
}

int VoiceCalls::dial(const QString &number)
{
    if (!isDialable(number))
        return InvalidArgument;
    const QVariantMap call{{QStringLiteral("number"), number}};
    ask([this, call] { return voice->CreateCall(call); },
        QCoreApplication::translate("handset", "The call cannot be made"), QDeadlineTimer(patience.answerMs),
        [this](const QDBusMessage &answer) {
            begin(answer.arguments().value(0).value<QDBusObjectPath>().path());
        });
    return Success;
}

// A call that was not begun would stay among the modem's for ever.
void VoiceCalls::begin(const QString &path)
{
    auto *const call = new CallProxy(source.owner(), path, source.bus(), this);
    call->setTimeout(patience.dialingMs);
    auto *const answer = new QDBusPendingCallWatcher(call->Start(), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, call, path] {
        answer->deleteLater();
        call->deleteLater();
        if (!answer->isError())
            return;
        if (!isNoAnswer(answer->error()))
            voice->DeleteCall(QDBusObjectPath(path));
        emit refused(
            QCoreApplication::translate("handset", "The call cannot be made: %1.").arg(inWords(answer->error())));
    });
}

QDBusPendingCall VoiceCalls::onCall(const QString &id, QDBusPendingReply<> (CallProxy::*method)()) const
{
    CallProxy call(source.owner(), id, source.bus());
    call.setTimeout(patience.answerMs);
    return (call.*method)();
}

// The daemon takes a waiting call only together with what becomes of the other one.
int VoiceCalls::answer(const QString &id)
{
    const auto followed = calls.constFind(id);
    if (followed == calls.constEnd())
        return InvalidArgument;
    const bool isWaiting = followed->call.phase == CallPhase::Waiting;
    const Question question = [this, id, isWaiting]() -> QDBusPendingCall {
        return isWaiting ? QDBusPendingCall(voice->HoldAndAccept()) : onCall(id, &CallProxy::Accept);
    };
    ask(question, QCoreApplication::translate("handset", "The call cannot be answered"),
        QDeadlineTimer(patience.answerMs));
    return Success;
}

int VoiceCalls::hangUp(const QString &id)
{
    if (!calls.contains(id))
        return InvalidArgument;
    ask([this, id] { return onCall(id, &CallProxy::Hangup); },
        QCoreApplication::translate("handset", "The call cannot be ended"), QDeadlineTimer(patience.answerMs));
    return Success;
}

} // namespace handset::modemmanager
