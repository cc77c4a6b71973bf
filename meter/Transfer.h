// The whole state as one JSON file.
#pragma once

#include "calllog/Ledger.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace meter {

/// Everything that is kept, as docs/meter.md describes it; what runs is written as interrupted, with what it has come to.
/// StorageFailed where that cannot be read.
int exportState(handset::calllog::Ledger &ledger, QByteArray &text);
/// Writes a file that its user alone may read, whole or not at all. Returns why not, in one sentence.
QString writeFile(const QString &name, const QByteArray &text);
/// Makes the state directory, which must be missing or empty, of an exported file, whole or not at all. Returns why not,
/// in one sentence that names the line or the place in the file.
QString importState(const QString &file, const QString &directory);

} // namespace meter
