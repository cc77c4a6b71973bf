// What the network charges for calls.
#pragma once

#include "host/Line.h"
#include "host/panel/PanelSection.h"

#include <array>

class QCheckBox;
class QDoubleSpinBox;
class QGridLayout;

namespace host {

class Announcement;

class TariffSection : public PanelSection
{
    Q_OBJECT

public:
    explicit TariffSection(Line &line);
    void refresh() override;

private:
    /// Of the calls of one direction.
    struct Column {
        handset::CallDirection direction = handset::CallDirection::Dialed;
        QCheckBox *free = nullptr;
        QDoubleSpinBox *units = nullptr;
        QDoubleSpinBox *interval = nullptr;
        QDoubleSpinBox *start = nullptr;
    };

    void addColumn(QGridLayout *grid, Column &column, int number);
    void setFree(const Column &column, bool free);
    void setElements(const Column &column);
    void set(const Column &column, const handset::charging::Tariff &tariff);
    void show(const Column &column);

    Line &line;
    std::array<Column, 2> columns{};
    Announcement *failure;
};

} // namespace host
