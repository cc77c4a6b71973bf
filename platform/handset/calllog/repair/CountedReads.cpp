#include "calllog/repair/CountedReads.h"

#include <utility>

namespace handset::calllog {

CountedReads::CountedReads(sqlite3 *connection, Progress &told)
    : progress(told)
{
    if (sqlite3_file_control(connection, "main", SQLITE_FCNTL_FILE_POINTER, &database) != SQLITE_OK || !database ||
        !database->pMethods) {
        database = nullptr;
        return;
    }
    original = database->pMethods;
    static_cast<sqlite3_io_methods &>(counting) = *original;
    counting.xRead = &CountedReads::read;
    counting.self = this;
    database->pMethods = &counting;
}

CountedReads::~CountedReads()
{
    if (database)
        database->pMethods = original;
}

void CountedReads::rethrow()
{
    if (thrown)
        std::rethrow_exception(std::exchange(thrown, nullptr));
}

int CountedReads::read(sqlite3_file *file, void *bytes, int count, sqlite3_int64 at)
{
    CountedReads &self = *static_cast<const Methods *>(file->pMethods)->self;
    const int code = self.original->xRead(file, bytes, count, at);
    return self.count(count) ? code : SQLITE_INTERRUPT;
}

bool CountedReads::count(int bytes)
{
    try {
        if (!thrown)
            progress.add(bytes);
    } catch (...) {
        thrown = std::current_exception();
    }
    return !thrown;
}

} // namespace handset::calllog
