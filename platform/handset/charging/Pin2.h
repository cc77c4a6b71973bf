// The SIM's second PIN (3GPP TS 51.011, 9.3).
#pragma once

#include "charging/CodeHash.h"
#include "handset/SimSecurity.h"

namespace handset::charging {

/// What of a PIN outlasts power-off.
struct Pin2Record {
    static constexpr quint8 allTries = 3;
    static constexpr quint8 allPukTries = 10;

    bool enabled = true;
    quint8 triesLeft = allTries;       ///< 0: blocked until the PUK is entered
    quint8 pukTriesLeft = allPukTries; ///< 0: blocked for good
    CodeHash pin;
    CodeHash puk;

    friend bool operator==(const Pin2Record &, const Pin2Record &) = default;
};

/// PIN2, its PUK and their tries. Digits are used and not kept; the buffer is the caller's to wipe. A try counts
/// in what record() returns as soon as the operation returns: store that before telling the outcome, or switching
/// off in between gives the try back.
class Pin2
{
public:
    /// A PIN as on a new card. Both codes are well-formed (see isPin(), isPuk()).
    Pin2(QByteArrayView pin, QByteArrayView puk);
    /// As it was stored: on, and not entered yet.
    explicit Pin2(const Pin2Record &stored)
        : lasting(stored)
    {}

    /// 4 to 8 digits.
    static bool isPin(QByteArrayView digits);
    /// 8 digits.
    static bool isPuk(QByteArrayView digits);

    SimSecurity::PinStatus status() const;
    int triesLeft() const { return lasting.triesLeft; }
    int pukTriesLeft() const { return lasting.pukTriesLeft; }
    bool isEnabled() const { return lasting.enabled; }
    /// Entered since power-on, and no wrong one after it.
    bool isVerified() const { return verified; }
    /// What PIN2 guards may be done now.
    bool isSatisfied() const { return status() == SimSecurity::NoEntryNeeded; }

    /// The right PIN gives all tries back and counts until powerOff(); a wrong one (`accepted` false) costs a try
    /// and takes back what an earlier right one allowed. InvalidArgument for what is no PIN, which costs nothing;
    /// NotAllowed when it is blocked. The same whether the PIN is on or off.
    int verify(QByteArrayView digits, bool &accepted);
    /// The right PUK sets a new PIN, gives all tries of both back, switches the PIN on and counts as having
    /// entered it; a wrong one costs a try of the PUK's. It need not be blocked. InvalidArgument when either is
    /// malformed, which costs nothing; NotAllowed when the PUK is blocked.
    int unblock(QByteArrayView puk, QByteArrayView newPin, bool &accepted);

    /// For who makes the card, not for its user: asks for no code.
    void setEnabled(bool on) { lasting.enabled = on; }
    void powerOff() { verified = false; }
    /// It was entered before this was stored, and the card has been on since.
    void restoreVerified() { verified = true; }

    const Pin2Record &record() const { return lasting; }

private:
    Pin2Record lasting;
    bool verified = false;
};

} // namespace handset::charging
