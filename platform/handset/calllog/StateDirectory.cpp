#include "StateDirectory.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace handset::calllog {

namespace {

constexpr auto lockName = "lock";
// What SQLite keeps beside a database and what is recorded in it. (It also keeps "-shm", an index to the first that it
// makes anew.)
constexpr std::array recordings{"-wal", "-journal"};
constexpr auto indexSuffix = "-shm";

QByteArray encoded(const QString &path)
{
    return QFile::encodeName(path);
}

QString reason(int error)
{
    return QString::fromLocal8Bit(std::strerror(error));
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
    if (errno != EEXIST)
        return errno;
    return QFileInfo(path).isDir() ? 0 : ENOTDIR; // another process may have been quicker
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

// The same of the directory itself, for somebody may remove the lock file while it is locked. A network's file system
// that locks no directories leaves it at the file.
int lockDirectory(const QString &path)
{
    const int fd = ::open(encoded(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0)
        return -errno;
    if (::flock(fd, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK)
        return fd;
    ::close(fd);
    return -EWOULDBLOCK;
}

// Bytes that are no UTF-8 come as replacement characters, and would lead to a directory of another name.
bool isWhole(const QString &path)
{
    return !path.contains(QChar(QChar::ReplacementCharacter)) && QFile::decodeName(encoded(path)) == path;
}

QString absolutePath(const QString &path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

QString unusable(const QString &path, const QString &why)
{
    return QStringLiteral("The state directory \"%1\" cannot be used: %2.").arg(path, why);
}

QString whoElseMayWrite(const struct stat &directory)
{
    if (directory.st_uid != ::geteuid())
        return QStringLiteral("belongs to another user");
    return (directory.st_mode & (S_IWGRP | S_IWOTH)) != 0 ? QStringLiteral("may be written by other users")
                                                          : QString();
}

} // namespace

bool StateDirectory::make(const QString &path, QString &error)
{
    if (path.contains(QChar(u'\0'))) {
        error = unusable(QString(path).replace(QChar(u'\0'), QChar(u'?')), reason(EINVAL));
        return false;
    }
    const QString absolute = absolutePath(path);
    if (!isWhole(absolute)) {
        error = unusable(QFile::decodeName(encoded(absolute)), QStringLiteral("its name is not UTF-8"));
        return false;
    }
    const int failure = makeDirectories(absolute);
    if (failure != 0)
        error = unusable(absolute, reason(failure));
    return failure == 0;
}

std::unique_ptr<StateDirectory> StateDirectory::open(const QString &path, QString &error)
{
    if (!make(path, error))
        return nullptr;
    const QString absolute = absolutePath(path);
    std::unique_ptr<StateDirectory> directory(new StateDirectory(absolute));
    const int failure = directory->lock();
    if (failure == 0)
        return directory;
    error = failure == EWOULDBLOCK
                ? QStringLiteral("The state directory \"%1\" is in use by another telephone.").arg(absolute)
                : unusable(absolute, reason(failure));
    return nullptr;
}

int StateDirectory::lock()
{
    fileLock = lockFile(filePath(QString::fromLatin1(lockName)));
    if (fileLock < 0)
        return -fileLock;
    directoryLock = lockDirectory(path);
    return directoryLock < 0 ? -directoryLock : 0;
}

StateDirectory::~StateDirectory()
{
    for (const int fd : {directoryLock, fileLock})
        if (fd >= 0)
            ::close(fd);
}

QString StateDirectory::notice() const
{
    struct stat status = {};
    if (::fstat(directoryLock, &status) != 0)
        return {};
    const QString who = whoElseMayWrite(status);
    return who.isEmpty() ? QString()
                         : QStringLiteral("The state directory \"%1\" %2, who can change what is kept in it.")
                               .arg(path, who);
}

QString StateDirectory::filePath(const QString &name) const
{
    return path + QLatin1Char('/') + name;
}

QString StateDirectory::mendRights(const QString &name) const
{
    for (const char *suffix : {recordings[0], recordings[1], indexSuffix}) {
        const QString file = filePath(name + QLatin1String(suffix));
        const QByteArray encodedFile = encoded(file);
        struct stat status = {};
        if (::lstat(encodedFile.constData(), &status) != 0)
            continue;
        if (S_ISLNK(status.st_mode))
            return QStringLiteral("\"%1\" is a symbolic link").arg(file);
        if (!S_ISREG(status.st_mode))
            continue;
        if ((status.st_mode & 0777) != 0600)
            ::chmod(encodedFile.constData(), 0600); // only the owner may
        if (::faccessat(AT_FDCWD, encodedFile.constData(), R_OK | W_OK, AT_EACCESS) != 0)
            return QStringLiteral("\"%1\" cannot be read and written (%2)").arg(file, reason(errno));
    }
    return {};
}

bool StateDirectory::rename(const QString &from, const QString &to)
{
    const QByteArray source = encoded(filePath(from));
    const QByteArray target = encoded(filePath(to));
    if (::renameat2(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE) != 0)
        return false;
    // The order of renames must hold even when the machine goes down.
    const int fd = ::open(encoded(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd >= 0) {
        ::fsync(fd);
        ::close(fd);
    }
    return true;
}

bool StateDirectory::exists(const QString &name) const
{
    struct stat status = {};
    return ::lstat(encoded(filePath(name)).constData(), &status) == 0;
}

QString StateDirectory::unusedName(const QString &name) const
{
    const QFileInfo file(name);
    for (int number = 1;; ++number) {
        QString candidate =
            QStringLiteral("%1-kept-%2.%3").arg(file.completeBaseName()).arg(number).arg(file.suffix());
        const auto inUse = [&](const char *suffix) { return exists(candidate + QLatin1String(suffix)); };
        if (!exists(candidate) && std::none_of(recordings.begin(), recordings.end(), inUse))
            return candidate;
    }
}

QString StateDirectory::keepAside(const QString &name, QString &error)
{
    unlink(name + QLatin1String(indexSuffix));
    QString kept = unusedName(name);
    // The database itself first: what is left beside a database that is gone is recognised as a leftover.
    bool done = !exists(name) || rename(name, kept);
    for (const char *recording : recordings) {
        const QLatin1String suffix(recording);
        if (done && hasContent(name + suffix))
            done = rename(name + suffix, kept + suffix);
        else if (done)
            unlink(name + suffix);
    }
    if (done)
        return kept;
    error = reason(errno);
    return {};
}

bool StateDirectory::copy(const QString &from, const QString &to)
{
    for (const char *recording : recordings) {
        const QLatin1String suffix(recording);
        if (exists(from + suffix) && !QFile::copy(filePath(from + suffix), filePath(to + suffix)))
            return false;
    }
    return QFile::copy(filePath(from), filePath(to));
}

void StateDirectory::remove(const QString &name)
{
    for (const char *recording : recordings)
        unlink(name + QLatin1String(recording));
    unlink(name + QLatin1String(indexSuffix));
    unlink(name);
}

void StateDirectory::unlink(const QString &name)
{
    ::unlink(encoded(filePath(name)).constData());
}

bool StateDirectory::hasContent(const QString &name) const
{
    struct stat status = {};
    return ::lstat(encoded(filePath(name)).constData(), &status) == 0 && status.st_size > 0;
}

bool StateDirectory::hasLeftovers(const QString &name) const
{
    return std::any_of(recordings.begin(), recordings.end(),
                       [&](const char *recording) { return hasContent(name + QLatin1String(recording)); });
}

} // namespace handset::calllog
