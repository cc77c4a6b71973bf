// The simulated SIM card: the files of advice of charge, who may write them, and PIN2.
#pragma once

#include "charging/ChargeUnits.h"
#include "charging/Pin2.h"
#include "charging/Puct.h"
#include "handset/AdviceOfCharge.h"

#include <memory>
#include <optional>

namespace handset::charging {

/// The contents of the files, as bytes, and their update rules (AdviceOfCharge::UpdateRule; any other number:
/// anybody).
struct SimFiles {
    /// Records of EF_ACM. How many is the card maker's choice.
    static constexpr std::size_t acmRecords = 5;

    std::array<UnitBytes, acmRecords> acm{}; ///< newest first
    UnitBytes acmMax{};                      ///< 000000: no limit
    PuctBytes puct = newPuct;
    quint8 acmRule = AdviceOfCharge::FreeUpdate;
    quint8 acmMaxRule = AdviceOfCharge::FreeUpdate;
    quint8 puctRule = AdviceOfCharge::FreeUpdate;

    friend bool operator==(const SimFiles &, const SimFiles &) = default;
};

/// A value: copies are cards of their own. Updates return NotAllowed where the file's rule is NoUpdate, or is
/// UpdateUnderPin2 and PIN2 stands in between; what fails has changed nothing. Arguments are looked at first.
class SimCard
{
public:
    /// The codes of a new card. It is a simulation: everybody may know them, and the manual says them.
    static constexpr QByteArrayView newCardPin2{"1234"};
    static constexpr QByteArrayView newCardPuk2{"12345678"};

    /// A new card: meters at 0, no limit, no price, every file free, PIN2 on and not entered. What is kept of its codes
    /// takes some milliseconds to make, and is made when it is asked for, once for all its copies.
    SimCard();
    /// A card as it was stored, just switched on.
    SimCard(const SimFiles &stored, const Pin2Record &storedPin);

    /// The accumulated call meter.
    quint32 acm() const { return decodeUnits(content.acm.front()); }
    /// Adds units up to maxUnits, whatever the update rule: charging is not updating. 0 writes no record.
    void increaseAcm(quint32 units);
    /// The meter starts again at 0, in a new record.
    int resetAcm();

    /// The meter's maximum; 0: there is none.
    quint32 acmMax() const { return decodeUnits(content.acmMax); }
    /// 0 switches the limit off. InvalidArgument above maxUnits.
    int updateAcmMax(quint32 units);
    /// Units until the maximum; nothing without one.
    std::optional<quint32> unitsLeft() const;
    /// No charged call is allowed any more.
    bool limitReached() const { return unitsLeft() == 0U; }

    Puct puct() const { return decodePuct(content.puct); }
    /// Keeps the nearest price that can be held, see UnitPrice::fromText(), and the code as encodePuct() does.
    int updatePuct(const QString &price, const QString &currency);

    /// `file` is an AdviceOfCharge::File, else InvalidArgument.
    int updateRule(quint8 file, quint8 &rule) const;
    /// For who makes the card.
    int setUpdateRule(quint8 file, quint8 rule);
    /// Success when the file may be updated now, NotAllowed, or InvalidArgument.
    int mayUpdate(quint8 file) const;

    /// A file's bytes, for display; EF_ACM's records newest first. Empty for a number that is no file.
    QByteArray fileBytes(quint8 file) const;

    Pin2 &pin2() { return madePin(); }
    const Pin2 &pin2() const { return madePin(); }
    /// As Pin2::isVerified(), without making the codes of a new card.
    bool isPin2Entered() const { return pin && pin->isVerified(); }
    /// PIN2 has to be entered again. Tries and files stay.
    void powerOff() { madePin().powerOff(); }

    const SimFiles &files() const { return content; }

    /// Whether the same of both outlasts power-off.
    friend bool operator==(const SimCard &, const SimCard &);

private:
    void writeAcm(quint32 units);
    Pin2 &madePin() const;

    SimFiles content;
    mutable std::optional<Pin2> pin;                     ///< nothing: that of the new card
    std::shared_ptr<std::optional<Pin2Record>> newCodes; ///< of a new card and its copies; nothing: not made yet
};

} // namespace handset::charging
