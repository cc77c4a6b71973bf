// How the contract test makes calls on a backend.
#pragma once

#include "handset/AdviceOfCharge.h"
#include "handset/Call.h"
#include "handset/Date.h"
#include "handset/Handset.h"
#include "handset/SimSecurity.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>

namespace handset::test {

class HandsetRig
{
public:
    virtual ~HandsetRig() = default;

    /// Opens the handset, for the first time or once more after close(); false when that fails.
    virtual bool open() = 0;
    virtual void close() = 0;
    virtual Handset &handset() = 0;
    /// The roles that the backend has not, as the operations name them ("PacketData").
    virtual QStringList lackingRoles() const { return {}; }
    bool hasDataCalls() const { return !lackingRoles().contains(QStringLiteral("DataCalls")); }
    /// The files of the SIM's advice of charge can be read and written; else each is NotAvailable, and a charge type
    /// in the currency as well.
    virtual bool hasSimFiles() const { return true; }
    /// That a new SIM has.
    virtual QString newCurrency() const { return {}; }
    /// Rules that a SIM file may have.
    virtual QList<quint8> updateRules() const
    {
        return {AdviceOfCharge::UpdateUnderPin2, AdviceOfCharge::NoUpdate, AdviceOfCharge::FreeUpdate};
    }
    /// Nothing is written to the SIM without PIN2, and each entry is good for one write.
    virtual bool asksForPin2EachTime() const { return false; }
    /// Then it is entered, for one write; else nothing is done. False when the entry fails.
    bool allowWrite()
    {
        bool accepted = !asksForPin2EachTime();
        return accepted ||
               (handset().simSecurity()->verifyPin(SimSecurity::Pin2, pin2(), accepted) == 0 && accepted);
    }
    /// Calls are paid from the phone's own account; else its figures are NotAvailable.
    virtual bool hasAccount() const { return true; }

    /// The call is being set up, but not connected; false when that fails, as for all the others.
    virtual bool begin(CallKind kind, CallDirection direction) = 0;
    virtual bool connectCall() = 0;
    virtual bool end() = 0;
    /// A packet-data session that counts so many bytes a second.
    virtual bool beginSession(const QByteArray &apn, quint32 sentPerSecond, quint32 receivedPerSecond) = 0;
    virtual bool endSession() = 0;
    /// Lets time go by.
    virtual void pass(qint64 ms) = 0;

    /// From the next call on a call costs a unit for each second that it is connected.
    virtual bool chargeUnits() = 0;
    /// A deposit, in the unit of the charge type.
    virtual bool payIn(const QString &amount, const Date &expires) = 0;
    /// Who may update a SIM file: numbers of AdviceOfCharge::File and AdviceOfCharge::UpdateRule.
    virtual bool setUpdateRule(quint8 file, quint8 rule) = 0;
    /// The digits of the SIM's PIN2.
    virtual QByteArray pin2() const = 0;
};

/// The rig of the backend that this program is built for, with an empty state of its own and a new SIM: no limit, no
/// price, every file free to update where there is such a rule, PIN2 switched on and never tried; nothing has been paid in.
std::unique_ptr<HandsetRig> makeRig();

} // namespace handset::test
