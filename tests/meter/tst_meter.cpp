// kavmeter, as a shell runs it, over states that telephones have left or have open.
#include "calllog/Charging.h"
#include "handset/AdviceOfCharge.h"
#include "handset/HandsetTestKit.h"
#include "handset/Status.h"
#include "support/TestGroup.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>

#include <csignal>

using namespace handset;
using namespace handset::test;

namespace {

struct Ran {
    int code = -1;
    QByteArray output;
    QByteArray error;
};

Ran run(const QString &state, const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral(KAV_METER), QStringList{QStringLiteral("--state"), state} + arguments);
    if (!process.waitForFinished(60'000) || process.exitStatus() != QProcess::NormalExit)
        return {-1, {}, process.errorString().toUtf8()};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

QJsonArray rowsOf(const Ran &ran)
{
    return QJsonDocument::fromJson(ran.output).array();
}

QJsonValue figure(const Ran &ran, const char *name)
{
    const QJsonArray rows = rowsOf(ran);
    for (const QJsonValue &row : rows)
        if (row[u"figure"].toString() == QLatin1String(name))
            return row[u"value"];
    return QJsonValue::Undefined;
}

bool write(const QString &name, const QByteArray &text)
{
    QFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

QByteArray read(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Begun on 2026-01-31 23:59:30 UTC: two dialed calls, the second in February, an answered one, a session.
void makeHistory(const QString &state)
{
    const qint64 start = QDateTime(QDate(2026, 1, 31), QTime(23, 59, 30), Qt::UTC).toMSecsSinceEpoch();
    Phone phone(state, std::make_shared<ManualClock>(start));
    QVERIFY(phone);
    QVERIFY(phone.dialed(65 * second + 900));
    QVERIFY(phone.dialed(25 * second, CallKind::Voice, QStringLiteral("+49,30").remove(u',')));
    QVERIFY(phone.answered(10 * second));
    QVERIFY(phone.session(2 * minute, "internet", 100, 1000));
}

} // namespace

class TestMeter : public QObject
{
    Q_OBJECT

private slots:
    void figuresAreThoseOfTheTelephone();
    void theScreensShowTheSameNumbers();
    void whatATelephoneHasNotIsNoZero();
    void figuresArePrintedForAPersonAndForASpreadsheet();
    void aLanguageChangesWhatAPersonReadsAlone();
    void aReaderMakesNoState();
    void wrongCommandLinesAreTold_data();
    void wrongCommandLinesAreTold();
    void aResetWantsYesAndZeroesItsFigureAlone();
    void aResetReachesATelephoneThatIsOpen();
    void exitCodesTellOfLimitsAndAlerts();
    void callsAndTotalsAreThoseThatAreKept();
    void aDeletedCallLeavesTheTotals();
    void whatIsYoungerThanTheDaysToKeepIsKept();
    void anExportedStateIsImportedExactly();
    void aFileThatIsNoStateChangesNothing_data();
    void aFileThatIsNoStateChangesNothing();
    void watchingShowsChangesAndEndsInOrder();
};

void TestMeter::figuresAreThoseOfTheTelephone()
{
    const StateDir state;
    makeHistory(state.path());
    const Ran ran = run(state.path(), {QStringLiteral("--json")});
    QCOMPARE(ran.error, QByteArray());
    QCOMPARE(ran.code, 0);
    QCOMPARE(figure(ran, "last-time").toInt(), 10);
    QCOMPARE(figure(ran, "dialed-time").toInt(), 90);
    QCOMPARE(figure(ran, "answered-time").toInt(), 10);
    QCOMPARE(figure(ran, "all-time").toInt(), 100);
    QCOMPARE(figure(ran, "lifetime").toInt(), 100);
    QCOMPARE(figure(ran, "dialed-cost").toString(), QStringLiteral("8.00"));
    QCOMPARE(figure(ran, "session-1-time").toInt(), 120);
    QCOMPARE(figure(ran, "bytes-sent").toInt(), 12'000);
    QCOMPARE(figure(ran, "bytes-received").toInt(), 120'000);
    QCOMPARE(figure(ran, "bytes-total").toInt(), 132'000);
}

// The phone's own application reads what its screens show out of a script: here the script says what kavmeter has printed.
void TestMeter::theScreensShowTheSameNumbers()
{
    const StateDir state;
    makeHistory(state.path());
    {
        Phone phone(state.path());
        QVERIFY(phone);
        QVERIFY(phone.dialed(71 * second + 999, CallKind::Data));
        QCOMPARE(phone->charging()->topUp(QStringLiteral("50"), Date{2027, 3, 1}), int{Success});
    }
    const auto shown = [&](const char *name) {
        const QByteArray output = run(state.path(), {"figures", QString::fromLatin1(name)}).output;
        return QString::fromUtf8(output).section(u'\n', 1, 1).mid(static_cast<int>(qstrlen(name))).simplified();
    };
    QString script = QStringLiteral("state kept\nopen callTime\n");
    const auto expect = [&](int row, const char *title, const char *name) {
        script += QStringLiteral("expect row %1 %2 | %3\n").arg(row).arg(QLatin1String(title), shown(name));
    };
    expect(0, "Last Call", "last-time");
    expect(1, "Dialed Calls", "dialed-time");
    expect(2, "Answered Calls", "answered-time");
    expect(3, "Data Calls", "data-call-time");
    expect(4, "All Calls", "all-time");
    expect(5, "Lifetime Calls", "lifetime");
    script += QStringLiteral("press clear\nopen callCost\n");
    expect(0, "Credit Available", "credit");
    expect(2, "Last Deposit", "deposit");
    expect(3, "Last Call Cost", "last-cost");
    expect(4, "Dialed Calls Cost", "dialed-cost");
    expect(5, "Answered Calls Cost", "answered-cost");
    expect(6, "All Calls Cost", "all-cost");
    const QString file = state.sibling(QStringLiteral("screens.tour"));
    QVERIFY(write(file, script.toUtf8()));
    QProcess phone;
    phone.start(QStringLiteral(KAV_HOST),
                {"--state", state.path(), "--tour", state.sibling(QStringLiteral("photos")), "--script", file});
    QVERIFY(phone.waitForFinished(60'000));
    QVERIFY2(phone.exitCode() == 0, phone.readAllStandardError() + script.toUtf8());
    QCOMPARE(shown("last-time"), QStringLiteral("00:01:11"));
}

void TestMeter::whatATelephoneHasNotIsNoZero()
{
    const StateDir state;
    makeHistory(state.path());
    const Ran all = run(state.path(), {QStringLiteral("--json")});
    for (const char *name : {"credit", "deposit", "deposit-expires", "session-2-time", "session-3-sent"})
        QVERIFY2(figure(all, name).isNull(), name);
    const Ran one = run(state.path(), {QStringLiteral("figures"), QStringLiteral("credit")});
    QCOMPARE(one.code, 4);
    QVERIFY(one.output.contains("not available"));
}

void TestMeter::figuresArePrintedForAPersonAndForASpreadsheet()
{
    const StateDir state;
    makeHistory(state.path());
    const QStringList names{QStringLiteral("figures"), QStringLiteral("dialed-time"),
                            QStringLiteral("dialed-cost")};
    QCOMPARE(run(state.path(), names).output, "figure       value     unit\n"
                                              "dialed-time  00:01:30\n"
                                              "dialed-cost  8.00      units\n");
    QCOMPARE(run(state.path(), names + QStringList{QStringLiteral("--csv")}).output,
             "figure,value,unit\r\ndialed-time,90,s\r\ndialed-cost,8.00,units\r\n");
}

void TestMeter::aLanguageChangesWhatAPersonReadsAlone()
{
    const StateDir state;
    makeHistory(state.path());
    const QStringList names{QStringLiteral("figures"), QStringLiteral("dialed-cost"), QStringLiteral("deposit")};
    const QStringList german{QStringLiteral("--language"), QStringLiteral("de")};
    QCOMPARE(run(state.path(), names + german).output, "figure       value            unit\n"
                                                       "dialed-cost  8.00             Einheiten\n"
                                                       "deposit      nicht verfügbar\n");
    // A Han character takes two places.
    QCOMPARE(run(state.path(), names + QStringList{"--language", "zh_CN"}).output, "figure       value   unit\n"
                                                                                   "dialed-cost  8.00    单位\n"
                                                                                   "deposit      不可用\n");
    for (const char *format : {"--json", "--csv"})
        for (const char *command : {"figures", "settings", "calls", "sessions", "totals"}) {
            const QStringList asked{QString::fromLatin1(command), QString::fromLatin1(format)};
            const QByteArray english = run(state.path(), asked).output;
            QVERIFY(!english.isEmpty());
            QCOMPARE(run(state.path(), asked + german).output, english);
        }
}

void TestMeter::aReaderMakesNoState()
{
    const StateDir state;
    for (const char *command : {"figures", "settings", "calls", "sessions", "totals"}) {
        const Ran ran = run(state.path(), {QString::fromLatin1(command)});
        QCOMPARE(ran.code, 3);
        QVERIFY(ran.error.contains("There is no state"));
    }
    QVERIFY(!QDir(state.path()).exists());
}

void TestMeter::wrongCommandLinesAreTold_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("a command that there is not") << QStringList{"nothing"};
    QTest::newRow("a figure that there is not") << QStringList{"figures", "nothing"};
    QTest::newRow("two formats") << QStringList{"--json", "--csv"};
    QTest::newRow("day 29 of a cycle") << QStringList{"totals", "--cycle-day", "29"};
    QTest::newRow("an alert without a number") << QStringList{"--alert", "COST", "much"};
    QTest::newRow("a reset without --yes") << QStringList{"reset", "dialed-time"};
    QTest::newRow("a deletion without --yes") << QStringList{"delete", "all"};
    QTest::newRow("days to keep without a deletion") << QStringList{"calls", "--keep-calls", "3"};
    QTest::newRow("a call that is no number") << QStringList{"--yes", "delete", "first"};
}

void TestMeter::wrongCommandLinesAreTold()
{
    QFETCH(const QStringList, arguments);
    const StateDir state;
    makeHistory(state.path());
    const Ran ran = run(state.path(), arguments);
    QCOMPARE(ran.code, 2);
    QVERIFY(ran.error.startsWith("kavmeter: "));
    QCOMPARE(figure(run(state.path(), {QStringLiteral("--json")}), "dialed-time").toInt(), 90);
}

void TestMeter::aResetWantsYesAndZeroesItsFigureAlone()
{
    const StateDir state;
    makeHistory(state.path());
    QCOMPARE(run(state.path(), {"reset", "dialed-time", "--yes"}).code, 0);
    const Ran ran = run(state.path(), {QStringLiteral("--json")});
    QCOMPARE(figure(ran, "dialed-time").toInt(), 0);
    QCOMPARE(figure(ran, "answered-time").toInt(), 10);
    QCOMPARE(figure(ran, "all-time").toInt(), 100);
    QCOMPARE(figure(ran, "dialed-cost").toString(), QStringLiteral("8.00"));
}

void TestMeter::aResetReachesATelephoneThatIsOpen()
{
    const StateDir state;
    makeHistory(state.path());
    Phone phone(state.path());
    QVERIFY(phone);
    QCOMPARE(run(state.path(), {"reset", "answered-time", "--yes"}).code, 0);
    QCOMPARE(phone.figures().answered, 0U);
    QCOMPARE(phone.figures().dialed, 90U);
}

void TestMeter::exitCodesTellOfLimitsAndAlerts()
{
    const StateDir state;
    makeHistory(state.path());
    QCOMPARE(run(state.path(), {"--alert", "COST", "8"}).code, 6);
    QCOMPARE(run(state.path(), {"--alert", "COST", "8.5"}).code, 0);
    QCOMPARE(run(state.path(), {"--alert", "COST", "8,5"}).code, 0);
    QCOMPARE(run(state.path(), {"--alert", "COST", "7,5"}).code, 6);
    QCOMPARE(run(state.path(), {"--alert", "TIME", "100"}).code, 6);
    QCOMPARE(run(state.path(), {"--alert", "TIME", "101"}).code, 0);
    QCOMPARE(run(state.path(), {"--alert", "BYTES", "132000"}).code, 6);
    QCOMPARE(run(state.path(), {"--alert", "BYTES", "132001"}).code, 0);
    Phone phone(state.path());
    QVERIFY(phone);
    QCOMPARE(phone->adviceOfCharge()->setMeterMaximum(QStringLiteral("9")), int{Success});
    QCOMPARE(run(state.path(), {}).code, 0);
    QCOMPARE(phone->adviceOfCharge()->setMeterMaximum(QStringLiteral("8")), int{Success});
    QCOMPARE(run(state.path(), {}).code, 5);
    const Ran settings = run(state.path(), {"settings", "--json"});
    QCOMPARE(settings.code, 0);
    QCOMPARE(figure(settings, "credit-limit").toString(), QStringLiteral("on"));
    QCOMPARE(figure(settings, "credit-limit-amount").toString(), QStringLiteral("8.00"));
}

void TestMeter::callsAndTotalsAreThoseThatAreKept()
{
    const StateDir state;
    makeHistory(state.path());
    const QJsonArray calls = rowsOf(run(state.path(), {"calls", "--json"}));
    QCOMPARE(calls.size(), 3);
    QCOMPARE(calls[0][u"begun"].toString(), QStringLiteral("2026-01-31T23:59:30Z"));
    QCOMPARE(calls[0][u"time"].toInt(), 65);
    QCOMPARE(calls[1][u"number"].toString(), QStringLiteral("+4930"));
    QCOMPARE(calls[2][u"direction"].toString(), QStringLiteral("answered"));
    QCOMPARE(rowsOf(run(state.path(), {"sessions", "--json"}))[0][u"received"].toInt(), 120'000);

    const QJsonArray months = rowsOf(run(state.path(), {"totals", "--json"}));
    QCOMPARE(months.size(), 2);
    QCOMPARE(months[0][u"from"].toString(), QStringLiteral("2026-01-01"));
    QCOMPARE(months[0][u"dialed"].toInt(), 65);
    QCOMPARE(months[1][u"from"].toString(), QStringLiteral("2026-02-01"));
    QCOMPARE(months[1][u"dialed"].toInt(), 25);
    QCOMPARE(months[1][u"answered"].toInt(), 10);
    QCOMPARE(months[1][u"sent"].toInt(), 12'000);
    const QJsonArray cycles = rowsOf(run(state.path(), {"totals", "--json", "--cycle-day", "15"}));
    QCOMPARE(cycles.size(), 1);
    QCOMPARE(cycles[0][u"from"].toString(), QStringLiteral("2026-01-15"));
    QCOMPARE(cycles[0][u"calls"].toInt(), 3);
    QCOMPARE(rowsOf(run(state.path(), {"totals", "--json", "--by", "day"})).size(), 2);
}

void TestMeter::aDeletedCallLeavesTheTotals()
{
    const StateDir state;
    makeHistory(state.path());
    const QByteArray figures = run(state.path(), {"--json"}).output;
    QCOMPARE(run(state.path(), {"delete", "2", "--yes"}).code, 0);
    QCOMPARE(rowsOf(run(state.path(), {"calls", "--json"})).size(), 2);
    QCOMPARE(run(state.path(), {"delete", "2", "--yes"}).code, 1);
    QCOMPARE(run(state.path(), {"delete", "all", "--yes"}).code, 0);
    const Ran after = run(state.path(), {"--json"});
    QCOMPARE(after.error, QByteArray()); // nothing is taken for damage
    QCOMPARE(after.output, figures);
    QCOMPARE(rowsOf(run(state.path(), {"calls", "--json"})).size(), 0);
}

void TestMeter::whatIsYoungerThanTheDaysToKeepIsKept()
{
    const StateDir state;
    const QDateTime now = QDateTime::currentDateTime();
    for (const int daysAgo : {40, 31, 29}) {
        Phone phone(state.path(), std::make_shared<ManualClock>(now.addDays(-daysAgo).toMSecsSinceEpoch()));
        QVERIFY(phone);
        QVERIFY(phone.dialed(daysAgo * second));
    }
    QCOMPARE(run(state.path(), {"delete", "all", "--keep-calls", "30"}).code, 2);
    QCOMPARE(rowsOf(run(state.path(), {"calls", "--json"})).size(), 3);
    QCOMPARE(run(state.path(), {"delete", "all", "--keep-calls", "30", "--yes"}).code, 0);
    const QJsonArray calls = rowsOf(run(state.path(), {"calls", "--json"}));
    QCOMPARE(calls.size(), 1);
    QCOMPARE(calls[0][u"time"].toInt(), 29);
    QCOMPARE(figure(run(state.path(), {"--json"}), "dialed-time").toInt(), 100);
}

void TestMeter::anExportedStateIsImportedExactly()
{
    const StateDir state;
    makeHistory(state.path());
    const QString file = state.sibling(QStringLiteral("state.json"));
    const QString copy = state.sibling(QStringLiteral("copy"));
    {
        Phone phone(state.path());
        QVERIFY(phone);
        QCOMPARE(phone->charging()->topUp(QStringLiteral("50"), Date{2027, 3, 1}), int{Success});
        QCOMPARE(phone->adviceOfCharge()->setPriceAndCurrency(QStringLiteral("0.23"), QStringLiteral("EUR")), 0);
        const Ran exported = run(state.path(), {"export", file});
        QCOMPARE(exported.error, QByteArray());
        QCOMPARE(exported.code, 0);
    }
    QCOMPARE(QFile::permissions(file) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    const Ran imported = run(copy, {"import", file});
    QCOMPARE(imported.error, QByteArray());
    QCOMPARE(imported.code, 0);
    for (const char *command : {"figures", "settings", "calls", "sessions", "totals"}) {
        const Ran before = run(state.path(), {QString::fromLatin1(command), "--json"});
        const Ran after = run(copy, {QString::fromLatin1(command), "--json"});
        QCOMPARE(after.error, QByteArray());
        QCOMPARE(after.output, before.output);
    }
    const QString again = state.sibling(QStringLiteral("again.json"));
    QCOMPARE(run(copy, {"export", again}).code, 0);
    QCOMPARE(read(again), read(file));
    QCOMPARE(run(copy, {"import", file}).code, 7); // it is not empty any more
}

void TestMeter::aFileThatIsNoStateChangesNothing_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<QByteArray>("says");
    const auto row = [](const char *name, const char *from, const char *to, const char *says) {
        QTest::newRow(name) << QByteArray(from) << QByteArray(to) << QByteArray(says);
    };
    row("no JSON", "\"duration_ms\": 65900", "\"duration_ms\": ,", "line ");
    row("another format", "kavcallmeter-state", "something", "format is not");
    row("a later version", "\"version\": 1\n", "\"version\": 2\n", "version is not 1");
    row("a fraction of a millisecond", "\"duration_ms\": 65900", "\"duration_ms\": 65900.5",
        "calls[0].duration_ms is no whole number");
    row("a column that is missing", "\"apn\": \"internet\",", "", "sessions[0].apn is missing");
    row("a time below zero", "\"duration_ms\": 65900", "\"duration_ms\": -1", "calls[0] is not possible");
    row("rows that the totals contradict", "\"duration_ms\": 65900", "\"duration_ms\": 65901",
        "its totals contradict its rows");
    row("bytes that are none", "\"content\": \"", "\"content\": \"x", "kept[0].content has no pairs");
    row("a card that cannot be read", "\"content\": \"", "\"content\": \"00", "kept[0].content cannot be read");
}

void TestMeter::aFileThatIsNoStateChangesNothing()
{
    QFETCH(const QByteArray, from);
    QFETCH(const QByteArray, to);
    QFETCH(const QByteArray, says);
    const StateDir state;
    makeHistory(state.path());
    QByteArray text = run(state.path(), {"export", "-"}).output;
    QVERIFY(text.contains(from));
    text.replace(text.indexOf(from), from.size(), to);
    const QString file = state.sibling(QStringLiteral("state.json"));
    QVERIFY(write(file, text));
    const QStringList before = QDir(state.sibling(QString())).entryList(QDir::AllEntries | QDir::Hidden);
    const Ran ran = run(state.sibling(QStringLiteral("copy")), {"import", file});
    QCOMPARE(ran.code, 7);
    QVERIFY2(ran.error.contains(says), ran.error);
    QCOMPARE(QDir(state.sibling(QString())).entryList(QDir::AllEntries | QDir::Hidden), before);
}

void TestMeter::watchingShowsChangesAndEndsInOrder()
{
    const StateDir state;
    makeHistory(state.path());
    QProcess watch;
    watch.start(QStringLiteral(KAV_METER),
                {"--state", state.path(), "--watch", "--csv", "figures", "dialed-time"});
    QByteArray shown;
    const auto shows = [&](const char *line) { return (shown += watch.readAllStandardOutput()).contains(line); };
    QTRY_VERIFY(shows("dialed-time,90,s"));
    QCOMPARE(run(state.path(), {"reset", "dialed-time", "--yes"}).code, 0);
    QTRY_VERIFY(shows("dialed-time,0,s"));
    ::kill(static_cast<pid_t>(watch.processId()), SIGINT);
    QVERIFY(watch.waitForFinished(60'000));
    QCOMPARE(watch.exitStatus(), QProcess::NormalExit);
    QCOMPARE(watch.exitCode(), 0);
}

KAV_TEST_GROUP(TestMeter, QCoreApplication);
#include "tst_meter.moc"
