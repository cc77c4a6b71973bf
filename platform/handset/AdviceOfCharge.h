// Advice of charge: the SIM's charging settings, what the call-setup engine asks.
#pragma once

#include "Status.h"

#include <QtCore/QString>

namespace handset {

/// The settings of the SIM files EF_ACMmax and EF_PUCT (3GPP TS 51.011, 10.3) and of the phone beside them. Writing a
/// file is NotAllowed where its update rule, or PIN2, is in the way.
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
    /// The credit limit as decimal text, in the unit of the charge type, and whether it is on.
    virtual int meterMaximum(QString &maximum, bool &enabled) = 0;
    /// Sets the limit and switches it on. InvalidArgument for a text that is no number or does not fit 24 bits of
    /// units.
    virtual int setMeterMaximum(const QString &maximum) = 0;
    /// Switches the limit off.
    virtual int disableMeterMaximum() = 0;
    /// How costs are counted (ChargeType): the phone's own setting, no file of the SIM.
    virtual int chargeType(quint8 &type) = 0;
    /// InvalidArgument for a number that is no ChargeType.
    virtual int setChargeType(quint8 type) = 0;
    /// Price per unit as decimal text and currency code as stored.
    virtual int priceAndCurrency(QString &price, QString &currency) = 0;
    /// Writes both into EF_PUCT; what can be stored nearest to `price` is what is read back. InvalidArgument for a text
    /// that is no price, or a code that a SIM cannot hold.
    virtual int setPriceAndCurrency(const QString &price, const QString &currency) = 0;
};

} // namespace handset
