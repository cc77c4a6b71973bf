// A session bus for this run alone.
#pragma once

#include <QtCore/QProcess>
#include <QtCore/QString>

namespace bench {

/// A dbus-daemon that ends with this. The environment names it to whoever looks for the session bus; where it cannot be
/// started the environment stays as it is.
class SessionBus
{
public:
    /// Its socket is made in `directory`.
    explicit SessionBus(const QString &directory);
    ~SessionBus();
    Q_DISABLE_COPY_MOVE(SessionBus)

private:
    QProcess daemon;
};

} // namespace bench
