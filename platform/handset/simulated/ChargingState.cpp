#include "ChargingState.h"

#include "SimImage.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QDate>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <algorithm>

namespace handset::simulated {

namespace {

using sim::Tariff;

// What a new call log has in the place of both values; see its tables.
constexpr QByteArrayView neverWritten = "new";

constexpr int version = 2;
constexpr int versionWithoutCheck = 1;

constexpr auto versionKey = QLatin1StringView("version");
constexpr auto chargeTypeKey = QLatin1StringView("chargeType");
constexpr auto dialedKey = QLatin1StringView("dialed");
constexpr auto answeredKey = QLatin1StringView("answered");
constexpr auto creditKey = QLatin1StringView("credit");
constexpr auto depositKey = QLatin1StringView("deposit");
constexpr auto expiresKey = QLatin1StringView("expires");
constexpr auto checkKey = QLatin1StringView("check");

constexpr qsizetype checkSize = 20; ///< as the card's

constexpr std::array tariffElements{
    &Tariff::unitsPerInterval,
    &Tariff::interval,
    &Tariff::scale,
    &Tariff::unitsAtStart,
    &Tariff::unitsPerDataInterval,
    &Tariff::segmentsPerDataInterval,
    &Tariff::firstInterval,
};

QJsonArray toJson(const Tariff &tariff)
{
    QJsonArray elements;
    for (const auto element : tariffElements)
        elements.append(tariff.*element);
    return elements;
}

QJsonArray toJson(const Date &date)
{
    return {date.year, date.month, date.day};
}

// A whole number from 0 to `most`; false for anything else.
bool read(const QJsonValue &value, qint64 most, qint64 &number)
{
    number = value.toInteger(-1);
    return number >= 0 && number <= most;
}

bool read(const QJsonValue &value, Tariff &tariff)
{
    const QJsonArray elements = value.toArray();
    if (elements.size() != static_cast<qsizetype>(tariffElements.size()))
        return false;
    for (std::size_t i = 0; i < tariffElements.size(); ++i) {
        qint64 number = 0;
        if (!read(elements.at(static_cast<qsizetype>(i)), Tariff::greatestElement, number))
            return false;
        tariff.*tariffElements[i] = static_cast<quint16>(number);
    }
    return true;
}

bool read(const QJsonValue &value, Date &date)
{
    const QJsonArray parts = value.toArray();
    qint64 year = 0;
    qint64 month = 0;
    qint64 day = 0;
    if (parts.size() != 3 || !read(parts.at(0), 0xFFFF, year) || !read(parts.at(1), 12, month) ||
        !read(parts.at(2), 31, day))
        return false;
    date = {static_cast<quint16>(year), static_cast<quint8>(month), static_cast<quint8>(day)};
    return QDate::isValid(date.year, date.month, date.day);
}

bool read(const QJsonObject &object, std::optional<Account> &account)
{
    account.reset();
    if (!object.contains(creditKey))
        return true;
    constexpr auto most = static_cast<qint64>(Account::greatestCredit);
    qint64 credit = 0;
    qint64 deposit = 0;
    Account read;
    if (!simulated::read(object.value(creditKey), most, credit) ||
        !simulated::read(object.value(depositKey), most, deposit) ||
        !simulated::read(object.value(expiresKey), read.expires))
        return false;
    read.credit = static_cast<quint64>(credit);
    read.deposit = static_cast<quint64>(deposit);
    account = read;
    return true;
}

QByteArray bytesOf(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

// Of an object that has none yet. Its members come in the order of their names, so equal objects have equal bytes.
QString checkOf(const QJsonObject &object)
{
    const QByteArray hash = QCryptographicHash::hash(bytesOf(object), QCryptographicHash::Sha256);
    return QString::fromLatin1(hash.first(checkSize).toHex());
}

bool isChecked(QJsonObject object)
{
    // One that has a check was set back, so that nobody should look at it.
    if (object.value(versionKey).toInt() == versionWithoutCheck)
        return !object.contains(checkKey);
    const QJsonValue check = object.take(checkKey);
    return object.value(versionKey).toInt() == version && check.toString() == checkOf(object);
}

QByteArray chargingRecord(const ChargingState &state)
{
    QJsonObject object{
        {versionKey, version},
        {chargeTypeKey, state.chargeType},
        {dialedKey, toJson(state.tariff(CallDirection::Dialed))},
        {answeredKey, toJson(state.tariff(CallDirection::Answered))},
    };
    if (state.account) {
        object.insert(creditKey, static_cast<qint64>(state.account->credit));
        object.insert(depositKey, static_cast<qint64>(state.account->deposit));
        object.insert(expiresKey, toJson(state.account->expires));
    }
    object.insert(checkKey, checkOf(object));
    return bytesOf(object);
}

calllog::KeptValue keptCard(const ChargingState &state)
{
    return {QString::fromLatin1(keptCardName), sim::saveCard(state.card)};
}

calllog::KeptValue keptCharging(const ChargingState &state)
{
    return {QString::fromLatin1(keptChargingName), chargingRecord(state)};
}

Tariff unitEveryTenSeconds()
{
    Tariff tariff;
    tariff.unitsPerInterval = 10;
    tariff.interval = 100;
    return tariff;
}

} // namespace

ChargingState::ChargingState()
    : tariffs{unitEveryTenSeconds(), Tariff{}}
{}

std::optional<quint32> ChargingState::unitsLeft() const
{
    const std::optional<quint32> onMeter = card.unitsLeft();
    if (!account)
        return onMeter;
    const auto credit = static_cast<quint32>(account->credit);
    return onMeter ? std::min(*onMeter, credit) : credit;
}

void ChargingState::charge(quint64 units)
{
    card.increaseAcm(static_cast<quint32>(std::min<quint64>(units, sim::maxUnits)));
    if (account)
        account->credit -= std::min(account->credit, units);
}

bool costsAnything(const Tariff &tariff)
{
    return tariff.msUntil({}, 1).has_value();
}

calllog::KeptValues keptValues(const ChargingState &state)
{
    return {keptCard(state), keptCharging(state)};
}

calllog::KeptValues changedValues(const ChargingState &before, const ChargingState &after)
{
    calllog::KeptValues changed;
    if (before.card != after.card)
        changed << keptCard(after);
    if (before.chargeType != after.chargeType || before.tariffs != after.tariffs ||
        before.account != after.account)
        changed << keptCharging(after);
    return changed;
}

bool isNeverWritten(const QByteArray &kept)
{
    return kept == neverWritten;
}

bool readCard(const QByteArray &kept, ChargingState &state)
{
    return isNeverWritten(kept) || sim::loadCard(kept, state.card) == Success;
}

bool isUnchecked(const QByteArray &keptCharging)
{
    return QJsonDocument::fromJson(keptCharging).object().value(versionKey).toInt() == versionWithoutCheck;
}

bool readCharging(const QByteArray &kept, ChargingState &state)
{
    if (isNeverWritten(kept))
        return true;
    const QJsonObject object = QJsonDocument::fromJson(kept).object();
    ChargingState read = state;
    qint64 type = 0;
    const bool usable = isChecked(object) &&
                        simulated::read(object.value(chargeTypeKey), AdviceOfCharge::InCurrency, type) &&
                        simulated::read(object.value(dialedKey), read.tariff(CallDirection::Dialed)) &&
                        simulated::read(object.value(answeredKey), read.tariff(CallDirection::Answered)) &&
                        simulated::read(object, read.account);
    if (!usable)
        return false;
    read.chargeType = static_cast<quint8>(type);
    state = read;
    return true;
}

} // namespace handset::simulated
