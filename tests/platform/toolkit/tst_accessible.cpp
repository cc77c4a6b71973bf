// What a screen reader is told of screens, dialogs, lists and softkeys.
#include "support/ScreenReader.h"
#include "support/TestGroup.h"
#include "toolkit/DialogTestKit.h"
#include "toolkit/ToolkitTestKit.h"
#include "toolkit/ZApplication.h"
#include "toolkit/ZMultiLineEdit.h"
#include "toolkit/ZNoticeDlg.h"
#include "toolkit/ZSingleCaptureDlg.h"
#include "toolkit/ZSingleSelectDlg.h"

#include <QtGui/QAccessible>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>

#include <memory>

using namespace ScreenReader;
using namespace ToolkitTestKit;

namespace {

constexpr int patience = 60'000;
constexpr bool isModal = true;

QAccessibleInterface *keyOf(ZSoftKey *bar, ZSoftKey::KEY_IDX key)
{
    return told(bar->findChildren<QAbstractButton *>().at(key));
}

} // namespace

class TestAccessible : public QObject
{
    Q_OBJECT

private slots:
    void aListHasTheTitleOfItsScreen();
    void aListKeepsANameOfItsOwn();
    void aRowIsReadWithItsValueAndItsState();
    void theFocusIsOnTheRowUnderTheBar();
    void theFocusIsToldToBeOnTheRow();
    void aRowThatChangesIsReadAnew();
    void aRowIsChosenByItsAction();
    void aRowThatIsGoneIsNoElement();
    void aSoftkeyIsAButtonThatIsPressed();
    void aSoftkeyWithoutACaptionIsNoButton();
    void aSoftkeyThatIsDisabledIsNotPressed();
    void aDialogSaysWhatItAsksAndWhatItsSoftkeysDo();
    void aDialogWithoutAHeaderIsNamedByItsMessage();
    void aDialogIsModalIfItsScreenIsOutOfReach();
    void everyKindOfDialogIsSound_data();
    void everyKindOfDialogIsSound();
    void anEntryIsDescribedByWhatIsTyped();
    void whatADialogCoversIsNotShown();
    void whatADialogsWindowCoversIsNotShown();
    void whatASubScreenCoversIsNotShown();
    void whatIsCoveredIsNotPressed();
    void aScreenOfItsOwnIsAWindow();
    void widgetsThatAreMadeWhileSomebodyListensAreTheSame();
    void aHeadingWithoutATextIsASeparator();
    void whatIsAskedOfStrangersIsNothing();
    void anActionThatASoftkeyHasNotDoesNothing();
};

void TestAccessible::aListHasTheTitleOfItsScreen()
{
    ListScreen screen;
    screen.setMainWidgetTitle("Call Times");
    QCOMPARE(name(told(screen.list)), QStringLiteral("Call Times"));
    QCOMPARE(told(screen.list)->role(), QAccessible::List);
    screen.setMainWidgetTitle("Call Costs");
    QCOMPARE(name(told(screen.list)), QStringLiteral("Call Costs"));
    QCOMPARE(name(told(&screen)), QStringLiteral("Call Costs"));
    QVERIFY(screen.list->accessibleName().isEmpty());
}

void TestAccessible::aListKeepsANameOfItsOwn()
{
    ListScreen screen;
    screen.setMainWidgetTitle("Call Times");
    screen.list->setAccessibleName("Own");
    QCOMPARE(name(told(screen.list)), QStringLiteral("Own"));
}

void TestAccessible::aRowIsReadWithItsValueAndItsState()
{
    ListScreen screen;
    screen.addRow("Last Call", "00:01:05");
    screen.addRow("Setup")->setEnabled(false);
    screen.addSeparator("All Sessions");
    QVERIFY(screen.open());
    QAccessibleInterface *list = told(screen.list);
    QCOMPARE(list->childCount(), 3);
    QCOMPARE(name(list->child(0)), QStringLiteral("Last Call, 00:01:05"));
    QCOMPARE(list->child(0)->text(QAccessible::Value), QStringLiteral("00:01:05"));
    QCOMPARE(list->child(0)->role(), QAccessible::ListItem);
    QVERIFY(list->child(0)->state().selectable && list->child(0)->state().focusable);
    QVERIFY(!list->child(0)->state().disabled && !list->child(0)->state().offscreen);
    QVERIFY(list->child(1)->state().disabled && list->child(1)->state().selectable);
    QCOMPARE(list->child(2)->role(), QAccessible::Heading);
    QCOMPARE(name(list->child(2)), QStringLiteral("All Sessions"));
    QVERIFY(!list->child(2)->state().selectable && !list->child(2)->state().focusable);
    const QPoint middle = screen.list->viewport()->mapToGlobal(middleOfRow(screen.list, 1));
    QVERIFY(list->child(1)->rect().contains(middle));
    QCOMPARE(list->childAt(middle.x(), middle.y()), list->child(1));
    QVERIFY(!list->child(3) && !list->child(-1));
    screen.addRows(40);
    settle();
    QVERIFY(list->child(42)->state().offscreen);
    QCOMPARE(faultsFrom(told(&screen)), QString());
}

void TestAccessible::theFocusIsOnTheRowUnderTheBar()
{
    ListScreen screen;
    QVERIFY(screen.open(3));
    QAccessibleInterface *list = told(screen.list);
    click(screen.list, Qt::Key_Down);
    QCOMPARE(told(&screen)->focusChild(), list->child(1));
    QCOMPARE(list->focusChild(), list->child(1));
    QVERIFY(list->child(1)->state().focused && list->child(1)->state().selected);
    QVERIFY(!list->child(0)->state().focused && !list->child(0)->state().selected);
    screen.list->clearFocus();
    QVERIFY(list->child(1)->state().selected && !list->child(1)->state().focused);
}

void TestAccessible::theFocusIsToldToBeOnTheRow()
{
    const Listening listening;
    ListScreen screen;
    QVERIFY(screen.open(3));
    QAccessibleInterface *list = told(screen.list);
    QTRY_COMPARE_WITH_TIMEOUT(lastFocus(), list->child(0), patience);
    click(screen.list, Qt::Key_Down);
    QCOMPARE(lastFocus(), list->child(1));
    {
        ZMessageDlg dialog("Reset", "Sure?", ZMessageDlg::QuestionDlg, 0, &screen, nullptr, isModal, 0);
        dialog.show();
        QCOMPARE(lastFocus(), told(&dialog));
        QCOMPARE(count(QAccessible::Alert, told(&dialog)), 1);
    }
    QTRY_COMPARE_WITH_TIMEOUT(lastFocus(), list->child(1), patience);
}

void TestAccessible::aRowThatChangesIsReadAnew()
{
    const Listening listening;
    ListScreen screen;
    ZSettingItem *row = screen.addRow("Last Call", "00:00:00");
    QVERIFY(screen.open());
    QAccessibleInterface *element = told(screen.list)->child(0);
    forget();
    row->setSubItem(0, 1, "00:01:05", false, ZSettingItem::ValueRegion);
    QCOMPARE(count(QAccessible::NameChanged, element), 1);
    QCOMPARE(name(element), QStringLiteral("Last Call, 00:01:05"));
    forget();
    screen.addRow("Dialed Calls", "00:00:00");
    QCOMPARE(count(QAccessible::ObjectCreated, told(screen.list)->child(1)), 1);
    forget();
    screen.list->clear();
    screen.addRow("All Calls", "00:00:01");
    QCOMPARE(told(screen.list)->child(0), element);
    QCOMPARE(name(element), QStringLiteral("All Calls, 00:00:01"));
    QCOMPARE(count(QAccessible::NameChanged, element), 1);
    QCOMPARE(count(QAccessible::ObjectCreated, element), 0);
}

void TestAccessible::aRowIsChosenByItsAction()
{
    ListScreen screen;
    screen.addRows(3);
    screen.addSeparator("Heading");
    QVERIFY(screen.open());
    QSignalSpy chosen(screen.list, &ZListBox::selected);
    QAccessibleInterface *list = told(screen.list);
    list->child(1)->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    QCOMPARE(screen.list->currentItem(), 1);
    settle();
    QCOMPARE(chosen.size(), 0);
    press(list->child(2));
    QCOMPARE(chosen.size(), 0); // not while somebody waits for the answer
    QTRY_COMPARE_WITH_TIMEOUT(chosen.size(), 1, patience);
    QCOMPARE(chosen.first().first().value<ZSettingItem *>(), screen.list->item(2));
    QVERIFY(list->child(3)->actionInterface()->actionNames().isEmpty());
    press(list->child(3));
    settle();
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(screen.list->currentItem(), 2);
}

void TestAccessible::aRowThatIsGoneIsNoElement()
{
    auto screen = std::make_unique<ListScreen>();
    QVERIFY(screen->open(3));
    QAccessibleInterface *row = told(screen->list)->child(2);
    const QAccessible::Id id = QAccessible::uniqueId(row);
    screen->list->clear();
    QVERIFY(!row->isValid());
    QVERIFY(row->state().invalid);
    press(row);
    settle();
    screen->addRows(3);
    QVERIFY(row->isValid());
    screen.reset();
    QVERIFY(!QAccessible::accessibleInterface(id));
}

void TestAccessible::aSoftkeyIsAButtonThatIsPressed()
{
    ListScreen screen;
    QVERIFY(screen.open(1));
    QSignalSpy left(screen.bar, &ZSoftKey::leftClicked);
    QSignalSpy right(screen.bar, &ZSoftKey::rightClicked);
    QAccessibleInterface *bar = told(screen.bar);
    QCOMPARE(bar->childCount(), 2);
    QCOMPARE(name(bar->child(0)), QStringLiteral("Options"));
    QCOMPARE(name(bar->child(1)), QStringLiteral("Back"));
    QCOMPARE(bar->child(0)->text(QAccessible::Description), QStringLiteral("Left softkey"));
    QCOMPARE(bar->child(1)->text(QAccessible::Description), QStringLiteral("Right softkey"));
    QCOMPARE(bar->child(0)->role(), QAccessible::Button);
    QVERIFY(canBePressed(bar->child(0)));
    press(bar->child(1));
    QCOMPARE(right.size(), 0); // not while somebody waits for the answer
    QTRY_COMPARE_WITH_TIMEOUT(right.size(), 1, patience);
    QCOMPARE(left.size(), 0);
}

void TestAccessible::aSoftkeyWithoutACaptionIsNoButton()
{
    const Listening listening;
    ListScreen screen;
    QVERIFY(screen.open(1));
    QAccessibleInterface *empty = keyOf(screen.bar, ZSoftKey::LeftKey);
    forget();
    screen.bar->setText(ZSoftKey::LeftKey, QString(), ZSoftKey::DefaultTextPriority);
    QCOMPARE(count(QAccessible::ObjectDestroyed, empty), 1);
    QCOMPARE(told(screen.bar)->childCount(), 1);
    QCOMPARE(name(told(screen.bar)->child(0)), QStringLiteral("Back"));
    QCOMPARE(told(screen.bar)->indexOfChild(empty), -1);
    QVERIFY(empty->role() != QAccessible::Button);
    QVERIFY(empty->state().invisible);
    QVERIFY(!canBePressed(empty));
    screen.bar->setText(ZSoftKey::LeftKey, "Reset", ZSoftKey::DefaultTextPriority);
    QCOMPARE(count(QAccessible::ObjectCreated, empty), 1);
    QCOMPARE(name(told(screen.bar)->child(0)), QStringLiteral("Reset"));
    QCOMPARE(faultsFrom(told(&screen)), QString());
}

void TestAccessible::aSoftkeyThatIsDisabledIsNotPressed()
{
    ListScreen screen;
    QVERIFY(screen.open(1));
    QSignalSpy left(screen.bar, &ZSoftKey::leftClicked);
    screen.bar->setButtonEnable(ZSoftKey::LeftKey, false);
    QVERIFY(keyOf(screen.bar, ZSoftKey::LeftKey)->state().disabled);
    press(keyOf(screen.bar, ZSoftKey::LeftKey));
    settle();
    QCOMPARE(left.size(), 0);
}

void TestAccessible::aDialogSaysWhatItAsksAndWhatItsSoftkeysDo()
{
    ListScreen screen;
    QVERIFY(screen.open(1));
    ZMessageDlg dialog("Reset", "Reset all timers?", ZMessageDlg::QuestionDlg, 0, &screen, nullptr, isModal, 0);
    dialog.show();
    QAccessibleInterface *element = told(&dialog);
    QCOMPARE(element->role(), QAccessible::Dialog);
    QCOMPARE(name(element), QStringLiteral("Reset"));
    QCOMPARE(element->text(QAccessible::Description),
             QStringLiteral("Reset all timers?\nLeft softkey: Yes\nRight softkey: No"));
    QVERIFY(element->state().focused);
    QCOMPARE(dialog.accessibleDescription(), QStringLiteral("Reset all timers?"));
    QVERIFY(namesShownFrom(element).contains("Reset all timers?"));
    QSignalSpy answered(&dialog, &ZPopup::leftSoftkeyClicked);
    press(keyOf(dialog.softKey(), ZSoftKey::LeftKey));
    QTRY_COMPARE_WITH_TIMEOUT(answered.size(), 1, patience);
}

void TestAccessible::aDialogWithoutAHeaderIsNamedByItsMessage()
{
    ListScreen screen;
    QVERIFY(screen.open(1));
    ZMessageDlg dialog("", "Not during a call", ZMessageDlg::InformationDlg, 0, &screen, nullptr, isModal, 0);
    dialog.show();
    QCOMPARE(name(told(&dialog)), QStringLiteral("Not during a call"));
    QCOMPARE(told(&dialog)->text(QAccessible::Description), QStringLiteral("Left softkey: OK"));
}

void TestAccessible::aDialogIsModalIfItsScreenIsOutOfReach()
{
    ListScreen screen;
    QVERIFY(screen.open(1));
    for (const bool modal : {true, false}) {
        ZMessageDlg dialog("Reset", "Sure?", ZMessageDlg::QuestionDlg, 0, &screen, nullptr, modal, 0);
        dialog.show();
        QCOMPARE(bool(told(&dialog)->state().modal), modal);
        QCOMPARE(bool(told(screen.list)->state().invisible), modal);
    }
}

void TestAccessible::everyKindOfDialogIsSound_data()
{
    using Make = std::function<ZPopup *(QWidget *)>;
    QTest::addColumn<Make>("make");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("a question") << Make([](QWidget *screen) {
        return new ZMessageDlg("Header", "Message", ZMessageDlg::QuestionDlg, 0, screen, nullptr, isModal, 0);
    }) << QStringList{"Header", "Yes", "No", "Message"};
    QTest::newRow("an information") << Make([](QWidget *screen) {
        return new ZMessageDlg("Header", "Message", ZMessageDlg::InformationDlg, 0, screen, nullptr, isModal, 0);
    }) << QStringList{"Header", "OK", "Message"};
    QTest::newRow("a message longer than the display") << Make([](QWidget *screen) {
        return new ZMessageDlg("Header", QStringLiteral("word ").repeated(400), ZMessageDlg::InformationDlg, 0,
                               screen, nullptr, isModal, 0);
    }) << QStringList{"Header", "OK", QStringLiteral("word ").repeated(400)};
    QTest::newRow("a notice") << Make([](QWidget *screen) {
        return new ZNoticeDlg(ZNoticeDlg::DoneNotice, "Header", "Message", screen, nullptr, isModal, 0, true);
    }) << QStringList{"Header", "OK", "Message"};
    QTest::newRow("a choice") << Make([](QWidget *screen) {
        auto *dialog = new ZSingleSelectDlg("Header", "Message", screen, nullptr, isModal, 0, 0);
        DialogTestKit::addChoices(dialog->getListBox(), {"One", "Two"});
        return dialog;
    }) << QStringList{"Header", "Select", "Cancel", "Message", "Header", "One", "Two"};
    QTest::newRow("an entry") << Make([](QWidget *screen) {
        return new ZSingleCaptureDlg("Header", "Message", ZSingleCaptureDlg::TextCaptureDlg, screen, nullptr,
                                     isModal, 0, 0);
    }) << QStringList{"Header", "OK", "Cancel", "Message", "Header"};
}

void TestAccessible::everyKindOfDialogIsSound()
{
    QFETCH(std::function<ZPopup *(QWidget *)>, make);
    QFETCH(QStringList, names);
    ListScreen screen;
    screen.setMainWidgetTitle("Title");
    QVERIFY(screen.open(2));
    ZPopup *dialog = make(&screen);
    dialog->show();
    QCOMPARE(told(dialog)->role(), QAccessible::Dialog);
    QVERIFY(told(dialog)->state().modal);
    QCOMPARE(namesShownFrom(told(dialog)), names);
    QCOMPARE(namesShownFrom(told(&screen)), names); // of all that there is
    QCOMPARE(faultsFrom(told(&screen)), QString());
    QAccessibleInterface *focus = told(&screen)->focusChild();
    QVERIFY(focus && !name(focus).isEmpty());
    QVERIFY(focus == told(dialog) || told(dialog)->focusChild() == focus);
}

void TestAccessible::anEntryIsDescribedByWhatIsTyped()
{
    ListScreen screen;
    QVERIFY(screen.open(1));
    ZSingleCaptureDlg dialog("Header", "Message", ZSingleCaptureDlg::TextCaptureDlg, &screen, nullptr, isModal, 0,
                             0);
    dialog.show();
    QAccessibleInterface *field = told(dialog.getMultiLineEdit());
    QCOMPARE(field->text(QAccessible::Description), QString());
    constexpr QUuid letters(0x637a8c00, 0x1098, 0x42ca, 0x96, 0x9a, 0x2b, 0xf1, 0x63, 0xcd, 0x3c, 0x12);
    ZApplication::setInputMethods(dialog.getMultiLineEdit(), letters, {letters}, 0, QString());
    QTRY_COMPARE_WITH_TIMEOUT(field->text(QAccessible::Description), QStringLiteral("ABC"), patience);
    DialogTestKit::pressKey(Qt::Key_Asterisk);
    QCOMPARE(field->text(QAccessible::Description), QStringLiteral("abc"));
}

void TestAccessible::whatADialogCoversIsNotShown()
{
    ListScreen screen;
    QVERIFY(screen.open(2));
    const auto isShown = [&](QObject *object) { return !told(object)->state().invisible; };
    const QList<QObject *> parts{&screen, screen.getContentWidget(false), screen.list, screen.bar};
    for (QObject *part : parts)
        QVERIFY(isShown(part));
    {
        ZMessageDlg dialog("Reset", "Sure?", ZMessageDlg::QuestionDlg, 0, &screen, nullptr, isModal, 0);
        dialog.show();
        for (QObject *part : parts)
            QVERIFY(!isShown(part));
        QVERIFY(told(screen.list)->child(0)->state().invisible);
        QVERIFY(keyOf(screen.bar, ZSoftKey::LeftKey)->state().invisible);
        QVERIFY(isShown(&dialog) && isShown(dialog.softKey()));
    }
    for (QObject *part : parts)
        QVERIFY(isShown(part));
    QVERIFY(!told(screen.list)->child(0)->state().invisible);
}

void TestAccessible::whatADialogsWindowCoversIsNotShown()
{
    ListScreen screen;
    QVERIFY(screen.open(2));
    ZMessageDlg first("Reset", "Sure?", ZMessageDlg::QuestionDlg, 0, nullptr, nullptr, isModal, 0);
    first.show();
    QVERIFY(first.isWindow());
    QVERIFY(told(&screen)->state().invisible);
    QVERIFY(told(screen.list)->child(0)->state().invisible);
    QVERIFY(!told(&first)->state().invisible);
    ZMessageDlg second("Done", "Done", ZMessageDlg::InformationDlg, 0, nullptr, nullptr, isModal, 0);
    second.show();
    QVERIFY(told(&first)->state().invisible);
    QVERIFY(!told(&second)->state().invisible);
    second.hide();
    QVERIFY(!told(&first)->state().invisible);
    first.hide();
    QVERIFY(!told(&screen)->state().invisible);
}

void TestAccessible::whatASubScreenCoversIsNotShown()
{
    ListScreen screen;
    screen.setMainWidgetTitle("Call Costs");
    QVERIFY(screen.open(2));
    auto *inner = new ListScreen(&screen);
    inner->setMainWidgetTitle("Call Cost Setup");
    inner->addRow("Reset");
    inner->show();
    QCOMPARE(namesShownFrom(told(&screen)),
             (QStringList{"Call Cost Setup", "Options", "Back", "Call Cost Setup", "Reset"}));
    QVERIFY(told(screen.list)->state().invisible);
    QCOMPARE(told(inner)->role(), QAccessible::Pane);
    inner->hide();
    QVERIFY(told(inner)->state().invisible);
    QVERIFY(!told(screen.list)->state().invisible);
}

void TestAccessible::whatIsCoveredIsNotPressed()
{
    ListScreen screen;
    QVERIFY(screen.open(2));
    ZMessageDlg dialog("Reset", "Sure?", ZMessageDlg::QuestionDlg, 0, &screen, nullptr, isModal, 0);
    dialog.show();
    QSignalSpy left(screen.bar, &ZSoftKey::leftClicked);
    QSignalSpy chosen(screen.list, &ZListBox::selected);
    press(keyOf(screen.bar, ZSoftKey::LeftKey));
    press(told(screen.list)->child(1));
    settle();
    QCOMPARE(left.size(), 0);
    QCOMPARE(chosen.size(), 0);
    QCOMPARE(screen.list->currentItem(), 0);
}

void TestAccessible::aScreenOfItsOwnIsAWindow()
{
    ListScreen screen;
    QCOMPARE(told(&screen)->role(), QAccessible::Window);
}

// Qt asks for them while they are being made.
void TestAccessible::widgetsThatAreMadeWhileSomebodyListensAreTheSame()
{
    const Listening listening;
    ListScreen screen;
    screen.setMainWidgetTitle("Call Times");
    QVERIFY(screen.open(2));
    ZSingleSelectDlg dialog("Header", "Message", &screen, nullptr, isModal, 0, 0);
    DialogTestKit::addChoices(dialog.getListBox(), {"One", "Two"});
    dialog.show();
    QCOMPARE(told(&dialog)->role(), QAccessible::Dialog);
    QVERIFY(told(screen.list)->state().invisible);
    QVERIFY(told(screen.list)->child(0)->state().invisible);
    QCOMPARE(name(told(screen.list)), QStringLiteral("Call Times"));
    QVERIFY(canBePressed(told(dialog.getListBox())->child(1)));
    QVERIFY(keyOf(screen.bar, ZSoftKey::LeftKey)->state().invisible);
    QCOMPARE(faultsFrom(told(&screen)), QString());
}

void TestAccessible::aHeadingWithoutATextIsASeparator()
{
    ListScreen screen;
    screen.addRow("bar");
    screen.addSeparator(QString());
    QCOMPARE(told(screen.list)->child(1)->role(), QAccessible::Separator);
}

void TestAccessible::whatIsAskedOfStrangersIsNothing()
{
    ListScreen screen;
    ListScreen other;
    QVERIFY(screen.open(2));
    other.addRows(2);
    QAccessibleInterface *const list = told(screen.list);
    QAccessibleInterface *const bar = told(screen.bar);
    QCOMPARE(list->indexOfChild(list->child(1)), 1);
    QCOMPARE(list->indexOfChild(told(other.list)->child(1)), -1);
    QCOMPARE(list->indexOfChild(bar), -1);
    QCOMPARE(list->indexOfChild(nullptr), -1);
    QCOMPARE(bar->indexOfChild(bar->child(0)), 0);
    QCOMPARE(bar->indexOfChild(list), -1);
    QCOMPARE(bar->indexOfChild(nullptr), -1);
    QAccessibleInterface *const last = list->child(1);
    QVERIFY(last->isValid());
    delete screen.list->item(1);
    QVERIFY(!list->child(1));
}

void TestAccessible::anActionThatASoftkeyHasNotDoesNothing()
{
    ListScreen screen;
    QVERIFY(screen.open(2));
    QAccessibleInterface *const key = told(screen.bar)->child(1);
    QSignalSpy clicked(qobject_cast<QAbstractButton *>(key->object()), &QAbstractButton::clicked);
    QAccessibleActionInterface *const softkey = key->actionInterface();
    softkey->doAction(QAccessibleActionInterface::toggleAction());
    settle();
    QCOMPARE(clicked.count(), 0);
    softkey->doAction(QAccessibleActionInterface::pressAction());
    QTRY_COMPARE_WITH_TIMEOUT(clicked.count(), 1, patience);
}

KAV_TEST_GROUP(TestAccessible, QApplication);
#include "tst_accessible.moc"
