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

class FocusTest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void every_key_stands_for_one_phone_key_only();
    void a_key_press_without_a_phone_goes_nowhere();
    void the_keypad_works_whoever_has_the_focus();
    void the_keypad_presses_and_releases_once();
    void a_key_may_delete_its_target();
    void typed_keys_carry_their_text();
    void a_sub_screen_takes_the_keys_and_gives_them_back_data();
    void a_sub_screen_takes_the_keys_and_gives_them_back();
    void a_sub_screen_keeps_the_focus_when_the_list_below_asks_for_it();
    void a_screen_shown_with_its_sub_screen_leaves_the_keys_to_it();
    void a_dialog_shown_with_its_screen_has_the_keys();
    void the_last_focus_inside_a_screen_is_kept();
    void screens_side_by_side_do_not_cover_each_other();
    void the_tab_key_stays_when_there_is_nowhere_to_go();
    void hidden_screens_do_not_take_the_focus_from_the_window_around();
    void random_coming_and_going_leaves_the_keys_with_the_one_on_top();
};

void FocusTest::init()
{
    noWarnings();
}

void FocusTest::every_key_stands_for_one_phone_key_only()
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

void FocusTest::a_key_press_without_a_phone_goes_nowhere()
{
    QVERIFY(!ZApplication::keyTarget());
    QVERIFY(!ZApplication::pressKey(Qt::Key_Select));
    TestScreen unshown;
    QVERIFY(!ZApplication::keyTarget());
}

void FocusTest::the_keypad_works_whoever_has_the_focus()
{
    QWidget around;
    around.resize(500, 400);
    QLineEdit edit(&around);
    edit.setGeometry(300, 0, 100, 30);
    TestScreen screen(&around);
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

void FocusTest::the_keypad_presses_and_releases_once()
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
    TestScreen screen;
    screen.show();
    Watch watch;
    screen.list->installEventFilter(&watch);
    QVERIFY(ZApplication::pressKey(Qt::Key_Context1));
    QCOMPARE(watch.seen, QList<QEvent::Type>({QEvent::KeyPress, QEvent::KeyRelease}));
}

void FocusTest::a_key_may_delete_its_target()
{
    const QPointer<TestScreen> screen = new TestScreen;
    screen->show();
    connect(screen, &ZKbMainWidget::clearKeyClicked, this, [&] { delete screen; });
    QVERIFY(ZApplication::pressKey(Qt::Key_Clear));
    QVERIFY(!screen);
}

void FocusTest::typed_keys_carry_their_text()
{
    TestScreen screen;
    screen.addRow(QStringLiteral("Abc"));
    screen.addRow(QStringLiteral("Xyz"));
    screen.show();
    QVERIFY(ZApplication::pressKey(Qt::Key_X));
    QCOMPARE(screen.list->currentItem(), 1);
}

void FocusTest::a_sub_screen_takes_the_keys_and_gives_them_back_data()
{
    QTest::addColumn<int>("end");
    QTest::newRow("deleted") << 0;
    QTest::newRow("closed, then deleted") << 1;
    QTest::newRow("hidden") << 2;
}

void FocusTest::a_sub_screen_takes_the_keys_and_gives_them_back()
{
    QFETCH(int, end);
    TestScreen screen;
    screen.addRows(3);
    QSignalSpy clear(&screen, &ZKbMainWidget::clearKeyClicked);
    screen.show();
    QVERIFY(QTest::qWaitForWindowActive(&screen, 60'000));
    auto *sub = new TestScreen(&screen);
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

void FocusTest::a_sub_screen_keeps_the_focus_when_the_list_below_asks_for_it()
{
    TestScreen screen;
    screen.addRows(3);
    screen.show();
    QVERIFY(QTest::qWaitForWindowActive(&screen, 60'000));
    TestScreen sub(&screen);
    sub.addRows(3);
    sub.show();
    screen.list->setFocus();
    QVERIFY(sub.list->hasFocus());
}

void FocusTest::a_screen_shown_with_its_sub_screen_leaves_the_keys_to_it()
{
    QWidget around;
    around.resize(300, 400);
    TestScreen screen(&around);
    screen.addRows(3);
    TestScreen sub(&screen);
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

void FocusTest::a_dialog_shown_with_its_screen_has_the_keys()
{
    QWidget around;
    around.resize(300, 400);
    TestScreen screen(&around);
    ZMessageDlg dialog(QString(), QStringLiteral("?"), ZMessageDlg::QuestionDlg, 0, &screen, nullptr, true, 0);
    dialog.show();
    screen.show();
    around.show();
    QVERIFY(QTest::qWaitForWindowActive(&around, 60'000));
    QVERIFY(dialog.isVisible());
    QVERIFY(dialog.hasFocus());
}

void FocusTest::the_last_focus_inside_a_screen_is_kept()
{
    TestScreen screen;
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

void FocusTest::screens_side_by_side_do_not_cover_each_other()
{
    QWidget around;
    around.resize(600, 400);
    TestScreen left(&around);
    TestScreen right(&around);
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

void FocusTest::the_tab_key_stays_when_there_is_nowhere_to_go()
{
    TestScreen screen;
    screen.addRows(2);
    screen.show();
    QVERIFY(QTest::qWaitForWindowActive(&screen, 60'000));
    clickInWindow(&screen, Qt::Key_Tab);
    clickInWindow(&screen, Qt::Key_Backtab);
    QVERIFY(screen.list->hasFocus());
    QCOMPARE(screen.list->currentItem(), 0);
}

void FocusTest::hidden_screens_do_not_take_the_focus_from_the_window_around()
{
    QWidget around;
    around.resize(600, 400);
    QLineEdit edit(&around);
    edit.setGeometry(300, 0, 100, 30);
    TestScreen screen(&around);
    around.show();
    screen.show();
    QVERIFY(QTest::qWaitForWindowActive(&around, 60'000));
    edit.setFocus();
    screen.hide();
    QVERIFY(edit.hasFocus());
}

// Screens in screens and dialogs on them, shown, hidden and deleted at random: whatever is then on top, as a person
// sees it, has the keys.
void FocusTest::random_coming_and_going_leaves_the_keys_with_the_one_on_top()
{
    QWidget around;
    around.resize(300, 400);
    around.show();
    QVERIFY(QTest::qWaitForWindowActive(&around, 60'000));
    QRandomGenerator random(7);
    TestScreen root(&around);
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
            auto *sub = new TestScreen(parent);
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

KAV_TEST_GROUP(FocusTest, QApplication);
#include "tst_focus.moc"
