#include "meter/Figures.h"

#include "handset/AdviceOfCharge.h"
#include "handset/CallLog.h"
#include "handset/CallService.h"
#include "handset/DataCalls.h"
#include "handset/Handset.h"
#include "handset/PacketData.h"
#include "meter/Text.h"

#include <algorithm>
#include <array>

namespace meter {

namespace {

using namespace handset;

/// Runs an operation of a role, or answers NotAvailable where the telephone has not got it.
template <typename Role, typename Operation, typename... Arguments>
int run(Role *role, Operation operation, Arguments &...arguments)
{
    return role ? (role->*operation)(arguments...) : static_cast<int>(NotAvailable);
}

Figure make(const QString &name, int status, const Cell &cell, const QString &unit = {})
{
    return status == Success ? Figure{name, status, cell, unit} : Figure{name, status, notAvailable(), unit};
}

Cell timeCell(const CallTime &time)
{
    return meter::timeCell(((qint64{time.hours} * 60 + time.minutes) * 60 + time.seconds) * 1000);
}

// What amounts are told in: nothing where that cannot be known.
QString unitOfCosts(Handset &handset)
{
    quint8 type = AdviceOfCharge::InUnits;
    if (run(handset.adviceOfCharge(), &AdviceOfCharge::chargeType, type) != Success)
        return {};
    if (type == AdviceOfCharge::InUnits)
        return QStringLiteral("units");
    QString price;
    QString currency;
    return run(handset.adviceOfCharge(), &AdviceOfCharge::priceAndCurrency, price, currency) == Success
               ? currency
               : QString();
}

class Reader
{
public:
    Reader(Handset &asked, std::vector<Figure> &read, const QStringList &wanted)
        : handset(asked)
        , figures(read)
        , names(wanted)
    {}

    template <typename Role>
    void time(const char *name, Role *role, int (Role::*operation)(CallTime &))
    {
        if (!isWanted(name))
            return;
        CallTime value;
        const int status = run(role, operation, value);
        figures.push_back(make(QLatin1String(name), status, timeCell(value), QStringLiteral("s")));
    }
    template <typename Role>
    void cost(const char *name, Role *role, int (Role::*operation)(QByteArray &))
    {
        if (!isWanted(name))
            return;
        QByteArray value;
        const int status = run(role, operation, value);
        figures.push_back(
            make(QLatin1String(name), status, textCell(QString::fromLatin1(value)), unitOfCosts(handset)));
    }
    void add(const QString &name, int status, const Cell &cell, const char *unit)
    {
        if (isWanted(name))
            figures.push_back(make(name, status, cell, QLatin1String(unit)));
    }
    bool isWanted(const QString &name) const { return names.isEmpty() || names.contains(name); }
    bool isWanted(const char *name) const { return isWanted(QString::fromLatin1(name)); }

private:
    Handset &handset;
    std::vector<Figure> &figures;
    const QStringList &names;
};

void readCalls(Handset &handset, Reader &reader)
{
    CallLog *const log = handset.callLog();
    CallService *const service = handset.callService();
    reader.time("last-time", log, &CallLog::lastCallTime);
    reader.time("dialed-time", log, &CallLog::dialedCallsTime);
    reader.time("answered-time", log, &CallLog::answeredCallsTime);
    reader.time("all-time", service, &CallService::totalCallTime);
    reader.time("lifetime", log, &CallLog::lifetimeCallsTime);
    quint32 seconds = 0;
    const int status = run(handset.dataCalls(), &DataCalls::totalDuration, seconds);
    reader.add(QStringLiteral("data-call-time"), status, meter::timeCell(qint64{seconds} * 1000), "s");
    reader.cost("last-cost", service, &CallService::lastCallCost);
    reader.cost("dialed-cost", log, &CallLog::dialedCallsCost);
    reader.cost("answered-cost", log, &CallLog::answeredCallsCost);
    reader.cost("all-cost", log, &CallLog::allCallsCost);
    reader.cost("credit", service, &CallService::remainingCredit);
    reader.cost("deposit", log, &CallLog::lastDeposit);
    Date date;
    const int ofDate = run(log, &CallLog::depositExpirationDate, date);
    const QString day = QStringLiteral("%1-%2-%3")
                            .arg(date.year, 4, 10, QLatin1Char('0'))
                            .arg(date.month, 2, 10, QLatin1Char('0'))
                            .arg(date.day, 2, 10, QLatin1Char('0'));
    reader.add(QStringLiteral("deposit-expires"), ofDate, textCell(day), "");
}

void readPacketData(Handset &handset, Reader &reader)
{
    PacketData *const packets = handset.packetData();
    DataSessions sessions;
    const int status = run(packets, &PacketData::sessions, sessions);
    for (std::size_t i = 0; i < sessions.records.size(); ++i) {
        const DataSession &session = sessions.records[i];
        const int ofSession = status == Success && i >= sessions.count ? int{NotAvailable} : status;
        const QString name = QStringLiteral("session-%1-").arg(i + 1);
        reader.add(name + QStringLiteral("time"), ofSession, timeCell(session.duration), "s");
        reader.add(name + QStringLiteral("sent"), ofSession, numberCell(session.bytesSent), "bytes");
        reader.add(name + QStringLiteral("received"), ofSession, numberCell(session.bytesReceived), "bytes");
    }
    reader.time("sessions-time", packets, &PacketData::totalDuration);
    quint32 total = 0;
    quint32 received = 0;
    quint32 sent = 0;
    const int ofBytes = run(packets, &PacketData::totalBytes, total, received, sent);
    reader.add(QStringLiteral("bytes-sent"), ofBytes, numberCell(sent), "bytes");
    reader.add(QStringLiteral("bytes-received"), ofBytes, numberCell(received), "bytes");
    reader.add(QStringLiteral("bytes-total"), ofBytes, numberCell(total), "bytes");
}

/// What a reset sets to zero.
struct Reset {
    const char *name;
    int (*run)(Handset &handset);
};

template <auto Role, auto Operation>
int zero(Handset &handset)
{
    return run((handset.*Role)(), Operation);
}

constexpr std::array resets{
    Reset{"dialed-time", &zero<&Handset::callLog, &CallLog::resetDialedCallsTime>},
    Reset{"answered-time", &zero<&Handset::callLog, &CallLog::resetAnsweredCallsTime>},
    Reset{"all-time", &zero<&Handset::callService, &CallService::resetCallTime>},
    Reset{"data-call-time", &zero<&Handset::dataCalls, &DataCalls::resetTotalDuration>},
    Reset{"dialed-cost", &zero<&Handset::callLog, &CallLog::resetDialedCallsCost>},
    Reset{"answered-cost", &zero<&Handset::callLog, &CallLog::resetAnsweredCallsCost>},
    Reset{"all-cost", &zero<&Handset::callLog, &CallLog::resetAllCallsCost>},
    Reset{"sessions-time", &zero<&Handset::packetData, &PacketData::resetTotalDuration>},
    Reset{"bytes", &zero<&Handset::packetData, &PacketData::resetTotalBytes>},
    Reset{"call-log", &zero<&Handset::callLog, &CallLog::resetAll>},
};

// A code of a currency is the same everywhere.
QString shown(const QString &unit)
{
    for (const char *own : {QT_TRANSLATE_NOOP("kavmeter", "units"), QT_TRANSLATE_NOOP("kavmeter", "bytes")})
        if (unit == QLatin1String(own))
            return Text::tr(own);
    return unit;
}

} // namespace

std::vector<Figure> figuresOf(Handset &handset, const QStringList &names)
{
    std::vector<Figure> figures;
    Reader reader(handset, figures, names);
    readCalls(handset, reader);
    readPacketData(handset, reader);
    return figures;
}

std::vector<Figure> settingsOf(Handset &handset)
{
    AdviceOfCharge *const advice = handset.adviceOfCharge();
    quint8 type = AdviceOfCharge::InUnits;
    const int ofType = run(advice, &AdviceOfCharge::chargeType, type);
    const char *const typeName = type == AdviceOfCharge::InUnits ? QT_TRANSLATE_NOOP("kavmeter", "units")
                                                                 : QT_TRANSLATE_NOOP("kavmeter", "currency");
    QString maximum;
    bool isOn = false;
    const int ofLimit = run(advice, &AdviceOfCharge::meterMaximum, maximum, isOn);
    const char *const limitState =
        isOn ? QT_TRANSLATE_NOOP("kavmeter", "on") : QT_TRANSLATE_NOOP("kavmeter", "off");
    QString price;
    QString currency;
    const int ofPrice = run(advice, &AdviceOfCharge::priceAndCurrency, price, currency);
    return {make(QStringLiteral("charge-type"), ofType, wordCell(typeName)),
            make(QStringLiteral("credit-limit"), ofLimit, wordCell(limitState)),
            make(QStringLiteral("credit-limit-amount"), ofLimit, textCell(maximum), unitOfCosts(handset)),
            make(QStringLiteral("price"), ofPrice, textCell(price), currency),
            make(QStringLiteral("currency"), ofPrice, textCell(currency))};
}

QStringList figureNames()
{
    // Those of a telephone that has nothing: each is named all the same.
    class Nothing final : public Handset
    {
    public:
        CallService *callService() override { return nullptr; }
        CallLog *callLog() override { return nullptr; }
        DataCalls *dataCalls() override { return nullptr; }
    } nothing;
    QStringList names;
    for (const Figure &figure : figuresOf(nothing))
        names << figure.name;
    return names;
}

Table tableOf(const std::vector<Figure> &figures)
{
    Table table{{QStringLiteral("figure"), QStringLiteral("value"), QStringLiteral("unit")}, {}};
    for (const Figure &figure : figures) {
        // A time is read by a person as it stands.
        const bool isPlain = figure.unit == QLatin1String("s") || figure.status != 0;
        table.rows.append(
            {textCell(figure.name), figure.cell, {isPlain ? QString() : shown(figure.unit), figure.unit}});
    }
    return table;
}

int reset(Handset &handset, const QString &name)
{
    const auto *const found = std::find_if(resets.begin(), resets.end(),
                                           [&](const Reset &one) { return name == QLatin1String(one.name); });
    return found == resets.end() ? static_cast<int>(InvalidArgument) : found->run(handset);
}

QStringList resetNames()
{
    QStringList names;
    for (const Reset &one : resets)
        names << QString::fromLatin1(one.name);
    return names;
}

} // namespace meter
