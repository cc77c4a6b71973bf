// The card as bytes: what survives, and what is made of bytes that are no card.
#include "charging/SimImage.h"
#include "support/TestGroup.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QRandomGenerator>
#include <QtTest/QTest>

using namespace handset;
using namespace handset::charging;

namespace {

constexpr qsizetype imageSize = 150;
constexpr qsizetype checkSize = 20;

QByteArray withCheck(const QByteArray &checked)
{
    return checked + QCryptographicHash::hash(checked, QCryptographicHash::Sha256).first(checkSize);
}

// The image with one byte changed and the check made right again.
QByteArray changed(const QByteArray &image, qsizetype at, int byte)
{
    QByteArray checked = image.chopped(checkSize);
    checked[at] = static_cast<char>(byte);
    return withCheck(checked);
}

SimCard usedCard()
{
    SimCard card;
    for (quint32 i = 1; i < 7; ++i)
        card.increaseAcm(i * 70'000);
    card.updateAcmMax(0x123456);
    card.updatePuct(QStringLiteral("0.23"), QStringLiteral("GBP"));
    card.setUpdateRule(AdviceOfCharge::AcmFile, 4);
    card.setUpdateRule(AdviceOfCharge::AcmMaxFile, 6);
    card.setUpdateRule(AdviceOfCharge::PuctFile, 77);
    return card;
}

bool isSame(const SimCard &a, const SimCard &b)
{
    return a.files() == b.files() && a.pin2().record() == b.pin2().record();
}

} // namespace

class TestSimImage : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void everythingThatLastsIsReadBack();
    void theBytesStandWhereTheyAreSaidTo();
    void randomCardsAreReadBack();
    void theTriesSurviveARestartAndTheEntryDoesNot();
    void aCardBlockedForGoodStaysSo();
    void noDigitsOfACodeAreInTheBytes();
    void aTruncatedImageIsRefused();
    void anImageWithSomethingBehindItIsRefused();
    void anImageWithAnyBitChangedIsRefused();
    void randomBytesAreRefused();
    void randomBytesInASoundFrameAreRefusedOrRead();
    void aNewerVersionIsToldApart();
    void aVersionThatNeverWasIsRefused();
    void valuesOutOfRangeAreRefused_data();
    void valuesOutOfRangeAreRefused();
    void bytesThatAreNoCardLeaveTheNewOneUsable();
};

void TestSimImage::everythingThatLastsIsReadBack()
{
    SimCard card = usedCard();
    bool accepted = true;
    QCOMPARE(card.pin2().verify("9999", accepted), int(Success));
    QCOMPARE(card.pin2().unblock("00000000", "1111", accepted), int(Success));
    card.pin2().setEnabled(false);
    SimCard again;
    QCOMPARE(loadCard(saveCard(card), again), int(Success));
    QVERIFY(isSame(card, again));
    QCOMPARE(saveCard(again), saveCard(card));
    QCOMPARE(again.pin2().triesLeft(), 2);
    QCOMPARE(again.pin2().pukTriesLeft(), 9);
    QVERIFY(!again.pin2().isEnabled());
    again.pin2().setEnabled(true);
    QCOMPARE(again.pin2().verify(SimCard::newCardPin2, accepted), int(Success));
    QVERIFY(accepted);
}

void TestSimImage::theBytesStandWhereTheyAreSaidTo()
{
    SimCard card = usedCard();
    bool accepted = true;
    card.pin2().verify("9999", accepted);
    const QByteArray image = saveCard(card);
    QCOMPARE(image.size(), imageSize);
    QCOMPARE(image.first(5), QByteArray("KSIM\1"));
    QCOMPARE(image.mid(5, 15), card.fileBytes(AdviceOfCharge::AcmFile));
    QCOMPARE(image.mid(20, 3), QByteArray::fromHex("123456"));
    QCOMPARE(image.mid(23, 5), QByteArray::fromHex("4742500157"));
    QCOMPARE(image.mid(28, 3), QByteArray::fromHex("04064D"));
    QCOMPARE(image.mid(31, 3), QByteArray::fromHex("01020A"));
    const Pin2Record &pin = card.pin2().record();
    QCOMPARE(image.mid(34, 16), QByteArray(pin.pin.salt.data(), 16));
    QCOMPARE(image.mid(50, 32), QByteArray(pin.pin.hash.data(), 32));
    QCOMPARE(image.mid(82, 16), QByteArray(pin.puk.salt.data(), 16));
    QCOMPARE(image.mid(98, 32), QByteArray(pin.puk.hash.data(), 32));
    QCOMPARE(withCheck(image.chopped(checkSize)), image);
}

void TestSimImage::randomCardsAreReadBack()
{
    QRandomGenerator random(6);
    const auto fill = [&random](auto &bytes) {
        for (auto &byte : bytes)
            byte = static_cast<std::decay_t<decltype(byte)>>(random.bounded(256));
    };
    SimCard again;
    for (int i = 0; i < 5'000; ++i) {
        SimFiles files;
        Pin2Record pin;
        for (UnitBytes &record : files.acm)
            fill(record);
        fill(files.acmMax);
        fill(files.puct);
        files.acmRule = static_cast<quint8>(random.bounded(256));
        files.acmMaxRule = static_cast<quint8>(random.bounded(256));
        files.puctRule = static_cast<quint8>(random.bounded(256));
        pin.enabled = random.bounded(2) == 0;
        pin.triesLeft = static_cast<quint8>(random.bounded(4));
        pin.pukTriesLeft = static_cast<quint8>(random.bounded(11));
        fill(pin.pin.salt);
        fill(pin.pin.hash);
        fill(pin.puk.salt);
        fill(pin.puk.hash);
        const SimCard card(files, pin);
        QCOMPARE(loadCard(saveCard(card), again), int(Success));
        QVERIFY(isSame(card, again));
    }
}

void TestSimImage::theTriesSurviveARestartAndTheEntryDoesNot()
{
    SimCard card;
    bool accepted = true;
    const auto restart = [&card] {
        const QByteArray image = saveCard(card);
        card = SimCard();
        return loadCard(image, card) == Success;
    };
    for (int left = 2; left >= 0; --left) {
        QCOMPARE(card.pin2().verify("9999", accepted), int(Success));
        QVERIFY(restart());
        QCOMPARE(card.pin2().triesLeft(), left);
    }
    QCOMPARE(card.pin2().status(), SimSecurity::Blocked);
    QCOMPARE(card.pin2().verify(SimCard::newCardPin2, accepted), int(NotAllowed));
    QCOMPARE(card.pin2().unblock(SimCard::newCardPuk2, "0808", accepted), int(Success));
    QVERIFY(accepted);
    QVERIFY(card.pin2().isVerified());
    QVERIFY(restart());
    QCOMPARE(card.pin2().status(), SimSecurity::EntryNeeded);
    QCOMPARE(card.pin2().triesLeft(), 3);
    QCOMPARE(card.pin2().verify("0808", accepted), int(Success));
    QVERIFY(accepted);
    QVERIFY(restart());
    QVERIFY(!card.pin2().isVerified());
}

void TestSimImage::aCardBlockedForGoodStaysSo()
{
    SimCard card;
    bool accepted = true;
    for (int i = 0; i < 10; ++i)
        card.pin2().unblock("00000000", "1111", accepted);
    SimCard again;
    QCOMPARE(loadCard(saveCard(card), again), int(Success));
    QCOMPARE(again.pin2().unblock(SimCard::newCardPuk2, "1111", accepted), int(NotAllowed));
}

void TestSimImage::noDigitsOfACodeAreInTheBytes()
{
    SimCard card;
    bool accepted = false;
    QCOMPARE(card.pin2().unblock(SimCard::newCardPuk2, "73190246", accepted), int(Success));
    const QByteArray image = saveCard(card);
    for (const QByteArrayView code : {QByteArrayView("73190246"), QByteArrayView("1234"), SimCard::newCardPuk2}) {
        QVERIFY(!image.contains(code));
        QVERIFY(!image.toHex().contains(code.toByteArray().toHex()));
        QVERIFY(!image.contains(QByteArray::fromHex(code.toByteArray())));
        QVERIFY(!image.contains(QCryptographicHash::hash(code, QCryptographicHash::Sha256)));
    }
}

void TestSimImage::aTruncatedImageIsRefused()
{
    const QByteArray image = saveCard(usedCard());
    SimCard card;
    const SimCard before = card;
    for (qsizetype size = 0; size < image.size(); ++size) {
        // Of its own allocation, so that the sanitizer sees a read behind the end.
        const QByteArray part(image.constData(), size);
        QCOMPARE(loadCard(part, card), int(InvalidArgument));
        if (size != imageSize - checkSize)
            QCOMPARE(loadCard(withCheck(part), card), int(InvalidArgument));
    }
    QCOMPARE(loadCard(QByteArrayView(), card), int(InvalidArgument));
    QVERIFY(isSame(card, before));
}

void TestSimImage::anImageWithSomethingBehindItIsRefused()
{
    const QByteArray image = saveCard(usedCard());
    SimCard card;
    QCOMPARE(loadCard(image + '\0', card), int(InvalidArgument));
    QCOMPARE(loadCard(image + image, card), int(InvalidArgument));
    QCOMPARE(loadCard(withCheck(image), card), int(InvalidArgument));
}

void TestSimImage::anImageWithAnyBitChangedIsRefused()
{
    const QByteArray image = saveCard(usedCard());
    SimCard card;
    const SimCard before = card;
    for (qsizetype bit = 0; bit < image.size() * 8; ++bit) {
        QByteArray damaged = image;
        damaged[bit / 8] = static_cast<char>(damaged[bit / 8] ^ (1 << bit % 8));
        QCOMPARE(loadCard(damaged, card), int(InvalidArgument));
    }
    QVERIFY(isSame(card, before));
}

void TestSimImage::randomBytesAreRefused()
{
    QRandomGenerator random(7);
    SimCard card;
    const SimCard before = card;
    for (int i = 0; i < 20'000; ++i) {
        QByteArray bytes(random.bounded(400), '\0');
        for (char &byte : bytes)
            byte = static_cast<char>(random.bounded(256));
        if (i % 2 == 0)
            bytes.replace(0, 5, "KSIM\1");
        QCOMPARE(loadCard(bytes, card), int(InvalidArgument));
    }
    QVERIFY(isSame(card, before));
}

void TestSimImage::randomBytesInASoundFrameAreRefusedOrRead()
{
    QRandomGenerator random(8);
    SimCard card;
    int read = 0;
    for (int i = 0; i < 20'000; ++i) {
        QByteArray bytes(random.bounded(4) == 0 ? random.bounded(300) : 125, '\0');
        for (char &byte : bytes)
            byte = static_cast<char>(random.bounded(256));
        if (bytes.size() > 29 && random.bounded(2) == 0) {
            bytes[26] = static_cast<char>(random.bounded(3));
            bytes[27] = static_cast<char>(random.bounded(5));
            bytes[28] = static_cast<char>(random.bounded(12));
        }
        const int status = loadCard(withCheck(QByteArray("KSIM\1") + bytes), card);
        const bool sound = bytes.size() == 125 && static_cast<quint8>(bytes[26]) <= 1 &&
                           static_cast<quint8>(bytes[27]) <= 3 && static_cast<quint8>(bytes[28]) <= 10;
        QCOMPARE(status, int(sound ? Success : InvalidArgument));
        if (!sound)
            continue;
        ++read;
        QCOMPARE(saveCard(card), withCheck(QByteArray("KSIM\1") + bytes));
        QVERIFY(card.acm() <= maxUnits);
        QVERIFY(!card.puct().price.text().isEmpty());
        QVERIFY(card.puct().currency.size() <= 3);
    }
    QVERIFY(read > 1'000);
}

void TestSimImage::aNewerVersionIsToldApart()
{
    SimCard card;
    const SimCard before = card;
    const QByteArray image = saveCard(usedCard());
    for (const int version : {2, 3, 127, 128, 255})
        QCOMPARE(loadCard(changed(image, 4, version), card), int(NotAvailable));
    QCOMPARE(loadCard(withCheck("KSIM\2"), card), int(NotAvailable));
    QCOMPARE(loadCard(withCheck("KSIM\2" + QByteArray(5'000, 'x')), card), int(NotAvailable));
    QVERIFY(isSame(card, before));
}

void TestSimImage::aVersionThatNeverWasIsRefused()
{
    SimCard card;
    QCOMPARE(loadCard(changed(saveCard(card), 4, 0), card), int(InvalidArgument));
}

void TestSimImage::valuesOutOfRangeAreRefused_data()
{
    QTest::addColumn<int>("at");
    QTest::addColumn<int>("byte");

    QTest::newRow("neither on nor off") << 31 << 2;
    QTest::newRow("neither on nor off, with the high bit") << 31 << 255;
    QTest::newRow("more tries than there are") << 32 << 4;
    QTest::newRow("tries below nothing") << 32 << 255;
    QTest::newRow("more tries of the PUK than there are") << 33 << 11;
    QTest::newRow("tries of the PUK below nothing") << 33 << 255;
    QTest::newRow("another kind of file") << 0 << int('k');
}

void TestSimImage::valuesOutOfRangeAreRefused()
{
    QFETCH(int, at);
    QFETCH(int, byte);
    SimCard card;
    const SimCard before = card;
    QCOMPARE(loadCard(changed(saveCard(usedCard()), at, byte), card), int(InvalidArgument));
    QVERIFY(isSame(card, before));
}

void TestSimImage::bytesThatAreNoCardLeaveTheNewOneUsable()
{
    SimCard card;
    QCOMPARE(loadCard("not a card", card), int(InvalidArgument));
    bool accepted = false;
    QCOMPARE(card.pin2().verify(SimCard::newCardPin2, accepted), int(Success));
    QVERIFY(accepted);
    QCOMPARE(card.acm(), 0U);
    QCOMPARE(card.updateAcmMax(5), int(Success));
}

KAV_TEST_GROUP(TestSimImage, NoApplication);
#include "tst_sim_image.moc"
