#include "calllog/repair/FileHeader.h"

#include <QtCore/QtEndian>

#include <algorithm>
#include <array>
#include <bit>

namespace handset::calllog {

namespace {

constexpr qsizetype pageSizeAt = 16;
constexpr qsizetype writeVersionAt = 18;
constexpr qsizetype readVersionAt = 19;
constexpr qsizetype changeCounterAt = 24;
constexpr qsizetype pageCountAt = 28;
constexpr qsizetype schemaFormatAt = 44;
constexpr qsizetype encodingAt = 56;
constexpr qsizetype pageCountValidForAt = 92;

constexpr qint64 smallestPage = 512;
constexpr qint64 largestPage = 65536; ///< stored as 1
constexpr char writeAheadLog = 2;
constexpr quint32 schemaFormat = 4;
constexpr quint32 utf8 = 1;

struct Constant {
    qsizetype at;
    QByteArrayView bytes;
};

const std::array constants{
    Constant{0, {"SQLite format 3", 16}},
    Constant{20, {"\0\x40\x20\x20", 4}},   // no reserved space; payload fractions
    Constant{32, {"\0\0\0\0\0\0\0\0", 8}}, // the list of free pages
    Constant{52, {"\0\0\0\0", 4}},         // not vacuumed by itself
    Constant{64, {"\0\0\0\0", 4}},         // nor in steps
};
constexpr qsizetype freePagesAt = 32; ///< the one among them that changes while a log is in use

quint16 shortAt(const QByteArray &bytes, qsizetype at)
{
    return at + 2 <= bytes.size() ? qFromBigEndian<quint16>(bytes.constData() + at) : 0;
}

quint32 numberAt(const QByteArray &bytes, qsizetype at)
{
    return qFromBigEndian<quint32>(bytes.constData() + at);
}

void putNumber(QByteArray &bytes, qsizetype at, quint32 number)
{
    qToBigEndian(number, bytes.data() + at);
}

qint64 pageSizeFrom(const QByteArray &bytes)
{
    const quint16 stored = shortAt(bytes, pageSizeAt);
    const qint64 size = stored == 1 ? largestPage : stored;
    return size >= smallestPage && std::has_single_bit(static_cast<quint64>(size)) ? size : 0;
}

bool has(const QByteArray &bytes, const Constant &constant)
{
    return QByteArrayView(bytes).sliced(constant.at, constant.bytes.size()) == constant.bytes;
}

bool isSoundHeader(const QByteArray &bytes)
{
    const auto isVersion = [&](qsizetype at) { return bytes[at] == 1 || bytes[at] == writeAheadLog; };
    // 0 as long as there is no table.
    const auto isUnsetOr = [&](qsizetype at, quint32 value) {
        return numberAt(bytes, at) == 0 || numberAt(bytes, at) == value;
    };
    return pageSizeFrom(bytes) > 0 && isVersion(writeVersionAt) && isVersion(readVersionAt) &&
           isUnsetOr(schemaFormatAt, schemaFormat) && isUnsetOr(encodingAt, utf8) &&
           std::all_of(constants.begin(), constants.end(), [&](const Constant &constant) {
               return constant.at == freePagesAt || has(bytes, constant);
           });
}

// The first page has the tables' definitions, the first of them at its end: the page ends at the first power of two
// behind where the last one begins. 0 when that cannot be told.
qint64 pageSizeByContent(const QByteArray &firstBytes)
{
    constexpr qsizetype treeAt = FileHeader::size;
    constexpr char leaf = 13;
    if (firstBytes.size() < smallestPage || firstBytes[treeAt] != leaf)
        return 0;
    quint16 last = 0;
    for (qsizetype cell = 0; cell < shortAt(firstBytes, treeAt + 3); ++cell)
        last = std::max(last, shortAt(firstBytes, treeAt + 8 + 2 * cell));
    return std::clamp(static_cast<qint64>(std::bit_ceil(quint32{last} + 1)), smallestPage, largestPage);
}

qint64 likelyPageSize(const QByteArray &firstBytes, qint64 fileSize)
{
    const qint64 count = numberAt(firstBytes, pageCountAt);
    for (const qint64 size : {pageSizeFrom(firstBytes), FileHeader::usualPageSize})
        if (size > 0 && size * count == fileSize)
            return size;
    const qint64 byContent = pageSizeByContent(firstBytes);
    return byContent > 0 ? byContent : FileHeader::usualPageSize;
}

} // namespace

std::optional<FileHeader> FileHeader::parse(const QByteArray &bytes)
{
    if (bytes.size() < size || !has(bytes, constants.front()))
        return std::nullopt;
    FileHeader header;
    header.pageSize = pageSizeFrom(bytes);
    header.pageCount = numberAt(bytes, pageCountAt);
    header.pageCountIsValid = numberAt(bytes, changeCounterAt) == numberAt(bytes, pageCountValidForAt);
    header.isSound = isSoundHeader(bytes);
    return header;
}

MendedHeader mendHeader(const QByteArray &firstBytes, qint64 fileSize)
{
    const qint64 pageSize = likelyPageSize(firstBytes, fileSize);
    const qint64 pages = fileSize / pageSize;
    QByteArray bytes = firstBytes.first(FileHeader::size);
    for (const Constant &constant : constants)
        bytes.replace(constant.at, constant.bytes.size(), constant.bytes.toByteArray());
    const quint16 storedSize = pageSize == largestPage ? quint16{1} : static_cast<quint16>(pageSize);
    qToBigEndian(storedSize, bytes.data() + pageSizeAt);
    bytes[writeVersionAt] = bytes[readVersionAt] = writeAheadLog;
    putNumber(bytes, pageCountAt, static_cast<quint32>(pages));
    putNumber(bytes, pageCountValidForAt, numberAt(bytes, changeCounterAt));
    putNumber(bytes, schemaFormatAt, schemaFormat);
    putNumber(bytes, encodingAt, utf8);
    return {bytes, pages * pageSize};
}

} // namespace handset::calllog
