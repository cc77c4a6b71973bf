// Opening a handset by name and installing it for the phone's libraries.
#include "calllog/Schema.h"
#include "handset/Backend.h"
#include "handset/CallService.h"
#include "handset/DataCalls.h"
#include "handset/HandsetTestKit.h"
#include "handset/Status.h"
#include "support/TestGroup.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QStandardPaths>

using namespace handset;
using namespace handset::test;

class TestFactory : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    // These three need a process in which nothing was installed yet: they come first.
    void aDefaultThatCannotBeOpenedIsAWarningAndNoHandset();
    void noHandsetAtTheFirstCallIsNoneFromThenOn();
    void installReplacesWhatCurrentDecided();

    void theSimulatedHandsetIsTheDefault();
    void aBackendThatIsNotKnownIsAnErrorThatNamesThoseThereAre();
    void aBackendInALibraryIsOpenedByItsPath();
    void aLibraryThatCannotBeUsedAsABackendIsAnErrorThatNamesIt_data();
    void aLibraryThatCannotBeUsedAsABackendIsAnErrorThatNamesIt();
    void withoutAClockItIsTheMachines();
    void installingNullLeavesNoHandset();
    void theInstalledHandsetLivesAsLongAsItIsUsed();
    void theDefaultStateIsBelowTheUsersDataDirectory();
    void theInstalledHandsetIsClosedWithTheApplication();

private:
    QTemporaryDir home;
};

void TestFactory::initTestCase()
{
    QVERIFY(home.isValid());
    QFile inTheWay(home.filePath(QStringLiteral("data")));
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    qputenv("XDG_DATA_HOME", inTheWay.fileName().toLocal8Bit());
}

void TestFactory::aDefaultThatCannotBeOpenedIsAWarningAndNoHandset()
{
    QTest::ignoreMessage(
        QtWarningMsg, QRegularExpression(QStringLiteral("^The state directory \".*/data/kavcallmeter\" cannot be "
                                                        "used: Not a directory\\.$")));
    QVERIFY(!current());
}

void TestFactory::noHandsetAtTheFirstCallIsNoneFromThenOn()
{
    QVERIFY(QFile::remove(home.filePath(QStringLiteral("data"))));
    QVERIFY(!current()); // and no second warning
    QVERIFY(!QDir(home.filePath(QStringLiteral("data"))).exists());
}

void TestFactory::installReplacesWhatCurrentDecided()
{
    const Phone phone;
    install(phone.opened.handset);
    QCOMPARE(current().get(), phone.opened.handset.get());
    install(nullptr);
}

void TestFactory::theSimulatedHandsetIsTheDefault()
{
    QVERIFY(backendNames().contains(QStringLiteral("simulated")));
    QCOMPARE(Settings().backend, QStringLiteral("simulated"));
    const Opened opened = open({});
    QVERIFY(opened.handset);
    QVERIFY(opened.error.isNull());
    QVERIFY(opened.notice.isNull());
    QVERIFY(dynamic_cast<simulated::SimulatedHandset *>(opened.handset.get()));
}

void TestFactory::aBackendThatIsNotKnownIsAnErrorThatNamesThoseThereAre()
{
    Settings settings;
    settings.backend = QStringLiteral("tin can");
    const Opened opened = open(settings);
    QVERIFY(!opened.handset);
    QCOMPARE(opened.error, QStringLiteral("There is no telephone named \"tin can\"; those there are: %1.")
                               .arg(backendNames().join(QStringLiteral(", "))));
    QVERIFY(opened.notice.isEmpty());
}

void TestFactory::aBackendInALibraryIsOpenedByItsPath()
{
    Settings settings;
    settings.backend = QStringLiteral(KAV_BACKENDS "/libonlytotaltime.so");
    const Opened opened = open(settings);
    QVERIFY2(opened.handset, qPrintable(opened.error));
    CallTime time;
    QCOMPARE(opened.handset->callService()->totalCallTime(time), int(Success));
    QCOMPARE(time.hours, 42u);
    QCOMPARE(opened.notice, QStringLiteral("simulated is another"));
}

void TestFactory::aLibraryThatCannotBeUsedAsABackendIsAnErrorThatNamesIt_data()
{
    QTest::addColumn<QString>("library");
    QTest::addColumn<QString>("reason");
    QTest::newRow("there is no such file") << QStringLiteral("/none/such.so") << QStringLiteral("No such file");
    QTest::newRow("it is no library") << QStringLiteral(KAV_BACKENDS "/CMakeLists.txt") << QStringLiteral(": ");
    QTest::newRow("a library without a handset")
        << QStringLiteral(KAV_BACKENDS "/libnohandset.so") << QStringLiteral("it has no handset");
    QTest::newRow("one that was built for another version")
        << QStringLiteral(KAV_BACKENDS "/libotherversion.so")
        << QStringLiteral("it was built for version 0 of the interface, and this is version %1")
               .arg(interfaceVersion);
}

void TestFactory::aLibraryThatCannotBeUsedAsABackendIsAnErrorThatNamesIt()
{
    QFETCH(QString, library);
    QFETCH(QString, reason);
    Settings settings;
    settings.backend = library;
    const Opened opened = open(settings);
    QVERIFY(!opened.handset);
    QVERIFY2(opened.error.startsWith(QStringLiteral("The telephone \"%1\" cannot be used: ").arg(library)),
             qPrintable(opened.error));
    QVERIFY2(opened.error.contains(reason), qPrintable(opened.error));
}

void TestFactory::withoutAClockItIsTheMachines()
{
    const Opened opened = open({});
    auto *handset = dynamic_cast<simulated::SimulatedHandset *>(opened.handset.get());
    QVERIFY(handset);
    QCOMPARE(handset->dial(QStringLiteral("1"), CallKind::Voice), int(Success));
    QCOMPARE(handset->remoteAnswer(), int(Success));
    QTRY_VERIFY_WITH_TIMEOUT(handset->connectedMs() > 0, 60'000);
}

void TestFactory::installingNullLeavesNoHandset()
{
    install(open({}).handset);
    QVERIFY(current());
    install(nullptr);
    QVERIFY(!current());
}

void TestFactory::theInstalledHandsetLivesAsLongAsItIsUsed()
{
    install(open({}).handset);
    const std::shared_ptr<Handset> held = current();
    const std::weak_ptr<Handset> watched = held;
    install(open({}).handset);
    QVERIFY(!watched.expired());
    quint8 status = 99;
    QCOMPARE(held->dataCalls()->callStatus(status), int(Success));
    const std::weak_ptr<Handset> replaced = current();
    install(nullptr);
    QVERIFY(replaced.expired());
}

void TestFactory::theDefaultStateIsBelowTheUsersDataDirectory()
{
    qputenv("XDG_DATA_HOME", home.filePath(QStringLiteral("elsewhere")).toLocal8Bit());
    QCOMPARE(defaultStateDirectory(), home.filePath(QStringLiteral("elsewhere/kavcallmeter")));
}

void TestFactory::theInstalledHandsetIsClosedWithTheApplication()
{
    const StateDir state;
    const int exitCode =
        QProcess::execute(QCoreApplication::applicationDirPath() + QStringLiteral("/handset_other_process"),
                          {QStringLiteral("leave"), state.path()});
    QCOMPARE(exitCode, 0);
    QCOMPARE(state.names(), QStringList{QStringLiteral("calllog.db")}); // no leftovers
    const QList<LoggedCall> calls = LogFile(state.database()).calls();
    QCOMPARE(calls.size(), 1);
    QCOMPARE(calls[0].state, int(calllog::CallState::Finished));
    QCOMPARE(calls[0].durationMs, qint64{9000});
}

KAV_TEST_GROUP(TestFactory, QCoreApplication);
#include "tst_factory.moc"
