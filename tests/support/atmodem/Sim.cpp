#include "support/atmodem/Sim.h"

#include <algorithm>

namespace atmodem {

namespace {

constexpr unsigned largestMantissa = 4095;
constexpr int largestExponent = 7;

/// Digits two by two with the first of a pair in the low half of its byte, filled up with F.
QByteArray swappedDigits(QByteArray digits)
{
    if (digits.size() % 2 != 0)
        digits += 'F';
    for (qsizetype i = 0; i < digits.size(); i += 2)
        std::swap(digits[i], digits[i + 1]);
    return QByteArray::fromHex(digits);
}

bool isPin(const QByteArray &text)
{
    return text.size() >= 4 && text.size() <= 8 &&
           std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

} // namespace

CardPrice CardPrice::nearest(const QByteArray &decimal)
{
    const qsizetype point = decimal.indexOf('.');
    QByteArray digits = decimal;
    int exponent = 0;
    if (point >= 0) {
        digits.remove(point, 1);
        exponent = -static_cast<int>(digits.size() - point);
    }
    quint64 value = digits.left(18).toULongLong();
    exponent += static_cast<int>(std::max<qsizetype>(0, digits.size() - 18));
    const auto isTooFine = [&](quint64 v, int e) { return v > largestMantissa || e < -largestExponent; };
    quint64 divisor = 1;
    int dropped = 0;
    while (isTooFine((value + divisor / 2) / divisor, exponent + dropped) && divisor <= value) {
        divisor *= 10;
        ++dropped;
    }
    value = (value + divisor / 2) / divisor;
    exponent += dropped;
    if (value == 0)
        return {};
    while (value % 10 == 0 && exponent < 0) {
        value /= 10;
        ++exponent;
    }
    if (exponent > largestExponent)
        return {largestMantissa, largestExponent};
    return {static_cast<unsigned>(value), exponent};
}

QByteArray CardPrice::text() const
{
    QByteArray digits = QByteArray::number(mantissa);
    if (exponent >= 0)
        return mantissa == 0 ? digits : digits + QByteArray(exponent, '0');
    const auto fraction = static_cast<qsizetype>(-exponent);
    if (digits.size() <= fraction)
        digits.prepend(QByteArray(fraction + 1 - digits.size(), '0'));
    return digits.insert(digits.size() - fraction, '.');
}

Sim::Sim()
{
    const QByteArray home = QByteArray::fromHex("62F210"); // country 262, network 01
    files = {
        {0x2FE2, {swappedDigits(iccid).leftJustified(10, '\xFF'), 0}},
        {0x2F05, {"en", 0}},                                // preferred languages
        {0x6F05, {QByteArray::fromHex("01"), 0}},           // language preference: English
        {0x6FAE, {QByteArray::fromHex("03"), 0}},           // phase
        {0x6F38, {QByteArray::fromHex("FF33FFFF0F00"), 0}}, // service table: advice of charge among them
        {0x6FAD, {QByteArray::fromHex("00000002"), 0}},     // two digits of the IMSI name the network
        {0x6F07, {QByteArray::fromHex("08") + swappedDigits('9' + imsi), 0}},
        {0x6F46, {QByteArray::fromHex("01") + QByteArray("Test Net").leftJustified(16, '\xFF'), 0}},
        {0x6F40,
         {QByteArray(14, '\xFF') + QByteArray::fromHex("0581") + swappedDigits("55500001") + QByteArray(8, '\xFF'),
          28}},                                        // own number
        {0x6FB7, {swappedDigits("112F") + '\xFF', 0}}, // emergency numbers
        {0x6F30, {home + QByteArray(9, '\xFF'), 0}},   // preferred networks
        {0x6F7B, {QByteArray(12, '\xFF'), 0}},         // forbidden networks
    };
}

const CardFile *Sim::file(unsigned number) const
{
    const auto found = files.find(number);
    return found == files.end() ? nullptr : &*found;
}

// A wrong PIN2 costs a try, a right one gives all of them back.
Sim::Access Sim::check(const QByteArray &given)
{
    if (pin2Tries == 0)
        return Access::Pin2Blocked;
    if (given == pin2) {
        pin2Tries = pin2TriesOfACard;
        return Access::Granted;
    }
    --pin2Tries;
    return pin2Tries == 0 ? Access::Pin2Blocked : Access::WrongPin2;
}

Sim::Access Sim::resetAcm(const QByteArray &given)
{
    const Access access = check(given);
    if (access == Access::Granted)
        acm = 0;
    return access;
}

Sim::Access Sim::setAcmMax(unsigned value, const QByteArray &given)
{
    if (value > largestMeter)
        return Access::WrongValue;
    const Access access = check(given);
    if (access == Access::Granted)
        acmMax = value;
    return access;
}

Sim::Access Sim::setPrice(const QByteArray &currencyName, const QByteArray &decimal, const QByteArray &given)
{
    bool isNumber = false;
    const double value = decimal.toDouble(&isNumber);
    if (!isNumber || value < 0 || currencyName.size() > 3)
        return Access::WrongValue;
    const Access access = check(given);
    if (access == Access::Granted) {
        currency = currencyName;
        price = CardPrice::nearest(decimal);
    }
    return access;
}

Sim::Access Sim::changePin2(const QByteArray &old, const QByteArray &fresh)
{
    if (!isPin(fresh))
        return Access::WrongValue;
    const Access access = check(old);
    if (access == Access::Granted)
        pin2 = fresh;
    return access;
}

Sim::Access Sim::unblockPin2(const QByteArray &given, const QByteArray &fresh)
{
    if (puk2Tries == 0)
        return Access::Pin2Blocked;
    if (!isPin(fresh))
        return Access::WrongValue;
    if (given != puk2) {
        --puk2Tries;
        return Access::WrongPin2;
    }
    puk2Tries = puk2TriesOfACard;
    pin2Tries = pin2TriesOfACard;
    pin2 = fresh;
    return Access::Granted;
}

void Sim::addUnits(unsigned units)
{
    acm += std::min(units, largestMeter - acm);
}

} // namespace atmodem
