// The SIM behind the simulated handset: what may be read, who may write, and PIN2.
#include "handset/AdviceOfCharge.h"
#include "handset/HandsetTestKit.h"
#include "handset/SimSecurity.h"
#include "handset/Status.h"
#include "support/TestGroup.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

using namespace handset;
using namespace handset::test;

namespace {

constexpr auto rightPin = charging::SimCard::newCardPin2;
constexpr auto rightPuk = charging::SimCard::newCardPuk2;

AdviceOfCharge &advice(const Phone &phone)
{
    return *phone.handset().adviceOfCharge();
}

SimSecurity &security(const Phone &phone)
{
    return *phone.handset().simSecurity();
}

quint32 pin2Status(const Phone &phone)
{
    quint32 status = 99;
    return security(phone).pinStatus(SimSecurity::Pin2, status) == Success ? status : 0;
}

int triesLeft(const Phone &phone)
{
    int tries = -1;
    return security(phone).triesLeft(SimSecurity::Pin2, tries) == Success ? tries : -2;
}

int enter(const Phone &phone, QByteArrayView digits, bool &accepted)
{
    return security(phone).verifyPin(SimSecurity::Pin2, digits.toByteArray(), accepted);
}

bool enterWrong(const Phone &phone)
{
    bool accepted = true;
    return enter(phone, "9876", accepted) == Success && !accepted;
}

struct Limit {
    QString text;
    bool enabled = false;

    friend bool operator==(const Limit &, const Limit &) = default;
};

Limit limitOf(const Phone &phone)
{
    Limit limit{QStringLiteral("?"), false};
    return advice(phone).meterMaximum(limit.text, limit.enabled) == Success ? limit : Limit();
}

// Every byte that the handset has written, in whatever file.
QByteArray everythingIn(const StateDir &state)
{
    QByteArray all;
    for (const QFileInfo &entry : QDir(state.path()).entryInfoList(QDir::Files | QDir::Hidden)) {
        QFile file(entry.filePath());
        if (file.open(QIODevice::ReadOnly))
            all += file.readAll();
    }
    return all;
}

} // namespace

class TestSimAccess : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void everyFileHasAnUpdateRule_data();
    void everyFileHasAnUpdateRule();
    void anUnknownFileHasNone();
    void aNewCardHasNoLimitAndNoPrice();
    void theLimitIsReadBackAsItWasSet_data();
    void theLimitIsReadBackAsItWasSet();
    void whatIsNoLimitIsRefused_data();
    void whatIsNoLimitIsRefused();
    void thePriceIsReadBackAsItCouldBeStored_data();
    void thePriceIsReadBackAsItCouldBeStored();
    void whatIsNoPriceIsRefused_data();
    void whatIsNoPriceIsRefused();
    void aWriteNeedsWhatItsFileDemands_data();
    void aWriteNeedsWhatItsFileDemands();

    void pin2IsAskedForUntilItIsEntered();
    void pin1IsSwitchedOff();
    void aPinThatDoesNotExistIsRefused();
    void whatIsNoPinCostsNoTry_data();
    void whatIsNoPinCostsNoTry();
    void threeWrongPinsBlock();
    void aWrongPinTakesBackWhatTheRightOneAllowed();
    void aTryIsOnTheDiskBeforeItsOutcomeIsKnown();
    void triesAndTheBlockOutlastARestart();
    void whatWasEnteredDoesNotOutlastARestart();
    void whatWasEnteredDoesNotOutlastAPowerCycle();
    void pukUnblocksAndSetsANewPin();
    void aWrongPukUnblocksNothing();
    void pin2CanBeSwitchedOff();
    void aTryThatCannotBeStoredIsNoTry();
    void noFileHasAPinInClear();
};

void TestSimAccess::everyFileHasAnUpdateRule_data()
{
    QTest::addColumn<quint8>("file");
    QTest::newRow("EF_ACM") << quint8{61};
    QTest::newRow("EF_ACMmax") << quint8{59};
    QTest::newRow("EF_PUCT") << quint8{64};
}

void TestSimAccess::everyFileHasAnUpdateRule()
{
    QFETCH(quint8, file);
    const Phone phone;
    quint8 rule = 99;
    QCOMPARE(advice(phone).updateRule(file, rule), int(Success));
    QCOMPARE(rule, quint8{AdviceOfCharge::FreeUpdate});
    for (const quint8 set : std::initializer_list<quint8>{4, 6, 1, 255}) {
        QCOMPARE(phone->simCard().setUpdateRule(file, set), int(Success));
        QCOMPARE(advice(phone).updateRule(file, rule), int(Success));
        QCOMPARE(rule, set);
    }
}

void TestSimAccess::anUnknownFileHasNone()
{
    const Phone phone;
    quint8 rule = 99;
    for (const quint8 file : std::initializer_list<quint8>{0, 58, 60, 62, 63, 65, 255})
        QCOMPARE(advice(phone).updateRule(file, rule), int(InvalidArgument));
    QCOMPARE(rule, quint8{99});
}

void TestSimAccess::aNewCardHasNoLimitAndNoPrice()
{
    const Phone phone;
    QCOMPARE(limitOf(phone), (Limit{QStringLiteral("0.00"), false}));
    QString price;
    QString currency;
    QCOMPARE(advice(phone).priceAndCurrency(price, currency), int(Success));
    QCOMPARE(price, QStringLiteral("0"));
    QCOMPARE(currency, QString());
    quint8 type = 99;
    QCOMPARE(advice(phone).chargeType(type), int(Success));
    QCOMPARE(type, quint8{AdviceOfCharge::InUnits});
}

void TestSimAccess::theLimitIsReadBackAsItWasSet_data()
{
    QTest::addColumn<quint8>("chargeType");
    QTest::addColumn<QString>("set");
    QTest::addColumn<QString>("readBack");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("on");
    const auto row = [](const char *name, int type, const char *set, const char *back, const char *bytes,
                        bool on) {
        QTest::newRow(name) << static_cast<quint8>(type) << QString::fromLatin1(set) << QString::fromLatin1(back)
                            << QByteArray(bytes) << on;
    };
    row("units", 0, "120", "120.00", "000078", true);
    row("units with decimals", 0, "120.9", "120.00", "000078", true);
    row("the most units", 0, "16777215", "16777215.00", "ffffff", true);
    row("nothing: no limit", 0, "0.000", "0.00", "000000", false);
    row("a currency", 1, "10.00", "10.00", "0000c8", true);
    row("a currency, rounded down to whole units", 1, "10.04", "10.00", "0000c8", true);
}

void TestSimAccess::theLimitIsReadBackAsItWasSet()
{
    QFETCH(quint8, chargeType);
    QFETCH(QString, set);
    QFETCH(QString, readBack);
    QFETCH(QByteArray, bytes);
    QFETCH(bool, on);
    const Phone phone;
    QCOMPARE(advice(phone).setPriceAndCurrency(QStringLiteral("0.05"), QStringLiteral("EUR")), int(Success));
    QCOMPARE(advice(phone).setChargeType(chargeType), int(Success));
    QCOMPARE(advice(phone).setMeterMaximum(set), int(Success));
    QCOMPARE(limitOf(phone), (Limit{readBack, on}));
    QCOMPARE(phone->simCard().card().fileBytes(AdviceOfCharge::AcmMaxFile).toHex(), bytes);
    QCOMPARE(advice(phone).disableMeterMaximum(), int(Success));
    QVERIFY(!limitOf(phone).enabled);
}

void TestSimAccess::whatIsNoLimitIsRefused_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text : {"", "abc", "-1", "1e3", "16777216", "0.5"})
        QTest::newRow(*text ? text : "nothing") << QString::fromLatin1(text);
}

void TestSimAccess::whatIsNoLimitIsRefused()
{
    QFETCH(QString, text);
    const Phone phone;
    QCOMPARE(advice(phone).setMeterMaximum(QStringLiteral("7")), int(Success));
    QCOMPARE(advice(phone).setMeterMaximum(text), int(InvalidArgument));
    QCOMPARE(limitOf(phone), (Limit{QStringLiteral("7.00"), true}));
}

void TestSimAccess::thePriceIsReadBackAsItCouldBeStored_data()
{
    QTest::addColumn<QString>("price");
    QTest::addColumn<QString>("currency");
    QTest::addColumn<QString>("readBack");
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](const char *name, const char *price, const char *currency, const char *back,
                        const char *bytes) {
        QTest::newRow(name) << QString::fromLatin1(price) << QString::fromLatin1(currency)
                            << QString::fromLatin1(back) << QByteArray(bytes);
    };
    row("23 x 10^-2", "0.23", "EUR", "0.23", "4555520157");
    row("17 x 10^1", "170", "USD", "170", "5553440121");
    row("four decimals", "1.2345", "EUR", "1.235", "4555524d73");
    row("no code", "1", "", "1", "ffffff0001");
    row("two letters", "1", "ab", "1", "6162ff0001");
    row("nothing", "0.000", "AED", "0", "4145440000");
}

void TestSimAccess::thePriceIsReadBackAsItCouldBeStored()
{
    QFETCH(QString, price);
    QFETCH(QString, currency);
    QFETCH(QString, readBack);
    QFETCH(QByteArray, bytes);
    const Phone phone;
    QCOMPARE(advice(phone).setPriceAndCurrency(price, currency), int(Success));
    QString priceRead;
    QString currencyRead;
    QCOMPARE(advice(phone).priceAndCurrency(priceRead, currencyRead), int(Success));
    QCOMPARE(priceRead, readBack);
    QCOMPARE(currencyRead, currency);
    QCOMPARE(phone->simCard().card().fileBytes(AdviceOfCharge::PuctFile).toHex(), bytes);
}

void TestSimAccess::whatIsNoPriceIsRefused_data()
{
    QTest::addColumn<QString>("price");
    QTest::addColumn<QString>("currency");
    QTest::newRow("a price that is no number") << QStringLiteral("dear") << QStringLiteral("EUR");
    QTest::newRow("a price below nothing") << QStringLiteral("-1") << QStringLiteral("EUR");
    QTest::newRow("a price beyond what can be stored") << QStringLiteral("40960000000") << QStringLiteral("EUR");
    QTest::newRow("a code of four letters") << QStringLiteral("1") << QStringLiteral("EURO");
    QTest::newRow("a letter that the SIM does not have") << QStringLiteral("1") << QStringLiteral("E\u20ac1");
}

void TestSimAccess::whatIsNoPriceIsRefused()
{
    QFETCH(QString, price);
    QFETCH(QString, currency);
    const Phone phone;
    QCOMPARE(advice(phone).setPriceAndCurrency(QStringLiteral("0.23"), QStringLiteral("EUR")), int(Success));
    const charging::SimFiles before = phone->simCard().card().files();
    QCOMPARE(advice(phone).setPriceAndCurrency(price, currency), int(InvalidArgument));
    QCOMPARE(phone->simCard().card().files(), before);
}

void TestSimAccess::aWriteNeedsWhatItsFileDemands_data()
{
    QTest::addColumn<int>("rule");
    QTest::addColumn<bool>("entered");
    QTest::addColumn<bool>("allowed");
    QTest::newRow("free") << 0 << false << true;
    QTest::newRow("a rule that means nothing") << 5 << false << true;
    QTest::newRow("PIN2, not entered") << 4 << false << false;
    QTest::newRow("PIN2, entered") << 4 << true << true;
    QTest::newRow("never, though PIN2 is entered") << 6 << true << false;
}

void TestSimAccess::aWriteNeedsWhatItsFileDemands()
{
    QFETCH(int, rule);
    QFETCH(bool, entered);
    QFETCH(bool, allowed);
    const Phone phone;
    for (const quint8 file : std::initializer_list<quint8>{59, 61, 64})
        QCOMPARE(phone->simCard().setUpdateRule(file, static_cast<quint8>(rule)), int(Success));
    bool accepted = false;
    if (entered)
        QCOMPARE(enter(phone, rightPin, accepted), int(Success));
    const int expected = allowed ? Success : NotAllowed;
    QCOMPARE(advice(phone).setMeterMaximum(QStringLiteral("7")), expected);
    QCOMPARE(limitOf(phone).enabled, allowed);
    QCOMPARE(advice(phone).disableMeterMaximum(), expected);
    QCOMPARE(advice(phone).setPriceAndCurrency(QStringLiteral("1"), QStringLiteral("EUR")), expected);
    QCOMPARE(phone->simCard().card().puct().currency, allowed ? QStringLiteral("EUR") : QString());
    QCOMPARE(advice(phone).setChargeType(1), int(Success)); // no file of the SIM
}

// --- PIN2

void TestSimAccess::pin2IsAskedForUntilItIsEntered()
{
    const Phone phone;
    QCOMPARE(pin2Status(phone), quint32{SimSecurity::EntryNeeded});
    QCOMPARE(triesLeft(phone), 3);
    bool accepted = false;
    QCOMPARE(enter(phone, rightPin, accepted), int(Success));
    QVERIFY(accepted);
    QCOMPARE(pin2Status(phone), quint32{SimSecurity::NoEntryNeeded});
}

void TestSimAccess::pin1IsSwitchedOff()
{
    const Phone phone;
    quint32 status = 0;
    QCOMPARE(security(phone).pinStatus(SimSecurity::Pin1, status), int(Success));
    QCOMPARE(status, quint32{SimSecurity::NoEntryNeeded});
    int tries = 9;
    bool accepted = false;
    QCOMPARE(security(phone).triesLeft(SimSecurity::Pin1, tries), int(NotAvailable));
    QCOMPARE(security(phone).verifyPin(SimSecurity::Pin1, "1234", accepted), int(NotAvailable));
    QCOMPARE(tries, 9);
    QVERIFY(!accepted);
}

void TestSimAccess::aPinThatDoesNotExistIsRefused()
{
    const Phone phone;
    quint32 status = 77;
    int tries = 9;
    bool accepted = false;
    QCOMPARE(security(phone).pinStatus(2, status), int(InvalidArgument));
    QCOMPARE(security(phone).triesLeft(2, tries), int(InvalidArgument));
    QCOMPARE(security(phone).verifyPin(255, "1234", accepted), int(InvalidArgument));
    QCOMPARE(status, 77U);
    QCOMPARE(tries, 9);
}

void TestSimAccess::whatIsNoPinCostsNoTry_data()
{
    QTest::addColumn<QByteArray>("digits");
    for (const char *digits : {"", "123", "123456789", "12a4", "12 4", "-123"})
        QTest::newRow(*digits ? digits : "nothing") << QByteArray(digits);
}

void TestSimAccess::whatIsNoPinCostsNoTry()
{
    QFETCH(QByteArray, digits);
    const Phone phone;
    bool accepted = true;
    QCOMPARE(enter(phone, digits, accepted), int(InvalidArgument));
    QVERIFY(accepted); // untouched
    QCOMPARE(triesLeft(phone), 3);
}

void TestSimAccess::threeWrongPinsBlock()
{
    const Phone phone;
    for (int left = 2; left >= 0; --left) {
        QVERIFY(enterWrong(phone));
        QCOMPARE(triesLeft(phone), left);
        QCOMPARE(pin2Status(phone), quint32{left ? SimSecurity::EntryNeeded : SimSecurity::Blocked});
    }
    bool accepted = false;
    QCOMPARE(enter(phone, rightPin, accepted), int(NotAllowed));
    QVERIFY(!accepted);
}

void TestSimAccess::aWrongPinTakesBackWhatTheRightOneAllowed()
{
    const Phone phone;
    QCOMPARE(phone->simCard().setUpdateRule(AdviceOfCharge::AcmMaxFile, 4), int(Success));
    bool accepted = false;
    QCOMPARE(enter(phone, rightPin, accepted), int(Success));
    QVERIFY(enterWrong(phone));
    QCOMPARE(advice(phone).setMeterMaximum(QStringLiteral("7")), int(NotAllowed));
}

void TestSimAccess::aTryIsOnTheDiskBeforeItsOutcomeIsKnown()
{
    const StateDir state;
    const Phone phone(state.path());
    for (int left = 2; left >= 0; --left) {
        QVERIFY(enterWrong(phone));
        const QString copy = state.sibling(QStringLiteral("at-%1").arg(left)); // as a power cut leaves it
        QVERIFY(copyState(state.path(), copy));
        const Phone after(copy);
        QCOMPARE(triesLeft(after), left);
    }
}

void TestSimAccess::triesAndTheBlockOutlastARestart()
{
    const StateDir state;
    for (int left = 2; left >= 0; --left) {
        const Phone phone(state.path());
        QVERIFY(enterWrong(phone));
        QCOMPARE(triesLeft(phone), left);
    }
    {
        const Phone phone(state.path());
        QCOMPARE(pin2Status(phone), quint32{SimSecurity::Blocked});
        bool accepted = false;
        QCOMPARE(phone->simCard().unblockPin2(rightPuk, "4711", accepted), int(Success));
        QVERIFY(accepted);
    }
    const Phone phone(state.path());
    QCOMPARE(triesLeft(phone), 3);
    bool accepted = true;
    QCOMPARE(enter(phone, rightPin, accepted), int(Success));
    QVERIFY(!accepted); // the PIN is another
    QCOMPARE(enter(phone, "4711", accepted), int(Success));
    QVERIFY(accepted);
}

void TestSimAccess::whatWasEnteredDoesNotOutlastARestart()
{
    const StateDir state;
    {
        const Phone phone(state.path());
        bool accepted = false;
        QCOMPARE(enter(phone, rightPin, accepted), int(Success));
    }
    const Phone phone(state.path());
    QCOMPARE(pin2Status(phone), quint32{SimSecurity::EntryNeeded});
}

void TestSimAccess::whatWasEnteredDoesNotOutlastAPowerCycle()
{
    const Phone phone;
    bool accepted = false;
    QCOMPARE(enter(phone, rightPin, accepted), int(Success));
    QVERIFY(enterWrong(phone));
    QCOMPARE(enter(phone, rightPin, accepted), int(Success));
    QCOMPARE(phone->simCard().powerCycle(), int(Success));
    QCOMPARE(pin2Status(phone), quint32{SimSecurity::EntryNeeded});
    QCOMPARE(triesLeft(phone), 3);
}

void TestSimAccess::pukUnblocksAndSetsANewPin()
{
    const Phone phone;
    for (int i = 0; i < 3; ++i)
        QVERIFY(enterWrong(phone));
    bool accepted = false;
    QCOMPARE(phone->simCard().unblockPin2(rightPuk, "55555", accepted), int(Success));
    QVERIFY(accepted);
    QCOMPARE(pin2Status(phone), quint32{SimSecurity::NoEntryNeeded});
    QCOMPARE(triesLeft(phone), 3);
}

void TestSimAccess::aWrongPukUnblocksNothing()
{
    const Phone phone;
    for (int i = 0; i < 3; ++i)
        QVERIFY(enterWrong(phone));
    bool accepted = true;
    QCOMPARE(phone->simCard().unblockPin2("87654321", "5555", accepted), int(Success));
    QVERIFY(!accepted);
    QCOMPARE(phone->simCard().card().pin2().pukTriesLeft(), 9);
    QCOMPARE(pin2Status(phone), quint32{SimSecurity::Blocked});
    QCOMPARE(phone->simCard().unblockPin2("1234567", "5555", accepted), int(InvalidArgument));
    QCOMPARE(phone->simCard().card().pin2().pukTriesLeft(), 9);
}

void TestSimAccess::pin2CanBeSwitchedOff()
{
    const Phone phone;
    QCOMPARE(phone->simCard().setUpdateRule(AdviceOfCharge::AcmMaxFile, 4), int(Success));
    QCOMPARE(phone->simCard().setPin2Enabled(false), int(Success));
    QCOMPARE(pin2Status(phone), quint32{SimSecurity::NoEntryNeeded});
    QCOMPARE(advice(phone).setMeterMaximum(QStringLiteral("7")), int(Success));
    QCOMPARE(phone->simCard().setPin2Enabled(true), int(Success));
    QCOMPARE(advice(phone).setMeterMaximum(QStringLiteral("8")), int(NotAllowed));
}

void TestSimAccess::aTryThatCannotBeStoredIsNoTry()
{
    const StateDir state;
    const Phone phone(state.path());
    QVERIFY(enterWrong(phone));
    const LogFile file(state.database());
    QVERIFY(file.run(QStringLiteral("CREATE TRIGGER full BEFORE INSERT ON kept BEGIN"
                                    " SELECT RAISE(ABORT, 'full'); END")));
    for (const QByteArrayView digits : {QByteArrayView("9876"), rightPin}) {
        bool accepted = false;
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("The call log failed: full")));
        QCOMPARE(enter(phone, digits, accepted), int(StorageFailed));
        QVERIFY(!accepted);
        QCOMPARE(triesLeft(phone), 2);
        QCOMPARE(pin2Status(phone), quint32{SimSecurity::EntryNeeded});
    }
}

void TestSimAccess::noFileHasAPinInClear()
{
    const StateDir state;
    {
        const Phone phone(state.path());
        bool accepted = false;
        QCOMPARE(enter(phone, "70931462", accepted), int(Success));
        QCOMPARE(enter(phone, rightPin, accepted), int(Success));
        QCOMPARE(phone->simCard().unblockPin2(rightPuk, "61840275", accepted), int(Success));
        QCOMPARE(enter(phone, "61840275", accepted), int(Success));
        QVERIFY(accepted);
        QVERIFY(!everythingIn(state).contains("61840275"));
    }
    const QByteArray all = everythingIn(state);
    QVERIFY(all.contains("KSIM")); // the card is in it
    for (const QByteArrayView digits : {QByteArrayView("70931462"), QByteArrayView("61840275"), rightPuk})
        QVERIFY2(!all.contains(digits), digits.data());
}

KAV_TEST_GROUP(TestSimAccess, QCoreApplication);
#include "tst_sim_access.moc"
