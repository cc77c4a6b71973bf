#include "charging/Pin2.h"

#include <algorithm>

namespace handset::charging {

namespace {

bool areDigits(QByteArrayView digits)
{
    return std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; });
}

} // namespace

Pin2::Pin2(QByteArrayView pin, QByteArrayView puk)
{
    Q_ASSERT(isPin(pin) && isPuk(puk));
    lasting.pin = CodeHash::of(pin);
    lasting.puk = CodeHash::of(puk);
}

bool Pin2::isPin(QByteArrayView digits)
{
    return digits.size() >= 4 && digits.size() <= 8 && areDigits(digits);
}

bool Pin2::isPuk(QByteArrayView digits)
{
    return digits.size() == 8 && areDigits(digits);
}

SimSecurity::PinStatus Pin2::status() const
{
    if (!lasting.enabled || verified)
        return SimSecurity::NoEntryNeeded;
    return lasting.triesLeft == 0 ? SimSecurity::Blocked : SimSecurity::EntryNeeded;
}

int Pin2::verify(QByteArrayView digits, bool &accepted)
{
    if (!isPin(digits))
        return InvalidArgument;
    if (lasting.triesLeft == 0)
        return NotAllowed;
    verified = lasting.pin.matches(digits);
    lasting.triesLeft = verified ? Pin2Record::allTries : static_cast<quint8>(lasting.triesLeft - 1);
    accepted = verified;
    return Success;
}

int Pin2::unblock(QByteArrayView puk, QByteArrayView newPin, bool &accepted)
{
    if (!isPuk(puk) || !isPin(newPin))
        return InvalidArgument;
    if (lasting.pukTriesLeft == 0)
        return NotAllowed;
    accepted = lasting.puk.matches(puk);
    if (!accepted) {
        --lasting.pukTriesLeft;
        return Success;
    }
    lasting = {true, Pin2Record::allTries, Pin2Record::allPukTries, CodeHash::of(newPin), lasting.puk};
    verified = true;
    return Success;
}

} // namespace handset::charging
