// What is left of the packet-data sessions of a damaged log.
#include "calllog/Schema.h"
#include "handset/HandsetTestKit.h"
#include "handset/PacketData.h"
#include "handset/Status.h"
#include "support/Sample.h"
#include "support/TestGroup.h"

#include <QtCore/QDir>

#include <algorithm>
#include <limits>
#include <random>

using namespace handset;
using namespace handset::test;

namespace {

constexpr qint64 pageSize = 4096;
constexpr int wholeSessions = 800;
constexpr qsizetype mostSessionsOfAPage = 180;

const QString damaged =
    QStringLiteral("The call log is damaged; it was kept as \"calllog-kept-1.db\" and a new one "
                   "was begun with the calls ");

/// Milliseconds, bytes sent and received.
QString sumsOf(const QStringList &rows)
{
    qint64 sums[3] = {0, 0, 0};
    for (const QString &row : rows)
        for (int i = 0; i < 3; ++i)
            sums[i] += row.section(QLatin1Char(' '), 2 + i, 2 + i).toLongLong();
    return QStringLiteral("%1 %2 %3").arg(sums[0]).arg(sums[1]).arg(sums[2]);
}

QString idOf(const QString &row)
{
    return row.section(QLatin1Char(' '), 0, 0);
}

} // namespace

class TestDamagedSessions : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void aPageOverwrittenCostsNoMoreThanItsSessions_data();
    void aPageOverwrittenCostsNoMoreThanItsSessions();
    void aLogCutOffAtAnyPageKeepsWhatIsLeft();
    void aLogWithWrongTablesIsReplaced_data();
    void aLogWithWrongTablesIsReplaced();
    void theNoticeSaysWhatWasCounted_data();
    void theNoticeSaysWhatWasCounted();
    void sessionsThatNoHandsetWroteAreLeftOut();
    void totalsAreCountedUpToTheirEnd();
    void aSessionThatWasRunningIsInterrupted();
    void aDamagedLogOfTheFirstVersionHasNoSessions();
    void aBigLogIsReadAsFarAsTheSlotsDependOnIt();

private:
    bool openAndCheck(const StateDir &state, qsizetype &kept);

    QByteArray closed;
    QStringList rows;
    QString totals; ///< not the sums: they were reset
};

void TestDamagedSessions::initTestCase()
{
    const StateDir state;
    {
        Phone phone(state.path());
        QVERIFY(phone.dialed(3 * second));
        for (int i = 1; i <= wholeSessions; ++i) {
            if (i == 5)
                QCOMPARE(phone.packets().resetTotalBytes(), int(Success));
            QVERIFY(phone.session(i * 10, QByteArray::number(i), 100, 1000));
        }
    }
    closed = readFile(state.database());
    const LogFile file(state.database());
    rows = file.sessions();
    totals = file.sessionTotals();
    QCOMPARE(rows.size(), wholeSessions);
    QVERIFY(totals != sumsOf(rows));
}

/// Whatever is in the directory: there must be a handset that works, a notice, and a sound log with nothing in it but
/// what was recorded.
bool TestDamagedSessions::openAndCheck(const StateDir &state, qsizetype &kept)
{
    Phone phone(state.path());
    if (!phone || !phone.opened.notice.startsWith(damaged))
        return false;
    phone.sessions();
    phone.close();
    const LogFile file(state.database());
    const QStringList left = file.sessions();
    kept = left.size();
    for (const QString &row : left)
        if (row != rows.value(idOf(row).toInt() - 1))
            return false;
    if (file.value(QStringLiteral("PRAGMA integrity_check")) != QVariant(QStringLiteral("ok")))
        return false;
    if (file.sessionTotals() != totals && file.sessionTotals() != sumsOf(left))
        return false;
    Phone again(state.path());
    return again.opened.notice.isEmpty() && again.session(second) &&
           again.sessions().first().endsWith(QStringLiteral(" internet 1 0 0"));
}

void TestDamagedSessions::aPageOverwrittenCostsNoMoreThanItsSessions_data()
{
    QTest::addColumn<QByteArray>("filling");
    QTest::newRow("with zeros") << QByteArray(pageSize, '\0');
    std::mt19937 random(1);
    QByteArray noise(pageSize, '\0');
    std::generate(noise.begin(), noise.end(), [&] { return static_cast<char>(random()); });
    QTest::newRow("with noise") << noise;
}

void TestDamagedSessions::aPageOverwrittenCostsNoMoreThanItsSessions()
{
    QFETCH(QByteArray, filling);
    const qint64 pages = closed.size() / pageSize;
    qint64 complete = 0;
    qint64 inTheMiddle = 0; // some lost, and the newest kept
    for (qint64 page = 1; page < pages; ++page) {
        const StateDir state;
        QVERIFY(QDir().mkpath(state.path()));
        QByteArray content = closed;
        QVERIFY(writeFile(state.database(), content.replace(page * pageSize, pageSize, filling)));
        qsizetype kept = 0;
        QVERIFY2(openAndCheck(state, kept), qPrintable(QStringLiteral("page %1").arg(page)));
        complete += kept >= wholeSessions - mostSessionsOfAPage ? 1 : 0;
        const LogFile file(state.database());
        inTheMiddle += kept < wholeSessions && file.sessions().contains(rows.last()) ? 1 : 0;
    }
    // All but the page that leads to all others.
    QVERIFY2(complete >= pages - 2, qPrintable(QString::number(complete)));
    QVERIFY(inTheMiddle >= 3);
}

void TestDamagedSessions::aLogCutOffAtAnyPageKeepsWhatIsLeft()
{
    qsizetype most = 0;
    for (qint64 length = pageSize; length < closed.size(); length += sampleStride(3) * pageSize) {
        const StateDir state;
        QVERIFY(QDir().mkpath(state.path()));
        QVERIFY(writeFile(state.database(), closed.left(length)));
        qsizetype kept = 0;
        QVERIFY2(openAndCheck(state, kept), qPrintable(QStringLiteral("length %1").arg(length)));
        QVERIFY(kept >= most); // a longer one never has fewer
        most = kept;
    }
    QVERIFY(most > wholeSessions / 2);
}

void TestDamagedSessions::aLogWithWrongTablesIsReplaced_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("notice"); // behind the beginning
    QTest::addColumn<bool>("areThere");
    QTest::addColumn<int>("whichTotals"); // 0 as they were, 1 the sums
    const QString both = QStringLiteral("(1) and data sessions (800) that could be read");
    QTest::newRow("a total that is missing")
        << QStringLiteral("DELETE FROM session_totals WHERE counter = 'sent'")
        << both + QStringLiteral(" and data totals counted from them.") << true << 1;
    QTest::newRow("no totals at all") << QStringLiteral("DROP TABLE session_totals")
                                      << both + QStringLiteral(" and data totals counted from them.") << true << 1;
    QTest::newRow("no timers") << QStringLiteral("DROP TABLE totals")
                               << both + QStringLiteral(" and timers counted from them.") << true << 0;
    QTest::newRow("no sessions at all")
        << QStringLiteral("DROP TABLE sessions") << QStringLiteral("that could be read (1).") << false << 0;
    QTest::newRow("a column that is missing") << QStringLiteral("ALTER TABLE sessions RENAME COLUMN apn TO name")
                                              << QStringLiteral("that could be read (1).") << false << 0;
    QTest::newRow("a total's column that is missing")
        << QStringLiteral("ALTER TABLE session_totals RENAME COLUMN value TO ms")
        << both + QStringLiteral(" and data totals counted from them.") << true << 1;
}

void TestDamagedSessions::aLogWithWrongTablesIsReplaced()
{
    QFETCH(QString, statement);
    QFETCH(QString, notice);
    QFETCH(bool, areThere);
    QFETCH(int, whichTotals);
    const StateDir state;
    QVERIFY(QDir().mkpath(state.path()));
    QVERIFY(writeFile(state.database(), closed));
    QVERIFY(LogFile(state.database()).run(statement));
    Phone phone(state.path());
    QVERIFY2(phone, qPrintable(phone.opened.error));
    QCOMPARE(phone.opened.notice, damaged + notice);
    QCOMPARE(phone.sessions().size(), areThere ? 3 : 0);
    phone.close();
    const LogFile file(state.database());
    QCOMPARE(file.sessions(), areThere ? rows : QStringList());
    QCOMPARE(file.sessionTotals(), whichTotals == 0 ? totals : sumsOf(rows));
    QCOMPARE(file.calls().size(), 1);
}

void TestDamagedSessions::theNoticeSaysWhatWasCounted_data()
{
    QTest::addColumn<bool>("hasSession");
    QTest::addColumn<QString>("notice");
    QTest::newRow("with a session") << true
                                    << QStringLiteral(
                                           "(1) and data sessions (1) that could be read and timers and "
                                           "data totals counted from them.");
    QTest::newRow("without") << false << QStringLiteral("that could be read (1) and timers counted from them.");
}

void TestDamagedSessions::theNoticeSaysWhatWasCounted()
{
    QFETCH(bool, hasSession);
    QFETCH(QString, notice);
    const StateDir state;
    {
        Phone phone(state.path());
        QVERIFY(phone.dialed(3 * second));
        QVERIFY(!hasSession || phone.session(4 * second));
    }
    for (const char *table : {"totals", "session_totals"})
        QVERIFY(LogFile(state.database()).run(QStringLiteral("DELETE FROM %1").arg(QLatin1String(table))));
    const Phone phone(state.path());
    QCOMPARE(phone.opened.notice, damaged + notice);
    QCOMPARE(phone.figures().dialed, quint64{3});
    QCOMPARE(phone.sessionTotals(), hasSession ? QStringLiteral("4 0 0 0") : QStringLiteral("0 0 0 0"));
}

void TestDamagedSessions::sessionsThatNoHandsetWroteAreLeftOut()
{
    const StateDir state;
    {
        Phone phone(state.path());
        QVERIFY(phone.session(second, "good", 1, 1));
    }
    {
        const LogFile file(state.database());
        QVERIFY(file.run(QStringLiteral("PRAGMA ignore_check_constraints = ON")));
        const QString insert =
            QStringLiteral("INSERT INTO sessions (id, apn, started_ms, duration_ms, sent, received, state)"
                           " VALUES (%1)");
        for (const char *values :
             {"-4, 'x', 0, 1, 1, 1, 1", "0, 'x', 0, 1, 1, 1, 1", "9000000000000000000, 'x', 0, 1, 1, 1, 1",
              "10, '', 0, 1, 1, 1, 1", "11, printf('%.102c', 'x'), 0, 1, 1, 1, 1", "12, char(8364), 0, 1, 1, 1, 1",
              "13, char(97, 0, 97), 0, 1, 1, 1, 1", "14, 'x', 0, -1, 1, 1, 1", "15, 'x', 0, 1, -1, 1, 1",
              "16, 'x', 0, 1, 1, -1, 1", "17, 'x', 0, 1, 1, 1, 2", "18, 'x', 0, 1, 1, 1, 4",
              "20, printf('%.101c', 'x') , -5, 1, 1, 1, 3"})
            QVERIFY2(file.run(insert.arg(QLatin1String(values))), values);
        QVERIFY(file.run(QStringLiteral("DELETE FROM session_totals")));
    }
    {
        const Phone phone(state.path());
        QVERIFY2(phone.opened.notice.contains(QStringLiteral("data sessions (2)")),
                 qPrintable(phone.opened.notice));
        QCOMPARE(phone.sessionTotals(), QStringLiteral("1 2 2 4"));
    }
    const QStringList left = LogFile(state.database()).sessions();
    QCOMPARE(left, (QStringList{QStringLiteral("1 good 1000 1 1 1"),
                                QStringLiteral("20 %1 1 1 1 3").arg(QString(101, QLatin1Char('x')))}));
}

void TestDamagedSessions::totalsAreCountedUpToTheirEnd()
{
    const StateDir state;
    QVERIFY(Phone(state.path()).session(second, "a", 1, 1));
    {
        const LogFile file(state.database());
        const qint64 most = std::numeric_limits<qint64>::max();
        QVERIFY(file.run(
            QStringLiteral("INSERT INTO sessions (id, apn, started_ms, duration_ms, sent, received, state)"
                           " VALUES (2, 'b', 0, %1, %1, %1, 1)")
                .arg(most)));
        QVERIFY(file.run(QStringLiteral("DROP TABLE session_totals")));
    }
    Phone phone(state.path());
    QCOMPARE(phone.sessions().size(), 2);
    phone.close();
    QCOMPARE(LogFile(state.database()).sessionTotals(),
             QStringLiteral("%1 %1 %1").arg(std::numeric_limits<qint64>::max()));
}

void TestDamagedSessions::aSessionThatWasRunningIsInterrupted()
{
    const StateDir state;
    const StateDir crashed;
    Phone phone(state.path());
    QCOMPARE(phone->packets().startSession("x", 1, 1), int(Success));
    phone.clock->advance(4 * second);
    QCOMPARE(phone->checkpoint(), int(Success));
    QVERIFY(copyState(state.path(), crashed.path()));
    QVERIFY(LogFile(crashed.database()).run(QStringLiteral("DELETE FROM totals")));
    Phone next(crashed.path());
    QVERIFY(next.opened.notice.startsWith(damaged));
    QVERIFY(!next->packets().isSessionRunning());
    QCOMPARE(next.sessions(), QStringList{QStringLiteral("1 x 4 4 4")});
    next.close();
    QCOMPARE(LogFile(crashed.database()).sessions(), QStringList{QStringLiteral("1 x 4000 4 4 3")});
}

void TestDamagedSessions::aDamagedLogOfTheFirstVersionHasNoSessions()
{
    const StateDir state;
    QVERIFY(QDir().mkpath(state.path()));
    {
        calllog::Database database(state.database(), calllog::Database::Access::ReadWrite);
        QVERIFY(calllog::migrate(database, calllog::migrations().first(1)));
        QVERIFY(database.run(QStringLiteral("INSERT INTO calls VALUES (1, 0, 0, '12', 0, 61000, 1)")));
        QVERIFY(database.run(QStringLiteral("DELETE FROM totals WHERE counter = 'all'")));
    }
    Phone phone(state.path());
    QCOMPARE(phone.opened.notice,
             damaged + QStringLiteral("that could be read (1) and timers counted from them."));
    QCOMPARE(phone.figures().dialed, quint64{61});
    QCOMPARE(phone.sessions(), QStringList());
    QVERIFY(phone.session(2 * second, "x", 1, 1));
    QCOMPARE(phone.sessions(), QStringList{QStringLiteral("1 x 2 2 2")});
}

// A big log that was closed is not read through: but the third newest session may be on another page than the newest.
void TestDamagedSessions::aBigLogIsReadAsFarAsTheSlotsDependOnIt()
{
    const StateDir state;
    const auto name = [](int number) { return QByteArray::number(number) + QByteArray(95, 'a'); };
    const auto pageOf = [&](int number) {
        const QByteArray content = readFile(state.database());
        return content.lastIndexOf(name(number)) / pageSize;
    };
    int newest = 1000;
    QVERIFY(Phone(state.path()).session(second, name(newest)));
    do {
        QVERIFY(Phone(state.path()).session(second, name(++newest)));
    } while (newest < 1100 && (newest < 1003 || pageOf(newest) == pageOf(newest - 2)));
    QVERIFY(newest < 1100);
    const PastCall call{CallKind::Voice, CallDirection::Dialed, QString(40, QLatin1Char('5')), 0, second};
    QCOMPARE(Phone(state.path())->addHistory(QList<PastCall>(150'000, call)), int(Success));
    QByteArray content = readFile(state.database());
    QVERIFY(content.size() > 4 << 20);
    QVERIFY(writeFile(state.database(),
                      content.replace(pageOf(newest - 2) * pageSize, pageSize, QByteArray(pageSize, '\0'))));
    const Phone phone(state.path());
    QVERIFY2(phone.opened.notice.startsWith(damaged), qPrintable(phone.opened.notice));
    QVERIFY(phone.sessions().first().contains(QString::fromLatin1(name(newest))));
    QCOMPARE(phone.sessionTotals().section(QLatin1Char(' '), 0, 0), QString::number(newest - 999));
}

KAV_TEST_GROUP(TestDamagedSessions, QCoreApplication);
#include "tst_damaged_sessions.moc"
