// Who may include whom: the rules as a table, and every source file held against them.
#include "support/PhoneTest.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QMap>
#include <QtCore/QRegularExpression>
#include <QtCore/QSet>

namespace {

// Folders, separated by blanks. One that ends with "/" stands for all below it too.
struct Rule {
    const char *folder; ///< and all below it that has no rule of its own; may be a single file
    const char *mayInclude;
    const char *because;
};
constexpr Rule rules[] = {
    {"utility/",
     "utility/ platform/qt platform/log platform/toolkit platform/telephony platform/callsetup platform/message "
     "platform/security",
     "the plug-in knows the phone's libraries, never the telephone behind them"},
    {"platform/log/", "platform/log", "the log is a leaf"},
    {"platform/language/", "platform/language", "languages know no telephone"},
    {"platform/process/", "platform/process", "processes know no telephone"},
    {"recorder/", "recorder/ platform/language platform/process platform/handset",
     "the recorder is a handset without a window"},
    {"meter/",
     "meter/ platform/handset platform/handset/calllog platform/handset/charging platform/language "
     "platform/process "
     "platform/qt",
     "the meters are a handset and a ledger without a window"},
    {"translations/", "translations/", "the build's compiler of catalogues knows the format of those alone"},
    {"platform/qt/", "platform/qt/", "names over the installed Qt, nothing of the phone"},
    {"platform/toolkit/", "platform/toolkit/ platform/qt", "widgets know no telephony"},
    {"platform/telephony/", "platform/telephony/ platform/handset", "a shim over the telephone's interfaces"},
    {"platform/callsetup/", "platform/callsetup/ platform/handset platform/qt", "a shim, and a Qt object"},
    {"platform/message/", "platform/message/ platform/handset platform/qt", "a shim, and a Qt object"},
    {"platform/security/", "platform/security/ platform/handset platform/qt platform/toolkit",
     "a shim that asks the user for a PIN"},
    {"platform/handset/", "platform/handset", "interfaces know no backend"},
    {"platform/handset/Handset.cpp", "platform/handset platform/handset/calllog platform/handset/simulated",
     "the factory alone knows the backend that is built in, and makes the state directory for each"},
    {"platform/handset/UpdateBroadcast.cpp", "platform/handset platform/qt",
     "the broadcast is a message on a channel; nothing else of the telephone knows channels"},
    {"platform/handset/charging/", "platform/handset/charging platform/handset",
     "charging is arithmetic on values"},
    {"platform/handset/calllog/", "platform/handset/calllog/ platform/handset/charging platform/handset",
     "the ledger knows no backend"},
    {"platform/handset/simulated/",
     "platform/handset/simulated/ platform/handset/calllog platform/handset/charging platform/handset",
     "a backend knows no other"},
    {"platform/handset/live/",
     "platform/handset/live platform/handset/calllog platform/handset/charging platform/handset "
     "platform/qt/qcop",
     "what the live handsets share knows none of them, and asks whether a bus answers before Qt waits for it"},
    {"platform/handset/modemmanager/",
     "platform/handset/modemmanager/ platform/handset/live platform/handset/calllog platform/handset/charging "
     "platform/handset",
     "a backend knows no other"},
    {"platform/handset/ofono/",
     "platform/handset/ofono/ platform/handset/live platform/handset/calllog platform/handset/charging "
     "platform/handset",
     "a backend knows no other"},
    {"host/",
     "host/ platform/handset platform/handset/simulated platform/handset/charging platform/toolkit platform/qt "
     "platform/language platform/log platform/process "
     "platform/telephony platform/callsetup platform/message platform/security",
     "the host reaches the plug-in by its exported names only"},
    {"examples/", "examples/ platform/toolkit platform/telephony platform/handset",
     "what others build has the headers that are installed"},
    {"bench/", "bench/ host/ utility/ platform/", "a benchmark is no test"},
    {"tests/", "tests/ bench/ host/ utility/ platform/", "tests see everything"},
};

// Modules of Qt that only some may use.
struct ModuleRule {
    const char *module;
    const char *headers; // how its headers begin where the module is not named
    const char *users;
    const char *because;
};
constexpr ModuleRule moduleRules[] = {
    {"QtSql", "QSql", "tests/ bench/", "the call log is the one database, and speaks SQLite itself"},
    {"QtDBus", "QDBus",
     "platform/handset/live platform/handset/modemmanager/ platform/handset/ofono/ tests/ bench/",
     "the live handsets"},
    {"dbus", "dbus/", "platform/qt/qcop bench/ tests/fuzz", "channels, and what they are measured against"},
    {"QtTest", "QTest", "tests/", "product code has no tests in it"},
};

// Path from the root of the project, and what stands in the file.
using Tree = QMap<QString, QString>;

QString folderOf(const QString &file)
{
    return file.section(QLatin1Char('/'), 0, -2);
}

bool isIn(const QString &folder, const QString &place)
{
    return place.endsWith(QLatin1Char('/')) ? (folder + QLatin1Char('/')).startsWith(place) : folder == place;
}

bool isInAny(const QString &folder, const char *places)
{
    const QStringList list = QString::fromLatin1(places).split(QLatin1Char(' '));
    return std::any_of(list.begin(), list.end(), [&](const QString &place) { return isIn(folder, place); });
}

const Rule *ruleFor(const QString &file)
{
    const Rule *best = nullptr;
    for (const Rule &rule : rules) {
        const QString place = QLatin1String(rule.folder);
        const bool applies = file == place || (place.endsWith(QLatin1Char('/')) && isIn(folderOf(file), place));
        if (applies && (!best || qstrlen(rule.folder) > qstrlen(best->folder)))
            best = &rule;
    }
    return best;
}

QStringList includesOf(const QString &content)
{
    static const QRegularExpression include(QStringLiteral("^\\s*#\\s*include\\s*[<\"]([^>\"]+)[>\"]"),
                                            QRegularExpression::MultilineOption);
    QStringList names;
    for (const auto &match : include.globalMatch(content))
        names.append(match.captured(1));
    return names;
}

// Where the compiler looks for `name`, as the project's CMakeLists.txt say, and in the folder of `file`. Empty for what is
// not the project's; the compiler takes the first.
QStringList places(const Tree &tree, const QString &file, const QString &name)
{
    QStringList found{QDir::cleanPath(folderOf(file) + QLatin1Char('/') + name)};
    for (const char *root : {"", "platform/", "platform/handset/", "tests/", "tests/platform/"})
        found.append(QLatin1String(root) + name);
    found.removeIf([&](const QString &place) { return !tree.contains(place); });
    found.removeDuplicates();
    return found;
}

QString resolved(const Tree &tree, const QString &file, const QString &name)
{
    return places(tree, file, name).value(0);
}

QStringList moduleViolations(const QString &file, const QString &name)
{
    QStringList violations;
    for (const ModuleRule &rule : moduleRules) {
        const bool isOfModule = name.section(QLatin1Char('/'), 0, 0) == QLatin1String(rule.module) ||
                                name.startsWith(QLatin1String(rule.headers));
        if (isOfModule && !isInAny(folderOf(file), rule.users))
            violations.append(QStringLiteral("%1 includes <%2>: %3").arg(file, name, QLatin1String(rule.because)));
    }
    return violations;
}

QStringList violationsOf(const Tree &tree, const QString &file)
{
    const Rule *rule = ruleFor(file);
    if (!rule)
        return {QStringLiteral("%1: no rule says what it may include").arg(file)};
    QStringList violations;
    const QStringList names = includesOf(tree.value(file));
    for (const QString &name : names) {
        violations += moduleViolations(file, name);
        const QString target = resolved(tree, file, name);
        if (places(tree, file, name).size() > 1)
            violations.append(QStringLiteral("%1 includes \"%2\", which is more than one file").arg(file, name));
        if (!target.isNull() && !name.contains(QLatin1Char('/')))
            violations.append(QStringLiteral("%1 includes \"%2\" without its folder").arg(file, name));
        if (!target.isNull() && folderOf(target) != folderOf(file) && !isInAny(folderOf(target), rule->mayInclude))
            violations.append(
                QStringLiteral("%1 includes %2: %3").arg(file, target, QLatin1String(rule->because)));
    }
    return violations;
}

// Through what the plug-in includes it must not reach the handset either.
QStringList pluginReaches(const Tree &tree, const char *place)
{
    QStringList ways;
    QStringList open;
    QSet<QString> seen;
    for (auto it = tree.keyBegin(); it != tree.keyEnd(); ++it) {
        if (it->startsWith(QLatin1String("utility/")))
            open.append(*it);
    }
    while (!open.isEmpty()) {
        const QString file = open.takeFirst();
        const QStringList names = includesOf(tree.value(file));
        for (const QString &name : names) {
            const QString target = resolved(tree, file, name);
            if (target.isNull() || seen.contains(target))
                continue;
            seen.insert(target);
            open.append(target);
            if (target.startsWith(QLatin1String(place)))
                ways.append(QStringLiteral("utility reaches %1 through %2").arg(target, file));
        }
    }
    return ways;
}

QStringList allViolations(const Tree &tree)
{
    QStringList violations = pluginReaches(tree, "platform/handset/");
    for (auto it = tree.keyBegin(); it != tree.keyEnd(); ++it)
        violations += violationsOf(tree, *it);
    violations.sort();
    return violations;
}

bool isGenerated(const QString &folder)
{
    return QFile::exists(folder + QLatin1String("/CMakeCache.txt"));
}

void readInto(Tree &tree, const QDir &root, const QString &folder)
{
    const QDir here(root.filePath(folder));
    const QFileInfoList entries = here.entryInfoList({"*.h", "*.cpp", "*.cc", "*.hpp"}, QDir::Files);
    for (const QFileInfo &entry : entries) {
        QFile file(entry.filePath());
        if (file.open(QIODevice::ReadOnly))
            tree.insert(root.relativeFilePath(entry.filePath()), QString::fromUtf8(file.readAll()));
    }
    const QFileInfoList folders = here.entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QFileInfo &entry : folders) {
        if (!isGenerated(entry.filePath()) && entry.fileName() != QLatin1String("build"))
            readInto(tree, root, root.relativeFilePath(entry.filePath()));
    }
}

// A small project that keeps every rule.
Tree soundTree()
{
    return {
        {"utility/Screen.h", "#include \"toolkit/ZListBox.h\"\n"},
        {"utility/Screen.cpp",
         "#include \"utility/Screen.h\"\n#include \"telephony/tapi.h\"\n#include <QtCore/QString>\n"},
        {"platform/qt/classname.h", ""},
        {"platform/qt/qcop/Bus.cpp", "#include <dbus/dbus.h>\n"},
        {"platform/log/aplog.h", ""},
        {"platform/toolkit/ZListBox.h", "#include \"qt/classname.h\"\n"},
        {"platform/telephony/tapi.h", ""},
        {"platform/telephony/tapi.cpp", "#include \"telephony/tapi.h\"\n#include \"handset/Handset.h\"\n"},
        {"platform/handset/Handset.h", ""},
        {"platform/handset/Handset.cpp", "#include \"handset/Handset.h\"\n#include \"simulated/Simulated.h\"\n"},
        {"platform/handset/UpdateBroadcast.cpp", "#include \"handset/Handset.h\"\n#include \"qt/classname.h\"\n"},
        {"platform/handset/calllog/Store.h", ""},
        {"platform/handset/simulated/Simulated.h",
         "#include \"calllog/Store.h\"\n#include \"handset/Handset.h\"\n"},
        {"platform/handset/ofono/Ofono.h", "#include \"handset/Handset.h\"\n"},
        {"host/Window.cpp", "#include \"toolkit/ZListBox.h\"\n#include \"simulated/Simulated.h\"\n"},
        {"bench/Bench.cpp", "#include \"utility/Screen.h\"\n"},
        {"tests/support/Fixture.h", "#include \"handset/Handset.h\"\n"},
        {"tests/utility/tst.cpp",
         "#include \"support/Fixture.h\"\n#include \"utility/Screen.h\"\n#include <QtTest/QTest>\n"},
    };
}

} // namespace

class TestIncludes : public PhoneTest
{
    Q_OBJECT

private slots:
    void everyFileKeepsTheRules();
    void everyPartOfTheProjectIsLookedAt();
    void aSoundProjectHasNoViolation();
    void aViolationIsFound_data();
    void aViolationIsFound();
};

void TestIncludes::everyFileKeepsTheRules()
{
    Tree tree;
    readInto(tree, QDir(QStringLiteral(KAV_SOURCE_DIR)), QString());
    COMPARE_LINES(allViolations(tree), QStringList());
}

void TestIncludes::everyPartOfTheProjectIsLookedAt()
{
    Tree tree;
    readInto(tree, QDir(QStringLiteral(KAV_SOURCE_DIR)), QString());
    for (const char *file : {"utility/PHONE_UI_RecentCallMeter.cpp", "platform/handset/Handset.cpp",
                             "platform/toolkit/ZListBox.cpp", "tests/utility/tst_includes.cpp"})
        QVERIFY2(tree.contains(QLatin1String(file)), file);
    QCOMPARE(resolved(tree, "utility/PHONE_UI_RecentCallMeter.cpp", "telephony/tapi.h"),
             QString("platform/telephony/tapi.h"));
    QCOMPARE(resolved(tree, "utility/PHONE_UI_RecentCallMeter.cpp", "QtCore/QString"), QString());
}

void TestIncludes::aSoundProjectHasNoViolation()
{
    COMPARE_LINES(allViolations(soundTree()), QStringList());
}

void TestIncludes::aViolationIsFound_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("violation"); // the beginning of it
    const auto row = [](const char *name, const char *file, const char *content, const char *violation) {
        QTest::newRow(name) << QString(file) << QString(content) << QString(violation);
    };
    row("the plug-in includes the telephone", "utility/New.cpp", "#include \"handset/Handset.h\"\n",
        "utility/New.cpp includes platform/handset/Handset.h");
    row("in angle brackets", "utility/New.cpp", "#include <handset/Handset.h>\n",
        "utility/New.cpp includes platform/handset/Handset.h");
    row("with blanks", "utility/New.cpp", "  #  include   \"handset/Handset.h\"\n",
        "utility/New.cpp includes platform/handset/Handset.h");
    row("without the folder", "platform/telephony/New.cpp", "#include \"tapi.h\"\n",
        "platform/telephony/New.cpp includes \"tapi.h\" without its folder");
    row("one of two files", "tests/platform/handset/Handset.h", "#include \"handset/Handset.h\"\n",
        "tests/support/Fixture.h includes \"handset/Handset.h\", which is more than one file");
    row("by a path", "utility/New.cpp", "#include \"../platform/handset/Handset.h\"\n",
        "utility/New.cpp includes platform/handset/Handset.h");
    row("the plug-in reaches the telephone through a shim", "platform/telephony/tapi.h",
        "#include \"handset/Handset.h\"\n",
        "utility reaches platform/handset/Handset.h through platform/telephony/tapi.h");
    row("the plug-in includes a test", "utility/New.cpp", "#include \"support/Fixture.h\"\n",
        "utility/New.cpp includes tests/support/Fixture.h");
    row("the toolkit includes telephony", "platform/toolkit/New.h", "#include \"telephony/tapi.h\"\n",
        "platform/toolkit/New.h includes platform/telephony/tapi.h");
    row("the log includes anything", "platform/log/New.h", "#include \"qt/classname.h\"\n",
        "platform/log/New.h includes platform/qt/classname.h");
    row("the Qt names include the toolkit", "platform/qt/New.h", "#include \"toolkit/ZListBox.h\"\n",
        "platform/qt/New.h includes platform/toolkit/ZListBox.h");
    row("a shim includes a backend", "platform/telephony/New.cpp", "#include \"simulated/Simulated.h\"\n",
        "platform/telephony/New.cpp includes platform/handset/simulated/Simulated.h");
    row("a shim asks a database", "platform/telephony/New.cpp", "#include <QtSql/QSqlQuery>\n",
        "platform/telephony/New.cpp includes <QtSql/QSqlQuery>");
    row("a shim speaks D-Bus", "platform/message/New.cpp", "#include <QtDBus/QDBusConnection>\n",
        "platform/message/New.cpp includes <QtDBus/QDBusConnection>");
    row("a shim speaks D-Bus without Qt", "platform/message/New.cpp", "#include <dbus/dbus.h>\n",
        "platform/message/New.cpp includes <dbus/dbus.h>");
    row("a channel speaks D-Bus through Qt", "platform/qt/qcop/New.cpp", "#include <QtDBus/QDBusConnection>\n",
        "platform/qt/qcop/New.cpp includes <QtDBus/QDBusConnection>");
    row("a shim asks a database without naming the module", "platform/telephony/New.cpp", "#include <QSqlQuery>\n",
        "platform/telephony/New.cpp includes <QSqlQuery>");
    row("a shim speaks D-Bus without naming the module", "platform/message/New.cpp",
        "#include <QDBusConnection>\n", "platform/message/New.cpp includes <QDBusConnection>");
    row("an interface includes a backend", "platform/handset/New.h", "#include \"simulated/Simulated.h\"\n",
        "platform/handset/New.h includes platform/handset/simulated/Simulated.h");
    row("an interface knows channels", "platform/handset/New.cpp", "#include \"qt/classname.h\"\n",
        "platform/handset/New.cpp includes platform/qt/classname.h");
    row("a backend knows channels", "platform/handset/simulated/New.cpp", "#include \"qt/classname.h\"\n",
        "platform/handset/simulated/New.cpp includes platform/qt/classname.h");
    row("the broadcast includes a backend", "platform/handset/UpdateBroadcast.cpp",
        "#include \"simulated/Simulated.h\"\n",
        "platform/handset/UpdateBroadcast.cpp includes platform/handset/simulated/Simulated.h");
    row("a backend includes the other", "platform/handset/simulated/New.cpp", "#include \"ofono/Ofono.h\"\n",
        "platform/handset/simulated/New.cpp includes platform/handset/ofono/Ofono.h");
    row("the call log includes a backend", "platform/handset/calllog/New.cpp",
        "#include \"simulated/Simulated.h\"\n",
        "platform/handset/calllog/New.cpp includes platform/handset/simulated/Simulated.h");
    row("charging asks the ledger", "platform/handset/charging/New.cpp", "#include \"calllog/Store.h\"\n",
        "platform/handset/charging/New.cpp includes platform/handset/calllog/Store.h");
    row("the host includes the plug-in", "host/New.cpp", "#include \"utility/Screen.h\"\n",
        "host/New.cpp includes utility/Screen.h");
    row("the host includes the store of a backend", "host/New.cpp", "#include \"calllog/Store.h\"\n",
        "host/New.cpp includes platform/handset/calllog/Store.h");
    row("the host includes a test", "host/New.cpp", "#include \"support/Fixture.h\"\n",
        "host/New.cpp includes tests/support/Fixture.h");
    row("product code is a test", "host/New.cpp", "#include <QtTest/QTest>\n",
        "host/New.cpp includes <QtTest/QTest>");
    row("a folder without a rule", "packaging/New.cpp", "", "packaging/New.cpp: no rule");
}

void TestIncludes::aViolationIsFound()
{
    QFETCH(const QString, file);
    QFETCH(const QString, content);
    QFETCH(const QString, violation);
    Tree tree = soundTree();
    tree.insert(file, content);
    const QStringList found = allViolations(tree);
    QVERIFY2(!found.filter(violation).isEmpty(), qPrintable("found only: " + found.join('\n')));
}

KAV_TEST_GROUP(TestIncludes, QApplication);
#include "tst_includes.moc"
