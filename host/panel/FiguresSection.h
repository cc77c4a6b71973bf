// The call timers as the handset has them.
#pragma once

#include "host/Line.h"
#include "host/panel/PanelSection.h"

#include <array>

class QLabel;
class QPushButton;

namespace host {

class FiguresSection : public PanelSection
{
    Q_OBJECT

public:
    explicit FiguresSection(Line &line);
    void refresh() override;

private:
    Line &line;
    std::array<QLabel *, 6> values{};
    QPushButton *addHistory;
};

} // namespace host
