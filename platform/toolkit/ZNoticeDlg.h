// A message that asks for no answer.
#pragma once

#include "toolkit/ZPopup.h"

/// The message stands beside a sign of its type; it is wrapped, and scrolled with the up and down keys where it
/// is longer than the display. Its whole text is the accessible description. Its maker may delete it at any
/// time, also when it has hidden itself.
class ZNoticeDlg : public ZPopup
{
    Q_OBJECT
    KAV_CLASS_NAME

public:
    /// The phone's own numbers. Any other number is taken as DoneNotice, with a warning.
    enum Type : int {
        DoneNotice = 1 ///< something has been done: a check mark
    };

    /// `closable` puts "OK" on the left softkey, which the select and the clear key stand for as in other dialogs.
    /// Without it keys do nothing, and only the maker ends the notice. The other arguments as in ZPopup.
    ZNoticeDlg(Type type, const QString &header, const QString &message, QWidget *parent, const char *name,
               bool modal, unsigned int flags, bool closable);
    ~ZNoticeDlg() override;

    /// The whole text, whatever is scrolled out of sight.
    QString message() const;
    /// What the dialog was taken as.
    Type type() const;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    struct Private;
    std::unique_ptr<Private> d;
};
