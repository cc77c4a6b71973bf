// The kept calls, one by one.
#pragma once

#include "host/Line.h"
#include "host/panel/PanelSection.h"

class QPushButton;
class QTreeView;

namespace host {

class Announcement;
class CallsModel;

class RecentCallsSection : public PanelSection
{
    Q_OBJECT

public:
    explicit RecentCallsSection(Line &line);
    void refresh() override;

private:
    void prepareTable();
    void removeChosen();
    void askToRemoveAll();
    void removeAll();
    void told(int status);
    void showButtons();

    Line &line;
    CallsModel *calls;
    QTreeView *table;
    QPushButton *removeButton;
    QPushButton *removeAllButton;
    Announcement *failure;
    QString refused; ///< why the last deletion was
};

} // namespace host
