// How costs are shown, and what the current call costs.
#pragma once

#include "host/Line.h"
#include "host/panel/PanelSection.h"

class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace host {

class Announcement;

class CostSection : public PanelSection
{
    Q_OBJECT

public:
    explicit CostSection(Line &line);
    void refresh() override;

private:
    void addPrice(QGridLayout *grid, int row);
    void setType(int type);
    void setPrice();
    void showSettings(handset::Handset &handset);
    QString limitText(handset::Handset &handset) const;

    Line &line;
    QComboBox *type;
    QLineEdit *price;
    QLineEdit *currency;
    QLabel *limit;
    QLabel *callLabel;
    QLabel *callCost;
    Announcement *failure;
};

/// `amount` and the unit that `handset` shows behind it: "12.50 EUR", "3.00 units".
QString withUnit(const QString &amount, handset::Handset &handset);

/// Why there is no line.charging(): one sentence.
QString notCharging(const Line &line);

} // namespace host
