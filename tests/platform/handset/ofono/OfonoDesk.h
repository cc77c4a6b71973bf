// What the tests over the fake oFono share: a bus, the daemon, and a modem that is listened to.
#pragma once

#include "bench/daemons/FakeOfono.h"
#include "ofono/OfonoModem.h"
#include "qt/qcop/PrivateBus.h"

#include <QtCore/QStringList>

#include <memory>

namespace handset::test {

/// The system bus of this process. There can be one only, as its address is read once.
inline PrivateBus &systemBus()
{
    static PrivateBus bus;
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", bus.address().toLocal8Bit());
    return bus;
}

/// The events of a modem, a word for each thing that it says.
class Listener
{
public:
    explicit Listener(live::Modem &modem);

    QStringList told;
    /// Without those that only say that state() is another.
    QString last() const { return told.isEmpty() ? QString() : told.constLast(); }
};

class OfonoDesk
{
public:
    static inline const QString one = FakeOfono::modem + QStringLiteral("/voicecall01");
    static inline const QString two = FakeOfono::modem + QStringLiteral("/voicecall02");
    static inline const QString context = FakeOfono::modem + QStringLiteral("/context1");

    static constexpr live::Patience quickToReconnect{60'000, 60'000, 100};

    explicit OfonoDesk(const live::Patience &howPatient = quickToReconnect)
        : fake(systemBus().address())
        , patience(howPatient)
    {}
    /// The daemon is there before the modem is looked for.
    void start();
    void look();

    FakeOfono fake;
    std::unique_ptr<ofono::OfonoModem> modem;
    std::unique_ptr<Listener> heard;

private:
    live::Patience patience;
};

QVariantMap callIn(const char *state, const char *number = "5550123");

} // namespace handset::test
