// The line: its state, and what can be done with it.
#pragma once

#include "host/Line.h"
#include "host/panel/PanelSection.h"

#include <array>

class QLineEdit;
class QPushButton;
class QVBoxLayout;

namespace host {

class Announcement;

class LineSection : public PanelSection
{
    Q_OBJECT

public:
    explicit LineSection(Line &line);
    void refresh() override;

private:
    void addNumber(QVBoxLayout *column);
    void addButtons(QVBoxLayout *column);

    Line &line;
    Announcement *state;
    Announcement *notice;
    Announcement *record;
    Announcement *told;
    Announcement *failure;
    QLineEdit *number;
    std::array<QPushButton *, 6> buttons{}; ///< null: what the line cannot do
};

} // namespace host
