// Currency codes as texts, the unit of costs, and the catalogue of currencies.
#include "utility/CurrencyCatalogue.h"
#include "utility/ListedCurrencies.h"
#include "utility/PHONE_UI_RecentCallMeter.h"

#include "support/PhoneScreen.h"
#include "support/PhoneTest.h"
#include "support/PluginLibrary.h"
#include "support/RecordingTranslator.h"

#include "toolkit/ZKbMainWidget.h"
#include "toolkit/ZListBox.h"
#include "toolkit/ZListBoxItem.h"
#include "toolkit/ZPopup.h"

#include <QtCore/QMap>
#include <QtCore/QSet>
#include <QtCore/QTranslator>

#include <iterator>

using Meter = PHONE_UI_RecentCallMeter;

namespace {

const QString source = QStringLiteral("utility/PHONE_UI_RecentCallMeter");
constexpr const char *context = "PHONE_UI_RecentCallMeter";

// The rule of the long keys in words: the words of the name, joined by "_"; a word is a run of letters and digits, an
// accented letter counts as its plain one, anything else separates.
QString keyByRule(const QString &name)
{
    const QString plain = name.normalized(QString::NormalizationForm_D);
    QStringList words(QString{});
    for (const QChar c : plain) {
        if (c.category() == QChar::Mark_NonSpacing)
            continue;
        if (c.isLetterOrNumber())
            words.last().append(c.toUpper());
        else if (!words.last().isEmpty())
            words.append(QString());
    }
    words.removeAll(QString());
    return QStringLiteral("TXT_RID_LIST_A_") + words.join(QLatin1Char('_'));
}

// Rows, from 1, whose keys depart from the rule.
QString exceptionalKey(qsizetype row)
{
    switch (row) {
    case 30:
        return QStringLiteral("TXT_RID_LIST_A_CHINA_RENMINBI_YUAN_CNY");
    case 81:
        return QStringLiteral("TXT_RID_LIST_A_KOREA_DEMOCRATIC_PEOPLES_REPUBLIC_WON_KPW");
    case 152:
        return QStringLiteral("TXT_RID_LIST_A_TONGA_PAANGA_TOP");
    }
    return QString();
}

QString listedName(qsizetype index)
{
    return QString::fromUtf8(listedCurrencies[index].name);
}

// Asks the catalogue, and keeps what had been traced by then.
class TracingTranslator : public RecordingTranslator
{
public:
    explicit TracingTranslator(const TraceCapture &capture)
        : traces(capture)
    {}

    QString translate(const char *of, const char *key, const char *comment, int n) const override
    {
        tracedBefore = withoutLineNumbers(traces.text());
        return RecordingTranslator::translate(of, key, comment, n);
    }

    mutable QString tracedBefore;

private:
    const TraceCapture &traces;
};

// Presses keys until the setup's list of currencies is open, and answers the dialog that holds it.
ZListBox *openCurrencyList(const ZKbMainWidget *costs)
{
    constexpr int rowOfTheSetup = 7;
    constexpr int currencyTypeRow = 7;
    PhoneScreen::chooseRow(costs, rowOfTheSetup);
    const auto *setup = costs->findChild<ZKbMainWidget *>();
    PhoneScreen::chooseRow(setup, currencyTypeRow);
    const auto *dialog = setup->findChild<ZPopup *>();
    return dialog ? dialog->findChild<ZListBox *>() : nullptr;
}

QString rowCode(qsizetype index)
{
    return QString::fromLatin1(listedCurrencies[index].code);
}

} // namespace

class TestCurrencies : public PhoneTest
{
    Q_OBJECT

private slots:
    void theCatalogueHasEveryListedNameInItsPlace();
    void everyLongKeyFollowsFromItsNameButForThree();
    void everyNameEndsInItsCodeInParenthesesAndTwoInABlankMore();
    void theOrderOfCodesBreaksAtTwoPlacesOnly();
    void theShortTableIsTheCatalogueWithoutTwoCodes();
    void theSetupOffersEveryRowUnderItsKeyInOrder();
    void anAccentedRowIsOfferedInTheLanguageOfTheCatalogue();
    void aCatalogueFileIsHonouredForAccentedAndBlankEndedRows();

    void everyShortCodeIsTranslatedUnderItsKey();
    void withoutACatalogueEveryShortCodeIsItself();
    void anUnknownCodeComesBackAsItIs_data();
    void anUnknownCodeComesBackAsItIs();
    void noOtherThreeCharactersAreInTheShortTable();
    void aTranslatedCodeIsTracedFirst();

    void unitsAreTheUnitOfChargeTypeZero();
    void theCurrencyIsTheUnitOfChargeTypeOne_data();
    void theCurrencyIsTheUnitOfChargeTypeOne();
    void anyOtherChargeTypeHasNoUnit();
    void aFailedChargeTypeHasNoUnitAndAsksNoMore();
    void aFailedCurrencyHasNoUnit();
    void theUnitTracesItsTranslationOnly_data();
    void theUnitTracesItsTranslationOnly();

private:
    Meter meter;
};

// --- the catalogue

void TestCurrencies::theCatalogueHasEveryListedNameInItsPlace()
{
    const auto rows = CurrencyCatalogue::rows();
    QCOMPARE(rows.size(), std::size_t(193));
    QCOMPARE(std::size(listedCurrencies), std::size_t(193));
    for (std::size_t i = 0; i < rows.size(); ++i)
        QCOMPARE(QString::fromLatin1(rows[i].english), listedName(qsizetype(i)));
    QCOMPARE(rows.front().english, "UNITED ARAB EMIRATES  DIRHAM  (AED)");
    QCOMPARE(rows.back().english, "ZIMBABWE  DOLLAR  (ZWD)");
}

void TestCurrencies::everyLongKeyFollowsFromItsNameButForThree()
{
    const auto rows = CurrencyCatalogue::rows();
    QSet<QString> keys;
    int exceptions = 0;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const QString byRule = keyByRule(listedName(qsizetype(i)));
        const QString exceptional = exceptionalKey(qsizetype(i) + 1);
        QCOMPARE(QString::fromLatin1(rows[i].key), exceptional.isEmpty() ? byRule : exceptional);
        exceptions += exceptional.isEmpty() || exceptional == byRule ? 0 : 1;
        keys.insert(QString::fromLatin1(rows[i].key));
    }
    QCOMPARE(exceptions, 3);
    QCOMPARE(keys.size(), 193);
    QCOMPARE(rows[50].key, "TXT_RID_LIST_A_UNITED_KINGDOM_GREAT_BRITAIN_POUND_STERLING_GBP");
    QCOMPARE(rows[89].key, "TXT_RID_LIST_A_LESOTHO_LOTI_PL_MALOTI_LSL");
}

void TestCurrencies::everyNameEndsInItsCodeInParenthesesAndTwoInABlankMore()
{
    QStringList blank;
    for (qsizetype i = 0; i < 193; ++i) {
        const QString name = QString::fromLatin1(CurrencyCatalogue::rows()[std::size_t(i)].english);
        const QString ending = QLatin1Char('(') + rowCode(i) + QLatin1Char(')');
        if (name.endsWith(QLatin1Char(' ')))
            blank.append(QString::number(i + 1));
        QVERIFY2(name.endsWith(ending) || name.endsWith(ending + QLatin1Char(' ')), qPrintable(name));
    }
    QCOMPARE(blank, QStringList({"182", "185"}));
}

void TestCurrencies::theOrderOfCodesBreaksAtTwoPlacesOnly()
{
    QStringList breaks;
    for (qsizetype i = 1; i < 193; ++i) {
        if (rowCode(i) < rowCode(i - 1))
            breaks.append(rowCode(i - 1) + QLatin1Char('>') + rowCode(i));
    }
    QCOMPARE(breaks, QStringList({"PYK>PLN", "SRG>SRD"}));
}

void TestCurrencies::theShortTableIsTheCatalogueWithoutTwoCodes()
{
    QStringList codes;
    for (qsizetype i = 0; i < 193; ++i) {
        if (codes.isEmpty() || codes.last() != rowCode(i))
            codes.append(rowCode(i));
    }
    QCOMPARE(codes.removeAll(QStringLiteral("ATS")), 1);
    QCOMPARE(codes.removeAll(QStringLiteral("BND")), 1);
    QStringList listed;
    for (const char *code : listedShortCodes)
        listed.append(QString::fromLatin1(code));
    QCOMPARE(listed.size(), 171);
    QCOMPARE(codes, listed);
}

void TestCurrencies::theSetupOffersEveryRowUnderItsKeyInOrder()
{
    script().answer("AdviceOfCharge::chargeType", quint8(1));
    script().answer("AdviceOfCharge::priceAndCurrency", QString("0.10"), QString("GBP"));
    const HostedScreen<ZKbMainWidget> costs("callCost");
    costs->show();
    RecordingTranslator translator;
    const ZListBox *list = openCurrencyList(costs.get());
    QVERIFY(list);
    QStringList asked = lines(translator.take());
    asked.removeIf([](const QString &line) { return !line.contains(QLatin1String(")")); }); // a name has its code
    QStringList expected;
    for (qsizetype i = 0; i < 193; ++i) {
        const QString exceptional = exceptionalKey(i + 1);
        expected.append(QStringLiteral("PHONE_UI_RecentCallCostSetupView, %1, %2")
                            .arg(exceptional.isEmpty() ? keyByRule(listedName(i)) : exceptional, listedName(i)));
        const auto *item = static_cast<const ZListBoxItem *>(list->item(int(i) + 1)); // behind the first choice
        QCOMPARE(item->getSubItemText(0, 0, false), listedName(i));
    }
    COMPARE_LINES(asked, expected);
}

void TestCurrencies::anAccentedRowIsOfferedInTheLanguageOfTheCatalogue()
{
    script().answer("AdviceOfCharge::chargeType", quint8(1));
    script().answer("AdviceOfCharge::priceAndCurrency", QString("0.10"), QString("GBP"));
    RecordingTranslator translator;
    const auto translation = [](qsizetype row) { return QString::fromUtf8("Čeština, ελληνικά %1").arg(row); };
    const QList<qsizetype> accented{30, 32, 112, 145, 146};
    for (const qsizetype row : accented)
        translator.add(QString::fromLatin1(CurrencyCatalogue::rows()[std::size_t(row - 1)].key), translation(row));
    const HostedScreen<ZKbMainWidget> costs("callCost");
    costs->show();
    const ZListBox *list = openCurrencyList(costs.get());
    QVERIFY(list);
    for (qsizetype row = 1; row <= 193; ++row) {
        const auto *item = static_cast<const ZListBoxItem *>(list->item(int(row)));
        const bool isAccented = accented.contains(row);
        QCOMPARE(listedName(row - 1).toUtf8().size() > listedName(row - 1).size(), isAccented);
        QCOMPARE(item->getSubItemText(0, 0, false), isAccented ? translation(row) : listedName(row - 1));
    }
}

// A file knows its entries by context, key and English default together, in UTF-8.
void TestCurrencies::aCatalogueFileIsHonouredForAccentedAndBlankEndedRows()
{
    script().answer("AdviceOfCharge::chargeType", quint8(1));
    script().answer("AdviceOfCharge::priceAndCurrency", QString("0.10"), QString("GBP"));
    QTranslator catalogue;
    QVERIFY(catalogue.load(QStringLiteral(KAV_CURRENCIES)));
    QVERIFY(QCoreApplication::installTranslator(&catalogue));
    const HostedScreen<ZKbMainWidget> costs("callCost");
    costs->show();
    const ZListBox *list = openCurrencyList(costs.get());
    QVERIFY(list);
    const QMap<int, QString> translations{
        {30, QString::fromUtf8("ČÍNA  RENMINBI ŽEN-MIN-PI JÜAN  (CNY)")},
        {32, QString::fromUtf8("KOSTARIKA  KOLÓN  (CRC)")},
        {112, QString::fromUtf8("NIKARAGUA  ZLATÁ CÓRDOBA  (NIO)")},
        {145, QString::fromUtf8("SVATÝ TOMÁŠ; PRINCŮV OSTROV  DOBRA  (SRD)")},
        {146, QString::fromUtf8("SALVADOR  KOLÓN  (SVC)")},
        {182, QString::fromUtf8("POBŘEŽÍ SLONOVINY  FRANK CFA  (XOF) ")},
    };
    for (int row = 1; row <= 193; ++row) {
        const auto *item = static_cast<const ZListBoxItem *>(list->item(row));
        QCOMPARE(item->getSubItemText(0, 0, false), translations.value(row, listedName(row - 1)));
    }
}

// --- the short table

void TestCurrencies::everyShortCodeIsTranslatedUnderItsKey()
{
    RecordingTranslator translator;
    QStringList codes(QStringLiteral("units"));
    for (const char *code : listedShortCodes)
        codes.append(QString::fromLatin1(code));
    QCOMPARE(codes.size(), 172);
    for (const QString &code : codes) {
        const QString key = QStringLiteral("TXT_RID_LIST_A_") + code.toUpper();
        translator.add(key, QString::fromUtf8("währung-") + code);
        QCOMPARE(meter.TranslateCurrency(code), QString::fromUtf8("währung-") + code);
        const QList<RecordingTranslator::Request> asked = translator.take();
        QCOMPARE(lines(asked), lines({{QString::fromLatin1(context), key, code}}));
    }
}

void TestCurrencies::withoutACatalogueEveryShortCodeIsItself()
{
    for (const char *code : listedShortCodes)
        QCOMPARE(meter.TranslateCurrency(QString::fromLatin1(code)), QString::fromLatin1(code));
    QCOMPARE(meter.TranslateCurrency(QStringLiteral("units")), QString("units"));
}

void TestCurrencies::anUnknownCodeComesBackAsItIs_data()
{
    QTest::addColumn<QString>("code");
    QTest::newRow("a currency of today") << "EUR";
    QTest::newRow("offered, but not in the short table: Austria") << "ATS";
    QTest::newRow("offered, but not in the short table: Brunei") << "BND";
    QTest::newRow("lower case") << "usd";
    QTest::newRow("mixed case") << "Usd";
    QTest::newRow("a leading blank") << " USD";
    QTest::newRow("a trailing blank") << "USD ";
    QTest::newRow("a code and a NUL") << QString::fromLatin1("USD\0", 4);
    QTest::newRow("a NUL in a code") << QString::fromLatin1("U\0D", 3);
    QTest::newRow("nothing") << "";
    QTest::newRow("no text at all") << QString();
    QTest::newRow("upper-case units") << "UNITS";
    QTest::newRow("two letters") << "US";
    QTest::newRow("four letters") << "USDX";
    QTest::newRow("what the two blank-ended rows give") << "OF)";
    QTest::newRow("letters whose low bytes spell a code") << QString(QChar(0x155)) + QChar(0x153) + QChar(0x144);
    QTest::newRow("a first letter whose low byte is that of a code's") << QStringLiteral("\u0155SD");
    QTest::newRow("a second letter whose low byte is that of a code's") << QStringLiteral("U\u0153D");
    QTest::newRow("a third letter whose low byte is that of a code's") << QStringLiteral("US\u0144");
    QTest::newRow("full-width letters") << QString::fromUtf8("ＵＳＤ");
    QTest::newRow("very long") << QString(100'000, QLatin1Char('A'));
}

void TestCurrencies::anUnknownCodeComesBackAsItIs()
{
    QFETCH(const QString, code);
    RecordingTranslator translator;
    const QString answer = meter.TranslateCurrency(code);
    QCOMPARE(answer, code);
    QCOMPARE(answer.isNull(), code.isNull());
    QCOMPARE(translator.take().size(), 0);
}

void TestCurrencies::noOtherThreeCharactersAreInTheShortTable()
{
    constexpr int asciiCount = 128;
    QSet<QString> found;
    QString code(3, QLatin1Char(' '));
    for (int i = 0; i < asciiCount * asciiCount * asciiCount; ++i) {
        code[0] = QLatin1Char(char(i / asciiCount / asciiCount));
        code[1] = QLatin1Char(char(i / asciiCount % asciiCount));
        code[2] = QLatin1Char(char(i % asciiCount));
        if (CurrencyCatalogue::shortText(code))
            found.insert(code);
    }
    QSet<QString> listed;
    for (const char *shortCode : listedShortCodes)
        listed.insert(QString::fromLatin1(shortCode));
    QCOMPARE(listed.size(), 171);
    QCOMPARE(found, listed);
}

void TestCurrencies::aTranslatedCodeIsTracedFirst()
{
    const TracingTranslator translator(*traces);
    meter.TranslateCurrency(QStringLiteral("GBP"));
    const QString message = QStringLiteral("PHONE_UI_RecentCallMeter::TranslateCurrency string=%1.\\n");
    QCOMPARE(translator.tracedBefore, longTrace(source, "TranslateCurrency", message.arg("GBP")));
    QCOMPARE(traces->take(), longTrace(source, "TranslateCurrency", message.arg("GBP")));
    meter.TranslateCurrency(QString::fromLatin1("\xA3x"));
    QCOMPARE(traces->take(), longTrace(source, "TranslateCurrency", message.arg(QString::fromLatin1("\xA3x"))));
}

// --- the unit

void TestCurrencies::unitsAreTheUnitOfChargeTypeZero()
{
    script().answer("AdviceOfCharge::chargeType", quint8(0));
    script().answer("AdviceOfCharge::priceAndCurrency", QString("0.10"), QString("GBP"));
    QCOMPARE(meter.getCurrencyUnit(), QString("units"));
    QCOMPARE(journal.lines(), QStringList("AdviceOfCharge::chargeType"));
}

void TestCurrencies::theCurrencyIsTheUnitOfChargeTypeOne_data()
{
    QTest::addColumn<QString>("currency");
    for (const char *currency : {"GBP", "ATS", "EUR", "OF)", "", "units"})
        QTest::newRow(currency) << currency;
}

void TestCurrencies::theCurrencyIsTheUnitOfChargeTypeOne()
{
    QFETCH(const QString, currency);
    script().answer("AdviceOfCharge::chargeType", quint8(1));
    script().answer("AdviceOfCharge::priceAndCurrency", QString("0.10"), currency);
    QCOMPARE(meter.getCurrencyUnit(), currency);
    QCOMPARE(journal.lines(), QStringList({"AdviceOfCharge::chargeType", "AdviceOfCharge::priceAndCurrency"}));
    RecordingTranslator translator;
    translator.add(QStringLiteral("TXT_RID_LIST_A_GBP"), QString::fromUtf8("£"));
    QCOMPARE(meter.getCurrencyUnit(), currency == "GBP" ? QString::fromUtf8("£") : currency);
}

void TestCurrencies::anyOtherChargeTypeHasNoUnit()
{
    for (int type = 2; type <= 255; ++type) {
        script().answer("AdviceOfCharge::chargeType", quint8(type));
        journal.clear();
        QVERIFY(meter.getCurrencyUnit().isNull());
        QCOMPARE(journal.lines(), QStringList("AdviceOfCharge::chargeType"));
    }
}

void TestCurrencies::aFailedChargeTypeHasNoUnitAndAsksNoMore()
{
    script().answer("AdviceOfCharge::chargeType", quint8(1));
    script().answer("AdviceOfCharge::priceAndCurrency", QString("0.10"), QString("GBP"));
    for (const int code : {1, 2, -1}) {
        script().fail("AdviceOfCharge::chargeType", code);
        journal.clear();
        QVERIFY(meter.getCurrencyUnit().isNull());
        QCOMPARE(journal.lines(), QStringList("AdviceOfCharge::chargeType"));
    }
}

void TestCurrencies::aFailedCurrencyHasNoUnit()
{
    script().answer("AdviceOfCharge::chargeType", quint8(1));
    script().answer("AdviceOfCharge::priceAndCurrency", QString("0.10"), QString("GBP"));
    script().fail("AdviceOfCharge::priceAndCurrency", 3);
    QVERIFY(meter.getCurrencyUnit().isNull());
}

void TestCurrencies::theUnitTracesItsTranslationOnly_data()
{
    QTest::addColumn<quint8>("type");
    QTest::addColumn<int>("typeStatus");
    QTest::addColumn<int>("currencyStatus");
    QTest::addColumn<QString>("translated");
    QTest::newRow("units") << quint8(0) << 0 << 0 << "units";
    QTest::newRow("a currency") << quint8(1) << 0 << 0 << "GBP";
    QTest::newRow("another charge type") << quint8(2) << 0 << 0 << QString();
    QTest::newRow("no charge type") << quint8(1) << 5 << 0 << QString();
    QTest::newRow("no currency") << quint8(1) << 0 << 5 << QString();
}

void TestCurrencies::theUnitTracesItsTranslationOnly()
{
    QFETCH(const quint8, type);
    QFETCH(const int, typeStatus);
    QFETCH(const int, currencyStatus);
    QFETCH(const QString, translated);
    script().answer("AdviceOfCharge::chargeType", type);
    script().answer("AdviceOfCharge::priceAndCurrency", QString("0.10"), QString("GBP"));
    script().fail("AdviceOfCharge::chargeType", typeStatus);
    script().fail("AdviceOfCharge::priceAndCurrency", currencyStatus);
    meter.getCurrencyUnit();
    const QString message = QStringLiteral("PHONE_UI_RecentCallMeter::TranslateCurrency string=%1.\\n");
    QCOMPARE(traces->take(),
             translated.isNull() ? QString() : longTrace(source, "TranslateCurrency", message.arg(translated)));
}

KAV_TEST_GROUP(TestCurrencies, QApplication);
#include "tst_currencies.moc"
