// The dialog that a PIN is typed in. Inside the security library only.
#pragma once

#include "security/PinDigits.h"
#include "toolkit/ZPopup.h"

/// Shows a mark for each digit, never the digit. The left softkey and the select key answer once there are digits
/// enough. The clear key is the right softkey at any time, as in every dialog, and so are Escape and the Back key. The
/// Backspace key takes back the last digit while there is one and is the right softkey then; the hash key only takes
/// back.
class PinEntryDlg : public ZPopup
{
    Q_OBJECT
    KAV_CLASS_NAME

public:
    /// Over `parent`, which owns it; null for none (see ZPopup). `range` is a text that tells how many digits a
    /// PIN has.
    PinEntryDlg(const QString &header, const QString &range, QWidget *parent);
    ~PinEntryDlg() override;

    /// Forgets the digits, and says `notice`, emphasized, and `tries` over the field; empty texts take no room.
    void prepare(const QString &notice, const QString &tries);
    const PinDigits &digits() const;
    void forgetDigits();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void type(int qtKey);
    void takeBack();
    void digitsChanged();

    struct Private;
    std::unique_ptr<Private> d;
};
