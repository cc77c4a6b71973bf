#include "charging/DecimalText.h"

#include <algorithm>

namespace handset::charging {

namespace {

bool appendDigit(Wide &count, unsigned digit)
{
    constexpr Wide greatest = ~Wide{0};
    if (count > (greatest - digit) / 10)
        return false;
    count = count * 10 + digit;
    return true;
}

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

bool areDigits(QStringView text)
{
    return std::all_of(text.begin(), text.end(), isDigit);
}

bool appendDigits(Wide &count, QStringView digits)
{
    return std::all_of(digits.begin(), digits.end(), [&count](QChar c) {
        return appendDigit(count, static_cast<unsigned>(c.unicode() - u'0'));
    });
}

bool appendZeros(Wide &count, qsizetype zeros)
{
    for (qsizetype i = 0; i < zeros; ++i) {
        if (!appendDigit(count, 0))
            return false;
    }
    return true;
}

} // namespace

int parseDecimal(QStringView text, int decimals, DecimalNumber &number)
{
    const QStringView trimmed = text.trimmed();
    const qsizetype point = trimmed.indexOf(u'.');
    const QStringView whole = point < 0 ? trimmed : trimmed.first(point);
    const QStringView fraction = point < 0 ? QStringView() : trimmed.sliced(point + 1);
    if ((whole.isEmpty() && fraction.isEmpty()) || !areDigits(whole) || !areDigits(fraction))
        return InvalidArgument;
    const QStringView kept = fraction.first(std::min<qsizetype>(fraction.size(), decimals));
    const QStringView cut = fraction.sliced(kept.size());
    DecimalNumber read;
    if (!appendDigits(read.count, whole) || !appendDigits(read.count, kept) ||
        !appendZeros(read.count, decimals - kept.size()))
        return InvalidArgument;
    read.exact = std::all_of(cut.begin(), cut.end(), [](QChar c) { return c == u'0'; });
    number = read;
    return Success;
}

QByteArray decimalText(Wide count, int decimals, int minDecimals)
{
    QByteArray text;
    int pending = decimals;
    // From the last digit to the first; zeros that need not be said are not begun with.
    for (; pending > minDecimals && count % 10 == 0; --pending)
        count /= 10;
    for (; pending > 0; --pending, count /= 10)
        text.append(static_cast<char>('0' + static_cast<int>(count % 10)));
    if (!text.isEmpty())
        text.append('.');
    do {
        text.append(static_cast<char>('0' + static_cast<int>(count % 10)));
        count /= 10;
    } while (count != 0);
    std::reverse(text.begin(), text.end());
    return text;
}

} // namespace handset::charging
