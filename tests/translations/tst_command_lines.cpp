// What the programs say in a shell, in the user's language.
#include "support/TestGroup.h"
#include "translations/Texts.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QProcess>
#include <QtCore/QProcessEnvironment>
#include <QtCore/QRegularExpression>
#include <QtCore/QSet>
#include <QtTest/QTest>

#include <algorithm>

namespace {

struct Program {
    const char *name;
    const char *file;
    const char *described; // the first words of its description, in English
};

constexpr Program programs[] = {
    {"kavrecentcalls", KAV_HOST_PROGRAM, "Shows the call meters of the phone"},
    {"kavmeter", KAV_METER, "Shows the meters of the phone"},
    {"kavcallrecorder", KAV_RECORDER, "Records the calls"},
};

// What a translator has written in `context`; the English itself for "en".
QString inLanguage(const QString &language, const char *context, const QString &beginning)
{
    const QList<TranslatedText> texts =
        readTexts(sourceOf(language == u"en" ? QStringLiteral("template") : language));
    const auto isIt = [&](const TranslatedText &text) {
        return text.context == QLatin1StringView(context) && text.source.startsWith(beginning);
    };
    const auto found = std::find_if(texts.begin(), texts.end(), isIt);
    if (found == texts.end())
        return {};
    return language == u"en" ? found->source : found->translation;
}

struct Said {
    int code = -1;
    QString output;
    QString errors;
};

// By the locale. The state is nowhere, so that what is not refused ends all the same.
Said say(const Program &program, const QString &language, const QStringList &arguments)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    environment.insert(QStringLiteral("LANGUAGE"), language);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QString::fromLatin1(program.file), arguments);
    if (!process.waitForFinished(60'000))
        return {-1, {}, process.errorString()};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

} // namespace

class TestCommandLines : public QObject
{
    Q_OBJECT

private slots:
    void helpIsInTheLanguageOfTheLocale_data() { programsInLanguages(); }
    void helpIsInTheLanguageOfTheLocale();
    void aMistakeIsToldInTheLanguageOfTheLocale_data() { programsInLanguages(); }
    void aMistakeIsToldInTheLanguageOfTheLocale();
    void theOptionComesBeforeTheLocale_data();
    void theOptionComesBeforeTheLocale();

private:
    void programsInLanguages();
};

void TestCommandLines::programsInLanguages()
{
    QTest::addColumn<int>("program");
    QTest::addColumn<QString>("language");
    for (int program = 0; program < static_cast<int>(std::size(programs)); ++program)
        for (const char *language : {"en", "de", "ar"})
            QTest::addRow("%s, %s", programs[program].name, language) << program << QString::fromLatin1(language);
}

void TestCommandLines::helpIsInTheLanguageOfTheLocale()
{
    QFETCH(int, program);
    QFETCH(QString, language);
    const Program &asked = programs[program];
    const Said said = say(asked, language, {QStringLiteral("--help")});
    QCOMPARE(said.code, 0);
    QCOMPARE(said.errors, QString());
    const QStringList wanted{
        inLanguage(language, "QCommandLineParser", QStringLiteral("Options:")),
        inLanguage(language, "QCommandLineParser", QStringLiteral("Displays version")),
        inLanguage(language, asked.name, QString::fromLatin1(asked.described)).section(u'\n', 0, 0),
        inLanguage(language, asked.name, QStringLiteral("\nExit codes:")),
    };
    for (const QString &text : wanted)
        QVERIFY2(!text.isEmpty() && said.output.contains(text), qPrintable(text + u'\n' + said.output));
    // What each option does begins in one column.
    static const QRegularExpression option(QStringLiteral("^  -(?:-\\S+|\\w, \\S+)(?: <[^>]+>)?  +(?=\\S)"));
    QSet<qsizetype> columns;
    const QStringList lines = said.output.split(u'\n').filter(QRegularExpression(QStringLiteral("^  -")));
    QVERIFY(lines.size() > 4);
    for (const QString &line : lines)
        columns << option.match(line).capturedLength();
    QVERIFY2(columns.size() == 1 && !columns.contains(0), qPrintable(said.output));
}

void TestCommandLines::aMistakeIsToldInTheLanguageOfTheLocale()
{
    QFETCH(int, program);
    QFETCH(QString, language);
    const Program &asked = programs[program];
    const Said said = say(asked, language, {QStringLiteral("--nonsense")});
    QCOMPARE(said.code, 2);
    const QString mistake =
        inLanguage(language, "QCommandLineParser", QStringLiteral("Unknown option '")).arg(u"nonsense");
    const QString hint = inLanguage(language, asked.name, QStringLiteral("See "));
    QCOMPARE(said.errors, QStringLiteral("%1: %2 %3\n").arg(QLatin1StringView(asked.name), mistake, hint));
}

void TestCommandLines::theOptionComesBeforeTheLocale_data()
{
    QTest::addColumn<int>("program");
    QTest::newRow("kavrecentcalls") << 0;
    QTest::newRow("kavmeter") << 1;
}

void TestCommandLines::theOptionComesBeforeTheLocale()
{
    QFETCH(int, program);
    const QString polish = inLanguage(QStringLiteral("pl"), "QCommandLineParser", QStringLiteral("Options:"));
    for (const QStringList &option : {QStringList{"--language", "pl"}, QStringList{"--language=pl"}}) {
        const Said said =
            say(programs[program], QStringLiteral("de"), option + QStringList{QStringLiteral("--help")});
        QVERIFY2(said.output.contains(polish), qPrintable(said.output));
    }
    const Said unknown = say(programs[program], QStringLiteral("de"), {"--language", "tlh"});
    QCOMPARE(unknown.code, 2);
    const QString mistake =
        inLanguage(QStringLiteral("de"), programs[program].name, QStringLiteral("Unknown language"));
    QVERIFY2(unknown.errors.contains(mistake.section(QStringLiteral("%1"), 0, 0) + QStringLiteral("tlh")),
             qPrintable(unknown.errors));
}

KAV_TEST_GROUP(TestCommandLines, QCoreApplication);
#include "tst_command_lines.moc"
