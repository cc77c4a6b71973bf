// The PIN entry of another make.
//
// A program that links kav_other_pin_entry and exports its symbols stands between the plug-in and
// SETUP_SECURITY_Util::verifyPin(), which goes on to the phone's own PIN entry unless one of these lives.
#pragma once

#include "security/SETUP_SECURITY_Util.h"

#include <QtCore/QtGlobal>

#include <functional>

/// Answers every PIN entry while it lives, at once. One at a time, GUI thread only.
class OtherPinEntry
{
public:
    struct Call {
        SETUP_SECURITY_PINTYPE_E pinType;
        SETUP_SECURITY_SKTYPE_E softkeys;
        SETUP_SECURITY_PINVERIFY_ERR_E errorBefore; ///< what the error is when the entry is called
        QWidget *parent;
    };

    /// The entry answers `result`, and `error` for the reason.
    OtherPinEntry(int result, SETUP_SECURITY_PINVERIFY_ERR_E error);
    ~OtherPinEntry();
    Q_DISABLE_COPY_MOVE(OtherPinEntry)

    /// Is called when the entry is, before it answers.
    std::function<void(const Call &)> whenCalled;

private:
    friend int answerByOther(SETUP_SECURITY_PINTYPE_E &, SETUP_SECURITY_SKTYPE_E const &,
                             SETUP_SECURITY_PINVERIFY_ERR_E &, QWidget *);
    const int result;
    const SETUP_SECURITY_PINVERIFY_ERR_E error;
};
