// The modem behind the line, where one is.
#pragma once

#include "host/Line.h"
#include "host/panel/PanelSection.h"

class QLabel;

namespace host {

class ModemSection : public PanelSection
{
    Q_OBJECT

public:
    /// The line is a modem's.
    explicit ModemSection(Line &line);
    void refresh() override;

private:
    Line &line;
    QLabel *modem;
    QLabel *network;
    QLabel *state;
    QLabel *data;
    QLabel *charging;
    QLabel *recording;
    QLabel *missing;
};

} // namespace host
