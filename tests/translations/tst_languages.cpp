// What every language has to keep, whatever it says.
#include "handset/Handset.h"
#include "language/Catalogue.h"
#include "language/Languages.h"
#include "support/TestGroup.h"
#include "toolkit/ZSkinService.h"
#include "translations/Texts.h"

#include <QtCore/QHash>
#include <QtCore/QMap>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTranslator>
#include <QtGui/QFontInfo>
#include <QtGui/QFontMetrics>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>

namespace {

using language::catalogueOf;

QStringList placeHolders(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral("%\\d"));
    QStringList found;
    for (auto match = pattern.globalMatch(text); match.hasNext();)
        found << match.next().captured();
    found.sort();
    return found;
}

QString leadingBlanks(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral("^\\s*"));
    return pattern.match(text).captured();
}

// "(EUR)" of a row of the list of currencies.
QString codeAtTheEnd(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral("\\([A-Z]{3}\\)$"));
    return pattern.match(text.trimmed()).captured();
}

bool isCurrencyRow(const TranslatedText &text)
{
    return text.source.startsWith(QLatin1StringView("TXT_RID_LIST_A_")) && !codeAtTheEnd(text.comment).isEmpty();
}

bool isShortCode(const TranslatedText &text)
{
    static const QRegularExpression pattern(QStringLiteral("^TXT_RID_LIST_A_[A-Z]{3}$"));
    return text.context == QLatin1StringView("PHONE_UI_RecentCallMeter") && text.source.contains(pattern);
}

// Han characters are as wide as they are high. The machine that tests need not have a font with them.
int widthOf(const QString &text, ZSkinService::FontRole role)
{
    const QFont font = ZSkinService::font(role);
    QString others;
    int han = 0;
    for (const QChar c : text) {
        if (c.unicode() >= 0x2e80)
            ++han;
        else
            others += c;
    }
    return QFontMetrics(font).horizontalAdvance(others) + han * QFontInfo(font).pixelSize();
}

struct Place {
    const char *keys; // a pattern
    ZSkinService::FontRole font;
    int width;
};

constexpr int captionRoom = ZSkinService::DisplayWidth / 2 - 2 * ZSkinService::RowMargin;
constexpr int titleRoom = ZSkinService::DisplayWidth - 2 * ZSkinService::RowMargin;
constexpr int headerRoom =
    ZSkinService::DisplayWidth - 2 * ZSkinService::DialogMargin - 2 * ZSkinService::DialogPadding - 2;
constexpr int rowRoom = ZSkinService::DisplayWidth - 2 * ZSkinService::RowMargin - ZSkinService::ScrollBarWidth;

// The texts that are not cut: nothing says elsewhere what the rest was.
constexpr Place places[] = {
    {"^TXT_RID_SOFTKEY_", ZSkinService::SoftkeyFont, captionRoom},
    {"^TXT_RID_HEADER_(CALL_TIMES|CALL_COSTS|DATA_TIMES|DATA_VOLUMES?|CALL_COST_SETUP|RECENT_CALLS)$",
     ZSkinService::TitleFont, titleRoom},
    {"^TXT_RID_HEADER_", ZSkinService::TitleFont, headerRoom},
    {"^TXT_RID_SETTING_A_(RESET_|CALL_COST_SETUP)", ZSkinService::RowFont, rowRoom},
    {"^TXT_RID_SEPARATOR_", ZSkinService::HeadingFont, rowRoom},
};

const Place *placeOf(const QString &key)
{
    for (const Place &place : places) {
        if (key.contains(QRegularExpression(QString::fromLatin1(place.keys))))
            return &place;
    }
    return nullptr;
}

} // namespace

class TestLanguages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyTextOfTheTemplateIsTranslatedAndNoOther_data() { languages(); }
    void everyTextOfTheTemplateIsTranslatedAndNoOther();
    void placeHoldersLinesAndKeysOfButtonsAreKept_data() { languages(); }
    void placeHoldersLinesAndKeysOfButtonsAreKept();
    void currencyRowsEndInTheirCodeAndCodesAreThemselves_data() { languages(); }
    void currencyRowsEndInTheirCodeAndCodesAreThemselves();
    void noTextIsWiderThanItsPlaceWhereItIsNotCut_data() { languages(); }
    void noTextIsWiderThanItsPlaceWhereItIsNotCut();
    void theProgramSpeaksIt_data() { languages(); }
    void theProgramSpeaksIt();
    void theTelephonesNoticesAreInIt_data() { languages(); }
    void theTelephonesNoticesAreInIt();
    void theLocaleChoosesTheLanguage_data();
    void theLocaleChoosesTheLanguage();
    void aLanguageThatThereIsNotIsRefusedWithThoseThatThereAre();

private:
    void languages();
    const QList<TranslatedText> &texts(const QString &language) { return all[language]; }

    QList<TranslatedText> wanted;
    QMap<QString, QList<TranslatedText>> all;
};

void TestLanguages::initTestCase()
{
    wanted = readTexts(sourceOf(QStringLiteral("template")));
    QVERIFY(wanted.size() > 600);
    for (const QString &language : translatedLanguages())
        all[language] = readTexts(sourceOf(language));
}

void TestLanguages::languages()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : translatedLanguages())
        QTest::newRow(qPrintable(language)) << language;
}

void TestLanguages::everyTextOfTheTemplateIsTranslatedAndNoOther()
{
    QFETCH(QString, language);
    language::Catalogue catalogue; // as the program loads it
    QCOMPARE(catalogue.install(catalogueOf(language)), QString());
    QHash<QString, QString> known;
    for (const TranslatedText &text : texts(language))
        known.insert(text.id(), text.translation);
    for (const TranslatedText &text : std::as_const(wanted)) {
        QVERIFY2(known.contains(text.id()), qPrintable(text.id() + " is missing"));
        const QString shown =
            QCoreApplication::translate(text.context.toUtf8(), text.source.toUtf8(), text.comment.toUtf8());
        QVERIFY2(!shown.trimmed().isEmpty() && shown == known.take(text.id()),
                 qPrintable(text.id() + ": " + shown));
    }
    QVERIFY2(known.isEmpty(), qPrintable(QStringList(known.keys()).join(u'\n')));
}

void TestLanguages::placeHoldersLinesAndKeysOfButtonsAreKept()
{
    QFETCH(QString, language);
    for (const TranslatedText &text : texts(language)) {
        const QString english = text.english();
        const QByteArray what = (text.id() + " -> " + text.translation).toUtf8();
        QVERIFY2(placeHolders(text.translation) == placeHolders(english), what);
        QVERIFY2(text.translation.count(u'\n') == english.count(u'\n'), what);
        QVERIFY2(leadingBlanks(text.translation) == leadingBlanks(english), what);
        if (text.comment.isEmpty()) // the phone's own texts have no shortcuts
            QVERIFY2(text.translation.count(u'&') == english.count(u'&'), what);
    }
}

void TestLanguages::currencyRowsEndInTheirCodeAndCodesAreThemselves()
{
    QFETCH(QString, language);
    int rows = 0;
    for (const TranslatedText &text : texts(language)) {
        if (isShortCode(text))
            QCOMPARE(text.translation, text.comment);
        if (!isCurrencyRow(text))
            continue;
        ++rows;
        QVERIFY2(text.translation.endsWith(u' ' + codeAtTheEnd(text.comment)), qPrintable(text.translation));
        QVERIFY2(text.translation.count(u'(') == 1, qPrintable(text.translation));
    }
    QCOMPARE(rows, 193);
}

void TestLanguages::noTextIsWiderThanItsPlaceWhereItIsNotCut()
{
    QFETCH(QString, language);
    QStringList tooWide;
    int checked = 0;
    for (const TranslatedText &text : texts(language)) {
        const Place *place = placeOf(text.source);
        if (!place)
            continue;
        ++checked;
        const int width = widthOf(text.translation, place->font);
        if (width > place->width)
            tooWide << QStringLiteral("%1: %2 of %3").arg(text.translation).arg(width).arg(place->width);
    }
    QVERIFY(checked > 50);
    QVERIFY2(tooWide.isEmpty(), qPrintable(tooWide.join(u'\n')));
}

void TestLanguages::theProgramSpeaksIt()
{
    QFETCH(QString, language);
    const QTemporaryDir folder;
    const auto isTitle = [](auto &text) {
        return text.source == QLatin1StringView("TXT_RID_HEADER_RECENT_CALLS");
    };
    const auto title = std::find_if(texts(language).begin(), texts(language).end(), isTitle);
    QVERIFY(title != texts(language).end());
    QFile script(folder.filePath(QStringLiteral("short.tour")));
    QVERIFY(script.open(QIODevice::WriteOnly));
    script.write("state empty\nexpect title " + title->translation.toUtf8() + '\n');
    script.close();
    QProcess program;
    program.start(KAV_HOST_PROGRAM, {"--tour", folder.filePath(QStringLiteral("tour")), "--script",
                                     script.fileName(), "--language", language});
    QVERIFY(program.waitForFinished(60'000));
    QVERIFY2(program.exitCode() == 0, program.readAllStandardError());
}

void TestLanguages::theTelephonesNoticesAreInIt()
{
    QFETCH(QString, language);
    language::Catalogue catalogue;
    QCOMPARE(catalogue.install(catalogueOf(language)), QString());
    const QTemporaryDir state;
    const auto anybody = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadOther |
                         QFile::WriteOther | QFile::ExeOther;
    QVERIFY(QFile::setPermissions(state.path(), anybody));
    const handset::Opened opened = handset::open({QStringLiteral("simulated"), state.path()});
    QVERIFY2(opened.handset, qPrintable(opened.error));
    const QByteArray english = "The state directory \"%1\" %2, who can change what is kept in it.";
    const auto isIt = [&english](auto &text) { return text.source == QLatin1StringView(english); };
    const auto own = std::find_if(texts(language).begin(), texts(language).end(), isIt);
    QVERIFY(own != texts(language).end() && own->translation != QLatin1StringView(english));
    const QString who = QCoreApplication::translate("handset", "may be written by other users");
    QVERIFY(!who.contains(QLatin1StringView("may be")));
    QCOMPARE(opened.notice, own->translation.arg(state.path(), who));
}

void TestLanguages::theLocaleChoosesTheLanguage_data()
{
    QTest::addColumn<QStringList>("preferred");
    QTest::addColumn<QString>("language");
    QTest::newRow("the language of another country") << QStringList{"de-AT"} << "de";
    QTest::newRow("the second where there is no first") << QStringList{"tlh", "de-DE", "en"} << "de";
    QTest::newRow("English before what comes after it") << QStringList{"en-GB", "de"} << "en";
    QTest::newRow("none") << QStringList{} << "en";
    QTest::newRow("the C locale") << QStringList{"C"} << "en";
    QTest::newRow("only one that there is not") << QStringList{"tlh"} << "en";
}

void TestLanguages::theLocaleChoosesTheLanguage()
{
    QFETCH(QStringList, preferred);
    QFETCH(QString, language);
    QCOMPARE(language::suitableLanguage(preferred), language);
}

void TestLanguages::aLanguageThatThereIsNotIsRefusedWithThoseThatThereAre()
{
    QProcess program;
    program.start(KAV_HOST_PROGRAM, {"--language", "tlh"});
    QVERIFY(program.waitForFinished(60'000));
    QCOMPARE(program.exitCode(), 2);
    const QString errors = QString::fromUtf8(program.readAllStandardError());
    QVERIFY2(errors.contains(language::languageNames().join(QStringLiteral(", "))), qPrintable(errors));
}

KAV_TEST_GROUP(TestLanguages, QApplication);
#include "tst_languages.moc"
