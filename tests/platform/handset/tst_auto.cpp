// The backend "auto": which of the daemons has a modem, asked of daemons that are not real.
#include "bench/daemons/FakeModemManager.h"
#include "bench/daemons/FakeOfono.h"
#include "handset/HandsetTestKit.h"
#include "qt/qcop/FakeBus.h"
#include "qt/qcop/PrivateBus.h"
#include "support/TestGroup.h"

#include <QtCore/QScopeGuard>
#include <QtCore/QThread>

#include <memory>

using namespace handset;
using namespace handset::test;

namespace {

constexpr int limitMs = 60'000;
/// Of a daemon that answers: no test waits that long.
constexpr Patience patient{limitMs, limitMs};

enum class Daemon { Missing, Silent, WithoutModem, WithModem };

} // namespace

Q_DECLARE_METATYPE(Daemon)
Q_DECLARE_METATYPE(Door)
Q_DECLARE_METATYPE(FakeBus::Manner)

class TestAuto : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qputenv("DBUS_SYSTEM_BUS_ADDRESS", bus.address().toLocal8Bit()); }
    void init();
    void cleanup();

    void theFirstThatHasAModemIsTaken_data();
    void theFirstThatHasAModemIsTaken();
    void aModemThatComesLaterIsToldOf_data();
    void aModemThatComesLaterIsToldOf();
    void whoHasEndedTheWaitIsToldOfNothing();
    void aSilentBusIsToldAndNotWaitedFor_data();
    void aSilentBusIsToldAndNotWaitedFor();
    // The last ones, as they end the bus.
    void aBusThatAnswersLateIsWaitedForAsLongAsSaid();
    void withoutABusItIsTheSimulation();
    void withoutABusNothingIsWaitedFor();

private:
    void appear(Daemon managerIs, Daemon ofonoIs);
    QString chosen(const Patience &patience);

    PrivateBus bus;
    std::unique_ptr<FakeModemManager> fakeManager;
    std::unique_ptr<FakeOfono> fakeOfono;
};

void TestAuto::init()
{
    fakeManager = std::make_unique<FakeModemManager>(bus.address());
    fakeOfono = std::make_unique<FakeOfono>(bus.address());
}

void TestAuto::cleanup()
{
    fakeManager.reset();
    fakeOfono.reset();
}

void TestAuto::appear(Daemon managerIs, Daemon ofonoIs)
{
    if (managerIs == Daemon::WithModem || managerIs == Daemon::Silent)
        fakeManager->addModem(fakeManager->modem);
    if (managerIs == Daemon::Silent)
        fakeManager->silent.insert(QStringLiteral("GetManagedObjects"));
    if (managerIs != Daemon::Missing)
        fakeManager->appear();
    if (ofonoIs == Daemon::WithoutModem)
        fakeOfono->removeModem(FakeOfono::modem);
    if (ofonoIs == Daemon::Silent)
        fakeOfono->silent.insert(QStringLiteral("Manager.GetModems"));
    if (ofonoIs != Daemon::Missing)
        fakeOfono->appear();
}

// In a thread of its own, as the daemons answer in this one.
QString TestAuto::chosen(const Patience &patience)
{
    QString backend;
    const std::unique_ptr<QThread> asking(QThread::create([&] { backend = presentBackend(patience); }));
    asking->start();
    const bool isDone = QTest::qWaitFor([&] { return asking->isFinished(); }, limitMs);
    asking->wait();
    return isDone ? backend : QStringLiteral("none within a minute");
}

void TestAuto::theFirstThatHasAModemIsTaken_data()
{
    QTest::addColumn<Daemon>("modemManager");
    QTest::addColumn<Daemon>("ofono");
    QTest::addColumn<QString>("backend");
    const QString simulated = QStringLiteral("simulated");
    const QString modemManager = QStringLiteral("modemmanager");
    const QString ofono = QStringLiteral("ofono");
    QTest::newRow("no daemon") << Daemon::Missing << Daemon::Missing << simulated;
    QTest::newRow("ModemManager alone") << Daemon::WithModem << Daemon::Missing << modemManager;
    QTest::newRow("oFono alone") << Daemon::Missing << Daemon::WithModem << ofono;
    QTest::newRow("both") << Daemon::WithModem << Daemon::WithModem << modemManager;
    QTest::newRow("ModemManager without a modem") << Daemon::WithoutModem << Daemon::Missing << simulated;
    QTest::newRow("oFono without a modem") << Daemon::Missing << Daemon::WithoutModem << simulated;
    QTest::newRow("both without a modem") << Daemon::WithoutModem << Daemon::WithoutModem << simulated;
    QTest::newRow("oFono has the modem, ModemManager none") << Daemon::WithoutModem << Daemon::WithModem << ofono;
    QTest::newRow("ModemManager is silent") << Daemon::Silent << Daemon::Missing << simulated;
    QTest::newRow("oFono is silent") << Daemon::Missing << Daemon::Silent << simulated;
    QTest::newRow("both are silent") << Daemon::Silent << Daemon::Silent << simulated;
    QTest::newRow("ModemManager has the modem, oFono is silent")
        << Daemon::WithModem << Daemon::Silent << modemManager;
}

void TestAuto::theFirstThatHasAModemIsTaken()
{
    QFETCH(Daemon, modemManager);
    QFETCH(Daemon, ofono);
    QFETCH(QString, backend);
    appear(modemManager, ofono);
    const bool isSilent = modemManager == Daemon::Silent || ofono == Daemon::Silent;
    QCOMPARE(chosen(isSilent ? Patience{limitMs, 300} : patient), backend);
}

void TestAuto::aModemThatComesLaterIsToldOf_data()
{
    QTest::addColumn<Daemon>("modemManager");
    QTest::addColumn<Daemon>("ofono");
    QTest::addColumn<QString>("backend");
    const QString modemManager = QStringLiteral("modemmanager");
    const QString ofono = QStringLiteral("ofono");
    QTest::newRow("with ModemManager") << Daemon::WithModem << Daemon::Missing << modemManager;
    QTest::newRow("with oFono") << Daemon::Missing << Daemon::WithModem << ofono;
    QTest::newRow("to ModemManager, which has been there")
        << Daemon::WithoutModem << Daemon::Missing << modemManager;
    QTest::newRow("to oFono, which has been there") << Daemon::Missing << Daemon::WithoutModem << ofono;
}

void TestAuto::aModemThatComesLaterIsToldOf()
{
    QFETCH(Daemon, modemManager);
    QFETCH(Daemon, ofono);
    QFETCH(QString, backend);
    QStringList here;
    const Awaited awaited = awaitModem([&](const QString &name) { here << name; });
    QVERIFY2(awaited.watch, qPrintable(awaited.error));
    appear(modemManager, ofono);
    if (modemManager == Daemon::WithoutModem) {
        QTRY_VERIFY_WITH_TIMEOUT(fakeManager->asked.contains(QStringLiteral("GetManagedObjects")), limitMs);
        fakeManager->addModem(fakeManager->modem);
    } else if (ofono == Daemon::WithoutModem) {
        QTRY_VERIFY_WITH_TIMEOUT(fakeOfono->asked.contains(QStringLiteral("Manager.GetModems")), limitMs);
        QVERIFY(here.isEmpty());
        fakeOfono->addModem(FakeOfono::modem, {{QStringLiteral("Online"), true}});
    }
    QTRY_VERIFY_WITH_TIMEOUT(!here.isEmpty(), limitMs);
    QCOMPARE(here.constFirst(), backend);
}

void TestAuto::whoHasEndedTheWaitIsToldOfNothing()
{
    QStringList kept;
    QStringList ended;
    Awaited first = awaitModem([&](const QString &name) {
        ended << name;
        first = {};
    });
    const Awaited last = awaitModem([&](const QString &name) { kept << name; });
    QVERIFY(first.watch && last.watch);
    appear(Daemon::WithModem, Daemon::WithModem);
    QTRY_VERIFY_WITH_TIMEOUT(
        kept.contains(QStringLiteral("modemmanager")) && kept.contains(QStringLiteral("ofono")), limitMs);
    QTRY_COMPARE_WITH_TIMEOUT(ended.size(), qsizetype{1}, limitMs);
    const qsizetype told = kept.size();
    fakeManager->set(fakeManager->modem, QStringLiteral("Modem.Modem3gpp"),
                     {{QStringLiteral("OperatorName"), QStringLiteral("Another")}});
    QTRY_VERIFY_WITH_TIMEOUT(kept.size() > told, limitMs);
    QCOMPARE(ended.size(), qsizetype{1});
}

void TestAuto::aSilentBusIsToldAndNotWaitedFor_data()
{
    QTest::addColumn<Door>("door");
    QTest::addColumn<FakeBus::Manner>("manner");
    QTest::newRow("a socket in a file that takes connections and says nothing") << Door::File << FakeBus::Silent;
    QTest::newRow("a TCP port that takes connections and says nothing") << Door::Network << FakeBus::Silent;
    QTest::newRow("a socket in a file that takes no connection") << Door::File << FakeBus::Full;
}

void TestAuto::aSilentBusIsToldAndNotWaitedFor()
{
    QFETCH(Door, door);
    QFETCH(FakeBus::Manner, manner);
    const FakeBus silent(manner, door);
    QVERIFY(silent.isListening());
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", silent.address().toLocal8Bit());
    const auto restored = qScopeGuard([this] { initTestCase(); });
    const QString error = QStringLiteral("There is no system bus: it does not answer");
    for (const QString &backend : {QStringLiteral("modemmanager"), QStringLiteral("ofono")}) {
        Settings settings;
        settings.backend = backend;
        QCOMPARE(open(settings).error, error);
    }
    const Awaited awaited = awaitModem([](const QString &) {});
    QCOMPARE(awaited.error, error);
    QVERIFY(awaited.watch); // it is looked for, and nothing waits
    QCOMPARE(presentBackend(), QStringLiteral("simulated"));
}

void TestAuto::aBusThatAnswersLateIsWaitedForAsLongAsSaid()
{
    appear(Daemon::WithModem, Daemon::WithModem);
    for (const QString &backend : {QStringLiteral("modemmanager"), QStringLiteral("ofono")}) {
        bus.halt();
        const std::unique_ptr<QThread> later(QThread::create([this] {
            QThread::msleep(3 * static_cast<unsigned long>(Patience().bus)); // longer than is waited usually
            bus.goOn();
        }));
        later->start();
        const StateDir state;
        Settings settings;
        settings.backend = backend;
        settings.stateDirectory = state.path();
        settings.patience.bus = limitMs;
        const Opened opened = open(settings);
        later->wait();
        QCOMPARE(opened.error, QString());
        QVERIFY(opened.handset);
    }
}

void TestAuto::withoutABusItIsTheSimulation()
{
    bus.kill();
    Settings settings;
    settings.backend = QStringLiteral("auto");
    const Opened opened = open(settings);
    QVERIFY2(opened.handset, qPrintable(opened.error));
    QVERIFY(dynamic_cast<simulated::SimulatedHandset *>(opened.handset.get()));
}

void TestAuto::withoutABusNothingIsWaitedFor()
{
    const Awaited awaited = awaitModem([](const QString &) {});
    QVERIFY(!awaited.watch);
    QVERIFY2(awaited.error.startsWith(QStringLiteral("There is no system bus: ")), qPrintable(awaited.error));
    for (const QString &backend : {QStringLiteral("modemmanager"), QStringLiteral("ofono")}) {
        Settings settings;
        settings.backend = backend;
        QCOMPARE(open(settings).error, awaited.error);
    }
}

KAV_TEST_GROUP(TestAuto, QCoreApplication);
#include "tst_auto.moc"
