// Files that others name.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace language {

/// Reads the whole of `file` (a name of the file system, or of a resource) into `bytes`. Empty, or why not as the end
/// of a sentence: it is no file, cannot be read, or has more than `limit` bytes.
QString readFile(const QString &file, qint64 limit, QByteArray &bytes);

} // namespace language
