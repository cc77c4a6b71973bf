// The template is made from the sources as they stand; here the phone says what it asks for when it runs.
#include "host/Languages.h"
#include "host/Options.h"
#include "host/ScreenLibrary.h"
#include "host/tour/TourPlayer.h"
#include "support/RecordingTranslator.h"
#include "support/TestGroup.h"
#include "translations/Texts.h"

#include <QtCore/QFile>
#include <QtCore/QSet>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTextStream>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>

class TestTemplate : public QObject
{
    Q_OBJECT

private slots:
    void everyTextThatATourOfThePhoneAsksForIsInTheTemplate();
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

KAV_TEST_GROUP(TestTemplate, QApplication);
#include "tst_template.moc"
