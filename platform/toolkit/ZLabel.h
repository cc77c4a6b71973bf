// A line of text on a screen.
#pragma once

#include "qt/classname.h"
#include "toolkit/ZSkinService.h"

#include <QtWidgets/QLabel>

/// One line of plain text, elided on the display where it does not fit. The whole text is the accessible name.
class ZLabel : public QLabel
{
    Q_OBJECT
    KAV_CLASS_NAME

public:
    /// `text` of any length and content; `parent` owns the label; `name` (Latin-1, may be null) is the object
    /// name; `flags` are window flags (0); `skinClass` what the skin draws the label as, a heading or a plain
    /// line.
    ZLabel(const QString &text, QWidget *parent, const char *name, unsigned int flags,
           ZSkinService::WidgetClsID skinClass);
    ~ZLabel() override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const bool isHeading;
};
