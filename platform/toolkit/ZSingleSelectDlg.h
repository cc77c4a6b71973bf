// A choice of one row.
#pragma once

#include "ZPopup.h"

class ZListBox;

/// A dialog with a list, as large as its rows need and at most as the display. It hides itself on its left softkey
/// (leftSoftkeyClicked()) and on the select key or a tapped row (signalCenterSelKeyPressed()).
class ZSingleSelectDlg : public ZPopup
{
    Q_OBJECT
    KAV_CLASS_NAME

public:
    /// `message` is a line over the list; null for none. `timeout` in milliseconds after which the dialog answers as by
    /// its right softkey, 0 never. The other arguments as in ZPopup.
    ZSingleSelectDlg(const QString &header, const QString &message, QWidget *parent, const char *name, bool modal,
                     unsigned int flags, int timeout);
    ~ZSingleSelectDlg() override;

    /// The list, owned by the dialog; null when there was no memory for it.
    ZListBox *getListBox();

private:
    struct Private;
    std::unique_ptr<Private> d;
};
