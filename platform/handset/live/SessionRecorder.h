// Data connections that a daemon reports, recorded in the ledger.
#pragma once

#include "calllog/Ledger.h"
#include "live/InterfaceCounters.h"
#include "live/Modem.h"

#include <QtCore/QHash>

namespace handset::live {

/// Bytes are those that the daemon counts, or else those of the kernel's interface. A counter that begins anew adds what
/// it comes to from then on; nothing is ever taken off.
class SessionRecorder
{
public:
    /// Both outlive this.
    SessionRecorder(calllog::Ledger &owner, const Clock &clocks,
                    InterfaceCounters interfaces = InterfaceCounters())
        : ledger(owner)
        , clock(clocks)
        , counters(std::move(interfaces))
    {}

    /// True when a session has begun or ended with it.
    bool report(const ReportedSession &session);
    bool gone(const QString &id);
    bool allGone();
    /// Reads the counters of what runs, and writes what is new; a session that another process has recorded until now
    /// goes on here. To be called now and then as long as isBusy(). True when something has been written with it.
    bool count();

    bool isBusy() const { return !sessions.isEmpty() || owes(); }
    /// A whole session is still to be written.
    bool owes() const { return !unwritten.isEmpty(); }
    /// Those that are there now, in no order.
    QList<ReportedSession> reported() const;
    /// What a session has come to since its beginning, as it was read last; nothing for one that is not recorded here.
    std::optional<Bytes> bytesOf(const QString &id) const;

private:
    struct Followed {
        ReportedSession session;
        qint64 seenAtMs = 0; ///< of the boot clock
        qint64 startWallMs = 0;
        std::optional<Bytes> read; ///< the last reading of its counter
        Bytes unwritten;           ///< read, and not in the row yet
        Bytes all;                 ///< read since its beginning
        qint64 row = 0;
        bool isOthers = false;   ///< another recorder has it, and nobody knows since when
        qint64 othersMs = 0;     ///< of it, by that one
        bool mayBeKnown = false; ///< as of a call
    };
    /// A session that is over, and in no row.
    struct Over {
        QByteArray apn;
        qint64 startWallMs = 0;
        calllog::SessionAmounts amounts;
        bool mayBeKnown = false;
    };

    std::optional<Bytes> readingOf(const Followed &followed) const;
    void read(Followed &followed) const;
    void begin(Followed &followed);
    bool write(Followed &followed);
    void finish(Followed &followed);
    void takeOver(Followed &followed) const;
    Over asOver(const Followed &followed) const;
    int insert(Over over, qint64 &row);
    bool writeUnwritten();

    calllog::Ledger &ledger;
    const Clock &clock;
    const InterfaceCounters counters;
    QHash<QString, Followed> sessions;
    QList<Over> unwritten;
    calllog::RepeatedWrite again;
};

} // namespace handset::live
