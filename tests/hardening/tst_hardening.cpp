// What an optimised build carries against errors that are still in it, read from the files that were built.
#include "hardening/ElfFile.h"
#include "support/TestGroup.h"

#include <QtCore/QFileInfo>
#include <QtCore/QObject>
#include <QtTest/QTest>

class TestHardening : public QObject
{
    Q_OBJECT

private slots:
    void addressesAreFinalBeforeTheFirstLineRuns_data() { everyFile(); }
    void addressesAreFinalBeforeTheFirstLineRuns();
    void noNameIsBoundWithinItsLibrary_data() { everyFile(); }
    void noNameIsBoundWithinItsLibrary();
    void theStackHoldsNoCode_data() { everyFile(); }
    void theStackHoldsNoCode();
    void theFileIsLoadedAnywhere_data() { everyFile(); }
    void theFileIsLoadedAnywhere();
    void aBufferOnTheStackIsGuarded_data() { everyFile(); }
    void aBufferOnTheStackIsGuarded();
    void noCopyGoesUncheckedThatCouldBeChecked_data() { everyFile(); }
    void noCopyGoesUncheckedThatCouldBeChecked();
    void everyFunctionIsMarkedAsAPlaceToJumpTo_data() { everyFile(); }
    void everyFunctionIsMarkedAsAPlaceToJumpTo();
    void tracesAreFormattedChecked();
    void containersCheckTheirBounds();

private:
    static QStringList files() { return QStringLiteral(KAV_BUILT_FILES).split(QLatin1Char('|')); }
    static void everyFile();
    static QString fileNamed(const QString &start);
};

void TestHardening::everyFile()
{
    QTest::addColumn<QString>("file");
    const QStringList all = files();
    for (const QString &file : all)
        QTest::newRow(qUtf8Printable(QFileInfo(file).fileName())) << file;
}

QString TestHardening::fileNamed(const QString &start)
{
    const QStringList all = files();
    for (const QString &file : all) {
        if (QFileInfo(file).fileName().startsWith(start))
            return file;
    }
    qFatal("nothing built is named %s", qUtf8Printable(start));
}

void TestHardening::addressesAreFinalBeforeTheFirstLineRuns()
{
    QFETCH(QString, file);
    const ElfFile elf(file);
    QVERIFY(elf.hasSegment(PT_GNU_RELRO));
    QVERIFY2((elf.dynamicValue(DT_FLAGS) & DF_BIND_NOW) || (elf.dynamicValue(DT_FLAGS_1) & DF_1_NOW),
             "functions are looked up at their first call");
}

void TestHardening::noNameIsBoundWithinItsLibrary()
{
    QFETCH(QString, file);
    const ElfFile elf(file);
    QVERIFY(!elf.hasDynamicEntry(DT_SYMBOLIC));
    QVERIFY(!(elf.dynamicValue(DT_FLAGS) & DF_SYMBOLIC));
}

void TestHardening::theStackHoldsNoCode()
{
    QFETCH(QString, file);
    const ElfFile elf(file);
    QVERIFY(elf.hasSegment(PT_GNU_STACK));
    QVERIFY(!(elf.segmentFlags(PT_GNU_STACK) & PF_X));
}

void TestHardening::theFileIsLoadedAnywhere()
{
    QFETCH(QString, file);
    const ElfFile elf(file);
    QCOMPARE(elf.type(), ET_DYN);
    QVERIFY2(!elf.hasDynamicEntry(DT_TEXTREL), "its code is written to when it is loaded");
    if (elf.hasSegment(PT_INTERP))
        QVERIFY2(elf.dynamicValue(DT_FLAGS_1) & DF_1_PIE, "a program with an address of its own");
}

void TestHardening::aBufferOnTheStackIsGuarded()
{
    QFETCH(QString, file);
    if (QFileInfo(file).fileName() == QStringLiteral("kavrecentcalls"))
        QSKIP("it only loads the program and has no buffer");
    QVERIFY(ElfFile(file).wantedNames().contains("__stack_chk_fail"));
}

void TestHardening::noCopyGoesUncheckedThatCouldBeChecked()
{
    QFETCH(QString, file);
    // Those whose checked form takes the place of every call, whatever is known of the buffer.
    static const QList<QByteArray> unchecked{"printf",   "fprintf",  "vprintf",   "vfprintf", "sprintf",
                                             "vsprintf", "snprintf", "vsnprintf", "asprintf", "vasprintf",
                                             "dprintf",  "vdprintf", "longjmp"};
    const QList<QByteArray> wanted = ElfFile(file).wantedNames();
    for (const QByteArray &name : unchecked)
        QVERIFY2(!wanted.contains(name), name.constData());
}

// The processor checks the marks of a file only where a note of its says that all of its code has them. The linker writes
// that note when every object has one, and two of Debian's C library (crti.o, crtn.o, in every file) have none: it cannot
// be had without saying what is not so. Our own code is ready for the day.
void TestHardening::everyFunctionIsMarkedAsAPlaceToJumpTo()
{
#ifdef __x86_64__
    QFETCH(QString, file);
    const QByteArray endbr64("\xf3\x0f\x1e\xfa");
    const QList<ElfFile::Function> functions = ElfFile(file).ownFunctions();
    QVERIFY(!functions.isEmpty());
    for (const ElfFile::Function &function : functions)
        QVERIFY2(function.start.startsWith(endbr64), function.name.constData());
#else
    QSKIP("the mark is known for x86-64 only");
#endif
}

void TestHardening::tracesAreFormattedChecked()
{
    QVERIFY(ElfFile(fileNamed(QStringLiteral("libkavcallmeter"))).wantedNames().contains("__vfprintf_chk"));
}

void TestHardening::containersCheckTheirBounds()
{
    // The library's own report of an index that is out of bounds.
    const QList<QByteArray> wanted = ElfFile(fileNamed(QStringLiteral("libkavhandset"))).wantedNames();
    const bool reports = std::any_of(wanted.begin(), wanted.end(),
                                     [](const QByteArray &name) { return name.contains("glibcxx_assert_fail"); });
    QVERIFY(reports);
}

KAV_TEST_GROUP(TestHardening, NoApplication);
#include "tst_hardening.moc"
