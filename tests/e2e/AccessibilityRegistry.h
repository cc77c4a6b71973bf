// Who tells on a session bus where the accessibility bus is.
#pragma once

#include <QtCore/QThread>
#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusVirtualObject>

/// Says that accessibility is wanted, and the address of its bus; or never says anything. In a thread of its own.
class AccessibilityRegistry : public QDBusVirtualObject
{
public:
    /// `address` is null for one that never answers.
    AccessibilityRegistry(const QString &sessionBus, const QString &address)
        : told(address)
        , bus(QDBusConnection::connectToBus(sessionBus, connectionName()))
    {
        moveToThread(&thread);
        thread.start();
        registered = bus.registerVirtualObject(QStringLiteral("/org/a11y/bus"), this) &&
                     bus.registerService("org.a11y.Bus");
    }
    ~AccessibilityRegistry() override
    {
        bus.unregisterObject(QStringLiteral("/org/a11y/bus"));
        QDBusConnection::disconnectFromBus(connectionName());
        thread.quit();
        thread.wait();
    }

    bool isRegistered() const { return registered; }

    QString introspect(const QString &) const override { return {}; }

    bool handleMessage(const QDBusMessage &question, const QDBusConnection &) override
    {
        if (told.isNull())
            return true;
        if (question.member() == QLatin1StringView("GetAddress"))
            bus.send(question.createReply(told));
        else if (question.member() == QLatin1StringView("GetAll"))
            bus.send(question.createReply(QVariantMap{{QStringLiteral("IsEnabled"), true}}));
        else
            bus.send(question.createReply(QVariant::fromValue(QDBusVariant(true))));
        return true;
    }

private:
    QString connectionName() const { return QString::number(reinterpret_cast<quintptr>(this)); }

    const QString told;
    QDBusConnection bus;
    bool registered = false;
    QThread thread;
};
