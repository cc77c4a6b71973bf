// The record of tariffs and account.
#include "fuzz/Fuzz.h"

#include "charging/ChargingState.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

using namespace handset::charging;

namespace {

void tryRecord(const QByteArray &record)
{
    ChargingState state;
    if (!readCharging(record, state))
        return;
    for (const Tariff &tariff : state.tariffs)
        REQUIRE(tariff.isValid());
    REQUIRE(!state.account || state.account->credit <= Account::greatestCredit);
    ChargingState again;
    REQUIRE(readCharging(chargingRecord(state), again));
    REQUIRE(isSameCharging(state, again));
}

} // namespace

void tryBytes(QByteArrayView bytes)
{
    const QByteArray record = bytes.toByteArray();
    tryRecord(record);
    // The same with the right check, which nobody finds by chance.
    QJsonObject object = QJsonDocument::fromJson(record).object();
    if (object.isEmpty())
        return;
    object.remove(QLatin1StringView("check"));
    const QByteArray text = QJsonDocument(object).toJson(QJsonDocument::Compact);
    const QByteArray check = QCryptographicHash::hash(text, QCryptographicHash::Sha256).first(20).toHex();
    object.insert(QLatin1StringView("check"), QString::fromLatin1(check));
    tryRecord(QJsonDocument(object).toJson(QJsonDocument::Compact));
}
