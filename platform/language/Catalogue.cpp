#include "language/Catalogue.h"

#include "language/Languages.h"
#include "language/ReadFile.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QtEndian>

#include <algorithm>
#include <optional>

namespace language {

namespace {

// lrelease's own numbers: what a file begins with, its sections, the parts of a message.
constexpr unsigned char magic[] = {0x3c, 0xb8, 0x64, 0x18, 0xca, 0xef, 0x9c, 0x95,
                                   0xcd, 0x21, 0x1c, 0xbf, 0x60, 0xa1, 0xbd, 0xdd};
enum Section : quint8 { Contexts = 0x2f, Hashes = 0x42, Messages = 0x69, Dependencies = 0x96 };
enum Part : quint8 { End = 1, Translation = 3, Obsolete = 5, SourceText = 6, Context = 7, Comment = 8 };

constexpr qint64 largestCatalogue = qint64{64} * 1024 * 1024;

/// Numbers, most significant byte first, from the front on. None where the bytes end.
class Reader
{
public:
    explicit Reader(QByteArrayView read)
        : left(read)
    {}

    bool isAtEnd() const { return left.isEmpty(); }
    qsizetype size() const { return left.size(); }

    template <typename Number>
    std::optional<Number> number()
    {
        if (left.size() < qsizetype(sizeof(Number)))
            return {};
        const auto read = qFromBigEndian<Number>(left.data());
        left = left.sliced(sizeof(Number));
        return read;
    }

    std::optional<QByteArrayView> block(quint32 size)
    {
        // Compared without a sign: where a size has 32 bits the greatest numbers would be below zero.
        if (static_cast<quint64>(left.size()) < size)
            return {};
        const QByteArrayView taken = left.first(static_cast<qsizetype>(size));
        left = left.sliced(taken.size());
        return taken;
    }

    std::optional<QByteArrayView> sizedBlock()
    {
        const auto size = number<quint32>();
        return size ? block(*size) : std::nullopt;
    }

private:
    QByteArrayView left;
};

struct Sections {
    QByteArrayView contexts;
    QByteArrayView hashes;
    QByteArrayView messages;
    bool hasDependencies = false;
};

void keep(Sections &sections, quint8 tag, QByteArrayView block)
{
    if (tag == Contexts)
        sections.contexts = block;
    else if (tag == Hashes)
        sections.hashes = block;
    else if (tag == Messages)
        sections.messages = block;
    else if (tag == Dependencies)
        sections.hasDependencies = true;
    // Qt looks at the rules of plurals itself; the language is a text, and what it does not know it skips.
}

// Nothing where they do not fill the bytes exactly.
std::optional<Sections> sectionsOf(QByteArrayView bytes)
{
    Sections sections;
    Reader reader(bytes);
    while (!reader.isAtEnd()) {
        const auto tag = reader.number<quint8>();
        const auto block = reader.sizedBlock();
        if (!tag || *tag == 0 || !block || block->isEmpty())
            return {};
        keep(sections, *tag, *block);
    }
    return sections;
}

/// How many bytes may be walked through in all. In a sound file each byte belongs to one text. One in which many texts
/// lie over each other would take Qt and its check as long as its size to the power of two.
class Budget
{
public:
    explicit Budget(qsizetype size)
        : left(4 * size)
    {}

    bool take(qsizetype bytes)
    {
        left -= bytes;
        return left >= 0;
    }

private:
    qsizetype left;
};

// A message is a row of parts up to its end. How many bytes it has; nothing where it has no end.
std::optional<qsizetype> sizeOfMessage(QByteArrayView bytes)
{
    constexpr quint8 texts[] = {Translation, SourceText, Context, Comment};
    Reader reader(bytes);
    for (;;) {
        const auto part = reader.number<quint8>();
        if (part == End)
            return bytes.size() - reader.size();
        if (part == Obsolete) {
            if (!reader.block(4))
                return {};
            continue;
        }
        if (!part || std::find(std::begin(texts), std::end(texts), *part) == std::end(texts))
            return {};
        const auto text = reader.sizedBlock();
        if (!text || (part == Translation && text->size() % 2 != 0))
            return {};
    }
}

// Pairs of a hash, in rising order, and where its message begins.
bool areHashes(QByteArrayView hashes, QByteArrayView messages)
{
    if (hashes.size() % 8 != 0)
        return false;
    Reader reader(hashes);
    Budget budget(messages.size());
    quint32 before = 0;
    while (!reader.isAtEnd()) {
        const quint32 hash = *reader.number<quint32>();
        const quint32 offset = *reader.number<quint32>();
        if (hash < before || offset >= static_cast<quint64>(messages.size()))
            return false;
        const auto size = sizeOfMessage(messages.sliced(static_cast<qsizetype>(offset)));
        if (!size || !budget.take(*size))
            return false;
        before = hash;
    }
    return true;
}

// Names, each behind its length, up to a length of 0. How many bytes they have; nothing where they have no end.
std::optional<qsizetype> sizeOfChain(QByteArrayView bytes)
{
    Reader reader(bytes);
    for (;;) {
        const auto length = reader.number<quint8>();
        if (!length || !reader.block(*length))
            return {};
        if (*length == 0)
            return bytes.size() - reader.size();
    }
}

// A table of so many places, in units of two bytes from behind itself on; 0 is none.
bool areContexts(QByteArrayView contexts)
{
    Reader reader(contexts);
    const auto count = reader.number<quint16>();
    if (!count || *count == 0 || contexts.size() < 2 + 2 * *count)
        return false;
    const QByteArrayView names = contexts.sliced(2 + 2 * *count);
    Budget budget(names.size());
    for (int i = 0; i < *count; ++i) {
        const qsizetype place = qsizetype{2} * *reader.number<quint16>();
        if (place == 0)
            continue;
        if (place >= names.size())
            return false;
        const auto size = sizeOfChain(names.sliced(place));
        if (!size || !budget.take(*size))
            return false;
    }
    return true;
}

} // namespace

QString findDamage(const QByteArray &bytes)
{
    const QByteArrayView start(magic, sizeof magic);
    if (!QByteArrayView(bytes).startsWith(start))
        return QStringLiteral("it is no catalogue");
    const auto sections = sectionsOf(QByteArrayView(bytes).sliced(start.size()));
    if (!sections)
        return QStringLiteral("it is damaged, a section of it is not whole");
    if (sections->hasDependencies)
        return QStringLiteral("it needs other catalogues");
    if (sections->hashes.isEmpty())
        return QStringLiteral("it has no texts");
    if (!areHashes(sections->hashes, sections->messages))
        return QStringLiteral("it is damaged, a text of it is not where it should be");
    if (!sections->contexts.isEmpty() && !areContexts(sections->contexts))
        return QStringLiteral("it is damaged, its table of contexts leads nowhere");
    return {};
}

QString Catalogue::install(const QString &file)
{
    const QString refusal = QStringLiteral("The catalogue \"%1\" cannot be loaded: %2.");
    QString problem = readFile(file, largestCatalogue, bytes);
    if (problem.isEmpty())
        problem = findDamage(bytes);
    if (problem.isEmpty() &&
        !translator.load(reinterpret_cast<const uchar *>(bytes.constData()), static_cast<int>(bytes.size())))
        problem = QStringLiteral("its rules of plurals are wrong");
    if (!problem.isEmpty())
        return refusal.arg(file, problem);
    QCoreApplication::installTranslator(&translator);
    return {};
}

QString Catalogue::installLanguage(const QString &language)
{
    const QString file = catalogueOf(language);
    return file.isEmpty() ? QString() : install(file);
}

} // namespace language
