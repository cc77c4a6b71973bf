// What every dialog has in common: a header, a body, two softkeys of its own.
#pragma once

#include "classname.h"

#include <QtWidgets/QWidget>

#include <memory>

class ZSoftKey;

/// A dialog over a screen. It hides itself before it reports a softkey; whoever answers may show it again or delete
/// it. show() shows it (again) on top and gives it the keys; it never blocks. The clear key does what the right
/// softkey does, or the left one where the right one has no caption.
class ZPopup : public QWidget
{
    Q_OBJECT
    KAV_CLASS_NAME

public:
    ~ZPopup() override;

    QString header() const;
    void setSoftkeyTextLeft(const QString &text);
    void setSoftkeyTextRight(const QString &text);
    ZSoftKey *softKey() const;

signals:
    void leftSoftkeyClicked();
    void rightSoftkeyClicked();
    /// The select key, where the dialog tells it apart from the left softkey.
    void signalCenterSelKeyPressed();

protected:
    /// A dialog headed `header` over `parent`, which owns it; with a null parent it is a window of its own that
    /// places itself over the phone's display. `modal` keeps pointer and keys away from the screen below.
    ZPopup(const QString &header, QWidget *parent, const char *name, bool modal, unsigned int flags);

private:
    struct Private;
    std::unique_ptr<Private> d;
};
