// The simulation's SIM card, as who makes it and who carries it can handle it.
#pragma once

#include "SimCard.h"

namespace handset::simulated {

/// Operations answer a status of handset/Status.h; one that fails has changed nothing. What is set is kept like the
/// call log.
class SimControl
{
public:
    virtual ~SimControl() = default;

    /// The card with everything charged so far.
    virtual const sim::SimCard &card() const = 0;

    /// Who may update `file` (AdviceOfCharge::File); any number is a rule, see AdviceOfCharge::UpdateRule.
    virtual int setUpdateRule(quint8 file, quint8 rule) = 0;
    /// Switches the asking for PIN2 on or off; needs no code.
    virtual int setPin2Enabled(bool enabled) = 0;
    /// Forgets that PIN2 has been entered, as switching off does.
    virtual int powerCycle() = 0;
    /// As sim::Pin2::unblock(). The digits are neither kept nor traced.
    virtual int unblockPin2(QByteArrayView puk, QByteArrayView newPin, bool &accepted) = 0;
};

} // namespace handset::simulated
