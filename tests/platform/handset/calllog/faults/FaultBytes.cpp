#include "handset/calllog/faults/FaultBytes.h"

#include "handset/CallLog.h"
#include "handset/CallService.h"
#include "handset/HandsetTestKit.h"
#include "handset/SimSecurity.h"
#include "handset/Status.h"
#include "handset/calllog/faults/FaultJournal.h"
#include "handset/calllog/faults/FaultProcess.h"
#include "handset/calllog/faults/FaultScenes.h"

#include <QtCore/QDir>

#include <algorithm>
#include <cstdio>
#include <random>
#include <vector>

namespace handset::faults {

using test::Phone;
using test::StateDir;

namespace {

constexpr qint64 headerSize = 100;
constexpr qint64 firstPages = qint64{3} * 4096;
constexpr Date goodUntil{2030, 1, 1};

// A write-ahead log: a header, and the pages, each behind a header of its own.
constexpr qint64 aheadHeaderSize = 32;
constexpr qint64 frameSize = 24 + 4096;

const QString logFile = QStringLiteral("calllog.db");
const QString aheadFile = QStringLiteral("calllog.db-wal");

struct Change {
    qint64 position;
    char value;
};

// Calls of all kinds, sessions, an account, a limit, a try of PIN2 that is used up, and resets half way.
QByteArray grownLog()
{
    const StateDir state;
    Phone phone(state.path());
    QList<PastCall> calls;
    for (int i = 0; i < 200; ++i)
        calls.append({i % 7 == 0 ? CallKind::Data : CallKind::Voice,
                      i % 7 != 0 && i % 2 == 0 ? CallDirection::Answered : CallDirection::Dialed,
                      QString::number(100000 + i), i * test::minute, i % 11 == 0 ? 0 : i * 1000 + 7});
    bool done = phone && phone->addHistory(calls) == Success;
    for (int i = 0; i < 12; ++i)
        done = done && phone.session(1000 * i + 500, "internet", 100, 2000);
    bool accepted = true;
    done = done && phone->charging()->topUp(QStringLiteral("5000"), goodUntil) == Success &&
           phone.handset().adviceOfCharge()->setMeterMaximum(QStringLiteral("9000000")) == Success &&
           phone->simCard().verifyPin(SimSecurity::Pin2, "0000", accepted) == Success &&
           phone.log().resetDialedCallsTime() == Success && phone->addHistory(calls) == Success;
    phone.close();
    return done ? test::readFile(state.database()) : QByteArray();
}

/// The same, killed after this and that, which stands in the write-ahead log.
Files killedLog()
{
    const StateDir state;
    putInto(state.path(), {{logFile, grownLog()}});
    Phone phone(state.path());
    bool accepted = true;
    const bool done = phone && phone.dialed(5000) && phone.answered(7000) && phone.session(3000, "x", 10, 20) &&
                      phone->charging()->topUp(QStringLiteral("70"), goodUntil) == Success &&
                      phone->simCard().verifyPin(SimSecurity::Pin2, "1111", accepted) == Success &&
                      phone.log().resetAnsweredCallsTime() == Success && phone.dialed(9000);
    return done ? Files{{logFile, test::readFile(state.database())},
                        {aheadFile, test::readFile(state.file(aheadFile))}}
                : Files();
}

QByteArray amount(int (CallLog::*ask)(QByteArray &), CallLog &log)
{
    QByteArray text;
    return (log.*ask)(text) == Success ? text : QByteArray("none");
}

/// All figures that the telephone tells. (What of a row is no figure has no check.)
QByteArrayList figures(const Phone &phone)
{
    const test::SixFigures times = phone.figures();
    QByteArrayList all;
    for (const quint64 time : {times.last, times.dialed, times.answered, times.data, times.all})
        all << "total " + QByteArray::number(time);
    all << "lifetime " + QByteArray::number(times.lifetime);
    for (const auto ask : {&CallLog::dialedCallsCost, &CallLog::answeredCallsCost})
        all << "total " + amount(ask, phone.log());
    for (const auto ask : {&CallLog::lastDeposit, &CallLog::allCallsCost})
        all << "amount " + amount(ask, phone.log());
    QByteArray text;
    all << "total " + (phone.service().lastCallCost(text) == Success ? text : QByteArray("none"));
    all << "credit " + (phone.service().remainingCredit(text) == Success ? text : QByteArray("none"));
    Date expires;
    const bool expiresThen = phone.log().depositExpirationDate(expires) == Success;
    all << "day " + (expiresThen ? QByteArray::number(expires.year * 10000 + expires.month * 100 + expires.day)
                                 : QByteArray("none"));
    QString maximum;
    bool isOn = false;
    if (phone.handset().adviceOfCharge()->meterMaximum(maximum, isOn) == Success)
        all << "limit " + maximum.toUtf8() + (isOn ? " on" : " off");
    QString price;
    QString currency;
    if (phone.handset().adviceOfCharge()->priceAndCurrency(price, currency) == Success)
        all << "price " + price.toUtf8() + ' ' + currency.toUtf8();
    int tries = -1;
    if (phone.handset().simSecurity()->triesLeft(SimSecurity::Pin2, tries) == Success)
        all << "tries " + QByteArray::number(tries);
    for (const QString &session : phone.sessions()) {
        QStringList words = session.split(QLatin1Char(' '));
        words.remove(1, words.size() - 4); // its access point's name, whatever has become of that
        all << "session " + words.join(QLatin1Char(' ')).toUtf8();
    }
    all << "total " + phone.sessionTotals().toUtf8();
    return all;
}

/// Whether this cannot be known: a total that may have been reset is less, or a session has come to more than its totals
/// say, which may have been reset.
bool isUnknowable(const QByteArray &now, const QByteArray &before)
{
    const QByteArrayList is = now.split(' ');
    const QByteArrayList was = before.split(' ');
    if (is.size() != was.size() || is[0] != was[0] || (is[0] != "total" && is[0] != "session"))
        return false;
    for (qsizetype i = 1; i < is.size(); ++i)
        if (is[0] == "total" ? is[i].toDouble() > was[i].toDouble() : is[i].toDouble() < was[i].toDouble())
            return false;
    return true;
}

QByteArray difference(const QByteArray &now, const QByteArray &before)
{
    return "\"" + now + "\" instead of \"" + before + '"';
}

// In the process of its own: says "told", "harmless", "unknowable", or what differs.
void tryChange(const QByteArray &log, const Change &change, const QByteArrayList &before, Journal &journal)
{
    QByteArray changed = log;
    changed[change.position] = change.value;
    const StateDir state;
    putInto(state.path(), {{logFile, changed}});
    Phone phone(state.path());
    if (!phone || !phone.opened.notice.isEmpty())
        return journal.say("told");
    const QByteArrayList now = figures(phone);
    bool isUnknown = false;
    for (qsizetype i = 0; i < std::max(now.size(), before.size()); ++i) {
        if (now.value(i) == before.value(i))
            continue;
        isUnknown = isUnknowable(now.value(i), before.value(i));
        if (!isUnknown)
            return journal.say(difference(now.value(i), before.value(i)));
    }
    // It can be used as before.
    if (!phone.dialed(3000))
        return journal.say("no call can be made");
    journal.say(isUnknown ? "unknowable" : "harmless");
}

QByteArrayList figuresOf(const Files &files)
{
    const StateDir state;
    putInto(state.path(), files);
    const Phone phone(state.path());
    return phone && phone.opened.notice.isEmpty() ? figures(phone) : QByteArrayList();
}

// Likewise.
void tryChangeAhead(const Files &log, const Change &change, const QByteArrayList &before, Journal &journal)
{
    Files changed = log;
    changed[1].second[change.position] = change.value;
    const StateDir state;
    putInto(state.path(), changed);
    Phone phone(state.path());
    if (!phone || !phone.opened.notice.isEmpty())
        return journal.say("told");
    const QByteArrayList now = figures(phone);
    if (!phone.dialed(3000))
        return journal.say("no call can be made");
    if (now == before)
        return journal.say("harmless");
    Files cut = log;
    const qint64 frame = (change.position - aheadHeaderSize) / frameSize;
    cut[1].second.truncate(change.position < aheadHeaderSize ? 0 : aheadHeaderSize + frame * frameSize);
    const QByteArrayList expected = figuresOf(cut);
    if (now == expected)
        return journal.say("unknowable");
    for (qsizetype i = 0; i < std::max(now.size(), expected.size()); ++i)
        if (now.value(i) != expected.value(i))
            return journal.say(difference(now.value(i), expected.value(i)));
}

// Where the pages say what they are, and the words by which rows and what is kept are found.
std::vector<qint64> headersAndKeys(const QByteArray &log)
{
    constexpr qint64 pageSize = 4096;
    constexpr qint64 pageHeaderSize = 12;
    std::vector<qint64> positions;
    const auto add = [&](qint64 from, qint64 size) {
        for (qint64 at = std::max(from, headerSize); at < std::min<qint64>(from + size, log.size()); ++at)
            positions.push_back(at);
    };
    for (qint64 page = 0; page < log.size(); page += pageSize)
        add(page == 0 ? headerSize : page, pageHeaderSize);
    for (const QByteArrayView key :
         {"last", "dialed", "answered", "lifetime", "duration", "received", "sent", "units", "calls", "card",
          "charging", "chargeType", "credit", "deposit", "expires", "check", "version"})
        for (qsizetype at = log.indexOf(key); at >= 0; at = log.indexOf(key, at + 1))
            add(at, key.size());
    std::sort(positions.begin(), positions.end());
    positions.erase(std::unique(positions.begin(), positions.end()), positions.end());
    return positions;
}

// All of the header, of its pages' headers and keys up to a third, as many as are left from the first pages, and those from
// anywhere; all there are when that is fewer.
std::vector<qint64> chosen(const QByteArray &log, qsizetype count, std::mt19937 &random)
{
    std::vector<qint64> positions;
    for (qint64 at = headerSize; at < log.size(); ++at)
        positions.push_back(at);
    const auto first = std::min<std::ptrdiff_t>(firstPages - headerSize, std::ssize(positions));
    std::shuffle(positions.begin(), positions.begin() + first, random);
    const auto half = std::min<std::ptrdiff_t>(std::max<qsizetype>(count - headerSize, 0) / 2, first);
    std::shuffle(positions.begin() + half, positions.end(), random);
    std::vector<qint64> special = headersAndKeys(log);
    std::shuffle(special.begin(), special.end(), random);
    special.resize(std::min<std::size_t>(special.size(), static_cast<std::size_t>(count / 3)));
    positions.insert(positions.begin(), special.begin(), special.end());
    positions.resize(
        static_cast<std::size_t>(std::clamp<qsizetype>(count - headerSize, 0, std::ssize(positions))));
    for (qint64 at = 0; at < std::min<qint64>(headerSize, count); ++at)
        positions.push_back(at);
    return positions;
}

std::vector<qint64> chosenAhead(const QByteArray &log, qsizetype count, std::mt19937 &random)
{
    std::vector<qint64> positions;
    for (qint64 at = aheadHeaderSize; at < log.size(); ++at)
        positions.push_back(at);
    std::shuffle(positions.begin(), positions.end(), random);
    for (qint64 at = 0; at < aheadHeaderSize; ++at)
        positions.insert(positions.begin(), at);
    positions.resize(static_cast<std::size_t>(std::clamp<qsizetype>(count, 0, std::ssize(positions))));
    return positions;
}

std::vector<Change> changesAt(const QByteArray &log, const std::vector<qint64> &positions, std::mt19937 &random)
{
    std::vector<Change> changes;
    changes.reserve(positions.size());
    for (const qint64 at : positions)
        changes.push_back({at, static_cast<char>(log[at] ^ static_cast<char>(1 + random() % 255))});
    return changes;
}

// Tries each in a process of its own, and counts what they say.
template <typename Try>
int tell(const std::vector<Change> &changes, const char *repeat, const char *what, Try tryOne)
{
    long told = 0;
    long harmless = 0;
    long unknowable = 0;
    Journal journal;
    for (const Change &change : changes) {
        journal.clear();
        const int status = inProcess([&] { tryOne(change, journal); });
        const QByteArray outcome =
            status == 0 ? journal.lines().value(0) : QByteArray("the process broke or hung");
        told += outcome == "told" ? 1 : 0;
        harmless += outcome == "harmless" ? 1 : 0;
        unknowable += outcome == "unknowable" ? 1 : 0;
        if (outcome != "told" && outcome != "harmless" && outcome != "unknowable")
            std::printf("scripts/faults %s %lld --value %d\n    %s\n", repeat,
                        static_cast<long long>(change.position), static_cast<unsigned char>(change.value),
                        outcome.constData());
    }
    const long silent = std::ssize(changes) - told - harmless - unknowable;
    std::printf("%zd positions of %s: %ld harmless, %ld told, %ld that cannot be known, %ld neither\n",
                std::ssize(changes), what, harmless, told, unknowable, silent);
    return silent == 0 ? 0 : 1;
}

} // namespace

int changeBytes(qsizetype count, quint32 seed, qint64 position, int value)
{
    const QByteArray log = grownLog();
    const QByteArrayList before = figuresOf({{logFile, log}});
    if (before.isEmpty())
        return 2;
    std::mt19937 random(seed);
    std::vector<Change> changes = changesAt(log, chosen(log, count, random), random);
    if (position >= 0 && position < log.size())
        changes = {{position, static_cast<char>(value)}};
    return tell(changes, "--at", "a log",
                [&](const Change &change, Journal &journal) { tryChange(log, change, before, journal); });
}

int changeBytesAhead(qsizetype count, quint32 seed, qint64 position, int value)
{
    const Files log = killedLog();
    const QByteArrayList before = log.isEmpty() ? QByteArrayList() : figuresOf(log);
    if (before.isEmpty())
        return 2;
    const QByteArray &ahead = log[1].second;
    std::mt19937 random(seed);
    std::vector<Change> changes = changesAt(ahead, chosenAhead(ahead, count, random), random);
    if (position >= 0 && position < ahead.size())
        changes = {{position, static_cast<char>(value)}};
    return tell(changes, "--ahead --at", "its write-ahead log",
                [&](const Change &change, Journal &journal) { tryChangeAhead(log, change, before, journal); });
}

} // namespace handset::faults
