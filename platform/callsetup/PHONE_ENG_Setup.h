// The phone's call-setup engine, as far as advice of charge goes.
#pragma once

#include "qt/classname.h"

#include <QtCore/QObject>
#include <QtCore/QString>

/// The SIM's advice-of-charge settings. Every operation returns 0 on success, otherwise a number of
/// handset/Status.h or the backend's own; without a handset, or with one that has no advice of charge, that is
/// NotAvailable (2). Outputs are written only on success. A write returns InvalidArgument (1) for what the handset
/// cannot take, StorageFailed (3) where it could not be kept, and NotAllowed (6) where the SIM refuses: its file may be
/// updated by nobody, or PIN2 has not been entered. GUI thread only.
class PHONE_ENG_Setup : public QObject
{
    Q_OBJECT
    KAV_CLASS_NAME

public:
    /// The one engine of the process, made on the first call and never deleted. Never null.
    static PHONE_ENG_Setup *instance();

    /// Who may update SIM file `file` (61 EF_ACM, 59 EF_ACMmax, 64 EF_PUCT): 4 whoever enters PIN2, 6 nobody, any
    /// other number anybody. InvalidArgument for another file.
    int getEFUpdateRule(unsigned char file, unsigned char &rule);

    /// The credit limit (EF_ACMmax) as decimal text in the unit of the charge type, and whether it is on.
    int getMeterMax(QString &maximum, bool &enabled);
    /// Sets the credit limit, a decimal text likewise of at most 24 bits of units, and switches it on.
    int setMeterMax(QString const &maximum);
    /// Switches the credit limit off.
    int disableCMM();

    /// 0: costs are in units. 1: costs are in the currency. It is the phone's own setting, no file of the SIM.
    int getChargeType(unsigned char &type);
    /// The same; InvalidArgument for another number.
    int setChargeType(unsigned char type);

    /// Price per unit as decimal text, and the currency code as stored (EF_PUCT).
    int getPriceUnitCurrency(QString &price, QString &currency);
    /// Writes both, as they stand in one SIM file. Read them again to see what could be stored.
    int setPriceUnitCurrency(QString const &price, QString const &currency);

public slots:
    /// Call forwarding may have changed: reports it on.
    void updateCFFlag();

signals:
    /// A setting could not be stored: a write is about to return StorageFailed (3).
    void flashFull();
    /// The SIM refused a setting: a write is about to return NotAllowed (6). (Spelled as the phone spells it.)
    void sigSetupOpertionNotAllowed();
    /// Sent on by updateCFFlag().
    void updateCallForwardingFlag();

private:
    PHONE_ENG_Setup();
    ~PHONE_ENG_Setup() override;
};
