#include "calllog/SchemaCheck.h"

#include "calllog/Schema.h"

#include <sqlite3.h>

#include <algorithm>
#include <cctype>
#include <optional>
#include <vector>

namespace handset::calllog {

namespace {

constexpr auto listSql = "SELECT type, name, tbl_name, sql FROM sqlite_schema";

// Ours has some ten entries. The list of tables is read and parsed as a whole before any other statement: a long one
// would take seconds.
constexpr int mostQuestions = 100; ///< some thousands of entries

using Entries = std::vector<QByteArray>;

// How a statement was broken into lines says nothing.
QByteArray withoutBlanks(QByteArray text)
{
    const auto isBlank = [](char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; };
    text.erase(std::remove_if(text.begin(), text.end(), isBlank), text.end());
    return text;
}

// Sorted. The answer is SQLite's result code.
int listEntries(sqlite3 *connection, Entries &entries)
{
    Statement list(connection, listSql);
    while (list.next())
        entries.push_back(list.bytes(0) + '\n' + list.bytes(1) + '\n' + list.bytes(2) + '\n' +
                          withoutBlanks(list.bytes(3)));
    std::sort(entries.begin(), entries.end());
    return list.error();
}

// As the migrations make them; nothing where there is no memory for that.
std::optional<Entries> expectedEntries(qint64 version)
{
    Database fresh(QStringLiteral(":memory:"), Database::Access::ReadWrite);
    const auto steps = migrations().first(static_cast<std::size_t>(version));
    for (const Migration &step : steps)
        for (const char *statement : step)
            if (!fresh.run(statement))
                return std::nullopt;
    Entries entries;
    return listEntries(fresh.handle(), entries) == SQLITE_OK ? std::optional(entries) : std::nullopt;
}

} // namespace

Finding checkSchema(Database &database, qint64 version)
{
    Entries found;
    int questions = 0;
    const Interruption limit(database.handle(), [&] { return ++questions > mostQuestions; });
    const int error = listEntries(database.handle(), found);
    if (error != SQLITE_OK && error != SQLITE_INTERRUPT)
        return failure(error, sqlite::reason(database.handle()));
    const std::optional<Entries> expected = expectedEntries(version);
    if (!expected)
        return {Verdict::Blocked, QStringLiteral("there is nothing that its tables can be compared with")};
    if (error == SQLITE_OK && found == *expected)
        return {};
    return {Verdict::Damaged, QStringLiteral("its tables are not those of a call log")};
}

} // namespace handset::calllog
