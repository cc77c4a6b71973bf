// Advice of charge: the SIM's charging settings, what the call-setup engine asks.
#pragma once

#include "handset/Status.h"

#include <QtCore/QString>

namespace handset {

/// The settings of the SIM files EF_ACMmax and EF_PUCT (3GPP TS 51.011, 10.3) and of the phone beside them. Writing a
/// file is NotAllowed where its update rule, or PIN2, is in the way, and StorageFailed where it cannot be kept; what
/// fails has changed nothing. What is set outlives a restart. Numbers as text are plain digits with at most one '.'.
class AdviceOfCharge
{
public:
    /// The SIM files whose access condition can be asked. The numbers are the call-setup engine's own codes.
    enum File : quint8 {
        AcmMaxFile = 59, ///< EF_ACMmax: the accumulated call meter maximum
        AcmFile = 61,    ///< EF_ACM: the accumulated call meter
        PuctFile = 64    ///< EF_PUCT: price per unit and currency table
    };
    /// Who may update a file. Any other number: anybody.
    enum UpdateRule : quint8 { FreeUpdate = 0, UpdateUnderPin2 = 4, NoUpdate = 6 };
    /// How costs are counted.
    enum ChargeType : quint8 { InUnits = 0, InCurrency = 1 };

    virtual ~AdviceOfCharge() = default;

    /// The update rule of SIM file `file` (File; any other number is InvalidArgument).
    virtual int updateRule(quint8 file, quint8 &rule) = 0;
    /// The credit limit as decimal text, exactly, in the unit of the charge type, and whether it is on.
    virtual int meterMaximum(QString &maximum, bool &enabled) = 0;
    /// Sets the limit, in the unit of the charge type and cut to whole units, and switches it on; 0 switches it off.
    /// InvalidArgument for a text that is no number, is more than 0 and less than a unit, or does not fit 24 bits of
    /// units, and for any in the currency while the price is 0.
    virtual int setMeterMaximum(const QString &maximum) = 0;
    /// Switches the limit off.
    virtual int disableMeterMaximum() = 0;
    /// How costs are counted (ChargeType): the phone's own setting, no file of the SIM. InUnits on a new handset.
    virtual int chargeType(quint8 &type) = 0;
    /// InvalidArgument for a number that is no ChargeType.
    virtual int setChargeType(quint8 type) = 0;
    /// Price per unit as decimal text, "0" for none, and currency code as stored, 0 to 3 characters.
    virtual int priceAndCurrency(QString &price, QString &currency) = 0;
    /// Writes both into EF_PUCT; what can be stored nearest to `price` is what is read back. InvalidArgument for a text
    /// that is no price, and for one beyond 4095 x 10^7; for a code of more than 3 characters, or with one that the
    /// SIM's default alphabet does not have.
    virtual int setPriceAndCurrency(const QString &price, const QString &currency) = 0;
};

} // namespace handset
