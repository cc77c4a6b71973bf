#include "toolkit/DialogTestKit.h"

#include "support/TestGroup.h"
#include "toolkit/ZApplication.h"
#include "toolkit/ZKeypadInput.h"
#include "toolkit/ZMultiLineEdit.h"
#include "toolkit/ZMultiTap.h"
#include "toolkit/ZSingleCaptureDlg.h"

#include <QtCore/QEvent>
#include <QtCore/QRegularExpression>
#include <QtCore/QUuid>
#include <QtGui/QImage>
#include <QtGui/QKeyEvent>
#include <QtGui/QTextCursor>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QWidget>

using namespace DialogTestKit;
using namespace ToolkitTestKit;

namespace {

const QUuid letters(QStringLiteral("637a8c00-1098-42ca-969a-2bf163cd3c12"));
const QUuid decimals(QStringLiteral("637a8c00-1098-42ca-969a-2bf163cd3c14"));
const QUuid symbols(QStringLiteral("637a8c00-1098-42ca-969a-2bf163cd3c15"));
constexpr int numberMode = 6;
constexpr int letterMode = 0;

// A press of one key, `text` as a keyboard gives it.
void pressOn(QWidget *field, int key, const QString &text)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(field, &event);
}

void typeOn(QWidget *field, const QString &text)
{
    for (QChar c : text)
        pressOn(field, c.toUpper().unicode(), QString(c));
}

} // namespace

class TestInputMethods : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void numbersTypeDecimalsAndKeepEverythingElse_data();
    void numbersTypeDecimalsAndKeepEverythingElse();
    void theHashKeyNeverClosesTheDialog();
    void lettersComeFromTheNumberKeys_data();
    void lettersComeFromTheNumberKeys();
    void aPauseMakesTheLetterStay();
    void aNumberKeyThatIsHeldGivesItsDigit();
    void aFullFieldTakesNoMoreTapsAndChangesNone();
    void aMovedCursorMakesTheLetterStay();
    void theIndicatorFollowsTheStarKey();
    void shortcutsAreLeftAlone();
    void anyTextFieldWillDo();
    void theHintsSayWhatIsWanted();
    void aHintStandsInTheEmptyField();
    void aLaterCallTakesThePlaceOfAnEarlierOne();
    void whatIsNotKnownIsAWarningAndPlainTyping_data();
    void whatIsNotKnownIsAWarningAndPlainTyping();
    void aNullFieldIsAWarning();
    void everyNumberKeyHasItsDigitLast();

private:
    ZMultiLineEdit *open();

    std::unique_ptr<ListScreen> screen;
    ZSingleCaptureDlg *dialog = nullptr;
};

void TestInputMethods::init()
{
    noWarnings();
    screen = std::make_unique<ListScreen>();
    screen->show();
    dialog = nullptr;
}

void TestInputMethods::cleanup()
{
    screen.reset();
}

ZMultiLineEdit *TestInputMethods::open()
{
    dialog = new ZSingleCaptureDlg(QStringLiteral("Enter"), QString(), ZSingleCaptureDlg::TextCaptureDlg,
                                   screen.get(), nullptr, true, 0, 0);
    dialog->show();
    return dialog->getMultiLineEdit();
}

void TestInputMethods::numbersTypeDecimalsAndKeepEverythingElse_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("result");
    QTest::newRow("digits") << "0123456789"
                            << "0123456789";
    QTest::newRow("the star key is the point") << "12*50"
                                               << "12.50";
    QTest::newRow("the star key gives one point only") << "1*2*3"
                                                       << "1.23";
    QTest::newRow("a comma is the point") << "12,50"
                                          << "12.50";
    QTest::newRow("a point is a point") << "12.50"
                                        << "12.50";
    QTest::newRow("a second point of a keyboard is kept as typed") << "1.2.3"
                                                                   << "1.2.3";
    QTest::newRow("a minus") << "-5"
                             << "-5";
    QTest::newRow("letters are kept as typed") << "abc XYZ"
                                               << "abc XYZ";
    QTest::newRow("signs are kept as typed") << "$1/2"
                                             << "$1/2";
    QTest::newRow("the hash key takes back what is before the cursor") << "12*5#6"
                                                                       << "12.6";
    QTest::newRow("the hash key on an empty field does nothing") << "#1"
                                                                 << "1";
    QTest::newRow("a point taken back can be typed again") << "1*#2*3"
                                                           << "12.3";
}

void TestInputMethods::numbersTypeDecimalsAndKeepEverythingElse()
{
    QFETCH(QString, keys);
    QFETCH(QString, result);
    ZMultiLineEdit *field = open();
    ZApplication::setInputMethods(field, decimals, {decimals, symbols}, numberMode, QString());
    typeOn(field, keys);
    QCOMPARE(dialog->getResultText(), result);
}

void TestInputMethods::theHashKeyNeverClosesTheDialog()
{
    ZMultiLineEdit *field = open();
    ZApplication::setInputMethods(field, decimals, {decimals}, numberMode, QString());
    Answers answers(dialog);
    pressKeys("12###");
    QVERIFY(answers.given.isEmpty());
    QVERIFY(dialog->isVisible());
    QVERIFY(dialog->getResultText().isEmpty());
}

void TestInputMethods::lettersComeFromTheNumberKeys_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("result");
    QTest::newRow("once is the first letter") << "2"
                                              << "A";
    QTest::newRow("twice is the second") << "22"
                                         << "B";
    QTest::newRow("after the last letter comes the digit, then the first again") << "222222"
                                                                                 << "B";
    QTest::newRow("another key starts the next letter") << "338"
                                                        << "ET";
    QTest::newRow("a code of three letters") << "33887777"
                                             << "EUS";
    QTest::newRow("a key with four letters") << "9999"
                                             << "Z";
    QTest::newRow("nought is the blank, then itself") << "2 0"
                                                      << "A  ";
    QTest::newRow("one is itself, again and again") << "11"
                                                    << "11";
    QTest::newRow("the star key makes lower case") << "2*2"
                                                   << "Aa";
    QTest::newRow("the star key again makes upper case") << "*2*3"
                                                         << "aD";
    QTest::newRow("the star key makes the letter stay") << "2**2"
                                                        << "AA";
    QTest::newRow("the hash key takes a letter back") << "23#4"
                                                      << "AG";
    QTest::newRow("letters of a keyboard are kept as typed") << "aB"
                                                             << "aB";
    QTest::newRow("a letter of a keyboard makes the one before stay") << "2x2"
                                                                      << "AxA";
    QTest::newRow("signs are kept as typed") << "$-."
                                             << "$-.";
}

void TestInputMethods::lettersComeFromTheNumberKeys()
{
    QFETCH(QString, keys);
    QFETCH(QString, result);
    ZMultiLineEdit *field = open();
    ZApplication::setInputMethods(field, letters, {letters}, letterMode, QString());
    typeOn(field, keys);
    QCOMPARE(dialog->getResultText(), result);
}

void TestInputMethods::aPauseMakesTheLetterStay()
{
    ZMultiTap tap;
    QCOMPARE(tap.tap(Qt::Key_2).character, QLatin1Char('A'));
    QVERIFY(tap.isOpenFor(Qt::Key_2));
    QVERIFY(!tap.isOpenFor(Qt::Key_3));
    QTimerEvent ofSomebodyElse(-1);
    QCoreApplication::sendEvent(&tap, &ofSomebodyElse);
    QVERIFY(tap.isOpenFor(Qt::Key_2));
    QTRY_VERIFY_WITH_TIMEOUT(!tap.isOpenFor(Qt::Key_2), 60000);
    const ZMultiTap::Tap next = tap.tap(Qt::Key_2);
    QCOMPARE(next.character, QLatin1Char('A'));
    QVERIFY(!next.isAnother);
}

void TestInputMethods::aNumberKeyThatIsHeldGivesItsDigit()
{
    ZMultiLineEdit *field = open();
    ZApplication::setInputMethods(field, letters, {letters}, letterMode, QString());
    press(field, Qt::Key_2);
    for (int i = 0; i < 5; ++i)
        press(field, Qt::Key_2, true);
    QCOMPARE(dialog->getResultText(), QStringLiteral("2"));
    press(field, Qt::Key_2);
    QCOMPARE(dialog->getResultText(), QStringLiteral("2A"));
}

void TestInputMethods::aFullFieldTakesNoMoreTapsAndChangesNone()
{
    ZMultiLineEdit *field = open();
    ZApplication::setInputMethods(field, letters, {letters}, letterMode, QString());
    field->setMaxLength(3);
    pressKeys("234");
    QCOMPARE(dialog->getResultText(), QStringLiteral("ADG"));
    pressKeys("4"); // the last letter can still become another
    QCOMPARE(dialog->getResultText(), QStringLiteral("ADH"));
    pressKeys("222555#");
    QCOMPARE(dialog->getResultText(), QStringLiteral("AD"));
}

void TestInputMethods::aMovedCursorMakesTheLetterStay()
{
    ZMultiLineEdit *field = open();
    ZApplication::setInputMethods(field, letters, {letters}, letterMode, QString());
    typeOn(field, QStringLiteral("xy2"));
    field->moveCursor(QTextCursor::Start); // as the pointer does
    pressKeys("2");
    QCOMPARE(dialog->getResultText(), QStringLiteral("AxyA"));
}

void TestInputMethods::theIndicatorFollowsTheStarKey()
{
    ZMultiLineEdit *field = open();
    ZApplication::setInputMethods(field, letters, {letters}, letterMode, QString());
    settle();
    QCOMPARE(ZKeypadInput::of(field)->indicator(), QStringLiteral("ABC"));
    const QImage before = dialog->grab().toImage();
    pressKeys("*");
    QCOMPARE(ZKeypadInput::of(field)->indicator(), QStringLiteral("abc"));
    QVERIFY2(dialog->grab().toImage() != before, "what is typed now cannot be seen");
    press(field, Qt::Key_Asterisk, true); // held
    QCOMPARE(ZKeypadInput::of(field)->indicator(), QStringLiteral("abc"));
}

void TestInputMethods::shortcutsAreLeftAlone()
{
    ZMultiLineEdit *field = open();
    ZApplication::setInputMethods(field, letters, {letters}, letterMode, QString());
    QKeyEvent event(QEvent::KeyPress, Qt::Key_2, Qt::AltModifier, QString());
    QCoreApplication::sendEvent(field, &event);
    QVERIFY(dialog->getResultText().isEmpty());
}

void TestInputMethods::anyTextFieldWillDo()
{
    QLineEdit field;
    ZApplication::setInputMethods(&field, letters, {letters}, letterMode, QString());
    typeOn(&field, QStringLiteral("33887777"));
    QCOMPARE(field.text(), QStringLiteral("EUS"));
    ZApplication::setInputMethods(&field, decimals, {decimals}, numberMode, QString());
    typeOn(&field, QStringLiteral("###1*5"));
    QCOMPARE(field.text(), QStringLiteral("1.5"));
}

void TestInputMethods::theHintsSayWhatIsWanted()
{
    ZMultiLineEdit *field = open();
    ZApplication::setInputMethods(field, decimals, {decimals}, numberMode, QString());
    QVERIFY(field->inputMethodHints() & Qt::ImhPreferNumbers);
    QVERIFY(!(field->inputMethodHints() & Qt::ImhExclusiveInputMask));
    ZApplication::setInputMethods(field, letters, {letters}, letterMode, QString());
    QVERIFY(field->inputMethodHints() & Qt::ImhPreferUppercase);
    QVERIFY(!(field->inputMethodHints() & (Qt::ImhPreferNumbers | Qt::ImhExclusiveInputMask)));
}

void TestInputMethods::aHintStandsInTheEmptyField()
{
    ZMultiLineEdit *field = open();
    field->setPlaceholderText(QStringLiteral("before"));
    ZApplication::setInputMethods(field, decimals, {decimals}, numberMode, QString());
    QCOMPARE(field->placeholderText(), QStringLiteral("before"));
    ZApplication::setInputMethods(field, decimals, {decimals}, numberMode, QStringLiteral("Amount"));
    QCOMPARE(field->placeholderText(), QStringLiteral("Amount"));
}

void TestInputMethods::aLaterCallTakesThePlaceOfAnEarlierOne()
{
    ZMultiLineEdit *field = open();
    ZApplication::setInputMethods(field, letters, {letters}, letterMode, QString());
    ZApplication::setInputMethods(field, decimals, {decimals}, numberMode, QString());
    typeOn(field, QStringLiteral("22*5"));
    QCOMPARE(dialog->getResultText(), QStringLiteral("22.5"));
    ZApplication::setInputMethods(field, symbols, {symbols}, 0, QString());
    typeOn(field, QStringLiteral("*#,"));
    QCOMPARE(dialog->getResultText(), QStringLiteral("22.5*#,"));
    QVERIFY(!ZKeypadInput::of(field));
}

void TestInputMethods::whatIsNotKnownIsAWarningAndPlainTyping_data()
{
    QTest::addColumn<QUuid>("method");
    QTest::addColumn<QUuid>("allowed");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("typed");
    const QUuid strange(QStringLiteral("00000000-1098-42ca-969a-2bf163cd3c14"));
    QTest::newRow("a method that is not known") << strange << decimals << numberMode << "1*2";
    QTest::newRow("a null method") << QUuid() << decimals << numberMode << "1*2";
    QTest::newRow("decimals in a mode that is not known") << decimals << decimals << 77 << "1*2";
    QTest::newRow("letters in the mode of decimals") << letters << letters << numberMode << "1*2";
    QTest::newRow("an allowed method that is not known") << decimals << strange << numberMode << "1.2";
}

void TestInputMethods::whatIsNotKnownIsAWarningAndPlainTyping()
{
    QFETCH(QUuid, method);
    QFETCH(QUuid, allowed);
    QFETCH(int, mode);
    QFETCH(QString, typed);
    ZMultiLineEdit *field = open();
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("^ZApplication::setInputMethods: unknown method")));
    ZApplication::setInputMethods(field, method, {allowed}, mode, QString());
    typeOn(field, QStringLiteral("1*2"));
    QCOMPARE(dialog->getResultText(), typed);
}

void TestInputMethods::aNullFieldIsAWarning()
{
    QTest::ignoreMessage(QtWarningMsg, "ZApplication::setInputMethods: there is no field");
    ZApplication::setInputMethods(nullptr, decimals, {decimals}, numberMode, QString());
}

void TestInputMethods::everyNumberKeyHasItsDigitLast()
{
    for (int digit = 0; digit <= 9; ++digit)
        QCOMPARE(ZMultiTap::charactersOf(Qt::Key_0 + digit).right(1), QString::number(digit));
    QVERIFY(ZMultiTap::charactersOf(Qt::Key_A).isEmpty());
    QVERIFY(ZMultiTap::charactersOf(Qt::Key_0 - 1).isEmpty());
    QVERIFY(ZMultiTap::charactersOf(Qt::Key_9 + 1).isEmpty());
}

KAV_TEST_GROUP(TestInputMethods, QApplication);

#include "tst_input_methods.moc"
