// How far SQLite is in a statement during which it asks nobody.
#pragma once

#include "calllog/repair/Progress.h"

#include <exception>

#include <sqlite3.h>

namespace handset::calllog {

/// While this lives, each byte that a connection reads from its database is a thing of a Progress. Where that throws,
/// every later read fails, so that the statement ends soon.
class CountedReads
{
public:
    /// Both live longer. Nothing is counted where SQLite has no file.
    CountedReads(sqlite3 *connection, Progress &told);
    ~CountedReads();
    CountedReads(const CountedReads &) = delete;
    CountedReads &operator=(const CountedReads &) = delete;

    /// After the statement: goes on with what was thrown, which must not pass through SQLite.
    void rethrow();

private:
    /// SQLite gives the file that it reads, and nothing else.
    struct Methods : sqlite3_io_methods {
        CountedReads *self = nullptr;
    };

    static int read(sqlite3_file *file, void *bytes, int count, sqlite3_int64 at);
    bool count(int bytes);

    Progress &progress;
    sqlite3_file *database = nullptr;
    const sqlite3_io_methods *original = nullptr;
    Methods counting{};
    std::exception_ptr thrown;
};

} // namespace handset::calllog
