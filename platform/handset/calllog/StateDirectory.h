// The directory that keeps a telephone's state between starts.
#pragma once

#include <QtCore/QString>

#include <memory>

namespace handset::calllog {

/// Locked for as long as this lives, against other processes and other telephones of this one. The kernel drops the
/// lock with the process, however it ends.
class StateDirectory
{
public:
    /// Makes the directory, and every one on the way to it that is missing (mode 0700). False when it cannot be used;
    /// `error` then says why, in one sentence.
    static bool make(const QString &path, QString &error);
    /// Makes the directory and locks it. Null when it cannot be used; `error` then says why, in one sentence.
    static std::unique_ptr<StateDirectory> open(const QString &path, QString &error);
    ~StateDirectory();
    StateDirectory(const StateDirectory &) = delete;
    StateDirectory &operator=(const StateDirectory &) = delete;

    /// What the user should know of the directory, in one sentence: that others may write it. Empty for nothing.
    QString notice() const;

    QString filePath(const QString &name) const;

    /// Renames `name` and what is recorded beside it to the first unused "<base>-kept-<n>.<suffix>". Answers the new
    /// name, or a null string with the reason in `error`.
    QString keepAside(const QString &name, QString &error);
    /// Renames a file of the directory to a name that is not in use; false when that cannot be done.
    bool rename(const QString &from, const QString &to);
    /// Copies `from` and what is recorded beside it to a name that is not in use; false when that cannot be done.
    bool copy(const QString &from, const QString &to);
    /// Removes `name` and what SQLite keeps beside it.
    void remove(const QString &name);
    bool exists(const QString &name) const;
    /// Makes what SQLite left beside `name` readable and writable for its user alone. Answers what is wrong with the
    /// one that is not and cannot be made so, part of a sentence that names it; empty when there is none.
    QString mendRights(const QString &name) const;
    /// Whether SQLite left recordings beside `name`: it was not closed.
    bool hasLeftovers(const QString &name) const;

private:
    QString unusedName(const QString &name) const;
    void unlink(const QString &name);
    bool hasContent(const QString &name) const;

    explicit StateDirectory(const QString &absolutePath)
        : path(absolutePath)
    {}

    int lock(); ///< 0 or an errno

    QString path;
    int fileLock = -1;
    int directoryLock = -1;
};

} // namespace handset::calllog
