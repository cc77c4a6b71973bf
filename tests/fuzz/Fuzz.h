// What the programs for the fuzzer have in common. Each has one function, which is given bytes of any kind: under the
// preset fuzz by libFuzzer, which looks for bytes that lead somewhere new; else by Replay.cpp, what it has found before.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>
#include <QtCore/QtGlobal>

#include <algorithm>
#include <cstddef>
#include <cstdint>

/// Ends the program, which both count as a find.
#define REQUIRE(CONDITION)                                                                                        \
    do {                                                                                                          \
        if (!(CONDITION))                                                                                         \
            qFatal("%s:%d: not so: %s", __FILE__, __LINE__, #CONDITION);                                          \
    } while (false)

/// Tries the bytes once.
void tryBytes(QByteArrayView bytes);

/// Takes numbers and texts off the front; 0, or nothing, behind the end.
class Taker
{
public:
    explicit Taker(QByteArrayView bytes)
        : rest(bytes)
    {}

    bool isAtEnd() const { return rest.isEmpty(); }
    quint8 byte()
    {
        const quint8 taken = rest.isEmpty() ? quint8{0} : static_cast<quint8>(rest.front());
        rest = rest.sliced(rest.isEmpty() ? 0 : 1);
        return taken;
    }
    template <typename Number>
    Number number()
    {
        quint64 taken = 0;
        for (std::size_t i = 0; i < sizeof(Number); ++i)
            taken = (taken << 8) | byte();
        return static_cast<Number>(taken);
    }
    /// Up to `most` bytes; how many, a byte says.
    QByteArray text(qsizetype most)
    {
        const qsizetype size = std::min<qsizetype>({byte(), most, rest.size()});
        const QByteArray taken = rest.first(size).toByteArray();
        rest = rest.sliced(size);
        return taken;
    }
    QByteArrayView all() const { return rest; }

private:
    QByteArrayView rest;
};
