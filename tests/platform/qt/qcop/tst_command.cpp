// kavqcop, as a shell calls it.
#include "qt/qcop/Command.h"
#include "qt/qcop/Peer.h"
#include "qt/qcop/PrivateBus.h"
#include "qt/qcop/QCopTest.h"
#include "support/TestGroup.h"

#include <QtCore/QFile>
#include <QtCore/QIODevice>
#include <QtCore/QProcess>
#include <QtCore/QProcessEnvironment>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <csignal>

#include <fcntl.h>
#include <sys/prctl.h>
#include <unistd.h>

namespace {

constexpr int exitUsage = 2;
using Arguments = Command::Arguments;

} // namespace

class TestCommand : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(bus.isRunning()); }
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void aSentMessageReachesASubscriber_data();
    void aSentMessageReachesASubscriber();
    void aFileIsSentWhole();
    void aFileWhoseNameIsNotUtf8IsSent();
    void aListenerPrintsEachMessageAsALine();
    void aListenerHearsASenderOnAnyChannelName();
    void withoutABusItFailsAndSaysSo_data();
    void withoutABusItFailsAndSaysSo();
    void aListenerEndsWithItsBus();
    void aListenerThatCannotPrintEnds();
    void aMessageLargerThanABusCarriesIsRefused();
    void aFileWithoutAnEndIsRefused();
    void whatAPipeDeliversInPiecesIsSentWhole();
    void aReaderThatGoesIsAnErrorAndNoDeath_data();
    void aReaderThatGoesIsAnErrorAndNoDeath();
    void wrongUsageIsRefusedWithItsReason_data();
    void wrongUsageIsRefusedWithItsReason();
    void aFileThatCannotBeReadIsRefused();
    void helpNamesEveryOption();
    void theVersionIsOneLine();

private:
    PrivateBus bus;
};

void TestCommand::aSentMessageReachesASubscriber_data()
{
    QTest::addColumn<Arguments>("options");
    QTest::addColumn<QByteArray>("message");
    QTest::addColumn<QByteArray>("data");
    QTest::newRow("without data") << Arguments{phone, "/KAV/phone/RecentCall/Update"}
                                  << QByteArray("/KAV/phone/RecentCall/Update") << QByteArray();
    QTest::newRow("data as text") << Arguments{phone, "m", "--data", "\xff text"} << QByteArray("m")
                                  << QByteArray("\xff text");
    QTest::newRow("data in hexadecimal digits")
        << Arguments{phone, "m", "--data-hex", "00fF41"} << QByteArray("m") << QByteArray("\0\xff\x41", 3);
    QTest::newRow("options in front") << Arguments{"--data", "x", phone, "m"} << QByteArray("m")
                                      << QByteArray("x");
    QTest::newRow("an empty message") << Arguments{phone, "", "--data", ""} << QByteArray() << QByteArray();
    QTest::newRow("bytes that are no UTF-8")
        << Arguments{phone, "\xff\xfe"} << QByteArray("\xff\xfe") << QByteArray();
    QTest::newRow("a message that looks like an option")
        << Arguments{"--data", "--data", "--", phone, "--help"} << QByteArray("--help") << QByteArray("--data");
}

void TestCommand::aSentMessageReachesASubscriber()
{
    QFETCH(Arguments, options);
    QFETCH(QByteArray, message);
    QFETCH(QByteArray, data);
    Peer peer(bus.address());
    QVERIFY(peer.subscribe(1, phone));
    Command command(bus.address(), Arguments{"send"} + options);
    QCOMPARE(command.finish(), 0);
    QCOMPARE(command.errors() + command.output(), QByteArray());
    QCOMPARE(peer.take(), Peer::line(1, message, data));
}

void TestCommand::aFileIsSentWhole()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("data")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QByteArray data = QByteArray("\0\n\xff line", 8).repeated(100000);
    QCOMPARE(file.write(data), data.size());
    file.close();
    Peer peer(bus.address());
    QVERIFY(peer.subscribe(1, phone));
    Command command(bus.address(), {"send", phone, "m", "--data-file", file.fileName().toLocal8Bit()});
    QCOMPARE(command.finish(), 0);
    QCOMPARE(peer.take(), Peer::line(1, "m", data));
}

void TestCommand::aFileWhoseNameIsNotUtf8IsSent()
{
    const QTemporaryDir folder;
    const QByteArray name = QFile::encodeName(folder.filePath("f")) + '\xff';
    const int file = ::open(name.constData(), O_WRONLY | O_CREAT, 0600);
    QCOMPARE(::write(file, "content", 7), 7);
    ::close(file);
    Peer peer(bus.address());
    QVERIFY(peer.subscribe(1, phone));
    Command command(bus.address(), {"send", phone, "m", "--data-file", name});
    const int status = command.finish();
    QCOMPARE(::unlink(name.constData()), 0); // which Qt cannot
    QCOMPARE(status, 0);
    QCOMPARE(peer.take(), Peer::line(1, "m", "content"));
}

void TestCommand::aListenerPrintsEachMessageAsALine()
{
    Peer peer(bus.address());
    QVERIFY(peer.connectToBus());
    Command command(bus.address(), {"listen", phone, "--count", "3"});
    QVERIFY(command.isListening());
    QVERIFY(peer.send("/KAV/other", "not for you"));
    QVERIFY(peer.send(phone, "/KAV/phone/RecentCall/Update"));
    QVERIFY(peer.send(phone, "tab\t line\n \\ ~", QByteArray("\0 \x7f\xff", 4)));
    QVERIFY(peer.send(phone, "", ""));
    QVERIFY(peer.send(phone, "one too many"));
    QCOMPARE(command.finish(), 0);
    QCOMPARE(command.output(), QByteArray("/KAV/phone/RecentCall/Update\t\n"
                                          "tab\\x09 line\\x0a \\\\ ~\t\\x00 \\x7f\\xff\n"
                                          "\t\n"));
}

void TestCommand::aListenerHearsASenderOnAnyChannelName()
{
    Command listener(bus.address(), {"listen", "\xff\xfe", "--count", "1"});
    QVERIFY(listener.isListening());
    Command sender(bus.address(), {"send", "\xff\xfe", "hello", "--data", "you"});
    QCOMPARE(sender.finish(), 0);
    QCOMPARE(listener.finish(), 0);
    QCOMPARE(listener.output(), QByteArray("hello\tyou\n"));
    QCOMPARE(listener.errors(), QByteArray("kavqcop: listening on \\xff\\xfe\n"));
}

void TestCommand::withoutABusItFailsAndSaysSo_data()
{
    QTest::addColumn<Arguments>("arguments");
    QTest::newRow("send") << Arguments{"send", phone, "m"};
    QTest::newRow("listen") << Arguments{"listen", phone};
}

void TestCommand::withoutABusItFailsAndSaysSo()
{
    QFETCH(Arguments, arguments);
    const PrivateBus absent(false);
    for (const QString &address : {absent.address(), QStringLiteral("disabled:")}) {
        Command command(address, arguments);
        QCOMPARE(command.finish(), exitFailure);
        QCOMPARE(command.errors(),
                 QByteArray("kavqcop: there is no session bus (is DBUS_SESSION_BUS_ADDRESS set?)\n"));
        QCOMPARE(command.output(), QByteArray());
    }
}

void TestCommand::aListenerEndsWithItsBus()
{
    PrivateBus own;
    Command command(own.address(), {"listen", phone});
    QVERIFY(command.isListening());
    own.kill();
    QCOMPARE(command.finish(), exitFailure);
    QVERIFY(command.errors().endsWith("kavqcop: the session bus went away\n"));
}

void TestCommand::aListenerThatCannotPrintEnds()
{
    Peer peer(bus.address());
    QVERIFY(peer.connectToBus());
    const QString kavqcop = QCoreApplication::applicationDirPath() + QStringLiteral("/../bin/kavqcop");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus.address());
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setStandardOutputFile(QStringLiteral("/dev/full"));
    process.setReadChannel(QProcess::StandardError);
    endWithParent(process);
    process.start(kavqcop, {QStringLiteral("listen"), QLatin1String(phone)});
    QVERIFY(process.waitForReadyRead(limitMs)); // it listens
    QVERIFY(peer.send(phone, "m"));
    QVERIFY(process.waitForFinished(limitMs));
    QCOMPARE(process.exitCode(), exitFailure);
    QVERIFY(process.readAllStandardError().endsWith("kavqcop: cannot write to the standard output\n"));
}

void TestCommand::aMessageLargerThanABusCarriesIsRefused()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("data")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.resize(64 * 1024 * 1024 + 1));
    Command command(bus.address(), {"send", phone, "m", "--data-file", file.fileName().toLocal8Bit()});
    QCOMPARE(command.finish(), exitFailure);
    QCOMPARE(command.errors(), QByteArray("kavqcop: the message is larger than a bus carries\n"));
}

void TestCommand::aFileWithoutAnEndIsRefused()
{
    Command command(bus.address(), {"send", phone, "m", "--data-file", "/dev/zero"});
    QCOMPARE(command.finish(), exitFailure);
    QCOMPARE(command.errors(), QByteArray("kavqcop: the message is larger than a bus carries\n"));
}

void TestCommand::whatAPipeDeliversInPiecesIsSentWhole()
{
    Peer peer(bus.address());
    QVERIFY(peer.subscribe(1, phone));
    const QString kavqcop = QCoreApplication::applicationDirPath() + QStringLiteral("/../bin/kavqcop");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus.address());
    QProcess process;
    process.setProcessEnvironment(environment);
    endWithParent(process);
    process.start(kavqcop, {"send", phone, "m", "--data-file", "/dev/stdin"});
    for (int piece = 0; piece < 10; ++piece) {
        process.write(QByteArray(50000, static_cast<char>('a' + piece)));
        QVERIFY(process.waitForBytesWritten(limitMs));
    }
    process.closeWriteChannel();
    QVERIFY(process.waitForFinished(limitMs));
    QCOMPARE(process.exitCode(), 0);
    QByteArray whole;
    for (int piece = 0; piece < 10; ++piece)
        whole += QByteArray(50000, static_cast<char>('a' + piece));
    QCOMPARE(peer.take(), Peer::line(1, "m", whole));
}

void TestCommand::aReaderThatGoesIsAnErrorAndNoDeath_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("help") << QStringList{"--help"};
    QTest::newRow("version") << QStringList{"--version"};
    QTest::newRow("listen") << QStringList{"listen", phone};
}

void TestCommand::aReaderThatGoesIsAnErrorAndNoDeath()
{
    QFETCH(QStringList, arguments);
    Peer peer(bus.address());
    QVERIFY(peer.connectToBus());
    int pipe[2] = {};
    QCOMPARE(::pipe2(pipe, O_CLOEXEC), 0);
    ::close(pipe[0]);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus.address());
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setReadChannel(QProcess::StandardError);
    process.setChildProcessModifier([&pipe] {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        ::signal(SIGPIPE, SIG_DFL);
        ::dup2(pipe[1], STDOUT_FILENO);
    });
    process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/../bin/kavqcop"), arguments);
    QVERIFY(process.waitForReadyRead(limitMs)); // it listens, or complains
    QVERIFY(peer.send(phone, "m"));
    QVERIFY(process.state() == QProcess::NotRunning || process.waitForFinished(limitMs));
    ::close(pipe[1]);
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), exitFailure);
    QVERIFY(process.readAllStandardError().contains("cannot write to the standard output"));
}

void TestCommand::wrongUsageIsRefusedWithItsReason_data()
{
    QTest::addColumn<Arguments>("arguments");
    QTest::addColumn<QByteArray>("reason");
    const QByteArray usage("wrong usage; kavqcop --help shows the right one");
    const QByteArray count("--count wants a number from 1 on, not ");
    const QByteArray hex("--data-hex wants pairs of hexadecimal digits, not ");
    QTest::newRow("nothing") << Arguments{} << usage;
    QTest::newRow("an unknown command") << Arguments{"receive", phone} << usage;
    QTest::newRow("send without a message") << Arguments{"send", phone} << usage;
    QTest::newRow("send with a word too many") << Arguments{"send", phone, "m", "d"} << usage;
    QTest::newRow("send with a count") << Arguments{"send", phone, "m", "--count", "1"} << usage;
    QTest::newRow("listen without a channel") << Arguments{"listen"} << usage;
    QTest::newRow("listen with a message") << Arguments{"listen", phone, "m"} << usage;
    QTest::newRow("listen with data") << Arguments{"listen", phone, "--data", ""} << usage;
    QTest::newRow("help with more") << Arguments{"--help", "send"} << QByteArray("unknown option --help");
    QTest::newRow("an unknown option") << Arguments{"send", phone, "m", "--date", "x"}
                                       << QByteArray("unknown option --date");
    QTest::newRow("an option without its value")
        << Arguments{"send", phone, "m", "--data"} << QByteArray("a value is missing after --data");
    QTest::newRow("two data blocks") << Arguments{"send", phone, "m", "--data", "a", "--data-hex", "00"}
                                     << QByteArray("there is more than one data block: --data-hex");
    QTest::newRow("an odd digit") << Arguments{"send", phone, "m", "--data-hex", "abc"} << hex + "abc";
    QTest::newRow("what stands before all digits")
        << Arguments{"send", phone, "m", "--data-hex", "/0"} << hex + "/0";
    QTest::newRow("what stands between them") << Arguments{"send", phone, "m", "--data-hex", "0:"} << hex + "0:";
    QTest::newRow("a digit that is none") << Arguments{"send", phone, "m", "--data-hex", "0g"} << hex + "0g";
    QTest::newRow("a count of none") << Arguments{"listen", phone, "--count", "0"} << count + "0";
    QTest::newRow("a count below none") << Arguments{"listen", phone, "--count", "-1"} << count + "-1";
    QTest::newRow("a count that is no number") << Arguments{"listen", phone, "--count", "2x"} << count + "2x";
}

void TestCommand::wrongUsageIsRefusedWithItsReason()
{
    QFETCH(Arguments, arguments);
    QFETCH(QByteArray, reason);
    Command command(bus.address(), arguments);
    QCOMPARE(command.finish(), exitUsage);
    QCOMPARE(command.errors(), "kavqcop: " + reason + '\n');
    QCOMPARE(command.output(), QByteArray());
}

void TestCommand::aFileThatCannotBeReadIsRefused()
{
    const QTemporaryDir folder;
    for (const QString &name : {folder.filePath(QStringLiteral("missing")), folder.path()}) {
        Command command(bus.address(), {"send", phone, "m", "--data-file", name.toLocal8Bit()});
        QCOMPARE(command.finish(), exitUsage);
        QVERIFY2(command.errors().startsWith("kavqcop: cannot read " + name.toLocal8Bit() + ": "),
                 command.errors().constData());
    }
}

void TestCommand::helpNamesEveryOption()
{
    Command command(QStringLiteral("disabled:"), {"--help"});
    QCOMPARE(command.finish(), 0);
    const QByteArray help = command.output();
    for (const char *word : {"send CHANNEL MESSAGE", "listen CHANNEL", "--data TEXT", "--data-hex HEX",
                             "--data-file FILE", "--count N", "--version", "--help"})
        QVERIFY2(help.contains(word), word);
    QCOMPARE(command.errors(), QByteArray());
}

void TestCommand::theVersionIsOneLine()
{
    Command command(QStringLiteral("disabled:"), {"--version"});
    QCOMPARE(command.finish(), 0);
    const QByteArray version = command.output();
    QVERIFY2(version.startsWith("kavqcop 1.") && version.indexOf('\n') == version.size() - 1, version.constData());
}

KAV_TEST_GROUP(TestCommand, QCoreApplication);
#include "tst_command.moc"
