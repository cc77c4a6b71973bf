// The first bytes of an SQLite database, by its documented file format.
#pragma once

#include <QtCore/QByteArray>

#include <optional>

namespace handset::calllog {

struct FileHeader {
    static constexpr qint64 size = 100;
    /// The page size of every call log, unless somebody has rewritten it.
    static constexpr qint64 usualPageSize = 4096;

    /// Nothing when the bytes are too few or not those of a database.
    static std::optional<FileHeader> parse(const QByteArray &bytes);

    qint64 pageSize = 0; ///< a power of two from 512 to 65536; 0 when the bytes say anything else
    qint64 pageCount = 0;
    bool pageCountIsValid = false; ///< written by whoever wrote last
    bool isSound = false;          ///< every field that has the same value in all call logs has it
};

struct MendedHeader {
    QByteArray bytes; ///< FileHeader::size of them
    qint64 fileSize = 0;
};

/// What the header of a call log should say, and how long the file should be: what is the same in all call logs is put
/// right, and the number of pages is that of the whole ones. `firstBytes` are up to 64 KiB from the file's beginning, at
/// least FileHeader::size. Application and version are left as they are: nobody asks them of a log that is salvaged.
MendedHeader mendHeader(const QByteArray &firstBytes, qint64 fileSize);

} // namespace handset::calllog
