// A modem's daemon on the bus: what it answers, when it does, what it signals meanwhile, and how it goes and comes again.
#include "fuzz/Fuzz.h"

#include "modemmanager/ModemManagerModem.h"
#include "ofono/CallMeter.h"
#include "ofono/OfonoModem.h"
#include "qt/qcop/PrivateBus.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QSet>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusPendingCall>

#include <dbus/dbus.h>

#include <deque>
#include <memory>
#include <span>
#include <utility>

using namespace handset;

namespace {

struct Property {
    const char *name;
    const char *type;
};

/// What is known of a daemon: each list has what is asked for, and something that is not.
struct Trade {
    const char *service;
    std::span<const Property> properties;
    std::span<const char *const> interfaces;
    std::span<const char *const> paths;
    std::span<const char *const> words;
    std::span<const Property> signalled; ///< "interface.Name", and of what types
    std::span<const Property> answers;   ///< methods; others have nothing to say
};

constexpr Property modemManagerProperties[] = {
    {"State", "i"},     {"Bearers", "ao"},     {"Number", "s"},        {"Direction", "i"},
    {"Connected", "b"}, {"Stats", "a{sv}"},    {"Interface", "s"},     {"ReloadStatsSupported", "b"},
    {"tx-bytes", "t"},  {"rx-bytes", "t"},     {"start-date", "t"},    {"duration", "u"},
    {"apn", "s"},       {"Model", "s"},        {"OperatorName", "s"},  {"UnlockRequired", "u"},
    {"Other", "x"},     {"Manufacturer", "s"}, {"Properties", "a{sv}"}};
#define KAV_MM "org.freedesktop.ModemManager1."
constexpr const char *modemManagerInterfaces[] = {KAV_MM "Modem", KAV_MM "Modem.Voice", KAV_MM "Modem.Modem3gpp",
                                                  KAV_MM "Call",  KAV_MM "Bearer",      KAV_MM "Other"};
constexpr const char *modemManagerPaths[] = {
    "/org/freedesktop/ModemManager1/Modem/0",  "/org/freedesktop/ModemManager1/Modem/1",
    "/org/freedesktop/ModemManager1/Call/0",   "/org/freedesktop/ModemManager1/Call/1",
    "/org/freedesktop/ModemManager1/Bearer/0", "/org/freedesktop/ModemManager1/Bearer/1",
    "/org/freedesktop/ModemManager1",          "/"};
constexpr Property modemManagerSignals[] = {{KAV_MM "Call.StateChanged", "iiu"},
                                            {"org.freedesktop.DBus.Properties.PropertiesChanged", "sa{sv}as"},
                                            {KAV_MM "Modem.Voice.CallAdded", "o"},
                                            {KAV_MM "Modem.Voice.CallDeleted", "o"},
                                            {"org.freedesktop.DBus.ObjectManager.InterfacesAdded", "oa{sa{sv}}"},
                                            {"org.freedesktop.DBus.ObjectManager.InterfacesRemoved", "oas"}};
constexpr Property modemManagerAnswers[] = {
    {"GetManagedObjects", "a{oa{sa{sv}}}"}, {"ListCalls", "ao"}, {"GetAll", "a{sv}"}, {"CreateCall", "o"}};
constexpr const char *modemManagerWords[] = {"", "5550123", "wwan0", "lo", "KAV", "internet"};

constexpr Property ofonoProperties[] = {
    {"Online", "b"},      {"Interfaces", "as"},          {"State", "s"},
    {"Active", "b"},      {"Settings", "a{sv}"},         {"IPv6.Settings", "a{sv}"},
    {"Interface", "s"},   {"AccessPointName", "s"},      {"LineIdentification", "s"},
    {"StartTime", "s"},   {"AccumulatedCallMeter", "u"}, {"AccumulatedCallMeterMaximum", "u"},
    {"CallMeter", "u"},   {"PricePerUnit", "d"},         {"Currency", "s"},
    {"Retries", "a{sy}"}, {"PinRequired", "s"},          {"Name", "s"},
    {"Status", "s"},      {"Manufacturer", "s"},         {"Model", "s"},
    {"Other", "x"}};
#define KAV_OFONO "org.ofono."
constexpr const char *ofonoInterfaces[] = {KAV_OFONO "VoiceCallManager",    KAV_OFONO "ConnectionManager",
                                           KAV_OFONO "NetworkRegistration", KAV_OFONO "CallMeter",
                                           KAV_OFONO "SimManager",          KAV_OFONO "Other"};
constexpr const char *ofonoPaths[] = {
    "/one",          "/two", "/one/voicecall01", "/one/voicecall02", "/one/context1",
    "/one/context2", "/",    "/two/voicecall01"};
constexpr Property ofonoSignals[] = {{KAV_OFONO "VoiceCall.PropertyChanged", "sv"},
                                     {KAV_OFONO "ConnectionContext.PropertyChanged", "sv"},
                                     {KAV_OFONO "Modem.PropertyChanged", "sv"},
                                     {KAV_OFONO "VoiceCallManager.CallAdded", "oa{sv}"},
                                     {KAV_OFONO "VoiceCallManager.CallRemoved", "o"},
                                     {KAV_OFONO "ConnectionManager.ContextAdded", "oa{sv}"},
                                     {KAV_OFONO "ConnectionManager.ContextRemoved", "o"},
                                     {KAV_OFONO "CallMeter.PropertyChanged", "sv"},
                                     {KAV_OFONO "SimManager.PropertyChanged", "sv"},
                                     {KAV_OFONO "NetworkRegistration.PropertyChanged", "sv"},
                                     {KAV_OFONO "VoiceCall.DisconnectReason", "s"},
                                     {KAV_OFONO "Manager.ModemAdded", "oa{sv}"},
                                     {KAV_OFONO "Manager.ModemRemoved", "o"}};
constexpr Property ofonoAnswers[] = {{"GetModems", "a(oa{sv})"},
                                     {"GetCalls", "a(oa{sv})"},
                                     {"GetContexts", "a(oa{sv})"},
                                     {"GetProperties", "a{sv}"},
                                     {"Dial", "o"}};
constexpr const char *ofonoWords[] = {"",
                                      "dialing",
                                      "alerting",
                                      "incoming",
                                      "waiting",
                                      "active",
                                      "held",
                                      "disconnected",
                                      "5550123",
                                      "withheld",
                                      "network",
                                      "lo",
                                      "2001-02-03T04:05:06+0000",
                                      "EUR",
                                      "pin2"};

constexpr Trade trades[] = {
    {"org.freedesktop.ModemManager1", modemManagerProperties, modemManagerInterfaces, modemManagerPaths,
     modemManagerWords, modemManagerSignals, modemManagerAnswers},
    {"org.ofono", ofonoProperties, ofonoInterfaces, ofonoPaths, ofonoWords, ofonoSignals, ofonoAnswers}};

/// Writes values into a message: of the types that are asked for, the values as the bytes say.
class Writer
{
public:
    Writer(const Trade &knowledge, Taker &bytes)
        : trade(knowledge)
        , taker(bytes)
    {}

    void write(DBusMessage *message, const char *types)
    {
        DBusMessageIter into;
        dbus_message_iter_init_append(message, &into);
        DBusSignatureIter signature;
        dbus_signature_iter_init(&signature, types);
        do {
            write(&into, &signature);
        } while (dbus_signature_iter_next(&signature));
    }

private:
    static constexpr int deepest = 4;

    template <typename List>
    const auto &oneOf(const List &list)
    {
        return list[taker.byte() % std::size(list)];
    }

    template <typename Number>
    void number(DBusMessageIter *into, int type)
    {
        // Small ones are the most interesting.
        const quint8 kind = taker.byte();
        const Number value = kind < 240 ? static_cast<Number>(kind) : taker.number<Number>();
        dbus_message_iter_append_basic(into, type, &value);
    }

    void text(DBusMessageIter *into)
    {
        const quint8 kind = taker.byte();
        const QByteArray other = kind < 200 ? QByteArray() : taker.text(60).toHex();
        const bool isInterface = kind >= 100 && kind < 200;
        const char *const value = kind < 100    ? trade.words[kind % trade.words.size()]
                                  : isInterface ? trade.interfaces[kind % trade.interfaces.size()]
                                                : other.constData();
        dbus_message_iter_append_basic(into, DBUS_TYPE_STRING, &value);
    }

    // Of a property, by its name; or of any type.
    void variant(DBusMessageIter *into, const char *type)
    {
        constexpr const char *others[] = {"b", "i", "u", "t", "d", "s", "o", "as", "a{sv}", "v", "(is)", "ay"};
        const quint8 kind = taker.byte();
        const char *const chosen = kind < 230 && type ? type : oneOf(others);
        const bool isFlat = depth >= deepest;
        DBusMessageIter inner;
        dbus_message_iter_open_container(into, DBUS_TYPE_VARIANT, isFlat ? "s" : chosen, &inner);
        DBusSignatureIter signature;
        dbus_signature_iter_init(&signature, isFlat ? "s" : chosen);
        write(&inner, &signature);
        dbus_message_iter_close_container(into, &inner);
    }

    void entry(DBusMessageIter *into, DBusSignatureIter *signature)
    {
        DBusSignatureIter part;
        dbus_signature_iter_recurse(signature, &part);
        DBusMessageIter inner;
        dbus_message_iter_open_container(into, DBUS_TYPE_DICT_ENTRY, nullptr, &inner);
        const Property &property = oneOf(trade.properties);
        const bool isNamed = dbus_signature_iter_get_current_type(&part) == DBUS_TYPE_STRING;
        DBusSignatureIter value = part;
        dbus_signature_iter_next(&value);
        const int type = dbus_signature_iter_get_current_type(&value);
        if (isNamed && type == DBUS_TYPE_VARIANT)
            dbus_message_iter_append_basic(&inner, DBUS_TYPE_STRING, &property.name);
        else if (isNamed && type == DBUS_TYPE_ARRAY)
            dbus_message_iter_append_basic(&inner, DBUS_TYPE_STRING, &oneOf(trade.interfaces));
        else
            write(&inner, &part);
        if (type == DBUS_TYPE_VARIANT)
            variant(&inner, property.type);
        else
            write(&inner, &value);
        dbus_message_iter_close_container(into, &inner);
    }

    void array(DBusMessageIter *into, DBusSignatureIter *signature)
    {
        DBusSignatureIter element;
        dbus_signature_iter_recurse(signature, &element);
        char *const type = dbus_signature_iter_get_signature(&element);
        DBusMessageIter inner;
        dbus_message_iter_open_container(into, DBUS_TYPE_ARRAY, type, &inner);
        dbus_free(type);
        const int size = taker.isAtEnd() ? 0 : taker.byte() % 5;
        for (int i = 0; i < size; ++i) {
            if (dbus_signature_iter_get_current_type(&element) == DBUS_TYPE_DICT_ENTRY)
                entry(&inner, &element);
            else
                write(&inner, &element);
        }
        dbus_message_iter_close_container(into, &inner);
    }

    void structure(DBusMessageIter *into, DBusSignatureIter *signature)
    {
        DBusSignatureIter part;
        dbus_signature_iter_recurse(signature, &part);
        DBusMessageIter inner;
        dbus_message_iter_open_container(into, DBUS_TYPE_STRUCT, nullptr, &inner);
        do {
            write(&inner, &part);
        } while (dbus_signature_iter_next(&part));
        dbus_message_iter_close_container(into, &inner);
    }

    void write(DBusMessageIter *into, DBusSignatureIter *signature)
    {
        ++depth;
        switch (const int type = dbus_signature_iter_get_current_type(signature)) {
        case DBUS_TYPE_ARRAY:
            array(into, signature);
            break;
        case DBUS_TYPE_STRUCT:
            structure(into, signature);
            break;
        case DBUS_TYPE_VARIANT:
            variant(into, nullptr);
            break;
        case DBUS_TYPE_STRING:
            text(into);
            break;
        case DBUS_TYPE_OBJECT_PATH:
            dbus_message_iter_append_basic(into, type, &oneOf(trade.paths));
            break;
        case DBUS_TYPE_BOOLEAN: {
            const dbus_bool_t value = taker.byte() % 2;
            dbus_message_iter_append_basic(into, type, &value);
            break;
        }
        case DBUS_TYPE_BYTE: {
            const quint8 value = taker.byte();
            dbus_message_iter_append_basic(into, type, &value);
            break;
        }
        case DBUS_TYPE_DOUBLE: {
            const double value = static_cast<double>(taker.number<qint32>()) / 1024;
            dbus_message_iter_append_basic(into, type, &value);
            break;
        }
        case DBUS_TYPE_INT32:
        case DBUS_TYPE_UINT32:
            number<quint32>(into, type);
            break;
        default:
            number<quint64>(into, type);
        }
        --depth;
    }

    const Trade &trade;
    Taker &taker;
    int depth = 0;
};

struct Unref {
    void operator()(DBusMessage *message) const { dbus_message_unref(message); }
};
using Message = std::unique_ptr<DBusMessage, Unref>;

/// The daemon, in this thread: it answers while it is waited for in settle(), and never else.
class Daemon
{
public:
    Daemon(const QString &address, const Trade &itsTrade)
        : trade(itsTrade)
        , connection(dbus_connection_open_private(address.toUtf8().constData(), nullptr))
    {
        REQUIRE(connection && dbus_bus_register(connection, nullptr));
        dbus_connection_set_exit_on_disconnect(connection, false);
    }

    const Trade &trade;
    bool isThere = false;

    void come()
    {
        isThere = dbus_bus_request_name(connection, trade.service, DBUS_NAME_FLAG_DO_NOT_QUEUE, nullptr) ==
                  DBUS_REQUEST_NAME_REPLY_PRIMARY_OWNER;
        REQUIRE(isThere);
    }
    // What was not answered is the bus's to answer then.
    void go(Taker &taker)
    {
        dbus_bus_release_name(connection, trade.service, nullptr);
        isThere = false;
        for (const Message &question : std::exchange(unanswered, {}))
            refuse(question.get(), DBUS_ERROR_NO_REPLY);
        settle(taker);
    }
    void signal(Taker &taker)
    {
        const Property &chosen = trade.signalled[taker.byte() % trade.signalled.size()];
        const QByteArray name(chosen.name);
        const qsizetype dot = name.lastIndexOf('.');
        // The manager's are of its own path.
        const quint8 where = taker.byte();
        const char *const path = trade.paths[where % trade.paths.size()];
        const Message made(
            dbus_message_new_signal(path, name.first(dot).constData(), name.sliced(dot + 1).constData()));
        Writer(trade, taker).write(made.get(), where < 240 ? chosen.type : "sas");
        dbus_connection_send(connection, made.get(), nullptr);
    }
    void answerLate(Taker &taker)
    {
        if (unanswered.empty())
            return;
        const Message question = std::move(unanswered.front());
        unanswered.pop_front();
        answer(question.get(), taker);
    }
    /// Until everything that was said has been heard, on both sides.
    void settle(Taker &taker)
    {
        QDBusMessage ping = QDBusMessage::createMethodCall(QLatin1String(dbus_bus_get_unique_name(connection)),
                                                           QStringLiteral("/"), QStringLiteral("org.kav.Fuzz"),
                                                           QStringLiteral("Ping"));
        int asked = 1;
        while (asked > 0) {
            asked = 0;
            QDBusPendingCall pending = other().asyncCall(ping);
            for (bool isPinged = false; !isPinged;) {
                dbus_connection_read_write(connection, -1);
                while (const Message question{dbus_connection_pop_message(connection)}) {
                    if (dbus_message_is_method_call(question.get(), "org.kav.Fuzz", "Ping")) {
                        isPinged = true;
                        sendReply(question.get(), nullptr, taker);
                    } else if (dbus_message_get_type(question.get()) == DBUS_MESSAGE_TYPE_METHOD_CALL) {
                        ++asked;
                        take(question.get(), taker);
                    }
                }
            }
            pending.waitForFinished();
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }

private:
    // The connection that the modem has made.
    QDBusConnection other() const
    {
        for (int i = 1; i <= 2; ++i) {
            const QDBusConnection made(QStringLiteral("kav-%1-%2").arg(QLatin1String(trade.service)).arg(i));
            if (made.isConnected())
                return made;
        }
        qFatal("no connection");
    }
    void take(DBusMessage *question, Taker &taker)
    {
        constexpr quint8 keptBack = 250;
        if (!taker.isAtEnd() && taker.byte() >= keptBack)
            unanswered.emplace_back(dbus_message_ref(question));
        else
            answer(question, taker);
    }
    void refuse(DBusMessage *question, const char *name)
    {
        const Message made(dbus_message_new_error(question, name, "fuzz"));
        dbus_connection_send(connection, made.get(), nullptr);
    }
    void sendReply(DBusMessage *question, const char *types, Taker &taker)
    {
        const Message made(dbus_message_new_method_return(question));
        if (types)
            Writer(trade, taker).write(made.get(), types);
        dbus_connection_send(connection, made.get(), nullptr);
    }
    void answer(DBusMessage *question, Taker &taker)
    {
        constexpr const char *errors[] = {
            DBUS_ERROR_NO_REPLY,          DBUS_ERROR_ACCESS_DENIED,       DBUS_ERROR_UNKNOWN_METHOD,
            "org.ofono.Error.InProgress", "org.ofono.Error.NotAvailable", KAV_MM "Error.Core.Retry"};
        constexpr quint8 firstError = 240;
        constexpr quint8 otherTypes = 230;
        const quint8 kind = taker.byte();
        if (kind >= firstError)
            return refuse(question, errors[kind % std::size(errors)]);
        const char *types = nullptr;
        for (const Property &known : trade.answers) {
            if (dbus_message_has_member(question, known.name))
                types = known.type;
        }
        sendReply(question, kind >= otherTypes ? "sv" : types, taker);
    }

    DBusConnection *const connection;
    std::deque<Message> unanswered;
};

/// Who listens to a modem, and reckons what there is.
class Listener : public QObject
{
public:
    explicit Listener(live::Modem &listened)
        : modem(listened)
    {
        connect(&modem, &live::Modem::callReported, this, [this](const live::ReportedCall &call) {
            REQUIRE(!call.id.isEmpty());
            if (call.phase == CallPhase::Over)
                calls.remove(call.id);
            else
                calls.insert(call.id);
        });
        connect(&modem, &live::Modem::callGone, this, [this](const QString &id) { calls.remove(id); });
        connect(&modem, &live::Modem::sessionReported, this, [this](const live::ReportedSession &session) {
            REQUIRE(!session.id.isEmpty());
            REQUIRE(!session.counted || (session.counted->sent >= 0 && session.counted->received >= 0));
            REQUIRE(session.ms.value_or(0) >= 0 && session.sinceWallMs.value_or(0) >= 0);
            sessions.insert(session.id);
        });
        connect(&modem, &live::Modem::sessionGone, this,
                [this](const QString &id) { REQUIRE(sessions.remove(id)); });
        connect(&modem, &live::Modem::lost, this, [this] {
            calls.clear();
            sessions.clear();
        });
        connect(&modem, &live::Modem::stateChanged, this, [this] { modem.state(); });
    }

    void requireNothing() const
    {
        REQUIRE(calls.isEmpty() && sessions.isEmpty());
        REQUIRE(!modem.state().isThere);
    }

    live::Modem &modem;
    QSet<QString> calls;
    QSet<QString> sessions;
};

void play(Daemon &daemon, Listener &listener, Taker &taker)
{
    daemon.come();
    daemon.settle(taker);
    while (!taker.isAtEnd()) {
        const QString id = QLatin1String(daemon.trade.paths[taker.byte() % daemon.trade.paths.size()]);
        switch (taker.byte() % 12) {
        case 0:
            listener.modem.dial(QStringLiteral("5550123"));
            break;
        case 1:
            listener.modem.answer(id);
            break;
        case 2:
            listener.modem.hangUp(id);
            break;
        case 3:
            daemon.answerLate(taker);
            break;
        case 4:
            daemon.go(taker);
            listener.requireNothing();
            daemon.come();
            break;
        default:
            daemon.signal(taker);
            // Some come in one breath.
            if (taker.byte() % 4 == 0)
                continue;
        }
        daemon.settle(taker);
    }
    daemon.go(taker);
    listener.requireNothing();
}

const PrivateBus &bus()
{
    static int count = 1;
    static char program[] = "daemons";
    static char *names[] = {program, nullptr};
    static const QCoreApplication application(count, names);
    static const PrivateBus started;
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", started.address().toUtf8());
    return started;
}

} // namespace

void tryBytes(QByteArrayView bytes)
{
    // None is ever destroyed: statics go after the thread of Qt D-Bus, which is asked when such an object goes.
    static const QString address = bus().address();
    static auto &first = *new modemmanager::ModemManagerModem;
    static auto &second = *new ofono::OfonoModem;
    static const auto &meter = *new ofono::CallMeter(second);
    static Listener *const listeners[] = {new Listener(first), new Listener(second)};
    static Daemon *const daemons[] = {new Daemon(address, trades[0]), new Daemon(address, trades[1])};
    first.start();
    second.start();
    Taker taker(bytes);
    const int which = taker.byte() % 2;
    play(*daemons[which], *listeners[which], taker);
    REQUIRE(!meter.isThere());
}
