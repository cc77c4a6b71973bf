#include "calllog/StateDirectory.h"

#include "calllog/Finding.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <set>
#include <tuple>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace handset::calllog {

namespace {

constexpr auto lockName = "lock";
constexpr auto recorderName = "recorder";
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

// Only the owner may. A link is followed: whoever calls this has looked.
bool makeOurs(const QByteArray &path)
{
    return ::chmod(path.constData(), 0600) == 0;
}

// A descriptor, or minus an errno. A lock file is never removed: another process may be about to lock it.
int openLockFile(const QString &path)
{
    const QByteArray name = encoded(path);
    const auto open = [&name] {
        const int fd = ::open(name.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600);
        return fd < 0 ? -errno : fd;
    };
    const int fd = open();
    struct stat status = {};
    const bool isFile = fd == -EACCES && ::lstat(name.constData(), &status) == 0 && S_ISREG(status.st_mode);
    return isFile && makeOurs(name) ? open() : fd;
}

// 0 or an errno.
int lockNow(int fd, int mode)
{
    return ::flock(fd, mode | LOCK_NB) == 0 ? 0 : errno;
}

// The same as a lock file of the directory itself, for somebody may remove the file while it is locked. A network's file
// system that locks no directories leaves it at the file.
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

// The state directories that are open in this process, by device and inode.
using Identity = std::pair<dev_t, ino_t>;
std::set<Identity> &openHere()
{
    static std::set<Identity> directories;
    return directories;
}

Identity identityOf(const QString &path)
{
    struct stat status = {};
    ::stat(encoded(path).constData(), &status);
    return {status.st_dev, status.st_ino};
}

QString nameOf(const QByteArray &process)
{
    QFile file(QStringLiteral("/proc/%1/comm").arg(QString::fromLatin1(process)));
    const bool isKnown = file.open(QIODevice::ReadOnly);
    return QStringLiteral("%1 (process %2)")
        .arg(isKnown ? QString::fromLocal8Bit(file.readAll().trimmed()) : QStringLiteral("another program"),
             QString::fromLatin1(process));
}

/// A line of the kernel's list of locks.
struct KernelLock {
    QByteArray kind;
    QByteArray access;
    QByteArray process;
    dev_t device;
    ino_t inode;
};

std::vector<KernelLock> kernelLocks()
{
    std::vector<KernelLock> all;
    QFile list(QStringLiteral("/proc/locks"));
    const QByteArray text = list.open(QIODevice::ReadOnly) ? list.readAll() : QByteArray();
    for (const QByteArray &line : text.split('\n')) {
        const QList<QByteArray> words = line.simplified().split(' ');
        const QList<QByteArray> place = words.value(5).split(':');
        if (place.size() == 3) // who waits for a lock has one word more in front
            all.push_back({words[1], words[3], words[4],
                           makedev(place[0].toUInt(nullptr, 16), place[1].toUInt(nullptr, 16)),
                           place[2].toULongLong()});
    }
    return all;
}

// Of the other processes that have locked one of the files, which the kernel lists by device and inode. (Some file
// systems have another device in that list than a file says.)
template <typename Matches>
QString namesOfLockers(const std::array<struct stat, 3> &files, Matches matches)
{
    QStringList ofTheFile;
    QStringList ofTheInode;
    for (const KernelLock &lock : kernelLocks()) {
        if (!matches(lock) || lock.process.toLongLong() == ::getpid())
            continue;
        for (const struct stat &file : files)
            if (file.st_ino != 0 && lock.inode == file.st_ino)
                (lock.device == file.st_dev ? ofTheFile : ofTheInode) << nameOf(lock.process);
    }
    QStringList names = ofTheFile.isEmpty() ? ofTheInode : ofTheFile;
    names.removeDuplicates();
    return names.join(QStringLiteral(", "));
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
        return QCoreApplication::translate("handset", "belongs to another user");
    return (directory.st_mode & (S_IWGRP | S_IWOTH)) != 0
               ? QCoreApplication::translate("handset", "may be written by other users")
               : QString();
}

// Who may write the directory above may give this one another name; where that has the sticky bit, only the owner may.
bool maySomebodyElseRename(const struct stat &above)
{
    return (above.st_mode & (S_IWGRP | S_IWOTH)) != 0 && (above.st_mode & S_ISVTX) == 0;
}

/// Closed with the object.
class Descriptor
{
public:
    Descriptor(const QString &path, int flags)
        : fd(::open(encoded(path).constData(), flags | O_CLOEXEC, 0600))
    {}
    ~Descriptor()
    {
        if (fd >= 0)
            ::close(fd);
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;

    bool isOpen() const { return fd >= 0; } ///< else errno says why
    int number() const { return fd; }

private:
    int fd;
};

// The following answer 0 or an errno.

// Some file systems cannot sync a directory, and have no need of it.
int syncFile(const QString &path, int flags)
{
    const Descriptor file(path, O_RDONLY | flags);
    if (!file.isOpen())
        return errno;
    return ::fsync(file.number()) == 0 || errno == EINVAL ? 0 : errno;
}

constexpr qsizetype blockSize = 1 << 18;

// Waits for one part after another, so that it can be said how far it is. It takes a sync to have the file for certain,
// but that then finds little to do. (Some file systems know no parts.)
int writeOut(const QString &path, Progress &progress)
{
    const Descriptor file(path, O_RDONLY | O_NOFOLLOW);
    struct stat status = {};
    if (!file.isOpen() || ::fstat(file.number(), &status) != 0)
        return errno;
    constexpr unsigned wait = SYNC_FILE_RANGE_WAIT_BEFORE | SYNC_FILE_RANGE_WRITE | SYNC_FILE_RANGE_WAIT_AFTER;
    for (off_t at = 0; at < status.st_size; at += Progress::bytes) {
        const off_t length = std::min<off_t>(Progress::bytes, status.st_size - at);
        if (::sync_file_range(file.number(), at, length, wait) != 0)
            return errno == ENOSYS || errno == EINVAL || errno == ESPIPE ? 0 : errno;
        progress.add(length);
    }
    return 0;
}

// Fills `bytes` as far as the file goes.
int readUpTo(int fd, QByteArray &bytes, qsizetype &length)
{
    length = 0;
    while (length < bytes.size()) {
        const ssize_t got = ::read(fd, bytes.data() + length, static_cast<std::size_t>(bytes.size() - length));
        if (got == 0)
            return 0;
        if (got < 0 && errno != EINTR)
            return errno;
        length += std::max<ssize_t>(got, 0);
    }
    return 0;
}

int writeAll(int fd, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t put = ::write(fd, bytes.data(), static_cast<std::size_t>(bytes.size()));
        if (put < 0 && errno != EINTR)
            return errno;
        bytes = bytes.sliced(std::max<ssize_t>(put, 0));
    }
    return 0;
}

bool hasOtherName(const QString &path)
{
    struct stat status = {};
    return ::lstat(encoded(path).constData(), &status) == 0 && status.st_nlink > 1;
}

bool isSameFile(const QString &path, const QString &other)
{
    struct stat one = {};
    struct stat two = {};
    return ::lstat(encoded(path).constData(), &one) == 0 && ::lstat(encoded(other).constData(), &two) == 0 &&
           one.st_dev == two.st_dev && one.st_ino == two.st_ino;
}

// A file that yields less than it has is an error: the copy of a log must have all of it.
int copyFile(const QString &from, const QString &to, Progress &progress)
{
    const Descriptor source(from, O_RDONLY | O_NOFOLLOW);
    if (!source.isOpen())
        return errno;
    const Descriptor target(to, O_WRONLY | O_CREAT | O_EXCL);
    if (!target.isOpen())
        return errno;
    QByteArray block(blockSize, Qt::Uninitialized);
    qint64 copied = 0;
    for (qsizetype length = block.size(); length == block.size(); copied += length) {
        if (const int error = readUpTo(source.number(), block, length))
            return error;
        if (const int error = writeAll(target.number(), QByteArrayView(block).first(length)))
            return error;
        progress.add(length);
    }
    struct stat status = {};
    if (::fstat(source.number(), &status) != 0)
        return errno;
    return copied == status.st_size ? 0 : EIO;
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

std::unique_ptr<StateDirectory> StateDirectory::open(const QString &path, Waiting &waiting, QString &error)
{
    if (!make(path, error))
        return nullptr;
    const QString absolute = absolutePath(path);
    if (openHere().contains(identityOf(absolute))) {
        error = QStringLiteral("The state directory \"%1\" is in use by another telephone.").arg(absolute);
        return nullptr;
    }
    std::unique_ptr<StateDirectory> directory(new StateDirectory(absolute));
    const QString problem = directory->lock(waiting);
    if (problem.isEmpty())
        return directory;
    error = unusable(absolute, problem);
    return nullptr;
}

// Returns why it cannot be shared, part of a sentence.
QString StateDirectory::lock(Waiting &waiting)
{
    std::tie(ownDevice, ownInode) = identityOf(path);
    openHere().insert({ownDevice, ownInode});
    // The second, too: what can never be locked would look like a lock of another process.
    for (const auto &[name, fd] : {std::pair(lockName, &useLock), std::pair(recorderName, &recorderLock)}) {
        const QString file = filePath(QString::fromLatin1(name));
        *fd = openLockFile(file);
        if (*fd < 0)
            return inFile(file, reason(-*fd));
    }
    const int error = lockWithin(LOCK_SH, waiting);
    return error == 0 ? QString() : whoHolds(error);
}

StateDirectory::~StateDirectory()
{
    openHere().erase({ownDevice, ownInode});
    for (const int fd : {directoryLock, recorderLock, useLock})
        if (fd >= 0)
            ::close(fd);
}

// Others hold it for a moment, while they open it, and for longer while they make a new log. Returns 0 or an errno.
int StateDirectory::lockWithin(int mode, Waiting &waiting, int milliseconds)
{
    constexpr int betweenMs = 20;
    const QDeadlineTimer end(milliseconds); // none when less than 0
    int error = lockNow(useLock, mode);
    while (error == EWOULDBLOCK && !end.hasExpired() && waiting.pause(betweenMs, [this] { return holders(); }))
        error = lockNow(useLock, mode);
    held = error == 0; // changing a lock drops it first, and whoever waits may come in between
    return error;
}

int StateDirectory::takeAlone(int milliseconds, Waiting &waiting, QString &problem)
{
    constexpr int betweenMs = 20;
    int error = lockWithin(LOCK_EX, waiting, milliseconds);
    const bool isLocked = error == 0;
    if (isLocked)
        error = record();
    if (error == 0)
        return 0;
    problem = isLocked && error != EWOULDBLOCK ? inFile(path, reason(error)) : whoHolds(error);
    share(waiting);
    // Who has the recorder's lock alone is not waited for by the other lock.
    if (isLocked && error == EWOULDBLOCK)
        waiting.pause(betweenMs, [this] { return holders(); });
    return error;
}

bool StateDirectory::share(Waiting &waiting)
{
    return lockWithin(LOCK_SH, waiting) == 0;
}

int StateDirectory::record()
{
    if (isRecording())
        return 0;
    if (const int error = lockNow(recorderLock, LOCK_EX))
        return error;
    directoryLock = lockDirectory(path);
    if (isRecording())
        return 0;
    ::flock(recorderLock, LOCK_UN);
    return -directoryLock;
}

// Part of a sentence, for a lock that cannot be had.
QString StateDirectory::whoHolds(int error) const
{
    if (error != EWOULDBLOCK)
        return inFile(filePath(QString::fromLatin1(lockName)), reason(error));
    const QString names = holders();
    return names.isEmpty() ? QStringLiteral("another process has it open")
                           : QStringLiteral("it is in use by ") + names;
}

QString StateDirectory::holders() const
{
    std::array<struct stat, 3> files{};
    ::fstat(useLock, &files[0]);
    ::fstat(recorderLock, &files[1]);
    ::stat(encoded(path).constData(), &files[2]);
    return namesOfLockers(files, [](const KernelLock &lock) { return lock.kind == "FLOCK"; });
}

// Who only reads a database locks it, too. (Opening its files to look at them would drop SQLite's locks of this process.)
QString StateDirectory::writers(const QString &database) const
{
    std::array<struct stat, 3> files{};
    ::stat(encoded(filePath(database)).constData(), &files[0]);
    ::stat(encoded(filePath(database + QLatin1String(indexSuffix))).constData(), &files[1]);
    ::stat(encoded(filePath(database + QLatin1String(recordings[0]))).constData(), &files[2]);
    return namesOfLockers(files,
                          [](const KernelLock &lock) { return lock.kind == "POSIX" && lock.access == "WRITE"; });
}

QString StateDirectory::notice() const
{
    struct stat status = {};
    if (::stat(encoded(path).constData(), &status) != 0)
        return {};
    if (const QString who = whoElseMayWrite(status); !who.isEmpty())
        return QCoreApplication::translate("handset",
                                           "The state directory \"%1\" %2, who can change what is kept in it.")
            .arg(path, who);
    struct stat above = {};
    if (::stat(encoded(path + QStringLiteral("/..")).constData(), &above) != 0 || !maySomebodyElseRename(above))
        return {};
    return QCoreApplication::translate(
               "handset", "The state directory \"%1\" lies in one that may be written by other users, who can put "
                          "another in its place.")
        .arg(path);
}

QString StateDirectory::filePath(const QString &name) const
{
    return path + QLatin1Char('/') + name;
}

QString StateDirectory::mendRights(const QString &name) const
{
    const QByteArray log = encoded(filePath(name));
    struct stat found = {};
    // What else may be in its place is looked at by who examines the file.
    if (::lstat(log.constData(), &found) == 0 && S_ISREG(found.st_mode)) {
        if ((found.st_mode & 0777) != 0600)
            makeOurs(log);
        if (::faccessat(AT_FDCWD, log.constData(), R_OK | W_OK, AT_EACCESS) != 0)
            return QStringLiteral("it cannot be read and written (%1)").arg(reason(errno));
    }
    for (const char *suffix : {recordings[0], recordings[1], indexSuffix}) {
        const QString file = filePath(name + QLatin1String(suffix));
        const QByteArray encodedFile = encoded(file);
        struct stat status = {};
        if (::lstat(encodedFile.constData(), &status) != 0)
            continue;
        if (S_ISLNK(status.st_mode))
            return QStringLiteral("\"%1\" is a symbolic link").arg(file);
        if (!S_ISREG(status.st_mode)) // SQLite would wait at a pipe for ever
            return QStringLiteral("\"%1\" is no regular file").arg(file);
        if ((status.st_mode & 0777) != 0600)
            makeOurs(encodedFile);
        if (::faccessat(AT_FDCWD, encodedFile.constData(), R_OK | W_OK, AT_EACCESS) != 0)
            return QStringLiteral("\"%1\" cannot be read and written (%2)").arg(file, reason(errno));
    }
    return {};
}

int StateDirectory::rename(const QString &from, const QString &to)
{
    const QByteArray source = encoded(filePath(from));
    const QByteArray target = encoded(filePath(to));
    if (::renameat2(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE) != 0)
        return errno;
    // The order of renames must hold even when the machine goes down.
    return syncFile(path, O_DIRECTORY);
}

int StateDirectory::sync(const QString &name, Progress &progress)
{
    if (const int error = writeOut(filePath(name), progress))
        return error;
    const int error = syncFile(filePath(name), O_NOFOLLOW);
    if (error == 0)
        progress.finish();
    return error;
}

int StateDirectory::readBeginning(const QString &name, qint64 most, QByteArray &bytes) const
{
    bytes.clear();
    struct stat status = {};
    if (::lstat(encoded(filePath(name)).constData(), &status) != 0)
        return errno;
    if (!S_ISREG(status.st_mode))
        return 0;
    const Descriptor file(filePath(name), O_RDONLY | O_NOFOLLOW);
    if (!file.isOpen())
        return errno;
    bytes.resize(static_cast<qsizetype>(std::min<qint64>(most, status.st_size)));
    qsizetype length = 0;
    if (const int error = readUpTo(file.number(), bytes, length))
        return error;
    return length == bytes.size() ? 0 : EIO;
}

int StateDirectory::readThrough(const QString &name, Progress &progress) const
{
    const Descriptor file(filePath(name), O_RDONLY | O_NOFOLLOW);
    if (!file.isOpen())
        return errno;
    QByteArray block(blockSize, Qt::Uninitialized);
    for (qsizetype length = block.size(); length == block.size(); progress.add(length))
        if (const int error = readUpTo(file.number(), block, length))
            return error;
    progress.finish();
    return 0;
}

int StateDirectory::find(const QString &name) const
{
    struct stat status = {};
    return ::lstat(encoded(filePath(name)).constData(), &status) == 0 ? 0 : errno;
}

// A recording that was given its other name already, when the putting aside was interrupted, has that name to go on with.
QString StateDirectory::unusedName(const QString &name) const
{
    constexpr int most = 100'000;
    const QFileInfo file(name);
    for (int number = 1; number <= most; ++number) {
        QString candidate =
            QStringLiteral("%1-kept-%2.%3").arg(file.completeBaseName()).arg(number).arg(file.suffix());
        const auto isUnused = [&](const char *suffix) {
            return find(candidate + QLatin1String(suffix)) == ENOENT ||
                   isSameFile(filePath(name + QLatin1String(suffix)), filePath(candidate + QLatin1String(suffix)));
        };
        if (isUnused("") && std::all_of(recordings.begin(), recordings.end(), isUnused))
            return candidate;
    }
    return {};
}

// A second name for a file; a copy where the file system knows no second names.
int StateDirectory::addName(const QString &from, const QString &to)
{
    if (::link(encoded(filePath(from)).constData(), encoded(filePath(to)).constData()) == 0)
        return 0;
    if (errno != EPERM && errno != EOPNOTSUPP && errno != EMLINK)
        return errno;
    Progress untold({}, {}, 0); // recordings are small
    return copyFile(filePath(from), filePath(to), untold);
}

int StateDirectory::addNamesOfRecordings(const QString &name, const QString &kept)
{
    const bool isAlone = find(name) == ENOENT;
    for (const char *recording : recordings) {
        const QLatin1String suffix(recording);
        // One that was left alone has its other name already when this was interrupted.
        if (!hasContent(name + suffix) || (isAlone && hasOtherName(filePath(name + suffix))) ||
            isSameFile(filePath(name + suffix), filePath(kept + suffix)))
            continue;
        if (const int error = addName(name + suffix, kept + suffix))
            return error;
    }
    return 0;
}

void StateDirectory::removeRecordings(const QString &name)
{
    for (const char *recording : recordings)
        unlink(name + QLatin1String(recording));
}

int StateDirectory::keepAside(const QString &name, const QString &kept)
{
    unlink(name + QLatin1String(indexSuffix));
    int error = addNamesOfRecordings(name, kept);
    if (error == 0 && find(name) != ENOENT)
        error = rename(name, kept);
    if (error != 0 && (find(name) != ENOENT || find(kept) != 0)) { // it has not moved
        removeRecordings(kept);
        return error;
    }
    removeRecordings(name);
    // A new database must not have the recordings of an old one beside it.
    return error == 0 && hasLeftovers(name) ? EBUSY : error;
}

int StateDirectory::copy(const QString &from, const QString &to, Progress &progress)
{
    for (const char *recording : recordings) {
        const QLatin1String suffix(recording);
        const int error = copyFile(filePath(from + suffix), filePath(to + suffix), progress);
        if (error != 0 && error != ENOENT)
            return error;
    }
    const int error = copyFile(filePath(from), filePath(to), progress);
    if (error == 0)
        progress.finish();
    return error;
}

void StateDirectory::remove(const QString &name)
{
    removeRecordings(name);
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
    return ::lstat(encoded(filePath(name)).constData(), &status) == 0 ? status.st_size > 0 : errno != ENOENT;
}

bool StateDirectory::hasLeftovers(const QString &name) const
{
    return std::any_of(recordings.begin(), recordings.end(),
                       [&](const char *recording) { return hasContent(name + QLatin1String(recording)); });
}

qint64 StateDirectory::size(const QString &name) const
{
    qint64 bytes = 0;
    for (const char *suffix : {"", recordings[0], recordings[1]})
        bytes += QFileInfo(filePath(name + QLatin1String(suffix))).size();
    return bytes;
}

int StateDirectory::freeSpace(qint64 &bytes) const
{
    struct statvfs status = {};
    if (::statvfs(encoded(path).constData(), &status) != 0)
        return errno;
    bytes = static_cast<qint64>(status.f_bavail) * static_cast<qint64>(status.f_frsize);
    return 0;
}

} // namespace handset::calllog
