// PIN2: tries, PUK, and what is kept of the digits.
#include "charging/Pin2.h"
#include "support/TestGroup.h"

#include <QtCore/QRandomGenerator>
#include <QtTest/QTest>

using namespace handset;
using namespace handset::charging;

namespace {

constexpr auto entryNeeded = SimSecurity::EntryNeeded;
constexpr auto blocked = SimSecurity::Blocked;
constexpr auto noEntryNeeded = SimSecurity::NoEntryNeeded;

QByteArray bytes(const Sha256 &hash)
{
    return {hash.data(), static_cast<qsizetype>(hash.size())};
}

} // namespace

class TestPin2 : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
        pin = Pin2("2580", "87654321");
    }

    void aNewPinHasToBeEntered();
    void theRightPinCountsUntilPowerOff();
    void aWrongPinCostsATry();
    void theThirdWrongPinBlocks();
    void aBlockedPinDoesNotTakeTheRightOneEither();
    void theRightPinGivesTheTriesBack();
    void aWrongPinTakesBackWhatARightOneAllowed();
    void powerOffDoesNotGiveTriesBack();
    void whatIsNoPinCostsNothing_data();
    void whatIsNoPinCostsNothing();
    void pinsOfFourToEightDigitsAreTaken_data();
    void pinsOfFourToEightDigitsAreTaken();
    void aPinThatIsOffGuardsNothing();
    void aPinThatIsOffIsStillBlockedByWrongTries();
    void thePukSetsANewPinAndGivesAllTriesBack();
    void thePukWorksWithoutABlockedPin();
    void tenWrongPuksBlockForGood();
    void whatIsNoPukCostsNothing_data();
    void whatIsNoPukCostsNothing();
    void aWrongPukLeavesThePinAlone();
    void theTriesSurviveStoringAndTheEntryDoesNot();
    void everyOrderOfTriesCountsAsTheRulesSay();
    void theHashIsTheStandards_data();
    void theHashIsTheStandards();
    void theSameDigitsAreNeverKeptAlike();

private:
    // 1 accepted, 0 not, minus the status on failure.
    int enter(const QByteArray &digits)
    {
        bool accepted = false;
        const int status = pin.verify(digits, accepted);
        return status == Success ? int(accepted) : -status;
    }
    int enterPuk(const QByteArray &puk, const QByteArray &newPin)
    {
        bool accepted = false;
        const int status = pin.unblock(puk, newPin, accepted);
        return status == Success ? int(accepted) : -status;
    }

    Pin2 pin{Pin2Record{}};
};

void TestPin2::aNewPinHasToBeEntered()
{
    QCOMPARE(pin.status(), entryNeeded);
    QCOMPARE(pin.triesLeft(), 3);
    QCOMPARE(pin.pukTriesLeft(), 10);
    QVERIFY(pin.isEnabled());
    QVERIFY(!pin.isVerified());
    QVERIFY(!pin.isSatisfied());
}

void TestPin2::theRightPinCountsUntilPowerOff()
{
    QCOMPARE(enter("2580"), 1);
    QCOMPARE(pin.status(), noEntryNeeded);
    QVERIFY(pin.isVerified());
    pin.powerOff();
    QCOMPARE(pin.status(), entryNeeded);
    QVERIFY(!pin.isVerified());
}

void TestPin2::aWrongPinCostsATry()
{
    QCOMPARE(enter("2581"), 0);
    QCOMPARE(pin.triesLeft(), 2);
    QCOMPARE(pin.status(), entryNeeded);
    // Not a part of the right one, either
    QCOMPARE(enter("25800"), 0);
    QCOMPARE(pin.triesLeft(), 1);
}

void TestPin2::theThirdWrongPinBlocks()
{
    for (int i = 0; i < 3; ++i)
        QCOMPARE(enter("0000"), 0);
    QCOMPARE(pin.triesLeft(), 0);
    QCOMPARE(pin.status(), blocked);
    QCOMPARE(pin.pukTriesLeft(), 10);
}

void TestPin2::aBlockedPinDoesNotTakeTheRightOneEither()
{
    for (int i = 0; i < 3; ++i)
        enter("0000");
    bool accepted = true;
    QCOMPARE(pin.verify("2580", accepted), int(NotAllowed));
    QVERIFY(accepted); // not written
    QCOMPARE(pin.status(), blocked);
}

void TestPin2::theRightPinGivesTheTriesBack()
{
    enter("0000");
    enter("0000");
    QCOMPARE(pin.triesLeft(), 1);
    QCOMPARE(enter("2580"), 1);
    QCOMPARE(pin.triesLeft(), 3);
}

void TestPin2::aWrongPinTakesBackWhatARightOneAllowed()
{
    QCOMPARE(enter("2580"), 1);
    QCOMPARE(enter("0000"), 0);
    QCOMPARE(pin.status(), entryNeeded);
    enter("2580");
    for (int i = 0; i < 3; ++i)
        enter("0000");
    QCOMPARE(pin.status(), blocked);
}

void TestPin2::powerOffDoesNotGiveTriesBack()
{
    enter("0000");
    pin.powerOff();
    QCOMPARE(pin.triesLeft(), 2);
}

void TestPin2::whatIsNoPinCostsNothing_data()
{
    QTest::addColumn<QByteArray>("digits");

    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("three digits") << QByteArray("258");
    QTest::newRow("nine digits") << QByteArray("258025802");
    QTest::newRow("a letter") << QByteArray("258a");
    QTest::newRow("a blank") << QByteArray("2580 ");
    QTest::newRow("a NUL") << QByteArray("2580\0", 5);
    QTest::newRow("a byte with the high bit") << QByteArray("258\xB0");
    QTest::newRow("very many digits") << QByteArray(100'000, '1');
}

void TestPin2::whatIsNoPinCostsNothing()
{
    QFETCH(QByteArray, digits);
    const Pin2Record before = pin.record();
    bool accepted = true;
    QCOMPARE(pin.verify(digits, accepted), int(InvalidArgument));
    QVERIFY(accepted); // not written
    QCOMPARE(pin.record(), before);
}

void TestPin2::pinsOfFourToEightDigitsAreTaken_data()
{
    QTest::addColumn<QByteArray>("digits");

    QTest::newRow("four") << QByteArray("0000");
    QTest::newRow("five") << QByteArray("00000");
    QTest::newRow("seven") << QByteArray("1234567");
    QTest::newRow("eight") << QByteArray("99999999");
}

void TestPin2::pinsOfFourToEightDigitsAreTaken()
{
    QFETCH(QByteArray, digits);
    QCOMPARE(enterPuk("87654321", digits), 1);
    pin.powerOff();
    QCOMPARE(enter(digits), 1);
    QCOMPARE(enter("2580"), 0);
}

void TestPin2::aPinThatIsOffGuardsNothing()
{
    pin.setEnabled(false);
    QCOMPARE(pin.status(), noEntryNeeded);
    QVERIFY(pin.isSatisfied());
    QVERIFY(!pin.isVerified());
    pin.setEnabled(true);
    QCOMPARE(pin.status(), entryNeeded);
}

void TestPin2::aPinThatIsOffIsStillBlockedByWrongTries()
{
    pin.setEnabled(false);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(enter("0000"), 0);
    QCOMPARE(pin.status(), noEntryNeeded);
    QCOMPARE(enter("2580"), -NotAllowed);
    pin.setEnabled(true);
    QCOMPARE(pin.status(), blocked);
}

void TestPin2::thePukSetsANewPinAndGivesAllTriesBack()
{
    for (int i = 0; i < 3; ++i)
        enter("0000");
    pin.setEnabled(false);
    QCOMPARE(enterPuk("00000000", "1111"), 0);
    QCOMPARE(pin.pukTriesLeft(), 9);
    QCOMPARE(enterPuk("87654321", "1111"), 1);
    QCOMPARE(pin.triesLeft(), 3);
    QCOMPARE(pin.pukTriesLeft(), 10);
    QVERIFY(pin.isEnabled());
    QVERIFY(pin.isVerified());
    pin.powerOff();
    QCOMPARE(pin.status(), entryNeeded);
    QCOMPARE(enter("2580"), 0);
    QCOMPARE(enter("1111"), 1);
}

void TestPin2::thePukWorksWithoutABlockedPin()
{
    QCOMPARE(enterPuk("87654321", "1111"), 1);
    QCOMPARE(enter("1111"), 1);
    QCOMPARE(enterPuk("87654321", "2222"), 1);
    QCOMPARE(enter("2222"), 1);
}

void TestPin2::tenWrongPuksBlockForGood()
{
    for (int i = 0; i < 3; ++i)
        enter("0000");
    for (int left = 9; left >= 0; --left) {
        QCOMPARE(enterPuk("00000000", "1111"), 0);
        QCOMPARE(pin.pukTriesLeft(), left);
    }
    QCOMPARE(enterPuk("87654321", "1111"), -NotAllowed);
    QCOMPARE(enter("2580"), -NotAllowed);
    QCOMPARE(pin.status(), blocked);
}

void TestPin2::whatIsNoPukCostsNothing_data()
{
    QTest::addColumn<QByteArray>("puk");
    QTest::addColumn<QByteArray>("newPin");

    QTest::newRow("seven digits") << QByteArray("8765432") << QByteArray("1111");
    QTest::newRow("nine digits") << QByteArray("876543210") << QByteArray("1111");
    QTest::newRow("a letter") << QByteArray("8765432x") << QByteArray("1111");
    QTest::newRow("no new PIN") << QByteArray("87654321") << QByteArray();
    QTest::newRow("a new PIN of three digits") << QByteArray("87654321") << QByteArray("111");
    QTest::newRow("a new PIN of nine digits") << QByteArray("87654321") << QByteArray("111111111");
}

void TestPin2::whatIsNoPukCostsNothing()
{
    QFETCH(QByteArray, puk);
    QFETCH(QByteArray, newPin);
    const Pin2Record before = pin.record();
    QCOMPARE(enterPuk(puk, newPin), -InvalidArgument);
    QCOMPARE(pin.record(), before);
    QVERIFY(!pin.isVerified());
}

void TestPin2::aWrongPukLeavesThePinAlone()
{
    QCOMPARE(enter("2580"), 1);
    QCOMPARE(enterPuk("00000000", "1111"), 0);
    QVERIFY(pin.isVerified());
    QCOMPARE(pin.triesLeft(), 3);
    QCOMPARE(enter("2580"), 1);
    // A right PIN does not give the PUK's tries back.
    QCOMPARE(pin.pukTriesLeft(), 9);
}

void TestPin2::theTriesSurviveStoringAndTheEntryDoesNot()
{
    enter("0000");
    enterPuk("00000000", "1111");
    Pin2 again(pin.record());
    QCOMPARE(again.triesLeft(), 2);
    QCOMPARE(again.pukTriesLeft(), 9);
    enter("2580");
    QVERIFY(pin.isVerified());
    QVERIFY(!Pin2(pin.record()).isVerified());
}

void TestPin2::everyOrderOfTriesCountsAsTheRulesSay()
{
    QRandomGenerator random(93);
    const QByteArray pins[] = {"2580", "1111", "22222222"};
    QByteArray right = pins[0];
    int tries = 3;
    int pukTries = 10;
    bool verified = false;
    for (int step = 0; step < 1'000; ++step) {
        const QByteArray &digits = pins[random.bounded(3)];
        switch (random.bounded(8)) {
        case 0:
            pin.powerOff();
            verified = false;
            break;
        case 1: {
            const bool rightPuk = random.bounded(2) == 0;
            const int expected = pukTries == 0 ? -NotAllowed : int(rightPuk);
            QCOMPARE(enterPuk(rightPuk ? "87654321" : "87654322", digits), expected);
            if (expected == 1) {
                right = digits;
                tries = 3;
                pukTries = 10;
                verified = true;
            } else if (expected == 0) {
                --pukTries;
            }
            break;
        }
        default: {
            const int expected = tries == 0 ? -NotAllowed : int(digits == right);
            QCOMPARE(enter(digits), expected);
            if (expected >= 0) {
                verified = expected == 1;
                tries = verified ? 3 : tries - 1;
            }
        }
        }
        QCOMPARE(pin.triesLeft(), tries);
        QCOMPARE(pin.pukTriesLeft(), pukTries);
        QCOMPARE(pin.isVerified(), verified);
        QCOMPARE(pin.status(), verified ? noEntryNeeded : tries == 0 ? blocked : entryNeeded);
    }
}

void TestPin2::theHashIsTheStandards_data()
{
    QTest::addColumn<QByteArray>("password");
    QTest::addColumn<QByteArray>("salt");
    QTest::addColumn<int>("iterations");
    QTest::addColumn<QByteArray>("hash");

    // RFC 7914, 11; the first 32 of 64 bytes.
    QTest::newRow("once") << QByteArray("passwd") << QByteArray("salt") << 1
                          << QByteArray("55ac046e56e3089fec1691c22544b605f94185216dde0465e68b9d57c20dacbc");
    QTest::newRow("eighty thousand times")
        << QByteArray("Password") << QByteArray("NaCl") << 80'000
        << QByteArray("4ddcd8f60b98be21830cee5ef22701f9641a4418d04c0414aeff08876b34ab56");
    QTest::newRow("a password as long as a block")
        << QByteArray(64, 'x') << QByteArray("salt") << 2
        << QByteArray("dd8fa7b308feaa9333ea55e991da1d5c56a362ad7223189930e314c831c53427");
}

void TestPin2::theHashIsTheStandards()
{
    QFETCH(QByteArray, password);
    QFETCH(QByteArray, salt);
    QFETCH(int, iterations);
    QTEST(bytes(pbkdf2Sha256(password, salt, iterations)).toHex(), "hash");
}

void TestPin2::theSameDigitsAreNeverKeptAlike()
{
    const CodeHash one = CodeHash::of("2580");
    const CodeHash other = CodeHash::of("2580");
    QVERIFY(one.salt != other.salt);
    QVERIFY(one.hash != other.hash);
    QVERIFY(one.matches("2580"));
    QVERIFY(other.matches("2580"));
    QVERIFY(!one.matches("2581"));
    QVERIFY(!one.matches(""));
}

KAV_TEST_GROUP(TestPin2, NoApplication);
#include "tst_pin2.moc"
