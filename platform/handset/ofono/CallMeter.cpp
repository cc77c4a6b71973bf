#include "ofono/CallMeter.h"

#include "charging/Pin2.h"
#include "ofono/OfonoProxies.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QEventLoop>
#include <QtCore/QTimer>

#include <algorithm>
#include <cmath>

namespace handset::ofono {

namespace {

bool isNamed(const QDBusError &error, const char *name)
{
    return error.name() == QStringLiteral("org.ofono.Error.") + QLatin1String(name);
}

CallMeter::Outcome outcomeOf(const QDBusPendingCall &answer)
{
    using Outcome = CallMeter::Outcome;
    if (!answer.isError())
        return Outcome::Written;
    if (isNamed(answer.error(), "InvalidFormat") || isNamed(answer.error(), "InvalidArguments"))
        return Outcome::Malformed;
    if (isNamed(answer.error(), "NotImplemented") || answer.error().type() == QDBusError::UnknownObject ||
        answer.error().type() == QDBusError::UnknownMethod ||
        answer.error().type() == QDBusError::UnknownInterface)
        return Outcome::NotThere;
    const auto type = answer.error().type();
    const bool isSilence = type == QDBusError::NoReply || type == QDBusError::Timeout ||
                           type == QDBusError::Disconnected || type == QDBusError::ServiceUnknown;
    return isSilence ? Outcome::Unanswered : Outcome::Refused;
}

// What a card can hold has at most seven decimals; a number in binary is only near it.
bool priceOf(double value, charging::UnitPrice &price)
{
    return std::isfinite(value) && value >= 0 &&
           charging::UnitPrice::fromText(QString::number(value, 'f', charging::UnitPrice::decimals), price) ==
               Success;
}

} // namespace

bool CallMeter::Values::isNothing() const
{
    return accumulated.value_or(0) == 0 && maximum.value_or(0) == 0 &&
           price.value_or(charging::UnitPrice()).isZero() && currency.value_or(QString()).isEmpty();
}

CallMeter::CallMeter(OfonoModem &owner, int longestWaitMs)
    : modem(owner)
    , waitMs(longestWaitMs)
{
    connect(&modem, &OfonoModem::interfacesChanged, this, &CallMeter::appearOrVanish);
    connect(&modem, &OfonoModem::propertyTold, this,
            [this](const QString &interface, const QString &name, const QVariant &value) {
                if (interface == QLatin1String("SimManager"))
                    takeSim(name, value);
                else if (life)
                    take(name, value);
                emit changed();
            });
}

void CallMeter::appearOrVanish()
{
    if (isThere() != (life != nullptr)) {
        values = {};
        isCardKnown = false;
        isMeterAsked = isThere();
        life.reset(isThere() ? new QObject : nullptr);
        refresh();
        emit changed();
    }
    const bool hasSim = modem.has("SimManager");
    if (hasSim != hadSim) {
        hadSim = hasSim;
        isSimAsked = hasSim;
        pin2Tries.reset();
        required.clear();
        askSim();
    }
}

void CallMeter::take(const QString &name, const QVariant &value)
{
    const QString told = QStringLiteral("CallMeter.") + name;
    PropertyReader &reader = modem.reader();
    if (uint units = 0; name == QLatin1String("CallMeter")) {
        if (reader.take(told, value, units))
            emit currentTold(units);
    } else if (name == QLatin1String("AccumulatedCallMeter")) {
        if (reader.take(told, value, units))
            values.accumulated = units;
    } else if (name == QLatin1String("AccumulatedCallMeterMaximum")) {
        if (reader.take(told, value, units))
            values.maximum = units;
    } else if (name == QLatin1String("PricePerUnit")) {
        double number = 0;
        charging::UnitPrice price;
        if (reader.take(told, value, number) && priceOf(number, price))
            values.price = price;
    } else if (QString text; name == QLatin1String("Currency") && reader.take(told, value, text)) {
        values.currency = text;
    }
    isCardKnown = isCardKnown || !values.isNothing();
}

// The current call's meter is news when it is told by itself only: in a list it may be the last call's.
void CallMeter::takeAll(const QVariantMap &all)
{
    for (auto value = all.begin(); value != all.end(); ++value)
        if (value.key() != QLatin1String("CallMeter"))
            take(value.key(), value.value());
    emit changed();
    if (accumulated() && all.contains(QStringLiteral("AccumulatedCallMeter")))
        emit accumulatedRead(*accumulated());
}

void CallMeter::refresh()
{
    if (!life)
        return;
    OfonoModem::whenTold<QVariantMap>(modem.proxy<OrgOfonoCallMeterInterface>(), "GetProperties", life.get(),
                                      [this](const QDBusReply<QVariantMap> &answer) {
                                          if (isNamed(answer.error(), "InProgress")) {
                                              QTimer::singleShot(retryMs, life.get(), [this] { refresh(); });
                                              return;
                                          }
                                          isMeterAsked = false;
                                          if (answer.isValid())
                                              takeAll(answer.value());
                                      });
}

void CallMeter::takeSim(const QString &name, const QVariant &value)
{
    const QString told = QStringLiteral("SimManager.") + name;
    if (name == QLatin1String("PinRequired")) {
        modem.reader().take(told, value, required);
    } else if (QMap<QString, uchar> tries;
               name == QLatin1String("Retries") && modem.reader().take(told, value, tries)) {
        pin2Tries = tries.contains(QStringLiteral("pin2")) ? std::optional<int>(tries[QStringLiteral("pin2")])
                                                           : std::nullopt;
    }
}

void CallMeter::askSim()
{
    if (!modem.has("SimManager"))
        return;
    OfonoModem::whenTold<QVariantMap>(modem.proxy<OrgOfonoSimManagerInterface>(), "GetProperties", this,
                                      [this](const QDBusReply<QVariantMap> &answer) {
                                          isSimAsked = false;
                                          const QVariantMap all =
                                              answer.isValid() ? answer.value() : QVariantMap();
                                          for (auto value = all.begin(); value != all.end(); ++value)
                                              takeSim(value.key(), value.value());
                                          emit changed();
                                      });
}

// --- waiting

void CallMeter::beginSeries()
{
    isSeries = true;
    deadlineMs = QDeadlineTimer(waitMs).deadline();
}

int CallMeter::leftMs() const
{
    const qint64 left = deadlineMs - QDeadlineTimer::current().deadline();
    return static_cast<int>(std::clamp<qint64>(left, 0, waitMs));
}

// What `begin` starts belongs to `context`, and calls `done`; when the time is up, or the meter gone, it is forgotten.
void CallMeter::waitFor(const std::function<void(QObject *, const std::function<void()> &)> &begin)
{
    if (!isSeries)
        deadlineMs = QDeadlineTimer(waitMs).deadline();
    isWaiting = true;
    QObject context;
    QEventLoop loop;
    QTimer::singleShot(leftMs(), Qt::PreciseTimer, &loop, &QEventLoop::quit);
    connect(&modem, &OfonoModem::interfacesChanged, &loop, [&] {
        if (!isThere())
            loop.quit();
    });
    emit waiting(true);
    begin(&context, [&loop] { loop.quit(); });
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    isWaiting = false;
    emit waiting(false);
}

CallMeter::Outcome CallMeter::ask(const Send &send)
{
    if (!isThere())
        return Outcome::NotThere;
    if (isWaiting)
        return Outcome::Unanswered;
    Outcome outcome = Outcome::Unanswered;
    std::function<void()> tryIt;
    waitFor([&](QObject *context, const std::function<void()> &done) {
        const auto readAgain = [this, context, done] {
            OfonoModem::whenTold<QVariantMap>(modem.proxy<OrgOfonoCallMeterInterface>(), "GetProperties", context,
                                              [this, done](const QDBusReply<QVariantMap> &answer) {
                                                  if (answer.isValid())
                                                      takeAll(answer.value());
                                                  done();
                                              });
        };
        tryIt = [&, context, done, readAgain] {
            OfonoModem::whenAnswered(send(), context,
                                     [&, context, done, readAgain](const QDBusPendingCall &answer) {
                                         if (isNamed(answer.error(), "InProgress")) {
                                             QTimer::singleShot(retryMs, context, [&tryIt] { tryIt(); });
                                             return;
                                         }
                                         outcome = outcomeOf(answer);
                                         if (outcome != Outcome::Written)
                                             return done();
                                         isCardKnown = true;
                                         readAgain();
                                     });
        };
        tryIt();
    });
    if (!isThere())
        return Outcome::NotThere;
    // The right PIN2 gives all tries back; the daemon asks the card for them after a wrong one only.
    if (outcome == Outcome::Written && pin2Tries)
        pin2Tries = charging::Pin2Record::allTries;
    // The daemon may have done it all the same, and says so in its answer to this.
    if (outcome != Outcome::Written)
        refresh();
    return outcome;
}

CallMeter::Outcome CallMeter::write(const QString &property, const QVariant &value, const QByteArray &pin2)
{
    return ask([&] {
        return modem.proxy<OrgOfonoCallMeterInterface>()->SetProperty(property, QDBusVariant(value),
                                                                      QString::fromLatin1(pin2));
    });
}

CallMeter::Outcome CallMeter::reset(const QByteArray &pin2)
{
    const Outcome outcome =
        ask([&] { return modem.proxy<OrgOfonoCallMeterInterface>()->Reset(QString::fromLatin1(pin2)); });
    if (outcome == Outcome::Written)
        emit zeroed();
    return outcome;
}

// The daemon asks the card for them after it has told the failure.
bool CallMeter::hasCostATry(int before)
{
    const auto fewer = [&] { return pin2Tries && *pin2Tries < before; };
    if (!fewer() && !isWaiting)
        waitFor([&](QObject *context, const std::function<void()> &done) {
            connect(this, &CallMeter::changed, context, [fewer, done] {
                if (fewer())
                    done();
            });
            auto *const again = new QTimer(context);
            connect(again, &QTimer::timeout, this, &CallMeter::askSim);
            again->start(retryMs);
            askSim();
        });
    return fewer();
}

} // namespace handset::ofono
