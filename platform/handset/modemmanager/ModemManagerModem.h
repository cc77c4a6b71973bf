// A modem behind ModemManager.
#pragma once

#include "live/BusDaemon.h"
#include "live/Modem.h"
#include "live/ModemWords.h"
#include "modemmanager/Reading.h"

#include <QtCore/QMap>
#include <QtDBus/QDBusMessage>

#include <memory>

namespace handset::modemmanager {

class Bearers;
class VoiceCalls;

/// Whether the daemon runs and has a modem. Waits, as live::askAndWait().
bool isModemPresent(int longestMs);

/// The first modem that has calls, or else the first one; then that one until it goes. Costs are not the daemon's, nor is
/// PIN2.
class ModemManagerModem final : public live::Modem
{
    Q_OBJECT

public:
    explicit ModemManagerModem(const QString &address = live::systemBusAddress(), live::Patience patience = {});
    ~ModemManagerModem() override;

    QString daemon() const override { return QStringLiteral("ModemManager"); }
    live::ModemState state() const override;
    QString connectToBus(int longestMs = handset::Patience().bus) override;
    bool isBusSilent() const override { return source.isBusSilent(); }
    void start() override;
    int dial(const QString &number) override;
    int answer(const QString &id) override;
    int hangUp(const QString &id) override;

private slots:
    void interfacesAdded(const QDBusMessage &message);
    void interfacesRemoved(const QDBusMessage &message);
    void propertiesChanged(const QDBusMessage &message);

private:
    using Interfaces = QMap<QString, QVariantMap>; ///< properties of each

    void daemonAppeared();
    void listModems();
    void add(const QString &path, const Interfaces &interfaces);
    void choose();
    void loseModem();
    void followVoice();
    void readModem();

    live::BusDaemon source;
    const live::Patience patience;
    mutable Reading reading; ///< remembers what it has warned of
    bool isStarted = false;
    live::NoModem whyNone =
        live::NoModem::DaemonIsNotRunning; ///< IsNone: the modems that there are have been told
    QMap<QString, Interfaces> modems;
    QString modemPath; ///< of the chosen one; empty for none
    std::unique_ptr<VoiceCalls> voice;
    std::unique_ptr<Bearers> bearers;
};

} // namespace handset::modemmanager
