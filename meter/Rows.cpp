#include "meter/Rows.h"

#include "calllog/Saturating.h"

#include <QtCore/QDateTime>

#include <map>

namespace meter {

namespace {

using namespace handset;
using namespace handset::calllog;

struct Sums {
    qint64 calls = 0;
    qint64 dialedMs = 0;
    qint64 answeredMs = 0;
    qint64 dataMs = 0;
    qint64 units = 0;
    qint64 sessions = 0;
    SessionAmounts amounts;
};

void add(qint64 &sum, qint64 more)
{
    sum = saturatingSum(sum, more);
}

Cell momentCell(qint64 wallMs)
{
    const QDateTime moment = QDateTime::fromMSecsSinceEpoch(wallMs);
    return {moment.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")), moment.toUTC().toString(Qt::ISODate)};
}

Cell stateCell(CallState state)
{
    switch (state) {
    case CallState::Running:
        return wordCell(QT_TRANSLATE_NOOP("kavmeter", "running"));
    case CallState::Finished:
        return wordCell(QT_TRANSLATE_NOOP("kavmeter", "finished"));
    case CallState::NotConnected:
        return wordCell(QT_TRANSLATE_NOOP("kavmeter", "not connected"));
    case CallState::Interrupted:
        return wordCell(QT_TRANSLATE_NOOP("kavmeter", "interrupted"));
    }
    return notAvailable();
}

Cell kindCell(const PastCall &call)
{
    if (call.kind == CallKind::Data)
        return wordCell(QT_TRANSLATE_NOOP("kavmeter", "data"));
    return wordCell(QT_TRANSLATE_NOOP("kavmeter", "voice"));
}

Cell directionCell(const PastCall &call)
{
    const bool isDialed = call.direction == CallDirection::Dialed;
    return wordCell(isDialed ? QT_TRANSLATE_NOOP("kavmeter", "dialed")
                             : QT_TRANSLATE_NOOP("kavmeter", "answered"));
}

QDate dayOf(qint64 wallMs)
{
    return QDateTime::fromMSecsSinceEpoch(wallMs).date();
}

void addCall(Sums &sums, const PastCall &call)
{
    ++sums.calls;
    add(sums.units, call.units);
    if (call.kind == CallKind::Data)
        add(sums.dataMs, call.durationMs);
    else
        add(call.direction == CallDirection::Dialed ? sums.dialedMs : sums.answeredMs, call.durationMs);
}

void addSession(Sums &sums, const SessionAmounts &amounts)
{
    ++sums.sessions;
    add(sums.amounts.ms, amounts.ms);
    add(sums.amounts.sent, amounts.sent);
    add(sums.amounts.received, amounts.received);
}

} // namespace

QDate beginOf(const QDate &day, By by, int cycleDay)
{
    switch (by) {
    case By::Day:
        return day;
    case By::Month:
        return {day.year(), day.month(), 1};
    case By::Cycle: {
        const QDate begin(day.year(), day.month(), cycleDay);
        return begin > day ? begin.addMonths(-1) : begin;
    }
    }
    return {};
}

Table tableOf(const QList<ListedCall> &calls)
{
    Table table{{QStringLiteral("id"), QStringLiteral("begun"), QStringLiteral("kind"),
                 QStringLiteral("direction"), QStringLiteral("number"), QStringLiteral("time"),
                 QStringLiteral("units"), QStringLiteral("state")},
                {}};
    for (const auto &[id, call, state] : calls)
        table.rows.append({numberCell(id), momentCell(call.startWallMs), kindCell(call), directionCell(call),
                           textCell(call.number), timeCell(call.durationMs), numberCell(call.units),
                           stateCell(state)});
    return table;
}

Table tableOf(const QList<ListedSession> &sessions)
{
    Table table{{QStringLiteral("id"), QStringLiteral("begun"), QStringLiteral("apn"), QStringLiteral("time"),
                 QStringLiteral("sent"), QStringLiteral("received"), QStringLiteral("state")},
                {}};
    for (const auto &[id, apn, startWallMs, amounts, state] : sessions)
        table.rows.append({numberCell(id), momentCell(startWallMs), textCell(QString::fromLatin1(apn)),
                           timeCell(amounts.ms), numberCell(amounts.sent), numberCell(amounts.received),
                           stateCell(state)});
    return table;
}

Table totalsOf(const QList<ListedCall> &calls, const QList<ListedSession> &sessions, By by, int cycleDay)
{
    std::map<QDate, Sums> periods;
    const auto sumsOf = [&](qint64 wallMs) -> Sums & { return periods[beginOf(dayOf(wallMs), by, cycleDay)]; };
    for (const ListedCall &listed : calls)
        if (listed.state != CallState::NotConnected)
            addCall(sumsOf(listed.call.startWallMs), listed.call);
    for (const ListedSession &listed : sessions)
        addSession(sumsOf(listed.startWallMs), listed.amounts);
    Table table{{QStringLiteral("from"), QStringLiteral("calls"), QStringLiteral("dialed"),
                 QStringLiteral("answered"), QStringLiteral("data"), QStringLiteral("units"),
                 QStringLiteral("sessions"), QStringLiteral("session-time"), QStringLiteral("sent"),
                 QStringLiteral("received")},
                {}};
    for (const auto &[from, sums] : periods)
        table.rows.append({textCell(from.toString(Qt::ISODate)), numberCell(sums.calls), timeCell(sums.dialedMs),
                           timeCell(sums.answeredMs), timeCell(sums.dataMs), numberCell(sums.units),
                           numberCell(sums.sessions), timeCell(sums.amounts.ms), numberCell(sums.amounts.sent),
                           numberCell(sums.amounts.received)});
    return table;
}

} // namespace meter
