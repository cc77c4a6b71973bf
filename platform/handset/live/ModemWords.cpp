#include "live/ModemWords.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <array>

namespace handset::live {

namespace {

// Those of ModemManager's Modem.State and UnlockRequired, and of oFono's NetworkRegistration.
constexpr std::array states{
    QT_TRANSLATE_NOOP("handset", "failed"),        QT_TRANSLATE_NOOP("handset", "unknown"),
    QT_TRANSLATE_NOOP("handset", "initializing"),  QT_TRANSLATE_NOOP("handset", "locked"),
    QT_TRANSLATE_NOOP("handset", "locked: PIN"),   QT_TRANSLATE_NOOP("handset", "locked: PIN2"),
    QT_TRANSLATE_NOOP("handset", "locked: PUK"),   QT_TRANSLATE_NOOP("handset", "locked: PUK2"),
    QT_TRANSLATE_NOOP("handset", "disabled"),      QT_TRANSLATE_NOOP("handset", "disabling"),
    QT_TRANSLATE_NOOP("handset", "enabling"),      QT_TRANSLATE_NOOP("handset", "enabled"),
    QT_TRANSLATE_NOOP("handset", "searching"),     QT_TRANSLATE_NOOP("handset", "registered"),
    QT_TRANSLATE_NOOP("handset", "disconnecting"), QT_TRANSLATE_NOOP("handset", "connecting"),
    QT_TRANSLATE_NOOP("handset", "connected"),     QT_TRANSLATE_NOOP("handset", "unregistered"),
    QT_TRANSLATE_NOOP("handset", "denied"),        QT_TRANSLATE_NOOP("handset", "roaming"),
    QT_TRANSLATE_NOOP("handset", "offline"),
};

} // namespace

QString inWords(NoModem why, const QString &daemon)
{
    switch (why) {
    case NoModem::DaemonIsNotRunning:
        return QCoreApplication::translate("handset", "%1 is not running").arg(daemon);
    case NoModem::IsAsked:
        return QCoreApplication::translate("handset", "asking %1").arg(daemon);
    case NoModem::IsNone:
        return QCoreApplication::translate("handset", "no modem");
    case NoModem::IsClosed:
        return QCoreApplication::translate("handset", "%1 does not let this user talk to it").arg(daemon);
    case NoModem::IsUntold:
        return QCoreApplication::translate("handset", "%1 does not tell its modems").arg(daemon);
    }
    return {};
}

QString stateInWords(const QString &word)
{
    const auto *const known = std::find_if(states.begin(), states.end(),
                                           [&](const char *state) { return word == QLatin1String(state); });
    return known == states.end() ? word : QCoreApplication::translate("handset", *known);
}

QString noSystemBus(const QString &why)
{
    return QCoreApplication::translate("handset", "There is no system bus: %1").arg(why);
}

} // namespace handset::live
