// What is said of a modem to the user, in the user's language.
#pragma once

#include <QtCore/QString>

namespace handset::live {

/// Why no modem is there.
enum class NoModem {
    DaemonIsNotRunning,
    IsAsked, ///< the daemon has not answered yet
    IsNone,
    IsClosed, ///< the daemon does not let this user talk to it
    IsUntold  ///< the daemon answers nothing that can be read
};
QString inWords(NoModem why, const QString &daemon);

/// A daemon's word for the state of its modem ("registered"); one that is not known as it is.
QString stateInWords(const QString &word);

/// One sentence, without its full stop.
QString noSystemBus(const QString &why);

} // namespace handset::live
