#include "modemmanager/ModemManagerModem.h"

#include "live/Question.h"
#include "modemmanager/Asking.h"
#include "modemmanager/Bearers.h"
#include "modemmanager/VoiceCalls.h"

#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusObjectPath>

#include <algorithm>

namespace handset::modemmanager {

namespace {

const QString serviceName = QStringLiteral("org.freedesktop.ModemManager1");
const QString rootPath = QStringLiteral("/org/freedesktop/ModemManager1");
const QString objectManager = QStringLiteral("org.freedesktop.DBus.ObjectManager");
const QString modemInterface = QStringLiteral("org.freedesktop.ModemManager1.Modem");
const QString voiceInterface = QStringLiteral("org.freedesktop.ModemManager1.Modem.Voice");
const QString networkInterface = QStringLiteral("org.freedesktop.ModemManager1.Modem.Modem3gpp");

using live::NoModem;
using Interfaces = QMap<QString, QVariantMap>;
using Objects = QMap<QDBusObjectPath, Interfaces>;

// Nothing for what is no answer to GetManagedObjects.
std::optional<Objects> objectsIn(const QDBusMessage &answer)
{
    if (answer.type() != QDBusMessage::ReplyMessage || answer.signature() != QLatin1String("a{oa{sa{sv}}}"))
        return std::nullopt;
    return qdbus_cast<Objects>(answer.arguments().constFirst());
}

// Of Modem.State.
constexpr int stateLocked = 2;

// Modem.State.
QString stateName(int state)
{
    constexpr int first = -1;
    static const char *const words[] = {"failed",        "unknown",    "initializing", "locked",    "disabled",
                                        "disabling",     "enabling",   "enabled",      "searching", "registered",
                                        "disconnecting", "connecting", "connected"};
    const int index = state - first;
    return index >= 0 && index < int{std::size(words)} ? QLatin1String(words[index]) : QStringLiteral("unknown");
}

// Modem.UnlockRequired, of a modem that is locked.
QString lockName(quint32 lock)
{
    static const char *const words[] = {"locked",       "locked",      "locked: PIN",
                                        "locked: PIN2", "locked: PUK", "locked: PUK2"};
    return QLatin1String(words[std::min<size_t>(lock, std::size(words)) % std::size(words)]);
}

// By the daemon's plugins: those of modems that tell by themselves what becomes of a call. One without AT commands does, too.
VoiceCalls::News newsOf(Reading &reading, const QVariantMap &modem)
{
    static const QStringList telling{QStringLiteral("cinterion"), QStringLiteral("huawei"),
                                     QStringLiteral("simtech"), QStringLiteral("u-blox")};
    constexpr quint32 atCommands = 3; // of MMModemPortType
    const QString port = reading.value<QString>(modem, "PrimaryPort").value_or(QString());
    const QString plugin = reading.value<QString>(modem, "Plugin").value_or(QString());
    const bool isAsked = Reading::kindOfPort(modem, port) == atCommands && !telling.contains(plugin);
    return isAsked ? VoiceCalls::News::Asked : VoiceCalls::News::Told;
}

} // namespace

bool isModemPresent(int longestMs)
{
    const auto objects = objectsIn(
        live::askAndWait(serviceName, rootPath, objectManager, QStringLiteral("GetManagedObjects"), longestMs));
    return objects && std::any_of(objects->begin(), objects->end(), [](const Interfaces &interfaces) {
               return interfaces.contains(modemInterface);
           });
}

ModemManagerModem::ModemManagerModem(const QString &address, live::Patience waits)
    : source(serviceName, address, waits.reconnectMs)
    , patience(waits)
{
    connect(&source, &live::BusDaemon::appeared, this, [this] { daemonAppeared(); });
    connect(&source, &live::BusDaemon::vanished, this, [this] {
        whyNone = NoModem::DaemonIsNotRunning;
        modems.clear();
        loseModem();
        emit stateChanged();
    });
}

ModemManagerModem::~ModemManagerModem() = default;

QString ModemManagerModem::connectToBus(int longestMs)
{
    isStarted = true;
    return source.start(longestMs) ? QString() : live::noSystemBus(source.error());
}

void ModemManagerModem::start()
{
    if (!isStarted)
        connectToBus();
}

void ModemManagerModem::daemonAppeared()
{
    whyNone = NoModem::IsAsked;
    QDBusConnection bus = source.bus();
    bus.connect(source.owner(), rootPath, objectManager, QStringLiteral("InterfacesAdded"),
                QStringLiteral("oa{sa{sv}}"), this, SLOT(interfacesAdded(QDBusMessage)));
    bus.connect(source.owner(), rootPath, objectManager, QStringLiteral("InterfacesRemoved"),
                QStringLiteral("oas"), this, SLOT(interfacesRemoved(QDBusMessage)));
    for (const QString &interface : {modemInterface, networkInterface})
        bus.connect(source.owner(), {}, propertiesInterface, QStringLiteral("PropertiesChanged"), {interface},
                    QStringLiteral("sa{sv}as"), this, SLOT(propertiesChanged(QDBusMessage)));
    listModems();
    emit stateChanged();
}

// Until it is answered, by this daemon.
void ModemManagerModem::listModems()
{
    const QString asked = source.owner();
    const QDBusMessage question =
        QDBusMessage::createMethodCall(asked, rootPath, objectManager, QStringLiteral("GetManagedObjects"));
    live::ask(source.bus(), question, patience.answerMs, this, [this, asked](const QDBusMessage &answer) {
        if (asked != source.owner())
            return;
        const bool isError = answer.type() == QDBusMessage::ErrorMessage;
        if (isError && isNoAnswer(QDBusError(answer)))
            return listModems();
        const std::optional<Objects> objects = objectsIn(answer);
        if (!objects) {
            const bool isDenied = isError && QDBusError(answer).type() == QDBusError::AccessDenied;
            whyNone = isDenied ? NoModem::IsClosed : NoModem::IsUntold;
            reading.warn("GetManagedObjects", isError ? answer.errorMessage() : answer.signature());
            emit stateChanged();
            return;
        }
        whyNone = NoModem::IsNone;
        for (auto object = objects->begin(); object != objects->end(); ++object)
            add(object.key().path(), object.value());
        choose();
        emit stateChanged();
    });
}

void ModemManagerModem::add(const QString &path, const Interfaces &interfaces)
{
    for (auto interface = interfaces.begin(); interface != interfaces.end(); ++interface)
        modems[path][interface.key()] = interface.value();
}

// In the order of their numbers, which are given in the order of their coming.
void ModemManagerModem::choose()
{
    if (modemPath.isEmpty()) {
        QStringList all = modems.keys();
        std::stable_sort(all.begin(), all.end(),
                         [](const QString &one, const QString &other) { return one.size() < other.size(); });
        const auto has = [this](const QString &interface) {
            return [this, interface](const QString &path) { return modems.value(path).contains(interface); };
        };
        auto chosen = std::find_if(all.begin(), all.end(), has(voiceInterface));
        if (chosen == all.end())
            chosen = std::find_if(all.begin(), all.end(), has(modemInterface));
        if (chosen == all.end())
            return;
        modemPath = *chosen;
    }
    followVoice();
    readModem();
}

void ModemManagerModem::followVoice()
{
    if (!modems.value(modemPath).contains(voiceInterface)) {
        const QStringList running = voice ? voice->ids() : QStringList();
        voice.reset();
        for (const QString &id : running)
            emit callGone(id);
        return;
    }
    if (voice)
        return;
    const VoiceCalls::News news = newsOf(reading, modems.value(modemPath).value(modemInterface));
    voice = std::make_unique<VoiceCalls>(source, modemPath, news, reading, patience);
    connect(voice.get(), &VoiceCalls::reported, this, &ModemManagerModem::callReported);
    connect(voice.get(), &VoiceCalls::gone, this, &ModemManagerModem::callGone);
    connect(voice.get(), &VoiceCalls::refused, this, &ModemManagerModem::refused);
}

void ModemManagerModem::readModem()
{
    if (!bearers) {
        bearers = std::make_unique<Bearers>(source, reading, patience);
        connect(bearers.get(), &Bearers::reported, this, &ModemManagerModem::sessionReported);
        connect(bearers.get(), &Bearers::gone, this, &ModemManagerModem::sessionGone);
    }
    if (const auto paths = reading.paths(modems[modemPath][modemInterface], "Bearers"))
        bearers->setPaths(*paths);
}

void ModemManagerModem::loseModem()
{
    if (modemPath.isEmpty())
        return;
    modemPath.clear();
    voice.reset();
    bearers.reset();
    emit lost();
}

void ModemManagerModem::interfacesAdded(const QDBusMessage &message)
{
    if (whyNone != NoModem::IsNone)
        return;
    const QList<QVariant> values = message.arguments();
    add(values.value(0).value<QDBusObjectPath>().path(), qdbus_cast<Interfaces>(values.value(1)));
    choose();
    emit stateChanged();
}

void ModemManagerModem::interfacesRemoved(const QDBusMessage &message)
{
    if (whyNone != NoModem::IsNone)
        return;
    const QString path = message.arguments().value(0).value<QDBusObjectPath>().path();
    const auto modem = modems.find(path);
    if (modem == modems.end())
        return;
    const QStringList removed = message.arguments().value(1).toStringList();
    for (const QString &interface : removed)
        modem->remove(interface);
    const bool isGone = !modem->contains(modemInterface);
    if (isGone)
        modems.erase(modem);
    if (isGone && path == modemPath)
        loseModem();
    choose();
    emit stateChanged();
}

void ModemManagerModem::propertiesChanged(const QDBusMessage &message)
{
    const auto modem = modems.find(message.path());
    const QString interface = message.arguments().value(0).toString();
    if (modem == modems.end() || !modem->contains(interface))
        return;
    const auto changed = qdbus_cast<QVariantMap>(message.arguments().value(1));
    const live::ModemState before = state();
    (*modem)[interface].insert(changed);
    if (message.path() != modemPath)
        return;
    if (changed.contains(QStringLiteral("Bearers")))
        readModem();
    const live::ModemState now = state();
    if (now.name != before.name || now.network != before.network || now.status != before.status)
        emit stateChanged();
}

live::ModemState ModemManagerModem::state() const
{
    live::ModemState now;
    if (modemPath.isEmpty()) {
        now.status = live::inWords(whyNone, daemon());
        return now;
    }
    const QVariantMap modem = modems.value(modemPath).value(modemInterface);
    const auto text = [&](const QVariantMap &of, const char *name) {
        return reading.value<QString>(of, name).value_or(QString());
    };
    const int number = reading.value<int>(modem, "State").value_or(0);
    now.isThere = true;
    now.name = (text(modem, "Manufacturer") + QLatin1Char(' ') + text(modem, "Model")).trimmed();
    now.network = text(modems.value(modemPath).value(networkInterface), "OperatorName");
    now.status = live::stateInWords(number == stateLocked
                                        ? lockName(reading.value<quint32>(modem, "UnlockRequired").value_or(0))
                                        : stateName(number));
    return now;
}

int ModemManagerModem::dial(const QString &number)
{
    return voice ? voice->dial(number) : NotAvailable;
}

int ModemManagerModem::answer(const QString &id)
{
    return voice ? voice->answer(id) : NotAvailable;
}

int ModemManagerModem::hangUp(const QString &id)
{
    return voice ? voice->hangUp(id) : NotAvailable;
}

} // namespace handset::modemmanager
