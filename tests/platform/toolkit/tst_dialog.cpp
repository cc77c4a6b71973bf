// Dialogs over a screen: captions, answers, what they keep away from the screen, how they come and go.
#include "support/TestGroup.h"
#include "toolkit/DialogTestKit.h"
#include "toolkit/ToolkitTestKit.h"
#include "toolkit/ZApplication.h"
#include "toolkit/ZSkinService.h"

#include <QtCore/QPoint>
#include <QtCore/QPointF>
#include <QtCore/QPointer>
#include <QtCore/QRect>
#include <QtCore/QSet>
#include <QtCore/QTranslator>
#include <QtGui/QColor>
#include <QtGui/QGuiApplication>
#include <QtGui/QImage>
#include <QtGui/QWheelEvent>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QWidget>

#include <algorithm>

using namespace DialogTestKit;
using namespace ToolkitTestKit;

namespace {

constexpr auto Question = ZMessageDlg::QuestionDlg;
constexpr auto Information = ZMessageDlg::InformationDlg;

ZMessageDlg *newDialog(QWidget *parent, ZMessageDlg::MessageDlgType type, bool modal = true, int timeout = 0)
{
    return new ZMessageDlg(QStringLiteral("Header"), QStringLiteral("Message"), type, timeout, parent, nullptr,
                           modal, 0);
}

QString captions(const ZPopup &dialog)
{
    return dialog.softKey()->text(ZSoftKey::LeftKey) + QLatin1Char('|') +
           dialog.softKey()->text(ZSoftKey::RightKey);
}

// What is in the dialog's box.
QWidget *bodyOf(const ZPopup &dialog)
{
    const auto children = dialog.findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    const auto body = std::find_if(children.begin(), children.end(),
                                   [&](const QWidget *child) { return child != dialog.softKey(); });
    return body == children.end() ? nullptr : *body;
}

class Catalogue : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        const bool ours = qstrcmp(context, "ZMessageDlg") == 0;
        if (ours && qstrcmp(source, "TXT_RID_SOFTKEY_YES") == 0)
            return QString::fromLatin1("S\xed");
        return ours && qstrcmp(source, "TXT_RID_SOFTKEY_OK") == 0 ? QStringLiteral("Okay") : QString();
    }
};

} // namespace

class TestDialog : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void eachTypeHasItsCaptions();
    void captionsComeFromTheCatalogue();
    void aTypeThatDoesNotExistIsAnInformation();
    void captionsCanBeReplaced();
    void textsCanBeReadBackAndAreSpoken();
    void keysAnswerAsTheySay_data();
    void keysAnswerAsTheySay();
    void thePointerAnswersOnTheSoftkeysThatHaveACaption();
    void aDisabledSoftkeyDoesNotAnswer();
    void aKeyThatIsHeldSinceBeforeDoesNotAnswer();
    void itIsHiddenBeforeItAnswers();
    void whoeverAnswersMayShowItAgain();
    void whoeverAnswersMayDeleteItOrItsScreen_data();
    void whoeverAnswersMayDeleteItOrItsScreen();
    void aMessageBeginsWhereReadingBegins_data();
    void aMessageBeginsWhereReadingBegins();
    void aSentenceEndsWhereItsOwnWordsEnd_data();
    void aSentenceEndsWhereItsOwnWordsEnd();
    void itComesOnlyWhenItIsShown();
    void itCoversItsScreenWholeAndFollowsIt();
    void itsBoxStaysInsideTheDisplay_data();
    void itsBoxStaysInsideTheDisplay();
    void itsSoftkeysLieWhereTheScreenHasItsOwn();
    void aModalOneDimsTheScreen();
    void aModalOneKeepsKeysAndPointerFromTheScreen();
    void aModalOneKeepsTheFocusWhenTheListBelowAsksForIt();
    void oneThatIsNotModalLetsThePointerThrough();
    void theWindowAroundThePhoneGoesOnWorking();
    void theTabKeyGoesFromTheDialogToTheWindowAroundAndBack();
    void theFocusGoesBackToTheList();
    void theFocusGoesBackToWhatHadItOutsideThePhone();
    void theFocusStaysWithWhoTookItMeanwhile();
    void theNewestDialogGetsTheKeysInWhateverOrderTheyGo_data();
    void theNewestDialogGetsTheKeysInWhateverOrderTheyGo();
    void showingItAgainBringsItToTheTop();
    void aSubScreenOpenedOverADialogGetsTheKeys();
    void itAnswersByItselfAfterItsTime_data();
    void itAnswersByItselfAfterItsTime();
    void oneThatIsGoneBeforeItsTimeDoesNotAnswer();
    void aLongMessageScrollsByKeyAndWheel();
    void aMessageOfAnyLengthAndContentDoesNoHarm();
    void itGoesWithItsScreen();
    void aLongMirroredMessageHasItsScrollBarOnTheLeft();
    void linesBreakAtEverySeparator();
    void anotherTimerDoesNotAnswer();
};

void TestDialog::init()
{
    noWarnings();
}

void TestDialog::eachTypeHasItsCaptions()
{
    ListScreen screen;
    const ZMessageDlg *question = newDialog(&screen, Question);
    const ZMessageDlg *information = newDialog(&screen, Information);
    QCOMPARE(static_cast<int>(question->type()), 1);
    QCOMPARE(static_cast<int>(information->type()), 2);
    QCOMPARE(captions(*question), QStringLiteral("Yes|No"));
    QCOMPARE(captions(*information), QStringLiteral("OK|"));
}

void TestDialog::captionsComeFromTheCatalogue()
{
    Catalogue catalogue;
    QVERIFY(QCoreApplication::installTranslator(&catalogue));
    ListScreen screen;
    QCOMPARE(captions(*newDialog(&screen, Question)), QString::fromLatin1("S\xed|No"));
    QCOMPARE(captions(*newDialog(&screen, Information)), QStringLiteral("Okay|"));
    QCoreApplication::removeTranslator(&catalogue);
}

void TestDialog::aTypeThatDoesNotExistIsAnInformation()
{
    ListScreen screen;
    QTest::ignoreMessage(QtWarningMsg, "ZMessageDlg: there is no type 7");
    const ZMessageDlg *dialog = newDialog(&screen, static_cast<ZMessageDlg::MessageDlgType>(7));
    QCOMPARE(dialog->type(), Information);
    QCOMPARE(captions(*dialog), QStringLiteral("OK|"));
}

void TestDialog::captionsCanBeReplaced()
{
    ListScreen screen;
    ZMessageDlg *dialog = newDialog(&screen, Question);
    dialog->setSoftkeyTextLeft(QStringLiteral("Save"));
    dialog->setSoftkeyTextRight(QStringLiteral("Cancel"));
    QCOMPARE(captions(*dialog), QStringLiteral("Save|Cancel"));
}

void TestDialog::textsCanBeReadBackAndAreSpoken()
{
    ListScreen screen;
    const ZMessageDlg dialog(QStringLiteral("Reset Timer"), QStringLiteral("Would you?"), Question, 0, &screen,
                             "named", true, 0);
    QCOMPARE(dialog.header(), QStringLiteral("Reset Timer"));
    QCOMPARE(dialog.message(), QStringLiteral("Would you?"));
    QCOMPARE(dialog.accessibleName(), QStringLiteral("Reset Timer"));
    QCOMPARE(dialog.accessibleDescription(), QStringLiteral("Would you?"));
    QCOMPARE(dialog.objectName(), QStringLiteral("named"));
    QCOMPARE(dialog.parentWidget(), &screen);
}

void TestDialog::keysAnswerAsTheySay_data()
{
    QTest::addColumn<bool>("question");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("answer");
    const QString left = QStringLiteral("left");
    const QString right = QStringLiteral("right");
    QTest::newRow("question, left softkey") << true << int(Qt::Key_Context1) << left;
    QTest::newRow("question, left softkey on a keyboard") << true << int(Qt::Key_F1) << left;
    QTest::newRow("question, select") << true << int(Qt::Key_Select) << left;
    QTest::newRow("question, return") << true << int(Qt::Key_Return) << left;
    QTest::newRow("question, right softkey") << true << int(Qt::Key_Context2) << right;
    QTest::newRow("question, clear") << true << int(Qt::Key_Clear) << right;
    QTest::newRow("question, escape") << true << int(Qt::Key_Escape) << right;
    QTest::newRow("question, down") << true << int(Qt::Key_Down) << QString();
    QTest::newRow("question, a letter") << true << int(Qt::Key_Y) << QString();
    QTest::newRow("information, left softkey") << false << int(Qt::Key_Context1) << left;
    QTest::newRow("information, select") << false << int(Qt::Key_Select) << left;
    QTest::newRow("information, clear") << false << int(Qt::Key_Clear) << left;
    QTest::newRow("information, right softkey") << false << int(Qt::Key_Context2) << QString();
}

void TestDialog::keysAnswerAsTheySay()
{
    QFETCH(bool, question);
    QFETCH(int, key);
    QFETCH(QString, answer);
    ListScreen screen;
    screen.addRows(3);
    QSignalSpy clear(&screen, &ZKbMainWidget::clearKeyClicked);
    QSignalSpy left(screen.bar, &ZSoftKey::leftClicked);
    QSignalSpy right(screen.bar, &ZSoftKey::rightClicked);
    screen.show();
    QVERIFY(QTest::qWaitForWindowActive(&screen, 60'000));
    ZMessageDlg *dialog = newDialog(&screen, question ? Question : Information);
    const Answers answers(dialog);
    dialog->show();
    clickInWindow(&screen, key);
    QCOMPARE(answers.given, answer.isEmpty() ? QStringList() : QStringList(answer));
    QCOMPARE(dialog->isVisible(), answer.isEmpty());
    QCOMPARE(clear.count() + left.count() + right.count(), 0);
    QCOMPARE(screen.list->currentItem(), 0);
}

void TestDialog::thePointerAnswersOnTheSoftkeysThatHaveACaption()
{
    ListScreen screen;
    screen.show();
    ZMessageDlg *dialog = newDialog(&screen, Question);
    const Answers answers(dialog);
    dialog->show();
    QTest::mouseClick(screen.windowHandle(), Qt::LeftButton, {}, QPoint(220, 310));
    QCOMPARE(answers.given, QStringList({QStringLiteral("right")}));
    dialog->show();
    QTest::mouseClick(screen.windowHandle(), Qt::LeftButton, {}, QPoint(20, 310));
    QCOMPARE(answers.given.last(), QStringLiteral("left"));
    dialog->setSoftkeyTextRight(QString());
    dialog->show();
    QTest::mouseClick(screen.windowHandle(), Qt::LeftButton, {}, QPoint(220, 310));
    QCOMPARE(answers.given.size(), 2);
    QVERIFY(dialog->isVisible());
}

void TestDialog::aDisabledSoftkeyDoesNotAnswer()
{
    ListScreen screen;
    screen.show();
    ZMessageDlg *dialog = newDialog(&screen, Question);
    const Answers answers(dialog);
    dialog->softKey()->setButtonEnable(ZSoftKey::LeftKey, false);
    dialog->show();
    click(dialog, Qt::Key_Context1);
    click(dialog, Qt::Key_Select);
    QCOMPARE(answers.given, QStringList());
    click(dialog, Qt::Key_Context2);
    QCOMPARE(answers.given, QStringList({QStringLiteral("right")}));
}

void TestDialog::aKeyThatIsHeldSinceBeforeDoesNotAnswer()
{
    ListScreen screen;
    QVERIFY(screen.open(1));
    ZMessageDlg *dialog = newDialog(&screen, Question);
    const Answers answers(dialog);
    connect(screen.list, &ZListBox::selected, dialog, &QWidget::show);
    press(screen.list, Qt::Key_Select);
    QVERIFY(dialog->isVisible());
    for (const int key : {int(Qt::Key_Select), int(Qt::Key_Context1), int(Qt::Key_Clear)})
        press(QApplication::focusWidget(), key, true);
    QCOMPARE(answers.given, QStringList());
}

void TestDialog::itIsHiddenBeforeItAnswers()
{
    ListScreen screen;
    QVERIFY(screen.open(2));
    ZMessageDlg *dialog = newDialog(&screen, Question);
    QList<bool> seen;
    connect(dialog, &ZPopup::leftSoftkeyClicked, this,
            [&] { seen << dialog->isVisible() << screen.list->hasFocus(); });
    dialog->show();
    click(dialog, Qt::Key_Select);
    QCOMPARE(seen, QList<bool>({false, true}));
}

void TestDialog::whoeverAnswersMayShowItAgain()
{
    ListScreen screen;
    QVERIFY(screen.open());
    ZMessageDlg *dialog = newDialog(&screen, Question);
    int answers = 0;
    connect(dialog, &ZPopup::leftSoftkeyClicked, this, [&] {
        if (++answers < 3)
            dialog->show();
    });
    dialog->show();
    for (int i = 0; i < 5; ++i)
        clickInWindow(&screen, Qt::Key_Select);
    QCOMPARE(answers, 3);
    QVERIFY(!dialog->isVisible());
}

void TestDialog::whoeverAnswersMayDeleteItOrItsScreen_data()
{
    QTest::addColumn<int>("by");
    QTest::addColumn<bool>("screenToo");
    for (const bool screenToo : {false, true}) {
        const char *what = screenToo ? "its screen" : "the dialog";
        QTest::addRow("%s, by key", what) << 0 << screenToo;
        QTest::addRow("%s, by a key through the window system", what) << 1 << screenToo;
        QTest::addRow("%s, by the pointer", what) << 2 << screenToo;
        QTest::addRow("%s, by the timer", what) << 3 << screenToo;
    }
}

void TestDialog::whoeverAnswersMayDeleteItOrItsScreen()
{
    QFETCH(int, by);
    QFETCH(bool, screenToo);
    QPointer<ListScreen> screen = new ListScreen;
    screen->addRows(2);
    screen->show();
    QVERIFY(QTest::qWaitForWindowActive(screen, 60'000));
    const QPointer<ZMessageDlg> dialog = newDialog(screen, Question, true, by == 3 ? 1 : 0);
    const auto deed = [&] {
        if (screenToo)
            delete screen;
        else
            delete dialog;
    };
    connect(dialog, &ZPopup::leftSoftkeyClicked, this, deed);
    connect(dialog, &ZPopup::rightSoftkeyClicked, this, deed);
    dialog->show();
    if (by == 0)
        press(dialog, Qt::Key_Select);
    else if (by == 1)
        clickInWindow(screen, Qt::Key_Select);
    else if (by == 2)
        QTest::mouseClick(screen->windowHandle(), Qt::LeftButton, {}, QPoint(20, 310));
    QTRY_VERIFY_WITH_TIMEOUT(!dialog, 60'000);
    settle();
    QCOMPARE(screen.isNull(), screenToo);
    delete screen;
}

void TestDialog::aMessageBeginsWhereReadingBegins_data()
{
    QTest::addColumn<QString>("message");
    QTest::addColumn<bool>("turnedLater");
    const QString hebrew = QString::fromUtf8("\xd7\x90\xd7\x91\xd7\x92");
    QTest::newRow("words from left to right") << "abc" << false;
    QTest::newRow("words from right to left") << hebrew << false;
    QTest::newRow("the display is turned while it is shown") << "abc" << true;
}

void TestDialog::aMessageBeginsWhereReadingBegins()
{
    QFETCH(QString, message);
    QFETCH(bool, turnedLater);
    ListScreen screen;
    screen.setLayoutDirection(turnedLater ? Qt::LeftToRight : Qt::RightToLeft);
    screen.show();
    ZMessageDlg dialog(QString(), message, Information, 0, &screen, nullptr, true, 0);
    dialog.show();
    screen.setLayoutDirection(Qt::RightToLeft);
    // Without the corners of the box, which are round.
    constexpr int corner = ZSkinService::DialogRadius;
    const QRect inside = bodyOf(dialog)->geometry().adjusted(corner, 0, -corner, -corner);
    const QColor background = ZSkinService::color(ZSkinService::DialogColor);
    const auto looks = [&] { return dialog.grab(inside).toImage().convertToFormat(QImage::Format_RGB32); };
    QVERIFY2(firstInk(looks(), background) > inside.width() / 2, "the message begins at the left");
    const int rightEdge = inside.width() - (ZSkinService::DialogPadding - corner);
    QVERIFY(lastInk(looks(), background) > rightEdge - 4 && lastInk(looks(), background) <= rightEdge);
    screen.setLayoutDirection(Qt::LeftToRight);
    QVERIFY2(lastInk(looks(), background) < inside.width() / 2, "the message begins at the right");
}

void TestDialog::aSentenceEndsWhereItsOwnWordsEnd_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QChar>("mark"); // invisible, of the direction of the words
    QTest::addColumn<Qt::LayoutDirection>("around");
    const QString hebrew = QString::fromUtf8("\xd7\x90\xd7\x91\xd7\x92");
    QTest::newRow("not translated, in an application from right to left")
        << "abc?" << QChar(0x200e) << Qt::RightToLeft;
    QTest::newRow("translated, in an application from left to right")
        << hebrew + '?' << QChar(0x200f) << Qt::LeftToRight;
}

void TestDialog::aSentenceEndsWhereItsOwnWordsEnd()
{
    QFETCH(QString, words);
    QFETCH(QChar, mark);
    QFETCH(Qt::LayoutDirection, around);
    QGuiApplication::setLayoutDirection(around);
    const auto asBefore = qScopeGuard([] { QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto); });
    ListScreen screen;
    screen.show();
    const auto look = [&screen](const QString &message) {
        ZMessageDlg dialog(QString(), message, Information, 0, &screen, nullptr, true, 0);
        dialog.show();
        return dialog.grab().toImage();
    };
    QVERIFY2(look(words) == look(mark + words + mark), "the question mark stands at the sentence's beginning");
}

void TestDialog::itComesOnlyWhenItIsShown()
{
    ListScreen screen;
    const ZMessageDlg *dialog = newDialog(&screen, Question);
    screen.show();
    QVERIFY(!dialog->isVisible());
    QVERIFY(ZApplication::keyTarget() != dialog);
}

void TestDialog::itCoversItsScreenWholeAndFollowsIt()
{
    ListScreen screen;
    ZMessageDlg *dialog = newDialog(&screen, Question);
    QCOMPARE(dialog->geometry(), screen.rect());
    screen.show();
    dialog->show();
    screen.resize(300, 400);
    settle();
    QCOMPARE(dialog->geometry(), screen.rect());
    QCOMPARE(dialog->softKey()->geometry(), screen.bar->geometry());
}

void TestDialog::itsBoxStaysInsideTheDisplay_data()
{
    QTest::addColumn<QString>("header");
    QTest::addColumn<QString>("message");
    const QString longText = QStringLiteral("Many words that need many lines. ").repeated(40);
    QTest::newRow("nothing to say") << QString() << QString();
    QTest::newRow("a header alone") << QStringLiteral("Header") << QString();
    QTest::newRow("a short message") << QString() << QStringLiteral("Short");
    QTest::newRow("a long message") << QStringLiteral("Header") << longText;
    QTest::newRow("one endless word") << QString() << QString(3'000, QLatin1Char('x'));
    QTest::newRow("an endless header") << longText << QStringLiteral("Short");
}

void TestDialog::itsBoxStaysInsideTheDisplay()
{
    QFETCH(QString, header);
    QFETCH(QString, message);
    ListScreen screen;
    screen.setMainWidgetTitle(QString());
    screen.bar->hide();
    screen.show();
    ZMessageDlg dialog(header, message, Information, 0, &screen, nullptr, true, 0);
    dialog.show();
    settle();
    const QImage image = screen.grab().toImage();
    const QColor dimmed = image.pixelColor(2, 200);
    for (int y = 30; y < screen.bar->y(); ++y) {
        QCOMPARE(image.pixelColor(2, y), dimmed);
        QCOMPARE(image.pixelColor(237, y), dimmed);
    }
    for (int x = 0; x < 240; ++x)
        QCOMPARE(image.pixelColor(x, screen.bar->y() - 4), dimmed);
    QVERIFY(image.pixelColor(120, screen.bar->y() / 2) != dimmed || (header + message).isEmpty());
}

void TestDialog::itsSoftkeysLieWhereTheScreenHasItsOwn()
{
    ListScreen screen;
    screen.bar->setText(ZSoftKey::LeftKey, QStringLiteral("Yes"), ZSoftKey::DefaultTextPriority);
    screen.bar->setText(ZSoftKey::RightKey, QStringLiteral("No"), ZSoftKey::DefaultTextPriority);
    screen.show();
    const QImage before = screen.grab(screen.bar->geometry()).toImage();
    ZMessageDlg *dialog = newDialog(&screen, Question);
    dialog->show();
    QCOMPARE(screen.grab(screen.bar->geometry()).toImage(), before);
}

void TestDialog::aModalOneDimsTheScreen()
{
    ListScreen screen;
    screen.addRows(1);
    screen.show();
    const int bright = qGray(screen.grab().toImage().pixel(3, 250));
    ZMessageDlg *dialog = newDialog(&screen, Question);
    dialog->show();
    QVERIFY(qGray(screen.grab().toImage().pixel(3, 250)) < bright - 60);
    dialog->hide();
    QCOMPARE(qGray(screen.grab().toImage().pixel(3, 250)), bright);
}

void TestDialog::aModalOneKeepsKeysAndPointerFromTheScreen()
{
    ListScreen screen;
    QVERIFY(screen.open(30));
    QSignalSpy chosen(screen.list, &ZListBox::itemChosen);
    newDialog(&screen, Question)->show();
    QTest::mouseClick(screen.windowHandle(), Qt::LeftButton, {}, QPoint(5, 100));
    QTest::mouseDClick(screen.windowHandle(), Qt::LeftButton, {}, QPoint(120, 60));
    QTest::mouseClick(screen.windowHandle(), Qt::LeftButton, {}, QPoint(120, 150));
    for (const int key :
         {int(Qt::Key_Down), int(Qt::Key_End), int(Qt::Key_R), int(Qt::Key_Tab), int(Qt::Key_Down)})
        clickInWindow(&screen, key);
    QWheelEvent wheel(QPointF(120, 60), screen.mapToGlobal(QPointF(120, 60)), QPoint(), QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(screen.childAt(120, 60), &wheel);
    QCOMPARE(chosen.count(), 0);
    QCOMPARE(screen.list->currentItem(), 0);
    QCOMPARE(screen.list->verticalScrollBar()->value(), 0);
}

void TestDialog::aModalOneKeepsTheFocusWhenTheListBelowAsksForIt()
{
    ListScreen screen;
    QVERIFY(screen.open(3));
    ZMessageDlg *dialog = newDialog(&screen, Question);
    dialog->show();
    screen.list->setFocus();
    QVERIFY(!screen.list->hasFocus());
    clickInWindow(&screen, Qt::Key_Clear);
    QVERIFY(!dialog->isVisible());
    QVERIFY(screen.list->hasFocus());
}

void TestDialog::oneThatIsNotModalLetsThePointerThrough()
{
    ListScreen screen;
    QVERIFY(screen.open(30));
    ZMessageDlg *dialog = newDialog(&screen, Information, false);
    dialog->show();
    const Answers answers(dialog);
    clickInWindow(&screen, Qt::Key_Down);
    QCOMPARE(screen.list->currentItem(), 0);
    QSignalSpy chosen(screen.list, &ZListBox::itemChosen);
    QTest::mouseClick(screen.windowHandle(), Qt::LeftButton, {}, QPoint(120, 60));
    QCOMPARE(chosen.count(), 1);
    QTest::mouseClick(screen.windowHandle(), Qt::LeftButton, {}, QPoint(20, 310));
    QCOMPARE(answers.given, QStringList({QStringLiteral("left")}));
}

void TestDialog::theWindowAroundThePhoneGoesOnWorking()
{
    QWidget around;
    around.resize(500, 400);
    QPushButton button(&around);
    button.setGeometry(300, 0, 100, 30);
    ListScreen screen(&around);
    screen.addRows(3);
    around.show();
    screen.show();
    QVERIFY(QTest::qWaitForWindowActive(&around, 60'000));
    ZMessageDlg *dialog = newDialog(&screen, Question);
    dialog->show();
    QSignalSpy clicked(&button, &QPushButton::clicked);
    QTest::mouseClick(around.windowHandle(), Qt::LeftButton, {}, QPoint(350, 15));
    QCOMPARE(clicked.count(), 1);
    QVERIFY(dialog->isVisible());
    button.setFocus();
    QVERIFY(button.hasFocus());
    QTest::mouseClick(around.windowHandle(), Qt::LeftButton, {}, QPoint(5, 100));
    clickInWindow(&around, Qt::Key_Clear);
    QVERIFY(!dialog->isVisible());
}

void TestDialog::theTabKeyGoesFromTheDialogToTheWindowAroundAndBack()
{
    QWidget around;
    around.resize(500, 400);
    QLineEdit before(&around);
    before.setGeometry(300, 0, 100, 30);
    ListScreen screen(&around);
    screen.addRows(3);
    QLineEdit after(&around);
    after.setGeometry(300, 40, 100, 30);
    around.show();
    screen.show();
    QVERIFY(QTest::qWaitForWindowActive(&around, 60'000));
    ZMessageDlg *dialog = newDialog(&screen, Question);
    dialog->show();
    QSet<QWidget *> seen;
    for (int i = 0; i < 12; ++i) {
        clickInWindow(&around, Qt::Key_Tab);
        QVERIFY(!screen.list->hasFocus());
        seen << QApplication::focusWidget();
    }
    QCOMPARE(seen, QSet<QWidget *>({&before, &after, dialog}));
    dialog->setFocus();
    clickInWindow(&around, Qt::Key_Backtab);
    QVERIFY(before.hasFocus() || after.hasFocus());
}

void TestDialog::theFocusGoesBackToTheList()
{
    ListScreen screen;
    QVERIFY(screen.open(3));
    ZMessageDlg *dialog = newDialog(&screen, Question);
    dialog->show();
    QVERIFY(!screen.list->hasFocus());
    delete dialog;
    QVERIFY(screen.list->hasFocus());
    clickInWindow(&screen, Qt::Key_Down);
    QCOMPARE(screen.list->currentItem(), 1);
}

void TestDialog::theFocusGoesBackToWhatHadItOutsideThePhone()
{
    QWidget around;
    around.resize(500, 400);
    QLineEdit edit(&around);
    edit.setGeometry(300, 0, 100, 30);
    ListScreen screen(&around);
    screen.addRows(3);
    around.show();
    screen.show();
    QVERIFY(QTest::qWaitForWindowActive(&around, 60'000));
    edit.setFocus();
    ZMessageDlg *dialog = newDialog(&screen, Question);
    dialog->show();
    QVERIFY(dialog->hasFocus());
    dialog->hide();
    QVERIFY(edit.hasFocus());
}

void TestDialog::theFocusStaysWithWhoTookItMeanwhile()
{
    QWidget around;
    around.resize(500, 400);
    QLineEdit edit(&around);
    edit.setGeometry(300, 0, 100, 30);
    ListScreen screen(&around);
    screen.addRows(3);
    around.show();
    screen.show();
    QVERIFY(QTest::qWaitForWindowActive(&around, 60'000));
    ZMessageDlg *dialog = newDialog(&screen, Question);
    dialog->show();
    edit.setFocus();
    dialog->hide();
    QVERIFY(edit.hasFocus());
}

void TestDialog::theNewestDialogGetsTheKeysInWhateverOrderTheyGo_data()
{
    QTest::addColumn<QList<int>>("order");
    QList<int> order = {0, 1, 2};
    do {
        QTest::addRow("%d, %d, %d", order[0], order[1], order[2]) << order;
    } while (std::next_permutation(order.begin(), order.end()));
}

void TestDialog::theNewestDialogGetsTheKeysInWhateverOrderTheyGo()
{
    QFETCH(QList<int>, order);
    ListScreen screen;
    QVERIFY(screen.open(3));
    QList<QPointer<ZMessageDlg>> dialogs;
    for (int i = 0; i < 3; ++i) {
        dialogs << newDialog(&screen, Question);
        dialogs.last()->show();
    }
    for (const int which : order) {
        const auto top =
            std::find_if(dialogs.crbegin(), dialogs.crend(), [](const auto &d) { return !d.isNull(); });
        QCOMPARE(QApplication::focusWidget(), *top);
        QCOMPARE(ZApplication::keyTarget(), *top);
        delete dialogs[which];
    }
    QVERIFY(screen.list->hasFocus());
    QCOMPARE(ZApplication::keyTarget(), screen.list);
}

void TestDialog::showingItAgainBringsItToTheTop()
{
    ListScreen screen;
    QVERIFY(screen.open());
    ZMessageDlg *first = newDialog(&screen, Question);
    ZMessageDlg *second = newDialog(&screen, Question);
    first->show();
    second->show();
    QVERIFY(second->hasFocus());
    first->show();
    QVERIFY(first->hasFocus());
    QVERIFY(first->isAncestorOf(screen.childAt(20, 310)));
}

void TestDialog::aSubScreenOpenedOverADialogGetsTheKeys()
{
    ListScreen screen;
    QVERIFY(screen.open(3));
    ZMessageDlg *dialog = newDialog(&screen, Question);
    dialog->show();
    auto *sub = new ListScreen(&screen);
    sub->addRows(3);
    sub->show();
    QVERIFY(sub->list->hasFocus());
    QCOMPARE(ZApplication::keyTarget(), sub->list);
    delete sub;
    QVERIFY(dialog->hasFocus());
}

void TestDialog::itAnswersByItselfAfterItsTime_data()
{
    QTest::addColumn<bool>("question");
    QTest::addColumn<QString>("answer");
    QTest::newRow("a question is answered with its right softkey") << true << QStringLiteral("right");
    QTest::newRow("an information with its left softkey") << false << QStringLiteral("left");
}

void TestDialog::itAnswersByItselfAfterItsTime()
{
    QFETCH(bool, question);
    QFETCH(QString, answer);
    ListScreen screen;
    screen.show();
    ZMessageDlg *dialog = newDialog(&screen, question ? Question : Information, true, 10);
    const Answers answers(dialog);
    dialog->show();
    QTRY_COMPARE_WITH_TIMEOUT(answers.given, QStringList(answer), 60'000);
    QVERIFY(!dialog->isVisible());
    dialog->show();
    QTRY_COMPARE_WITH_TIMEOUT(answers.given, QStringList({answer, answer}), 60'000);
}

void TestDialog::oneThatIsGoneBeforeItsTimeDoesNotAnswer()
{
    ListScreen screen;
    screen.show();
    ZMessageDlg *gone = newDialog(&screen, Question, true, 10);
    ZMessageDlg *never = newDialog(&screen, Question, true, -10);
    ZMessageDlg *later = newDialog(&screen, Question, true, 40);
    const Answers goneAnswers(gone);
    const Answers neverAnswers(never);
    const Answers laterAnswers(later);
    gone->show();
    gone->hide();
    never->show();
    later->show();
    QTRY_COMPARE_WITH_TIMEOUT(laterAnswers.given.size(), 1, 60'000);
    QCOMPARE(goneAnswers.given, QStringList());
    QCOMPARE(neverAnswers.given, QStringList());
}

void TestDialog::aLongMessageScrollsByKeyAndWheel()
{
    ListScreen screen;
    QVERIFY(screen.open());
    QString text;
    for (int i = 0; i < 60; ++i)
        text += QStringLiteral("Line %1 of sixty\n").arg(i);
    ZMessageDlg dialog(QStringLiteral("Header"), text, Question, 0, &screen, nullptr, true, 0);
    const Answers answers(&dialog);
    dialog.show();
    settle();
    const QImage start = dialog.grab().toImage();
    clickInWindow(&screen, Qt::Key_Up);
    QCOMPARE(dialog.grab().toImage(), start);
    clickInWindow(&screen, Qt::Key_Down);
    const QImage second = dialog.grab().toImage();
    QVERIFY(second != start);
    press(&dialog, Qt::Key_Up, true);
    QCOMPARE(dialog.grab().toImage(), start);
    clickInWindow(&screen, Qt::Key_End);
    const QImage end = dialog.grab().toImage();
    clickInWindow(&screen, Qt::Key_PageDown);
    QCOMPARE(dialog.grab().toImage(), end);
    clickInWindow(&screen, Qt::Key_PageUp);
    QVERIFY(dialog.grab().toImage() != end);
    for (int i = 0; i < 100; ++i)
        press(&dialog, Qt::Key_Down, i > 0);
    QCOMPARE(dialog.grab().toImage(), end);
    clickInWindow(&screen, Qt::Key_Home);
    QCOMPARE(dialog.grab().toImage(), start);
    QWidget *under = screen.childAt(120, 150);
    QWheelEvent wheel(QPointF(5, 5), under->mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(under, &wheel);
    QVERIFY(dialog.grab().toImage() != start);
    QCOMPARE(answers.given, QStringList());
    clickInWindow(&screen, Qt::Key_Select);
    QCOMPARE(answers.given, QStringList({QStringLiteral("left")}));
}

void TestDialog::aMessageOfAnyLengthAndContentDoesNoHarm()
{
    ListScreen screen;
    screen.show();
    QString odd = QStringLiteral("\r\n\n\ta") + QChar(0) + QChar(0xdc00) + QChar(QChar::ParagraphSeparator);
    odd += QString(100'000, QLatin1Char('w'));
    ZMessageDlg dialog(odd, odd, Question, 0, &screen, nullptr, true, 0);
    dialog.show();
    settle();
    QCOMPARE(dialog.message(), odd);
    click(&dialog, Qt::Key_End);
    QVERIFY(!dialog.grab().isNull());
    screen.resize(10, 10);
    settle();
    QVERIFY(!dialog.grab().isNull());
    screen.resize(240, 320);
    click(&dialog, Qt::Key_Clear);
    QVERIFY(!dialog.isVisible());
}

void TestDialog::itGoesWithItsScreen()
{
    QPointer<ZMessageDlg> dialog;
    {
        ListScreen screen;
        screen.show();
        dialog = newDialog(&screen, Question);
        dialog->show();
        newDialog(&screen, Information);
    }
    QVERIFY(!dialog);
    QVERIFY(!ZApplication::keyTarget());
}

void TestDialog::aLongMirroredMessageHasItsScrollBarOnTheLeft()
{
    ListScreen screen;
    screen.show();
    const auto left = [&](Qt::LayoutDirection direction) {
        screen.setLayoutDirection(direction);
        ZMessageDlg dialog(QString(), QStringLiteral("word ").repeated(300), ZMessageDlg::InformationDlg, 0,
                           &screen, nullptr, true, 0);
        dialog.show();
        settle();
        dialog.setEnabled(false); // a change of another kind, which leaves the lines as they are
        settle();
        const auto *const bar = dialog.findChild<QScrollBar *>();
        return bar && bar->isVisible() ? bar->x() : -1;
    };
    QCOMPARE(left(Qt::RightToLeft), 0);
    QVERIFY(left(Qt::LeftToRight) > 100);
}

void TestDialog::linesBreakAtEverySeparator()
{
    ListScreen screen;
    screen.show();
    const auto shown = [&screen](const QString &text) {
        ZMessageDlg dialog(QString(), text, ZMessageDlg::InformationDlg, 0, &screen, nullptr, true, 0);
        dialog.show();
        settle();
        return dialog.grab().toImage();
    };
    const QImage expected = shown(QStringLiteral("one\ntwo"));
    QVERIFY(expected != shown(QStringLiteral("one two")));
    for (const QChar separator : {QChar(u'\r'), QChar(QChar::LineSeparator), QChar(QChar::ParagraphSeparator)})
        QCOMPARE(shown(QStringLiteral("one") + separator + QStringLiteral("two")), expected);
    QCOMPARE(shown(QStringLiteral("one\r\ntwo")), expected);
    // A word without an end is broken somewhere, and not within what one sees as a character.
    const QString word = QStringLiteral("w").repeated(999) + QString::fromUcs4(U"\U0001F4DE");
    QVERIFY(!shown(word).isNull());
}

void TestDialog::anotherTimerDoesNotAnswer()
{
    ListScreen screen;
    screen.show();
    ZMessageDlg dialog(QString(), QStringLiteral("?"), ZMessageDlg::InformationDlg, 600'000, &screen, nullptr,
                       true, 0);
    DialogTestKit::Answers answers(&dialog);
    dialog.show();
    QTimerEvent other(dialog.startTimer(600'000));
    QCoreApplication::sendEvent(&dialog, &other);
    QVERIFY(dialog.isVisible());
    QCOMPARE(answers.given, QStringList());
}

KAV_TEST_GROUP(TestDialog, QApplication);
#include "tst_dialog.moc"
