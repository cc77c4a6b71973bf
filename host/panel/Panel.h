// What stands beside the phone: the controls of the simulation and the telephone's figures.
#pragma once

#include "Line.h"

#include <QtCore/QList>
#include <QtCore/QTimer>
#include <QtWidgets/QScrollArea>

namespace host {

class PanelSection;

/// A column of sections, each a class of its own. A new role of the telephone is a new section.
class Panel : public QScrollArea
{
    Q_OBJECT

public:
    /// `line` outlives the panel. `stateDirectory` is empty for a telephone in memory; `notice` is what the user
    /// should know of its opening, or empty.
    Panel(Line &line, const QString &stateDirectory, const QString &notice, QWidget *parent = nullptr);

private:
    void refresh();

    Line &line;
    QList<PanelSection *> sections;
    QTimer tick; ///< runs while a call is connected, whose time goes on without a change being told
};

} // namespace host
