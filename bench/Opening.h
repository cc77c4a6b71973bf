// Measures how long something takes to come up on the display.
#pragma once

#include "bench/Comparison.h"

#include <functional>
#include <memory>

class QWidget;

namespace bench {

/// Something that can be opened and closed over and over.
class Opening
{
public:
    virtual ~Opening() = default;

    /// Makes it and shows it.
    virtual void open() = 0;
    /// Destroys it.
    virtual void close() = 0;
    /// What is wrong with what is open now; null for nothing.
    virtual const char *fault() { return nullptr; }
};

/// Everything happens inside `display`.
using MakeOpening = std::function<std::unique_ptr<Opening>(QWidget *display)>;

/// What the screens show.
struct Figures {
    std::function<void()> use;    ///< makes its handset the installed one
    std::function<void()> change; ///< they are others from now on
};

/// Measures opening up to the end of the first paint. Without figures of its own the handset is the one whose figures cost
/// nothing. They are others every time, as a user finds them. Closing is not measured.
std::function<void(benchmark::State &)> openingSide(MakeOpening make, Figures figures = {});

} // namespace bench
