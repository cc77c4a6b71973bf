#include "charging/SimCard.h"

namespace handset::charging {

namespace {

template <std::size_t Size>
void append(QByteArray &bytes, const std::array<quint8, Size> &record)
{
    bytes.append(reinterpret_cast<const char *>(record.data()), static_cast<qsizetype>(Size));
}

// Null for a number that is no file.
template <typename Files>
auto ruleOf(Files &files, quint8 file) -> decltype(&files.acmRule)
{
    switch (file) {
    case AdviceOfCharge::AcmMaxFile:
        return &files.acmMaxRule;
    case AdviceOfCharge::AcmFile:
        return &files.acmRule;
    case AdviceOfCharge::PuctFile:
        return &files.puctRule;
    }
    return nullptr;
}

} // namespace

SimCard::SimCard()
    : newCodes(std::make_shared<std::optional<Pin2Record>>())
{}

SimCard::SimCard(const SimFiles &stored, const Pin2Record &storedPin)
    : content(stored)
    , pin(storedPin)
{}

bool operator==(const SimCard &one, const SimCard &other)
{
    if (one.content != other.content)
        return false;
    const bool areUntouched = !one.pin && !other.pin && one.newCodes == other.newCodes;
    return areUntouched || one.pin2().record() == other.pin2().record();
}

Pin2 &SimCard::madePin() const
{
    if (!pin) {
        if (!*newCodes)
            *newCodes = Pin2(newCardPin2, newCardPuk2).record();
        pin.emplace(**newCodes);
    }
    return *pin;
}

// A cyclic file: the oldest record is overwritten and becomes the newest.
void SimCard::writeAcm(quint32 units)
{
    std::rotate(content.acm.begin(), content.acm.end() - 1, content.acm.end());
    content.acm.front() = encodeUnits(units);
}

void SimCard::increaseAcm(quint32 units)
{
    if (units > 0)
        writeAcm(addUnits(acm(), units));
}

int SimCard::resetAcm()
{
    const int status = mayUpdate(AdviceOfCharge::AcmFile);
    if (status == Success)
        writeAcm(0);
    return status;
}

int SimCard::updateAcmMax(quint32 units)
{
    if (units > maxUnits)
        return InvalidArgument;
    const int status = mayUpdate(AdviceOfCharge::AcmMaxFile);
    if (status == Success)
        content.acmMax = encodeUnits(units);
    return status;
}

std::optional<quint32> SimCard::unitsLeft() const
{
    const quint32 maximum = acmMax();
    if (maximum == 0)
        return std::nullopt;
    return maximum - std::min(acm(), maximum);
}

int SimCard::updatePuct(const QString &price, const QString &currency)
{
    Puct puct{currency, {}};
    PuctBytes bytes{};
    if (UnitPrice::fromText(price, puct.price) != Success || encodePuct(puct, bytes) != Success)
        return InvalidArgument;
    const int status = mayUpdate(AdviceOfCharge::PuctFile);
    if (status == Success)
        content.puct = bytes;
    return status;
}

int SimCard::updateRule(quint8 file, quint8 &rule) const
{
    const quint8 *const found = ruleOf(content, file);
    if (!found)
        return InvalidArgument;
    rule = *found;
    return Success;
}

int SimCard::setUpdateRule(quint8 file, quint8 rule)
{
    quint8 *const found = ruleOf(content, file);
    if (!found)
        return InvalidArgument;
    *found = rule;
    return Success;
}

int SimCard::mayUpdate(quint8 file) const
{
    const quint8 *const rule = ruleOf(content, file);
    if (!rule)
        return InvalidArgument;
    const bool guarded = *rule == AdviceOfCharge::UpdateUnderPin2;
    return *rule == AdviceOfCharge::NoUpdate || (guarded && !pin2().isSatisfied()) ? NotAllowed : Success;
}

QByteArray SimCard::fileBytes(quint8 file) const
{
    QByteArray bytes;
    switch (file) {
    case AdviceOfCharge::AcmMaxFile:
        append(bytes, content.acmMax);
        break;
    case AdviceOfCharge::AcmFile:
        for (const UnitBytes &record : content.acm)
            append(bytes, record);
        break;
    case AdviceOfCharge::PuctFile:
        append(bytes, content.puct);
        break;
    }
    return bytes;
}

} // namespace handset::charging
