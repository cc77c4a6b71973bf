// The files of the simulated SIM card and who may write them.
#include "charging/SimCard.h"
#include "support/TestGroup.h"

#include <QtTest/QTest>

using namespace handset;
using namespace handset::charging;

namespace {

constexpr quint8 acmFile = AdviceOfCharge::AcmFile;
constexpr quint8 acmMaxFile = AdviceOfCharge::AcmMaxFile;
constexpr quint8 puctFile = AdviceOfCharge::PuctFile;
constexpr quint8 files[] = {acmFile, acmMaxFile, puctFile};

// All three updates, each a change.
int update(SimCard &card, quint8 file)
{
    switch (file) {
    case acmFile:
        return card.resetAcm();
    case acmMaxFile:
        return card.updateAcmMax(card.acmMax() + 1);
    case puctFile:
        return card.updatePuct(QStringLiteral("%1").arg(card.puct().price.eppu() + 1), QStringLiteral("EUR"));
    }
    return -1;
}

bool enter(SimCard &card, QByteArrayView digits)
{
    bool accepted = false;
    return card.pin2().verify(digits, accepted) == Success && accepted;
}

} // namespace

class TestSimCard : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void aNewCardIsEmptyAndFree();
    void threeBytesHoldAMeterTheHighestFirst_data();
    void threeBytesHoldAMeterTheHighestFirst();
    void unitsAreAddedUpTo24Bits();
    void theAccumulatedMeterKeepsItsNewestRecords();
    void theAccumulatedMeterStopsAt24Bits();
    void addingNothingWritesNoRecord();
    void aResetIsANewRecord();
    void theMaximumIsThreeBytesAndNoMore();
    void theLimitIsReachedAtTheMaximum_data();
    void theLimitIsReachedAtTheMaximum();
    void aPriceIsReadBackAsItWasStored();
    void aPriceThatCannotBeStoredChangesNothing_data();
    void aPriceThatCannotBeStoredChangesNothing();
    void aFreeFileCanBeUpdated_data();
    void aFreeFileCanBeUpdated();
    void aFileThatIsNeverUpdatedStays_data();
    void aFileThatIsNeverUpdatedStays();
    void aFileUnderPin2NeedsItEntered_data();
    void aFileUnderPin2NeedsItEntered();
    void aRuleGuardsItsOwnFileOnly();
    void chargingGoesOnWhateverTheRule();
    void aNumberThatIsNoFileIsRefused();
    void aBadArgumentIsToldBeforeTheRule();
    void aCopyIsACardOfItsOwn();

private:
    static void everyFile()
    {
        QTest::addColumn<quint8>("file");
        QTest::newRow("EF_ACM") << acmFile;
        QTest::newRow("EF_ACMmax") << acmMaxFile;
        QTest::newRow("EF_PUCT") << puctFile;
    }
};

void TestSimCard::aNewCardIsEmptyAndFree()
{
    const SimCard card;
    QCOMPARE(card.acm(), 0U);
    QCOMPARE(card.acmMax(), 0U);
    QVERIFY(!card.unitsLeft());
    QVERIFY(!card.limitReached());
    QCOMPARE(card.puct(), Puct());
    QCOMPARE(card.fileBytes(acmFile), QByteArray(15, '\0'));
    QCOMPARE(card.fileBytes(acmMaxFile), QByteArray(3, '\0'));
    QCOMPARE(card.fileBytes(puctFile), QByteArray::fromHex("FFFFFF0000"));
    for (const quint8 file : files) {
        quint8 rule = 99;
        QCOMPARE(card.updateRule(file, rule), int(Success));
        QCOMPARE(int(rule), int(AdviceOfCharge::FreeUpdate));
    }
    QCOMPARE(card.pin2().status(), SimSecurity::EntryNeeded);
}

void TestSimCard::threeBytesHoldAMeterTheHighestFirst_data()
{
    QTest::addColumn<quint32>("units");
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("nothing") << 0U << QByteArray::fromHex("000000");
    QTest::newRow("one") << 1U << QByteArray::fromHex("000001");
    QTest::newRow("every byte another") << 0x123456U << QByteArray::fromHex("123456");
    QTest::newRow("the high bits") << 0x80FF00U << QByteArray::fromHex("80FF00");
    QTest::newRow("a full meter") << 16777215U << QByteArray::fromHex("FFFFFF");
}

void TestSimCard::threeBytesHoldAMeterTheHighestFirst()
{
    QFETCH(quint32, units);
    QFETCH(QByteArray, bytes);
    SimCard card;
    QCOMPARE(card.updateAcmMax(units), int(Success));
    QCOMPARE(card.fileBytes(acmMaxFile), bytes);
    QCOMPARE(card.acmMax(), units);
    card.increaseAcm(units);
    QCOMPARE(card.fileBytes(acmFile).first(3), bytes);
    QCOMPARE(card.acm(), units);
}

void TestSimCard::unitsAreAddedUpTo24Bits()
{
    QCOMPARE(addUnits(0, 0), 0U);
    QCOMPARE(addUnits(1, 2), 3U);
    QCOMPARE(addUnits(16777214, 1), 16777215U);
    QCOMPARE(addUnits(16777215, 1), 16777215U);
    QCOMPARE(addUnits(1, 0xFFFFFFFF), 16777215U);
    QCOMPARE(addUnits(0xFFFFFFFF, 0xFFFFFFFF), 16777215U);
    QCOMPARE(decodeUnits(encodeUnits(16777216)), 16777215U);
    QCOMPARE(decodeUnits(encodeUnits(0xFFFFFFFF)), 16777215U);
}

void TestSimCard::theAccumulatedMeterKeepsItsNewestRecords()
{
    SimCard card;
    for (quint32 i = 1; i <= 4; ++i)
        card.increaseAcm(i);
    QCOMPARE(card.fileBytes(acmFile).toHex(), QByteArray("00000a000006000003000001000000"));
    for (quint32 i = 5; i <= 7; ++i)
        card.increaseAcm(i);
    QCOMPARE(card.fileBytes(acmFile).toHex(), QByteArray("00001c00001500000f00000a000006"));
    QCOMPARE(card.acm(), 28U);
}

void TestSimCard::theAccumulatedMeterStopsAt24Bits()
{
    SimCard card;
    card.increaseAcm(16777214);
    card.increaseAcm(5);
    QCOMPARE(card.acm(), 16777215U);
    card.increaseAcm(0xFFFFFFFF);
    QCOMPARE(card.acm(), 16777215U);
    QCOMPARE(card.fileBytes(acmFile).toHex(), QByteArray("fffffffffffffffffe000000000000"));
}

void TestSimCard::addingNothingWritesNoRecord()
{
    SimCard card;
    card.increaseAcm(7);
    const SimFiles before = card.files();
    card.increaseAcm(0);
    QCOMPARE(card.files(), before);
}

void TestSimCard::aResetIsANewRecord()
{
    SimCard card;
    card.increaseAcm(7);
    QCOMPARE(card.resetAcm(), int(Success));
    QCOMPARE(card.acm(), 0U);
    QCOMPARE(card.fileBytes(acmFile).toHex(), QByteArray("000000000007000000000000000000"));
}

void TestSimCard::theMaximumIsThreeBytesAndNoMore()
{
    SimCard card;
    QCOMPARE(card.updateAcmMax(16777215), int(Success));
    QCOMPARE(card.updateAcmMax(16777216), int(InvalidArgument));
    QCOMPARE(card.updateAcmMax(0xFFFFFFFF), int(InvalidArgument));
    QCOMPARE(card.acmMax(), 16777215U);
}

void TestSimCard::theLimitIsReachedAtTheMaximum_data()
{
    QTest::addColumn<quint32>("acm");
    QTest::addColumn<quint32>("maximum");
    QTest::addColumn<int>("left");
    QTest::addColumn<bool>("reached");

    QTest::newRow("no limit, no units") << 0U << 0U << -1 << false;
    QTest::newRow("no limit, a full meter") << 16777215U << 0U << -1 << false;
    QTest::newRow("below it") << 9U << 10U << 1 << false;
    QTest::newRow("at it") << 10U << 10U << 0 << true;
    QTest::newRow("above one that was set later") << 11U << 10U << 0 << true;
    QTest::newRow("the greatest limit") << 16777215U << 16777215U << 0 << true;
}

void TestSimCard::theLimitIsReachedAtTheMaximum()
{
    QFETCH(quint32, acm);
    QFETCH(quint32, maximum);
    QFETCH(int, left);
    SimCard card;
    card.increaseAcm(acm);
    QCOMPARE(card.updateAcmMax(maximum), int(Success));
    const std::optional<quint32> units = card.unitsLeft();
    QCOMPARE(units ? int(*units) : -1, left);
    QTEST(card.limitReached(), "reached");
}

void TestSimCard::aPriceIsReadBackAsItWasStored()
{
    SimCard card;
    QCOMPARE(card.updatePuct(QStringLiteral("0.230"), QStringLiteral("GBP")), int(Success));
    QCOMPARE(card.fileBytes(puctFile), QByteArray::fromHex("4742500157"));
    QCOMPARE(card.puct().price.text(), QStringLiteral("0.23"));
    QCOMPARE(card.puct().currency, QStringLiteral("GBP"));
    QCOMPARE(card.updatePuct(QStringLiteral("1.2345"), QStringLiteral("OF)")), int(Success));
    QCOMPARE(card.puct().price.text(), QStringLiteral("1.235"));
    QCOMPARE(card.puct().currency, QStringLiteral("OF)"));
    const QByteArray bytes = card.fileBytes(puctFile);
    QCOMPARE(card.updatePuct(card.puct().price.text(), card.puct().currency), int(Success));
    QCOMPARE(card.fileBytes(puctFile), bytes);
}

void TestSimCard::aPriceThatCannotBeStoredChangesNothing_data()
{
    QTest::addColumn<QString>("price");
    QTest::addColumn<QString>("currency");

    QTest::newRow("letters for a price") << "abc"
                                         << "GBP";
    QTest::newRow("no price") << ""
                              << "GBP";
    QTest::newRow("a price too great") << "50000000000"
                                       << "GBP";
    QTest::newRow("a code too long") << "1"
                                     << "EURO";
    QTest::newRow("a code of other letters") << "1" << QString::fromUtf16(u"\u0420\u0423\u0411");
}

void TestSimCard::aPriceThatCannotBeStoredChangesNothing()
{
    QFETCH(QString, price);
    QFETCH(QString, currency);
    SimCard card;
    QCOMPARE(card.updatePuct(QStringLiteral("0.23"), QStringLiteral("GBP")), int(Success));
    QCOMPARE(card.updatePuct(price, currency), int(InvalidArgument));
    QCOMPARE(card.fileBytes(puctFile), QByteArray::fromHex("4742500157"));
}

void TestSimCard::aFreeFileCanBeUpdated_data()
{
    QTest::addColumn<quint8>("file");
    QTest::addColumn<quint8>("rule");

    for (const quint8 file : files) {
        for (const int rule : {0, 1, 3, 5, 7, 255})
            QTest::addRow("file %d, rule %d", file, rule) << file << static_cast<quint8>(rule);
    }
}

void TestSimCard::aFreeFileCanBeUpdated()
{
    QFETCH(quint8, file);
    QFETCH(quint8, rule);
    SimCard card;
    QCOMPARE(card.setUpdateRule(file, rule), int(Success));
    const SimFiles before = card.files();
    QCOMPARE(card.mayUpdate(file), int(Success));
    QCOMPARE(update(card, file), int(Success));
    card.increaseAcm(1);
    QVERIFY(card.files() != before);
    quint8 read = 99;
    QCOMPARE(card.updateRule(file, read), int(Success));
    QCOMPARE(read, rule);
}

void TestSimCard::aFileThatIsNeverUpdatedStays_data()
{
    everyFile();
}

void TestSimCard::aFileThatIsNeverUpdatedStays()
{
    QFETCH(quint8, file);
    SimCard card;
    card.increaseAcm(7);
    QVERIFY(enter(card, SimCard::newCardPin2));
    QCOMPARE(card.setUpdateRule(file, AdviceOfCharge::NoUpdate), int(Success));
    const SimFiles before = card.files();
    QCOMPARE(card.mayUpdate(file), int(NotAllowed));
    QCOMPARE(update(card, file), int(NotAllowed));
    card.pin2().setEnabled(false);
    QCOMPARE(update(card, file), int(NotAllowed));
    QCOMPARE(card.files(), before);
}

void TestSimCard::aFileUnderPin2NeedsItEntered_data()
{
    everyFile();
}

void TestSimCard::aFileUnderPin2NeedsItEntered()
{
    QFETCH(quint8, file);
    SimCard card;
    card.increaseAcm(7);
    QCOMPARE(card.setUpdateRule(file, AdviceOfCharge::UpdateUnderPin2), int(Success));
    const SimFiles before = card.files();
    QCOMPARE(update(card, file), int(NotAllowed));
    QVERIFY(!enter(card, "9999"));
    QCOMPARE(update(card, file), int(NotAllowed));
    QCOMPARE(card.files(), before);

    QVERIFY(enter(card, SimCard::newCardPin2));
    QCOMPARE(update(card, file), int(Success));
    card.powerOff();
    QCOMPARE(update(card, file), int(NotAllowed));
    card.pin2().setEnabled(false);
    QCOMPARE(update(card, file), int(Success));
    card.pin2().setEnabled(true);
    for (int i = 0; i < 3; ++i)
        QVERIFY(!enter(card, "9999"));
    QCOMPARE(update(card, file), int(NotAllowed));
}

void TestSimCard::aRuleGuardsItsOwnFileOnly()
{
    for (const quint8 guarded : files) {
        SimCard card;
        QCOMPARE(card.setUpdateRule(guarded, AdviceOfCharge::NoUpdate), int(Success));
        for (const quint8 file : files)
            QCOMPARE(update(card, file), int(file == guarded ? NotAllowed : Success));
    }
}

void TestSimCard::chargingGoesOnWhateverTheRule()
{
    SimCard card;
    for (const quint8 rule : {quint8{AdviceOfCharge::UpdateUnderPin2}, quint8{AdviceOfCharge::NoUpdate}}) {
        QCOMPARE(card.setUpdateRule(acmFile, rule), int(Success));
        const quint32 before = card.acm();
        card.increaseAcm(3);
        QCOMPARE(card.acm(), before + 3);
    }
}

void TestSimCard::aNumberThatIsNoFileIsRefused()
{
    SimCard card;
    int refused = 0;
    for (int file = 0; file <= 255; ++file) {
        const auto number = static_cast<quint8>(file);
        quint8 rule = 99;
        if (card.updateRule(number, rule) == Success)
            continue;
        ++refused;
        QCOMPARE(card.updateRule(number, rule), int(InvalidArgument));
        QCOMPARE(int(rule), 99);
        QCOMPARE(card.setUpdateRule(number, 0), int(InvalidArgument));
        QCOMPARE(card.mayUpdate(number), int(InvalidArgument));
        QVERIFY(card.fileBytes(number).isEmpty());
    }
    QCOMPARE(refused, 253);
}

void TestSimCard::aBadArgumentIsToldBeforeTheRule()
{
    SimCard card;
    for (const quint8 file : files)
        QCOMPARE(card.setUpdateRule(file, AdviceOfCharge::NoUpdate), int(Success));
    QCOMPARE(card.updateAcmMax(maxUnits + 1), int(InvalidArgument));
    QCOMPARE(card.updatePuct(QStringLiteral("abc"), QStringLiteral("GBP")), int(InvalidArgument));
}

void TestSimCard::aCopyIsACardOfItsOwn()
{
    SimCard card;
    SimCard copy = card;
    copy.increaseAcm(5);
    QVERIFY(enter(copy, SimCard::newCardPin2));
    QCOMPARE(card.acm(), 0U);
    QVERIFY(!card.pin2().isVerified());
}

KAV_TEST_GROUP(TestSimCard, NoApplication);
#include "tst_sim_card.moc"
