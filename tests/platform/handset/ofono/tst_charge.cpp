// Advice of charge of a modem behind oFono: figures, writes under PIN2, what calls cost.
#include "calllog/OpenLedger.h"
#include "handset/HandsetTestKit.h"
#include "handset/ofono/OfonoDesk.h"
#include "ofono/OfonoHandset.h"
#include "support/FullDisk.h"
#include "support/TestGroup.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QRegularExpression>
#include <QtCore/QTimer>

#include <limits>

using namespace handset;
using namespace handset::test;

namespace {

const QString one = OfonoDesk::one;
const QString two = OfonoDesk::two;
const QStringList all{QStringLiteral("VoiceCallManager"), QStringLiteral("SimManager"),
                      QStringLiteral("CallMeter")};

/// Of writes that wait in vain: long enough for those that do not, on a busy machine too.
constexpr int longestWaitMs = 2000;

QVariant retries(int pin2)
{
    return QVariant::fromValue(QMap<QString, uchar>{{QStringLiteral("pin2"), static_cast<uchar>(pin2)}});
}

/// As the daemon tells it, and one that cannot be read.
const QVariantMap emptyCard{{"CallMeter", 0U},
                            {"AccumulatedCallMeter", 0U},
                            {"AccumulatedCallMeterMaximum", 0U},
                            {"PricePerUnit", 0.0},
                            {"Currency", ""}};

/// However busy the machine is.
template <typename Condition>
bool waitFor(Condition condition)
{
    return QTest::qWaitFor(condition, 60'000);
}

/// A telephone over the fake daemon, whose card has a price of 0.25 and a maximum of 100.
class Desk
{
public:
    explicit Desk(const QStringList &interfaces = all, int waitMs = ofono::CallMeter::usualWaitMs)
        : fake(systemBus().address())
    {
        fake.answers["CallMeter"] = {{"CallMeter", 3U},
                                     {"AccumulatedCallMeter", 40U},
                                     {"AccumulatedCallMeterMaximum", 100U},
                                     {"PricePerUnit", 0.25},
                                     {"Currency", "EUR"}};
        fake.answers["SimManager"] = {{"PinRequired", "none"}, {"Retries", retries(3)}};
        fake.setInterfaces(interfaces);
        fake.appear();
        calllog::OpenedLedger opened = calllog::openLedger(state.path(), clock);
        if (!opened.ledger)
            qFatal("%s", qPrintable(opened.error));
        phone = std::make_unique<ofono::OfonoHandset>(std::move(opened.ledger), clock,
                                                      std::make_unique<ofono::OfonoModem>(), waitMs);
    }
    /// The daemon has told all that there is.
    bool isReady()
    {
        const bool hasTold =
            waitFor([this] { return phone->callMeter().maximum() && phone->callMeter().tries(); });
        if (!hasTold)
            qInfo().noquote() << "the daemon was asked" << fake.asked.join(QStringLiteral(", "));
        return hasTold;
    }
    /// It has, whether or not that is something.
    bool isAnswered()
    {
        return waitFor([this] { return phone->callMeter().isAnswered() && phone->callMeter().toldMaximum(); });
    }
    AdviceOfCharge &advice() { return *phone->adviceOfCharge(); }
    SimSecurity &sim() { return *phone->simSecurity(); }
    CallLog &log() { return *phone->callLog(); }
    bool enterPin(const char *pin = "1234")
    {
        bool accepted = false;
        return sim().verifyPin(SimSecurity::Pin2, pin, accepted) == Success && accepted;
    }
    QString pinStatus()
    {
        quint32 status = 0;
        int tries = -1;
        if (sim().pinStatus(SimSecurity::Pin2, status) != Success ||
            sim().triesLeft(SimSecurity::Pin2, tries) != Success)
            return QStringLiteral("?");
        return QStringLiteral("%1/%2").arg(status).arg(tries);
    }
    /// Last, dialed, answered, all.
    QString costs()
    {
        QStringList texts;
        const auto ask = [&](auto &role, auto query) {
            QByteArray text;
            const int status = (role.*query)(text);
            texts << (status == Success ? QString::fromLatin1(text) : QStringLiteral("-%1").arg(status));
        };
        ask(*phone->callService(), &CallService::lastCallCost);
        ask(log(), &CallLog::dialedCallsCost);
        ask(log(), &CallLog::answeredCallsCost);
        ask(log(), &CallLog::allCallsCost);
        return texts.join(QLatin1Char(' '));
    }
    QString maximum()
    {
        QString text;
        bool enabled = false;
        const int status = advice().meterMaximum(text, enabled);
        return status == Success ? text + (enabled ? QStringLiteral(" on") : QStringLiteral(" off"))
                                 : QStringLiteral("-%1").arg(status);
    }
    QString price()
    {
        QString text;
        QString currency;
        const int status = advice().priceAndCurrency(text, currency);
        return status == Success ? text + QLatin1Char(' ') + currency : QStringLiteral("-%1").arg(status);
    }
    /// The card counts, which the daemon does not tell.
    void count(uint accumulated) { fake.answers["CallMeter"]["AccumulatedCallMeter"] = accumulated; }
    /// Of a call that begins so, when it is connected and recorded.
    bool connectCall(const QString &path, const char *firstState)
    {
        const int reads = readings();
        fake.addCall(path, callIn(firstState));
        fake.setCall(path, "State", "active");
        return waitFor([&] { return phone->calls().rowOf(path) != 0 && readings() > reads; });
    }
    void end(const QString &path)
    {
        fake.setCall(path, "State", "disconnected");
        fake.removeCall(path);
    }
    /// Of a call that is there: connected, whether or not that can be recorded.
    bool answer(const QString &path)
    {
        fake.setCall(path, "State", "active");
        return waitFor([&] { return phone->calls().connectedMs(path).has_value(); });
    }
    /// What could not be written is tried again.
    void tick() const
    {
        clock->advance(6 * second);
        for (QTimer *timer : phone->findChildren<QTimer *>(Qt::FindDirectChildrenOnly))
            if (timer->isActive())
                QMetaObject::invokeMethod(timer, "timeout");
    }
    int readings() const { return int(fake.asked.count("CallMeter.GetProperties")); }

    StateDir state;
    std::shared_ptr<ManualClock> clock = std::make_shared<ManualClock>(qint64{1'800'000'000'000});
    FakeOfono fake;
    std::unique_ptr<ofono::OfonoHandset> phone;
};

} // namespace

class TestCharge : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(systemBus().isRunning()); }
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void theFiguresAreTheCards();
    void withoutACallMeterNothingIsInvented();
    void aCallMeterThatVanishesTakesItsFiguresWithIt();
    void aModemThatIsUnpluggedComesBackWithItsMeter_data();
    void aModemThatIsUnpluggedComesBackWithItsMeter();
    void aFigureThatIsNotToldIsNotAvailable();
    void aCardThatCannotBeReadHasNoFigures();
    void aCardWithNothingOnItIsKnownOnceItHasBeenWritten();
    void aFigureOfAWrongTypeIsNotAvailableAndToldOnce_data();
    void aFigureOfAWrongTypeIsNotAvailableAndToldOnce();
    void aDialedCallCostsWhatTheMeterComesToMore();
    void anAnsweredCallCostsLikewise();
    void theCurrentMeterIsShownWhileTheCallIsOn();
    void aCardThatCountsAtTheEndIsNotCountedTwice();
    void aMeterThatIsResetInACallShowsTheRestOfIt();
    void aMeterThatIsLateIsStillTheEndedCalls();
    void callsAtOnceCostTogetherWhatTheMeterSays();
    void aMeterThatFallsCostsNothing();
    void aCallThatCouldNotBeWrittenBeforeItsEndCostsWhatTheMeterSays();
    void aCallThatIsBegunLateCostsWhatTheMeterSays();
    void whatACallCostsIsWrittenAsSoonAsItCanBe();
    void withoutACallMeterTheOwnTariffCharges();
    void aBusyMeterIsReadAgain();
    void pin2IsPresentedByWritingTheMaximumAsItIs();
    void aWrongPin2CostsOneTryAndIsAnAnswer();
    void theRightPin2GivesTheTriesBackWhichTheDaemonDoesNotTell();
    void aFailureThatCostsNoTryIsNoWrongPin2();
    void aBlockedPin2IsNotTried();
    void digitsThatAreNoPin2AskNobody_data();
    void digitsThatAreNoPin2AskNobody();
    void pin2ServesOneWrite();
    void aWriteWithoutPin2IsNotAllowed();
    void theMaximumIsWrittenInTheUnitOfTheChargeType();
    void aMaximumBeyondTheMeterAsksNobody();
    void priceAndCurrencyAreWrittenAndReadBack();
    void aPriceGoesBackWhenItsCurrencyIsRefused();
    void aPriceOrCurrencyThatNoCardHoldsAsksNobody();
    void theMeterIsZeroedOnTheCardFirst();
    void aBusyDaemonIsAskedAgainWhileAWriteWaits();
    void aWriteSaysThatItWaitsAndThatItWaitsNoMore();
    void aDaemonThatStaysBusyFailsTheWrite();
    void aSilentDaemonFailsTheWriteAndTheWindowGoesOn();
    void aMeterThatVanishesEndsTheWait();
    void onlyOneWriteWaits();
    void everyFailureOfAWriteHasItsStatus_data();
    void everyFailureOfAWriteHasItsStatus();
    void whereNobodyCountsTheTriesAFailureIsAWrongPin2();
    void theStatusOfPin1IsWhatTheSimRequires_data();
    void theStatusOfPin1IsWhatTheSimRequires();
    void aSimThatRequiresPuk2HasABlockedPin2();
    void aPriceThatNoCardHoldsIsNotAvailable_data();
    void aPriceThatNoCardHoldsIsNotAvailable();
    void inACurrencyWithoutAPriceNothingIsReckoned();
    void aPriceThatIsRefusedIsNotFollowedByItsCurrency();
    void aPriceThatNobodyKnewIsNotWrittenBack();
    void aMeterThatIsNotToldIsNotAvailable();
    void aWriteThatCannotBeReadBackIsOne();
    void anotherInterfaceThatComesDoesNotEndTheWait();
    void aMeterThatVanishesBetweenTwoWritesEndsBoth();
    void aCurrentMeterOfAWrongTypeChangesNothing();
};

void TestCharge::theFiguresAreTheCards()
{
    Desk desk;
    QVERIFY(desk.isReady());
    QCOMPARE(desk.maximum(), "100.00 on");
    QCOMPARE(desk.price(), "0.25 EUR");
    QCOMPARE(desk.costs(), "0.00 0.00 0.00 40.00");
    QCOMPARE(desk.pinStatus(), "1/3");
    QCOMPARE(desk.advice().setChargeType(AdviceOfCharge::InCurrency), int(Success));
    QCOMPARE(desk.costs(), "0.00 0.00 0.00 10.00");
    QCOMPARE(desk.maximum(), "25.00 on");
    for (const quint8 file : {AdviceOfCharge::AcmMaxFile, AdviceOfCharge::AcmFile, AdviceOfCharge::PuctFile}) {
        quint8 rule = 9;
        QCOMPARE(desk.advice().updateRule(file, rule), int(Success));
        QCOMPARE(rule, quint8(AdviceOfCharge::UpdateUnderPin2));
    }
    quint8 rule = 9;
    QCOMPARE(desk.advice().updateRule(1, rule), int(InvalidArgument));
    desk.fake.set(FakeOfono::modem, "CallMeter", "AccumulatedCallMeterMaximum", 0U);
    QTRY_COMPARE(desk.maximum(), "0.00 off");
    QByteArray text;
    QCOMPARE(desk.phone->callService()->remainingCredit(text), int(NotAvailable));
}

void TestCharge::withoutACallMeterNothingIsInvented()
{
    Desk desk({"VoiceCallManager", "SimManager"});
    QTRY_VERIFY(desk.fake.asked.contains("SimManager.GetProperties"));
    QCOMPARE(desk.maximum(), "-2");
    QCOMPARE(desk.price(), "-2");
    quint8 rule = 9;
    QCOMPARE(desk.advice().updateRule(AdviceOfCharge::AcmFile, rule), int(NotAvailable));
    QCOMPARE(desk.advice().setMeterMaximum("5"), int(NotAvailable));
    QCOMPARE(desk.advice().disableMeterMaximum(), int(NotAvailable));
    QCOMPARE(desk.advice().setPriceAndCurrency("1", "EUR"), int(NotAvailable));
    QCOMPARE(desk.advice().setChargeType(AdviceOfCharge::InCurrency), int(NotAvailable));
    QVERIFY(!desk.phone->simSecurity());
}

void TestCharge::aCallMeterThatVanishesTakesItsFiguresWithIt()
{
    Desk desk;
    QVERIFY(desk.isReady());
    QCOMPARE(desk.advice().setChargeType(AdviceOfCharge::InCurrency), int(Success));
    QVERIFY(desk.enterPin());
    desk.fake.setInterfaces({"VoiceCallManager", "SimManager"});
    QTRY_COMPARE(desk.maximum(), "-2");
    QCOMPARE(desk.price(), "-2");
    QVERIFY(desk.costs().startsWith("-2 -2 -2")); // in a currency of which nobody knows the price
    desk.fake.setInterfaces(all);
    QTRY_COMPARE(desk.price(), "0.25 EUR");
    QVERIFY(desk.costs().endsWith(" 10.00"));
    QCOMPARE(desk.pinStatus(), "1/3"); // a PIN2 that was entered before is forgotten
}

void TestCharge::aModemThatIsUnpluggedComesBackWithItsMeter_data()
{
    QTest::addColumn<bool>("isRemoved");
    QTest::newRow("the daemon removes it") << true;
    QTest::newRow("its interfaces vanish, and nothing is said of its call") << false;
}

// The daemon lives. What the card has counted meanwhile is nobody's.
void TestCharge::aModemThatIsUnpluggedComesBackWithItsMeter()
{
    QFETCH(bool, isRemoved);
    Desk desk;
    QVERIFY(desk.isReady());
    QVERIFY(desk.connectCall(one, "dialing"));
    desk.fake.set(FakeOfono::modem, "CallMeter", "CallMeter", 4U);
    QTRY_COMPARE(desk.costs(), "4.00 4.00 0.00 44.00");
    if (isRemoved)
        desk.fake.removeModem(FakeOfono::modem);
    else
        desk.fake.setInterfaces({});
    QTRY_VERIFY(desk.phone->calls().reported().isEmpty());
    QCOMPARE(desk.maximum(), QStringLiteral("-%1").arg(NotAvailable));
    QVERIFY(!desk.phone->simSecurity());
    desk.fake.removeCall(one);
    desk.count(60);
    if (isRemoved)
        desk.fake.addModem(FakeOfono::modem, {{"Online", true}});
    desk.fake.setInterfaces(all);
    QVERIFY(desk.isReady());
    QTRY_COMPARE(desk.costs(), "4.00 4.00 0.00 60.00");
    QVERIFY(desk.connectCall(two, "incoming"));
    desk.count(62);
    desk.end(two);
    QTRY_COMPARE(desk.costs(), "2.00 4.00 2.00 62.00");
    QVERIFY(desk.enterPin());
}

void TestCharge::aFigureThatIsNotToldIsNotAvailable()
{
    Desk desk;
    desk.fake.answers["CallMeter"] = {{"Currency", "EUR"}};
    desk.fake.answers["SimManager"] = {};
    QTRY_VERIFY(desk.phone->callMeter().currency());
    QCOMPARE(desk.maximum(), "-2");
    QCOMPARE(desk.price(), "-2");
    QCOMPARE(desk.costs(), "0.00 0.00 0.00 -2");
    QCOMPARE(desk.pinStatus(), "?");
    bool accepted = true;
    QCOMPARE(desk.sim().verifyPin(SimSecurity::Pin2, "1234", accepted), int(NotAvailable));
    quint32 status = 0;
    QCOMPARE(desk.sim().pinStatus(SimSecurity::Pin1, status), int(NotAvailable));
}

// What ofonod answers then: no error, and zeros.
void TestCharge::aCardThatCannotBeReadHasNoFigures()
{
    Desk desk;
    desk.fake.answers["CallMeter"] = emptyCard;
    QVERIFY(desk.isAnswered());
    QCOMPARE(desk.costs(), "0.00 0.00 0.00 -2");
    QCOMPARE(desk.maximum(), "-2");
    QCOMPARE(desk.price(), "-2");
    QCOMPARE(desk.pinStatus(), "1/3");
    // What stands on it all the while no call has cost.
    QVERIFY(desk.connectCall(one, "dialing"));
    desk.count(40);
    desk.end(one);
    QTRY_COMPARE(desk.costs(), "0.00 0.00 0.00 40.00");
    QCOMPARE(desk.maximum(), "0.00 off");
    desk.count(0);
    QVERIFY(desk.connectCall(two, "dialing"));
    QTRY_COMPARE(desk.costs(), "0.00 0.00 0.00 0.00"); // a card that has been read may come to zero
}

void TestCharge::aCardWithNothingOnItIsKnownOnceItHasBeenWritten()
{
    Desk desk;
    desk.fake.answers["CallMeter"] = emptyCard;
    QVERIFY(desk.isAnswered());
    QVERIFY(desk.enterPin());
    QCOMPARE(desk.costs(), "0.00 0.00 0.00 0.00");
    QCOMPARE(desk.maximum(), "0.00 off");
    QCOMPARE(desk.advice().setPriceAndCurrency("0.25", "EUR"), int(Success));
    QCOMPARE(desk.price(), "0.25 EUR");
    desk.fake.setInterfaces({"VoiceCallManager", "SimManager"});
    QTRY_COMPARE(desk.maximum(), "-2");
    desk.fake.answers["CallMeter"] = emptyCard;
    desk.fake.setInterfaces(all);
    QVERIFY(desk.isAnswered());
    QCOMPARE(desk.maximum(), "-2"); // it may be another one
}

void TestCharge::aFigureOfAWrongTypeIsNotAvailableAndToldOnce_data()
{
    QTest::addColumn<QString>("interface");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("a meter with a sign") << "CallMeter"
                                         << "AccumulatedCallMeter" << QVariant(5);
    QTest::newRow("a maximum as a text") << "CallMeter"
                                         << "AccumulatedCallMeterMaximum" << QVariant("5");
    QTest::newRow("a price as a text") << "CallMeter"
                                       << "PricePerUnit" << QVariant("0.25");
    QTest::newRow("a currency as a number") << "CallMeter"
                                            << "Currency" << QVariant(5U);
    QTest::newRow("tries as numbers of another width") << "SimManager"
                                                       << "Retries" << QVariant(QVariantMap{{"pin2", 3}});
}

void TestCharge::aFigureOfAWrongTypeIsNotAvailableAndToldOnce()
{
    QFETCH(const QString, interface);
    QFETCH(const QString, name);
    QFETCH(const QVariant, value);
    Desk desk;
    desk.fake.answers[interface][name] = value;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("oFono says something of " + interface + '.' + name));
    QTRY_VERIFY(desk.phone->callMeter().pinRequired() == "none" &&
                (desk.phone->callMeter().maximum() || desk.phone->callMeter().price()));
    desk.fake.set(FakeOfono::modem, qPrintable(interface), qPrintable(name), value);
    desk.fake.set(FakeOfono::modem, "SimManager", "PinRequired", "puk");
    QTRY_COMPARE(desk.phone->callMeter().pinRequired(), "puk");
    const QStringList figures{desk.costs().section(' ', 3), desk.maximum(), desk.price(), desk.pinStatus()};
    QCOMPARE(figures.filter(QRegularExpression("^(-2|\\?)$")).size(), 1);
}

void TestCharge::aDialedCallCostsWhatTheMeterComesToMore()
{
    Desk desk;
    QVERIFY(desk.isReady());
    QVERIFY(desk.connectCall(one, "dialing"));
    desk.clock->advance(minute); // the own tariff would say six
    desk.count(47);
    desk.end(one);
    QTRY_COMPARE(desk.costs(), "7.00 7.00 0.00 47.00");
    QCOMPARE(desk.advice().setChargeType(AdviceOfCharge::InCurrency), int(Success));
    QCOMPARE(desk.costs(), "1.75 1.75 0.00 11.75");
    QCOMPARE(LogFile(desk.state.database()).value("SELECT units FROM calls").toInt(), 7);
}

void TestCharge::anAnsweredCallCostsLikewise()
{
    Desk desk;
    QVERIFY(desk.isReady());
    QVERIFY(desk.connectCall(one, "incoming"));
    desk.count(41);
    desk.end(one);
    QTRY_COMPARE(desk.costs(), "1.00 0.00 1.00 41.00");
}

void TestCharge::theCurrentMeterIsShownWhileTheCallIsOn()
{
    Desk desk;
    QVERIFY(desk.isReady());
    QVERIFY(desk.connectCall(one, "dialing"));
    desk.fake.set(FakeOfono::modem, "CallMeter", "CallMeter", 4U);
    QTRY_COMPARE(desk.costs(), "4.00 4.00 0.00 44.00");
    desk.count(46);
    desk.end(one);
    QTRY_COMPARE(desk.costs(), "6.00 6.00 0.00 46.00"); // counted once
}

// A second call has the meter read in the middle of the first one.
void TestCharge::aCardThatCountsAtTheEndIsNotCountedTwice()
{
    Desk desk;
    QVERIFY(desk.isReady());
    QVERIFY(desk.connectCall(one, "dialing"));
    desk.fake.set(FakeOfono::modem, "CallMeter", "CallMeter", 4U);
    QTRY_COMPARE(desk.costs(), "4.00 4.00 0.00 44.00");
    const int reads = desk.readings();
    desk.fake.addCall(two, callIn("waiting"));
    QTRY_COMPARE(desk.readings(), reads + 1);
    desk.end(two);
    desk.fake.set(FakeOfono::modem, "CallMeter", "CallMeter", 5U); // comes behind what was read
    QTRY_COMPARE(desk.costs(), "5.00 5.00 0.00 45.00");
    desk.count(46);
    desk.end(one);
    QTRY_COMPARE(desk.costs(), "6.00 6.00 0.00 46.00");
}

void TestCharge::aMeterThatIsResetInACallShowsTheRestOfIt()
{
    Desk desk;
    desk.count(0);
    QVERIFY(desk.isReady());
    QVERIFY(desk.connectCall(one, "dialing"));
    desk.fake.set(FakeOfono::modem, "CallMeter", "CallMeter", 4U);
    QTRY_COMPARE(desk.costs(), "4.00 4.00 0.00 4.00");
    QVERIFY(desk.enterPin());
    QCOMPARE(desk.log().resetAllCallsCost(), int(Success));
    QCOMPARE(desk.costs(), "4.00 4.00 0.00 0.00");
    desk.fake.set(FakeOfono::modem, "CallMeter", "CallMeter", 7U);
    QTRY_COMPARE(desk.costs(), "7.00 7.00 0.00 3.00");
    desk.count(3);
    desk.end(one);
    QTRY_COMPARE(desk.costs(), "7.00 7.00 0.00 3.00");
}

void TestCharge::aMeterThatIsLateIsStillTheEndedCalls()
{
    Desk desk;
    QVERIFY(desk.isReady());
    QVERIFY(desk.connectCall(one, "incoming"));
    const int reads = desk.readings();
    desk.end(one);
    QTRY_VERIFY(desk.readings() > reads);
    desk.count(45);
    desk.fake.addCall(two, callIn("dialing")); // it is read once more
    QTRY_COMPARE(desk.costs(), "5.00 0.00 5.00 45.00");
}

void TestCharge::callsAtOnceCostTogetherWhatTheMeterSays()
{
    Desk desk;
    QVERIFY(desk.isReady());
    QVERIFY(desk.connectCall(one, "dialing"));
    QVERIFY(desk.connectCall(two, "waiting"));
    desk.fake.set(FakeOfono::modem, "CallMeter", "CallMeter", 9U); // nobody knows of which
    desk.count(45);
    desk.end(two);
    QTRY_COMPARE(desk.costs(), "5.00 0.00 5.00 45.00");
    desk.count(48);
    desk.end(one);
    QTRY_COMPARE(desk.costs(), "5.00 3.00 5.00 48.00");
}

void TestCharge::aMeterThatFallsCostsNothing()
{
    Desk desk;
    QVERIFY(desk.isReady());
    QVERIFY(desk.connectCall(one, "dialing"));
    desk.count(2); // reset by somebody else
    desk.end(one);
    QTRY_COMPARE(desk.costs(), "0.00 0.00 0.00 2.00");
    QVERIFY(desk.connectCall(one, "dialing"));
    desk.count(5);
    desk.end(one);
    QTRY_COMPARE(desk.costs(), "3.00 3.00 0.00 5.00");
}

void TestCharge::aCallThatCouldNotBeWrittenBeforeItsEndCostsWhatTheMeterSays()
{
    Desk desk;
    QVERIFY(desk.isReady());
    const int reads = desk.readings();
    desk.fake.addCall(one, callIn("dialing"));
    QTRY_VERIFY(desk.readings() > reads);
    {
        const support::FullDisk full(0);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("call log failed"));
        QVERIFY(desk.answer(one));
        desk.clock->advance(minute);
        desk.count(47);
        desk.end(one);
        QTRY_VERIFY(desk.costs().endsWith(" 47.00"));
        QVERIFY(desk.phone->owesRecord());
    }
    desk.tick();
    QVERIFY(!desk.phone->owesRecord());
    QCOMPARE(desk.costs(), "7.00 7.00 0.00 47.00");
    desk.count(49); // it was late with that
    desk.fake.addCall(two, callIn("dialing"));
    QTRY_COMPARE(desk.costs(), "9.00 9.00 0.00 49.00");
    QCOMPARE(LogFile(desk.state.database()).value("SELECT units FROM calls").toInt(), 9);
}

void TestCharge::aCallThatIsBegunLateCostsWhatTheMeterSays()
{
    Desk desk;
    QVERIFY(desk.isReady());
    const int reads = desk.readings();
    desk.fake.addCall(one, callIn("dialing"));
    QTRY_VERIFY(desk.readings() > reads);
    {
        const support::FullDisk full(0);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("call log failed"));
        QVERIFY(desk.answer(one));
        desk.fake.set(FakeOfono::modem, "CallMeter", "CallMeter", 4U);
        QTRY_COMPARE(desk.phone->calls().costOf(one)->units, 4U);
    }
    desk.tick();
    QVERIFY(desk.phone->calls().rowOf(one) != 0);
    QCOMPARE(desk.costs(), "4.00 4.00 0.00 44.00");
    desk.count(46);
    desk.end(one);
    QTRY_COMPARE(desk.costs(), "6.00 6.00 0.00 46.00");
}

void TestCharge::whatACallCostsIsWrittenAsSoonAsItCanBe()
{
    Desk desk;
    QVERIFY(desk.isReady());
    QVERIFY(desk.connectCall(one, "dialing"));
    {
        const support::FullDisk full(0);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("call log failed"));
        desk.fake.set(FakeOfono::modem, "CallMeter", "CallMeter", 4U);
        QTRY_VERIFY(desk.phone->owesRecord());
    }
    desk.tick();
    QVERIFY(!desk.phone->owesRecord());
    QCOMPARE(desk.costs(), "4.00 4.00 0.00 44.00");
}

void TestCharge::withoutACallMeterTheOwnTariffCharges()
{
    Desk desk({"VoiceCallManager"});
    QTRY_VERIFY(desk.fake.asked.contains("VoiceCallManager.GetCalls"));
    desk.fake.addCall(one, callIn("dialing"));
    desk.fake.setCall(one, "State", "active");
    QTRY_VERIFY(desk.phone->calls().rowOf(one) != 0);
    desk.clock->advance(minute);
    QCOMPARE(desk.costs().section(' ', 0, 2), "6.00 6.00 0.00");
}

void TestCharge::aBusyMeterIsReadAgain()
{
    Desk desk;
    desk.fake.errors["CallMeter.GetProperties"] << "InProgress"
                                                << "InProgress";
    QVERIFY(desk.isReady());
    QCOMPARE(desk.readings(), 3);
}

void TestCharge::pin2IsPresentedByWritingTheMaximumAsItIs()
{
    Desk desk;
    QVERIFY(desk.isReady());
    QVERIFY(desk.enterPin());
    QVERIFY(desk.fake.asked.contains("CallMeter.SetProperty AccumulatedCallMeterMaximum 100 1234"));
    QCOMPARE(desk.fake.asked.filter("SetProperty").size(), 1);
    QCOMPARE(desk.maximum(), "100.00 on");
    QCOMPARE(desk.pinStatus(), "3/3");
}

void TestCharge::aWrongPin2CostsOneTryAndIsAnAnswer()
{
    Desk desk;
    QVERIFY(desk.isReady());
    QVERIFY(desk.enterPin());
    for (int left = 2; left >= 0; --left) {
        bool accepted = true;
        QCOMPARE(desk.sim().verifyPin(SimSecurity::Pin2, "9999", accepted), int(Success));
        QVERIFY(!accepted);
        QCOMPARE(desk.fake.tries, left);
        QCOMPARE(desk.pinStatus(), QStringLiteral("%1/%2").arg(left == 0 ? 2 : 1).arg(left));
        QCOMPARE(desk.advice().disableMeterMaximum(),
                 int(NotAllowed)); // what an earlier one allowed is taken back
    }
}

void TestCharge::theRightPin2GivesTheTriesBackWhichTheDaemonDoesNotTell()
{
    Desk desk;
    QVERIFY(desk.isReady());
    for (int round = 0; round < 2; ++round) {
        bool accepted = true;
        QCOMPARE(desk.sim().verifyPin(SimSecurity::Pin2, "9999", accepted), int(Success));
        QVERIFY(!accepted);
        QCOMPARE(desk.pinStatus(), "1/2");
        QVERIFY(desk.enterPin());
        QCOMPARE(desk.pinStatus(), "3/3");
        QCOMPARE(desk.fake.answers["SimManager"]["Retries"], retries(2));
    }
}

void TestCharge::aFailureThatCostsNoTryIsNoWrongPin2()
{
    Desk desk(all, 400);
    QVERIFY(desk.isReady());
    desk.fake.errors["CallMeter.SetProperty"] << "Failed";
    bool accepted = true;
    QCOMPARE(desk.sim().verifyPin(SimSecurity::Pin2, "1234", accepted), int(StorageFailed));
    QVERIFY(accepted); // untouched
    QCOMPARE(desk.pinStatus(), "1/3");
}

void TestCharge::aBlockedPin2IsNotTried()
{
    Desk desk;
    desk.fake.answers["SimManager"]["Retries"] = retries(0);
    QVERIFY(desk.isReady());
    QCOMPARE(desk.pinStatus(), "2/0");
    bool accepted = true;
    QCOMPARE(desk.sim().verifyPin(SimSecurity::Pin2, "1234", accepted), int(NotAllowed));
    QVERIFY(desk.fake.asked.filter("SetProperty").isEmpty());
}

void TestCharge::digitsThatAreNoPin2AskNobody_data()
{
    QTest::addColumn<QByteArray>("digits");
    QTest::newRow("three") << QByteArray("123");
    QTest::newRow("nine") << QByteArray("123456789");
    QTest::newRow("letters") << QByteArray("12a4");
    QTest::newRow("none") << QByteArray();
}

void TestCharge::digitsThatAreNoPin2AskNobody()
{
    QFETCH(const QByteArray, digits);
    Desk desk;
    QVERIFY(desk.isReady());
    bool accepted = true;
    QCOMPARE(desk.sim().verifyPin(SimSecurity::Pin2, digits, accepted), int(InvalidArgument));
    QCOMPARE(desk.sim().verifyPin(SimSecurity::Pin1, "1234", accepted), int(NotAvailable));
    QCOMPARE(desk.sim().verifyPin(7, "1234", accepted), int(InvalidArgument));
    QVERIFY(desk.fake.asked.filter("SetProperty").isEmpty());
}

void TestCharge::pin2ServesOneWrite()
{
    Desk desk;
    QVERIFY(desk.isReady());
    QVERIFY(desk.enterPin());
    QCOMPARE(desk.advice().setMeterMaximum("50"), int(Success));
    QCOMPARE(desk.maximum(), "50.00 on");
    QCOMPARE(desk.pinStatus(), "1/3");
    QCOMPARE(desk.advice().setMeterMaximum("60"), int(NotAllowed));
    QCOMPARE(desk.maximum(), "50.00 on");
    QVERIFY(desk.enterPin());
    QCOMPARE(desk.advice().disableMeterMaximum(), int(Success));
    QCOMPARE(desk.maximum(), "0.00 off");
}

void TestCharge::aWriteWithoutPin2IsNotAllowed()
{
    Desk desk;
    QVERIFY(desk.isReady());
    QCOMPARE(desk.advice().setMeterMaximum("5"), int(NotAllowed));
    QCOMPARE(desk.advice().disableMeterMaximum(), int(NotAllowed));
    QCOMPARE(desk.advice().setPriceAndCurrency("1", "EUR"), int(NotAllowed));
    QCOMPARE(desk.log().resetAllCallsCost(), int(NotAllowed));
    QCOMPARE(desk.log().resetAll(), int(NotAllowed));
    QVERIFY(desk.fake.asked.filter(QRegularExpression("SetProperty|Reset")).isEmpty());
}

void TestCharge::theMaximumIsWrittenInTheUnitOfTheChargeType()
{
    Desk desk;
    QVERIFY(desk.isReady());
    QCOMPARE(desk.advice().setChargeType(AdviceOfCharge::InCurrency), int(Success));
    QVERIFY(desk.enterPin());
    QCOMPARE(desk.advice().setMeterMaximum("5.10"), int(Success));
    QVERIFY(desk.fake.asked.contains("CallMeter.SetProperty AccumulatedCallMeterMaximum 20 1234"));
    QCOMPARE(desk.maximum(), "5.00 on");
}

void TestCharge::aMaximumBeyondTheMeterAsksNobody()
{
    Desk desk;
    QVERIFY(desk.isReady());
    QVERIFY(desk.enterPin());
    QCOMPARE(desk.advice().setMeterMaximum("16777216"), int(InvalidArgument));
    QCOMPARE(desk.fake.asked.filter("SetProperty").size(), 1);
    QCOMPARE(desk.advice().setMeterMaximum("16777215"), int(Success)); // the PIN2 was not used up
}

void TestCharge::priceAndCurrencyAreWrittenAndReadBack()
{
    Desk desk;
    QVERIFY(desk.isReady());
    QVERIFY(desk.enterPin());
    desk.fake.asked.clear();
    QCOMPARE(desk.advice().setPriceAndCurrency("1.2345", "CHF"), int(Success));
    QCOMPARE(desk.price(), "1.235 CHF"); // the nearest that a card holds
    QCOMPARE(desk.fake.asked.filter("SetProperty"), QStringList({"CallMeter.SetProperty PricePerUnit 1.235 1234",
                                                                 "CallMeter.SetProperty Currency CHF 1234"}));
    QCOMPARE(desk.pinStatus(), "1/3");
    // What the daemon has made of it is what is shown.
    desk.fake.set(FakeOfono::modem, "CallMeter", "PricePerUnit", 1.23);
    QTRY_COMPARE(desk.price(), "1.23 CHF");
}

void TestCharge::aPriceGoesBackWhenItsCurrencyIsRefused()
{
    Desk desk;
    QVERIFY(desk.isReady());
    QVERIFY(desk.enterPin());
    desk.fake.asked.clear();
    desk.fake.errors["CallMeter.SetProperty"] << QString() << "Failed";
    QCOMPARE(desk.advice().setPriceAndCurrency("2", "CHF"), int(StorageFailed));
    QCOMPARE(desk.fake.asked.filter("SetProperty"),
             QStringList({"CallMeter.SetProperty PricePerUnit 2 1234", "CallMeter.SetProperty Currency CHF 1234",
                          "CallMeter.SetProperty PricePerUnit 0.25 1234"}));
    QCOMPARE(desk.price(), "0.25 EUR");
    QCOMPARE(desk.pinStatus(), "1/3");
    // Where that fails as well, what stands there is what is shown.
    QVERIFY(desk.enterPin());
    desk.fake.errors["CallMeter.SetProperty"] << QString() << "Failed"
                                              << "Failed";
    QCOMPARE(desk.advice().setPriceAndCurrency("2", "CHF"), int(StorageFailed));
    QTRY_COMPARE(desk.price(), "2 EUR");
}

void TestCharge::aPriceOrCurrencyThatNoCardHoldsAsksNobody()
{
    Desk desk;
    QVERIFY(desk.isReady());
    QVERIFY(desk.enterPin());
    desk.fake.asked.clear();
    QCOMPARE(desk.advice().setPriceAndCurrency("-1", "EUR"), int(InvalidArgument));
    QCOMPARE(desk.advice().setPriceAndCurrency("1", "EURO"), int(InvalidArgument));
    QCOMPARE(desk.advice().setPriceAndCurrency("99999999999", "EUR"), int(InvalidArgument));
    QVERIFY(desk.fake.asked.isEmpty());
}

void TestCharge::theMeterIsZeroedOnTheCardFirst()
{
    Desk desk;
    QVERIFY(desk.isReady());
    QVERIFY(desk.connectCall(one, "dialing"));
    desk.count(43);
    desk.end(one);
    QTRY_COMPARE(desk.costs(), "3.00 3.00 0.00 43.00");
    QVERIFY(desk.enterPin());
    desk.fake.errors["CallMeter.Reset"] << "Failed";
    QCOMPARE(desk.log().resetAll(), int(StorageFailed));
    QCOMPARE(desk.costs(), "3.00 3.00 0.00 43.00");
    QVERIFY(desk.enterPin());
    QCOMPARE(desk.log().resetAllCallsCost(), int(Success));
    QCOMPARE(desk.costs(), "3.00 3.00 0.00 0.00");
    QVERIFY(desk.enterPin());
    QCOMPARE(desk.log().resetAll(), int(Success));
    QCOMPARE(desk.costs(), "0.00 0.00 0.00 0.00");
    QCOMPARE(desk.fake.asked.filter("Reset 1234").size(), 3);
}

void TestCharge::aBusyDaemonIsAskedAgainWhileAWriteWaits()
{
    Desk desk;
    QVERIFY(desk.isReady());
    desk.fake.errors["CallMeter.SetProperty"] << "InProgress"
                                              << "InProgress";
    QVERIFY(desk.enterPin());
    QCOMPARE(desk.fake.asked.filter("SetProperty").size(), 3);
}

void TestCharge::aWriteSaysThatItWaitsAndThatItWaitsNoMore()
{
    Desk desk;
    QVERIFY(desk.isReady());
    QStringList told;
    desk.phone->setWaitListener([&](bool waits) {
        told << QStringLiteral("%1 after %2").arg(waits).arg(desk.fake.asked.filter("SetProperty").size());
    });
    QVERIFY(desk.enterPin());
    QCOMPARE(told, QStringList({"1 after 0", "0 after 1"}));
    QCOMPARE(desk.maximum(), "100.00 on"); // reading waits for nobody
    QCOMPARE(told.size(), 2);
}

void TestCharge::aDaemonThatStaysBusyFailsTheWrite()
{
    Desk desk(all, longestWaitMs);
    QVERIFY(desk.isReady());
    QVERIFY(desk.enterPin());
    for (int i = 0; i < 100; ++i)
        desk.fake.errors["CallMeter.SetProperty"] << "InProgress";
    QCOMPARE(desk.advice().setMeterMaximum("5"), int(StorageFailed));
    QCOMPARE(desk.maximum(), "100.00 on");
}

void TestCharge::aSilentDaemonFailsTheWriteAndTheWindowGoesOn()
{
    Desk desk(all, longestWaitMs);
    QVERIFY(desk.isReady());
    QVERIFY(desk.enterPin());
    desk.fake.silent.insert("CallMeter.SetProperty");
    int painted = 0;
    QTimer paints;
    QObject::connect(&paints, &QTimer::timeout, [&] { ++painted; });
    paints.start(20);
    QElapsedTimer time;
    time.start();
    QCOMPARE(desk.advice().setMeterMaximum("5"), int(StorageFailed));
    QVERIFY(time.elapsed() >= longestWaitMs - 50);
    QVERIFY(painted > 1);
    QCOMPARE(desk.maximum(), "100.00 on"); // reading asks nobody
    QCOMPARE(desk.pinStatus(), "1/3");
}

void TestCharge::aMeterThatVanishesEndsTheWait()
{
    Desk desk(all, 600'000);
    QVERIFY(desk.isReady());
    QVERIFY(desk.enterPin());
    desk.fake.silent.insert("CallMeter.SetProperty");
    QTimer::singleShot(0, &desk.fake, [&] { desk.fake.disappear(); });
    QCOMPARE(desk.advice().setMeterMaximum("5"), int(NotAvailable));
}

void TestCharge::onlyOneWriteWaits()
{
    Desk desk(all, longestWaitMs);
    QVERIFY(desk.isReady());
    QVERIFY(desk.enterPin());
    desk.fake.silent.insert("CallMeter.SetProperty");
    int within = Success;
    QTimer::singleShot(0, &desk.fake, [&] { within = desk.advice().setMeterMaximum("6"); });
    QCOMPARE(desk.advice().setMeterMaximum("5"), int(StorageFailed));
    QCOMPARE(within, int(StorageFailed));
    QCOMPARE(desk.fake.asked.filter("SetProperty").size(), 2);
}

void TestCharge::everyFailureOfAWriteHasItsStatus_data()
{
    QTest::addColumn<QString>("error");
    QTest::addColumn<int>("status");
    const auto row = [](const char *error, int status) {
        QTest::newRow(error) << QString::fromLatin1(error) << status;
    };
    row("InvalidFormat", InvalidArgument);
    row("InvalidArguments", InvalidArgument);
    row("NotImplemented", NotAvailable);
    row("org.freedesktop.DBus.Error.UnknownObject", NotAvailable);
    row("org.freedesktop.DBus.Error.UnknownMethod", NotAvailable);
    row("org.freedesktop.DBus.Error.UnknownInterface", NotAvailable);
    row("org.freedesktop.DBus.Error.NoReply", StorageFailed);
    row("org.freedesktop.DBus.Error.Timeout", StorageFailed);
    row("org.freedesktop.DBus.Error.Disconnected", StorageFailed);
    row("org.freedesktop.DBus.Error.ServiceUnknown", StorageFailed);
    row("Failed", StorageFailed); // the tries say that it was not PIN2
}

void TestCharge::everyFailureOfAWriteHasItsStatus()
{
    QFETCH(const QString, error);
    QFETCH(const int, status);
    Desk desk;
    QVERIFY(desk.isReady());
    QVERIFY(desk.enterPin());
    desk.fake.errors["CallMeter.SetProperty"] << error;
    QCOMPARE(desk.advice().setMeterMaximum("5"), status);
    QCOMPARE(desk.maximum(), "100.00 on");
    QCOMPARE(desk.pinStatus(), "1/3"); // PIN2 has been used, whatever became of the write
}

void TestCharge::whereNobodyCountsTheTriesAFailureIsAWrongPin2()
{
    Desk desk;
    desk.fake.answers["SimManager"] = {{"PinRequired", "none"}};
    QTRY_VERIFY(desk.phone->callMeter().maximum() && desk.phone->callMeter().pinRequired() == "none");
    bool accepted = true;
    QCOMPARE(desk.sim().verifyPin(SimSecurity::Pin2, "4321", accepted), int(Success));
    QVERIFY(!accepted);
    QVERIFY(desk.enterPin());
    int tries = -1;
    QCOMPARE(desk.sim().triesLeft(SimSecurity::Pin2, tries), int(NotAvailable));
    desk.fake.errors["CallMeter.SetProperty"] << "Failed";
    QCOMPARE(desk.advice().disableMeterMaximum(), int(NotAllowed));
}

void TestCharge::theStatusOfPin1IsWhatTheSimRequires_data()
{
    QTest::addColumn<QString>("required");
    QTest::addColumn<quint32>("expected");
    QTest::newRow("pin") << "pin" << quint32(SimSecurity::EntryNeeded);
    QTest::newRow("puk") << "puk" << quint32(SimSecurity::Blocked);
    QTest::newRow("none") << "none" << quint32(SimSecurity::NoEntryNeeded);
}

void TestCharge::theStatusOfPin1IsWhatTheSimRequires()
{
    QFETCH(const QString, required);
    QFETCH(const quint32, expected);
    Desk desk;
    desk.fake.answers["SimManager"]["PinRequired"] = required;
    QVERIFY(desk.isReady());
    quint32 status = 77;
    QCOMPARE(desk.sim().pinStatus(SimSecurity::Pin1, status), int(Success));
    QCOMPARE(status, expected);
    QCOMPARE(desk.sim().pinStatus(9, status), int(InvalidArgument));
}

void TestCharge::aSimThatRequiresPuk2HasABlockedPin2()
{
    Desk desk;
    desk.fake.answers["SimManager"]["PinRequired"] = "puk2";
    QVERIFY(desk.isReady());
    QCOMPARE(desk.pinStatus(), "2/3");
}

void TestCharge::aPriceThatNoCardHoldsIsNotAvailable_data()
{
    QTest::addColumn<double>("price");
    QTest::newRow("below 0") << -0.5;
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("without an end") << std::numeric_limits<double>::infinity();
    QTest::newRow("larger than the file has digits for") << 1e30;
}

void TestCharge::aPriceThatNoCardHoldsIsNotAvailable()
{
    QFETCH(const double, price);
    Desk desk;
    desk.fake.answers["CallMeter"]["PricePerUnit"] = price;
    desk.fake.answers["CallMeter"]["Vendor"] = "of no meaning";
    QVERIFY(desk.isReady());
    QCOMPARE(desk.price(), "-2");
    QCOMPARE(desk.maximum(), "100.00 on");
}

void TestCharge::inACurrencyWithoutAPriceNothingIsReckoned()
{
    Desk desk;
    desk.fake.answers["CallMeter"].remove("PricePerUnit");
    QVERIFY(desk.isReady());
    QCOMPARE(desk.advice().setChargeType(AdviceOfCharge::InCurrency), int(Success));
    QCOMPARE(desk.maximum(), "-2");
    QCOMPARE(desk.costs(), "-2 -2 -2 -2");
    QVERIFY(desk.enterPin());
    desk.fake.asked.clear();
    QCOMPARE(desk.advice().setMeterMaximum("5"), int(NotAvailable));
    QVERIFY(desk.fake.asked.filter("SetProperty").isEmpty());
}

void TestCharge::aPriceThatIsRefusedIsNotFollowedByItsCurrency()
{
    Desk desk;
    QVERIFY(desk.isReady());
    QVERIFY(desk.enterPin());
    desk.fake.asked.clear();
    desk.fake.errors["CallMeter.SetProperty"] << "Failed";
    QCOMPARE(desk.advice().setPriceAndCurrency("2", "CHF"), int(StorageFailed));
    QCOMPARE(desk.fake.asked.filter("SetProperty"), QStringList{"CallMeter.SetProperty PricePerUnit 2 1234"});
    QCOMPARE(desk.price(), "0.25 EUR");
}

void TestCharge::aPriceThatNobodyKnewIsNotWrittenBack()
{
    Desk desk;
    desk.fake.answers["CallMeter"].remove("PricePerUnit");
    QVERIFY(desk.isReady());
    QVERIFY(desk.enterPin());
    desk.fake.asked.clear();
    desk.fake.errors["CallMeter.SetProperty"] << QString() << "Failed";
    QCOMPARE(desk.advice().setPriceAndCurrency("2", "CHF"), int(StorageFailed));
    QCOMPARE(desk.fake.asked.filter("SetProperty").size(), 2);
    QCOMPARE(desk.price(), "2 EUR"); // what stands there is what is shown
}

void TestCharge::aMeterThatIsNotToldIsNotAvailable()
{
    Desk desk;
    desk.fake.errors["CallMeter.GetProperties"] << "Failed";
    desk.fake.errors["SimManager.GetProperties"] << "Failed";
    QTRY_VERIFY(desk.phone->callMeter().isThere() && desk.phone->callMeter().isAnswered());
    QCOMPARE(desk.maximum(), "-2");
    QCOMPARE(desk.price(), "-2");
    QCOMPARE(desk.pinStatus(), "?");
}

void TestCharge::aWriteThatCannotBeReadBackIsOne()
{
    Desk desk;
    QVERIFY(desk.isReady());
    QVERIFY(desk.enterPin());
    desk.fake.errors["CallMeter.GetProperties"] << "Failed";
    QCOMPARE(desk.advice().setMeterMaximum("5"), int(Success));
    QCOMPARE(desk.fake.answers["CallMeter"]["AccumulatedCallMeterMaximum"].toUInt(), 5U);
    QVERIFY(desk.enterPin());
    desk.fake.answers["CallMeter"].remove("AccumulatedCallMeter");
    QCOMPARE(desk.advice().setMeterMaximum("6"), int(Success));
    QCOMPARE(desk.maximum(), "6.00 on");
    QCOMPARE(desk.costs(), "0.00 0.00 0.00 40.00"); // of which nothing new was told
}

void TestCharge::anotherInterfaceThatComesDoesNotEndTheWait()
{
    Desk desk(all, longestWaitMs);
    QVERIFY(desk.isReady());
    QVERIFY(desk.enterPin());
    desk.fake.errors["CallMeter.SetProperty"] << "InProgress";
    QTimer::singleShot(0, &desk.fake, [&] { desk.fake.setInterfaces(all + QStringList{"MessageManager"}); });
    QCOMPARE(desk.advice().setMeterMaximum("5"), int(Success));
    QCOMPARE(desk.maximum(), "5.00 on");
}

void TestCharge::aMeterThatVanishesBetweenTwoWritesEndsBoth()
{
    Desk desk(all, 600'000);
    QVERIFY(desk.isReady());
    QVERIFY(desk.enterPin());
    desk.fake.asked.clear();
    int waits = 0;
    QObject::connect(&desk.phone->callMeter(), &ofono::CallMeter::waiting, &desk.fake, [&](bool isWaiting) {
        if (!isWaiting || ++waits != 2)
            return;
        desk.fake.silent.insert("CallMeter.SetProperty");
        QTimer::singleShot(0, &desk.fake, [&] { desk.fake.setInterfaces({"VoiceCallManager", "SimManager"}); });
    });
    QCOMPARE(desk.advice().setPriceAndCurrency("2", "CHF"), int(NotAvailable));
    QCOMPARE(desk.price(), "-2");
    QCOMPARE(waits, 2); // for the old price there is no meter to wait for
}

void TestCharge::aCurrentMeterOfAWrongTypeChangesNothing()
{
    Desk desk;
    QVERIFY(desk.isReady());
    QVERIFY(desk.connectCall(one, "dialing"));
    desk.fake.set(FakeOfono::modem, "CallMeter", "CallMeter", 4U);
    QTRY_COMPARE(desk.costs(), "4.00 4.00 0.00 44.00");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("oFono says something of CallMeter.CallMeter"));
    desk.fake.set(FakeOfono::modem, "CallMeter", "CallMeter", QStringLiteral("9"));
    desk.fake.set(FakeOfono::modem, "SimManager", "PinRequired", "puk");
    QTRY_COMPARE(desk.phone->callMeter().pinRequired(), "puk");
    QCOMPARE(desk.costs(), "4.00 4.00 0.00 44.00");
}

KAV_TEST_GROUP(TestCharge, QCoreApplication);
#include "tst_charge.moc"
