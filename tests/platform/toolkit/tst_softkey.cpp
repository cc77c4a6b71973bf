// The softkey bar.
#include "support/TestGroup.h"
#include "toolkit/ToolkitTestKit.h"
#include "toolkit/ZKeys.h"

#include <QtCore/QPoint>
#include <QtCore/QPointer>
#include <QtCore/QRegularExpression>
#include <QtGui/QColor>
#include <QtGui/QImage>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

using namespace ToolkitTestKit;

namespace {

constexpr auto Priority = ZSoftKey::DefaultTextPriority;

// The two captions as a screen reader finds them, left to right.
QStringList spoken(const ZSoftKey &bar)
{
    QStringList names;
    const auto keys = bar.findChildren<QAbstractButton *>();
    for (const QAbstractButton *key : keys)
        names << key->accessibleName();
    return names;
}

} // namespace

class SoftKeyTest : public QObject
{
    Q_OBJECT

public slots:
    void answer() { ++answers; }
    void deleteOwner() { delete owner; }

private slots:
    void init();

    void captions_can_be_read_whole_by_program_and_screen_reader();
    void a_caption_of_any_length_and_content_is_shown_on_one_line();
    void the_text_of_the_highest_priority_is_shown_until_it_is_withdrawn();
    void each_key_answers_to_the_pointer_on_its_own_half();
    void the_keys_stay_where_they_are_in_every_reading_direction();
    void a_pointer_released_beside_the_bar_does_not_count();
    void a_key_without_a_caption_still_answers();
    void a_key_reports_to_a_slot_or_to_a_signal_given_as_text();
    void a_new_connection_replaces_the_earlier_one();
    void null_disconnects();
    void a_member_that_is_not_there_is_refused_and_the_key_keeps_its_connection_data();
    void a_member_that_is_not_there_is_refused_and_the_key_keeps_its_connection();
    void a_key_that_does_not_exist_is_refused_with_a_warning();
    void a_disabled_key_answers_to_nothing_and_looks_disabled();
    void an_unknown_layout_is_taken_as_the_two_key_one();
    void the_softkeys_of_another_target_are_served();
    void clicking_does_not_move_the_focus();
    void whoever_answers_may_delete_the_bars_owner_data();
    void whoever_answers_may_delete_the_bars_owner();

private:
    int answers = 0;
    QPointer<QWidget> owner;
};

void SoftKeyTest::init()
{
    noWarnings();
    answers = 0;
}

void SoftKeyTest::captions_can_be_read_whole_by_program_and_screen_reader()
{
    ZSoftKey bar(QStringLiteral("CST_2A"), nullptr, nullptr);
    QCOMPARE(spoken(bar), QStringList({QString(), QString()}));
    bar.setText(ZSoftKey::LeftKey, QStringLiteral("A caption that is wider than half of the display"), Priority);
    bar.setText(ZSoftKey::RightKey, QStringLiteral("Back & forth"), Priority);
    QCOMPARE(bar.text(ZSoftKey::LeftKey), QStringLiteral("A caption that is wider than half of the display"));
    QCOMPARE(bar.text(ZSoftKey::RightKey), QStringLiteral("Back & forth"));
    QCOMPARE(spoken(bar), QStringList({bar.text(ZSoftKey::LeftKey), bar.text(ZSoftKey::RightKey)}));
}

void SoftKeyTest::a_caption_of_any_length_and_content_is_shown_on_one_line()
{
    TestScreen screen;
    const QString endless = QString(100'000, QLatin1Char('w')) + QLatin1Char('\n') + QChar(0);
    screen.bar->setText(ZSoftKey::LeftKey, endless, Priority);
    screen.bar->setText(ZSoftKey::RightKey, QString(), Priority);
    QCOMPARE(screen.bar->text(ZSoftKey::LeftKey), endless);
    const QImage image = screen.bar->grab().toImage();
    const QColor background = ZSkinService::color(ZSkinService::SoftkeyBarColor);
    QVERIFY(lastInk(image, background) > image.width() / 4);
    QVERIFY2(lastInk(image, background) < image.width() / 2, "the left caption runs into the right half");
}

void SoftKeyTest::the_text_of_the_highest_priority_is_shown_until_it_is_withdrawn()
{
    ZSoftKey bar(QStringLiteral("CST_2A"), nullptr, nullptr);
    const auto high = static_cast<ZSoftKey::TEXT_PRIORITY>(1);
    bar.setText(ZSoftKey::LeftKey, QStringLiteral("urgent"), high);
    bar.setText(ZSoftKey::LeftKey, QStringLiteral("plain"), Priority);
    QCOMPARE(bar.text(ZSoftKey::LeftKey), QStringLiteral("urgent"));
    bar.setText(ZSoftKey::LeftKey, QString(), high);
    QCOMPARE(bar.text(ZSoftKey::LeftKey), QStringLiteral("plain"));
}

void SoftKeyTest::each_key_answers_to_the_pointer_on_its_own_half()
{
    TestScreen screen;
    screen.show();
    QSignalSpy left(screen.bar, &ZSoftKey::leftClicked);
    QSignalSpy right(screen.bar, &ZSoftKey::rightClicked);
    QTest::mouseClick(screen.windowHandle(), Qt::LeftButton, {}, QPoint(20, 310));
    QCOMPARE(left.count(), 1);
    QCOMPARE(right.count(), 0);
    QTest::mouseClick(screen.windowHandle(), Qt::LeftButton, {}, QPoint(220, 310));
    QCOMPARE(left.count(), 1);
    QCOMPARE(right.count(), 1);
}

// They stand over keys of the phone, which do not move either.
void SoftKeyTest::the_keys_stay_where_they_are_in_every_reading_direction()
{
    TestScreen screen;
    screen.show();
    const QImage before = screen.bar->grab().toImage();
    screen.setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(screen.bar->grab().toImage(), before);
    QSignalSpy left(screen.bar, &ZSoftKey::leftClicked);
    QWidget *under = screen.bar->childAt(QPoint(10, 10));
    QVERIFY(under);
    QTest::mouseClick(under, Qt::LeftButton);
    QCOMPARE(left.size(), 1);
}

void SoftKeyTest::a_pointer_released_beside_the_bar_does_not_count()
{
    TestScreen screen;
    screen.show();
    QSignalSpy right(screen.bar, &ZSoftKey::rightClicked);
    QTest::mousePress(screen.windowHandle(), Qt::LeftButton, {}, QPoint(220, 310));
    QTest::mouseRelease(screen.windowHandle(), Qt::LeftButton, {}, QPoint(220, 200));
    QCOMPARE(right.count(), 0);
}

void SoftKeyTest::a_key_without_a_caption_still_answers()
{
    TestScreen screen;
    screen.bar->setText(ZSoftKey::LeftKey, QString(), Priority);
    QSignalSpy left(screen.bar, &ZSoftKey::leftClicked);
    click(&screen, Qt::Key_Context1);
    QCOMPARE(left.count(), 1);
}

void SoftKeyTest::a_key_reports_to_a_slot_or_to_a_signal_given_as_text()
{
    TestScreen screen;
    QSignalSpy closing(&screen, &TestScreen::closeWidget);
    screen.bar->setClickedSlot(ZSoftKey::RightKey, &screen, "2closeWidget()");
    screen.bar->setClickedSlot(ZSoftKey::LeftKey, this, SLOT(answer()));
    click(&screen, Qt::Key_Context2);
    QCOMPARE(closing.count(), 1);
    QCOMPARE(answers, 0);
    click(&screen, Qt::Key_Context1);
    QCOMPARE(closing.count(), 1);
    QCOMPARE(answers, 1);
}

void SoftKeyTest::a_new_connection_replaces_the_earlier_one()
{
    TestScreen screen;
    QSignalSpy closing(&screen, &TestScreen::closeWidget);
    screen.bar->setClickedSlot(ZSoftKey::RightKey, this, "1answer()");
    screen.bar->setClickedSlot(ZSoftKey::RightKey, &screen, "2closeWidget()");
    screen.bar->click(ZSoftKey::RightKey);
    QCOMPARE(answers, 0);
    QCOMPARE(closing.count(), 1);
    screen.bar->setClickedSlot(ZSoftKey::RightKey, &screen, "2closeWidget()");
    screen.bar->click(ZSoftKey::RightKey);
    QCOMPARE(closing.count(), 2);
}

void SoftKeyTest::null_disconnects()
{
    TestScreen screen;
    screen.bar->setClickedSlot(ZSoftKey::LeftKey, this, "1answer()");
    screen.bar->setClickedSlot(ZSoftKey::LeftKey, nullptr, nullptr);
    screen.bar->click(ZSoftKey::LeftKey);
    screen.bar->setClickedSlot(ZSoftKey::RightKey, this, "1answer()");
    screen.bar->setClickedSlot(ZSoftKey::RightKey, this, nullptr);
    screen.bar->click(ZSoftKey::RightKey);
    QCOMPARE(answers, 0);
}

void SoftKeyTest::a_member_that_is_not_there_is_refused_and_the_key_keeps_its_connection_data()
{
    QTest::addColumn<QByteArray>("member");
    QTest::newRow("no such slot") << QByteArray("1noSuchSlot()");
    QTest::newRow("no such signal") << QByteArray("2noSuchSignal()");
    QTest::newRow("a signal's code before a slot") << QByteArray("2answer()");
    QTest::newRow("no code") << QByteArray("answer()");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("a code alone") << QByteArray("1");
    QTest::newRow("a member that wants an argument") << QByteArray("2objectNameChanged(QString)");
}

void SoftKeyTest::a_member_that_is_not_there_is_refused_and_the_key_keeps_its_connection()
{
    QFETCH(QByteArray, member);
    TestScreen screen;
    screen.bar->setClickedSlot(ZSoftKey::RightKey, this, "1answer()");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("ZSoftKey::setClickedSlot: ")));
    screen.bar->setClickedSlot(ZSoftKey::RightKey, this, member.constData());
    screen.bar->click(ZSoftKey::RightKey);
    QCOMPARE(answers, 1);
}

void SoftKeyTest::a_key_that_does_not_exist_is_refused_with_a_warning()
{
    ZSoftKey bar(QStringLiteral("CST_2A"), nullptr, nullptr);
    QSignalSpy left(&bar, &ZSoftKey::leftClicked);
    QSignalSpy right(&bar, &ZSoftKey::rightClicked);
    for (const int number : {-1, 2, 1000}) {
        const auto key = static_cast<ZSoftKey::KEY_IDX>(number);
        for (int i = 0; i < 6; ++i)
            QTest::ignoreMessage(QtWarningMsg,
                                 QRegularExpression(QStringLiteral("there is no key %1").arg(number)));
        bar.setText(key, QStringLiteral("x"), Priority);
        QVERIFY(bar.text(key).isNull());
        bar.setClickedSlot(key, this, "1answer()");
        bar.setButtonEnable(key, true);
        QVERIFY(!bar.isButtonEnabled(key));
        bar.click(key);
    }
    QCOMPARE(spoken(bar), QStringList({QString(), QString()}));
    QCOMPARE(left.count() + right.count() + answers, 0);
}

void SoftKeyTest::a_disabled_key_answers_to_nothing_and_looks_disabled()
{
    TestScreen screen;
    screen.show();
    const QImage before = screen.bar->grab().toImage();
    QSignalSpy left(screen.bar, &ZSoftKey::leftClicked);
    screen.bar->setButtonEnable(ZSoftKey::LeftKey, false);
    QVERIFY(!screen.bar->isButtonEnabled(ZSoftKey::LeftKey));
    QVERIFY(screen.bar->isButtonEnabled(ZSoftKey::RightKey));
    click(&screen, Qt::Key_Context1);
    QTest::mouseClick(screen.windowHandle(), Qt::LeftButton, {}, QPoint(20, 310));
    screen.bar->click(ZSoftKey::LeftKey);
    QCOMPARE(left.count(), 0);
    QVERIFY(screen.bar->grab().toImage() != before);
    screen.bar->setButtonEnable(ZSoftKey::LeftKey, true);
    click(&screen, Qt::Key_Context1);
    QCOMPARE(left.count(), 1);
}

void SoftKeyTest::an_unknown_layout_is_taken_as_the_two_key_one()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("unknown layout \"CST_3B\"")));
    ZSoftKey bar(QStringLiteral("CST_3B"), nullptr, nullptr);
    QCOMPARE(spoken(bar).size(), 2);
}

void SoftKeyTest::the_softkeys_of_another_target_are_served()
{
    QWidget target;
    auto *bar = new ZSoftKey(QStringLiteral("CST_2A"), nullptr, &target);
    QSignalSpy left(bar, &ZSoftKey::leftClicked);
    QSignalSpy right(bar, &ZSoftKey::rightClicked);
    press(&target, Qt::Key_Context1);
    press(&target, Qt::Key_F2);
    press(&target, Qt::Key_F2, true);
    press(&target, Qt::Key_A);
    QCOMPARE(left.count(), 1);
    QCOMPARE(right.count(), 1);
    delete bar;
    press(&target, Qt::Key_Context1);
}

void SoftKeyTest::clicking_does_not_move_the_focus()
{
    TestScreen screen;
    screen.addRows(3);
    screen.show();
    QVERIFY(QTest::qWaitForWindowActive(&screen, 60'000));
    QVERIFY(screen.list->hasFocus());
    QTest::mouseClick(screen.windowHandle(), Qt::LeftButton, {}, QPoint(220, 310));
    QVERIFY(screen.list->hasFocus());
}

void SoftKeyTest::whoever_answers_may_delete_the_bars_owner_data()
{
    QTest::addColumn<int>("by");
    QTest::newRow("by key") << 0;
    QTest::newRow("by a key through the window system") << 1;
    QTest::newRow("by the pointer") << 2;
}

void SoftKeyTest::whoever_answers_may_delete_the_bars_owner()
{
    QFETCH(int, by);
    auto *screen = new TestScreen;
    owner = screen;
    screen->addRows(3);
    screen->bar->setClickedSlot(ZSoftKey::RightKey, this, "1deleteOwner()");
    screen->show();
    QVERIFY(QTest::qWaitForWindowActive(screen, 60'000));
    if (by == 0)
        press(screen->list, Qt::Key_Context2);
    else if (by == 1)
        clickInWindow(screen, Qt::Key_Context2);
    else
        QTest::mouseClick(screen->windowHandle(), Qt::LeftButton, {}, QPoint(220, 310));
    settle();
    QVERIFY(!owner);
}

KAV_TEST_GROUP(SoftKeyTest, QApplication);
#include "tst_softkey.moc"
