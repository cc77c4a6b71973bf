// The telephone behind the real ofonod, which has the AT modem for hardware.
#include "calllog/OpenLedger.h"
#include "handset/HandsetTestKit.h"
#include "handset/live/RealOfono.h"
#include "ofono/OfonoHandset.h"
#include "support/TestGroup.h"

#include <QtCore/QDir>
#include <QtDBus/QDBusVariant>

using namespace handset;
using namespace handset::test;
using atmodem::CallRecord;
using atmodem::Dialed;
using AtPhone = atmodem::Phone;

#define COMES_ABOUT(...) QVERIFY2(comesAbout([&] { return __VA_ARGS__; }), daemon->story().constData())

namespace {

/// How far a duration may be from what the modem itself has recorded.
constexpr qint64 precisionMs = 1000;

} // namespace

class TestReal : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void aDialedCallLastsAsLongAsTheModemSays();
    void anAnsweredCallLastsAsLongAsTheModemSays();
    void aLostCallIsLoggedWithoutTime();
    void aRefusedCallIsToldAndIsNone();
    void aWaitingCallIsTakenWhileTheOtherIsHeld();
    void callsCostWhatTheCardHasCounted();
    void theFilesOfTheCardAreWrittenUnderPin2();
    void threeWrongPin2BlockIt();
    void bytesAreThoseOfTheInterface();
    void aCallEndsWithTheDaemonAndTheNextOneIsSeen();
    void aCallEndsWithTheModemThatIsUnpluggedAndTheNextOneIsSeen();
    void aCardThatCannotBeReadHasNoFigures();

private:
    void lead(const std::function<void(AtPhone &)> &how) { daemon->modem().withPhone(how); }
    CallRecord record() { return daemon->modem().records().constLast(); }
    /// The phase of the only call; nothing where there is none, or more than one.
    std::optional<CallPhase> phase() const
    {
        const QList<live::ReportedCall> calls = phone->calls().reported();
        return calls.size() == 1 ? std::optional(calls.constFirst().phase) : std::nullopt;
    }
    QString onlyCall() const { return phone->calls().reported().constFirst().id; }
    /// "direction:number:state" of the newest row, and how long it was.
    QString row(qint64 *ms = nullptr) const
    {
        const LogFile file(state->database());
        if (ms)
            *ms =
                file.value(QStringLiteral("SELECT duration_ms FROM calls ORDER BY id DESC LIMIT 1")).toLongLong();
        return file
            .value(QStringLiteral(
                "SELECT direction || ':' || number || ':' || state FROM calls ORDER BY id DESC LIMIT 1"))
            .toString();
    }
    bool isAsLong() const
    {
        qint64 ms = 0;
        row(&ms);
        return std::abs(ms - daemon->modem().records().constLast().durationMs()) < precisionMs;
    }
    QString cost(int (CallLog::*query)(QByteArray &))
    {
        QByteArray text;
        const int status = (phone->callLog()->*query)(text);
        return status == Success ? QString::fromLatin1(text) : QStringLiteral("-%1").arg(status);
    }
    bool enterPin(const char *digits, bool &accepted)
    {
        return phone->simSecurity()->verifyPin(SimSecurity::Pin2, digits, accepted) == Success;
    }
    QString openCard();

    std::unique_ptr<RealOfono> daemon;
    std::unique_ptr<StateDir> state;
    std::unique_ptr<QTemporaryDir> interfaces;
    std::unique_ptr<ofono::OfonoHandset> phone;
};

void TestReal::initTestCase()
{
    daemon = std::make_unique<RealOfono>();
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", daemon->busAddress().toLocal8Bit());
    QVERIFY2(daemon->bringUp(), daemon->story().constData());
}

void TestReal::init()
{
    state = std::make_unique<StateDir>();
    interfaces = std::make_unique<QTemporaryDir>();
    const auto clock = std::make_shared<SystemClock>();
    calllog::OpenedLedger opened = calllog::openLedger(state->path(), clock);
    QVERIFY2(opened.ledger, qPrintable(opened.error));
    phone = std::make_unique<ofono::OfonoHandset>(
        std::move(opened.ledger), clock, std::make_unique<ofono::OfonoModem>(), ofono::CallMeter::usualWaitMs,
        live::InterfaceCounters(interfaces->path()));
    COMES_ABOUT(phone->modem().state().status == "registered" && phone->callMeter().accumulated() &&
                phone->callMeter().tries());
}

void TestReal::cleanup()
{
    phone.reset();
    lead([](AtPhone &there) {
        while (there.hangUpThere()) {
        }
        there.dialed = Dialed::Led;
    });
    COMES_ABOUT(daemon->calls().isEmpty());
}

void TestReal::cleanupTestCase()
{
    daemon.reset();
}

void TestReal::aDialedCallLastsAsLongAsTheModemSays()
{
    QCOMPARE(phone->modem().dial("5550001"), int(Success));
    COMES_ABOUT(phase() == CallPhase::Alerting);
    lead([](AtPhone &there) { there.answer(); });
    COMES_ABOUT(phase() == CallPhase::Active);
    COMES_ABOUT(record().durationMs() > 1500);
    QCOMPARE(phone->modem().hangUp(onlyCall()), int(Success));
    COMES_ABOUT(!phase());
    QCOMPARE(row(), "0:5550001:1");
    QVERIFY(isAsLong());
}

void TestReal::anAnsweredCallLastsAsLongAsTheModemSays()
{
    lead([](AtPhone &there) { there.ring("5550003"); });
    COMES_ABOUT(phase() == CallPhase::Incoming);
    QCOMPARE(phone->modem().answer(onlyCall()), int(Success));
    COMES_ABOUT(phase() == CallPhase::Active);
    COMES_ABOUT(record().durationMs() > 1500);
    lead([](AtPhone &there) { there.hangUpThere(); });
    COMES_ABOUT(!phase());
    QCOMPARE(row(), "1:5550003:1");
    QVERIFY(isAsLong());
}

void TestReal::aLostCallIsLoggedWithoutTime()
{
    lead([](AtPhone &there) { there.ring("5550004"); });
    COMES_ABOUT(phase() == CallPhase::Incoming);
    lead([](AtPhone &there) { there.hangUpThere(); });
    COMES_ABOUT(!phase());
    qint64 ms = 1;
    QCOMPARE(row(&ms), "1:5550004:2");
    QCOMPARE(ms, 0);
}

void TestReal::aRefusedCallIsToldAndIsNone()
{
    QString told;
    connect(&phone->modem(), &live::Modem::refused, this, [&](const QString &why) { told = why; });
    lead([](AtPhone &there) { there.dialed = Dialed::Busy; });
    QCOMPARE(phone->modem().dial("5550002"), int(Success));
    COMES_ABOUT(!told.isEmpty());
    QCOMPARE(told, "The telephone does not dial: it failed (Failed).");
    QCOMPARE(row(), QString());
}

void TestReal::aWaitingCallIsTakenWhileTheOtherIsHeld()
{
    lead([](AtPhone &there) { there.dialed = Dialed::Answered; });
    QCOMPARE(phone->modem().dial("5550001"), int(Success));
    COMES_ABOUT(phase() == CallPhase::Active);
    lead([](AtPhone &there) { there.ring("5550003"); });
    const auto has = [&](CallPhase one, const char *number) {
        const QList<live::ReportedCall> calls = phone->calls().reported();
        return std::any_of(calls.begin(), calls.end(), [&](const live::ReportedCall &call) {
            return call.phase == one && call.number == QLatin1String(number);
        });
    };
    COMES_ABOUT(has(CallPhase::Waiting, "5550003"));
    for (const live::ReportedCall &call : phone->calls().reported()) {
        if (call.phase == CallPhase::Waiting)
            QCOMPARE(phone->modem().answer(call.id), int(Success));
    }
    COMES_ABOUT(has(CallPhase::Held, "5550001") && has(CallPhase::Active, "5550003"));
    COMES_ABOUT(record().durationMs() > 1200);
    lead([](AtPhone &there) { there.hangUpThere("5550003"); });
    COMES_ABOUT(phone->calls().reported().size() == 1);
    QCOMPARE(row(), "1:5550003:1");
    QVERIFY(isAsLong());
    lead([](AtPhone &there) {
        while (there.hangUpThere()) {
        }
        there.hangUpThere("5550001");
    });
    COMES_ABOUT(phone->calls().reported().isEmpty());
    const LogFile file(state->database());
    const qint64 first = file.value("SELECT duration_ms FROM calls WHERE number = '5550001'").toLongLong();
    const QList<CallRecord> records = daemon->modem().records();
    QVERIFY(std::abs(first - records[records.size() - 2].durationMs()) < precisionMs);
}

void TestReal::callsCostWhatTheCardHasCounted()
{
    const uint before = *phone->callMeter().accumulated();
    lead([](AtPhone &there) { there.dialed = Dialed::Answered; });
    QCOMPARE(phone->modem().dial("5550001"), int(Success));
    COMES_ABOUT(phase() == CallPhase::Active);
    lead([](AtPhone &there) { there.tick(3); });
    COMES_ABOUT(cost(&CallLog::dialedCallsCost) == "3.00"); // told while it is on
    lead([](AtPhone &there) {
        there.isMeterPushed = false;
        there.tick(4);
        there.hangUpThere();
        there.isMeterPushed = true;
    });
    COMES_ABOUT(cost(&CallLog::dialedCallsCost) == "7.00");
    QCOMPARE(record().units, 7U);
    QCOMPARE(cost(&CallLog::answeredCallsCost), "0.00");
    QCOMPARE(cost(&CallLog::allCallsCost), QString::number(before + 7) + ".00");
}

void TestReal::theFilesOfTheCardAreWrittenUnderPin2()
{
    AdviceOfCharge &advice = *phone->adviceOfCharge();
    QString price;
    QString currency;
    bool accepted = false;
    QVERIFY(enterPin("1234", accepted) && accepted);
    QCOMPARE(advice.setPriceAndCurrency("0.23", "USD"), int(Success));
    QCOMPARE(advice.priceAndCurrency(price, currency), int(Success));
    QCOMPARE(price + ' ' + currency, "0.23 USD");
    QCOMPARE(daemon->modem().withPhone([](AtPhone &there) { return there.sim.price.text(); }), QByteArray("0.23"));

    QVERIFY(enterPin("1234", accepted) && accepted);
    QCOMPARE(advice.setMeterMaximum("5000"), int(Success));
    QCOMPARE(daemon->modem().withPhone([](AtPhone &there) { return there.sim.acmMax; }), 5000U);
    QVERIFY(enterPin("1234", accepted) && accepted);
    QCOMPARE(daemon->modem().withPhone([](AtPhone &there) { return there.sim.acmMax; }), 5000U); // as it was
    QCOMPARE(advice.disableMeterMaximum(), int(Success));
    QCOMPARE(daemon->modem().withPhone([](AtPhone &there) { return there.sim.acmMax; }), 0U);

    lead([](AtPhone &there) { there.sim.addUnits(9); });
    QVERIFY(enterPin("1234", accepted) && accepted);
    QCOMPARE(phone->callLog()->resetAllCallsCost(), int(Success));
    QCOMPARE(cost(&CallLog::allCallsCost), "0.00");
    QCOMPARE(daemon->modem().withPhone([](AtPhone &there) { return there.sim.acm; }), 0U);
}

void TestReal::threeWrongPin2BlockIt()
{
    for (int left = 2; left >= 0; --left) {
        bool accepted = true;
        QVERIFY(enterPin("9999", accepted));
        QVERIFY(!accepted);
        int tries = -1;
        QCOMPARE(phone->simSecurity()->triesLeft(SimSecurity::Pin2, tries), int(Success));
        QCOMPARE(tries, left);
        QCOMPARE(daemon->modem().withPhone([](AtPhone &there) { return there.sim.pin2Tries; }), left);
    }
    quint32 status = 0;
    QCOMPARE(phone->simSecurity()->pinStatus(SimSecurity::Pin2, status), int(Success));
    QCOMPARE(status, quint32(SimSecurity::Blocked));
    lead([](AtPhone &there) { there.sim.unblockPin2("87654321", "1234"); });
}

void TestReal::bytesAreThoseOfTheInterface()
{
    const QString folder = interfaces->filePath(QStringLiteral("dummy0/statistics"));
    QVERIFY(QDir().mkpath(folder));
    const auto count = [&](const char *file, qint64 bytes) {
        QFile counter(folder + QLatin1String(file));
        if (counter.open(QIODevice::WriteOnly))
            counter.write(QByteArray::number(bytes) + '\n');
    };
    count("/tx_bytes", 1000);
    count("/rx_bytes", 2000);
    const QString context = objectsOf(daemon->onModem("ConnectionManager", "GetContexts")).firstKey();
    const auto set = [&](const char *what, const QVariant &value) {
        return daemon
            ->on(context, "ConnectionContext", "SetProperty",
                 {QLatin1String(what), QVariant::fromValue(QDBusVariant(value))})
            .errorName();
    };
    QCOMPARE(set("AccessPointName", "internet"), QString());
    QCOMPARE(set("Active", true), QString());
    COMES_ABOUT(phone->sessions().reported().size() == 1);
    QCOMPARE(phone->sessions().reported().constFirst().interface, "dummy0");
    count("/tx_bytes", 1007);
    count("/rx_bytes", 5'000'002'000);
    QCOMPARE(set("Active", false), QString());
    COMES_ABOUT(phone->sessions().reported().isEmpty());
    const LogFile file(state->database());
    QCOMPARE(file.value("SELECT apn || ':' || sent || ':' || received FROM sessions").toString(),
             "internet:7:5000000000");
}

void TestReal::aCallEndsWithTheDaemonAndTheNextOneIsSeen()
{
    lead([](AtPhone &there) { there.dialed = Dialed::Answered; });
    QCOMPARE(phone->modem().dial("5550001"), int(Success));
    COMES_ABOUT(phase() == CallPhase::Active);
    QVERIFY(daemon->kill());
    COMES_ABOUT(!phase());
    QCOMPARE(row(), "0:5550001:1");
    QVERIFY2(daemon->bringUp(), daemon->story().constData());
    COMES_ABOUT(phone->modem().state().status == "registered" && phase() == CallPhase::Active);
    // It goes on, since nobody knows when.
    CallTime all;
    QCOMPARE(phone->callLog()->lifetimeCallsTime(all), int(Success));
    QCOMPARE(all.hours, 0U);
    QCOMPARE(LogFile(state->database()).value("SELECT late FROM calls ORDER BY id DESC LIMIT 1").toInt(), 1);
    lead([](AtPhone &there) {
        while (there.hangUpThere()) {
        }
    });
    COMES_ABOUT(!phase());
    lead([](AtPhone &there) { there.ring("5550005"); });
    COMES_ABOUT(phase() == CallPhase::Incoming);
}

void TestReal::aCallEndsWithTheModemThatIsUnpluggedAndTheNextOneIsSeen()
{
    lead([](AtPhone &there) { there.dialed = Dialed::Answered; });
    QCOMPARE(phone->modem().dial("5550001"), int(Success));
    COMES_ABOUT(phase() == CallPhase::Active);
    daemon->modem().with([](atmodem::Modem &all) { all.unplug(); });
    COMES_ABOUT(!phase());
    QCOMPARE(row(), "0:5550001:1");
    daemon->modem().with([](atmodem::Modem &all) { all.plugIn(); });
    QVERIFY2(daemon->bringUpModem(), daemon->story().constData());
    COMES_ABOUT(phone->modem().state().status == "registered" && phone->callMeter().accumulated() &&
                phone->callMeter().tries());
    lead([](AtPhone &there) { there.ring("5550006"); });
    COMES_ABOUT(phase() == CallPhase::Incoming);
    QCOMPARE(phone->modem().answer(onlyCall()), int(Success));
    COMES_ABOUT(phase() == CallPhase::Active);
    lead([](AtPhone &there) { there.hangUpThere(); });
    COMES_ABOUT(!phase());
    QCOMPARE(row(), "1:5550006:1");
}

void TestReal::aCardThatCannotBeReadHasNoFigures()
{
    const auto readsAgain = [&](bool isReadable) {
        lead([isReadable](AtPhone &there) { there.sim.isMeterReadable = isReadable; });
        daemon->modem().with([](atmodem::Modem &all) { all.unplug(); });
        COMES_ABOUT(!phone->callMeter().isThere());
        daemon->modem().with([](atmodem::Modem &all) { all.plugIn(); });
        QVERIFY2(daemon->bringUpModem(), daemon->story().constData());
        COMES_ABOUT(phone->callMeter().isAnswered() && phone->callMeter().toldMaximum());
    };
    const QString notAvailable = QStringLiteral("-%1").arg(NotAvailable);
    readsAgain(false);
    QCOMPARE(phone->callMeter().toldMaximum(), 0U);
    QCOMPARE(cost(&CallLog::allCallsCost), notAvailable);
    readsAgain(true);
    QVERIFY(cost(&CallLog::allCallsCost) != notAvailable);
}

KAV_TEST_GROUP(TestReal, QCoreApplication);
#include "tst_real.moc"
