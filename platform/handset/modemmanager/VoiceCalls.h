// The calls of a modem.
#pragma once

#include "live/BusDaemon.h"
#include "live/Modem.h"
#include "modemmanager/Reading.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QElapsedTimer>
#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusObjectPath>
#include <QtDBus/QDBusPendingCall>
#include <QtDBus/QDBusPendingReply>

#include <functional>

class CallProxy;
class VoiceProxy;

namespace handset::modemmanager {

/// Follows the modem's Voice interface and the calls behind it from its construction on; the daemon, the modem and the
/// interface last as long as this.
class VoiceCalls : public QObject
{
    Q_OBJECT

public:
    /// How the daemon learns what becomes of a dialed call.
    enum class News {
        Told, ///< by the modem, at once
        Asked ///< it asks the modem now and then
    };

    /// Both outlive this.
    VoiceCalls(const live::BusDaemon &daemon, const QString &modem, News news, Reading &typed,
               live::Patience patience);

    // As of live::Modem.
    int dial(const QString &number);
    int answer(const QString &id);
    int hangUp(const QString &id);
    /// The calls that are on.
    QStringList ids() const { return calls.keys(); }

signals:
    void reported(const handset::live::ReportedCall &call);
    void gone(const QString &id);
    void refused(const QString &why);

private slots:
    void callAdded(const QDBusMessage &message);
    void callDeleted(const QDBusMessage &message);
    void stateSignalled(const QDBusMessage &message);
    void propertiesChanged(const QDBusMessage &message);

private:
    struct Followed {
        live::ReportedCall call;
        bool isKnown = false;  ///< its properties have been answered
        bool hasBegun = false; ///< has been reported
        QList<int> before;     ///< its states until then
        QElapsedTimer sinceMoved;
    };
    using Question = std::function<QDBusPendingCall()>;

    void list();
    void follow(const QString &path, bool isFound);
    void getProperties(const QString &path);
    void learn(Followed &followed, const QVariantMap &properties);
    void stateChanged(const QString &path, int state);
    void move(Followed &followed, int state);
    qint64 lateMs(const Followed &followed, CallPhase now) const;
    void deleted(const QString &path);
    void forget(const QString &path);
    void begin(const QString &path);
    QDBusPendingCall onCall(const QString &id, QDBusPendingReply<> (CallProxy::*method)()) const;
    void ask(const Question &question, const QString &wish, QDeadlineTimer limit,
             const std::function<void(const QDBusMessage &)> &done = {});

    const live::BusDaemon &source;
    Reading &reading;
    const live::Patience patience;
    const QString modemPath;
    const News dialedNews;
    VoiceProxy *const voice;
    QHash<QString, Followed> calls;
};

} // namespace handset::modemmanager
