// Decimal numbers as one writes them on paper: what the arithmetic of charging is compared with.
#pragma once

#include <QtCore/QByteArray>

#include <algorithm>
#include <array>
#include <compare>

namespace handset::test {

/// 0 or more, with 40 digits before the point and 30 after it. Digit by digit, as at school.
class LongHand
{
public:
    static constexpr int wholeDigits = 40;
    static constexpr int fractionDigits = 30;

    LongHand() = default;
    /// Digits with at most one '.'.
    explicit LongHand(const QByteArray &text)
    {
        const qsizetype point = text.indexOf('.') < 0 ? text.size() : text.indexOf('.');
        for (qsizetype i = 0; i < text.size(); ++i) {
            if (i != point)
                at(i < point ? point - 1 - i : point - i) = static_cast<signed char>(text[i] - '0');
        }
    }
    explicit LongHand(quint64 number)
        : LongHand(QByteArray::number(number))
    {}

    /// Moved so many places up: times 10^by.
    LongHand shifted(int by) const
    {
        LongHand result;
        for (int place = -fractionDigits; place < wholeDigits; ++place) {
            if (place + by >= -fractionDigits && place + by < wholeDigits)
                result.at(place + by) = at(place);
        }
        return result;
    }

    LongHand operator+(const LongHand &other) const
    {
        LongHand sum;
        int carry = 0;
        for (int place = -fractionDigits; place < wholeDigits; ++place) {
            const int digit = at(place) + other.at(place) + carry;
            sum.at(place) = static_cast<signed char>(digit % 10);
            carry = digit / 10;
        }
        return sum;
    }

    /// `other` is not greater.
    LongHand operator-(const LongHand &other) const
    {
        LongHand difference;
        int borrow = 0;
        for (int place = -fractionDigits; place < wholeDigits; ++place) {
            const int digit = at(place) - other.at(place) - borrow;
            borrow = digit < 0 ? 1 : 0;
            difference.at(place) = static_cast<signed char>(digit + 10 * borrow);
        }
        return difference;
    }

    LongHand times(quint64 factor) const
    {
        LongHand product;
        const QByteArray digits = QByteArray::number(factor);
        for (const char digit : digits) {
            product = product.shifted(1);
            for (char i = '0'; i < digit; ++i)
                product = product + *this;
        }
        return product;
    }

    /// Without what follows so many decimals.
    LongHand cut(int decimals) const
    {
        LongHand result = *this;
        for (int place = -fractionDigits; place < -decimals; ++place)
            result.at(place) = 0;
        return result;
    }

    /// At least so many decimals, more where they are not 0.
    QByteArray text(int decimals) const
    {
        int first = wholeDigits - 1;
        while (first > 0 && at(first) == 0)
            --first;
        int last = -fractionDigits;
        while (last < -decimals && at(last) == 0)
            ++last;
        QByteArray result;
        for (int place = first; place >= last; --place) {
            if (place == -1)
                result.append('.');
            result.append(static_cast<char>('0' + at(place)));
        }
        return result;
    }

    friend auto operator<=>(const LongHand &, const LongHand &) = default;

private:
    // Place 0 is the ones, 1 the tens, -1 the tenths.
    static std::size_t index(qsizetype place) { return static_cast<std::size_t>(wholeDigits - 1 - place); }
    signed char &at(qsizetype place) { return places[index(place)]; }
    signed char at(qsizetype place) const { return places[index(place)]; }

    // The highest first, so that they compare as numbers.
    std::array<signed char, wholeDigits + fractionDigits> places{};
};

} // namespace handset::test
