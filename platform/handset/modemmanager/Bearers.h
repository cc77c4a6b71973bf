// The data connections of a modem.
#pragma once

#include "live/BusDaemon.h"
#include "live/Modem.h"
#include "modemmanager/Reading.h"

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtDBus/QDBusMessage>

namespace handset::modemmanager {

/// Follows the bearers that it is told of; the daemon and the modem last as long as this. A bearer may be connected
/// again and again, and is a session each time.
class Bearers : public QObject
{
    Q_OBJECT

public:
    /// Both outlive this.
    Bearers(const live::BusDaemon &daemon, Reading &typed, live::Patience patience);

    /// Those that the modem has now; the first ones are found.
    void setPaths(const QStringList &paths);

signals:
    void reported(const handset::live::ReportedSession &session);
    void gone(const QString &id);

private slots:
    void propertiesChanged(const QDBusMessage &message);

private:
    struct Followed {
        QVariantMap properties;
        live::ReportedSession session;
        bool isFound = false;
        bool isKnown = false; ///< its properties have been answered
        bool isOn = false;
        std::optional<QVariantMap> ended; ///< what the daemon counted of the connection before
    };

    void getProperties(const QString &path);
    void update(Followed &followed);
    void begin(Followed &followed);
    void count(Followed &followed);
    void forget(const QString &path);

    const live::BusDaemon &source;
    Reading &reading;
    const live::Patience patience;
    bool isFirst = true;
    QHash<QString, Followed> bearers;
};

} // namespace handset::modemmanager
