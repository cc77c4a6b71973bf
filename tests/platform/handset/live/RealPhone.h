// A telephone behind a real daemon, which has the AT modem for hardware, and what can be seen of it.
#pragma once

#include "calllog/OpenLedger.h"
#include "handset/HandsetTestKit.h"
#include "live/LiveHandset.h"
#include "support/atmodem/AtModem.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>

#include <memory>

namespace handset::test {

/// For tests to derive. The daemon stays from one test to the next, the telephone and what it has recorded do not.
template <typename Daemon, typename Telephone>
class RealPhone
{
protected:
    /// How far a duration may be from what the modem itself has recorded.
    static constexpr qint64 precisionMs = 1000;

    /// `make` puts the telephone together over what is given to it; false where there is no call log.
    template <typename Make>
    bool open(Make make)
    {
        state = std::make_unique<StateDir>();
        interfaces = std::make_unique<QTemporaryDir>();
        const auto clock = std::make_shared<SystemClock>();
        calllog::OpenedLedger opened = calllog::openLedger(state->path(), clock);
        if (opened.ledger)
            phone = make(std::move(opened.ledger), clock, live::InterfaceCounters(interfaces->path()));
        return phone != nullptr;
    }
    void lead(const std::function<void(atmodem::Phone &)> &how) { daemon->modem().withPhone(how); }
    bool isRegistered() const { return phone->modem().state().status == QLatin1String("registered"); }

    std::optional<CallPhase> phaseOf(const char *number) const
    {
        const live::ReportedCall call = callWith(number);
        return call.id.isEmpty() ? std::nullopt : std::optional(call.phase);
    }
    QString idOf(const char *number) const { return callWith(number).id; }
    /// "direction:state:late" of the newest row with the number.
    QString row(const char *number) const
    {
        return ofCall(number, "direction || ':' || state || ':' || late").toString();
    }
    qint64 ms(const char *number) const { return ofCall(number, "duration_ms").toLongLong(); }
    /// The modem's own word on its newest call, or on the n-th before that.
    atmodem::CallRecord record(qsizetype before = 0) const
    {
        const QList<atmodem::CallRecord> records = daemon->modem().records();
        return records[records.size() - 1 - before];
    }
    bool isAsLong(const char *number, qsizetype before = 0) const
    {
        const qint64 beside = ms(number) - record(before).durationMs();
        if (std::abs(beside) >= precisionMs)
            qInfo("The call is %lld ms beside what the modem says.", static_cast<long long>(beside));
        return std::abs(beside) < precisionMs;
    }
    /// Of the kernel, as a test wants them.
    bool setCounters(const QString &interface, qint64 sent, qint64 received) const
    {
        const QString folder = interfaces->filePath(interface + QStringLiteral("/statistics"));
        return QDir().mkpath(folder) &&
               writeFile(folder + QStringLiteral("/tx_bytes"), QByteArray::number(sent) + '\n') &&
               writeFile(folder + QStringLiteral("/rx_bytes"), QByteArray::number(received) + '\n');
    }
    /// "apn:sent:received:state" of each.
    QString sessions() const
    {
        return LogFile(state->database())
            .value(QStringLiteral(
                "SELECT group_concat(apn || ':' || sent || ':' || received || ':' || state) FROM sessions"))
            .toString();
    }
    /// What the telephone sees, and behind it the daemon.
    QByteArray story() const
    {
        QString seen = QStringLiteral("nothing");
        if (phone) {
            seen = phone->modem().state().status;
            for (const live::ReportedCall &call : phone->calls().reported())
                seen += QStringLiteral(", call %1 %2 %3").arg(call.id, call.number).arg(int(call.phase));
            for (const live::ReportedSession &session : phone->sessions().reported())
                seen += QStringLiteral(", session %1").arg(session.id);
            seen += QStringLiteral(", rows ") +
                    LogFile(state->database())
                        .value(QStringLiteral("SELECT group_concat(number || ':' || state) FROM calls"))
                        .toString();
        }
        return "The handset sees: " + seen.toLocal8Bit() + ".\n" + daemon->story();
    }

    std::unique_ptr<Daemon> daemon;
    std::unique_ptr<StateDir> state;
    std::unique_ptr<QTemporaryDir> interfaces;
    std::unique_ptr<Telephone> phone;

private:
    live::ReportedCall callWith(const char *number) const
    {
        for (const live::ReportedCall &call : phone->calls().reported())
            if (call.number == QLatin1String(number))
                return call;
        return {};
    }
    QVariant ofCall(const char *number, const char *column) const
    {
        return LogFile(state->database())
            .value(QStringLiteral("SELECT %1 FROM calls WHERE number = '%2' ORDER BY id DESC LIMIT 1")
                       .arg(QLatin1String(column), QLatin1String(number)));
    }
};

} // namespace handset::test
