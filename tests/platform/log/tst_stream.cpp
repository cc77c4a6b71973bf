// The trace stream: where it goes, and that a place which cannot be had changes nothing.
#include "aplog.h"

#include <QtTest/QtTest>

#include <cerrno>

#include <fcntl.h>
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

private:
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
    QVERIFY(::fcntl(::fileno(libaplog_to_module_ptr), F_GETFD) & FD_CLOEXEC);
}

void StreamTest::a_thousand_openings_leave_no_file_open()
{
    const qsizetype before = openFiles();
    for (int i = 0; i < 1'000; ++i)
        QCOMPARE(open(i % 2 ? "one" : "two"), 0);
    libaplog_close();
    QCOMPARE(openFiles(), before);
}

QTEST_GUILESS_MAIN(StreamTest)
#include "tst_stream.moc"
