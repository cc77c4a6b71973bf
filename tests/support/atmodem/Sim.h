// The SIM card of the AT modem: its files, its meters of advice of charge, and PIN2 in front of them.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QMap>

namespace atmodem {

/// A price as the card keeps it: a mantissa of 12 bits times a power of ten.
struct CardPrice {
    unsigned mantissa = 0; ///< 0 to 4095
    int exponent = 0;      ///< -7 to 7

    /// The nearest price that the card can keep of a decimal number with a point; of one that is too large, the largest.
    static CardPrice nearest(const QByteArray &decimal);
    /// Plain digits with a point, without needless zeros.
    QByteArray text() const;
};

/// One file as +CRSM reads it.
struct CardFile {
    QByteArray content;
    int recordLength = 0; ///< in bytes; 0 for a transparent file
};

/// Meters have 24 bits and stop at the largest value. PIN2 has three tries, PUK2 ten.
class Sim
{
public:
    enum class Access { Granted, WrongPin2, Pin2Blocked, WrongValue };

    static constexpr unsigned largestMeter = 0xFFFFFF;
    static constexpr int pin2TriesOfACard = 3;
    static constexpr int puk2TriesOfACard = 10;

    Sim();

    /// The file, or null when the card has none of this number.
    const CardFile *file(unsigned number) const;

    Access resetAcm(const QByteArray &pin2);
    Access setAcmMax(unsigned value, const QByteArray &pin2);
    Access setPrice(const QByteArray &currencyName, const QByteArray &decimal, const QByteArray &pin2);
    Access changePin2(const QByteArray &old, const QByteArray &fresh);
    Access unblockPin2(const QByteArray &puk2, const QByteArray &fresh);
    /// Counts units of a call.
    void addUnits(unsigned units);
    /// True when there is a maximum, and the accumulated meter has reached it.
    bool isAtMaximum() const { return acmMax != 0 && acm >= acmMax; }

    bool isMeterReadable = true; ///< false: its files of advice of charge are missing or broken
    QByteArray imsi = "262017890123456";
    QByteArray iccid = "8949020000012345678";
    unsigned acm = 0;
    unsigned acmMax = 0; ///< 0: none
    QByteArray currency = "EUR";
    CardPrice price;
    QByteArray pin2 = "1234";
    QByteArray puk2 = "87654321";
    int pin2Tries = pin2TriesOfACard;
    int puk2Tries = puk2TriesOfACard;

private:
    Access check(const QByteArray &given);

    QMap<unsigned, CardFile> files;
};

} // namespace atmodem
