// The plug-in as a shared object: loading, names, what it exports and what it needs.
#include "utility/PHONE_UI_RecentCallTimesView.h"

#include "support/PhoneScreen.h"
#include "support/PhoneTest.h"
#include "support/PluginLibrary.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QMetaMethod>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QSet>

#include <dlfcn.h>
#include <link.h>

namespace {

// Texts that the plug-in has and nothing reads, in the order of their making.
constexpr const char *unreadTexts[] = {"ScreensaverStatus", "ScreenSaverTimeout", "DiaplyTimeout", "DimTimeout",
                                       "DimIntensity"};

// Those of them that were made so far.
QByteArrayList &textsMade()
{
    static QByteArrayList texts;
    return texts;
}

QString builtFile(const char *name)
{
    return QDir::cleanPath(libraryDirectory()) + QLatin1Char('/') + QLatin1String(name);
}

// The standard output of a tool of the build machine, as lines.
QStringList outputOf(const QString &tool, const QStringList &arguments)
{
    QProcess process;
    process.start(tool, arguments);
    if (!process.waitForFinished(60000) || process.exitCode() != 0)
        qFatal("%s failed: %s", qPrintable(tool), process.readAllStandardError().constData());
    return QString::fromUtf8(process.readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

// The names in square brackets of the entries of a kind in the dynamic section.
QStringList dynamicEntries(const QString &file, const char *kind)
{
    QStringList names;
    const QStringList lines = outputOf("readelf", {"-d", "-W", file});
    for (const QString &line : lines) {
        if (line.contains(QLatin1Char('(') + QLatin1String(kind) + QLatin1Char(')')))
            names.append(line.section(QLatin1Char('['), 1).section(QLatin1Char(']'), 0, 0));
    }
    return names;
}

// A line of a library's table of dynamic symbols.
struct Symbol {
    bool isFunction = false;
    bool isDefined = false;
    QString visibility;
    QString name; ///< mangled, without its version
};

QList<Symbol> dynamicSymbols(const QString &file)
{
    static const QRegularExpression columns(
        QStringLiteral("^ *[0-9]+: [0-9a-f]+ +[^ ]+ (\\w+) +\\w+ +(\\w+) +(\\w+) ([^@]+)"));
    QList<Symbol> symbols;
    const QStringList lines = outputOf("readelf", {"--dyn-syms", "-W", file});
    for (const QString &line : lines) {
        const QRegularExpressionMatch match = columns.match(line);
        if (match.hasMatch())
            symbols.append({match.captured(1) == QLatin1String("FUNC"), match.captured(3) != QLatin1String("UND"),
                            match.captured(2), match.captured(4)});
    }
    return symbols;
}

// The demangled names that the dynamic linker looks up for the code of a library, in whatever library has them.
QStringList boundNames(const QString &file)
{
    static const QRegularExpression entry(
        QStringLiteral("(?:JUMP_SL|GLOB_DAT)\\S* +[0-9a-f]+ +(.+?)(?:@\\S+)? \\+ 0$"));
    QStringList names;
    const QStringList lines = outputOf("readelf", {"-r", "-W", "-C", file});
    for (const QString &line : lines) {
        const QRegularExpressionMatch match = entry.match(line);
        if (match.hasMatch())
            names.append(match.captured(1));
    }
    return names;
}

// "caller -> callee" for every call in the code of a library that goes straight to one of `callees`.
QStringList directCalls(const QString &file, const QSet<QString> &callees)
{
    static const QRegularExpression beginning(QStringLiteral("^[0-9a-f]+ <(.+)>:$"));
    static const QRegularExpression call(QStringLiteral("\\t(?:callq?|j[a-z]+|bl?) +[0-9a-f]+ <([^<>+@]+)>$"));
    QStringList calls;
    QString caller;
    const QStringList lines = outputOf("objdump", {"-d", "--no-show-raw-insn", file});
    for (const QString &line : lines) {
        if (const QRegularExpressionMatch function = beginning.match(line); function.hasMatch())
            caller = function.captured(1);
        // A thunk of a virtual function is a part of it.
        const QString callee = call.match(line).captured(1);
        const bool isItself = caller == callee || caller.startsWith(QLatin1String("_ZT"));
        if (!isItself && callees.contains(callee))
            calls.append(caller + QLatin1String(" -> ") + callee);
    }
    return calls;
}

// What the plug-in exports, without what only some compilers and build types write out: inline members of the classes
// that are nested in the plug-in's own, such as destructors of records. They are weak, and a symbol of the plug-in's
// own that is weak is a virtual operation, or a table of one of its classes.
QStringList exportedNames()
{
    QStringList names;
    const QStringList lines = outputOf("nm", {"-D", "-C", "--defined-only", builtFile("libkavcallmeter.so.1")});
    for (const QString &line : lines) {
        const QString kind = line.section(QLatin1Char(' '), 1, 1);
        const QString name = line.section(QLatin1Char(' '), 2);
        const bool isMemberOfNestedClass = name.section(QLatin1Char('('), 0, 0).count(QLatin1String("::")) > 1;
        if (!(kind == QLatin1String("W") && isMemberOfNestedClass))
            names.append(name);
    }
    names.removeDuplicates(); // constructors and destructors come in several kinds of one name
    names.sort();
    return names;
}

// How many entries the table of virtual functions of a class has.
std::size_t entriesOfTable(const char *className)
{
    const QByteArray symbol = QByteArray("_ZTV").append(QByteArray::number(qstrlen(className))).append(className);
    const void *table = reinterpret_cast<const void *>(PluginLibrary().function<void()>(symbol.constData()));
    Dl_info info;
    void *entry = nullptr;
    if (!table || !dladdr1(table, &info, &entry, RTLD_DL_SYMENT) || !entry)
        return 0;
    return static_cast<const ElfW(Sym) *>(entry)->st_size / sizeof(void *);
}

// What a class is to the meta-object system: its signals, then its slots, in the order of their declaration.
struct ClassFacts {
    const char *name;
    const char *base;
    const char *methods;
};
constexpr ClassFacts classes[] = {
    {"PHONE_UI_RecentCallMeter", "QObject", ""},
    {"PHONE_UI_RecentCallTimesView", "ZKbMainWidget",
     "signal closeWidget() slot slotNo() slot slotYes() slot slotSelectedItem(ZSettingItem*)"},
    {"PHONE_UI_RecentCallCostsView", "ZKbMainWidget",
     "signal closeWidget() slot slotOk() slot slotCloseWgt() slot slotSelectedItem(ZSettingItem*)"},
    {"PHONE_UI_RecentCallCostSetupView", "ZKbMainWidget",
     "signal closeWgt() slot slotBack() slot slotSave() slot slotClose() slot slotCancel() slot slotSelect() "
     "slot slotSingleSelect() slot slotSelectedItem(ZSettingItem*)"},
    {"PHONE_UI_RecentCallDataTimesView", "ZKbMainWidget",
     "signal closeWidget() slot slotYes() slot slotClose() slot slotSelectedItem(ZSettingItem*)"},
    {"PHONE_UI_RecentCallDataVolumesView", "ZKbMainWidget",
     "signal closeWidget() slot slotNo() slot slotYes() slot slotCloseWgt() "
     "slot slotSelectedItem(ZSettingItem*) slot slotUpdateChildWidgets(QCString,QByteArray)"},
    {"PHONE_UI_RecentCallDataVolumesDetailView", "ZKbMainWidget",
     "signal closeWgt() slot slotOk() slot slotBack() slot slotSelectedItem(ZSettingItem*)"},
    {"PHONE_ENG_Setup", "QObject",
     "signal flashFull() signal sigSetupOpertionNotAllowed() signal updateCallForwardingFlag() "
     "slot updateCFFlag()"},
};

QString methodsOf(const QMetaObject &meta)
{
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const bool isSignal = meta.method(i).methodType() == QMetaMethod::Signal;
        methods.append(QLatin1String(isSignal ? "signal " : "slot ") +
                       QString::fromLatin1(meta.method(i).methodSignature()));
    }
    return methods.join(QLatin1Char(' '));
}

QStringList without(const QStringList &all, const QStringList &some)
{
    QStringList rest = all;
    rest.removeIf([&](const QString &line) { return some.contains(line); });
    return rest;
}

struct ProbeRun {
    int exitCode = -1;
    QString output;
    QString error;
};

// Runs the probe with `libraryPath` as the linker's search path.
ProbeRun probe(const QStringList &arguments, const QString &libraryPath)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LD_LIBRARY_PATH", libraryPath);
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationDirPath() + "/phone_probe", arguments);
    process.waitForFinished(60000);
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromUtf8(process.readAllStandardOutput()), QString::fromUtf8(process.readAllStandardError())};
}

} // namespace

// Stands for QString::fromLatin1(), and goes on to it.
QString watchedFromLatin1(QByteArrayView text) asm("_ZN7QString10fromLatin1E14QByteArrayView");

QString watchedFromLatin1(QByteArrayView text)
{
    static auto *const original = reinterpret_cast<QString (*)(QByteArrayView)>(
        dlsym(RTLD_NEXT, "_ZN7QString10fromLatin1E14QByteArrayView"));
    for (const char *unread : unreadTexts) {
        if (text == unread)
            textsMade().append(unread);
    }
    return original(text);
}

class TestLibrary : public PhoneTest
{
    Q_OBJECT

private slots:
    // These two come first: those after them leave the library loaded.
    void theTextsThatNothingReadsAreMadeWhenItIsLoaded();
    void theLibraryCanBeUnloadedAndLoadedAgain();
    void theLibraryLoadsByName();
    void exportedNamesAreFound_data();
    void exportedNamesAreFound();
    void otherNamesAreNotFound_data();
    void otherNamesAreNotFound();
    void anotherLibraryNameDoesNotLoad();
    void theLibraryCanBeLoadedTwice();
    void theBareNameIsEnoughWhereTheLinkerLooks();
    void aMissingLibraryIsToldAndNoCrash();

    void theExportedSymbolsAreThoseOfTheList();
    void everyClassHasItsMetaObjectInThePlugin_data();
    void everyClassHasItsMetaObjectInThePlugin();
    void noClassHasAVirtualOperationOfItsOwn_data();
    void noClassHasAVirtualOperationOfItsOwn();
    void everyLibraryHasItsOwnName_data();
    void everyLibraryHasItsOwnName();
    void thePluginNeedsThePhonesLibrariesByTheirNames_data();
    void thePluginNeedsThePhonesLibrariesByTheirNames();
    void thePluginDoesNotNeedTheHandsetBehind();
    void otherLibrariesMayTakeThePlaceOfEverySymbol_data();
    void otherLibrariesMayTakeThePlaceOfEverySymbol();
    void theDynamicLinkerBindsWhatIsCalled_data();
    void theDynamicLinkerBindsWhatIsCalled();
    void callsGoThroughTheDynamicLinker_data();
    void callsGoThroughTheDynamicLinker();
    void anotherTelephonyLibraryTakesThePlaceOfOurs();
};

void TestLibrary::theTextsThatNothingReadsAreMadeWhenItIsLoaded()
{
    QVERIFY(textsMade().isEmpty());
    PluginLibrary plugin;
    QVERIFY2(plugin.isLoaded(), qPrintable(plugin.error()));
    QCOMPARE(textsMade(), QByteArrayList(std::begin(unreadTexts), std::end(unreadTexts)));
    QVERIFY2(plugin.unload(), qPrintable(plugin.error()));
}

// Whether the dynamic linker also takes it out of memory is the linker's business: the engine's library is bound to the
// meta-object that the plug-in provides.
void TestLibrary::theLibraryCanBeUnloadedAndLoadedAgain()
{
    for (int round = 0; round < 20; ++round) {
        PluginLibrary plugin;
        QVERIFY2(plugin.isLoaded(), qPrintable(plugin.error()));
        const auto create =
            plugin.function<PHONE_UI_RecentCallTimesView *(QWidget *, const char *)>("create_callTime");
        const auto destroy = plugin.function<void(PHONE_UI_RecentCallTimesView *)>("destroy_callTime");
        QVERIFY(create && destroy);
        PHONE_UI_RecentCallTimesView *screen = create(nullptr, "callTime");
        QCOMPARE(PhoneScreen::rows(screen).size(), 6);
        destroy(screen);
        QVERIFY2(plugin.unload(), qPrintable(plugin.error()));
        QVERIFY(!plugin.isLoaded());
    }
}

void TestLibrary::theLibraryLoadsByName()
{
    PluginLibrary plugin;
    QVERIFY2(plugin.isLoaded(), qPrintable(plugin.error()));
    QCOMPARE(QFileInfo(plugin.fileName()).fileName(), QString("libkavcallmeter.so.1"));
}

void TestLibrary::exportedNamesAreFound_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name : {"create_callTime", "destroy_callTime", "create_callCost", "destroy_callCost",
                             "create_dataTime", "destroy_dataTime", "create_dataVolume", "destroy_dataVolume"})
        QTest::newRow(name) << QByteArray(name);
}

void TestLibrary::exportedNamesAreFound()
{
    QFETCH(const QByteArray, name);
    PluginLibrary plugin;
    QVERIFY2(plugin.function<void()>(name.constData()), qPrintable(plugin.error()));
}

void TestLibrary::otherNamesAreNotFound_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name : {"create_callTimes", "Create_callTime", "create_calltime", "create_", "newSoftKey",
                             "_Z15create_callTimeP7QWidgetPKc"})
        QTest::newRow(name) << QByteArray(name);
}

void TestLibrary::otherNamesAreNotFound()
{
    QFETCH(const QByteArray, name);
    PluginLibrary plugin;
    QVERIFY(plugin.isLoaded());
    QVERIFY(!plugin.function<void()>(name.constData()));
}

void TestLibrary::anotherLibraryNameDoesNotLoad()
{
    QLibrary library(builtFile("kavcallmetre"), 1);
    QVERIFY(!library.load());
    QVERIFY(!library.errorString().isEmpty());
    QLibrary version(builtFile("kavcallmeter"), 2);
    QVERIFY(!version.load());
}

void TestLibrary::theLibraryCanBeLoadedTwice()
{
    PluginLibrary first;
    PluginLibrary second;
    QVERIFY(first.isLoaded() && second.isLoaded());
    QVERIFY(first.function<void()>("create_callTime") == second.function<void()>("create_callTime"));
}

void TestLibrary::theBareNameIsEnoughWhereTheLinkerLooks()
{
    const ProbeRun run = probe({"rows", "libkavcallmeter.so.1"}, QDir::cleanPath(libraryDirectory()));
    QVERIFY2(run.exitCode == 0, qPrintable(run.error));
    QVERIFY2(run.output.contains("Last Call|01:02:03\n"), qPrintable(run.output));
}

void TestLibrary::aMissingLibraryIsToldAndNoCrash()
{
    const ProbeRun missing = probe({"rows", "libkavcallmetre.so.1"}, QDir::cleanPath(libraryDirectory()));
    QCOMPARE(missing.exitCode, 2);
    QVERIFY2(missing.error.contains("libkavcallmetre.so.1"), qPrintable(missing.error));
    const ProbeRun other = probe({"rows", builtFile("libkavqt.so.1")}, QString());
    QCOMPARE(other.exitCode, 2);
    QVERIFY2(other.error.contains("create_callTime"), qPrintable(other.error));
}

void TestLibrary::theExportedSymbolsAreThoseOfTheList()
{
    QFile file(QStringLiteral(KAV_EXPORTED_SYMBOLS));
    QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.fileName()));
    QStringList listed = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    listed.removeIf([](const QString &line) { return line.startsWith(QLatin1Char('#')); });
    QStringList sorted = listed;
    sorted.sort();
    COMPARE_LINES(listed, sorted);
    const QStringList exported = exportedNames();
    const QStringList unlisted = without(exported, listed);
    const QStringList missing = without(listed, exported);
    if (!unlisted.isEmpty())
        qInfo("exported but not in the list:\n%s", qPrintable(unlisted.join('\n')));
    if (!missing.isEmpty())
        qInfo("in the list but not exported:\n%s", qPrintable(missing.join('\n')));
    QVERIFY(unlisted.isEmpty() && missing.isEmpty());
}

void TestLibrary::everyClassHasItsMetaObjectInThePlugin_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < int(std::size(classes)); ++i)
        QTest::newRow(classes[i].name) << i;
}

void TestLibrary::everyClassHasItsMetaObjectInThePlugin()
{
    QFETCH(const int, index);
    const ClassFacts &facts = classes[index];
    PluginLibrary plugin;
    const QByteArray symbol = QByteArray("_ZN")
                                  .append(QByteArray::number(qstrlen(facts.name)))
                                  .append(facts.name)
                                  .append("16staticMetaObjectE");
    const auto *meta = reinterpret_cast<const QMetaObject *>(plugin.function<void()>(symbol.constData()));
    QVERIFY2(meta, qPrintable(plugin.error()));
    // The engine's library has a meta-object of this name as well.
    Dl_info info;
    QVERIFY(dladdr(meta, &info));
    QCOMPARE(QFileInfo(QString::fromLocal8Bit(info.dli_fname)).canonicalFilePath(),
             QFileInfo(builtFile("libkavcallmeter.so.1")).canonicalFilePath());
    QCOMPARE(meta->className(), facts.name);
    QCOMPARE(meta->superClass()->className(), facts.base);
    QCOMPARE(methodsOf(*meta), QString::fromLatin1(facts.methods));
}

void TestLibrary::noClassHasAVirtualOperationOfItsOwn_data()
{
    everyClassHasItsMetaObjectInThePlugin_data();
}

void TestLibrary::noClassHasAVirtualOperationOfItsOwn()
{
    QFETCH(const int, index);
    const ClassFacts &facts = classes[index];
    const std::size_t entries = entriesOfTable(facts.base);
    QVERIFY(entries > 0);
    // Qt's objects have no className(), the toolkit's screens have one already.
    const std::size_t own = qstrcmp(facts.base, "QObject") == 0 ? 1 : 0;
    QCOMPARE(entriesOfTable(facts.name), entries + own);
}

void TestLibrary::everyLibraryHasItsOwnName_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name :
         {"libkavcallmeter.so.1", "libkavappbase.so.1", "libkavtapi-xscale-r.so", "libkavphone.so.1",
          "libaplog.so.1.0.0", "libkavcallsetupengine.so.1", "libkavsecuritysetup.so.1"})
        QTest::newRow(name) << QString(name);
}

void TestLibrary::everyLibraryHasItsOwnName()
{
    QFETCH(const QString, name);
    COMPARE_LINES(dynamicEntries(builtFile(name.toLatin1()), "SONAME"), QStringList(name));
}

void TestLibrary::thePluginNeedsThePhonesLibrariesByTheirNames_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"libkavappbase.so.1", "libkavtapi-xscale-r.so", "libkavphone.so.1",
                             "libaplog.so.1.0.0", "libkavcallsetupengine.so.1", "libkavsecuritysetup.so.1"})
        QTest::newRow(name) << QString(name);
}

void TestLibrary::thePluginNeedsThePhonesLibrariesByTheirNames()
{
    QFETCH(const QString, name);
    const QStringList needed = dynamicEntries(builtFile("libkavcallmeter.so.1"), "NEEDED");
    QVERIFY2(needed.contains(name), qPrintable(needed.join('\n')));
}

void TestLibrary::thePluginDoesNotNeedTheHandsetBehind()
{
    const QStringList needed = dynamicEntries(builtFile("libkavcallmeter.so.1"), "NEEDED");
    QCOMPARE(needed.filter("handset"), QStringList());
    QCOMPARE(needed.filter("Sql"), QStringList());
}

void TestLibrary::otherLibrariesMayTakeThePlaceOfEverySymbol_data()
{
    everyLibraryHasItsOwnName_data();
}

void TestLibrary::otherLibrariesMayTakeThePlaceOfEverySymbol()
{
    QFETCH(const QString, name);
    const QString file = builtFile(name.toLatin1());
    const QStringList lines = outputOf("readelf", {"-d", "-W", file});
    QVERIFY(!lines.filter("(SONAME)").isEmpty());
    QCOMPARE(lines.filter("SYMBOLIC"), QStringList());
    int defined = 0;
    for (const Symbol &symbol : dynamicSymbols(file)) {
        if (!symbol.isDefined)
            continue;
        ++defined;
        QVERIFY2(symbol.visibility == QLatin1String("DEFAULT"),
                 qPrintable(symbol.name + QLatin1String(" is ") + symbol.visibility));
    }
    QVERIFY(defined > 0);
}

// Of each library something of its own, and of the plug-in something of each of the phone's libraries.
void TestLibrary::theDynamicLinkerBindsWhatIsCalled_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::newRow("libkavcallmeter.so.1") << QStringList{"PHONE_UI_RecentCallTimesView::getItemValue(int)",
                                                         "PHONE_UI_RecentCallMeter::getLastCallTimes()",
                                                         "PHONE_UI_RecentCallMeter::PHONE_UI_RecentCallMeter()",
                                                         "ZListBox::currentItem() const",
                                                         "TAPI_CS_GetTotalCallTime",
                                                         "UTIL_GetTotalDuration",
                                                         "PHONE_MsgClient::resetTotalDuration(bool)",
                                                         "PHONE_ENG_Setup::getChargeType(unsigned char&)",
                                                         "PHONE_ENG_Setup::staticMetaObject",
                                                         "libaplog_to_module_ptr"};
    QTest::newRow("libkavappbase.so.1") << QStringList{"ZListModel::rowChanged(int)", "ZListBox::staticMetaObject",
                                                       "ZKbMainWidget::clearKeyClicked()"};
    QTest::newRow("libkavtapi-xscale-r.so") << QStringList{"handset::current()"};
    QTest::newRow("libkavphone.so.1") << QStringList{"PHONE_MsgClient::staticMetaObject", "handset::current()"};
    QTest::newRow("libaplog.so.1.0.0") << QStringList{"libaplog_to_module_ptr"};
    QTest::newRow("libkavcallsetupengine.so.1")
        << QStringList{"PHONE_ENG_Setup::staticMetaObject", "handset::current()"};
    QTest::newRow("libkavsecuritysetup.so.1")
        << QStringList{"PinEntryDlg::prepare(QString const&, QString const&)", "handset::current()"};
}

void TestLibrary::theDynamicLinkerBindsWhatIsCalled()
{
    QFETCH(const QStringList, names);
    const QStringList bound = boundNames(builtFile(QTest::currentDataTag()));
    QCOMPARE(without(names, bound), QStringList());
}

void TestLibrary::callsGoThroughTheDynamicLinker_data()
{
    everyLibraryHasItsOwnName_data();
}

void TestLibrary::callsGoThroughTheDynamicLinker()
{
    QFETCH(const QString, name);
    const QString file = builtFile(name.toLatin1());
    QSet<QString> exported;
    for (const Symbol &symbol : dynamicSymbols(file)) {
        if (symbol.isDefined && symbol.isFunction)
            exported.insert(symbol.name);
    }
    QVERIFY(!exported.isEmpty());
    COMPARE_LINES(directCalls(file, exported), QStringList());
}

void TestLibrary::anotherTelephonyLibraryTakesThePlaceOfOurs()
{
    const QString doubles = QCoreApplication::applicationDirPath() + "/doubles";
    QVERIFY(QFile::exists(doubles + "/libkavtapi-xscale-r.so"));
    const ProbeRun run = probe({"rows"}, doubles);
    QVERIFY2(run.exitCode == 0, qPrintable(run.error));
    COMPARE_LINES(
        run.output.trimmed().split('\n'),
        QStringList({"title: Call Times", "Last Call|42:42:42", "Dialed Calls|42:42:42", "Answered Calls|42:42:42",
                     "Data Calls|00:00:42", "All Calls|42:42:42", "Lifetime Calls|42:42:42", "softkeys: |Back"}));
}

KAV_TEST_GROUP(TestLibrary, QApplication);
#include "tst_library.moc"
