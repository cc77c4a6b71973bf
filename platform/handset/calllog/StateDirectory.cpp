#include "StateDirectory.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <array>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace handset::calllog {

namespace {

constexpr auto lockName = "lock";
// The database itself first: what is left beside a database that is gone is recognised as a leftover.
constexpr std::array besides{"", "-wal", "-shm", "-journal"};

QByteArray encoded(const QString &path)
{
    return QFile::encodeName(path);
}

QString reason(int error)
{
    return QString::fromLocal8Bit(std::strerror(error));
}

bool exists(const QString &path)
{
    struct stat status{};
    return ::lstat(encoded(path).constData(), &status) == 0;
}

// 0 or an errno. Every directory made on the way is for the user alone.
int makeDirectories(const QString &path)
{
    if (QFileInfo(path).isDir())
        return 0;
    const QString parent = QFileInfo(path).path();
    if (parent != path) {
        if (const int error = makeDirectories(parent))
            return error;
    }
    if (::mkdir(encoded(path).constData(), 0700) == 0)
        return 0;
    const int error = errno;
    return QFileInfo(path).isDir() ? 0 : error;
}

// A descriptor, or minus an errno. The lock file is never removed: another process may be about to lock it.
int lockFile(const QString &path)
{
    const int fd = ::open(encoded(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600);
    if (fd < 0)
        return -errno;
    if (::flock(fd, LOCK_EX | LOCK_NB) == 0)
        return fd;
    const int error = errno;
    ::close(fd);
    return -error;
}

} // namespace

std::unique_ptr<StateDirectory> StateDirectory::open(const QString &path, QString &error)
{
    const QString unusable = QStringLiteral("The state directory \"%1\" cannot be used: %2.");
    if (path.contains(QChar(u'\0'))) {
        error = unusable.arg(QString(path).replace(QChar(u'\0'), QChar(u'?')), reason(EINVAL));
        return nullptr;
    }
    const QString absolute = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    if (const int failure = makeDirectories(absolute)) {
        error = unusable.arg(absolute, reason(failure));
        return nullptr;
    }
    const int fd = lockFile(absolute + QLatin1Char('/') + QLatin1String(lockName));
    if (fd == -EWOULDBLOCK) {
        error = QStringLiteral("The state directory \"%1\" is in use by another telephone.").arg(absolute);
        return nullptr;
    }
    if (fd < 0) {
        error = unusable.arg(absolute, reason(-fd));
        return nullptr;
    }
    return std::unique_ptr<StateDirectory>(new StateDirectory(absolute, fd));
}

StateDirectory::~StateDirectory()
{
    ::close(lock);
}

QString StateDirectory::filePath(const QString &name) const
{
    return path + QLatin1Char('/') + name;
}

bool StateDirectory::rename(const QString &from, const QString &to)
{
    const QByteArray source = encoded(filePath(from));
    const QByteArray target = encoded(filePath(to));
    return ::renameat2(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE) == 0;
}

QString StateDirectory::keepAside(const QString &name, QString &error)
{
    const QFileInfo file(name);
    const auto candidate = [&](int n) {
        return QStringLiteral("%1-kept-%2.%3").arg(file.completeBaseName()).arg(n).arg(file.suffix());
    };
    const auto inUse = [&](const QString &kept) {
        return std::any_of(besides.begin(), besides.end(), [&](const char *beside) {
            return exists(filePath(kept + QLatin1String(beside)));
        });
    };
    int number = 1;
    while (inUse(candidate(number)))
        ++number;
    const QString kept = candidate(number);
    for (const char *beside : besides) {
        const QLatin1String suffix(beside);
        if (exists(filePath(name + suffix)) && !rename(name + suffix, kept + suffix)) {
            error = reason(errno);
            return {};
        }
    }
    return kept;
}

void StateDirectory::remove(const QString &name)
{
    for (const char *beside : besides)
        ::unlink(encoded(filePath(name + QLatin1String(beside))).constData());
}

bool StateDirectory::hasLeftovers(const QString &name) const
{
    struct stat status{};
    const auto nonEmpty = [&](const char *beside) {
        const QByteArray leftover = encoded(filePath(name + QLatin1String(beside)));
        return ::lstat(leftover.constData(), &status) == 0 && status.st_size > 0;
    };
    return std::any_of(besides.begin() + 1, besides.end(), nonEmpty);
}

} // namespace handset::calllog
