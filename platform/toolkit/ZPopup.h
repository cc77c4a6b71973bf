// What every dialog has in common: a header, a body, two softkeys of its own.
#pragma once

#include "qt/classname.h"

#include <QtWidgets/QWidget>

#include <memory>

class ZSoftKey;

/// A dialog over a screen. It hides itself before it reports a softkey; whoever answers may show it again or
/// delete it. show() shows it (again) on top and gives it the keys; it never blocks.
///
/// With a parent it lies inside the parent and covers it whole, however that is resized; with none it is a
/// window of its own that lies over ZApplication::display(), hides and moves with it, and has the shape of the
/// dialog. Either way it shows a box in the middle, never larger than the display, and a softkey bar where the
/// screen has its own.
///
/// Keys: the left softkey and the select key answer left, the right softkey answers right, and the clear key
/// does what the right softkey does, or the left one where the right one has no caption. A softkey without a
/// caption does nothing. Keys answer once a press; one that is still held since before the dialog came up
/// answers nothing. When the dialog goes, the focus goes back to what had it before, or to what is then on top.
class ZPopup : public QWidget
{
    Q_OBJECT
    KAV_CLASS_NAME

public:
    ~ZPopup() override;

    /// The whole header, whatever is elided on the display.
    QString header() const;
    /// Whether it was made to keep keys and pointer from the screen below.
    bool isModalOverParent() const;
    /// The captions, of any length; an empty one takes the key's answer away.
    void setSoftkeyTextLeft(const QString &text);
    void setSoftkeyTextRight(const QString &text);
    /// The dialog's own softkey bar, never null, owned by the dialog.
    ZSoftKey *softKey() const;

    void setVisible(bool visible) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// The dialog was answered, and is hidden already.
    void leftSoftkeyClicked();
    void rightSoftkeyClicked();
    /// The select key, where the dialog tells it apart from the left softkey.
    void signalCenterSelKeyPressed();

protected:
    enum Answer { LeftAnswer, RightAnswer, SelectAnswer };

    /// A dialog headed `header` over `parent`, which owns it; with a null parent it is a window of its own that
    /// places itself over the phone's display. `modal` keeps pointer and keys away from the screen below, and from
    /// nothing else in the window around the phone. `name` (Latin-1) may be null; `flags` are window flags, for a
    /// dialog without a parent.
    ZPopup(const QString &header, QWidget *parent, const char *name, bool modal, unsigned int flags);

    /// Puts `body`, which becomes a child of the dialog, into the box under the header. The box is as high as
    /// the body's heightForWidth() or sizeHint() asks for, within the display. A body that can have the focus gets
    /// the keys first.
    void setBody(QWidget *body);
    /// To be called when the body asks for another height: the box is made anew.
    void bodySizeChanged();
    /// How high a body can be at most before it is cut: what the display leaves under the header.
    int roomForBody() const;

    /// The dialog answers `answer` by itself `milliseconds` after each of its showings; 0 or less never.
    void answerAfter(int milliseconds, Answer answer);
    /// Hides the dialog and emits the signal of `answer`. The dialog may be gone afterwards.
    void answer(Answer answer);

    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void comeToFront();
    void layOut();
    void coverParent();
    void lieOver(QWidget *display);
    void followDisplay(QWidget *display);
    void coverDisplay();
    void showWithDisplay();
    void softkeyClicked(Answer side);

    struct Private;
    std::unique_ptr<Private> d;
};
