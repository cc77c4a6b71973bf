// Costs and limits as text.
#include "charging/AmountText.h"
#include "charging/ChargeUnits.h"
#include "handset/charging/LongHand.h"
#include "handset/charging/Prices.h"
#include "support/TestGroup.h"

#include <QtCore/QLocale>
#include <QtCore/QRandomGenerator>
#include <QtTest/QTest>

#include <limits>

using namespace handset;
using namespace handset::charging;
using handset::test::LongHand;
using handset::test::priceOf;

namespace {

UnitPrice randomPrice(QRandomGenerator &random, int least)
{
    UnitPrice price;
    if (UnitPrice::fromParts(random.bounded(least, 4096), random.bounded(-7, 8), price) != Success)
        qFatal("no such price");
    return price;
}

LongHand onPaper(const UnitPrice &price)
{
    return LongHand(static_cast<quint64>(price.eppu())).shifted(price.exponent());
}

QByteArray amount(quint64 units, quint8 type, const UnitPrice &price)
{
    QByteArray text;
    return amountText(units, type, price, text) == Success ? text : QByteArray("failed");
}

constexpr quint8 inUnits = AdviceOfCharge::InUnits;
constexpr quint8 inCurrency = AdviceOfCharge::InCurrency;

} // namespace

class TestAmountText : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void anAmountHasTwoDecimals_data();
    void anAmountHasTwoDecimals();
    void everyAmountIsRoundedAsOnPaper();
    void theLongestAmountFitsTheCallersBuffer();
    void anAmountIsTheSameInEveryLanguage();
    void anUnknownChargeTypeIsRefusedAndWritesNothing();
    void aLimitIsShownExactly_data();
    void aLimitIsShownExactly();
    void aLimitBecomesWholeUnits_data();
    void aLimitBecomesWholeUnits();
    void aLimitThatSaysNothingAboutUnitsIsRefused_data();
    void aLimitThatSaysNothingAboutUnitsIsRefused();
    void settingTheLimitThatIsShownChangesNothing();
    void aLimitIsDividedAsOnPaper();
};

void TestAmountText::anAmountHasTwoDecimals_data()
{
    QTest::addColumn<quint64>("units");
    QTest::addColumn<quint8>("type");
    QTest::addColumn<QString>("price");
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("no units") << quint64{0} << inUnits << "0.23" << QByteArray("0.00");
    QTest::newRow("units, whatever the price") << quint64{12} << inUnits << "0.23" << QByteArray("12.00");
    QTest::newRow("units in the currency") << quint64{12} << inCurrency << "0.23" << QByteArray("2.76");
    QTest::newRow("nothing in the currency") << quint64{0} << inCurrency << "0.23" << QByteArray("0.00");
    QTest::newRow("no price yet") << quint64{12} << inCurrency << "0" << QByteArray("0.00");
    QTest::newRow("half a hundredth goes up") << quint64{1} << inCurrency << "0.005" << QByteArray("0.01");
    QTest::newRow("less than that goes down") << quint64{1} << inCurrency << "0.0049" << QByteArray("0.00");
    QTest::newRow("nine tenths carry over") << quint64{5} << inCurrency << "1.999" << QByteArray("10.00");
    QTest::newRow("a full meter") << quint64{16777215} << inUnits << "0" << QByteArray("16777215.00");
    QTest::newRow("a full meter at the greatest price")
        << quint64{16777215} << inCurrency << "40950000000" << QByteArray("687026954250000000.00");
    QTest::newRow("more than floating point can count")
        << std::numeric_limits<quint64>::max() << inUnits << "0" << QByteArray("18446744073709551615.00");
    QTest::newRow("rounded once, not unit by unit") << quint64{4} << inCurrency << "0.004" << QByteArray("0.02");
}

void TestAmountText::anAmountHasTwoDecimals()
{
    QFETCH(quint64, units);
    QFETCH(quint8, type);
    QFETCH(QString, price);
    QTEST(amount(units, type, priceOf(price)), "text");
}

void TestAmountText::everyAmountIsRoundedAsOnPaper()
{
    QRandomGenerator random(2);
    const LongHand half(QByteArray("0.005"));
    for (int i = 0; i < 5'000; ++i) {
        const quint64 units = random.generate64() >> random.bounded(64);
        const UnitPrice price = randomPrice(random, 0);
        const LongHand exact = onPaper(price).times(units);
        QCOMPARE(amount(units, inCurrency, price), (exact + half).cut(2).text(2));
        QCOMPARE(amount(units, inUnits, price), LongHand(units).text(2));
    }
}

void TestAmountText::theLongestAmountFitsTheCallersBuffer()
{
    const QByteArray longest = amount(std::numeric_limits<quint64>::max(), inCurrency, priceOf("40950000000"));
    QCOMPARE(longest, QByteArray("755394169818406138634250000000.00"));
    QVERIFY(longest.size() <= longestAmountText);
    QCOMPARE(longestAmountText, qsizetype{50 - 1}); // the phone's screens have 50 bytes, and a NUL behind the text
}

void TestAmountText::anAmountIsTheSameInEveryLanguage()
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    const QByteArray text = amount(1'234'567, inCurrency, priceOf("0.1"));
    UnitPrice price;
    const int status = UnitPrice::fromText(u"0,5", price);
    QLocale::setDefault(before);
    QCOMPARE(text, QByteArray("123456.70"));
    QCOMPARE(status, int(InvalidArgument));
}

void TestAmountText::anUnknownChargeTypeIsRefusedAndWritesNothing()
{
    QByteArray text("before");
    QString limit(QStringLiteral("before"));
    quint32 units = 77;
    for (const quint8 type : {quint8{2}, quint8{255}}) {
        QCOMPARE(amountText(1, type, {}, text), int(InvalidArgument));
        QCOMPARE(limitText(1, type, {}, limit), int(InvalidArgument));
        QCOMPARE(limitUnits(u"1", type, priceOf("1"), units), int(InvalidArgument));
    }
    QCOMPARE(text, QByteArray("before"));
    QCOMPARE(limit, QStringLiteral("before"));
    QCOMPARE(units, 77U);
}

void TestAmountText::aLimitIsShownExactly_data()
{
    QTest::addColumn<quint32>("units");
    QTest::addColumn<quint8>("type");
    QTest::addColumn<QString>("price");
    QTest::addColumn<QString>("text");

    QTest::newRow("units") << 54U << inUnits << "0.23"
                           << "54.00";
    QTest::newRow("currency") << 54U << inCurrency << "0.23"
                              << "12.42";
    QTest::newRow("two decimals where none are needed") << 5U << inCurrency << "2"
                                                        << "10.00";
    QTest::newRow("more than two where rounding would say another number") << 1U << inCurrency << "0.333"
                                                                           << "0.333";
    QTest::newRow("the smallest price") << 3U << inCurrency << "0.0000001"
                                        << "0.0000003";
    QTest::newRow("no limit") << 0U << inCurrency << "0.23"
                              << "0.00";
    QTest::newRow("no price") << 54U << inCurrency << "0"
                              << "0.00";
}

void TestAmountText::aLimitIsShownExactly()
{
    QFETCH(quint32, units);
    QFETCH(quint8, type);
    QFETCH(QString, price);
    QString text;
    QCOMPARE(limitText(units, type, priceOf(price), text), int(Success));
    QTEST(text, "text");
}

void TestAmountText::aLimitBecomesWholeUnits_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<quint8>("type");
    QTest::addColumn<QString>("price");
    QTest::addColumn<quint32>("units");

    QTest::newRow("units") << "54" << inUnits << "0" << 54U;
    QTest::newRow("units are cut") << "54.99" << inUnits << "0" << 54U;
    QTest::newRow("currency, exactly") << "12.42" << inCurrency << "0.23" << 54U;
    QTest::newRow("currency is rounded down") << "12.64" << inCurrency << "0.23" << 54U;
    QTest::newRow("up to the next unit") << "12.65" << inCurrency << "0.23" << 55U;
    QTest::newRow("almost the next unit") << "12.64999999999999999999" << inCurrency << "0.23" << 54U;
    QTest::newRow("where binary fractions would be one short") << "0.3" << inCurrency << "0.1" << 3U;
    QTest::newRow("zero lifts the limit") << "0" << inUnits << "0" << 0U;
    QTest::newRow("zero as the editor stores it") << "0.000" << inCurrency << "0.23" << 0U;
    QTest::newRow("one unit") << "0.23" << inCurrency << "0.23" << 1U;
    QTest::newRow("a full meter") << "16777215" << inUnits << "0" << 16777215U;
    QTest::newRow("a full meter and a bit") << "16777215.9" << inUnits << "0" << 16777215U;
    QTest::newRow("a full meter at the greatest price")
        << "687026954250000000" << inCurrency << "40950000000" << 16777215U;
    QTest::newRow("blanks around it") << " 54 " << inUnits << "0" << 54U;
}

void TestAmountText::aLimitBecomesWholeUnits()
{
    QFETCH(QString, text);
    QFETCH(quint8, type);
    QFETCH(QString, price);
    quint32 units = 77;
    QCOMPARE(limitUnits(text, type, priceOf(price), units), int(Success));
    QTEST(units, "units");
}

void TestAmountText::aLimitThatSaysNothingAboutUnitsIsRefused_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<quint8>("type");
    QTest::addColumn<QString>("price");

    QTest::newRow("letters") << "abc" << inUnits << "1";
    QTest::newRow("empty") << "" << inUnits << "1";
    QTest::newRow("negative") << "-5" << inUnits << "1";
    QTest::newRow("25 bits") << "16777216" << inUnits << "1";
    QTest::newRow("25 bits after the division") << "3858759.68" << inCurrency << "0.23";
    QTest::newRow("far too many digits") << QString(10'000, u'9') << inUnits << "1";
    QTest::newRow("digits that no number here holds") << QString(39, u'9') << inCurrency << "40950000000";
    QTest::newRow("an amount while there is no price") << "5" << inCurrency << "0";
    QTest::newRow("zero while there is no price") << "0.000" << inCurrency << "0";
    QTest::newRow("less than one unit") << "0.5" << inUnits << "1";
    QTest::newRow("less than the price of one unit") << "0.22" << inCurrency << "0.23";
    QTest::newRow("next to nothing") << "0.000000000000000000001" << inUnits << "1";
}

void TestAmountText::aLimitThatSaysNothingAboutUnitsIsRefused()
{
    QFETCH(QString, text);
    QFETCH(quint8, type);
    QFETCH(QString, price);
    quint32 units = 77;
    QCOMPARE(limitUnits(text, type, priceOf(price), units), int(InvalidArgument));
    QCOMPARE(units, 77U);
}

void TestAmountText::settingTheLimitThatIsShownChangesNothing()
{
    QRandomGenerator random(3);
    for (int i = 0; i < 10'000; ++i) {
        const quint32 units = random.bounded(maxUnits + 1) >> random.bounded(24);
        const UnitPrice price = randomPrice(random, 1);
        for (const quint8 type : {inUnits, inCurrency}) {
            QString text;
            quint32 again = 77;
            QCOMPARE(limitText(units, type, price, text), int(Success));
            QCOMPARE(limitUnits(text, type, price, again), int(Success));
            QCOMPARE(again, units);
        }
    }
}

void TestAmountText::aLimitIsDividedAsOnPaper()
{
    QRandomGenerator random(4);
    for (int i = 0; i < 10'000; ++i) {
        const UnitPrice price = randomPrice(random, 1);
        const quint64 digits = random.generate64() >> random.bounded(64);
        const LongHand amountOnPaper = LongHand(digits).shifted(-random.bounded(20));
        quint32 units = 0;
        const int status =
            limitUnits(QString::fromLatin1(amountOnPaper.text(0)), AdviceOfCharge::InCurrency, price, units);
        const bool tooMuch = amountOnPaper >= onPaper(price).times(maxUnits + 1);
        const bool tooLittle = amountOnPaper > LongHand() && amountOnPaper < onPaper(price);
        QCOMPARE(status, int(tooMuch || tooLittle ? InvalidArgument : Success));
        if (status == Success) {
            QVERIFY(onPaper(price).times(units) <= amountOnPaper);
            QVERIFY(amountOnPaper < onPaper(price).times(units + 1));
        }
    }
}

KAV_TEST_GROUP(TestAmountText, NoApplication);
#include "tst_amount_text.moc"
