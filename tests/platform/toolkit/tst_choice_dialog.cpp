#include "toolkit/DialogTestKit.h"

#include "support/TestGroup.h"
#include "toolkit/ZApplication.h"
#include "toolkit/ZMultiLineEdit.h"
#include "toolkit/ZSingleCaptureDlg.h"
#include "toolkit/ZSingleSelectDlg.h"

#include <QtCore/QPoint>
#include <QtCore/QPointer>
#include <QtCore/QRect>
#include <QtGui/QColor>
#include <QtGui/QImage>
#include <QtWidgets/QApplication>
#include <QtWidgets/QScrollBar>

using namespace DialogTestKit;
using namespace ToolkitTestKit;

Q_DECLARE_METATYPE(std::function<void(ZSingleSelectDlg *)>)

namespace {

using Deed = std::function<void(ZSingleSelectDlg *)>;

void tapRow(ZListBox *list, int row)
{
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, middleOfRow(list, row));
}

} // namespace

class TestChoiceDialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void everyAnswerHidesTheDialogFirstAndComesOnce_data();
    void everyAnswerHidesTheDialogFirstAndComesOnce();
    void theDialogMayBeDeletedByWhoeverIsAnswered_data() { everyAnswerHidesTheDialogFirstAndComesOnce_data(); }
    void theDialogMayBeDeletedByWhoeverIsAnswered();
    void theDialogMayBeShownAgainByWhoeverIsAnswered();
    void theClearKeyIsTheRightSoftkey_data();
    void theClearKeyIsTheRightSoftkey();
    void theChosenRowIsRightWhenTheAnswerComes_data();
    void theChosenRowIsRightWhenTheAnswerComes();
    void aKeyHeldSinceBeforeAnswersNothing();
    void aDisabledRowAnswersLikeAnother();
    void anEmptyListAnswersToSoftkeysOnly();
    void theSoftkeysAndTheHeaderAreNamed();
    void theDialogIsAsLargeAsItsRows_data();
    void theDialogIsAsLargeAsItsRows();
    void theDialogStaysWithinASmallScreen();
    void rowsAddedToAShownDialogMakeItGrow();
    void aMessageLeavesTheListItsRoom_data();
    void aMessageLeavesTheListItsRoom();
    void aRowSelectedBeforeTheShowingIsInSight();
    void aHeldDownKeyShowsEveryRowWholeAndStopsAtTheEnd();
    void theMarkGoesWithTheBar();
    void rowsOfTextHaveNoMark();
    void aLongNameKeepsItsEnd();
    void theTimeoutAnswersRight();
    void theTimeoutOfAHiddenDialogAnswersNothing();
    void anEntryUnderAListGetsTheKeysBack();
    void theScreenMayGoUnderAnOpenDialog();

private:
    ZSingleSelectDlg *open(const QStringList &choices, int subItem = 0);

    std::unique_ptr<ListScreen> screen;
};

void TestChoiceDialog::init()
{
    noWarnings();
    screen = std::make_unique<ListScreen>();
    screen->addRows(20);
    screen->show();
}

void TestChoiceDialog::cleanup()
{
    screen.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

ZSingleSelectDlg *TestChoiceDialog::open(const QStringList &choices, int subItem)
{
    auto *dialog = new ZSingleSelectDlg(QStringLiteral("Choose"), QString(), screen.get(), nullptr, true, 0, 0);
    if (subItem == 1)
        dialog->getListBox()->setItemType(QStringLiteral("%I%M"));
    addChoices(dialog->getListBox(), choices, subItem);
    dialog->getListBox()->setSelected(0, true);
    dialog->show();
    return dialog;
}

void TestChoiceDialog::everyAnswerHidesTheDialogFirstAndComesOnce_data()
{
    QTest::addColumn<Deed>("deed");
    QTest::addColumn<QString>("answer");
    const auto key = [](int qtKey) {
        return Deed([qtKey](ZSingleSelectDlg *) { ZApplication::pressKey(qtKey); });
    };
    QTest::newRow("the left softkey") << key(Qt::Key_Context1) << "left";
    QTest::newRow("the right softkey") << key(Qt::Key_Context2) << "right";
    QTest::newRow("the select key") << key(Qt::Key_Select) << "select";
    QTest::newRow("the Enter key of a keyboard") << key(Qt::Key_Return) << "select";
    QTest::newRow("a tapped row") << Deed([](ZSingleSelectDlg *dialog) { tapRow(dialog->getListBox(), 1); })
                                  << "select";
    QTest::newRow("the left caption clicked") << Deed([](ZSingleSelectDlg *dialog) {
        QTest::mouseClick(dialog->softKey()->childAt(20, 10), Qt::LeftButton);
    }) << "left";
    QTest::newRow("the right caption clicked") << Deed([](ZSingleSelectDlg *dialog) {
        QTest::mouseClick(dialog->softKey()->childAt(220, 10), Qt::LeftButton);
    }) << "right";
}

void TestChoiceDialog::everyAnswerHidesTheDialogFirstAndComesOnce()
{
    QFETCH(Deed, deed);
    QFETCH(QString, answer);
    ZSingleSelectDlg *dialog = open({QStringLiteral("On"), QStringLiteral("Off")});
    Answers answers(dialog);
    deed(dialog);
    QCOMPARE(answers.given, QStringList(answer));
    QVERIFY(answers.wasHidden);
    QVERIFY(!dialog->isVisible());
    QCOMPARE(ZApplication::keyTarget(), screen->list);
}

void TestChoiceDialog::theDialogMayBeDeletedByWhoeverIsAnswered()
{
    QFETCH(Deed, deed);
    const QPointer<ZSingleSelectDlg> dialog = open({QStringLiteral("On"), QStringLiteral("Off")});
    Answers answers(dialog);
    answers.then = [dialog] { delete dialog; };
    deed(dialog);
    QCOMPARE(answers.given.size(), 1);
    QVERIFY(!dialog);
    settle();
    QCOMPARE(ZApplication::keyTarget(), screen->list);
}

void TestChoiceDialog::theDialogMayBeShownAgainByWhoeverIsAnswered()
{
    ZSingleSelectDlg *dialog = open({QStringLiteral("On"), QStringLiteral("Off")});
    Answers answers(dialog);
    answers.then = [dialog] { dialog->show(); };
    pressKey(Qt::Key_Down);
    pressKey(Qt::Key_Select);
    QVERIFY(dialog->isVisible());
    QCOMPARE(ZApplication::keyTarget(), dialog->getListBox());
    QCOMPARE(chosen(dialog->getListBox()), QStringLiteral("Off"));
    pressKey(Qt::Key_Context1);
    QCOMPARE(answers.given, QStringList({QStringLiteral("select"), QStringLiteral("left")}));
}

void TestChoiceDialog::theClearKeyIsTheRightSoftkey_data()
{
    addClearKeyRows();
    QTest::newRow("the Backspace key of a keyboard closes") << int(Qt::Key_Backspace);
}

void TestChoiceDialog::theClearKeyIsTheRightSoftkey()
{
    QFETCH(int, key);
    ZSingleSelectDlg *dialog = open({QStringLiteral("On"), QStringLiteral("Off")});
    Answers answers(dialog);
    pressKey(key);
    QCOMPARE(answers.given, QStringList(QStringLiteral("right")));
    QVERIFY(answers.wasHidden);
}

void TestChoiceDialog::theChosenRowIsRightWhenTheAnswerComes_data()
{
    QTest::addColumn<Deed>("deed");
    QTest::addColumn<QString>("text");
    const auto keys = [](QList<int> list) {
        return Deed([list](ZSingleSelectDlg *) {
            for (int key : list)
                ZApplication::pressKey(key);
        });
    };
    QTest::newRow("the first row, on which the dialog opens") << keys({Qt::Key_Select}) << "A";
    QTest::newRow("a row moved to, by the select key") << keys({Qt::Key_Down, Qt::Key_Select}) << "B";
    QTest::newRow("a row moved to, by the left softkey") << keys({Qt::Key_Down, Qt::Key_Context1}) << "B";
    QTest::newRow("up from the first row is the last") << keys({Qt::Key_Up, Qt::Key_Select}) << "C";
    QTest::newRow("a tapped row, not the one under the bar")
        << Deed([](ZSingleSelectDlg *dialog) { tapRow(dialog->getListBox(), 2); }) << "C";
}

void TestChoiceDialog::theChosenRowIsRightWhenTheAnswerComes()
{
    QFETCH(Deed, deed);
    QFETCH(QString, text);
    ZSingleSelectDlg *dialog = open({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")});
    Answers answers(dialog);
    QString atAnswer;
    answers.then = [&] { atAnswer = chosen(dialog->getListBox()); };
    deed(dialog);
    QCOMPARE(atAnswer, text);
}

void TestChoiceDialog::aKeyHeldSinceBeforeAnswersNothing()
{
    ZSingleSelectDlg *dialog = open({QStringLiteral("On"), QStringLiteral("Off")});
    Answers answers(dialog);
    for (int key : {Qt::Key_Select, Qt::Key_Context1, Qt::Key_Context2, Qt::Key_Clear})
        press(ZApplication::keyTarget(), key, true);
    QVERIFY(answers.given.isEmpty());
    QVERIFY(dialog->isVisible());
}

void TestChoiceDialog::aDisabledRowAnswersLikeAnother()
{
    ZSingleSelectDlg *dialog = open({QStringLiteral("On"), QStringLiteral("Off")});
    dialog->getListBox()->item(1)->setEnabled(false);
    Answers answers(dialog);
    pressKey(Qt::Key_Down);
    pressKey(Qt::Key_Select);
    QCOMPARE(answers.given, QStringList(QStringLiteral("select")));
    QCOMPARE(chosen(dialog->getListBox()), QStringLiteral("Off"));
}

void TestChoiceDialog::anEmptyListAnswersToSoftkeysOnly()
{
    ZSingleSelectDlg *dialog = open({});
    Answers answers(dialog);
    pressKey(Qt::Key_Select);
    QVERIFY(answers.given.isEmpty());
    pressKey(Qt::Key_Context1);
    QCOMPARE(answers.given, QStringList(QStringLiteral("left")));
    QCOMPARE(dialog->getListBox()->currentItem(), -1);
}

void TestChoiceDialog::theSoftkeysAndTheHeaderAreNamed()
{
    ZSingleSelectDlg *dialog = open({QStringLiteral("On")});
    QCOMPARE(dialog->softKey()->text(ZSoftKey::LeftKey), QStringLiteral("Select"));
    QCOMPARE(dialog->softKey()->text(ZSoftKey::RightKey), QStringLiteral("Cancel"));
    QCOMPARE(dialog->accessibleName(), QStringLiteral("Choose"));
    QCOMPARE(dialog->getListBox()->accessibleName(), QStringLiteral("Choose"));
    QCOMPARE(QLatin1String(dialog->className()), QLatin1String("ZSingleSelectDlg"));
    QVERIFY(dialog->isModalOverParent());
}

void TestChoiceDialog::theDialogIsAsLargeAsItsRows_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("shown");
    QTest::newRow("no row leaves the room of one") << 0 << 1;
    QTest::newRow("one row") << 1 << 1;
    QTest::newRow("two rows") << 2 << 2;
    QTest::newRow("as many rows as the display holds") << 10 << 10;
    QTest::newRow("one row too many scrolls") << 11 << 10;
    QTest::newRow("194 rows scroll") << 194 << 10;
}

void TestChoiceDialog::theDialogIsAsLargeAsItsRows()
{
    QFETCH(int, rows);
    QFETCH(int, shown);
    QStringList texts;
    for (int i = 0; i < rows; ++i)
        texts << QString::number(i);
    ZSingleSelectDlg *dialog = open(texts);
    const ZListBox *list = dialog->getListBox();
    QCOMPARE(list->viewport()->height(), shown * ZSkinService::RowHeight);
    QCOMPARE(list->verticalScrollBar()->isVisible(), rows > shown);
    const QRect box = boxOf(dialog);
    const QRect display(0, 0, 240, 320 - ZSkinService::SoftkeyBarHeight);
    QVERIFY(display.contains(box));
    QVERIFY2(std::abs(box.center().x() - display.center().x()) <= 1, "not centred across");
    QVERIFY2(std::abs(box.center().y() - display.center().y()) <= 1, "not centred up and down");
    QCOMPARE(box.height(), shown * ZSkinService::RowHeight + ZSkinService::DialogHeaderHeight + 2);
}

void TestChoiceDialog::theDialogStaysWithinASmallScreen()
{
    screen->resize(160, 150);
    ZSingleSelectDlg *dialog = open({});
    addManyChoices(dialog->getListBox());
    const QRect box = boxOf(dialog);
    QVERIFY(QRect(0, 0, 160, 150 - ZSkinService::SoftkeyBarHeight).contains(box));
    QCOMPARE(dialog->getListBox()->viewport()->height() % ZSkinService::RowHeight, 0);
}

void TestChoiceDialog::rowsAddedToAShownDialogMakeItGrow()
{
    ZSingleSelectDlg *dialog = open({QStringLiteral("On")});
    addChoice(dialog->getListBox(), QStringLiteral("Off"));
    QCOMPARE(dialog->getListBox()->viewport()->height(), 2 * ZSkinService::RowHeight);
    delete dialog->getListBox()->item(0);
    QCOMPARE(dialog->getListBox()->viewport()->height(), ZSkinService::RowHeight);
    addChoices(dialog->getListBox(), {QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")});
    QCOMPARE(dialog->getListBox()->viewport()->height(), 4 * ZSkinService::RowHeight);
    dialog->getListBox()->clear();
    QVERIFY(dialog->getListBox()->viewport()->height() <= ZSkinService::RowHeight);
}

void TestChoiceDialog::aMessageLeavesTheListItsRoom_data()
{
    QTest::addColumn<QString>("message");
    QTest::newRow("a short message") << QStringLiteral("Which one?");
    QTest::newRow("a message longer than the display") << QStringLiteral("Which one of these? ").repeated(80);
}

void TestChoiceDialog::aMessageLeavesTheListItsRoom()
{
    QFETCH(QString, message);
    ZSingleSelectDlg dialog(QStringLiteral("Choose"), message, screen.get(), nullptr, true, 0, 0);
    addManyChoices(dialog.getListBox());
    dialog.show();
    QCOMPARE(dialog.accessibleDescription(), message);
    ZListBox *list = dialog.getListBox();
    QVERIFY(list->viewport()->height() >= 4 * ZSkinService::RowHeight);
    QVERIFY(list->y() >= ZSkinService::RowHeight);
    QVERIFY(QRect(0, 0, 240, 292).contains(boxOf(&dialog)));
}

void TestChoiceDialog::aRowSelectedBeforeTheShowingIsInSight()
{
    ZSingleSelectDlg dialog(QStringLiteral("Choose"), QString(), screen.get(), nullptr, true, 0, 0);
    addManyChoices(dialog.getListBox());
    dialog.getListBox()->setSelected(150, true);
    dialog.show();
    QVERIFY(dialog.getListBox()->viewport()->rect().contains(
        dialog.getListBox()->visualRect(dialog.getListBox()->currentIndex())));
}

void TestChoiceDialog::aHeldDownKeyShowsEveryRowWholeAndStopsAtTheEnd()
{
    ZSingleSelectDlg *dialog = open({});
    ZListBox *list = dialog->getListBox();
    addManyChoices(list);
    for (int row = 1; row <= 200; ++row) {
        press(ZApplication::keyTarget(), Qt::Key_Down, row > 1);
        QCOMPARE(list->currentItem(), std::min(row, 193));
        const QRect place = list->visualRect(list->currentIndex());
        QVERIFY(list->viewport()->rect().contains(place));
        QCOMPARE(place.top() % ZSkinService::RowHeight, 0);
    }
}

void TestChoiceDialog::theMarkGoesWithTheBar()
{
    ZSingleSelectDlg *dialog = open({QStringLiteral("Same"), QStringLiteral("Same")}, 1);
    ZListBox *list = dialog->getListBox();
    const QImage chosenRow = lookOfRow(list, 0);
    const QImage otherRow = lookOfRow(list, 1);
    pressKey(Qt::Key_Down);
    QCOMPARE(lookOfRow(list, 1), chosenRow);
    QCOMPARE(lookOfRow(list, 0), otherRow);
    // The dot in the middle of the ring, in the text's colour, only where the bar is.
    const QPoint dot(ZSkinService::RowMargin + 6, ZSkinService::RowHeight / 2);
    QCOMPARE(chosenRow.pixelColor(dot), ZSkinService::color(ZSkinService::FocusTextColor));
    QCOMPARE(otherRow.pixelColor(dot), ZSkinService::color(ZSkinService::ScreenColor));
}

void TestChoiceDialog::rowsOfTextHaveNoMark()
{
    ZSingleSelectDlg *plain = open({QStringLiteral("Other"), QStringLiteral("Same")});
    const QImage withoutMark = lookOfRow(plain->getListBox(), 1);
    ZSingleSelectDlg *marked = open({QStringLiteral("Other"), QStringLiteral("Same")}, 1);
    const QImage withMark = lookOfRow(marked->getListBox(), 1);
    const QColor ground = ZSkinService::color(ZSkinService::ScreenColor);
    const QRect text(0, 0, 200, ZSkinService::RowHeight - 1);
    QVERIFY(firstInk(withMark.copy(text), ground) >= ZSkinService::RowMargin);
    QVERIFY(lastInk(withMark.copy(text), ground) > lastInk(withoutMark.copy(text), ground));
}

void TestChoiceDialog::aLongNameKeepsItsEnd()
{
    const QString name = QStringLiteral("UNITED ARAB EMIRATES  DIRHAM AND MORE  (%1)");
    ZSingleSelectDlg *dialog =
        open({QStringLiteral("Custom"), name.arg(QStringLiteral("AED")), name.arg(QStringLiteral("USD"))});
    QVERIFY2(lookOfRow(dialog->getListBox(), 1) != lookOfRow(dialog->getListBox(), 2),
             "the codes at the end cannot be seen");
    QCOMPARE(dialog->getListBox()->model()->index(1, 0).data(Qt::AccessibleTextRole).toString(),
             name.arg(QStringLiteral("AED")));
}

void TestChoiceDialog::theTimeoutAnswersRight()
{
    ZSingleSelectDlg dialog(QStringLiteral("Choose"), QString(), screen.get(), nullptr, true, 0, 1);
    Answers answers(&dialog);
    dialog.show();
    QTRY_COMPARE_WITH_TIMEOUT(answers.given, QStringList(QStringLiteral("right")), 60'000);
    QVERIFY(answers.wasHidden);
}

void TestChoiceDialog::theTimeoutOfAHiddenDialogAnswersNothing()
{
    ZSingleSelectDlg early(QStringLiteral("Choose"), QString(), screen.get(), nullptr, true, 0, 1);
    ZSingleSelectDlg late(QStringLiteral("Choose"), QString(), screen.get(), nullptr, true, 0, 2);
    Answers answers(&early);
    Answers lateAnswers(&late);
    early.show();
    early.hide();
    late.show();
    QTRY_COMPARE_WITH_TIMEOUT(lateAnswers.given.size(), 1, 60'000);
    QVERIFY(answers.given.isEmpty());
}

// What the cost setup does: the entry's Cancel shows the list again, and the entry stays where it is.
void TestChoiceDialog::anEntryUnderAListGetsTheKeysBack()
{
    auto *entry = new ZSingleCaptureDlg(QStringLiteral("Custom"), QString(), ZSingleCaptureDlg::TextCaptureDlg,
                                        screen.get(), nullptr, true, 0, 0);
    entry->show();
    ZSingleSelectDlg *dialog = open({QStringLiteral("A"), QStringLiteral("B")});
    QCOMPARE(ZApplication::keyTarget(), dialog->getListBox());
    pressKey(Qt::Key_B);
    QVERIFY(entry->getResultText().isEmpty());
    QCOMPARE(chosen(dialog->getListBox()), QStringLiteral("B"));
    delete dialog;
    QCOMPARE(ZApplication::keyTarget(), entry->getMultiLineEdit());
    pressKey(Qt::Key_B);
    QCOMPARE(entry->getResultText(), QStringLiteral("b"));
    delete entry;
    QCOMPARE(ZApplication::keyTarget(), screen->list);
}

void TestChoiceDialog::theScreenMayGoUnderAnOpenDialog()
{
    const QPointer<ZSingleSelectDlg> dialog = open({QStringLiteral("On"), QStringLiteral("Off")});
    screen.reset();
    QVERIFY(!dialog);
    QVERIFY(!ZApplication::keyTarget());
}

KAV_TEST_GROUP(TestChoiceDialog, QApplication);

#include "tst_choice_dialog.moc"
