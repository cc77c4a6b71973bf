// A part of the panel.
#pragma once

#include <QtWidgets/QGroupBox>

namespace host {

class PanelSection : public QGroupBox
{
    Q_OBJECT

public:
    using QGroupBox::QGroupBox;

    /// Shows what is so now. Called after every change, and once a second while a call is connected or a session runs.
    virtual void refresh() = 0;
};

} // namespace host
