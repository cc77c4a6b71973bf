// Secret digits as they may be kept.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>

#include <array>

namespace handset::charging {

using Sha256 = std::array<char, 32>;

/// The first block of PBKDF2 with HMAC-SHA-256 (RFC 8018). `password` has at most 64 bytes, `iterations` is 1 or
/// more. Its own copies of the password are overwritten.
Sha256 pbkdf2Sha256(QByteArrayView password, QByteArrayView salt, int iterations);

/// Digits that can be recognised and not read. That is all it is for: whoever has the hash of four digits can try
/// all ten thousand, however long each try is made to take. So it takes a few milliseconds, not longer.
struct CodeHash {
    static constexpr int iterations = 1000;

    std::array<char, 16> salt{};
    Sha256 hash{};

    /// Of `digits`, with a salt of its own.
    static CodeHash of(QByteArrayView digits);
    bool matches(QByteArrayView digits) const;

    friend bool operator==(const CodeHash &, const CodeHash &) = default;
};

} // namespace handset::charging
