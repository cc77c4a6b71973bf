// Decimal numbers as text.
#include "charging/DecimalText.h"
#include "handset/charging/LongHand.h"
#include "support/TestGroup.h"

#include <QtCore/QRandomGenerator>
#include <QtTest/QTest>

using namespace handset;
using namespace handset::charging;
using handset::test::LongHand;

class TestDecimalText : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void aNumberIsReadExactly_data();
    void aNumberIsReadExactly();
    void whatIsNoPlainNumberIsRefused_data();
    void whatIsNoPlainNumberIsRefused();
    void digitsThatDoNotFitAreCutAndRemembered_data();
    void digitsThatDoNotFitAreCutAndRemembered();
    void theGreatestCountIsReadAndOneMoreIsRefused();
    void aRefusedTextLeavesTheNumberAlone();
    void tenThousandDigitsAreReadOrRefusedByTheirValue();
    void aNumberIsWrittenWithTheDecimalsItNeeds_data();
    void aNumberIsWrittenWithTheDecimalsItNeeds();
    void everyNumberIsReadBackAsItWasWritten();
};

void TestDecimalText::aNumberIsReadExactly_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<quint64>("count");

    QTest::newRow("zero") << "0" << quint64{0};
    QTest::newRow("zero with decimals, as the editor stores it") << "0.000" << quint64{0};
    QTest::newRow("whole") << "170" << quint64{170000};
    QTest::newRow("decimals") << "12.5" << quint64{12500};
    QTest::newRow("all decimals") << "12.345" << quint64{12345};
    QTest::newRow("nothing before the point") << ".5" << quint64{500};
    QTest::newRow("nothing after the point") << "5." << quint64{5000};
    QTest::newRow("leading zeros") << "000012.5" << quint64{12500};
    QTest::newRow("blanks before") << "  12.5" << quint64{12500};
    QTest::newRow("blanks after") << "12.5 " << quint64{12500};
    QTest::newRow("a tab and a line end around it") << "\t12.5\n" << quint64{12500};
    QTest::newRow("zeros beyond the decimals") << "1.0000000" << quint64{1000};
}

void TestDecimalText::aNumberIsReadExactly()
{
    QFETCH(QString, text);
    QFETCH(quint64, count);
    DecimalNumber number{99, false};
    QCOMPARE(parseDecimal(text, 3, number), int(Success));
    QVERIFY(number.count == count);
    QVERIFY(number.exact);
}

void TestDecimalText::whatIsNoPlainNumberIsRefused_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("nothing") << QString();
    QTest::newRow("empty") << QStringLiteral("");
    QTest::newRow("blanks") << "   ";
    QTest::newRow("a point alone") << ".";
    QTest::newRow("two points") << "1.2.3";
    QTest::newRow("two points at the end") << "1..";
    QTest::newRow("letters") << "abc";
    QTest::newRow("digits and letters") << "12a";
    QTest::newRow("letters after the point") << "12.a";
    QTest::newRow("minus") << "-5";
    QTest::newRow("minus nothing") << "-0";
    QTest::newRow("minus in the decimals") << "0.-5";
    QTest::newRow("plus") << "+5";
    QTest::newRow("exponent") << "1e3";
    QTest::newRow("decimal comma") << "12,5";
    QTest::newRow("thousands apart") << "1 000";
    QTest::newRow("hexadecimal") << "0x10";
    QTest::newRow("not a number") << "nan";
    QTest::newRow("infinite") << "inf";
    QTest::newRow("Arabic digits") << QString::fromUtf16(u"\u0661\u0662");
    QTest::newRow("full-width digits") << QString::fromUtf16(u"\uFF11\uFF12");
    QTest::newRow("superscript two") << QString::fromUtf16(u"5\u00B2");
    QTest::newRow("NUL inside") << QString::fromUtf16(u"1\0002", 3);
}

void TestDecimalText::whatIsNoPlainNumberIsRefused()
{
    QFETCH(QString, text);
    DecimalNumber number;
    QCOMPARE(parseDecimal(text, 3, number), int(InvalidArgument));
}

void TestDecimalText::digitsThatDoNotFitAreCutAndRemembered_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<quint64>("count");

    QTest::newRow("cut, not rounded") << "0.9999" << quint64{999};
    QTest::newRow("something small is left") << "0.0001" << quint64{0};
    QTest::newRow("something small far behind") << "1." + QString(500, u'0') + "1" << quint64{1000};
}

void TestDecimalText::digitsThatDoNotFitAreCutAndRemembered()
{
    QFETCH(QString, text);
    QFETCH(quint64, count);
    DecimalNumber number;
    QCOMPARE(parseDecimal(text, 3, number), int(Success));
    QVERIFY(number.count == count);
    QVERIFY(!number.exact);
}

void TestDecimalText::theGreatestCountIsReadAndOneMoreIsRefused()
{
    const QString greatest = QStringLiteral("340282366920938463463374607431768211455"); // 2^128 - 1
    DecimalNumber number;
    QCOMPARE(parseDecimal(greatest, 0, number), int(Success));
    QVERIFY(number.count == ~Wide{0});
    QCOMPARE(parseDecimal(QStringLiteral("340282366920938463463374607431768211456"), 0, number),
             int(InvalidArgument));
    QCOMPARE(parseDecimal(greatest, 1, number), int(InvalidArgument));
    QCOMPARE(parseDecimal(QStringLiteral("34028236692093846346337460743176821145.5"), 1, number), int(Success));
    QVERIFY(number.count == ~Wide{0});
    QCOMPARE(parseDecimal(QStringLiteral("34028236692093846346337460743176821145.6"), 1, number),
             int(InvalidArgument));
}

void TestDecimalText::aRefusedTextLeavesTheNumberAlone()
{
    DecimalNumber number{7, false};
    QCOMPARE(parseDecimal(u"12.x", 3, number), int(InvalidArgument));
    QCOMPARE(parseDecimal(QString(60, u'9'), 3, number), int(InvalidArgument));
    QVERIFY(number.count == 7);
    QVERIFY(!number.exact);
}

void TestDecimalText::tenThousandDigitsAreReadOrRefusedByTheirValue()
{
    const QString zeros(10'000, u'0');
    const QString nines(10'000, u'9');
    DecimalNumber number;
    QCOMPARE(parseDecimal(zeros + QStringLiteral("1.5"), 3, number), int(Success));
    QVERIFY(number.count == 1500);
    QCOMPARE(parseDecimal(QStringLiteral("1.") + nines, 3, number), int(Success));
    QVERIFY(number.count == 1999);
    QVERIFY(!number.exact);
    QCOMPARE(parseDecimal(QStringLiteral("1.") + zeros, 3, number), int(Success));
    QVERIFY(number.exact);
    QCOMPARE(parseDecimal(nines, 3, number), int(InvalidArgument));
    QCOMPARE(parseDecimal(QString(10'000, u' ') + QLatin1Char('1'), 3, number), int(Success));
    QCOMPARE(parseDecimal(nines + QLatin1Char('x'), 3, number), int(InvalidArgument));
}

void TestDecimalText::aNumberIsWrittenWithTheDecimalsItNeeds_data()
{
    QTest::addColumn<quint64>("count");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<int>("minDecimals");
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("zero, no decimals asked") << quint64{0} << 7 << 0 << QByteArray("0");
    QTest::newRow("zero, two decimals asked") << quint64{0} << 7 << 2 << QByteArray("0.00");
    QTest::newRow("decimals that are zero are left out") << quint64{2300} << 4 << 0 << QByteArray("0.23");
    QTest::newRow("but not those that are asked for") << quint64{2300} << 4 << 3 << QByteArray("0.230");
    QTest::newRow("nor those in the middle") << quint64{100001} << 4 << 0 << QByteArray("10.0001");
    QTest::newRow("zeros of the whole part stay") << quint64{1700000} << 4 << 0 << QByteArray("170");
    QTest::newRow("no decimals at all") << quint64{1700} << 0 << 0 << QByteArray("1700");
    QTest::newRow("more decimals than digits") << quint64{5} << 7 << 2 << QByteArray("0.0000005");
}

void TestDecimalText::aNumberIsWrittenWithTheDecimalsItNeeds()
{
    QFETCH(quint64, count);
    QFETCH(int, decimals);
    QFETCH(int, minDecimals);
    QTEST(decimalText(count, decimals, minDecimals), "text");
}

void TestDecimalText::everyNumberIsReadBackAsItWasWritten()
{
    QRandomGenerator random(20061);
    for (int i = 0; i < 5'000; ++i) {
        const int decimals = random.bounded(31);
        const Wide count = (Wide{random.generate64()} << 64 | random.generate64()) >> random.bounded(128);
        const QByteArray text = decimalText(count, decimals, random.bounded(decimals + 1));
        DecimalNumber number;
        QCOMPARE(parseDecimal(QString::fromLatin1(text), decimals, number), int(Success));
        QVERIFY2(number.count == count && number.exact, text.constData());
        const LongHand expected = LongHand(static_cast<quint64>(count >> 64)).times(1ULL << 32).times(1ULL << 32) +
                                  LongHand(static_cast<quint64>(count));
        QCOMPARE(LongHand(text), expected.shifted(-decimals));
    }
}

KAV_TEST_GROUP(TestDecimalText, NoApplication);
#include "tst_decimal_text.moc"
