// The prepaid account.
#pragma once

#include "host/Line.h"
#include "host/panel/PanelSection.h"

class QDateEdit;
class QLabel;
class QLineEdit;
class QVBoxLayout;

namespace host {

class Announcement;

class AccountSection : public PanelSection
{
    Q_OBJECT

public:
    explicit AccountSection(Line &line);
    void refresh() override;

private:
    void addTopUp(QVBoxLayout *column);
    void topUp();

    Line &line;
    QLabel *credit;
    Announcement *deposit;
    QLineEdit *amount;
    QDateEdit *expires;
    Announcement *failure;
};

} // namespace host
