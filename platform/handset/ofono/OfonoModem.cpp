#include "ofono/OfonoModem.h"

#include "handset/DialedNumber.h"
#include "ofono/OfonoProxies.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>
#include <QtDBus/QDBusMetaType>

#include <algorithm>
#include <array>
#include <utility>

namespace handset::ofono {

namespace {

constexpr auto serviceName = "org.ofono";

struct Signal {
    const char *interface;
    const char *name;
    const char *signature;
};

// Of whatever object: a rule for each object would come too late for what that says first.
constexpr std::array heardSignals{
    Signal{"Manager", "ModemAdded", "oa{sv}"},
    Signal{"Manager", "ModemRemoved", "o"},
    Signal{"Modem", "PropertyChanged", "sv"},
    Signal{"VoiceCallManager", "CallAdded", "oa{sv}"},
    Signal{"VoiceCallManager", "CallRemoved", "o"},
    Signal{"VoiceCall", "PropertyChanged", "sv"},
    Signal{"VoiceCall", "DisconnectReason", "s"},
    Signal{"ConnectionManager", "ContextAdded", "oa{sv}"},
    Signal{"ConnectionManager", "ContextRemoved", "o"},
    Signal{"ConnectionContext", "PropertyChanged", "sv"},
    Signal{"NetworkRegistration", "PropertyChanged", "sv"},
    Signal{"CallMeter", "PropertyChanged", "sv"},
    Signal{"SimManager", "PropertyChanged", "sv"},
};

QString fullName(const char *interface)
{
    return QLatin1String(serviceName) + QLatin1Char('.') + QLatin1String(interface);
}

QString shortName(const QString &interface)
{
    return interface.mid(static_cast<qsizetype>(qstrlen(serviceName)) + 1);
}

std::optional<CallPhase> phaseOf(const QString &state)
{
    constexpr std::array names{
        std::pair("dialing", CallPhase::Dialing),   std::pair("alerting", CallPhase::Alerting),
        std::pair("incoming", CallPhase::Incoming), std::pair("waiting", CallPhase::Waiting),
        std::pair("active", CallPhase::Active),     std::pair("held", CallPhase::Held),
        std::pair("disconnected", CallPhase::Over)};
    const auto *const found = std::find_if(names.begin(), names.end(),
                                           [&](const auto &name) { return state == QLatin1String(name.first); });
    return found == names.end() ? std::nullopt : std::optional(found->second);
}

// The daemon has said nothing; it may be there all the same.
bool isNoAnswer(const QDBusError &error)
{
    return error.type() == QDBusError::NoReply || error.type() == QDBusError::Timeout ||
           error.type() == QDBusError::TimedOut;
}

// What the daemon says of its errors is for programmers.
QString reasonOf(const QDBusError &error)
{
    static const QHash<QString, QString> reasons{
        {QStringLiteral("InProgress"), QCoreApplication::translate("handset", "it is busy")},
        {QStringLiteral("NotAvailable"), QCoreApplication::translate("handset", "it is not ready for that")},
        {QStringLiteral("NotImplemented"), QCoreApplication::translate("handset", "the modem cannot do that")},
        {QStringLiteral("NotSupported"), QCoreApplication::translate("handset", "the modem cannot do that")},
        {QStringLiteral("InvalidFormat"), QCoreApplication::translate("handset", "that is no number to call")},
        {QStringLiteral("NotRegistered"), QCoreApplication::translate("handset", "there is no network")},
        {QStringLiteral("AccessDenied"), QCoreApplication::translate("handset", "this user may not")},
    };
    if (isNoAnswer(error))
        return QCoreApplication::translate("handset", "it does not answer");
    const QString name = error.name().section(QLatin1Char('.'), -1);
    return reasons.value(name, QCoreApplication::translate("handset", "it failed (%1)").arg(name));
}

QVariant unpacked(const QVariant &value)
{
    return value.value<QDBusVariant>().variant();
}

QVariantMap mapOf(const QVariant &argument)
{
    return qdbus_cast<QVariantMap>(argument.value<QDBusArgument>());
}

QString pathOf(const QVariant &argument)
{
    return argument.value<QDBusObjectPath>().path();
}

} // namespace

bool isModemPresent(int longestMs)
{
    const QDBusMessage answer = live::askAndWait(QLatin1String(serviceName), QStringLiteral("/"),
                                                 fullName("Manager"), QStringLiteral("GetModems"), longestMs);
    return answer.type() == QDBusMessage::ReplyMessage && answer.signature() == QLatin1String("a(oa{sv})") &&
           !qdbus_cast<Objects>(answer.arguments().constFirst()).isEmpty();
}

OfonoModem::OfonoModem(const live::Patience &howPatient)
    : patience(howPatient)
    , service(QLatin1String(serviceName), live::systemBusAddress(), howPatient.reconnectMs)
{
    qDBusRegisterMetaType<Object>();
    qDBusRegisterMetaType<Objects>();
    connect(&service, &live::BusDaemon::appeared, this, &OfonoModem::appeared);
    connect(&service, &live::BusDaemon::vanished, this, &OfonoModem::vanished);
}

// --- the daemon

QString OfonoModem::connectToBus(int longestMs)
{
    isStarted = true;
    return service.start(longestMs) ? QString() : live::noSystemBus(service.error());
}

void OfonoModem::start()
{
    if (!isStarted)
        connectToBus();
}

void OfonoModem::appeared()
{
    owner = service.owner();
    whyNone = live::NoModem::IsAsked;
    serviceLife = std::make_unique<QObject>();
    subscribe(true);
    askForModems();
    emit stateChanged();
}

void OfonoModem::vanished()
{
    subscribe(false);
    serviceLife.reset();
    modems.clear();
    whyNone = live::NoModem::DaemonIsNotRunning;
    owner.clear();
    choose();
}

void OfonoModem::subscribe(bool on)
{
    QDBusConnection bus = service.bus();
    for (const Signal &signal : heardSignals) {
        const QString interface = fullName(signal.interface);
        const QString name = QLatin1String(signal.name);
        if (on)
            bus.connect(owner, QString(), interface, name, this, SLOT(heard(QDBusMessage)));
        else
            bus.disconnect(owner, QString(), interface, name, this, SLOT(heard(QDBusMessage)));
    }
}

void OfonoModem::heard(const QDBusMessage &signal)
{
    const QString interface = shortName(signal.interface());
    const auto *const expected = std::find_if(heardSignals.begin(), heardSignals.end(), [&](const Signal &one) {
        return interface == QLatin1String(one.interface) && signal.member() == QLatin1String(one.name);
    });
    if (expected == heardSignals.end() || signal.signature() != QLatin1String(expected->signature)) {
        properties.warn(interface + QLatin1Char('.') + signal.member());
        return;
    }
    const QList<QVariant> values = signal.arguments();
    if (signal.member() == QLatin1String("PropertyChanged")) {
        propertyHeard(interface, signal.path(), values[0].toString(), unpacked(values[1]));
    } else if (signal.member() == QLatin1String("DisconnectReason")) {
        if (const auto call = calls.find(signal.path()); call != calls.end())
            call->reason = values[0].toString();
    } else {
        heardOfModem(interface, signal);
    }
}

// Of objects that come and go: the lists of the manager, and of the modem that is followed.
void OfonoModem::heardOfModem(const QString &interface, const QDBusMessage &signal)
{
    const QList<QVariant> values = signal.arguments();
    const QString path = pathOf(values[0]);
    const bool isAdded = values.size() > 1;
    if (interface == QLatin1String("Manager")) {
        if (isAdded)
            modemAdded(path, mapOf(values[1]));
        else
            modems.removeIf([&](const Known &modem) { return modem.path == path; });
        choose();
    } else if (signal.path() == current && interface == QLatin1String("VoiceCallManager") && voice) {
        if (isAdded)
            callAdded(path, mapOf(values[1]), false);
        else
            callRemoved(path);
    } else if (signal.path() == current && interface == QLatin1String("ConnectionManager") && data) {
        if (isAdded)
            contextAdded(path, mapOf(values[1]), false);
        else
            contextRemoved(path);
    }
}

void OfonoModem::propertyHeard(const QString &interface, const QString &path, const QString &name,
                               const QVariant &value)
{
    if (interface == QLatin1String("Modem")) {
        if (Known *const modem = known(path)) {
            setModemProperty(*modem, name, value);
            choose();
        }
    } else if (interface == QLatin1String("VoiceCall")) {
        if (const auto call = calls.find(path); call != calls.end()) {
            setCallProperty(*call, name, value);
            report(*call);
        }
    } else if (interface == QLatin1String("ConnectionContext")) {
        if (const auto context = contexts.find(path); context != contexts.end()) {
            setContextProperty(*context, name, value);
            report(path, *context);
        }
    } else if (path == current && interface == QLatin1String("NetworkRegistration")) {
        setNetworkProperty(name, value);
    } else if (path == current) {
        emit propertyTold(interface, name, value);
    }
}

// --- modems

// Until it is answered, by this daemon.
void OfonoModem::askForModems()
{
    whenTold<Objects>(proxy<OrgOfonoManagerInterface>(QStringLiteral("/")), "GetModems", serviceLife.get(),
                      [this](const QDBusReply<Objects> &answer) {
                          if (!answer.isValid() && isNoAnswer(answer.error())) {
                              askForModems();
                              return;
                          }
                          if (!answer.isValid()) {
                              whyNone = answer.error().type() == QDBusError::AccessDenied
                                            ? live::NoModem::IsClosed
                                            : live::NoModem::IsUntold;
                              properties.warn(QStringLiteral("its modems"), answer.error().message());
                              emit stateChanged();
                              return;
                          }
                          for (const Object &modem : answer.value())
                              modemAdded(modem.path.path(), modem.properties);
                          whyNone = live::NoModem::IsNone;
                          choose();
                      });
}

OfonoModem::Known *OfonoModem::known(const QString &path)
{
    const auto found =
        std::find_if(modems.begin(), modems.end(), [&](const Known &modem) { return modem.path == path; });
    return found == modems.end() ? nullptr : &*found;
}

const OfonoModem::Known *OfonoModem::currentModem() const
{
    return const_cast<OfonoModem *>(this)->known(current);
}

void OfonoModem::modemAdded(const QString &path, const QVariantMap &values)
{
    if (!known(path))
        modems.append({path, false, {}, {}, {}, {}});
    Known &modem = *known(path);
    for (auto value = values.begin(); value != values.end(); ++value)
        setModemProperty(modem, value.key(), value.value());
}

void OfonoModem::setModemProperty(Known &modem, const QString &name, const QVariant &value)
{
    const QString told = QStringLiteral("Modem.") + name;
    if (name == QLatin1String("Online"))
        properties.take(told, value, modem.isOnline);
    else if (name == QLatin1String("Interfaces"))
        properties.take(told, value, modem.interfaces);
    else if (name == QLatin1String("Name"))
        properties.take(told, value, modem.name);
    else if (name == QLatin1String("Manufacturer"))
        properties.take(told, value, modem.maker);
    else if (name == QLatin1String("Model"))
        properties.take(told, value, modem.model);
}

void OfonoModem::choose()
{
    const Known *chosen = currentModem();
    if (!chosen || !chosen->isOnline) {
        const auto online = std::find_if(modems.constBegin(), modems.constEnd(),
                                         [](const Known &modem) { return modem.isOnline; });
        if (online != modems.constEnd())
            chosen = &*online;
        else if (!chosen && !modems.isEmpty())
            chosen = &modems.constFirst();
    }
    follow(chosen ? chosen->path : QString());
    followInterfaces();
    emit stateChanged();
}

void OfonoModem::follow(const QString &path)
{
    if (path == current)
        return;
    const bool wasThere = !current.isEmpty();
    followed.clear();
    calls.clear();
    contexts.clear();
    voice.reset();
    data.reset();
    endNetwork();
    current = path;
    if (wasThere)
        emit lost();
    emit interfacesChanged();
}

// An interface that is gone takes with it what it has reported: nothing else will tell the end of that.
void OfonoModem::followInterfaces()
{
    const Known *const modem = currentModem();
    const QStringList now = modem ? modem->interfaces : QStringList();
    if (now == followed)
        return;
    followed = now;
    if (has("VoiceCallManager") != (voice != nullptr))
        voice ? endVoice() : beginVoice();
    if (has("ConnectionManager") != (data != nullptr))
        data ? endData() : beginData();
    if (has("NetworkRegistration") != (registration != nullptr))
        registration ? endNetwork() : beginNetwork();
    emit interfacesChanged();
}

bool OfonoModem::has(const char *interface) const
{
    return followed.contains(fullName(interface));
}

live::ModemState OfonoModem::state() const
{
    const Known *const modem = currentModem();
    if (!modem) {
        return {false, {}, {}, live::inWords(whyNone, daemon())};
    }
    const QString made = (modem->maker + QLatin1Char(' ') + modem->model).trimmed();
    return {true, modem->name.isEmpty() ? made : modem->name, network,
            live::stateInWords(modem->isOnline ? networkStatus : QStringLiteral("offline"))};
}

// --- calls

void OfonoModem::beginVoice()
{
    voice = std::make_unique<QObject>();
    whenTold<Objects>(proxy<OrgOfonoVoiceCallManagerInterface>(), "GetCalls", voice.get(),
                      [this](const QDBusReply<Objects> &answer) {
                          if (!answer.isValid()) {
                              properties.warn(QStringLiteral("the calls that there are"));
                              return;
                          }
                          for (const Object &call : answer.value())
                              callAdded(call.path.path(), call.properties, !calls.contains(call.path.path()));
                      });
}

void OfonoModem::endVoice()
{
    voice.reset();
    const QStringList ended = calls.keys();
    calls.clear();
    for (const QString &path : ended)
        emit callGone(path);
}

// One that is connected when it is first told has been going on: the daemon has found it itself.
void OfonoModem::callAdded(const QString &path, const QVariantMap &values, bool isFound)
{
    const bool isNew = !calls.contains(path);
    Call &call = calls[path];
    call.reported.id = path;
    for (auto value = values.begin(); value != values.end(); ++value)
        setCallProperty(call, value.key(), value.value());
    call.reported.isFound =
        isFound || (isNew && (call.phase == CallPhase::Active || call.phase == CallPhase::Held));
    report(call);
}

void OfonoModem::callRemoved(const QString &path)
{
    if (!calls.contains(path))
        return;
    const Call ended = calls.take(path);
    emit callGone(path);
    sayWhyNotConnected(ended);
}

void OfonoModem::setCallProperty(Call &call, const QString &name, const QVariant &value)
{
    const QString told = QStringLiteral("VoiceCall.") + name;
    if (name == QLatin1String("State")) {
        setPhase(call, value);
    } else if (name == QLatin1String("LineIdentification")) {
        properties.take(told, value, call.reported.number);
        if (call.reported.number == QLatin1String("withheld"))
            call.reported.number.clear();
    } else if (QString text; name == QLatin1String("StartTime") && properties.take(told, value, text)) {
        // A daemon that was started after the call says the first second that there is: it does not know.
        const QDateTime start = QDateTime::fromString(text, Qt::ISODate);
        if (!start.isValid())
            properties.warn(told);
        else if (start.toMSecsSinceEpoch() > 0)
            call.reported.connectedWallMs = start.toMSecsSinceEpoch();
    }
}

// Once a phase has been seen to change, nothing before it is unknown.
void OfonoModem::setPhase(Call &call, const QVariant &value)
{
    const QString told = QStringLiteral("VoiceCall.State");
    QString text;
    if (!properties.take(told, value, text))
        return;
    const std::optional<CallPhase> phase = phaseOf(text);
    if (!phase) {
        properties.warn(told);
        return;
    }
    if (!call.phase)
        call.wasDialed = *phase == CallPhase::Dialing || *phase == CallPhase::Alerting;
    else if (*phase != *call.phase)
        call.reported.isFound = false;
    if (*phase == CallPhase::Active)
        call.wasDialed = false;
    call.phase = phase;
    call.reported.phase = *phase;
}

void OfonoModem::report(Call &call)
{
    if (call.phase)
        emit callReported(live::ReportedCall(call.reported));
}

void OfonoModem::sayWhyNotConnected(const Call &call)
{
    if (call.wasDialed && call.reason == QLatin1String("network"))
        emit refused(QCoreApplication::translate("handset", "The network has not put the call through."));
}

void OfonoModem::sayWhenRefused(const QDBusPendingCall &asked, const QString &what)
{
    whenAnswered(asked, voice.get(), [this, what](const QDBusPendingCall &answer) {
        if (answer.isError())
            emit refused(what.arg(reasonOf(answer.error())));
    });
}

int OfonoModem::dial(const QString &number)
{
    if (!voice)
        return NotAvailable;
    if (!isDialable(number))
        return InvalidArgument;
    const auto manager = proxy<OrgOfonoVoiceCallManagerInterface>();
    manager->setTimeout(patience.dialingMs);
    sayWhenRefused(manager->Dial(number, QString()),
                   QCoreApplication::translate("handset", "The telephone does not dial: %1."));
    return Success;
}

int OfonoModem::answer(const QString &id)
{
    if (!voice)
        return NotAvailable;
    const auto call = calls.constFind(id);
    if (call == calls.constEnd())
        return InvalidArgument;
    // The daemon has one way to take a call that rings, and another for one that waits beside the call that is spoken.
    const QDBusPendingCall asked = call->phase == CallPhase::Waiting
                                       ? proxy<OrgOfonoVoiceCallManagerInterface>()->HoldAndAnswer()
                                       : proxy<OrgOfonoVoiceCallInterface>(id)->Answer();
    sayWhenRefused(asked, QCoreApplication::translate("handset", "The telephone does not take the call: %1."));
    return Success;
}

int OfonoModem::hangUp(const QString &id)
{
    if (!voice)
        return NotAvailable;
    if (!calls.contains(id))
        return InvalidArgument;
    sayWhenRefused(proxy<OrgOfonoVoiceCallInterface>(id)->Hangup(),
                   QCoreApplication::translate("handset", "The telephone does not end the call: %1."));
    return Success;
}

// --- data connections

void OfonoModem::beginData()
{
    data = std::make_unique<QObject>();
    whenTold<Objects>(proxy<OrgOfonoConnectionManagerInterface>(), "GetContexts", data.get(),
                      [this](const QDBusReply<Objects> &answer) {
                          if (!answer.isValid()) {
                              properties.warn(QStringLiteral("the data connections that there are"));
                              return;
                          }
                          for (const Object &context : answer.value())
                              contextAdded(context.path.path(), context.properties,
                                           !contexts.contains(context.path.path()));
                      });
}

void OfonoModem::endData()
{
    data.reset();
    const QHash<QString, Context> ended = std::exchange(contexts, {});
    for (auto context = ended.begin(); context != ended.end(); ++context)
        if (context->isReported)
            emit sessionGone(context.key());
}

void OfonoModem::contextAdded(const QString &path, const QVariantMap &values, bool isFound)
{
    Context &context = contexts[path];
    for (auto value = values.begin(); value != values.end(); ++value)
        setContextProperty(context, value.key(), value.value());
    context.isFound = isFound && context.isActive;
    report(path, context);
}

void OfonoModem::contextRemoved(const QString &path)
{
    const Context ended = contexts.take(path);
    if (ended.isReported)
        emit sessionGone(path);
}

void OfonoModem::setContextProperty(Context &context, const QString &name, const QVariant &value)
{
    const QString told = QStringLiteral("ConnectionContext.") + name;
    const auto takeInterface = [&](QString &interface) {
        QVariantMap settings;
        if (!properties.take(told, value, settings))
            return;
        interface.clear();
        if (const QVariant named = settings.value(QStringLiteral("Interface")); named.isValid())
            properties.take(told + QStringLiteral(".Interface"), named, interface);
    };
    if (name == QLatin1String("Active")) {
        properties.take(told, value, context.isActive);
    } else if (name == QLatin1String("Settings")) {
        takeInterface(context.interface);
    } else if (name == QLatin1String("IPv6.Settings")) {
        takeInterface(context.interface6);
    } else if (QString text; name == QLatin1String("AccessPointName") && properties.take(told, value, text)) {
        context.apn = text.toLatin1();
    }
}

void OfonoModem::report(const QString &path, Context &context)
{
    const bool wasReported = std::exchange(context.isReported, context.isActive);
    if (context.isActive) {
        const QString interface = context.interface.isEmpty() ? context.interface6 : context.interface;
        emit sessionReported({path, context.apn, interface, {}, {}, {}, context.isFound});
    } else if (wasReported) {
        emit sessionGone(path);
    }
}

// --- the network

void OfonoModem::beginNetwork()
{
    registration = std::make_unique<QObject>();
    whenTold<QVariantMap>(proxy<OrgOfonoNetworkRegistrationInterface>(), "GetProperties", registration.get(),
                          [this](const QDBusReply<QVariantMap> &answer) {
                              const QVariantMap values = answer.isValid() ? answer.value() : QVariantMap();
                              for (auto value = values.begin(); value != values.end(); ++value)
                                  setNetworkProperty(value.key(), value.value());
                          });
}

void OfonoModem::endNetwork()
{
    registration.reset();
    network.clear();
    networkStatus.clear();
}

void OfonoModem::setNetworkProperty(const QString &name, const QVariant &value)
{
    const QString told = QStringLiteral("NetworkRegistration.") + name;
    if ((name == QLatin1String("Name") && properties.take(told, value, network)) ||
        (name == QLatin1String("Status") && properties.take(told, value, networkStatus)))
        emit stateChanged();
}

} // namespace handset::ofono
