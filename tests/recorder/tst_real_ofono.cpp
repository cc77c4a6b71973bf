// The recorder over Debian's ofonod and the AT modem.
#include "handset/live/RealOfono.h"
#include "recorder/LiveTour.h"
#include "support/TestGroup.h"

using namespace handset::test;
using atmodem::CallRecord;
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
};

#define COMES_ABOUT(...) QVERIFY2(comesAbout([&] { return __VA_ARGS__; }), daemon.story().constData())

void TestRecorderOverOfono::callsBothWaysAreRecordedToldOnceAndShown()
{
    RealOfono daemon;
    QVERIFY2(daemon.bringUp(), daemon.story().constData());
    QProcess listener;
    endWithParent(listener);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), daemon.busAddress());
    listener.setProcessEnvironment(environment);
    listener.start(QStringLiteral(KAV_QCOP), {QStringLiteral("listen"), QStringLiteral("/KAV/handset")});
    QByteArray told;
    const auto hasTold = [&](const char *what) {
        told += listener.readAllStandardOutput();
        return told.contains(what);
    };
    const auto tell = [&](const char *message) {
        QProcess sender;
        sender.setProcessEnvironment(environment);
        sender.start(QStringLiteral(KAV_QCOP),
                     {QStringLiteral("send"), QStringLiteral("/KAV/handset"), QLatin1String(message)});
        return sender.waitForFinished(limitMs) && sender.exitCode() == 0;
    };
    COMES_ABOUT(tell("listening()") && hasTold("listening"));

    RecorderProcess bench;
    bench.startOn(daemon.busAddress(), {QStringLiteral("--backend"), QStringLiteral("ofono")});
    COMES_ABOUT(QFile::exists(bench.state.database()));
    daemon.modem().withPhone([](AtPhone &phone) { phone.ring("5551234"); });
    COMES_ABOUT(daemon.onlyState() == QLatin1String("incoming"));
    QCOMPARE(daemon.on(daemon.calls().firstKey(), "VoiceCall", "Answer").errorName(), QString());
    COMES_ABOUT(bench.calls() == QLatin1String("0"));
    const auto recordedMs = [&] { return daemon.modem().records().constLast().durationMs(); };
    COMES_ABOUT(recordedMs() > 1200);
    daemon.modem().withPhone([](AtPhone &phone) { phone.hangUpThere(); });
    COMES_ABOUT(bench.calls() == QLatin1String("1"));
    QVERIFY(std::abs(bench.countedMs() - recordedMs()) < ofonoPrecisionMs);

    COMES_ABOUT(daemon.calls().isEmpty());
    QCOMPARE(daemon.onModem("VoiceCallManager", "Dial", {QStringLiteral("5550001"), QString()}).errorName(),
             QString());
    COMES_ABOUT(daemon.onlyState() == QLatin1String("alerting"));
    daemon.modem().withPhone([](AtPhone &phone) { phone.answer(); });
    COMES_ABOUT(bench.calls() == QLatin1String("1 0"));
    daemon.modem().withPhone([](AtPhone &phone) { phone.hangUpThere(); });
    COMES_ABOUT(bench.calls() == QLatin1String("1 1"));
    QCOMPARE(bench.all(QStringLiteral("direction || ':' || number || ':' || late")),
             QStringLiteral("1:5551234:0 0:5550001:0"));
    bench.end(SIGTERM);
    QCOMPARE(bench.recorder.exitCode(), 0);
    QCOMPARE(bench.recorder.readAllStandardError(), QByteArray());

    // What is sent now comes behind all that the recorder has sent: the beginning of each call, its connection, its end.
    QVERIFY(tell("over()"));
    COMES_ABOUT(hasTold("over"));
    QCOMPARE(told.count(changedMessage), 2 * 3);
    listener.terminate();
    QVERIFY(listener.waitForFinished(limitMs));

    const HostResult tour = playLiveTour(bench, QStringLiteral("ofono"), daemon.busAddress());
    QVERIFY2(tour.code == 0, qPrintable(tour.output + tour.errors));
    QCOMPARE(tour.errors, QString());
}

KAV_TEST_GROUP(TestRecorderOverOfono, QCoreApplication);
#include "tst_real_ofono.moc"
