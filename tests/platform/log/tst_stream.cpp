// The trace stream: where it goes, and that a place which cannot be had changes nothing.
#include "log/aplog.h"
#include "support/TestGroup.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QIODevice>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

void write(const char *text)
{
    std::fprintf(libaplog_to_module_ptr, "%s", text);
}

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(cannot be read)");
}

qsizetype openFiles()
{
    return QDir(QStringLiteral("/proc/self/fd"))
        .entryList(QDir::Files | QDir::System | QDir::NoDotAndDotDot)
        .size();
}

} // namespace

class TestStream : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void nobodyGaveItAPlaceAtTheStart();
    void aFileIsMadeForItsOwnerOnlyAndAppendedTo();
    void aFinishedLineIsInTheFileAtOnce();
    void aLineOfOneByteIsWritten();
    void aNameOutsideAsciiIsTakenAsItIs();
    void openingAnotherPlaceClosesTheFileBefore();
    void aPlaceThatCannotBeHadLeavesTheStreamAsItWas_data();
    void aPlaceThatCannotBeHadLeavesTheStreamAsItWas();
    void aDashIsStandardOutputAndIsNeverClosed();
    void aStreamThatSomeoneElseSetIsNeverClosed();
    void closingTwiceIsHarmless();
    void theFileIsNotHandedToChildProcesses();
    void aThousandOpeningsLeaveNoFileOpen();
    void aSymbolicLinkIsNoPlaceForTraces();
    void aFifoThatNobodyReadsIsAnErrorAndNoEndlessWait();
    void aFifoWhoseReaderFallsBehindHoldsNobodyUp();
    void aFileThatOthersCouldReadIsTheOwnersAfterwards();
    void aFileOfAnotherUserIsNotWrittenTo();
    void aFileGrowsToItsLimitAndBeginsAnew();
    void onlyOneOldFileIsKept();
    void aLineIsNotTornWhereTheFileBeginsAnew();
    void aFileThatWasFullWhenItWasOpenedBeginsAnew();
    void moreAtOnceThanAFileHoldsIsSpread();
    void theFileBeginsAnewInItsPlaceWhereverTheProgramWent();
    void whereNoOldFileCanBeKeptTheLimitHolds();
    void aFileThatAnotherProgramPutAsideIsLeftToIt();
    void whatAFullDiskDidNotTakeIsLostAndTheRestIsNot();

private:
    // Of `bytes` altogether, in lines of 64 with their numbers.
    static void writeLines(int bytes);
    qint64 sizeOf(const char *name) const { return QFileInfo(path(name)).size(); }
    QString path(const char *name) const { return directory->filePath(QString::fromUtf8(name)); }
    int open(const char *name) const { return libaplog_open(path(name).toUtf8().constData()); }

    std::unique_ptr<QTemporaryDir> directory;
};

void TestStream::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
    directory = std::make_unique<QTemporaryDir>();
    QVERIFY(directory->isValid());
}

void TestStream::cleanup()
{
    libaplog_close();
    libaplog_to_module_ptr = nullptr;
}

void TestStream::nobodyGaveItAPlaceAtTheStart()
{
    QVERIFY(!libaplog_to_module_ptr);
}

void TestStream::aFileIsMadeForItsOwnerOnlyAndAppendedTo()
{
    QCOMPARE(open("trace"), 0);
    write("one\n");
    libaplog_close();
    QVERIFY(!libaplog_to_module_ptr);
    QCOMPARE(open("trace"), 0);
    write("two\n");
    libaplog_close();
    QCOMPARE(contentsOf(path("trace")), QByteArray("one\ntwo\n"));
    struct stat status = {};
    QCOMPARE(::stat(path("trace").toUtf8().constData(), &status), 0);
    QCOMPARE(static_cast<int>(status.st_mode & 0777), 0600);
}

void TestStream::aFinishedLineIsInTheFileAtOnce()
{
    QCOMPARE(open("trace"), 0);
    write("finished\nunfinished");
    QCOMPARE(contentsOf(path("trace")), QByteArray("finished\n"));
    libaplog_close();
    QCOMPARE(contentsOf(path("trace")), QByteArray("finished\nunfinished"));
}

void TestStream::aLineOfOneByteIsWritten()
{
    QCOMPARE(open("trace"), 0);
    write("\n");
    QCOMPARE(contentsOf(path("trace")), QByteArray("\n"));
    write("x");
    libaplog_close();
    QCOMPARE(contentsOf(path("trace")), QByteArray("\nx"));
    // Nor is there room for one in a file that is full.
    QCOMPARE(open("full"), 0);
    writeLines(libaplog_largest_file);
    write("\n");
    QCOMPARE(contentsOf(path("full")), QByteArray("\n"));
    QCOMPARE(sizeOf("full.1"), libaplog_largest_file);
}

void TestStream::aNameOutsideAsciiIsTakenAsItIs()
{
    QCOMPARE(open("tra\xc3\xa7"
                  "age \xe2\x82\xac"),
             0);
    write("x\n");
    QCOMPARE(contentsOf(path("tra\xc3\xa7"
                             "age \xe2\x82\xac")),
             QByteArray("x\n"));
}

void TestStream::openingAnotherPlaceClosesTheFileBefore()
{
    QCOMPARE(open("first"), 0);
    write("unfinished");
    const qsizetype files = openFiles();
    QCOMPARE(open("second"), 0);
    QCOMPARE(openFiles(), files);
    write("x\n");
    QCOMPARE(contentsOf(path("first")), QByteArray("unfinished"));
    QCOMPARE(contentsOf(path("second")), QByteArray("x\n"));
}

void TestStream::aPlaceThatCannotBeHadLeavesTheStreamAsItWas_data()
{
    QTest::addColumn<QByteArray>("place");
    QTest::addColumn<int>("error");
    QTest::newRow("null") << QByteArray() << EINVAL;
    QTest::newRow("an empty name") << QByteArray("") << EINVAL;
    QTest::newRow("a directory") << QByteArray("/") << EISDIR;
    QTest::newRow("in a directory that is not there") << QByteArray("/no/such/directory/trace") << ENOENT;
    QTest::newRow("below a file") << QByteArray("/dev/null/trace") << ENOTDIR;
    QTest::newRow("a name that is too long") << QByteArray("/") + QByteArray(5'000, 'x') << ENAMETOOLONG;
}

void TestStream::aPlaceThatCannotBeHadLeavesTheStreamAsItWas()
{
    QFETCH(QByteArray, place);
    QFETCH(int, error);
    QCOMPARE(libaplog_open(place.isNull() ? nullptr : place.constData()), error);
    QVERIFY(!libaplog_to_module_ptr);
    QCOMPARE(open("trace"), 0);
    FILE *before = libaplog_to_module_ptr;
    QCOMPARE(libaplog_open(place.isNull() ? nullptr : place.constData()), error);
    QCOMPARE(libaplog_to_module_ptr, before);
    write("still here\n");
    QCOMPARE(contentsOf(path("trace")), QByteArray("still here\n"));
}

void TestStream::aDashIsStandardOutputAndIsNeverClosed()
{
    QCOMPARE(libaplog_open("-"), 0);
    QCOMPARE(libaplog_to_module_ptr, stdout);
    libaplog_close();
    QVERIFY(!libaplog_to_module_ptr);
    QVERIFY(::fcntl(STDOUT_FILENO, F_GETFD) != -1);
    QVERIFY(std::fflush(stdout) == 0);
}

void TestStream::aStreamThatSomeoneElseSetIsNeverClosed()
{
    FILE *other = std::tmpfile();
    QVERIFY(other);
    libaplog_to_module_ptr = other;
    write("kept");
    libaplog_close();
    struct stat status = {};
    QCOMPARE(::fstat(::fileno(other), &status), 0);
    QCOMPARE(status.st_size, off_t{4}); // what was written is not left in memory
    QVERIFY(!libaplog_to_module_ptr);
    libaplog_to_module_ptr = other;
    QCOMPARE(open("trace"), 0);
    QVERIFY(std::fputs("x", other) >= 0);
    QCOMPARE(std::fclose(other), 0);
}

void TestStream::closingTwiceIsHarmless()
{
    libaplog_close();
    QCOMPARE(open("trace"), 0);
    libaplog_close();
    libaplog_close();
    QVERIFY(!libaplog_to_module_ptr);
}

void TestStream::theFileIsNotHandedToChildProcesses()
{
    QCOMPARE(open("trace"), 0);
    QProcess child;
    child.start(QStringLiteral("ls"), {QStringLiteral("-l"), QStringLiteral("/proc/self/fd")});
    QVERIFY(child.waitForFinished(60000));
    const QByteArray itsFiles = child.readAllStandardOutput();
    QVERIFY(itsFiles.contains("/proc/"));
    QVERIFY2(!itsFiles.contains(directory->path().toUtf8()), itsFiles.constData());
}

void TestStream::aThousandOpeningsLeaveNoFileOpen()
{
    const qsizetype before = openFiles();
    for (int i = 0; i < 1'000; ++i)
        QCOMPARE(open(i % 2 ? "one" : "two"), 0);
    libaplog_close();
    QCOMPARE(openFiles(), before);
}

void TestStream::writeLines(int bytes)
{
    for (int line = 0; line < bytes / 64; ++line)
        std::fprintf(libaplog_to_module_ptr, "%-63d\n", line);
}

void TestStream::aSymbolicLinkIsNoPlaceForTraces()
{
    QVERIFY(QFile::link(path("elsewhere"), path("link")));
    QCOMPARE(open("link"), ELOOP);
    QVERIFY(!QFile::exists(path("elsewhere")));
}

void TestStream::aFifoThatNobodyReadsIsAnErrorAndNoEndlessWait()
{
    QCOMPARE(::mkfifo(path("fifo").toUtf8().constData(), 0600), 0);
    QCOMPARE(open("fifo"), ENXIO);
}

void TestStream::aFifoWhoseReaderFallsBehindHoldsNobodyUp()
{
    QCOMPARE(::mkfifo(path("fifo").toUtf8().constData(), 0600), 0);
    const int reader = ::open(path("fifo").toUtf8().constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    QVERIFY(reader >= 0);
    QCOMPARE(open("fifo"), 0);
    writeLines(1'000'000); // more than a FIFO holds
    char first[65] = {};
    QCOMPARE(::read(reader, first, 64), 64);
    QCOMPARE(QByteArray(first).simplified(), QByteArray("0"));
    libaplog_close();
    ::close(reader);
}

void TestStream::aFileThatOthersCouldReadIsTheOwnersAfterwards()
{
    QFile file(path("trace"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    QCOMPARE(::chmod(path("trace").toUtf8().constData(), 0664), 0);
    QCOMPARE(open("trace"), 0);
    struct stat status = {};
    QCOMPARE(::stat(path("trace").toUtf8().constData(), &status), 0);
    QCOMPARE(static_cast<int>(status.st_mode & 0777), 0600);
}

void TestStream::aFileOfAnotherUserIsNotWrittenTo()
{
    QFile file(path("trace"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    if (::chown(path("trace").toUtf8().constData(), 12'345, static_cast<gid_t>(-1)) != 0)
        QSKIP("only root can give a file away");
    QCOMPARE(open("trace"), EPERM);
}

void TestStream::aFileGrowsToItsLimitAndBeginsAnew()
{
    QCOMPARE(int{libaplog_largest_file}, 4 * 1024 * 1024);
    QCOMPARE(open("trace"), 0);
    writeLines(libaplog_largest_file);
    QCOMPARE(sizeOf("trace"), libaplog_largest_file);
    QVERIFY(!QFile::exists(path("trace.1")));
    write("next\n");
    QCOMPARE(contentsOf(path("trace")), QByteArray("next\n"));
    QCOMPARE(sizeOf("trace.1"), libaplog_largest_file);
    struct stat status = {};
    QCOMPARE(::stat(path("trace").toUtf8().constData(), &status), 0);
    QCOMPARE(static_cast<int>(status.st_mode & 0777), 0600);
}

void TestStream::onlyOneOldFileIsKept()
{
    QCOMPARE(open("trace"), 0);
    const qsizetype files = openFiles();
    for (int time = 0; time < 3; ++time)
        writeLines(libaplog_largest_file);
    QCOMPARE(directory->isValid() ? QDir(directory->path()).entryList(QDir::Files) : QStringList(),
             QStringList({"trace", "trace.1"}));
    QCOMPARE(sizeOf("trace"), libaplog_largest_file);
    QCOMPARE(openFiles(), files);
}

void TestStream::aLineIsNotTornWhereTheFileBeginsAnew()
{
    QCOMPARE(open("trace"), 0);
    const QByteArray line = QByteArray(999, 'x') + '\n';
    for (int written = 0; written <= libaplog_largest_file; written += 1'000)
        write(line.constData());
    QCOMPARE(contentsOf(path("trace")), line);
    QVERIFY(contentsOf(path("trace.1")).endsWith('\n'));
    QVERIFY(sizeOf("trace.1") <= libaplog_largest_file);
}

void TestStream::aFileThatWasFullWhenItWasOpenedBeginsAnew()
{
    QFile file(path("trace"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(3LL * libaplog_largest_file));
    file.close();
    QCOMPARE(open("trace"), 0);
    write("x\n");
    QCOMPARE(contentsOf(path("trace")), QByteArray("x\n"));
    QCOMPARE(sizeOf("trace.1"), 3LL * libaplog_largest_file);
}

void TestStream::moreAtOnceThanAFileHoldsIsSpread()
{
    QCOMPARE(open("trace"), 0);
    const QByteArray flood(2 * libaplog_largest_file + 10, 'x');
    QCOMPARE(std::fwrite(flood.constData(), 1, static_cast<std::size_t>(flood.size()), libaplog_to_module_ptr),
             static_cast<std::size_t>(flood.size()));
    libaplog_close();
    QCOMPARE(sizeOf("trace.1"), libaplog_largest_file);
    QCOMPARE(sizeOf("trace"), 10);
}

void TestStream::theFileBeginsAnewInItsPlaceWhereverTheProgramWent()
{
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(directory->path()));
    const int error = libaplog_open("trace");
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(error, 0);
    writeLines(libaplog_largest_file + 64);
    QCOMPARE(sizeOf("trace"), 64);
    QCOMPARE(sizeOf("trace.1"), libaplog_largest_file);
}

void TestStream::whereNoOldFileCanBeKeptTheLimitHolds()
{
    QVERIFY(QDir(directory->path()).mkpath(QStringLiteral("trace.1/taken")));
    QCOMPARE(open("trace"), 0);
    writeLines(libaplog_largest_file);
    write("next\n");
    QCOMPARE(contentsOf(path("trace")), QByteArray("next\n"));
}

void TestStream::aFileThatAnotherProgramPutAsideIsLeftToIt()
{
    QCOMPARE(open("trace"), 0);
    writeLines(libaplog_largest_file);
    QVERIFY(QFile::rename(path("trace"), path("trace.1")));
    QFile other(path("trace"));
    QVERIFY(other.open(QIODevice::WriteOnly) && other.write("of the other program\n") > 0);
    other.close();
    write("next\n");
    QCOMPARE(contentsOf(path("trace")), QByteArray("of the other program\nnext\n"));
    QCOMPARE(sizeOf("trace.1"), libaplog_largest_file);
}

// A limit on the size of files takes the place of the disk's end; it answers EFBIG.
void TestStream::whatAFullDiskDidNotTakeIsLostAndTheRestIsNot()
{
    const QByteArray line("cut off\n");
    for (int taken = 1; taken < line.size(); ++taken) {
        const QByteArray name = "trace" + QByteArray::number(taken);
        QCOMPARE(open(name.constData()), 0);
        write("first\n");
        const auto before = std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit = {};
        QCOMPARE(::getrlimit(RLIMIT_FSIZE, &limit), 0);
        const rlimit tight{static_cast<rlim_t>(6 + taken), limit.rlim_max};
        QCOMPARE(::setrlimit(RLIMIT_FSIZE, &tight), 0);
        write(line.constData());
        write("lost\n");
        QCOMPARE(::setrlimit(RLIMIT_FSIZE, &limit), 0);
        std::signal(SIGXFSZ, before);
        write("whole\n");
        QCOMPARE(contentsOf(path(name.constData())), "first\n" + line.first(taken) + "\nwhole\n");
    }
}

KAV_TEST_GROUP(TestStream, QCoreApplication);
#include "tst_stream.moc"
