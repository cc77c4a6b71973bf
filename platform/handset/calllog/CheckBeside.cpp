#include "calllog/CheckBeside.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QMetaObject>

#include <cerrno>
#include <system_error>
#include <utility>

#include <sqlite3.h>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace handset::calllog {

namespace {

constexpr auto markSuffix = "-damaged";
constexpr int nicer = 10; ///< than the screens

// A log that takes the place of the marked one is another file. When the marked one is gone its number is free, and soon
// that of a new file: the time of its birth is its own, where the file system has one.
QByteArray identity(const QString &path)
{
    struct statx status = {};
    const QByteArray name = QFile::encodeName(path);
    if (::statx(AT_FDCWD, name.constData(), 0, STATX_INO | STATX_BTIME, &status) != 0)
        return {};
    return QByteArray::number(qulonglong{status.stx_ino}) + ' ' +
           QByteArray::number(qlonglong{status.stx_btime.tv_sec}) + '.' +
           QByteArray::number(status.stx_btime.tv_nsec) + '\n';
}

// Returns 0 or an errno. (The database itself must not be opened here: closing it would drop SQLite's locks.)
int mark(const QString &path)
{
    const QByteArray name = QFile::encodeName(path + QLatin1String(markSuffix));
    const QByteArray content = identity(path);
    const int fd =
        ::open(name.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600);
    if (fd < 0)
        return errno;
    const bool done =
        ::write(fd, content.constData(), static_cast<std::size_t>(content.size())) == content.size() &&
        ::fsync(fd) == 0;
    const int error = done ? 0 : errno;
    ::close(fd);
    return error;
}

CheckedLog readThrough(sqlite3 *connection)
{
    Finding pages = checkPages(connection);
    return pages.verdict == Verdict::Usable ? checkSums(connection) : CheckedLog{std::move(pages), {}};
}

} // namespace

CheckBeside::CheckBeside(Database &database, QString path, std::function<void(const QString &)> tell)
    : log(database)
    , file(std::move(path))
    , listener(std::move(tell))
{
    try {
        reader = std::thread([this] {
            ::setpriority(PRIO_PROCESS, static_cast<id_t>(::gettid()), nicer);
            const CheckedLog checked = read();
            if (!isOver)
                report(checked);
        });
    } catch (const std::system_error &error) {
        report({{Verdict::Blocked, QString::fromLocal8Bit(error.what())}, {}});
    }
}

CheckBeside::~CheckBeside()
{
    isOver = true;
    {
        // Checking the structure of the file, SQLite asks nobody whether that is enough.
        const std::lock_guard locked(readingLock);
        if (reading)
            sqlite3_interrupt(reading);
    }
    if (reader.joinable())
        reader.join();
}

void CheckBeside::report(const CheckedLog &checked)
{
    QMetaObject::invokeMethod(
        &here, [this, checked] { finish(checked); }, Qt::QueuedConnection);
}

void CheckBeside::setReading(sqlite3 *connection)
{
    const std::lock_guard locked(readingLock);
    reading = connection;
}

CheckedLog CheckBeside::read()
{
    Database connection(file, Database::Access::ReadOnly);
    if (!connection.isOpen())
        return {{Verdict::Blocked, connection.lastError().reason}, {}};
    connection.run("PRAGMA cell_size_check = ON");
    const Interruption interruption(connection.handle(), [this] { return isOver.load(); });
    setReading(connection.handle());
    CheckedLog checked = isOver ? CheckedLog{} : readThrough(connection.handle());
    // A read that went wrong once may look like damage.
    if (checked.finding.verdict == Verdict::Damaged)
        checked = readThrough(connection.handle());
    setReading(nullptr);
    return checked;
}

void CheckBeside::finish(const CheckedLog &checked)
{
    QString text;
    switch (checked.finding.verdict) {
    case Verdict::Damaged:
        text = mark(file) == 0
                   ? QCoreApplication::translate("handset", "The call log is damaged. The next start begins a new "
                                                            "one, with what can be read of it.")
                   : QCoreApplication::translate(
                         "handset", "The call log is damaged, and that cannot be noted for the next start.");
        break;
    case Verdict::Usable:
        if (saysMore(checked.unknown))
            log.inTransaction([&] { return putUnknown(log, checked.unknown); });
        break;
    case Verdict::Missing:
    case Verdict::Lost:
    case Verdict::Foreign:
    case Verdict::Newer:
    case Verdict::Older:
    case Verdict::Blocked:
        text = QStringLiteral("The call log \"%1\" could not be read through: %2.")
                   .arg(file, explain(checked.finding));
        break;
    }
    if (listener && !text.isEmpty())
        listener(text);
}

bool isMarkedDamaged(const QString &path)
{
    const QString name = path + QLatin1String(markSuffix);
    QFile marked(name);
    if (!QFileInfo(name).isFile() || !marked.open(QIODevice::ReadOnly)) // a pipe would be waited for
        return false;
    if (marked.read(64) == identity(path))
        return true;
    QFile::remove(name);
    return false;
}

} // namespace handset::calllog
