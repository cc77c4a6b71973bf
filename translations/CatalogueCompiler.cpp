// Makes the catalogue that programs load (.qm) of one that is translated (.ts), with what building the phone takes
// anyway: Qt's own tool comes with two hundred megabytes of a compiler's libraries. Texts that are not translated yet are
// left out. With --pseudo it makes a language of its own out of the template: every text long and accented, so that one
// sees which texts are not from a catalogue, and which have no room.

#include <QtCore/QDataStream>
#include <QtCore/QFile>
#include <QtCore/QList>
#include <QtCore/QSaveFile>
#include <QtCore/QTextStream>
#include <QtCore/QXmlStreamReader>

#include <algorithm>
#include <utility>

namespace {

struct Message {
    QByteArray context;
    QByteArray source;
    QByteArray comment;
    QString translation;
};

enum SectionTag : quint8 { HashesSection = 0x42, MessagesSection = 0x69 };
enum MessageTag : quint8 { EndTag = 1, TranslationTag = 3, SourceTag = 6, ContextTag = 7, CommentTag = 8 };

constexpr quint8 magic[] = {0x3c, 0xb8, 0x64, 0x18, 0xca, 0xef, 0x9c, 0x95,
                            0xcd, 0x21, 0x1c, 0xbf, 0x60, 0xa1, 0xbd, 0xdd};

// --- reading

Message readMessage(QXmlStreamReader &xml, const QByteArray &context)
{
    Message message{context, {}, {}, {}};
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1StringView("source"))
            message.source = xml.readElementText().toUtf8();
        else if (xml.name() == QLatin1StringView("comment"))
            message.comment = xml.readElementText().toUtf8();
        else if (xml.name() == QLatin1StringView("translation"))
            message.translation = xml.readElementText();
        else
            xml.skipCurrentElement();
    }
    return message;
}

QList<Message> readContext(QXmlStreamReader &xml)
{
    QList<Message> messages;
    QByteArray name;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1StringView("name"))
            name = xml.readElementText().toUtf8();
        else if (xml.name() == QLatin1StringView("message"))
            messages << readMessage(xml, name);
        else
            xml.skipCurrentElement();
    }
    return messages;
}

QList<Message> readMessages(QXmlStreamReader &xml)
{
    QList<Message> messages;
    if (!xml.readNextStartElement() || xml.name() != QLatin1StringView("TS"))
        xml.raiseError(QStringLiteral("this is no file of translations"));
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1StringView("context"))
            messages << readContext(xml);
        else
            xml.skipCurrentElement();
    }
    return messages;
}

// --- the pseudo-language

// What the program reads, and the codes of currencies.
bool isKept(const Message &message)
{
    return message.source == "QT_LAYOUT_DIRECTION" || message.source == "TXT_RID_LIST_A_" + message.comment;
}

QString accented(const QString &english)
{
    static const std::pair<const char *, const char16_t *> letters[] = {
        {"AEIOUCNSYZ", u"\u00c5\u00cb\u00cf\u00d6\u00dc\u00c7\u00d1\u0160\u00dd\u017d"},
        {"aeioucnsyz", u"\u00e5\u00eb\u00ef\u00f6\u00fc\u00e7\u00f1\u0161\u00fd\u017e"}};
    QString text = english;
    for (qsizetype i = 0; i < text.size(); ++i) {
        for (const auto &[plain, marked] : letters) {
            const qsizetype place = QLatin1StringView(plain).indexOf(text.at(i));
            if (place >= 0)
                text[i] = marked[place];
        }
    }
    return text;
}

// A third longer, as translations are; a code in parentheses stays at the end.
QString pseudo(const QString &english)
{
    const qsizetype end = english.trimmed().endsWith(u')') ? english.lastIndexOf(u'(') : english.size();
    const QString longer = QString(std::max<qsizetype>(end / 3, 1), u'~');
    return accented(english.left(end)) + longer + english.mid(end).trimmed();
}

void makePseudo(QList<Message> &messages)
{
    for (Message &message : messages) {
        const QString english = QString::fromUtf8(message.comment.isEmpty() ? message.source : message.comment);
        if (message.source == "QT_LAYOUT_DIRECTION")
            message.translation = QStringLiteral("LTR");
        else
            message.translation = isKept(message) ? english : pseudo(english);
    }
}

// --- writing

// As the reader of catalogues has it.
quint32 hashOf(const QByteArray &text)
{
    quint32 hash = 0;
    for (const char c : text) {
        hash = (hash << 4) + static_cast<quint8>(c);
        hash ^= (hash & 0xf0000000) >> 24;
        hash &= 0x0fffffff;
    }
    return hash ? hash : 1;
}

void writeTagged(QDataStream &out, MessageTag tag, const QByteArray &text)
{
    out << static_cast<quint8>(tag) << static_cast<quint32>(text.size());
    out.writeRawData(text.constData(), static_cast<int>(text.size()));
}

QByteArray bigEndian(const QString &text)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    for (const QChar character : text)
        out << character.unicode();
    return bytes;
}

QByteArray catalogueOf(const QList<Message> &messages)
{
    QByteArray texts;
    QDataStream out(&texts, QIODevice::WriteOnly);
    QList<std::pair<quint32, quint32>> places; // the hash, and where the text begins
    for (const Message &message : messages) {
        if (message.translation.isEmpty())
            continue;
        places.emplace_back(hashOf(message.source + message.comment), static_cast<quint32>(texts.size()));
        writeTagged(out, TranslationTag, bigEndian(message.translation));
        writeTagged(out, SourceTag, message.source);
        writeTagged(out, ContextTag, message.context);
        writeTagged(out, CommentTag, message.comment);
        out << static_cast<quint8>(EndTag);
    }
    std::sort(places.begin(), places.end());
    QByteArray hashes;
    QDataStream hashOut(&hashes, QIODevice::WriteOnly);
    for (const auto &[hash, place] : std::as_const(places))
        hashOut << hash << place;

    QByteArray all(reinterpret_cast<const char *>(magic), sizeof magic);
    QDataStream allOut(&all, QIODevice::Append);
    allOut << static_cast<quint8>(HashesSection) << hashes << static_cast<quint8>(MessagesSection) << texts;
    return all;
}

int complain(const QString &problem)
{
    QTextStream(stderr) << "catalogue-compiler: " << problem << Qt::endl;
    return 1;
}

int compile(const QString &from, const QString &to, bool isPseudo)
{
    QFile source(from);
    if (!source.open(QIODevice::ReadOnly))
        return complain(QStringLiteral("%1: %2").arg(from, source.errorString()));
    QXmlStreamReader xml(&source);
    QList<Message> messages = readMessages(xml);
    if (xml.hasError())
        return complain(QStringLiteral("%1:%2: %3").arg(from).arg(xml.lineNumber()).arg(xml.errorString()));
    if (isPseudo)
        makePseudo(messages);
    QSaveFile made(to);
    const QByteArray bytes = catalogueOf(messages);
    if (!made.open(QIODevice::WriteOnly) || made.write(bytes) != bytes.size() || !made.commit())
        return complain(QStringLiteral("%1: %2").arg(to, made.errorString()));
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments << QFile::decodeName(argv[i]);
    const bool isPseudo = arguments.removeAll(QStringLiteral("--pseudo")) > 0;
    if (arguments.size() != 2)
        return complain(QStringLiteral("usage: catalogue-compiler [--pseudo] FILE.ts FILE.qm"));
    return compile(arguments[0], arguments[1], isPseudo);
}
