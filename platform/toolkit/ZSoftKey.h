// The softkey bar at the foot of a screen or a dialog.
#pragma once

#include "classname.h"

#include <QtWidgets/QWidget>

#include <memory>

/// Two keys with a caption each. A key answers to the phone's softkey (the owning screen or dialog forwards it)
/// and to the pointer. A key without a caption shows nothing and still answers; a disabled key answers to nothing.
class ZSoftKey : public QWidget
{
    Q_OBJECT
    KAV_CLASS_NAME

public:
    enum KEY_IDX { LeftKey = 0, RightKey = 1 };
    enum TEXT_PRIORITY { DefaultTextPriority = 0 };

    /// `layout` is the bar's layout; "CST_2A" is two keys, and any other layout is taken as it, with a warning.
    /// `parent` owns the bar. `target` is the widget whose keys the bar serves; null means `parent`.
    ZSoftKey(const QString &layout, QWidget *parent, QWidget *target);
    ~ZSoftKey() override;

    /// Sets the caption of key `key`. The texts of a higher `priority` hide those of a lower one; the screens use
    /// priority 0 only. A key index outside KEY_IDX is refused with a warning, here and below.
    void setText(KEY_IDX key, const QString &text, TEXT_PRIORITY priority);
    /// The whole caption of the key, whatever is elided on the display; null for a bad index.
    QString text(KEY_IDX key) const;

    /// Connects key `key` to `member` of `receiver`, in the form of SIGNAL() or SLOT() ("2closeWidget()",
    /// "1slotBack()"), in place of what it was connected to before. Null disconnects.
    void setClickedSlot(KEY_IDX key, const QObject *receiver, const char *member);

    void setButtonEnable(KEY_IDX key, bool enable);
    bool isButtonEnabled(KEY_IDX key) const;

    /// What pressing the key does. The bar may be deleted by whoever answers.
    void click(KEY_IDX key);

signals:
    void leftClicked();
    void rightClicked();

private:
    struct Private;
    std::unique_ptr<Private> d;
};
