#include "ExamineFile.h"

#include "repair/FileHeader.h"

#include <QtCore/QFile>

#include <cerrno>

#include <sys/stat.h>

namespace handset::calllog {

namespace {

// What SQLite would not mind, or mistake for a file that must not be written. `whole` is false while leftovers wait to
// be worked in: the length may differ until then.
Finding checkHeader(const QString &path, bool whole)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {Verdict::Blocked, file.errorString()};
    const std::optional<FileHeader> header = FileHeader::parse(file.read(FileHeader::size));
    if (!header)
        return {Verdict::Foreign, {}};
    if (!header->versionIsKnown)
        return {Verdict::Damaged, QStringLiteral("its format is wrong")};
    // SQLite takes a file that lost the end of its last page for a whole one.
    if (whole && header->pageCountIsValid && file.size() < header->pageSize * header->pageCount)
        return {Verdict::Damaged, QStringLiteral("its end is missing")};
    return {};
}

} // namespace

Finding examineFile(const StateDirectory &directory, const QString &name)
{
    const QString path = directory.filePath(name);
    const QByteArray encoded = QFile::encodeName(path);
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
    return checkHeader(path, !leftovers);
}

} // namespace handset::calllog
