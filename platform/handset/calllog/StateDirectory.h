// The directory that keeps a handset's state between starts.
#pragma once

#include "calllog/Waiting.h"
#include "calllog/repair/Progress.h"

#include <QtCore/QString>

#include <memory>

#include <sys/types.h>

namespace handset::calllog {

/// Two locks stand in it, and the kernel drops both with the process, however that ends. Every process that has the
/// directory open shares the first; who needs the files for itself takes it alone. The second says who records. One
/// handset of a process at a time: what a second one opens and closes would drop SQLite's own locks of the first.
class StateDirectory
{
public:
    /// Makes the directory, and every one on the way to it that is missing (mode 0700). False when it cannot be used;
    /// `error` then says why, in one sentence.
    static bool make(const QString &path, QString &error);
    /// Makes the directory and shares it with others. Null when it cannot be used; `error` then says why, in one
    /// sentence.
    static std::unique_ptr<StateDirectory> open(const QString &path, Waiting &waiting, QString &error);
    /// Takes the directory alone, also against who records: waits so long for the others, and no longer than `waiting`
    /// does. It is shared then as before, where that is possible. Returns 0; EWOULDBLOCK where others are in the way, or
    /// another errno, which waiting does not change; `problem` is why, part of a sentence.
    int takeAlone(int milliseconds, Waiting &waiting, QString &problem);
    /// Shares it again; false where somebody has taken it alone. This goes on to record when nobody else does.
    bool share(Waiting &waiting);
    /// Whether this has a part in the directory, or all of it.
    bool isHeld() const { return held; }
    /// Takes the lock of who records when nobody has it. Returns 0 when this records; EWOULDBLOCK where another process
    /// does, or another errno.
    int record();
    bool isRecording() const { return directoryLock >= 0; }

    /// Other processes: who has locked the directory, and who has locked a database in it for writing. The names are
    /// part of a sentence; empty when the kernel does not say.
    QString holders() const;
    QString writers(const QString &database) const;

    ~StateDirectory();
    StateDirectory(const StateDirectory &) = delete;
    StateDirectory &operator=(const StateDirectory &) = delete;

    /// What the user should know of the directory, in one sentence: that others may write it, or may put
    /// another in its place. Empty for nothing.
    QString notice() const;

    QString filePath(const QString &name) const;

    // Where the answer is an int it is 0, or an errno.

    /// "<base>-kept-<n>.<suffix>", the first that is not in use; a null string when there is none.
    QString unusedName(const QString &name) const;
    /// Gives `name`, and what is recorded beside it, another name that is not in use. Whenever this is interrupted
    /// the database has its recordings beside it, under the one name or the other.
    int keepAside(const QString &name, const QString &kept);
    /// Renames a file of the directory to a name that is not in use, and waits until the disk has it.
    int rename(const QString &from, const QString &to);
    // `progress` counts bytes.

    /// Copies `from` and what is recorded beside it to a name that is not in use.
    int copy(const QString &from, const QString &to, Progress &progress);
    /// Waits until the disk has what was written to a file.
    int sync(const QString &name, Progress &progress);
    /// Up to `most` bytes from the beginning of a file; a file that yields fewer than it has is an error (EIO).
    /// Nothing of what is no file.
    int readBeginning(const QString &name, qint64 most, QByteArray &bytes) const;
    /// Reads the whole of a file, for nothing but to see that it can be read.
    int readThrough(const QString &name, Progress &progress) const;
    /// Removes `name` and what SQLite keeps beside it.
    void remove(const QString &name);

    /// 0 for a name that is in use, ENOENT for one that is not; any other errno when that cannot be told.
    int find(const QString &name) const;
    /// Makes the database `name` and what SQLite left beside it readable and writable for its user alone. Returns what
    /// is wrong with the one that is not and cannot be made so, or that lies beside it and is no regular file, part of a
    /// sentence that names it; empty when there is none.
    QString mendRights(const QString &name) const;
    /// Whether SQLite left recordings beside `name`: it was not closed. True also when that cannot be told.
    bool hasLeftovers(const QString &name) const;
    /// Bytes of `name` and of what is recorded beside it.
    qint64 size(const QString &name) const;
    /// Bytes that the disk has left for this user.
    int freeSpace(qint64 &bytes) const;

private:
    int addName(const QString &from, const QString &to);
    int addNamesOfRecordings(const QString &name, const QString &kept);
    void removeRecordings(const QString &name);
    void unlink(const QString &name);
    bool hasContent(const QString &name) const;

    explicit StateDirectory(const QString &absolutePath)
        : path(absolutePath)
    {}

    QString lock(Waiting &waiting);
    QString whoHolds(int error) const;
    int lockWithin(int mode, Waiting &waiting, int milliseconds = -1);

    QString path;
    dev_t ownDevice = 0; ///< with the next, which directory it is, wherever it has gone since
    ino_t ownInode = 0;
    int useLock = -1;
    bool held = false; ///< the lock before
    int recorderLock = -1;
    int directoryLock = -1; ///< held with the one before
};

} // namespace handset::calllog
