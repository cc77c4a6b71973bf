#include "toolkit/DialogTestKit.h"

#include "support/TestGroup.h"
#include "toolkit/ZApplication.h"
#include "toolkit/ZMultiLineEdit.h"
#include "toolkit/ZSingleCaptureDlg.h"

#include <QtCore/QPoint>
#include <QtCore/QPointer>
#include <QtCore/QRect>
#include <QtCore/QSize>
#include <QtCore/QUuid>
#include <QtWidgets/QApplication>
#include <QtWidgets/QScrollBar>

using namespace DialogTestKit;
using namespace ToolkitTestKit;

namespace {

const QUuid numbers(QStringLiteral("637a8c00-1098-42ca-969a-2bf163cd3c14"));

} // namespace

class TestEntryDialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theKeysGoToTheFieldOfTheShownDialog();
    void softkeysHaveTheirTextsUntilOthersAreSet();
    void everyKeyThatAnswersHidesTheDialogFirst_data();
    void everyKeyThatAnswersHidesTheDialogFirst();
    void theDialogMayBeDeletedByWhoeverIsAnswered_data() { everyKeyThatAnswersHidesTheDialogFirst_data(); }
    void theDialogMayBeDeletedByWhoeverIsAnswered();
    void theClearKeyClosesWhateverIsTyped_data();
    void theClearKeyClosesWhateverIsTyped();
    void theBackspaceKeyEditsAndClosesAnEmptyFieldOnly();
    void aHeldBackspaceKeyStopsAtTheEmptyField();
    void theResultIsTheWholeTextWithoutBreaksAtItsEnd_data();
    void theResultIsTheWholeTextWithoutBreaksAtItsEnd();
    void anAnswerThatShowsTheDialogAgainKeepsTheText();
    void theDialogGrowsWithItsTextAndStaysOnTheDisplay();
    void theDialogIsCentred_data();
    void theDialogIsCentred();
    void aLongMessageGivesWayToTheField();
    void theLegendIsShownWithAnInputMethodOnly();
    void theTimeoutAnswersRight();
    void theScreenMayGoUnderAnOpenDialog();
    void anUnknownTypeIsAWarning();

private:
    ZSingleCaptureDlg *open(const QString &text = QString());

    std::unique_ptr<ListScreen> screen;
};

void TestEntryDialog::init()
{
    noWarnings();
    screen = std::make_unique<ListScreen>();
    screen->addRows(20);
    screen->show();
}

void TestEntryDialog::cleanup()
{
    screen.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

ZSingleCaptureDlg *TestEntryDialog::open(const QString &text)
{
    auto *dialog = new ZSingleCaptureDlg(QStringLiteral("Enter"), QString(), ZSingleCaptureDlg::TextCaptureDlg,
                                         screen.get(), nullptr, true, 0, 0);
    dialog->getMultiLineEdit()->setPlainText(text);
    dialog->show();
    return dialog;
}

void TestEntryDialog::theKeysGoToTheFieldOfTheShownDialog()
{
    ZSingleCaptureDlg *dialog = open();
    QCOMPARE(ZApplication::keyTarget(), dialog->getMultiLineEdit());
    QTest::keyClicks(ZApplication::keyTarget(), QStringLiteral("12.5 x"));
    QCOMPARE(dialog->getResultText(), QStringLiteral("12.5 x"));
    QCOMPARE(QLatin1String(dialog->className()), QLatin1String("ZSingleCaptureDlg"));
    QCOMPARE(dialog->getMultiLineEdit()->accessibleName(), QStringLiteral("Enter"));
}

void TestEntryDialog::softkeysHaveTheirTextsUntilOthersAreSet()
{
    ZSingleCaptureDlg *dialog = open();
    QCOMPARE(dialog->softKey()->text(ZSoftKey::LeftKey), QStringLiteral("OK"));
    QCOMPARE(dialog->softKey()->text(ZSoftKey::RightKey), QStringLiteral("Cancel"));
    dialog->setSoftkeyTextLeft(QStringLiteral("Save"));
    QCOMPARE(dialog->softKey()->text(ZSoftKey::LeftKey), QStringLiteral("Save"));
}

void TestEntryDialog::everyKeyThatAnswersHidesTheDialogFirst_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("answer");
    QTest::newRow("the left softkey") << int(Qt::Key_Context1) << "left";
    QTest::newRow("the left softkey of a keyboard") << int(Qt::Key_F1) << "left";
    QTest::newRow("the select key is the left softkey") << int(Qt::Key_Select) << "left";
    QTest::newRow("the Enter key is the left softkey, no line break") << int(Qt::Key_Return) << "left";
    QTest::newRow("the Enter key of the number block") << int(Qt::Key_Enter) << "left";
    QTest::newRow("the right softkey") << int(Qt::Key_Context2) << "right";
    QTest::newRow("the right softkey of a keyboard") << int(Qt::Key_F2) << "right";
}

void TestEntryDialog::everyKeyThatAnswersHidesTheDialogFirst()
{
    QFETCH(int, key);
    QFETCH(QString, answer);
    ZSingleCaptureDlg *dialog = open(QStringLiteral("12"));
    Answers answers(dialog);
    pressKey(key);
    QCOMPARE(answers.given, QStringList(answer));
    QVERIFY(answers.wasHidden);
    QCOMPARE(dialog->getResultText(), QStringLiteral("12"));
    QCOMPARE(ZApplication::keyTarget(), screen->list);
}

void TestEntryDialog::theDialogMayBeDeletedByWhoeverIsAnswered()
{
    QFETCH(int, key);
    const QPointer<ZSingleCaptureDlg> dialog = open(QStringLiteral("12"));
    Answers answers(dialog);
    answers.then = [dialog] { delete dialog; };
    clickInWindow(screen.get(), key);
    QCOMPARE(answers.given.size(), 1);
    QVERIFY(!dialog);
    settle();
    QCOMPARE(ZApplication::keyTarget(), screen->list);
}

void TestEntryDialog::theClearKeyClosesWhateverIsTyped_data()
{
    addClearKeyRows();
}

void TestEntryDialog::theClearKeyClosesWhateverIsTyped()
{
    QFETCH(int, key);
    for (const QString &text : {QString(), QStringLiteral("12.50")}) {
        ZSingleCaptureDlg *dialog = open(text);
        Answers answers(dialog);
        pressKey(key);
        QCOMPARE(answers.given, QStringList(QStringLiteral("right")));
        QVERIFY(answers.wasHidden);
        QCOMPARE(dialog->getResultText(), text);
    }
}

void TestEntryDialog::theBackspaceKeyEditsAndClosesAnEmptyFieldOnly()
{
    ZSingleCaptureDlg *dialog = open();
    QTest::keyClicks(ZApplication::keyTarget(), QStringLiteral("12"));
    Answers answers(dialog);
    pressKey(Qt::Key_Backspace);
    QCOMPARE(dialog->getResultText(), QStringLiteral("1"));
    pressKey(Qt::Key_Home);
    pressKey(Qt::Key_Backspace); // nothing before the cursor, but text behind it
    QCOMPARE(dialog->getResultText(), QStringLiteral("1"));
    pressKey(Qt::Key_End);
    pressKey(Qt::Key_Backspace);
    QVERIFY(answers.given.isEmpty());
    pressKey(Qt::Key_Backspace);
    QCOMPARE(answers.given, QStringList(QStringLiteral("right")));
}

void TestEntryDialog::aHeldBackspaceKeyStopsAtTheEmptyField()
{
    ZSingleCaptureDlg *dialog = open();
    QTest::keyClicks(ZApplication::keyTarget(), QStringLiteral("123"));
    Answers answers(dialog);
    press(ZApplication::keyTarget(), Qt::Key_Backspace);
    for (int i = 0; i < 9; ++i)
        press(ZApplication::keyTarget(), Qt::Key_Backspace, true);
    QVERIFY(dialog->getResultText().isEmpty());
    QVERIFY(answers.given.isEmpty());
    QVERIFY(dialog->isVisible());
}

void TestEntryDialog::theResultIsTheWholeTextWithoutBreaksAtItsEnd_data()
{
    QTest::addColumn<QString>("put");
    QTest::addColumn<QString>("result");
    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("blanks stay") << " 1 "
                                 << " 1 ";
    QTest::newRow("a break at the end goes") << "1\n"
                                             << "1";
    QTest::newRow("all breaks at the end go") << "1\n\n\n"
                                              << "1";
    QTest::newRow("nothing but breaks is nothing") << "\n\n"
                                                   << "";
    QTest::newRow("a break that the program put inside stays") << "1\n2"
                                                               << "1\n2";
    QTest::newRow("letters and signs are kept as they are") << "1,5 \u20ac & <b>"
                                                            << "1,5 \u20ac & <b>";
}

void TestEntryDialog::theResultIsTheWholeTextWithoutBreaksAtItsEnd()
{
    QFETCH(QString, put);
    QFETCH(QString, result);
    QCOMPARE(open(put)->getResultText(), result);
}

// What the cost setup does with an empty entry.
void TestEntryDialog::anAnswerThatShowsTheDialogAgainKeepsTheText()
{
    ZSingleCaptureDlg *dialog = open();
    Answers answers(dialog);
    answers.then = [&] {
        if (dialog->getResultText().isEmpty())
            dialog->show();
    };
    pressKey(Qt::Key_Context1);
    QVERIFY(dialog->isVisible());
    pressKey(Qt::Key_Select);
    QVERIFY(dialog->isVisible());
    QTest::keyClicks(ZApplication::keyTarget(), QStringLiteral("7"));
    pressKey(Qt::Key_Select);
    QVERIFY(!dialog->isVisible());
    QCOMPARE(answers.given.size(), 3);
    QCOMPARE(dialog->getResultText(), QStringLiteral("7"));
}

void TestEntryDialog::theDialogGrowsWithItsTextAndStaysOnTheDisplay()
{
    ZSingleCaptureDlg *dialog = open();
    const ZMultiLineEdit *field = dialog->getMultiLineEdit();
    QList<int> heights;
    for (int i = 0; i < 8; ++i) {
        QTest::keyClicks(ZApplication::keyTarget(), QString(30, QLatin1Char('w')));
        settle();
        const bool wasSeen = heights.contains(field->height());
        if (!wasSeen)
            heights << field->height();
        QVERIFY(QRect(0, 0, 240, 292).contains(boxOf(dialog)));
        QVERIFY2(field->viewport()->rect().contains(field->cursorRect()), "the cursor is out of sight");
        QVERIFY(dialog->rect().contains(QRect(field->mapTo(dialog, QPoint(0, 0)), field->size())));
    }
    QVERIFY2(std::is_sorted(heights.begin(), heights.end()), "the field never gets lower while text is added");
    QVERIFY(heights.size() >= 2 && heights.size() <= 4);
    QVERIFY(field->verticalScrollBar()->isVisible());
    dialog->getMultiLineEdit()->clear();
    settle();
    QVERIFY(field->height() <= heights.first());
    QVERIFY(!field->verticalScrollBar()->isVisible());
}

void TestEntryDialog::theDialogIsCentred_data()
{
    QTest::addColumn<QSize>("display");
    QTest::newRow("the phone's display") << QSize(240, 320);
    QTest::newRow("a small one") << QSize(150, 140);
    QTest::newRow("a large one") << QSize(480, 640);
}

void TestEntryDialog::theDialogIsCentred()
{
    QFETCH(QSize, display);
    screen->resize(display);
    ZSingleCaptureDlg *dialog = open(QStringLiteral("12.5"));
    const QRect box = boxOf(dialog);
    const QRect room(0, 0, display.width(), display.height() - ZSkinService::SoftkeyBarHeight);
    QVERIFY(room.contains(box));
    QVERIFY(std::abs(box.center().x() - room.center().x()) <= 1);
    QVERIFY(std::abs(box.center().y() - room.center().y()) <= 1);
}

void TestEntryDialog::aLongMessageGivesWayToTheField()
{
    const QString message = QStringLiteral("What is to be entered here? ").repeated(60);
    ZSingleCaptureDlg dialog(QStringLiteral("Enter"), message, ZSingleCaptureDlg::TextCaptureDlg, screen.get(),
                             nullptr, true, 0, 0);
    dialog.show();
    const ZMultiLineEdit *field = dialog.getMultiLineEdit();
    QCOMPARE(field->height(), field->sizeHint().height());
    QVERIFY(boxOf(&dialog).contains(QRect(field->mapTo(&dialog, QPoint(0, 0)), field->size())));
    QCOMPARE(dialog.accessibleDescription(), message);
}

void TestEntryDialog::theLegendIsShownWithAnInputMethodOnly()
{
    ZSingleCaptureDlg *dialog = open();
    const int plain = boxOf(dialog).height();
    ZApplication::setInputMethods(dialog->getMultiLineEdit(), numbers, {numbers}, 6, QString());
    settle();
    QVERIFY(boxOf(dialog).height() > plain);
}

void TestEntryDialog::theTimeoutAnswersRight()
{
    ZSingleCaptureDlg dialog(QStringLiteral("Enter"), QString(), ZSingleCaptureDlg::TextCaptureDlg, screen.get(),
                             nullptr, true, 0, 1);
    Answers answers(&dialog);
    dialog.show();
    QTRY_COMPARE_WITH_TIMEOUT(answers.given, QStringList(QStringLiteral("right")), 60'000);
}

void TestEntryDialog::theScreenMayGoUnderAnOpenDialog()
{
    const QPointer<ZSingleCaptureDlg> dialog = open(QStringLiteral("12"));
    screen.reset();
    QVERIFY(!dialog);
}

void TestEntryDialog::anUnknownTypeIsAWarning()
{
    QTest::ignoreMessage(QtWarningMsg, "ZSingleCaptureDlg: there is no type 9");
    ZSingleCaptureDlg dialog(QStringLiteral("Enter"), QString(), static_cast<ZSingleCaptureDlg::CaptureDlgType>(9),
                             screen.get(), nullptr, true, 0, 0);
    dialog.show();
    QTest::keyClicks(ZApplication::keyTarget(), QStringLiteral("12"));
    QCOMPARE(dialog.getResultText(), QStringLiteral("12"));
}

KAV_TEST_GROUP(TestEntryDialog, QApplication);

#include "tst_entry_dialog.moc"
