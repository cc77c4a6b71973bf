#include "meter/Transfer.h"

#include "calllog/OpenLedger.h"
#include "charging/ChargingState.h"
#include "handset/Clock.h"
#include "handset/Status.h"
#include "meter/Text.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QSaveFile>
#include <QtCore/QTemporaryDir>
#include <QtCore/QVariant>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <span>

namespace meter {

namespace {

using namespace handset;
using namespace handset::calllog;

constexpr auto formatName = "kavcallmeter-state";
constexpr qint64 formatVersion = 1;

enum class Type { Integer, Text, Bytes };

struct Column {
    const char *name;
    Type type;
    bool mayBeNull = false;
};

/// A table as it stands in the file.
struct Rows {
    const char *table;
    const char *select; ///< the columns, in their order
    const char *insert;
    const char *clear;
    std::span<const Column> columns;
};

constexpr std::array callColumns{
    Column{"id", Type::Integer},    Column{"kind", Type::Integer},       Column{"direction", Type::Integer},
    Column{"number", Type::Text},   Column{"started_ms", Type::Integer}, Column{"duration_ms", Type::Integer},
    Column{"state", Type::Integer}, Column{"units", Type::Integer},      Column{"late", Type::Integer},
};
constexpr std::array sessionColumns{
    Column{"id", Type::Integer},          Column{"apn", Type::Text},     Column{"started_ms", Type::Integer},
    Column{"duration_ms", Type::Integer}, Column{"sent", Type::Integer}, Column{"received", Type::Integer},
    Column{"state", Type::Integer},
};
constexpr std::array timeColumns{Column{"counter", Type::Text}, Column{"ms", Type::Integer}};
constexpr std::array costColumns{Column{"counter", Type::Text}, Column{"units", Type::Integer}};
constexpr std::array valueColumns{Column{"counter", Type::Text}, Column{"value", Type::Integer}};
constexpr std::array lostColumns{Column{"counter", Type::Text}, Column{"value", Type::Integer, true}};
constexpr std::array keptColumns{Column{"name", Type::Text}, Column{"content", Type::Bytes}};

// What runs is over for who imports it.
constexpr std::array<Rows, 7> tables{{
    {"calls",
     "SELECT id, kind, direction, number, started_ms, duration_ms, CASE state WHEN 0 THEN 3 ELSE state END, "
     "units, "
     "late FROM calls ORDER BY id",
     "INSERT INTO calls (id, kind, direction, number, started_ms, duration_ms, state, units, late)"
     " VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)",
     "DELETE FROM calls", callColumns},
    {"sessions",
     "SELECT id, apn, started_ms, duration_ms, sent, received, CASE state WHEN 0 THEN 3 ELSE state END FROM "
     "sessions ORDER BY id",
     "INSERT INTO sessions (id, apn, started_ms, duration_ms, sent, received, state) VALUES (?, ?, ?, ?, ?, ?, ?)",
     "DELETE FROM sessions", sessionColumns},
    {"totals", "SELECT counter, ms FROM totals ORDER BY counter", "INSERT INTO totals (counter, ms) VALUES (?, ?)",
     "DELETE FROM totals", timeColumns},
    {"costs", "SELECT counter, units FROM costs ORDER BY counter",
     "INSERT INTO costs (counter, units) VALUES (?, ?)", "DELETE FROM costs", costColumns},
    {"session_totals", "SELECT counter, value FROM session_totals ORDER BY counter",
     "INSERT INTO session_totals (counter, value) VALUES (?, ?)", "DELETE FROM session_totals", valueColumns},
    {"lost", "SELECT counter, value FROM lost ORDER BY counter", "INSERT INTO lost (counter, value) VALUES (?, ?)",
     "DELETE FROM lost", lostColumns},
    {"kept", "SELECT name, content FROM kept ORDER BY name", "INSERT INTO kept (name, content) VALUES (?, ?)",
     "DELETE FROM kept", keptColumns},
}};

QJsonValue valueAt(const Statement &row, int place, const Column &column)
{
    if (row.isNull(place))
        return QJsonValue::Null;
    switch (column.type) {
    case Type::Integer:
        return row.number(place);
    case Type::Text:
        return QString::fromUtf8(row.bytes(place));
    case Type::Bytes:
        return QString::fromLatin1(row.bytes(place).toHex());
    }
    return {};
}

bool readTable(Database &database, const Rows &table, QJsonArray &rows)
{
    if (!database.run(table.select))
        return false;
    Statement &row = database.statement(table.select);
    for (bool more = row.hasRow(); more; more = row.next()) {
        QJsonObject object;
        int place = 0;
        for (const Column &column : table.columns) {
            object.insert(QLatin1String(column.name), valueAt(row, place, column));
            ++place;
        }
        rows.append(object);
    }
    const bool isRight = row.error() == 0 || database.fail();
    row.finish();
    return isRight;
}

// The place of a mistake and what it is; empty for none.
QString mistakeIn(const QJsonValue &value, const Column &column)
{
    if (value.isNull() && column.mayBeNull)
        return {};
    switch (column.type) {
    case Type::Integer:
        return value.toVariant().typeId() == QMetaType::LongLong ? QString() : Text::tr("is no whole number");
    case Type::Text:
        return value.isString() ? QString() : Text::tr("is no text");
    case Type::Bytes: {
        const QByteArray hex = value.toString().toLatin1();
        const bool isRight = value.isString() && QByteArray::fromHex(hex).toHex() == hex.toLower();
        return isRight ? QString() : Text::tr("has no pairs of hexadecimal digits");
    }
    }
    return {};
}

QString mistakeIn(const QJsonObject &row, const Rows &table, const QString &place)
{
    for (const Column &column : table.columns) {
        const QString name = QString::fromLatin1(column.name);
        if (!row.contains(name))
            return Text::tr("%1.%2 is missing").arg(place, name);
        const QString mistake = mistakeIn(row.value(name), column);
        if (!mistake.isEmpty())
            return QStringLiteral("%1.%2 %3").arg(place, name, mistake);
    }
    for (const QString &name : row.keys()) {
        const auto isIt = [&](const Column &column) { return name == QLatin1String(column.name); };
        if (std::none_of(table.columns.begin(), table.columns.end(), isIt))
            return Text::tr("%1.%2 is not known").arg(place, name);
    }
    return {};
}

QString mistakeInKept(const QJsonArray &kept)
{
    charging::ChargingState state;
    for (qsizetype i = 0; i < kept.size(); ++i) {
        const QJsonObject row = kept[i].toObject();
        const QString name = row.value(QStringLiteral("name")).toString();
        const QByteArray content = QByteArray::fromHex(row.value(QStringLiteral("content")).toString().toLatin1());
        const bool isRight = name == QLatin1String(keptCardName)       ? charging::readCard(content, state)
                             : name == QLatin1String(keptChargingName) ? charging::readCharging(content, state)
                                                                       : true;
        if (!isRight)
            return Text::tr("kept[%1].content cannot be read").arg(i);
    }
    return {};
}

QString mistakeIn(const QJsonObject &file)
{
    if (file.value(QStringLiteral("format")).toString() != QLatin1String(formatName))
        return Text::tr("format is not \"%1\"").arg(QLatin1String(formatName));
    if (file.value(QStringLiteral("version")).toInteger() != formatVersion)
        return Text::tr("version is not %1").arg(formatVersion);
    for (const Rows &table : tables) {
        const QString name = QString::fromLatin1(table.table);
        if (!file.value(name).isArray())
            return Text::tr("%1 is no list").arg(name);
        const QJsonArray rows = file.value(name).toArray();
        for (qsizetype i = 0; i < rows.size(); ++i) {
            const QString place = QStringLiteral("%1[%2]").arg(name).arg(i);
            QString mistake = rows[i].isObject() ? mistakeIn(rows[i].toObject(), table, place)
                                                 : Text::tr("%1 is no row").arg(place);
            if (!mistake.isEmpty())
                return mistake;
        }
    }
    return mistakeInKept(file.value(QStringLiteral("kept")).toArray());
}

// A row that the table does not take is where it says.
bool writeRow(Database &database, const Rows &table, const QJsonObject &row)
{
    Statement statement(database.handle(), table.insert);
    const auto number = [&](std::size_t i) -> std::optional<qint64> {
        const QJsonValue value = row.value(QLatin1String(table.columns[i].name));
        return value.isNull() ? std::nullopt : std::optional(value.toInteger());
    };
    const auto text = [&](std::size_t i) { return row.value(QLatin1String(table.columns[i].name)).toString(); };
    if (table.columns.data() == callColumns.data())
        return statement.run(number(0), number(1), number(2), text(3), number(4), number(5), number(6), number(7),
                             number(8));
    if (table.columns.data() == sessionColumns.data())
        return statement.run(number(0), text(1), number(2), number(3), number(4), number(5), number(6));
    if (table.columns.data() == keptColumns.data())
        return statement.run(text(0), QByteArray::fromHex(text(1).toLatin1()));
    return statement.run(text(0), number(1));
}

QString writeTables(Database &database, const QJsonObject &file)
{
    QString mistake;
    const bool done = database.inTransaction([&] {
        for (const Rows &table : tables) {
            if (!database.run(table.clear))
                return false;
            const QJsonArray rows = file.value(QLatin1String(table.table)).toArray();
            for (qsizetype i = 0; i < rows.size(); ++i)
                if (!writeRow(database, table, rows[i].toObject())) {
                    mistake = Text::tr("%1[%2] is not possible").arg(QLatin1String(table.table)).arg(i);
                    return false;
                }
        }
        return true;
    });
    return done || !mistake.isEmpty() ? mistake : database.lastError().reason;
}

// Twice: the second opening finds what contradicts itself.
QString makeState(const QString &directory, const QJsonObject &file)
{
    const auto clock = std::make_shared<SystemClock>();
    {
        const OpenedLedger made = openLedger(directory, clock);
        if (!made.ledger)
            return made.error;
        if (QString mistake = writeTables(made.ledger->connection(), file); !mistake.isEmpty())
            return mistake;
    }
    const OpenedLedger made = openLedger(directory, clock);
    return made.ledger && made.notice.isEmpty() ? QString() : Text::tr("its totals contradict its rows");
}

qsizetype lineAt(const QByteArray &text, qsizetype offset)
{
    return text.first(std::min(offset, text.size())).count('\n') + 1;
}

QString systemReason()
{
    return QString::fromLocal8Bit(std::strerror(errno));
}

// The new state takes the place of an empty directory, or of none, at once.
QString putInPlace(const QString &made, const QString &directory)
{
    if (std::rename(QFile::encodeName(made).constData(), QFile::encodeName(directory).constData()) == 0)
        return {};
    return Text::tr("\"%1\" cannot be made: %2.").arg(directory, systemReason());
}

} // namespace

int exportState(Ledger &ledger, QByteArray &text)
{
    // What runs is written up to now, as far as this process may.
    if (const int status = ledger.reset({}))
        return status;
    if (const int status = ledger.resetSessions({}))
        return status;
    QJsonObject file{{QStringLiteral("format"), QLatin1String(formatName)},
                     {QStringLiteral("version"), formatVersion}};
    Database &database = ledger.connection();
    const bool done = database.inTransaction([&] {
        for (const Rows &table : tables) {
            QJsonArray rows;
            if (!readTable(database, table, rows))
                return false;
            file.insert(QLatin1String(table.table), rows);
        }
        return true;
    });
    if (done)
        text = QJsonDocument(file).toJson(QJsonDocument::Indented);
    return database.status(done);
}

QString writeFile(const QString &name, const QByteArray &text)
{
    QSaveFile file(name);
    if (file.open(QIODevice::WriteOnly) && file.setPermissions(QFile::ReadOwner | QFile::WriteOwner) &&
        file.write(text) == text.size() && file.commit())
        return {};
    return Text::tr("\"%1\" cannot be written: %2.").arg(name, file.errorString());
}

QString importState(const QString &name, const QString &directory)
{
    QFile input(name);
    if (!input.open(QIODevice::ReadOnly))
        return Text::tr("\"%1\" cannot be read: %2.").arg(name, input.errorString());
    const QByteArray text = input.readAll();
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError)
        return Text::tr("\"%1\", line %2: %3.").arg(name).arg(lineAt(text, error.offset)).arg(error.errorString());
    const QString wrong = QStringLiteral("\"%1\": %2.");
    if (const QString mistake = mistakeIn(document.object()); !mistake.isEmpty())
        return wrong.arg(name, mistake);
    const QString place = QDir::cleanPath(QFileInfo(directory).absoluteFilePath());
    if (QFileInfo::exists(place) &&
        (!QFileInfo(place).isDir() ||
         !QDir(place).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot)))
        return Text::tr("\"%1\" is not empty: a state is imported into a new directory.").arg(directory);
    QTemporaryDir beside(place + QStringLiteral(".import-XXXXXX"));
    if (!beside.isValid())
        return Text::tr("\"%1\" cannot be made: %2.").arg(directory, beside.errorString());
    if (const QString mistake = makeState(beside.path(), document.object()); !mistake.isEmpty())
        return wrong.arg(name, mistake);
    QString problem = putInPlace(beside.path(), place);
    beside.setAutoRemove(!problem.isEmpty());
    return problem;
}

} // namespace meter
