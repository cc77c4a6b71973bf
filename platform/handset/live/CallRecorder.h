// Calls that a daemon reports, recorded in the ledger.
#pragma once

#include "calllog/Ledger.h"
#include "live/Modem.h"

#include <QtCore/QHash>
#include <QtCore/QList>

#include <memory>

namespace handset::live {

/// Follows each call from the first that is heard of it. Its row begins when it is connected and ends when it is over, by
/// the boot clock; nothing is asked of the daemon for that. What the ledger does not take is kept and tried again; the
/// first failure is a warning, the attempts after it say nothing.
class CallRecorder
{
public:
    /// What a call costs whose charge is measured. It outlives the call, as its meter may be late.
    struct Cost {
        quint32 units = 0; ///< since its beginning
        qint64 row = 0;    ///< of the call; 0 as long as it has none
        quint32 known = 0; ///< of the units: in the row of another recorder
    };

    /// Both outlive this. `charge` is that of every call that is connected from now on; so setCharge().
    CallRecorder(calllog::Ledger &owner, const Clock &clocks, calllog::Charge charge);
    void setCharge(calllog::Charge how) { chargeNow = how; }

    /// True when a call has begun, been connected or ended with it.
    bool report(const ReportedCall &call);
    bool gone(const QString &id);
    bool allGone();
    /// Tries again what could not be written; a call that another process has recorded until now goes on here. To be
    /// called now and then as long as isBusy(). True when something has been written with it.
    bool retry();

    /// Some call is there, or something is still to be written.
    bool isBusy() const { return !calls.isEmpty() || owes(); }
    bool owes() const { return !unwritten.isEmpty() || !owedCosts.isEmpty(); }
    /// The row of a call; 0 as long as it has none here.
    qint64 rowOf(const QString &id) const { return calls.value(id).row; }
    /// What a call costs; null for one that is not connected, or not measured.
    std::shared_ptr<Cost> costOf(const QString &id) const { return calls.value(id).cost; }
    /// It has come to so many units more; true when they are in the call log. Else they get there with the call's row, or
    /// as soon as they can be written.
    bool charge(const std::shared_ptr<Cost> &cost, quint32 more);
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
        bool isOthers = false;   ///< another one records it, and nobody knows since when
        qint64 othersMs = 0;     ///< of it, by that one
        qint64 row = 0;
        std::shared_ptr<Cost> cost = {};
    };
    /// A call that is over, and in no row.
    struct Over {
        PastCall call;
        calllog::Charge charge = calllog::Charge::Unlimited;
        bool mayBeKnown = false;
        std::shared_ptr<Cost> cost = {};
    };

    void connect(Followed &followed) const;
    void begin(Followed &followed);
    PastCall asPast(const Followed &followed, qint64 ms) const;
    qint64 connectedMs(const Followed &followed) const;
    void finish(Followed &followed);
    void takeOver(Followed &followed) const;
    bool takeOffKnown(PastCall &call, const std::shared_ptr<Cost> &cost, bool isFound);
    bool writeUnwritten();
    bool writeCosts();
    int write(Over over);

    calllog::Ledger &ledger;
    const Clock &clock;
    calllog::Charge chargeNow;
    QHash<QString, Followed> calls;
    QList<Over> unwritten;
    QList<std::shared_ptr<Cost>> owedCosts; ///< that a row lacks
    calllog::RepeatedWrite again;
};

} // namespace handset::live
