// Texts by resource key, with an English default.
#include "qt/translation.h"
#include "support/TestGroup.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QTimer>
#include <QtCore/QTranslator>
#include <QtTest/QTest>

namespace {

// Remembers what it was asked, and knows one key.
class Asked : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *comment, int) const override
    {
        requests << QByteArray(context) + '|' + source + '|' + comment;
        return qstrcmp(source, "KNOWN") == 0 ? QString::fromUtf8("Gr\xc3\xb6\xc3\x9f"
                                                                 "e")
                                             : QString();
    }

    mutable QList<QByteArray> requests;
};

} // namespace

class TestTranslation : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void withoutACatalogueTheEnglishDefaultIsShown_data();
    void withoutACatalogueTheEnglishDefaultIsShown();
    void theCatalogueIsAskedWithContextKeyAndEnglishDefault();
    void aTextOfTheCatalogueIsShownAccentsAndAll();
    void theLastInstalledCatalogueThatKnowsTheKeyWins();
    void aRemovedCatalogueIsAskedNoMore();
    void theClassNameIsTheContext();
    void nullArgumentsAreNotAskedFor();
    void aCatalogueFileIsHonoured_data();
    void aCatalogueFileIsHonoured();
};

void TestTranslation::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
}

void TestTranslation::withoutACatalogueTheEnglishDefaultIsShown_data()
{
    QTest::addColumn<QByteArray>("english");
    QTest::addColumn<QString>("text");
    QTest::newRow("plain") << QByteArray("Call Times") << QStringLiteral("Call Times");
    QTest::newRow("empty") << QByteArray("") << QString();
    QTest::newRow("a trailing blank") << QByteArray("calling. ") << QStringLiteral("calling. ");
    QTest::newRow("accented, in Latin-1")
        << QByteArray("caf\xe9 \xa3") << QString::fromUtf8("caf\xc3\xa9 \xc2\xa3");
    QTest::newRow("with a place for a value") << QByteArray("%1 of %2") << QStringLiteral("%1 of %2");
}

void TestTranslation::withoutACatalogueTheEnglishDefaultIsShown()
{
    QFETCH(QByteArray, english);
    QFETCH(QString, text);
    QCOMPARE(translated("TestView", "TXT_RID_KEY", english.constData()), text);
}

void TestTranslation::theCatalogueIsAskedWithContextKeyAndEnglishDefault()
{
    Asked catalogue;
    QVERIFY(QCoreApplication::installTranslator(&catalogue));
    QCOMPARE(translated("View", "KEY", "English"), QStringLiteral("English"));
    QCOMPARE(translated("View", "KEY", "caf\xe9"), QString::fromLatin1("caf\xe9"));
    QCOMPARE(catalogue.requests, QList<QByteArray>({"View|KEY|English", "View|KEY|caf\xc3\xa9"}));
}

void TestTranslation::aTextOfTheCatalogueIsShownAccentsAndAll()
{
    Asked catalogue;
    QVERIFY(QCoreApplication::installTranslator(&catalogue));
    QCOMPARE(translated("View", "KNOWN", "Size"), QString::fromLatin1("Gr\xf6\xdf"
                                                                      "e"));
    QCOMPARE(translated("View", "UNKNOWN", "Size"), QStringLiteral("Size"));
}

void TestTranslation::theLastInstalledCatalogueThatKnowsTheKeyWins()
{
    struct Later : QTranslator {
        bool isEmpty() const override { return false; }
        QString translate(const char *, const char *source, const char *, int) const override
        {
            return qstrcmp(source, "MINE") == 0 ? QStringLiteral("mine") : QString();
        }
    };
    Asked first;
    Later later;
    QVERIFY(QCoreApplication::installTranslator(&first));
    QVERIFY(QCoreApplication::installTranslator(&later));
    QCOMPARE(translated("View", "MINE", "x"), QStringLiteral("mine"));
    QCOMPARE(translated("View", "KNOWN", "x"), QString::fromLatin1("Gr\xf6\xdf"
                                                                   "e"));
}

void TestTranslation::aRemovedCatalogueIsAskedNoMore()
{
    Asked catalogue;
    QVERIFY(QCoreApplication::installTranslator(&catalogue));
    QVERIFY(QCoreApplication::removeTranslator(&catalogue));
    QCOMPARE(translated("View", "KNOWN", "Size"), QStringLiteral("Size"));
    QVERIFY(catalogue.requests.isEmpty());
}

void TestTranslation::theClassNameIsTheContext()
{
    Asked catalogue;
    QVERIFY(QCoreApplication::installTranslator(&catalogue));
    QCOMPARE(translatedFor<QTimer>("KEY", "English"), QStringLiteral("English"));
    QCOMPARE(catalogue.requests, QList<QByteArray>({"QTimer|KEY|English"}));
}

void TestTranslation::nullArgumentsAreNotAskedFor()
{
    Asked catalogue;
    QVERIFY(QCoreApplication::installTranslator(&catalogue));
    QCOMPARE(translated(nullptr, "KNOWN", "Size"), QStringLiteral("Size"));
    QCOMPARE(translated("View", nullptr, "Size"), QStringLiteral("Size"));
    QVERIFY(translated(nullptr, nullptr, nullptr).isEmpty());
    QVERIFY(catalogue.requests.isEmpty());
    QVERIFY(translated("View", "UNKNOWN", nullptr).isEmpty());
}

void TestTranslation::aCatalogueFileIsHonoured_data()
{
    QTest::addColumn<QByteArray>("context");
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QByteArray>("english");
    QTest::addColumn<QString>("text");
    const QByteArray view("TestView");
    QTest::newRow("an accented text") << view << QByteArray("TXT_RID_SOFTKEY_YES") << QByteArray("Yes")
                                      << QString::fromLatin1("S\xed");
    QTest::newRow("the same key of another class") << QByteArray("QObject") << QByteArray("TXT_RID_SOFTKEY_YES")
                                                   << QByteArray("Yes") << QString::fromLatin1("Que s\xed");
    QTest::newRow("an entry without the English default")
        << view << QByteArray("TXT_RID_WITHOUT_COMMENT") << QByteArray("Add")
        << QString::fromLatin1("A\xf1"
                               "adir");
    QTest::newRow("an accented English default")
        << view << QByteArray("TXT_RID_ACCENTED_DEFAULT") << QByteArray("Caf\xe9") << QString::fromLatin1("T\xe9");
    QTest::newRow("an unfinished entry")
        << view << QByteArray("TXT_RID_UNFINISHED") << QByteArray("Unfinished") << QStringLiteral("Unfinished");
    QTest::newRow("a key that is not in it")
        << view << QByteArray("TXT_RID_NONE") << QByteArray("caf\xe9") << QString::fromLatin1("caf\xe9");
    QTest::newRow("a class that is not in it")
        << QByteArray("Other") << QByteArray("TXT_RID_SOFTKEY_YES") << QByteArray("Yes") << QStringLiteral("Yes");
}

void TestTranslation::aCatalogueFileIsHonoured()
{
    QFETCH(QByteArray, context);
    QFETCH(QByteArray, key);
    QFETCH(QByteArray, english);
    QFETCH(QString, text);
    QTranslator catalogue;
    QVERIFY(catalogue.load(QStringLiteral(KAV_CATALOGUE)));
    QVERIFY(QCoreApplication::installTranslator(&catalogue));
    QCOMPARE(translated(context.constData(), key.constData(), english.constData()), text);
}

KAV_TEST_GROUP(TestTranslation, QCoreApplication);
#include "tst_translation.moc"
