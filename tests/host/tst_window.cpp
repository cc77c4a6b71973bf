// The window: the phone's keys, and the panel beside it.

#include "handset/CallLog.h"
#include "handset/CallService.h"
#include "handset/Clock.h"
#include "handset/DataCalls.h"
#include "handset/Handset.h"
#include "handset/Status.h"
#include "host/Line.h"
#include "host/PhoneWindow.h"
#include "host/WindowPlace.h"
#include "host/doubles/RecordingPlugin.h"
#include "host/panel/Panel.h"
#include "host/phone/Display.h"
#include "host/phone/Keypad.h"
#include "host/phone/PhoneKey.h"
#include "simulated/SimulatedHandset.h"
#include "support/LackingHandset.h"
#include "support/TestGroup.h"
#include "toolkit/ZApplication.h"
#include "toolkit/ZKbMainWidget.h"
#include "toolkit/ZListBox.h"
#include "toolkit/ZListItem.h"
#include "toolkit/ZSoftKey.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QLibrary>
#include <QtCore/QRegularExpression>
#include <QtCore/QScopeGuard>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>
#include <QtGui/QAccessible>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>

using namespace host;
using handset::simulated::SimulatedHandset;

namespace {

constexpr int patienceMs = 60'000;

} // namespace

class TestWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void thePhoneIsPaintedBeforeTheHandsetIsOpenedAndThePanelMade();
    void aScreenThatIsOpenedBeforeThatWaitsForTheHandset();
    void aHandsetThatCannotBeOpenedClosesTheWindow();
    void howFarTheOpeningIsIsPaintedInThePanelsPlace();
    void anEventInALongOpeningDoesNotBeginAnother();
    void aWindowThatIsClosedInALongOpeningEndsWell();
    void aWindowThatIsNotPaintedYetShowsALongOpening();
    void whoListensAlreadyStillHearsTheHandset();
    void damageThatIsFoundBesideStandsInThePanelAndItsSalvageInItsPlace();
    void theMenuHasTheKeysAtTheStart();
    void keypadKeysDriveTheScreensAndLeaveTheFocus();
    void theDesktopKeyboardDrivesTheScreens();
    void softkeysWorkWhileThePanelHasTheFocus();
    void theMenuHasTheKeysAgainAfterAScreen();
    void exitOnTheMenuClosesTheWindowAndTheClearKeyDoesNot();
    void theEndOfTheWindowGivesTheScreenBack();
    void aWindowClosedOverADialogThatBlocksLetsTheScreenGoOnFirst();
    void buttonsAreEnabledAsTheLinePermits();
    void aWithheldNumberCanRing();
    void theColouredKeysAnswerDialAndHangUp();
    void digitsOfTheKeypadMakeUpTheNumber();
    void theRunningTimeAndTheFiguresGoOnBySecond();
    void theReadyMadeHistoryIsAdded();
    void aRefusedOperationIsToldAndForgotten();
    void stateDirectoryAndNoticeAreShown();
    void aNewTelephoneIsBegunAfterAQuestion();
    void anotherHandsetThanTheSimulatedIsSaid();
    void everyControlHasANameAndATabStop();
    void aValueOfThePanelIsReadWithItsTitle();
    void digitsOfTheKeyboardAreThePhones();
    void theKeyboardHasTheColouredKeys();
    void aDoubleClickOnAMenuRowOpensOneScreen();
    void theKeyUnderACaptionAnswersItAlsoRightToLeft_data();
    void theKeyUnderACaptionAnswersItAlsoRightToLeft();
    void theKeypadLooksTheSameRightToLeft();
    void theWholePhoneIsSeenOnALowScreen();
    void placeAndSizeAreKept();
    void aPlaceThatCannotBeReadIsNone();
    void thePhoneTellsOfACallFromItsDigitsToItsCost();
    void thePhoneTellsWhoCallsAndWhomNobodyAnswered();
    void thePhoneWarnsBeforeItEndsACallAndSaysWhyItDid();
    void whatACallHasCostGoesWhenTheUserGoesOn_data();
    void whatACallHasCostGoesWhenTheUserGoesOn();
    void aTypedNumberIsForgottenByTheRedKeyAndStaysInThePanel();
    void aNumberOfEightySignsFitsOnTheDisplay();
    void callsAreToldBelowTheRowsAndUnderTheScreens();
    void oneSeesWhetherTheKeysGoToThePhone();

private:
    void openWindow(const std::shared_ptr<handset::Handset> &handset, const QString &directory = {},
                    const QString &notice = {});
    void makeWindow(std::function<void()> whileOpening);
    void tellProgress(int percent);
    static void expectSizeHintWarning();
    void showWindow();
    QPushButton *button(const char *text) const;
    void click(const char *text) const { QTest::mouseClick(button(text), Qt::LeftButton); }
    void clickKey(const char *name) const
    {
        QTest::mouseClick(window->findChild<PhoneKey *>(QString("key ") + name), Qt::LeftButton);
    }
    QString label(const char *name) const { return window->findChild<QLabel *>(name)->text(); }
    QStringList enabledButtons() const;
    QString title() const;
    QStringList toldOfCalls() const;
    void type(const char *digits) const;

    ScreenLibrary library;
    std::shared_ptr<handset::ManualClock> clock;
    std::shared_ptr<handset::Handset> owner;
    SimulatedHandset *handset = nullptr;
    std::unique_ptr<PhoneWindow> window;
};

void TestWindow::initTestCase()
{
    const QString problem = library.load("libkavcallmeter.so.1");
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
}

void TestWindow::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    clock = std::make_shared<handset::ManualClock>(1000000);
    const handset::Opened opened = handset::open({"simulated", {}, clock});
    QVERIFY2(opened.handset, qPrintable(opened.error));
    owner = opened.handset;
    handset = dynamic_cast<SimulatedHandset *>(owner.get());
    QVERIFY(handset);
    openWindow(owner);
}

void TestWindow::cleanup()
{
    window.reset();
    handset::install(nullptr);
    owner.reset();
}

void TestWindow::openWindow(const std::shared_ptr<handset::Handset> &behind, const QString &directory,
                            const QString &notice)
{
    window.reset();
    handset::install(behind);
    window = std::make_unique<PhoneWindow>(library, PhoneWindow::OpenedHandset{behind, directory, notice});
    showWindow();
}

// Qt's offscreen platform warns of every window that has a least size.
void TestWindow::expectSizeHintWarning()
{
    if (QGuiApplication::platformName() == QStringLiteral("offscreen"))
        QTest::ignoreMessage(QtWarningMsg, "This plugin does not support propagateSizeHints()");
}

void TestWindow::showWindow()
{
    expectSizeHintWarning();
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get(), 60'000));
    window->complete();
}

QPushButton *TestWindow::button(const char *text) const
{
    const QList<QPushButton *> buttons = window->findChildren<QPushButton *>();
    for (QPushButton *candidate : buttons) {
        if (candidate->text().remove(u'&') == QLatin1StringView(text))
            return candidate;
    }
    qFatal("there is no button \"%s\"", text);
}

QStringList TestWindow::enabledButtons() const
{
    QStringList texts;
    for (const char *text :
         {"Dial", "Dial data call", "Incoming call", "Other side answers", "Answer", "Hang up"}) {
        if (button(text)->isEnabled())
            texts << text;
    }
    return texts;
}

// Of the screen that has the keys.
QString TestWindow::title() const
{
    QWidget *widget = ZApplication::keyTarget();
    while (widget && !qobject_cast<ZKbMainWidget *>(widget))
        widget = widget->parentWidget();
    const auto *screen = qobject_cast<ZKbMainWidget *>(widget);
    return screen ? screen->mainWidgetTitle() : QStringLiteral("(none)");
}

namespace {

// Looks, whenever a widget of a window is painted, whether the window has its panel.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget *watched)
        : window(watched)
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        const auto *widget = qobject_cast<const QWidget *>(object);
        if (event->type() == QEvent::Paint && widget && (widget == window || window->isAncestorOf(widget)))
            (window->findChild<Panel *>() ? withPanel : withoutPanel) << widget->metaObject()->className();
        return false;
    }

    QStringList withoutPanel;
    QStringList withPanel;

private:
    QWidget *window;
};

} // namespace

void TestWindow::thePhoneIsPaintedBeforeTheHandsetIsOpenedAndThePanelMade()
{
    QStringList paintedBefore;
    const PaintWatch *watching = nullptr;
    window = std::make_unique<PhoneWindow>(library, [&] {
        paintedBefore = watching->withoutPanel;
        return PhoneWindow::OpenedHandset{owner, {}, {}};
    });
    const PaintWatch watch(window.get());
    watching = &watch;
    expectSizeHintWarning();
    window->show();
    const QSize first = window->size();
    QTRY_VERIFY_WITH_TIMEOUT(watch.withPanel.contains("host::LineSection"), patienceMs);
    for (const char *part : {"host::PhoneBody", "host::PhoneKey", "host::MenuScreen"})
        QVERIFY2(paintedBefore.contains(QLatin1StringView(part)), part);
    QCOMPARE(window->size(), first);
    QVERIFY(button("Dial")->isVisible());
}

void TestWindow::aScreenThatIsOpenedBeforeThatWaitsForTheHandset()
{
    int opened = 0;
    window = std::make_unique<PhoneWindow>(library, [&] {
        ++opened;
        return PhoneWindow::OpenedHandset{owner, {}, {}};
    });
    QVERIFY(window->openScreen(0));
    QCOMPARE(opened, 1);
    QVERIFY(window->findChild<ZKbMainWidget *>("callTime"));
    showWindow();
    QCOMPARE(opened, 1);
}

void TestWindow::aHandsetThatCannotBeOpenedClosesTheWindow()
{
    int tried = 0;
    window = std::make_unique<PhoneWindow>(library, [&]() -> std::optional<PhoneWindow::OpenedHandset> {
        ++tried;
        return {};
    });
    expectSizeHintWarning();
    window->show();
    QTRY_VERIFY_WITH_TIMEOUT(!window->isVisible(), patienceMs);
    QVERIFY(!window->complete());
    QVERIFY(!window->openScreen(0));
    QCOMPARE(tried, 1);
}

// One that opens a handset that has been opened long before.
void TestWindow::makeWindow(std::function<void()> whileOpening)
{
    window = std::make_unique<PhoneWindow>(library, [this, whileOpening] {
        whileOpening();
        return PhoneWindow::OpenedHandset{owner, {}, {}};
    });
}

// As a handset that is being opened does.
void TestWindow::tellProgress(int percent)
{
    handset::Settings settings;
    window->listen(settings);
    settings.progress(QStringLiteral("Reading the damaged call log"), percent);
}

void TestWindow::howFarTheOpeningIsIsPaintedInThePanelsPlace()
{
    QStringList shown;
    QSize duringOpening;
    const PaintWatch *watching = nullptr;
    makeWindow([&] {
        for (const int percent : {12, 47}) {
            const auto paintedBefore = watching->withoutPanel.count("QProgressBar");
            tellProgress(percent);
            if (watching->withoutPanel.count("QProgressBar") == paintedBefore)
                shown << "(not painted)";
            const auto *bar = window->findChild<QProgressBar *>();
            shown << label("opening step") << bar->text();
            if (!bar->isVisible() ||
                bar->mapTo(window.get(), QPoint()).x() < window->findChild<Keypad *>()->width())
                shown << "(not beside the phone)";
        }
        duringOpening = window->size();
    });
    const PaintWatch watch(window.get());
    watching = &watch;
    expectSizeHintWarning();
    window->show();
    const QSize first = window->size();
    QTRY_VERIFY_WITH_TIMEOUT(watch.withPanel.contains("host::LineSection"), patienceMs);
    QCOMPARE(shown, QStringList({"Reading the damaged call log", "12%", "Reading the damaged call log", "47%"}));
    QCOMPARE(duringOpening, first);
    QCOMPARE(window->size(), first);
    QVERIFY(!window->findChild<QProgressBar *>());
    QVERIFY(button("Dial")->isVisible());
}

void TestWindow::anEventInALongOpeningDoesNotBeginAnother()
{
    int opened = 0;
    QList<bool> screenCame;
    makeWindow([&] {
        ++opened;
        QTimer::singleShot(0, window.get(), [&] { screenCame << window->openScreen(0); });
        tellProgress(12);
        QCOMPARE(screenCame, QList<bool>{false});
    });
    showWindow();
    QCOMPARE(opened, 1);
    QCOMPARE(screenCame, QList<bool>{false});
    QVERIFY(window->isVisible());
    QVERIFY(window->openScreen(0));
}

// As by a signal that ends the program.
void TestWindow::aWindowThatIsClosedInALongOpeningEndsWell()
{
    bool closed = false;
    makeWindow([&] {
        QTimer::singleShot(0, window.get(), [&] { closed = window->close(); });
        tellProgress(12);
        QVERIFY(closed);
        tellProgress(47);
    });
    expectSizeHintWarning();
    window->show();
    QTRY_VERIFY_WITH_TIMEOUT(window->findChild<Panel *>(), patienceMs);
    QVERIFY(closed);
    QVERIFY(!window->isVisible());
}

void TestWindow::aWindowThatIsNotPaintedYetShowsALongOpening()
{
    bool isPainted = false;
    const PaintWatch *watching = nullptr;
    makeWindow([&] {
        tellProgress(12);
        isPainted =
            watching->withoutPanel.contains("QProgressBar") && watching->withoutPanel.contains("host::PhoneBody");
    });
    const PaintWatch watch(window.get());
    watching = &watch;
    expectSizeHintWarning();
    window->show();
    QVERIFY(window->complete());
    QVERIFY(isPainted);
}

void TestWindow::whoListensAlreadyStillHearsTheHandset()
{
    QStringList heard;
    handset::Settings settings;
    settings.tell = [&](const QString &notice) { heard << notice; };
    settings.progress = [&](const QString &step, int percent) { heard << step + QString::number(percent); };
    window->listen(settings);
    settings.progress("Reading", 12);
    settings.tell("Found.");
    QCOMPARE(label("told notice"), "Found.");
    window.reset();
    settings.tell("Found late.");
    QCOMPARE(heard, QStringList({"Reading12", "Found.", "Found late."}));
}

// Calls enough for the reading of a damaged log to say how far it is.
static void makeDamagedLog(const QString &directory)
{
    handset::Settings settings;
    settings.stateDirectory = directory;
    const auto opened = handset::open(settings);
    auto *made = dynamic_cast<SimulatedHandset *>(opened.handset.get());
    QVERIFY2(made, qPrintable(opened.error));
    QList<handset::simulated::PastCall> calls;
    for (int i = 0; i < 60'000; ++i)
        calls.append({handset::CallKind::Voice, handset::CallDirection::Dialed, "5550123", i * 1000, 1000});
    QCOMPARE(made->addHistory(calls), 0);
}

// In the middle, where no figure stands and no opening looks.
static void zeroAPage(const QString &fileName)
{
    constexpr qint64 pageSize = 4096;
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.seek(file.size() / pageSize / 2 * pageSize));
    QCOMPARE(file.write(QByteArray(pageSize, '\0')), pageSize);
}

void TestWindow::damageThatIsFoundBesideStandsInThePanelAndItsSalvageInItsPlace()
{
    const QTemporaryDir state;
    makeDamagedLog(state.path());
    zeroAPage(state.filePath("calllog.db"));
    QStringList steps;
    const auto open = [&] {
        handset::Settings settings;
        settings.stateDirectory = state.path();
        window->listen(settings);
        settings.progress = [&, shown = settings.progress](const QString &step, int percent) {
            shown(step, percent);
            if (steps.isEmpty() || steps.last() != label("opening step"))
                steps << label("opening step");
        };
        const auto opened = handset::open(settings);
        return PhoneWindow::OpenedHandset{opened.handset, state.path(), opened.notice};
    };
    window = std::make_unique<PhoneWindow>(library, open);
    showWindow();
    QVERIFY(!window->findChild<QLabel *>("told notice")->isVisible());
    QTRY_COMPARE_WITH_TIMEOUT(
        label("told notice"),
        "The call log is damaged. The next start begins a new one, with what can be read of it.", patienceMs);
    QVERIFY(window->findChild<QLabel *>("told notice")->isVisible());
    QCOMPARE(steps, QStringList());

    window.reset();
    window = std::make_unique<PhoneWindow>(library, open);
    showWindow();
    QCOMPARE(steps,
             QStringList({"Reading the damaged call log", "Counting what was read", "Checking the new call log"}));
    QVERIFY(label("notice").startsWith("The call log is damaged; it was kept as \"calllog-kept-1.db\""));
    QVERIFY(!window->findChild<QLabel *>("told notice")->isVisible());
    window.reset();
}

void TestWindow::theMenuHasTheKeysAtTheStart()
{
    QCOMPARE(title(), "Recent Calls");
    QVERIFY(qobject_cast<ZListBox *>(window->focusWidget()));
}

void TestWindow::keypadKeysDriveTheScreensAndLeaveTheFocus()
{
    window->findChild<QLineEdit *>()->setFocus();
    clickKey("Select");
    QCOMPARE(title(), "Call Times");
    clickKey("Down");
    clickKey("Down");
    auto *list = qobject_cast<ZListBox *>(ZApplication::keyTarget());
    QVERIFY(list);
    QCOMPARE(list->currentItem(), 2);
    clickKey("Up");
    QCOMPARE(list->currentItem(), 1);
    clickKey("Right softkey");
    QTRY_COMPARE_WITH_TIMEOUT(title(), "Recent Calls", patienceMs);
    clickKey("Left softkey");
    QCOMPARE(title(), "Call Times");
    clickKey("Clear");
    QTRY_COMPARE_WITH_TIMEOUT(title(), "Recent Calls", patienceMs);
    const QList<PhoneKey *> keys = window->findChildren<PhoneKey *>();
    QCOMPARE(keys.size(), 20);
    for (const PhoneKey *key : keys)
        QCOMPARE(key->focusPolicy(), Qt::NoFocus);
}

void TestWindow::theDesktopKeyboardDrivesTheScreens()
{
    QTest::keyClick(window->windowHandle(), Qt::Key_Return);
    QCOMPARE(title(), "Call Times");
    QTest::keyClick(window->windowHandle(), Qt::Key_Escape);
    QTRY_COMPARE_WITH_TIMEOUT(title(), "Recent Calls", patienceMs);
    QTest::keyClick(window->windowHandle(), Qt::Key_F1);
    QCOMPARE(title(), "Call Times");
    QTest::keyClick(window->windowHandle(), Qt::Key_F2);
    QTRY_COMPARE_WITH_TIMEOUT(title(), "Recent Calls", patienceMs);
}

void TestWindow::softkeysWorkWhileThePanelHasTheFocus()
{
    QWidget *dial = button("Dial");
    dial->setFocus();
    QTest::keyClick(window->windowHandle(), Qt::Key_F1);
    QCOMPARE(title(), "Call Times");
    dial->setFocus();
    QTest::keyClick(window->windowHandle(), Qt::Key_Escape);
    QTRY_COMPARE_WITH_TIMEOUT(title(), "Recent Calls", patienceMs);
}

void TestWindow::theMenuHasTheKeysAgainAfterAScreen()
{
    QVERIFY(window->openScreen(0));
    clickKey("Clear");
    QTRY_COMPARE_WITH_TIMEOUT(title(), "Recent Calls", patienceMs);
    QVERIFY(qobject_cast<ZListBox *>(window->focusWidget()));
    QCOMPARE(window->focusWidget(), ZApplication::keyTarget());
}

void TestWindow::exitOnTheMenuClosesTheWindowAndTheClearKeyDoesNot()
{
    clickKey("Clear");
    QCoreApplication::processEvents();
    QVERIFY(window->isVisible());
    clickKey("Right softkey");
    QTRY_VERIFY_WITH_TIMEOUT(!window->isVisible(), patienceMs);
}

void TestWindow::theEndOfTheWindowGivesTheScreenBack()
{
    QVERIFY(window->openScreen(0));
    const QPointer<QWidget> screen = window->findChild<ZKbMainWidget *>("callTime");
    QVERIFY(screen);
    window->close();
    QVERIFY(screen); // it may be waiting for a dialog of its own
    window.reset();
    QVERIFY(!screen);
}

void TestWindow::aWindowClosedOverADialogThatBlocksLetsTheScreenGoOnFirst()
{
    const QString plugin = QStringLiteral(KAV_DOUBLES "/librecording.so");
    ScreenLibrary recording;
    QCOMPARE(recording.load(plugin), QString());
    auto *recorded = reinterpret_cast<RecordedCalls *>(QLibrary::resolve(plugin, "recordedCalls"));
    QVERIFY(recorded);
    QStringList &calls = *recorded();
    window = std::make_unique<PhoneWindow>(recording, PhoneWindow::OpenedHandset{owner, {}, {}});
    showWindow();
    QVERIFY(window->openScreen(0));
    calls.clear();

    QTimer::singleShot(0, window.get(), &QWidget::close);
    clickKey("Select");
    QCOMPARE(calls, (QStringList{"ask", "given up"}));
    window.reset();
    QCOMPARE(calls, (QStringList{"ask", "given up", "destroy callTime", "deleted"}));
}

void TestWindow::buttonsAreEnabledAsTheLinePermits()
{
    const QStringList idle{"Dial", "Dial data call", "Incoming call"};
    QCOMPARE(enabledButtons(), idle);
    QCOMPARE(label("line state"), "Idle");
    click("Dial");
    QCOMPARE(enabledButtons(), (QStringList{"Other side answers", "Hang up"}));
    QCOMPARE(label("line state"), "Dialing, voice call, 5550123");
    click("Other side answers");
    QCOMPARE(enabledButtons(), QStringList{"Hang up"});
    QCOMPARE(label("line state"), "Connected 00:00:00, voice call, 5550123");
    click("Hang up");
    QCOMPARE(enabledButtons(), idle);
    click("Incoming call");
    QCOMPARE(enabledButtons(), (QStringList{"Answer", "Hang up"}));
    QCOMPARE(label("line state"), "Ringing, voice call, 5550123");
    click("Answer");
    QCOMPARE(enabledButtons(), QStringList{"Hang up"});
    click("Hang up");
    click("Dial data call");
    QCOMPARE(label("line state"), "Dialing, data call, 5550123");
    click("Hang up");
    QCOMPARE(label("line state"), "Idle");
}

void TestWindow::aWithheldNumberCanRing()
{
    window->findChild<QLineEdit *>()->clear();
    QCOMPARE(enabledButtons(), QStringList{"Incoming call"});
    click("Incoming call");
    QCOMPARE(label("line state"), "Ringing, voice call, number withheld");
}

void TestWindow::theColouredKeysAnswerDialAndHangUp()
{
    clickKey("Call");
    QCOMPARE(handset->lineState(), SimulatedHandset::LineState::Dialing);
    clickKey("Call"); // nothing to answer, and the line is taken
    QCOMPARE(handset->lineState(), SimulatedHandset::LineState::Dialing);
    clickKey("Hang up");
    QCOMPARE(handset->lineState(), SimulatedHandset::LineState::Idle);
    click("Incoming call");
    clickKey("Call");
    QCOMPARE(handset->lineState(), SimulatedHandset::LineState::Connected);
    clickKey("Hang up");
    QCOMPARE(handset->lineState(), SimulatedHandset::LineState::Idle);
    clickKey("Hang up");
    QCOMPARE(label("line failure"), "");
}

void TestWindow::digitsOfTheKeypadMakeUpTheNumber()
{
    for (const char *key : {"Star", "1", "0", "0", "Hash"})
        clickKey(key);
    QCOMPARE(window->findChild<QLineEdit *>()->text(), "*100#");
    clickKey("Call");
    QCOMPARE(handset->number(), "*100#");
    clickKey("Hang up");
    clickKey("Clear"); // a number that was dialed is no longer being typed
    QCOMPARE(window->findChild<QLineEdit *>()->text(), "*100#");
    clickKey("9");
    QCOMPARE(window->findChild<QLineEdit *>()->text(), "9");
    clickKey("5");
    clickKey("Clear");
    QCOMPARE(window->findChild<QLineEdit *>()->text(), "9");
    window->findChild<QLineEdit *>()->setText("123");
    clickKey("Clear"); // no number of the keypad's
    QCOMPARE(window->findChild<QLineEdit *>()->text(), "123");
    clickKey("9");
    QCOMPARE(window->findChild<QLineEdit *>()->text(), "9");
    for (int i = 0; i < 2; ++i) {
        clickKey("Clear");
        QCOMPARE(window->findChild<QLineEdit *>()->text(), "");
    }
    clickKey("9");

    window->openScreen(0);
    clickKey("Down");
    clickKey("Select"); // a dialog: what is typed is meant for it
    clickKey("8");
    QCOMPARE(window->findChild<QLineEdit *>()->text(), "9");
}

void TestWindow::theRunningTimeAndTheFiguresGoOnBySecond()
{
    click("Incoming call");
    click("Answer");
    QCOMPARE(label("figure Answered calls"), "00:00:00");
    clock->advance(3661000);
    QTRY_COMPARE_WITH_TIMEOUT(label("line state"), "Connected 01:01:01, voice call, 5550123", patienceMs);
    for (const char *figure : {"Last call", "Answered calls", "All calls", "Lifetime calls"})
        QCOMPARE(label(qPrintable(QString("figure ") + figure)), "01:01:01");
    QCOMPARE(label("figure Dialed calls"), "00:00:00");
    QCOMPARE(label("figure Data calls"), "00:00:00");
    click("Hang up");
    click("Dial data call");
    click("Other side answers");
    clock->advance(9000);
    QTRY_COMPARE_WITH_TIMEOUT(label("figure Data calls"), "00:00:09", patienceMs);
    QCOMPARE(label("figure All calls"), "01:01:10");
}

void TestWindow::theReadyMadeHistoryIsAdded()
{
    click("Add a ready-made history");
    QCOMPARE(label("figure Last call"), "00:04:26");
    QCOMPARE(label("figure All calls"), "03:05:19");
    click("Add a ready-made history");
    QCOMPARE(label("figure All calls"), "06:10:38");
    QVERIFY(window->openScreen(0));
    const auto *list = qobject_cast<ZListBox *>(ZApplication::keyTarget());
    QCOMPARE(list->item(4)->value(), "06:10:38");
}

void TestWindow::aRefusedOperationIsToldAndForgotten()
{
    auto *line = window->findChild<QLineEdit *>();
    // What the validator lets nobody type.
    line->setText("call me");
    click("Dial");
    QCOMPARE(label("line failure"), "Not done: the number is not one that can be dialed.");
    QVERIFY(window->findChild<QLabel *>("line failure")->isVisible());
    QCOMPARE(handset->lineState(), SimulatedHandset::LineState::Idle);
    line->setText("123");
    click("Dial");
    QCOMPARE(label("line failure"), "");
    QVERIFY(!window->findChild<QLabel *>("line failure")->isVisible());
}

void TestWindow::stateDirectoryAndNoticeAreShown()
{
    QCOMPARE(label("state directory"), "In memory; gone when the window closes.");
    QVERIFY(!window->findChild<QLabel *>("notice"));
    openWindow(owner, "/some/where", "The old file is kept aside.");
    QCOMPARE(QString(label("state directory")).remove(QChar(0x200b)), "Kept in /some/where");
    QCOMPARE(window->findChild<QLabel *>("state directory")->toolTip(), "/some/where");
    QCOMPARE(label("notice"), "The old file is kept aside.");
}

void TestWindow::aNewTelephoneIsBegunAfterAQuestion()
{
    QVERIFY(!window->findChild<QPushButton *>("new telephone")); // where nobody offers it
    int begun = 0;
    window.reset();
    window = std::make_unique<PhoneWindow>(
        library, PhoneWindow::OpenedHandset{owner, "/some/where", {}, nullptr, [&begun] { ++begun; }});
    showWindow();
    QVERIFY(window->complete());
    const auto answer = [this](const char *text) {
        expectSizeHintWarning();
        window->findChild<QPushButton *>("new telephone")->click();
        auto *question = window->findChild<QMessageBox *>();
        QVERIFY(question && question->isVisible());
        QVERIFY(question->text().contains("is kept in a file beside it"));
        const QList<QAbstractButton *> buttons = question->buttons();
        const auto isIt = [text](const QAbstractButton *button) { return button->text().remove(u'&') == text; };
        const auto found = std::find_if(buttons.begin(), buttons.end(), isIt);
        QVERIFY(found != buttons.end());
        (*found)->click();
        QTRY_VERIFY(!window->findChild<QMessageBox *>());
    };
    answer("Cancel");
    QCOMPARE(begun, 0);
    answer("Begin anew");
    QCOMPARE(begun, 1);
}

void TestWindow::anotherHandsetThanTheSimulatedIsSaid()
{
    openWindow(std::make_shared<LackingHandset>());
    QCOMPARE(label("line state"), "This telephone cannot be driven from here.");
    QCOMPARE(enabledButtons(), QStringList());
    QVERIFY(!button("Add a ready-made history")->isEnabled());
    for (const char *figure :
         {"Last call", "Dialed calls", "Answered calls", "Data calls", "All calls", "Lifetime calls"})
        QCOMPARE(label(qPrintable(QString("figure ") + figure)), "not available");
    clickKey("Call");
    clickKey("Hang up");
    QVERIFY(window->openScreen(0));
    QCOMPARE(title(), "Call Times");
}

void TestWindow::everyControlHasANameAndATabStop()
{
    const QList<QAbstractButton *> buttons = window->findChildren<QAbstractButton *>();
    for (const QAbstractButton *control : buttons) {
        const bool isPhoneKey = qobject_cast<const PhoneKey *>(control);
        if (qobject_cast<const QPushButton *>(control)) {
            QVERIFY2(!control->toolTip().isEmpty(), qPrintable(control->text()));
            QVERIFY2(control->focusPolicy() & Qt::TabFocus, qPrintable(control->text()));
        }
        if (isPhoneKey)
            QVERIFY(!control->accessibleName().isEmpty());
    }
}

static QString spokenName(QObject *object)
{
    const QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(object);
    return interface ? interface->text(QAccessible::Name) : QStringLiteral("(none)");
}

void TestWindow::aValueOfThePanelIsReadWithItsTitle()
{
    openWindow(owner, QStringLiteral("/some/where"));
    const auto spoken = [this](const char *name) { return spokenName(window->findChild<QLabel *>(name)); };
    QCOMPARE(spoken("line state"), "State of the line: " + label("line state"));
    QCOMPARE(spoken("state directory"), "Where the state is kept: Kept in /some/where");
    click("Incoming call");
    click("Answer");
    clock->advance(65000);
    click("Hang up");
    QCOMPARE(spoken("figure Last call"), "Last call: 00:01:05");
    QCOMPARE(QAccessible::queryAccessibleInterface(window->findChild<QLabel *>("line state"))->role(),
             QAccessible::StaticText);
}

void TestWindow::digitsOfTheKeyboardAreThePhones()
{
    for (const Qt::Key key : {Qt::Key_Asterisk, Qt::Key_1, Qt::Key_0, Qt::Key_0, Qt::Key_NumberSign})
        QTest::keyClick(window->windowHandle(), key);
    QCOMPARE(window->findChild<QLineEdit *>()->text(), "*100#");
    button("Dial")->setFocus();
    QTest::keyClick(window->windowHandle(), Qt::Key_7); // no field has the focus
    QCOMPARE(window->findChild<QLineEdit *>()->text(), "*100#7");
    auto *number = window->findChild<QLineEdit *>();
    number->setFocus();
    number->selectAll();
    QTest::keyClick(window->windowHandle(), Qt::Key_8); // types it once
    QCOMPARE(number->text(), "8");
    window->openScreen(0);
    clickKey("Down");
    clickKey("Select"); // a dialog: what is typed is meant for it
    QTest::keyClick(ZApplication::keyTarget(), Qt::Key_9);
    QCOMPARE(number->text(), "8");
}

void TestWindow::theKeyboardHasTheColouredKeys()
{
    QTest::keyClick(window->windowHandle(), Qt::Key_F3);
    QCOMPARE(handset->lineState(), SimulatedHandset::LineState::Dialing);
    QTest::keyClick(window->windowHandle(), Qt::Key_F4);
    QCOMPARE(handset->lineState(), SimulatedHandset::LineState::Idle);
    click("Incoming call");
    window->findChild<QLineEdit *>()->setFocus(); // from anywhere in the window
    QTest::keyClick(window->windowHandle(), Qt::Key_F3);
    QCOMPARE(handset->lineState(), SimulatedHandset::LineState::Connected);
    QTest::keyClick(window->windowHandle(), Qt::Key_F4);
    QCOMPARE(handset->lineState(), SimulatedHandset::LineState::Idle);
}

void TestWindow::aDoubleClickOnAMenuRowOpensOneScreen()
{
    const auto *menu = window->findChild<ZListBox *>();
    const auto *rows = menu->viewport();
    for (int row = 0; row < menu->count(); ++row) {
        QTest::mouseDClick(window->windowHandle(), Qt::LeftButton, {},
                           rows->mapTo(window.get(), menu->visualRect(menu->model()->index(row, 0)).center()));
        QCOMPARE(title(), menu->item(row)->title());
        QTest::keyClick(window->windowHandle(), Qt::Key_Escape);
        QTRY_COMPARE_WITH_TIMEOUT(title(), "Recent Calls", patienceMs);
    }
}

// A caption of the display's softkey bar, as the user sees it.
static const QWidget *softkeyCaption(const QString &text)
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (const QWidget *widget : widgets) {
        if (widget->isVisible() && qobject_cast<const ZSoftKey *>(widget->parentWidget()) &&
            widget->accessibleName() == text)
            return widget;
    }
    return nullptr;
}

static int globalCentre(const QWidget *widget)
{
    return widget->mapToGlobal(widget->rect().center()).x();
}

// The one of the two softkeys that is nearest to a point of the display above them.
static PhoneKey *keyUnder(const QWidget &window, int x)
{
    auto *left = window.findChild<PhoneKey *>("key Left softkey");
    auto *right = window.findChild<PhoneKey *>("key Right softkey");
    return std::abs(globalCentre(left) - x) < std::abs(globalCentre(right) - x) ? left : right;
}

void TestWindow::theKeyUnderACaptionAnswersItAlsoRightToLeft_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<quint32>("secondsAfterwards");
    QTest::newRow("left to right, No keeps the figure") << Qt::LeftToRight << "No" << 9U;
    QTest::newRow("left to right, Yes resets it") << Qt::LeftToRight << "Yes" << 0U;
    QTest::newRow("right to left, No keeps the figure") << Qt::RightToLeft << "No" << 9U;
    QTest::newRow("right to left, Yes resets it") << Qt::RightToLeft << "Yes" << 0U;
}

void TestWindow::theKeyUnderACaptionAnswersItAlsoRightToLeft()
{
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(QString, caption);
    QFETCH(quint32, secondsAfterwards);
    const auto direct = qScopeGuard([] { QGuiApplication::setLayoutDirection(Qt::LeftToRight); });
    QGuiApplication::setLayoutDirection(direction);
    openWindow(owner);
    click("Dial");
    click("Other side answers");
    clock->advance(9000);
    click("Hang up");

    QVERIFY(window->openScreen(0));
    clickKey("Down");
    clickKey("Select"); // resets the dialed calls, after a question
    QTRY_VERIFY_WITH_TIMEOUT(softkeyCaption(caption), patienceMs);
    QTest::mouseClick(keyUnder(*window, globalCentre(softkeyCaption(caption))), Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(!softkeyCaption(caption), patienceMs);
    handset::CallTime time;
    QCOMPARE(owner->callLog()->dialedCallsTime(time), 0);
    QCOMPARE(time, handset::CallTime::fromSeconds(secondsAfterwards));
}

void TestWindow::theKeypadLooksTheSameRightToLeft()
{
    const QImage direct = window->findChild<Keypad *>()->grab().toImage();
    const auto back = qScopeGuard([] { QGuiApplication::setLayoutDirection(Qt::LeftToRight); });
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    openWindow(owner);
    QCOMPARE(window->findChild<Keypad *>()->grab().toImage(), direct);
}

// What stands at the foot of the menu, from above; nothing where it is not on show.
QStringList TestWindow::toldOfCalls() const
{
    QStringList texts;
    const auto *notice = window->findChild<QWidget *>("call notice");
    for (const QLabel *label : notice->findChildren<QLabel *>()) {
        if (label->isVisible())
            texts << label->text().remove(QChar(0x200b)); // a place to break the line
    }
    return texts;
}

void TestWindow::type(const char *digits) const
{
    for (const char *digit = digits; *digit; ++digit)
        QTest::keyClick(window->windowHandle(), *digit);
}

void TestWindow::thePhoneTellsOfACallFromItsDigitsToItsCost()
{
    QVERIFY(handset->simCard().setPriceAndCurrency("0.23", "EUR") == 0 &&
            handset->simCard().setChargeType(1) == 0);
    QCOMPARE(handset->charging()->setTariff(handset::CallDirection::Dialed, {10, 100}), 0);
    QCOMPARE(toldOfCalls(), QStringList());
    type("555");
    QCOMPARE(toldOfCalls(), QStringList({"Number to dial", "555"}));
    QTest::keyClick(window->windowHandle(), Qt::Key_Escape);
    QCOMPARE(toldOfCalls(), QStringList({"Number to dial", "55"}));
    QTest::keyClick(window->windowHandle(), Qt::Key_F3);
    QCOMPARE(toldOfCalls(), QStringList({"Dialing", "55"}));
    click("Other side answers");
    QCOMPARE(toldOfCalls(), QStringList({"Connected", "55", "00:00:00", "0.00 EUR"}));
    clock->advance(65'000);
    QTRY_COMPARE_WITH_TIMEOUT(toldOfCalls(), QStringList({"Connected", "55", "00:01:05", "1.38 EUR"}), patienceMs);
    type("7");
    QCOMPARE(toldOfCalls().last(), "7");
    QTest::keyClick(window->windowHandle(), Qt::Key_Escape);
    QTest::keyClick(window->windowHandle(), Qt::Key_F4);
    QCOMPARE(toldOfCalls(), QStringList({"Call ended", "55", "00:01:05", "1.38 EUR"}));
}

void TestWindow::thePhoneTellsWhoCallsAndWhomNobodyAnswered()
{
    click("Incoming call");
    QCOMPARE(toldOfCalls(), QStringList({"Incoming call", "5550123"}));
    clickKey("Hang up");
    QCOMPARE(toldOfCalls(), QStringList({"Not answered", "5550123"}));
    window->findChild<QLineEdit *>()->clear();
    click("Incoming call");
    QCOMPARE(toldOfCalls(), QStringList({"Incoming call", "Number withheld"}));
    clickKey("Call");
    QCOMPARE(toldOfCalls(), QStringList({"Connected", "Number withheld", "00:00:00", "0.00 units"}));
}

void TestWindow::thePhoneWarnsBeforeItEndsACallAndSaysWhyItDid()
{
    QCOMPARE(handset->charging()->setTariff(handset::CallDirection::Dialed, {10, 100}), 0);
    QCOMPARE(handset->charging()->topUp("10", {2007, 3, 9}), 0);
    clickKey("Call");
    click("Other side answers");
    QCOMPARE(toldOfCalls(), QStringList({"Connected", "5550123", "00:00:00", "0.00 units"}));
    clock->advance(82'000);
    QTRY_COMPARE_WITH_TIMEOUT(
        toldOfCalls(),
        QStringList({"Connected", "5550123", "00:01:22", "8.00 units", "The credit is used up in 18 s."}),
        patienceMs);
    clock->advance(18'000);
    QTRY_COMPARE_WITH_TIMEOUT(toldOfCalls(),
                              QStringList({"Call ended", "5550123", "00:01:40", "10.00 units",
                                           "The telephone has ended the call: the credit is used up."}),
                              patienceMs);
}

void TestWindow::whatACallHasCostGoesWhenTheUserGoesOn_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("with the red key") << "Hang up";
    QTest::newRow("with the clear key") << "Clear";
    QTest::newRow("with the next number") << "5";
    QTest::newRow("with the next call") << "Call";
    QTest::newRow("with a screen") << "Select";
}

void TestWindow::whatACallHasCostGoesWhenTheUserGoesOn()
{
    QFETCH(QString, key);
    click("Incoming call");
    clickKey("Call");
    clickKey("Hang up");
    clickKey("Down"); // reads on
    QCOMPARE(toldOfCalls().first(), "Call ended");
    clickKey(qPrintable(key));
    clickKey("Clear"); // leaves the screen, takes back the digit
    QTRY_COMPARE_WITH_TIMEOUT(title(), "Recent Calls", patienceMs);
    clickKey("Hang up");
    const QStringList told = toldOfCalls();
    QVERIFY2(told.isEmpty() || told.first() == "Not answered", qPrintable(told.join(u',')));
}

void TestWindow::aTypedNumberIsForgottenByTheRedKeyAndStaysInThePanel()
{
    type("555");
    QTest::keyClick(window->windowHandle(), Qt::Key_F4);
    QCOMPARE(toldOfCalls(), QStringList());
    QCOMPARE(window->findChild<QLineEdit *>()->text(), "555");
    type("7");
    QCOMPARE(toldOfCalls(), QStringList({"Number to dial", "7"}));
}

void TestWindow::aNumberOfEightySignsFitsOnTheDisplay()
{
    type(QByteArray(80, '#').constData());
    QCOMPARE(toldOfCalls().last(), QString(80, u'#'));
    const auto *number = window->findChild<QLabel *>("call number");
    QVERIFY(number->height() >= number->heightForWidth(number->width()));
    clickKey("Call");
    click("Other side answers");
    const auto *notice = window->findChild<QWidget *>("call notice");
    QVERIFY(notice->rect().contains(window->findChild<QWidget *>("call cost so far")->geometry()));
}

void TestWindow::callsAreToldBelowTheRowsAndUnderTheScreens()
{
    click("Incoming call");
    const auto *notice = window->findChild<QWidget *>("call notice");
    const auto *list = window->findChild<ZListBox *>();
    const QRect lastRow = list->visualRect(list->model()->index(list->count() - 1, 0));
    QVERIFY(notice->mapTo(window.get(), QPoint()).y() >
            list->viewport()->mapTo(window.get(), lastRow.bottomLeft()).y());
    QVERIFY(!notice->visibleRegion().isEmpty());
    window->openScreen(0);
    QVERIFY(notice->visibleRegion().isEmpty());
}

void TestWindow::oneSeesWhetherTheKeysGoToThePhone()
{
    const auto *frame = window->findChild<QWidget *>("keys frame");
    QVERIFY(frame->isVisible());
    window->findChild<QLineEdit *>()->setFocus();
    QVERIFY(!frame->isVisible());
    window->openScreen(0); // has the keys
    QVERIFY(frame->isVisible());
    clickKey("Down");
    clickKey("Select"); // a dialog, whatever window it is in
    QVERIFY(frame->isVisible());
    const QWidget *display = ZApplication::display();
    QVERIFY(frame->parentWidget() == display->parentWidget() && frame->geometry().contains(display->geometry()));
}

// 1024 x 600, of which a title takes its part.
void TestWindow::theWholePhoneIsSeenOnALowScreen()
{
    window->resize(1024, 560);
    const auto *display = window->findChild<host::Display *>();
    QTRY_COMPARE(window->height(), 560);
    QCOMPARE(display->size(), QSize(240, 320));
    QVERIFY(window->rect().contains(QRect(display->mapTo(window.get(), QPoint()), display->size())));
    const QList<PhoneKey *> keys = window->findChildren<PhoneKey *>();
    QCOMPARE(keys.size(), 20);
    for (const PhoneKey *key : keys) {
        QCOMPARE(key->visibleRegion().boundingRect(), key->rect());
        QVERIFY(key->height() >= 16);
        QVERIFY(key->mapTo(window.get(), QPoint()).y() >
                display->mapTo(window.get(), display->rect().bottomLeft()).y());
    }
}

void TestWindow::placeAndSizeAreKept()
{
    QStandardPaths::setTestModeEnabled(true);
    const auto back = qScopeGuard([] { QStandardPaths::setTestModeEnabled(false); });
    window->setGeometry(30, 40, 760, 740);
    const QPoint place = window->pos();
    keepPlace(*window);
    makeWindow([] {});
    QVERIFY(window->size() != QSize(760, 740));
    takePlace(*window);
    showWindow();
    QCOMPARE(window->size(), QSize(760, 740));
    QCOMPARE(window->pos(), place);
}

void TestWindow::aPlaceThatCannotBeReadIsNone()
{
    QStandardPaths::setTestModeEnabled(true);
    const auto back = qScopeGuard([] { QStandardPaths::setTestModeEnabled(false); });
    QFile kept(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/kavcallmeter/window");
    const QRect usual = window->geometry();
    for (const QByteArray &content : {QByteArray(), QByteArray("nonsense"), QByteArray(100'000, '\1')}) {
        QVERIFY(QDir().mkpath(QFileInfo(kept).path()));
        QVERIFY(kept.open(QIODevice::WriteOnly));
        kept.write(content);
        kept.close();
        takePlace(*window);
        QCOMPARE(window->geometry(), usual);
    }
    QVERIFY(kept.remove());
}

KAV_TEST_GROUP(TestWindow, QApplication);
#include "tst_window.moc"
