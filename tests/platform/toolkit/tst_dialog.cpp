// Dialogs over a screen: captions, answers, what they keep away from the screen, how they come and go.
#include "support/TestGroup.h"
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

// Which answers a dialog gave, in order.
class Answers : public QObject
{
public:
    explicit Answers(ZPopup *dialog)
    {
        connect(dialog, &ZPopup::leftSoftkeyClicked, this, [this] { given << QStringLiteral("left"); });
        connect(dialog, &ZPopup::rightSoftkeyClicked, this, [this] { given << QStringLiteral("right"); });
        connect(dialog, &ZPopup::signalCenterSelKeyPressed, this, [this] { given << QStringLiteral("select"); });
    }

    QStringList given;
};

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

class DialogTest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void each_type_has_its_captions();
    void captions_come_from_the_catalogue();
    void a_type_that_does_not_exist_is_an_information();
    void captions_can_be_replaced();
    void texts_can_be_read_back_and_are_spoken();
    void keys_answer_as_they_say_data();
    void keys_answer_as_they_say();
    void the_pointer_answers_on_the_softkeys_that_have_a_caption();
    void a_disabled_softkey_does_not_answer();
    void a_key_that_is_held_since_before_does_not_answer();
    void it_is_hidden_before_it_answers();
    void whoever_answers_may_show_it_again();
    void whoever_answers_may_delete_it_or_its_screen_data();
    void whoever_answers_may_delete_it_or_its_screen();
    void a_message_begins_where_reading_begins_data();
    void a_message_begins_where_reading_begins();
    void a_sentence_ends_where_its_own_words_end_data();
    void a_sentence_ends_where_its_own_words_end();
    void it_comes_only_when_it_is_shown();
    void it_covers_its_screen_whole_and_follows_it();
    void its_box_stays_inside_the_display_data();
    void its_box_stays_inside_the_display();
    void its_softkeys_lie_where_the_screen_has_its_own();
    void a_modal_one_dims_the_screen();
    void a_modal_one_keeps_keys_and_pointer_from_the_screen();
    void a_modal_one_keeps_the_focus_when_the_list_below_asks_for_it();
    void one_that_is_not_modal_lets_the_pointer_through();
    void the_window_around_the_phone_goes_on_working();
    void the_tab_key_goes_from_the_dialog_to_the_window_around_and_back();
    void the_focus_goes_back_to_the_list();
    void the_focus_goes_back_to_what_had_it_outside_the_phone();
    void the_focus_stays_with_who_took_it_meanwhile();
    void the_newest_dialog_gets_the_keys_in_whatever_order_they_go_data();
    void the_newest_dialog_gets_the_keys_in_whatever_order_they_go();
    void showing_it_again_brings_it_to_the_top();
    void a_sub_screen_opened_over_a_dialog_gets_the_keys();
    void it_answers_by_itself_after_its_time_data();
    void it_answers_by_itself_after_its_time();
    void one_that_is_gone_before_its_time_does_not_answer();
    void a_long_message_scrolls_by_key_and_wheel();
    void a_message_of_any_length_and_content_does_no_harm();
    void it_goes_with_its_screen();
};

void DialogTest::init()
{
    noWarnings();
}

void DialogTest::each_type_has_its_captions()
{
    TestScreen screen;
    const ZMessageDlg *question = newDialog(&screen, Question);
    const ZMessageDlg *information = newDialog(&screen, Information);
    QCOMPARE(static_cast<int>(question->type()), 1);
    QCOMPARE(static_cast<int>(information->type()), 2);
    QCOMPARE(captions(*question), QStringLiteral("Yes|No"));
    QCOMPARE(captions(*information), QStringLiteral("OK|"));
}

void DialogTest::captions_come_from_the_catalogue()
{
    Catalogue catalogue;
    QVERIFY(QCoreApplication::installTranslator(&catalogue));
    TestScreen screen;
    QCOMPARE(captions(*newDialog(&screen, Question)), QString::fromLatin1("S\xed|No"));
    QCOMPARE(captions(*newDialog(&screen, Information)), QStringLiteral("Okay|"));
    QCoreApplication::removeTranslator(&catalogue);
}

void DialogTest::a_type_that_does_not_exist_is_an_information()
{
    TestScreen screen;
    QTest::ignoreMessage(QtWarningMsg, "ZMessageDlg: there is no type 7");
    const ZMessageDlg *dialog = newDialog(&screen, static_cast<ZMessageDlg::MessageDlgType>(7));
    QCOMPARE(dialog->type(), Information);
    QCOMPARE(captions(*dialog), QStringLiteral("OK|"));
}

void DialogTest::captions_can_be_replaced()
{
    TestScreen screen;
    ZMessageDlg *dialog = newDialog(&screen, Question);
    dialog->setSoftkeyTextLeft(QStringLiteral("Save"));
    dialog->setSoftkeyTextRight(QStringLiteral("Cancel"));
    QCOMPARE(captions(*dialog), QStringLiteral("Save|Cancel"));
}

void DialogTest::texts_can_be_read_back_and_are_spoken()
{
    TestScreen screen;
    const ZMessageDlg dialog(QStringLiteral("Reset Timer"), QStringLiteral("Would you?"), Question, 0, &screen,
                             "named", true, 0);
    QCOMPARE(dialog.header(), QStringLiteral("Reset Timer"));
    QCOMPARE(dialog.message(), QStringLiteral("Would you?"));
    QCOMPARE(dialog.accessibleName(), QStringLiteral("Reset Timer"));
    QCOMPARE(dialog.accessibleDescription(), QStringLiteral("Would you?"));
    QCOMPARE(dialog.objectName(), QStringLiteral("named"));
    QCOMPARE(dialog.parentWidget(), &screen);
}

void DialogTest::keys_answer_as_they_say_data()
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

void DialogTest::keys_answer_as_they_say()
{
    QFETCH(bool, question);
    QFETCH(int, key);
    QFETCH(QString, answer);
    TestScreen screen;
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

void DialogTest::the_pointer_answers_on_the_softkeys_that_have_a_caption()
{
    TestScreen screen;
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

void DialogTest::a_disabled_softkey_does_not_answer()
{
    TestScreen screen;
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

void DialogTest::a_key_that_is_held_since_before_does_not_answer()
{
    TestScreen screen;
    screen.addRows(1);
    screen.show();
    QVERIFY(QTest::qWaitForWindowActive(&screen, 60'000));
    ZMessageDlg *dialog = newDialog(&screen, Question);
    const Answers answers(dialog);
    connect(screen.list, &ZListBox::selected, dialog, &QWidget::show);
    press(screen.list, Qt::Key_Select);
    QVERIFY(dialog->isVisible());
    for (const int key : {int(Qt::Key_Select), int(Qt::Key_Context1), int(Qt::Key_Clear)})
        press(QApplication::focusWidget(), key, true);
    QCOMPARE(answers.given, QStringList());
}

void DialogTest::it_is_hidden_before_it_answers()
{
    TestScreen screen;
    screen.addRows(2);
    screen.show();
    QVERIFY(QTest::qWaitForWindowActive(&screen, 60'000));
    ZMessageDlg *dialog = newDialog(&screen, Question);
    QList<bool> seen;
    connect(dialog, &ZPopup::leftSoftkeyClicked, this,
            [&] { seen << dialog->isVisible() << screen.list->hasFocus(); });
    dialog->show();
    click(dialog, Qt::Key_Select);
    QCOMPARE(seen, QList<bool>({false, true}));
}

void DialogTest::whoever_answers_may_show_it_again()
{
    TestScreen screen;
    screen.show();
    QVERIFY(QTest::qWaitForWindowActive(&screen, 60'000));
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

void DialogTest::whoever_answers_may_delete_it_or_its_screen_data()
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

void DialogTest::whoever_answers_may_delete_it_or_its_screen()
{
    QFETCH(int, by);
    QFETCH(bool, screenToo);
    QPointer<TestScreen> screen = new TestScreen;
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

void DialogTest::a_message_begins_where_reading_begins_data()
{
    QTest::addColumn<QString>("message");
    QTest::addColumn<bool>("turnedLater");
    const QString hebrew = QString::fromUtf8("\xd7\x90\xd7\x91\xd7\x92");
    QTest::newRow("words from left to right") << "abc" << false;
    QTest::newRow("words from right to left") << hebrew << false;
    QTest::newRow("the display is turned while it is shown") << "abc" << true;
}

void DialogTest::a_message_begins_where_reading_begins()
{
    QFETCH(QString, message);
    QFETCH(bool, turnedLater);
    TestScreen screen;
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

void DialogTest::a_sentence_ends_where_its_own_words_end_data()
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

void DialogTest::a_sentence_ends_where_its_own_words_end()
{
    QFETCH(QString, words);
    QFETCH(QChar, mark);
    QFETCH(Qt::LayoutDirection, around);
    QGuiApplication::setLayoutDirection(around);
    const auto asBefore = qScopeGuard([] { QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto); });
    TestScreen screen;
    screen.show();
    const auto look = [&screen](const QString &message) {
        ZMessageDlg dialog(QString(), message, Information, 0, &screen, nullptr, true, 0);
        dialog.show();
        return dialog.grab().toImage();
    };
    QVERIFY2(look(words) == look(mark + words + mark), "the question mark stands at the sentence's beginning");
}

void DialogTest::it_comes_only_when_it_is_shown()
{
    TestScreen screen;
    const ZMessageDlg *dialog = newDialog(&screen, Question);
    screen.show();
    QVERIFY(!dialog->isVisible());
    QVERIFY(ZApplication::keyTarget() != dialog);
}

void DialogTest::it_covers_its_screen_whole_and_follows_it()
{
    TestScreen screen;
    ZMessageDlg *dialog = newDialog(&screen, Question);
    QCOMPARE(dialog->geometry(), screen.rect());
    screen.show();
    dialog->show();
    screen.resize(300, 400);
    settle();
    QCOMPARE(dialog->geometry(), screen.rect());
    QCOMPARE(dialog->softKey()->geometry(), screen.bar->geometry());
}

void DialogTest::its_box_stays_inside_the_display_data()
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

void DialogTest::its_box_stays_inside_the_display()
{
    QFETCH(QString, header);
    QFETCH(QString, message);
    TestScreen screen;
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

void DialogTest::its_softkeys_lie_where_the_screen_has_its_own()
{
    TestScreen screen;
    screen.bar->setText(ZSoftKey::LeftKey, QStringLiteral("Yes"), ZSoftKey::DefaultTextPriority);
    screen.bar->setText(ZSoftKey::RightKey, QStringLiteral("No"), ZSoftKey::DefaultTextPriority);
    screen.show();
    const QImage before = screen.grab(screen.bar->geometry()).toImage();
    ZMessageDlg *dialog = newDialog(&screen, Question);
    dialog->show();
    QCOMPARE(screen.grab(screen.bar->geometry()).toImage(), before);
}

void DialogTest::a_modal_one_dims_the_screen()
{
    TestScreen screen;
    screen.addRows(1);
    screen.show();
    const int bright = qGray(screen.grab().toImage().pixel(3, 250));
    ZMessageDlg *dialog = newDialog(&screen, Question);
    dialog->show();
    QVERIFY(qGray(screen.grab().toImage().pixel(3, 250)) < bright - 60);
    dialog->hide();
    QCOMPARE(qGray(screen.grab().toImage().pixel(3, 250)), bright);
}

void DialogTest::a_modal_one_keeps_keys_and_pointer_from_the_screen()
{
    TestScreen screen;
    screen.addRows(30);
    screen.show();
    QVERIFY(QTest::qWaitForWindowActive(&screen, 60'000));
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

void DialogTest::a_modal_one_keeps_the_focus_when_the_list_below_asks_for_it()
{
    TestScreen screen;
    screen.addRows(3);
    screen.show();
    QVERIFY(QTest::qWaitForWindowActive(&screen, 60'000));
    ZMessageDlg *dialog = newDialog(&screen, Question);
    dialog->show();
    screen.list->setFocus();
    QVERIFY(!screen.list->hasFocus());
    clickInWindow(&screen, Qt::Key_Clear);
    QVERIFY(!dialog->isVisible());
    QVERIFY(screen.list->hasFocus());
}

void DialogTest::one_that_is_not_modal_lets_the_pointer_through()
{
    TestScreen screen;
    screen.addRows(30);
    screen.show();
    QVERIFY(QTest::qWaitForWindowActive(&screen, 60'000));
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

void DialogTest::the_window_around_the_phone_goes_on_working()
{
    QWidget around;
    around.resize(500, 400);
    QPushButton button(&around);
    button.setGeometry(300, 0, 100, 30);
    TestScreen screen(&around);
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

void DialogTest::the_tab_key_goes_from_the_dialog_to_the_window_around_and_back()
{
    QWidget around;
    around.resize(500, 400);
    QLineEdit before(&around);
    before.setGeometry(300, 0, 100, 30);
    TestScreen screen(&around);
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

void DialogTest::the_focus_goes_back_to_the_list()
{
    TestScreen screen;
    screen.addRows(3);
    screen.show();
    QVERIFY(QTest::qWaitForWindowActive(&screen, 60'000));
    ZMessageDlg *dialog = newDialog(&screen, Question);
    dialog->show();
    QVERIFY(!screen.list->hasFocus());
    delete dialog;
    QVERIFY(screen.list->hasFocus());
    clickInWindow(&screen, Qt::Key_Down);
    QCOMPARE(screen.list->currentItem(), 1);
}

void DialogTest::the_focus_goes_back_to_what_had_it_outside_the_phone()
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
    ZMessageDlg *dialog = newDialog(&screen, Question);
    dialog->show();
    QVERIFY(dialog->hasFocus());
    dialog->hide();
    QVERIFY(edit.hasFocus());
}

void DialogTest::the_focus_stays_with_who_took_it_meanwhile()
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
    ZMessageDlg *dialog = newDialog(&screen, Question);
    dialog->show();
    edit.setFocus();
    dialog->hide();
    QVERIFY(edit.hasFocus());
}

void DialogTest::the_newest_dialog_gets_the_keys_in_whatever_order_they_go_data()
{
    QTest::addColumn<QList<int>>("order");
    QList<int> order = {0, 1, 2};
    do {
        QTest::addRow("%d, %d, %d", order[0], order[1], order[2]) << order;
    } while (std::next_permutation(order.begin(), order.end()));
}

void DialogTest::the_newest_dialog_gets_the_keys_in_whatever_order_they_go()
{
    QFETCH(QList<int>, order);
    TestScreen screen;
    screen.addRows(3);
    screen.show();
    QVERIFY(QTest::qWaitForWindowActive(&screen, 60'000));
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

void DialogTest::showing_it_again_brings_it_to_the_top()
{
    TestScreen screen;
    screen.show();
    QVERIFY(QTest::qWaitForWindowActive(&screen, 60'000));
    ZMessageDlg *first = newDialog(&screen, Question);
    ZMessageDlg *second = newDialog(&screen, Question);
    first->show();
    second->show();
    QVERIFY(second->hasFocus());
    first->show();
    QVERIFY(first->hasFocus());
    QVERIFY(first->isAncestorOf(screen.childAt(20, 310)));
}

void DialogTest::a_sub_screen_opened_over_a_dialog_gets_the_keys()
{
    TestScreen screen;
    screen.addRows(3);
    screen.show();
    QVERIFY(QTest::qWaitForWindowActive(&screen, 60'000));
    ZMessageDlg *dialog = newDialog(&screen, Question);
    dialog->show();
    auto *sub = new TestScreen(&screen);
    sub->addRows(3);
    sub->show();
    QVERIFY(sub->list->hasFocus());
    QCOMPARE(ZApplication::keyTarget(), sub->list);
    delete sub;
    QVERIFY(dialog->hasFocus());
}

void DialogTest::it_answers_by_itself_after_its_time_data()
{
    QTest::addColumn<bool>("question");
    QTest::addColumn<QString>("answer");
    QTest::newRow("a question is answered with its right softkey") << true << QStringLiteral("right");
    QTest::newRow("an information with its left softkey") << false << QStringLiteral("left");
}

void DialogTest::it_answers_by_itself_after_its_time()
{
    QFETCH(bool, question);
    QFETCH(QString, answer);
    TestScreen screen;
    screen.show();
    ZMessageDlg *dialog = newDialog(&screen, question ? Question : Information, true, 10);
    const Answers answers(dialog);
    dialog->show();
    QTRY_COMPARE_WITH_TIMEOUT(answers.given, QStringList(answer), 60'000);
    QVERIFY(!dialog->isVisible());
    dialog->show();
    QTRY_COMPARE_WITH_TIMEOUT(answers.given, QStringList({answer, answer}), 60'000);
}

void DialogTest::one_that_is_gone_before_its_time_does_not_answer()
{
    TestScreen screen;
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

void DialogTest::a_long_message_scrolls_by_key_and_wheel()
{
    TestScreen screen;
    screen.show();
    QVERIFY(QTest::qWaitForWindowActive(&screen, 60'000));
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

void DialogTest::a_message_of_any_length_and_content_does_no_harm()
{
    TestScreen screen;
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

void DialogTest::it_goes_with_its_screen()
{
    QPointer<ZMessageDlg> dialog;
    {
        TestScreen screen;
        screen.show();
        dialog = newDialog(&screen, Question);
        dialog->show();
        newDialog(&screen, Information);
    }
    QVERIFY(!dialog);
    QVERIFY(!ZApplication::keyTarget());
}

KAV_TEST_GROUP(DialogTest, QApplication);
#include "tst_dialog.moc"
