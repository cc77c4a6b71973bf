// The entry of one text.
#pragma once

#include "ZPopup.h"

class ZMultiLineEdit;

/// A dialog with an entry field. It hides itself on either softkey; the select key is the left one.
class ZSingleCaptureDlg : public ZPopup
{
    Q_OBJECT
    KAV_CLASS_NAME

public:
    enum CaptureDlgType {
        PasswordCaptureDlg = 1, ///< the text is masked
        TextCaptureDlg = 2
    };

    /// `message` is a line over the field; null for none. `timeout` in milliseconds after which the dialog answers as by
    /// its right softkey, 0 never. The other arguments as in ZPopup.
    ZSingleCaptureDlg(const QString &header, const QString &message, CaptureDlgType type, QWidget *parent,
                      const char *name, bool modal, unsigned int flags, int timeout);
    ~ZSingleCaptureDlg() override;

    /// The field, never null, owned by the dialog.
    ZMultiLineEdit *getMultiLineEdit();
    /// What is typed in the field.
    QString getResultText();

private:
    struct Private;
    std::unique_ptr<Private> d;
};
