// What the processes of a scene have said, kept where a process that is killed leaves it behind.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayList>

#include <array>
#include <cstddef>

namespace handset::faults {

/// In memory that the processes share which are forked after it was made. They take turns.
class Journal
{
public:
    Journal();
    ~Journal();
    Journal(const Journal &) = delete;
    Journal &operator=(const Journal &) = delete;

    void clear();
    /// `line` has no line feed; what does not fit is left out.
    void say(const QByteArray &line);
    QByteArrayList lines() const;

    /// Of what the system was asked for on the scene's files.
    void count(std::size_t call, long times);
    long counted(std::size_t call) const;
    void strike();
    bool hasStruck() const;

private:
    struct Page {
        std::array<char, 96 << 10> text;
        std::size_t length;
        std::array<long, 16> counts;
        bool struck;
    };
    Page *page;
};

} // namespace handset::faults
