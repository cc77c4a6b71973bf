// Calls that a daemon reports, recorded in the ledger.
#pragma once

#include "calllog/Ledger.h"
#include "live/Modem.h"

#include <QtCore/QHash>
#include <QtCore/QList>

#include <memory>

namespace handset::live {

/// Follows each call from the first that is heard of it. Its row begins when it is connected and ends when it is over, by
/// the boot clock; nothing is asked of the daemon for that. What the ledger does not take is kept and tried again.
class CallRecorder
{
public:
    /// Both outlive this. `charge` is that of every call that is connected from now on; so setCharge().
    CallRecorder(calllog::Ledger &owner, const Clock &clocks, calllog::Charge charge);
    void setCharge(calllog::Charge how) { charge = how; }

    /// True when a call has begun, been connected or ended with it.
    bool report(const ReportedCall &call);
    bool gone(const QString &id);
    bool allGone();
    /// Tries again what could not be written; a call that another process has recorded until now goes on here. To be
    /// called now and then as long as isBusy().
    void retry();

    /// Some call is there, or something is still to be written.
    bool isBusy() const { return !calls.isEmpty() || !unwritten.isEmpty(); }
    bool owes() const { return !unwritten.isEmpty(); }
    /// The row of a call; 0 as long as it has none here.
    qint64 rowOf(const QString &id) const { return calls.value(id).row; }
    /// Those that are there now, in no order.
    QList<ReportedCall> reported() const;
    /// How long a call has been connected, in ms; nothing for one that is not.
    std::optional<qint64> connectedMs(const QString &id) const;

private:
    struct Followed {
        ReportedCall call;
        CallDirection direction = CallDirection::Dialed;
        qint64 startWallMs = 0;
        std::optional<qint64> connectedAtMs; ///< of the boot clock
        qint64 beforeMs = 0;                 ///< that it had been connected by then
        bool isLate = false;
        calllog::Charge charge = calllog::Charge::Unlimited;
        bool mayBeKnown = false; ///< another recorder may have counted some of it
        qint64 row = 0;
    };

    void connect(Followed &followed) const;
    void begin(Followed &followed);
    PastCall asPast(const Followed &followed, qint64 ms) const;
    qint64 connectedMs(const Followed &followed) const;
    void finish(const Followed &followed);
    void writeUnwritten();

    calllog::Ledger &ledger;
    const Clock &clock;
    calllog::Charge charge;
    QHash<QString, Followed> calls;
    QList<std::pair<PastCall, calllog::Charge>> unwritten; ///< over, and in no row
};

} // namespace handset::live
