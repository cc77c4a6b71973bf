// The frame of a full screen: a title bar, a content area, a softkey area.
#pragma once

#include "classname.h"

#include <QtWidgets/QWidget>

#include <memory>

class ZSoftKey;

/// A screen of 240 x 320 pixels. A child screen lies over its parent at (0, 0). Unhandled keys stop here, so that a
/// sub-screen's keys do not reach its opener.
class ZKbMainWidget : public QWidget
{
    Q_OBJECT
    KAV_CLASS_NAME

public:
    /// `parent` owns the screen and may be null; `name` (Latin-1, may be null) is the object name; `flags` are window
    /// flags, 0 for none.
    ZKbMainWidget(QWidget *parent, const char *name, unsigned int flags);
    virtual ~ZKbMainWidget();

    void setMainWidgetTitle(const QString &title);
    /// The whole title, whatever is elided on the display.
    QString mainWidgetTitle() const;

    /// Installs `bar`, which becomes a child of the screen, at the screen's foot in place of an earlier one; null
    /// takes the bar away.
    void setCSTWidget(QWidget *bar);
    QWidget *cstWidget() const;

    /// The content area, never null, owned by the screen. It has its final geometry from the start, so that a
    /// list can be given its size before the screen is shown. `create` false answers null before the first call
    /// with true.
    QWidget *getContentWidget(bool create);

    /// Closes the screen; with `alsoDelete` it is deleted later, through the event loop. Answers whether it closed.
    virtual bool close(bool alsoDelete);
    using QWidget::close;

signals:
    /// The clear key was pressed on this screen.
    void clearKeyClicked();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    struct Private;
    std::unique_ptr<Private> d;
};
