// Where the channel contract is run.
#pragma once

#include <memory>

/// With a session bus, or without one.
class QCopRig
{
public:
    virtual ~QCopRig() = default;

    /// Called before the first channel is made.
    static std::unique_ptr<QCopRig> make();

    virtual bool isWithBus() const = 0;
};
