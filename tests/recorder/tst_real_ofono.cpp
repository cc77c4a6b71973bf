// The recorder over Debian's ofonod and the AT modem.
#include "handset/live/RealOfono.h"
#include "recorder/LiveTour.h"
#include "support/TestGroup.h"

#include <QtDBus/QDBusVariant>

using namespace handset::test;
using AtPhone = atmodem::Phone;

namespace {

/// What one process tells the others of the call log, as kavqcop prints it.
constexpr const char *changedMessage = "/KAV/handset/Changed";

/// How far a duration may be from what the modem itself has recorded.
constexpr qint64 ofonoPrecisionMs = 1000;

} // namespace

class TestRecorderOverOfono : public QObject
{
    Q_OBJECT

private slots:
    void callsBothWaysAreRecordedToldOnceAndShown();

private:
    void listenToChanges();
    bool hasTold(const char *what)
    {
        if (listener.isOpen())
            told += listener.readAllStandardOutput();
        return told.contains(what);
    }
    bool tell(const char *message) const;
    void startRecorder();
    void recordReceivedCall();
    void recordDialedCall();
    void recordSession();
    void endCallAfterUnits();

    RealOfono daemon;
    RecorderProcess bench;
    QProcess listener;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    QByteArray told;
};

#define COMES_ABOUT(...) QVERIFY2(comesAbout([&] { return __VA_ARGS__; }), daemon.story().constData())

void TestRecorderOverOfono::listenToChanges()
{
    endWithParent(listener);
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), daemon.busAddress());
    listener.setProcessEnvironment(environment);
    listener.start(QStringLiteral(KAV_QCOP), {QStringLiteral("listen"), QStringLiteral("/KAV/handset")});
    COMES_ABOUT(tell("listening()") && hasTold("listening"));
}

bool TestRecorderOverOfono::tell(const char *message) const
{
    QProcess sender;
    sender.setProcessEnvironment(environment);
    sender.start(QStringLiteral(KAV_QCOP),
                 {QStringLiteral("send"), QStringLiteral("/KAV/handset"), QLatin1String(message)});
    return sender.waitForFinished(limitMs) && sender.exitCode() == 0;
}

// It is there when the card's meter has been read for it: the daemon reads once at a time.
void TestRecorderOverOfono::startRecorder()
{
    const auto reads = [&] { return daemon.modem().log().commands.count("AT+CACM?"); };
    const auto before = reads();
    bench.startOn(daemon.busAddress(), {QStringLiteral("--backend"), QStringLiteral("ofono")});
    COMES_ABOUT(reads() > before);
    COMES_ABOUT(daemon.onModem("CallMeter", "GetProperties").errorName().isEmpty());
}

// The network reports them late, so they come with the card's own meter.
void TestRecorderOverOfono::endCallAfterUnits()
{
    daemon.modem().withPhone([](AtPhone &phone) {
        phone.isMeterPushed = false;
        phone.tick(5);
        phone.hangUpThere();
    });
    COMES_ABOUT(daemon.calls().isEmpty());
}

void TestRecorderOverOfono::recordReceivedCall()
{
    daemon.modem().withPhone([](AtPhone &phone) { phone.ring("5551234"); });
    COMES_ABOUT(daemon.onlyState() == QLatin1String("incoming"));
    QCOMPARE(daemon.on(daemon.calls().firstKey(), "VoiceCall", "Answer").errorName(), QString());
    COMES_ABOUT(bench.calls() == QLatin1String("0"));
    const auto recordedMs = [&] { return daemon.modem().records().constLast().durationMs(); };
    COMES_ABOUT(recordedMs() > 1200);
    endCallAfterUnits();
    COMES_ABOUT(bench.calls() == QLatin1String("1"));
    QVERIFY(std::abs(bench.countedMs() - recordedMs()) < ofonoPrecisionMs);
    COMES_ABOUT(bench.all(QStringLiteral("units")) == QLatin1String("5"));
}

void TestRecorderOverOfono::recordDialedCall()
{
    QCOMPARE(daemon.onModem("VoiceCallManager", "Dial", {QStringLiteral("5550001"), QString()}).errorName(),
             QString());
    COMES_ABOUT(daemon.onlyState() == QLatin1String("alerting"));
    daemon.modem().withPhone([](AtPhone &phone) { phone.answer(); });
    COMES_ABOUT(bench.calls() == QLatin1String("1 0"));
    endCallAfterUnits();
    COMES_ABOUT(bench.calls() == QLatin1String("1 1") &&
                bench.all(QStringLiteral("units")) == QLatin1String("5 5"));
}

void TestRecorderOverOfono::recordSession()
{
    const QString context = objectsOf(daemon.onModem("ConnectionManager", "GetContexts")).firstKey();
    const auto set = [&](const char *what, const QVariant &value) {
        return daemon
            .on(context, "ConnectionContext", "SetProperty",
                {QLatin1String(what), QVariant::fromValue(QDBusVariant(value))})
            .errorName();
    };
    const auto sessions = [&] {
        return bench.value(QStringLiteral("SELECT group_concat(state, ' ') FROM sessions"));
    };
    QCOMPARE(set("AccessPointName", QStringLiteral("internet")), QString());
    QCOMPARE(set("Active", true), QString());
    COMES_ABOUT(sessions() == QLatin1String("0"));
    QCOMPARE(set("Active", false), QString());
    COMES_ABOUT(sessions() == QLatin1String("1"));
}

void TestRecorderOverOfono::callsBothWaysAreRecordedToldOnceAndShown()
{
    daemon.modem().withPhone([](AtPhone &phone) {
        phone.sim.acm = 40;
        phone.sim.price = atmodem::CardPrice::nearest("0.25");
    });
    QVERIFY2(daemon.bringUp(), daemon.story().constData());
    listenToChanges();
    startRecorder();
    recordReceivedCall();
    if (QTest::currentTestFailed())
        return;
    // It may have come while the recorder was beginning, which is told then, all at once. Its costs have been written behind.
    COMES_ABOUT(tell("between()") && hasTold("between"));
    QVERIFY(told.contains(changedMessage) && told.count(changedMessage) <= 3);
    told.clear();
    recordDialedCall();
    if (QTest::currentTestFailed())
        return;
    QCOMPARE(bench.all(QStringLiteral("direction || ':' || number || ':' || late")),
             QStringLiteral("1:5551234:0 0:5550001:0"));
    recordSession();
    bench.end(SIGTERM);
    QCOMPARE(bench.recorder.exitCode(), 0);
    QCOMPARE(bench.recorder.readAllStandardError(), QByteArray());

    // What is sent now comes behind all that the recorder has sent: the beginning of the call, its connection, its end; and
    // of the session.
    QVERIFY(tell("over()"));
    COMES_ABOUT(hasTold("over"));
    QCOMPARE(told.count(changedMessage), 3 + 2);
    listener.terminate();
    QVERIFY(listener.waitForFinished(limitMs));

    const QString backend = QStringLiteral("ofono");
    const QImage window = photographScreen(bench, QStringLiteral("callCost"), backend, daemon.busAddress());
    QVERIFY(!window.isNull());
    const PrivateBus nobody;
    QVERIFY(window != photographScreen(bench, QStringLiteral("callCost"), backend, nobody.address()));

    const HostResult tour = playLiveTours(bench, backend, daemon.busAddress(), costsOfTheCard());
    QVERIFY2(tour.code == 0, qPrintable(tour.errors + tour.output));
    QCOMPARE(tour.errors, QString());
    daemon.modem().withPhone([](AtPhone &phone) {
        QCOMPARE(phone.sim.acm, 0U);
        QCOMPARE(phone.sim.acmMax, 60U);
        QCOMPARE(phone.sim.currency, QByteArray("DEM"));
        QCOMPARE(phone.sim.price.text(), QByteArray("0.5"));
        QCOMPARE(phone.sim.pin2Tries, 3);
    });
}

KAV_TEST_GROUP(TestRecorderOverOfono, QCoreApplication);
#include "tst_real_ofono.moc"
