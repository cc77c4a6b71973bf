// Where the handset keeps its state.
#pragma once

#include "host/panel/PanelSection.h"

#include <functional>

namespace host {

class StateSection : public PanelSection
{
    Q_OBJECT

public:
    /// The arguments as in Panel.
    StateSection(const QString &stateDirectory, const QString &notice, const std::function<void()> &renew);
    void refresh() override {} // decided when the handset was opened

private:
    void askToRenew();

    const bool isKept;
    const std::function<void()> renew;
};

} // namespace host
