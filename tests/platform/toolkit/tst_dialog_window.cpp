// Dialogs without a parent: windows of their own over the phone's display.
#include "support/TestGroup.h"
#include "toolkit/ToolkitTestKit.h"
#include "toolkit/ZApplication.h"

#include <QtCore/QPoint>
#include <QtCore/QPointer>
#include <QtCore/QRect>
#include <QtCore/QSize>
#include <QtGui/QImage>
#include <QtGui/QRegion>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

using namespace ToolkitTestKit;

namespace {

class Notice : public ZMessageDlg
{
public:
    explicit Notice(int timeout = 0)
        : ZMessageDlg(QString(), QStringLiteral("You are in a call."), InformationDlg, timeout, nullptr, nullptr,
                      false, 0)
    {}
};

// The phone as a host shows it: a display inside a larger window.
struct Phone {
    Phone()
    {
        around.setGeometry(100, 80, 500, 420);
        display.setGeometry(30, 40, 240, 320);
        ZApplication::setDisplay(&display);
        screen.addRows(6);
        around.show();
        screen.show();
    }
    ~Phone() { ZApplication::setDisplay(nullptr); }

    QRect displayOnDesktop() const { return QRect(display.mapToGlobal(QPoint(0, 0)), display.size()); }

    QWidget around;
    QWidget frame{&around};
    QWidget display{&around};
    ListScreen screen{&display};
};

} // namespace

class TestDialogWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void itHasNoParentAndKeepsNone();
    void itLiesOverTheDisplay();
    void withoutADisplayItHasTheDisplaysSize();
    void itMovesWithTheDisplayWhateverMoves();
    void itHidesWithTheDisplayAndComesBackWithIt();
    void oneThatWasDismissedDoesNotComeBack();
    void itTakesTheKeysAndGivesThemBack();
    void showingItAgainTakesTheKeysAgain();
    void itStaysOverTheConfirmationThatGoes();
    void itSurvivesItsDisplay();
    void whoeverAnswersMayDeleteIt_data();
    void whoeverAnswersMayDeleteIt();
    void onlyBoxAndSoftkeysArePainted();
    void aScreenThatDeletesItInItsDestructorLeavesNothingBehind();
    void theDisplayIsWhatWasSetOrElseTheOutermostScreen();
    void itHidesWithAPhoneThatIsMinimizedAndComesBackWithIt();
    void itStaysWhenItsDisplayHasGone();
    void aScreenThatComesLaterDoesNotTakeItsKeys();
};

void TestDialogWindow::init()
{
    noWarnings();
}

void TestDialogWindow::itHasNoParentAndKeepsNone()
{
    const Phone phone;
    Notice notice;
    QVERIFY(!notice.parent());
    notice.show();
    QVERIFY(!notice.parent());
    QVERIFY(notice.isWindow());
    notice.hide();
    QVERIFY(!notice.parent());
}

void TestDialogWindow::itLiesOverTheDisplay()
{
    const Phone phone;
    Notice notice;
    notice.show();
    QCOMPARE(notice.geometry(), phone.displayOnDesktop());
    QCOMPARE(notice.windowHandle()->transientParent(), phone.around.windowHandle());
}

void TestDialogWindow::withoutADisplayItHasTheDisplaysSize()
{
    QVERIFY(!ZApplication::display());
    Notice notice;
    notice.show();
    QCOMPARE(notice.size(), QSize(240, 320));
    QVERIFY(QTest::qWaitForWindowActive(&notice, 60'000));
    clickInWindow(&notice, Qt::Key_Select);
    QVERIFY(!notice.isVisible());
}

void TestDialogWindow::itMovesWithTheDisplayWhateverMoves()
{
    Phone phone;
    Notice notice;
    notice.show();
    phone.around.move(220, 130);
    settle();
    QCOMPARE(notice.geometry(), phone.displayOnDesktop());
    phone.display.move(60, 10);
    settle();
    QCOMPARE(notice.geometry(), phone.displayOnDesktop());
    phone.display.resize(260, 340);
    settle();
    QCOMPARE(notice.geometry(), phone.displayOnDesktop());
    QCOMPARE(notice.softKey()->geometry().bottom(), notice.rect().bottom());
    notice.hide();
    phone.around.move(100, 80);
    notice.show();
    QCOMPARE(notice.geometry(), phone.displayOnDesktop());
}

void TestDialogWindow::itHidesWithTheDisplayAndComesBackWithIt()
{
    Phone phone;
    Notice notice;
    QSignalSpy answered(&notice, &ZPopup::leftSoftkeyClicked);
    notice.show();
    phone.around.hide();
    QVERIFY(!notice.isVisible());
    phone.around.show();
    QVERIFY(notice.isVisible());
    phone.display.hide();
    QVERIFY(!notice.isVisible());
    phone.display.show();
    QVERIFY(notice.isVisible());
    QCOMPARE(answered.count(), 0);
}

void TestDialogWindow::oneThatWasDismissedDoesNotComeBack()
{
    Phone phone;
    Notice notice;
    notice.show();
    click(&notice, Qt::Key_Select);
    phone.around.hide();
    phone.around.show();
    QVERIFY(!notice.isVisible());
    notice.show();
    phone.around.hide();
    notice.hide();
    phone.around.show();
    QVERIFY(!notice.isVisible());
}

void TestDialogWindow::itTakesTheKeysAndGivesThemBack()
{
    Phone phone;
    QVERIFY(QTest::qWaitForWindowActive(&phone.around, 60'000));
    Notice notice;
    notice.show();
    QVERIFY(QTest::qWaitForWindowActive(&notice, 60'000));
    QTRY_COMPARE_WITH_TIMEOUT(QApplication::focusWidget(), &notice, 60'000);
    QCOMPARE(ZApplication::keyTarget(), &notice);
    QVERIFY(ZApplication::pressKey(Qt::Key_Down));
    QCOMPARE(phone.screen.list->currentItem(), 0);
    clickInWindow(&notice, Qt::Key_Select);
    QVERIFY(!notice.isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(phone.screen.list->hasFocus(), 60'000);
    QVERIFY(ZApplication::pressKey(Qt::Key_Down));
    clickInWindow(&phone.around, Qt::Key_Down);
    QCOMPARE(phone.screen.list->currentItem(), 2);
}

void TestDialogWindow::showingItAgainTakesTheKeysAgain()
{
    Phone phone;
    Notice notice;
    QSignalSpy answered(&notice, &ZPopup::leftSoftkeyClicked);
    for (int i = 1; i <= 3; ++i) {
        notice.show();
        QVERIFY(QTest::qWaitForWindowActive(&notice, 60'000));
        clickInWindow(&notice, Qt::Key_Context1);
        QCOMPARE(answered.count(), i);
        QTRY_VERIFY_WITH_TIMEOUT(phone.around.isActiveWindow(), 60'000);
    }
    notice.show();
    phone.around.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&phone.around, 60'000));
    notice.show();
    QVERIFY(QTest::qWaitForWindowActive(&notice, 60'000));
}

void TestDialogWindow::itStaysOverTheConfirmationThatGoes()
{
    // As a refused reset does it: the notice comes up in the answer, then the question is deleted.
    Phone phone;
    QVERIFY(QTest::qWaitForWindowActive(&phone.around, 60'000));
    Notice notice;
    auto *question = new ZMessageDlg(QStringLiteral("Reset"), QStringLiteral("Sure?"), ZMessageDlg::QuestionDlg, 0,
                                     &phone.screen, nullptr, true, 0);
    connect(question, &ZPopup::leftSoftkeyClicked, this, [&] {
        notice.show();
        delete question;
    });
    question->show();
    clickInWindow(&phone.around, Qt::Key_Select);
    QVERIFY(notice.isVisible());
    QVERIFY(QTest::qWaitForWindowActive(&notice, 60'000));
    QCOMPARE(ZApplication::keyTarget(), &notice);
    clickInWindow(&notice, Qt::Key_Select);
    QTRY_VERIFY_WITH_TIMEOUT(phone.screen.list->hasFocus(), 60'000);
}

void TestDialogWindow::itSurvivesItsDisplay()
{
    auto *screen = new ListScreen;
    screen->show();
    Notice notice;
    notice.show();
    QCOMPARE(notice.geometry().size(), screen->size());
    delete screen;
    settle();
    notice.show();
    QVERIFY(QTest::qWaitForWindowActive(&notice, 60'000));
    clickInWindow(&notice, Qt::Key_Select);
    QVERIFY(!notice.isVisible());
}

void TestDialogWindow::whoeverAnswersMayDeleteIt_data()
{
    QTest::addColumn<int>("by");
    QTest::newRow("by key") << 0;
    QTest::newRow("by a key through the window system") << 1;
    QTest::newRow("by the pointer") << 2;
    QTest::newRow("by the timer") << 3;
}

void TestDialogWindow::whoeverAnswersMayDeleteIt()
{
    QFETCH(int, by);
    const Phone phone;
    const QPointer<Notice> notice = new Notice(by == 3 ? 1 : 0);
    connect(notice, &ZPopup::leftSoftkeyClicked, this, [&] { delete notice; });
    notice->show();
    QVERIFY(by == 3 || QTest::qWaitForWindowActive(notice, 60'000));
    if (by == 0)
        press(notice, Qt::Key_Select);
    else if (by == 1)
        clickInWindow(notice, Qt::Key_Select);
    else if (by == 2)
        QTest::mouseClick(notice->windowHandle(), Qt::LeftButton, {}, QPoint(20, 310));
    QTRY_VERIFY_WITH_TIMEOUT(!notice, 60'000);
    settle();
}

void TestDialogWindow::onlyBoxAndSoftkeysArePainted()
{
    const Phone phone;
    Notice notice;
    notice.show();
    QImage image(notice.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    notice.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    QCOMPARE(image.pixelColor(2, 2).alpha(), 0);
    QCOMPARE(image.pixelColor(120, 280).alpha(), 0);
    QCOMPARE(image.pixelColor(120, 310).alpha(), 255);
    QCOMPARE(image.pixelColor(120, 146).alpha(), 255);
}

void TestDialogWindow::aScreenThatDeletesItInItsDestructorLeavesNothingBehind()
{
    struct Owner : ListScreen {
        Owner() { notice.show(); }
        Notice notice;
    };
    auto *owner = new Owner;
    owner->show();
    owner->notice.show();
    delete owner;
    settle();
    QVERIFY(!ZApplication::keyTarget());
    QVERIFY(!ZApplication::pressKey(Qt::Key_Select));
}

void TestDialogWindow::theDisplayIsWhatWasSetOrElseTheOutermostScreen()
{
    QVERIFY(!ZApplication::display());
    ListScreen screen;
    QVERIFY(!ZApplication::display());
    screen.show();
    QCOMPARE(ZApplication::display(), &screen);
    ListScreen sub(&screen);
    sub.show();
    QCOMPARE(ZApplication::display(), &screen);
    ListScreen later;
    later.show();
    QCOMPARE(ZApplication::display(), &later);
    later.hide();
    QCOMPARE(ZApplication::display(), &screen);
    {
        QWidget chosen;
        ZApplication::setDisplay(&chosen);
        QCOMPARE(ZApplication::display(), &chosen);
    }
    QCOMPARE(ZApplication::display(), &screen);
}

void TestDialogWindow::itHidesWithAPhoneThatIsMinimizedAndComesBackWithIt()
{
    Phone phone;
    Notice notice;
    ZMessageDlg inside(QString(), QStringLiteral("?"), ZMessageDlg::QuestionDlg, 0, &phone.screen, nullptr, true,
                       0);
    QVERIFY(QTest::qWaitForWindowExposed(&phone.around, 60'000));
    inside.show();
    notice.show();
    phone.around.showMinimized();
    QTRY_VERIFY(!notice.isVisible());
    phone.around.showNormal();
    QTRY_VERIFY(notice.isVisible());
    QCOMPARE(notice.geometry(), phone.displayOnDesktop());
    // It is still the dialog's turn.
    QVERIFY(ZApplication::pressKey(Qt::Key_Select));
    QVERIFY(!notice.isVisible());
    QVERIFY(inside.isVisible());
    QSignalSpy left(&inside, &ZPopup::leftSoftkeyClicked);
    QVERIFY(ZApplication::pressKey(Qt::Key_Context1));
    QCOMPARE(left.count(), 1);
}

void TestDialogWindow::itStaysWhenItsDisplayHasGone()
{
    QWidget around;
    around.setGeometry(100, 80, 500, 420);
    auto *const display = new QWidget(&around);
    display->setGeometry(30, 40, 240, 320);
    ZApplication::setDisplay(display);
    around.show();
    Notice notice;
    notice.show();
    delete display;
    ZApplication::setDisplay(nullptr);
    around.resize(520, 440);
    around.hide();
    settle();
    QVERIFY(notice.isVisible());
    QCOMPARE(notice.size(), QSize(240, 320));
}

void TestDialogWindow::aScreenThatComesLaterDoesNotTakeItsKeys()
{
    Phone phone;
    Notice notice;
    notice.show();
    ListScreen later(&phone.display);
    later.addRows(2);
    later.show();
    QVERIFY(ZApplication::pressKey(Qt::Key_Select));
    QVERIFY(!notice.isVisible());
    QVERIFY(ZApplication::pressKey(Qt::Key_Down));
    QCOMPARE(later.list->currentItem(), 1);
}

KAV_TEST_GROUP(TestDialogWindow, QApplication);
#include "tst_dialog_window.moc"
