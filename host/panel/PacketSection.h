// Packet-data sessions.
#pragma once

#include "host/Line.h"
#include "host/panel/PanelSection.h"

#include <array>

class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;

namespace host {

class Announcement;

class PacketSection : public PanelSection
{
    Q_OBJECT

public:
    explicit PacketSection(Line &line);
    void refresh() override;

private:
    void addControls(QGridLayout *grid);
    void addFigures(QGridLayout *grid, int row);
    void start();
    void stop();
    void told(int status);

    Line &line;
    QLineEdit *apn;
    QSpinBox *sent;
    QSpinBox *received;
    QPushButton *startButton;
    QPushButton *stopButton;
    Announcement *failure;
    std::array<QLabel *, 3> records{};
    QLabel *total;
};

} // namespace host
