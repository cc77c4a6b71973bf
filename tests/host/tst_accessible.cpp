// What a screen reader is told of the window: the phone's screens, and the panel beside it.
#include "handset/AdviceOfCharge.h"
#include "handset/Clock.h"
#include "handset/Handset.h"
#include "host/OpeningProgress.h"
#include "host/PhoneWindow.h"
#include "host/WaitNotice.h"
#include "host/panel/Panel.h"
#include "host/phone/Display.h"
#include "simulated/SimulatedHandset.h"
#include "support/ScreenReader.h"
#include "support/TestGroup.h"
#include "toolkit/ZApplication.h"
#include "toolkit/ZListBox.h"
#include "toolkit/ZPopup.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

using namespace host;
using namespace ScreenReader;
using handset::simulated::SimulatedHandset;

namespace {

constexpr int patience = 60'000;
using Keys = QList<int>;
constexpr int Left = Qt::Key_Context1;
constexpr int Right = Qt::Key_Context2;
constexpr int Up = Qt::Key_Up;
constexpr int Down = Qt::Key_Down;
constexpr int Select = Qt::Key_Select;

enum Row { CallTimes, CallCosts, DataTimes, DataVolumes };

} // namespace

class TestAccessibleWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void theWindowIsAFrame();
    void everyScreenIsReadWhole_data();
    void everyScreenIsReadWhole();
    void everyDialogIsReadWhole_data();
    void everyDialogIsReadWhole();
    void thePinEntryIsReadWhole();
    void everyPageOfThePanelIsReadWhole_data();
    void everyPageOfThePanelIsReadWhole();
    void aScreenIsWorkedByActionsAlone();
    void whatTheLineDoesIsTold();
    void aClockThatRunsIsNotTold();
    void aRefusalIsTold();
    void aCountdownIsToldAtItsMarks();
    void whatComesOfItIsTold();
    void aWaitIsTold();
    void stepsOfTheOpeningAreTold();
    void nothingIsToldOfAPageThatIsNotSeen();
    void nobodyIsToldWhereNobodyListens();

private:
    void verifyDialog();
    void openScreen(int row, const Keys &keys);
    QAccessibleInterface *windowElement() const { return told(window.get()); }
    QAccessibleInterface *shown(const QString &name, QAccessible::Role role) const;
    void click(const char *text) const;
    QStringList namesOfKeys() const;
    QStringList heard() const;

    ScreenLibrary library;
    std::shared_ptr<handset::ManualClock> clock;
    std::shared_ptr<handset::Handset> owner;
    SimulatedHandset *handset = nullptr;
    std::unique_ptr<PhoneWindow> window;
};

void TestAccessibleWindow::initTestCase()
{
    const QString problem = library.load("libkavcallmeter.so.1");
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
}

void TestAccessibleWindow::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    clock = std::make_shared<handset::ManualClock>(1000000);
    const handset::Opened opened = handset::open({"simulated", {}, clock});
    QVERIFY2(opened.handset, qPrintable(opened.error));
    owner = opened.handset;
    handset = dynamic_cast<SimulatedHandset *>(owner.get());
    handset::install(owner);
    window = std::make_unique<PhoneWindow>(library, PhoneWindow::OpenedHandset{owner, {}, {}});
    QTest::ignoreMessage(QtWarningMsg, "This plugin does not support propagateSizeHints()");
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get(), patience));
    QVERIFY(window->complete());
}

void TestAccessibleWindow::cleanup()
{
    window.reset();
    handset::install(nullptr);
    owner.reset();
}

void TestAccessibleWindow::openScreen(int row, const Keys &keys)
{
    QVERIFY(window->openScreen(row));
    for (const int key : keys)
        QVERIFY(ZApplication::pressKey(key));
}

// The element on show of that name and role; null for none or more than one.
QAccessibleInterface *TestAccessibleWindow::shown(const QString &wanted, QAccessible::Role role) const
{
    QList<QAccessibleInterface *> found = shownFrom(windowElement());
    found.removeIf(
        [&](QAccessibleInterface *element) { return name(element) != wanted || element->role() != role; });
    return found.size() == 1 ? found.first() : nullptr;
}

void TestAccessibleWindow::click(const char *text) const
{
    const QList<QPushButton *> buttons = window->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->text().remove(u'&') == QLatin1StringView(text))
            return button->click();
    }
    qFatal("there is no button \"%s\"", text);
}

// Of the softkeys on show.
QStringList TestAccessibleWindow::namesOfKeys() const
{
    QStringList names;
    for (QAccessibleInterface *element : shownFrom(shown("Display of the phone", QAccessible::Pane))) {
        if (element->role() == QAccessible::Button)
            names << name(element);
    }
    return names;
}

// What was told without being asked for since the last time.
QStringList TestAccessibleWindow::heard() const
{
    QCoreApplication::processEvents();
    const QStringList names = namesTold(QAccessible::Alert);
    forget();
    return names.join(u'\n').split(u'\n', Qt::SkipEmptyParts);
}

void TestAccessibleWindow::theWindowIsAFrame()
{
    QCOMPARE(windowElement()->role(), QAccessible::Window);
    QCOMPARE(name(windowElement()), QStringLiteral("Recent Calls"));
    QVERIFY(windowElement()->state().active);
    QVERIFY(shown("Display of the phone", QAccessible::Pane));
    QVERIFY(shown("Keypad", QAccessible::Grouping));
}

void TestAccessibleWindow::everyScreenIsReadWhole_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<Keys>("keys");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<QStringList>("softkeys");
    QTest::newRow("the menu") << -1 << Keys{} << "Recent Calls"
                              << QStringList{"Call Times", "Call Costs", "Data Times", "Data Volumes"}
                              << QStringList{"Open", "Exit"};
    QTest::newRow("call times") << int{CallTimes} << Keys{} << "Call Times"
                                << QStringList{"Last Call, 00:01:05",      "Dialed Calls, 00:00:00",
                                               "Answered Calls, 00:01:05", "Data Calls, 00:00:00",
                                               "All Calls, 00:01:05",      "Lifetime Calls, 00:01:05"}
                                << QStringList{"Back"};
    QTest::newRow("call costs") << int{CallCosts} << Keys{} << "Call Costs"
                                << QStringList{"Credit Available, 0.00 units",  "Expiration Date, 2000/00/00",
                                               "Last Deposit, 0.00 units",      "Last Call Cost, 0.00 units",
                                               "Dialed Calls Cost, 0.00 units", "Answered Calls Cost, 0.00 units",
                                               "All Calls Cost, 0.00 units",    "Call Cost Setup"}
                                << QStringList{"Back"};
    QTest::newRow("call cost setup") << int{CallCosts} << Keys{Up, Select} << "Call-Cost Setup"
                                     << QStringList{"Reset All",
                                                    "Reset All Call Costs",
                                                    "Reset Dialed Call Costs",
                                                    "Reset Answered Call Costs",
                                                    "Credit Limit, Off",
                                                    "Adjust Credit Limit, 0.00 units",
                                                    "Currency, Off",
                                                    "Currency Type, units",
                                                    "Cost Per Minute, 0 units"}
                                     << QStringList{"Back"};
    QTest::newRow("data times")
        << int{DataTimes} << Keys{} << "Data Times"
        << QStringList{"Current Data Session",          "internet, 00:01:05", "GPRS Data Session 2, 00:00:00",
                       "GPRS Data Session 3, 00:00:00", "All Data Sessions",  "Total Time, 00:01:05",
                       "Reset All Data Sessions"}
        << QStringList{"Back"};
    QTest::newRow("data volumes") << int{DataVolumes} << Keys{} << "Data Volumes"
                                  << QStringList{"Current Data Session",   "internet",
                                                 "GPRS Data Session 2",    "GPRS Data Session 3",
                                                 "All Data Sessions",      "Total Data Transferred",
                                                 "Reset All Data Sessions"}
                                  << QStringList{"Back"};
    QTest::newRow("details of a session")
        << int{DataVolumes} << Keys{Select} << "Data Volume"
        << QStringList{"Current Data Session", "internet", "Sent, 32500 B", "Received, 260000 B", "Sum, 292500 B"}
        << QStringList{"Back"};
}

void TestAccessibleWindow::everyScreenIsReadWhole()
{
    QFETCH(int, row);
    QFETCH(Keys, keys);
    QFETCH(QString, title);
    QFETCH(QStringList, rows);
    QFETCH(QStringList, softkeys);
    click("Incoming call");
    click("Answer");
    QCOMPARE(handset->packets().startSession("internet", 500, 4000), 0);
    clock->advance(65'000);
    QCOMPARE(handset->packets().stopSession(), 0);
    click("Hang up");
    if (row >= 0)
        openScreen(row, keys);
    QVERIFY(shown(title, QAccessible::Pane));
    QAccessibleInterface *list = shown(title, QAccessible::List);
    QVERIFY(list);
    QCOMPARE(namesShownFrom(list), QStringList(title) + rows);
    QCOMPARE(namesOfKeys(), softkeys);
    // All that is on the display, and nothing of what lies under the screen.
    QCOMPARE(shownFrom(shown("Display of the phone", QAccessible::Pane)).count(list), 1);
    QAccessibleInterface *focus = windowElement()->focusChild();
    QVERIFY(focus && focus->role() == QAccessible::ListItem && focus->parent() == list);
    QVERIFY(focus->state().focused && focus->state().selected && !focus->state().invisible);
    QCOMPARE(faultsFrom(windowElement()), QString());
}

void TestAccessibleWindow::everyDialogIsReadWhole_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<Keys>("keys");
    QTest::addColumn<QString>("header");
    QTest::addColumn<QString>("description");
    QTest::addColumn<QStringList>("inside");
    QTest::addColumn<bool>("isModal");
    const QString yesNo = "\nLeft softkey: Yes\nRight softkey: No";
    const QString select = "Left softkey: Select\nRight softkey: Cancel";
    QTest::newRow("a question") << int{CallTimes} << Keys{Down, Select} << "Reset Timer"
                                << "Would you like to reset the Dialed Calls timer?" + yesNo
                                << QStringList{"Yes", "No", "Would you like to reset the Dialed Calls timer?"}
                                << true;
    const QString busy = "Current request cannot be completed, while you are in calling. ";
    QTest::newRow("a refusal") << int{CallTimes} << Keys{Down, Down, Down, Select, Left} << busy
                               << "Left softkey: OK" << QStringList{"OK", busy} << false;
    QTest::newRow("a notice") << int{CallCosts} << Keys{Up, Select, Select} << "Reset Calls"
                              << "All costs have been reset to 0.00 units.\nLeft softkey: OK"
                              << QStringList{"OK", "All costs have been reset to 0.00 units."} << true;
    QTest::newRow("a choice") << int{CallCosts} << Keys{Up, Select, Down, Down, Down, Down, Select}
                              << "Credit Limit"
                              << "Left softkey: Select\nRight softkey: Cancel"
                              << QStringList{"Select", "Cancel", "Credit Limit", "On", "Off"} << true;
    QTest::newRow("an entry") << int{CallCosts} << Keys{Up, Select, Down, Down, Down, Down, Down, Select}
                              << "Adjust Credit Limit"
                              << "Left softkey: Save\nRight softkey: Cancel"
                              << QStringList{"Save", "Cancel", "Adjust Credit Limit"} << true;
}

void TestAccessibleWindow::everyDialogIsReadWhole()
{
    QFETCH(int, row);
    QFETCH(Keys, keys);
    QCOMPARE(owner->adviceOfCharge()->setMeterMaximum("6"), 0);
    click("Dial data call");
    click("Other side answers");
    openScreen(row, keys);
    verifyDialog();
}

void TestAccessibleWindow::verifyDialog()
{
    QFETCH(QString, header);
    QFETCH(QString, description);
    QFETCH(QStringList, inside);
    QFETCH(bool, isModal);
    // One without a parent is a window of its own.
    QList<QAccessibleInterface *> dialogs = shownFrom(told(qApp));
    dialogs.removeIf([](QAccessibleInterface *element) { return element->role() != QAccessible::Dialog; });
    QCOMPARE(dialogs.size(), 1);
    QAccessibleInterface *dialog = dialogs.first();
    QCOMPARE(name(dialog), header);
    QCOMPARE(dialog->text(QAccessible::Description), description);
    QCOMPARE(namesShownFrom(dialog), QStringList(header) + inside);
    QCOMPARE(bool(dialog->state().modal), isModal);
    QCOMPARE(faultsFrom(windowElement()), QString());
    QCOMPARE(faultsFrom(dialog), QString());
}

void TestAccessibleWindow::everyPageOfThePanelIsReadWhole_data()
{
    QTest::addColumn<int>("page");
    for (int page = 0; page < static_cast<int>(pageNames.size()); ++page)
        QTest::newRow(pageNames[static_cast<std::size_t>(page)]) << page;
}

void TestAccessibleWindow::everyPageOfThePanelIsReadWhole()
{
    QFETCH(int, page);
    window->choosePage(page);
    QCoreApplication::processEvents();
    QCOMPARE(faultsFrom(windowElement()), QString());
}
// It waits for the answer in a loop of its own.
void TestAccessibleWindow::thePinEntryIsReadWhole()
{
    using handset::AdviceOfCharge;
    QCOMPARE(handset->simCard().setUpdateRule(AdviceOfCharge::AcmFile, AdviceOfCharge::UpdateUnderPin2), 0);
    openScreen(CallCosts, {Up, Select});
    bool isRead = false;
    QTimer::singleShot(0, this, [&] {
        const QAccessibleInterface *dialog = shown("Enter PIN2", QAccessible::Dialog);
        QVERIFY(dialog && dialog->state().modal);
        QCOMPARE(dialog->text(QAccessible::Description),
                 QStringLiteral("Tries left: 3\nLeft softkey: OK\nRight softkey: Cancel"));
        QVERIFY(shown("Enter PIN2", QAccessible::EditableText));
        QCOMPARE(faultsFrom(windowElement()), QString());
        isRead = true;
        ZApplication::pressKey(Right);
    });
    ZApplication::pressKey(Select);
    QVERIFY(isRead);
}

void TestAccessibleWindow::aScreenIsWorkedByActionsAlone()
{
    click("Incoming call");
    click("Answer");
    clock->advance(65'000);
    click("Hang up");
    press(shown("Call Times", QAccessible::ListItem));
    QTRY_VERIFY_WITH_TIMEOUT(shown("Last Call, 00:01:05", QAccessible::ListItem), patience);
    press(shown("Answered Calls, 00:01:05", QAccessible::ListItem));
    QTRY_VERIFY_WITH_TIMEOUT(shown("Yes", QAccessible::Button), patience);
    press(shown("Yes", QAccessible::Button));
    QTRY_VERIFY_WITH_TIMEOUT(shown("Answered Calls, 00:00:00", QAccessible::ListItem), patience);
    press(shown("Back", QAccessible::Button));
    QTRY_VERIFY_WITH_TIMEOUT(shown("Recent Calls", QAccessible::List), patience);
    QVERIFY(!shown("Back", QAccessible::Button));
}

void TestAccessibleWindow::whatTheLineDoesIsTold()
{
    const Listening listening;
    click("Incoming call");
    QCOMPARE(heard(), QStringList("State of the line: Ringing, voice call, 5550123"));
    click("Answer");
    QCOMPARE(heard(), QStringList("State of the line: Connected 00:00:00, voice call, 5550123"));
    click("Hang up");
    QCOMPARE(heard(), QStringList("State of the line: Idle"));
}

void TestAccessibleWindow::aClockThatRunsIsNotTold()
{
    const Listening listening;
    click("Incoming call");
    click("Answer");
    heard();
    clock->advance(65'000);
    QCOMPARE(handset->checkpoint(), 0);
    emit handset->changed();
    QVERIFY(shown("State of the line: Connected 00:01:05, voice call, 5550123", QAccessible::StaticText));
    QCOMPARE(heard(), QStringList());
}

void TestAccessibleWindow::aRefusalIsTold()
{
    QCOMPARE(owner->adviceOfCharge()->setMeterMaximum("1"), 0);
    click("Dial");
    click("Other side answers");
    clock->advance(10'000);
    QCOMPARE(handset->checkpoint(), 0);
    const Listening listening;
    click("Dial");
    QCOMPARE(heard(), QStringList("Not done: not allowed now: nothing more may be charged."));
}

void TestAccessibleWindow::aCountdownIsToldAtItsMarks()
{
    QCOMPARE(owner->adviceOfCharge()->setMeterMaximum("6"), 0);
    QCOMPARE(handset->charging()->topUp("50", {2007, 3, 9}), 0);
    click("Dial");
    click("Other side answers");
    clock->advance(29'000);
    const Listening listening;
    QStringList told;
    for (int second = 0; second < 35; ++second) {
        clock->advance(1000);
        QCOMPARE(handset->checkpoint(), 0);
        emit handset->changed();
        told << heard();
    }
    QCOMPARE(told,
             (QStringList{"End of charging: The credit limit is reached in 30 s.",
                          "End of charging: The credit limit is reached in 20 s.",
                          "End of charging: The credit limit is reached in 10 s.",
                          "End of charging: The credit limit is reached in 5 s.", "State of the line: Idle",
                          "End of charging: The telephone has ended the call: the credit limit is reached."}));
}

void TestAccessibleWindow::whatComesOfItIsTold()
{
    window->choosePage(1);
    QCoreApplication::processEvents();
    const Listening listening;
    window->findChild<QLineEdit *>("top-up amount")->setText("none");
    click("Top up");
    QCOMPARE(heard(), QStringList("Why nothing was paid in: Not done: an amount of at least one unit, and not "
                                  "more than the account holds."));
    window->findChild<QLineEdit *>("top-up amount")->setText("20");
    click("Top up");
    const QStringList deposit = heard();
    QVERIFY2(deposit.size() == 1 && deposit.first().startsWith("Last deposit: 20.00 units, good until "),
             qPrintable(deposit.join(u'|')));
}

void TestAccessibleWindow::aWaitIsTold()
{
    const Listening listening;
    QTest::ignoreMessage(QtWarningMsg, "This plugin does not support raise()");
    WaitNotice notice(window->findChild<host::Display *>());
    notice.setWaiting(true);
    QTRY_VERIFY_WITH_TIMEOUT(namesTold(QAccessible::Alert).contains("Please wait ..."), patience);
}

void TestAccessibleWindow::stepsOfTheOpeningAreTold()
{
    const Listening listening;
    OpeningProgress progress(window.get());
    progress.show();
    progress.showStep("Reading the calls", 10);
    progress.showStep("Reading the calls", 20);
    QCOMPARE(heard(), QStringList("What is being done: Reading the calls"));
    progress.showStep("Adding up", 30);
    QCOMPARE(heard(), QStringList("What is being done: Adding up"));
}

void TestAccessibleWindow::nothingIsToldOfAPageThatIsNotSeen()
{
    window->choosePage(1);
    window->choosePage(0);
    const Listening listening;
    QCOMPARE(handset->charging()->topUp("50", {2007, 3, 9}), 0);
    QCOMPARE(heard(), QStringList());
}

void TestAccessibleWindow::nobodyIsToldWhereNobodyListens()
{
    click("Incoming call");
    QCoreApplication::processEvents();
    QVERIFY(!window->findChild<QWidget *>("live region"));
}

KAV_TEST_GROUP(TestAccessibleWindow, QApplication);
#include "tst_accessible.moc"
