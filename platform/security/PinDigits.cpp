#include "security/PinDigits.h"

#include <cstring>

bool PinDigits::append(char digit)
{
    if (used == most)
        return false;
    digits[used++] = digit;
    return true;
}

void PinDigits::removeLast()
{
    if (used > 0)
        digits[--used] = 0;
}

// Not memset(), which a compiler may leave out where nobody reads the memory any more.
void PinDigits::clear()
{
    explicit_bzero(digits.data(), digits.size());
    used = 0;
}

QByteArray PinDigits::view() const
{
    return QByteArray::fromRawData(digits.data(), static_cast<qsizetype>(used));
}
