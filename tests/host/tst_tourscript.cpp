// What a line of a script means.

#include "handset/Operations.h"
#include "host/tour/TourScript.h"
#include "support/TestGroup.h"

#include <QtCore/QRegularExpression>
#include <QtTest/QTest>

using namespace host::tour;

class TestTourScript : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void commentsAndBlankLinesAreSkippedAndLinesCounted();
    void durations_data();
    void durations();
    void keys_data();
    void keys();
    void calls();
    void tariffs_data();
    void tariffs();
    void chargingAndTheSimCard();
    void failuresAndPacketData();
    void expectedTextsAreReadAsThePhoneShowsThem_data();
    void expectedTextsAreReadAsThePhoneShowsThem();
    void whatIsPrintedCanBeExpected_data();
    void whatIsPrintedCanBeExpected();
    void mistakes_data();
    void mistakes();
    void aMistakeInALineOfMegabytesIsShort_data();
    void aMistakeInALineOfMegabytesIsShort();
};

template <typename T>
static T onlyAction(const QString &line)
{
    const Script script = parseScript("a.tour", line);
    if (script.steps.size() != 1 || !std::holds_alternative<T>(script.steps[0].action)) {
        qWarning("%s: not understood as one such step: %s", qPrintable(line),
                 qPrintable(script.mistakes.join(u' ')));
        return {};
    }
    return std::get<T>(script.steps[0].action);
}

void TestTourScript::commentsAndBlankLinesAreSkippedAndLinesCounted()
{
    const Script script = parseScript("a.tour", "# first\r\n\r\n  state empty  \r\n\t# third\n\tshow\n");
    QCOMPARE(script.mistakes, QStringList());
    QCOMPARE(script.steps.size(), 2);
    QCOMPARE(script.steps[0].line, 3);
    QCOMPARE(script.steps[0].source, "state empty");
    QCOMPARE(script.steps[1].line, 5);
    QCOMPARE(script.place(5), "a.tour:5");
}

void TestTourScript::durations_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint64>("ms");
    QTest::newRow("seconds") << "65s" << qint64{65000};
    QTest::newRow("minutes") << "2m" << qint64{120000};
    QTest::newRow("milliseconds are no minutes") << "250ms" << qint64{250};
    QTest::newRow("all parts") << "1h2m3s4ms" << qint64{3723004};
    QTest::newRow("minutes and milliseconds") << "1m5ms" << qint64{60005};
    QTest::newRow("nothing at all") << "0s" << qint64{0};
    QTest::newRow("more than a field holds") << "100h61m" << qint64{363660000};
    QTest::newRow("a hundred years") << "876000h" << qint64{876000} * 3600000;
    QTest::newRow("more than a hundred years") << "876000h1ms" << qint64{-1};
    QTest::newRow("too long to be a number") << "99999999999999999999s" << qint64{-1};
    QTest::newRow("no unit") << "65" << qint64{-1};
    QTest::newRow("empty") << "" << qint64{-1};
    QTest::newRow("wrong order") << "3s2m" << qint64{-1};
    QTest::newRow("negative") << "-5s" << qint64{-1};
    QTest::newRow("something behind") << "5s!" << qint64{-1};
}

void TestTourScript::durations()
{
    QFETCH(QString, text);
    QFETCH(qint64, ms);
    QCOMPARE(parseDuration(text), ms);
}

void TestTourScript::keys_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QList<Key>>("keys");
    const auto phone = [](std::initializer_list<int> qtKeys) {
        QList<Key> keys;
        for (const int qtKey : qtKeys)
            keys.append(Key{qtKey, {}});
        return keys;
    };
    QTest::newRow("the six keys of a screen")
        << "press up down select left right clear"
        << phone({Qt::Key_Up, Qt::Key_Down, Qt::Key_Select, Qt::Key_Context1, Qt::Key_Context2, Qt::Key_Clear});
    QTest::newRow("digits and signs") << "press 0 9 * #"
                                      << phone({Qt::Key_0, Qt::Key_9, Qt::Key_Asterisk, Qt::Key_NumberSign});
    QTest::newRow("again and again") << "press down*3 **2"
                                     << phone({Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Asterisk,
                                               Qt::Key_Asterisk});
    QTest::newRow("letters of a keyboard") << "press \"Eu\"" << QList<Key>{{Qt::Key_E, "E"}, {Qt::Key_U, "u"}};
    QTest::newRow("a typed number is no number of times")
        << "press \"2*3\"" << QList<Key>{{Qt::Key_2, "2"}, {Qt::Key_Asterisk, "*"}, {Qt::Key_3, "3"}};
    QTest::newRow("text among keys") << "press select \"a b\" left"
                                     << phone({Qt::Key_Select}) +
                                            QList<Key>{{Qt::Key_A, "a"}, {Qt::Key_Space, " "}, {Qt::Key_B, "b"}} +
                                            phone({Qt::Key_Context1});
    QTest::newRow("a letter beyond ASCII")
        << QString::fromUtf8("press \"\xc3\xa4\"") << QList<Key>{{Qt::Key_Adiaeresis, QString(QChar(0xe4))}};
}

void TestTourScript::keys()
{
    QFETCH(QString, line);
    QFETCH(QList<Key>, keys);
    QCOMPARE(onlyAction<Press>(line).keys, keys);
}

void TestTourScript::calls()
{
    const auto call = onlyAction<MakeCall>("call answered voice 1m5s +4930555010");
    QCOMPARE(call.direction, handset::CallDirection::Answered);
    QCOMPARE(call.kind, handset::CallKind::Voice);
    QCOMPARE(call.durationMs, qint64{65000});
    QCOMPARE(call.number, "+4930555010");
    QCOMPARE(onlyAction<MakeCall>("call dialed  data 0s").kind, handset::CallKind::Data);
    QCOMPARE(onlyAction<Dial>("dial *99# data").kind, handset::CallKind::Data);
    QCOMPARE(onlyAction<Dial>("dial *99#").number, "*99#");
    QCOMPARE(onlyAction<Ring>("ring").number, "");
    QCOMPARE(onlyAction<MoveClock>("clock +65s").ms, qint64{65000});
}

void TestTourScript::tariffs_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("isDialed");
    QTest::addColumn<QList<int>>("tenths"); // units, interval, start
    QTest::newRow("free") << "tariff dialed free" << true << QList<int>{0, 0, 0};
    QTest::newRow("a unit each ten seconds") << "tariff dialed 1 per 10s" << true << QList<int>{10, 100, 0};
    QTest::newRow("answered calls") << "tariff answered 0.5  per 1m" << false << QList<int>{5, 600, 0};
    QTest::newRow("units at the start") << "tariff dialed 2 per 100ms start 1.5" << true << QList<int>{20, 1, 15};
    QTest::newRow("the greatest") << "tariff dialed 819.1 per 819s100ms start 819.1" << true
                                  << QList<int>{8191, 8191, 8191};
}

void TestTourScript::tariffs()
{
    QFETCH(QString, line);
    QFETCH(bool, isDialed);
    QFETCH(QList<int>, tenths);
    const auto set = onlyAction<SetTariff>(line);
    QCOMPARE(set.direction == handset::CallDirection::Dialed, isDialed);
    handset::charging::Tariff expected;
    expected.unitsPerInterval = static_cast<quint16>(tenths[0]);
    expected.interval = static_cast<quint16>(tenths[1]);
    expected.unitsAtStart = static_cast<quint16>(tenths[2]);
    QCOMPARE(set.tariff, expected);
}

void TestTourScript::chargingAndTheSimCard()
{
    const auto topUp = onlyAction<TopUp>("topup 20.00 2007-03-09");
    QCOMPARE(topUp.amount, "20.00");
    QCOMPARE(topUp.expires, (handset::Date{2007, 3, 9}));
    QCOMPARE(onlyAction<SetChargeType>("chargetype units").type, quint8{0});
    QCOMPARE(onlyAction<SetChargeType>("chargetype currency").type, quint8{1});
    QCOMPARE(onlyAction<SetPrice>("price 0.23 EUR").price, "0.23");
    QCOMPARE(onlyAction<SetPrice>("price 0.23 EUR").currency, "EUR");
    QCOMPARE(onlyAction<SetLimit>("limit 120").maximum, "120");
    QVERIFY(onlyAction<SetLimit>("limit off").maximum.isNull());
    const auto rule = onlyAction<SetRule>("rule puct pin2");
    QCOMPARE(rule.file, quint8{64});
    QCOMPARE(rule.rule, quint8{4});
    QCOMPARE(onlyAction<SetRule>("rule acm free").file, quint8{61});
    QCOMPARE(onlyAction<SetRule>("rule acm free").rule, quint8{0});
    QCOMPARE(onlyAction<SetRule>("rule acmmax never").file, quint8{59});
    QCOMPARE(onlyAction<SetRule>("rule acmmax never").rule, quint8{6});
    QCOMPARE(onlyAction<SetPin2>("pin2 on").kind, SetPin2::On);
    QCOMPARE(onlyAction<SetPin2>("pin2 off").kind, SetPin2::Off);
    QCOMPARE(onlyAction<SetPin2>("pin2 forgotten").kind, SetPin2::Forgotten);
}

void TestTourScript::failuresAndPacketData()
{
    const auto fail = onlyAction<Fail>("fail AdviceOfCharge::meterMaximum -3");
    QCOMPARE(fail.operation, handset::operationIndex("AdviceOfCharge::meterMaximum"));
    QCOMPARE(fail.code, -3);
    QCOMPARE(onlyAction<Fail>("fail CallService::resetCallTime 0").code, 0);
    QCOMPARE(onlyAction<Fail>("fail nothing").operation, -1);
    const auto session = onlyAction<StartSession>("session start internet.example 100 4294967295");
    QCOMPARE(session.apn, "internet.example");
    QCOMPARE(session.sentPerSecond, quint32{100});
    QCOMPARE(session.receivedPerSecond, quint32{4294967295});
    QCOMPARE(onlyAction<StartSession>(QString::fromUtf8("session start caf\xc3\xa9 1 1")).apn, "caf\xe9");
    onlyAction<StopSession>("session stop");
    onlyAction<Broadcast>("broadcast");
}

void TestTourScript::expectedTextsAreReadAsThePhoneShowsThem_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("word");
    QTest::addColumn<int>("number");
    QTest::addColumn<QStringList>("cells");
    QTest::newRow("a title") << "expect title Call Times"
                             << "title" << -1 << QStringList{"Call Times"};
    QTest::newRow("a row and its value") << "expect row 1 Dialed Calls | 00:01:05"
                                         << "row" << 1 << QStringList{"Dialed Calls", "00:01:05"};
    QTest::newRow("a row without a value") << "expect row 0 Call Times"
                                           << "row" << 0 << QStringList{"Call Times"};
    QTest::newRow("a row with an empty value") << "expect row 0 Credit |"
                                               << "row" << 0 << QStringList{"Credit", ""};
    QTest::newRow("one softkey") << "expect softkeys | Back"
                                 << "softkeys" << -1 << QStringList{"", "Back"};
    QTest::newRow("an empty header") << "expect header"
                                     << "header" << -1 << QStringList{""};
    QTest::newRow("a blank at the end") << "expect message \"in calling. \""
                                        << "message" << -1 << QStringList{"in calling. "};
    QTest::newRow("a bar in quotes") << "expect title \"a | b\""
                                     << "title" << -1 << QStringList{"a | b"};
    QTest::newRow("a quote and a new line") << "expect message \"say \\\"no\\\"\\nnow\""
                                            << "message" << -1 << QStringList{"say \"no\"\nnow"};
    QTest::newRow("blanks within stay") << "expect title a  b"
                                        << "title" << -1 << QStringList{"a  b"};
    QTest::newRow("a separator") << "expect separator 2 Session 1"
                                 << "separator" << 2 << QStringList{"Session 1"};
    QTest::newRow("a disabled row") << "expect disabled 5"
                                    << "disabled" << 5 << QStringList{};
}

void TestTourScript::expectedTextsAreReadAsThePhoneShowsThem()
{
    QFETCH(QString, line);
    QFETCH(QString, word);
    QFETCH(int, number);
    QFETCH(QStringList, cells);
    const auto expect = onlyAction<Expect>(line);
    QCOMPARE(expect.fact.word, word);
    QCOMPARE(expect.fact.number, number);
    QCOMPARE(expect.fact.cells, cells);
    QVERIFY(!expect.absent);
}

void TestTourScript::whatIsPrintedCanBeExpected_data()
{
    QTest::addColumn<QStringList>("cells");
    QTest::newRow("plain") << QStringList{"Dialed Calls", "00:01:05"};
    QTest::newRow("empty value") << QStringList{"Dialed Calls", ""};
    QTest::newRow("empty title") << QStringList{"", "x"};
    QTest::newRow("nothing") << QStringList{""};
    QTest::newRow("both empty") << QStringList{"", ""};
    QTest::newRow("blanks at the ends") << QStringList{" x", "y "};
    QTest::newRow("bars and quotes") << QStringList{"a|b", "\"c\""};
    QTest::newRow("a back slash and a new line") << QStringList{"a\\n", "b\nc"};
    QTest::newRow("letters beyond ASCII") << QStringList{QString::fromUtf8("Gespr\xc3\xa4"
                                                                           "che")};
}

void TestTourScript::whatIsPrintedCanBeExpected()
{
    QFETCH(QStringList, cells);
    const Fact fact{"row", 3, cells};
    QCOMPARE(onlyAction<Expect>("expect " + fact.line()).fact, fact);
}

void TestTourScript::mistakes_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("an unknown word") << "fly";
    QTest::newRow("a word in another case") << "State empty";
    QTest::newRow("a state that there is not") << "state full";
    QTest::newRow("no state") << "state";
    QTest::newRow("a call of no kind") << "call dialed 65s";
    QTest::newRow("a call too long") << "call dialed voice 65s 123 more";
    QTest::newRow("an answered data call") << "call answered data 65s";
    QTest::newRow("dialing nothing") << "dial";
    QTest::newRow("dialing with a word too many") << "dial 123 voice";
    QTest::newRow("answering somebody") << "answer me";
    QTest::newRow("a clock that goes back") << "clock -5s";
    QTest::newRow("a clock without a sign") << "clock 5s";
    QTest::newRow("an unknown screen") << "open nowhere";
    QTest::newRow("no key") << "press";
    QTest::newRow("no such key") << "press middle";
    QTest::newRow("a letter") << "press a";
    QTest::newRow("a key no times") << "press down*0";
    QTest::newRow("a key too many times") << "press down*1001";
    QTest::newRow("a key some times") << "press down*x";
    QTest::newRow("an open quote around keys") << "press \"a";
    QTest::newRow("keys behind a quote without a blank") << "press \"a\"left";
    QTest::newRow("a character that no key has") << QString::fromUtf8("press \"\xe2\x82\xac\"");
    QTest::newRow("nothing between quotes") << "press \"\"";
    QTest::newRow("a tariff of nobody") << "tariff 1 per 10s";
    QTest::newRow("a tariff without an interval") << "tariff dialed 1";
    QTest::newRow("a tariff of hundredths") << "tariff dialed 0.25 per 10s";
    QTest::newRow("a tariff of too many units") << "tariff dialed 819.2 per 10s";
    QTest::newRow("a tariff of too long an interval") << "tariff dialed 1 per 820s";
    QTest::newRow("a tariff of no interval") << "tariff dialed 1 per 0s";
    QTest::newRow("a tariff of less than a tenth of a second") << "tariff dialed 1 per 50ms";
    QTest::newRow("a tariff that starts with nothing") << "tariff dialed 1 per 10s start";
    QTest::newRow("a free tariff with more") << "tariff dialed free 1";
    QTest::newRow("paying in without a day") << "topup 20";
    QTest::newRow("paying in on a day that there is not") << "topup 20 2007-02-29";
    QTest::newRow("paying in what is no amount") << "topup much 2007-03-09";
    QTest::newRow("a charge type that there is not") << "chargetype euros";
    QTest::newRow("a price without a currency") << "price 0.23";
    QTest::newRow("a price that is none") << "price -1 EUR";
    QTest::newRow("a limit that is none") << "limit none";
    QTest::newRow("no limit at all") << "limit";
    QTest::newRow("a rule of an unknown file") << "rule adn free";
    QTest::newRow("a rule that there is not") << "rule acm always";
    QTest::newRow("a rule too long") << "rule acm free now";
    QTest::newRow("a PIN2 that is told") << "pin2 1234";
    QTest::newRow("failing with no code") << "fail CallService::resetCallTime";
    QTest::newRow("failing with no number") << "fail CallService::resetCallTime x";
    QTest::newRow("an operation that there is not") << "fail CallService::nothing 3";
    QTest::newRow("a session without rates") << "session start internet";
    QTest::newRow("a session that sends less than nothing") << "session start internet -1 0";
    QTest::newRow("a session that sends too much") << "session start internet 4294967296 0";
    QTest::newRow("a session of a name beyond Latin-1")
        << QString::fromUtf8("session start caf\xc3\xa9\xe2\x82\xac 1 1");
    QTest::newRow("a session that pauses") << "session pause";
    QTest::newRow("a broadcast with a text") << "broadcast now";
    QTest::newRow("expecting nothing") << "expect";
    QTest::newRow("expecting what is not known") << "expect colour red";
    QTest::newRow("a row without a number") << "expect row Dialed Calls";
    QTest::newRow("a row before the first") << "expect row -1 x";
    QTest::newRow("a row of three columns") << "expect row 1 a | b | c";
    QTest::newRow("softkeys of one") << "expect softkeys Back";
    QTest::newRow("a title of two") << "expect title a | b";
    QTest::newRow("an open quote") << "expect title \"a";
    QTest::newRow("text behind a quote") << "expect title \"a\" b";
    QTest::newRow("text behind a disabled row") << "expect disabled 1 x";
    QTest::newRow("text behind no") << "expect no title x";
    QTest::newRow("a photograph elsewhere") << "photo ../x";
    QTest::newRow("a photograph without a name") << "photo";
    QTest::newRow("a hidden photograph") << "photo .x";
}

void TestTourScript::aMistakeInALineOfMegabytesIsShort_data()
{
    QTest::addColumn<QString>("line");
    const QString much(4'000'000, u'x');
    QTest::newRow("an unknown word") << much;
    QTest::newRow("an unknown key") << "press " + much;
    QTest::newRow("an unknown screen") << "open " + much;
    QTest::newRow("an unknown operation") << "fail " + much + " 3";
}

void TestTourScript::aMistakeInALineOfMegabytesIsShort()
{
    QFETCH(QString, line);
    const Script script = parseScript(QStringLiteral("a.tour"), line);
    QCOMPARE(script.mistakes.size(), 1);
    QVERIFY2(script.mistakes[0].size() < 400, qPrintable(script.mistakes[0].left(1'000)));
    QVERIFY(script.mistakes[0].contains(" ... "));
}

void TestTourScript::mistakes()
{
    QFETCH(QString, line);
    const Script script = parseScript("a.tour", "show\n" + line + "\nshow\n");
    QCOMPARE(script.mistakes.size(), 1);
    QVERIFY2(script.mistakes[0].startsWith("a.tour:2: "), qPrintable(script.mistakes[0]));
    QCOMPARE(script.steps.size(), 2);
}

KAV_TEST_GROUP(TestTourScript, QCoreApplication);
#include "tst_tourscript.moc"
