#include "charging/SimImage.h"

#include <QtCore/QCryptographicHash>

#include <algorithm>

namespace handset::charging {

namespace {

constexpr QByteArrayView magic{"KSIM"};
constexpr char version = 1;
constexpr qsizetype headSize = 5;
constexpr qsizetype checkSize = 20;

QByteArray checkOf(QByteArrayView bytes)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(bytes);
    return hash.result().first(checkSize);
}

// Both walk the same fields in the same order.
class Writer
{
public:
    template <typename Byte, std::size_t Size>
    void operator()(const std::array<Byte, Size> &field)
    {
        static_assert(sizeof(Byte) == 1);
        bytes.append(reinterpret_cast<const char *>(field.data()), static_cast<qsizetype>(Size));
    }
    void operator()(quint8 byte) { bytes.append(static_cast<char>(byte)); }
    void operator()(bool flag) { bytes.append(flag ? '\1' : '\0'); }

    QByteArray bytes;
};

class Reader
{
public:
    explicit Reader(QByteArrayView from)
        : rest(from)
    {}

    template <typename Byte, std::size_t Size>
    void operator()(std::array<Byte, Size> &field)
    {
        std::transform(rest.begin(), rest.begin() + Size, field.begin(),
                       [](char byte) { return static_cast<Byte>(byte); });
        rest = rest.sliced(Size);
    }
    void operator()(quint8 &byte)
    {
        byte = static_cast<quint8>(rest.front());
        rest = rest.sliced(1);
    }
    void operator()(bool &flag)
    {
        quint8 byte = 0;
        (*this)(byte);
        flag = byte == 1;
        sound = sound && byte <= 1;
    }

    bool sound = true;

private:
    QByteArrayView rest;
};

template <typename Walker, typename Files, typename Pin>
void walk(Walker &field, Files &files, Pin &pin)
{
    for (auto &record : files.acm)
        field(record);
    field(files.acmMax);
    field(files.puct);
    field(files.acmRule);
    field(files.acmMaxRule);
    field(files.puctRule);
    field(pin.enabled);
    field(pin.triesLeft);
    field(pin.pukTriesLeft);
    field(pin.pin.salt);
    field(pin.pin.hash);
    field(pin.puk.salt);
    field(pin.puk.hash);
}

int examineFrame(QByteArrayView bytes)
{
    if (bytes.size() < headSize + checkSize || !bytes.startsWith(magic))
        return InvalidArgument;
    const QByteArrayView checked = bytes.chopped(checkSize);
    if (checkOf(checked) != bytes.last(checkSize))
        return InvalidArgument;
    const auto found = static_cast<quint8>(bytes[headSize - 1]);
    if (found > version)
        return NotAvailable;
    return found == version && bytes.size() == cardImageSize ? Success : InvalidArgument;
}

} // namespace

QByteArray saveCard(const SimCard &card)
{
    Writer writer;
    writer.bytes.reserve(cardImageSize);
    writer.bytes.append(magic);
    writer.bytes.append(version);
    walk(writer, card.files(), card.pin2().record());
    writer.bytes.append(checkOf(writer.bytes));
    Q_ASSERT(writer.bytes.size() == cardImageSize);
    return writer.bytes;
}

int loadCard(QByteArrayView bytes, SimCard &card)
{
    const int status = examineFrame(bytes);
    if (status != Success)
        return status;
    Reader reader(bytes.sliced(headSize));
    SimFiles files;
    Pin2Record pin;
    walk(reader, files, pin);
    if (!reader.sound || pin.triesLeft > Pin2Record::allTries || pin.pukTriesLeft > Pin2Record::allPukTries)
        return InvalidArgument;
    card = SimCard(files, pin);
    return Success;
}

} // namespace handset::charging
