// The first bytes of an SQLite database, by its documented file format.
#pragma once

#include <QtCore/QByteArray>

#include <optional>

namespace handset::calllog {

struct FileHeader {
    static constexpr qint64 size = 100;

    /// Nothing when the bytes are too few or not those of a database.
    static std::optional<FileHeader> parse(const QByteArray &bytes);

    qint64 pageSize = 0; ///< a power of two from 512 to 65536; 0 when the bytes say anything else
    qint64 pageCount = 0;
    bool pageCountIsValid = false; ///< written by whoever wrote last
    bool versionIsKnown = false;   ///< else SQLite does not read, or does not write it
};

} // namespace handset::calllog
