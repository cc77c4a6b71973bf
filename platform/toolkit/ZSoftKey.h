// The softkey bar at the foot of a screen or a dialog.
#pragma once

#include "qt/classname.h"

#include <QtWidgets/QWidget>

#include <memory>

/// Two keys with a caption each. A key answers to the phone's softkey (the owning screen or dialog forwards it)
/// and to the pointer. A key without a caption shows nothing and still answers; a disabled key answers to nothing.
/// The bar never takes the focus. The accessible name of a key is its whole caption.
class ZSoftKey : public QWidget
{
    Q_OBJECT
    KAV_CLASS_NAME

public:
    /// The phone's own numbers.
    enum KEY_IDX : int { LeftKey = 0, RightKey = 1 };
    enum TEXT_PRIORITY : int { DefaultTextPriority = 0 };

    /// `layout` is the bar's layout; "CST_2A" is two keys, and any other layout is taken as it, with a warning.
    /// `parent` owns the bar. `target` is the widget whose keys the bar serves; null means `parent`, which then
    /// forwards its softkeys itself. Another target's softkeys are taken by the bar before they reach it. The target
    /// is not owned and may be destroyed first.
    ZSoftKey(const QString &layout, QWidget *parent, QWidget *target);
    ~ZSoftKey() override;

    /// Sets the caption of key `key`, of any length. The text of the highest `priority` is shown; an empty text
    /// withdraws that priority's. The screens use priority 0 only. A key index outside KEY_IDX is refused with a
    /// warning, here and below.
    void setText(KEY_IDX key, const QString &text, TEXT_PRIORITY priority);
    /// The whole caption of the key, whatever is elided on the display; null for a bad index.
    QString text(KEY_IDX key) const;

    /// Connects key `key` to `member` of `receiver`, in the form of SIGNAL() or SLOT() ("2closeWidget()",
    /// "1slotBack()"), in place of what it was connected to before. A null `receiver` or `member` disconnects. A
    /// member that the receiver does not have, or that wants arguments, is refused with a warning and the key keeps
    /// its connection.
    void setClickedSlot(KEY_IDX key, const QObject *receiver, const char *member);

    /// Keys are enabled from the start. A disabled key is greyed.
    void setButtonEnable(KEY_IDX key, bool enable);
    /// False for a bad index.
    bool isButtonEnabled(KEY_IDX key) const;

    /// What pressing the key does. The bar, and whatever owns it, may be deleted by whoever answers.
    void click(KEY_IDX key);

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// A key was pressed or tapped; besides what setClickedSlot() connects.
    void leftClicked();
    void rightClicked();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void layOut();

    struct Private;
    std::unique_ptr<Private> d;
};
