// The handset behind the phone's libraries, and the one place where its backend is chosen.
#pragma once

#include "handset/Patience.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>
#include <memory>
#include <optional>

namespace handset {

class AdviceOfCharge;
class CallLog;
class CallService;
class Clock;
class DataCalls;
class KeptCalls;
class LineControl;
class PacketData;
class SimSecurity;

namespace calllog {
class Charging;
}

/// A handset: its roles, each an interface of its own. A role that the backend has not is null; the shims return
/// NotAvailable for it. The roles belong to the handset.
class Handset
{
public:
    virtual ~Handset() = default;

    virtual CallService *callService() = 0;
    virtual CallLog *callLog() = 0;
    virtual DataCalls *dataCalls() = 0;
    // Not every handset has these: one that says nothing of them has them not, on purpose.
    virtual AdviceOfCharge *adviceOfCharge() { return nullptr; }
    virtual PacketData *packetData() { return nullptr; }
    virtual SimSecurity *simSecurity() { return nullptr; }
    /// No role of the phone's libraries: who shows the line asks for it. Null where the line is no modem's.
    virtual LineControl *lineControl() { return nullptr; }
    /// The own tariff and the prepaid account, by which the handset charges calls that nobody else does; no role either.
    /// Null where it has none.
    virtual calllog::Charging *charging() { return nullptr; }
    /// Nor is this one: who lists the calls asks for it. Null where they are not kept one by one.
    virtual KeptCalls *keptCalls() { return nullptr; }

    /// `listener` is called when something has been changed by this process that another one may show: a call or session
    /// has begun or ended, something was set or reset. It is copied, takes the place of the one before, and must not end
    /// the handset. Null for nobody.
    virtual void setChangeListener(const std::function<void()> & /*listener*/) {}
    /// `listener` is called with true when an operation begins to wait for the telephone behind, in an event loop of its
    /// own that takes no input, and with false when it has ended. As setChangeListener().
    virtual void setWaitListener(const std::function<void(bool waits)> & /*listener*/) {}
    /// An end of a call or session is still to be written, as the call log cannot be: it is tried again by itself.
    virtual bool owesRecord() const { return false; }
    /// Another process has changed something; not necessarily of this state directory.
    virtual void changedElsewhere() {}
};

struct Settings {
    /// One of backendNames(), "auto" for presentBackend(), or the path of a library that has a backend
    /// (handset/Backend.h): with a slash in it.
    QString backend = QStringLiteral("simulated");
    /// Directory that keeps the state between starts, made when missing; empty keeps it in memory only.
    QString stateDirectory;
    std::shared_ptr<Clock> clock = {}; ///< null is the machine's clocks
    /// Is told what the user should know that is found only while the handset runs: one sentence. From the event loop
    /// of the GUI thread, as long as the handset lives; null for nobody.
    std::function<void(const QString &notice)> tell = {};
    /// Is told how far a step of open() is that takes long, as reading a big damaged call log does: what is done, part of
    /// a sentence, and 0 to 100 percent; one step after another. Waiting for other processes is such a step, too, and
    /// its percents are those of the patience. Null for nobody.
    std::function<void(const QString &step, int percent)> progress = {};
    /// Asked as often as `progress` is told: true gives the opening up, with an error. What is kept is left as it is; the
    /// next open() begins anew. Null for never.
    std::function<bool()> isGivenUp = {};
    Patience patience = {};
    /// Calls that began earlier than so many days ago, 0 to mostKeptDays, are deleted, as handset/CallRetention.h says;
    /// nothing keeps all.
    std::optional<int> keptDays = {};
};

struct Opened {
    std::shared_ptr<Handset> handset; ///< null when the handset could not be opened
    QString error;                    ///< then: one sentence that says why, for the user
    QString notice;                   ///< what the user should know although it opened; empty for nothing
};

/// The names that Settings::backend may have: ours, and NAME of each libkavhandset-NAME.so that is installed in the folder
/// kavcallmeter/backends beside this library.
QStringList backendNames();

/// The first backend with a modem that is there now, else "simulated". Waits for the answer of each daemon that runs,
/// `patience.operation` at most; one that does not answer in that time counts as one without a modem.
QString presentBackend(const Patience &patience = {});

/// What waits for a modem, as long as it is kept, and one sentence that says why there is none to be seen yet: with a watch
/// the system bus is there and does not answer, and is looked for further; without one there is nothing to wait for.
struct Awaited {
    std::shared_ptr<void> watch;
    QString error;
};
/// Calls `here`, from the event loop, with the name of a backend whose modem is there; more than once for as long as the
/// watch is kept, which may end with the first call. Nothing wakes up until a daemon says something, but for a look
/// every five seconds for a bus that does not answer or has gone.
Awaited awaitModem(const std::function<void(const QString &backend)> &here);

/// Opens a handset. Never throws; a backend name that is not known, a library that has no backend, a state directory that cannot be used, and a
/// state that has to be made, migrated or replaced while another process uses it, are errors. Events may run meanwhile, without
/// the user's input.
Opened open(const Settings &settings);

/// What has become of a telephone that was put aside.
struct PutAside {
    QString kept;  ///< the file's name in its directory; empty where there was none
    QString error; ///< why it is as it was, part of a sentence; empty when it was put aside
};

/// Gives what is kept in a state directory another name in it, so that the next open() begins a new telephone. No process
/// may have it open, this one included; who is in the way is not waited for, and named.
PutAside putAside(const QString &stateDirectory);

/// Where the default handset keeps its state: a directory of the user's own data directory.
QString defaultStateDirectory();

/// Makes `handset` the one that the phone's libraries talk to; null for none. Whoever opens a handset for the
/// process, and a test with a handset of its own, calls this before anything else uses the phone's libraries.
void install(std::shared_ptr<Handset> handset);

/// The installed handset. A process that never called install() gets the default one, the simulated handset on
/// defaultStateDirectory(), opened on the first call; where that fails the answer is null from then on, and the
/// reason is a warning. GUI thread only, like every operation of the handset.
std::shared_ptr<Handset> current();

} // namespace handset
