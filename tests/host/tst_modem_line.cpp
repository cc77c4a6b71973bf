// The window over a handset whose line is a modem's: what panel and keys ask of it, and what is shown.
#include "calllog/Charging.h"
#include "handset/DecoratedHandset.h"
#include "handset/LineControl.h"
#include "handset/Status.h"
#include "host/PhoneWindow.h"
#include "host/panel/Panel.h"
#include "host/phone/Display.h"
#include "host/phone/Keypad.h"
#include "support/TestGroup.h"
#include "toolkit/ZApplication.h"

#include <QtTest/QTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTabBar>

using namespace host;
using handset::CallPhase;
using handset::LineCall;

namespace {

/// Says what a test wants and notes what it is asked for. It has neither data calls nor PIN2.
class ModemHandset final : public QObject,
                           public handset::DecoratedHandset<ModemHandset>,
                           private handset::LineControl
{
    Q_OBJECT

public:
    /// Tariff, account and figures are those of `other`; without one there are none.
    explicit ModemHandset(std::shared_ptr<handset::Handset> other = nullptr)
        : DecoratedHandset(std::move(other))
    {
        takeAway(QStringLiteral("DataCalls"));
        takeAway(QStringLiteral("SimSecurity"));
        now.daemon = QStringLiteral("ModemManager");
        now.hasModem = true;
        now.modem = QStringLiteral("Quick 12");
        now.network = QStringLiteral("Test Net");
        now.status = QStringLiteral("registered");
    }

    handset::LineControl *lineControl() override { return this; }
    void setCalls(const QList<LineCall> &calls)
    {
        now.calls = calls;
        emit changed();
    }
    void refuse(const QString &why) const { refusal(why); }
    bool isListenedTo() const { return bool(refusal); }
    void setWaitListener(const std::function<void(bool waits)> &listener) override { wait = listener; }

    std::function<void(bool)> wait;

    handset::LineReport now;
    QStringList asked;
    int status = handset::Success;

signals:
    void changed();

private:
    int note(const QString &what)
    {
        asked << what;
        return status;
    }
    handset::LineReport report() const override { return now; }
    int dial(const QString &number) override { return note(QStringLiteral("dial ") + number); }
    int answer(const QString &call) override { return note(QStringLiteral("answer ") + call); }
    int hangUp(const QString &call) override { return note(QStringLiteral("hang up ") + call); }
    void setRefusalListener(const std::function<void(const QString &)> &listener) override { refusal = listener; }

    std::function<void(const QString &)> refusal;
};

LineCall callIn(CallPhase phase, const char *id = "1", qint64 connectedMs = 0)
{
    return {QString::fromLatin1(id), phase, QStringLiteral("5551234"), connectedMs};
}

} // namespace

class TestModemLine : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theSectionSaysWhatIsBehindAndWhatIsMissing();
    void withoutAModemNothingCanBeAskedFor();
    void theOwnTariffAndAccountAreSetFromTheWindow();
    void whatTheModemChargesIsNotSetInTheWindow();
    void aWaitForTheModemIsShownOverTheDisplay();
    void aWindowThatGoesWhileTheModemIsWaitedForLeavesNoWaitCursor();
    void theButtonsAskTheModem();
    void onlyWhatAModemDoesHasAButton();
    void theKeysAskTheModem();
    void eachKeyIsForTheCallThatAPersonMeans_data();
    void eachKeyIsForTheCallThatAPersonMeans();
    void aSecondCallCanBeDialedAndNoThird();
    void eachCallIsShownWithItsTime();
    void aRefusalIsShownUntilTheNextRequest();
    void whatIsNotDoneAtOnceIsToldAtOnce();
    void dataSessionsAreShownWithTheirBytes();
    void aNumberOfEightyDigitsPushesNothingOut();
    void thePhoneTellsOfAModemsCalls();
    void aWindowThatGoesIsToldNothingMore();

private:
    /// A window, or the notice, will be shown, of which Qt's offscreen platform warns.
    static void expectWindow()
    {
        if (QGuiApplication::platformName() == QStringLiteral("offscreen"))
            QTest::ignoreMessage(QtWarningMsg, "This plugin does not support propagateSizeHints()");
    }
    static void expectNotice()
    {
        if (QGuiApplication::platformName() == QStringLiteral("offscreen"))
            QTest::ignoreMessage(QtWarningMsg, "This plugin does not support raise()");
    }
    void putInWindow(const std::shared_ptr<ModemHandset> &put);
    void showTab(const char *title) const;
    template <typename Widget>
    Widget *control(const char *name) const
    {
        auto *found = window->findChild<Widget *>(QLatin1StringView(name));
        if (!found)
            qFatal("no control \"%s\"", name);
        return found;
    }
    QString label(const char *name) const
    {
        return control<QLabel>(name)->text().remove(QChar(0x200b)); // a place to break the line
    }
    QPushButton *button(const char *text) const
    {
        for (QPushButton *one : window->findChild<Panel *>()->findChildren<QPushButton *>()) {
            if (one->text() == QLatin1StringView(text))
                return one;
        }
        qFatal("no button \"%s\"", text);
    }
    QStringList taken()
    {
        QStringList asked;
        asked.swap(handset->asked);
        return asked;
    }

    ScreenLibrary library;
    std::shared_ptr<ModemHandset> handset;
    std::unique_ptr<PhoneWindow> window;
};

void TestModemLine::init()
{
    putInWindow(std::make_shared<ModemHandset>());
}

void TestModemLine::putInWindow(const std::shared_ptr<ModemHandset> &put)
{
    window.reset();
    handset = put;
    handset::install(handset);
    window = std::make_unique<PhoneWindow>(library, PhoneWindow::OpenedHandset{handset, {}, {}, nullptr});
    expectWindow();
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get(), 60'000));
    window->complete();
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
}

void TestModemLine::showTab(const char *title) const
{
    auto *tabs = window->findChild<QTabBar *>();
    int index = 0;
    while (index < tabs->count() && tabs->tabText(index).remove(u'&') != QLatin1StringView(title))
        ++index;
    QVERIFY2(index < tabs->count(), title);
    tabs->setCurrentIndex(index);
}

void TestModemLine::cleanup()
{
    window.reset();
    handset::install(nullptr);
    handset.reset();
}

void TestModemLine::theSectionSaysWhatIsBehindAndWhatIsMissing()
{
    QCOMPARE(label("line state"), "Idle");
    QCOMPARE(label("modem"), "Quick 12, through ModemManager");
    QCOMPARE(label("network"), "Test Net");
    QCOMPARE(label("modem state"), "registered");
    QCOMPARE(label("modem data"), "not connected");
    QCOMPARE(label("charged by"), "the tariff of this telephone");
    QCOMPARE(label("recorded by"), "nobody: the call log cannot be written");
    handset->now.isRecordedElsewhere = true;
    emit handset->changed();
    QCOMPARE(label("recorded by"), "another process");
    QCOMPARE(label("not available"), "data calls, advice of charge, PIN2, credit");
    handset->now.isChargedByModem = true;
    handset->now.isRecorder = true;
    handset->now.status = QStringLiteral("searching");
    handset->now.network.clear();
    emit handset->changed();
    QCOMPARE(label("charged by"), "the modem's advice of charge");
    QCOMPARE(label("recorded by"), "this window");
    QCOMPARE(label("modem state"), "searching");
    QCOMPARE(label("network"), "none");
}

void TestModemLine::withoutAModemNothingCanBeAskedFor()
{
    handset->now = {};
    handset->now.daemon = QStringLiteral("oFono");
    emit handset->changed();
    QCOMPARE(label("line state"), "No modem");
    QCOMPARE(label("modem"), "none, through oFono");
    for (const char *text : {"&Dial", "A&nswer", "&Hang up"})
        QVERIFY2(!button(text)->isEnabled(), text);
    emit window->findChild<Keypad *>()->callPressed();
    emit window->findChild<Keypad *>()->hangUpPressed();
    QCOMPARE(taken(), QStringList());
}

void TestModemLine::theOwnTariffAndAccountAreSetFromTheWindow()
{
    putInWindow(std::make_shared<ModemHandset>(handset::open({}).handset));
    showTab("Charging");
    QCOMPARE(label("tariff failure"), "");
    control<QCheckBox>("tariff dialed free")->click();
    control<QDoubleSpinBox>("tariff dialed units")->setValue(2.5);
    QCOMPARE(int(handset->charging()->tariff(handset::CallDirection::Dialed).unitsPerInterval), 25);
    QCOMPARE(label("credit"), "Nothing has been paid in.");
    button("&Top up")->click();
    QCOMPARE(label("account failure"), "");
    QCOMPARE(label("credit"), "Credit: 20.00 units");
}

void TestModemLine::whatTheModemChargesIsNotSetInTheWindow()
{
    putInWindow(std::make_shared<ModemHandset>(handset::open({}).handset));
    showTab("Charging");
    handset->now.isChargedByModem = true;
    emit handset->changed();
    const QString why = QStringLiteral("The modem's advice of charge says what calls cost.");
    QCOMPARE(label("tariff failure"), why);
    QCOMPARE(label("credit"), why);
    QVERIFY(!control<QCheckBox>("tariff dialed free")->isEnabled());
    QVERIFY(!button("&Top up")->isEnabled());
    handset->now.isChargedByModem = false; // the call meter has vanished
    emit handset->changed();
    QCOMPARE(label("tariff failure"), "");
    QVERIFY(control<QCheckBox>("tariff dialed free")->isEnabled());
    QVERIFY(button("&Top up")->isEnabled());
}

void TestModemLine::aWaitForTheModemIsShownOverTheDisplay()
{
    const auto *notice = control<QLabel>("wait notice");
    QVERIFY(!notice->isVisible());
    expectNotice();
    handset->wait(true);
    QTRY_VERIFY(notice->isVisible());
    QCOMPARE(notice->text(), "Please wait ...");
    const auto *display = window->findChild<host::Display *>();
    const QRect place(display->mapToGlobal(QPoint()), display->size());
    QVERIFY(place.contains(notice->geometry()));
    QVERIFY(QGuiApplication::overrideCursor());
    handset->wait(false);
    QVERIFY(!notice->isVisible());
    QVERIFY(!QGuiApplication::overrideCursor());
}

void TestModemLine::aWindowThatGoesWhileTheModemIsWaitedForLeavesNoWaitCursor()
{
    expectNotice();
    handset->wait(true);
    QTRY_VERIFY(QGuiApplication::overrideCursor());
    window.reset();
    QVERIFY(!QGuiApplication::overrideCursor());
    handset->wait(false);
}

void TestModemLine::theButtonsAskTheModem()
{
    control<QLineEdit>("number")->setText(QStringLiteral("5559876"));
    QTest::mouseClick(button("&Dial"), Qt::LeftButton);
    QCOMPARE(taken(), QStringList("dial 5559876"));
    handset->setCalls({callIn(CallPhase::Incoming)});
    QCOMPARE(label("line state"), "Ringing, 5551234");
    QVERIFY(!button("&Dial")->isEnabled());
    QTest::mouseClick(button("A&nswer"), Qt::LeftButton);
    handset->setCalls({callIn(CallPhase::Active, "1", 5'000)});
    QTest::mouseClick(button("&Hang up"), Qt::LeftButton);
    QCOMPARE(taken(), QStringList({"answer 1", "hang up 1"}));
}

void TestModemLine::onlyWhatAModemDoesHasAButton()
{
    QStringList texts;
    for (const QPushButton *one : window->findChild<Panel *>()->findChildren<QPushButton *>()) {
        if (one->isVisible())
            texts << one->text();
    }
    QCOMPARE(texts, QStringList({"&Dial", "&Hang up", "A&nswer"}));
}

void TestModemLine::theKeysAskTheModem()
{
    auto *keys = window->findChild<Keypad *>();
    for (const char digit : {'1', '1', '2'})
        emit keys->numberTyped(QLatin1Char(digit));
    emit keys->callPressed();
    QCOMPARE(taken(), QStringList("dial 112"));
    handset->setCalls({callIn(CallPhase::Incoming, "7")});
    emit keys->callPressed();
    emit keys->hangUpPressed();
    QCOMPARE(taken(), QStringList({"answer 7", "hang up 7"}));
}

void TestModemLine::eachKeyIsForTheCallThatAPersonMeans_data()
{
    QTest::addColumn<QList<LineCall>>("calls");
    QTest::addColumn<QStringList>("expected"); // of the green key and then the red one
    QTest::newRow("a call that is being dialed ends")
        << QList<LineCall>{callIn(CallPhase::Alerting, "a")} << QStringList{"hang up a"};
    QTest::newRow("a waiting call is answered, and the one that is spoken ends")
        << QList<LineCall>{callIn(CallPhase::Active, "a", 9'000), callIn(CallPhase::Waiting, "b")}
        << QStringList{"answer b", "hang up a"};
    QTest::newRow("a call on hold stays while another is spoken")
        << QList<LineCall>{callIn(CallPhase::Held, "a", 9'000), callIn(CallPhase::Active, "b", 1'000)}
        << QStringList{"hang up b"};
    QTest::newRow("a call that comes while another is on hold is answered, and refused")
        << QList<LineCall>{callIn(CallPhase::Held, "a", 9'000), callIn(CallPhase::Incoming, "b")}
        << QStringList{"answer b", "hang up b"};
}

void TestModemLine::eachKeyIsForTheCallThatAPersonMeans()
{
    QFETCH(const QList<LineCall>, calls);
    QFETCH(const QStringList, expected);
    handset->setCalls(calls);
    emit window->findChild<Keypad *>()->callPressed();
    emit window->findChild<Keypad *>()->hangUpPressed();
    QCOMPARE(taken(), expected);
}

void TestModemLine::aSecondCallCanBeDialedAndNoThird()
{
    handset->setCalls({callIn(CallPhase::Active, "a", 1'000)});
    QVERIFY(button("&Dial")->isEnabled());
    for (const CallPhase second : {CallPhase::Dialing, CallPhase::Active}) {
        handset->setCalls({callIn(CallPhase::Held, "a", 1'000), callIn(second, "b")});
        QVERIFY(!button("&Dial")->isEnabled());
    }
}

void TestModemLine::eachCallIsShownWithItsTime()
{
    LineCall withheld = callIn(CallPhase::Waiting, "c");
    withheld.number.clear();
    handset->setCalls({callIn(CallPhase::Held, "a", 3'725'000), callIn(CallPhase::Active, "b", 5'999), withheld});
    QCOMPARE(label("line state"),
             "On hold 01:02:05, 5551234\nConnected 00:00:05, 5551234\nWaiting, number withheld");
}

void TestModemLine::aRefusalIsShownUntilTheNextRequest()
{
    QTest::mouseClick(button("&Dial"), Qt::LeftButton);
    QCOMPARE(label("line failure"), "");
    handset->refuse(QStringLiteral("The network has not put the call through."));
    QCOMPARE(label("line failure"), "The network has not put the call through.");
    QVERIFY(control<QLabel>("line failure")->isVisible());
    QTest::mouseClick(button("&Dial"), Qt::LeftButton);
    QVERIFY(!control<QLabel>("line failure")->isVisible());
}

void TestModemLine::whatIsNotDoneAtOnceIsToldAtOnce()
{
    handset->status = handset::InvalidArgument;
    QTest::mouseClick(button("&Dial"), Qt::LeftButton);
    QCOMPARE(label("line failure"), "Not done: the number is not one that can be dialed.");
}

void TestModemLine::dataSessionsAreShownWithTheirBytes()
{
    handset->now.sessions = {{"internet", QStringLiteral("wwan0"), 12, 5'000'000'000},
                             {{}, QStringLiteral("wwan1"), {}, {}}};
    emit handset->changed();
    QCOMPARE(label("modem data"), "internet (wwan0), 12 B sent, 5000000000 B received\nconnected (wwan1)");
}

void TestModemLine::aNumberOfEightyDigitsPushesNothingOut()
{
    const int width = window->findChild<Panel *>()->sizeHint().width();
    LineCall call = callIn(CallPhase::Active, "a", 1'000);
    call.number = QString(80, QLatin1Char('8'));
    handset->now.modem = QString(200, QLatin1Char('m'));
    handset->setCalls({call});
    QCOMPARE(window->findChild<Panel *>()->sizeHint().width(), width);
    QCOMPARE(label("line state"), "Connected 00:00:01, " + call.number);
}

void TestModemLine::thePhoneTellsOfAModemsCalls()
{
    handset->setCalls({callIn(CallPhase::Alerting)});
    QCOMPARE(label("call state"), "Dialing");
    LineCall held = callIn(CallPhase::Held, "1", 65'000);
    LineCall active = callIn(CallPhase::Active, "2", 5'000);
    active.number = QStringLiteral("5550000");
    handset->setCalls({held, active});
    QCOMPARE(label("call state"), "Connected");
    QCOMPARE(label("call number"), "5550000");
    QCOMPARE(label("call clock"), "00:00:05");
    QCOMPARE(label("other calls"), "On hold, 5551234");
    handset->setCalls({held, callIn(CallPhase::Waiting, "3")}); // what wants an answer comes first
    QCOMPARE(label("call state"), "Call waiting");
    handset->setCalls({held});
    QCOMPARE(label("call state"), "On hold");
    handset->setCalls({});
    QCOMPARE(label("call state"), "Call ended");
    QCOMPARE(label("call clock"), "00:01:05"); // without a call log, as it was seen last
    QVERIFY(!control<QLabel>("call cost so far")->isVisible());
    handset->setCalls({callIn(CallPhase::Incoming)});
    handset->setCalls({});
    QCOMPARE(label("call state"), "Not answered");
}

void TestModemLine::aWindowThatGoesIsToldNothingMore()
{
    QVERIFY(handset->isListenedTo());
    window.reset();
    QVERIFY(!handset->isListenedTo());
}

KAV_TEST_GROUP(TestModemLine, QApplication);
#include "tst_modem_line.moc"
