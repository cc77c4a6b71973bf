// Which of the handset's operations fail.
#pragma once

#include "host/faults/Faults.h"
#include "host/panel/PanelSection.h"

class QComboBox;
class QListWidget;
class QPushButton;
class QSpinBox;

namespace host {

class FailuresSection : public PanelSection
{
    Q_OBJECT

public:
    /// `faults`, which outlive this, are those of the handset that the phone's libraries talk to.
    explicit FailuresSection(Faults &faults);
    void refresh() override;

private:
    void add();
    void remove();
    void removeAll();

    void prepareControls();
    void layOut();
    void fillList();

    Faults &faults;
    Faults shown; ///< in the list
    QComboBox *operation;
    QSpinBox *code;
    QPushButton *addButton;
    QListWidget *failing;
    QPushButton *removeButton;
    QPushButton *removeAllButton;
};

} // namespace host
