#include "bench/FixedHandset.h"

#include "handset/DecoratedHandset.h"
#include "log/aplog.h"

namespace bench {

namespace {

using handset::CallTime;

QByteArray &firstSessionName()
{
    static QByteArray name;
    return name;
}

// How often the figures have been changed.
quint32 &changes()
{
    static quint32 count = 0;
    return count;
}

constexpr CallTime firstSession{0, 48, 13};
constexpr CallTime secondSession{2, 30, 6};

template <typename Value>
struct Figure {
    const char *operation;
    Value first;
};
// What every figure is at first: no two of a screen are the same, so that none finds the text of another.
constexpr std::array firstTimes{
    Figure<CallTime>{"CallService::totalCallTime", {10, 1, 39}},
    Figure<CallTime>{"CallLog::lastCallTime", {0, 3, 27}},
    Figure<CallTime>{"CallLog::dialedCallsTime", fixedTime},
    Figure<CallTime>{"CallLog::answeredCallsTime", {3, 41, 52}},
    Figure<CallTime>{"CallLog::lifetimeCallsTime", {127, 45, 9}},
    Figure<CallTime>{"DataCalls::totalDuration", {1, 16, 40}},
    Figure<CallTime>{"PacketData::totalDuration", {34, 12, 58}},
};
constexpr std::array firstAmounts{
    Figure<int>{"CallService::remainingCredit", 2375}, Figure<int>{"CallService::lastCallCost", 1048},
    Figure<int>{"CallLog::lastDeposit", 3000},         Figure<int>{"CallLog::dialedCallsCost", 1812},
    Figure<int>{"CallLog::answeredCallsCost", 1126},   Figure<int>{"CallLog::allCallsCost", 2938},
};

// By operation, so that an answer is found at once.
template <typename Value, std::size_t count>
constexpr auto byOperation(const std::array<Figure<Value>, count> &figures)
{
    std::array<Value, handset::operationNames.size()> firsts{};
    for (const Figure<Value> &figure : figures)
        firsts.at(static_cast<std::size_t>(handset::operationIndex(figure.operation))) = figure.first;
    return firsts;
}

// A figure stays within so much of the first, and takes thousands of changes to be the same again.
constexpr quint32 secondsOfRange = 10 * 3600;
constexpr quint32 centsOfRange = 6000;
constexpr quint32 bytesOfRange = 1'000'003;

CallTime now(const CallTime &first)
{
    constexpr quint32 step = 61;
    const quint64 seconds = (first.hours * quint64{60} + first.minutes) * 60 + first.seconds;
    return CallTime::fromSeconds(seconds + quint64{step} * changes() % secondsOfRange);
}

quint32 bytes(quint32 first)
{
    constexpr quint32 step = 1031;
    return first + static_cast<quint32>(quint64{step} * changes() % bytesOfRange);
}

QByteArray amount(int firstCents)
{
    constexpr quint32 step = 7;
    const quint32 cents = static_cast<quint32>(firstCents) + step * changes() % centsOfRange;
    return QByteArray::number(cents / 100) + '.' + QByteArray::number(cents % 100).rightJustified(2, '0');
}

class FixedHandset final : public handset::DecoratedHandset<FixedHandset>
{
public:
    template <typename... Arguments>
    std::optional<int> before(int operation, Arguments &...arguments)
    {
        answer(static_cast<std::size_t>(operation), arguments...);
        return handset::Success;
    }

private:
    static CallTime timeOf(std::size_t operation)
    {
        static constexpr auto firsts = byOperation(firstTimes);
        return now(firsts[operation]);
    }

    static void answer(std::size_t operation, CallTime &time) { time = timeOf(operation); }
    static void answer(std::size_t operation, quint32 &seconds)
    {
        const CallTime time = timeOf(operation);
        seconds = (time.hours * 60 + time.minutes) * 60 + time.seconds;
    }
    static void answer(std::size_t operation, QByteArray &text)
    {
        static constexpr auto firsts = byOperation(firstAmounts);
        text = amount(firsts[operation]);
    }
    static void answer(std::size_t, handset::Date &date) { date = {2006, 3, 9}; }
    static void answer(std::size_t operation, quint8 &number)
    {
        constexpr auto chargeType =
            static_cast<std::size_t>(handset::operationIndex("AdviceOfCharge::chargeType"));
        number = operation == chargeType ? quint8{handset::AdviceOfCharge::InCurrency}
                                         : quint8{handset::DataCalls::Idle};
    }
    static void answer(std::size_t, handset::DataSessions &sessions)
    {
        const handset::DataSession first{1, bytes(123'456), bytes(7'890'123), now(firstSession),
                                         firstSessionName()};
        const handset::DataSession second{2, bytes(2'345), bytes(67'890), now(secondSession),
                                          QByteArrayLiteral("mms.example")};
        sessions = {3, {first, second, handset::DataSession{}}};
    }
    static void answer(std::size_t, quint32 &total, quint32 &received, quint32 &sent)
    {
        received = bytes(7'958'013);
        sent = bytes(125'801);
        total = received + sent;
    }
    static void answer(std::size_t, const quint8 &, quint8 &rule) { rule = handset::AdviceOfCharge::FreeUpdate; }
    static void answer(std::size_t, QString &maximum, bool &enabled)
    {
        maximum = QStringLiteral("100.00");
        enabled = true;
    }
    static void answer(std::size_t, QString &price, QString &currency)
    {
        price = QStringLiteral("0.250");
        currency = QStringLiteral("EUR");
    }
    static void answer(std::size_t, const quint8 &, quint32 &pinStatus)
    {
        pinStatus = handset::SimSecurity::NoEntryNeeded;
    }
    static void answer(std::size_t, const quint8 &, int &tries) { tries = 3; }
    static void answer(std::size_t, const quint8 &, const QByteArray &, bool &accepted) { accepted = true; }
    // A reset or a setting does nothing.
    template <typename... Inputs>
    requires(std::is_const_v<Inputs> &&...) static void answer(std::size_t, Inputs &...) {}
};

} // namespace

void nameFirstSession(const QByteArray &name)
{
    firstSessionName() = name;
}

void changeFigures()
{
    ++changes();
}

void useFixedHandset()
{
    changes() = 0;
    nameFirstSession(QByteArrayLiteral("internet"));
    handset::install(std::make_shared<FixedHandset>());
    if (!libaplog_to_module_ptr)
        libaplog_open("/dev/null");
}

} // namespace bench
