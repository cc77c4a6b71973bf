// The frame of a screen: places, title, keys, showing and closing.
#include "support/Sample.h"
#include "support/TestGroup.h"
#include "toolkit/ToolkitTestKit.h"
#include "toolkit/ZKeys.h"

#include <QtCore/QPoint>
#include <QtCore/QPointer>
#include <QtCore/QRect>
#include <QtCore/QSize>
#include <QtGui/QCloseEvent>
#include <QtGui/QColor>
#include <QtGui/QImage>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QWidget>

using namespace ToolkitTestKit;

namespace {

// Whatever a screen lies in must not hear of its keys and clicks.
class Listener : public QWidget
{
public:
    int heard = 0;

protected:
    void keyPressEvent(QKeyEvent *) override { ++heard; }
    void keyReleaseEvent(QKeyEvent *) override { ++heard; }
    void mousePressEvent(QMouseEvent *) override { ++heard; }
    void mouseReleaseEvent(QMouseEvent *) override { ++heard; }
};

} // namespace

class TestScreen : public QObject
{
    Q_OBJECT

public slots:
    void deleteVictim() { delete victim; }

private slots:
    void init();

    void aNewScreenHasTheDisplaysSizeAndItsAreasDoNotOverlap();
    void theNameIsTheObjectNameAndMayBeNull();
    void itSaysItsClassName();
    void theContentWidgetIsMadeOnDemandAndOnlyOnce();
    void whatFillsTheContentAreaGoesOnFillingIt();
    void aChildScreenCoversAScreenAndStaysAsLarge();
    void aChildScreenIsNotShownAlongWithItsParent();
    void theTitleIsKeptWholeWhateverTheDisplayShows();
    void theInstalledBarLiesAtTheFootUntilAnotherTakesItsPlace();
    void aBarThatWasDeletedIsForgotten();
    void aSoftkeyKeyClicksTheBarOnceAPress_data();
    void aSoftkeyKeyClicksTheBarOnceAPress();
    void theClearKeyIsReportedOnceAPress_data();
    void theClearKeyIsReportedOnceAPress();
    void keysWithoutABarAreHarmless();
    void noKeyAndNoClickReachesWhatTheScreenLiesIn();
    void showingGivesTheKeysToTheList();
    void showingAgainBringsTheScreenBackUp();
    void aClickOnTheTitleGivesTheKeysBackToTheList();
    void closeWithoutTheFlagOnlyHides();
    void closeWithTheFlagDeletesLater();
    void closeThatIsRefusedDoesNotDelete();
    void whoeverHearsOfTheClearKeyMayDeleteTheScreen_data();
    void whoeverHearsOfTheClearKeyMayDeleteTheScreen();
    void aMirroredDisplayHasTheTitleOnTheRight();
    void openingAndDestroyingTenThousandScreensLeavesNoWidgetBehind();

private:
    QPointer<QWidget> victim;
};

void TestScreen::init()
{
    noWarnings();
}

void TestScreen::aNewScreenHasTheDisplaysSizeAndItsAreasDoNotOverlap()
{
    ListScreen screen;
    QCOMPARE(screen.size(), QSize(240, 320));
    const QWidget *content = screen.getContentWidget(true);
    QCOMPARE(content->width(), 240);
    QVERIFY2(content->y() >= 20, "no room for the title");
    QCOMPARE(content->geometry().bottom() + 1, screen.bar->y());
    QCOMPARE(screen.bar->geometry().bottom() + 1, 320);
    QCOMPARE(screen.bar->width(), 240);
    QCOMPARE(content->height() % ZSkinService::RowHeight, 0);
}

void TestScreen::theNameIsTheObjectNameAndMayBeNull()
{
    ZKbMainWidget named(nullptr, "caf\xe9", 0);
    QCOMPARE(named.objectName(), QString::fromLatin1("caf\xe9"));
    ZKbMainWidget nameless(nullptr, nullptr, 0);
    QVERIFY(nameless.objectName().isEmpty());
}

void TestScreen::itSaysItsClassName()
{
    ZKbMainWidget screen(nullptr, nullptr, 0);
    QCOMPARE(screen.className(), "ZKbMainWidget");
    ZListBox list(QStringLiteral("%M"), nullptr, 0, ZSkinService::SettingListClass);
    QCOMPARE(list.className(), "ZListBox");
    const ZMessageDlg dialog(QString(), QString(), ZMessageDlg::QuestionDlg, 0, &screen, nullptr, true, 0);
    const ZPopup &popup = dialog;
    QCOMPARE(popup.className(), "ZMessageDlg");
}

void TestScreen::theContentWidgetIsMadeOnDemandAndOnlyOnce()
{
    ZKbMainWidget screen(nullptr, nullptr, 0);
    QVERIFY(!screen.getContentWidget(false));
    QWidget *content = screen.getContentWidget(true);
    QVERIFY(content);
    QCOMPARE(screen.getContentWidget(true), content);
    QCOMPARE(screen.getContentWidget(false), content);
}

void TestScreen::whatFillsTheContentAreaGoesOnFillingIt()
{
    ListScreen screen;
    QWidget *content = screen.getContentWidget(true);
    QWidget label(content);
    label.setGeometry(0, 10, 240, 20);
    screen.resize(300, 400);
    screen.show();
    settle();
    QCOMPARE(content->width(), 300);
    QCOMPARE(screen.list->geometry(), content->rect());
    QCOMPARE(label.geometry(), QRect(0, 10, 240, 20));
    QCOMPARE(screen.bar->geometry(), QRect(0, content->geometry().bottom() + 1, 300, 28));
    QCOMPARE(screen.bar->geometry().bottom() + 1, 400);
    screen.resize(100, 20);
    settle();
    QVERIFY(content->height() >= 0);
}

void TestScreen::aChildScreenCoversAScreenAndStaysAsLarge()
{
    ListScreen screen;
    screen.resize(300, 400);
    ListScreen sub(&screen);
    QCOMPARE(sub.geometry(), QRect(0, 0, 300, 400));
    screen.show();
    sub.show();
    screen.resize(260, 330);
    settle();
    QCOMPARE(sub.geometry(), QRect(0, 0, 260, 330));
    QWidget plain;
    plain.resize(800, 600);
    const ListScreen embedded(&plain);
    QCOMPARE(embedded.geometry(), QRect(0, 0, 240, 320));
}

void TestScreen::aChildScreenIsNotShownAlongWithItsParent()
{
    QWidget plain;
    ListScreen screen(&plain);
    plain.show();
    QVERIFY(!screen.isVisible());
    screen.show();
    QVERIFY(screen.isVisible());
}

void TestScreen::theTitleIsKeptWholeWhateverTheDisplayShows()
{
    ListScreen screen;
    const QString title = QString(100'000, QLatin1Char('m')) + QLatin1String("\nend") + QChar(0);
    screen.setMainWidgetTitle(title);
    QCOMPARE(screen.mainWidgetTitle(), title);
    QCOMPARE(screen.accessibleName(), title);
    const QImage strip = screen.grab(QRect(0, 0, 240, 20)).toImage();
    const QColor background = ZSkinService::color(ZSkinService::TitleBarColor);
    QVERIFY(lastInk(strip, background) > 200);
    QVERIFY2(lastInk(strip, background) < 240 - ZSkinService::RowMargin, "the title is cut, not elided");
    screen.setMainWidgetTitle(QString());
    QCOMPARE(lastInk(screen.grab(QRect(0, 0, 240, 20)).toImage(), background), -1);
}

void TestScreen::theInstalledBarLiesAtTheFootUntilAnotherTakesItsPlace()
{
    ListScreen screen;
    screen.show();
    auto *second = new ZSoftKey(QStringLiteral("CST_2A"), nullptr, nullptr);
    screen.setCSTWidget(second);
    QCOMPARE(screen.cstWidget(), second);
    QCOMPARE(second->parentWidget(), &screen);
    QVERIFY(second->isVisible());
    QVERIFY(!screen.bar->isVisible());
    screen.setCSTWidget(second);
    QVERIFY(second->isVisible());
    QSignalSpy first(screen.bar, &ZSoftKey::leftClicked);
    QSignalSpy later(second, &ZSoftKey::leftClicked);
    click(&screen, Qt::Key_Context1);
    QCOMPARE(first.count(), 0);
    QCOMPARE(later.count(), 1);
    screen.setCSTWidget(nullptr);
    QVERIFY(!screen.cstWidget());
    QVERIFY(!second->isVisible());
    click(&screen, Qt::Key_Context1);
    QCOMPARE(later.count(), 1);
}

void TestScreen::aBarThatWasDeletedIsForgotten()
{
    ListScreen screen;
    delete screen.cstWidget();
    QVERIFY(!screen.cstWidget());
    click(&screen, Qt::Key_Context1);
    screen.resize(300, 400);
    (void)screen.grab();
}

void TestScreen::aSoftkeyKeyClicksTheBarOnceAPress_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("left");
    QTest::newRow("left softkey") << int(Qt::Key_Context1) << true;
    QTest::newRow("left softkey on a keyboard") << int(Qt::Key_F1) << true;
    QTest::newRow("right softkey") << int(Qt::Key_Context2) << false;
    QTest::newRow("right softkey on a keyboard") << int(Qt::Key_F2) << false;
}

void TestScreen::aSoftkeyKeyClicksTheBarOnceAPress()
{
    QFETCH(int, key);
    QFETCH(bool, left);
    ListScreen screen;
    screen.addRows(2);
    QSignalSpy leftSpy(screen.bar, &ZSoftKey::leftClicked);
    QSignalSpy rightSpy(screen.bar, &ZSoftKey::rightClicked);
    QSignalSpy clear(&screen, &ZKbMainWidget::clearKeyClicked);
    press(screen.list, key);
    for (int i = 0; i < 5; ++i)
        press(screen.list, key, true);
    QCOMPARE(leftSpy.count(), left ? 1 : 0);
    QCOMPARE(rightSpy.count(), left ? 0 : 1);
    QCOMPARE(clear.count(), 0);
}

void TestScreen::theClearKeyIsReportedOnceAPress_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("clear") << int(Qt::Key_Clear);
    QTest::newRow("escape") << int(Qt::Key_Escape);
    QTest::newRow("backspace") << int(Qt::Key_Backspace);
    QTest::newRow("back") << int(Qt::Key_Back);
}

void TestScreen::theClearKeyIsReportedOnceAPress()
{
    QFETCH(int, key);
    ListScreen screen;
    screen.addRows(2);
    QSignalSpy clear(&screen, &ZKbMainWidget::clearKeyClicked);
    QSignalSpy left(screen.bar, &ZSoftKey::leftClicked);
    QSignalSpy right(screen.bar, &ZSoftKey::rightClicked);
    press(screen.list, key);
    for (int i = 0; i < 5; ++i)
        press(screen.list, key, true);
    QCOMPARE(clear.count(), 1);
    press(screen.list, key);
    QCOMPARE(clear.count(), 2);
    QCOMPARE(left.count() + right.count(), 0);
}

void TestScreen::keysWithoutABarAreHarmless()
{
    ZKbMainWidget screen(nullptr, nullptr, 0);
    QVERIFY(!screen.cstWidget());
    QSignalSpy clear(&screen, &ZKbMainWidget::clearKeyClicked);
    int expected = 0;
    for (const ZKeys::Binding &binding : ZKeys::bindings) {
        click(&screen, binding.key);
        expected += binding.phoneKey == ZKeys::PhoneKey::Clear ? 1 : 0;
        QCOMPARE(clear.count(), expected);
    }
    QVERIFY(expected > 0);
    QVERIFY(screen.children().isEmpty());
}

void TestScreen::noKeyAndNoClickReachesWhatTheScreenLiesIn()
{
    Listener outer;
    outer.resize(240, 320);
    ListScreen screen(&outer);
    screen.addRow(QStringLiteral("One"));
    outer.show();
    screen.show();
    QVERIFY(QTest::qWaitForWindowActive(&outer, 60'000));
    const QList<Qt::Key> keys = {Qt::Key_Up,       Qt::Key_Down,     Qt::Key_Left,  Qt::Key_Select, Qt::Key_Space,
                                 Qt::Key_Context1, Qt::Key_Context2, Qt::Key_Clear, Qt::Key_A,      Qt::Key_F12,
                                 Qt::Key_Call,     Qt::Key_PageDown, Qt::Key_Tab,   Qt::Key_5,      Qt::Key_Shift};
    for (const Qt::Key key : keys)
        clickInWindow(&outer, key);
    for (const QPoint &point : {QPoint(5, 5), QPoint(100, 200), QPoint(100, 310)})
        QTest::mouseClick(outer.windowHandle(), Qt::LeftButton, {}, point);
    QCOMPARE(outer.heard, 0);
}

void TestScreen::showingGivesTheKeysToTheList()
{
    QWidget plain;
    plain.resize(500, 400);
    QLineEdit edit(&plain);
    edit.setGeometry(300, 0, 100, 30);
    plain.show();
    QVERIFY(QTest::qWaitForWindowActive(&plain, 60'000));
    edit.setFocus();
    ListScreen screen(&plain);
    screen.addRows(3);
    screen.show();
    QVERIFY(screen.list->hasFocus());
    clickInWindow(&plain, Qt::Key_Down);
    QCOMPARE(screen.list->currentItem(), 1);
}

void TestScreen::showingAgainBringsTheScreenBackUp()
{
    QWidget plain;
    plain.resize(240, 320);
    ListScreen first(&plain);
    ListScreen second(&plain);
    plain.show();
    QVERIFY(QTest::qWaitForWindowActive(&plain, 60'000));
    first.show();
    second.show();
    QVERIFY(second.list->hasFocus());
    QVERIFY(second.isAncestorOf(plain.childAt(120, 160)));
    first.show();
    QVERIFY(first.list->hasFocus());
    QVERIFY(first.isAncestorOf(plain.childAt(120, 160)));
}

void TestScreen::aClickOnTheTitleGivesTheKeysBackToTheList()
{
    QWidget plain;
    plain.resize(500, 400);
    QLineEdit edit(&plain);
    edit.setGeometry(300, 0, 100, 30);
    ListScreen screen(&plain);
    plain.show();
    screen.show();
    QVERIFY(QTest::qWaitForWindowActive(&plain, 60'000));
    edit.setFocus();
    QVERIFY(edit.hasFocus());
    QTest::mouseClick(plain.windowHandle(), Qt::LeftButton, {}, QPoint(10, 10));
    QVERIFY(screen.list->hasFocus());
}

void TestScreen::closeWithoutTheFlagOnlyHides()
{
    ListScreen screen;
    screen.show();
    ZKbMainWidget *base = &screen;
    QVERIFY(base->close(false));
    QVERIFY(!screen.isVisible());
    settle();
    screen.show();
    QVERIFY(screen.isVisible());
}

void TestScreen::closeWithTheFlagDeletesLater()
{
    QPointer<ZKbMainWidget> screen = new ListScreen;
    screen->show();
    QVERIFY(screen->close(true));
    QVERIFY(screen);
    settle();
    QVERIFY(!screen);
}

void TestScreen::closeThatIsRefusedDoesNotDelete()
{
    struct Stubborn : ListScreen {
        void closeEvent(QCloseEvent *event) override { event->ignore(); }
    };
    QPointer<ZKbMainWidget> screen = new Stubborn;
    screen->show();
    QVERIFY(!screen->close(true));
    settle();
    QVERIFY(screen);
    QVERIFY(screen->isVisible());
    delete screen;
}

void TestScreen::whoeverHearsOfTheClearKeyMayDeleteTheScreen_data()
{
    QTest::addColumn<bool>("embedded");
    QTest::newRow("a window of its own") << false;
    QTest::newRow("inside another window") << true;
}

void TestScreen::whoeverHearsOfTheClearKeyMayDeleteTheScreen()
{
    QFETCH(bool, embedded);
    QWidget plain;
    plain.resize(300, 400);
    if (embedded)
        plain.show();
    auto *screen = new ListScreen(embedded ? &plain : nullptr);
    victim = screen;
    screen->addRows(3);
    screen->show();
    connect(screen, SIGNAL(clearKeyClicked()), screen, SIGNAL(closeWidget()));
    connect(screen, SIGNAL(closeWidget()), this, SLOT(deleteVictim()));
    QVERIFY(QTest::qWaitForWindowActive(screen->window(), 60'000));
    clickInWindow(screen->window(), Qt::Key_Clear);
    settle();
    QVERIFY(!victim);
}

void TestScreen::aMirroredDisplayHasTheTitleOnTheRight()
{
    ListScreen screen;
    screen.setLayoutDirection(Qt::RightToLeft);
    screen.setMainWidgetTitle(QStringLiteral("Abc"));
    const QImage strip = screen.grab(QRect(0, 0, 240, 20)).toImage();
    QVERIFY(firstInk(strip, ZSkinService::color(ZSkinService::TitleBarColor)) > 180);
}

void TestScreen::openingAndDestroyingTenThousandScreensLeavesNoWidgetBehind()
{
    QWidget plain;
    plain.resize(240, 320);
    plain.show();
    const auto before = QApplication::allWidgets().size();
    for (int i = 0; i < 10'000; i += sampleStride(10)) {
        ListScreen screen(&plain);
        screen.addRow(QStringLiteral("Row"), QStringLiteral("1"));
        screen.show();
    }
    QCOMPARE(QApplication::allWidgets().size(), before);
    QVERIFY(plain.children().isEmpty());
}

KAV_TEST_GROUP(TestScreen, QApplication);
#include "tst_screen.moc"
