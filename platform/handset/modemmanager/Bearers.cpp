#include "modemmanager/Bearers.h"

#include "live/Question.h"
#include "modemmanager/Asking.h"

#include <QtCore/QDateTime>
#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusReply>

#include <algorithm>
#include <limits>

namespace handset::modemmanager {

namespace {

const QString bearerInterface = QStringLiteral("org.freedesktop.ModemManager1.Bearer");

/// How old the daemon's count of seconds may be: it counts them again so often.
constexpr qint64 countingMs = 30'000;

qint64 bounded(quint64 number)
{
    return static_cast<qint64>(std::min(number, static_cast<quint64>(std::numeric_limits<qint64>::max())));
}

// What the daemon counts of the modem, which not every modem lets it do.
std::optional<live::Bytes> bytesOf(Reading &reading, const QVariantMap &stats)
{
    const auto sent = reading.value<quint64>(stats, "tx-bytes");
    const auto received = reading.value<quint64>(stats, "rx-bytes");
    return sent && received ? std::optional(live::Bytes{bounded(*sent), bounded(*received)}) : std::nullopt;
}

std::optional<qint64> startOf(Reading &reading, const QVariantMap &stats)
{
    const auto seconds = reading.value<quint64>(stats, "start-date");
    constexpr quint64 most = std::numeric_limits<qint64>::max() / 1000;
    return seconds && *seconds > 0 && *seconds <= most ? std::optional(static_cast<qint64>(*seconds) * 1000)
                                                       : std::nullopt;
}

// The count of seconds, and what has gone by since it was made, if the wall clock can be believed about that.
std::optional<qint64> durationOf(Reading &reading, const QVariantMap &stats)
{
    const auto seconds = reading.value<quint32>(stats, "duration");
    if (!seconds)
        return std::nullopt;
    const qint64 counted = qint64{*seconds} * 1000;
    const std::optional<qint64> start = startOf(reading, stats);
    const qint64 byTheClock = start ? QDateTime::currentMSecsSinceEpoch() - *start : counted;
    return byTheClock >= counted && byTheClock - counted <= countingMs ? byTheClock : counted;
}

} // namespace

Bearers::Bearers(const live::BusDaemon &daemon, Reading &typed, live::Patience waits)
    : source(daemon)
    , reading(typed)
    , patience(waits)
{
    QDBusConnection bus = daemon.bus();
    bus.connect(daemon.owner(), {}, propertiesInterface, QStringLiteral("PropertiesChanged"), {bearerInterface},
                QStringLiteral("sa{sv}as"), this, SLOT(propertiesChanged(QDBusMessage)));
}

void Bearers::setPaths(const QStringList &paths)
{
    const QStringList before = bearers.keys();
    for (const QString &path : before) {
        if (!paths.contains(path))
            forget(path);
    }
    for (const QString &path : paths) {
        if (bearers.contains(path))
            continue;
        Followed &followed = bearers[path];
        followed.session.id = path;
        followed.isFound = isFirst;
        getProperties(path);
    }
    isFirst = false;
}

void Bearers::getProperties(const QString &path)
{
    const QDBusMessage question = allProperties(source.owner(), path, bearerInterface);
    live::ask(source.bus(), question, patience.answerMs, this, [this, path](const QDBusMessage &answer) {
        const auto followed = bearers.find(path);
        if (followed == bearers.end())
            return;
        const QDBusReply<QVariantMap> properties = answer;
        if (!properties.isValid() && isNoAnswer(properties.error()))
            return getProperties(path);
        if (!properties.isValid())
            return;
        followed->isKnown = true;
        followed->properties = properties.value();
        update(*followed);
        followed->isFound = false;
    });
}

void Bearers::propertiesChanged(const QDBusMessage &message)
{
    const auto followed = bearers.find(message.path());
    if (followed == bearers.end() || !followed->isKnown)
        return;
    followed->properties.insert(qdbus_cast<QVariantMap>(message.arguments().value(1)));
    update(*followed);
}

// The end of a connection takes its interface away, and comes with what was counted last.
void Bearers::update(Followed &followed)
{
    const bool wasOn = followed.isOn;
    followed.isOn = reading.value<bool>(followed.properties, "Connected").value_or(false);
    if (!followed.isOn && !wasOn)
        return;
    if (!wasOn)
        begin(followed);
    count(followed);
    emit reported(followed.session);
    if (!followed.isOn) {
        followed.ended = reading.map(followed.properties, "Stats").value_or(QVariantMap());
        emit gone(followed.session.id);
    }
}

void Bearers::begin(Followed &followed)
{
    const QVariantMap settings = reading.map(followed.properties, "Properties").value_or(QVariantMap());
    const QVariantMap stats = reading.map(followed.properties, "Stats").value_or(QVariantMap());
    // What stands there is still the count of the connection before, where that comes without this one's.
    const bool isOld = followed.ended && *followed.ended == stats;
    followed.session = {followed.session.id,
                        reading.value<QString>(settings, "apn").value_or(QString()).toLatin1(),
                        {},
                        {},
                        isOld ? std::nullopt : durationOf(reading, stats),
                        isOld ? std::nullopt : startOf(reading, stats),
                        followed.isFound};
}

void Bearers::count(Followed &followed)
{
    const QString interface = reading.value<QString>(followed.properties, "Interface").value_or(QString());
    if (!interface.isEmpty())
        followed.session.interface = interface;
    const QVariantMap stats = reading.map(followed.properties, "Stats").value_or(QVariantMap());
    const bool isOld = followed.ended && *followed.ended == stats;
    if (!isOld)
        followed.ended.reset();
    followed.session.counted.reset();
    if (reading.value<bool>(followed.properties, "ReloadStatsSupported").value_or(false))
        followed.session.counted = isOld ? live::Bytes() : bytesOf(reading, stats);
}

void Bearers::forget(const QString &path)
{
    const bool wasOn = bearers.take(path).isOn;
    if (wasOn)
        emit gone(path);
}

} // namespace handset::modemmanager
