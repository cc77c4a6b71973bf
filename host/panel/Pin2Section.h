// The SIM card's second PIN.
#pragma once

#include "host/Line.h"
#include "host/panel/PanelSection.h"

class QCheckBox;
class QGridLayout;
class QPushButton;

namespace host {

class Announcement;
class CodeField;

class Pin2Section : public PanelSection
{
    Q_OBJECT

public:
    explicit Pin2Section(Line &line);
    void refresh() override;

private:
    void addSwitches(QGridLayout *grid);
    void addEntering(QGridLayout *grid);
    void addUnblocking(QGridLayout *grid);
    void setOn(bool on);
    void powerCycle();
    void enter();
    void unblock();
    void say(const QString &text);

    Line &line;
    Announcement *state;
    QCheckBox *isOn;
    CodeField *pin;
    CodeField *puk;
    CodeField *newPin;
    Announcement *outcome;
};

} // namespace host
