// How often something may be said. Not a public header.
#pragma once

#include <QtCore/qglobal.h>

#include <chrono>
#include <optional>
#include <utility>

/// Lets ten lines through at once, and then ten a minute.
class LineLimit
{
public:
    static constexpr int most = 10;
    static constexpr std::chrono::minutes pause{1};

    /// Asks for a line at `now`, which does not go back. How many were refused since the last one that was not; or
    /// nothing, when this one is.
    std::optional<qint64> take(std::chrono::steady_clock::time_point now)
    {
        if (taken == 0 || now - began >= pause) {
            began = now;
            taken = 0;
        }
        if (taken == most) {
            ++refused;
            return {};
        }
        ++taken;
        return std::exchange(refused, 0);
    }

private:
    std::chrono::steady_clock::time_point began; // of the minute that is counted
    int taken = 0;
    qint64 refused = 0;
};
