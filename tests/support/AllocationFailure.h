// Memory that runs out at a chosen moment, for the code of the plug-in.
//
// A program that links kav_allocation_failure has its own operator new(std::size_t, const std::nothrow_t&), also for
// arrays. It behaves as the standard one until it is armed.
#pragma once

#include <QtCore/QtGlobal>

/// While it lives, the n-th (from 1) nothrow allocation that the code of the plug-in itself asks for gets null, and
/// only that; 0 fails none. One at a time, GUI thread only.
class AllocationFailure
{
public:
    explicit AllocationFailure(int nth);
    ~AllocationFailure();
    Q_DISABLE_COPY_MOVE(AllocationFailure)

    /// How many such allocations were asked for so far, the failed one included.
    static int count();
    /// Whether the n-th was reached.
    static bool happened();
};
