// A modem behind oFono.
#pragma once

#include "live/BusDaemon.h"
#include "live/Modem.h"
#include "live/ModemWords.h"
#include "live/Question.h"
#include "ofono/PropertyReader.h"
#include "ofono/Types.h"

#include <QtCore/QHash>
#include <QtCore/QStringList>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusPendingCallWatcher>
#include <QtDBus/QDBusReply>

#include <functional>
#include <memory>

namespace handset::ofono {

/// Whether the daemon runs and has a modem. Waits, as live::askAndWait().
bool isModemPresent(int longestMs);

/// The first modem that is online, or else the first; it stays the one until it is gone, or offline while another is
/// online. All is told by signals, which are asked for before the lists that they change. What is asked goes to the
/// daemon's unique name: an answer of one that has ended never counts for the next.
class OfonoModem final : public live::Modem
{
    Q_OBJECT

public:
    explicit OfonoModem(const live::Patience &howPatient = {});

    QString daemon() const override { return QStringLiteral("oFono"); }
    live::ModemState state() const override;
    QString connectToBus(int longestMs = handset::Patience().bus) override;
    bool isBusSilent() const override { return service.isBusSilent(); }
    void start() override;
    int dial(const QString &number) override;
    int answer(const QString &id) override;
    int hangUp(const QString &id) override;

    /// Nobody is asked any more which modem there is, and what it has.
    bool isKnown() const { return service.isOwnerKnown() && whyNone != live::NoModem::IsAsked; }
    /// Whether the modem has that interface ("CallMeter") now.
    bool has(const char *interface) const;
    /// A proxy of qdbusxml2cpp's for the modem, or for another object of the daemon's.
    template <typename Proxy>
    std::unique_ptr<Proxy> proxy(const QString &path = {}) const
    {
        auto made = std::make_unique<Proxy>(owner, path.isEmpty() ? current : path, service.bus());
        made->setTimeout(patience.answerMs);
        return made;
    }
    PropertyReader &reader() { return properties; }

    /// Runs `work` with the answer; never when `context` is gone by then.
    template <typename Work>
    static void whenAnswered(const QDBusPendingCall &asked, QObject *context, Work work)
    {
        auto *const watcher = new QDBusPendingCallWatcher(asked, context);
        connect(watcher, &QDBusPendingCallWatcher::finished, context, [work](QDBusPendingCallWatcher *answered) {
            answered->deleteLater();
            work(static_cast<const QDBusPendingCall &>(*answered));
        });
    }
    /// Likewise what a method without arguments tells of the daemon's state, in its place among the signals.
    template <typename Value, typename Proxy, typename Work>
    static void whenTold(const std::unique_ptr<Proxy> &proxy, const char *method, QObject *context, Work work)
    {
        const QDBusMessage question = QDBusMessage::createMethodCall(proxy->service(), proxy->path(),
                                                                     proxy->interface(), QLatin1String(method));
        live::ask(proxy->connection(), question, proxy->timeout(), context,
                  [work](const QDBusMessage &answer) { work(QDBusReply<Value>(answer)); });
    }

signals:
    /// has() may answer something else.
    void interfacesChanged();
    /// A property of the modem's CallMeter or SimManager ("CallMeter") has another value.
    void propertyTold(const QString &interface, const QString &name, const QVariant &value);

private slots:
    void heard(const QDBusMessage &signal);

private:
    struct Known {
        QString path;
        bool isOnline = false;
        QStringList interfaces;
        QString name;
        QString maker;
        QString model;
    };
    struct Call {
        std::optional<CallPhase> phase; ///< nothing until the daemon has told one
        live::ReportedCall reported;
        bool wasDialed = false; ///< and has not been connected
        QString reason;         ///< of its end
    };
    struct Context {
        bool isActive = false;
        bool isFound = false;
        bool isReported = false;
        QByteArray apn;
        QString interface;
        QString interface6;
    };

    void appeared();
    void vanished();
    void subscribe(bool on);
    void askForModems();

    void modemAdded(const QString &path, const QVariantMap &values);
    void setModemProperty(Known &modem, const QString &name, const QVariant &value);
    Known *known(const QString &path);
    const Known *currentModem() const;
    void choose();
    void follow(const QString &path);
    void followInterfaces();
    void heardOfModem(const QString &interface, const QDBusMessage &signal);
    void propertyHeard(const QString &interface, const QString &path, const QString &name, const QVariant &value);

    void beginVoice();
    void endVoice();
    void callAdded(const QString &path, const QVariantMap &values, bool isFound);
    void callRemoved(const QString &path);
    void setCallProperty(Call &call, const QString &name, const QVariant &value);
    void setPhase(Call &call, const QVariant &value);
    void report(Call &call);
    void sayWhyNotConnected(const Call &call);

    void beginData();
    void endData();
    void contextAdded(const QString &path, const QVariantMap &values, bool isFound);
    void contextRemoved(const QString &path);
    void setContextProperty(Context &context, const QString &name, const QVariant &value);
    void report(const QString &path, Context &context);

    void beginNetwork();
    void endNetwork();
    void setNetworkProperty(const QString &name, const QVariant &value);

    void sayWhenRefused(const QDBusPendingCall &asked, const QString &what);

    const live::Patience patience;
    live::BusDaemon service;
    bool isStarted = false;
    std::unique_ptr<QObject> serviceLife; ///< of what is asked of this daemon; so the next three
    std::unique_ptr<QObject> voice;
    std::unique_ptr<QObject> data;
    std::unique_ptr<QObject> registration;
    QString owner;   ///< the daemon's unique name; empty while there is none
    QString current; ///< the modem's path; likewise
    QList<Known> modems;
    live::NoModem whyNone = live::NoModem::DaemonIsNotRunning; ///< IsNone: it has been said which there are
    QStringList followed;                                      ///< the interfaces that the modem had last
    QHash<QString, Call> calls;
    QHash<QString, Context> contexts;
    QString network;
    QString networkStatus;
    PropertyReader properties;
};

} // namespace handset::ofono
