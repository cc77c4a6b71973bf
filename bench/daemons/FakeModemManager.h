// A ModemManager on a bus of the test's own, which does what no real one can be made to do.
#pragma once

#include <QtCore/QHash>
#include <QtCore/QMap>
#include <QtCore/QSet>
#include <QtCore/QStringList>
#include <QtCore/QVariantMap>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusVirtualObject>

#include <memory>

namespace handset::test {

// Of Call.State and Call.Direction.
enum FakeCallState {
    Unknown = 0,
    Dialing = 1,
    RingingOut = 2,
    RingingIn = 3,
    Active = 4,
    Held = 5,
    Waiting = 6,
    Terminated = 7
};
enum FakeDirection { Incoming = 1, Outgoing = 2 };

/// Of Modem.Ports: its name, and a number of MMModemPortType.
struct FakePort {
    QString name;
    quint32 kind = 0;
};

class FakeModemManager final : public QDBusVirtualObject
{
public:
    using Interfaces = QMap<QString, QVariantMap>;

    explicit FakeModemManager(const QString &busAddress);
    ~FakeModemManager() override;

    /// Takes the service's name, or gives it back; its objects stay.
    void appear();
    void vanish();

    void addModem(const QString &path, bool hasVoice = true);
    /// Of the modem that there is first, before it is looked at: by which plugin the daemon drives it, and its ports, the
    /// last of them the primary one.
    void describe(const QString &plugin, const QList<FakePort> &ports);
    void removeModem(const QString &path) { removeInterfaces(path, objects[path].keys()); }
    void addInterface(const QString &path, const QString &interface);
    void removeInterfaces(const QString &path, const QStringList &interfaces);
    /// Changes properties and tells of it; the interface is named without "org.freedesktop.ModemManager1.".
    void set(const QString &path, const QString &interface, const QVariantMap &properties);

    /// A call of the modem; `isTold` false leaves it to be found.
    void addCall(const QString &path, int direction, int state, const QString &number, bool isTold = true);
    void moveCall(const QString &path, int state);
    /// `isTold` false as where a daemon forgets to.
    void deleteCall(const QString &path);
    void addBearer(const QString &path, const QVariantMap &properties);
    /// A signal with whatever values.
    void send(const QString &path, const QString &interface, const QString &name, const QVariantList &values);

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;
    QString introspect(const QString &) const override { return {}; }

    QMap<QString, Interfaces> objects; ///< of each path
    QStringList callPaths;
    QSet<QString> silent;            ///< methods that are not answered
    QMap<QString, QString> errors;   ///< "Name: text" by method
    QMap<QString, int> errorsLeft;   ///< how often; without an entry always
    QMap<QString, QVariant> answers; ///< in place of the right one, by method
    /// A method of any object that does nothing, and is answered after all that was asked before it.
    static inline const QString settleMethod = QStringLiteral("Settle");
    QStringList asked; ///< methods in their order, with the path's last part or the number
    QString modem = QStringLiteral("/org/freedesktop/ModemManager1/Modem/0");

private:
    bool answer(const QDBusMessage &question);
    QVariant result(const QDBusMessage &question);
    QVariant createCall(const QDBusMessage &question);

    const QString connectionName;
    QDBusConnection bus;
    int made = 0;
};

} // namespace handset::test
