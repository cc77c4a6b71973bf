// The recorder over Debian's ModemManager and the AT modem.
#include "handset/live/RealModemManager.h"
#include "recorder/LiveTour.h"
#include "support/TestGroup.h"

#include <QtCore/QElapsedTimer>
#include <QtDBus/QDBusObjectPath>

using namespace handset::test;
using AtPhone = atmodem::Phone;

namespace {

// Numbers of Call.State.
constexpr int ringingIn = 3;
constexpr int active = 4;

} // namespace

class TestRecorderOverModemManager : public QObject
{
    Q_OBJECT

private slots:
    void aCallThatComesInIsRecordedAndShown();

private:
    void recordSession();

    RealModemManager daemon;
    RecorderProcess bench;
};

#define HAPPENS(...)                                                                                              \
    QVERIFY2(comesAbout([&] { return __VA_ARGS__; }), (daemon.story() + bench.story()).constData())

// The first thing that is recorded: from then on the modem is followed.
void TestRecorderOverModemManager::recordSession()
{
    const auto sessions = [&] {
        return bench.value(QStringLiteral("SELECT group_concat(state, ' ') FROM sessions"));
    };
    const QDBusMessage connected = daemon.onModem(
        "Modem.Simple", "Connect", {QVariantMap{{QStringLiteral("apn"), QStringLiteral("internet")}}});
    QCOMPARE(connected.errorName(), QString());
    HAPPENS(sessions() == QLatin1String("0"));
    const QVariant bearer = QVariant::fromValue(QDBusObjectPath(valueOf(connected).toString()));
    QCOMPARE(daemon.onModem("Modem.Simple", "Disconnect", {bearer}).errorName(), QString());
    HAPPENS(sessions() == QLatin1String("1"));
}

// How long it has been on is held against what is certain on any machine: no less than between its row and the word to
// hang up, no more than from the word to take it to the end of its row.
void TestRecorderOverModemManager::aCallThatComesInIsRecordedAndShown()
{
    bench.startOn(daemon.busAddress()); // the bus is there, and nothing else
    QVERIFY2(daemon.bringUp(), daemon.story().constData());
    HAPPENS(QFile::exists(bench.state.database())); // the modem has been found
    recordSession();
    if (QTest::currentTestFailed())
        return;
    daemon.modem().withPhone([](AtPhone &phone) { phone.ring("5551234"); });
    HAPPENS(daemon.calls().size() == 1);
    const QString call = daemon.calls().constFirst();
    HAPPENS(daemon.stateOf(call) == ringingIn);
    daemon.forgetOutput();
    QElapsedTimer sinceTaken;
    sinceTaken.start();
    QCOMPARE(daemon.on(call, "Call", "Accept").errorName(), QString());
    HAPPENS(daemon.stateOf(call) == active);
    HAPPENS(bench.calls() == QLatin1String("0"));
    QElapsedTimer sinceRow;
    sinceRow.start();
    // Earlier it would not hear that the call ends.
    HAPPENS(daemon.hasSaid("modem is now in-call state"));
    const qint64 leastMs = sinceRow.elapsed();
    daemon.modem().withPhone([](AtPhone &phone) { phone.hangUpThere(); });
    HAPPENS(bench.calls() == QLatin1String("1"));
    const qint64 mostMs = sinceTaken.elapsed();
    QCOMPARE(bench.all(QStringLiteral("direction || ' ' || number || ' ' || late")),
             QStringLiteral("1 5551234 0"));
    QVERIFY2(bench.countedMs() >= leastMs && bench.countedMs() <= mostMs,
             qPrintable(QStringLiteral("%1 not in %2 to %3").arg(bench.countedMs()).arg(leastMs).arg(mostMs)));
    bench.end(SIGTERM);
    QCOMPARE(bench.recorder.exitCode(), 0);
    QCOMPARE(bench.recorder.readAllStandardError(), QByteArray());

    const HostResult tour =
        playLiveTours(bench, QStringLiteral("modemmanager"), daemon.busAddress(), costsOfTheOwnTariff());
    QVERIFY2(tour.code == 0, qPrintable(tour.errors + tour.output));
    QCOMPARE(tour.errors, QString());
}

KAV_TEST_GROUP(TestRecorderOverModemManager, QCoreApplication);
#include "tst_real_modemmanager.moc"
