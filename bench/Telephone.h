// Telephones to measure beside each other: the simulated one, and those over a modem, whose daemons are not real.
#pragma once

#include "handset/Clock.h"
#include "handset/Handset.h"

#include <QtCore/QString>

#include <memory>

namespace bench {

/// On a call log of 100 calls, with a clock that stands still and a data session, "internet", that is over.
class Telephone
{
public:
    enum class Kind { Simulated, Ofono, ModemManager };

    /// `directory` is that of the call logs; they are prepared. Where that fails there is no handset.
    static std::unique_ptr<Telephone> make(Kind kind, const QString &directory);
    /// What make() needs. Returns what went wrong.
    static QString prepare(const QString &directory);
    virtual ~Telephone() = default;

    virtual std::shared_ptr<handset::Handset> handset() = 0;
    handset::ManualClock &clock() { return *time; }

    /// Somebody calls and is answered; from when the daemon says so until the row is on the disk. Likewise its end.
    virtual bool connectCall() = 0;
    virtual bool endCall() = 0;

protected:
    std::shared_ptr<handset::ManualClock> time = std::make_shared<handset::ManualClock>();
};

} // namespace bench
