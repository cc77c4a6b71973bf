// Where the handset keeps its state.
#pragma once

#include "host/panel/PanelSection.h"

namespace host {

class StateSection : public PanelSection
{
    Q_OBJECT

public:
    /// The arguments as in Panel.
    StateSection(const QString &stateDirectory, const QString &notice);
    void refresh() override {} // decided when the handset was opened
};

} // namespace host
