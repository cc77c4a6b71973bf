// A message with an answer.
#pragma once

#include "ZPopup.h"

class ZMessageDlg : public ZPopup
{
    Q_OBJECT
    KAV_CLASS_NAME

public:
    enum MessageDlgType {
        QuestionDlg = 1,   ///< softkeys "Yes" and "No"
        InformationDlg = 2 ///< softkey "OK" on the left
    };

    /// `timeout` is in milliseconds, after which the dialog answers as if by its right softkey (question) or left
    /// softkey (information); 0 never. The other arguments as in ZPopup.
    ZMessageDlg(const QString &header, const QString &message, MessageDlgType type, int timeout, QWidget *parent,
                const char *name, bool modal, unsigned int flags);
    ~ZMessageDlg() override;

    QString message() const;
    MessageDlgType type() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};
