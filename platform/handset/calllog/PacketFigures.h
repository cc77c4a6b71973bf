// Packet data from the sessions of the ledger.
#pragma once

#include "handset/PacketData.h"

#include <functional>

namespace handset::calllog {

class Ledger;

/// What the ledger has of sessions, and the beginning and end of one that this process counts.
class PacketFigures final : public PacketData
{
public:
    /// `owner` outlives this.
    explicit PacketFigures(Ledger &owner)
        : ledger(owner)
    {}
    ~PacketFigures() override;
    PacketFigures(const PacketFigures &) = delete;
    PacketFigures &operator=(const PacketFigures &) = delete;

    /// The longest access point name (3GPP TS 23.003, 9.1: 100 octets; the handset's record has room for 101).
    static constexpr qsizetype longestApn = DataSession::longestApn;
    /// How often tick() is to be called at least while a session runs.
    static constexpr int updateIntervalMs = 1000;

    int sessions(DataSessions &sessions) override;
    int totalDuration(CallTime &duration) override;
    int totalBytes(quint32 &total, quint32 &received, quint32 &sent) override;
    int resetTotalDuration() override;
    int resetTotalBytes() override;
    void setUpdateListener(const std::function<void()> &listener) override { onUpdate = listener; }

    /// Begins a session with access point name `apn` (Latin-1, 1 to longestApn characters, no NUL; else
    /// InvalidArgument). It counts the given bytes each second, each way. WrongState while one runs, RecordedElsewhere
    /// where another process records.
    int startSession(const QByteArray &apn, quint32 sentPerSecond, quint32 receivedPerSecond);
    /// Ends it, also where the call log cannot be written: then that is owed to it. WrongState without one.
    int stopSession();
    /// Whoever has begun it.
    bool isSessionRunning() const;
    /// Tells the update listener when the running session has gone on for a second since it was told last.
    void tick();

    /// The figures of a session that somebody else counts have changed: tells the update listener.
    void tellUpdate() const;
    /// Whether there is one to tell.
    bool isListenedTo() const { return static_cast<bool>(onUpdate); }

private:
    Ledger &ledger;
    qint64 sessionId = 0; ///< the id of the one that was begun last
    qint64 toldMs = 0;    ///< of it, to the update listener
    std::function<void()> onUpdate;
};

} // namespace handset::calllog
