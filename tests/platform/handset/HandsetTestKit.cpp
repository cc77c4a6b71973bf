#include "handset/HandsetTestKit.h"

#include "calllog/Schema.h"
#include "handset/CallLog.h"
#include "handset/CallService.h"
#include "handset/DataCalls.h"
#include "handset/PacketData.h"
#include "handset/Status.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlQuery>

namespace handset::test {

namespace {

quint64 seconds(const CallTime &time)
{
    return quint64{time.hours} * 3600 + quint64{time.minutes} * 60 + time.seconds;
}

template <typename Role>
quint64 query(Role &role, int (Role::*operation)(CallTime &))
{
    CallTime time;
    const int status = (role.*operation)(time);
    if (status != Success)
        QTest::qFail(qPrintable(QStringLiteral("a query answered %1").arg(status)), __FILE__, __LINE__);
    return seconds(time);
}

quint64 dataSeconds(DataCalls &calls)
{
    quint32 total = 0;
    const int status = calls.totalDuration(total);
    if (status != Success)
        QTest::qFail(qPrintable(QStringLiteral("the data-call total answered %1").arg(status)), __FILE__,
                     __LINE__);
    return total;
}

// Hundreds of logs are made here, each with several commits.
QString quickDirectory()
{
    const QString inMemory = QStringLiteral("/dev/shm");
    return QFileInfo(inMemory).isWritable() ? inMemory : QDir::tempPath();
}

} // namespace

char *toString(const SixFigures &figures)
{
    return QTest::toString(QStringLiteral("last %1, dialed %2, answered %3, data %4, all %5, lifetime %6")
                               .arg(figures.last)
                               .arg(figures.dialed)
                               .arg(figures.answered)
                               .arg(figures.data)
                               .arg(figures.all)
                               .arg(figures.lifetime));
}

SixFigures figuresOf(Handset &handset)
{
    CallLog &log = *handset.callLog();
    return {query(log, &CallLog::lastCallTime),
            query(log, &CallLog::dialedCallsTime),
            query(log, &CallLog::answeredCallsTime),
            handset.dataCalls() ? dataSeconds(*handset.dataCalls()) : 0,
            query(*handset.callService(), &CallService::totalCallTime),
            query(log, &CallLog::lifetimeCallsTime)};
}

QStringList sessionsOf(Handset &handset)
{
    DataSessions answer;
    if (handset.packetData()->sessions(answer) != Success || answer.count > answer.records.size())
        QTest::qFail("the sessions cannot be read", __FILE__, __LINE__);
    QStringList lines;
    for (std::size_t i = 0; i < answer.records.size(); ++i) {
        const DataSession &session = answer.records[i];
        const bool isUsed = i < answer.count;
        if (isUsed != (session.id != 0) || isUsed == session.apn.isEmpty())
            QTest::qFail("a used slot is empty, or an unused one is not", __FILE__, __LINE__);
        if (isUsed)
            lines << QStringLiteral("%1 %2 %3 %4 %5")
                         .arg(session.id)
                         .arg(QString::fromLatin1(session.apn))
                         .arg(seconds(session.duration))
                         .arg(session.bytesSent)
                         .arg(session.bytesReceived);
    }
    return lines;
}

QString sessionTotalsOf(Handset &handset)
{
    quint32 total = 0;
    quint32 received = 0;
    quint32 sent = 0;
    if (handset.packetData()->totalBytes(total, received, sent) != Success)
        QTest::qFail("the bytes of all sessions cannot be read", __FILE__, __LINE__);
    const quint64 duration = query(*handset.packetData(), &PacketData::totalDuration);
    return QStringLiteral("%1 %2 %3 %4").arg(duration).arg(sent).arg(received).arg(total);
}

StateDir::StateDir(Place place)
    : temporary((place == Anywhere ? quickDirectory() : QCoreApplication::applicationDirPath()) +
                QStringLiteral("/kav-state-XXXXXX"))
{}

QStringList StateDir::names() const
{
    QStringList found = QDir(path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden, QDir::Name);
    found.removeAll(QStringLiteral("lock"));
    found.removeAll(QStringLiteral("recorder"));
    return found;
}

Phone::Phone(const QString &stateDirectory, std::shared_ptr<ManualClock> shared,
             std::function<void(const QString &)> tell, Patience patience)
    : clock(shared ? std::move(shared) : std::make_shared<ManualClock>(qint64{1'800'000'000'000}))
{
    Settings settings;
    settings.stateDirectory = stateDirectory;
    settings.clock = clock;
    settings.tell = std::move(tell);
    settings.patience = patience;
    settings.progress = [this](const QString &step, int percent) { progress << qMakePair(step, percent); };
    opened = open(settings);
    simulation = dynamic_cast<simulated::SimulatedHandset *>(opened.handset.get());
}

bool Phone::dial(CallKind kind, const QString &number)
{
    return simulation->dial(number, kind) == Success && simulation->remoteAnswer() == Success;
}

bool Phone::answer(const QString &number)
{
    return simulation->ring(number) == Success && simulation->answer() == Success;
}

bool Phone::dialed(qint64 ms, CallKind kind, const QString &number)
{
    if (!dial(kind, number))
        return false;
    clock->advance(ms);
    return simulation->hangUp() == Success;
}

bool Phone::answered(qint64 ms, const QString &number)
{
    if (!answer(number))
        return false;
    clock->advance(ms);
    return simulation->hangUp() == Success;
}

bool Phone::session(qint64 ms, const QByteArray &apn, quint32 sentPerSecond, quint32 receivedPerSecond)
{
    if (simulation->packets().startSession(apn, sentPerSecond, receivedPerSecond) != Success)
        return false;
    clock->advance(ms);
    return simulation->packets().stopSession() == Success;
}

void Phone::close()
{
    simulation = nullptr;
    opened = {};
}

LogFile::LogFile(const QString &file)
{
    static int count = 0;
    name = QStringLiteral("test-%1").arg(++count);
    QSqlDatabase connection = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
    connection.setDatabaseName(file);
    if (!connection.open())
        QTest::qFail("the database cannot be opened", __FILE__, __LINE__);
}

LogFile::~LogFile()
{
    QSqlDatabase::database(name, false).close();
    QSqlDatabase::removeDatabase(name);
}

QVariant LogFile::value(const QString &select) const
{
    QSqlQuery query(QSqlDatabase::database(name));
    return query.exec(select) && query.next() ? query.value(0) : QVariant();
}

QList<LoggedCall> LogFile::calls() const
{
    QSqlQuery query(QSqlDatabase::database(name));
    QList<LoggedCall> rows;
    query.exec(QStringLiteral(
        "SELECT id, kind, direction, number, started_ms, duration_ms, state FROM calls ORDER BY id"));
    while (query.next())
        rows.append({query.value(0).toLongLong(), query.value(1).toInt(), query.value(2).toInt(),
                     query.value(3).toString(), query.value(4).toLongLong(), query.value(5).toLongLong(),
                     query.value(6).toInt()});
    return rows;
}

QStringList LogFile::sessions() const
{
    QSqlQuery query(QSqlDatabase::database(name));
    QStringList rows;
    query.exec(QStringLiteral("SELECT line FROM (SELECT id, id || ' ' || apn || ' ' || duration_ms || ' ' ||"
                              " sent || ' ' || received || ' ' || state AS line FROM sessions) ORDER BY id"));
    while (query.next())
        rows << query.value(0).toString();
    return rows;
}

QString LogFile::sessionTotals() const
{
    const auto total = [this](const char *counter) {
        const QString select = QStringLiteral("SELECT value FROM session_totals WHERE counter = '%1'");
        return value(select.arg(QLatin1String(counter))).toString();
    };
    return QStringList{total("duration"), total("sent"), total("received")}.join(QLatin1Char(' '));
}

bool LogFile::run(const QString &statement) const
{
    QSqlQuery query(QSqlDatabase::database(name));
    return query.exec(statement);
}

bool takeBackTo(const QString &database, int version)
{
    calllog::Database older(QStringLiteral(":memory:"), calllog::Database::Access::ReadWrite);
    calllog::Database log(database, calllog::Database::Access::ReadWrite);
    bool done = calllog::migrate(older, calllog::migrations().first(static_cast<std::size_t>(version)));
    for (const char *table : {"calls", "sessions"}) {
        const QString columns = QStringLiteral("SELECT group_concat(name) FROM pragma_table_info('%1')");
        const QStringList before = older.text(columns.arg(QLatin1String(table))).split(QLatin1Char(','));
        const QStringList now = log.text(columns.arg(QLatin1String(table))).split(QLatin1Char(','));
        for (const QString &column : now)
            done = done &&
                   (before.contains(column) ||
                    log.run(QStringLiteral("ALTER TABLE %1 DROP COLUMN %2").arg(QLatin1String(table), column)));
        QString sql = older.text(
            QStringLiteral("SELECT sql FROM sqlite_schema WHERE name = '%1'").arg(QLatin1String(table)));
        const QString put = QStringLiteral("UPDATE sqlite_schema SET sql = '%1' WHERE name = '%2'");
        done = done && log.run(QStringLiteral("PRAGMA writable_schema = ON")) &&
               log.run(put.arg(sql.replace(QLatin1String("'"), QLatin1String("''")), QLatin1String(table))) &&
               log.run(QStringLiteral("PRAGMA writable_schema = RESET"));
    }
    return done && log.run(QStringLiteral("PRAGMA user_version = %1").arg(version));
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

bool copyState(const QString &fromDirectory, const QString &toDirectory)
{
    if (!QDir().mkpath(toDirectory))
        return false;
    for (const QString &name : {QStringLiteral("calllog.db"), QStringLiteral("calllog.db-wal")}) {
        const QString from = fromDirectory + QLatin1Char('/') + name;
        const QString to = toDirectory + QLatin1Char('/') + name;
        QFile::remove(to);
        if (QFile::exists(from) && !QFile::copy(from, to))
            return false;
    }
    return true;
}

} // namespace handset::test
