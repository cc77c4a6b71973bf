// What the test and its other process know both.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QCryptographicHash>

/// `size` bytes in which no two pages are alike.
inline QByteArray peerPattern(qint64 size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    quint32 state = 1;
    for (char &byte : bytes) {
        state = state * 1664525U + 1013904223U;
        byte = static_cast<char>(state >> 24);
    }
    return bytes;
}

/// A data block in a line: all of a short one, length and digest of a long one.
inline QByteArray peerDigest(const QByteArray &data)
{
    constexpr qsizetype longest = 4096;
    if (data.size() <= longest)
        return data.toHex();
    return QByteArray::number(data.size()) + ':' +
           QCryptographicHash::hash(data, QCryptographicHash::Sha1).toHex();
}
