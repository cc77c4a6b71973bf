#include "toolkit/DialogTestKit.h"

#include "support/TestGroup.h"
#include "toolkit/ZApplication.h"
#include "toolkit/ZSingleSelectDlg.h"

#include <QtCore/QElapsedTimer>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>

using namespace DialogTestKit;
using namespace ToolkitTestKit;

namespace {

const QStringList names = {
    QStringLiteral("Custom"),  QStringLiteral("ALBANIA"), QStringLiteral("ARMENIA"), QStringLiteral("BRAZIL"),
    QStringLiteral("BRUNEI"),  QStringLiteral("CANADA"),  QStringLiteral("UGANDA"),  QStringLiteral("UKRAINE"),
    QStringLiteral("URUGUAY"), QStringLiteral("ZAMBIA"),
};

} // namespace

class TestChoiceByLetter : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { screen.reset(); }

    void aTypedLetterGoesToTheNextRowWithItAndRound();
    void aKeyOfThePhoneIsNoLetterWhateverItsText();
    void lettersTypedQuicklyNarrowTheChoice();
    void aLetterNoRowBeginsWithMovesNothing();
    void aNumberKeyGoesThroughItsLetters();
    void aNumberKeyPassesOverLettersThatNoRowHas();
    void aHeldNumberKeyMovesOnce();
    void anotherKeyInBetweenStartsTheNumberKeyAnew();
    void numberKeysAreDigitsWhereRowsBeginWithThem();
    void lettersDoNotAnswer();
    void aHeadingIsPassedOver();
    void aLetterTypedLaterBeginsAnew();
    void keysWithAnotherMeaningMoveNothing_data();
    void keysWithAnotherMeaningMoveNothing();

private:
    std::unique_ptr<ListScreen> screen;
    ZListBox *list = nullptr;
    ZSingleSelectDlg *dialog = nullptr;
};

void TestChoiceByLetter::init()
{
    noWarnings();
    screen = std::make_unique<ListScreen>();
    screen->show();
    dialog = new ZSingleSelectDlg(QStringLiteral("Choose"), QString(), screen.get(), nullptr, true, 0, 0);
    list = dialog->getListBox();
    addChoices(list, names);
    list->setSelected(0, true);
    dialog->show();
    QApplication::setKeyboardInputInterval(400);
}

void TestChoiceByLetter::aTypedLetterGoesToTheNextRowWithItAndRound()
{
    QStringList seen;
    for (int i = 0; i < 4; ++i) {
        type(list, QLatin1Char('u'));
        seen << chosen(list);
    }
    QCOMPARE(seen.join(QLatin1Char(' ')), QStringLiteral("UGANDA UKRAINE URUGUAY UGANDA"));
}

void TestChoiceByLetter::aKeyOfThePhoneIsNoLetterWhateverItsText()
{
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier, QStringLiteral("u"));
    QCoreApplication::sendEvent(list, &down);
    QCOMPARE(list->currentItem(), 1);
}

void TestChoiceByLetter::lettersTypedQuicklyNarrowTheChoice()
{
    QApplication::setKeyboardInputInterval(60000);
    type(list, QLatin1Char('u'));
    QCOMPARE(chosen(list), QStringLiteral("UGANDA"));
    type(list, QLatin1Char('r'));
    QCOMPARE(chosen(list), QStringLiteral("URUGUAY"));
}

void TestChoiceByLetter::aLetterNoRowBeginsWithMovesNothing()
{
    type(list, QLatin1Char('x'));
    QCOMPARE(chosen(list), QStringLiteral("Custom"));
    pressKey(Qt::Key_3); // d, e, f
    QCOMPARE(chosen(list), QStringLiteral("Custom"));
}

void TestChoiceByLetter::aNumberKeyGoesThroughItsLetters()
{
    QStringList seen;
    for (int i = 0; i < 4; ++i) {
        pressKey(Qt::Key_2);
        seen << chosen(list);
    }
    // a, b, c, and a again, from where the bar is
    QCOMPARE(seen.join(QLatin1Char(' ')), QStringLiteral("ALBANIA BRAZIL CANADA ALBANIA"));
}

void TestChoiceByLetter::aNumberKeyPassesOverLettersThatNoRowHas()
{
    pressKey(Qt::Key_9); // w, x, y have no row
    QCOMPARE(chosen(list), QStringLiteral("ZAMBIA"));
    pressKey(Qt::Key_8); // t has none
    QCOMPARE(chosen(list), QStringLiteral("UGANDA"));
}

void TestChoiceByLetter::aHeldNumberKeyMovesOnce()
{
    press(list, Qt::Key_2);
    for (int i = 0; i < 5; ++i)
        press(list, Qt::Key_2, true);
    QCOMPARE(chosen(list), QStringLiteral("ALBANIA"));
}

void TestChoiceByLetter::anotherKeyInBetweenStartsTheNumberKeyAnew()
{
    pressKey(Qt::Key_2);
    pressKey(Qt::Key_Up);
    pressKey(Qt::Key_2);
    QCOMPARE(chosen(list), QStringLiteral("ALBANIA"));
}

void TestChoiceByLetter::numberKeysAreDigitsWhereRowsBeginWithThem()
{
    addChoice(list, QStringLiteral("2nd line"));
    pressKey(Qt::Key_2);
    QCOMPARE(chosen(list), QStringLiteral("2nd line"));
    pressKey(Qt::Key_8); // no row begins with this one
    QCOMPARE(chosen(list), QStringLiteral("UGANDA"));
}

void TestChoiceByLetter::lettersDoNotAnswer()
{
    Answers answers(dialog);
    for (char letter = 'a'; letter <= 'z'; ++letter)
        type(list, QLatin1Char(letter));
    pressKeys("1234567890*#");
    QVERIFY(answers.given.isEmpty());
    QVERIFY(dialog->isVisible());
}

void TestChoiceByLetter::aHeadingIsPassedOver()
{
    auto *const heading = new ZSettingItem(list, QString());
    heading->setSeparator(QStringLiteral("UNITS"), nullptr);
    list->insertItem(heading, 6, true);
    type(list, QLatin1Char('u'));
    QCOMPARE(chosen(list), QStringLiteral("UGANDA"));
}

void TestChoiceByLetter::aLetterTypedLaterBeginsAnew()
{
    QApplication::setKeyboardInputInterval(0);
    type(list, QLatin1Char('u'));
    QElapsedTimer since;
    since.start();
    QTRY_VERIFY(since.hasExpired(0));
    type(list, QLatin1Char('z'));
    QCOMPARE(chosen(list), QStringLiteral("ZAMBIA"));
}

void TestChoiceByLetter::keysWithAnotherMeaningMoveNothing_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, int key, Qt::KeyboardModifiers modifiers, const char *text) {
        QTest::newRow(name) << key << modifiers << QString::fromLatin1(text);
    };
    row("a shortcut", Qt::Key_U, Qt::ControlModifier, "u");
    row("another shortcut", Qt::Key_U, Qt::AltModifier, "u");
    row("a shortcut with a number", Qt::Key_8, Qt::MetaModifier, "8");
    row("a control character", Qt::Key_unknown, Qt::NoModifier, "\x07");
    row("no text", Qt::Key_F7, Qt::NoModifier, "");
}

void TestChoiceByLetter::keysWithAnotherMeaningMoveNothing()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(QString, text);
    QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
    QCoreApplication::sendEvent(list, &press);
    QCOMPARE(chosen(list), QStringLiteral("Custom"));
    QVERIFY(dialog->isVisible());
}

KAV_TEST_GROUP(TestChoiceByLetter, QApplication);

#include "tst_choice_by_letter.moc"
