#include "charging/ChargingState.h"

#include "charging/SimImage.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QDate>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QtEndian>

#include <algorithm>

namespace handset::charging {

namespace {

// What a new call log has in the place of both values; see its tables.
constexpr QByteArrayView neverWritten = "new";

constexpr char enteredMark = 1;

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

constexpr auto tariffRecordSize = static_cast<qsizetype>(tariffElements.size()) * qsizetype{sizeof(quint16)};

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
    if (!charging::read(object.value(creditKey), most, credit) ||
        !charging::read(object.value(depositKey), most, deposit) ||
        !charging::read(object.value(expiresKey), read.expires))
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

bool costsAnything(const Tariff &tariff)
{
    return tariff.msUntil({}, 1).has_value();
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

Tariff ChargingState::tariffOf(const PastCall &call) const
{
    const auto isNumber = [&](const char *number) { return call.number == QLatin1String(number); };
    const bool isEmergency = call.direction == CallDirection::Dialed &&
                             std::any_of(emergencyNumbers.begin(), emergencyNumbers.end(), isNumber);
    return isEmergency ? Tariff{} : tariff(call.direction);
}

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
    card.increaseAcm(static_cast<quint32>(std::min<quint64>(units, maxUnits)));
    if (account)
        account->credit -= std::min(account->credit, units);
}

bool ChargingState::permits(const Tariff &tariff) const
{
    return unitsLeft() != 0U || !costsAnything(tariff);
}

std::optional<qint64> ChargingState::longestMs(const Tariff &tariff, quint32 units) const
{
    const std::optional<quint32> left = unitsLeft();
    if (!left || !costsAnything(tariff) || quint64{units} + *left > maxUnits)
        return std::nullopt;
    return tariff.msUntil({}, units + *left);
}

QByteArray tariffRecord(const Tariff &tariff)
{
    QByteArray record(tariffRecordSize, Qt::Uninitialized);
    char *place = record.data();
    for (const auto element : tariffElements) {
        qToBigEndian(tariff.*element, place);
        place += sizeof(quint16);
    }
    return record;
}

bool readTariff(QByteArrayView kept, Tariff &tariff)
{
    if (kept.size() != tariffRecordSize)
        return false;
    const char *place = kept.data();
    for (const auto element : tariffElements) {
        tariff.*element = qFromBigEndian<quint16>(place);
        place += sizeof(quint16);
    }
    return tariff.isValid();
}

QByteArray cardRecord(const SimCard &card)
{
    QByteArray record = saveCard(card);
    if (card.isPin2Entered())
        record.append(enteredMark);
    return record;
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

bool isSameCard(const SimCard &one, const SimCard &other)
{
    return one.isPin2Entered() == other.isPin2Entered() && one == other;
}

bool isSameCharging(const ChargingState &one, const ChargingState &other)
{
    return one.chargeType == other.chargeType && one.tariffs == other.tariffs && one.account == other.account;
}

bool isNeverWritten(const QByteArray &kept)
{
    return kept == neverWritten;
}

bool readCard(const QByteArray &kept, ChargingState &state)
{
    if (isNeverWritten(kept))
        return true;
    const bool isEntered = kept.size() == cardImageSize + 1 && kept.back() == enteredMark;
    if (loadCard(isEntered ? QByteArrayView(kept).first(cardImageSize) : QByteArrayView(kept), state.card) !=
        Success)
        return false;
    if (isEntered)
        state.card.pin2().restoreVerified();
    return true;
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
                        charging::read(object.value(chargeTypeKey), AdviceOfCharge::InCurrency, type) &&
                        charging::read(object.value(dialedKey), read.tariff(CallDirection::Dialed)) &&
                        charging::read(object.value(answeredKey), read.tariff(CallDirection::Answered)) &&
                        charging::read(object, read.account);
    if (!usable)
        return false;
    read.chargeType = static_cast<quint8>(type);
    state = read;
    return true;
}

} // namespace handset::charging
