#include "SalvageSessions.h"

#include "LedgerTables.h"
#include "PacketData.h"
#include "RowSalvage.h"
#include "Saturating.h"
#include "Schema.h"

#include <QtCore/QVariant>

#include <algorithm>
#include <array>
#include <optional>

namespace handset::calllog {

namespace {

constexpr auto rowsSql = "SELECT id, apn, started_ms, duration_ms, sent, received, state FROM sessions";
constexpr auto putRowSql =
    "INSERT OR IGNORE INTO sessions (id, apn, started_ms, duration_ms, sent, received, state)"
    " VALUES (?, ?, ?, ?, ?, ?, ?)";

struct SessionAmount {
    Total total;
    qint64 SessionAmounts::*amount;
};

constexpr std::array sessionAmounts{
    SessionAmount{Total::SessionTime, &SessionAmounts::ms},
    SessionAmount{Total::BytesSent, &SessionAmounts::sent},
    SessionAmount{Total::BytesReceived, &SessionAmounts::received},
};

enum Column { Id, Apn, Started, Duration, Sent, Received, State };

bool isApn(const QString &text)
{
    return !text.isEmpty() && text.size() <= DataSession::longestApn &&
           std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() >= 1 && c.unicode() <= 0xff; });
}

class SessionSalvage final : public RowSalvage
{
public:
    using RowSalvage::RowSalvage;

    bool run() { return copy(QString::fromLatin1(rowsSql), QString::fromLatin1(putRowSql)) && putTotals(); }
    bool hasReadTotals() const { return totalsRead; }

private:
    bool isPlausible(const QSqlQuery &row) const override;
    void countRow(const QSqlQuery &row) override;
    std::optional<SessionAmounts> readTotals();
    bool putTotals();

    bool totalsRead = false;
    SessionAmounts counted;
};

bool SessionSalvage::isPlausible(const QSqlQuery &row) const
{
    return isWithin(row, Id, 1, highestId) && isText(row, Apn) && isApn(row.value(Apn).toString()) &&
           isWithin(row, Started, lowestInteger, highestInteger) && isWithin(row, Duration, 0, highestInteger) &&
           isWithin(row, Sent, 0, highestInteger) && isWithin(row, Received, 0, highestInteger) &&
           isWithin(row, State, 0, 3) && row.value(State).toInt() != static_cast<int>(CallState::NotConnected);
}

void SessionSalvage::countRow(const QSqlQuery &row)
{
    counted.ms = saturatingSum(counted.ms, row.value(Duration).toLongLong());
    counted.sent = saturatingSum(counted.sent, row.value(Sent).toLongLong());
    counted.received = saturatingSum(counted.received, row.value(Received).toLongLong());
}

std::optional<SessionAmounts> SessionSalvage::readTotals()
{
    SessionAmounts totals;
    for (const SessionAmount &name : sessionAmounts) {
        const QString select = QStringLiteral("SELECT value FROM session_totals WHERE counter = '%1'");
        const std::optional<qint64> value = read(select.arg(QString::fromLatin1(placeOf(name.total).key)));
        if (!value || *value < 0)
            return std::nullopt;
        totals.*name.amount = *value;
    }
    return totals;
}

bool SessionSalvage::putTotals()
{
    const std::optional<SessionAmounts> kept = readTotals();
    totalsRead = kept.has_value();
    const SessionAmounts totals = kept.value_or(counted);
    if (isBlocked())
        return false;
    LedgerTables tables(target);
    return std::all_of(sessionAmounts.begin(), sessionAmounts.end(), [&](const SessionAmount &name) {
        const qint64 total = totals.*name.amount;
        return tables.put(name.total, total) && putLost(placeOf(name.total).key, total - counted.*name.amount);
    });
}

} // namespace

SalvagedSessions salvageSessions(Database &source, Database &target, const ProgressListener &progress)
{
    const qint64 expected = source.number(QStringLiteral("SELECT max(id) FROM sessions")).value_or(0);
    SessionSalvage salvage(source, target,
                           {progress, QStringLiteral("Reading the damaged log of data sessions"), expected});
    const bool written = salvage.run();
    return {written, salvage.obstacle(), salvage.copied(), salvage.hasReadTotals()};
}

} // namespace handset::calllog
