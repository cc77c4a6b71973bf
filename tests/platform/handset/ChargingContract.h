// What the contract of charging asks, in words.
#pragma once

#include "handset/AdviceOfCharge.h"
#include "handset/CallLog.h"
#include "handset/CallService.h"
#include "handset/HandsetRig.h"
#include "handset/HandsetTestKit.h"
#include "handset/SimSecurity.h"
#include "handset/Status.h"
#include "support/TestGroup.h"

#include <QtCore/QObject>
#include <QtCore/QRegularExpression>

namespace handset::test {

inline constexpr Date someDay{2027, 3, 9};
inline constexpr quint8 simFiles[] = {AdviceOfCharge::AcmMaxFile, AdviceOfCharge::AcmFile,
                                      AdviceOfCharge::PuctFile};

/// What the four cost queries answer.
struct FourCosts {
    double last = 0;
    double dialed = 0;
    double answered = 0;
    double all = 0;

    friend bool operator==(const FourCosts &, const FourCosts &) = default;
};

inline char *toString(const FourCosts &costs)
{
    return QTest::toString(QStringLiteral("last %1, dialed %2, answered %3, all %4")
                               .arg(costs.last)
                               .arg(costs.dialed)
                               .arg(costs.answered)
                               .arg(costs.all));
}

inline FourCosts masked(const FourCosts &costs, const FourCosts &mask)
{
    return {costs.last * mask.last, costs.dialed * mask.dialed, costs.answered * mask.answered,
            costs.all * mask.all};
}

// Any amount is plain digits, with a point where decimals follow.
inline double number(const QString &text)
{
    static const QRegularExpression decimal(QStringLiteral("^[0-9]+([.][0-9]+)?$"));
    if (!decimal.match(text).hasMatch())
        QTest::qFail(qPrintable(QStringLiteral("\"%1\" is no decimal text").arg(text)), __FILE__, __LINE__);
    return text.toDouble();
}

template <typename Role>
double amount(Role &role, int (Role::*operation)(QByteArray &))
{
    QByteArray text;
    const int status = (role.*operation)(text);
    if (status != Success)
        QTest::qFail(qPrintable(QStringLiteral("a query answered %1").arg(status)), __FILE__, __LINE__);
    return number(QString::fromLatin1(text));
}

struct Limit {
    double amount = -1;
    bool enabled = false;

    friend bool operator==(const Limit &, const Limit &) = default;
};

inline char *toString(const Limit &limit)
{
    return QTest::toString(QStringLiteral("%1, %2")
                               .arg(limit.amount)
                               .arg(limit.enabled ? QLatin1String("on") : QLatin1String("off")));
}

struct Price {
    double perUnit = -1;
    QString currency = QStringLiteral("?");

    friend bool operator==(const Price &, const Price &) = default;
};

inline char *toString(const Price &price)
{
    return QTest::toString(QStringLiteral("%1 %2").arg(price.perUnit).arg(price.currency));
}

/// The base of a test class, with a handset of its own for each of its functions.
class ChargingContract : public QObject
{
protected:
    void openRig()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
        rig = makeRig();
        QVERIFY(rig->open());
    }

    CallLog &log() { return *rig->handset().callLog(); }
    CallService &service() { return *rig->handset().callService(); }
    AdviceOfCharge &advice() { return *rig->handset().adviceOfCharge(); }
    SimSecurity &security() { return *rig->handset().simSecurity(); }

    bool call(CallKind kind, CallDirection direction, qint64 ms)
    {
        if (!rig->begin(kind, direction) || !rig->connectCall())
            return false;
        rig->pass(ms);
        return rig->end();
    }

    bool everyKindOfCall()
    {
        return call(CallKind::Voice, CallDirection::Dialed, 100 * second) &&
               call(CallKind::Voice, CallDirection::Answered, 20 * second) &&
               (rig->hasDataCalls() ? call(CallKind::Data, CallDirection::Dialed, 3 * second)
                                    : call(CallKind::Voice, CallDirection::Answered, 3 * second));
    }

    bool restart()
    {
        rig->close();
        return rig->open();
    }
    // What the costs are when a call that is answered has taken the place of every data call.
    FourCosts shown(FourCosts costs) const
    {
        if (!rig->hasDataCalls())
            costs.answered += 3;
        return costs;
    }

    FourCosts costs()
    {
        return {amount(service(), &CallService::lastCallCost), amount(log(), &CallLog::dialedCallsCost),
                amount(log(), &CallLog::answeredCallsCost), amount(log(), &CallLog::allCallsCost)};
    }
    double credit() { return amount(service(), &CallService::remainingCredit); }
    double deposit() { return amount(log(), &CallLog::lastDeposit); }

    int chargeType()
    {
        quint8 type = 99;
        return advice().chargeType(type) == Success ? type : -1;
    }

    Price price()
    {
        QString perUnit;
        QString currency;
        if (advice().priceAndCurrency(perUnit, currency) != Success)
            return {};
        return {number(perUnit), currency};
    }

    Limit limit()
    {
        QString maximum;
        bool enabled = false;
        if (advice().meterMaximum(maximum, enabled) != Success)
            return {};
        return {number(maximum), enabled};
    }

    /// Where the card asks for PIN2 before each write, it is entered; so before the writes below.
    bool allowWrite() { return rig->allowWrite(); }
    int setPrice(const char *perUnit, const char *currency = "EUR")
    {
        return allowWrite()
                   ? advice().setPriceAndCurrency(QString::fromLatin1(perUnit), QString::fromLatin1(currency))
                   : -1;
    }
    int setLimit(const QString &maximum) { return allowWrite() ? advice().setMeterMaximum(maximum) : -1; }
    int setLimit(const char *maximum) { return setLimit(QString::fromLatin1(maximum)); }
    int disableLimit() { return allowWrite() ? advice().disableMeterMaximum() : -1; }

    quint32 pin2Status()
    {
        quint32 status = 99;
        return security().pinStatus(SimSecurity::Pin2, status) == Success ? status : 0;
    }

    int pin2Tries()
    {
        int tries = -1;
        return security().triesLeft(SimSecurity::Pin2, tries) == Success ? tries : -2;
    }

    bool enterRightPin2()
    {
        bool accepted = false;
        return security().verifyPin(SimSecurity::Pin2, rig->pin2(), accepted) == Success && accepted;
    }

    bool enterWrongPin2()
    {
        QByteArray digits = rig->pin2();
        digits.back() = digits.back() == '0' ? '1' : '0';
        bool accepted = true;
        return security().verifyPin(SimSecurity::Pin2, digits, accepted) == Success && !accepted;
    }

    std::unique_ptr<HandsetRig> rig;
};

} // namespace handset::test
