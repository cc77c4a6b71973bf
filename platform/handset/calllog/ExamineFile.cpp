#include "calllog/ExamineFile.h"

#include "calllog/repair/FileHeader.h"

#include <QtCore/QFile>

#include <cerrno>

#include <sys/stat.h>

namespace handset::calllog {

namespace {

// What SQLite would not mind, or mistake for a file that must not be written. `whole` is false while leftovers wait to
// be worked in: the length may differ until then. What is no log by its header may be one by its tables: that is looked
// at before anything takes its place.
Finding checkHeader(const StateDirectory &directory, const QString &name, qint64 size, bool whole)
{
    QByteArray bytes;
    if (const int error = directory.readBeginning(name, FileHeader::size, bytes))
        return blocked(error);
    const std::optional<FileHeader> header = FileHeader::parse(bytes);
    if (!header || !header->isSound)
        return {Verdict::Foreign, {}};
    // SQLite takes a file that lost the end of its last page for a whole one.
    if (whole && header->pageCountIsValid && size < header->pageSize * header->pageCount)
        return {Verdict::Damaged, QStringLiteral("its end is missing")};
    return {};
}

} // namespace

Finding examineFile(const StateDirectory &directory, const QString &name)
{
    const QByteArray encoded = QFile::encodeName(directory.filePath(name));
    const bool leftovers = directory.hasLeftovers(name);
    struct stat status = {};
    if (::lstat(encoded.constData(), &status) != 0) {
        if (errno != ENOENT)
            return blocked(errno);
        return {leftovers ? Verdict::Lost : Verdict::Missing, {}};
    }
    if (S_ISLNK(status.st_mode))
        return {Verdict::Blocked, QStringLiteral("it is a symbolic link")};
    if (!S_ISREG(status.st_mode))
        return {Verdict::Foreign, {}};
    if ((status.st_mode & 077) != 0 && ::chmod(encoded.constData(), 0600) != 0)
        return blocked(errno);
    if (status.st_size == 0) // SQLite would take it for a new one and throw the leftovers away
        return {Verdict::Lost, {}};
    return checkHeader(directory, name, status.st_size, !leftovers);
}

} // namespace handset::calllog
