// The window where a D-Bus bus does not answer, which Qt would wait for.
#include "e2e/AccessibilityRegistry.h"
#include "e2e/OwnServer.h"
#include "e2e/Picture.h"
#include "qt/qcop/BusRelay.h"
#include "qt/qcop/Command.h"
#include "qt/qcop/FakeBus.h"
#include "qt/qcop/PrivateBus.h"
#include "support/TestGroup.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtDBus/QDBusConnectionInterface>
#include <QtGui/QScreen>
#include <QtTest/QTest>

#include <csignal>
#include <memory>

#include <sys/stat.h>
#include <xcb/xcb.h>

namespace {

constexpr int patience = 60'000;
constexpr QRect displayRect(50, 72, 240, 320); // of the phone, in a window at the top-left corner
constexpr int movesOfTheFocus = 1501;          // more than a socket holds word of
constexpr char sessionVariable[] = "DBUS_SESSION_BUS_ADDRESS";
constexpr char accessibilityVariable[] = "AT_SPI_BUS_ADDRESS";
constexpr char sessionNotice[] = "The session bus does not answer";
constexpr char accessibilityNotice[] = "The accessibility bus does not answer";

bool runTool(const QStringList &arguments)
{
    QProcess tool;
    tool.setProcessChannelMode(QProcess::ForwardedChannels);
    tool.start(QStringLiteral("xdotool"), arguments);
    if (tool.waitForFinished(patience))
        return tool.exitCode() == 0;
    tool.kill();
    tool.waitForFinished();
    return false;
}

QImage photograph()
{
    return QGuiApplication::primaryScreen()
        ->grabWindow(0, displayRect.x(), displayRect.y(), displayRect.width(), displayRect.height())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

// Announces an accessibility bus on the display; an empty address takes that back.
void announce(const QByteArray &address)
{
    xcb_connection_t *display = qApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(display)).data->root;
    constexpr QByteArrayView name("AT_SPI_BUS");
    const auto question = xcb_intern_atom(display, 0, static_cast<quint16>(name.size()), name.data());
    const std::unique_ptr<xcb_intern_atom_reply_t, void (*)(void *)> atom(
        xcb_intern_atom_reply(display, question, nullptr), &std::free);
    if (address.isEmpty())
        xcb_delete_property(display, root, atom->atom);
    else
        xcb_change_property(display, XCB_PROP_MODE_REPLACE, root, atom->atom, XCB_ATOM_STRING, 8,
                            static_cast<quint32>(address.size()), address.constData());
    std::free(xcb_get_input_focus_reply(display, xcb_get_input_focus(display), nullptr)); // the server has it
}

qsizetype namesOn(const QString &bus)
{
    const QDBusConnection connection = QDBusConnection::connectToBus(bus, QStringLiteral("counting"));
    const QStringList names = connection.interface()->registeredServiceNames();
    QDBusConnection::disconnectFromBus(QStringLiteral("counting"));
    return names.size();
}

} // namespace

class TestSilentBuses : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aSilentSessionBusHoldsUpNeitherTheWindowNorItsEnd_data();
    void aSilentSessionBusHoldsUpNeitherTheWindowNorItsEnd();
    void aSessionBusThatFallsSilentOnTheWayHoldsUpNoWindow_data();
    void aSessionBusThatFallsSilentOnTheWayHoldsUpNoWindow();
    void aHaltedSessionBusHoldsUpNoWindowAndIsUsedWhenItGoesOn();
    void theSilentBusOfAUsersSessionHoldsUpNothing();
    void aSecretThatNobodyTellsHoldsUpNothing();
    void noProgramIsWaitedForToGetToASessionBus();
    void aPhotographIsTakenBesideASilentSessionBus();
    void aSilentAccessibilityBusHoldsUpNeitherTheWindowNorItsEnd_data();
    void aSilentAccessibilityBusHoldsUpNeitherTheWindowNorItsEnd();
    void aBusThatFallsSilentInUseHoldsUpNeitherAKeyNorTheEnd_data();
    void aBusThatFallsSilentInUseHoldsUpNeitherAKeyNorTheEnd();
    void aSilentInputMethodHoldsUpNeitherTheWindowNorItsEnd_data();
    void aSilentInputMethodHoldsUpNeitherTheWindowNorItsEnd();
    void busesThatAnswerAreLeftToQt_data();
    void busesThatAnswerAreLeftToQt();

private:
    void start(const QStringList &arguments = {});
    void verifyWindow();
    void verifyEnd(const char *notice);
    void startWhereBusesAnswer(const char *expectedNotice);

    QProcessEnvironment environment;
    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<QProcess> host;
    QByteArray errors; ///< that the host has told
};

void TestSilentBuses::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
    environment = QProcessEnvironment::systemEnvironment();
    environment.remove(accessibilityVariable);
    announce({});
}

void TestSilentBuses::cleanup()
{
    if (host && host->state() != QProcess::NotRunning) {
        host->kill();
        host->waitForFinished(patience);
    }
    host.reset();
    errors.clear();
}

void TestSilentBuses::start(const QStringList &arguments)
{
    host = std::make_unique<QProcess>();
    host->setProcessEnvironment(environment);
    endWithParent(*host);
    host->start(QStringLiteral(KAV_HOST), QStringList{"--state", "none"} + arguments);
    QVERIFY2(host->waitForStarted(patience), qPrintable(host->errorString()));
}

// The window is there, and the menu painted in it.
void TestSilentBuses::verifyWindow()
{
    // Without a window manager the focus is given by hand.
    QVERIFY(runTool({"search", "--sync", "--onlyvisible", "--name", "^Recent Calls$", "windowmove", "0", "0",
                     "windowfocus", "--sync"}));
    const QImage menu(QStringLiteral(KAV_REFERENCES "/menu.png"));
    QVERIFY(!menu.isNull());
    QVERIFY(QTest::qWaitFor([&] { return difference(photograph(), menu).isSmall(); }, patience));
}

void TestSilentBuses::verifyEnd(const char *notice)
{
    QCOMPARE(::kill(static_cast<pid_t>(host->processId()), SIGTERM), 0);
    QVERIFY(host->waitForFinished(patience));
    QCOMPARE(host->exitStatus(), QProcess::NormalExit);
    QCOMPARE(host->exitCode(), 0);
    errors += host->readAllStandardError();
    QVERIFY2(errors.count("does not answer") == (*notice ? 1 : 0) && errors.contains(notice), errors.constData());
}

// The host gives a bus a quarter of a second; on a busy machine one that answers may take longer now and then.
void TestSilentBuses::startWhereBusesAnswer(const char *expectedNotice)
{
    constexpr int mostStarts = 10;
    for (int starts = 0; starts < mostStarts; ++starts) {
        errors.clear();
        start();
        verifyWindow();
        if (QTest::currentTestFailed())
            return;
        errors += host->readAllStandardError();
        if (errors.count("does not answer") == (*expectedNotice && errors.contains(expectedNotice) ? 1 : 0))
            return;
        host->kill();
        QVERIFY(host->waitForFinished(patience));
    }
}

void TestSilentBuses::aSilentSessionBusHoldsUpNeitherTheWindowNorItsEnd_data()
{
    QTest::addColumn<FakeBus::Manner>("manner");
    QTest::addColumn<Door>("door");
    QTest::addColumn<QString>("desktop");
    for (const char *desktop : {"", "KDE"}) {
        const auto add = [&](const char *name, FakeBus::Manner manner, Door door) {
            QTest::addRow("%s%s", name, *desktop ? ", on the desktop whose theme asks the bus" : "")
                << manner << door << QString::fromLatin1(desktop);
        };
        add("a mute socket", FakeBus::Silent, Door::File);
        add("a mute port", FakeBus::Silent, Door::Network);
        add("a full socket", FakeBus::Full, Door::File);
        add("a full port", FakeBus::Full, Door::Network);
    }
}

void TestSilentBuses::aSilentSessionBusHoldsUpNeitherTheWindowNorItsEnd()
{
    QFETCH(FakeBus::Manner, manner);
    QFETCH(Door, door);
    QFETCH(QString, desktop);
    const FakeBus bus(manner, door);
    QVERIFY(bus.isListening());
    environment.insert(sessionVariable, bus.address());
    environment.insert("XDG_CURRENT_DESKTOP", desktop);
    start();
    verifyWindow();
    verifyEnd(sessionNotice);
}

void TestSilentBuses::aSessionBusThatFallsSilentOnTheWayHoldsUpNoWindow_data()
{
    QTest::addColumn<QByteArray>("word");
    QTest::newRow("when it is asked for a name") << QByteArray("Hello");
    QTest::newRow("when it is asked for messages") << QByteArray("AddMatch");
}

void TestSilentBuses::aSessionBusThatFallsSilentOnTheWayHoldsUpNoWindow()
{
    QFETCH(QByteArray, word);
    const PrivateBus bus;
    QVERIFY(bus.isRunning());
    const BusRelay relay(bus.address(), word);
    environment.insert(sessionVariable, relay.address());
    start();
    verifyWindow();
    QTRY_VERIFY_WITH_TIMEOUT(relay.isHolding(), patience);
    QCOMPARE(::kill(static_cast<pid_t>(host->processId()), SIGTERM), 0);
    QVERIFY(host->waitForFinished(patience));
    QCOMPARE(host->exitStatus(), QProcess::NormalExit);
    QCOMPARE(host->exitCode(), 0);
}

void TestSilentBuses::aHaltedSessionBusHoldsUpNoWindowAndIsUsedWhenItGoesOn()
{
    PrivateBus bus;
    QVERIFY(bus.isRunning());
    bus.halt();
    environment.insert(sessionVariable, bus.address());
    start({"--screen", "dataVolume", "--trace", "-"});
    QByteArray traces;
    const auto timesRead = [&] { return (traces += host->readAllStandardOutput()).count("getRDV"); };
    constexpr int onceRead = 2; // figures of all sessions
    QTRY_COMPARE_WITH_TIMEOUT(timesRead(), onceRead, patience);
    bus.goOn();
    // It is heard once the window's process has found the bus again.
    const auto sendAndLook = [&] {
        Command command(bus.address(), {"send", "/KAV/phone", "/KAV/phone/RecentCall/Update"});
        return command.finish() == 0 && timesRead() > onceRead;
    };
    QTRY_VERIFY_WITH_TIMEOUT(sendAndLook(), patience);
    verifyEnd(sessionNotice);
}

void TestSilentBuses::theSilentBusOfAUsersSessionHoldsUpNothing()
{
    const FakeBus bus(FakeBus::Silent);
    environment.remove(sessionVariable);
    const QString file = bus.address().section('=', 1);
    environment.insert("XDG_RUNTIME_DIR", file.section('/', 0, -2));
    start();
    verifyWindow();
    verifyEnd(sessionNotice);
}

void TestSilentBuses::aSecretThatNobodyTellsHoldsUpNothing()
{
    const FakeBus port(FakeBus::Silent, Door::Network);
    const QString secret = folder->filePath("secret");
    QCOMPARE(::mkfifo(QFile::encodeName(secret).constData(), 0600), 0);
    environment.insert(sessionVariable, "nonce-" + port.address() + ",noncefile=" + secret);
    start();
    verifyWindow();
    verifyEnd(sessionNotice);
}

void TestSilentBuses::noProgramIsWaitedForToGetToASessionBus()
{
    environment.insert(sessionVariable, "unixexec:path=/bin/sleep,argv1=1000");
    start();
    verifyWindow();
    verifyEnd("");
}

void TestSilentBuses::aPhotographIsTakenBesideASilentSessionBus()
{
    const FakeBus bus(FakeBus::Silent);
    environment.insert(sessionVariable, bus.address());
    const QString file = folder->filePath("window.png");
    start({"--photo", file});
    QVERIFY(host->waitForFinished(patience));
    QCOMPARE(host->exitCode(), 0);
    QVERIFY(!QImage(file).isNull());
}

void TestSilentBuses::aSilentAccessibilityBusHoldsUpNeitherTheWindowNorItsEnd_data()
{
    QTest::addColumn<bool>("isSessionThere");
    QTest::addColumn<QString>("whoTells");
    QTest::newRow("told by the environment") << true << "environment";
    QTest::newRow("told by the environment, without a session bus") << false << "environment";
    QTest::newRow("announced on the display") << true << "display";
    QTest::newRow("told over the session bus") << true << "registry";
    QTest::newRow("not told by the one who should") << true << "nobody";
}

void TestSilentBuses::aSilentAccessibilityBusHoldsUpNeitherTheWindowNorItsEnd()
{
    QFETCH(bool, isSessionThere);
    QFETCH(QString, whoTells);
    const FakeBus silent(FakeBus::Silent, Door::Network);
    const PrivateBus session;
    QVERIFY(session.isRunning());
    std::unique_ptr<AccessibilityRegistry> registry;
    if (isSessionThere)
        environment.insert(sessionVariable, session.address());
    if (whoTells == "environment")
        environment.insert(accessibilityVariable, silent.address());
    else if (whoTells == "display")
        announce(silent.address().toLatin1());
    else
        registry = std::make_unique<AccessibilityRegistry>(session.address(),
                                                           whoTells == "registry" ? silent.address() : QString());
    QVERIFY(!registry || registry->isRegistered());
    startWhereBusesAnswer(accessibilityNotice);
    verifyEnd(accessibilityNotice);
}

void TestSilentBuses::aBusThatFallsSilentInUseHoldsUpNeitherAKeyNorTheEnd_data()
{
    QTest::addColumn<bool>("isSession");
    QTest::newRow("the session bus") << true;
    QTest::newRow("the accessibility bus") << false;
}

// Keys move the focus, which Qt tells the accessibility bus as long as that takes it, and then must keep.
void TestSilentBuses::aBusThatFallsSilentInUseHoldsUpNeitherAKeyNorTheEnd()
{
    QFETCH(bool, isSession);
    PrivateBus session;
    PrivateBus accessibility;
    QVERIFY(session.isRunning() && accessibility.isRunning());
    announce(accessibility.address().toLatin1());
    const qsizetype before = namesOn(accessibility.address());
    environment.insert(sessionVariable, session.address());
    environment.insert("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
    start();
    verifyWindow();
    QTRY_VERIFY_WITH_TIMEOUT(namesOn(accessibility.address()) > before, patience);
    PrivateBus &silent = isSession ? session : accessibility;
    silent.halt();

    // An odd number of them, so that another line is chosen at their end.
    QStringList moves{"key", "--delay", "1"};
    for (int key = 0; key < movesOfTheFocus; ++key)
        moves << (key % 2 == 0 ? "Down" : "Up");
    QVERIFY(runTool(moves));
    const QImage menu(QStringLiteral(KAV_REFERENCES "/menu.png"));
    QVERIFY(QTest::qWaitFor([&] { return !difference(photograph(), menu).isSmall(); }, patience));
    verifyEnd("");
    silent.goOn();
}

void TestSilentBuses::aSilentInputMethodHoldsUpNeitherTheWindowNorItsEnd_data()
{
    QTest::addColumn<bool>("isTold");
    QTest::newRow("whose address is where it usually is") << false;
    QTest::newRow("whose address is in a file that the environment names") << true;
}

// Qt looks for it where its daemon is installed, and the process that has written the file is there.
void TestSilentBuses::aSilentInputMethodHoldsUpNeitherTheWindowNorItsEnd()
{
    QFETCH(bool, isTold);
    const FakeBus silent(FakeBus::Silent);
    QVERIFY(QDir(folder->path()).mkpath("bin") && QDir(folder->path()).mkpath("config/ibus/bus"));
    QVERIFY(QFile::link("/bin/true", folder->filePath("bin/ibus-daemon")));
    const QString display = qEnvironmentVariable("DISPLAY").section(':', 1).section('.', 0, 0);
    const QString usual = "config/ibus/bus/" + QString::fromLatin1(QDBusConnection::localMachineId()) + "-unix-";
    QFile file(folder->filePath(isTold ? QStringLiteral("address") : usual + display));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("# written by hand\nIBUS_ADDRESS=" + silent.address().toLatin1() +
               "\nIBUS_DAEMON_PID=" + QByteArray::number(QCoreApplication::applicationPid()) + '\n');
    file.close();
    environment.insert("QT_IM_MODULE", "ibus");
    environment.insert("XDG_CONFIG_HOME", folder->filePath("config"));
    environment.insert("PATH", folder->filePath("bin") + ':' + environment.value("PATH"));
    if (isTold)
        environment.insert("IBUS_ADDRESS_FILE", file.fileName());
    start();
    verifyWindow();
    verifyEnd("The bus of the input method does not answer");
}

void TestSilentBuses::busesThatAnswerAreLeftToQt_data()
{
    QTest::addColumn<QString>("whoTells");
    QTest::newRow("announced on the display") << "display";
    QTest::newRow("told over the session bus") << "registry";
}

// Qt is on both of them as long as the window is there.
void TestSilentBuses::busesThatAnswerAreLeftToQt()
{
    QFETCH(QString, whoTells);
    const PrivateBus session;
    const PrivateBus accessibility;
    QVERIFY(session.isRunning() && accessibility.isRunning());
    std::unique_ptr<AccessibilityRegistry> registry;
    if (whoTells == "display")
        announce(accessibility.address().toLatin1());
    else
        registry = std::make_unique<AccessibilityRegistry>(session.address(), accessibility.address());
    const qsizetype onSession = namesOn(session.address());
    const qsizetype onAccessibility = namesOn(accessibility.address());
    environment.insert(sessionVariable, session.address());
    startWhereBusesAnswer("");
    QTRY_COMPARE_WITH_TIMEOUT(namesOn(session.address()), onSession + 1, patience);
    QTRY_VERIFY_WITH_TIMEOUT(namesOn(accessibility.address()) > onAccessibility, patience);
    verifyEnd("");
}

KAV_TEST_GROUP(TestSilentBuses, ApplicationOnItsOwnServer);

#include "tst_silent_buses.moc"
