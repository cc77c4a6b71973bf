// Who gets the keys: screens over screens, and the keypad of a host.
#include "support/TestGroup.h"
#include "toolkit/ToolkitTestKit.h"
#include "toolkit/ZApplication.h"
#include "toolkit/ZKeys.h"

#include <QtCore/QEvent>
#include <QtCore/QPointer>
#include <QtCore/QRandomGenerator>
#include <QtCore/QSet>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QWidget>

using namespace ToolkitTestKit;

class TestFocus : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void everyKeyStandsForOnePhoneKeyOnly();
    void aKeyPressWithoutAPhoneGoesNowhere();
    void theKeypadWorksWhoeverHasTheFocus();
    void theKeypadPressesAndReleasesOnce();
    void aKeyMayDeleteItsTarget();
    void typedKeysCarryTheirText();
    void aSubScreenTakesTheKeysAndGivesThemBack_data();
    void aSubScreenTakesTheKeysAndGivesThemBack();
    void aSubScreenKeepsTheFocusWhenTheListBelowAsksForIt();
    void aScreenShownWithItsSubScreenLeavesTheKeysToIt();
    void aDialogShownWithItsScreenHasTheKeys();
    void theLastFocusInsideAScreenIsKept();
    void screensSideBySideDoNotCoverEachOther();
    void theTabKeyStaysWhenThereIsNowhereToGo();
    void hiddenScreensDoNotTakeTheFocusFromTheWindowAround();
    void randomComingAndGoingLeavesTheKeysWithTheOneOnTop();
    void theTabKeyPassesOverWhatCannotTakeIt();
    void aDisabledFieldOrAWindowOfItsOwnDoesNotGetTheKeys();
};

void TestFocus::init()
{
    noWarnings();
}

void TestFocus::everyKeyStandsForOnePhoneKeyOnly()
{
    QSet<int> keys;
    for (const ZKeys::Binding &binding : ZKeys::bindings) {
        QVERIFY(!keys.contains(binding.key));
        keys << binding.key;
        QCOMPARE(ZKeys::phoneKey(binding.key), binding.phoneKey);
    }
    QCOMPARE(ZKeys::phoneKey(Qt::Key_A), ZKeys::PhoneKey::None);
    QCOMPARE(ZKeys::phoneKey(0), ZKeys::PhoneKey::None);
}

void TestFocus::aKeyPressWithoutAPhoneGoesNowhere()
{
    QVERIFY(!ZApplication::keyTarget());
    QVERIFY(!ZApplication::pressKey(Qt::Key_Select));
    ListScreen unshown;
    QVERIFY(!ZApplication::keyTarget());
}

void TestFocus::theKeypadWorksWhoeverHasTheFocus()
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
    QVERIFY(ZApplication::pressKey(Qt::Key_Down));
    QCOMPARE(screen.list->currentItem(), 1);
    QVERIFY(edit.text().isEmpty());
    QVERIFY(edit.hasFocus());
    auto *dialog =
        new ZMessageDlg(QString(), QStringLiteral("?"), ZMessageDlg::QuestionDlg, 0, &screen, nullptr, true, 0);
    QSignalSpy right(dialog, &ZPopup::rightSoftkeyClicked);
    dialog->show();
    edit.setFocus();
    QVERIFY(ZApplication::pressKey(Qt::Key_Clear));
    QCOMPARE(right.count(), 1);
    QVERIFY(ZApplication::pressKey(Qt::Key_Down));
    QCOMPARE(screen.list->currentItem(), 2);
}

void TestFocus::theKeypadPressesAndReleasesOnce()
{
    struct Watch : QObject {
        QList<QEvent::Type> seen;
        bool eventFilter(QObject *, QEvent *event) override
        {
            if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease)
                seen << event->type();
            return false;
        }
    };
    ListScreen screen;
    screen.show();
    Watch watch;
    screen.list->installEventFilter(&watch);
    QVERIFY(ZApplication::pressKey(Qt::Key_Context1));
    QCOMPARE(watch.seen, QList<QEvent::Type>({QEvent::KeyPress, QEvent::KeyRelease}));
}

void TestFocus::aKeyMayDeleteItsTarget()
{
    const QPointer<ListScreen> screen = new ListScreen;
    screen->show();
    connect(screen, &ZKbMainWidget::clearKeyClicked, this, [&] { delete screen; });
    QVERIFY(ZApplication::pressKey(Qt::Key_Clear));
    QVERIFY(!screen);
}

void TestFocus::typedKeysCarryTheirText()
{
    ListScreen screen;
    screen.addRow(QStringLiteral("Abc"));
    screen.addRow(QStringLiteral("Xyz"));
    screen.show();
    QVERIFY(ZApplication::pressKey(Qt::Key_X));
    QCOMPARE(screen.list->currentItem(), 1);
}

void TestFocus::aSubScreenTakesTheKeysAndGivesThemBack_data()
{
    QTest::addColumn<int>("end");
    QTest::newRow("deleted") << 0;
    QTest::newRow("closed, then deleted") << 1;
    QTest::newRow("hidden") << 2;
}

void TestFocus::aSubScreenTakesTheKeysAndGivesThemBack()
{
    QFETCH(int, end);
    ListScreen screen;
    screen.addRows(3);
    QSignalSpy clear(&screen, &ZKbMainWidget::clearKeyClicked);
    screen.show();
    QVERIFY(QTest::qWaitForWindowActive(&screen, 60'000));
    auto *sub = new ListScreen(&screen);
    sub->addRows(3);
    QSignalSpy subClear(sub, &ZKbMainWidget::clearKeyClicked);
    sub->show();
    QVERIFY(sub->list->hasFocus());
    clickInWindow(&screen, Qt::Key_Down);
    clickInWindow(&screen, Qt::Key_Clear);
    QCOMPARE(sub->list->currentItem(), 1);
    QCOMPARE(subClear.count(), 1);
    QCOMPARE(screen.list->currentItem(), 0);
    QCOMPARE(clear.count(), 0);
    if (end == 1)
        QVERIFY(static_cast<ZKbMainWidget *>(sub)->close(false));
    if (end < 2)
        delete sub;
    else
        sub->hide();
    QVERIFY(screen.list->hasFocus());
    clickInWindow(&screen, Qt::Key_Clear);
    QCOMPARE(clear.count(), 1);
}

void TestFocus::aSubScreenKeepsTheFocusWhenTheListBelowAsksForIt()
{
    ListScreen screen;
    QVERIFY(screen.open(3));
    ListScreen sub(&screen);
    sub.addRows(3);
    sub.show();
    screen.list->setFocus();
    QVERIFY(sub.list->hasFocus());
}

void TestFocus::aScreenShownWithItsSubScreenLeavesTheKeysToIt()
{
    QWidget around;
    around.resize(300, 400);
    ListScreen screen(&around);
    screen.addRows(3);
    ListScreen sub(&screen);
    sub.addRows(3);
    around.show();
    screen.show();
    sub.show();
    QVERIFY(QTest::qWaitForWindowActive(&around, 60'000));
    around.hide();
    around.show();
    QCOMPARE(ZApplication::keyTarget(), sub.list);
    QCOMPARE(around.focusWidget(), sub.list);
    screen.show();
    QCOMPARE(around.focusWidget(), sub.list);
}

void TestFocus::aDialogShownWithItsScreenHasTheKeys()
{
    QWidget around;
    around.resize(300, 400);
    ListScreen screen(&around);
    ZMessageDlg dialog(QString(), QStringLiteral("?"), ZMessageDlg::QuestionDlg, 0, &screen, nullptr, true, 0);
    dialog.show();
    screen.show();
    around.show();
    QVERIFY(QTest::qWaitForWindowActive(&around, 60'000));
    QVERIFY(dialog.isVisible());
    QVERIFY(dialog.hasFocus());
}

void TestFocus::theLastFocusInsideAScreenIsKept()
{
    ListScreen screen;
    QLineEdit edit(screen.getContentWidget(true));
    screen.show();
    QVERIFY(QTest::qWaitForWindowActive(&screen, 60'000));
    QVERIFY(screen.list->hasFocus());
    edit.setFocus();
    ZMessageDlg dialog(QString(), QStringLiteral("?"), ZMessageDlg::QuestionDlg, 0, &screen, nullptr, true, 0);
    dialog.show();
    QVERIFY(dialog.hasFocus());
    dialog.hide();
    QVERIFY(edit.hasFocus());
    QCOMPARE(ZApplication::keyTarget(), &edit);
}

void TestFocus::screensSideBySideDoNotCoverEachOther()
{
    QWidget around;
    around.resize(600, 400);
    ListScreen left(&around);
    ListScreen right(&around);
    right.move(300, 0);
    around.show();
    left.show();
    right.show();
    QVERIFY(QTest::qWaitForWindowActive(&around, 60'000));
    left.list->setFocus();
    QVERIFY(left.list->hasFocus());
    right.list->setFocus();
    QVERIFY(right.list->hasFocus());
}

void TestFocus::theTabKeyStaysWhenThereIsNowhereToGo()
{
    ListScreen screen;
    QVERIFY(screen.open(2));
    clickInWindow(&screen, Qt::Key_Tab);
    clickInWindow(&screen, Qt::Key_Backtab);
    QVERIFY(screen.list->hasFocus());
    QCOMPARE(screen.list->currentItem(), 0);
}

void TestFocus::hiddenScreensDoNotTakeTheFocusFromTheWindowAround()
{
    QWidget around;
    around.resize(600, 400);
    QLineEdit edit(&around);
    edit.setGeometry(300, 0, 100, 30);
    ListScreen screen(&around);
    around.show();
    screen.show();
    QVERIFY(QTest::qWaitForWindowActive(&around, 60'000));
    edit.setFocus();
    screen.hide();
    QVERIFY(edit.hasFocus());
}

// Screens in screens and dialogs on them, shown, hidden and deleted at random: whatever is then on top, as a person
// sees it, has the keys.
void TestFocus::randomComingAndGoingLeavesTheKeysWithTheOneOnTop()
{
    QWidget around;
    around.resize(300, 400);
    around.show();
    QVERIFY(QTest::qWaitForWindowActive(&around, 60'000));
    QRandomGenerator random(7);
    ListScreen root(&around);
    root.addRows(3);
    root.show();
    QList<QPointer<QWidget>> layers;
    for (int step = 0; step < 2'000; ++step) {
        layers.removeAll(nullptr);
        const auto anyone = [&]() -> QWidget * {
            return layers.isEmpty() ? nullptr : layers.at(random.bounded(static_cast<int>(layers.size()))).data();
        };
        QWidget *some = anyone();
        QWidget *parent = qobject_cast<ZKbMainWidget *>(some) ? some : &root;
        const int deed = random.bounded(layers.size() < 8 ? 6 : 4);
        if (deed == 5) {
            auto *sub = new ListScreen(parent);
            sub->addRows(2);
            layers << sub;
            sub->show();
        } else if (deed == 4) {
            layers << new ZMessageDlg(QString(), QStringLiteral("?"), ZMessageDlg::QuestionDlg, 0, parent, nullptr,
                                      true, 0);
            layers.last()->show();
        } else if (deed == 3) {
            delete some;
        } else if (some) {
            some->setVisible(deed != 2);
        }
        // What is seen on top of the display is what has the keys.
        QWidget *seen = around.childAt(120, 310);
        while (seen && !qobject_cast<ZKbMainWidget *>(seen) && !qobject_cast<ZPopup *>(seen))
            seen = seen->parentWidget();
        QWidget *focus = QApplication::focusWidget();
        QVERIFY2(focus, qPrintable(QStringLiteral("nobody has the keys in step %1").arg(step)));
        QCOMPARE(ZApplication::keyTarget(), focus);
        while (focus && !qobject_cast<ZKbMainWidget *>(focus) && !qobject_cast<ZPopup *>(focus))
            focus = focus->parentWidget();
        QVERIFY2(focus == seen, qPrintable(QStringLiteral("another one is on top in step %1").arg(step)));
    }
}

void TestFocus::theTabKeyPassesOverWhatCannotTakeIt()
{
    QWidget around;
    around.resize(600, 400);
    QLineEdit disabled(&around);
    disabled.setGeometry(300, 0, 100, 30);
    disabled.setEnabled(false);
    QWidget proxied(&around);
    proxied.setGeometry(300, 40, 100, 30);
    proxied.setFocusPolicy(Qt::StrongFocus);
    QLineEdit last(&around);
    last.setGeometry(300, 80, 100, 30);
    proxied.setFocusProxy(&last);
    ListScreen screen(&around);
    screen.addRows(2);
    around.show();
    screen.show();
    QVERIFY(QTest::qWaitForWindowActive(&around, 60'000));
    screen.list->setFocus();
    clickInWindow(&around, Qt::Key_Tab);
    QVERIFY(last.hasFocus());
}

void TestFocus::aDisabledFieldOrAWindowOfItsOwnDoesNotGetTheKeys()
{
    QWidget around;
    around.resize(600, 400);
    ListScreen screen(&around);
    auto *const disabled = new QLineEdit(&screen);
    disabled->setEnabled(false);
    auto *const window = new QWidget(&screen, Qt::Window);
    window->setFocusPolicy(Qt::StrongFocus);
    for (QWidget *widget : {static_cast<QWidget *>(disabled), window})
        widget->lower(); // the first that is found
    screen.addRows(2);
    around.show();
    screen.show();
    QVERIFY(QTest::qWaitForWindowActive(&around, 60'000));
    QVERIFY(ZApplication::pressKey(Qt::Key_Down));
    QCOMPARE(screen.list->currentItem(), 1);
}

KAV_TEST_GROUP(TestFocus, QApplication);
#include "tst_focus.moc"
