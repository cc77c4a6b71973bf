#include "toolkit/DialogTestKit.h"

#include "handset/DecoratedHandset.h"
#include "security/PinEntryDlg.h"
#include "security/SETUP_SECURITY_Util.h"
#include "support/RecordingTranslator.h"
#include "support/TestGroup.h"
#include "toolkit/ZApplication.h"
#include "toolkit/ZLabel.h"
#include "toolkit/ZSkinService.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QPoint>
#include <QtCore/QTimer>
#include <QtCore/QTimerEvent>
#include <QtGui/QImage>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <functional>

using namespace DialogTestKit;
using namespace ToolkitTestKit;

namespace {

/// A handset of nothing but a SIM.
class SimOnlyHandset : public handset::DecoratedHandset<SimOnlyHandset>
{
public:
    struct {
        QByteArray code = "4711";
        int tries = 3;
        int statusOfPinStatus = handset::Success;
        int statusOfTriesLeft = handset::Success;
        int statusOfVerifyPin = handset::Success;
        QList<QByteArray> presented;
        QList<int> pins;
        const char *lastSeenAt = nullptr;
        std::function<void()> whenTriesAreAsked;
    } sim;

    std::optional<int> before(int, const quint8 &pin, quint32 &status)
    {
        sim.pins << pin;
        if (sim.statusOfPinStatus == handset::Success)
            status = sim.tries > 0 ? handset::SimSecurity::EntryNeeded : handset::SimSecurity::Blocked;
        return sim.statusOfPinStatus;
    }
    std::optional<int> before(int, const quint8 &pin, int &left)
    {
        sim.pins << pin;
        if (sim.whenTriesAreAsked)
            sim.whenTriesAreAsked();
        if (sim.statusOfTriesLeft == handset::Success)
            left = sim.tries;
        return sim.statusOfTriesLeft;
    }
    std::optional<int> before(int, const quint8 &pin, const QByteArray &digits, bool &accepted)
    {
        sim.pins << pin;
        sim.lastSeenAt = digits.constData();
        sim.presented << QByteArray(digits.constData(), digits.size());
        if (sim.statusOfVerifyPin != handset::Success)
            return sim.statusOfVerifyPin;
        accepted = sim.presented.last() == sim.code;
        sim.tries = accepted ? 3 : sim.tries - 1;
        return handset::Success;
    }
    using DecoratedHandset::before;
};

ZPopup *shownPopup()
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        auto *popup = qobject_cast<ZPopup *>(widget);
        if (popup && popup->isVisible())
            return popup;
    }
    return nullptr;
}

QString shownText()
{
    const ZPopup *popup = shownPopup();
    return popup ? popup->header() + QLatin1Char('|') + popup->accessibleDescription() : QStringLiteral("nothing");
}

// Does one step whenever the entry waits for its user.
class User : public QObject
{
public:
    explicit User(QList<std::function<void()>> deeds)
        : steps(std::move(deeds))
    {
        sinceLastStep.start();
        startTimer(0);
    }

    bool isDone() const { return steps.isEmpty() && !gaveUp; }

protected:
    void timerEvent(QTimerEvent *) override
    {
        if (!steps.isEmpty()) {
            steps.takeFirst()();
            sinceLastStep.start();
        } else if (sinceLastStep.hasExpired(60000)) {
            giveUp();
        }
    }

private:
    // Nobody answers any more: the test is to fail, not to hang.
    void giveUp()
    {
        gaveUp = true;
        delete shownPopup();
    }

    QList<std::function<void()>> steps;
    QElapsedTimer sinceLastStep;
    bool gaveUp = false;
};

struct Result {
    int result = -1;
    SETUP_SECURITY_PINTYPE_E pin = SETUP_SECURITY_PIN2;
    SETUP_SECURITY_PINVERIFY_ERR_E error = SETUP_SECURITY_VERIFY_OK;

    bool isAccepted() const { return result != 0 && error == SETUP_SECURITY_VERIFY_OK; }
};

Result verify(QWidget *parent, SETUP_SECURITY_PINTYPE_E pin = SETUP_SECURITY_PIN2)
{
    Result answer;
    answer.pin = pin;
    answer.result = SETUP_SECURITY_Util::verifyPin(answer.pin, SETUP_SECURITY_SK_OK_CANCEL, answer.error, parent);
    return answer;
}

std::function<void()> keys(const char *text)
{
    return [text] { pressKeys(text); };
}

std::function<void()> key(int qtKey)
{
    return [qtKey] { pressKey(qtKey); };
}

int messages = 0; // that went to the log

void countMessages(QtMsgType, const QMessageLogContext &, const QString &)
{
    ++messages;
}

} // namespace

class TestVerifyPin : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theRightPinIsAccepted();
    void everyKeyThatConfirmsConfirms_data();
    void everyKeyThatConfirmsConfirms();
    void aWrongPinIsSaidAndAskedAgainWithTheNewCount();
    void theThirdWrongPinBlocksAndThatIsSaid();
    void aBlockedPinIsNotAskedFor();
    void aSimThatCannotBeAskedIsSaid_data();
    void aSimThatCannotBeAskedIsSaid();
    void aPinThatTheSimRefusesToLookAtIsBlocked();
    void aSimThatDoesNotTellTheTriesIsAskedAllTheSame();
    void theUserCanGiveUp_data();
    void theUserCanGiveUp();
    void theBackspaceKeyTakesBackDigitsAndThenGivesUp();
    void theHashKeyTakesBackAndNeverGivesUp();
    void fewerThanFourDigitsDoNotConfirm();
    void moreThanEightDigitsAreNotTaken();
    void aHeldKeyIsOneDigit();
    void otherKeysTypeNothing();
    void theEntryLooksTheSameWhateverTheDigits();
    void noTextAnywhereHasTheDigits();
    void theDigitsAreOverwrittenOnceTheSimHasSeenThem();
    void nothingIsWrittenToAnyLog();
    void theEntryIsModalOverItsScreen();
    void theOtherPinIsAskedForByItsName();
    void aNumberThatIsNoPinFails();
    void aSecondCallIsRefusedWhileTheFirstIsOpen();
    void theEntryEndsWhenWhatIsAroundItGoes_data();
    void theEntryEndsWhenWhatIsAroundItGoes();
    void aMessageEndsWhenItsScreenGoes();
    void theEntryEndsWithTheApplication();
    void nobodyIsAskedOverAHiddenScreen();
    void withoutAScreenTheEntryLiesOverTheDisplay();
    void anotherHandsetInstalledMeanwhileIsTheOneAsked();
    void theEntryCanBeOpenedByAKeyPress();
    void everyTextIsAskedForByItsKeyAndItsEnglish_data();
    void everyTextIsAskedForByItsKeyAndItsEnglish();
    void theEntryHasItsFieldInAFrameAndItsLegendBelow();

private:
    std::shared_ptr<SimOnlyHandset> handset;
    std::unique_ptr<ListScreen> screen;
};

void TestVerifyPin::init()
{
    noWarnings();
    handset = std::make_shared<SimOnlyHandset>();
    handset::install(handset);
    screen = std::make_unique<ListScreen>();
    screen->addRows(3);
    screen->show();
}

void TestVerifyPin::cleanup()
{
    screen.reset();
    handset::install(nullptr);
    handset.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void TestVerifyPin::theRightPinIsAccepted()
{
    QString text;
    User user({[&] { text = shownText(); }, keys("4711"), key(Qt::Key_Context1)});
    const Result answer = verify(screen.get());
    QVERIFY(user.isDone());
    QVERIFY(answer.isAccepted());
    QCOMPARE(answer.pin, SETUP_SECURITY_PIN2);
    QCOMPARE(text, QStringLiteral("Enter PIN2|Tries left: 3"));
    QCOMPARE(handset->sim.presented, QList<QByteArray>{"4711"});
    QCOMPARE(handset->sim.pins, QList<int>(3, 1));
    QCOMPARE(ZApplication::keyTarget(), screen->list);
}

void TestVerifyPin::everyKeyThatConfirmsConfirms_data()
{
    QTest::addColumn<int>("confirm");
    QTest::newRow("the left softkey") << int(Qt::Key_Context1);
    QTest::newRow("the left softkey of a keyboard") << int(Qt::Key_F1);
    QTest::newRow("the select key") << int(Qt::Key_Select);
    QTest::newRow("the Enter key") << int(Qt::Key_Return);
}

void TestVerifyPin::everyKeyThatConfirmsConfirms()
{
    QFETCH(int, confirm);
    User user({keys("4711"), key(confirm)});
    QVERIFY(verify(screen.get()).isAccepted());
}

void TestVerifyPin::aWrongPinIsSaidAndAskedAgainWithTheNewCount()
{
    QStringList texts;
    const auto look = [&] { texts << shownText(); };
    User user({look, keys("0000"), key(Qt::Key_Select), look, keys("00001111"), key(Qt::Key_Select), look,
               keys("4711"), key(Qt::Key_Select)});
    QVERIFY(verify(screen.get()).isAccepted());
    QVERIFY(user.isDone());
    QCOMPARE(texts, QStringList({QStringLiteral("Enter PIN2|Tries left: 3"),
                                 QStringLiteral("Enter PIN2|Wrong PIN2. Tries left: 2"),
                                 QStringLiteral("Enter PIN2|Wrong PIN2. Tries left: 1")}));
    QCOMPARE(handset->sim.presented, QList<QByteArray>({"0000", "00001111", "4711"}));
}

void TestVerifyPin::theThirdWrongPinBlocksAndThatIsSaid()
{
    handset->sim.tries = 1;
    QString text;
    User user({keys("0000"), key(Qt::Key_Select), [&] { text = shownText(); }, key(Qt::Key_Context1)});
    const Result answer = verify(screen.get());
    QVERIFY(user.isDone());
    QCOMPARE(answer.result, 0);
    QCOMPARE(answer.error, SETUP_SECURITY_VERIFY_BLOCKED);
    QCOMPARE(text, QStringLiteral("PIN2|PIN2 is blocked. Only PUK2 can unblock it."));
    QCOMPARE(handset->sim.presented.size(), 1);
    QVERIFY(!shownPopup());
}

void TestVerifyPin::aBlockedPinIsNotAskedFor()
{
    handset->sim.tries = 0;
    QString text;
    User user({[&] { text = shownText(); }, key(Qt::Key_Clear)});
    const Result answer = verify(screen.get());
    QCOMPARE(answer.result, 0);
    QCOMPARE(answer.error, SETUP_SECURITY_VERIFY_BLOCKED);
    QCOMPARE(text, QStringLiteral("PIN2|PIN2 is blocked. Only PUK2 can unblock it."));
    QVERIFY(handset->sim.presented.isEmpty());
}

void TestVerifyPin::aSimThatCannotBeAskedIsSaid_data()
{
    QTest::addColumn<bool>("hasHandset");
    QTest::addColumn<bool>("hasSim");
    QTest::addColumn<int>("pinStatus");
    QTest::addColumn<int>("verifyPin");
    QTest::newRow("no telephone at all") << false << false << 0 << 0;
    QTest::newRow("a telephone without a SIM") << true << false << 0 << 0;
    QTest::newRow("a SIM that does not answer") << true << true << int(handset::NotAvailable) << 0;
    QTest::newRow("a SIM that fails while it looks at the PIN")
        << true << true << 0 << int(handset::StorageFailed);
    QTest::newRow("a SIM with a failure of its own") << true << true << 0 << 4242;
}

void TestVerifyPin::aSimThatCannotBeAskedIsSaid()
{
    QFETCH(bool, hasHandset);
    QFETCH(bool, hasSim);
    QFETCH(int, pinStatus);
    QFETCH(int, verifyPin);
    if (!hasSim)
        handset->takeAway("SimSecurity");
    handset->sim.statusOfPinStatus = pinStatus;
    handset->sim.statusOfVerifyPin = verifyPin;
    if (!hasHandset)
        handset::install(nullptr);
    QString text;
    QList<std::function<void()>> steps = {[&] { text = shownText(); }, key(Qt::Key_Select)};
    if (verifyPin != 0)
        steps = QList<std::function<void()>>{keys("4711"), key(Qt::Key_Select)} + steps;
    User user(steps);
    const Result answer = verify(screen.get());
    QVERIFY(user.isDone());
    QCOMPARE(answer.result, 0);
    QCOMPARE(answer.error, SETUP_SECURITY_VERIFY_FAILED);
    QCOMPARE(text, QStringLiteral("PIN2|The SIM card cannot be asked for PIN2."));
}

void TestVerifyPin::aPinThatTheSimRefusesToLookAtIsBlocked()
{
    handset->sim.statusOfVerifyPin = handset::NotAllowed;
    User user({keys("4711"), key(Qt::Key_Select), key(Qt::Key_Select)});
    const Result answer = verify(screen.get());
    QCOMPARE(answer.result, 0);
    QCOMPARE(answer.error, SETUP_SECURITY_VERIFY_BLOCKED);
}

void TestVerifyPin::aSimThatDoesNotTellTheTriesIsAskedAllTheSame()
{
    handset->sim.statusOfTriesLeft = handset::NotAvailable;
    QStringList texts;
    const auto look = [&] { texts << shownText(); };
    User user({look, keys("0000"), key(Qt::Key_Select), look, keys("4711"), key(Qt::Key_Select)});
    QVERIFY(verify(screen.get()).isAccepted());
    QCOMPARE(texts, QStringList({QStringLiteral("Enter PIN2|"), QStringLiteral("Enter PIN2|Wrong PIN2")}));
}

void TestVerifyPin::theUserCanGiveUp_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("last");
    QTest::newRow("by the right softkey at once") << "" << int(Qt::Key_Context2);
    QTest::newRow("by the right softkey after digits") << "471" << int(Qt::Key_Context2);
    QTest::newRow("by the right softkey of a keyboard") << "4711" << int(Qt::Key_F2);
    QTest::newRow("by the clear key at once") << "" << int(Qt::Key_Clear);
    QTest::newRow("by the clear key after digits") << "471" << int(Qt::Key_Clear);
    QTest::newRow("by the clear key after digits enough") << "4711" << int(Qt::Key_Clear);
    QTest::newRow("by the Backspace key at once") << "" << int(Qt::Key_Backspace);
    QTest::newRow("by the Escape key at once") << "" << int(Qt::Key_Escape);
    QTest::newRow("by the Escape key after digits") << "4711" << int(Qt::Key_Escape);
    QTest::newRow("by the Back key after digits") << "4711" << int(Qt::Key_Back);
}

void TestVerifyPin::theUserCanGiveUp()
{
    QFETCH(QString, typed);
    QFETCH(int, last);
    const QByteArray text = typed.toLatin1();
    User user({keys(text.constData()), key(last)});
    const Result answer = verify(screen.get());
    QVERIFY(user.isDone());
    QCOMPARE(answer.result, 0);
    QCOMPARE(answer.error, SETUP_SECURITY_VERIFY_CANCELLED);
    QVERIFY(handset->sim.presented.isEmpty());
    QCOMPARE(handset->sim.tries, 3);
}

void TestVerifyPin::theBackspaceKeyTakesBackDigitsAndThenGivesUp()
{
    constexpr int back = Qt::Key_Backspace;
    {
        User user({keys("4712"), key(back), keys("1"), key(Qt::Key_Select)});
        QVERIFY(verify(screen.get()).isAccepted());
    }
    bool wasOpenWhenEmpty = false;
    User user({keys("47"), key(back), key(back), [&] { wasOpenWhenEmpty = shownPopup(); },
               // A key that is held empties the field and stops there.
               [&] { press(ZApplication::keyTarget(), back, true); },
               [&] { wasOpenWhenEmpty = wasOpenWhenEmpty && shownPopup(); }, key(back)});
    QCOMPARE(verify(screen.get()).error, SETUP_SECURITY_VERIFY_CANCELLED);
    QVERIFY(user.isDone());
    QVERIFY(wasOpenWhenEmpty);
}

void TestVerifyPin::theHashKeyTakesBackAndNeverGivesUp()
{
    User user({keys("47##########4712#1"), key(Qt::Key_Select)});
    QVERIFY(verify(screen.get()).isAccepted());
}

void TestVerifyPin::fewerThanFourDigitsDoNotConfirm()
{
    bool wasEnabled = true;
    User user({keys("471"), key(Qt::Key_Select), key(Qt::Key_Context1),
               [&] { wasEnabled = shownPopup()->softKey()->isButtonEnabled(ZSoftKey::LeftKey); }, keys("1"),
               key(Qt::Key_Select)});
    QVERIFY(verify(screen.get()).isAccepted());
    QVERIFY(!wasEnabled);
    QCOMPARE(handset->sim.presented.size(), 1);
}

void TestVerifyPin::moreThanEightDigitsAreNotTaken()
{
    handset->sim.code = "12345678";
    User user({keys("1234567899"), key(Qt::Key_Select)});
    QVERIFY(verify(screen.get()).isAccepted());
}

void TestVerifyPin::aHeldKeyIsOneDigit()
{
    User user(
        {keys("4"), [] { press(ZApplication::keyTarget(), Qt::Key_4, true); }, keys("711"), key(Qt::Key_Select)});
    QVERIFY(verify(screen.get()).isAccepted());
}

void TestVerifyPin::otherKeysTypeNothing()
{
    User user({keys("47"), keys("*"), key(Qt::Key_A), key(Qt::Key_Up), key(Qt::Key_Down), key(Qt::Key_Left),
               [] { QTest::keyClick(ZApplication::keyTarget(), Qt::Key_1, Qt::ControlModifier); },
               [] { QTest::keyClick(ZApplication::keyTarget(), Qt::Key_1, Qt::KeypadModifier); }, keys("1"),
               key(Qt::Key_Select)});
    QVERIFY(verify(screen.get()).isAccepted());
}

void TestVerifyPin::theEntryLooksTheSameWhateverTheDigits()
{
    QList<QImage> looks;
    const auto look = [&] { looks << screen->grab().toImage(); };
    for (const char *digits : {"1234", "9087"}) {
        User user({look, keys(digits), look, key(Qt::Key_Context2)});
        verify(screen.get());
    }
    QCOMPARE(looks.size(), 4);
    QCOMPARE(looks.at(0), looks.at(2));
    QCOMPARE(looks.at(1), looks.at(3));
    QVERIFY2(looks.at(0) != looks.at(1), "the digits typed cannot be counted");
}

void TestVerifyPin::noTextAnywhereHasTheDigits()
{
    QStringList texts;
    const auto read = [&] {
        const QObjectList objects = QList<QObject *>{shownPopup()} + shownPopup()->findChildren<QObject *>();
        for (const QObject *object : objects) {
            const QMetaObject *meta = object->metaObject();
            for (int i = 0; i < meta->propertyCount(); ++i)
                texts << meta->property(i).read(object).toString();
        }
    };
    User user({keys("90817263"), read, key(Qt::Key_Context2)});
    verify(screen.get());
    QVERIFY(user.isDone());
    QVERIFY(texts.contains(QString(8, QChar(0x2022))));
    QVERIFY(texts.filter(QStringLiteral("9081")).isEmpty());
    QVERIFY(texts.filter(QStringLiteral("7263")).isEmpty());
}

void TestVerifyPin::theDigitsAreOverwrittenOnceTheSimHasSeenThem()
{
    int looks = 0;
    bool anyDigit = false;
    handset->sim.whenTriesAreAsked = [&] {
        const char *place = handset->sim.lastSeenAt; // in the entry, which is still there
        for (int i = 0; place && i < 8; ++i, ++looks)
            anyDigit = anyDigit || place[i] != 0;
    };
    User user({keys("12345678"), key(Qt::Key_Select), keys("4711"), key(Qt::Key_Select)});
    QVERIFY(verify(screen.get()).isAccepted());
    QCOMPARE(looks, 8);
    QVERIFY(!anyDigit);
}

void TestVerifyPin::nothingIsWrittenToAnyLog()
{
    messages = 0;
    const QtMessageHandler before = qInstallMessageHandler(countMessages);
    User user({keys("0000"), key(Qt::Key_Select), keys("4711"), key(Qt::Key_Select)});
    const Result answer = verify(screen.get());
    qInstallMessageHandler(before);
    QVERIFY(answer.isAccepted());
    QCOMPARE(messages, 0);
}

void TestVerifyPin::theEntryIsModalOverItsScreen()
{
    int chosenRows = 0;
    connect(screen->list, &ZListBox::itemChosen, this, [&] { ++chosenRows; });
    int current = -1;
    User user({[&] {
                   QTest::mouseClick(screen->window(), Qt::LeftButton, Qt::NoModifier, QPoint(100, 40));
                   QTest::mouseClick(shownPopup(), Qt::LeftButton, Qt::NoModifier, QPoint(100, 40));
               },
               key(Qt::Key_Down), key(Qt::Key_Select), [&] { current = screen->list->currentItem(); },
               key(Qt::Key_Context2)});
    QCOMPARE(verify(screen.get()).error, SETUP_SECURITY_VERIFY_CANCELLED);
    QCOMPARE(chosenRows, 0);
    QCOMPARE(current, 0);
}

void TestVerifyPin::theOtherPinIsAskedForByItsName()
{
    QString text;
    User user({[&] { text = shownText(); }, keys("4711"), key(Qt::Key_Select)});
    const Result answer = verify(screen.get(), SETUP_SECURITY_PIN1);
    QVERIFY(answer.isAccepted());
    QCOMPARE(answer.pin, SETUP_SECURITY_PIN1);
    QCOMPARE(text, QStringLiteral("Enter PIN1|Tries left: 3"));
    QCOMPARE(handset->sim.pins, QList<int>(3, 0));
}

void TestVerifyPin::aNumberThatIsNoPinFails()
{
    QTest::ignoreMessage(QtWarningMsg, "SETUP_SECURITY_Util::verifyPin: there is no PIN 7");
    const Result answer = verify(screen.get(), static_cast<SETUP_SECURITY_PINTYPE_E>(7));
    QCOMPARE(answer.result, 0);
    QCOMPARE(answer.error, SETUP_SECURITY_VERIFY_FAILED);
    QVERIFY(handset->sim.pins.isEmpty());
}

void TestVerifyPin::aSecondCallIsRefusedWhileTheFirstIsOpen()
{
    Result second;
    User user({[&] { second = verify(screen.get()); }, keys("4711"), key(Qt::Key_Select)});
    QVERIFY(verify(screen.get()).isAccepted());
    QCOMPARE(second.result, 0);
    QCOMPARE(second.error, SETUP_SECURITY_VERIFY_CANCELLED);
    User again({keys("4711"), key(Qt::Key_Select)});
    QVERIFY(verify(screen.get()).isAccepted());
}

using Deed = std::function<void(std::unique_ptr<ListScreen> &)>;
Q_DECLARE_METATYPE(Deed)

void TestVerifyPin::theEntryEndsWhenWhatIsAroundItGoes_data()
{
    QTest::addColumn<Deed>("deed");
    QTest::newRow("the screen is destroyed") << Deed([](auto &parent) { parent.reset(); });
    QTest::newRow("the screen is hidden") << Deed([](auto &parent) { parent->hide(); });
    QTest::newRow("the screen is closed") << Deed([](auto &parent) { parent->close(false); });
    QTest::newRow("all windows are closed") << Deed([](auto &) { QApplication::closeAllWindows(); });
    QTest::newRow("the entry is deleted by another") << Deed([](auto &) { delete shownPopup(); });
}

void TestVerifyPin::theEntryEndsWhenWhatIsAroundItGoes()
{
    QFETCH(Deed, deed);
    for (const char *typed : {"", "47", "4711"}) {
        screen = std::make_unique<ListScreen>();
        screen->show();
        User user({keys(typed), [&] { deed(screen); }});
        const Result answer = verify(screen.get());
        QVERIFY(user.isDone());
        QCOMPARE(answer.result, 0);
        QCOMPARE(answer.error, SETUP_SECURITY_VERIFY_CANCELLED);
        QVERIFY(handset->sim.presented.isEmpty());
        QVERIFY(!shownPopup());
    }
}

void TestVerifyPin::aMessageEndsWhenItsScreenGoes()
{
    handset->sim.tries = 0;
    User user({[&] { screen.reset(); }});
    QCOMPARE(verify(screen.get()).error, SETUP_SECURITY_VERIFY_BLOCKED);
    QVERIFY(user.isDone());
    QVERIFY(!shownPopup());
}

void TestVerifyPin::theEntryEndsWithTheApplication()
{
    Result answer;
    QTimer::singleShot(0, this, [&] { answer = verify(screen.get()); });
    User user({[] {}, [] { QCoreApplication::quit(); }});
    QCoreApplication::exec();
    QCOMPARE(answer.result, 0);
    QCOMPARE(answer.error, SETUP_SECURITY_VERIFY_CANCELLED);
    QVERIFY(!shownPopup());
}

void TestVerifyPin::nobodyIsAskedOverAHiddenScreen()
{
    screen->hide();
    const Result answer = verify(screen.get());
    QCOMPARE(answer.result, 0);
    QCOMPARE(answer.error, SETUP_SECURITY_VERIFY_CANCELLED);
}

void TestVerifyPin::withoutAScreenTheEntryLiesOverTheDisplay()
{
    bool isOverDisplay = false;
    {
        User user({[&] {
                       isOverDisplay =
                           shownPopup() && shownPopup()->isWindow() && shownPopup()->size() == screen->size();
                   },
                   keys("4711"), key(Qt::Key_Select)});
        QVERIFY(verify(nullptr).isAccepted());
        QVERIFY(isOverDisplay);
    }
    User user({[&] { screen.reset(); }});
    QCOMPARE(verify(nullptr).error, SETUP_SECURITY_VERIFY_CANCELLED);
    QVERIFY(user.isDone());
}

void TestVerifyPin::anotherHandsetInstalledMeanwhileIsTheOneAsked()
{
    const auto other = std::make_shared<SimOnlyHandset>();
    other->sim.code = "1234";
    const std::weak_ptr<SimOnlyHandset> first = handset;
    User user({keys("1234"),
               [&] {
                   handset::install(other);
                   handset.reset();
               },
               key(Qt::Key_Select)});
    QVERIFY(verify(screen.get()).isAccepted());
    QCOMPARE(other->sim.presented.size(), 1);
    QVERIFY(first.expired());
}

// What the cost setup does: the entry blocks within the list's own signal, and the list goes on after it.
void TestVerifyPin::theEntryCanBeOpenedByAKeyPress()
{
    QList<bool> answers;
    connect(screen->list, &ZListBox::itemChosen, this, [&] { answers << verify(screen.get()).isAccepted(); });
    {
        User user({keys("4711"), key(Qt::Key_Select)});
        pressKey(Qt::Key_Select);
        QVERIFY(user.isDone());
    }
    {
        User user({[&] { screen.reset(); }});
        clickInWindow(screen.get(), Qt::Key_Select);
        QVERIFY(user.isDone());
    }
    QCOMPARE(answers, QList<bool>({true, false}));
}

void TestVerifyPin::everyTextIsAskedForByItsKeyAndItsEnglish_data()
{
    QTest::addColumn<int>("pin");
    QTest::newRow("PIN1") << int(SETUP_SECURITY_PIN1);
    QTest::newRow("PIN2") << int(SETUP_SECURITY_PIN2);
}

void TestVerifyPin::everyTextIsAskedForByItsKeyAndItsEnglish()
{
    QFETCH(int, pin);
    const auto which = static_cast<SETUP_SECURITY_PINTYPE_E>(pin);
    RecordingTranslator translator;
    handset->sim.tries = 2;
    QStringList shown;
    const auto look = [&] { shown << shownText(); };
    User user(
        {keys("0000"), key(Qt::Key_Select), look, keys("0000"), key(Qt::Key_Select), look, key(Qt::Key_Select)});
    QCOMPARE(verify(screen.get(), which).error, SETUP_SECURITY_VERIFY_BLOCKED);
    QVERIFY(user.isDone());
    handset->sim.statusOfPinStatus = handset::NotAvailable;
    User other({key(Qt::Key_Select)});
    QCOMPARE(verify(screen.get(), which).error, SETUP_SECURITY_VERIFY_FAILED);
    QStringList asked = lines(translator.take()).filter(QStringLiteral("SETUP_SECURITY_Util"));
    asked.removeDuplicates();
    asked.sort();
    const QString name = QTest::currentDataTag();
    QVERIFY(shown.at(0).contains("Wrong " + name + ". Tries left: 1"));
    QVERIFY(shown.at(1).contains(name + " is blocked."));
    QStringList expected;
    const auto expect = [&](const QString &text, const QString &english) {
        expected << QStringLiteral("SETUP_SECURITY_Util, %1, %2").arg(text, english);
    };
    expect("TXT_RID_HEADER_" + name, name);
    expect("TXT_RID_HEADER_ENTER_" + name, "Enter " + name);
    expect("TXT_RID_INSTRUCTIONALTXT_WRONG_" + name, "Wrong " + name);
    expect("TXT_RID_INSTRUCTIONALTXT_" + name + "_IS_BLOCKED",
           name + " is blocked. Only PUK" + name.last(1) + " can unblock it.");
    expect("TXT_RID_INSTRUCTIONALTXT_SIM_CANNOT_BE_ASKED_" + name,
           "The SIM card cannot be asked for " + name + '.');
    expect("TXT_RID_INSTRUCTIONALTXT_4_TO_8_DIGITS", "4 to 8 digits");
    expect("FMT_RID_INSTRUCTIONALTXT_TRIES_LEFT_1", "Tries left: %1");
    expect("TXT_RID_SOFTKEY_OK", "OK");
    expect("TXT_RID_SOFTKEY_CANCEL", "Cancel");
    expected.sort();
    QCOMPARE(asked, expected);
}

void TestVerifyPin::theEntryHasItsFieldInAFrameAndItsLegendBelow()
{
    QRect field;
    QRect legend;
    QRect erase;
    QRect first;
    QSize body;
    QImage look;
    QImage eraseLook;
    QString name;
    bool areFontsRight = true;
    const auto measure = [&] {
        const auto labels = shownPopup()->findChildren<ZLabel *>();
        for (ZLabel *label : labels) {
            if (label->text().startsWith(u'#') || label->text() == QStringLiteral("4 to 8 digits"))
                areFontsRight = areFontsRight && label->font() == ZSkinService::font(ZSkinService::HeadingFont);
            if (label->text() == QStringLiteral("4 to 8 digits"))
                legend = label->geometry();
            if (label->text().startsWith(u'#')) {
                erase = label->geometry();
                eraseLook = label->grab().toImage();
                body = label->parentWidget()->size();
            }
            if (label->text().startsWith(QStringLiteral("Tries left")))
                first = label->geometry();
        }
        const auto widgets = shownPopup()->findChildren<QWidget *>();
        for (QWidget *widget : widgets)
            if (widget->accessibleDescription() == QString(2, QChar(0x2022)) && !qobject_cast<ZPopup *>(widget)) {
                field = widget->geometry();
                name = widget->accessibleName();
                look = widget->grab().toImage();
            }
    };
    User user({keys("123#"), measure, key(Qt::Key_Context2)});
    verify(screen.get());
    QVERIFY(user.isDone());
    QVERIFY(field.isValid() && legend.isValid() && erase.isValid());
    QCOMPARE(name, QStringLiteral("Enter PIN2"));
    QVERIFY(areFontsRight);
    QCOMPARE(body.width() - 1 - field.right(), field.left());
    QVERIFY(first.bottom() < field.top() && field.bottom() < legend.top());
    QCOMPARE(legend.top(), erase.top());
    QCOMPARE(legend.right() + 1, erase.left());
    QCOMPARE(legend.left(), field.left());
    QCOMPARE(erase.right(), field.right());
    QCOMPARE(body.height() - 1 - legend.bottom(), first.top()); // as much room below as above
    for (const QPoint &corner :
         {look.rect().topLeft(), look.rect().topRight(), look.rect().bottomLeft(), look.rect().bottomRight()})
        QCOMPARE(look.pixelColor(corner), ZSkinService::color(ZSkinService::RowValueColor));
    QCOMPARE(look.pixelColor(1, 1), ZSkinService::color(ZSkinService::ScreenColor));
    QCOMPARE(look.pixelColor(look.width() - 2, look.height() - 2), ZSkinService::color(ZSkinService::ScreenColor));
    QVERIFY(lastInk(eraseLook, eraseLook.pixelColor(0, 0)) >= eraseLook.width() - 3);
}

KAV_TEST_GROUP(TestVerifyPin, QApplication);

#include "tst_verify_pin.moc"
