// Catalogues that a disk, a transfer or somebody has damaged.
#include "host/HostProcess.h"
#include "language/Catalogue.h"
#include "language/Languages.h"
#include "language/ReadFile.h"
#include "support/TestGroup.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTranslator>
#include <QtCore/QtEndian>
#include <QtTest/QTest>

#include <cerrno>

namespace {

// Where things are, and how large, in what lrelease makes.
constexpr qsizetype magicSize = 16;
constexpr qsizetype sectionHead = 5;

QByteArray wholeCatalogue()
{
    QFile file(QStringLiteral(KAV_CATALOGUE));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray section(quint8 tag, const QByteArray &block)
{
    QByteArray bytes(sectionHead, '\0');
    bytes[0] = static_cast<char>(tag);
    qToBigEndian(static_cast<quint32>(block.size()), bytes.data() + 1);
    return bytes + block;
}

QByteArray number(quint32 value)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

QByteArray magic()
{
    return wholeCatalogue().left(magicSize);
}

// Where the section with this tag begins.
qsizetype placeOf(const QByteArray &bytes, quint8 tag)
{
    qsizetype place = magicSize;
    while (static_cast<quint8>(bytes.at(place)) != tag)
        place += sectionHead + qFromBigEndian<quint32>(bytes.constData() + place + 1);
    return place;
}

// The whole catalogue with four other bytes.
QByteArray changed(quint8 tag, qsizetype behindHead, quint32 value)
{
    QByteArray bytes = wholeCatalogue();
    return bytes.replace(placeOf(bytes, tag) + sectionHead + behindHead, 4, number(value));
}

// So many texts, each of which is a part of the one before it.
QByteArray textsOverEachOther(int count)
{
    const QByteArray oldPart("\x05\0\0\0\0", 5);
    QByteArray hashes;
    hashes.reserve(8 * count);
    for (int i = 0; i < count; ++i)
        hashes += number(static_cast<quint32>(i)) + number(static_cast<quint32>(oldPart.size() * i));
    return magic() + section(0x42, hashes) + section(0x69, oldPart.repeated(count) + '\x01');
}

// A text, and so many contexts, each of which is a part of the one before it.
QByteArray contextsOverEachOther(int count)
{
    QByteArray places(2 + 2 * count, '\0');
    qToBigEndian(static_cast<quint16>(count), places.data());
    for (int i = 0; i < count; ++i)
        qToBigEndian(static_cast<quint16>(i + 1), places.data() + 2 + 2 * i);
    const QByteArray names = QByteArray("\x01n", 2).repeated(count + 1) + '\0';
    return textsOverEachOther(1) + section(0x2f, places + names);
}

// Everything that the phone asks a translator.
void askForTexts(const QTranslator &translator)
{
    for (const char *context : {"host::MenuScreen", "PHONE_UI_RecentCallTimesView", "", "nothing"}) {
        translator.translate(context, "TXT_RID_HEADER_RECENT_CALLS", "Recent Calls");
        translator.translate(context, "TXT_RID_HEADER_CALL_TIMES", "Call Times", 3);
        translator.translate(context, "", "");
    }
}

// The window, in the language of a catalogue.
HostResult photographWith(const QString &catalogue, const QTemporaryDir &home)
{
    return runHost({QStringLiteral("--state"), QStringLiteral("none"), QStringLiteral("--photo"),
                    home.filePath(QStringLiteral("window.png")), QStringLiteral("--translation"), catalogue},
                   hostEnvironment(home.path()));
}

} // namespace

class TestCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void whatLreleaseMakesIsWhole();
    void aFileThatCannotBeReadIsSaid();
    void namesOfScreensAreNoLanguage();
    void anotherScriptIsAnotherLanguage();
    void damageIsFound_data();
    void damageIsFound();
    void aTableOfContextsThatIsWholeIsTaken();
    void aTextThatTwoHashesShareIsTaken();
    void anUnknownSectionIsPassedOver();
    void whatIsCutOffAnywhereIsFoundOrHarmless();
    void whatIsChangedAnywhereIsFoundOrHarmless_data();
    void whatIsChangedAnywhereIsFoundOrHarmless();
    void theProgramRefusesADamagedCatalogue_data();
    void theProgramRefusesADamagedCatalogue();
    void theProgramRefusesACatalogueOfGigabytes();
    void theProgramSaysThatACatalogueHasNoTexts();
};

void TestCatalogue::whatLreleaseMakesIsWhole()
{
    QVERIFY(!wholeCatalogue().isEmpty());
    QCOMPARE(language::findDamage(wholeCatalogue()), QString());
}

void TestCatalogue::damageIsFound_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray whole = wholeCatalogue();
    const QByteArray end("\x01", 1);
    const auto one = [&](const QByteArray &hashes, const QByteArray &messages, const QByteArray &more = {}) {
        return magic() + section(0x42, hashes) + section(0x69, messages) + more;
    };
    const QByteArray sound = number(1) + number(0);
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("another kind of file") << QByteArray("\x7f"
                                                        "ELF") +
                                                 whole;
    QTest::newRow("a byte behind the last section") << whole + '\0';
    QTest::newRow("a section longer than the file") << magic() + QByteArray("\x42\xff\xff\xff\xff", 5);
    QTest::newRow("a section that ends in its head") << magic() + QByteArray("\x42\0", 2);
    QTest::newRow("an empty section") << magic() + section(0x42, {});
    QTest::newRow("half a hash") << one(sound + number(2), end);
    QTest::newRow("a hash out of order") << one(number(2) + number(0) + number(1) + number(0), end);
    QTest::newRow("a text outside the texts") << changed(0x42, 4, 0x7ffffff0);
    QTest::newRow("a text at the end of the texts") << one(number(1) + number(1), end);
    QTest::newRow("hashes without texts") << magic() + section(0x42, sound);
    QTest::newRow("a text without an end") << one(sound, QByteArray("\x05\0\0\0\0", 5));
    QTest::newRow("a translation longer than the texts") << one(sound, "\x03" + number(0x7ffffff0) + end);
    QTest::newRow("a translation of half a character") << one(sound, QByteArray("\x03") + number(1) + 'x' + end);
    QTest::newRow("a comment longer than the texts") << one(sound, "\x08" + number(0xfffffff0) + end);
    QTest::newRow("an unknown part") << one(sound, QByteArray("\x63\x01", 2));
    QTest::newRow("an old part that is cut off") << one(sound, QByteArray("\x05\0\0", 3));
    QTest::newRow("a table of contexts with no place") << one(sound, end, section(0x2f, QByteArray(2, '\0')));
    QTest::newRow("a table of contexts that is cut off")
        << one(sound, end, section(0x2f, QByteArray("\0\x09\0\0", 4)));
    QTest::newRow("a context outside the names")
        << one(sound, end, section(0x2f, QByteArray("\0\x01\x7f\xff\0\0", 6)));
    QTest::newRow("a context without an end")
        << one(sound, end, section(0x2f, QByteArray("\0\x01\0\x01\0\0\x02zz", 9)));
    QTest::newRow("texts that lie over each other") << textsOverEachOther(100);
    QTest::newRow("megabytes of texts that lie over each other") << textsOverEachOther(1'400'000);
    QTest::newRow("contexts that lie over each other") << contextsOverEachOther(100);
    QTest::newRow("as many contexts as there can be that lie over each other") << contextsOverEachOther(65'535);
    QTest::newRow("no texts") << magic();
    QTest::newRow("no texts, but a language") << magic() + section(0xa7, "es");
    QTest::newRow("other catalogues to be loaded") << whole + section(0x96, QByteArray("\0\0\0\x06\0o\0n\0e", 10));
}

void TestCatalogue::damageIsFound()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(!language::findDamage(bytes).isEmpty());
}

void TestCatalogue::aTableOfContextsThatIsWholeIsTaken()
{
    const QByteArray contexts("\0\x02\0\0\0\x01\0\0\x02zz\0", 12);
    QCOMPARE(language::findDamage(wholeCatalogue() + section(0x2f, contexts)), QString());
}

void TestCatalogue::aTextThatTwoHashesShareIsTaken()
{
    const QByteArray hashes = number(1) + number(0) + number(2) + number(0);
    QCOMPARE(language::findDamage(magic() + section(0x42, hashes) + section(0x69, "\x01")), QString());
}

void TestCatalogue::anUnknownSectionIsPassedOver()
{
    QCOMPARE(language::findDamage(wholeCatalogue() + section(0x11, "later")), QString());
}

void TestCatalogue::whatIsCutOffAnywhereIsFoundOrHarmless()
{
    const QByteArray whole = wholeCatalogue();
    for (qsizetype size = 0; size < whole.size(); ++size) {
        const QByteArray bytes = whole.left(size);
        if (!language::findDamage(bytes).isEmpty())
            continue;
        QTranslator translator;
        if (translator.load(reinterpret_cast<const uchar *>(bytes.constData()), static_cast<int>(bytes.size())))
            askForTexts(translator);
    }
    QVERIFY(!language::findDamage(whole.chopped(1)).isEmpty());
}

void TestCatalogue::whatIsChangedAnywhereIsFoundOrHarmless_data()
{
    QTest::addColumn<int>("value");
    QTest::newRow("to 0") << 0x00;
    QTest::newRow("to 1") << 0x01;
    QTest::newRow("to 127") << 0x7f;
    QTest::newRow("to 255") << 0xff;
}

// The sanitizers see a step outside; without them a crash does.
void TestCatalogue::whatIsChangedAnywhereIsFoundOrHarmless()
{
    QFETCH(int, value);
    const QByteArray whole = wholeCatalogue();
    int found = 0;
    for (qsizetype place = 0; place < whole.size(); ++place) {
        QByteArray bytes = whole;
        bytes[place] = static_cast<char>(value);
        if (!language::findDamage(bytes).isEmpty()) {
            ++found;
            continue;
        }
        QTranslator translator;
        if (translator.load(reinterpret_cast<const uchar *>(bytes.constData()), static_cast<int>(bytes.size())))
            askForTexts(translator);
    }
    QVERIFY(found > magicSize / 2);
}

void TestCatalogue::theProgramRefusesADamagedCatalogue_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("with translations of a length below zero") << [] {
        QByteArray bytes = wholeCatalogue();
        const qsizetype hashes = placeOf(bytes, 0x42) + sectionHead;
        const qsizetype messages = placeOf(bytes, 0x69) + sectionHead;
        for (qsizetype entry = hashes; entry < messages - sectionHead; entry += 8) {
            const auto message = qFromBigEndian<quint32>(bytes.constData() + entry + 4);
            bytes.replace(messages + message + 1, 4, number(0x80000000));
        }
        return bytes;
    }();
    QTest::newRow("with an empty table of contexts") << wholeCatalogue() + section(0x2f, QByteArray(2, '\0'));
}

void TestCatalogue::theProgramRefusesADamagedCatalogue()
{
    QFETCH(QByteArray, bytes);
    const QTemporaryDir home;
    QFile file(home.filePath(QStringLiteral("damaged.qm")));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    file.close();
    const HostResult result = photographWith(file.fileName(), home);
    QCOMPARE(result.code, 8);
    QVERIFY2(result.errors.contains(QStringLiteral("damaged.qm\" cannot be loaded: it is damaged")),
             qPrintable(result.errors));
}

void TestCatalogue::theProgramRefusesACatalogueOfGigabytes()
{
    const QTemporaryDir home;
    QFile file(home.filePath(QStringLiteral("large.qm")));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(qint64{40} * 1024 * 1024 * 1024)); // takes no room
    file.close();
    const HostResult result = photographWith(file.fileName(), home);
    QCOMPARE(result.code, 8);
    QVERIFY2(result.errors.contains(QStringLiteral("it is larger than 64 MiB")), qPrintable(result.errors));
}

void TestCatalogue::theProgramSaysThatACatalogueHasNoTexts()
{
    const QTemporaryDir home;
    QFile file(home.filePath(QStringLiteral("empty.qm")));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(magic()) == magicSize);
    file.close();
    const HostResult result = photographWith(file.fileName(), home);
    QCOMPARE(result.code, 8);
    QVERIFY2(result.errors.contains(QStringLiteral("empty.qm\" cannot be loaded: it has no texts.")),
             qPrintable(result.errors));
}

// The memory of this process, of which nothing is at its beginning.
void TestCatalogue::aFileThatCannotBeReadIsSaid()
{
    QByteArray bytes;
    const QString why = language::readFile(QStringLiteral("/proc/self/mem"), 1024, bytes);
    QCOMPARE(why, qt_error_string(EIO));
}

void TestCatalogue::namesOfScreensAreNoLanguage()
{
    const QString program = QStringLiteral("kavrecentcalls");
    const QString spanish = QStringLiteral("--language=es");
    QCOMPARE(language::languageFor({program, QStringLiteral("--"), spanish}), language::languageFor({program}));
    QCOMPARE(language::languageFor({program, spanish, QStringLiteral("--")}), QStringLiteral("es"));
}

void TestCatalogue::anotherScriptIsAnotherLanguage()
{
    QCOMPARE(language::suitableLanguage({QStringLiteral("zh_SG")}), QStringLiteral("zh_CN"));
    QCOMPARE(language::suitableLanguage({QStringLiteral("zh_TW"), QStringLiteral("es_MX")}), QStringLiteral("es"));
}

KAV_TEST_GROUP(TestCatalogue, QCoreApplication);
#include "tst_catalogue.moc"
