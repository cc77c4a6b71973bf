// Debian's ofonod with the AT modem.
#pragma once

#include "handset/live/RealDaemon.h"

#include <QtCore/QTemporaryDir>

namespace handset::test {

class RealOfono : public RealDaemon
{
public:
    RealOfono();
    ~RealOfono() override;

    /// Starts it, and waits until the modem is powered, online, registered, attached to packet data, and has its card,
    /// calls and call meter.
    bool bringUp() override;
    /// Likewise, with the daemon running already.
    bool bringUpModem();

    static QString modemPath() { return QStringLiteral("/phonesim"); }
    /// A call on one of the modem's interfaces, which is named without "org.ofono.".
    QDBusMessage onModem(const char *interface, const char *method, const QVariantList &values = {});
    /// Likewise on the object of a call or context.
    QDBusMessage on(const QString &path, const char *interface, const char *method,
                    const QVariantList &values = {});
    QVariantMap properties(const char *interface);
    QVariant property(const char *interface, const char *name);
    /// Its properties by path.
    QMap<QString, QVariantMap> calls();
    /// "State" of the only call; empty when there is none or more than one.
    QString onlyState();
    bool hasInterface(const char *interface);

protected:
    void prepare(QProcessEnvironment &environment) override;

private:
    QTemporaryDir folder;
};

} // namespace handset::test
