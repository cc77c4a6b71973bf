// A message with an answer.
#pragma once

#include "toolkit/ZPopup.h"

/// The message is wrapped, and scrolled with the up and down keys where it is longer than the display. Its whole
/// text is the accessible description.
class ZMessageDlg : public ZPopup
{
    Q_OBJECT
    KAV_CLASS_NAME

public:
    /// The phone's own numbers. Any other number is taken as InformationDlg, with a warning.
    enum MessageDlgType : int {
        QuestionDlg = 1,   ///< softkeys "Yes" and "No"
        InformationDlg = 2 ///< softkey "OK" on the left
    };

    /// `timeout` is in milliseconds, after which the dialog answers as if by its right softkey (question) or left
    /// softkey (information), counted from its showing; 0 or less never. The other arguments as in ZPopup.
    ZMessageDlg(const QString &header, const QString &message, MessageDlgType type, int timeout, QWidget *parent,
                const char *name, bool modal, unsigned int flags);
    ~ZMessageDlg() override;

    /// The whole text, whatever is scrolled out of sight.
    QString message() const;
    /// What the dialog was taken as.
    MessageDlgType type() const;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    struct Private;
    std::unique_ptr<Private> d;
};
