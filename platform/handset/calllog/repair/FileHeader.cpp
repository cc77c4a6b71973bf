#include "FileHeader.h"

#include <QtCore/QtEndian>

namespace handset::calllog {

namespace {

constexpr qsizetype pageSizeAt = 16;
constexpr qsizetype writeVersionAt = 18;
constexpr qsizetype readVersionAt = 19;
constexpr qsizetype changeCounterAt = 24;
constexpr qsizetype pageCountAt = 28;
constexpr qsizetype pageCountValidForAt = 92;

constexpr qint64 largestPage = 65536; ///< stored as 1

qint64 pageSizeFrom(quint16 stored)
{
    const qint64 bytes = stored == 1 ? largestPage : stored;
    const bool isPowerOfTwo = (bytes & (bytes - 1)) == 0;
    return bytes >= 512 && isPowerOfTwo ? bytes : 0;
}

} // namespace

std::optional<FileHeader> FileHeader::parse(const QByteArray &bytes)
{
    if (bytes.size() < size || !bytes.startsWith(QByteArray("SQLite format 3", 16)))
        return std::nullopt;
    const auto number = [&](qsizetype at) { return qFromBigEndian<quint32>(bytes.constData() + at); };
    const auto isVersion = [&](qsizetype at) { return bytes[at] == 1 || bytes[at] == 2; };
    FileHeader header;
    header.pageSize = pageSizeFrom(qFromBigEndian<quint16>(bytes.constData() + pageSizeAt));
    header.pageCount = number(pageCountAt);
    header.pageCountIsValid = number(changeCounterAt) == number(pageCountValidForAt);
    header.versionIsKnown = isVersion(writeVersionAt) && isVersion(readVersionAt);
    return header;
}

} // namespace handset::calllog
