// Texts for what of the handset speaks Latin-1.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <optional>

namespace host {

/// Nothing for a text with a character outside Latin-1, which Qt alone would make a "?".
inline std::optional<QByteArray> latin1Of(const QString &text)
{
    const QByteArray latin1 = text.toLatin1();
    return QString::fromLatin1(latin1) == text ? std::optional(latin1) : std::nullopt;
}

} // namespace host
