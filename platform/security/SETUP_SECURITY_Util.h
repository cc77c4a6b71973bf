// The phone's PIN entry.
#pragma once

class QWidget;

/// Which PIN is asked for. The numbers are the phone's own.
enum SETUP_SECURITY_PINTYPE_E : int { SETUP_SECURITY_PIN1 = 0, SETUP_SECURITY_PIN2 = 1 };

/// Which softkeys the entry has: 1 is "OK" on the left and "Cancel" on the right; any other number is taken as it.
enum SETUP_SECURITY_SKTYPE_E : int { SETUP_SECURITY_SK_DEFAULT = 0, SETUP_SECURITY_SK_OK_CANCEL = 1 };

/// Why a PIN was not accepted.
enum SETUP_SECURITY_PINVERIFY_ERR_E : int {
    SETUP_SECURITY_VERIFY_OK = 0,
    SETUP_SECURITY_VERIFY_CANCELLED = 1, ///< the user gave up, or there was nobody to ask
    SETUP_SECURITY_VERIFY_BLOCKED = 2,   ///< no tries are left: only the PUK helps
    SETUP_SECURITY_VERIFY_FAILED = 3     ///< the SIM did not answer, or there is none
};

class SETUP_SECURITY_Util
{
public:
    /// Asks the user for PIN `pinType` in a modal entry over `parent` (null: over the phone's display), with
    /// masked digits (4 to 8) and, where the SIM tells it, the tries left; again after a wrong one; and returns
    /// when it is answered. Non-zero with `error` 0: the PIN was accepted. Zero, with another `error`: it was
    /// not. `pinType` comes back as the type that was asked for; a number that is no PIN fails with a warning.
    ///
    /// A blocked PIN and a SIM that does not answer are said in a message, and the call returns when that is
    /// confirmed. Events go on being handled meanwhile. Where the entry goes out of sight unanswered, with its
    /// screen hidden or destroyed, the display gone or the application ending, the call returns as cancelled;
    /// the caller looks after its own life. So does a call that is made while another is being answered, and one
    /// over a screen that is not on show, at once.
    ///
    /// The digits are overwritten as soon as the SIM has seen them, and never traced.
    static int verifyPin(SETUP_SECURITY_PINTYPE_E &pinType, SETUP_SECURITY_SKTYPE_E const &softkeyType,
                         SETUP_SECURITY_PINVERIFY_ERR_E &error, QWidget *parent);
};
