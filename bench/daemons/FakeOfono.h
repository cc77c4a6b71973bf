// A service org.ofono that says what a test or benchmark wants, beside what the real one can be made to say.
#pragma once

#include "ofono/Types.h"

#include <QtCore/QMap>
#include <QtCore/QSet>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusVirtualObject>

namespace handset::test {

/// On a bus of the test's own, with a connection of its own. Interfaces are named without "org.ofono.".
class FakeOfono final : public QDBusVirtualObject
{
public:
    static inline const QString modem = QStringLiteral("/fake_0");

    explicit FakeOfono(QString busAddress);
    ~FakeOfono() override;

    /// Takes its name on the bus, with what it has; and loses it without a word, as a crash does.
    void appear();
    void disappear();

    void addModem(const QString &path, const QVariantMap &values);
    void removeModem(const QString &path);
    void addCall(const QString &path, const QVariantMap &values);
    void removeCall(const QString &path);
    void addContext(const QString &path, const QVariantMap &values);
    void removeContext(const QString &path);
    /// Of any object and interface: kept where it is listed or asked, and signalled.
    void set(const QString &path, const char *interface, const char *name, const QVariant &value);
    void setCall(const QString &path, const char *name, const QVariant &value)
    {
        set(path, "VoiceCall", name, value);
    }
    void setContext(const QString &path, const char *name, const QVariant &value)
    {
        set(path, "ConnectionContext", name, value);
    }
    void setInterfaces(const QStringList &names, const QString &path = modem);
    void tell(const QString &path, const char *interface, const char *name, const QVariantList &values);

    /// Instead of an answer, for as many times as there are names; an empty one answers as ever. Those of
    /// oFono without what they begin with.
    QMap<QString, QStringList> errors; ///< by "VoiceCallManager.Dial"
    QSet<QString> silent;              ///< never answered; likewise
    QStringList asked;                 ///< "VoiceCallManager.Dial 5550123 "
    /// What is answered as the properties of an interface of the modem.
    QMap<QString, QVariantMap> answers;

    // The card behind the call meter.
    QString pin2 = QStringLiteral("1234");
    int tries = 3;

protected:
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;
    QString introspect(const QString &) const override { return {}; }

private:
    QVariantList listed(const QString &what) const;
    QString setMeter(const QString &name, const QVariant &value, const QString &pin);
    QString present(const QString &pin);

    const QString address;
    QString connectionName;
    QMap<QString, QVariantMap> modems;
    QMap<QString, QVariantMap> calls;
    QMap<QString, QVariantMap> contexts;
};

} // namespace handset::test
