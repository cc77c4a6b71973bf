// The SIM card's files of advice of charge.
#pragma once

#include "host/Line.h"
#include "host/panel/PanelSection.h"

#include <array>

class QComboBox;
class QLabel;

namespace host {

class Announcement;

class SimFilesSection : public PanelSection
{
    Q_OBJECT

public:
    explicit SimFilesSection(Line &line);
    void refresh() override;

private:
    struct Row {
        QLabel *content = nullptr;
        QComboBox *rule = nullptr;
    };

    void setRule(std::size_t row, int choice);

    Line &line;
    std::array<Row, 3> rows{};
    Announcement *failure;
};

} // namespace host
