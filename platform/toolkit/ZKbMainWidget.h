// The frame of a full screen: a title bar, a content area, a softkey area.
#pragma once

#include "qt/classname.h"

#include <QtWidgets/QWidget>

#include <memory>

class ZSoftKey;

/// A screen of 240 x 320 pixels, the size of the screen it lies in, or what it is resized to. A child screen lies
/// over its parent at (0, 0), and stays as large as a parent that is a screen too. Showing it, also again, raises it
/// and gives its keys to the first widget of its content, which is the list.
///
/// The keys of ZKeys.h: the softkeys click the installed ZSoftKey, the clear key emits clearKeyClicked(), both once
/// a press, however long it is held. Every key ends here, known or not, so that a sub-screen's keys do not reach its
/// opener; the Tab key leaves the phone for the window around it, if there is one.
class ZKbMainWidget : public QWidget
{
    Q_OBJECT
    KAV_CLASS_NAME

public:
    /// `parent` owns the screen and may be null; `name` (Latin-1, may be null) is the object name; `flags` are window
    /// flags (Qt::WindowFlags), 0 for none.
    ZKbMainWidget(QWidget *parent, const char *name, unsigned int flags);
    virtual ~ZKbMainWidget();

    /// The title, of any length, also the accessible name and the window title.
    void setMainWidgetTitle(const QString &title);
    /// The whole title, whatever is elided on the display.
    QString mainWidgetTitle() const;

    /// Installs `bar`, which becomes a child of the screen, at the screen's foot in place of an earlier one, which is
    /// hidden and stays a child; null takes the bar away. Softkeys reach a ZSoftKey only.
    void setCSTWidget(QWidget *bar);
    /// Null when there is none, or it was deleted.
    QWidget *cstWidget() const;

    /// The content area, owned by the screen. It has its final geometry from the start, so that a
    /// list can be given its size before the screen is shown. A child that fills it exactly goes on filling it when
    /// the screen is resized. `create` makes it where there is none yet; without, that is null.
    QWidget *getContentWidget(bool create);

    /// Closes the screen; with `alsoDelete` it is deleted later, through the event loop. Returns whether it closed.
    virtual bool close(bool alsoDelete);
    using QWidget::close;

    void setVisible(bool visible) override;
    QSize sizeHint() const override;

signals:
    /// The clear key was pressed on this screen. The screen may be deleted by whoever answers.
    void clearKeyClicked();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void comeToFront();
    void layOut();

    struct Private;
    std::unique_ptr<Private> d;
};
