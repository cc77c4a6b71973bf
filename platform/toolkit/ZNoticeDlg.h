// A message that asks for no answer.
#pragma once

#include "ZPopup.h"

class ZNoticeDlg : public ZPopup
{
    Q_OBJECT
    KAV_CLASS_NAME

public:
    enum Type {
        DoneNotice = 1 ///< something has been done
    };

    /// `closable` puts "OK" on the left softkey; without it only the maker ends the notice. The other arguments as in
    /// ZPopup.
    ZNoticeDlg(Type type, const QString &header, const QString &message, QWidget *parent, const char *name,
               bool modal, unsigned int flags, bool closable);
    ~ZNoticeDlg() override;

    QString message() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};
