// What is charged by, as it is kept and read back.
#include "charging/ChargingState.h"
#include "support/TestGroup.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

using namespace handset;
using namespace handset::charging;

namespace {

ChargingState prepaid()
{
    ChargingState state;
    state.chargeType = AdviceOfCharge::InCurrency;
    state.account = Account{500, 1000, {2028, 2, 29}};
    return state;
}

/// With the check that belongs to it.
QByteArray checked(QJsonObject object)
{
    object.remove(QStringLiteral("check"));
    const QByteArray bytes = QJsonDocument(object).toJson(QJsonDocument::Compact);
    const QByteArray hash = QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).first(20).toHex();
    object[QStringLiteral("check")] = QString::fromLatin1(hash);
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

QJsonArray tariffWith(qsizetype place, const QJsonValue &value)
{
    QJsonArray tariff{10, 100, 100, 0, 0, 0, 0};
    tariff[place] = value;
    return tariff;
}

} // namespace

class TestChargingState : public QObject
{
    Q_OBJECT

private slots:
    void aRecordIsReadBack();
    void aRecordStaysWhatLaterVersionsRead();
    void whatWasNeverWrittenIsKnown();
    void aCallToAnEmergencyNumberCostsNothing();
    void aRecordWithAnythingOutOfItsRangeIsNone_data();
    void aRecordWithAnythingOutOfItsRangeIsNone();
    void whatIsChargedIsOnTheMeterAndOffTheCredit();
    void whatCostsAUnitOnceIsNotPermittedWithoutOne();
    void aCallThatMayCostMoreThanTheMeterHoldsHasNoEnd();
    void twoNewCardsAreTwoCards();
};

void TestChargingState::aRecordIsReadBack()
{
    const QByteArray record = chargingRecord(prepaid());
    QCOMPARE(checked(QJsonDocument::fromJson(record).object()), record);
    ChargingState read;
    QVERIFY(readCharging(record, read));
    QVERIFY(isSameCharging(read, prepaid()));
}

// Another text, and what earlier versions have kept could not be read.
void TestChargingState::aRecordStaysWhatLaterVersionsRead()
{
    ChargingState state = prepaid();
    state.account->expires = {2031, 12, 31};
    const QByteArray record =
        "{\"answered\":[0,0,100,0,0,0,0],\"chargeType\":1,\"check\":\"CHECK\",\"credit\":500,"
        "\"deposit\":1000,\"dialed\":[10,100,100,0,0,0,0],\"expires\":[2031,12,31],\"version\":2}";
    const QByteArray kept = checked(QJsonDocument::fromJson(record).object());
    QCOMPARE(chargingRecord(state), kept);
    ChargingState read;
    QVERIFY(readCharging(kept, read));
    QVERIFY(isSameCharging(read, state));
}

// In a new call log.
void TestChargingState::whatWasNeverWrittenIsKnown()
{
    QVERIFY(isNeverWritten("new"));
    for (const char *other : {"", "ne", "news", "New", "{}"})
        QVERIFY(!isNeverWritten(other));
}

void TestChargingState::aCallToAnEmergencyNumberCostsNothing()
{
    const ChargingState state;
    const Tariff usual = state.tariff(CallDirection::Dialed);
    QVERIFY(!(usual == Tariff()));
    for (const char *number : {"112", "911"})
        QVERIFY(state.tariffOf({CallKind::Voice, CallDirection::Dialed, QLatin1String(number)}) == Tariff());
    for (const char *number : {"", "11", "1123", "91", "112x"})
        QVERIFY(state.tariffOf({CallKind::Voice, CallDirection::Dialed, QLatin1String(number)}) == usual);
}

void TestChargingState::aRecordWithAnythingOutOfItsRangeIsNone_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QJsonValue>("value");
    const auto row = [](const char *what, const char *name, const QJsonValue &value) {
        QTest::newRow(what) << QString::fromLatin1(name) << value;
    };
    row("a charge type below all", "chargeType", -1);
    row("a charge type above all", "chargeType", 3);
    row("a charge type that is a text", "chargeType", "1");
    row("a tariff without its last element", "dialed", QJsonArray{10, 100, 100, 0, 0, 0});
    row("a tariff with an element above all", "dialed", tariffWith(1, 65536));
    row("a tariff with an element below 0", "answered", tariffWith(0, -1));
    row("a tariff with a broken number", "answered", tariffWith(6, 0.5));
    row("no tariff", "answered", QJsonValue());
    row("a credit above all", "credit", 4294967296.0);
    row("a deposit below 0", "deposit", -1);
    row("no deposit beside a credit", "deposit", QJsonValue());
    row("a date without a day", "expires", QJsonArray{2028, 2});
    row("a year above all", "expires", QJsonArray{65536, 2, 1});
    row("a month above all", "expires", QJsonArray{2028, 13, 1});
    row("a day above all", "expires", QJsonArray{2028, 1, 32});
    row("a day that its month has not", "expires", QJsonArray{2027, 2, 29});
}

void TestChargingState::aRecordWithAnythingOutOfItsRangeIsNone()
{
    QFETCH(QString, name);
    QFETCH(QJsonValue, value);
    QJsonObject object = QJsonDocument::fromJson(chargingRecord(prepaid())).object();
    object[name] = value;
    ChargingState read = prepaid();
    read.account->credit = 7;
    QVERIFY(!readCharging(checked(object), read));
    QCOMPARE(read.account->credit, quint64{7}); // untouched
}

void TestChargingState::whatIsChargedIsOnTheMeterAndOffTheCredit()
{
    ChargingState state = prepaid();
    state.charge(7);
    QCOMPARE(state.card.acm(), quint32{7});
    QCOMPARE(state.account->credit, quint64{493});
    state.charge(1'000);
    QCOMPARE(state.card.acm(), quint32{1'007});
    QCOMPARE(state.account->credit, quint64{0});
    state.account.reset();
    state.charge(std::numeric_limits<quint64>::max());
    QCOMPARE(state.card.acm(), maxUnits);
}

void TestChargingState::whatCostsAUnitOnceIsNotPermittedWithoutOne()
{
    ChargingState state;
    Tariff once;
    once.unitsAtStart = 10; // tenths
    QCOMPARE(state.card.updateAcmMax(1), 0);
    QVERIFY(state.permits(once));
    state.charge(1);
    QVERIFY(!state.permits(once));
    QVERIFY(state.permits(Tariff()));
}

void TestChargingState::aCallThatMayCostMoreThanTheMeterHoldsHasNoEnd()
{
    ChargingState state;
    const Tariff tariff = state.tariff(CallDirection::Dialed); // a unit for every ten seconds
    QCOMPARE(state.longestMs(tariff, 0), std::optional<qint64>());
    QCOMPARE(state.card.updateAcmMax(3), 0);
    QCOMPARE(state.longestMs(tariff, 0), std::optional<qint64>(30'000));
    QCOMPARE(state.card.updateAcmMax(maxUnits), 0);
    QVERIFY(state.longestMs(tariff, 0).has_value());
    QCOMPARE(state.longestMs(tariff, 1), std::optional<qint64>());
}

void TestChargingState::twoNewCardsAreTwoCards()
{
    const SimCard one;
    const SimCard copy = one;
    const SimCard other;
    QVERIFY(copy == one);
    QVERIFY(!(other == one)); // their codes are kept under a salt of their own
    QVERIFY(copy == one);
}

KAV_TEST_GROUP(TestChargingState, NoApplication);
#include "tst_charging_state.moc"
