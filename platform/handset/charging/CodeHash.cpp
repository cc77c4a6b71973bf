#include "charging/CodeHash.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QRandomGenerator>

#include <algorithm>
#include <cstring>

namespace handset::charging {

namespace {

// Qt's own classes for this leave the key behind in freed memory.
class Hmac
{
public:
    explicit Hmac(QByteArrayView key)
    {
        Q_ASSERT(key.size() <= static_cast<qsizetype>(block.size()));
        std::copy(key.begin(), key.end(), block.begin());
    }
    ~Hmac()
    {
        ::explicit_bzero(block.data(), block.size());
        // Pushes the key out of the hash's own buffer.
        hash.reset();
        hash.addData(QByteArrayView(block.data(), static_cast<qsizetype>(block.size())));
    }
    Q_DISABLE_COPY(Hmac)

    Sha256 of(QByteArrayView first, QByteArrayView second = {})
    {
        begin(0x36);
        hash.addData(first);
        hash.addData(second);
        const Sha256 inner = result();
        begin(0x5C);
        hash.addData(QByteArrayView(inner.data(), static_cast<qsizetype>(inner.size())));
        return result();
    }

private:
    void begin(char mask)
    {
        hash.reset();
        for (char &byte : block)
            byte = static_cast<char>(byte ^ mask);
        hash.addData(QByteArrayView(block.data(), static_cast<qsizetype>(block.size())));
        for (char &byte : block)
            byte = static_cast<char>(byte ^ mask);
    }

    Sha256 result()
    {
        const QByteArrayView view = hash.resultView();
        Sha256 bytes{};
        std::copy(view.begin(), view.end(), bytes.begin());
        return bytes;
    }

    std::array<char, 64> block{};
    QCryptographicHash hash{QCryptographicHash::Sha256};
};

template <std::size_t Size>
QByteArrayView view(const std::array<char, Size> &bytes)
{
    return {bytes.data(), static_cast<qsizetype>(Size)};
}

} // namespace

Sha256 pbkdf2Sha256(QByteArrayView password, QByteArrayView salt, int iterations)
{
    static constexpr std::array<char, 4> firstBlock{0, 0, 0, 1};
    Hmac hmac(password);
    Sha256 last = hmac.of(salt, view(firstBlock));
    Sha256 sum = last;
    for (int i = 1; i < iterations; ++i) {
        last = hmac.of(view(last));
        std::transform(sum.begin(), sum.end(), last.begin(), sum.begin(),
                       [](char a, char b) { return static_cast<char>(a ^ b); });
    }
    return sum;
}

CodeHash CodeHash::of(QByteArrayView digits)
{
    std::array<quint32, 4> random{};
    QRandomGenerator::system()->fillRange(random.data(), static_cast<qsizetype>(random.size()));
    CodeHash code;
    static_assert(sizeof random == sizeof code.salt);
    std::memcpy(code.salt.data(), random.data(), sizeof random);
    code.hash = pbkdf2Sha256(digits, view(code.salt), iterations);
    return code;
}

bool CodeHash::matches(QByteArrayView digits) const
{
    return pbkdf2Sha256(digits, view(salt), iterations) == hash;
}

} // namespace handset::charging
