// The entry of one text.
#pragma once

#include "toolkit/ZPopup.h"

class ZMultiLineEdit;

/// A dialog with an entry field. It hides itself on either softkey; the select key is the left one, and the
/// clear key is the right one whatever is typed, so that one key always leads out. What was typed wrong is taken
/// back with the Backspace key, or the hash key of the phone in a field with an input method
/// (ZApplication::setInputMethods()). Such a field shows below it what is typed now, and what the star and the
/// hash key do.
class ZSingleCaptureDlg : public ZPopup
{
    Q_OBJECT
    KAV_CLASS_NAME

public:
    /// The phone's own numbers. Any other number is taken as TextCaptureDlg, with a warning.
    enum CaptureDlgType : int {
        TextCaptureDlg = 2 ///< a text that is shown as it is typed
    };

    /// The softkeys are "OK" and "Cancel" until others are set. `message` is a text over the field; null for
    /// none. `timeout` in milliseconds after which the dialog answers as by its right softkey, 0 or less never.
    /// The other arguments as in ZPopup.
    ZSingleCaptureDlg(const QString &header, const QString &message, CaptureDlgType type, QWidget *parent,
                      const char *name, bool modal, unsigned int flags, int timeout);
    ~ZSingleCaptureDlg() override;

    /// The field, never null, owned by the dialog.
    ZMultiLineEdit *getMultiLineEdit();
    /// All of what is in the field, but for line breaks at its end.
    QString getResultText();

    void setVisible(bool visible) override;

private:
    struct Private;
    std::unique_ptr<Private> d;
};
