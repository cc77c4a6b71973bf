// Debian's ModemManager with the AT modem.
#pragma once

#include "handset/live/RealDaemon.h"

namespace handset::test {

class RealModemManager : public RealDaemon
{
public:
    // Numbers of its D-Bus interfaces.
    static constexpr int modemRegistered = 8;
    static constexpr int modemConnected = 11;

    RealModemManager();

    /// Starts it, gives it the modem and waits until that is enabled and registered.
    bool bringUp() override;
    /// Likewise, with the daemon running already: tells it of a modem at the ports. Each time it is another device.
    bool bringUpModem();

    /// The modem's object; empty while there is none.
    QString modemPath();
    /// A call on one of the modem's interfaces, which is named without "org.freedesktop.ModemManager1.".
    QDBusMessage onModem(const char *interface, const char *method, const QVariantList &values = {});
    /// Likewise on another object, such as a call.
    QDBusMessage on(const QString &path, const char *interface, const char *method,
                    const QVariantList &values = {});
    QVariant property(const QString &path, const char *interface, const char *name);
    QVariant modemProperty(const char *interface, const char *name);
    /// Paths of Modem.Voice.
    QStringList calls();
    /// Call.State, or -1 when there is no such call.
    int stateOf(const QString &call);
    /// Forgets all calls, and is true when the daemon has done that and asks the modem for no call any more. It asks every
    /// two seconds while one is made or rings, from when it heard of the first; a call made in the moment in which it sees
    /// that none is any more is never asked for, and stays "dialing" for good.
    bool isRidOfCalls();
    /// Makes a call and starts it. Empty when the daemon does not.
    QString dial(const char *number);

protected:
    void prepare(QProcessEnvironment &environment) override;

private:
    explicit RealModemManager(const atmodem::Ports &ports);

    atmodem::Ports ports;
    bool enable();

    int profiles = 0;
};

} // namespace handset::test
