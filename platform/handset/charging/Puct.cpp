#include "charging/Puct.h"

#include "charging/DefaultAlphabet.h"

#include <cstdlib>

namespace handset::charging {

namespace {

constexpr qsizetype codeSize = 3;
constexpr quint8 unused = 0xFF;
constexpr quint8 negative = 0x10;
constexpr int magnitudeShift = 5;

int encodeCurrency(const QString &currency, PuctBytes &bytes)
{
    if (currency.size() > codeSize)
        return InvalidArgument;
    for (qsizetype i = 0; i < currency.size(); ++i) {
        const std::optional<quint8> byte = toDefaultAlphabet(currency[i]);
        if (!byte)
            return InvalidArgument;
        bytes[static_cast<std::size_t>(i)] = *byte;
    }
    return Success;
}

QString decodeCurrency(const PuctBytes &bytes)
{
    QString currency;
    for (std::size_t i = 0; i < codeSize && bytes[i] != unused; ++i)
        currency.append(fromDefaultAlphabet(bytes[i]));
    return currency;
}

quint8 exponentBits(int exponent)
{
    return static_cast<quint8>(std::abs(exponent) << magnitudeShift | (exponent < 0 ? negative : 0));
}

} // namespace

int encodePuct(const Puct &puct, PuctBytes &bytes)
{
    PuctBytes encoded = newPuct;
    const int status = encodeCurrency(puct.currency, encoded);
    if (status != Success)
        return status;
    const int eppu = puct.price.eppu();
    encoded[3] = static_cast<quint8>(eppu >> 4);
    encoded[4] = static_cast<quint8>(exponentBits(puct.price.exponent()) | (eppu & 0x0F));
    bytes = encoded;
    return Success;
}

Puct decodePuct(const PuctBytes &bytes)
{
    const int eppu = bytes[3] << 4 | (bytes[4] & 0x0F);
    const int magnitude = bytes[4] >> magnitudeShift;
    Puct puct;
    puct.currency = decodeCurrency(bytes);
    // Twelve bits and three bits with a sign are always in range.
    UnitPrice::fromParts(eppu, (bytes[4] & negative) != 0 ? -magnitude : magnitude, puct.price);
    return puct;
}

} // namespace handset::charging
