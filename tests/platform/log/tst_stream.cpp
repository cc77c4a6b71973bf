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

class StreamTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void nobody_gave_it_a_place_at_the_start();
    void a_file_is_made_for_its_owner_only_and_appended_to();
    void a_finished_line_is_in_the_file_at_once();
    void a_name_outside_ascii_is_taken_as_it_is();
    void opening_another_place_closes_the_file_before();
    void a_place_that_cannot_be_had_leaves_the_stream_as_it_was_data();
    void a_place_that_cannot_be_had_leaves_the_stream_as_it_was();
    void a_dash_is_standard_output_and_is_never_closed();
    void a_stream_that_someone_else_set_is_never_closed();
    void closing_twice_is_harmless();
    void the_file_is_not_handed_to_child_processes();
    void a_thousand_openings_leave_no_file_open();
    void a_symbolic_link_is_no_place_for_traces();
    void a_fifo_that_nobody_reads_is_an_error_and_no_endless_wait();
    void a_fifo_whose_reader_falls_behind_holds_nobody_up();
    void a_file_that_others_could_read_is_the_owners_afterwards();
    void a_file_of_another_user_is_not_written_to();
    void a_file_grows_to_its_limit_and_begins_anew();
    void only_one_old_file_is_kept();
    void a_line_is_not_torn_where_the_file_begins_anew();
    void a_file_that_was_full_when_it_was_opened_begins_anew();
    void more_at_once_than_a_file_holds_is_spread();
    void the_file_begins_anew_in_its_place_wherever_the_program_went();
    void where_no_old_file_can_be_kept_the_limit_holds();
    void a_file_that_another_program_put_aside_is_left_to_it();
    void what_a_full_disk_did_not_take_is_lost_and_the_rest_is_not();

private:
    // Of `bytes` altogether, in lines of 64 with their numbers.
    static void writeLines(int bytes);
    qint64 sizeOf(const char *name) const { return QFileInfo(path(name)).size(); }
    QString path(const char *name) const { return directory->filePath(QString::fromUtf8(name)); }
    int open(const char *name) const { return libaplog_open(path(name).toUtf8().constData()); }

    std::unique_ptr<QTemporaryDir> directory;
};

void StreamTest::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
    directory = std::make_unique<QTemporaryDir>();
    QVERIFY(directory->isValid());
}

void StreamTest::cleanup()
{
    libaplog_close();
    libaplog_to_module_ptr = nullptr;
}

void StreamTest::nobody_gave_it_a_place_at_the_start()
{
    QVERIFY(!libaplog_to_module_ptr);
}

void StreamTest::a_file_is_made_for_its_owner_only_and_appended_to()
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

void StreamTest::a_finished_line_is_in_the_file_at_once()
{
    QCOMPARE(open("trace"), 0);
    write("finished\nunfinished");
    QCOMPARE(contentsOf(path("trace")), QByteArray("finished\n"));
    libaplog_close();
    QCOMPARE(contentsOf(path("trace")), QByteArray("finished\nunfinished"));
}

void StreamTest::a_name_outside_ascii_is_taken_as_it_is()
{
    QCOMPARE(open("tra\xc3\xa7"
                  "age \xe2\x82\xac"),
             0);
    write("x\n");
    QCOMPARE(contentsOf(path("tra\xc3\xa7"
                             "age \xe2\x82\xac")),
             QByteArray("x\n"));
}

void StreamTest::opening_another_place_closes_the_file_before()
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

void StreamTest::a_place_that_cannot_be_had_leaves_the_stream_as_it_was_data()
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

void StreamTest::a_place_that_cannot_be_had_leaves_the_stream_as_it_was()
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

void StreamTest::a_dash_is_standard_output_and_is_never_closed()
{
    QCOMPARE(libaplog_open("-"), 0);
    QCOMPARE(libaplog_to_module_ptr, stdout);
    libaplog_close();
    QVERIFY(!libaplog_to_module_ptr);
    QVERIFY(::fcntl(STDOUT_FILENO, F_GETFD) != -1);
    QVERIFY(std::fflush(stdout) == 0);
}

void StreamTest::a_stream_that_someone_else_set_is_never_closed()
{
    FILE *other = std::tmpfile();
    QVERIFY(other);
    libaplog_to_module_ptr = other;
    libaplog_close();
    QVERIFY(!libaplog_to_module_ptr);
    libaplog_to_module_ptr = other;
    QCOMPARE(open("trace"), 0);
    QVERIFY(std::fputs("x", other) >= 0);
    QCOMPARE(std::fclose(other), 0);
}

void StreamTest::closing_twice_is_harmless()
{
    libaplog_close();
    QCOMPARE(open("trace"), 0);
    libaplog_close();
    libaplog_close();
    QVERIFY(!libaplog_to_module_ptr);
}

void StreamTest::the_file_is_not_handed_to_child_processes()
{
    QCOMPARE(open("trace"), 0);
    QProcess child;
    child.start(QStringLiteral("ls"), {QStringLiteral("-l"), QStringLiteral("/proc/self/fd")});
    QVERIFY(child.waitForFinished(60000));
    const QByteArray itsFiles = child.readAllStandardOutput();
    QVERIFY(itsFiles.contains("/proc/"));
    QVERIFY2(!itsFiles.contains(directory->path().toUtf8()), itsFiles.constData());
}

void StreamTest::a_thousand_openings_leave_no_file_open()
{
    const qsizetype before = openFiles();
    for (int i = 0; i < 1'000; ++i)
        QCOMPARE(open(i % 2 ? "one" : "two"), 0);
    libaplog_close();
    QCOMPARE(openFiles(), before);
}

void StreamTest::writeLines(int bytes)
{
    for (int line = 0; line < bytes / 64; ++line)
        std::fprintf(libaplog_to_module_ptr, "%-63d\n", line);
}

void StreamTest::a_symbolic_link_is_no_place_for_traces()
{
    QVERIFY(QFile::link(path("elsewhere"), path("link")));
    QCOMPARE(open("link"), ELOOP);
    QVERIFY(!QFile::exists(path("elsewhere")));
}

void StreamTest::a_fifo_that_nobody_reads_is_an_error_and_no_endless_wait()
{
    QCOMPARE(::mkfifo(path("fifo").toUtf8().constData(), 0600), 0);
    QCOMPARE(open("fifo"), ENXIO);
}

void StreamTest::a_fifo_whose_reader_falls_behind_holds_nobody_up()
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

void StreamTest::a_file_that_others_could_read_is_the_owners_afterwards()
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

void StreamTest::a_file_of_another_user_is_not_written_to()
{
    QFile file(path("trace"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    if (::chown(path("trace").toUtf8().constData(), 12'345, static_cast<gid_t>(-1)) != 0)
        QSKIP("only root can give a file away");
    QCOMPARE(open("trace"), EPERM);
}

void StreamTest::a_file_grows_to_its_limit_and_begins_anew()
{
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

void StreamTest::only_one_old_file_is_kept()
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

void StreamTest::a_line_is_not_torn_where_the_file_begins_anew()
{
    QCOMPARE(open("trace"), 0);
    const QByteArray line = QByteArray(999, 'x') + '\n';
    for (int written = 0; written <= libaplog_largest_file; written += 1'000)
        write(line.constData());
    QCOMPARE(contentsOf(path("trace")), line);
    QVERIFY(contentsOf(path("trace.1")).endsWith('\n'));
    QVERIFY(sizeOf("trace.1") <= libaplog_largest_file);
}

void StreamTest::a_file_that_was_full_when_it_was_opened_begins_anew()
{
    QFile file(path("trace"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(3LL * libaplog_largest_file));
    file.close();
    QCOMPARE(open("trace"), 0);
    write("x\n");
    QCOMPARE(contentsOf(path("trace")), QByteArray("x\n"));
    QCOMPARE(sizeOf("trace.1"), 3LL * libaplog_largest_file);
}

void StreamTest::more_at_once_than_a_file_holds_is_spread()
{
    QCOMPARE(open("trace"), 0);
    const QByteArray flood(2 * libaplog_largest_file + 10, 'x');
    QCOMPARE(std::fwrite(flood.constData(), 1, static_cast<std::size_t>(flood.size()), libaplog_to_module_ptr),
             static_cast<std::size_t>(flood.size()));
    libaplog_close();
    QCOMPARE(sizeOf("trace.1"), libaplog_largest_file);
    QCOMPARE(sizeOf("trace"), 10);
}

void StreamTest::the_file_begins_anew_in_its_place_wherever_the_program_went()
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

void StreamTest::where_no_old_file_can_be_kept_the_limit_holds()
{
    QVERIFY(QDir(directory->path()).mkpath(QStringLiteral("trace.1/taken")));
    QCOMPARE(open("trace"), 0);
    writeLines(libaplog_largest_file);
    write("next\n");
    QCOMPARE(contentsOf(path("trace")), QByteArray("next\n"));
}

void StreamTest::a_file_that_another_program_put_aside_is_left_to_it()
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
void StreamTest::what_a_full_disk_did_not_take_is_lost_and_the_rest_is_not()
{
    QCOMPARE(open("trace"), 0);
    write("first\n");
    const auto before = std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit = {};
    QCOMPARE(::getrlimit(RLIMIT_FSIZE, &limit), 0);
    const rlimit tight{8, limit.rlim_max};
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &tight), 0);
    write("cut off\n");
    write("lost\n");
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &limit), 0);
    std::signal(SIGXFSZ, before);
    write("whole\n");
    QCOMPARE(contentsOf(path("trace")), QByteArray("first\ncu\nwhole\n"));
}

KAV_TEST_GROUP(StreamTest, QCoreApplication);
#include "tst_stream.moc"
