// Whatever a byte of the log's header says, no call is lost: the tables tell that it is a call log of ours, too.
#include "calllog/Schema.h"
#include "handset/CallLog.h"
#include "handset/HandsetTestKit.h"
#include "handset/PacketData.h"
#include "handset/Status.h"
#include "handset/calllog/repair/DamagedLogs.h"
#include "support/Sample.h"
#include "support/TestGroup.h"

#include <QtCore/QDir>

using namespace handset;
using namespace handset::test;

namespace {

constexpr int headerSize = 100;
constexpr int recordedCalls = 400;

/// All that must be found again.
struct Content {
    SixFigures figures;
    QStringList calls;
    QStringList sessions;
    QString sessionTotals;
    QByteArray cost;

    friend bool operator==(const Content &, const Content &) = default;
};

Content contentOf(const StateDir &state, Phone &phone)
{
    Content content;
    content.figures = phone.figures();
    if (phone.log().dialedCallsCost(content.cost) != Success)
        content.cost = "unknown";
    phone.close();
    const LogFile file(state.database());
    for (const LoggedCall &call : file.calls())
        content.calls << QStringLiteral("%1 %2 %3 %4 %5 %6")
                             .arg(call.id)
                             .arg(call.kind)
                             .arg(call.direction)
                             .arg(call.number)
                             .arg(call.durationMs)
                             .arg(call.state);
    content.sessions = file.sessions();
    content.sessionTotals = file.sessionTotals();
    return content;
}

/// A changed header, and which byte it is.
struct Change {
    int at;
    char value;
};

QList<Change> changesOf(const QByteArray &header)
{
    QList<Change> changes;
    for (int at = 0; at < headerSize; ++at) {
        const char value = header[at];
        for (const char changed : {static_cast<char>(value ^ 1), static_cast<char>(value ^ 0x40), '\0', '\xff'})
            if (changed != value)
                changes.append({at, changed});
    }
    return changes;
}

} // namespace

class TestDamagedHeader : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void aByteOfTheHeaderCostsNoCall();
    void aByteOfTheHeaderCostsNoCallOfALogThatWasNotClosed();
    void aHeaderThatIsGoneAsAWholeCostsNoCall();
    void aPageSizeThatIsWrongIsFoundInALogThatWasCutOff();
    void aVersionThatIsWrongAloneIsNotANewerLog();
    void aNewerLogIsAnErrorAndStaysAsItIs_data();
    void aNewerLogIsAnErrorAndStaysAsItIs();

private:
    void checkChange(const QByteArray &database, const QByteArray &wal);

    QByteArray closed;
    QByteArray crashed;
    QByteArray crashedWal;
    Content content;
};

void TestDamagedHeader::initTestCase()
{
    const StateDir state;
    {
        Phone phone(state.path());
        for (int i = 0; i < recordedCalls; ++i)
            QVERIFY(i % 3 == 0 ? phone.answered(i * 100 + 1) : phone.dialed(i * 100 + 1));
        for (int i = 1; i < 9; ++i)
            QVERIFY(phone.session(i * second, QByteArray::number(i), 10, 20));
        QCOMPARE(phone.log().resetAnsweredCallsTime(), int(Success));
        QCOMPARE(phone.packets().resetTotalBytes(), int(Success));
    }
    // With a short write-ahead log: that of a big one is worked in by opening it.
    Phone phone(state.path());
    QVERIFY(phone.dialed(90 * second));
    crashed = readFile(state.database());
    crashedWal = readFile(state.file(QStringLiteral("calllog.db-wal")));
    content = contentOf(state, phone);
    closed = readFile(state.database());
    QVERIFY(crashedWal.size() > 0);
    QVERIFY(closed.size() > 9 * pageSize);
    QCOMPARE(content.calls.size(), recordedCalls + 1);
}

void TestDamagedHeader::checkChange(const QByteArray &database, const QByteArray &wal)
{
    const StateDir state;
    QVERIFY(QDir().mkpath(state.path()));
    QVERIFY(writeFile(state.database(), database));
    QVERIFY(wal.isEmpty() || writeFile(state.file(QStringLiteral("calllog.db-wal")), wal));
    Phone phone(state.path());
    QVERIFY2(phone, qPrintable(phone.opened.error));
    const QString notice = phone.opened.notice;
    const Content found = contentOf(state, phone);
    QCOMPARE(found.figures, content.figures);
    QCOMPARE(found.calls, content.calls);
    QVERIFY(found == content);
    const QString damaged =
        QStringLiteral("The call log is damaged; it was kept as \"calllog-kept-1.db\" and a new one "
                       "was begun with the calls (%1) and data sessions (%2) that could be read.");
    if (!notice.isEmpty()) {
        QCOMPARE(notice, damaged.arg(content.calls.size()).arg(content.sessions.size()));
        QCOMPARE(readFile(state.file(QStringLiteral("calllog-kept-1.db"))), database);
    } else {
        QCOMPARE(state.names(), QStringList{QStringLiteral("calllog.db")});
    }
}

void TestDamagedHeader::aByteOfTheHeaderCostsNoCall()
{
    const auto changes = changesOf(closed);
    for (qsizetype i = 0; i < changes.size(); i += sampleStride(5)) {
        const Change &change = changes[i];
        QByteArray database = closed;
        database[change.at] = change.value;
        checkChange(database, {});
        if (QTest::currentTestFailed()) {
            qInfo("byte %d is 0x%02x", change.at, static_cast<unsigned char>(change.value));
            return;
        }
    }
}

void TestDamagedHeader::aByteOfTheHeaderCostsNoCallOfALogThatWasNotClosed()
{
    for (int at = 0; at < headerSize; at += sampleStride(3)) {
        QByteArray database = crashed;
        database[at] = static_cast<char>(database[at] ^ 0x11);
        checkChange(database, crashedWal);
        if (QTest::currentTestFailed()) {
            qInfo("byte %d is 0x%02x", at, static_cast<unsigned char>(database[at]));
            return;
        }
    }
}

void TestDamagedHeader::aHeaderThatIsGoneAsAWholeCostsNoCall()
{
    for (const char filling : {'\0', '\xff'})
        checkChange(QByteArray(closed).replace(0, headerSize, QByteArray(headerSize, filling)), {});
}

void TestDamagedHeader::aPageSizeThatIsWrongIsFoundInALogThatWasCutOff()
{
    for (const char wrong : {'\x20', '\x08', '\x00'}) {
        const StateDir state;
        QVERIFY(QDir().mkpath(state.path()));
        QByteArray database = closed.chopped(10);
        database[16] = wrong;
        QVERIFY(writeFile(state.database(), database));
        Phone phone(state.path());
        QVERIFY2(phone, qPrintable(phone.opened.error));
        QVERIFY(phone.opened.notice.startsWith(QStringLiteral("The call log is damaged")));
        phone.close();
        QVERIFY(LogFile(state.database()).calls().size() > recordedCalls / 3);
    }
}

void TestDamagedHeader::aVersionThatIsWrongAloneIsNotANewerLog()
{
    QByteArray database = closed;
    database[63] = 77;
    checkChange(database, {});
}

void TestDamagedHeader::aNewerLogIsAnErrorAndStaysAsItIs_data()
{
    QTest::addColumn<QString>("statement");
    QTest::newRow("with one table more")
        << QStringLiteral("CREATE TABLE notes (id INTEGER PRIMARY KEY, note TEXT NOT NULL) STRICT");
    QTest::newRow("with another column") << QStringLiteral("ALTER TABLE calls RENAME COLUMN number TO name");
    QTest::newRow("with one table less") << QStringLiteral("DROP TABLE totals");
}

void TestDamagedHeader::aNewerLogIsAnErrorAndStaysAsItIs()
{
    QFETCH(QString, statement);
    const StateDir state;
    QVERIFY(QDir().mkpath(state.path()));
    QVERIFY(writeFile(state.database(), closed));
    {
        const LogFile file(state.database());
        QVERIFY(file.run(statement));
        QVERIFY(file.run(QStringLiteral("PRAGMA user_version = %1").arg(calllog::migrations().size() + 1)));
    }
    const QByteArray newer = readFile(state.database());
    for (int starts = 0; starts < 2; ++starts) {
        QCOMPARE(Phone(state.path()).opened.error,
                 QStringLiteral("The call log \"%1\" cannot be used: it was written by a newer version.")
                     .arg(state.database()));
        QCOMPARE(readFile(state.database()), newer);
        QCOMPARE(state.names(), QStringList{QStringLiteral("calllog.db")});
    }
}

KAV_TEST_GROUP(TestDamagedHeader, QCoreApplication);
#include "tst_damaged_header.moc"
