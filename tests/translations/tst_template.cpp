// The template is made from the sources as they stand; here the phone says what it asks for when it runs.
#include "host/Options.h"
#include "host/ScreenLibrary.h"
#include "host/tour/TourPlayer.h"
#include "language/Languages.h"
#include "support/RecordingTranslator.h"
#include "support/TestGroup.h"
#include "translations/Texts.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QSet>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTextStream>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>

namespace {

// Lines of a tour's transcript that say what a person reads.
QStringList shownTexts(const QString &transcript)
{
    static const QRegularExpression fact(
        QStringLiteral("^  (?:title|header|message|softkeys|(?:row|label|separator) \\d+) (.*)$"));
    QStringList texts;
    for (const QString &line : transcript.split(u'\n')) {
        const QRegularExpressionMatch match = fact.match(line);
        if (match.hasMatch())
            texts << match.captured(1).split(QStringLiteral(" | "));
    }
    return texts;
}

// Figures, codes and the names of access points are nobody's language. The setup's row of the currency says the code
// "units", as it is kept.
bool hasEnglish(const QString &text)
{
    static const QRegularExpression word(QStringLiteral("[A-Z]?[a-z]{2,}"));
    static const QRegularExpression accessPoint(
        QStringLiteral("^(internet|mms|wap\\.example|a\\.very\\.long\\..*|units)$"));
    return !text.contains(u'~') && text.contains(word) && !text.contains(accessPoint);
}

} // namespace

class TestTemplate : public QObject
{
    Q_OBJECT

private slots:
    void everyTextThatATourOfThePhoneAsksForIsInTheTemplate();
    void theTourIsPhotographedInALanguageOfLongTextsOfWhichNoneIsEnglish();
};

void TestTemplate::everyTextThatATourOfThePhoneAsksForIsInTheTemplate()
{
    QSet<QString> known;
    for (const TranslatedText &text : readTexts(sourceOf(QStringLiteral("template"))))
        known << text.id();
    QFile file(QStringLiteral(KAV_TOUR));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const host::tour::Script script =
        host::tour::parseScript(QStringLiteral("tour.tour"), QString::fromUtf8(file.readAll()));
    QVERIFY(script.mistakes.isEmpty());
    host::ScreenLibrary library;
    QCOMPARE(library.load(QStringLiteral("libkavcallmeter.so.1")), QString());
    const QTemporaryDir folder;
    host::Options options;
    options.backend = QStringLiteral("simulated");
    options.tourDirectory = folder.filePath(QStringLiteral("tour"));
    QString printed;
    QString told;
    QTextStream output(&printed);
    QTextStream errors(&told);

    RecordingTranslator phone;
    host::tour::TourPlayer player(library, options, output, errors, [] { return false; });
    QVERIFY2(player.play(script) == 0, qPrintable(told));
    int asked = 0;
    for (const RecordingTranslator::Request &request : phone.take()) {
        if (request.key.isEmpty())
            continue;
        ++asked;
        const QString id = request.context + u'|' + request.key + u'|' + request.comment;
        QVERIFY2(known.contains(id), qPrintable(id));
    }
    QVERIFY(asked > 500);
}

void TestTemplate::theTourIsPhotographedInALanguageOfLongTextsOfWhichNoneIsEnglish()
{
    const QTemporaryDir folder;
    QProcess program;
    program.start(KAV_HOST_PROGRAM, {"--translation", KAV_PSEUDO_CATALOGUE, "--tour", folder.path()});
    QVERIFY(program.waitForFinished(60'000));
    QVERIFY2(program.exitCode() == 0, program.readAllStandardError());
    const QStringList photographs = QDir(folder.path()).entryList({QStringLiteral("*.png")});
    QVERIFY(photographs.size() > 20);
    // Its title's letters are those of its name.
    const QString callTimes = QString::fromUtf8("-\u00e7\u00e5ll-t\u00efm\u00eb\u0161.png");
    QVERIFY2(!photographs.filter(callTimes).isEmpty(), qPrintable(photographs.join(u' ')));
    const QStringList texts = shownTexts(QString::fromUtf8(program.readAllStandardOutput()));
    QVERIFY(texts.size() > 500);
    for (const QString &text : texts)
        QVERIFY2(!hasEnglish(text), qPrintable(text));
}

KAV_TEST_GROUP(TestTemplate, QApplication);
#include "tst_template.moc"
