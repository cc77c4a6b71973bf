#include "ExamineFile.h"

#include <QtCore/QFile>
#include <QtCore/QtEndian>

#include <cerrno>

#include <sys/stat.h>

namespace handset::calllog {

namespace {

// SQLite takes a file that lost the end of its last page for a whole one.
Finding checkHeader(const QString &path)
{
    constexpr qint64 headerSize = 100;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {Verdict::Blocked, file.errorString()};
    const QByteArray header = file.read(headerSize);
    if (header.size() < headerSize || !header.startsWith(QByteArray("SQLite format 3", 16)))
        return {Verdict::Foreign, {}};
    const auto number = [&](qsizetype offset) { return qFromBigEndian<quint32>(header.constData() + offset); };
    const qint64 stored = qFromBigEndian<quint16>(header.constData() + 16);
    const qint64 pageSize = stored == 1 ? 65536 : stored;
    const bool countIsValid = number(24) == number(92);
    if (countIsValid && file.size() < pageSize * static_cast<qint64>(number(28)))
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
    return leftovers ? Finding{} : checkHeader(path); // the length may differ until the leftovers are worked in
}

} // namespace handset::calllog
