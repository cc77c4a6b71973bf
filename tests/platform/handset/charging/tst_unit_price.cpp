// The price per unit, and the file that holds it.
#include "charging/Puct.h"
#include "handset/charging/LongHand.h"
#include "handset/charging/Prices.h"
#include "support/Sample.h"
#include "support/TestGroup.h"

#include <QtCore/QRandomGenerator>
#include <QtTest/QTest>

#include <vector>

using namespace handset;
using namespace handset::charging;
using handset::test::LongHand;
using handset::test::priceOf;

namespace {

UnitPrice priceOfParts(int eppu, int exponent)
{
    UnitPrice price;
    if (UnitPrice::fromParts(eppu, exponent, price) != Success)
        qFatal("no such price");
    return price;
}

LongHand longHand(int eppu, int exponent)
{
    return LongHand(static_cast<quint64>(eppu)).shifted(exponent);
}

// Every amount that EF_PUCT can hold, once, in order.
std::vector<LongHand> allAmounts()
{
    std::vector<LongHand> amounts;
    for (int exponent = -7; exponent <= 7; ++exponent) {
        for (int eppu = 0; eppu <= 4095; ++eppu)
            amounts.push_back(longHand(eppu, exponent));
    }
    std::sort(amounts.begin(), amounts.end());
    amounts.erase(std::unique(amounts.begin(), amounts.end()), amounts.end());
    return amounts;
}

const std::vector<LongHand> &storableAmounts()
{
    static const std::vector<LongHand> amounts = allAmounts();
    return amounts;
}

// By trying both neighbours on paper; the greater one when they are equally near.
LongHand nearestOnPaper(const std::vector<LongHand> &amounts, const LongHand &wanted)
{
    const auto above = std::lower_bound(amounts.begin(), amounts.end(), wanted);
    if (above == amounts.begin() || *above == wanted)
        return *above;
    const LongHand below = *(above - 1);
    return *above - wanted <= wanted - below ? *above : below;
}

// Some digits, a point somewhere among them.
QString randomNumber(QRandomGenerator &random)
{
    QString text;
    const int whole = random.bounded(11);
    const int decimals = random.bounded(13);
    for (int i = 0; i < whole; ++i)
        text.append(QChar(u'0' + random.bounded(10)));
    text.append(whole == 0 ? QStringLiteral("0.") : QStringLiteral("."));
    const int zeros = random.bounded(decimals + 1);
    for (int i = 0; i < decimals; ++i)
        text.append(i < zeros ? QChar(u'0') : QChar(u'0' + random.bounded(10)));
    return text;
}

} // namespace

class TestUnitPrice : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void theBytesOfAPriceAreThoseOfRealCards_data();
    void theBytesOfAPriceAreThoseOfRealCards();
    void theExponentIsTheHighHalfOfTheLastByte_data();
    void theExponentIsTheHighHalfOfTheLastByte();
    void aPriceTextBecomesTheShortestPrice_data();
    void aPriceTextBecomesTheShortestPrice();
    void aTextThatIsNoPriceIsRefused_data();
    void aTextThatIsNoPriceIsRefused();
    void partsOutOfRangeAreRefused_data();
    void partsOutOfRangeAreRefused();
    void everyPriceIsReadBackAsItWasStored();
    void everyPriceIsWrittenAsOnPaper();
    void theNearestPriceIsKept();
    void halfwayBetweenTwoPricesTheGreaterIsKept();
    void anyFiveBytesCanBeReadAndStoredAgain();
    void aRefusedPriceLeavesTheOldOneAlone();
    void aCurrencyCodeIsStoredInTheDefaultAlphabet_data();
    void aCurrencyCodeIsStoredInTheDefaultAlphabet();
    void aCurrencyCodeThatCannotBeStoredIsRefused_data();
    void aCurrencyCodeThatCannotBeStoredIsRefused();
    void everyCharacterOfTheAlphabetIsReadBack();
    void aNewCardHasNeitherCodeNorPrice();
    void foreignBytesInTheCodeAreReadAsSomethingThatCanBeStored_data();
    void foreignBytesInTheCodeAreReadAsSomethingThatCanBeStored();
};

void TestUnitPrice::theBytesOfAPriceAreThoseOfRealCards_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("lastTwoBytes");

    QTest::newRow("23 x 10^-2") << "0.23" << QByteArray::fromHex("0157");
    QTest::newRow("17 x 10^1") << "170" << QByteArray::fromHex("0121");
    QTest::newRow("nothing") << "0.000" << QByteArray::fromHex("0000");
    QTest::newRow("one") << "1" << QByteArray::fromHex("0001");
    QTest::newRow("all twelve bits, greatest exponent") << "40950000000" << QByteArray::fromHex("FFEF");
    QTest::newRow("all twelve bits, least exponent") << "0.0004095" << QByteArray::fromHex("FFFF");
    QTest::newRow("16 needs the high byte") << "16" << QByteArray::fromHex("0100");
}

void TestUnitPrice::theBytesOfAPriceAreThoseOfRealCards()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, lastTwoBytes);
    PuctBytes bytes{};
    QCOMPARE(encodePuct({QStringLiteral("GBP"), priceOf(text)}, bytes), int(Success));
    QCOMPARE(QByteArray(reinterpret_cast<const char *>(bytes.data()), 5), QByteArray("GBP") + lastTwoBytes);
    QCOMPARE(decodePuct(bytes).price, priceOf(text));
}

void TestUnitPrice::theExponentIsTheHighHalfOfTheLastByte_data()
{
    QTest::addColumn<int>("exponent");
    QTest::addColumn<int>("nibble");

    QTest::newRow("-7") << -7 << 0xF;
    QTest::newRow("-1") << -1 << 0x3;
    QTest::newRow("0") << 0 << 0x0;
    QTest::newRow("1") << 1 << 0x2;
    QTest::newRow("7") << 7 << 0xE;
}

void TestUnitPrice::theExponentIsTheHighHalfOfTheLastByte()
{
    QFETCH(int, exponent);
    QFETCH(int, nibble);
    PuctBytes bytes{};
    QCOMPARE(encodePuct({{}, priceOfParts(0x123, exponent)}, bytes), int(Success));
    QCOMPARE(int(bytes[3]), 0x12);
    QCOMPARE(int(bytes[4]), nibble << 4 | 0x3);
}

void TestUnitPrice::aPriceTextBecomesTheShortestPrice_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("eppu");
    QTest::addColumn<int>("exponent");
    QTest::addColumn<QString>("shown");

    QTest::newRow("zero") << "0" << 0 << 0 << "0";
    QTest::newRow("zero as the editor stores it") << "0.000" << 0 << 0 << "0";
    QTest::newRow("pence") << "0.23" << 23 << -2 << "0.23";
    QTest::newRow("zeros at the end say nothing") << "0.2300" << 23 << -2 << "0.23";
    QTest::newRow("whole") << "12.5" << 125 << -1 << "12.5";
    QTest::newRow("tens") << "170" << 17 << 1 << "170";
    QTest::newRow("a thousand") << "1000" << 1 << 3 << "1000";
    QTest::newRow("a price too long to be kept") << "1.2345" << 1235 << -3 << "1.235";
    QTest::newRow("between the greatest of a step and the next, nearer to the greatest")
        << "4.0974" << 4095 << -3 << "4.095";
    QTest::newRow("nearer to the next") << "4.0976" << 41 << -1 << "4.1";
    QTest::newRow("beyond the next the step is greater") << "4.1049" << 41 << -1 << "4.1";
    QTest::newRow("the greatest") << "40950000000" << 4095 << 7 << "40950000000";
    QTest::newRow("a power of ten above the greatest exponent") << "10000000000" << 1000 << 7 << "10000000000";
    QTest::newRow("the smallest") << "0.0000001" << 1 << -7 << "0.0000001";
    QTest::newRow("half of the smallest") << "0.00000005" << 1 << -7 << "0.0000001";
    QTest::newRow("less than half of the smallest") << "0.0000000499999" << 0 << 0 << "0";
    QTest::newRow("a tiny bit above halfway") << "1.2345000000000000000000000001" << 1235 << -3 << "1.235";
    QTest::newRow("a tiny bit below halfway") << "1.2344999999999999999999999999" << 1234 << -3 << "1.234";
    QTest::newRow("nothing before the point") << ".5" << 5 << -1 << "0.5";
    QTest::newRow("nothing after the point") << "5." << 5 << 0 << "5";
    QTest::newRow("blanks around it") << " 5 " << 5 << 0 << "5";
    QTest::newRow("ten thousand zeros before it") << QString(10'000, u'0') + "5" << 5 << 0 << "5";
    QTest::newRow("ten thousand nines behind it") << "4." + QString(10'000, u'9') << 5 << 0 << "5";
}

void TestUnitPrice::aPriceTextBecomesTheShortestPrice()
{
    QFETCH(QString, text);
    const UnitPrice price = priceOf(text);
    QTEST(price.eppu(), "eppu");
    QTEST(price.exponent(), "exponent");
    QTEST(price.text(), "shown");
}

void TestUnitPrice::aTextThatIsNoPriceIsRefused_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("letters") << "abc";
    QTest::newRow("empty") << "";
    QTest::newRow("negative") << "-0.5";
    QTest::newRow("one step above the greatest") << "40960000000";
    QTest::newRow("one above the greatest") << "40950000001";
    QTest::newRow("a little above the greatest") << "40950000000.000000000001";
    QTest::newRow("ten thousand digits") << QString(10'000, u'7');
}

void TestUnitPrice::aTextThatIsNoPriceIsRefused()
{
    QFETCH(QString, text);
    UnitPrice price;
    QCOMPARE(UnitPrice::fromText(text, price), int(InvalidArgument));
}

void TestUnitPrice::partsOutOfRangeAreRefused_data()
{
    QTest::addColumn<int>("eppu");
    QTest::addColumn<int>("exponent");

    QTest::newRow("negative") << -1 << 0;
    QTest::newRow("thirteen bits") << 4096 << 0;
    QTest::newRow("exponent too small") << 1 << -8;
    QTest::newRow("exponent too great") << 1 << 8;
}

void TestUnitPrice::partsOutOfRangeAreRefused()
{
    QFETCH(int, eppu);
    QFETCH(int, exponent);
    UnitPrice price = priceOfParts(7, 1);
    QCOMPARE(UnitPrice::fromParts(eppu, exponent, price), int(InvalidArgument));
    QCOMPARE(price, priceOfParts(7, 1));
}

void TestUnitPrice::everyPriceIsReadBackAsItWasStored()
{
    for (int exponent = -7; exponent <= 7; ++exponent) {
        for (int eppu = 0; eppu <= 4095; eppu += sampleStride(7)) {
            const UnitPrice price = priceOfParts(eppu, exponent);
            PuctBytes bytes{};
            QCOMPARE(encodePuct({QStringLiteral("EUR"), price}, bytes), int(Success));
            QCOMPARE(decodePuct(bytes), (Puct{QStringLiteral("EUR"), price}));
            // Its text is stored as the same amount, and stays as it is from then on.
            const UnitPrice again = priceOf(price.text());
            QCOMPARE(again.tenMillionths(), price.tenMillionths());
            QCOMPARE(again.text(), price.text());
            QCOMPARE(priceOf(again.text()), again);
            QVERIFY(again.eppu() % 10 != 0 || again.exponent() == 7 || again == UnitPrice());
        }
    }
}

void TestUnitPrice::everyPriceIsWrittenAsOnPaper()
{
    for (int exponent = -7; exponent <= 7; ++exponent) {
        for (int eppu = 0; eppu <= 4095; eppu += sampleStride(7)) {
            const UnitPrice price = priceOfParts(eppu, exponent);
            const LongHand amount = longHand(eppu, exponent);
            QCOMPARE(price.text().toLatin1(), amount.text(0));
            QCOMPARE(LongHand(price.tenMillionths()), amount.shifted(7));
        }
    }
}

void TestUnitPrice::theNearestPriceIsKept()
{
    const std::vector<LongHand> &amounts = storableAmounts();
    QRandomGenerator random(51011);
    for (int i = 0; i < 20'000; i += sampleStride(7)) {
        const QString text = randomNumber(random);
        const LongHand wanted(text.toLatin1());
        UnitPrice price;
        const int status = UnitPrice::fromText(text, price);
        QCOMPARE(status, int(wanted > amounts.back() ? InvalidArgument : Success));
        if (status == Success)
            QCOMPARE(price.text().toLatin1(), nearestOnPaper(amounts, wanted).text(0));
    }
}

void TestUnitPrice::halfwayBetweenTwoPricesTheGreaterIsKept()
{
    const std::vector<LongHand> &amounts = storableAmounts();
    const LongHand crumb = LongHand(quint64{1}).shifted(-20);
    for (std::size_t i = 1; i < amounts.size(); i += std::size_t(sampleStride(7))) {
        const LongHand half = (amounts[i] - amounts[i - 1]).times(5).shifted(-1);
        const LongHand middle = amounts[i - 1] + half;
        QCOMPARE(priceOf(QString::fromLatin1(middle.text(0))).text().toLatin1(), amounts[i].text(0));
        QCOMPARE(priceOf(QString::fromLatin1((middle - crumb).text(0))).text().toLatin1(), amounts[i - 1].text(0));
    }
}

void TestUnitPrice::anyFiveBytesCanBeReadAndStoredAgain()
{
    for (int last = 0; last <= 0xFFFF; last += sampleStride(7)) {
        const PuctBytes bytes{'U', 'S', 'D', static_cast<quint8>(last >> 8), static_cast<quint8>(last)};
        const Puct puct = decodePuct(bytes);
        PuctBytes again{};
        QCOMPARE(encodePuct(puct, again), int(Success));
        PuctBytes expected = bytes;
        if ((last & 0xF0) == 0x10) // minus nothing
            expected[4] = static_cast<quint8>(last & 0x0F);
        QCOMPARE(again, expected);
    }
}

void TestUnitPrice::aRefusedPriceLeavesTheOldOneAlone()
{
    UnitPrice price = priceOfParts(23, -2);
    QCOMPARE(UnitPrice::fromText(u"12,5", price), int(InvalidArgument));
    QCOMPARE(UnitPrice::fromText(u"99999999999", price), int(InvalidArgument));
    QCOMPARE(price, priceOfParts(23, -2));
}

void TestUnitPrice::aCurrencyCodeIsStoredInTheDefaultAlphabet_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("three letters") << "AED" << QByteArray("AED");
    QTest::newRow("a bracket, as two long names end") << "OF)" << QByteArray("OF)");
    QTest::newRow("signs with other bytes than in Latin-1")
        << QString::fromUtf16(u"$\u00A3\u00A5") << QByteArray::fromHex("020103");
    QTest::newRow("the first and the last") << QString::fromUtf16(u"@\u00E0") << QByteArray::fromHex("007FFF");
    QTest::newRow("two letters") << "DM" << QByteArray::fromHex("444DFF");
    QTest::newRow("a blank at the end is kept") << "DM " << QByteArray::fromHex("444D20");
    QTest::newRow("one letter") << "F" << QByteArray::fromHex("46FFFF");
    QTest::newRow("none") << "" << QByteArray::fromHex("FFFFFF");
}

void TestUnitPrice::aCurrencyCodeIsStoredInTheDefaultAlphabet()
{
    QFETCH(QString, code);
    PuctBytes bytes{};
    QCOMPARE(encodePuct({code, {}}, bytes), int(Success));
    QTEST(QByteArray(reinterpret_cast<const char *>(bytes.data()), 3), "bytes");
    QCOMPARE(decodePuct(bytes).currency, code);
}

void TestUnitPrice::aCurrencyCodeThatCannotBeStoredIsRefused_data()
{
    QTest::addColumn<QString>("code");

    QTest::newRow("four letters") << "EURO";
    QTest::newRow("the euro sign needs two bytes") << QString::fromUtf16(u"\u20AC");
    QTest::newRow("square brackets need two bytes") << "[A]";
    QTest::newRow("small c with cedilla") << QString::fromUtf16(u"\u00E7");
    QTest::newRow("Cyrillic letters") << QString::fromUtf16(u"\u0420\u0423\u0411");
    QTest::newRow("NUL") << QString::fromUtf16(u"A\0B", 3);
    QTest::newRow("the escape itself") << QString::fromUtf16(u"\u001B");
    QTest::newRow("half of a surrogate pair") << QString(QChar(0xD83D));
    QTest::newRow("what the unused bytes would be in Latin-1") << QString::fromUtf16(u"A\u00FF");
}

void TestUnitPrice::aCurrencyCodeThatCannotBeStoredIsRefused()
{
    QFETCH(QString, code);
    PuctBytes bytes{1, 2, 3, 4, 5};
    QCOMPARE(encodePuct({code, {}}, bytes), int(InvalidArgument));
    QCOMPARE(bytes, (PuctBytes{1, 2, 3, 4, 5}));
}

void TestUnitPrice::everyCharacterOfTheAlphabetIsReadBack()
{
    // In the order of their bytes, the escape left out.
    const QString alphabet = QString::fromUtf8("@£$¥èéùìòÇ\nØø\rÅåΔ_ΦΓΛΩΠΨΣΘΞÆæßÉ !\"#¤%&'()*+,-./0123456789:;<=>?"
                                               "¡ABCDEFGHIJKLMNOPQRSTUVWXYZÄÖÑÜ§¿abcdefghijklmnopqrstuvwxyzäöñüà");
    QCOMPARE(alphabet.size(), 127);
    for (qsizetype i = 0; i < alphabet.size(); ++i) {
        PuctBytes bytes{};
        QCOMPARE(encodePuct({alphabet.mid(i, 1), {}}, bytes), int(Success));
        QCOMPARE(int(bytes[0]), int(i < 0x1B ? i : i + 1));
        QCOMPARE(decodePuct(bytes).currency, alphabet.mid(i, 1));
    }
    int refused = 0;
    for (int c = 0; c <= 0xFFFF; ++c) {
        PuctBytes bytes{};
        refused += encodePuct({QString(QChar(c)), {}}, bytes) == InvalidArgument ? 1 : 0;
    }
    QCOMPARE(refused, 0x10000 - 127);
}

void TestUnitPrice::aNewCardHasNeitherCodeNorPrice()
{
    const Puct puct = decodePuct(newPuct);
    QCOMPARE(puct, Puct());
    QCOMPARE(puct.price.text(), QStringLiteral("0"));
    QVERIFY(puct.price.isZero());
    PuctBytes bytes{};
    QCOMPARE(encodePuct(puct, bytes), int(Success));
    QCOMPARE(bytes, newPuct);
}

void TestUnitPrice::foreignBytesInTheCodeAreReadAsSomethingThatCanBeStored_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("code");

    QTest::newRow("the high bit set") << QByteArray::fromHex("41C242") << "A?B";
    QTest::newRow("the escape") << QByteArray::fromHex("411B65") << "A e";
    QTest::newRow("unused in the middle") << QByteArray::fromHex("41FF42") << "A";
}

void TestUnitPrice::foreignBytesInTheCodeAreReadAsSomethingThatCanBeStored()
{
    QFETCH(QByteArray, bytes);
    PuctBytes puct = newPuct;
    for (std::size_t i = 0; i < 3; ++i)
        puct[i] = static_cast<quint8>(bytes[static_cast<qsizetype>(i)]);
    const QString code = decodePuct(puct).currency;
    QTEST(code, "code");
    QCOMPARE(encodePuct({code, {}}, puct), int(Success));
    QCOMPARE(decodePuct(puct).currency, code);
}

KAV_TEST_GROUP(TestUnitPrice, NoApplication);
#include "tst_unit_price.moc"
