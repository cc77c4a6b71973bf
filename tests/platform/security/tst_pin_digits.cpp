#include "security/PinDigits.h"
#include "support/TestGroup.h"

#include <QtCore/QRegularExpression>
#include <QtTest/QTest>

#include <algorithm>
#include <new>

class TestPinDigits : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void fourToEightDigitsAreAPin();
    void theLastDigitIsTakenBackFirst();
    void aDigitTakenBackIsOverwritten();
    void clearedDigitsAreOverwritten();
    void digitsAreOverwrittenWhenTheObjectGoes();
    void theViewIsNoCopy();
};

namespace {

void append(PinDigits &digits, const char *text)
{
    for (; *text; ++text)
        digits.append(*text);
}

// Out of the compiler's sight, which would take the memory for nobody's otherwise.
[[gnu::noinline]] PinDigits *makeAt(char *place)
{
    auto *digits = new (place) PinDigits;
    append(*digits, "12345678");
    return digits;
}

[[gnu::noinline]] void destroy(PinDigits *digits)
{
    digits->~PinDigits();
}

bool hasDigit(const char *begin, std::size_t size)
{
    return std::any_of(begin, begin + size, [](char c) { return c >= '0' && c <= '9'; });
}

} // namespace

void TestPinDigits::fourToEightDigitsAreAPin()
{
    PinDigits digits;
    for (std::size_t count = 0; count <= 8; ++count) {
        QCOMPARE(digits.count(), count);
        QCOMPARE(digits.isComplete(), count >= 4);
        QCOMPARE(digits.append('7'), count < 8);
    }
    QCOMPARE(digits.view(), QByteArray("77777777"));
}

void TestPinDigits::theLastDigitIsTakenBackFirst()
{
    PinDigits digits;
    digits.removeLast();
    append(digits, "123");
    digits.removeLast();
    digits.append('9');
    QCOMPARE(digits.view(), QByteArray("129"));
}

void TestPinDigits::aDigitTakenBackIsOverwritten()
{
    PinDigits digits;
    append(digits, "1234");
    const char *place = digits.view().constData();
    digits.removeLast();
    QVERIFY(!hasDigit(place + 3, 1));
    QVERIFY(hasDigit(place, 1));
}

void TestPinDigits::clearedDigitsAreOverwritten()
{
    PinDigits digits;
    append(digits, "12345678");
    const char *place = digits.view().constData();
    digits.clear();
    QVERIFY(!hasDigit(place, 8));
    QCOMPARE(digits.count(), std::size_t(0));
}

void TestPinDigits::digitsAreOverwrittenWhenTheObjectGoes()
{
    alignas(PinDigits) char place[sizeof(PinDigits)] = {};
    PinDigits *digits = makeAt(place);
    QVERIFY(hasDigit(place, sizeof place));
    destroy(digits);
    QVERIFY(!hasDigit(place, sizeof place));
}

void TestPinDigits::theViewIsNoCopy()
{
    PinDigits digits;
    append(digits, "1234");
    QCOMPARE(digits.view().constData(), digits.view().constData());
}

KAV_TEST_GROUP(TestPinDigits, NoApplication);

#include "tst_pin_digits.moc"
