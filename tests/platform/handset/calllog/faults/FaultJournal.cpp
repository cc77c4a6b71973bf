#include "handset/calllog/faults/FaultJournal.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include <sys/mman.h>

namespace handset::faults {

Journal::Journal()
{
    void *const memory = ::mmap(nullptr, sizeof(Page), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) {
        std::perror("mmap");
        std::abort();
    }
    page = static_cast<Page *>(memory);
    clear();
}

Journal::~Journal()
{
    ::munmap(page, sizeof *page);
}

void Journal::clear()
{
    page->length = 0;
    page->counts.fill(0);
    page->struck = false;
}

void Journal::say(const QByteArray &line)
{
    const auto length = static_cast<std::size_t>(line.size());
    if (page->length + length + 1 > page->text.size())
        return;
    std::copy(line.begin(), line.end(), page->text.begin() + static_cast<std::ptrdiff_t>(page->length));
    page->text[page->length + length] = '\n';
    page->length += length + 1;
}

QByteArrayList Journal::lines() const
{
    const auto length = static_cast<qsizetype>(page->length);
    return length == 0 ? QByteArrayList() : QByteArray(page->text.data(), length - 1).split('\n');
}

void Journal::count(std::size_t call, long times)
{
    page->counts[call] = times;
}

long Journal::counted(std::size_t call) const
{
    return page->counts[call];
}

void Journal::strike()
{
    page->struck = true;
}

bool Journal::hasStruck() const
{
    return page->struck;
}

} // namespace handset::faults
