// The digits of a PIN while they are typed.
#pragma once

#include <QtCore/QByteArray>

#include <array>
#include <cstddef>

/// Keeps the digits in one place of its own, which is overwritten as soon as a digit is taken back and when the
/// object goes.
class PinDigits
{
public:
    /// 3GPP TS 51.011, 9.3.
    static constexpr std::size_t fewest = 4;
    static constexpr std::size_t most = 8;

    PinDigits() = default;
    ~PinDigits() { clear(); }
    Q_DISABLE_COPY_MOVE(PinDigits)

    /// `digit` is '0' to '9'. Returns false when there are eight already.
    bool append(char digit);
    void removeLast();
    void clear();

    std::size_t count() const { return used; }
    bool isComplete() const { return used >= fewest; }
    /// The digits where they are, without a copy; valid until the next change of this object.
    QByteArray view() const;

private:
    std::array<char, most> digits = {};
    std::size_t used = 0;
};
