#include "charging/UnitPrice.h"

#include "charging/DecimalText.h"

#include <array>

namespace handset::charging {

namespace {

constexpr std::array<quint64, 16> powersOfTen = [] {
    std::array<quint64, 16> powers{};
    quint64 power = 1;
    for (quint64 &entry : powers) {
        entry = power;
        power *= 10;
    }
    return powers;
}();

// Half of the smallest step is 5 of these, so every point halfway between two prices is a whole number of them,
// and what is smaller decides nothing.
constexpr int workingDecimals = UnitPrice::decimals + 1;

constexpr quint64 tenTo(int exponent)
{
    return powersOfTen[static_cast<std::size_t>(exponent)];
}

constexpr quint64 step(int exponent)
{
    return tenTo(exponent + workingDecimals);
}
static_assert(UnitPrice::greatestExponent + workingDecimals < static_cast<int>(powersOfTen.size()));

constexpr quint64 greatest = UnitPrice::greatestEppu * step(UnitPrice::greatestExponent);

// The finest exponent at which the price is in reach.
int finestExponent(quint64 price)
{
    int exponent = UnitPrice::leastExponent;
    while (price > UnitPrice::greatestEppu * step(exponent))
        ++exponent;
    return exponent;
}

} // namespace

int UnitPrice::fromParts(int eppu, int exponent, UnitPrice &price)
{
    if (eppu < 0 || eppu > greatestEppu || exponent < leastExponent || exponent > greatestExponent)
        return InvalidArgument;
    price = UnitPrice(eppu, exponent);
    return Success;
}

int UnitPrice::fromText(QStringView text, UnitPrice &price)
{
    DecimalNumber number;
    const int status = parseDecimal(text, workingDecimals, number);
    if (status != Success)
        return status;
    if (number.count > greatest || (number.count == greatest && !number.exact))
        return InvalidArgument;
    price = nearest(static_cast<quint64>(number.count));
    return Success;
}

UnitPrice UnitPrice::nearest(quint64 hundredMillionths)
{
    int exponent = finestExponent(hundredMillionths);
    quint64 eppu = hundredMillionths / step(exponent);
    quint64 below = eppu * step(exponent);
    const quint64 above = below + step(exponent);
    // Where two exponents meet, the greatest price of the finer one may lie between.
    const quint64 finer = exponent > leastExponent ? greatestEppu * step(exponent - 1) : 0;
    const bool finerIsNearer = finer > below;
    if (finerIsNearer)
        below = finer;
    if (hundredMillionths != below && hundredMillionths - below >= above - hundredMillionths) {
        ++eppu;
    } else if (finerIsNearer) {
        eppu = greatestEppu;
        --exponent;
    }
    if (eppu == 0)
        return {};
    for (; eppu % 10 == 0 && exponent < greatestExponent; ++exponent)
        eppu /= 10;
    return {static_cast<int>(eppu), exponent};
}

quint64 UnitPrice::tenMillionths() const
{
    return static_cast<quint64>(significand) * tenTo(power + decimals);
}

QString UnitPrice::text() const
{
    return QString::fromLatin1(decimalText(tenMillionths(), decimals, 0));
}

} // namespace handset::charging
